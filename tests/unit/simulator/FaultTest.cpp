#include <simulator/Fault.h>

#include <tests/support/TestMain.h>

class FaultTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyNameIsReadAndWrittenBack_data();
    void everyNameIsReadAndWrittenBack();
    void anErrorHasACodeAndAText_data();
    void anErrorHasACodeAndAText();
    void whatIsNoFaultIsRefusedWithAReason_data();
    void whatIsNoFaultIsRefusedWithAReason();
    void aHealthyMachineHasNoFaultName();
    void helpTellsOfEveryFault();
};

void FaultTest::everyNameIsReadAndWrittenBack_data()
{
    QTest::addColumn<int>("kind");
    QTest::newRow("silent") << int(Fault::Silent);
    QTest::newRow("close") << int(Fault::Close);
    QTest::newRow("split") << int(Fault::Split);
    QTest::newRow("slow") << int(Fault::Slow);
    QTest::newRow("garbage") << int(Fault::Garbage);
    QTest::newRow("array") << int(Fault::Array);
    QTest::newRow("empty-serial") << int(Fault::EmptySerial);
    QTest::newRow("error:7:too hot") << int(Fault::Error);
    QTest::newRow("huge") << int(Fault::Huge);
    QTest::newRow("late") << int(Fault::Late);
    QTest::newRow("ftp-down") << int(Fault::FtpDown);
}

void FaultTest::everyNameIsReadAndWrittenBack()
{
    QFETCH(const int, kind);
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QString reason;
    const std::optional<Fault> fault = Fault::Parse(name, &reason);
    QVERIFY2(fault, qPrintable(reason));
    QCOMPARE(int(fault->eKind), kind);
    QCOMPARE(fault->Name(), name);
    QVERIFY(reason.isEmpty());
}

void FaultTest::anErrorHasACodeAndAText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasText");
    QTest::newRow("code and text") << "error:7:too hot" << 7 << "too hot" << true;
    QTest::newRow("colons in the text") << "error:-3:axis:z:" << -3 << "axis:z:" << true;
    QTest::newRow("Chinese text") << QStringLiteral("error:12:主轴过热") << 12 << QStringLiteral("主轴过热") << true;
    QTest::newRow("empty text") << "error:7:" << 7 << "" << true;
    QTest::newRow("no text") << "error:7" << 7 << "" << false;
    QTest::newRow("largest code") << "error:2147483647:x" << 2147483647 << "x" << true;
}

void FaultTest::anErrorHasACodeAndAText()
{
    QFETCH(const QString, name);
    QString reason;
    const std::optional<Fault> fault = Fault::Parse(name, &reason);
    QVERIFY2(fault, qPrintable(reason));
    QTEST(fault->iCode, "code");
    QTEST(fault->strText, "text");
    QTEST(!fault->strText.isNull(), "hasText");
    QCOMPARE(fault->Name(), name);
}

void FaultTest::whatIsNoFaultIsRefusedWithAReason_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name : {"", "Silent", "silent ", "silence", "error", "error:", "error::text", "error:0:fine",
                             "error:x:y", "error:1.5:y", "error:2147483648:y", "error:CODE:TEXT", "none"}) {
        QTest::newRow(*name ? name : "(empty)") << QString::fromLatin1(name);
    }
}

void FaultTest::whatIsNoFaultIsRefusedWithAReason()
{
    QFETCH(const QString, name);
    QString reason;
    QVERIFY(!Fault::Parse(name, &reason));
    QVERIFY2(reason.contains(u'"' + name + u'"'), qPrintable(reason));
}

void FaultTest::aHealthyMachineHasNoFaultName()
{
    QVERIFY(Fault().Name().isEmpty());
}

void FaultTest::helpTellsOfEveryFault()
{
    const QString help = Fault::Help();
    for (const char* name : {"silent", "close", "split", "slow", "garbage", "array", "empty-serial", "error:CODE:TEXT",
                             "huge", "late", "ftp-down"}) {
        QVERIFY2(help.contains(QStringLiteral("  %1 ").arg(QLatin1String(name))), name);
    }
    QCOMPARE(help.count(QStringLiteral("A host shows: ")), 11);
    QVERIFY(help.contains(QStringLiteral("\"获取机床序列号失败：序列号为空\"")));
}

CUSTOMCONTROLS_TEST_MAIN(FaultTest)
#include "FaultTest.moc"
