#include <CorvaneBase/CDebugLog.h>

#include <tests/support/LogCapture.h>
#include <tests/support/TestMain.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <memory>
#include <vector>

class CDebugLogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void lineStandsBehindItsTimeInUtf8();
    void linesAreInTheFileWhenTheCallReturns();
    void lineFeedsAndEmptyLinesAreWrittenAsTheyStand();
    void missingFolderIsMade();
    void anotherFileTakesOverFromTheNextLine();
    void emptyPathRestoresTheDefault();
    void relativePathHoldsWhenTheCurrentFolderChanges();
    void vanishedFileIsMadeAnew();
    void vanishedFolderIsMadeAnew();
    void replacedFileIsTheOneWrittenTo();
    void fullFileIsRotatedOnce();
    void lineLargerThanTheLimitIsWrittenWhole();
    void fileThatCannotBeRotatedGoesOnGrowing();
    void unusablePathLosesLinesSilently_data();
    void unusablePathLosesLinesSilently();
    void listenerSeesRawLines();
    void listenerHearsEvenWhenNothingCanBeWritten();
    void listenerMayLog();
    void listenerMayRemoveItself();
    void removedListenerHearsNothing();
    void threadsNeverMixTheirLines();
    void listenerIsToldOneLineAtATime();

private:
    QString Path(const QString& name = QStringLiteral("a.log")) const { return m_folder->filePath(name); }
    static QByteArray Content(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static QStringList Texts(const QString& path)
    {
        QStringList texts;
        const QStringList lines = QString::fromUtf8(Content(path)).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
        for (const QString& line : lines) {
            texts.append(line.section(QLatin1Char(' '), 1));
        }
        return texts;
    }
    static void Fill(const QString& path, qint64 size)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(size));
    }

    static constexpr qint64 kLimit = 5 * 1024 * 1024;
    std::unique_ptr<QTemporaryDir> m_folder;
};

void CDebugLogTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    CDebugLog::SetLogFile(Path());
}

void CDebugLogTest::cleanup()
{
    CDebugLog::SetListener({});
    CDebugLog::SetLogFile(QString());
}

void CDebugLogTest::lineStandsBehindItsTimeInUtf8()
{
    const QDateTime before = QDateTime::currentDateTime();
    CDebugLog::AddLog(QStringLiteral("尝试连接机床 usbIP=1"));
    const QDateTime after = QDateTime::currentDateTime();
    const QByteArray content = Content(Path());
    QVERIFY(content.endsWith(" \xe5\xb0\x9d\xe8\xaf\x95\xe8\xbf\x9e\xe6\x8e\xa5\xe6\x9c\xba\xe5\xba\x8a usbIP=1\n"));
    const QDateTime time =
        QDateTime::fromString(QString::fromUtf8(content).section(QLatin1Char(' '), 0, 0), Qt::ISODateWithMs);
    QVERIFY(time.isValid());
    QVERIFY(time.timeSpec() != Qt::LocalTime); // the offset is part of it
    QVERIFY(time >= before && time <= after);
}

void CDebugLogTest::linesAreInTheFileWhenTheCallReturns()
{
    for (int i = 0; i < 3; ++i) {
        CDebugLog::AddLog(QString::number(i));
        QCOMPARE(Texts(Path()).size(), i + 1);
    }
    QCOMPARE(Texts(Path()), QStringList({"0", "1", "2"}));
}

void CDebugLogTest::lineFeedsAndEmptyLinesAreWrittenAsTheyStand()
{
    CDebugLog::AddLog(QStringLiteral("a\nb"));
    CDebugLog::AddLog(QString());
    const QByteArray content = Content(Path());
    QVERIFY(content.contains(" a\nb\n"));
    QVERIFY(content.endsWith(" \n"));
}

void CDebugLogTest::missingFolderIsMade()
{
    const QString path = Path(QStringLiteral("x/y/z.log"));
    CDebugLog::SetLogFile(path);
    QCOMPARE(CDebugLog::LogFile(), path);
    CDebugLog::AddLog(QStringLiteral("deep"));
    QCOMPARE(Texts(path), QStringList("deep"));
}

void CDebugLogTest::anotherFileTakesOverFromTheNextLine()
{
    CDebugLog::AddLog(QStringLiteral("one"));
    CDebugLog::SetLogFile(Path(QStringLiteral("b.log")));
    QVERIFY(!QFile::exists(Path(QStringLiteral("b.log"))));
    CDebugLog::AddLog(QStringLiteral("two"));
    CDebugLog::SetLogFile(Path());
    CDebugLog::AddLog(QStringLiteral("three"));
    QCOMPARE(Texts(Path()), QStringList({"one", "three"}));
    QCOMPARE(Texts(Path(QStringLiteral("b.log"))), QStringList("two"));
}

