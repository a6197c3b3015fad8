#include <simulator/RequestReader.h>

#include <tests/support/TestMain.h>

class RequestReaderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRequestIsCompleteAtItsLastBrace_data();
    void aRequestIsCompleteAtItsLastBrace();
    void aRequestMayArriveByteByByte();
    void whatFollowsARequestIsNotKept();
    void anotherBeginningIsNoObject_data();
    void anotherBeginningIsNoObject();
    void blanksAloneAreNoRequestYet();
    void aRequestWithoutAnEndIsTooLarge_data();
    void aRequestWithoutAnEndIsTooLarge();
    void theLargestRequestIsTaken();
};

void RequestReaderTest::aRequestIsCompleteAtItsLastBrace_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::newRow("as sent") << QByteArray("{\n    \"action\": \"GET_SN_FROM_3255\"\n}");
    QTest::newRow("compact") << QByteArray("{\"action\":\"GET_SN_FROM_3255\"}");
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("blanks first") << QByteArray(" \r\n\t{}");
    QTest::newRow("nested") << QByteArray("{\"a\":{\"b\":[{}]}}");
    QTest::newRow("braces in a text") << QByteArray("{\"}}\":\"}{\"}");
    QTest::newRow("escaped quote") << QByteArray("{\"a\":\"\\\"}\"}");
    QTest::newRow("escaped backslash") << QByteArray("{\"a\":\"\\\\\"}");
    QTest::newRow("bytes that are no UTF-8") << QByteArray("{\xff\xfe}");
}

void RequestReaderTest::aRequestIsCompleteAtItsLastBrace()
{
    QFETCH(const QByteArray, request);
    RequestReader reader;
    QCOMPARE(reader.Feed(request.chopped(1)), RequestReader::Incomplete);
    QCOMPARE(reader.Feed("}"), RequestReader::Complete);
    QCOMPARE(reader.Bytes(), request);
}

void RequestReaderTest::aRequestMayArriveByteByByte()
{
    const QByteArray request("{\"a\":\"\\\"}\",\"b\":{}}");
    RequestReader reader;
    for (qsizetype i = 0; i < request.size() - 1; ++i) {
        QCOMPARE(reader.Feed(request.mid(i, 1)), RequestReader::Incomplete);
    }
    QCOMPARE(reader.Feed(request.right(1)), RequestReader::Complete);
    QCOMPARE(reader.Bytes(), request);
}

void RequestReaderTest::whatFollowsARequestIsNotKept()
{
    RequestReader reader;
    QCOMPARE(reader.Feed("{}\n{\"second\":1}"), RequestReader::Complete);
    QCOMPARE(reader.Feed("more"), RequestReader::Complete);
    QCOMPARE(reader.Bytes(), QByteArray("{}"));
}

void RequestReaderTest::anotherBeginningIsNoObject_data()
{
    QTest::addColumn<QByteArray>("request");
    QTest::newRow("array") << QByteArray("[{}]");
    QTest::newRow("closing brace") << QByteArray("}");
    QTest::newRow("text") << QByteArray("\"{}\"");
    QTest::newRow("web request") << QByteArray("GET / HTTP/1.1\r\n\r\n");
    QTest::newRow("null byte") << QByteArray(1, '\0');
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf{}");
}

void RequestReaderTest::anotherBeginningIsNoObject()
{
    QFETCH(const QByteArray, request);
    RequestReader reader;
    QCOMPARE(reader.Feed(request), RequestReader::NoObject);
    QCOMPARE(reader.Feed("{}"), RequestReader::NoObject);
}

void RequestReaderTest::blanksAloneAreNoRequestYet()
{
    RequestReader reader;
    QCOMPARE(reader.Feed(QByteArray()), RequestReader::Incomplete);
    QCOMPARE(reader.Feed(" \r\n"), RequestReader::Incomplete);
}

void RequestReaderTest::aRequestWithoutAnEndIsTooLarge_data()
{
    QTest::addColumn<QByteArray>("piece");
    QTest::newRow("a long text") << "{\"a\":\"" + QByteArray(1000, 'x');
    QTest::newRow("braces") << QByteArray(1000, '{');
    QTest::newRow("blanks") << QByteArray(1000, ' ');
}

void RequestReaderTest::aRequestWithoutAnEndIsTooLarge()
{
    QFETCH(const QByteArray, piece);
    RequestReader reader;
    for (int i = 0; i < 4; ++i) {
        QCOMPARE(reader.Feed(piece.left(1000)), RequestReader::Incomplete);
    }
    QCOMPARE(reader.Feed(piece), RequestReader::TooLarge);
    QCOMPARE(reader.Bytes().size(), RequestReader::kLimit);
}

void RequestReaderTest::theLargestRequestIsTaken()
{
    const QByteArray request = "{\"a\":\"" + QByteArray(RequestReader::kLimit - 8, 'x') + "\"}";
    QCOMPARE(request.size(), RequestReader::kLimit);
    RequestReader reader;
    QCOMPARE(reader.Feed(request), RequestReader::Complete);
    RequestReader tooLarge;
    QCOMPARE(tooLarge.Feed(' ' + request), RequestReader::TooLarge);
}

CUSTOMCONTROLS_TEST_MAIN(RequestReaderTest)
#include "RequestReaderTest.moc"
