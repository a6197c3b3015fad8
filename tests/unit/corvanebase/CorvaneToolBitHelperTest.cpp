#include <CorvaneBase/CorvaneToolBitHelper.h>
#include <CustomControls/CustomControlsTranslation.h>

#include <tests/support/TestMain.h>

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTranslator>

#include <memory>

namespace {

/** Turns every text of one context into the text behind "en:". */
class Echo : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool ours = qstrcmp(context, "CorvaneToolBitHelper") == 0;
        return ours ? QStringLiteral("en:") + QString::fromUtf8(source) : QString();
    }
    bool isEmpty() const override { return false; }
};

/** True when a text has Chinese characters, or the full-width signs between them. */
bool IsChinese(const QString& text)
{
    return text.contains(QRegularExpression(QStringLiteral("[\\p{Han}\\x{3000}-\\x{303F}\\x{FF00}-\\x{FFEF}]")));
}

} // namespace

class CorvaneToolBitHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { LoadCustomControlsTranslation(QLocale(QLocale::Chinese)); }
    void everyModelHasToolsOfKnownTypes_data();
    void everyModelHasToolsOfKnownTypes();
    void typesHaveTheirNames_data();
    void typesHaveTheirNames();
    void typeNamesAreTranslated();
    void typesHaveEnglishNamesForAnEnglishHost();
    void unknownToolGivesNothing_data();
    void unknownToolGivesNothing();
    void setToolsReplacesOneModel();
    void lastOfTwoToolsWithOneNumberHolds();
    void fileReplacesTheModelsThatItNames();
    void fileMayNameTypes();
    void lastOfTwoToolsInAFileHolds();
    void emptyMagazineIsAllowed();
    void badFileChangesNothingAndSaysWhy_data();
    void badFileChangesNothingAndSaysWhy();
    void badFileTellsAnEnglishHostInEnglish_data() { badFileChangesNothingAndSaysWhy_data(); }
    void badFileTellsAnEnglishHostInEnglish();
    void unreadableFileSaysWhy_data();
    void unreadableFileSaysWhy();
    void fileAboveTheLimitIsRefused();
    void reasonMayBeLeftOut();
    void manyToolsAreFoundAsFastAsFew();

private:
    bool Load(const QByteArray& content)
    {
        QFile file(m_folder->filePath(QStringLiteral("tools.json")));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size() && file.flush() &&
               m_helper->LoadTools(file.fileName(), &m_error);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<CorvaneToolBitHelper> m_helper; // one of its own for each test
    QString m_error;
};

void CorvaneToolBitHelperTest::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_helper.reset(new CorvaneToolBitHelper);
    m_error = QStringLiteral("untouched");
}

void CorvaneToolBitHelperTest::everyModelHasToolsOfKnownTypes_data()
{
    QTest::addColumn<ModelType>("model");
    QTest::newRow("standard") << ModelTypeStandard;
    QTest::newRow("compact") << ModelTypeCompact;
    QTest::newRow("scanner") << ModelTypeScanner;
}

void CorvaneToolBitHelperTest::everyModelHasToolsOfKnownTypes()
{
    QFETCH(ModelType, model);
    QSet<int> locations;
    int number = 1;
    for (; m_helper->GetIntegerToolTypeByNumber(number, model) >= 0; ++number) {
        QVERIFY(!m_helper->GetToolNameByType(m_helper->GetIntegerToolTypeByNumber(number, model)).isEmpty());
        QVERIFY(!m_helper->GetToolDetailByNumber(number, model).isEmpty());
        locations.insert(m_helper->GetToolLocationByToolNo(number, model));
    }
    QVERIFY(number > 4);
    QCOMPARE(locations.size(), number - 1); // no two tools share a place
    QVERIFY(*std::min_element(locations.begin(), locations.end()) >= 1);
    QVERIFY(CorvaneToolBitHelper::instance()->GetIntegerToolTypeByNumber(1, model) >= 0);
}

void CorvaneToolBitHelperTest::typesHaveTheirNames_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("name");
    const QStringList names = {"铰刀",         "立铣刀",   "避空立铣刀", "球头铣刀",
                               "避空球头铣刀", "圆鼻铣刀", "锥刀",       "锥度球头铣刀"};
    for (int type = 0; type < names.size(); ++type) {
        QTest::addRow("%d", type) << type << names.at(type);
    }
    QTest::newRow("above") << 8 << QString();
    QTest::newRow("below") << -1 << QString();
}

