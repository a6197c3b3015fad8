#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QWidget>

namespace Ui {
class ToastWidget;
}

/**
 * A translucent red strip over the 3-D work area: a hint for the next step, the state of a view, or a warning. It takes
 * neither the focus nor the mouse, which passes through to the view below.
 *
 * It has no timer and no place of its own: the host places, shows, hides and deletes it. Owned by its parent. The icons
 * ":/icon/icon_scanning_system_prompt.png" and ":/icon/icon_scanning_system_warn.png" come from the host's resources;
 * without them the strip shows its message alone.
 *
 * Accessibility: an alert named by its words. A screen reader is told of it as it shows.
 *
 * @code
 * auto* toast = new ToastWidget(ToastWidget::ToastModelEdit, view, QString());
 * toast->move(view->mapToGlobal(QPoint((view->width() - toast->width()) / 2, 40)));
 * toast->show();
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT ToastWidget : public QWidget
{
    Q_OBJECT

public:
    /** What the strip says. The value 3 is free. Hosts pass numbers on from elsewhere, so any one may come. */
    enum ToastType : int
    {
        ToastModelEdit = 1,
        ToastLeaveEdit = 2,
        ToastGenerateGCode = 4,
        ToastLeaveEdit2 = 5,
        ToastModelEdit2 = 6,
        ToastLeaveEdit3 = 7,
        ToastLeaveEdit4 = 8,
        ToastTextureEdit = 9,
        ToastModelOutsideStock = 10,
        ToastCustomText = 11, ///< a warning of the host's own, wrapped by width
        ToastShellHidden = 12,
        ToastShellShown = 13,
        ToastLocalAxesHidden = 14,
        ToastLocalAxesShown = 15,
        ToastCollisionCheckOff = 16,
        ToastCollisionCheckOn = 17,
        ToastCalibrationLeft = 18,
        ToastFaceNotMachinable = 19,
        ToastCylinderNotMachinable = 20
    };

    /**
     * @param type   an unknown one gives an invisible strip of size 0 and a warning on the debug output
     * @param parent the window that the strip stays above, may be null
     * @param text   the message of ToastCustomText, shown as it is; every other type ignores it
     */
    ToastWidget(ToastType type, QWidget* parent, QString text);
    ~ToastWidget() override;

protected:
    bool event(QEvent* event) override;

private:
    friend class ToastWidgetAccessible;

    static QString Message(ToastType type);
    void SetIcon(const QString& path);
    void MakeCompact();
    void CentreMessage();
    void ShowCustomText(const QString& text);

    Ui::ToastWidget* ui;
};
