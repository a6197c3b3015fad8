#include <CustomControls/buttons/CUnitButton.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/Painted.h>
#include <tests/support/RepaintProbe.h>
#include <tests/support/TestMain.h>

#include <QHBoxLayout>
#include <QPainter>
#include <QSignalSpy>

namespace {

const QColor kGround(200, 220, 240);

QColor Half(const QColor& top, const QColor& bottom)
{
    QColor half = top;
    half.setAlphaF(0.5);
    return Painted::Over(half, bottom);
}

int TextWidth(const QString& text)
{
    return QFontMetrics(FontCnMedium_14).horizontalAdvance(text);
}

int UnitWidth(const QString& unit)
{
    return QFontMetrics(FontCnMedium_10).horizontalAdvance(unit);
}

} // namespace

class CUnitButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsSizeAndTexts();
    void parentIsIgnoredUntilALayoutTakesIt();
    void looksFollowTheirTable_data();
    void looksFollowTheirTable();
    void cornersAreRound();
    void textAndUnitStandCentredTogether_data();
    void textAndUnitStandCentredTogether();
    void roomLeftOverIsCutTowardZero();
    void wideTextIsCutAtTheLeft();
    void emptyTextsPaintTheTileAlone();
    void unitIsSmallerThanTheText();
    void settersRepaint();
    void baseKeepsNoText();
    void heldButtonLooksDown();
};

void CUnitButtonTest::startsWithItsSizeAndTexts()
{
    const CUnitButton button(QStringLiteral("45"), QStringLiteral("°"), nullptr);
    QCOMPARE(button.minimumSize(), QSize(48, 26));
    QCOMPARE(button.maximumSize(), QSize(48, 26));
    QCOMPARE(button.m_strText, QStringLiteral("45"));
    QCOMPARE(button.m_strUnit, QStringLiteral("°"));
    QVERIFY(!button.isCheckable());
}

void CUnitButtonTest::parentIsIgnoredUntilALayoutTakesIt()
{
    QWidget parent;
    auto* button = new CUnitButton(QStringLiteral("45"), QStringLiteral("°"), &parent);
    QVERIFY(!button->parent());
    QVERIFY(parent.children().isEmpty());
    auto* layout = new QHBoxLayout(&parent);
    layout->addWidget(button);
    QCOMPARE(button->parentWidget(), &parent);
}

void CUnitButtonTest::looksFollowTheirTable_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("down");
    QTest::addColumn<bool>("hover");
    QTest::addColumn<QColor>("pen");
    QTest::addColumn<QColor>("brush");
    QTest::addColumn<QColor>("text");
    QTest::addColumn<QColor>("unit");
    const QColor green(24, 133, 83);
    const QColor ground(250, 250, 250);
    const QColor ink(34, 34, 34);
    const QColor grey(173, 173, 173);
    const QColor white(255, 255, 255);
    // Disabled comes before down, down before hover.
    for (const bool down : {false, true}) {
        for (const bool hover : {false, true}) {
            QTest::addRow("disabled%s%s", down ? ", down" : "", hover ? ", hover" : "")
                << false << down << hover << QColor(234, 234, 234) << ground << QColor(153, 153, 153) << grey;
        }
    }
    QTest::newRow("down") << true << true << false << green << green << white << white;
    QTest::newRow("down, hover") << true << true << true << green << green << white << white;
    QTest::newRow("hover") << true << false << true << green << ground << ink << grey;
    QTest::newRow("otherwise") << true << false << false << QColor(153, 153, 153) << ground << ink << grey;
}

