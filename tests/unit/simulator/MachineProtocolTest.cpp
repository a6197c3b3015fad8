#include <simulator/ExchangeLog.h>
#include <simulator/FileSession.h>
#include <simulator/MachineProtocol.h>

#include <tests/support/TestMain.h>

#include <QJsonDocument>
#include <QJsonObject>

class MachineProtocolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theAnswerIsExactToTheByte();
    void serialNumbersAreEscaped();
    void anErrorMayHaveNoText();
    void requestsAreAnswered_data();
    void requestsAreAnswered();
    void aRequestThatIsTooLargeIsAnError();
    void faultsChangeTheAnswer_data();
    void faultsChangeTheAnswer();
    void garbageIsNeitherJsonNorUtf8();
    void aFaultyMachineStillRefusesAWrongQuestion();
    void theAnnouncementIsTheMachineText();
    void aSummaryStaysOnOneLine();
    void theFileServiceKnowsQuitInAnyCase_data();
    void theFileServiceKnowsQuitInAnyCase();

private:
    static QByteArray Answer(const QByteArray& request, const Fault& fault = {});
    static Fault FaultOf(const char* name);
};

namespace {

const QByteArray kRequest("{\n    \"action\": \"GET_SN_FROM_3255\"\n}\n");

} // namespace

QByteArray MachineProtocolTest::Answer(const QByteArray& request, const Fault& fault)
{
    RequestReader reader;
    reader.Feed(request);
    return MachineProtocol::Answer(reader, QStringLiteral("ABC123"), fault);
}

Fault MachineProtocolTest::FaultOf(const char* name)
{
    QString reason;
    return Fault::Parse(QString::fromUtf8(name), &reason).value();
}

void MachineProtocolTest::theAnswerIsExactToTheByte()
{
    QCOMPARE(kRequest.size(), 37);
    QCOMPARE(Answer(kRequest), QByteArray("{\"errorCode\":0,\"data\":\"ABC123\"}"));
}

void MachineProtocolTest::serialNumbersAreEscaped()
{
    const QString serial = QStringLiteral("机\"床\\1\n");
    const QByteArray answer = MachineProtocol::SerialAnswer(serial);
    QCOMPARE(QJsonDocument::fromJson(answer).object().value(QStringLiteral("data")).toString(), serial);
    QVERIFY(!answer.contains('\n'));
}

void MachineProtocolTest::anErrorMayHaveNoText()
{
    QCOMPARE(MachineProtocol::ErrorAnswer(7, QString()), QByteArray("{\"errorCode\":7}"));
    QCOMPARE(MachineProtocol::ErrorAnswer(7, QStringLiteral("")), QByteArray("{\"errorCode\":7,\"msg\":\"\"}"));
    QCOMPARE(MachineProtocol::ErrorAnswer(-1, QStringLiteral("过热")),
             QStringLiteral("{\"errorCode\":-1,\"msg\":\"过热\"}").toUtf8());
}

void MachineProtocolTest::requestsAreAnswered_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::addColumn<int>("errorCode");
    QTest::newRow("compact") << QByteArray("{\"action\":\"GET_SN_FROM_3255\"}") << 0;
    QTest::newRow("blanks everywhere") << QByteArray("\r\n{\t\"action\" :\n \"GET_SN_FROM_3255\" }") << 0;
    QTest::newRow("escaped") << QByteArray("{\"\\u0061ction\":\"GET_SN_FROM_3255\"}") << 0;
    QTest::newRow("more members") << QByteArray("{\"id\":1,\"action\":\"GET_SN_FROM_3255\",\"x\":{}}") << 0;
    QTest::newRow("another action") << QByteArray("{\"action\":\"REBOOT\"}") << 1;
    QTest::newRow("lower case") << QByteArray("{\"action\":\"get_sn_from_3255\"}") << 1;
    QTest::newRow("no action") << QByteArray("{}") << 1;
    QTest::newRow("action is a number") << QByteArray("{\"action\":3255}") << 1;
    QTest::newRow("array") << QByteArray("[{\"action\":\"GET_SN_FROM_3255\"}]") << 2;
    QTest::newRow("broken object") << QByteArray("{\"action\" \"GET_SN_FROM_3255\"}") << 2;
    QTest::newRow("bytes") << QByteArray("{\xff\x80}") << 2;
    QTest::newRow("web request") << QByteArray("GET / HTTP/1.1") << 2;
}

