#pragma once

#include <CustomControls/CustomControlsGlobal.h>
#include <CustomControls/menus/MenuStyle.h>

#include <QFont>
#include <QPixmap>
#include <QString>
#include <QWidget>

namespace Ui {
class CVelmarMenuItem;
}

/**
 * A row of a CVelmarMenu: icon, text, shortcut and, for a host that opens something beside it, an arrow.
 *
 * Rows are light in every style; there is no dark look. A disabled row takes no events at all: it neither hovers nor
 * clicks, nor does the menu hear of the mouse on it. The menu owns its rows.
 *
 * Accessibility: a menu item named by its text, with its shortcut. Its press does what a click does; a row with a sub-
 * menu reports no click, and so has none.
 *
 * @code
 * menu->AddMenuItem(tr("..."), ":/icon/open.png", "Ctrl+O");
 * connect(menu->MenuItem(0), &CVelmarMenuItem::SignalMenuItemClicked, this, &Window::Open);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CVelmarMenuItem : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE SetText)

public:
    /**
     * @param parent     the owner; may be null
     * @param text       shown as it stands
     * @param shortcut   a label only: no key is bound
     * @param icon       path of the icon at rest; empty for none
     * @param iconHover  path of the icon on hover; empty for the same as at rest
     * @param hasSubMenu draws an arrow, and a click does not count as a choice
     */
    CVelmarMenuItem(QWidget* parent, const QString& text, const QString& shortcut, const QString& icon,
                    const QString& iconHover, bool hasSubMenu);
    ~CVelmarMenuItem() override;

    /**
     * Fixes the row's size in pixels, and the icon's place at a square of @p height. A size out of range is moved to
     * the nearest one possible; the last two arguments are not read.
     */
    void SetItemSize(int width, int height, int, int);

    /** The text as it was given. */
    QString text();
    /** The text; the row keeps its size. */
    void SetText(const QString& text);
    /** The icon at rest and on hover, shown at once. */
    void SetIcon(const QString& path);
    /** Flat and white give the row its light colours; any other style keeps the colours that it has. */
    void SetMenuStyle(MenuStyle style);
    /** The fonts of the text and of the shortcut. */
    void SetMenuFont(const QFont& text, const QFont& shortcut);
    /** Marks the row as if hovered, until it is unmarked or hidden. */
    void SetChooseFocus(bool focus);
    /** A hidden icon leaves its place empty, so that the text stays in its column. */
    void SetIconVisible(bool visible);
    /** Enables or disables the row. */
    void SetEnabled(bool enabled);

    bool eventFilter(QObject* obj, QEvent* event) override;

Q_SIGNALS:
    /** The row was clicked; SignalMenuBtnFocus(false) comes before. */
    void SignalMenuItemClicked();
    /** False: a choice was made and the menu is done. True: the row was used, but the menu is still wanted. */
    void SignalMenuBtnFocus(bool focus);

private:
    friend class CVelmarMenu;
    friend class CVelmarMenuItemAccessible;

    void Click();
    QString ShortcutText() const;
    void SetTextSheets();
    void ShowFocus(bool focus, const QString& textSheet);
    QString FocusTextSheet(const QString& form) const;
    QString RestTextSheet(const QString& form) const;

    Ui::CVelmarMenuItem* ui;
    QString m_strTextColor;
    QString m_strBackColor;
    QString m_strFocusTextColor;
    QString m_strHoverColor;
    QString m_strShortcutColor;
    QString m_strFocusShortcutColor;
    QString m_strDisabledColor;
    QString m_strIcon;
    QString m_strIconHover;
    bool m_bHasSubMenu;
    bool m_bChooseFocus = false;

    // The files are read when a path is set, not at each hover.
    QPixmap m_pixIcon;
    QPixmap m_pixIconHover;
    QPixmap m_pixArrow;
    QPixmap m_pixArrowFocus;
};
