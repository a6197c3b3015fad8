#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QColor>
#include <QPixmap>
#include <QPushButton>
#include <QString>

class CMultiLineLabel;
class QHBoxLayout;
class QLabel;
class QVBoxLayout;

/** Which labels a CVelmarButton shows, and whether being chosen shows on it. */
enum EnumButtonType : int
{
    ButtonTypeIcon = 0,           ///< icon only
    ButtonTypeText = 1,           ///< text only
    ButtonTypeIconChoose = 2,     ///< icon only, can be chosen
    ButtonTypeTextChoose = 3,     ///< text only, can be chosen
    ButtonTypeIconText = 4,       ///< icon and text
    ButtonTypeIconTextChoose = 5, ///< icon and text, can be chosen
    ButtonTypeIconImage = 6,      ///< icon, and an image in place of the text: give it an empty text
    ButtonTypeIconImageChoose = 7 ///< the same, can be chosen: icon and painted background only, never the text's image
};

/** The two ends of a vertical gradient: top and bottom. */
struct StructGradientColor
{
    QColor startColor; ///< stop 0.0
    QColor endColor;   ///< stop 1.0
};

/**
 * The house push button: an icon label and a text label over a background that it paints itself.
 *
 * The background is solid, a vertical gradient or an image, with a look each for normal, pressed, hover and chosen.
 * Being chosen is a flag that the host sets and clears; the mouse never changes it. A small bubble can sit on top, as a
 * mark for news or as a lamp of two images.
 *
 * A click of the mouse is SignalClicked(). QAbstractButton never sees the mouse, so its clicked() is of no use here.
 * Texts that name an image are what follows "image:" in a style sheet, such as "url(:/icon/a.png)"; a colour is any
 * style-sheet colour.
 *
 * The parent widget owns the button, the button owns its labels. The button bears no style sheet; a host that gives it
 * one has to leave the labels transparent.
 *
 * Keyboard and accessibility: Space on the focused button is SignalClicked() as well, and so is Return where a dialog
 * gives it to the button; a ring shows that Tab has led here. A screen reader meets a button, named by its text and,
 * where it can be chosen, checked while it is. A button of icons alone needs a tool tip or an accessibleName from the
 * host.
 *
 * @code
 * auto* button = new CVelmarButton(ButtonTypeIconTextChoose, false, true, 0, parent);
 * button->SetButtonText(tr("..."), false);
 * connect(button, &CVelmarButton::SignalClicked, this, [button] { button->SetChooseFocus(true); });
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CVelmarButton : public QPushButton
{
    Q_OBJECT
    /** The caption, which keeps its font; it stands in the place of the text of QAbstractButton. */
    Q_PROPERTY(QString text READ GetButtonText WRITE SetCaption)
    Q_PROPERTY(QFont textFont READ GetButtonTextFont WRITE SetTextFont)
    Q_PROPERTY(int radius MEMBER m_iRadius WRITE SetBtnRadius)
    Q_PROPERTY(bool chosen READ GetChooseFocusState WRITE SetChooseFocus)

