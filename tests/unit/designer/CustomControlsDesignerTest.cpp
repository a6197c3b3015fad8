#include "EveryControl.h"

#include <CustomControls/buttons/CVelmarButton.h>

#include <tests/support/TestMain.h>

#include <QDirIterator>
#include <QPluginLoader>
#include <QRegularExpression>
#include <QUiLoader>
#include <QXmlStreamReader>
#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

#include <memory>

namespace {

const QString kTree = QStringLiteral(SOURCE_TREE);
const QString kForm = kTree + QStringLiteral("/tests/unit/designer/EveryControl.ui");

QString ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

// The first column of the table under "Left out".
QStringList LeftOut()
{
    const QString text = ReadAll(kTree + QStringLiteral("/designer/README.md"));
    const QRegularExpression row(QStringLiteral("^\\| `(\\w+)` \\| \\S.*\\|$"), QRegularExpression::MultilineOption);
    QStringList names;
    for (const QRegularExpressionMatch& match : row.globalMatch(text.section(QStringLiteral("## Left out"), 1))) {
        names.append(match.captured(1));
    }
    names.sort();
    return names;
}

// The classes of the headers that are exported and descend from QWidget.
QStringList ExportedWidgets()
{
    const QRegularExpression declaration(QStringLiteral("^class CUSTOMCONTROLS_EXPORT (\\w+) : public (\\w+)"),
                                         QRegularExpression::MultilineOption);
    QHash<QString, QString> bases;
    QDirIterator headers(kTree + QStringLiteral("/CustomControls"), {QStringLiteral("*.h")}, QDir::Files,
                         QDirIterator::Subdirectories);
    while (headers.hasNext()) {
        for (const QRegularExpressionMatch& match : declaration.globalMatch(ReadAll(headers.next()))) {
            bases.insert(match.captured(1), match.captured(2));
        }
    }
    // What the exported classes that are no widgets descend from.
    const QSet<QString> noWidgets = {QStringLiteral("QObject"), QStringLiteral("QProxyStyle"),
                                     QStringLiteral("QStyledItemDelegate")};
    QStringList names;
    for (auto it = bases.cbegin(); it != bases.cend(); ++it) {
        QString base = it.value();
        while (bases.contains(base)) {
            base = bases.value(base);
        }
        if (!noWidgets.contains(base)) {
            names.append(it.key());
        }
    }
    names.sort();
    return names;
}

} // namespace

/** The plug-in, as Designer and as QUiLoader see it. */
class CustomControlsDesignerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void offersOrLeavesOutEveryExportedWidget();
    void everyWidgetHasAnIconOfItsOwn();
    void everyWidgetStandsUnderOneHeading();
    void everyWidgetIsExplained();
    void everyHeaderExists();
    void everyWidgetIsDescribedAsDesignerReadsIt();
    void everyWidgetIsAChildOfItsForm();
    void everyPropertyCanBeReset();
    void loadedFormHasPropertiesInEffect_data();
    void loadedFormHasPropertiesInEffect();
    void connectionsOfALoadedFormWork();
    void formHoldsOneOfEach();
    void formNamesOperationsThatUicCannotGuess();

private:
    std::unique_ptr<QWidget> LoadForm();

    QPluginLoader m_loader;
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

void CustomControlsDesignerTest::initTestCase()
{
    m_loader.setFileName(QStringLiteral(DESIGNER_PLUGIN));
    const auto* plugin = qobject_cast<QDesignerCustomWidgetCollectionInterface*>(m_loader.instance());
    QVERIFY2(plugin, qPrintable(m_loader.errorString()));
    m_widgets = plugin->customWidgets();
    QVERIFY(!m_widgets.isEmpty());
}

std::unique_ptr<QWidget> CustomControlsDesignerTest::LoadForm()
{
    QUiLoader loader;
    loader.clearPluginPaths();
    loader.addPluginPath(QFileInfo(QStringLiteral(DESIGNER_PLUGIN)).path());
    QFile file(kForm);
    return std::unique_ptr<QWidget>(file.open(QFile::ReadOnly) ? loader.load(&file) : nullptr);
}

void CustomControlsDesignerTest::offersOrLeavesOutEveryExportedWidget()
{
    QStringList names = LeftOut();
    QVERIFY(!names.isEmpty());
    for (const QDesignerCustomWidgetInterface* widget : std::as_const(m_widgets)) {
        names.append(widget->name());
    }
    names.sort();
    QCOMPARE(names, ExportedWidgets());
}

