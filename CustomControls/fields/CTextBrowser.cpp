#include <CustomControls/fields/CTextBrowser.h>

#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>

namespace {

constexpr int kMenuWidth = 180;
constexpr int kRowHeight = 24;

} // namespace

CTextBrowser::CTextBrowser(QWidget* parent)
    : QTextBrowser(parent)
{
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &CTextBrowser::ShowMenu);
    installEventFilter(this);
    viewport()->installEventFilter(this);

    m_pMenu = new CCustomMenu(parent);
    connect(m_pMenu, &QObject::destroyed, this, [this] { m_pMenu = nullptr; });
    if (!parent) {
        m_pMenu->setWindowFlags(Qt::ToolTip); // no frame, and the browser stays active
    }
    m_pMenu->SetMenuStyle(MenuStyleWhite);
    m_pMenu->SetWindowWidth(kMenuWidth);
    m_pMenu->SetWindowHeight(kRowHeight);
    // The picture's path stands where the shortcut is shown: the same settled order as in the editor's menu.
    m_pMenu->AddMenuItem(tr("复制"), QStringLiteral(":/icon/icon/ico_data_copy_nor.png"), QStringLiteral("Ctrl+C"),
                         QString(), QString());
    m_pMenu->hide();
    m_pMenu->MenuButton(0)->SetChooseFocus(false); // brings the white style's dark text
    connect(m_pMenu->MenuButton(0), &CCustomMenuItem::SignalMenuItemClicked, this, [this] {
        m_pMenu->hide();
        setFocus(); // the click on the row took it
        QGuiApplication::clipboard()->setText(textCursor().selectedText());
    });
}

CTextBrowser::~CTextBrowser()
{
    if (m_pMenu && !m_pMenu->parent()) {
        delete m_pMenu;
    }
}

bool CTextBrowser::eventFilter(QObject* obj, QEvent* event)
{
    if ((obj == this || obj == viewport()) && m_pMenu && m_pMenu->isVisible()) {
        if (event->type() == QEvent::MouseButtonRelease) {
            if (static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
                m_pMenu->hide();
            }
        } else if (event->type() == QEvent::FocusOut) {
            if (m_pMenu->rect().contains(m_pMenu->mapFromGlobal(QCursor::pos()))) {
                return true; // a click on the row is under way, and the menu has to live until the row sees it
            }
            m_pMenu->hide();
        }
    }
    return QTextBrowser::eventFilter(obj, event);
}

void CTextBrowser::ShowMenu(const QPoint& position)
{
    if (!m_pMenu || !textCursor().hasSelection()) {
        return;
    }
    const QPoint corner = mapToGlobal(position);
    const QWidget* room = m_pMenu->parentWidget();
    m_pMenu->move(room ? room->mapFromGlobal(corner) : corner);
    m_pMenu->raise();
    m_pMenu->show();
}
