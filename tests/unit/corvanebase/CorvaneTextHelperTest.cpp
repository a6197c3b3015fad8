#include <CorvaneBase/CorvaneTextHelper.h>

#include <tests/support/LogCapture.h>
#include <tests/support/TestMain.h>

#include <QBitArray>
#include <QColor>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLineF>
#include <QLocale>
#include <QRect>
#include <QSize>
#include <QTemporaryDir>
#include <QUrl>
#include <QUuid>

#include <cmath>
#include <memory>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#endif

class CorvaneTextHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void languageIsWhatWasSet();
    void plainNumbersAreRead_data();
    void plainNumbersAreRead();
    void whatIsNoNumberGivesZero_data();
    void whatIsNoNumberGivesZero();
    void theUsersOwnLocaleIsRead_data();
    void theUsersOwnLocaleIsRead();
    void missingSettingGivesTheDefault();
    void valuesComeBackWithTheirType_data();
    void valuesComeBackWithTheirType();
    void settingsHoldInTheNextRun();
    void groupsAreKeptApart();
    void invalidValueRemovesASetting();
    void missingFolderIsMade();
    void fileThatIsNoSettingsFileIsKeptAside_data();
    void fileThatIsNoSettingsFileIsKeptAside();
    void hugeFileIsNotRead();
    void foreignEntriesAreIgnored();
    void valueOfAnotherTypeHoldsForTheRunOnly();
    void damagedValueIsNoValue_data();
    void damagedValueIsNoValue();
    void valueHoldsForTheRunWhereItCannotBeWritten_data();
    void valueHoldsForTheRunWhereItCannotBeWritten();
    void oldFileStaysWhereTheNewOneCannotBeWritten();
    void emptyPathRestoresTheDefaultFile();

private:
    static CorvaneTextHelper* Helper() { return CorvaneTextHelper::instance(); }
    QString Path() const { return m_folder->filePath(QStringLiteral("settings.json")); }
    static QVariant Get(const QString& key, const QVariant& fallback = {})
    {
        return Helper()->GetLocalSettingCache(SettingTypeNotice, key, fallback);
    }
    static void Set(const QString& key, const QVariant& value)
    {
        Helper()->SetLocalSettingCache(SettingTypeNotice, key, value, false);
    }
    static void Write(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(content), content.size());
    }
    static QByteArray Read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void CorvaneTextHelperTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    Helper()->SetSettingsFile(Path());
}

void CorvaneTextHelperTest::languageIsWhatWasSet()
{
    Helper()->SetAppInChineseEnvironment(false);
    QVERIFY(!Helper()->AppInChineseEnvironment());
    Helper()->SetAppInChineseEnvironment(true);
    QVERIFY(Helper()->AppInChineseEnvironment());
}

void CorvaneTextHelperTest::plainNumbersAreRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("expected");
    QTest::newRow("whole") << "12" << 12.0;
    QTest::newRow("fraction") << "3.175" << 3.175;
    QTest::newRow("negative") << "-0.5" << -0.5;
    QTest::newRow("plus") << "+2" << 2.0;
    QTest::newRow("exponent") << "1.5e3" << 1500.0;
    QTest::newRow("no leading digit") << ".5" << 0.5;
    QTest::newRow("no trailing digit") << "5." << 5.0;
    QTest::newRow("blanks around") << "  7.25\t\n" << 7.25;
    QTest::newRow("wide blanks around") << QStringLiteral("\u30008\u00a0") << 8.0;
    QTest::newRow("many digits") << QString(300, QLatin1Char('0')) + QStringLiteral("1") << 1.0;
}

void CorvaneTextHelperTest::plainNumbersAreRead()
{
    QFETCH(QString, text);
    QTEST(Helper()->SafeStringToDouble(text), "expected");
}

void CorvaneTextHelperTest::whatIsNoNumberGivesZero_data()
{
    QTest::addColumn<QString>("text");
    const QStringList texts = {"",    " ",    "abc",   "1.2.3",  "1 2",    "12mm", "--1", "1e",     "0x10", "nan",
                               "inf", "-inf", "1e999", "-1e999", "1e-999", "1,5",  ",",   "1,,000", "１２"};
    for (const QString& text : texts) {
        QTest::newRow(qPrintable(QStringLiteral("\"%1\"").arg(text))) << text;
    }
    QTest::newRow("null") << QString();
    QTest::newRow("a zero byte") << QString(1, QChar(0));
}

