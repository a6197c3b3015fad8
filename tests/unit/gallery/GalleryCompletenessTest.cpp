#include <examples/gallery/PageRegistry.h>

#include <tests/support/TestMain.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QHash>
#include <QRegularExpression>
#include <QSet>

class GalleryCompletenessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void useIsMoreThanAnIncludeOrAComment_data();
    void useIsMoreThanAnIncludeOrAComment();
    void everyExportedClassIsShown_data();
    void everyExportedClassIsShown();
    void everyPageUsesTheClassesThatItNames_data();
    void everyPageUsesTheClassesThatItNames();
    void everyClassIsFoundByItsName_data();
    void everyClassIsFoundByItsName();
};

namespace {
const QDir Gallery(QStringLiteral(GALLERY_FOLDER));
const QDir Library(QStringLiteral(LIBRARY_FOLDER));

/** What the window itself shows, around every page. */
const QHash<QString, QString> Frame = {
    {QStringLiteral("CTabToolWidget"), QStringLiteral("GalleryRibbon.h")},
    {QStringLiteral("CCustomAppStyle"), QStringLiteral("main.cpp")},
    {QStringLiteral("ToolTipEventFilter"), QStringLiteral("main.cpp")},
};
/** What comes with another class, whose source makes it. */
const QHash<QString, QString> Brought = {
    {QStringLiteral("CTabBar"), QStringLiteral("toolbar/CTabWidget.cpp")},
};
/** The class that the library is named after holds nothing that could be shown. */
const QString Anchor = QStringLiteral("CustomControls");

QString Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly | QIODevice::Text) ? QString::fromUtf8(file.readAll()) : QString();
}

QStringList ExportedClasses()
{
    const QRegularExpression declaration(QStringLiteral("\\bclass CUSTOMCONTROLS_EXPORT (\\w+)"));
    QStringList classes;
    for (QDirIterator headers(Library.path(), {QStringLiteral("*.h")}, QDir::Files, QDirIterator::Subdirectories);
         headers.hasNext();) {
        for (auto match = declaration.globalMatch(Read(headers.next())); match.hasNext();) {
            classes.append(match.next().captured(1));
        }
    }
    classes.sort();
    return classes;
}

/** The code alone: what is only included, declared, or named in a comment or a text is not used. */
QString Code(QString text)
{
    // Texts first: what looks like a comment in one is none. One that is a single word may be the name of a class that
    // is made by its name.
    static const QRegularExpression textOrComment(
        QStringLiteral("(\"\\w+\")|\"(?:\\\\.|[^\"\\\\\\n])*\"|//[^\\n]*|/\\*.*?\\*/"),
        QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression announcement(QStringLiteral("^[ \\t]*(?:#include\\b.*|class \\w+;)$"),
                                                 QRegularExpression::MultilineOption);
    return text.replace(textOrComment, QStringLiteral("\\1")).remove(announcement);
}

bool Uses(const QString& text, const QString& name)
{
    return QRegularExpression(QStringLiteral("\\b%1\\b").arg(name)).match(Code(text)).hasMatch();
}

/** A file of the gallery with all that it takes in from the gallery, headers and their sources. */
QString Sources(const QString& path, QSet<QString>* seen)
{
    const QString file = QDir::cleanPath(path);
    if (seen->contains(file) || !QFileInfo::exists(file)) {
        return QString();
    }
    seen->insert(file);
    QString text = Read(file);
    const QRegularExpression include(QStringLiteral("#include \"([^\"]+)\""));
    QString taken;
    for (auto match = include.globalMatch(text); match.hasNext();) {
        const QString header = QFileInfo(file).dir().filePath(match.next().captured(1));
        taken += Sources(header, seen);
        taken += Sources(QString(header).replace(QLatin1String(".h"), QLatin1String(".cpp")), seen);
    }
    return text + taken;
}

void AddClasses()
{
    QTest::addColumn<QString>("name");
    const QStringList classes = ExportedClasses();
    for (const QString& name : classes) {
        if (name != Anchor) {
            QTest::newRow(qPrintable(name)) << name;
        }
    }
}
} // namespace

