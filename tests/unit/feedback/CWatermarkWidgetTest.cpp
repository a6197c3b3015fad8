#include <CustomControls/feedback/CWatermarkWidget.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QFontMetricsF>
#include <QLabel>
#include <QPainter>
#include <QPointer>
#include <QScreen>

#include <cmath>
#include <memory>

namespace {

// The tiling once more, from the figures: -30 radians for the reach, -30 degrees for the slant.
QImage Expected(int width, int height)
{
    constexpr double kSine = 0.9880316240928618;    // |sin(-30 rad)|
    constexpr double kCosine = 0.15425144988758405; // |cos(-30 rad)|
    const QString text = QStringLiteral("Dornhall 内 测 版 本，禁 止 外 发 ！");
    const QFontMetricsF metrics(FontCnBold_28);
    const double textWidth = metrics.horizontalAdvance(text);
    const int extentY = int(kSine * width + kCosine * height);
    const int extentX = int(kSine * height + kCosine * width);
    const int stepX = int(textWidth * 1.5);
    const int stepY = int(2 * height / textWidth * metrics.height());
    QPixmap pixmap(width, height);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setFont(FontCnBold_28);
    painter.setPen(QColor(255, 75, 75, 72));
    painter.rotate(-30);
    int y = -(extentY >> 1);
    for (int row = 0; row < extentY / stepY + 2; ++row, y += stepY) {
        int x = -(extentX >> 1);
        for (int column = 0; column < extentX / stepX + 2; ++column, x += stepX) {
            painter.drawText(x, y, text);
        }
    }
    painter.end();
    return pixmap.toImage();
}

} // namespace

class CWatermarkWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithoutMark();
    void adjustBeforeShowDoesNothing();
    void showMakesTheMarkAWindowOfItsOwn();
    void secondShowKeepsTheMark();
    void adjustMovesTheMark();
    void adjustWithoutResizeKeepsSizeAndPixmap();
    void adjustShowsAHiddenMark();
    void pixmapIsTwiceTheSize();
    void smallChangesKeepThePixmap_data();
    void smallChangesKeepThePixmap();
    void resizeByOnePixelKeepsThePixmap();
    void toleranceCountsFromTheSizeThatWasDrawn();
    void tilingFollowsTheFigures_data();
    void tilingFollowsTheFigures();
    void markIsFaint();
    void labelShowsTheUpperLeftQuarter();
    void markIsPaintedOnItsWindow();
    void markIsCutToItsText();
    void markWithoutTextIsCutAway();
    void degenerateSizesAreHarmless_data();
    void degenerateSizesAreHarmless();
    void markDiesWithItsWidget();
    void markDeletedFromOutsideIsForgotten();
};

void CWatermarkWidgetTest::startsWithoutMark()
{
    QWidget parent;
    const CWatermarkWidget watermark(&parent);
    QCOMPARE(watermark.parentWidget(), &parent);
    QVERIFY(!watermark.m_pLabel);
    QCOMPARE(watermark.m_nPixmapWidth, 0);
    QCOMPARE(watermark.m_nPixmapHeight, 0);
    QCOMPARE(watermark.m_pixmapCache.size(), QSize(0, 0));
    const CWatermarkWidget orphan;
    QVERIFY(!orphan.parent());
}

void CWatermarkWidgetTest::adjustBeforeShowDoesNothing()
{
    CWatermarkWidget watermark;
    watermark.AdjustWatermark(true);
    watermark.AdjustWatermark(false);
    QVERIFY(!watermark.m_pLabel);
    QCOMPARE(watermark.m_nPixmapWidth, 0);
}

