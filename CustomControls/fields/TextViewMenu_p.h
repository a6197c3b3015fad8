#pragma once

#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <QMetaType>

class QAbstractScrollArea;
class QTextCursor;

/**
 * What the context menus of the text views have in common: the look, the place and the time of closing.
 *
 * Each view holds its menu as a plain pointer, which Create() sets and which becomes null when the menu goes first.
 */
namespace TextViewMenu {

enum Placing
{
    AsAsked,
    InsideParent
};

/** Makes a view's menu: white, hidden and without rows. It is a child of @p parent, or a small window of its own. */
void Create(CCustomMenu** menu, QAbstractScrollArea* view, QWidget* parent);

/**
 * Adds a row. The picture's path stands where the shortcut is shown and the key's name where the picture is looked for:
 * this order is settled.
 */
void AddRow(CCustomMenu* menu, const QString& text, const QString& picture, const QString& key);

/** Has a click on the last row hide the menu and then do @p action on the view, which has the focus again by then. */
template <class View, class Action>
void ConnectLastRow(CCustomMenu* menu, View* view, Action action)
{
    QObject::connect(menu->MenuButton(menu->MenuButtonCount() - 1), &CCustomMenuItem::SignalMenuItemClicked, view,
                     [menu, view, action] {
                         menu->hide();
                         view->setFocus(); // the click on the row took it
                         (view->*action)();
                     });
}

/** Shows the menu over its parent, at a position that is told in the view's coordinates. */
void Show(CCustomMenu* menu, const QAbstractScrollArea* view, const QPoint& position, Placing placing);

/**
 * Closes an open menu as an event of the view or its viewport demands.
 *
 * @return true when the event has to be swallowed
 */
bool Filter(CCustomMenu* menu, const QAbstractScrollArea* view, const QObject* obj, const QEvent* event);

/** Puts the selected text on the clipboard. */
void Copy(const QTextCursor& cursor);

/**
 * Makes a view known by its name while the library is loaded: its header is not installed, so a host makes one by
 * QMetaType::fromName().
 */
template <class View>
struct Registration
{
    Registration() { qRegisterMetaType<View>(); }
    ~Registration() { QMetaType::unregisterMetaType(QMetaType::fromType<View>()); }
    Q_DISABLE_COPY_MOVE(Registration)
};

} // namespace TextViewMenu
