#include <CustomControls/platform/FrameRules.h>

#include <tests/support/TestMain.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

class FrameRulesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachPointLiesInItsZone_data();
    void eachPointLiesInItsZone();
    void withoutResizeTheCornersAreClientArea();
    void withoutTitleBarOnlyTheEdgesAnswer();
    void visibleChildOfTheTitleBarIsNoCaption();
    void hiddenChildOfTheTitleBarIsCaption();
    void aTitleBarIsTakenToLieAtTheTopLeftCorner();
    void aWindowWithoutSizeIsAllCorner();
    void onlyTheMinimiseButtonIsKept();
    void aWindowInsideOneScreenStraddlesNone();
    void aWindowOverTheEdgeStraddles();
};

void FrameRulesTest::eachPointLiesInItsZone_data()
{
    QTest::addColumn<QPoint>("point");
    QTest::addColumn<int>("zone");
    // A window of 200 by 100: left and top are the five pixels 0 to 4, right and bottom begin at 196 and 96.
    QTest::newRow("top left") << QPoint(0, 0) << 13;
    QTest::newRow("top left, inner end") << QPoint(4, 4) << 13;
    QTest::newRow("bottom left") << QPoint(4, 96) << 16;
    QTest::newRow("top right") << QPoint(196, 4) << 14;
    QTest::newRow("bottom right") << QPoint(196, 96) << 17;
    QTest::newRow("left") << QPoint(4, 50) << 10;
    QTest::newRow("right") << QPoint(196, 50) << 11;
    QTest::newRow("top") << QPoint(100, 4) << 12;
    QTest::newRow("bottom") << QPoint(100, 96) << 15;
    QTest::newRow("inside, beyond the left edge") << QPoint(5, 50) << 0;
    QTest::newRow("inside, before the right edge") << QPoint(195, 50) << 0;
    QTest::newRow("inside, before the bottom edge") << QPoint(100, 95) << 0;
    QTest::newRow("caption") << QPoint(100, 5) << 2;
    QTest::newRow("outside, to the left") << QPoint(-300, 50) << 10;
}

void FrameRulesTest::eachPointLiesInItsZone()
{
    QFETCH(QPoint, point);
    QFETCH(int, zone);
    QWidget titleBar;
    titleBar.resize(200, 30);
    QCOMPARE(int(FrameZoneAt(point, QSize(200, 100), true, &titleBar)), zone);
}

void FrameRulesTest::withoutResizeTheCornersAreClientArea()
{
    for (const QPoint& corner : {QPoint(0, 0), QPoint(199, 0), QPoint(0, 99), QPoint(199, 99)}) {
        QCOMPARE(FrameZoneAt(corner, QSize(200, 100), false, nullptr), FrameZoneNone);
    }
}

void FrameRulesTest::withoutTitleBarOnlyTheEdgesAnswer()
{
    QCOMPARE(FrameZoneAt(QPoint(100, 10), QSize(200, 100), true, nullptr), FrameZoneNone);
    QCOMPARE(FrameZoneAt(QPoint(2, 50), QSize(200, 100), true, nullptr), FrameZoneLeft);
    QVERIFY(!OnFreeTitleBar(QPoint(1, 1), nullptr));
}

void FrameRulesTest::visibleChildOfTheTitleBarIsNoCaption()
{
    QWidget titleBar;
    titleBar.resize(200, 30);
    QWidget button(&titleBar);
    button.setGeometry(50, 5, 20, 20);
    titleBar.show();
    QCOMPARE(FrameZoneAt(QPoint(60, 15), QSize(200, 100), true, &titleBar), FrameZoneNone);
    QCOMPARE(FrameZoneAt(QPoint(80, 15), QSize(200, 100), true, &titleBar), FrameZoneCaption);
}

void FrameRulesTest::hiddenChildOfTheTitleBarIsCaption()
{
    QWidget titleBar;
    titleBar.resize(200, 30);
    QWidget button(&titleBar);
    button.setGeometry(50, 5, 20, 20);
    titleBar.show();
    button.hide();
    QCOMPARE(FrameZoneAt(QPoint(60, 15), QSize(200, 100), true, &titleBar), FrameZoneCaption);
}

void FrameRulesTest::aTitleBarIsTakenToLieAtTheTopLeftCorner()
{
    QWidget window;
    window.resize(200, 100);
    QWidget titleBar(&window);
    titleBar.setGeometry(0, 60, 200, 30);
    QCOMPARE(FrameZoneAt(QPoint(100, 10), window.size(), true, &titleBar), FrameZoneCaption);
    QCOMPARE(FrameZoneAt(QPoint(100, 70), window.size(), true, &titleBar), FrameZoneNone);
}

void FrameRulesTest::aWindowWithoutSizeIsAllCorner()
{
    QCOMPARE(FrameZoneAt(QPoint(0, 0), QSize(0, 0), true, nullptr), FrameZoneTopLeft);
    QCOMPARE(FrameZoneAt(QPoint(0, 0), QSize(0, 0), false, nullptr), FrameZoneNone);
}

void FrameRulesTest::onlyTheMinimiseButtonIsKept()
{
    const Qt::WindowFlags all = Qt::Window | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint |
                                Qt::WindowCloseButtonHint | Qt::FramelessWindowHint;
    QCOMPARE(FramelessFlags(all), Qt::Window | Qt::FramelessWindowHint | Qt::WindowMinimizeButtonHint);
}

void FrameRulesTest::aWindowInsideOneScreenStraddlesNone()
{
    const QPoint centre = QGuiApplication::primaryScreen()->geometry().center();
    QRect place(0, 0, 600, 400);
    place.moveCenter(centre);
    QVERIFY(!StraddlesScreens(place));
}

void FrameRulesTest::aWindowOverTheEdgeStraddles()
{
    // Beyond the only screen there is none, which differs from it as another screen would.
    const QRect screen = QGuiApplication::primaryScreen()->geometry();
    QRect place(0, 0, 600, 400);
    place.moveCenter(QPoint(screen.right() - 199, screen.center().y()));
    QVERIFY(StraddlesScreens(place));
    place.moveCenter(QPoint(screen.right() - 200, screen.center().y()));
    QVERIFY(!StraddlesScreens(place));
}

CUSTOMCONTROLS_TEST_MAIN(FrameRulesTest)
#include "FrameRulesTest.moc"
