#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QTabBar>

/**
 * The tabs of a CTabWidget: 30 pixels high, the current one with a green caption and a bottom line in the colour of the
 * page, so that both merge. Tabs that begin beyond the right edge are not painted.
 *
 * CTabWidget makes its own; a host rarely does. Owned by its parent.
 *
 * Keyboard: Left and Right change the tab, and a ring around the current one shows that Tab has led here.
 *
 * @code
 * auto* tabs = new CTabBar(this);
 * tabs->addTab(tr("开始"));
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CTabBar : public QTabBar
{
    Q_OBJECT

public:
    /** Makes a bar without tabs; @p parent owns it and may be null. */
    explicit CTabBar(QWidget* parent);

    /** As wide as the tabs, 30 pixels high. */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    /** As wide as the caption needs in bold, whatever the bar's own font, so that no tab grows when it is chosen. */
    QSize tabSizeHint(int index) const override;
};
