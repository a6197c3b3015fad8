#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <tests/support/TestMain.h>

#include <QPointer>
#include <QProcess>
#include <QPushButton>
#include <QStandardPaths>

#include <functional>

namespace {

constexpr int kUnanswered = -1;
constexpr int kPatience = 5000;

void Tool(const QStringList& arguments)
{
    QCOMPARE(QProcess::execute(QStringLiteral("xdotool"), arguments), 0);
}

void PressKey(const char* key)
{
    Tool({QStringLiteral("key"), QLatin1String(key)});
}

void MovePointer(const QPoint& global)
{
    Tool({QStringLiteral("mousemove"), QString::number(global.x()), QString::number(global.y())});
}

/**
 * Where a widget's centre is on the screen. Not mapToGlobal: the native window may keep the place that it had inside
 * its frame when the window manager adopted it, while the widget knows the right one.
 */
QPoint CentreOf(const QWidget* widget)
{
    const QWidget* window = widget->window();
    return window->geometry().topLeft() + widget->mapTo(window, widget->rect().center());
}

/** Press and release, each once the one before has arrived, as a hand would do it. */
void Click(const QWidget* widget)
{
    MovePointer(CentreOf(widget));
    QTRY_VERIFY2_WITH_TIMEOUT(widget->underMouse(), "the pointer has not arrived", kPatience);
    Tool({QStringLiteral("mousedown"), QStringLiteral("1")});
    QTRY_VERIFY2_WITH_TIMEOUT(QGuiApplication::mouseButtons() & Qt::LeftButton, "the press has not arrived", kPatience);
    Tool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

CVelmarMessageBox* RunningBox()
{
    return qobject_cast<CVelmarMessageBox*>(QApplication::activeModalWidget());
}

QPushButton* ButtonOf(const CVelmarMessageBox* box, int bit)
{
    const QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
    for (QPushButton* button : buttons) {
        if (button->property("Function").toInt() == bit) {
            return button;
        }
    }
    return nullptr;
}

} // namespace

/** Message boxes under a real window manager, answered by a real keyboard and mouse. */
class MessageBoxFocusTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void tabMovesBetweenButtonsAndReturnPressesFocusedOne();
    void firstButtonHasTheFocusAtFirst();
    void enterOfTheKeypadPressesToo();
    void escapeClosesBoxWithCancel();
    void escapeLeavesQuestionOpen();
    void returnAnswersBoxOfOneDisabledButton();
    void closeButtonIsClicked();
    void windowBeneathTakesNoInput();
    void newerBoxTakesInputAndGivesItBack();
    void topBandDragsBox();

private:
    using Script = std::function<void(CVelmarMessageBox*)>;

    /** Asks a question and lets @p script answer it once the box has the focus. */
    int Ask(int mask, const Script& script);

    QWidget* m_pHost = nullptr;
    QPushButton* m_pHostButton = nullptr;
    int m_iHostClicks = 0;
};

void MessageBoxFocusTest::initTestCase()
{
    if (QGuiApplication::platformName() != QLatin1String("xcb")) {
        QSKIP("needs an X display with a window manager");
    }
    if (QStandardPaths::findExecutable(QStringLiteral("xdotool")).isEmpty()) {
        QSKIP("needs xdotool");
    }
}

void MessageBoxFocusTest::init()
{
    m_iHostClicks = 0;
    m_pHost = new QWidget;
    m_pHost->setGeometry(300, 200, 700, 600);
    m_pHostButton = new QPushButton(QStringLiteral("host"), m_pHost);
    m_pHostButton->setGeometry(10, 10, 100, 30);
    connect(m_pHostButton, &QPushButton::clicked, this, [this] { ++m_iHostClicks; });
    m_pHost->show();
    // A window manager that is still starting up gives the focus to nobody until it is asked again.
    QTRY_VERIFY_WITH_TIMEOUT((m_pHost->activateWindow(), m_pHost->isActiveWindow()), 4 * kPatience);
}

void MessageBoxFocusTest::cleanup()
{
    delete m_pHost;
    m_pHost = nullptr;
}

int MessageBoxFocusTest::Ask(int mask, const Script& script)
{
    QTimer::singleShot(0, this, [&script] {
        CVelmarMessageBox* box = RunningBox();
        QVERIFY(box);
        // A script that fails leaves the box without an answer; the test goes on all the same.
        QTimer::singleShot(2 * kPatience, box, [box] { box->MsgExit(kUnanswered); });
        QTRY_VERIFY_WITH_TIMEOUT(box->isActiveWindow(), kPatience);
        script(box);
    });
    return CVelmarMessageBox::ShowWindow(m_pHost, mask, MsgIconPop3, QStringLiteral("问题"), QStringLiteral("内容"),
                                         {});
}

void MessageBoxFocusTest::firstButtonHasTheFocusAtFirst()
{
    const int result = Ask(MsgBtnYes | MsgBtnNo, [](CVelmarMessageBox* box) {
        QTRY_VERIFY_WITH_TIMEOUT(ButtonOf(box, MsgBtnYes)->hasFocus(), kPatience);
        PressKey("Return");
    });
    QCOMPARE(result, int(MsgBtnYes));
}

