#include <CustomControls/platform/ClickThrough.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QPushButton>
#include <QSignalSpy>

/** A window that lets the mouse through, above one that takes it. */
class ClickThroughTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aClickReachesTheWindowBeneathUntilItIsTakenBack();
    void nullIsIgnored();
};

void ClickThroughTest::initTestCase()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("needs an X display and xdotool");
    }
}

void ClickThroughTest::aClickReachesTheWindowBeneathUntilItIsTakenBack()
{
    QPushButton beneath(QStringLiteral("beneath"));
    beneath.setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    QVERIFY(RealInput::ShowAt(beneath, QRect(300, 300, 300, 200)));

    QPushButton above(QStringLiteral("above"));
    above.setWindowFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    above.setAttribute(Qt::WA_ShowWithoutActivating);
    above.setGeometry(300, 300, 300, 200);
    SetClickThrough(&above, true);
    above.show();
    QVERIFY(QTest::qWaitForWindowExposed(&above));

    QSignalSpy beneathClicked(&beneath, &QPushButton::clicked);
    QSignalSpy aboveClicked(&above, &QPushButton::clicked);
    RealInput::Click(QPoint(450, 400));
    QTRY_COMPARE(beneathClicked.count(), 1);
    QCOMPARE(aboveClicked.count(), 0);

    above.hide();
    above.show();
    QVERIFY(QTest::qWaitForWindowExposed(&above));
    // The window manager hears of the flag a moment after the window has appeared.
    QVERIFY(QTest::qWaitFor([&] {
        RealInput::Click(QPoint(451, 401));
        return beneathClicked.count() >= 2;
    }));
    beneathClicked.clear();
    aboveClicked.clear();
    RealInput::Click(QPoint(450, 400));
    QTRY_COMPARE(beneathClicked.count(), 1);
    QCOMPARE(aboveClicked.count(), 0);

    SetClickThrough(&above, false);
    above.raise();
    RealInput::Click(QPoint(452, 402));
    QTRY_COMPARE(aboveClicked.count(), 1);
    QCOMPARE(beneathClicked.count(), 1);
}

void ClickThroughTest::nullIsIgnored()
{
    SetClickThrough(nullptr, true);
    SetClickThrough(nullptr, false);
}

CUSTOMCONTROLS_TEST_MAIN(ClickThroughTest)
#include "ClickThroughTest.moc"