void CorvaneTextHelperTest::whatIsNoNumberGivesZero()
{
    QFETCH(QString, text);
    QCOMPARE(Helper()->SafeStringToDouble(text), 0.0);
}

void CorvaneTextHelperTest::theUsersOwnLocaleIsRead_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("expected");
    const QLocale german(QLocale::German, QLocale::Germany);
    const QLocale english(QLocale::English, QLocale::UnitedStates);
    const QLocale chinese(QLocale::Chinese, QLocale::China);
    QTest::newRow("German comma") << german << "1,5" << 1.5;
    QTest::newRow("German point") << german << "1.5" << 1.5;
    QTest::newRow("German thousands") << german << "1.234,5" << 1234.5;
    QTest::newRow("a point alone is a decimal point") << german << "1.234" << 1.234;
    QTest::newRow("English thousands") << english << "1,234.5" << 1234.5;
    QTest::newRow("English comma misplaced") << english << "1,5" << 0.0;
    QTest::newRow("Chinese thousands") << chinese << "12,345" << 12345.0;
}

void CorvaneTextHelperTest::theUsersOwnLocaleIsRead()
{
    QFETCH(QLocale, locale);
    QFETCH(QString, text);
    QLocale::setDefault(locale);
    const double number = Helper()->SafeStringToDouble(text);
    QLocale::setDefault(QLocale::c());
    QTEST(number, "expected");
}

void CorvaneTextHelperTest::missingSettingGivesTheDefault()
{
    QVERIFY(!Get("none").isValid());
    QCOMPARE(Get("none", 7), QVariant(7));
    QVERIFY(!QFile::exists(Path())); // reading writes nothing
}

void CorvaneTextHelperTest::valuesComeBackWithTheirType_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("true") << QVariant(true);
    QTest::newRow("false") << QVariant(false);
    QTest::newRow("int") << QVariant(42);
    QTest::newRow("smallest int") << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("long") << QVariant(std::numeric_limits<qlonglong>::max());
    QTest::newRow("small long") << QVariant(qlonglong(1));
    QTest::newRow("double") << QVariant(0.1);
    QTest::newRow("whole double") << QVariant(3.0);
    QTest::newRow("large double") << QVariant(1.7976931348623157e308);
    QTest::newRow("infinite double") << QVariant(std::numeric_limits<double>::infinity());
    QTest::newRow("string") << QVariant(QStringLiteral("磁盘 \"\\\n"));
    QTest::newRow("empty string") << QVariant(QString(""));
    QTest::newRow("string of digits") << QVariant(QStringLiteral("12"));
    QTest::newRow("strings") << QVariant(QStringList({"a", "b"}));
    QTest::newRow("list") << QVariant(QVariantList({1, 2.0, true, "x", QVariantList{3}}));
    QTest::newRow("map") << QVariant(QVariantMap({{"double", 1}, {"b", QSize(1, 2)}}));
    QTest::newRow("hash") << QVariant(QVariantHash({{"map", 1}, {"b", 2.0}}));
    QTest::newRow("bytes") << QVariant(QByteArray("\x00\xff", 2));
    QTest::newRow("float") << QVariant(0.1F);
    QTest::newRow("unsigned") << QVariant(std::numeric_limits<uint>::max());
    QTest::newRow("letter") << QVariant(QChar(0x78C1));
    QTest::newRow("date") << QVariant(QDate(2024, 2, 29));
    QTest::newRow("time") << QVariant(QTime(23, 59, 59, 999));
    QTest::newRow("moment") << QVariant(QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9), Qt::UTC));
    QTest::newRow("url") << QVariant(QUrl(QStringLiteral("http://host/a?b#c")));
    QTest::newRow("locale") << QVariant(QLocale(QLocale::Chinese));
    QTest::newRow("uuid") << QVariant(QUuid::createUuidV5(QUuid(), QStringLiteral("machine")));
    QTest::newRow("point") << QVariant(QPointF(0.1, -2));
    QTest::newRow("size") << QVariant(QSize(3, 4));
    QTest::newRow("rectangle") << QVariant(QRect(1, 2, 3, 4));
    QTest::newRow("line") << QVariant(QLineF(0, 0.5, 1, 2));
    QTest::newRow("colour") << QVariant(QColor(1, 2, 3, 4));
}

