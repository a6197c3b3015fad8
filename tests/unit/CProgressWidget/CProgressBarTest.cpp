#include <CustomControls/CProgressWidget/CProgressBar.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QImage>

#include <climits>

#include <utility>

namespace {

constexpr int kSideMargin = 100;
constexpr int kHeight = 40;

struct TextPixels
{
    int iEmpty = 0;
    int iFilled = 0;
};

// Counts the pixels of both text colours, which are red and blue on white, in the columns from first to before last.
TextPixels CountText(const QImage& image, int first, int last)
{
    TextPixels pixels;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = first; x < last; ++x) {
            const QColor color = image.pixelColor(x, y);
            pixels.iEmpty += color.red() > color.blue() ? 1 : 0;
            pixels.iFilled += color.blue() > color.red() ? 1 : 0;
        }
    }
    return pixels;
}

class PaintCounter : public QObject
{
public:
    int m_iPaints = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_iPaints += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

class CProgressBarTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsWithTheHouseFontAndColours();
    void textIsInTheColourOfTheEmptyPartUpToItsLeftEdge();
    void textIsInTheColourOfTheFilledPartFromItsRightEdge();
    void coloursMeetAtTheEdgeOfTheFill();
    void textIsCentred();
    void showsNoTextWithoutProgress_data();
    void showsNoTextWithoutProgress();
    void minimumIsNotSubtractedFromTheValue();
    void hugeRangesDoNotOverflow();
    void gradientOfALongTextStartsWithoutWarning();
    void hiddenTextIsNotDrawn();
    void setColorDoesNotRepaint();
    void setTextVisibleRepaints();
    void emptySizesAndTextsAreHarmless();

private:
    QImage Render() const { return m_pBar->grab().toImage(); }
    TextPixels CountAll() const { return CountText(Render(), 0, m_pBar->width()); }

    CProgressBar* m_pBar = nullptr;
    int m_iTextWidth = 0;
};

// A white bar with a fixed text, a hundred pixels free on both sides and a maximum equal to its width, so that the
// value is the x of the fill's edge.
void CProgressBarTest::init()
{
    m_pBar = new CProgressBar(nullptr);
    m_pBar->setTextVisible(false);
    m_pBar->setStyleSheet(QStringLiteral("QProgressBar{border:none;background:white;}"
                                         "QProgressBar::chunk{background:white;}"));
    QFont font = m_pBar->font();
    font.setStyleStrategy(QFont::NoAntialias);
    m_pBar->setFont(font);
    m_pBar->setFormat(QStringLiteral("HHHH"));
    m_pBar->SetColor(Qt::red, Qt::blue);
    m_iTextWidth = m_pBar->fontMetrics().horizontalAdvance(m_pBar->format());
    m_pBar->resize(2 * kSideMargin + m_iTextWidth, kHeight);
    m_pBar->setMaximum(m_pBar->width());
}

void CProgressBarTest::cleanup()
{
    delete m_pBar;
    m_pBar = nullptr;
}

void CProgressBarTest::startsWithTheHouseFontAndColours()
{
    const CProgressBar bar;
    QCOMPARE(bar.font(), FontCnMedium_16);
    QCOMPARE(bar.m_colorEmpty, QColor(51, 51, 51, 255));
    QCOMPARE(bar.m_colorFilled, QColor(245, 245, 245, 255));
    QVERIFY(bar.m_bTextVisible);
}

void CProgressBarTest::textIsInTheColourOfTheEmptyPartUpToItsLeftEdge()
{
    for (const int edge : {1, kSideMargin - 1, kSideMargin}) {
        m_pBar->setValue(edge);
        QVERIFY(CountAll().iEmpty > 0);
        QCOMPARE(CountAll().iFilled, 0);
    }
}

void CProgressBarTest::textIsInTheColourOfTheFilledPartFromItsRightEdge()
{
    for (const int edge : {kSideMargin + m_iTextWidth, kSideMargin + m_iTextWidth + 1, m_pBar->width()}) {
        m_pBar->setValue(edge);
        QVERIFY(CountAll().iFilled > 0);
        QCOMPARE(CountAll().iEmpty, 0);
    }
}

void CProgressBarTest::coloursMeetAtTheEdgeOfTheFill()
{
    const int edge = kSideMargin + m_iTextWidth / 2;
    m_pBar->setValue(edge);
    const QImage image = Render();
    const TextPixels before = CountText(image, 0, edge - 1);
    const TextPixels after = CountText(image, edge + 1, image.width());
    QVERIFY(before.iFilled > 0);
    QCOMPARE(before.iEmpty, 0);
    QVERIFY(after.iEmpty > 0);
    QCOMPARE(after.iFilled, 0);
}

