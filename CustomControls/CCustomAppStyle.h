#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QProxyStyle>

/**
 * Wakes tool tips up after 200 milliseconds and leaves everything else to the style that it wraps.
 *
 * The library never installs it; a host does, for the whole application, which then owns it.
 *
 * @code
 * QApplication::setStyle(new CCustomAppStyle);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CCustomAppStyle : public QProxyStyle
{
    Q_OBJECT

public:
    /** @param base the style to wrap, owned by this one from now on; null wraps the system's own */
    explicit CCustomAppStyle(QProxyStyle* base = nullptr);

    int styleHint(QStyle::StyleHint hint, const QStyleOption* option = nullptr, const QWidget* widget = nullptr,
                  QStyleHintReturn* returnData = nullptr) const override;
};
