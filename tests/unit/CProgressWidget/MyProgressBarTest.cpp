#include <CustomControls/CProgressWidget/CProgressBar.h>
#include <CustomControls/CProgressWidget/MyProgressBar.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QImage>
#include <QLayout>
#include <QRegularExpression>
#include <QTimer>

#include <cmath>

namespace {

const QString kRestingSheet = QStringLiteral(
    "QProgressBar::chunk{border-top-left-radius:4px;border-bottom-left-radius:4px;background-color:rgb(41,41,41);}"
    "QProgressBar{border:1px solid #000000;border-radius:5px;background:rgb(41,41,41);}");

struct Stripes
{
    QString strSheet;
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
};

// The four coordinates of a sheet, and the sheet with their places left open.
Stripes Parse(const QString& sheet)
{
    static const QRegularExpression expression(QStringLiteral("x1:([^,]*), y1:([^,]*), x2:([^,]*), y2:([^ ]*) stop"));
    const QRegularExpressionMatch match = expression.match(sheet);
    Stripes stripes;
    stripes.x1 = match.captured(1).toDouble();
    stripes.y1 = match.captured(2).toDouble();
    stripes.x2 = match.captured(3).toDouble();
    stripes.y2 = match.captured(4).toDouble();
    stripes.strSheet = sheet;
    stripes.strSheet.replace(match.captured(), QStringLiteral("x1:*, y1:*, x2:*, y2:* stop"));
    return stripes;
}

bool Near(double actual, double expected)
{
    return std::abs(actual - expected) < 1e-3 * qMax(1.0, std::abs(expected));
}

} // namespace

class MyProgressBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formStandsAsDesigned();
    void innerBarStartsDark();
    void stripeTimerRunsFromTheStart();
    void ticksAtValueZeroChangeNothing();
    void sheetIsExact_data();
    void sheetIsExact();
    void coordinatesFollowTheFormula_data();
    void coordinatesFollowTheFormula();
    void stripesMoveWhileTheValueStandsStill();
    void allBarsShareOneClock();
    void lostValueKeepsTheLastSheet();
    void barWithoutSizeKeepsItsSheet_data();
    void barWithoutSizeKeepsItsSheet();
    void valueChangeRepaintsTheWidget();
    void fillIsPaintedInBothGreens();
    void deletionUnderTheTimerIsHarmless();
};

void MyProgressBarTest::formStandsAsDesigned()
{
    const MyProgressBar stripes(nullptr);
    const CProgressBar* bar = stripes.progressBar();
    QCOMPARE(stripes.objectName(), QStringLiteral("MyProgressBar"));
    QCOMPARE(stripes.size(), QSize(396, 24));
    QCOMPARE(stripes.windowTitle(), QStringLiteral("MyProgressBar"));
    QVERIFY(stripes.windowFlags().testFlag(Qt::FramelessWindowHint));
    QCOMPARE(stripes.layout()->objectName(), QStringLiteral("verticalLayout"));
    QCOMPARE(stripes.layout()->spacing(), 0);
    QCOMPARE(stripes.layout()->contentsMargins(), QMargins());
    QCOMPARE(stripes.layout()->itemAt(0)->widget(), bar);
    QCOMPARE(bar->objectName(), QStringLiteral("progressBar"));
    QCOMPARE(bar->minimumWidth(), 396);
    QCOMPARE(bar->value(), 0);
    QCOMPARE(bar->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(bar->textDirection(), QProgressBar::TopToBottom);
}

void MyProgressBarTest::innerBarStartsDark()
{
    const MyProgressBar stripes(nullptr);
    QCOMPARE(stripes.progressBar()->minimum(), 0);
    QCOMPARE(stripes.progressBar()->maximum(), 100);
    QVERIFY(!stripes.progressBar()->isTextVisible());
    QCOMPARE(stripes.progressBar()->font().pixelSize(), FontCn_12.pixelSize());
    QCOMPARE(stripes.progressBar()->font().weight(), FontCn_12.weight());
    QCOMPARE(stripes.progressBar()->styleSheet(), kRestingSheet);
}

void MyProgressBarTest::stripeTimerRunsFromTheStart()
{
    const MyProgressBar stripes(nullptr);
    const auto timers = stripes.findChildren<QTimer*>();
    QCOMPARE(timers.size(), 1);
    QVERIFY(timers.first()->isActive());
    QVERIFY(!timers.first()->isSingleShot());
    QCOMPARE(timers.first()->interval(), 100);
}

void MyProgressBarTest::ticksAtValueZeroChangeNothing()
{
    MyProgressBar stripes(nullptr);
    QSignalSpy ticks(stripes.findChild<QTimer*>(), &QTimer::timeout);
    QTRY_VERIFY(ticks.size() >= 2);
    stripes.updateValue();
    QCOMPARE(stripes.progressBar()->styleSheet(), kRestingSheet);
    stripes.progressBar()->setValue(1);
    QTRY_VERIFY(stripes.progressBar()->styleSheet() != kRestingSheet);
}

void MyProgressBarTest::sheetIsExact_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("height");
    QTest::addColumn<QString>("radii");
    QTest::addColumn<int>("grooveRadius");
    const QString left = QStringLiteral("border-top-left-radius:%1px;border-bottom-left-radius:%1px;");
    const QString all = QStringLiteral("border-radius:%1px;");
    QTest::newRow("first value") << 1 << 10 << left.arg(4) << 5;
    QTest::newRow("odd height") << 50 << 11 << left.arg(4) << 5;
    QTest::newRow("last before the end") << 97 << 24 << left.arg(11) << 12;
    QTest::newRow("maximum - 2") << 98 << 24 << all.arg(11) << 12;
    QTest::newRow("maximum") << 100 << 10 << all.arg(4) << 5;
    QTest::newRow("one pixel high") << 100 << 1 << all.arg(-1) << 0;
}

