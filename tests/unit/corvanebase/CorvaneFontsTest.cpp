#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QFontInfo>
#include <QFontMetrics>

#include <cmath>
#include <limits>

namespace {

QStringList g_messages;

void KeepMessage(QtMsgType, const QMessageLogContext&, const QString& text)
{
    g_messages.append(text);
}

// Built while the program loads, before there is an application object, as a host's globals may be.
struct EarlyFont
{
    EarlyFont()
    {
        const QtMessageHandler former = qInstallMessageHandler(KeepMessage);
        m_font = GetFontWidthPxSizeAndWeight(17, 600);
        m_copy = FontCn_14;
        qInstallMessageHandler(former);
    }
    QFont m_font;
    QFont m_copy;
};
const EarlyFont g_early;

} // namespace

class CorvaneFontsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void globalsHaveTheSizeAndCutOfTheirName_data();
    void globalsHaveTheSizeAndCutOfTheirName();
    void fontsCanBeMadeBeforeTheApplication();
    void everyFontShowsChinese();
    void fontTakesAnySizeAndWeight_data();
    void fontTakesAnySizeAndWeight();
    void closestIntegerIsWholeAtTheRatio_data();
    void closestIntegerIsWholeAtTheRatio();
    void closestIntegerIsTheNearest_data();
    void closestIntegerIsTheNearest();
    void badRatioLeavesTheValue_data();
    void badRatioLeavesTheValue();
};

void CorvaneFontsTest::globalsHaveTheSizeAndCutOfTheirName_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("weight");
#define ROW(cut, size, weight) QTest::newRow(#cut "_" #size) << cut##_##size << size << int(weight)
    ROW(FontCn, 12, QFont::Normal);
    ROW(FontCn, 13, QFont::Normal);
    ROW(FontCn, 14, QFont::Normal);
    ROW(FontCn, 15, QFont::Normal);
    ROW(FontCn, 16, QFont::Normal);
    ROW(FontCn, 20, QFont::Normal);
    ROW(FontCnMedium, 10, QFont::Medium);
    ROW(FontCnMedium, 11, QFont::Medium);
    ROW(FontCnMedium, 13, QFont::Medium);
    ROW(FontCnMedium, 14, QFont::Medium);
    ROW(FontCnMedium, 15, QFont::Medium);
    ROW(FontCnMedium, 16, QFont::Medium);
    ROW(FontCnMedium, 18, QFont::Medium);
    ROW(FontCnBold, 14, QFont::Bold);
    ROW(FontCnBold, 16, QFont::Bold);
    ROW(FontCnBold, 28, QFont::Bold);
    ROW(FontCnBold, 30, QFont::Bold);
#undef ROW
}

void CorvaneFontsTest::globalsHaveTheSizeAndCutOfTheirName()
{
    QFETCH(QFont, font);
    QFETCH(int, size);
    QFETCH(int, weight);
    QCOMPARE(font.pixelSize(), size);
    QCOMPARE(int(font.weight()), weight);
    QCOMPARE(font.families(), FontCn_12.families());
    QVERIFY(!font.italic());
}

void CorvaneFontsTest::fontsCanBeMadeBeforeTheApplication()
{
    QCOMPARE(g_messages, QStringList());
    QCOMPARE(g_early.m_font.pixelSize(), 17);
    QCOMPARE(int(g_early.m_font.weight()), 600);
    QCOMPARE(g_early.m_copy.pixelSize(), 14); // the library's globals stood already
    QCOMPARE(g_early.m_font, GetFontWidthPxSizeAndWeight(17, 600));
    QVERIFY(QFontMetrics(g_early.m_font).height() > 0);
}

void CorvaneFontsTest::everyFontShowsChinese()
{
    const QString family = QFontInfo(FontCn_14).family();
    if (!FontCn_14.families().contains(family)) {
        QSKIP("none of the product's font families is installed here");
    }
    QVERIFY(QFontMetrics(FontCn_14).inFontUcs4(0x673a));     // 机
    QVERIFY(QFontMetrics(FontCnBold_30).inFontUcs4(0x5e8a)); // 床
}