void CustomControlsDesignerTest::everyWidgetHasAnIconOfItsOwn()
{
    QList<QImage> seen;
    for (const QDesignerCustomWidgetInterface* widget : std::as_const(m_widgets)) {
        const QIcon icon = widget->icon();
        QVERIFY2(icon.availableSizes().contains(QSize(24, 24)), qPrintable(widget->name()));
        const QImage image = icon.pixmap(QSize(24, 24)).toImage();
        const QImage dense(QStringLiteral(":/customcontrols-designer/%1@2x.png").arg(widget->name()));
        QCOMPARE(dense.size(), QSize(48, 48));
        QVERIFY2(!seen.contains(image), qPrintable(widget->name()));
        seen.append(image);
    }
}

void CustomControlsDesignerTest::everyWidgetStandsUnderOneHeading()
{
    for (const QDesignerCustomWidgetInterface* widget : std::as_const(m_widgets)) {
        QCOMPARE(widget->group(), QStringLiteral("Custom Controls"));
    }
}

void CustomControlsDesignerTest::everyWidgetIsExplained()
{
    QSet<QString> seen;
    for (const QDesignerCustomWidgetInterface* widget : std::as_const(m_widgets)) {
        QVERIFY2(!widget->toolTip().isEmpty(), qPrintable(widget->name()));
        QVERIFY2(widget->whatsThis().size() > widget->toolTip().size() + 2, qPrintable(widget->name()));
        QVERIFY2(!seen.contains(widget->toolTip()), qPrintable(widget->name()));
        seen.insert(widget->toolTip());
    }
}

void CustomControlsDesignerTest::everyHeaderExists()
{
    for (const QDesignerCustomWidgetInterface* widget : std::as_const(m_widgets)) {
        const QString header = kTree + QLatin1Char('/') + widget->includeFile();
        QVERIFY2(ReadAll(header).contains(QStringLiteral("class CUSTOMCONTROLS_EXPORT %1 ").arg(widget->name())),
                 qPrintable(header));
    }
}

void CustomControlsDesignerTest::everyWidgetIsDescribedAsDesignerReadsIt()
{
    for (QDesignerCustomWidgetInterface* widget : std::as_const(m_widgets)) {
        QXmlStreamReader reader(widget->domXml().trimmed());
        QStringList classes;
        QStringList properties;
        QStringList described;
        int width = 0;
        int height = 0;
        while (!reader.atEnd()) {
            reader.readNext();
            if (!reader.isStartElement()) {
                continue;
            }
            const QString element = reader.name().toString();
            const QXmlStreamAttributes attributes = reader.attributes();
            if (element == QLatin1String("widget")) {
                classes.append(attributes.value(QLatin1String("class")).toString());
            } else if (element == QLatin1String("property") ||
                       element == QLatin1String("stringpropertyspecification")) {
                properties.append(attributes.value(QLatin1String("name")).toString());
            } else if (element == QLatin1String("class")) {
                described.append(reader.readElementText());
            } else if (element == QLatin1String("width")) {
                width = reader.readElementText().toInt();
            } else if (element == QLatin1String("height")) {
                height = reader.readElementText().toInt();
            }
        }
        QVERIFY2(!reader.hasError(), qPrintable(widget->name() + reader.errorString()));
        QCOMPARE(classes.value(0), widget->name());
        QCOMPARE(described, QStringList(widget->name()));
        QVERIFY(width >= 20 && width <= 480 && height >= 20 && height <= 200);

        const std::unique_ptr<QWidget> made(widget->createWidget(nullptr));
        for (const QString& property : std::as_const(properties)) {
            QVERIFY2(made->metaObject()->indexOfProperty(qPrintable(property)) >= 0,
                     qPrintable(widget->name() + QLatin1Char('.') + property));
        }
        // The size does not quarrel with what the widget allows.
        QVERIFY2(width <= made->maximumWidth() && height <= made->maximumHeight(), qPrintable(widget->name()));
    }
}

void CustomControlsDesignerTest::everyWidgetIsAChildOfItsForm()
{
    FailOnWarning();
    QWidget form;
    for (QDesignerCustomWidgetInterface* widget : std::as_const(m_widgets)) {
        const QWidget* made = widget->createWidget(&form);
        QCOMPARE(QString::fromLatin1(made->metaObject()->className()), widget->name());
        QCOMPARE(made->parentWidget(), &form);
        QVERIFY(!made->isWindow());
    }
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
}

