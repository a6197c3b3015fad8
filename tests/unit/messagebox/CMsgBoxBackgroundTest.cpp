#include <CustomControls/messagebox/CMsgBoxBackground.h>

#include <tests/support/TestMain.h>

#include <QImage>

class CMsgBoxBackgroundTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void styleSheetFillsPanelAndDrawsItsBorder();
    void imageIsNeverDrawn();
    void pixmapFollowsSizeLessBorders();
    void panelSmallerThanItsBordersIsHarmless();
};

void CMsgBoxBackgroundTest::styleSheetFillsPanelAndDrawsItsBorder()
{
    CMsgBoxBackground panel;
    panel.setStyleSheet(QStringLiteral("background:rgb(10, 20, 30);border:1px solid rgb(200, 0, 0);"));
    panel.resize(60, 40);
    const QImage image = panel.grab().toImage();
    QCOMPARE(image.pixelColor(30, 20), QColor(10, 20, 30));
    QCOMPARE(image.pixelColor(0, 20), QColor(200, 0, 0));
    QCOMPARE(image.pixelColor(59, 20), QColor(200, 0, 0));
    QCOMPARE(image.pixelColor(30, 39), QColor(200, 0, 0));
}

void CMsgBoxBackgroundTest::imageIsNeverDrawn()
{
    CMsgBoxBackground panel;
    panel.setStyleSheet(QStringLiteral("background:rgb(10, 20, 30);"));
    panel.resize(60, 40);
    panel.show();
    panel.m_pixmapBackground = QPixmap(58, 38);
    panel.m_pixmapBackground.fill(Qt::red);
    const QImage image = panel.grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            QCOMPARE(image.pixelColor(x, y), QColor(10, 20, 30));
        }
    }
}

void CMsgBoxBackgroundTest::pixmapFollowsSizeLessBorders()
{
    const QPixmap original(QStringLiteral(":/icon/ico_ttob_bg.png"));
    QWidget window; // a window of its own has a smallest width on some systems
    CMsgBoxBackground panel;
    panel.setParent(&window);
    QCOMPARE(panel.m_pixmapBackground.size(), original.size());
    panel.resize(102, 72);
    window.show();
    QCOMPARE(panel.m_pixmapBackground.size(), original.isNull() ? QSize(0, 0) : QSize(100, 70));
    panel.resize(52, 300);
    QCOMPARE(panel.m_pixmapBackground.size(), original.isNull() ? QSize(0, 0) : QSize(50, 298));
}

void CMsgBoxBackgroundTest::panelSmallerThanItsBordersIsHarmless()
{
    QWidget window;
    CMsgBoxBackground panel;
    panel.setParent(&window);
    window.show();
    panel.resize(1, 1);
    panel.resize(0, 0);
    QVERIFY(panel.m_pixmapBackground.width() <= 1);
}

CUSTOMCONTROLS_TEST_MAIN(CMsgBoxBackgroundTest)
#include "CMsgBoxBackgroundTest.moc"
