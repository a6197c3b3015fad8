#include "DesignerWidget.h"

#include "FormWidget.h"

#include <QIcon>

namespace {

// "CVelmarButton" is velmarButton, as Designer writes QPushButton as pushButton.
QString ObjectNameOf(const QString& className)
{
    QString name = className.mid(1);
    name[0] = name[0].toLower();
    return name;
}

} // namespace

DesignerWidget::DesignerWidget(const FormWidget& widget)
    : m_widget(widget)
{}

QString DesignerWidget::name() const
{
    return QString::fromLatin1(m_widget.className);
}

QString DesignerWidget::group() const
{
    return QStringLiteral("Custom Controls");
}

QString DesignerWidget::toolTip() const
{
    return QString::fromUtf8(m_widget.toolTip);
}

QString DesignerWidget::whatsThis() const
{
    return toolTip() + QStringLiteral(". ") + QString::fromUtf8(m_widget.whatsThis);
}

QString DesignerWidget::includeFile() const
{
    return QString::fromLatin1(m_widget.header);
}

QIcon DesignerWidget::icon() const
{
    return QIcon(QStringLiteral(":/customcontrols-designer/%1.png").arg(name()));
}

bool DesignerWidget::isContainer() const
{
    return m_widget.isContainer;
}

QWidget* DesignerWidget::createWidget(QWidget* parent)
{
    return m_widget.create(parent);
}

QString DesignerWidget::domXml() const
{
    QString specifications;
    const QStringList literals = QString::fromLatin1(m_widget.literals).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString& property : literals) {
        specifications +=
            QStringLiteral(R"(<stringpropertyspecification name="%1" notr="true" type="singleline"/>)").arg(property);
    }
    return QStringLiteral(R"(
<ui language="c++">
 <widget class="%1" name="%2">
  <property name="geometry"><rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect></property>
  %5
 </widget>
 <customwidgets>
  <customwidget>
   <class>%1</class>
   <extends>%6</extends>
   <header location="global">%7</header>
   <propertyspecifications>%8</propertyspecifications>
  </customwidget>
 </customwidgets>
</ui>)")
        .arg(name(), ObjectNameOf(name()))
        .arg(m_widget.size.width())
        .arg(m_widget.size.height())
        .arg(QString::fromUtf8(m_widget.content), QString::fromLatin1(m_widget.qtClass), includeFile(), specifications);
}