// Designer reads each property, writes it and writes it back when the change is undone.
void CustomControlsDesignerTest::everyPropertyCanBeReset()
{
    FailOnWarning();
    QWidget form;
    for (QDesignerCustomWidgetInterface* widget : std::as_const(m_widgets)) {
        QWidget* made = widget->createWidget(&form);
        const QMetaObject* meta = made->metaObject();
        while (meta->className()[0] != 'Q') {
            for (int i = meta->propertyOffset(); i < meta->propertyCount(); ++i) {
                const QMetaProperty property = meta->property(i);
                const QVariant first = property.read(made);
                QVERIFY2(first.isValid() && property.isWritable() && property.isDesignable(), property.name());
                QVariant other = first;
                switch (first.typeId()) {
                case QMetaType::Bool:
                    other = !first.toBool();
                    break;
                case QMetaType::Int:
                    other = first.toInt() + 7;
                    break;
                case QMetaType::Double:
                    other = first.toDouble() + 7.0;
                    break;
                case QMetaType::QString:
                    other = QStringLiteral("other");
                    break;
                case QMetaType::QStringList:
                    other = QStringList{QStringLiteral("other")};
                    break;
                case QMetaType::QColor:
                    other = QColor(Qt::red);
                    break;
                case QMetaType::QPoint:
                    other = QPoint(7, 7);
                    break;
                case QMetaType::QSize:
                    other = QSize(77, 27);
                    break;
                case QMetaType::QFont:
                    other = QFont(QStringLiteral("Noto Sans"), 21);
                    break;
                default:
                    QFAIL(property.name());
                }
                QVERIFY2(property.write(made, other), property.name());
                QVERIFY2(property.read(made) == other, property.name());
                property.write(made, first);
                // A width once fixed is not let loose again.
                QVERIFY2(property.read(made) == first || property.name() == QByteArray("mainWidth"), property.name());
            }
            meta = meta->superClass();
        }
    }
}

void CustomControlsDesignerTest::loadedFormHasPropertiesInEffect_data()
{
    AddRowsOfEveryControl();
}

void CustomControlsDesignerTest::loadedFormHasPropertiesInEffect()
{
    FailOnWarning();
    const std::unique_ptr<QWidget> form = LoadForm();
    QVERIFY(form);
    CheckCurrentRow(form.get());
}

void CustomControlsDesignerTest::connectionsOfALoadedFormWork()
{
    const std::unique_ptr<QWidget> form = LoadForm();
    QVERIFY(form);
    form->show();
    CheckConnections(form.get());
}

void CustomControlsDesignerTest::formHoldsOneOfEach()
{
    const std::unique_ptr<QWidget> form = LoadForm();
    QVERIFY(form);
    const QList<QWidget*> children = form->findChildren<QWidget*>();
    for (const QDesignerCustomWidgetInterface* widget : std::as_const(m_widgets)) {
        const bool held = std::any_of(children.begin(), children.end(), [widget](const QWidget* child) {
            return widget->name() == QLatin1String(child->metaObject()->className());
        });
        QVERIFY2(held, qPrintable(widget->name()));
    }
}

// uic calls set<Property>() unless it is told not to, as Designer tells it by the same rule.
void CustomControlsDesignerTest::formNamesOperationsThatUicCannotGuess()
{
    const std::unique_ptr<QWidget> form = LoadForm();
    QVERIFY(form);
    QXmlStreamReader reader(ReadAll(kForm));
    QStringList names;
    int checked = 0;
    while (!reader.atEnd()) {
        reader.readNext();
        if (reader.isEndElement() && reader.name() == QLatin1String("widget")) {
            names.removeLast();
        } else if (reader.isStartElement() && reader.name() == QLatin1String("widget")) {
            names.append(reader.attributes().value(QLatin1String("name")).toString());
        } else if (reader.isStartElement() && reader.name() == QLatin1String("property") && names.size() > 1) {
            const QWidget* widget = form->findChild<QWidget*>(names.last());
            const QByteArray property = reader.attributes().value(QLatin1String("name")).toLatin1();
            const int index = widget ? widget->metaObject()->indexOfProperty(property.constData()) : -1;
            if (index >= 0) {
                const bool guessed = reader.attributes().value(QLatin1String("stdset")) != QLatin1String("0");
                QVERIFY2(guessed == widget->metaObject()->property(index).hasStdCppSet(),
                         (names.last().toLatin1() + '.' + property).constData());
                ++checked;
            }
        }
    }
    QVERIFY(checked > 40);
}

CUSTOMCONTROLS_TEST_MAIN(CustomControlsDesignerTest)
#include "CustomControlsDesignerTest.moc"
