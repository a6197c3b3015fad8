#include <CustomControls/frameless/FramelessMainWindow.h>
#include <CustomControls/frameless/PureQtFramelessWindow.h>
#include <CustomControls/platform/FrameRules.h>

#include <tests/support/TestEnvironment.h>

#include <QApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QtTest>

/** Frame rules on several screens: one with negative coordinates left of the first one, and broken ratios. */
class FrameScreensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aWindowStraddlesTheEdgeOfTwoScreens_data();
    void aWindowStraddlesTheEdgeOfTwoScreens();
    void zonesAreTheSameOnEveryScreen_data();
    void zonesAreTheSameOnEveryScreen();
    void thePortableWindowMovesAcrossToNegativeCoordinates();
};

void FrameScreensTest::initTestCase()
{
    QCOMPARE(QGuiApplication::screens().size(), 4);
}

void FrameScreensTest::aWindowStraddlesTheEdgeOfTwoScreens_data()
{
    QTest::addColumn<QPoint>("centre");
    QTest::addColumn<bool>("straddles");
    // The screen on the left ends at -1. Two points are asked for, 200 to each side of the centre.
    QTest::newRow("well on the left") << QPoint(-640, 400) << false;
    QTest::newRow("the last place on the left") << QPoint(-201, 400) << false;
    QTest::newRow("one further") << QPoint(-200, 400) << true;
    QTest::newRow("half and half") << QPoint(0, 400) << true;
    QTest::newRow("the last place across both") << QPoint(199, 400) << true;
    QTest::newRow("the first one on the right") << QPoint(200, 400) << false;
    QTest::newRow("above all screens: both points on none") << QPoint(0, -5000) << false;
}

void FrameScreensTest::aWindowStraddlesTheEdgeOfTwoScreens()
{
    QFETCH(QPoint, centre);
    QFETCH(bool, straddles);
    QRect place(0, 0, 401, 301);
    place.moveCenter(centre);
    QCOMPARE(StraddlesScreens(place), straddles);
}

void FrameScreensTest::zonesAreTheSameOnEveryScreen_data()
{
    QTest::addColumn<int>("screen");
    for (int screen = 0; screen < 4; ++screen) {
        QTest::addRow("screen %d", screen) << screen;
    }
}

void FrameScreensTest::zonesAreTheSameOnEveryScreen()
{
    QFETCH(int, screen);
    const QScreen* on = QGuiApplication::screens().at(screen);
    FramelessMainWindow window;
    QWidget bar(&window);
    bar.setGeometry(0, 0, 400, 40);
    window.setTitleBar(&bar);
    window.setGeometry(QRect(on->geometry().topLeft() + QPoint(60, 60), QSize(400, 300)));
    window.show();
    QCOMPARE(window.screen(), on);
    QCOMPARE(window.devicePixelRatioF(), on->devicePixelRatio());
    const auto zoneAt = [&](const QPoint& point) {
        return int(FrameZoneAt(window.mapFromGlobal(window.mapToGlobal(point)), window.size(), true, &bar));
    };
    QCOMPARE(zoneAt(QPoint(0, 0)), int(FrameZoneTopLeft));
    QCOMPARE(zoneAt(QPoint(4, 150)), int(FrameZoneLeft));
    QCOMPARE(zoneAt(QPoint(5, 150)), int(FrameZoneNone));
    QCOMPARE(zoneAt(QPoint(395, 150)), int(FrameZoneNone));
    QCOMPARE(zoneAt(QPoint(396, 150)), int(FrameZoneRight));
    QCOMPARE(zoneAt(QPoint(399, 299)), int(FrameZoneBottomRight));
    QCOMPARE(zoneAt(QPoint(200, 20)), int(FrameZoneCaption));
}

void FrameScreensTest::thePortableWindowMovesAcrossToNegativeCoordinates()
{
    PureQtFramelessWindow window;
    QWidget bar(&window);
    bar.setGeometry(20, 20, 300, 40);
    window.addTitleBar(&bar);
    window.setGeometry(100, 100, 400, 300);
    window.show();
    const auto send = [&window](QEvent::Type type, const QPoint& local, const QPoint& global, Qt::MouseButton button) {
        QMouseEvent event(type, local, global, button, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&window, &event);
    };
    send(QEvent::MouseButtonPress, QPoint(100, 40), QPoint(200, 140), Qt::LeftButton);
    send(QEvent::MouseMove, QPoint(100, 40), QPoint(-600, 160), Qt::NoButton);
    QCOMPARE(window.pos(), QPoint(-700, 120));
    send(QEvent::MouseButtonRelease, QPoint(100, 40), QPoint(-600, 160), Qt::LeftButton);
    // The left edge, further out still.
    send(QEvent::MouseButtonPress, QPoint(3, 150), QPoint(-697, 270), Qt::LeftButton);
    send(QEvent::MouseMove, QPoint(3, 150), QPoint(-797, 270), Qt::NoButton);
    QCOMPARE(window.geometry(), QRect(-800, 120, 500, 300));
}

int main(int argc, char* argv[])
{
    TestEnvironment::PrepareProcess();
    TestEnvironment::PrepareScreens({{QRect(0, 0, 1280, 1024), 1.0},
                                     {QRect(-1280, 0, 1280, 1024), 1.25},
                                     {QRect(1280, 0, 1600, 900), 1.5},
                                     {QRect(2880, 0, 1600, 900), 2.0}});
    QApplication app(argc, argv);
    const TestEnvironment environment;
    FrameScreensTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "FrameScreensTest.moc"
