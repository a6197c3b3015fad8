#pragma once

#include <CustomControls/CustomControlsGlobal.h>
#include <CustomControls/menus/MenuStyle.h>

#include <QHash>
#include <QList>
#include <QPointer>
#include <QString>
#include <QWidget>

class CCustomMenuItem;

namespace Ui {
class CCustomMenu;
}

/**
 * The menu of window bars and context menus: a panel with rows of icon, text, shortcut and arrow, separators, and
 * sub-menus to the right.
 *
 * It is no QMenu and no pop-up: an ordinary child of the window, which the host moves, shows and hides, and which grabs
 * nothing. A click on a row hides it; that it also closes when the focus goes away is the work of CMenuBtnHelper. Rows
 * and separators belong to the menu; a sub-menu belongs to the menu's own parent, so that it can lie beside the menu,
 * or, where there is no parent, goes with the menu. Everything may be deleted at any time, from a row's click too.
 *
 * Keyboard and accessibility: with the focus on the menu, on its button in a menu bar (CMenuBtnHelper) or on the text
 * view that has opened it, Up, Down, Home and End move over the rows, Return and Space do what a click does, Right and
 * Left go into a sub-menu and back, Escape closes. The row reached bears the choose focus. A screen reader meets a menu
 * of menu items.
 *
 * @code
 * auto* menu = new CCustomMenu(window);
 * menu->AddMenuItem(tr("Open"), "Ctrl+O", ":/icon/open.png", ":/icon/open_hover.png", ":/icon/open_off.png");
 * menu->AddButtonWithSubMenu(tr("Recent"), {}, {}, {}, {})->AddMenuItem(1, path, {}, {}, {});
 * menu->SetMenuStyle(MenuStyleDark);
 * menu->UpdateItemSize(); // once, after the last row
 * menu->RefreshSize();
 * menu->hide();
 * connect(menu->MenuButton(0), &CCustomMenuItem::SignalMenuItemClicked, this, &Window::Open);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CCustomMenu : public QWidget
{
    Q_OBJECT

public:
    /** The menu is not hidden here; that is for the host. */
    explicit CCustomMenu(QWidget* parent = nullptr);
    ~CCustomMenu() override;

    /** Width of the menu and of later separators, in pixels, 144 before. Takes effect with the next size operation. */
    void SetWindowWidth(int width);
    /** Height of a row, in pixels, 24 before. Takes effect with the next size operation. */
    void SetWindowHeight(int height);
    /**
     * The look of the panel, of the rows there are and of those to come; sub-menus have their own. Until it is called
     * the panel is white with a light border. A value that is no style is kept for later rows and changes nothing else.
     */
    void SetMenuStyle(MenuStyle style);

    /** Adds a row; see CCustomMenuItem for the arguments. */
    void AddMenuItem(const QString& text, const QString& shortcut, const QString& icon, const QString& iconHover,
                     const QString& iconDisabled);
    /** Adds a row that bears the host's number @p id and has no icon for its disabled state. */
    void AddMenuItem(int id, QString text, const QString& shortcut, const QString& icon, const QString& iconHover);
    /**
     * Adds a row that opens a sub-menu as soon as the cursor is on it; a click on it does nothing.
     *
     * Call UpdateItemSize afterwards: until then such a row takes four times the height of another.
     *
     * @return the sub-menu, hidden and empty, in the dark style
     */
    CCustomMenu* AddButtonWithSubMenu(const QString& text, const QString& shortcut, const QString& icon,
                                      const QString& iconHover, const QString& iconDisabled);
    /** Adds a separator of the menu's present width and returns it. */
    QWidget* AddSplitLine();

    /** Sets a row's text; an index that no row has is ignored. The row keeps its size. */
    void SetMenuText(int index, const QString& text);
    /** Sets the text of the first row with that number, if any. */
    void SetMenuTextWithId(int id, const QString& text);

    /**
     * Makes the rows as wide as the widest text and shortcut so far, and the menu as wide as rows and margins.
     *
     * A row is at least as wide as the menu was, so the menu never gets narrower and each call adds the two margins:
     * call it once. Separators keep their width; without rows nothing happens.
     */
    void UpdateItemSize();
    /** Fixes the menu's size by the rows whose dynamic property "show" is true, a separator counting 9 pixels. */
    void UpdateMenuSize();
    /** Fixes the menu's size by the rows and separators that are present. */
    void RefreshSize();

    /** The row at @p index, or null. */
    CCustomMenuItem* MenuButton(int index);
    /** The first row with that number, or null. */
    CCustomMenuItem* MenuButtonById(int id);
    /** The index of a row, -1 for what is none of this menu. */
    int GetButtonIndex(CCustomMenuItem* item);
    /** The number of rows, hidden ones included. */
    int MenuButtonCount();

    /** Deletes a row; an index that no row has is ignored. Its sub-menu, if any, stays. */
    void RemoveMenuButton(int index);
    /** Deletes all rows and separators. Sub-menus stay. */
    void RemoveAllMenuButtons();

    /** Has no effect: the text's place is the row's own. */
    void SetTextAlignment(QFlags<Qt::AlignmentFlag> alignment);

    /**
     * Takes rows out of the menu by their displayed text, upper and lower case told apart; so
     * translated texts are passed. A row that is out is hidden and disabled, and that is what marks it: on one row use
     * either these or SetEnabled.
     */
    void HideMenuBtn(const QList<QString>& texts);
    /** Puts rows back that HideMenuBtn() took out. */
    void ShowMenuBtn(const QList<QString>& texts);
    /** Takes a separator out by its order of adding; an index that none has is ignored. */
    void HideSplitLine(int index);
    /** Puts a separator back that HideSplitLine() took out. */
    void ShowSplitLine(int index);

    /** The sub-menu of a row, or null. */
    CCustomMenu* GetCustomMenu(CCustomMenuItem* item) const;
    /** All direct sub-menus, in no particular order. */
    QList<CCustomMenu*> GetCustomMenus() const;

    /** True when the menu or one of its direct sub-menus has the keyboard focus. */
    bool HasFocus();
    /** Enables or disables every row with that number. */
    void SetEnabled(int id, bool enabled);

    bool eventFilter(QObject* obj, QEvent* event) override;