void MachineProtocolTest::requestsAreAnswered()
{
    QFETCH(const QByteArray, request);
    const QJsonObject answer = QJsonDocument::fromJson(Answer(request)).object();
    QTEST(answer.value(QStringLiteral("errorCode")).toInt(-1), "errorCode");
    if (answer.value(QStringLiteral("errorCode")).toInt() == 0) {
        QCOMPARE(answer.value(QStringLiteral("data")).toString(), QStringLiteral("ABC123"));
    } else {
        QVERIFY(!answer.value(QStringLiteral("msg")).toString().isEmpty());
        QVERIFY(!answer.contains(QStringLiteral("data")));
    }
}

void MachineProtocolTest::aRequestThatIsTooLargeIsAnError()
{
    const QByteArray request = "{\"action\":\"GET_SN_FROM_3255\",\"x\":\"" + QByteArray(5000, 'x') + "\"}";
    QCOMPARE(Answer(request), QByteArray("{\"errorCode\":3,\"msg\":\"request too large\"}"));
}

void MachineProtocolTest::faultsChangeTheAnswer_data()
{
    QTest::addColumn<QByteArray>("answer");
    const QByteArray healthy("{\"errorCode\":0,\"data\":\"ABC123\"}");
    QTest::newRow("array") << '[' + healthy + ']';
    QTest::newRow("empty-serial") << QByteArray("{\"errorCode\":0,\"data\":\"\"}");
    QTest::newRow("error:7:too hot") << QByteArray("{\"errorCode\":7,\"msg\":\"too hot\"}");
    QTest::newRow("error:7") << QByteArray("{\"errorCode\":7}");
    // These change when or how the answer goes out, not what it says.
    for (const char* name : {"silent", "close", "split", "slow", "late", "ftp-down"}) {
        QTest::newRow(name) << healthy;
    }
}

void MachineProtocolTest::faultsChangeTheAnswer()
{
    QTEST(Answer(kRequest, FaultOf(QTest::currentDataTag())), "answer");
}

void MachineProtocolTest::garbageIsNeitherJsonNorUtf8()
{
    const QByteArray garbage = Answer(kRequest, FaultOf("garbage"));
    QVERIFY(QJsonDocument::fromJson(garbage).isNull());
    QVERIFY(QString::fromUtf8(garbage).contains(QChar::ReplacementCharacter));
    QVERIFY(garbage.contains('\0'));
}

void MachineProtocolTest::aFaultyMachineStillRefusesAWrongQuestion()
{
    QCOMPARE(Answer("{\"action\":\"X\"}", FaultOf("empty-serial")),
             QByteArray("{\"errorCode\":1,\"msg\":\"unknown action\"}"));
}

void MachineProtocolTest::theAnnouncementIsTheMachineText()
{
    QCOMPARE(MachineProtocol::Announcement(QStringLiteral("机床1"), QStringLiteral("V1"), QStringLiteral("10.0.0.5"),
                                           5002, QStringLiteral("eth0")),
             QStringLiteral("VELMAR*机床1*V1*10.0.0.5*5002*eth0").toUtf8());
}

void MachineProtocolTest::aSummaryStaysOnOneLine()
{
    QCOMPARE(ExchangeLog::Summary("{\n}\r"), QStringLiteral("4 bytes {\\n}\\u000d"));
    QCOMPARE(ExchangeLog::Summary(QByteArray()), QStringLiteral("0 bytes "));
    const QString cut = ExchangeLog::Summary(QByteArray(1000, 'a'));
    QVERIFY(cut.startsWith(QStringLiteral("1000 bytes aaa")));
    QVERIFY(cut.endsWith(QStringLiteral("a...")));
    QVERIFY(cut.size() < 120);
}

void MachineProtocolTest::theFileServiceKnowsQuitInAnyCase_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("code");
    QTest::newRow("QUIT") << QByteArray("QUIT\r") << QByteArray("221 ");
    QTest::newRow("quit") << QByteArray("quit") << QByteArray("221 ");
    QTest::newRow("quit with an argument") << QByteArray(" QUIT now") << QByteArray("221 ");
    QTest::newRow("NOOP") << QByteArray("NOOP\r") << QByteArray("200 ");
    QTest::newRow("QUITE") << QByteArray("QUITE") << QByteArray("502 ");
    QTest::newRow("RETR") << QByteArray("RETR a.nc\r") << QByteArray("502 ");
    QTest::newRow("nothing") << QByteArray() << QByteArray("502 ");
}

void MachineProtocolTest::theFileServiceKnowsQuitInAnyCase()
{
    QFETCH(const QByteArray, command);
    const QByteArray reply = FileSession::Reply(command);
    QTEST(reply.left(4), "code");
    QVERIFY(reply.endsWith("\r\n"));
}

CUSTOMCONTROLS_TEST_MAIN(MachineProtocolTest)
#include "MachineProtocolTest.moc"
