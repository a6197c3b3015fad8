#include <CorvaneBase/CorvaneSignalHelper.h>

#include <tests/support/TestMain.h>

#include <QCursor>
#include <QScreen>
#include <QSignalSpy>
#include <QWidget>

namespace {
const QRect kPrimary(0, 0, 1000, 800);
const QRect kLeft(-1280, -100, 1280, 1024);
} // namespace

class CorvaneSignalHelperTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void screensAreAsPrepared();
    void checkingModeIsOffUntilSwitchedOn();
    void signalsReachTheirReceivers();
    void windowIsCentredOverItsParent();
    void windowIsCentredOverTheWindowOfAnInnerParent();
    void windowFollowsItsParentToANegativeScreen();
    void windowIsKeptInsideTheScreenOfItsParent_data();
    void windowIsKeptInsideTheScreenOfItsParent();
    void hiddenParentGivesWayToTheActiveWindow();
    void minimisedParentGivesWayToTheActiveWindow();
    void windowWithoutParentIsCentredOverTheActiveWindow();
    void windowIsNeverPlacedOverItself();
    void lonelyWindowIsCentredOnTheScreenOfTheCursor_data();
    void lonelyWindowIsCentredOnTheScreenOfTheCursor();
    void windowLargerThanTheScreenShowsItsTopLeftCorner();
    void whatIsNoWindowIsLeftAlone();

private:
    static CorvaneSignalHelper* Helper() { return CorvaneSignalHelper::instance(); }
    static void Show(QWidget& window, const QRect& rect)
    {
        window.setWindowFlag(Qt::FramelessWindowHint);
        window.setGeometry(rect);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QCOMPARE(window.frameGeometry(), rect);
    }
    static QWidget* Box(QWidget* parent)
    {
        auto* box = new QWidget(parent, Qt::Dialog | Qt::FramelessWindowHint);
        box->resize(300, 200);
        return box;
    }
};

void CorvaneSignalHelperTest::init()
{
    QCursor::setPos(kPrimary.center());
}

void CorvaneSignalHelperTest::screensAreAsPrepared()
{
    QCOMPARE(QGuiApplication::screens().size(), 2);
    QCOMPARE(QGuiApplication::primaryScreen()->geometry(), kPrimary);
    QCOMPARE(QGuiApplication::screens().at(1)->geometry(), kLeft);
}

void CorvaneSignalHelperTest::checkingModeIsOffUntilSwitchedOn()
{
    QVERIFY(!Helper()->InCheckingEnvironment());
    Helper()->SetInCheckingEnvironment(true);
    QVERIFY(Helper()->InCheckingEnvironment());
    Helper()->SetInCheckingEnvironment(false);
    QVERIFY(!Helper()->InCheckingEnvironment());
}

void CorvaneSignalHelperTest::signalsReachTheirReceivers()
{
    QSignalSpy active(Helper(), &CorvaneSignalHelper::signalActiveMainWindow);
    QSignalSpy quit(Helper(), &CorvaneSignalHelper::signalAboutToExit);
    QSignalSpy append(Helper(), &CorvaneSignalHelper::signalFilePluginAppendLog);
    QSignalSpy connected(Helper(), &CorvaneSignalHelper::signalConnectSuccessToFile);
    Q_EMIT Helper()->signalActiveMainWindow();
    Q_EMIT Helper()->signalAboutToExit();
    Q_EMIT Helper()->signalFilePluginAppendLog(QStringLiteral("失败"), QColor(220, 50, 50, 255));
    Q_EMIT Helper()->signalConnectSuccessToFile(QStringLiteral("192.168.7.2"), QStringLiteral("SN1"));
    QCOMPARE(active.size(), 1);
    QCOMPARE(quit.size(), 1);
    QCOMPARE(append.value(0).value(1).value<QColor>(), QColor(220, 50, 50));
    QCOMPARE(connected.value(0), QVariantList({"192.168.7.2", "SN1"}));
}

void CorvaneSignalHelperTest::windowIsCentredOverItsParent()
{
    QWidget parent;
    Show(parent, QRect(200, 100, 600, 500));
    QWidget* box = Box(&parent);
    Helper()->AdjustWindowPosition(box);
    QCOMPARE(box->pos(), QPoint(200 + (600 - 300) / 2, 100 + (500 - 200) / 2));
    QCOMPARE(box->size(), QSize(300, 200));
}

void CorvaneSignalHelperTest::windowIsCentredOverTheWindowOfAnInnerParent()
{
    QWidget parent;
    QWidget inner(&parent);
    inner.setGeometry(10, 10, 50, 50);
    Show(parent, QRect(200, 100, 600, 500));
    QWidget* box = Box(&inner);
    Helper()->AdjustWindowPosition(box);
    QCOMPARE(box->pos(), QPoint(350, 250));
}

void CorvaneSignalHelperTest::windowFollowsItsParentToANegativeScreen()
{
    QWidget parent;
    Show(parent, QRect(-1000, 0, 600, 500));
    QWidget* box = Box(&parent);
    Helper()->AdjustWindowPosition(box);
    QCOMPARE(box->pos(), QPoint(-850, 150));
}

