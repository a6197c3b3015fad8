#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QPoint>
#include <QPushButton>

class CHintToolTip;
class QTimer;

/**
 * A push button that carries a floating note. Hovering shows the note after a short delay until the pointer leaves; a
 * click pins it until the next press elsewhere. It can also wrap its own caption by width, character by character, as
 * Chinese captions need it. It paints nothing of its own: style it as any QPushButton. Owned by its parent.
 *
 * Keyboard and accessibility: Space shows the note below the button, and Space, Escape or leaving the button hides it
 * again; a ring shows that Tab has led here. The note is what a screen reader tells of the button, and its name where
 * the button bears no words.
 *
 * @code
 * auto* button = new CHintButton(this);
 * button->SetToolTipText(tr("主轴转速过高"));
 * button->setFixedSize(12, 12);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CHintButton : public QPushButton
{
    Q_OBJECT
    /** The caption as it was given, before it is wrapped. */
    Q_PROPERTY(QString text MEMBER m_strRawText WRITE setText)
    Q_PROPERTY(bool autoWrap MEMBER m_bAutoWrap WRITE SetAutoWrap)
    /** The text of the note that the button owns; an empty one leaves the button without a note. */
    Q_PROPERTY(QString hintText READ HintText WRITE SetHintText)
    Q_PROPERTY(bool hoverShow MEMBER m_bHoverShow WRITE SetHoverShow)
    Q_PROPERTY(QPoint positionOffset MEMBER m_ptOffset WRITE SetPositionOffset)

public:
    /** Makes a button without a note; @p parent owns it and may be null. */
    explicit CHintButton(QWidget* parent = nullptr);
    /** Deletes the note that SetToolTipText() made; one that the host set stays with the host. */
    ~CHintButton() override;

    /**
     * Makes a text note that the button owns, in place of the one before. Every press hides such a note, one on the
     * note itself too; one on the button shows it again.
     */
    void SetToolTipText(const QString& text);

    /**
     * Takes a note of the host, who keeps owning it, and makes this button its owner button. Null takes the note away.
     * A note that the button owned is deleted. A note that the host deletes is forgotten.
     */
    void SetToolTip(CHintToolTip* toolTip);

    /** Leaves the button without a note; one that it owned is deleted. */
    void ClearContent();

    /** The caption: wrapped to the button's width where SetAutoWrap() is on, else as it stands. */
    void setText(const QString& text);

    /**
     * Wraps the caption to the button's width and elides what doesn't fit into maximumHeight(), now and on each resize.
     * Switching it off leaves the last wrapped caption until the next setText().
     */
    void SetAutoWrap(bool enable);

    /** Wraps the caption anew, for a host that changed the font or the style. Nothing without SetAutoWrap(). */
    void RefreshDisplay();

    /**
     * Keeps the paths of two icons for a subclass that paints them; the button itself draws neither.
     *
     * @param icon      path of the icon at rest
     * @param iconHover path of the icon under the pointer; an empty one takes @p icon
     */
    void SetIcon(const QString& icon, const QString& iconHover);

    /** Whether hovering shows the note, on at first. A click shows it in any case. */
    void SetHoverShow(bool enable);

    /** From the pointer to the note's top left corner, in logical pixels; (10, 10) at first. */
    void SetPositionOffset(const QPoint& offset);

    /**
     * Shows the note beside the pointer, or beyond the button where it would leave the screen. Nothing without a note.
     *
     * @param pinned the note stays when the pointer leaves
     */
    void ShowToolTip(bool pinned);

    /** Hides the note, pinned or not. */
    void HideToolTip();

    /** Whether the note is on the screen, pinned or not. */
    bool IsToolTipVisible() const;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    friend class CHintButtonAccessible;

    QString HintText() const;
    void SetHintText(const QString& text);
    QString BuildDisplayText() const;
    void UpdateDisplayText();
    QPoint computeToolTipPosition() const;
    void ShowToolTipBeside();
    void startHoverTimer();
    void stopHoverTimer();
    void onHoverTimeout();
    void AdoptToolTip(CHintToolTip* toolTip, bool own);

    CHintToolTip* m_pToolTip = nullptr;
    bool m_bOwnToolTip = false;
    bool m_bHoverShow = true;
    bool m_bPinned = false;
    int m_iHoverDelay = 100;
    QTimer* m_pHoverTimer = nullptr;
    QPoint m_ptOffset = QPoint(10, 10);
    QString m_strIcon;
    QString m_strIconHover;
    QString m_strRawText;
    bool m_bFilterInstalled = false;
    bool m_bAutoWrap = false;

    bool m_bShownByKey = false;
};