void CProgressBarTest::textIsCentred()
{
    m_pBar->setValue(1);
    const QImage image = Render();
    QCOMPARE(CountText(image, 0, kSideMargin).iEmpty, 0);
    QCOMPARE(CountText(image, kSideMargin + m_iTextWidth, image.width()).iEmpty, 0);
    QVERIFY(CountText(image, kSideMargin, kSideMargin + m_iTextWidth).iEmpty > 0);
}

void CProgressBarTest::showsNoTextWithoutProgress_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::newRow("value 0") << 0 << 100 << 0;
    QTest::newRow("no range") << 0 << 0 << 0;
    QTest::newRow("range of one value") << 7 << 7 << 7;
    QTest::newRow("negative value") << -100 << 100 << -50;
}

void CProgressBarTest::showsNoTextWithoutProgress()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    m_pBar->setRange(minimum, maximum);
    m_pBar->setValue(value);
    QCOMPARE(m_pBar->value(), value);
    QCOMPARE(CountAll().iEmpty, 0);
    QCOMPARE(CountAll().iFilled, 0);
}

void CProgressBarTest::minimumIsNotSubtractedFromTheValue()
{
    // Three quarters of the range lie behind the value, but the edge is taken at a quarter of the width.
    m_pBar->setRange(-200, 200);
    m_pBar->setValue(100);
    QVERIFY(m_pBar->width() / 4 <= kSideMargin);
    QVERIFY(CountAll().iEmpty > 0);
    QCOMPARE(CountAll().iFilled, 0);
}

void CProgressBarTest::hugeRangesDoNotOverflow()
{
    m_pBar->setRange(INT_MIN + 1, INT_MAX);
    m_pBar->setValue(INT_MAX);
    const int edge = m_pBar->width() / 2; // half the range lies below 0
    const QImage image = Render();
    QCOMPARE(CountText(image, 0, edge - 2).iEmpty, 0);
    QCOMPARE(CountText(image, edge + 2, image.width()).iFilled, 0);
}

void CProgressBarTest::gradientOfALongTextStartsWithoutWarning()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    m_pBar->setFormat(QString(100, QLatin1Char('H')));
    const int textWidth = m_pBar->fontMetrics().horizontalAdvance(m_pBar->format());
    QVERIFY(textWidth > 200);
    m_pBar->resize(textWidth + 2 * kSideMargin, kHeight);
    m_pBar->setMaximum(m_pBar->width());
    m_pBar->setValue(kSideMargin + 1);
    QVERIFY(CountAll().iEmpty > 0);
}

void CProgressBarTest::hiddenTextIsNotDrawn()
{
    m_pBar->setValue(kSideMargin);
    QVERIFY(CountAll().iEmpty > 0);
    m_pBar->SetTextVisible(false);
    QCOMPARE(CountAll().iEmpty, 0);
    m_pBar->SetTextVisible(true);
    QVERIFY(CountAll().iEmpty > 0);
}

void CProgressBarTest::setColorDoesNotRepaint()
{
    PaintCounter counter;
    m_pBar->setValue(kSideMargin);
    m_pBar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pBar));
    m_pBar->installEventFilter(&counter);
    // What showing it has left to paint comes when it comes.
    int before = -1;
    while (std::exchange(before, counter.m_iPaints) != counter.m_iPaints) {
        QTest::qWait(0);
    }
    counter.m_iPaints = 0;
    m_pBar->SetColor(Qt::green, Qt::green);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(counter.m_iPaints, 0);
    m_pBar->update();
    QTRY_VERIFY(counter.m_iPaints >= 1);
}

void CProgressBarTest::setTextVisibleRepaints()
{
    PaintCounter counter;
    m_pBar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pBar));
    QCoreApplication::processEvents();
    m_pBar->installEventFilter(&counter);
    m_pBar->SetTextVisible(true);
    QTRY_COMPARE(counter.m_iPaints, 1);
}

void CProgressBarTest::emptySizesAndTextsAreHarmless()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    m_pBar->setValue(kSideMargin);
    m_pBar->setFormat(QString());
    QCOMPARE(CountAll().iEmpty, 0);
    m_pBar->setFormat(QStringLiteral("HHHH"));
    QImage image(10, 10, QImage::Format_ARGB32);
    for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(5, 0), QSize(0, 5)}) {
        m_pBar->resize(size);
        m_pBar->render(&image);
    }
    m_pBar->SetColor(QColor(), QColor());
    m_pBar->resize(300, kHeight);
    m_pBar->render(&image);
}

CUSTOMCONTROLS_TEST_MAIN(CProgressBarTest)
#include "CProgressBarTest.moc"