void CorvaneFontsTest::fontTakesAnySizeAndWeight_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("weight");
    QTest::addColumn<int>("expectedSize");
    QTest::addColumn<int>("expectedWeight");
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    QTest::newRow("regular") << 14 << 400 << 14 << 400;
    QTest::newRow("semi-bold") << 14 << 600 << 14 << 600;
    QTest::newRow("nothing") << 0 << 0 << 1 << 1;
    QTest::newRow("below") << smallest << smallest << 1 << 1;
    QTest::newRow("above") << largest << largest << largest << 1000;
}

void CorvaneFontsTest::fontTakesAnySizeAndWeight()
{
    QFETCH(int, size);
    QFETCH(int, weight);
    const QFont font = GetFontWidthPxSizeAndWeight(size, weight);
    QTEST(font.pixelSize(), "expectedSize");
    QTEST(int(font.weight()), "expectedWeight");
}

void CorvaneFontsTest::closestIntegerIsWholeAtTheRatio_data()
{
    QTest::addColumn<double>("ratio");
    for (double ratio : {1.0,         1.1, 1.125, 1.2, 1.25, 4.0 / 3.0, 1.35, 1.4,  1.5,        5.0 / 3.0, 1.75,
                         25.0 / 24.0, 2.0, 2.25,  2.5, 2.75, 3.0,       3.5,  0.75, 10.0 / 3.0, 12.125}) {
        QTest::addRow("%g", ratio) << ratio;
    }
}

void CorvaneFontsTest::closestIntegerIsWholeAtTheRatio()
{
    QFETCH(double, ratio);
    const QString text = QString::number(ratio, 'g', 6);
    for (int value = 1; value <= 400; ++value) {
        const int size = ClosestInteger(value, text);
        QVERIFY(size > 0);
        QVERIFY(std::abs(size - value) < 40);
        QVERIFY(std::abs(size * ratio - std::round(size * ratio)) < 1e-9);
    }
}

void CorvaneFontsTest::closestIntegerIsTheNearest_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("ratio");
    QTest::addColumn<int>("expected");
    const int largest = std::numeric_limits<int>::max();
    const int smallest = std::numeric_limits<int>::min();
    QTest::newRow("already whole") << 12 << "1.25" << 12;
    QTest::newRow("down") << 9 << "1.25" << 8;
    QTest::newRow("up") << 11 << "1.25" << 12;
    QTest::newRow("equally near") << 10 << "1.25" << 12;
    QTest::newRow("odd at one and a half") << 7 << "1.5" << 8;
    QTest::newRow("thirds with rounded digits") << 10 << "1.33333" << 9;
    QTest::newRow("two thirds with rounded digits") << 11 << "1.66667" << 12;
    QTest::newRow("never nothing") << 1 << "1.25" << 4;
    QTest::newRow("nothing stays nothing") << 0 << "1.25" << 0;
    QTest::newRow("negative") << -9 << "1.25" << -8;
    QTest::newRow("largest") << largest << "1.25" << largest - 3;
    QTest::newRow("smallest") << smallest << "1.25" << smallest;
    QTest::newRow("smallest at thirds") << smallest << "1.33333" << smallest + 2;
}

void CorvaneFontsTest::closestIntegerIsTheNearest()
{
    QFETCH(int, value);
    QFETCH(QString, ratio);
    QTEST(ClosestInteger(value, ratio), "expected");
}

void CorvaneFontsTest::badRatioLeavesTheValue_data()
{
    QTest::addColumn<QString>("ratio");
    for (const char* ratio : {"", "x", "0", "-1.5", "nan", "inf", "1e999", "1,5", "1.23456e-300", "1.00003"}) {
        QTest::newRow(qPrintable(QStringLiteral("\"%1\"").arg(QLatin1String(ratio)))) << QString::fromLatin1(ratio);
    }
}

void CorvaneFontsTest::badRatioLeavesTheValue()
{
    QFETCH(QString, ratio);
    QCOMPARE(ClosestInteger(10, ratio), 10);
}

CUSTOMCONTROLS_TEST_MAIN(CorvaneFontsTest)
#include "CorvaneFontsTest.moc"
