#include <examples/gallery/GalleryLanguage.h>
#include <examples/gallery/GallerySource.h>
#include <examples/gallery/GalleryWindow.h>
#include <examples/gallery/PageRegistry.h>

#include <tests/support/TestMain.h>

#include <QClipboard>
#include <QDir>
#include <QDirIterator>
#include <QPushButton>
#include <QRegularExpression>
#include <QSet>
#include <QTextEdit>

#include <algorithm>
#include <memory>

class GallerySourceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void everyPageShowsLinesOfItsOwnFile_data();
    void everyPageShowsLinesOfItsOwnFile();
    void theLinesAreThoseOfTheFiles();
    void everyMarkerHasItsTwinAndACardThatNamesIt();
    void anUnknownExampleHasNoLines();
    void theDialogShowsAndCopiesThem();
    void anotherExampleTakesTheSameDialog();

private:
    QList<QPushButton*> Buttons(const QString& page) const;

    std::unique_ptr<GalleryWindow> m_pWindow;
};

namespace {
const QDir Folder(QStringLiteral(GALLERY_FOLDER));

QString Example(const QPushButton* button)
{
    return button->objectName().mid(int(qstrlen("source-")));
}

QString Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll()) : QString();
}
} // namespace

void GallerySourceTest::initTestCase()
{
    GalleryLanguage::Use(true);
    m_pWindow = std::make_unique<GalleryWindow>(GalleryOptions());
    m_pWindow->show();
    for (const PageEntry& entry : GalleryPages()) {
        QVERIFY(m_pWindow->OpenPage(entry.strName));
    }
}

void GallerySourceTest::cleanupTestCase()
{
    m_pWindow.reset();
}

QList<QPushButton*> GallerySourceTest::Buttons(const QString& page) const
{
    const QRegularExpression name(QStringLiteral("^source-"));
    const auto* widget = m_pWindow->findChild<QWidget*>(QStringLiteral("page-") + page);
    return widget ? widget->findChildren<QPushButton*>(name) : QList<QPushButton*>();
}

void GallerySourceTest::everyPageShowsLinesOfItsOwnFile_data()
{
    QTest::addColumn<QString>("page");
    QTest::addColumn<QString>("source");
    for (const PageEntry& entry : GalleryPages()) {
        QTest::newRow(qPrintable(entry.strName)) << entry.strName << entry.strSource;
    }
}

void GallerySourceTest::everyPageShowsLinesOfItsOwnFile()
{
    QFETCH(QString, page);
    QFETCH(QString, source);
    const QList<QPushButton*> buttons = Buttons(page);
    QVERIFY(!buttons.isEmpty());
    for (const QPushButton* button : buttons) {
        const QList<GallerySource::Part> parts = GallerySource::Find(Example(button));
        QVERIFY2(!parts.isEmpty(), qPrintable(button->objectName()));
        const bool own = std::any_of(parts.begin(), parts.end(),
                                     [&source](const GallerySource::Part& part) { return part.strFile == source; });
        QVERIFY2(own, qPrintable(button->objectName()));
    }
}

void GallerySourceTest::theLinesAreThoseOfTheFiles()
{
    for (const PageEntry& entry : GalleryPages()) {
        const QList<QPushButton*> buttons = Buttons(entry.strName);
        for (const QPushButton* button : buttons) {
            for (const GallerySource::Part& part : GallerySource::Find(Example(button))) {
                QStringList file = Read(Folder.filePath(part.strFile)).split(QLatin1Char('\n'));
                for (QString& line : file) {
                    line = line.trimmed();
                }
                const QStringList lines = part.strLines.split(QLatin1Char('\n'));
                QVERIFY(lines.size() > 3);
                for (const QString& line : lines) {
                    QVERIFY2(!line.contains(QLatin1String("//! [")), qPrintable(line));
                    QVERIFY2(file.contains(line.trimmed()), qPrintable(line));
                }
            }
        }
    }
}

void GallerySourceTest::everyMarkerHasItsTwinAndACardThatNamesIt()
{
    QSet<QString> named;
    for (const PageEntry& entry : GalleryPages()) {
        const QList<QPushButton*> buttons = Buttons(entry.strName);
        for (const QPushButton* button : buttons) {
            named.insert(Example(button));
        }
    }
    const QRegularExpression marker(QStringLiteral("^ *//! \\[(.*)\\]$"), QRegularExpression::MultilineOption);
    int seen = 0;
    for (QDirIterator files(Folder.path(), {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                            QDirIterator::Subdirectories);
         files.hasNext();) {
        const QString path = files.next();
        QString open;
        for (auto match = marker.globalMatch(Read(path)); match.hasNext(); ++seen) {
            const QString name = match.next().captured(1);
            QVERIFY2(open.isEmpty() || open == name, qPrintable(path + QLatin1Char(' ') + open));
            QVERIFY2(named.contains(name), qPrintable(path + QLatin1Char(' ') + name));
            open = open.isEmpty() ? name : QString();
        }
        QVERIFY2(open.isEmpty(), qPrintable(path + QLatin1Char(' ') + open));
    }
    QVERIFY(seen > 2 * named.size() - 1);
}

void GallerySourceTest::anUnknownExampleHasNoLines()
{
    for (const char* name : {"", "no-such-example", "button-types]", "button"}) {
        QVERIFY2(GallerySource::Find(QLatin1String(name)).isEmpty(), name);
    }
}

void GallerySourceTest::theDialogShowsAndCopiesThem()
{
    QVERIFY(m_pWindow->OpenPage(QStringLiteral("buttons")));
    Buttons(QStringLiteral("buttons")).first()->click();
    auto* text = m_pWindow->findChild<QTextEdit*>(QStringLiteral("sourceText"));
    QVERIFY(text && text->isVisible());
    const QList<GallerySource::Part> parts = GallerySource::Find(Example(Buttons(QStringLiteral("buttons")).first()));
    QVERIFY(text->toPlainText().contains(parts.first().strLines));
    QVERIFY(text->isReadOnly());
    m_pWindow->findChild<QPushButton*>(QStringLiteral("sourceCopy"))->click();
    QCOMPARE(QGuiApplication::clipboard()->text(), text->toPlainText());
}

void GallerySourceTest::anotherExampleTakesTheSameDialog()
{
    const QList<QPushButton*> buttons = Buttons(QStringLiteral("buttons"));
    QVERIFY(buttons.size() > 1);
    buttons.first()->click();
    buttons.last()->click();
    QCOMPARE(m_pWindow->findChildren<QTextEdit*>(QStringLiteral("sourceText")).size(), 1);
    auto* text = m_pWindow->findChild<QTextEdit*>(QStringLiteral("sourceText"));
    QVERIFY(text->toPlainText().contains(GallerySource::Find(Example(buttons.last())).first().strLines));
    text->window()->close();
    QTRY_VERIFY(m_pWindow->findChildren<QTextEdit*>(QStringLiteral("sourceText")).isEmpty());
}

CUSTOMCONTROLS_TEST_MAIN(GallerySourceTest)
#include "GallerySourceTest.moc"
