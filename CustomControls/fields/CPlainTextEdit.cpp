#include <CustomControls/fields/CPlainTextEdit.h>

#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QScrollBar>

#include <utility>

namespace {

enum Row
{
    RowCut,
    RowCopy,
    RowPaste,
    RowSelectAll,
};

constexpr int kMenuWidth = 180;
constexpr int kRowHeight = 24;
constexpr int kEdgeDistance = 4;

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

} // namespace

CPlainTextEdit::CPlainTextEdit(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setStyleSheet(kEditSheet);
    verticalScrollBar()->setStyleSheet(kScrollBarSheet);
    verticalScrollBar()->setContextMenuPolicy(Qt::NoContextMenu);

    m_pMenu = new CCustomMenu(parentWidget());
    connect(m_pMenu, &QObject::destroyed, this, [this] { m_pMenu = nullptr; });
    if (!m_pMenu->parentWidget()) {
        m_pMenu->setWindowFlags(Qt::ToolTip); // no frame, and the editor stays active
    }
    m_pMenu->SetMenuStyle(MenuStyleWhite);
    m_pMenu->SetWindowWidth(kMenuWidth);
    m_pMenu->SetWindowHeight(kRowHeight);

    // The picture's path stands where the shortcut is shown and the key's name where the picture is looked for: this
    // order is settled.
    m_pMenu->AddMenuItem(tr("剪切"), QStringLiteral(":/icon/icon/ico_data_shear_nor.png"), QStringLiteral("Ctrl+X"),
                         QString(), QString());
    m_pMenu->AddMenuItem(tr("复制"), QStringLiteral(":/icon/icon/ico_data_copy_nor.png"), QStringLiteral("Ctrl+C"),
                         QString(), QString());
    m_pMenu->AddMenuItem(tr("粘贴"), QStringLiteral(":/icon/icon/ico_data_paste_nor.png"), QStringLiteral("Ctrl+V"),
                         QString(), QString());
    m_pMenu->AddMenuItem(tr("全选"), QString(), QStringLiteral("Ctrl+A"), QString(), QString());
    m_pMenu->hide();
    for (const Row row : {RowCut, RowCopy, RowPaste, RowSelectAll}) {
        m_pMenu->MenuButton(row)->SetChooseFocus(false); // brings the white style's dark text
    }

    const auto connectRow = [this](Row row, auto action) {
        connect(m_pMenu->MenuButton(row), &CCustomMenuItem::SignalMenuItemClicked, this, [this, action] {
            m_pMenu->hide();
            setFocus(); // the click on the row took it
            (this->*action)();
        });
    };
    connectRow(RowCut, &CPlainTextEdit::Cut);
    connectRow(RowCopy, &CPlainTextEdit::Copy);
    connectRow(RowPaste, &CPlainTextEdit::Paste);
    connectRow(RowSelectAll, &CPlainTextEdit::selectAll);

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
    if ((obj == this || obj == viewport()) && m_pMenu && m_pMenu->isVisible()) {
        if (event->type() == QEvent::MouseButtonRelease) {
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
                m_pMenu->hide();
            }
        } else if (event->type() == QEvent::FocusOut) {
            if (m_pMenu->rect().contains(m_pMenu->mapFromGlobal(QCursor::pos()))) {
                return true; // a click on a row is under way, and the menu has to live until the row sees it
            }
            m_pMenu->hide();
        }
    }
    return QPlainTextEdit::eventFilter(obj, event);
}

void CPlainTextEdit::ShowMenu(const QPoint& position)
{
    if (!m_pMenu) {
        return;
    }
    QPoint corner = mapToGlobal(position);
    if (const QWidget* room = m_pMenu->parentWidget()) {
        corner = room->mapFromGlobal(corner);
        if (corner.x() + m_pMenu->width() > room->width()) {
            corner.setX(room->width() - kEdgeDistance - m_pMenu->width());
        }
        if (corner.y() + m_pMenu->height() > room->height()) {
            corner.setY(room->height() - kEdgeDistance - m_pMenu->height());
        }
    }
    m_pMenu->move(corner);
    m_pMenu->raise();
    m_pMenu->show();

    const bool selected = textCursor().hasSelection();
    m_pMenu->MenuButton(RowCut)->SetEnabled(selected);
    m_pMenu->MenuButton(RowCopy)->SetEnabled(selected);
    m_pMenu->MenuButton(RowPaste)->SetEnabled(!QGuiApplication::clipboard()->text().isEmpty());
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
    QGuiApplication::clipboard()->setText(textCursor().selectedText());
}

void CPlainTextEdit::Paste()
{
    insertPlainText(QGuiApplication::clipboard()->text());
}