public:
    /**
     * The button of a form: its caption alone on solid colours, of any size, and it can be chosen. Forms call this one;
     * a button with an icon is made by the other.
     *
     * @param parent the owner; may be null
     */
    explicit CVelmarButton(QWidget* parent = nullptr);

    /**
     * @param type           which labels show, and whether being chosen shows
     * @param vertical       true puts the icon above the text (60 by 40 at most), false beside it (80 by 40 at most)
     * @param iconFirst      beside each other: true puts the icon left of the text; without meaning when vertical
     * @param backgroundKind 0 solid colours, 1 vertical gradient, 2 image; any other kind paints no background and
     * leaves the icon without a look
     * @param parent         the owner; may be null
     */
    CVelmarButton(EnumButtonType type, bool vertical, bool iconFirst, int backgroundKind, QWidget* parent);

    /**
     * Margins around the icon and the icon's largest size, in logical pixels. A negative one counts as 0.
     */
    void SetButtonImagePos(int left, int top, int right, int bottom, int maxWidth, int maxHeight);
    /** Margins around the text and the text's largest size, in logical pixels; bad ones as for the icon. */
    void SetButtonTextPos(int left, int top, int right, int bottom, int maxWidth, int maxHeight);
    /** Lets the text wrap; it then shrinks until it fits. */
    void SetButtonTextWrap(bool wrap);
    /** The icon of each look, as style-sheet images; an empty text shows none. */
    void SetButtonIcon(const QString& normal, const QString& pressed, const QString& hover, const QString& chosen);
    /** The image in place of the text, for ButtonTypeIconImage and ButtonTypeIconImageChoose; others only store it. */
    void SetButtonIcon_Text(const QString& normal, const QString& pressed, const QString& hover, const QString& chosen);
    /**
     * The caption. Its font keeps its size, and becomes the product's own when its weight is not yet 600 (@p bold) or
     * 400 (not bold).
     */
    void SetButtonText(const QString& text, bool bold);
    /**
     * The size of the caption's font.
     *
     * @param pixelSize in logical pixels, 1 or more; anything smaller changes nothing
     */
    void SetButtonFontSize(int pixelSize);
    /** The font of the caption as it was set; a caption that wraps may be painted smaller. */
    QFont GetButtonTextFont();
    /**
     * Centres icon and text in the button's width, as SetButtonSize() gave it, and cuts the text label to its text.
     * Works for a horizontal ButtonTypeIconTextChoose only; a button too narrow for its content stays as it is.
     */
    void UpdateContentSize();
    /**
     * Adds a hidden bubble, whose corners are rounded by half its height. One that was added before stays where it is,
     * but follows the button no longer.
     *
     * @param x, y          its place in the button, in logical pixels
     * @param width, height its size, in logical pixels; a negative one counts as 0
     * @param color         its style-sheet colour
     * @param clearOnChoose true hides the bubble and forgets its count once the button is chosen; false ties the bubble
     * to the chosen state: shown while chosen, hidden otherwise
     */
    void SetButtonTypeBubble(int x, int y, int width, int height, const QString& color, bool clearOnChoose);
    /**
     * Turns the bubble into a lamp that is always shown, unless it clears on choosing: @p focusImage while chosen, @p
     * normalImage otherwise, both style-sheet images. Without a bubble nothing happens.
     */
    void SetButtonBubbleToLight(const QString& focusImage, const QString& normalImage);
    /** Counts one piece of news and shows the bubble. Nothing happens on a chosen button or without a bubble. */
    void AddBubbleCount();
    /** The colours of background kind 0. */
    void SetBackgroundSolid(QColor normal, QColor pressed, QColor hover, QColor chosen);
    /** The gradients of background kind 1. They span the size given to SetButtonSize(), not the real one. */
    void SetBackgroundGradient(StructGradientColor normal, StructGradientColor pressed, StructGradientColor hover,
                               StructGradientColor chosen);
    /**
     * The images of background kind 2; with another kind they are drawn over its fill. Each path is a file or resource,
     * rendered once, for the size that the button has now: size the button first. One that cannot be read shows
     * nothing.
     */
    void SetBackgroundImage(const QString& normal, const QString& pressed, const QString& hover, const QString& chosen);
    /** The text's style-sheet colours. The colour also closes the border text of SetIconBorder(). */
    void SetTextColor(const QString& normal, const QString& pressed, const QString& hover, const QString& chosen);
    /**
     * Rounds the corners. It shows with the next restyle or repaint; none is asked for here.
     *
     * @param radius in logical pixels; 0 and less give square corners
     */
    void SetBtnRadius(int radius);
    /** Chooses the button or not. It shows for the types that can be chosen; the bubble follows for all. */
    void SetChooseFocus(bool chosen);
    /**
     * Frames the icon in the text's colour, with the corners of SetBtnRadius().
     *
     * @param border what stands before the colour, such as "border:1px solid "; kept for later while @p enable is false
     * @param enable true shows the frame, false takes it away
     */
    void SetIconBorder(const QString& border, bool enable);
    /** Whether the button is chosen, also for a type on which that does not show. */
    bool GetChooseFocusState();
    /** The caption, "ZVButton" until SetButtonText(). */
    QString GetButtonText();
    /**
     * The button's size, in logical pixels: the largest that it can have, and what gradients and centring count with.
     * The button is not resized, and nothing is repainted.
     */
    void SetButtonSize(int width, int height);
    /** Alignment of the text in its label; centred until then. A text that may wrap is always centred. */
    void SetAlignment(Qt::Alignment alignment);
    /** The font of the caption. SetButtonText() keeps it when its weight fits. */
    void SetTextFont(QFont font);
    /** Enables or disables the button and its labels. A disabled button emits nothing. */
    void SetEnabled(bool enabled);

Q_SIGNALS:
    /** The left button was released over the enabled button. The receiver may delete the button. */
    void SignalClicked();
    /** Reserved for derived classes: the button itself never emits it. */
    void SignalMouseEnter();
    /** Reserved for derived classes: the button itself never emits it. */
    void SignalMouseLeave();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    friend class CVelmarButtonAccessible;

    void SetCaption(const QString& text);
    void InitButtonUI();
    void SetButtonStyle();
    void RedrawBackground(QPainter& painter);
    void DrawBackgroundPixmap(QPainter& painter);
    void ChangeState(int state);
    /** Whether the mouse will change colours and images of the labels only, so that no size can change with them. */
    bool HasLooksOfOneSize() const;
    /** m_iState as an index of the arrays of looks. */
    bool HasOwnText() const;
    bool CanBeChosen() const;
    int StateIndex() const;
    QString IconSheet(int look) const;
    QString TextSheet(int look) const;

    bool m_bFirstPaint = true;
    EnumButtonType m_eType;
    bool m_bVertical;
    bool m_bIconFirst;
    bool m_bBoldText = false;
    int m_iBackgroundKind;
    bool m_bHasBubble = false;
    bool m_bClearBubbleOnChoose = false;
    bool m_bIconBorder = false;
    bool m_bBubbleLight = false;
    QString m_strIconBorder;
    int m_iRadius = 0;
    int m_iTextHeight = 0;
    int m_iTextWidth = 0;
    int m_iWidth = 0;
    int m_iHeight = 40;
    QString m_strText;
    int m_iBubbleCount = 0;
    QLabel* m_pBubble = nullptr;
    CMultiLineLabel* m_pTextLabel = nullptr;
    QLabel* m_pIconLabel = nullptr;
    QVBoxLayout* m_pTextLayoutV = nullptr;
    QVBoxLayout* m_pImageLayoutV = nullptr;
    QVBoxLayout* m_pMainLayoutV = nullptr;
    QHBoxLayout* m_pTextLayoutH = nullptr;
    QHBoxLayout* m_pImageLayoutH = nullptr;
    QHBoxLayout* m_pMainLayoutH = nullptr;
    // The looks, in this order: normal, pressed, hover, chosen.
    QString m_strTextColor[4];
    QPixmap m_pixBackground[4];
    QColor m_colorSolid[4];
    StructGradientColor m_gradient[4];
    QString m_strIcon[4];
    QString m_strTextIcon[4];
    QString m_strBubbleFocus;
    QString m_strBubbleNormal;
    bool m_bChooseFocus = false;
    int m_iState = 0;
    bool m_bHovered = false;
    bool m_bHasBackgroundImage = false;
};
