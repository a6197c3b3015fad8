#pragma once

#include <QFont>
#include <QLabel>

/**
 * A label that shrinks its text until it fits instead of cutting it, once it may wrap. The caption of CVelmarButton.
 *
 * Without word wrap it is a plain QLabel. With it the text is drawn centred over the whole label, wrapped at words
 * where that is possible and within them where it is not, in the largest font that fits and is no larger than the
 * widget's own. The smaller font lives in the painting alone: font() and sizeHint() stay those of the widget's own
 * font.
 *
 * @code
 * auto* caption = new CMultiLineLabel;
 * caption->setText(tr("..."));
 * caption->setWordWrap(true);
 * @endcode
 */
class CMultiLineLabel : public QLabel
{
    Q_OBJECT

public:
    CMultiLineLabel();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    /** The largest font not above font() in which the text fits rect(), but never below one pixel. */
    const QFont& FittingFont();

    // What the text was last fitted for: a repaint of an unchanged label measures nothing.
    QString m_strFittedText;
    QSize m_sizeFitted;
    QFont m_fontFittedFrom;
    QFont m_fontFitted;
};
