#pragma once

#include <CustomControls/CCustomAppStyle.h>

/**
 * The metrics of the house tool bar: a handle of 9, items 2 apart, a margin of 4. Every other metric is that of the
 * style that it wraps.
 *
 * A CToolBar brings its own; for another tool bar the host installs it and keeps it, since QWidget::setStyle() takes no
 * ownership.
 *
 * @code
 * auto* style = new CToolBarStyle;
 * style->setParent(window); // lives as long as the window that holds the bar
 * toolBar->setStyle(style);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CToolBarStyle : public CCustomAppStyle
{
    Q_OBJECT

public:
    /** @param base the style to wrap, owned by this one from now on; null wraps the system's own */
    explicit CToolBarStyle(QProxyStyle* base = nullptr);

    int pixelMetric(QStyle::PixelMetric metric, const QStyleOption* option = nullptr,
                    const QWidget* widget = nullptr) const override;
};
