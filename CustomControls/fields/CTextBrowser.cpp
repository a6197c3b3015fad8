#include <CustomControls/fields/CTextBrowser.h>

#include <CustomControls/fields/TextViewMenu_p.h>

namespace {

const TextViewMenu::Registration<CTextBrowser> kRegistration;

} // namespace

CTextBrowser::CTextBrowser(QWidget* parent)
    : QTextBrowser(parent)
{
    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this, &CTextBrowser::ShowMenu);
    installEventFilter(this);
    viewport()->installEventFilter(this);

    TextViewMenu::Create(&m_pMenu, this, parent);
    TextViewMenu::AddRow(m_pMenu, tr("复制"), QStringLiteral(":/icon/icon/ico_data_copy_nor.png"),
                         QStringLiteral("Ctrl+C"));
    TextViewMenu::ConnectLastRow(m_pMenu, this, &CTextBrowser::Copy);
}

CTextBrowser::~CTextBrowser()
{
    if (!m_pMenu) {
        return;
    }
    // It must not call back into the browser from here on.
    m_pMenu->disconnect(this);
    if (m_pMenu->parent()) {
        m_pMenu->hide(); // nobody else would close it
    } else {
        delete m_pMenu;
    }
}

bool CTextBrowser::eventFilter(QObject* obj, QEvent* event)
{
    if (TextViewMenu::Filter(m_pMenu, this, obj, event)) {
        return true;
    }
    return QTextBrowser::eventFilter(obj, event);
}

void CTextBrowser::ShowMenu(const QPoint& position)
{
    if (m_pMenu && textCursor().hasSelection()) {
        TextViewMenu::Show(m_pMenu, this, position, TextViewMenu::AsAsked);
    }
}

void CTextBrowser::Copy()
{
    TextViewMenu::Copy(textCursor());
}
