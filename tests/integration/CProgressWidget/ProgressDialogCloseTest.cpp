#include <CustomControls/CProgressWidget/CProgressWidget.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QPushButton>
#include <QWindow>

#include <functional>

namespace {

constexpr int kPatience = 5000;
const QRect kPlace(400, 300, 580, 158);

/** Counts the close requests that reach a window of the window system. */
class CloseRequests : public QObject
{
public:
    explicit CloseRequests(const QWidget& widget) { widget.windowHandle()->installEventFilter(this); }
    int m_iCount = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        m_iCount += event->type() == QEvent::Close;
        return QObject::eventFilter(watched, event);
    }
};

} // namespace

/** Who may close a progress dialog, under a real window manager: the program and the dialog's own button. */
class ProgressDialogCloseTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void altF4ClosesAnOrdinaryWindow();
    void altF4DoesNothingToTheDialog();
    void programCloses_data();
    void programCloses();
    void closeButtonIsClicked();
};

void ProgressDialogCloseTest::initTestCase()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("needs an X display with a window manager, and xdotool");
    }
}

// Without this the next test would also pass where the window manager knows no such key.
void ProgressDialogCloseTest::altF4ClosesAnOrdinaryWindow()
{
    QWidget window(nullptr, Qt::Dialog | Qt::FramelessWindowHint);
    QVERIFY(RealInput::ShowAt(window, kPlace));
    RealInput::Key(QStringLiteral("alt+F4"));
    QTRY_VERIFY_WITH_TIMEOUT(!window.isVisible(), kPatience);
}

void ProgressDialogCloseTest::altF4DoesNothingToTheDialog()
{
    CProgressWidget dialog;
    dialog.autoAddNumRun(60, 500);
    QVERIFY(RealInput::ShowAt(dialog, kPlace));
    const CloseRequests requests(dialog);
    QSignalSpy clicks(&dialog, &CProgressWidget::signalCloseBtnClicked);
    for (int round = 1; round <= 2; ++round) {
        const int before = requests.m_iCount;
        RealInput::Key(QStringLiteral("alt+F4"));
        QTRY_VERIFY_WITH_TIMEOUT(requests.m_iCount > before, kPatience);
        QVERIFY(dialog.isVisible());
        QVERIFY(dialog.windowHandle()->isVisible());
        QVERIFY(dialog.isActiveWindow());
    }
    QVERIFY(clicks.isEmpty());
    // Having refused the user it still obeys the program.
    QVERIFY(dialog.close());
    QVERIFY(!dialog.isVisible());
}

void ProgressDialogCloseTest::programCloses_data()
{
    QTest::addColumn<int>("way");
    QTest::newRow("close") << 0;
    QTest::newRow("stop") << 1;
    QTest::newRow("failure") << 2;
    QTest::newRow("window") << 3;
    QTest::newRow("all windows") << 4;
}

void ProgressDialogCloseTest::programCloses()
{
    QFETCH(const int, way);
    CProgressWidget dialog;
    QVERIFY(RealInput::ShowAt(dialog, kPlace));
    const std::function<void()> ways[] = {[&] { dialog.close(); }, [&] { dialog.stop(); },
                                          [&] { dialog.progressFailDeal(); }, [&] { dialog.windowHandle()->close(); },
                                          [] { QApplication::closeAllWindows(); }};
    ways[way]();
    QVERIFY(!dialog.isVisible());
}

void ProgressDialogCloseTest::closeButtonIsClicked()
{
    CProgressWidget dialog;
    QVERIFY(RealInput::ShowAt(dialog, kPlace));
    const auto* button = dialog.findChild<QPushButton*>();
    QVERIFY(button);
    RealInput::Click(dialog.geometry().topLeft() + button->geometry().center());
    QTRY_VERIFY_WITH_TIMEOUT(!dialog.isVisible(), kPatience);
}

CUSTOMCONTROLS_TEST_MAIN(ProgressDialogCloseTest)
#include "ProgressDialogCloseTest.moc"
