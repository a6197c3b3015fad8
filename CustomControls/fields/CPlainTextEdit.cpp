#include <CustomControls/fields/CPlainTextEdit.h>

#include <CustomControls/fields/TextViewMenu_p.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>

#include <utility>

namespace {

enum Row
{
    RowCut,
    RowCopy,
    RowPaste,
};

// "color#202020" lacks its colon and is passed over: the text keeps the palette's colour.
const QString kEditSheet = QStringLiteral("QPlainTextEdit{background:#FFFFFF;border:1px solid #D5D5D5;"
                                          "border-radius:2px;padding-left:2px;padding-right:2px;color#202020;}"
                                          "QPlainTextEdit::hover{border:1px solid #4975EC;}");
const QString kScrollBarSheet = QStringLiteral(
    "QScrollBar:vertical{min-width:6px;max-width:6px;border:none; background:rgba(0,0,0,0);color:rgba(0,0,0,0);"
    "padding-left:0px;padding-right:0px;min-height:30px;}"
    "QScrollBar::handle:vertical{width:6px;background:rgb(165,171,183);max-height:400;min-height:50;"
    "border-radius:3px;border:none;}"
    "QScrollBar::handle:vertical:hover{background:rgb(155,151,163);max-height:400;min-height:50;"
    "border-radius:3px;border:none;}"
    "QScrollBar::add-line:vertical{border:0px solid rgb(220,0,220);background:rgba(100,20,02,0);height:0px;"
    "subcontrol-origin:margin;}"
    "QScrollBar::sub-line:vertical{border:0px solid rgb(20,220,220);background:rgba(100,20,02,0);height:0px;"
    "subcontrol-origin:margin;}"
    "QScrollBar::add-page::vertical,QScrollBar::sub-page:vertical{background:rgba(0,0,0,0);width:0px;height:0px;}");

const TextViewMenu::Registration<CPlainTextEdit> kRegistration;

} // namespace

CPlainTextEdit::CPlainTextEdit(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setStyleSheet(kEditSheet);
    verticalScrollBar()->setStyleSheet(kScrollBarSheet);
    verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);

    TextViewMenu::Create(&m_pMenu, this, parentWidget());
    TextViewMenu::AddRow(m_pMenu, tr("剪切"), QStringLiteral(":/icon/icon/ico_data_shear_nor.png"),
                         QStringLiteral("Ctrl+X"));
    TextViewMenu::ConnectLastRow(m_pMenu, this, &CPlainTextEdit::Cut);
    TextViewMenu::AddRow(m_pMenu, tr("复制"), QStringLiteral(":/icon/icon/ico_data_copy_nor.png"),
                         QStringLiteral("Ctrl+C"));
    TextViewMenu::ConnectLastRow(m_pMenu, this, &CPlainTextEdit::Copy);
    TextViewMenu::AddRow(m_pMenu, tr("粘贴"), QStringLiteral(":/icon/icon/ico_data_paste_nor.png"),
                         QStringLiteral("Ctrl+V"));
    TextViewMenu::ConnectLastRow(m_pMenu, this, &CPlainTextEdit::Paste);
    TextViewMenu::AddRow(m_pMenu, tr("全选"), QString(), QStringLiteral("Ctrl+A"));
    TextViewMenu::ConnectLastRow(m_pMenu, this, &CPlainTextEdit::selectAll);

    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &CPlainTextEdit::ShowMenu);
    installEventFilter(this);
    viewport()->installEventFilter(this);
}

CPlainTextEdit::~CPlainTextEdit()
{
    delete std::exchange(m_pMenu, nullptr);
}

bool CPlainTextEdit::eventFilter(QObject* obj, QEvent* event)
{
    if (TextViewMenu::Filter(m_pMenu, this, obj, event)) {
        return true;
    }
    return QPlainTextEdit::eventFilter(obj, event);
}

void CPlainTextEdit::ShowMenu(const QPoint& position)
{
    if (!m_pMenu) {
        return;
    }
    TextViewMenu::Show(m_pMenu, this, position, TextViewMenu::InsideParent);

    const bool selected = textCursor().hasSelection();
    // A host that finds the menu may have taken rows out of it.
    const auto enable = [this](Row row, bool enabled) {
        if (CCustomMenuItem* item = m_pMenu->MenuButton(row)) {
            item->SetEnabled(enabled);
        }
    };
    enable(RowCut, selected);
    enable(RowCopy, selected);
    enable(RowPaste, !QGuiApplication::clipboard()->text().isEmpty());
}

void CPlainTextEdit::Cut()
{
    QTextCursor cursor = textCursor();
    const QString text = cursor.selectedText();
    cursor.removeSelectedText();
    setTextCursor(cursor);
    QGuiApplication::clipboard()->setText(text);
}

void CPlainTextEdit::Copy()
{
    TextViewMenu::Copy(textCursor());
}

void CPlainTextEdit::Paste()
{
    insertPlainText(QGuiApplication::clipboard()->text());
}
