#include "OverflowMenu.h"

#include "GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <QAction>
#include <QEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QToolBar>

OverflowMenu::OverflowMenu(QToolBar* block, const QList<CToolButton*>& tools)
    : QObject(block)
    , m_tools(tools)
    , m_pOverflow(block->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"), Qt::FindDirectChildrenOnly))
{
    if (m_pOverflow) {
        m_pOverflow->installEventFilter(this);
    }
}

bool OverflowMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !m_pOverflow->isEnabled()) {
        m_pOverflow->setEnabled(true);
    } else if (event->type() == QEvent::MouseButtonPress &&
               static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        Show();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void OverflowMenu::Show()
{
    auto* menu = new QMenu(m_pOverflow);
    menu->setObjectName(QStringLiteral("overflowMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(FontCn_13);
    menu->setStyleSheet(GalleryStyle::Menu());
    for (CToolButton* tool : std::as_const(m_tools)) {
        if (tool->isVisible()) {
            continue;
        }
        QAction* entry = menu->addAction(tool->icon(), tool->text().simplified());
        entry->setCheckable(tool->isCheckable());
        entry->setChecked(tool->isChecked());
        entry->setEnabled(tool->isEnabled());
        if (tool->menu()) {
            entry->setMenu(tool->menu());
        } else {
            connect(entry, &QAction::triggered, tool, &CToolButton::click);
        }
    }
    menu->popup(m_pOverflow->mapToGlobal(QPoint(0, m_pOverflow->height())));
}
