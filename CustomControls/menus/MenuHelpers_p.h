#pragma once

#include <QWidget>

#include <algorithm>

/** What the two menu families and the boxes built on them have in common. */
namespace MenuHelpers {

/** A sum of sizes as the toolkit takes one. */
inline int WidgetSize(qint64 pixels)
{
    return int(std::clamp<qint64>(pixels, 0, QWIDGETSIZE_MAX));
}

/** Whether a row or separator itself is enabled, whatever the menu or its window is. */
inline bool IsEnabledItself(const QWidget* entry)
{
    return entry->isEnabledTo(entry->parentWidget());
}

/**
 * Gives the widget a sheet unless it already wears it: the toolkit would parse it anew all the same, and polish all
 * children.
 */
inline void Wear(QWidget* widget, const QString& sheet)
{
    if (widget->styleSheet() != sheet) {
        widget->setStyleSheet(sheet);
    }
}

/** The menu in which a row lies, on whichever panel; null where it lies in none. */
template <class Menu>
Menu* MenuOf(const QWidget* row)
{
    for (QWidget* ancestor = row->parentWidget(); ancestor; ancestor = ancestor->parentWidget()) {
        if (auto* menu = qobject_cast<Menu*>(ancestor)) {
            return menu;
        }
    }
    return nullptr;
}

} // namespace MenuHelpers