void CorvaneToolBitHelperTest::typesHaveTheirNames()
{
    QFETCH(int, type);
    QTEST(m_helper->GetToolNameByType(type), "name");
}

void CorvaneToolBitHelperTest::typeNamesAreTranslated()
{
    Echo echo;
    QVERIFY(QCoreApplication::installTranslator(&echo));
    QCOMPARE(m_helper->GetToolNameByType(3), QStringLiteral("en:球头铣刀"));
    QCoreApplication::removeTranslator(&echo);
    QCOMPARE(m_helper->GetToolNameByType(3), QStringLiteral("球头铣刀"));
}

void CorvaneToolBitHelperTest::typesHaveEnglishNamesForAnEnglishHost()
{
    QVERIFY(LoadCustomControlsTranslation(QLocale(QLocale::English)));
    QCOMPARE(m_helper->GetToolNameByType(1), QStringLiteral("End mill"));
    for (int type = 0; type < 8; ++type) {
        const QString name = m_helper->GetToolNameByType(type);
        QVERIFY2(!name.isEmpty() && !IsChinese(name), qPrintable(name));
    }
}

void CorvaneToolBitHelperTest::unknownToolGivesNothing_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("model");
    QTest::newRow("number") << 5000 << int(ModelTypeStandard);
    QTest::newRow("negative number") << -1 << int(ModelTypeStandard);
    QTest::newRow("model") << 1 << 77;
}

void CorvaneToolBitHelperTest::unknownToolGivesNothing()
{
    QFETCH(int, number);
    QFETCH(int, model);
    QCOMPARE(m_helper->GetIntegerToolTypeByNumber(number, ModelType(model)), -1);
    QCOMPARE(m_helper->GetToolDetailByNumber(number, ModelType(model)), QString());
    QCOMPARE(m_helper->GetToolLocationByToolNo(number, ModelType(model)), -1);
}

void CorvaneToolBitHelperTest::setToolsReplacesOneModel()
{
    const QString other = m_helper->GetToolDetailByNumber(1, ModelTypeCompact);
    m_helper->SetTools(ModelTypeStandard, {{7, 3, QStringLiteral("R9"), 12}});
    QCOMPARE(m_helper->GetIntegerToolTypeByNumber(7, ModelTypeStandard), 3);
    QCOMPARE(m_helper->GetToolDetailByNumber(7, ModelTypeStandard), QStringLiteral("R9"));
    QCOMPARE(m_helper->GetToolLocationByToolNo(7, ModelTypeStandard), 12);
    QCOMPARE(m_helper->GetIntegerToolTypeByNumber(1, ModelTypeStandard), -1);
    QCOMPARE(m_helper->GetToolDetailByNumber(1, ModelTypeCompact), other);
    m_helper->SetTools(ModelTypeStandard, {});
    QCOMPARE(m_helper->GetIntegerToolTypeByNumber(7, ModelTypeStandard), -1);
}

void CorvaneToolBitHelperTest::lastOfTwoToolsWithOneNumberHolds()
{
    m_helper->SetTools(ModelTypeScanner, {{1, 1, QStringLiteral("a"), 1}, {1, 2, QStringLiteral("b"), 2}});
    QCOMPARE(m_helper->GetToolDetailByNumber(1, ModelTypeScanner), QStringLiteral("b"));
}

void CorvaneToolBitHelperTest::fileReplacesTheModelsThatItNames()
{
    QVERIFY(Load(R"({"models":{"1":[{"number":0,"type":7,"detail":"R0.25 锥度","location":999,"note":"x"},
                                     {"number":9999,"type":0,"detail":"","location":1.0}]}})"));
    QCOMPARE(m_error, QString());
    QCOMPARE(m_helper->GetIntegerToolTypeByNumber(0, ModelTypeCompact), 7);
    QCOMPARE(m_helper->GetToolDetailByNumber(0, ModelTypeCompact), QStringLiteral("R0.25 锥度"));
    QCOMPARE(m_helper->GetToolLocationByToolNo(0, ModelTypeCompact), 999);
    QCOMPARE(m_helper->GetIntegerToolTypeByNumber(9999, ModelTypeCompact), 0);
    QCOMPARE(m_helper->GetIntegerToolTypeByNumber(1, ModelTypeCompact), -1);
    QVERIFY(m_helper->GetIntegerToolTypeByNumber(1, ModelTypeStandard) >= 0); // not named, not touched
}

