#include "CustomControlsDesigner.h"

#include "FormWidget.h"

CustomControlsDesigner::CustomControlsDesigner(QObject* parent)
    : QObject(parent)
{
    for (const FormWidget& widget : FormWidgets()) {
        m_offered.append(&m_widgets.emplace_back(widget));
    }
}

QList<QDesignerCustomWidgetInterface*> CustomControlsDesigner::customWidgets() const
{
    return m_offered;
}
