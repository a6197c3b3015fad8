#include <CustomControls/buttons/CHintButton.h>
#include <CustomControls/buttons/CHintTextToolTip.h>
#include <CustomControls/feedback/CFrostedToolTip.h>
#include <CustomControls/feedback/CWatermarkWidget.h>
#include <CustomControls/feedback/ToastWidget.h>
#include <CustomControls/feedback/ToolTipEventFilter.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>

#include <algorithm>
#include <memory>

namespace {

constexpr int kPatience = 8000;
// A timer of this length may fire five in a hundred early.
constexpr int kStandMs = 3325;
const QRect kWindow(200, 150, 700, 500);

/** A note that lets the mouse through, as a host derives one. */
class ThroughNote : public CHintToolTip
{
public:
    ThroughNote()
        : CHintToolTip(nullptr, nullptr)
    {
        m_bTakesMouse = false;
        resize(200, 120);
    }
};

QList<CFrostedToolTip*> FrostedTips()
{
    QList<CFrostedToolTip*> tips;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (auto* tip = qobject_cast<CFrostedToolTip*>(window)) {
            tips.append(tip);
        }
    }
    return tips;
}

QPoint CentreOf(const QWidget& widget)
{
    return widget.mapToGlobal(widget.rect().center());
}

/** Comes to rest there in two steps, as a hand does: one that only enters a window starts no tool tip. */
void HoverAt(const QPoint& place)
{
    RealInput::MoveTo(place - QPoint(4, 0));
    RealInput::MoveTo(place);
}

/** Keeps what the opacity of each frosted tip is at each of its events. */
class OpacityRecorder : public QObject
{
public:
    OpacityRecorder() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (const auto* tip = qobject_cast<CFrostedToolTip*>(watched)) {
            if (event->type() == QEvent::Show) {
                m_clock.start();
            }
            m_listOpacities.append(tip->windowOpacity());
        }
        return QObject::eventFilter(watched, event);
    }

    QElapsedTimer m_clock; ///< since the last tip was shown
    QList<double> m_listOpacities;
};

} // namespace

/** Toasts, notes and tips under a real window manager, with a real mouse and keyboard. */
class FeedbackInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void clickOnAToastReachesTheWindowBeneath();
    void toastNeverTakesTheFocus();
    void clickOnAPassThroughNoteReachesTheWindowBeneath();
    void clickOnANoteThatTakesTheMouseStaysThere();
    void hoverShowsTheNoteAndLeavingHidesIt();
    void pinnedNoteClosesOnAPressElsewhereOnly();
    void shownNoteLeavesInputUnharmed();
    void frostedTipFadesInStandsAndFadesOut();
    void frostedTipGoesAtOnceOnLeave();
    void clicksAndKeysPassThroughTheWatermark();
    void watermarkShowsOverTheWindow();

private:
    std::unique_ptr<QWidget> m_window;
    CHintButton* m_button = nullptr;
    QLineEdit* m_edit = nullptr;
};

void FeedbackInputTest::initTestCase()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("needs a display and xdotool");
    }
}

void FeedbackInputTest::init()
{
    RealInput::MoveTo(QPoint(20, 20));
    m_window = std::make_unique<QWidget>();
    m_button = new CHintButton(m_window.get());
    m_button->setGeometry(100, 100, 120, 40);
    m_edit = new QLineEdit(m_window.get());
    m_edit->setGeometry(100, 300, 300, 40);
    QVERIFY(RealInput::ShowAt(*m_window, kWindow));
    m_edit->setFocus();
}

void FeedbackInputTest::cleanup()
{
    m_window.reset();
    QTRY_VERIFY_WITH_TIMEOUT(FrostedTips().isEmpty(), kPatience);
}

void FeedbackInputTest::clickOnAToastReachesTheWindowBeneath()
{
    ToastWidget toast(ToastWidget::ToastModelEdit, m_window.get(), QString());
    toast.move(CentreOf(*m_button) - toast.rect().center());
    toast.show();
    QVERIFY(QTest::qWaitForWindowExposed(&toast));
    QTRY_VERIFY(toast.geometry().contains(CentreOf(*m_button)));
    const QSignalSpy clicked(m_button, &QPushButton::clicked);
    RealInput::Click(CentreOf(*m_button));
    QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, kPatience);
    QVERIFY(toast.isVisible());
}

