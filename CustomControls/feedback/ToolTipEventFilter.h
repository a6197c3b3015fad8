#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QHash>
#include <QObject>

class CFrostedToolTip;

/**
 * Shows the tool tips of the widgets that it watches as CFrostedToolTip windows: at the pointer, until the pointer
 * leaves the widget or 3.5 seconds have passed. The host makes one and installs it on each widget that is to have such
 * tips, or on the application for all of them. Owned by its parent; tips that stand when it is deleted fade out.
 *
 * A widget without a tool tip text, and an object that is no widget, keep what the toolkit does.
 *
 * @code
 * auto* filter = new ToolTipEventFilter(this);
 * button->setToolTip(tr("生成G代码"));
 * button->installEventFilter(filter);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT ToolTipEventFilter : public QObject
{
    Q_OBJECT

public:
    /** Makes a filter that watches nothing until it is installed; @p parent owns it and may be null. */
    explicit ToolTipEventFilter(QObject* parent);
    ~ToolTipEventFilter() override;

    /** True for a tool tip event that is answered here; every other event goes on. */
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void ShowToolTip(QObject* watched, const QString& text);
    void HideToolTip(QObject* watched);

    QHash<QObject*, CFrostedToolTip*> m_hashToolTips;
};
