#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QPixmap>
#include <QWidget>

/**
 * The panel inside a message box or a progress dialog, painted by its style sheet alone.
 *
 * It is no dimming layer: it covers no host window and darkens nothing. Its parent owns it; the form of a box makes it
 * by promotion of a QWidget.
 *
 * @code
 * auto* panel = new CMsgBoxBackground(this);
 * panel->setObjectName("m_widgetMsg");
 * panel->setStyleSheet("QWidget#m_widgetMsg{background:#f6f6f6;border-radius:4px;}");
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CMsgBoxBackground : public QWidget
{
    Q_OBJECT

public:
    /** Makes a panel that its style sheet can fill; @p parent may be null. */
    explicit CMsgBoxBackground(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    QPixmap m_pixmapBackground;
};
