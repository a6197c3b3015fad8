#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QHash>
#include <QObject>

class CCustomMenu;
class QKeyEvent;
class QPushButton;
class QWidget;

/**
 * Makes a menu bar of flat push buttons and CCustomMenu panels.
 *
 * A press opens the button's menu, a second press closes it; while a menu is open, the cursor on another button opens
 * that one's instead; and a menu closes when the keyboard focus leaves it and its sub-menus. Buttons and menus stay the
 * host's and may be deleted at any time. Give the helper a widget as parent: that is where the focus goes when a press
 * closes a menu. One such widget serves all helpers, the parent of the one made last.
 *
 * Keyboard: Space or Down on a button opens its menu, Down enters it; while it is open the keys of CCustomMenu work
 * from the button, Left and Right go to the menus of the buttons beside it, and Escape closes it and leaves the focus
 * on the button.
 *
 * @code
 * auto* bar = new CMenuBtnHelper(window);
 * bar->SetMenuPos(0, 40);
 * bar->RegisterMenuBtn(buttonFile, menuFile); // after menuFile has its sub-menus
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CMenuBtnHelper : public QObject
{
    Q_OBJECT

public:
    /** @param parent a widget; with another parent, or none, the focus stays on the button after a closing press */
    explicit CMenuBtnHelper(QObject* parent);
    ~CMenuBtnHelper() override;

    /**
     * Ties a button to its menu. Sub-menus that are added to the menu later are not followed.
     *
     * The button gets its looks with the first change of state; until then it wears what the host gave it. A null
     * button or menu is ignored; a button that is registered again opens the menu it was last given.
     */
    void RegisterMenuBtn(QPushButton* button, CCustomMenu* menu);

    /**
     * Where menus open: @p x right of their button, at @p y in their parent; both 0 before. Buttons and menus therefore
     * share a parent, or their parents the left edge. An open menu does not move.
     */
    void SetMenuPos(int x, int y);

    bool eventFilter(QObject* obj, QEvent* event) override;

private:
    void KeepFocus(QPushButton* button, bool keep);
    void MenuFocusOut(CCustomMenu* menu, bool force);

    void Toggle(QPushButton* button);
    void ButtonEntered(QPushButton* button);
    void ButtonFocusOut(QPushButton* button);
    void OpenMenu(QPushButton* button, CCustomMenu* menu);
    bool KeyPressed(QObject* obj, const QKeyEvent* event);
    bool GoBeside(QPushButton* button, int step);
    void ButtonGone(QPushButton* button);
    void MenuGone(CCustomMenu* menu);

    QHash<QPushButton*, CCustomMenu*> m_hashBtnMenu;
    QHash<CCustomMenu*, CCustomMenu*> m_hashSubMenuRoot;
    CCustomMenu* m_pCurrentMenu = nullptr;
    QPushButton* m_pKeepFocusBtn = nullptr;
    int m_iMenuX = 0;
    int m_iMenuY = 0;

    static QWidget* m_pFocusWidget;
};
