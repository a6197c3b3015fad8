#pragma once

#include <QWidget>

class CVelmarButton;
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
     * @param subtitle smaller, beside the title; may be empty
     */
    explicit GalleryTitleBar(QWidget* window, int buttons = ButtonsAll, const QString& subtitle = QString());

    /** Maximises the window, or restores it. */
    void ToggleMaximized();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    CVelmarButton* CreateButton(const QString& objectName, const QString& icon, const QString& tip, bool closes);
    void FollowState();

    QWidget* m_pWindow;
    QLabel* m_pTitle;
    CVelmarButton* m_pMaximize = nullptr;
};
