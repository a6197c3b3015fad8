#include <CustomControls/frameless/FramelessDialog.h>
#include <CustomControls/frameless/FramelessMainWindow.h>
#include <CustomControls/frameless/PureQtFramelessWindow.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>
#include <utility>

namespace {

constexpr int kTitleHeight = 40;

QRect PlaceOf(const QWidget& window)
{
    return {window.mapToGlobal(QPoint(0, 0)), window.size()};
}

const QRect kPlace(300, 300, 500, 300);

// A title bar over the whole width with a button at its right end.
QPushButton* MakeTitleBar(QWidget* window, QWidget* bar)
{
    bar->setGeometry(0, 0, window->width(), kTitleHeight);
    auto* button = new QPushButton(QStringLiteral("x"), bar);
    button->setGeometry(bar->width() - 60, 8, 40, 24);
    return button;
}

} // namespace

/** The three frameless windows under a window manager, with a user's mouse. */
class FramelessWindowsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aDragOfTheTitleBarMovesTheNativeWindows_data();
    void aDragOfTheTitleBarMovesTheNativeWindows();
    void aDragOfAnEdgeResizesTheNativeWindows_data();
    void aDragOfAnEdgeResizesTheNativeWindows();
    void anEdgeUnderAChildResizesAllTheSame();
    void aClickOnAnEdgeResizesNothing();
    void disabledResizeLeavesTheEdgesToTheContent();
    void buttonsOnTheTitleBarStayClickable();
    void theClickAfterADragReachesItsButton();
    void aDoubleClickOnTheTitleBarMaximisesAndRestores();
    void thePortableWindowMovesAndResizesItself();
};

namespace {

// Makes one of the two native windows; the caller owns it.
QWidget* MakeNative(const QString& kind, QWidget** bar)
{
    if (kind == QLatin1String("dialog")) {
        auto* dialog = new FramelessDialog;
        dialog->resize(kPlace.size());
        *bar = new QWidget(dialog);
        dialog->setTitleBar(*bar);
        return dialog;
    }
    auto* window = new FramelessMainWindow;
    window->resize(kPlace.size());
    *bar = new QWidget(window);
    window->setTitleBar(*bar);
    return window;
}

} // namespace

void FramelessWindowsTest::initTestCase()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("needs an X display and xdotool");
    }
}

void FramelessWindowsTest::aDragOfTheTitleBarMovesTheNativeWindows_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("main window") << QStringLiteral("main window");
    QTest::newRow("dialog") << QStringLiteral("dialog");
}

void FramelessWindowsTest::aDragOfTheTitleBarMovesTheNativeWindows()
{
    QFETCH(QString, kind);
    QWidget* bar = nullptr;
    const std::unique_ptr<QWidget> window(MakeNative(kind, &bar));
    MakeTitleBar(window.get(), bar);
    QVERIFY(RealInput::ShowAt(*window, kPlace));
    QSignalSpy pressed(window.get(), SIGNAL(SignalTitleBarMousePressed()));
    const QRect before = PlaceOf(*window);
    const QPoint grip = before.topLeft() + QPoint(100, 20);
    RealInput::Drag(grip, grip + QPoint(120, 80));
    // The system takes the pointer with the first motion or the next, and the window follows from there on.
    QTRY_VERIFY(PlaceOf(*window).left() >= before.left() + 60);
    const QPoint way = PlaceOf(*window).topLeft() - before.topLeft();
    QVERIFY2(way.x() <= 120 && way.y() > 0 && way.y() <= 80,
             qPrintable(QStringLiteral("%1, %2").arg(way.x()).arg(way.y())));
    QCOMPARE(window->size(), before.size());
    QCOMPARE(pressed.count(), 1);
}