void CUnitButtonTest::looksFollowTheirTable()
{
    QFETCH(bool, enabled);
    QFETCH(bool, down);
    QFETCH(bool, hover);
    QFETCH(QColor, pen);
    QFETCH(QColor, brush);
    QFETCH(QColor, text);
    QFETCH(QColor, unit);
    CUnitButton button(Painted::Blocks(1), Painted::Blocks(1), nullptr);
    button.setEnabled(enabled);
    button.setDown(down);
    button.setAttribute(Qt::WA_UnderMouse, hover);
    const QImage image = Painted::Of(button, kGround);
    // A pen of one pixel along x = 1: half of it lies on the ground, half on the fill.
    COMPARE_COLOR(image, 0, 13, Half(pen, kGround));
    COMPARE_COLOR(image, 1, 13, Half(pen, brush));
    COMPARE_COLOR(image, 46, 13, Half(pen, brush));
    COMPARE_COLOR(image, 47, 13, Half(pen, kGround));
    COMPARE_COLOR(image, 24, 0, Half(pen, kGround));
    COMPARE_COLOR(image, 24, 25, Half(pen, kGround));
    COMPARE_COLOR(image, 4, 13, brush);
    COMPARE_COLOR(image, 43, 13, brush);
    const int x = (48 - TextWidth(Painted::Blocks(1)) - UnitWidth(Painted::Blocks(1))) / 2;
    COMPARE_COLOR(image, x + 4, 13, text);
    COMPARE_COLOR(image, x + TextWidth(Painted::Blocks(1)) + 4, 13, unit);
}

void CUnitButtonTest::cornersAreRound()
{
    CUnitButton button(QString(), QString(), nullptr);
    const QImage image = Painted::Of(button, kGround);
    for (const QPoint& corner : {QPoint(0, 0), QPoint(47, 0), QPoint(0, 25), QPoint(47, 25)}) {
        COMPARE_COLOR(image, corner.x(), corner.y(), kGround);
    }
}

void CUnitButtonTest::textAndUnitStandCentredTogether_data()
{
    QTest::addColumn<int>("textCharacters");
    QTest::addColumn<int>("unitCharacters");
    QTest::newRow("both") << 1 << 1;
    QTest::newRow("long unit") << 1 << 2;
    QTest::newRow("text alone") << 2 << 0;
    QTest::newRow("unit alone") << 0 << 3;
}

void CUnitButtonTest::textAndUnitStandCentredTogether()
{
    QFETCH(int, textCharacters);
    QFETCH(int, unitCharacters);
    const QString text = Painted::Blocks(textCharacters);
    const QString unit = Painted::Blocks(unitCharacters);
    CUnitButton button(text, unit, nullptr);
    const int x = (48 - TextWidth(text) - UnitWidth(unit)) / 2;
    const QImage image = Painted::Of(button, kGround);
    const QRect textInk = Painted::Extent(image, QColor(34, 34, 34), 40);
    const QRect unitInk = Painted::Extent(image.copy(2, 2, 44, 22), QColor(173, 173, 173)).translated(2, 2);
    if (textCharacters > 0) {
        QVERIFY(qAbs(textInk.left() - x) <= 1);
        QVERIFY(qAbs(textInk.right() + 1 - (x + TextWidth(text))) <= 1);
        QVERIFY(qAbs(textInk.center().y() - 13) <= 2);
    }
    if (unitCharacters > 0) {
        QVERIFY(qAbs(unitInk.left() - (x + TextWidth(text))) <= 1);
        QVERIFY(qAbs(unitInk.right() + 1 - (x + TextWidth(text) + UnitWidth(unit))) <= 1);
    }
}

void CUnitButtonTest::roomLeftOverIsCutTowardZero()
{
    // Of two texts of which one leaves an odd room below zero, the exact place shows what becomes of the half pixel.
    QString text;
    QString unit;
    for (int texts = 1; texts < 12 && text.isEmpty(); ++texts) {
        for (int units = 0; units < 12 && text.isEmpty(); ++units) {
            const int room = 48 - TextWidth(Painted::Blocks(texts)) - UnitWidth(QString(units, QLatin1Char('1')));
            if (room < 0 && room % 2 != 0) {
                text = Painted::Blocks(texts);
                unit = QString(units, QLatin1Char('1'));
            }
        }
    }
    if (text.isEmpty()) {
        QSKIP("no two texts of this font leave an odd room");
    }
    CUnitButton button(text, unit, nullptr);
    QImage expected(48, 26, QImage::Format_ARGB32_Premultiplied);
    expected.fill(kGround);
    QPainter painter(&expected);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(153, 153, 153), 1.0));
    painter.setBrush(QColor(250, 250, 250));
    painter.drawRoundedRect(QRect(1, 1, 46, 24), 4.0, 4.0);
    const int x = -((TextWidth(text) + UnitWidth(unit) - 48) / 2);
    painter.setFont(FontCnMedium_14);
    painter.setPen(QColor(34, 34, 34));
    painter.drawText(QRect(x, 0, TextWidth(text), 26), Qt::AlignLeft | Qt::AlignVCenter, text);
    painter.setFont(FontCnMedium_10);
    painter.setPen(QColor(173, 173, 173));
    painter.drawText(QRect(x + TextWidth(text), 0, UnitWidth(unit), 26), Qt::AlignLeft | Qt::AlignVCenter, unit);
    painter.end();
    QCOMPARE(Painted::Of(button, kGround), expected.convertToFormat(QImage::Format_RGB32));
}

