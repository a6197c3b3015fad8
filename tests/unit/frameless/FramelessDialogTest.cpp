#include <CustomControls/frameless/FramelessDialog.h>

#include <tests/support/TestMain.h>

#include <QSignalSpy>

class FramelessDialogTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aNewDialogHasNoSystemFrame();
    void paddingStartsAtEight();
    void settersStoreOnly();
    void escapeNeverClosesTheDialog();
    void escapeOfTheTitleBarIsSwallowedToo();
    void releasedEscapeRestoresAMaximisedDialog();
    void releasedEscapePassesOnInANormalDialog();
    void aStateChangeIsReported();
    void thereIsNoSignalOfMoving();
};

void FramelessDialogTest::aNewDialogHasNoSystemFrame()
{
    FramelessDialog dialog;
    const Qt::WindowFlags flags = dialog.windowFlags();
    QVERIFY(flags.testFlag(Qt::FramelessWindowHint));
    QVERIFY(flags.testFlag(Qt::CustomizeWindowHint));
    QVERIFY(flags.testFlag(Qt::WindowMinimizeButtonHint));
    QVERIFY(!flags.testFlag(Qt::WindowMaximizeButtonHint));
    QVERIFY(!flags.testFlag(Qt::WindowCloseButtonHint));
    dialog.show();
    QVERIFY(dialog.windowHandle()->flags().testFlag(Qt::FramelessWindowHint));
}

void FramelessDialogTest::paddingStartsAtEight()
{
    FramelessDialog dialog;
    QCOMPARE(dialog.padding, 8);
    dialog.setPadding(3);
    QCOMPARE(dialog.padding, 3);
}

void FramelessDialogTest::settersStoreOnly()
{
    FramelessDialog dialog;
    dialog.setMoveEnable(false);
    dialog.setResizeEnable(false);
    QVERIFY(!dialog.moveEnable);
    QVERIFY(!dialog.resizeEnable);
}

void FramelessDialogTest::escapeNeverClosesTheDialog()
{
    FramelessDialog dialog;
    QSignalSpy rejected(&dialog, &QDialog::rejected);
    dialog.show();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    QCOMPARE(rejected.count(), 0);
}

void FramelessDialogTest::escapeOfTheTitleBarIsSwallowedToo()
{
    class KeyCounter : public QWidget
    {
    public:
        using QWidget::QWidget;
        int presses = 0;

    protected:
        void keyPressEvent(QKeyEvent*) override { ++presses; }
    };
    FramelessDialog dialog;
    KeyCounter bar(&dialog);
    dialog.setTitleBar(&bar);
    QTest::keyPress(&bar, Qt::Key_Escape);
    QCOMPARE(bar.presses, 0);
    QTest::keyPress(&bar, Qt::Key_A);
    QCOMPARE(bar.presses, 1);
}

void FramelessDialogTest::releasedEscapeRestoresAMaximisedDialog()
{
    FramelessDialog dialog;
    dialog.showMaximized();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QTRY_VERIFY(dialog.isMaximized());
    QTest::keyRelease(&dialog, Qt::Key_Escape);
    QTRY_VERIFY(!dialog.isMaximized());
    QVERIFY(dialog.isVisible());
}

void FramelessDialogTest::releasedEscapePassesOnInANormalDialog()
{
    FramelessDialog dialog;
    dialog.show();
    const QSize size = dialog.size();
    QTest::keyRelease(&dialog, Qt::Key_Escape);
    QVERIFY(dialog.isVisible());
    QCOMPARE(dialog.size(), size);
}

void FramelessDialogTest::aStateChangeIsReported()
{
    FramelessDialog dialog;
    QSignalSpy spy(&dialog, &FramelessDialog::windowStateChange);
    dialog.setResizeEnable(false);
    dialog.setWindowState(Qt::WindowMaximized);
    dialog.setWindowState(Qt::WindowNoState);
    QVERIFY(spy.count() >= 2);
    QCOMPARE(spy.first().first().toBool(), true);
    QCOMPARE(spy.last().first().toBool(), false);
    QVERIFY(dialog.resizeEnable);
}

void FramelessDialogTest::thereIsNoSignalOfMoving()
{
    QCOMPARE(FramelessDialog::staticMetaObject.indexOfSignal("SignalMoving()"), -1);
    QVERIFY(FramelessDialog::staticMetaObject.indexOfSignal("SignalTitleBarMousePressed()") >= 0);
}

CUSTOMCONTROLS_TEST_MAIN(FramelessDialogTest)
#include "FramelessDialogTest.moc"