void CorvaneToolBitHelperTest::fileMayNameTypes()
{
    QVERIFY(Load(R"({"types":{"8":"倒角刀","1":"平刀"},
                     "models":{"0":[{"number":1,"type":8,"detail":"D6","location":1}]}})"));
    QCOMPARE(m_helper->GetToolNameByType(8), QStringLiteral("倒角刀"));
    QCOMPARE(m_helper->GetToolNameByType(1), QStringLiteral("平刀"));
    QCOMPARE(m_helper->GetToolNameByType(2), QStringLiteral("避空立铣刀"));
    QCOMPARE(m_helper->GetIntegerToolTypeByNumber(1, ModelTypeStandard), 8);
}

void CorvaneToolBitHelperTest::lastOfTwoToolsInAFileHolds()
{
    QVERIFY(Load(R"({"models":{"0":[{"number":1,"type":1,"detail":"a","location":1},
                                     {"number":1,"type":3,"detail":"b","location":2}]}})"));
    QCOMPARE(m_helper->GetIntegerToolTypeByNumber(1, ModelTypeStandard), 3);
}

void CorvaneToolBitHelperTest::emptyMagazineIsAllowed()
{
    QVERIFY(Load(R"({"models":{"0":[]}})"));
    QCOMPARE(m_helper->GetIntegerToolTypeByNumber(1, ModelTypeStandard), -1);
}

void CorvaneToolBitHelperTest::badFileChangesNothingAndSaysWhy_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const auto tool = [](const char* number, const char* type, const char* detail, const char* location) {
        return QStringLiteral(R"({"types":{"9":"x"},"models":{"0":[{"number":1,"type":1,"detail":"","location":1},
                                 {"number":%1,"type":%2,"detail":%3,"location":%4}]}})")
            .arg(QLatin1String(number), QLatin1String(type), QLatin1String(detail), QLatin1String(location))
            .toUtf8();
    };
    QTest::newRow("empty") << QByteArray() << "JSON";
    QTest::newRow("cut off") << QByteArray("{\"models\":{\"0\":[") << "JSON";
    QTest::newRow("bytes") << QByteArray("\xff\x00\xfe", 3) << "JSON";
    QTest::newRow("deep") << QByteArray(200000, '[') << "JSON";
    QTest::newRow("an array") << QByteArray("[]") << "models";
    QTest::newRow("no models") << QByteArray("{}") << "models";
    QTest::newRow("models no object") << QByteArray(R"({"models":[]})") << "models";
    QTest::newRow("types no object") << QByteArray(R"({"models":{},"types":[]})") << "types";
    QTest::newRow("types null") << QByteArray(R"({"models":{},"types":null})") << "types";
    QTest::newRow("type key no number") << QByteArray(R"({"models":{},"types":{"a":"x"}})") << "“a”";
    QTest::newRow("type key negative") << QByteArray(R"({"models":{},"types":{"-1":"x"}})") << "“-1”";
    QTest::newRow("type key too large") << QByteArray(R"({"models":{},"types":{"1000":"x"}})") << "“1000”";
    QTest::newRow("type name empty") << QByteArray(R"({"models":{},"types":{"9":""}})") << "“9”";
    QTest::newRow("type name no text") << QByteArray(R"({"models":{},"types":{"9":9}})") << "“9”";
    QTest::newRow("type name too long") << QByteArray(R"({"models":{},"types":{"9":")") + QByteArray(201, 'x') + "\"}}"
                                        << "“9”";
    QTest::newRow("model key no number") << QByteArray(R"({"models":{"std":[]}})") << "“std”";
    QTest::newRow("model key too large") << QByteArray(R"({"models":{"99999999999":[]}})") << "99999999999";
    QTest::newRow("model no array") << QByteArray(R"({"models":{"0":{}}})") << "“0”";
    QTest::newRow("tool no object") << QByteArray(R"({"models":{"0":[1]}})") << "机型 0 的第 1 把刀具";
    QTest::newRow("fields missing") << QByteArray(R"({"models":{"0":[{}]}})") << "number";
    QTest::newRow("number as text") << tool("\"2\"", "1", "\"\"", "1") << "第 2 把刀具：“number”";
    QTest::newRow("number negative") << tool("-1", "1", "\"\"", "1") << "number";
    QTest::newRow("number too large") << tool("10000", "1", "\"\"", "1") << "number";
    QTest::newRow("number beyond int") << tool("1e300", "1", "\"\"", "1") << "number";
    QTest::newRow("number no whole one") << tool("1.5", "1", "\"\"", "1") << "number";
    QTest::newRow("type negative") << tool("2", "-1", "\"\"", "1") << "type";
    QTest::newRow("type too large") << tool("2", "1000", "\"\"", "1") << "type";
    QTest::newRow("type as bool") << tool("2", "true", "\"\"", "1") << "type";
    QTest::newRow("type without a name") << tool("2", "8", "\"\"", "1") << "类型 8";
    QTest::newRow("location zero") << tool("2", "9", "\"\"", "0") << "location";
    QTest::newRow("location too large") << tool("2", "9", "\"\"", "1000") << "location";
    QTest::newRow("location null") << tool("2", "9", "\"\"", "null") << "location";
    QTest::newRow("detail no text") << tool("2", "9", "4", "1") << "detail";
    QTest::newRow("detail too long") << tool("2", "9", ('"' + QByteArray(201, 'x') + '"').constData(), "1") << "detail";
}

