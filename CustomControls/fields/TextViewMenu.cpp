#include <CustomControls/fields/TextViewMenu_p.h>

#include <CustomControls/menus/MenuKeyboard.h>

#include <QAbstractScrollArea>
#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QTextCursor>

namespace {

constexpr int kMenuWidth = 180;
constexpr int kRowHeight = 24;
constexpr int kEdgeDistance = 4;

} // namespace

void TextViewMenu::Create(CCustomMenu** menu, QAbstractScrollArea* view, QWidget* parent)
{
    *menu = new CCustomMenu(parent);
    QObject::connect(*menu, &QObject::destroyed, view, [menu] { *menu = nullptr; });
    if (!parent) {
        (*menu)->setWindowFlags(Qt::ToolTip); // no frame, and the view stays active
    }
    (*menu)->SetMenuStyle(MenuStyleWhite);
    (*menu)->SetWindowWidth(kMenuWidth);
    (*menu)->SetWindowHeight(kRowHeight);
    (*menu)->hide();
}

void TextViewMenu::AddRow(CCustomMenu* menu, const QString& text, const QString& picture, const QString& key)
{
    menu->AddMenuItem(text, picture, key, QString(), QString());
    menu->MenuButton(menu->MenuButtonCount() - 1)->SetChooseFocus(false); // brings the white style's dark text
}

void TextViewMenu::Show(CCustomMenu* menu, const QAbstractScrollArea* view, const QPoint& position, Placing placing)
{
    if (!menu->parentWidget() && view->parentWidget()) {
        // A view that was made without a parent has found one since.
        menu->setParent(view->parentWidget());
    }
    QPoint corner = view->mapToGlobal(position);
    if (const QWidget* room = menu->parentWidget()) {
        corner = room->mapFromGlobal(corner);
        if (placing == InsideParent && corner.x() + menu->width() > room->width()) {
            corner.setX(room->width() - kEdgeDistance - menu->width());
        }
        if (placing == InsideParent && corner.y() + menu->height() > room->height()) {
            corner.setY(room->height() - kEdgeDistance - menu->height());
        }
    }
    menu->move(corner);
    menu->raise();
    menu->show();
}

bool TextViewMenu::Filter(CCustomMenu* menu, const QAbstractScrollArea* view, const QObject* obj, const QEvent* event)
{
    if (!menu || !menu->isVisible() || (obj != view && obj != view->viewport())) {
        return false;
    }
    if (event->type() == QEvent::MouseButtonRelease) {
        if (static_cast<const QMouseEvent*>(event)->button() == Qt::LeftButton) {
            menu->hide();
        }
    } else if (event->type() == QEvent::FocusOut) {
        if (menu->rect().contains(menu->mapFromGlobal(QCursor::pos()))) {
            return true; // a click on a row is under way, and the menu has to live until the row sees it
        }
        menu->hide();
    } else if (event->type() == QEvent::KeyPress && obj == view) {
        // The view keeps the focus while its menu is open, and hands the keys on.
        switch (MenuKeyboard::Press(menu, static_cast<const QKeyEvent*>(event))) {
        case MenuKeyboard::Leaves:
            menu->hide();
            return true;
        case MenuKeyboard::Taken:
            return true;
        case MenuKeyboard::Ignored:
            break;
        }
    }
    return false;
}

void TextViewMenu::Copy(const QTextCursor& cursor)
{
    QGuiApplication::clipboard()->setText(cursor.selectedText());
}