void FeedbackInputTest::toastNeverTakesTheFocus()
{
    for (QWidget* parent : {m_window.get(), static_cast<QWidget*>(nullptr)}) {
        ToastWidget toast(ToastWidget::ToastCustomText, parent, QStringLiteral("刀具磨损"));
        toast.move(CentreOf(*m_edit));
        toast.show();
        QVERIFY(QTest::qWaitForWindowExposed(&toast));
        m_edit->clear();
        RealInput::Type(QStringLiteral("abc"));
        QTRY_COMPARE_WITH_TIMEOUT(m_edit->text(), QStringLiteral("abc"), kPatience);
        QCOMPARE(QApplication::activeWindow(), m_window.get());
        QCOMPARE(QApplication::focusWidget(), m_edit);
    }
}

void FeedbackInputTest::clickOnAPassThroughNoteReachesTheWindowBeneath()
{
    ThroughNote note;
    m_button->SetToolTip(&note);
    note.move(CentreOf(*m_button) - note.rect().center());
    note.show();
    QVERIFY(QTest::qWaitForWindowExposed(&note));
    QTRY_VERIFY(note.geometry().contains(CentreOf(*m_button)));
    const QSignalSpy clicked(m_button, &QPushButton::clicked);
    RealInput::Click(CentreOf(*m_button));
    QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, kPatience);
}

void FeedbackInputTest::clickOnANoteThatTakesTheMouseStaysThere()
{
    CHintTextToolTip note(nullptr, nullptr);
    note.setText(QStringLiteral("一\n二\n三\n四\n五"));
    note.setOwnerButton(m_button);
    note.move(CentreOf(*m_button) - note.rect().center());
    note.show();
    QVERIFY(QTest::qWaitForWindowExposed(&note));
    QTRY_VERIFY(note.geometry().contains(CentreOf(*m_button)));
    const QSignalSpy clicked(m_button, &QPushButton::clicked);
    RealInput::Click(CentreOf(*m_button));
    RealInput::Click(CentreOf(*m_edit)); // input comes in order: this one ends the wait for the first
    QTRY_VERIFY_WITH_TIMEOUT(!note.isVisible(), kPatience);
    QCOMPARE(clicked.count(), 0);
}

void FeedbackInputTest::hoverShowsTheNoteAndLeavingHidesIt()
{
    m_button->SetToolTipText(QStringLiteral("主轴转速过高"));
    HoverAt(CentreOf(*m_button));
    QTRY_VERIFY_WITH_TIMEOUT(m_button->IsToolTipVisible(), kPatience);
    QCOMPARE(QApplication::activeWindow(), m_window.get());
    RealInput::MoveTo(QPoint(20, 20));
    QTRY_VERIFY_WITH_TIMEOUT(!m_button->IsToolTipVisible(), kPatience);
}

void FeedbackInputTest::pinnedNoteClosesOnAPressElsewhereOnly()
{
    CHintTextToolTip note(nullptr, m_window.get());
    note.setText(QStringLiteral("主轴转速过高"));
    m_button->SetToolTip(&note);
    RealInput::Click(CentreOf(*m_button));
    QTRY_VERIFY_WITH_TIMEOUT(note.isVisible(), kPatience);
    QVERIFY(QTest::qWaitForWindowExposed(&note));
    const QSignalSpy clicked(m_button, &QPushButton::clicked);
    RealInput::Click(CentreOf(*m_button));
    QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, kPatience);
    QVERIFY(note.isVisible());
    // Leaving keeps it, and so does a press on the note.
    RealInput::MoveTo(CentreOf(note));
    QTRY_VERIFY_WITH_TIMEOUT(note.underMouse(), kPatience);
    RealInput::Press();
    QTRY_VERIFY_WITH_TIMEOUT(QGuiApplication::mouseButtons() & Qt::LeftButton, kPatience);
    QVERIFY(note.isVisible());
    RealInput::Release();
    QVERIFY(note.isVisible());
    RealInput::Click(CentreOf(*m_edit));
    QTRY_VERIFY_WITH_TIMEOUT(!note.isVisible(), kPatience);
    QTRY_VERIFY(m_edit->hasFocus());
}

void FeedbackInputTest::shownNoteLeavesInputUnharmed()
{
    m_button->SetToolTipText(QStringLiteral("主轴转速过高"));
    m_button->ShowToolTip(true);
    RealInput::Type(QStringLiteral("S12500"));
    QTRY_COMPARE_WITH_TIMEOUT(m_edit->text(), QStringLiteral("S12500"), kPatience);
    RealInput::Key(QStringLiteral("BackSpace"));
    QTRY_COMPARE_WITH_TIMEOUT(m_edit->text(), QStringLiteral("S1250"), kPatience);
    HoverAt(CentreOf(*m_edit));
    QTRY_VERIFY_WITH_TIMEOUT(m_edit->underMouse(), kPatience);
    QVERIFY(m_button->IsToolTipVisible());
    // The press that hides the note is one of the edit's own too.
    RealInput::DoubleClick(m_edit->mapToGlobal(QPoint(12, 20)));
    QTRY_COMPARE_WITH_TIMEOUT(m_edit->selectedText(), QStringLiteral("S1250"), kPatience);
    QVERIFY(!m_button->IsToolTipVisible());
}