void CDebugLogTest::emptyPathRestoresTheDefault()
{
    CDebugLog::SetLogFile(QString());
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QCOMPARE(CDebugLog::LogFile(), folder + QStringLiteral("/log/CorvaneBase.log"));
}

void CDebugLogTest::relativePathHoldsWhenTheCurrentFolderChanges()
{
    const QString old = QDir::currentPath();
    QVERIFY(QDir::setCurrent(m_folder->path()));
    CDebugLog::SetLogFile(QStringLiteral("relative.log"));
    QVERIFY(QDir::setCurrent(old));
    CDebugLog::AddLog(QStringLiteral("here"));
    QCOMPARE(Texts(Path(QStringLiteral("relative.log"))), QStringList("here"));
}

void CDebugLogTest::vanishedFileIsMadeAnew()
{
#ifdef Q_OS_WIN
    QSKIP("Windows keeps an open file where it is");
#endif
    CDebugLog::AddLog(QStringLiteral("one"));
    QVERIFY(QFile::remove(Path()));
    CDebugLog::AddLog(QStringLiteral("two"));
    QCOMPARE(Texts(Path()), QStringList("two"));
}

void CDebugLogTest::vanishedFolderIsMadeAnew()
{
#ifdef Q_OS_WIN
    QSKIP("Windows keeps an open file where it is");
#endif
    const QString path = Path(QStringLiteral("gone/a.log"));
    CDebugLog::SetLogFile(path);
    CDebugLog::AddLog(QStringLiteral("one"));
    QVERIFY(QDir(Path(QStringLiteral("gone"))).removeRecursively());
    CDebugLog::AddLog(QStringLiteral("two"));
    QCOMPARE(Texts(path), QStringList("two"));
}

void CDebugLogTest::replacedFileIsTheOneWrittenTo()
{
#ifdef Q_OS_WIN
    QSKIP("Windows keeps an open file where it is");
#endif
    CDebugLog::AddLog(QStringLiteral("one"));
    QVERIFY(QFile::rename(Path(), Path(QStringLiteral("moved"))));
    QFile other(Path());
    QVERIFY(other.open(QIODevice::WriteOnly));
    other.write("- other\n");
    other.close();
    CDebugLog::AddLog(QStringLiteral("two"));
    QCOMPARE(Texts(Path()), QStringList({"other", "two"}));
    QCOMPARE(Texts(Path(QStringLiteral("moved"))), QStringList("one"));
}

void CDebugLogTest::fullFileIsRotatedOnce()
{
    const QString older = Path() + QStringLiteral(".1");
    Fill(older, 7); // the one before it is given up
    Fill(Path(), kLimit - 10);
    CDebugLog::AddLog(QStringLiteral("first of the new file"));
    CDebugLog::AddLog(QStringLiteral("second"));
    QCOMPARE(QFileInfo(older).size(), kLimit - 10);
    QCOMPARE(Texts(Path()), QStringList({"first of the new file", "second"}));

    const QString line(1000, QLatin1Char('x'));
    for (int i = 0; i < 6000; ++i) {
        CDebugLog::AddLog(line);
    }
    QVERIFY(QFileInfo(older).size() <= kLimit);
    QVERIFY(QFileInfo(older).size() > kLimit - 1100);
    QVERIFY(QFileInfo(Path()).size() < 1100 * 1000);
    QVERIFY(Content(older).contains("first of the new file"));
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 2);
}

void CDebugLogTest::lineLargerThanTheLimitIsWrittenWhole()
{
    CDebugLog::AddLog(QStringLiteral("small"));
    CDebugLog::AddLog(QString(kLimit + 1, QLatin1Char('y')));
    QVERIFY(QFileInfo(Path()).size() > kLimit);
    QCOMPARE(Texts(Path() + QStringLiteral(".1")), QStringList("small"));
    CDebugLog::AddLog(QStringLiteral("next"));
    QCOMPARE(Texts(Path()), QStringList("next"));
}

void CDebugLogTest::fileThatCannotBeRotatedGoesOnGrowing()
{
    QVERIFY(QDir().mkpath(Path() + QStringLiteral(".1/full")));
    Fill(Path(), kLimit);
    CDebugLog::AddLog(QStringLiteral("one"));
    CDebugLog::AddLog(QStringLiteral("two"));
    QVERIFY(Content(Path()).endsWith(" two\n"));
    QVERIFY(QFileInfo(Path()).size() > kLimit);
}

