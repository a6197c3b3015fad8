#include "Example.h"

#include <tests/support/TestMain.h>

#include <QDir>
#include <QList>

namespace {
QList<const Example*>& Examples()
{
    static QList<const Example*> examples;
    return examples;
}
} // namespace

Example::Example(const char* name, Body body)
    : name(name)
    , body(body)
{
    Examples().append(this);
}

/** Runs every example of the documentation in a window of its own. */
class DocumentationExamples : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySourceHasItsExample();
    void exampleDoesWhatItsPageSays_data();
    void exampleDoesWhatItsPageSays();
};

void DocumentationExamples::everySourceHasItsExample()
{
    QStringList sources;
    for (const QString& file : QDir(QStringLiteral(EXAMPLES_FOLDER)).entryList({QStringLiteral("*.cpp")})) {
        sources.append(QFileInfo(file).completeBaseName());
    }
    QStringList names;
    for (const Example* example : std::as_const(Examples())) {
        names.append(QLatin1String(example->name));
    }
    sources.sort();
    names.sort();
    QVERIFY(!names.isEmpty());
    QCOMPARE(names, sources);
}

void DocumentationExamples::exampleDoesWhatItsPageSays_data()
{
    QTest::addColumn<Example::Body>("body");
    for (const Example* example : std::as_const(Examples())) {
        QTest::newRow(example->name) << example->body;
    }
}

void DocumentationExamples::exampleDoesWhatItsPageSays()
{
    QFETCH(const Example::Body, body);
    QMainWindow window;
    auto* panel = new QWidget;
    auto* layout = new QVBoxLayout(panel);
    window.setCentralWidget(panel);
    window.resize(480, 360);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    body(&window, panel, layout);
}

CUSTOMCONTROLS_TEST_MAIN(DocumentationExamples)

#include "DocumentationExamples.moc"
