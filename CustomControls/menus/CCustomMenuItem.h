#pragma once

#include <CustomControls/CustomControlsGlobal.h>
#include <CustomControls/menus/MenuStyle.h>

#include <QIcon>
#include <QString>
#include <QWidget>

namespace Ui {
class CCustomMenuItem;
}

/**
 * One row of a CCustomMenu: icon, text, shortcut text and, where it opens a sub-menu, an arrow.
 *
 * Rows are made by CCustomMenu::AddMenuItem and AddButtonWithSubMenu and belong to their menu. A row may be deleted at
 * any time, from its own signals too.
 *
 * Accessibility: a menu item named by its text, with its shortcut; a state row is told as checked or not. Its press is
 * SignalMenuItemClicked() and follows the rules of a click; a row with a sub-menu opens it.
 *
 * @code
 * menu->AddMenuItem(tr("Grid"), "G", ":/icon/check.png", ":/icon/check_hover.png", ":/icon/check_off.png");
 * CCustomMenuItem* grid = menu->MenuButton(menu->MenuButtonCount() - 1);
 * grid->SetBtnState(true, true); // a state row: its icon is a check mark, and a click leaves the menu open
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CCustomMenuItem : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE SetText)
    Q_PROPERTY(bool iconVisible READ IsIconVisible WRITE SetIconVisible)
    Q_PROPERTY(int buttonId READ GetButtonId WRITE SetButtonId)

public:
    /**
     * @param parent       the menu; null makes a row of its own
     * @param text         shown as it stands, line feeds and all
     * @param shortcut     a label only: no key is bound
     * @param icon         file at rest, drawn 16 by 16; empty for none
     * @param iconHover    file under the cursor; empty shows none there
     * @param iconDisabled file while disabled; empty shows none then
     * @param hasSubMenu   shows the arrow, and a click emits nothing
     */
    CCustomMenuItem(QWidget* parent, const QString& text, const QString& shortcut, const QString& icon,
                    const QString& iconHover, const QString& iconDisabled, bool hasSubMenu);
    ~CCustomMenuItem() override;

    /**
     * Fixes the row's size, in pixels; what is negative counts as 0, what a widget cannot have is cut.
     *
     * @param minWidth      the least width of the row
     * @param height        the height of the row and of its shortcut column
     * @param textWidth     room for the text
     * @param shortcutWidth room for the shortcut text, 5 more are added
     * @return the row's width: @p minWidth, or what its columns need where that is more
     */
    int SetItemSize(int minWidth, int height, int textWidth, int shortcutWidth);

    /** The text as it was given. */
    QString text();
    /** Changes the text and nothing else: the row keeps its size. */
    void SetText(const QString& text);

    /**
     * Takes a style's colours. The background changes at once, the colour of the text with the next SetChooseFocus.
     * Rows are dark in every style but MenuStyleWhite, on a light flat panel too.
     */
    void SetMenuStyle(MenuStyle style);

    /** Marks the row, or takes the mark back. SignalFocusChanged comes first, also where nothing changes. */
    void SetChooseFocus(bool focus);

    /** Shows or hides the icon; the text stays in its column. */
    void SetIconVisible(bool visible);
    /** What SetIconVisible was last given, true before; also for a row that is not on the screen. */
    bool IsIconVisible() const;

    /** The host's own number of the row, 0 before. */
    void SetButtonId(int id);
    /** The host's own number of the row. */
    int GetButtonId() const;

    /** Enables or disables the row and shows the icon for it. A disabled row does not react to the mouse. */
    void SetEnabled(bool enabled);

    /**
     * Uses the icon as a check mark.
     *
     * @param checked     as SetIconVisible
     * @param stateButton whether a click leaves the menu open
     */
    void SetBtnState(bool checked, bool stateButton);
    /** Whether the row is a state row: a click on it leaves the menu open. */
    bool IsStateButton() const;
    /** Whether the row is checked, which is whether its icon shows. */
    bool GetBtnState() const;

    bool eventFilter(QObject* obj, QEvent* event) override;

Q_SIGNALS:
    /** A mouse button of any kind was released after a press on the row, wherever the cursor is by then. */
    void SignalMenuItemClicked();
    /** The row is being marked (true) or its mark taken back (false). */
    void SignalFocusChanged(bool focus);

protected:
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    friend class CCustomMenu;
    friend class CCustomMenuItemAccessible;
    friend class MenuKeyboard;

    // With a font from the start: set on a row that wears its sheets, it would have them read once more.
    CCustomMenuItem(QWidget* parent, const QFont* font, const QString& text, const QString& shortcut,
                    const QString& icon, const QString& iconHover, const QString& iconDisabled, bool hasSubMenu);

    void setEnabled(bool enabled);
    QString ShortcutText() const;

    void ShowIcon(QIcon& icon, const QString& path);
    void ShowRestIcon();
    void ShowArrow();
    void SetTextColor(const QString& color);
    void SetBackground(const QString& color);

    Ui::CCustomMenuItem* ui;
    QString m_strTextColor;
    QString m_strBackColor;
    QString m_strFocusTextColor;
    QString m_strHoverColor;
    QString m_strIcon;
    QString m_strIconHover;
    QString m_strIconDisabled;
    int m_iButtonId = 0;
    bool m_bHasSubMenu = false;
    bool m_bChooseFocus = false;
    bool m_bStateButton = false;

    // Each file is read once, when it is first needed; one that is not there is looked for again.
    QIcon m_iconRest;
    QIcon m_iconHover;
    QIcon m_iconDisabled;
    QIcon m_iconArrow;
};