void MyProgressBarTest::sheetIsExact()
{
    QFETCH(int, value);
    QFETCH(int, height);
    QFETCH(QString, radii);
    QFETCH(int, grooveRadius);
    MyProgressBar stripes(nullptr);
    stripes.progressBar()->setFixedSize(396, height);
    stripes.progressBar()->setValue(value);
    stripes.updateValue();
    QCOMPARE(Parse(stripes.progressBar()->styleSheet()).strSheet,
             QStringLiteral("QProgressBar::chunk{") + radii +
                 QStringLiteral("background-color:qlineargradient(spread:repeat, x1:*, y1:*, x2:*, y2:* "
                                "stop:0 #1c9a60, stop:0.5 #1c9a60, stop:0.501 #1a8e58, stop:1 #1a8e58);}"
                                "QProgressBar{border:1px solid rgb(185,185,185);border-radius:%1px;"
                                "background:rgb(219,219,219);}")
                     .arg(grooveRadius));
}

void MyProgressBarTest::coordinatesFollowTheFormula_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::newRow("shorter than high") << 5 << 396 << 10;
    QTest::newRow("as long as high") << 10 << 396 << 10;
    QTest::newRow("half") << 50 << 396 << 10;
    QTest::newRow("full") << 100 << 396 << 24;
    QTest::newRow("narrow") << 30 << 40 << 24;
}

void MyProgressBarTest::coordinatesFollowTheFormula()
{
    QFETCH(int, value);
    QFETCH(int, width);
    QFETCH(int, height);
    MyProgressBar stripes(nullptr);
    stripes.progressBar()->setFixedSize(width, height);
    stripes.progressBar()->setValue(value);
    stripes.updateValue();
    const Stripes actual = Parse(stripes.progressBar()->styleSheet());

    const double a = value >= height ? 1.0 : double(value) / height;
    const double s = (100 * height) / (width * value * 0.7);
    const double t = actual.x2 - s * a * 1.45; // grows with time
    QVERIFY(t > -1e-3);
    QVERIFY(t < 300 * 0.07); // as long as a test may run
    QVERIFY(Near(actual.x1, s * 1.45 + actual.x2));
    QVERIFY(Near(actual.y1, (a + 1.0) * s * s + t));
    QVERIFY(Near(actual.y2, actual.y1 + s * s));
}

void MyProgressBarTest::stripesMoveWhileTheValueStandsStill()
{
    MyProgressBar stripes(nullptr);
    stripes.progressBar()->setValue(40);
    stripes.updateValue();
    const Stripes first = Parse(stripes.progressBar()->styleSheet());
    QTRY_VERIFY(Parse(stripes.progressBar()->styleSheet()).x1 > first.x1);
    const Stripes second = Parse(stripes.progressBar()->styleSheet());
    QVERIFY(second.y1 > first.y1);
    QVERIFY(Near(second.x1 - first.x1, second.x2 - first.x2));
    QCOMPARE(second.strSheet, first.strSheet);
}