void CWatermarkWidgetTest::showMakesTheMarkAWindowOfItsOwn()
{
    CWatermarkWidget watermark;
    watermark.setGeometry(50, 60, 300, 200);
    watermark.show();
    watermark.ShowWatermark();
    const QLabel* mark = watermark.m_pLabel;
    QVERIFY(mark->isVisible());
    QVERIFY(mark->isWindow());
    QCOMPARE(mark->parentWidget(), &watermark);
    const Qt::WindowFlags flags =
        Qt::Window | Qt::FramelessWindowHint | Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus;
    QCOMPARE(mark->windowFlags() & flags, flags);
    QVERIFY(mark->testAttribute(Qt::WA_PaintOnScreen));
    QVERIFY(mark->testAttribute(Qt::WA_NoSystemBackground));
    QVERIFY(mark->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(mark->pos(), watermark.mapToGlobal(QPoint(0, 0)));
    QCOMPARE(mark->size(), QSize(300, 200));
}

void CWatermarkWidgetTest::secondShowKeepsTheMark()
{
    CWatermarkWidget watermark;
    watermark.ShowWatermark();
    QLabel* mark = watermark.m_pLabel;
    watermark.ShowWatermark();
    QCOMPARE(watermark.m_pLabel, mark);
    QCOMPARE(watermark.findChildren<QLabel*>().size(), 1);
}

void CWatermarkWidgetTest::adjustMovesTheMark()
{
    QWidget window(nullptr, Qt::FramelessWindowHint);
    window.setGeometry(50, 60, 400, 300);
    CWatermarkWidget watermark(&window);
    watermark.setGeometry(10, 20, 300, 200);
    window.show();
    watermark.ShowWatermark();
    window.move(150, 100);
    QCOMPARE(watermark.m_pLabel->pos(), QPoint(60, 80));
    watermark.AdjustWatermark(false);
    QCOMPARE(watermark.m_pLabel->pos(), QPoint(160, 120));
}

void CWatermarkWidgetTest::adjustWithoutResizeKeepsSizeAndPixmap()
{
    CWatermarkWidget watermark;
    watermark.resize(300, 200);
    watermark.ShowWatermark();
    const qint64 key = watermark.m_pixmapCache.cacheKey();
    watermark.resize(500, 400);
    watermark.AdjustWatermark(false);
    QCOMPARE(watermark.m_pLabel->size(), QSize(300, 200));
    QCOMPARE(watermark.m_pixmapCache.cacheKey(), key);
    watermark.AdjustWatermark(true);
    QCOMPARE(watermark.m_pLabel->size(), QSize(500, 400));
    QVERIFY(watermark.m_pixmapCache.cacheKey() != key);
}

void CWatermarkWidgetTest::adjustShowsAHiddenMark()
{
    CWatermarkWidget watermark;
    watermark.ShowWatermark();
    watermark.m_pLabel->hide();
    watermark.AdjustWatermark(false);
    QVERIFY(watermark.m_pLabel->isVisible());
}

void CWatermarkWidgetTest::pixmapIsTwiceTheSize()
{
    CWatermarkWidget watermark;
    watermark.resize(300, 200);
    watermark.ShowWatermark();
    QCOMPARE(watermark.m_pixmapCache.size(), QSize(600, 400));
    QCOMPARE(watermark.m_nPixmapWidth, 600);
    QCOMPARE(watermark.m_nPixmapHeight, 400);
    QCOMPARE(watermark.m_pLabel->pixmap(Qt::ReturnByValue).cacheKey(), watermark.m_pixmapCache.cacheKey());
    QCOMPARE(watermark.m_pixmapCache.devicePixelRatio(), 1.0);
}

void CWatermarkWidgetTest::smallChangesKeepThePixmap_data()
{
    QTest::addColumn<QSize>("change");
    QTest::addColumn<bool>("kept");
    QTest::newRow("none") << QSize(0, 0) << true;
    QTest::newRow("two wider") << QSize(2, 0) << true;
    QTest::newRow("two in both") << QSize(2, 2) << true;
    QTest::newRow("two smaller") << QSize(-2, -2) << true;
    QTest::newRow("three wider") << QSize(3, 0) << false;
    QTest::newRow("three higher") << QSize(0, 3) << false;
    QTest::newRow("three narrower") << QSize(-3, 0) << false;
    QTest::newRow("three lower") << QSize(2, -3) << false;
}

void CWatermarkWidgetTest::smallChangesKeepThePixmap()
{
    QFETCH(QSize, change);
    QFETCH(bool, kept);
    CWatermarkWidget watermark;
    const qint64 key = watermark.GeneratePixmap(600, 400).cacheKey();
    const QPixmap next = watermark.GeneratePixmap(600 + change.width(), 400 + change.height());
    QCOMPARE(next.cacheKey() == key, kept);
    QCOMPARE(next.size(), kept ? QSize(600, 400) : QSize(600, 400) + change);
}

void CWatermarkWidgetTest::resizeByOnePixelKeepsThePixmap()
{
    CWatermarkWidget watermark;
    watermark.resize(300, 200);
    watermark.ShowWatermark();
    const qint64 key = watermark.m_pixmapCache.cacheKey();
    watermark.resize(301, 201);
    watermark.AdjustWatermark(true);
    QCOMPARE(watermark.m_pixmapCache.cacheKey(), key);
    QCOMPARE(watermark.m_pLabel->size(), QSize(301, 201));
}

void CWatermarkWidgetTest::toleranceCountsFromTheSizeThatWasDrawn()
{
    CWatermarkWidget watermark;
    const qint64 key = watermark.GeneratePixmap(600, 400).cacheKey();
    QCOMPARE(watermark.GeneratePixmap(602, 400).cacheKey(), key);
    QVERIFY(watermark.GeneratePixmap(604, 400).cacheKey() != key);
}

void CWatermarkWidgetTest::tilingFollowsTheFigures_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("wide") << QSize(1600, 800);
    QTest::newRow("high") << QSize(500, 1400);
    QTest::newRow("low") << QSize(900, 60);
    QTest::newRow("odd") << QSize(777, 333);
}