void CDebugLogTest::unusablePathLosesLinesSilently_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("below a file") << QStringLiteral("file/below.log");
}

void CDebugLogTest::unusablePathLosesLinesSilently()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkpath(Path(QStringLiteral("folder"))));
    Fill(Path(QStringLiteral("file")), 1);
    CDebugLog::SetLogFile(Path(name));
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    CDebugLog::AddLog(QStringLiteral("lost"));
    QCOMPARE(QFileInfo(Path(QStringLiteral("file"))).size(), 1);
    QVERIFY(QDir(Path(QStringLiteral("folder"))).isEmpty());
}

void CDebugLogTest::listenerSeesRawLines()
{
    LogCapture capture;
    CDebugLog::AddLog(QStringLiteral("a"));
    CDebugLog::AddLog(QStringLiteral("b"));
    QCOMPARE(capture.Lines(), QStringList({"a", "b"}));
    QCOMPARE(Texts(Path()), QStringList({"a", "b"}));
}

void CDebugLogTest::listenerHearsEvenWhenNothingCanBeWritten()
{
    CDebugLog::SetLogFile(m_folder->path());
    LogCapture capture;
    CDebugLog::AddLog(QStringLiteral("a"));
    QCOMPARE(capture.Lines(), QStringList("a"));
}

void CDebugLogTest::listenerMayLog()
{
    QStringList heard;
    CDebugLog::SetListener([&heard](const QString& line) {
        heard.append(line);
        CDebugLog::AddLog(QStringLiteral("echo ") + line);
    });
    CDebugLog::AddLog(QStringLiteral("a"));
    CDebugLog::AddLog(QStringLiteral("b"));
    QCOMPARE(heard, QStringList({"a", "b"}));
    QCOMPARE(Texts(Path()), QStringList({"a", "echo a", "b", "echo b"}));
}

void CDebugLogTest::listenerMayRemoveItself()
{
    auto state = std::make_shared<QStringList>();
    CDebugLog::SetListener([state](const QString& line) {
        CDebugLog::SetListener({});
        state->append(line); // what it holds is still there
    });
    CDebugLog::AddLog(QStringLiteral("a"));
    CDebugLog::AddLog(QStringLiteral("b"));
    QCOMPARE(*state, QStringList("a"));
    QCOMPARE(state.use_count(), 1L);
}

void CDebugLogTest::removedListenerHearsNothing()
{
    int count = 0;
    CDebugLog::SetListener([&count](const QString&) { ++count; });
    CDebugLog::SetListener({});
    CDebugLog::AddLog(QStringLiteral("a"));
    QCOMPARE(count, 0);
}

void CDebugLogTest::threadsNeverMixTheirLines()
{
    constexpr int kThreads = 8;
    constexpr int kLines = 500;
    std::vector<std::unique_ptr<QThread>> threads;
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back(QThread::create([t] {
            for (int i = 0; i < kLines; ++i) {
                CDebugLog::AddLog(QStringLiteral("%1 %2 ").arg(t).arg(i) + QString(100, QLatin1Char('a' + t)));
            }
        }));
        threads.back()->start();
    }
    for (const auto& thread : threads) {
        QVERIFY(thread->wait());
    }
    QList<int> next(kThreads, 0);
    const QStringList texts = Texts(Path());
    QCOMPARE(texts.size(), kThreads * kLines);
    for (const QString& text : texts) {
        const QStringList parts = text.split(QLatin1Char(' '));
        const int thread = parts.at(0).toInt();
        QCOMPARE(parts.at(1).toInt(), next[thread]++);
        QCOMPARE(parts.at(2), QString(100, QLatin1Char('a' + thread)));
    }
}

void CDebugLogTest::listenerIsToldOneLineAtATime()
{
    int count = 0; // no lock of its own: calls never overlap
    CDebugLog::SetListener([&count](const QString&) { ++count; });
    std::vector<std::unique_ptr<QThread>> threads;
    for (int t = 0; t < 4; ++t) {
        threads.emplace_back(QThread::create([] {
            for (int i = 0; i < 500; ++i) {
                CDebugLog::AddLog(QStringLiteral("x"));
            }
        }));
        threads.back()->start();
    }
    for (const auto& thread : threads) {
        QVERIFY(thread->wait());
    }
    CDebugLog::SetListener({});
    QCOMPARE(count, 2000);
}

CUSTOMCONTROLS_TEST_MAIN(CDebugLogTest)
#include "CDebugLogTest.moc"
