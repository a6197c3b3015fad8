#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QImage>
#include <QWidget>

/**
 * A dark, rounded, half-transparent tool tip window with a grain of noise, over a blur of the desktop where the system
 * has one. It fades in when it is shown. Hide() fades it out and deletes it; a tip without a parent belongs to nobody
 * else. ToolTipEventFilter makes these in place of the ordinary tool tips.
 *
 * Accessibility: a tool tip named by its words.
 *
 * @code
 * auto* tip = new CFrostedToolTip(tr("生成G代码"), nullptr);
 * tip->move(QCursor::pos() + QPoint(8, 18));
 * tip->show();
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CFrostedToolTip : public QWidget
{
    Q_OBJECT

public:
    /**
     * @param text   may be empty or rich text, as that of a QLabel
     * @param parent the owner; null leaves the tip to Hide()
     */
    CFrostedToolTip(const QString& text, QWidget* parent);

    /** Fades the tip out in 200 ms, then deletes it. */
    void Hide();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    static bool isCompositionEnabled();
    void extendFrameIntoClientArea(int left, int right, int top, int bottom);
    void enableBlurEffect();

    QImage m_imgNoise;
};