void CWatermarkWidgetTest::tilingFollowsTheFigures()
{
    QFETCH(QSize, size);
    CWatermarkWidget watermark;
    QCOMPARE(watermark.GeneratePixmap(size.width(), size.height()).toImage(), Expected(size.width(), size.height()));
}

void CWatermarkWidgetTest::markIsFaint()
{
    CWatermarkWidget watermark;
    const QImage image = watermark.GeneratePixmap(900, 700).toImage().convertToFormat(QImage::Format_ARGB32);
    int inked = 0;
    int strongest = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            inked += image.pixelColor(x, y).alpha() > 0 ? 1 : 0;
            strongest = qMax(strongest, image.pixelColor(x, y).alpha());
        }
    }
    QVERIFY(inked > 1000);
    QVERIFY(inked < image.width() * image.height() / 2);
    QVERIFY(strongest >= 72);
    QVERIFY(strongest < 200); // rows may touch each other, never so much that they hide what is below
}

void CWatermarkWidgetTest::labelShowsTheUpperLeftQuarter()
{
    CWatermarkWidget watermark;
    watermark.resize(300, 200);
    watermark.ShowWatermark();
    QImage seen(300, 200, QImage::Format_ARGB32_Premultiplied);
    seen.fill(Qt::transparent);
    watermark.m_pLabel->render(&seen, QPoint(), QRegion(), QWidget::DrawChildren | QWidget::IgnoreMask);
    const QImage pixmap = watermark.m_pixmapCache.toImage().convertToFormat(seen.format());
    QCOMPARE(seen, pixmap.copy(0, 0, 300, 200));
    QVERIFY(seen != pixmap.copy(0, 100, 300, 200));
}

void CWatermarkWidgetTest::markIsPaintedOnItsWindow()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen")) {
        QSKIP("only the offscreen platform gives a window's own picture back");
    }
    CWatermarkWidget watermark;
    watermark.resize(300, 200);
    watermark.ShowWatermark();
    // The windows of this platform know no transparency: what isn't drawn is black.
    const auto shown = [&watermark] {
        QScreen* screen = watermark.m_pLabel->screen();
        return screen->grabWindow(watermark.m_pLabel->winId()).toImage().convertToFormat(QImage::Format_RGB32);
    };
    const auto drawn = [&watermark] {
        QImage image(watermark.m_pLabel->size(), QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter(&image).drawPixmap(0, 0, watermark.m_pixmapCache);
        return image;
    };
    QTRY_COMPARE(shown(), drawn());
    watermark.m_pLabel->repaint();
    QCOMPARE(shown(), drawn());
    watermark.resize(420, 160);
    watermark.AdjustWatermark(true);
    QTRY_COMPARE(shown(), drawn());
}

