#pragma once

#include <CustomControls/toolbar/CTabWidget.h>

/**
 * A CTabWidget whose page shows the ribbon's picture at its right edge: what the tool blocks of a main window stand on.
 * A widget narrower than the picture cuts it on the left. Owned by its parent.
 *
 * @code
 * auto* ribbon = new CTabToolWidget(this);
 * ribbon->addTab(blocksOfFirstPage, tr("开始"));
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CTabToolWidget : public CTabWidget
{
    Q_OBJECT

public:
    /** Makes a ribbon without pages; @p parent owns it and may be null. */
    explicit CTabToolWidget(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};