void CorvaneTextHelperTest::valuesComeBackWithTheirType()
{
    QFETCH(QVariant, value);
    Set("key", value);
    QCOMPARE(Get("key"), value);
    Helper()->SetSettingsFile(Path()); // read anew
    QCOMPARE(Get("key"), value);
    QCOMPARE(Get("key").typeId(), value.typeId());
}

void CorvaneTextHelperTest::settingsHoldInTheNextRun()
{
    Set("a", 1);
    Set("b", true);
    Set("a", 2);
    Helper()->SetSettingsFile(m_folder->filePath(QStringLiteral("other.json")));
    QVERIFY(!Get("a").isValid());
    Helper()->SetSettingsFile(Path());
    QCOMPARE(Get("a"), QVariant(2));
    QCOMPARE(Get("b"), QVariant(true));
    QVERIFY(QJsonDocument::fromJson(Read(Path())).isObject());
}

void CorvaneTextHelperTest::groupsAreKeptApart()
{
    Helper()->SetLocalSettingCache(SettingTypeGeneral, "key", 1, false);
    Helper()->SetLocalSettingCache(SettingTypeNotice, "key", 2, true);
    Helper()->SetLocalSettingCache(SettingType(99), "key", 3, false);
    Helper()->SetSettingsFile(Path());
    QCOMPARE(Helper()->GetLocalSettingCache(SettingTypeGeneral, "key", {}), QVariant(1));
    QCOMPARE(Helper()->GetLocalSettingCache(SettingTypeNotice, "key", {}), QVariant(2));
    QCOMPARE(Helper()->GetLocalSettingCache(SettingType(99), "key", {}), QVariant(3));
}

void CorvaneTextHelperTest::invalidValueRemovesASetting()
{
    Set("key", 1);
    Set("key", QVariant());
    QCOMPARE(Get("key", "default"), QVariant("default"));
    Helper()->SetSettingsFile(Path());
    QCOMPARE(Get("key", "default"), QVariant("default"));
}

void CorvaneTextHelperTest::missingFolderIsMade()
{
    const QString path = m_folder->filePath(QStringLiteral("x/y/s.json"));
    Helper()->SetSettingsFile(path);
    Set("key", true);
    QVERIFY(QFile::exists(path));
}

void CorvaneTextHelperTest::fileThatIsNoSettingsFileIsKeptAside_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("cut off") << QByteArray("{\"1\":{\"key\":tr");
    QTest::newRow("an array") << QByteArray("[1]");
    QTest::newRow("bytes") << QByteArray("\x00\xff\xfe", 3);
    QTest::newRow("deep") << QByteArray(100000, '[');
}

void CorvaneTextHelperTest::fileThatIsNoSettingsFileIsKeptAside()
{
    QFETCH(QByteArray, content);
    Write(Path(), content);
    LogCapture log;
    QCOMPARE(Get("key", 5), QVariant(5));
    QCOMPARE(Get("key", 5), QVariant(5));
    QCOMPARE(log.Lines().size(), 1);
    QCOMPARE(Read(Path()), content); // reading harms nothing
    Set("key", 6);
    QCOMPARE(Read(Path() + QStringLiteral(".bad")), content);
    Helper()->SetSettingsFile(Path());
    QCOMPARE(Get("key"), QVariant(6));
}

void CorvaneTextHelperTest::hugeFileIsNotRead()
{
    QFile file(Path());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"1\":{\"key\":1}}");
    QVERIFY(file.resize(qint64(3) * 1024 * 1024 * 1024)); // takes no room on the disk
    file.close();
    QCOMPARE(Get("key", 5), QVariant(5));
}

void CorvaneTextHelperTest::foreignEntriesAreIgnored()
{
    Write(Path(), R"({"1":{"ok":7,"null":null,"foreign":{"x":1},"broken":{"variant":"AAAA"}},
                      "x":{"ok":8},"0":[1]})");
    QCOMPARE(Get("ok"), QVariant(7));
    for (const char* key : {"null", "foreign", "broken"}) {
        QCOMPARE(Get(QLatin1String(key), "default"), QVariant("default"));
    }
}

