#include <CustomControls/messagebox/CVelmarMessageBox.h>
#include <CustomControls/messagebox/CVelmarMessageListItem.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>

#include <functional>
#include <memory>

namespace {

constexpr int kUnanswered = -1;
constexpr int kPatience = 5000;
const QList<int> kTools{1, 2, 3, 4, 5, 6, 7, 8, 1, 2, 3, 4};

CVelmarMessageBox* RunningBox()
{
    return qobject_cast<CVelmarMessageBox*>(QApplication::activeModalWidget());
}

/** See MessageBoxFocusTest: the native window may keep the place inside its frame, while the widget knows it. */
QPoint CenterOf(const QWidget* widget)
{
    const QWidget* window = widget->window();
    return window->geometry().topLeft() + widget->mapTo(window, widget->rect().center());
}

} // namespace

/** The confirmation of a job's tools under a real window manager, answered by a real mouse and keyboard. */
class GCodeConfirmInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void clickOnOkAnswers();
    void returnAnswers();
    void spaceAnswers();
    void escapeClosesWithTwo();
    void wheelScrollsTheRows();
    void clickOnARowChangesNothing();
    void wholeBoxLiesOnTheScreen();

private:
    using Script = std::function<void(CVelmarMessageBox*)>;

    /** Asks, and lets @p script answer once the box has the focus. */
    int Ask(const Script& script);

    std::unique_ptr<QWidget> m_pHost;
};

void GCodeConfirmInputTest::initTestCase()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("needs an X display with a window manager and xdotool");
    }
}

void GCodeConfirmInputTest::init()
{
    m_pHost = std::make_unique<QWidget>();
    QVERIFY(RealInput::ShowAt(*m_pHost, QRect(300, 200, 700, 500)));
}

void GCodeConfirmInputTest::cleanup()
{
    m_pHost.reset();
}

int GCodeConfirmInputTest::Ask(const Script& script)
{
    QTimer::singleShot(0, this, [&script] {
        CVelmarMessageBox* box = RunningBox();
        QVERIFY(box);
        // A script that fails leaves the box without an answer; the test goes on all the same.
        QTimer::singleShot(2 * kPatience, box, [box] { box->MsgExit(kUnanswered); });
        QTRY_VERIFY_WITH_TIMEOUT(box->isActiveWindow(), kPatience);
        script(box);
    });
    return CVelmarMessageBox::ShowGCodeConfirmWindow(m_pHost.get(), 0, MsgIconPop5, QStringLiteral("确认刀具"), kTools,
                                                     {}, {}, {}, -1, ModelTypeStandard);
}

void GCodeConfirmInputTest::clickOnOkAnswers()
{
    const int code = Ask([](CVelmarMessageBox* box) {
        const auto* ok = box->findChild<QPushButton*>();
        RealInput::MoveTo(CenterOf(ok));
        QTRY_VERIFY_WITH_TIMEOUT(ok->underMouse(), kPatience);
        RealInput::Click(CenterOf(ok));
    });
    QCOMPARE(code, int(MsgBtnOk));
}

void GCodeConfirmInputTest::returnAnswers()
{
    QCOMPARE(Ask([](CVelmarMessageBox*) { RealInput::Key(QStringLiteral("Return")); }), int(MsgBtnOk));
}

void GCodeConfirmInputTest::spaceAnswers()
{
    // The list takes no focus, so the button has it.
    const int code = Ask([](CVelmarMessageBox* box) {
        QTRY_VERIFY_WITH_TIMEOUT(box->findChild<QPushButton*>()->hasFocus(), kPatience);
        RealInput::Key(QStringLiteral("space"));
    });
    QCOMPARE(code, int(MsgBtnOk));
}

void GCodeConfirmInputTest::escapeClosesWithTwo()
{
    QCOMPARE(Ask([](CVelmarMessageBox*) { RealInput::Key(QStringLiteral("Escape")); }), 2);
    QTRY_VERIFY(m_pHost->isActiveWindow());
}

void GCodeConfirmInputTest::wheelScrollsTheRows()
{
    const int code = Ask([](CVelmarMessageBox* box) {
        const auto* list = box->findChild<QListWidget*>();
        QTRY_VERIFY_WITH_TIMEOUT(list->verticalScrollBar()->maximum() > 0, kPatience);
        RealInput::Click(CenterOf(list), 5);
        QTRY_VERIFY_WITH_TIMEOUT(list->verticalScrollBar()->value() > 0, kPatience);
        RealInput::Key(QStringLiteral("Return"));
    });
    QCOMPARE(code, int(MsgBtnOk));
}

void GCodeConfirmInputTest::clickOnARowChangesNothing()
{
    const int code = Ask([](CVelmarMessageBox* box) {
        auto* list = box->findChild<QListWidget*>();
        const QImage before = list->viewport()->grab().toImage();
        RealInput::Click(CenterOf(list));
        QTRY_VERIFY_WITH_TIMEOUT(box->findChild<QPushButton*>()->hasFocus(), kPatience);
        QVERIFY(list->selectedItems().isEmpty());
        QCOMPARE(list->viewport()->grab().toImage(), before);
        RealInput::Key(QStringLiteral("Return"));
    });
    QCOMPARE(code, int(MsgBtnOk));
}

void GCodeConfirmInputTest::wholeBoxLiesOnTheScreen()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    m_pHost->move(m_pHost->x(), screen.bottom() - 200);
    QTRY_VERIFY(m_pHost->y() > 300);
    const int code = Ask([screen](CVelmarMessageBox* box) {
        QTRY_VERIFY_WITH_TIMEOUT(screen.contains(box->frameGeometry()), kPatience);
        RealInput::Click(CenterOf(box->findChild<QPushButton*>()));
    });
    QCOMPARE(code, int(MsgBtnOk));
}

CUSTOMCONTROLS_TEST_MAIN(GCodeConfirmInputTest)
#include "GCodeConfirmInputTest.moc"
