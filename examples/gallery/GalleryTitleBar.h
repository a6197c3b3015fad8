#pragma once

#include <CustomControls/buttons/CVelmarButton.h>

#include <QWidget>

class QHBoxLayout;
class QLabel;

/**
 * The title bar of a window without a system frame: the product's mark, the window's title, and buttons that minimise,
 * maximise or restore, and close the window. It takes the place at the window's top left corner; what is no button of
 * it lies open to the mouse, so that the window can be moved by it.
 *
 * @code
 * auto* bar = new GalleryTitleBar(window, GalleryTitleBar::ButtonClose);
 * window->setTitleBar(bar);
 * @endcode
 */
class GalleryTitleBar : public QWidget
{
    Q_OBJECT

public:
    enum Button
    {
        ButtonClose = 1,
        ButtonMaximize = 2,
        ButtonMinimize = 4,
        ButtonsAll = ButtonClose | ButtonMaximize | ButtonMinimize
    };

    /**
     * @param window   whose title is shown and whose state the buttons change; becomes the parent
     * @param buttons  bits of Button
     */
    explicit GalleryTitleBar(QWidget* window, int buttons = ButtonsAll);

    /** Smaller, beside the title; may be empty. */
    void SetSubtitle(const QString& subtitle);

    /** A button in the look of the bar's own, without icon, text and tip; the caller adds it. */
    CVelmarButton* CreateButton(const QString& objectName, EnumButtonType type = ButtonTypeIcon, bool closes = false);

    /** Puts a widget before the buttons of the window. */
    void AddWidget(QWidget* widget);

    /** Maximises the window, or restores it. */
    void ToggleMaximized();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();
    void FollowState();

    QWidget* m_pWindow;
    QLabel* m_pTitle;
    QLabel* m_pSubtitle;
    QHBoxLayout* m_pLayout;
    int m_iOwnButtons = 0; ///< how many items end the layout
    CVelmarButton* m_pMinimize = nullptr;
    CVelmarButton* m_pMaximize = nullptr;
    CVelmarButton* m_pClose = nullptr;
};
