#pragma once

#include <CustomControls/CustomControlsGlobal.h>
#include <CustomControls/menus/MenuStyle.h>

#include <QFont>
#include <QList>
#include <QPointer>
#include <QSize>
#include <QString>
#include <QTimer>
#include <QWidget>

class CVelmarButton;
class CVelmarMenuItem;
class QKeyEvent;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace Ui {
class CVelmarMenu;
}

/**
 * A flat panel of rows without sub-menus: push buttons, rows with icon and shortcut, and separators.
 *
 * It is no QMenu and no pop-up: an ordinary child of the window, which the host moves, shows and hides, and which grabs
 * nothing. Once it has a list button it is a box with a scroll area of five rows; so it serves CComboBox as its list.
 * Only one such panel is open in the whole application: show() closes the one before.
 *
 * The parent widget owns the menu, the menu its rows. A host may delete a row or the menu at any time, from a row's own
 * click too.
 *
 * Keyboard and accessibility: Tab reaches the buttons; with the focus on the menu, or on the combo box whose list it
 * is, Up, Down, Home, End, PageUp and PageDown mark a row as the pointer would, Return and Space do what a click does.
 * A screen reader meets a menu of buttons and menu items.
 *
 * @code
 * auto* menu = new CVelmarMenu(window);
 * menu->hide();
 * menu->AddDefaultButton(tr("..."));
 * connect(menu->MenuButton(0), &QPushButton::clicked, menu, [menu] { menu->hide(); });
 * menu->show();
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CVelmarMenu : public QWidget
{
    Q_OBJECT

public:
    /** @param parent the owner; may be null. The menu is not hidden here, that is for the host. */
    explicit CVelmarMenu(QWidget* parent);
    ~CVelmarMenu() override;

    /** Width of the rows in pixels, 144 before; the menu is 2 pixels wider. Rows that there are follow at once. */
    void SetWindowWidth(int width);
    /** Height of a row, which becomes @p height + 2 pixels, 24 before. Rows that there are follow at once. */
    void SetWindowHeight(int height);
    /** The look of the panel and of rows to come. A value that is no style is kept and leaves the panel as it is. */
    void SetMenuStyle(MenuStyle style);

    /** Adds a button of the host's; the menu owns it from now on. Null, or a button that it has already, is ignored. */
    void AddMenuButton(CVelmarButton* button);
    /** Adds a QPushButton in the menu's style; MenuButton() gives it to connect to. */
    void AddDefaultButton(const QString& text);
    /** Adds a QPushButton to the scroll area, which comes with the first and makes the menu five rows high. */
    void AddListWidgetButton(const QString& text);
    /** Adds a row; see CVelmarMenuItem for the arguments. A click on it hides the menu. */
    void AddMenuItem(const QString& text, const QString& icon, const QString& shortcut);
    /** Adds a separator of the menu's present width, 9 pixels high, and returns it. */
    QWidget* AddSplitLine();

    /**
     * Fixes the menu's size for what it has and for some rows and separators more, without the gap of 4 pixels that
     * otherwise stands between rows; for a host that knows what it will hold. The next change of rows undoes it.
     */
    void RefreshSize(int extraRows, int extraSplits);

    /** The button at @p index, or null. */
    QPushButton* MenuButton(int index);
    /** The row at @p index, or null. */
    CVelmarMenuItem* MenuItem(int index);
    /** The number of buttons, hidden ones included. */
    int MenuButtonCount();
    /** The number of rows that AddMenuItem() made, hidden ones included. */
    int MenuItemCount();
    /** The index of a button, -1 for what is none of this menu. */
    int GetButtonIndex(QPushButton* button);

    /** The fonts of the rows that AddMenuItem() has made so far. */
    void SetMenuItemFont(const QFont& text, const QFont& shortcut);
    /** Deletes a button; an index that no button has is ignored. */
    void RemoveMenuButton(int index);
    /** Deletes all buttons, rows and separators, and the scroll area. */
    void RemoveAllMenuButtons();
    /** Centres the text of the buttons that there are, whatever @p alignment says. */
    void SetTextAlignment(QFlags<Qt::AlignmentFlag> alignment);
    /** The font of all buttons, those to come included. */
    void SetFont(QFont font);

    /**
     * Takes buttons out of the menu by index. A negative index counts from the end, -1
     * being the last; one that no row has is ignored. What is out is hidden and disabled, and that is what marks it.
     */
    void HideMenuBtn(const QList<int>& indexes);
    /** Puts buttons back that HideMenuBtn() took out. */
    void ShowMenuBtn(const QList<int>& indexes);
    /** Takes rows of AddMenuItem() out, by index as HideMenuBtn() reads it. */
    void HideMenuItem(const QList<int>& indexes);
    /** Puts rows back that HideMenuItem() took out. */
    void ShowMenuItem(const QList<int>& indexes);
    /** Takes a separator out by its order of adding; an index that none has is ignored. */
    void HideSplitLine(int index);
    /** Puts a separator back that HideSplitLine() took out. */
    void ShowSplitLine(int index);

    /** Closes the menu that is open, if any, and opens this one. Not virtual: a call through QWidget passes it by. */
    void show();
    /** Closes this menu; none counts as the open one afterwards. Not virtual either. */
    void hide();

Q_SIGNALS:
    /** False: a row was chosen, the menu is about to close. True: the menu was pressed and is still wanted. */
    void SignalMenuBtnFocus(bool focus);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    bool event(QEvent* event) override;

private:
    friend class CComboBox;
    friend class CVelmarMenuAccessible;
    friend class CVelmarMenuItemAccessible;

    void setFixedSize(const QSize& size);
    void setFixedSize(int width, int height);

    QPushButton* MakeButton(const QString& text, QWidget* parent, const QString* sheet);
    void AddButton(QPushButton* button, QVBoxLayout* layout, int stretch);
    void BuildScrollArea();
    void FitScrollWidget();
    void FitRows();
    void UpdateMenuSize();
    void UpdateMenuSizeLater();
    void LayOutLater();
    void LayOutAfterPause();
    void LayOut();
    bool IsListFull() const;
    void SetLayoutsEnabled(bool enabled);
    void TakeFromLayouts(QWidget* entry);
    void ShowIfOpen(QWidget* entry);
    bool IsInView(const QWidget* listRow) const;
    void ButtonGone(QPushButton* button);
    void ItemGone(CVelmarMenuItem* item);
    void SplitLineGone(QWidget* line);
    void SetPresent(const QList<QPointer<QWidget>>& rows, bool present);
    QList<QWidget*> Rows() const;
    bool PressKey(const QKeyEvent* event, QWidget* start);
    bool ActivateRow(QWidget* row);
    void SetKeyRow(QWidget* row);

    static CVelmarMenu* m_pCurrentShowMenu;

    QScrollArea* m_pScrollArea = nullptr;
    QWidget* m_pScrollWidget = nullptr;
    QVBoxLayout* m_pScrollLayout = nullptr;
    int m_iRowCount = 0;
    int m_iSplitCount = 0;
    int m_iWidth = 144;
    int m_iItemHeight = 24;
    QFont m_font;
    MenuStyle m_eMenuStyle = MenuStyleFlat;
    QList<QPushButton*> m_listButtons;
    QList<CVelmarMenuItem*> m_listItems;
    QList<QWidget*> m_listSplitLines;
    Ui::CVelmarMenu* ui;

    bool m_bLayoutQueued = false;
    QTimer m_timerLayout;
    QPointer<QWidget> m_pKeyRow; // which the arrow keys have reached
};
