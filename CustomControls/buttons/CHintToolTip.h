#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QWidget>

/**
 * The floating note of a CHintButton: a frameless tool window with a translucent background that never takes the focus.
 * Derive from it for a note with widgets of its own, such as the text of CreateCompactBrowser(); CHintTextToolTip is
 * the form for a plain text.
 *
 * While it is shown it listens to the application's mouse presses and hides at a press anywhere but on itself and on
 * its owner button; without an owner button it hides at every press. The press goes on to where it was meant for. Owned
 * by its parent, or by whoever made it.
 *
 * Accessibility: a tool tip named by the words in it.
 *
 * @code
 * auto* note = new PictureNote(button, window); // derived from CHintToolTip
 * button->SetToolTip(note);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CHintToolTip : public QWidget
{
    Q_OBJECT

public:
    /**
     * @param ownerButton accepted and not kept: only setOwnerButton() and CHintButton::SetToolTip() make a button the
     * owner
     * @param parent the Qt parent, may be null
     */
    CHintToolTip(QWidget* ownerButton, QWidget* parent);
    ~CHintToolTip() override;

    /** The button on which a press leaves the note shown; null for none. A button that is deleted stops being it. */
    void setOwnerButton(QWidget* button);

    /** Makes the window a frameless tool window again, for a host that changed its flags; a shown note hides. */
    void applyWindowFlags();

    /**
     * Lets the mouse through the window to what lies beneath (@p enable true), or has the window take it again. It
     * lasts until the note is shown the next time, which goes by m_bTakesMouse.
     */
    void applyMousePassthrough(bool enable);

    /** Hides the note at a press elsewhere; every event goes on to where it was meant for. */
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

public:
    /** Gives the note a text. The base class has none to show and ignores it. */
    virtual void setText(const QString& text);

protected:
    /** What setOwnerButton() was last given; null once it is deleted. */
    QWidget* m_pOwnerButton = nullptr;
    /** A note that clicks are to pass through sets this to false in its constructor. */
    bool m_bTakesMouse = true;
};