void FramelessWindowsTest::aDragOfAnEdgeResizesTheNativeWindows_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QPoint>("grip");
    QTest::addColumn<QMargins>("growth");
    // Each dragged by (40, 30); the window is 500 by 300.
    for (const QString& kind : {QStringLiteral("main window"), QStringLiteral("dialog")}) {
        QTest::addRow("%s, left", qPrintable(kind)) << kind << QPoint(2, 150) << QMargins(-40, 0, 0, 0);
        QTest::addRow("%s, right", qPrintable(kind)) << kind << QPoint(498, 150) << QMargins(0, 0, 40, 0);
        QTest::addRow("%s, bottom", qPrintable(kind)) << kind << QPoint(250, 298) << QMargins(0, 0, 0, 30);
        QTest::addRow("%s, top left", qPrintable(kind)) << kind << QPoint(2, 2) << QMargins(-40, -30, 0, 0);
        QTest::addRow("%s, top", qPrintable(kind)) << kind << QPoint(250, 2) << QMargins(0, -30, 0, 0);
        QTest::addRow("%s, top right", qPrintable(kind)) << kind << QPoint(498, 2) << QMargins(0, -30, 40, 0);
        QTest::addRow("%s, bottom left", qPrintable(kind)) << kind << QPoint(2, 298) << QMargins(-40, 0, 0, 30);
        QTest::addRow("%s, bottom right", qPrintable(kind)) << kind << QPoint(498, 298) << QMargins(0, 0, 40, 30);
    }
}

void FramelessWindowsTest::aDragOfAnEdgeResizesTheNativeWindows()
{
    QFETCH(QString, kind);
    QFETCH(QPoint, grip);
    QFETCH(QMargins, growth);
    QWidget* bar = nullptr;
    const std::unique_ptr<QWidget> window(MakeNative(kind, &bar));
    MakeTitleBar(window.get(), bar);
    QVERIFY(RealInput::ShowAt(*window, kPlace));
    const QRect before = PlaceOf(*window);
    RealInput::Drag(before.topLeft() + grip, before.topLeft() + grip + QPoint(40, 30));
    // The system takes the pointer with the first motion or the next, and the edge follows from there on.
    const auto followed = [](int grown, int wanted) {
        return wanted == 0 ? grown == 0
                           : grown * wanted > 0 && qAbs(grown) * 2 >= qAbs(wanted) && qAbs(grown) <= qAbs(wanted);
    };
    QTRY_VERIFY(followed(before.left() - PlaceOf(*window).left(), growth.left()) &&
                followed(before.top() - PlaceOf(*window).top(), growth.top()) &&
                followed(PlaceOf(*window).right() - before.right(), growth.right()) &&
                followed(PlaceOf(*window).bottom() - before.bottom(), growth.bottom()));
}

void FramelessWindowsTest::anEdgeUnderAChildResizesAllTheSame()
{
    FramelessMainWindow window;
    window.resize(kPlace.size());
    QPushButton content(QStringLiteral("content"));
    window.setCentralWidget(&content);
    QVERIFY(RealInput::ShowAt(window, kPlace));
    QSignalSpy clicked(&content, &QPushButton::clicked);
    const QRect before = PlaceOf(window);
    const QPoint grip = before.topLeft() + QPoint(498, 150);
    RealInput::Drag(grip, grip + QPoint(40, 0));
    QTRY_VERIFY(window.width() >= 520);
    QVERIFY(window.width() <= 540);
    QCOMPARE(clicked.count(), 0);
    content.setParent(nullptr);
}

void FramelessWindowsTest::aClickOnAnEdgeResizesNothing()
{
    FramelessMainWindow window;
    window.resize(kPlace.size());
    QPushButton content(QStringLiteral("content"));
    window.setCentralWidget(&content);
    QVERIFY(RealInput::ShowAt(window, kPlace));
    QSignalSpy clicked(&content, &QPushButton::clicked);
    const QPoint grip = PlaceOf(window).topLeft() + QPoint(498, 150);
    RealInput::Click(grip);
    RealInput::MoveTo(grip + QPoint(40, 0));
    // A click inside shows that all before it has been answered.
    RealInput::Click(PlaceOf(window).topLeft() + QPoint(250, 150));
    QTRY_COMPARE(clicked.count(), 1);
    QCOMPARE(window.width(), 500);
    content.setParent(nullptr);
}

void FramelessWindowsTest::disabledResizeLeavesTheEdgesToTheContent()
{
    FramelessMainWindow window;
    window.resize(kPlace.size());
    QPushButton content(QStringLiteral("content"));
    window.setCentralWidget(&content);
    QVERIFY(RealInput::ShowAt(window, kPlace));
    window.setResizeEnable(false);
    QSignalSpy clicked(&content, &QPushButton::clicked);
    RealInput::Click(PlaceOf(window).topLeft() + QPoint(498, 150));
    QTRY_COMPARE(clicked.count(), 1);
    QCOMPARE(window.width(), 500);
    content.setParent(nullptr);
}

