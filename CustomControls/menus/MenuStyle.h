#pragma once

/**
 * The look of a menu and of its rows, for both menu families (CCustomMenu and CVelmarMenu).
 *
 * @code
 * menu->SetMenuStyle(MenuStyleWhite);
 * @endcode
 */
enum MenuStyle : int
{
    MenuStyleFlat = 0,  ///< a light panel without border
    MenuStyleDark = 1,  ///< a dark panel; what the rows of a CCustomMenu start with
    MenuStyleWhite = 2, ///< a white panel with a grey border
};
