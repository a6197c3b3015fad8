#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

#include <QPointer>

class CVelmarAnimation;

/** CWatermarkWidget over the window of an internal build, and CVelmarAnimation as a flip-book. */
class WatermarkPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit WatermarkPage(const GalleryOptions& options);
    ~WatermarkPage() override;

private:
    void AddWatermark();
    void AddAnimations();
    void OpenPreview();

    QPointer<QWidget> m_pPreview;
};