void CWatermarkWidgetTest::markIsCutToItsText()
{
#ifdef Q_OS_WIN
    QSKIP("nothing is cut where every window is composed");
#endif
    CWatermarkWidget watermark;
    watermark.resize(300, 200);
    watermark.ShowWatermark();
    const QRegion mask = watermark.m_pLabel->mask();
    QImage shown(300, 200, QImage::Format_ARGB32);
    shown.fill(Qt::transparent);
    {
        QPainter painter(&shown);
        painter.setClipRegion(mask);
        painter.fillRect(shown.rect(), Qt::black);
    }
    const QImage pixmap = watermark.m_pixmapCache.toImage();
    int inked = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            const bool ink = qAlpha(pixmap.pixel(x, y)) > 0;
            inked += ink ? 1 : 0;
            QCOMPARE(qAlpha(shown.pixel(x, y)) > 0, ink);
        }
    }
    QVERIFY(inked > 100);
    // A pixel more keeps the pixmap, and the cut with it.
    watermark.resize(301, 201);
    watermark.AdjustWatermark(true);
    QCOMPARE(watermark.m_pLabel->mask(), mask);
    watermark.resize(400, 300);
    watermark.AdjustWatermark(true);
    QVERIFY(watermark.m_pLabel->mask() != mask);
}

void CWatermarkWidgetTest::markWithoutTextIsCutAway()
{
#ifdef Q_OS_WIN
    QSKIP("nothing is cut where every window is composed");
#endif
    CWatermarkWidget watermark;
    watermark.resize(300, 1); // too low for a row of text
    watermark.ShowWatermark();
    QVERIFY(!watermark.m_pLabel->mask().isEmpty());
    QVERIFY(!watermark.m_pLabel->mask().intersects(watermark.m_pLabel->rect()));
}

void CWatermarkWidgetTest::degenerateSizesAreHarmless_data()
{
    QTest::addColumn<QSize>("size");
    QTest::newRow("nothing") << QSize(0, 0);
    QTest::newRow("no width") << QSize(0, 300);
    QTest::newRow("no height") << QSize(300, 0);
    QTest::newRow("one pixel") << QSize(1, 1);
    QTest::newRow("one row") << QSize(400, 2);
    QTest::newRow("one column") << QSize(2, 400);
}

void CWatermarkWidgetTest::degenerateSizesAreHarmless()
{
    QFETCH(QSize, size);
    CWatermarkWidget watermark;
    watermark.resize(size);
    watermark.ShowWatermark();
    QCOMPARE(watermark.m_pLabel->size(), watermark.size()); // a system may have a least size for windows
    watermark.resize(300, 200);
    watermark.AdjustWatermark(true);
    QCOMPARE(watermark.m_pixmapCache.size(), QSize(600, 400));
    watermark.resize(size);
    watermark.AdjustWatermark(true);
    QCOMPARE(watermark.m_pLabel->size(), watermark.size()); // a system may have a least size for windows
}

void CWatermarkWidgetTest::markDiesWithItsWidget()
{
    auto watermark = std::make_unique<CWatermarkWidget>();
    watermark->ShowWatermark();
    const QPointer<QLabel> mark = watermark->m_pLabel;
    watermark.reset();
    QVERIFY(!mark);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void CWatermarkWidgetTest::markDeletedFromOutsideIsForgotten()
{
    CWatermarkWidget watermark;
    watermark.ShowWatermark();
    delete watermark.m_pLabel;
    QVERIFY(!watermark.m_pLabel);
    watermark.AdjustWatermark(true);
    QVERIFY(!watermark.m_pLabel);
}

CUSTOMCONTROLS_TEST_MAIN(CWatermarkWidgetTest)

#include "CWatermarkWidgetTest.moc"
