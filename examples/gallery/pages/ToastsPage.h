#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

#include <CustomControls/feedback/ToastWidget.h>

#include <QPointer>
#include <QTimer>

class MachiningView;

/** The twenty types of ToastWidget over the work area that they speak of. */
class ToastsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ToastsPage(const GalleryOptions& options);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void AddView();
    void AddTypes();
    void ShowToast(int type);
    /** Changes the view as the toast of this type says. */
    void FollowToast(int type);
    void PlaceToast();

    QLabel* m_pOutcome;
    MachiningView* m_pView;
    QPointer<ToastWidget> m_pToast;
    QTimer m_timer;
};
