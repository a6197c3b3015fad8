#pragma once

class CCustomMenu;
class CCustomMenuItem;
class QKeyEvent;

/**
 * The keyboard in a CCustomMenu. The menu itself needs no focus: whoever has it while the menu is open (the menu, the
 * button of a menu bar, a text view) hands its keys on. The row that the keys have reached bears the choose focus.
 */
class MenuKeyboard
{
public:
    enum Outcome
    {
        Ignored, ///< no key of a menu, or none that leads anywhere here
        Taken,
        Leaves ///< Escape: the menu is to be closed
    };

    /** What a key press does in an open menu, or in that sub-menu of it which the keys have reached. */
    static Outcome Press(CCustomMenu* menu, const QKeyEvent* event);

    static void ChooseFirst(CCustomMenu* menu);
    /** What a click on the row does. On a row with a sub-menu: opens it and goes to its first row. */
    static void Activate(CCustomMenuItem* item);
    static bool IsAt(const CCustomMenuItem* item);

private:
    static bool Choose(CCustomMenuItem* item);
    static bool Step(CCustomMenu* menu, int step);
    static bool ChooseFrom(CCustomMenu* menu, int first, int step);
    static bool CloseSubMenu(CCustomMenu* subMenu);
    static CCustomMenu* Reached(CCustomMenu* menu);
};
