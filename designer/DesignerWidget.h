#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

struct FormWidget;

/** Tells Designer of one widget, from its row in the list. */
class DesignerWidget : public QDesignerCustomWidgetInterface
{
public:
    explicit DesignerWidget(const FormWidget& widget);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    const FormWidget& m_widget;
};