void CorvaneTextHelperTest::valueOfAnotherTypeHoldsForTheRunOnly()
{
    const QVariant bits = QVariant::fromValue(QBitArray(9, true));
    LogCapture log;
    Set("bits", bits);
    Set("map", QVariantMap({{"a", 1}, {"b", bits}}));
    QCOMPARE(Get("bits"), bits);
    QVERIFY(log.Lines().contains(QStringLiteral("CorvaneTextHelper: no setting can be a QBitArray")));
    Helper()->SetSettingsFile(Path());
    QCOMPARE(Get("bits", "default"), QVariant("default"));
    QCOMPARE(Get("map"), QVariant(QVariantMap({{"a", 1}})));
}

void CorvaneTextHelperTest::damagedValueIsNoValue_data()
{
    // Each as the toolkit would write it: the type, whether it is null, the number of entries, what is there of them.
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("list of all numbers") << QByteArray::fromHex("00000009007fffffff0000000200");
    QTest::newRow("list that the machine could hold") << QByteArray::fromHex("000000090027ba5965");
    QTest::newRow("strings") << QByteArray::fromHex("0000000b0027ba5965");
    QTest::newRow("polygon") << QByteArray::fromHex("000010070027ba5965");
    QTest::newRow("bytes") << QByteArray::fromHex("0000000c007fffffff616263");
    QTest::newRow("bits") << QByteArray::fromHex("0000000d00de724fff");
    QTest::newRow("moment") << QByteArray::fromHex("000000100000000c01000036db6d80036db6db4d00000000004000");
    QTest::newRow("lists in lists") << QByteArray::fromHex("000000090000000001").repeated(200000);
    QTest::newRow("pairs in pairs") << QByteArray::fromHex("0000003a00").repeated(200000);
}

void CorvaneTextHelperTest::damagedValueIsNoValue()
{
    QFETCH(QByteArray, bytes);
    Write(Path(), "{\"1\":{\"bad\":{\"variant\":\"" + bytes.toBase64() + "\"},\"ok\":7}}");
    QCOMPARE(Get("bad", "default"), QVariant("default"));
    QCOMPARE(Get("ok"), QVariant(7));
}

void CorvaneTextHelperTest::valueHoldsForTheRunWhereItCannotBeWritten_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("a folder") << QStringLiteral("folder");
    QTest::newRow("below a file") << QStringLiteral("file/below.json");
}

void CorvaneTextHelperTest::valueHoldsForTheRunWhereItCannotBeWritten()
{
    QFETCH(QString, name);
    QVERIFY(QDir(m_folder->path()).mkdir(QStringLiteral("folder")));
    Write(m_folder->filePath(QStringLiteral("file")), "x");
    Helper()->SetSettingsFile(m_folder->filePath(name));
    LogCapture log;
    Set("key", 6);
    QCOMPARE(Get("key"), QVariant(6));
    QCOMPARE(log.Lines().size(), 1);
    QVERIFY(QFileInfo(m_folder->filePath(QStringLiteral("folder"))).isDir());
    QCOMPARE(Read(m_folder->filePath(QStringLiteral("file"))), QByteArray("x"));
}

void CorvaneTextHelperTest::oldFileStaysWhereTheNewOneCannotBeWritten()
{
    Set("key", 1);
    const QByteArray old = Read(Path());
#ifdef Q_OS_UNIX
    // As on a full disk, whoever the user is: no file may grow.
    const auto former = signal(SIGXFSZ, SIG_IGN);
    rlimit limit = {};
    QCOMPARE(getrlimit(RLIMIT_FSIZE, &limit), 0);
    const rlimit nothing = {0, limit.rlim_max};
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &nothing), 0);
    Set("key", 2);
    QCOMPARE(setrlimit(RLIMIT_FSIZE, &limit), 0);
    signal(SIGXFSZ, former);
    QCOMPARE(Read(Path()), old);
    QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files), QStringList("settings.json"));
    QCOMPARE(Get("key"), QVariant(2));
    Set("other", 3);
    Helper()->SetSettingsFile(Path());
    QCOMPARE(Get("key"), QVariant(2)); // written together with the next one
#else
    QSKIP("there is no way to fill the disk here");
#endif
}

void CorvaneTextHelperTest::emptyPathRestoresTheDefaultFile()
{
    Helper()->SetSettingsFile(QString());
    const QString path = QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + "/CorvaneBase.json";
    QFile::remove(path);
    Set("key", 3);
    QVERIFY(QFile::exists(path));
    QFile::remove(path);
}

CUSTOMCONTROLS_TEST_MAIN(CorvaneTextHelperTest)
#include "CorvaneTextHelperTest.moc"
