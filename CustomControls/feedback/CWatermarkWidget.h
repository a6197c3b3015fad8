#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QPixmap>
#include <QWidget>

class QLabel;

/**
 * Lays a faint, slanted, repeated text over the area that it covers: the mark of an internal build. The mark is a
 * window of its own that mouse and keys pass through; it follows only when the host calls AdjustWatermark(). Owned by
 * its parent.
 *
 * @code
 * auto* watermark = new CWatermarkWidget(mainWindow); // covers the area to be marked
 * watermark->ShowWatermark();
 * // in the host's moveEvent and resizeEvent: watermark->AdjustWatermark(false) and AdjustWatermark(true)
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CWatermarkWidget : public QWidget
{
    Q_OBJECT

public:
    /** Makes an empty widget that marks nothing until ShowWatermark(); @p parent owns it and may be null. */
    explicit CWatermarkWidget(QWidget* parent = nullptr);
    ~CWatermarkWidget() override;

    /** Makes the mark and shows it. Meant to be called once; a further call only adjusts the mark. */
    void ShowWatermark();

    /**
     * Lays the mark over this widget anew, shows it and raises it. Nothing before ShowWatermark().
     *
     * @param resize true when the size may have changed, false when only the place has
     */
    void AdjustWatermark(bool resize);

private:
    QPixmap GeneratePixmap(int width, int height);

    QLabel* m_pLabel = nullptr;
    int m_nPixmapWidth = 0;
    int m_nPixmapHeight = 0;
    QPixmap m_pixmapCache;
};