void MessageBoxFocusTest::tabMovesBetweenButtonsAndReturnPressesFocusedOne()
{
    const int result = Ask(MsgBtnYes | MsgBtnNo | MsgBtnRetry, [](CVelmarMessageBox* box) {
        QTRY_VERIFY_WITH_TIMEOUT(ButtonOf(box, MsgBtnYes)->hasFocus(), kPatience);
        PressKey("Tab");
        QTRY_VERIFY_WITH_TIMEOUT(ButtonOf(box, MsgBtnNo)->hasFocus(), kPatience);
        PressKey("Tab");
        QTRY_VERIFY_WITH_TIMEOUT(ButtonOf(box, MsgBtnRetry)->hasFocus(), kPatience);
        PressKey("Tab");
        QTRY_VERIFY_WITH_TIMEOUT(ButtonOf(box, MsgBtnYes)->hasFocus(), kPatience);
        PressKey("shift+Tab");
        QTRY_VERIFY_WITH_TIMEOUT(ButtonOf(box, MsgBtnRetry)->hasFocus(), kPatience);
        PressKey("Return");
    });
    QCOMPARE(result, int(MsgBtnRetry));
}

void MessageBoxFocusTest::enterOfTheKeypadPressesToo()
{
    const int result = Ask(MsgBtnYes | MsgBtnNo, [](CVelmarMessageBox* box) {
        ButtonOf(box, MsgBtnNo)->setFocus();
        PressKey("KP_Enter");
    });
    QCOMPARE(result, int(MsgBtnNo));
}

void MessageBoxFocusTest::escapeClosesBoxWithCancel()
{
    QCOMPARE(Ask(MsgBtnOk | MsgBtnCancel, [](CVelmarMessageBox*) { PressKey("Escape"); }), 2);
    QTRY_VERIFY(m_pHost->isActiveWindow());
}

void MessageBoxFocusTest::escapeLeavesQuestionOpen()
{
    const int result = Ask(MsgBtnYes | MsgBtnNo, [](CVelmarMessageBox* box) {
        PressKey("Escape");
        PressKey("Tab");
        QTRY_VERIFY_WITH_TIMEOUT(ButtonOf(box, MsgBtnNo)->hasFocus(), kPatience);
        QVERIFY(box->isVisible());
        PressKey("space");
    });
    QCOMPARE(result, int(MsgBtnNo));
}

void MessageBoxFocusTest::returnAnswersBoxOfOneDisabledButton()
{
    const int result = Ask(MsgBtnIgnore, [](CVelmarMessageBox* box) {
        box->SetBtnEnable(false);
        PressKey("Return");
    });
    QCOMPARE(result, int(MsgBtnIgnore));
}

void MessageBoxFocusTest::closeButtonIsClicked()
{
    const int result = Ask(MsgBtnOk | MsgBtnCancel | MsgBtnRetry, [](CVelmarMessageBox* box) {
        const QWidget* closeButton = box->childAt(561, 19);
        QVERIFY(qobject_cast<const QPushButton*>(closeButton));
        Click(closeButton);
    });
    QCOMPARE(result, 2);
}

void MessageBoxFocusTest::windowBeneathTakesNoInput()
{
    const int result = Ask(MsgBtnYes | MsgBtnNo, [this](CVelmarMessageBox* box) {
        MovePointer(CentreOf(m_pHostButton));
        Tool({QStringLiteral("click"), QStringLiteral("1")});
        // What the box gets comes after what the host was denied.
        Click(ButtonOf(box, MsgBtnNo));
    });
    QCOMPARE(result, int(MsgBtnNo));
    QCOMPARE(m_iHostClicks, 0);
    Click(m_pHostButton);
    QTRY_COMPARE(m_iHostClicks, 1);
}

void MessageBoxFocusTest::newerBoxTakesInputAndGivesItBack()
{
    const int result = Ask(MsgBtnYes | MsgBtnNo, [this](CVelmarMessageBox* older) {
        const int inner = Ask(MsgBtnOk | MsgBtnCancel, [older](CVelmarMessageBox* newer) {
            QVERIFY(newer != older);
            QVERIFY(!older->isActiveWindow());
            PressKey("Escape");
        });
        QCOMPARE(inner, 2);
        QVERIFY(older->isVisible());
        QCOMPARE(RunningBox(), older);
        QTRY_VERIFY_WITH_TIMEOUT(older->isActiveWindow(), kPatience);
        Click(ButtonOf(older, MsgBtnYes));
    });
    QCOMPARE(result, int(MsgBtnYes));
}

void MessageBoxFocusTest::topBandDragsBox()
{
    const int result = Ask(MsgBtnYes | MsgBtnNo, [](CVelmarMessageBox* box) {
        const QPoint start = box->pos();
        MovePointer(start + QPoint(200, 15));
        Tool({QStringLiteral("mousedown"), QStringLiteral("1")});
        MovePointer(start + QPoint(230, 55));
        MovePointer(start + QPoint(260, 75));
        Tool({QStringLiteral("mouseup"), QStringLiteral("1")});
        QTRY_COMPARE_WITH_TIMEOUT(box->pos(), start + QPoint(60, 60), kPatience);
        Click(ButtonOf(box, MsgBtnYes));
    });
    QCOMPARE(result, int(MsgBtnYes));
}

CUSTOMCONTROLS_TEST_MAIN(MessageBoxFocusTest)
#include "MessageBoxFocusTest.moc"
