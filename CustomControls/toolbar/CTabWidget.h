#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QTabWidget>

/**
 * The dark tab strip of a main window with a light page below it. Its tabs share the whole width, show no arrows and
 * never shorten their captions. Pages are added as to any QTabWidget. Owned by its parent.
 *
 * @code
 * auto* tabs = new CTabWidget(this);
 * tabs->addTab(new QWidget, tr("开始"));
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CTabWidget : public QTabWidget
{
    Q_OBJECT

public:
    /** Makes a strip without pages; @p parent owns it and may be null. */
    explicit CTabWidget(QWidget* parent);
};