void CUnitButtonTest::wideTextIsCutAtTheLeft()
{
    const QString text = Painted::Blocks(6);
    QVERIFY(TextWidth(text) > 48);
    CUnitButton button(text, QString(), nullptr);
    QCOMPARE(button.size(), QSize(48, 26));
    const QImage image = Painted::Of(button, kGround);
    COMPARE_COLOR(image, 0, 13, QColor(34, 34, 34));
    COMPARE_COLOR(image, 47, 13, QColor(34, 34, 34));
}

void CUnitButtonTest::emptyTextsPaintTheTileAlone()
{
    CUnitButton button(QString(), QString(), nullptr);
    const QImage image = Painted::Of(button, kGround);
    for (int y = 3; y < 23; ++y) {
        for (int x = 3; x < 45; ++x) {
            COMPARE_COLOR(image, x, y, QColor(250, 250, 250));
        }
    }
}

void CUnitButtonTest::unitIsSmallerThanTheText()
{
    CUnitButton button(Painted::Blocks(1), QString(), nullptr);
    const QRect text = Painted::Extent(Painted::Of(button), QColor(34, 34, 34));
    button.setText(QString());
    button.setUnit(Painted::Blocks(1));
    const QRect unit = Painted::Extent(Painted::Of(button).copy(2, 2, 44, 22), QColor(173, 173, 173));
    QVERIFY(unit.width() < text.width());
    QVERIFY(unit.height() < text.height());
}

void CUnitButtonTest::settersRepaint()
{
    CUnitButton button(QStringLiteral("45"), QStringLiteral("°"), nullptr);
    RepaintProbe probe(&button);
    QVERIFY(probe.IsRepaintedBy([&] { button.setText(QStringLiteral("90")); }));
    QVERIFY(probe.IsRepaintedBy([&] { button.setUnit(QStringLiteral("mm")); }));
    QCOMPARE(button.m_strText, QStringLiteral("90"));
    QCOMPARE(button.m_strUnit, QStringLiteral("mm"));
    const CUnitButton fresh(QStringLiteral("90"), QStringLiteral("mm"), nullptr);
    QCOMPARE(button.m_iTextWidth, fresh.m_iTextWidth);
    QCOMPARE(button.m_iUnitWidth, fresh.m_iUnitWidth);
}

void CUnitButtonTest::baseKeepsNoText()
{
    CUnitButton button(QStringLiteral("45"), QStringLiteral("°"), nullptr);
    button.setText(QStringLiteral("90"));
    QVERIFY(button.text().isEmpty());
}

void CUnitButtonTest::heldButtonLooksDown()
{
    CUnitButton button(QString(), QString(), nullptr);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QSignalSpy spy(&button, &QPushButton::clicked);
    QTest::mousePress(&button, Qt::LeftButton);
    COMPARE_COLOR(Painted::Of(button), 24, 13, QColor(24, 133, 83));
    QTest::mouseRelease(&button, Qt::LeftButton);
    COMPARE_COLOR(Painted::Of(button), 24, 13, QColor(250, 250, 250));
    QCOMPARE(spy.size(), 1);
}

CUSTOMCONTROLS_TEST_MAIN(CUnitButtonTest)
#include "CUnitButtonTest.moc"
