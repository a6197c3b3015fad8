#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QColor>
#include <QProgressBar>

/**
 * A progress bar that writes its percentage over the groove in two colours: one over the filled part, one over the
 * rest. The border between the two follows the edge of the filled part through the characters.
 *
 * Where the style draws a text of its own, switch that off with QProgressBar::setTextVisible(false); the text of this
 * class has its own switch, SetTextVisible(). Owned by its parent.
 *
 * @code
 * auto* bar = new CProgressBar(this);
 * bar->setTextVisible(false);
 * bar->setValue(40);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CProgressBar : public QProgressBar
{
    Q_OBJECT
    Q_PROPERTY(bool percentageVisible MEMBER m_bTextVisible WRITE SetTextVisible)
    /** The two colours of SetColor(), which show when the bar is next painted. */
    Q_PROPERTY(QColor emptyTextColor MEMBER m_colorEmpty)
    /** See emptyTextColor. */
    Q_PROPERTY(QColor filledTextColor MEMBER m_colorFilled)

public:
    /** A bar at 0 of 100 in the house font; @p parent owns it and may be null. */
    explicit CProgressBar(QWidget* parent = nullptr);

    /**
     * The colours of the percentage, for the next time that the bar is painted; the call itself repaints nothing.
     *
     * @param empty  over the unfilled part, at first rgb(51, 51, 51)
     * @param filled over the filled part, at first rgb(245, 245, 245)
     */
    void SetColor(const QColor& empty, const QColor& filled);

    /** Shows or hides the percentage, shown at first, and repaints. A bar at 0 or without a range shows none anyway. */
    void SetTextVisible(bool visible);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_colorEmpty{51, 51, 51, 255};
    QColor m_colorFilled{245, 245, 245, 255};
    bool m_bTextVisible = true;
};
