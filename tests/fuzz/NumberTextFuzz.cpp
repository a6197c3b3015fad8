#include <tests/fuzz/FuzzTarget.h>

#include <CustomControls/fields/CTextEdit.h>
#include <CustomControls/machine/CSelectMachineIPLineEdit.h>
#include <CustomControls/tables/CDelegateLineEdit.h>

#include <CorvaneBase/CorvaneTextHelper.h>

#include <QCoreApplication>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardItemModel>
#include <QStyleOptionViewItem>
#include <QValidator>

#include <algorithm>
#include <cmath>

// The fields for numbers. Each line is one deed, told by its first letter:
//   r A B   range        d N   decimals       x N   default value
//   v N     value        w N   value, wrapped into the range
//   t TEXT  typed into the number field       k     a step up and one down
//   c TEXT  typed into the table's editor     i TEXT  typed into the address field
// After each of them a field holds what it may hold, and nothing else.

namespace {

// As a user types it, or pastes it where it is longer: through the field's own check, over what stands there.
void Type(QLineEdit* edit, const QString& text)
{
    edit->selectAll();
    edit->insert(text);
    for (const QChar& character : text.left(8)) {
        edit->insert(character);
    }
}

void Press(QWidget* widget, Qt::Key key)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &press);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &release);
}

void CheckTableEditor(const QString& text)
{
    // One editor serves all inputs, since it stays behind when its edit ends. Its check is owned by nobody: by it,
    // here.
    static QWidget view;
    static CDelegateLineEdit delegate(&view);
    static QStandardItemModel model(1, 1);
    static auto* edit = [] {
        auto* made = qobject_cast<QLineEdit*>(delegate.createEditor(&view, QStyleOptionViewItem(), model.index(0, 0)));
        delegate.setEditorData(made, model.index(0, 0));
        const_cast<QValidator*>(made->validator())->setParent(made);
        return made;
    }();
    edit->clear();
    Type(edit, text);
    const double number = CorvaneTextHelper::instance()->SafeStringToDouble(edit->text());
    FUZZ_CHECK(std::isfinite(number) && std::abs(number) < 1000.0);
    FUZZ_CHECK(edit->text().size() <= 9);
    delegate.setModelData(edit, &model, model.index(0, 0));
    bool ok = false;
    const double stored = model.index(0, 0).data().toString().toDouble(&ok);
    FUZZ_CHECK(ok && std::abs(stored - number) <= 5e-3);
}

void CheckAddressField(const QString& text)
{
    static CSelectMachineIPLineEdit field(nullptr);
    static auto* edit = field.findChild<QLineEdit*>();
    static QString last;
    static const auto connection =
        QObject::connect(&field, &CSelectMachineIPLineEdit::SignalInputIP, [](const QString& ip) { last = ip; });
    Q_UNUSED(connection)
    last = QStringLiteral("untouched");
    field.ClearInput();
    Type(edit, text);
    FUZZ_CHECK(edit->text().size() <= 15);
    field.close();
    // Whole or none. Leading zeros are the user's own; the numbers are decimal all the same.
    const QStringList parts = last.split(QLatin1Char('.'));
    FUZZ_CHECK(last.isEmpty() || parts.size() == 4);
    for (const QString& part : parts) {
        FUZZ_CHECK(last.isEmpty() || (part.size() >= 1 && part.size() <= 3 && part.toInt() <= 255));
        FUZZ_CHECK(std::all_of(part.begin(), part.end(), [](QChar c) { return c >= u'0' && c <= u'9'; }));
    }
}

} // namespace

void FuzzOne(FuzzInput& input)
{
    auto* helper = CorvaneTextHelper::instance();
    // Made once, for its style sheets, and as good as new for each input.
    static auto* field = new CTextEdit(nullptr, QStringLiteral("name"), {}, QStringLiteral("mm"), 0.0);
    static auto* spin = field->findChild<QDoubleSpinBox*>();
    static auto* edit = spin->findChild<QLineEdit*>();
    field->SetDecimals(2);
    field->SetRange(0.0, 999999.0);
    field->SetDefaultValue(QString::fromUtf8(input.Until('\n')).toDouble());
    field->SetValue(field->DefaultValue());
    while (!input.AtEnd()) {
        const int deed = input.Byte();
        const QString text = QString::fromUtf8(input.Until('\n'));
        // What a program passes may also be no number, or without end.
        const double number = text.trimmed().toDouble();
        FUZZ_CHECK(std::isfinite(helper->SafeStringToDouble(text)));
        switch (deed) {
        case 'r':
            field->SetRange(text.section(QLatin1Char(' '), 0, 0).toDouble(),
                            text.section(QLatin1Char(' '), 1).toDouble());
            break;
        case 'd':
            field->SetDecimals(text.trimmed().toInt());
            break;
        case 'x':
            field->SetDefaultValue(number);
            break;
        case 'v':
            field->SetValue(number);
            break;
        case 'w':
            field->SetValue(number, spin->decimals(), true);
            break;
        case 't':
            Type(edit, text);
            Press(spin, Qt::Key_Return);
            break;
        case 'k':
            Press(spin, Qt::Key_Up);
            Press(spin, Qt::Key_Down);
            break;
        case 'c':
            CheckTableEditor(text);
            break;
        case 'i':
            CheckAddressField(text);
            break;
        default:
            break;
        }
        const double value = field->GetEditData();
        FUZZ_CHECK(!std::isnan(value) && !std::isnan(field->DefaultValue()));
        FUZZ_CHECK(value >= spin->minimum() && value <= spin->maximum());
        // What is shown is what is held, but for the last bits that a step adds.
        if (std::isfinite(value)) {
            spin->interpretText();
            FUZZ_CHECK(std::abs(field->GetEditData() - value) <= 1e-12 * qMax(1.0, std::abs(value)));
        }
    }
    FuzzSettle();
}
