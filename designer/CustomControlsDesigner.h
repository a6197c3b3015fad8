#pragma once

#include "DesignerWidget.h"

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <QObject>

#include <list>

/** The plug-in: all widgets of the list, for Qt Designer's widget box and for QUiLoader. */
class CustomControlsDesigner : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QDesignerCustomWidgetCollectionInterface_iid)
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)

public:
    explicit CustomControlsDesigner(QObject* parent = nullptr);

    /** In the order of the list. They belong to the plug-in. */
    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    std::list<DesignerWidget> m_widgets;
    QList<QDesignerCustomWidgetInterface*> m_offered;
};