void FramelessWindowsTest::buttonsOnTheTitleBarStayClickable()
{
    FramelessMainWindow window;
    window.resize(kPlace.size());
    QWidget bar(&window);
    const QPushButton* button = MakeTitleBar(&window, &bar);
    window.setTitleBar(&bar);
    QVERIFY(RealInput::ShowAt(window, kPlace));
    QSignalSpy clicked(button, &QPushButton::clicked);
    QSignalSpy pressed(&window, &FramelessMainWindow::SignalTitleBarMousePressed);
    const QRect before = PlaceOf(window);
    RealInput::Click(button->mapToGlobal(button->rect().center()));
    QTRY_COMPARE(clicked.count(), 1);
    QCOMPARE(pressed.count(), 0);
    QCOMPARE(PlaceOf(window), before);
}

void FramelessWindowsTest::theClickAfterADragReachesItsButton()
{
    FramelessMainWindow window;
    window.resize(kPlace.size());
    QPushButton content(QStringLiteral("content"));
    content.setParent(&window);
    content.setGeometry(100, 100, 200, 100);
    QWidget bar(&window);
    MakeTitleBar(&window, &bar);
    window.setTitleBar(&bar);
    QVERIFY(RealInput::ShowAt(window, kPlace));
    QSignalSpy clicked(&content, &QPushButton::clicked);
    const QPoint before = PlaceOf(window).topLeft();
    RealInput::Drag(before + QPoint(100, 20), before + QPoint(180, 60));
    QTRY_VERIFY(PlaceOf(window).left() > before.x());
    // The window manager may tell of the last step of the move a moment later.
    QPoint place;
    QTRY_VERIFY(PlaceOf(window).topLeft() == std::exchange(place, PlaceOf(window).topLeft()));
    RealInput::Click(content.mapToGlobal(content.rect().center()));
    QTRY_COMPARE(clicked.count(), 1);
}

void FramelessWindowsTest::aDoubleClickOnTheTitleBarMaximisesAndRestores()
{
    FramelessMainWindow window;
    window.resize(kPlace.size());
    QWidget bar(&window);
    MakeTitleBar(&window, &bar);
    window.setTitleBar(&bar);
    QVERIFY(RealInput::ShowAt(window, kPlace));
    QSignalSpy states(&window, &FramelessMainWindow::windowStateChange);
    RealInput::DoubleClick(window.mapToGlobal(QPoint(100, 20)));
    QTRY_VERIFY(window.isMaximized());
    QTRY_VERIFY(window.width() > 1000);
    QCOMPARE(states.last().first().toBool(), true);
    RealInput::DoubleClick(window.mapToGlobal(QPoint(100, 20)));
    QTRY_VERIFY(!window.isMaximized());
    QTRY_COMPARE(window.width(), 500);
}

void FramelessWindowsTest::thePortableWindowMovesAndResizesItself()
{
    PureQtFramelessWindow window;
    window.resize(kPlace.size());
    QWidget bar(&window);
    MakeTitleBar(&window, &bar);
    window.addTitleBar(&bar);
    QSignalSpy doubleClicks(&window, &PureQtFramelessWindow::titleDblClick);
    QVERIFY(RealInput::ShowAt(window, kPlace));
    QRect before = PlaceOf(window);
    RealInput::Drag(before.topLeft() + QPoint(100, 20), before.topLeft() + QPoint(160, 60));
    QTRY_COMPARE(PlaceOf(window), before.translated(60, 40));
    before = PlaceOf(window);
    RealInput::Drag(before.topLeft() + QPoint(497, 297), before.topLeft() + QPoint(547, 337));
    QTRY_COMPARE(PlaceOf(window), before.marginsAdded(QMargins(0, 0, 50, 40)));
    RealInput::DoubleClick(window.mapToGlobal(QPoint(100, 20)));
    QTRY_COMPARE(doubleClicks.count(), 1);
}

CUSTOMCONTROLS_TEST_MAIN(FramelessWindowsTest)
#include "FramelessWindowsTest.moc"