void CorvaneSignalHelperTest::windowIsKeptInsideTheScreenOfItsParent_data()
{
    QTest::addColumn<QRect>("parentRect");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("right bottom") << QRect(900, 700, 100, 100) << QPoint(700, 600);
    QTest::newRow("left top of the primary screen") << QRect(0, 0, 100, 100) << QPoint(0, 0);
    QTest::newRow("left top of the left screen") << QRect(-1280, -100, 100, 100) << QPoint(-1280, -100);
    QTest::newRow("right edge of the left screen") << QRect(-100, 100, 100, 100) << QPoint(-300, 50);
    QTest::newRow("astride, mostly left") << QRect(-150, 100, 200, 200) << QPoint(-300, 100);
}

void CorvaneSignalHelperTest::windowIsKeptInsideTheScreenOfItsParent()
{
    QFETCH(QRect, parentRect);
    QWidget parent;
    Show(parent, parentRect);
    QWidget* box = Box(&parent);
    Helper()->AdjustWindowPosition(box);
    QTEST(box->pos(), "expected");
}

void CorvaneSignalHelperTest::hiddenParentGivesWayToTheActiveWindow()
{
    QWidget hidden;
    hidden.setGeometry(0, 0, 100, 100);
    QWidget active;
    Show(active, QRect(-1000, 0, 600, 500));
    QApplication::setActiveWindow(&active);
    QWidget* box = Box(&hidden);
    Helper()->AdjustWindowPosition(box);
    QCOMPARE(box->pos(), QPoint(-850, 150));
}

void CorvaneSignalHelperTest::minimisedParentGivesWayToTheActiveWindow()
{
    QWidget parent;
    Show(parent, QRect(0, 0, 100, 100));
    parent.setWindowState(Qt::WindowMinimized);
    QWidget active;
    Show(active, QRect(-1000, 0, 600, 500));
    QApplication::setActiveWindow(&active);
    QWidget* box = Box(&parent);
    Helper()->AdjustWindowPosition(box);
    QCOMPARE(box->pos(), QPoint(-850, 150));
}

void CorvaneSignalHelperTest::windowWithoutParentIsCentredOverTheActiveWindow()
{
    QWidget active;
    Show(active, QRect(200, 100, 600, 500));
    QApplication::setActiveWindow(&active);
    const std::unique_ptr<QWidget> box(Box(nullptr));
    Helper()->AdjustWindowPosition(box.get());
    QCOMPARE(box->pos(), QPoint(350, 250));
}

void CorvaneSignalHelperTest::windowIsNeverPlacedOverItself()
{
    const std::unique_ptr<QWidget> box(Box(nullptr));
    Show(*box, QRect(-1200, 0, 300, 200));
    QApplication::setActiveWindow(box.get());
    Helper()->AdjustWindowPosition(box.get());
    QCOMPARE(box->pos(), QPoint(350, 300)); // on the cursor's screen
}

void CorvaneSignalHelperTest::lonelyWindowIsCentredOnTheScreenOfTheCursor_data()
{
    QTest::addColumn<QPoint>("cursor");
    QTest::addColumn<QPoint>("expected");
    QTest::newRow("primary") << QPoint(1, 1) << QPoint(350, 300);
    QTest::newRow("left") << QPoint(-1, 1) << QPoint(-1280 + 490, -100 + 412);
    QTest::newRow("on no screen") << QPoint(5000, 5000) << QPoint(350, 300);
}

void CorvaneSignalHelperTest::lonelyWindowIsCentredOnTheScreenOfTheCursor()
{
    QFETCH(QPoint, cursor);
    QApplication::setActiveWindow(nullptr);
    QCursor::setPos(cursor);
    const std::unique_ptr<QWidget> box(Box(nullptr));
    Helper()->AdjustWindowPosition(box.get());
    QTEST(box->pos(), "expected");
}

void CorvaneSignalHelperTest::windowLargerThanTheScreenShowsItsTopLeftCorner()
{
    QWidget parent;
    Show(parent, QRect(-1000, 0, 600, 500));
    QWidget* box = Box(&parent);
    box->resize(4000, 3000);
    Helper()->AdjustWindowPosition(box);
    QCOMPARE(box->pos(), kLeft.topLeft());
}

void CorvaneSignalHelperTest::whatIsNoWindowIsLeftAlone()
{
    Helper()->AdjustWindowPosition(nullptr);
    QWidget parent;
    QWidget child(&parent);
    child.setGeometry(5, 6, 7, 8);
    Helper()->AdjustWindowPosition(&child);
    QCOMPARE(child.pos(), QPoint(5, 6));
}

int main(int argc, char* argv[])
{
    TestEnvironment::PrepareProcess();
    TestEnvironment::PrepareScreens({{kPrimary, 1.0}, {kLeft, 1.0}});
    QApplication app(argc, argv);
    const TestEnvironment environment;
    CorvaneSignalHelperTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "CorvaneSignalHelperTest.moc"
