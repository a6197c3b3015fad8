#pragma once

#include <QString>

/**
 * The colours and sheets of the gallery's own surfaces. Every sheet selects by object name: a sheet with a bare class
 * selector on the window would also reach the controls shown in it, which carry their own look.
 */
namespace GalleryStyle {

inline constexpr auto Green = "#188553";
inline constexpr auto GreenLight = "#2ab475";
inline constexpr auto Ink = "#333333";
inline constexpr auto Grey = "#666666";
inline constexpr auto Faint = "#999999";
inline constexpr auto Panel = "#f6f6f6";
inline constexpr auto Line = "#e2e2e2";

inline constexpr int PageMargin = 32;
inline constexpr int CardMargin = 20;
inline constexpr int CardSpacing = 16;

/** The button of a command: green for the chief one of its place, grey for the others. */
QString CommandButton(bool primary);

/** A drop-down menu of the ribbon. */
QString Menu();

/** Scroll bars of the page area, the log pane and the lines of an example. */
QString ScrollBars();

} // namespace GalleryStyle