Q_SIGNALS:
    /** The menu is about to be on the screen. */
    void SignalShow();
    /** A row of this menu or of its sub-menus was clicked and all of them are hidden; only the outermost one tells. */
    void SignalItemClicked();

protected:
    void showEvent(QShowEvent* event) override;
    bool event(QEvent* event) override;

private:
    friend class CCustomMenuAccessible;
    friend class MenuKeyboard;

    CCustomMenuItem* AddRow(const QString& text, const QString& shortcut, const QString& icon, const QString& iconHover,
                            const QString& iconDisabled, bool hasSubMenu);
    void ItemClicked(CCustomMenuItem* item);
    void ItemFocusChanged(CCustomMenuItem* item, bool focus);
    void ItemGone(CCustomMenuItem* item);
    void SplitLineGone(QWidget* line);
    void SubMenuGone(CCustomMenu* subMenu);
    void OpenSubMenu(CCustomMenuItem* item, CCustomMenu* subMenu);
    void CloseSubMenu(CCustomMenuItem* item, CCustomMenu* subMenu);
    bool CursorLeftTowardsSubMenu(const CCustomMenuItem* item) const;
    void AddEntry(QWidget* entry, int stretch);
    void PrepareLater(QWidget* entry, const QSize& size);
    void PrepareNewEntries();
    void RefreshSizeLater();
    void HideOrphanedSubMenu();
    int HeightOf(int splitHeight, int rows) const;

    Ui::CCustomMenu* ui;
    int m_iButtonCount = 0;
    int m_iSplitCount = 0;
    int m_iWidth = 144;
    int m_iItemHeight = 24;
    int m_iMaxTextWidth = 0;
    int m_iMaxShortcutWidth = 0;
    int m_iSplitHeight = 13;
    MenuStyle m_eMenuStyle = MenuStyleDark;
    QList<CCustomMenuItem*> m_listButtons;
    QList<QWidget*> m_listSplitLines;
    QHash<CCustomMenuItem*, CCustomMenu*> m_hashSubMenus;
    CCustomMenuItem* m_pCurrentItem = nullptr;
    CCustomMenu* m_pOpenSubMenu = nullptr;
    CCustomMenu* m_pParentMenu = nullptr;

    QList<QPointer<QWidget>> m_listNewEntries;
    QList<CCustomMenu*> m_listRowlessSubMenus;
};
