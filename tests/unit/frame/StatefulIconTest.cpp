#include <CustomControls/StatefulIcon.h>

#include <tests/support/TestMain.h>

#include <QDataStream>
#include <QProcess>
#include <QTextStream>

#include <cstring>

namespace {

// A ratio is fixed when the application starts, so each is asked of a process of its own, which this argument makes.
constexpr char kResolve[] = "--resolve";

void MakePng(const QString& path, const QColor& color, int edge)
{
    QImage image(edge, edge, QImage::Format_ARGB32);
    image.fill(color);
    QVERIFY2(image.save(path, "PNG"), qPrintable(path));
}

QString AskAtRatio(const QString& ratio, const QString& path)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TEST_KEEP_SCALE"), QStringLiteral("1"));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), ratio);
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kResolve), path});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput()).trimmed();
}

QString ColorAt(const QIcon& icon, QIcon::Mode mode, QIcon::State state)
{
    const QImage image = icon.pixmap(16, 16, mode, state).toImage();
    return image.isNull() ? QString() : image.pixelColor(image.rect().center()).name();
}

} // namespace

class StatefulIconTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingFilesGiveAnIconWithoutPixmap();
    void entriesStandInOrderAndWearTheGivenSize();
    void disabledLooksLikeEnabled();
    void ratioPicksTheFile_data();
    void ratioPicksTheFile();
    void sizeDoesNotPickTheFile();
    void assignmentsReturnTheObjectItself();
};

void StatefulIconTest::missingFilesGiveAnIconWithoutPixmap()
{
    const QIcon icon = StatefulIcon::create(QStringLiteral(":/none/on.png"), QStringLiteral(":/none/off.png"), 16);
    QVERIFY(icon.pixmap(16, 16, QIcon::Normal, QIcon::On).isNull());
    QVERIFY(icon.pixmap(16, 16, QIcon::Disabled, QIcon::Off).isNull());
    QVERIFY(StatefulIcon::create(QString(), QString(), -1).pixmap(16, 16).isNull());
}

void StatefulIconTest::entriesStandInOrderAndWearTheGivenSize()
{
    QTemporaryDir folder;
    const QString on = folder.filePath(QStringLiteral("on.png"));
    const QString off = folder.filePath(QStringLiteral("off.png"));
    MakePng(on, Qt::red, 32);
    MakePng(off, Qt::blue, 32);

    // The stream form of an icon lists its entries one by one.
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << StatefulIcon::create(on, off, 24);
    QDataStream in(bytes);
    QString engine;
    qint32 count = 0;
    in >> engine >> count;
    QCOMPARE(engine, QStringLiteral("QPixmapIconEngine"));
    QCOMPARE(count, 4);
    const QList<std::tuple<QString, QIcon::Mode, QIcon::State>> expected = {
        {off, QIcon::Normal, QIcon::Off},
        {off, QIcon::Disabled, QIcon::Off},
        {on, QIcon::Normal, QIcon::On},
        {on, QIcon::Disabled, QIcon::On},
    };
    for (const auto& [path, mode, state] : expected) {
        QPixmap pixmap;
        QString file;
        QSize size;
        quint32 readMode = 0;
        quint32 readState = 0;
        in >> pixmap >> file >> size >> readMode >> readState;
        QCOMPARE(file, path);
        QCOMPARE(size, QSize(24, 24));
        QCOMPARE(int(readMode), int(mode));
        QCOMPARE(int(readState), int(state));
    }
}

void StatefulIconTest::disabledLooksLikeEnabled()
{
    QTemporaryDir folder;
    const QString on = folder.filePath(QStringLiteral("on.png"));
    const QString off = folder.filePath(QStringLiteral("off.png"));
    MakePng(on, Qt::red, 16);
    MakePng(off, Qt::blue, 16);
    const QIcon icon = StatefulIcon::create(on, off, 16);
    QCOMPARE(ColorAt(icon, QIcon::Normal, QIcon::On), QStringLiteral("#ff0000"));
    QCOMPARE(ColorAt(icon, QIcon::Disabled, QIcon::On), QStringLiteral("#ff0000"));
    QCOMPARE(ColorAt(icon, QIcon::Normal, QIcon::Off), QStringLiteral("#0000ff"));
    QCOMPARE(ColorAt(icon, QIcon::Disabled, QIcon::Off), QStringLiteral("#0000ff"));
}