void FeedbackInputTest::frostedTipFadesInStandsAndFadesOut()
{
    const OpacityRecorder recorder;
    ToolTipEventFilter filter(nullptr);
    m_button->setToolTip(QStringLiteral("生成G代码"));
    m_button->installEventFilter(&filter);
    HoverAt(CentreOf(*m_button));
    QTRY_COMPARE_WITH_TIMEOUT(FrostedTips().size(), 1, kPatience);
    const QPointer<CFrostedToolTip> tip = FrostedTips().first();
    QTRY_COMPARE(tip->windowOpacity(), 1.0);
    QVERIFY(std::any_of(recorder.m_listOpacities.begin(), recorder.m_listOpacities.end(),
                        [](double opacity) { return opacity < 1.0; }));
    QCOMPARE(FrostedTips().size(), 1);
    // It stands until its time is over, and is seen to fade before it goes.
    QTRY_VERIFY_WITH_TIMEOUT(!tip || tip->windowOpacity() < 1.0, kPatience);
    QVERIFY2(recorder.m_clock.elapsed() >= kStandMs, "the tip went before its time");
    QVERIFY2(tip, "the tip went without fading");
    QTRY_VERIFY(!tip);
    QCOMPARE(QApplication::activeWindow(), m_window.get());
}

void FeedbackInputTest::frostedTipGoesAtOnceOnLeave()
{
    const OpacityRecorder recorder;
    ToolTipEventFilter filter(nullptr);
    m_button->setToolTip(QStringLiteral("生成G代码"));
    m_button->installEventFilter(&filter);
    HoverAt(CentreOf(*m_button));
    QTRY_COMPARE_WITH_TIMEOUT(FrostedTips().size(), 1, kPatience);
    const QPointer<CFrostedToolTip> tip = FrostedTips().first();
    RealInput::MoveTo(QPoint(20, 20));
    QTRY_VERIFY(!tip);
    QVERIFY2(recorder.m_clock.elapsed() < kStandMs, "the tip stood its whole time");
}

void FeedbackInputTest::clicksAndKeysPassThroughTheWatermark()
{
    CWatermarkWidget watermark(m_window.get());
    watermark.setGeometry(m_window->rect());
    watermark.lower();
    watermark.show();
    watermark.ShowWatermark();
    auto* mark = watermark.findChild<QLabel*>();
    QVERIFY(QTest::qWaitForWindowExposed(mark));
    QTRY_VERIFY(mark->geometry().contains(CentreOf(*m_button)));
    const QSignalSpy clicked(m_button, &QPushButton::clicked);
    RealInput::Click(CentreOf(*m_button));
    QTRY_COMPARE_WITH_TIMEOUT(clicked.count(), 1, kPatience);
    m_edit->setFocus();
    RealInput::Type(QStringLiteral("abc"));
    QTRY_COMPARE_WITH_TIMEOUT(m_edit->text(), QStringLiteral("abc"), kPatience);
    QVERIFY(mark->isVisible());
}

void FeedbackInputTest::watermarkShowsOverTheWindow()
{
    const auto screen = [this] {
        const QRect area = m_window->geometry();
        return m_window->screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height()).toImage();
    };
    const auto reddish = [](const QImage& image) {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const QRgb pixel = image.pixel(x, y);
                count += qRed(pixel) > qGreen(pixel) + 20 && qRed(pixel) > qBlue(pixel) + 20 ? 1 : 0;
            }
        }
        return count;
    };
    QTRY_VERIFY(screen().pixelColor(5, 5).lightness() > 150);
    const QColor blank = screen().pixelColor(5, 5);
    QCOMPARE(reddish(screen()), 0);
    CWatermarkWidget watermark(m_window.get());
    watermark.setGeometry(m_window->rect());
    watermark.ShowWatermark();
    QTRY_VERIFY_WITH_TIMEOUT(reddish(screen()) > 500, kPatience);
    // The window beneath still shows between the letters.
    const QImage marked = screen();
    int same = 0;
    for (int y = 0; y < marked.height(); ++y) {
        same += marked.pixelColor(5, y) == blank ? 1 : 0;
    }
    QVERIFY(same > marked.height() / 3);
}

CUSTOMCONTROLS_TEST_MAIN(FeedbackInputTest)

#include "FeedbackInputTest.moc"
