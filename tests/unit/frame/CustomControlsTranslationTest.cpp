#include <CustomControls/CustomControlsTranslation.h>

#include <tests/support/TestMain.h>

#include <QCoreApplication>
#include <QEvent>
#include <QTest>
#include <QTranslator>

class CustomControlsTranslationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { LoadCustomControlsTranslation(QLocale(QLocale::Chinese)); }

    void textsAreInTheLanguageOfTheLocale_data();
    void textsAreInTheLanguageOfTheLocale();
    void aFurtherCallTakesThePlaceOfTheOneBefore();
    void aTranslatorOfTheHostStays();

private:
    static QString Ok() { return QCoreApplication::translate("CVelmarMessageBox", "确定"); }
};

void CustomControlsTranslationTest::textsAreInTheLanguageOfTheLocale_data()
{
    QTest::addColumn<QLocale>("locale");
    QTest::addColumn<bool>("known");
    QTest::addColumn<QString>("text");
    QTest::newRow("American") << QLocale(QLocale::English, QLocale::UnitedStates) << true << "OK";
    QTest::newRow("British") << QLocale(QLocale::English, QLocale::UnitedKingdom) << true << "OK";
    QTest::newRow("no language") << QLocale::c() << true << "OK";
    QTest::newRow("Chinese") << QLocale(QLocale::Chinese, QLocale::China) << true << "确定";
    QTest::newRow("traditional Chinese") << QLocale(QLocale::Chinese, QLocale::Taiwan) << true << "确定";
    QTest::newRow("one without a translation") << QLocale(QLocale::German) << false << "确定";
}

void CustomControlsTranslationTest::textsAreInTheLanguageOfTheLocale()
{
    QFETCH(QLocale, locale);
    QFETCH(bool, known);
    QFETCH(QString, text);
    QCOMPARE(LoadCustomControlsTranslation(locale), known);
    QCOMPARE(Ok(), text);
}

void CustomControlsTranslationTest::aFurtherCallTakesThePlaceOfTheOneBefore()
{
    QVERIFY(LoadCustomControlsTranslation(QLocale(QLocale::English)));
    QVERIFY(LoadCustomControlsTranslation(QLocale(QLocale::English)));
    QCOMPARE(qApp->findChildren<QTranslator*>().size(), 1);
    QVERIFY(LoadCustomControlsTranslation(QLocale(QLocale::Chinese)));
    QCOMPARE(qApp->findChildren<QTranslator*>().size(), 0);
    QCOMPARE(Ok(), QStringLiteral("确定"));
}

void CustomControlsTranslationTest::aTranslatorOfTheHostStays()
{
    class HostTranslator : public QTranslator
    {
    public:
        bool isEmpty() const override { return false; }
        QString translate(const char* context, const char*, const char*, int) const override
        {
            return qstrcmp(context, "Host") == 0 ? QStringLiteral("host") : QString();
        }
    } host;
    QVERIFY(QCoreApplication::installTranslator(&host));
    QVERIFY(LoadCustomControlsTranslation(QLocale(QLocale::English)));
    QCOMPARE(QCoreApplication::translate("Host", "x"), QStringLiteral("host"));
    QCOMPARE(Ok(), QStringLiteral("OK"));
    QVERIFY(LoadCustomControlsTranslation(QLocale(QLocale::Chinese)));
    QCOMPARE(QCoreApplication::translate("Host", "x"), QStringLiteral("host"));
}

CUSTOMCONTROLS_TEST_MAIN(CustomControlsTranslationTest)
#include "CustomControlsTranslationTest.moc"