void GalleryCompletenessTest::useIsMoreThanAnIncludeOrAComment_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("used");
    QTest::newRow("include") << QStringLiteral("#include <CustomControls/menus/CThing.h>\nint i;\n") << false;
    QTest::newRow("declaration") << QStringLiteral("class CThing;\n") << false;
    QTest::newRow("line comment") << QStringLiteral("int i; // a CThing\n") << false;
    QTest::newRow("block comment") << QStringLiteral("/* a\n CThing */ int i;\n") << false;
    QTest::newRow("text") << QStringLiteral("f(\"a \\\"CThing\\\"\");\n") << false;
    QTest::newRow("made by name") << QStringLiteral("Create(\"CThing\");\n") << true;
    QTest::newRow("code") << QStringLiteral("#include \"CThing.h\"\nauto* thing = new CThing(this);\n") << true;
    QTest::newRow("base") << QStringLiteral("class Mine : public CThing\n{\n") << true;
    QTest::newRow("after a literal") << QStringLiteral("f(\"file://x\"); CThing thing;\n") << true;
    QTest::newRow("part of a word") << QStringLiteral("CThings things;\n") << false;
}

void GalleryCompletenessTest::useIsMoreThanAnIncludeOrAComment()
{
    QFETCH(QString, text);
    QFETCH(bool, used);
    QCOMPARE(Uses(text, QStringLiteral("CThing")), used);
}

void GalleryCompletenessTest::everyExportedClassIsShown_data()
{
    QVERIFY(ExportedClasses().size() > 40);
    AddClasses();
}

void GalleryCompletenessTest::everyExportedClassIsShown()
{
    QFETCH(QString, name);
    if (Frame.contains(name)) {
        QVERIFY(Uses(Read(Gallery.filePath(Frame.value(name))), name));
        return;
    }
    for (const PageEntry& entry : GalleryPages()) {
        if (entry.classes.contains(name)) {
            return;
        }
    }
    QFAIL("no page shows it");
}

void GalleryCompletenessTest::everyPageUsesTheClassesThatItNames_data()
{
    QTest::addColumn<QString>("source");
    QTest::addColumn<QStringList>("classes");
    for (const PageEntry& entry : GalleryPages()) {
        QTest::newRow(qPrintable(entry.strName)) << entry.strSource << entry.classes;
    }
}

void GalleryCompletenessTest::everyPageUsesTheClassesThatItNames()
{
    QFETCH(QString, source);
    QFETCH(QStringList, classes);
    // What every page takes in shows nothing of its own.
    QSet<QString> seen;
    for (const char* common : {"GalleryPage", "GalleryStyle", "GalleryOptions"}) {
        for (const char* ending : {".h", ".cpp"}) {
            seen.insert(QDir::cleanPath(Gallery.filePath(QLatin1String(common) + QLatin1String(ending))));
        }
    }
    const QString header = QString(source).replace(QLatin1String(".cpp"), QLatin1String(".h"));
    const QString text = Sources(Gallery.filePath(header), &seen) + Sources(Gallery.filePath(source), &seen);
    QVERIFY(!classes.isEmpty());
    for (const QString& name : classes) {
        if (Brought.contains(name)) {
            const QString maker = Brought.value(name);
            QVERIFY2(Uses(Read(Library.filePath(maker)), name), qPrintable(name));
            QVERIFY2(Uses(text, QFileInfo(maker).baseName()), qPrintable(name));
            continue;
        }
        QVERIFY2(Uses(text, name), qPrintable(name));
    }
}

void GalleryCompletenessTest::everyClassIsFoundByItsName_data()
{
    AddClasses();
}

void GalleryCompletenessTest::everyClassIsFoundByItsName()
{
    QFETCH(QString, name);
    bool found = false;
    for (const PageEntry& entry : GalleryPages()) {
        found = found || entry.Matches(name.toLower());
    }
    QVERIFY(found);
}

CUSTOMCONTROLS_TEST_MAIN(GalleryCompletenessTest)
#include "GalleryCompletenessTest.moc"