void MyProgressBarTest::allBarsShareOneClock()
{
    MyProgressBar first(nullptr);
    first.progressBar()->setValue(40);
    first.updateValue();
    const double start = Parse(first.progressBar()->styleSheet()).x1;
    QTRY_VERIFY(Parse(first.progressBar()->styleSheet()).x1 > start + 0.01);
    MyProgressBar second(nullptr);
    second.progressBar()->resize(first.progressBar()->size());
    second.progressBar()->setValue(40);
    second.updateValue();
    QVERIFY(Parse(second.progressBar()->styleSheet()).x1 > start + 0.01);
}

void MyProgressBarTest::lostValueKeepsTheLastSheet()
{
    MyProgressBar stripes(nullptr);
    stripes.progressBar()->setValue(40);
    stripes.updateValue();
    stripes.progressBar()->setValue(0);
    const QString sheet = stripes.progressBar()->styleSheet();
    QSignalSpy ticks(stripes.findChild<QTimer*>(), &QTimer::timeout);
    QTRY_VERIFY(ticks.size() >= 2);
    QCOMPARE(stripes.progressBar()->styleSheet(), sheet);
}

void MyProgressBarTest::barWithoutSizeKeepsItsSheet_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("no width") << QSize(0, 10);
    QTest::newRow("no height") << QSize(396, 0);
    QTest::newRow("neither") << QSize(0, 0);
}

void MyProgressBarTest::barWithoutSizeKeepsItsSheet()
{
    QFETCH(QSize, size);
    MyProgressBar stripes(nullptr);
    stripes.progressBar()->setFixedSize(size);
    stripes.progressBar()->setValue(40);
    stripes.updateValue();
    QCOMPARE(stripes.progressBar()->styleSheet(), kRestingSheet);
}

void MyProgressBarTest::valueChangeRepaintsTheWidget()
{
    class Counter : public QObject
    {
    public:
        int m_iPaints = 0;

    protected:
        bool eventFilter(QObject*, QEvent* event) override
        {
            m_iPaints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
    } counter;
    MyProgressBar stripes(nullptr);
    stripes.show();
    QVERIFY(QTest::qWaitForWindowExposed(&stripes));
    QCoreApplication::processEvents();
    stripes.installEventFilter(&counter);
    stripes.progressBar()->setValue(10);
    QTRY_VERIFY(counter.m_iPaints > 0);
}

void MyProgressBarTest::fillIsPaintedInBothGreens()
{
    MyProgressBar stripes(nullptr);
    stripes.progressBar()->SetTextVisible(false);
    stripes.resize(396, 24);
    stripes.progressBar()->setFixedSize(396, 24);
    QCOMPARE(stripes.grab().toImage().pixelColor(200, 12), QColor(41, 41, 41));

    stripes.progressBar()->setValue(50);
    stripes.updateValue();
    const QImage image = stripes.grab().toImage();
    QCOMPARE(image.pixelColor(300, 12), QColor(219, 219, 219));
    QCOMPARE(image.pixelColor(300, 0), QColor(185, 185, 185));
    int light = 0;
    int dark = 0;
    for (int x = 20; x < 180; ++x) {
        light += image.pixelColor(x, 12) == QColor(0x1c, 0x9a, 0x60) ? 1 : 0;
        dark += image.pixelColor(x, 12) == QColor(0x1a, 0x8e, 0x58) ? 1 : 0;
    }
    QVERIFY(light > 0);
    QVERIFY(dark > 0);
    QVERIFY(light + dark > 120); // but for the blended edges between the stripes
}

void MyProgressBarTest::deletionUnderTheTimerIsHarmless()
{
    auto* stripes = new MyProgressBar(nullptr);
    stripes->progressBar()->setValue(40);
    connect(stripes->findChild<QTimer*>(), &QTimer::timeout, stripes, &QObject::deleteLater);
    const QPointer<MyProgressBar> alive(stripes);
    QTRY_VERIFY(!alive);
}

CUSTOMCONTROLS_TEST_MAIN(MyProgressBarTest)
#include "MyProgressBarTest.moc"