void StatefulIconTest::ratioPicksTheFile_data()
{
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<QStringList>("files");
    QTest::addColumn<QString>("asked");
    QTest::addColumn<QString>("picked");

    const QString plain = QStringLiteral("a.png");
    const QString twin = QStringLiteral("a@2x.png");
    const QString triple = QStringLiteral("a@3x.png");
    const QStringList ratios = {QStringLiteral("1"),   QStringLiteral("1.09"), QStringLiteral("1.1"),
                                QStringLiteral("1.5"), QStringLiteral("2"),    QStringLiteral("2.1"),
                                QStringLiteral("2.5"), QStringLiteral("3")};
    for (const QString& ratio : ratios) {
        const bool wantsTwin = ratio.toDouble() >= 1.1;
        const bool wantsTriple = ratio.toDouble() >= 2.1;
        const auto row = [&](const char* name, const QStringList& files, const QString& picked) {
            QTest::addRow("%s: %s", qPrintable(ratio), name) << ratio << files << plain << picked;
        };
        row("all files", {plain, twin, triple}, wantsTriple ? triple : wantsTwin ? twin : plain);
        row("plain and @2x", {plain, twin}, wantsTwin ? twin : plain);
        row("plain and @3x", {plain, triple}, wantsTriple ? triple : plain);
        row("plain only", {plain}, plain);
        row("@2x only", {twin}, wantsTwin ? twin : plain);
        row("@3x only", {triple}, wantsTriple ? triple : plain);
        row("none", {}, plain);
    }
    QTest::newRow("last dot counts") << "2" << QStringList{"a.v1@2x.png"} << "a.v1.png"
                                     << "a.v1@2x.png";
    QTest::newRow("dot of the folder with dot in the name") << "2" << QStringList{"b.c/a@2x.png"} << "b.c/a.png"
                                                            << "b.c/a@2x.png";
    QTest::newRow("dot of the folder alone") << "2" << QStringList{"b.c/a", "b.c/a@2x"} << "b.c/a"
                                             << "b.c/a";
    QTest::newRow("no folder of that tag") << "3" << QStringList{"b@2x.c/a", "b.c/a"} << "b.c/a"
                                           << "b@2x.c/a";
}

void StatefulIconTest::ratioPicksTheFile()
{
    QFETCH(QString, ratio);
    QFETCH(QStringList, files);
    QFETCH(QString, asked);
    QFETCH(QString, picked);
    QTemporaryDir folder;
    for (const QString& file : files) {
        QVERIFY(QDir(folder.path()).mkpath(QFileInfo(file).path()));
        MakePng(folder.filePath(file), file.contains(QLatin1String("@")) ? Qt::green : Qt::red, 16);
    }
    QCOMPARE(AskAtRatio(ratio, folder.filePath(asked)), folder.filePath(picked));
}

void StatefulIconTest::sizeDoesNotPickTheFile()
{
    const QString path = QStringLiteral("/nowhere/a.png");
    QCOMPARE(StatefulIcon::resolveDpiAwarePath(path, 16), path);
    QCOMPARE(StatefulIcon::resolveDpiAwarePath(path, 0), path);
    QCOMPARE(StatefulIcon::resolveDpiAwarePath(QString(), 16), QString());
    QCOMPARE(StatefulIcon::resolveDpiAwarePath(QStringLiteral("plain"), 16), QStringLiteral("plain"));
}

void StatefulIconTest::assignmentsReturnTheObjectItself()
{
    StatefulIcon first;
    StatefulIcon second;
    QCOMPARE(&(first = second), &first);
    QCOMPARE(&(first = std::move(second)), &first);
}

int main(int argc, char* argv[])
{
    TestEnvironment::PrepareProcess();
    QApplication app(argc, argv);
    if (argc == 3 && std::strcmp(argv[1], kResolve) == 0) {
        QTextStream(stdout) << StatefulIcon::resolveDpiAwarePath(QString::fromLocal8Bit(argv[2]), 16) << '\n';
        return 0;
    }
    const TestEnvironment environment;
    StatefulIconTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "StatefulIconTest.moc"
