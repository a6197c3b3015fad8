#include <CustomControls/tables/CDelegateLineEdit.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>

#include <QLineEdit>
#include <QRegularExpression>
#include <QRegularExpressionValidator>

namespace {

constexpr char kEditorSheet[] =
    "border-left:1px solid #5f5f5f;border-top:1px solid #5f5f5f;border-right:1px solid #5f5f5f;"
    "border-bottom:1px solid #5f5f5f;border-radius:4px;background-color:#eeeeee;padding-left:2px;";

constexpr char kNumberPattern[] = "^-?\\d{1,3}(\\.\\d{1,4})?$";

constexpr int kTopInset = 10;
constexpr int kRightInset = 9;
constexpr int kBottomInset = 9;

constexpr int kStoredDigits = 6;

double ToNumber(const QLineEdit* edit)
{
    return CorvaneTextHelper::instance()->SafeStringToDouble(edit->text());
}

} // namespace

QString CDelegateLineEdit::s_strEditorText;
QLineEdit* CDelegateLineEdit::s_pEditor = nullptr;

CDelegateLineEdit::CDelegateLineEdit(QObject* parent)
    : QStyledItemDelegate(parent)
{
    for (QObject* ancestor = parent; ancestor; ancestor = ancestor->parent()) {
        if (auto* widget = qobject_cast<QWidget*>(ancestor)) {
            m_pRootWidget = widget;
        }
    }
}

CDelegateLineEdit::~CDelegateLineEdit() = default;

QWidget* CDelegateLineEdit::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const
{
    auto* edit = new QLineEdit(parent);
    connect(edit, &QLineEdit::returnPressed, this, &CDelegateLineEdit::SlotEditingFinished);
    edit->setFont(FontCnMedium_13);
    edit->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    edit->setFocusPolicy(Qt::StrongFocus);
    edit->setFrame(false);
    edit->setStyleSheet(QLatin1String(kEditorSheet));
    return edit;
}

void CDelegateLineEdit::destroyEditor(QWidget*, const QModelIndex&) const
{
    // Hosts may still hold the editor when its edit ends, so it lives as long as the view.
}

void CDelegateLineEdit::setEditorData(QWidget* editor, const QModelIndex& index) const
{
    auto* edit = qobject_cast<QLineEdit*>(editor);
    if (!edit) {
        return;
    }
    const QString text = index.data(Qt::EditRole).toString();
    s_strEditorText = text;
    s_pEditor = edit;
    // The text comes before the validator, so that a value beyond the pattern shows nevertheless.
    edit->setText(text);
    // Nobody owns the validator, so an editor that outlives the delegate keeps its check.
    edit->setValidator(new QRegularExpressionValidator(QRegularExpression(QLatin1String(kNumberPattern)), nullptr));
    if (!edit->isActiveWindow()) {
        edit->activateWindow();
    }
}

void CDelegateLineEdit::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    const auto* edit = qobject_cast<QLineEdit*>(editor);
    if (!edit || !model) {
        return;
    }
    model->setData(index, QString::number(ToNumber(edit), 'g', kStoredDigits), Qt::EditRole);
}

void CDelegateLineEdit::updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                                             const QModelIndex&) const
{
    if (editor) {
        editor->setGeometry(option.rect.adjusted(0, kTopInset, -kRightInset, -kBottomInset));
    }
}

void CDelegateLineEdit::SlotEditingFinished()
{
    if (const auto* edit = qobject_cast<QLineEdit*>(sender())) {
        Q_EMIT SignalDataChanged(ToNumber(edit));
    }
}