void CorvaneToolBitHelperTest::badFileChangesNothingAndSaysWhy()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    const QString detail = m_helper->GetToolDetailByNumber(1, ModelTypeStandard);
    QVERIFY(!Load(content));
    QVERIFY2(m_error.contains(reason), qPrintable(m_error));
    QVERIFY2(m_error.startsWith(QStringLiteral("刀具文件 tools.json：")), qPrintable(m_error));
    QCOMPARE(m_helper->GetToolDetailByNumber(1, ModelTypeStandard), detail);
    QCOMPARE(m_helper->GetToolNameByType(9), QString());
}

void CorvaneToolBitHelperTest::badFileTellsAnEnglishHostInEnglish()
{
    QFETCH(QByteArray, content);
    QVERIFY(LoadCustomControlsTranslation(QLocale(QLocale::English)));
    QVERIFY(!Load(content));
    QVERIFY2(m_error.startsWith(QStringLiteral("Tool file tools.json: ")), qPrintable(m_error));
    QVERIFY2(!IsChinese(m_error), qPrintable(m_error));
}

void CorvaneToolBitHelperTest::unreadableFileSaysWhy_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << QStringLiteral("/nowhere/tools.json");
    QTest::newRow("a folder") << QStringLiteral("/");
    QTest::newRow("empty path") << QString();
}

void CorvaneToolBitHelperTest::unreadableFileSaysWhy()
{
    QFETCH(QString, path);
    QVERIFY(!m_helper->LoadTools(path, &m_error));
    QVERIFY2(m_error.contains(QStringLiteral("无法读取")), qPrintable(m_error));
    QVERIFY(LoadCustomControlsTranslation(QLocale(QLocale::English)));
    QVERIFY(!m_helper->LoadTools(path, &m_error));
    QVERIFY2(m_error.contains(QStringLiteral("cannot be read")) && !IsChinese(m_error), qPrintable(m_error));
}

void CorvaneToolBitHelperTest::fileAboveTheLimitIsRefused()
{
    QVERIFY(!Load(QByteArray(16 * 1024 * 1024 + 1, ' ')));
    QVERIFY2(m_error.contains(QStringLiteral("16 MiB")), qPrintable(m_error));
}

void CorvaneToolBitHelperTest::reasonMayBeLeftOut()
{
    QVERIFY(!m_helper->LoadTools(QString(), nullptr));
}

void CorvaneToolBitHelperTest::manyToolsAreFoundAsFastAsFew()
{
    QList<ToolBit> tools;
    for (int i = 0; i < 200000; ++i) {
        tools.append({i, i % 8, QStringLiteral("D%1").arg(i), i});
    }
    m_helper->SetTools(ModelTypeStandard, tools);
    // A search from one end to the other would take minutes and run into the test's time limit.
    for (int i = 0; i < 200000; ++i) {
        QCOMPARE(m_helper->GetToolLocationByToolNo(i, ModelTypeStandard), i);
    }
}

CUSTOMCONTROLS_TEST_MAIN(CorvaneToolBitHelperTest)
#include "CorvaneToolBitHelperTest.moc"
