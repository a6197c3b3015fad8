#include <CustomControls/CProgressWidget/CProgressBar.h>
#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/CProgressWidget/MyProgressBar.h>
#include <CustomControls/CustomControlsTranslation.h>
#include <CustomControls/messagebox/CMsgBoxBackground.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>

#include <tests/support/TestMain.h>

#include <QAbstractEventDispatcher>
#include <QBoxLayout>
#include <QCloseEvent>
#include <QEventLoop>
#include <QLabel>
#include <QMessageBox>
#include <QMovie>
#include <QProcess>
#include <QPushButton>
#include <QScopeGuard>
#include <QSemaphore>
#include <QSet>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>

#include <climits>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

namespace {

constexpr const char* kFromWorker = "--create-from-worker";
constexpr const char* kFromMain = "--create-from-main-beside-the-application";
constexpr const char* kExpectedRatio = "TEST_EXPECTED_RATIO";

const QString kMessage = QStringLiteral("重建中，请稍候");
const QString kRestoreTitle = QStringLiteral("恢复扫描状态");
const QString kStitchTitle = QStringLiteral("三维拼接");
const QString kSurfaceTitle = QStringLiteral("表面重建");

CProgressBar* Bar(const CProgressWidget& dialog)
{
    return dialog.findChild<CProgressBar*>();
}
MyProgressBar* Stripes(const CProgressWidget& dialog)
{
    return dialog.findChild<MyProgressBar*>();
}
QLabel* Label(const CProgressWidget& dialog, const char* name)
{
    return dialog.findChild<QLabel*>(QString::fromLatin1(name));
}
QString Message(const CProgressWidget& dialog)
{
    return Label(dialog, "label_7")->text();
}

void Tick(QTimer* timer)
{
    QTimerEvent event(timer->timerId());
    QCoreApplication::sendEvent(timer, &event);
}

// A close request as the window system makes it: it reaches the window, marked as spontaneous.
void RequestClose(QObject* receiver)
{
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(receiver, &event);
}

void SendMouse(QWidget* widget, QEvent::Type type, QPointF local, QPointF global, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, local, global, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class CProgressWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The form and the start.
    void formStandsAsDesigned();
    void sheetsAreExact_data();
    void sheetsAreExact();
    void startsAtRest();
    void closeButtonStandsInTheCorner();
    void shownDialogTakesTheHeightOfItsContents();
    void barStartsWhereTheTextStarts();
    void newFrameGoesToTheLabel();
    void sameFrameIsNotCopiedAgain();
    void movieTimerWakesTheProcessSeldom();

    // Factories.
    void createWidgetPtrGivesAHiddenDialog();
    void createAutoWidgetShowsACreepingDialog();
    void freeAutoWidgetEndsTheDialog();
    void freeAutoWidgetActivatesTheMainWindowOnRequest();
    void freeAutoWidgetTakesADeadPointer();
    void freeAutoWidgetTakesADialogThatDiesOnTheWay();
    void createAutoWidgetOnAWorkerThreadEndsTheProcess();
    void createAutoWidgetBesideTheApplicationsThreadTellsTheUser();

    // Progress.
    void autoRunTakesItsTargetAndInterval_data();
    void autoRunTakesItsTargetAndInterval();
    void lowerTargetIsIgnored();
    void autoRunKeepsABarThatHasRisen();
    void autoStepsStayWithinTheirBounds();
    void autoRunStandsStillFiveBelowTheTarget();
    void barAboveTheTargetFallsBelowIt_data();
    void barAboveTheTargetFallsBelowIt();
    void endOfTheAutoRunReachesTheTarget();
    void endWithoutAnAutoRunEmptiesTheBar();
    void timerMirrorsTheHostsValue();
    void extraRunLeavesTheAutoRunInForce();
    void setValueMovesBarAndValue();
    void setValueRefreshesTheStripesOnRequest();
    void valueBeyondTheBarIsKeptForTheHost();
    void resetHidesAndKeepsRunning();
    void stageMessageTakesOverOnce();
    void stageMessageWaitsForTheEndOfTheAutoRun();
    void negativeStageValueNeverFires();

    // Texts.
    void dotsFollowTheirPhase_data();
    void dotsFollowTheirPhase();
    void firstDotsReplaceTheMessageOfTheForm();
    void proTextSetsMessageAndTitle();
    void referencesAreTheFieldsThemselves();
    void ellipsisIntervalIsClamped_data();
    void ellipsisIntervalIsClamped();
    void textFlagReachesTheBar();
    void dialogGrowsWithTheMessage();
    void shownAndHiddenDialogsFitAMessageAlike();
    void labelHeightFollowsEachMessage();
    void sizesEndOnPhysicalPixels();
    void sizesEndOnPhysicalPixelsAtBrokenRatios_data();
    void sizesEndOnPhysicalPixelsAtBrokenRatios();

    // End.
    void stopEmptiesAndCloses();
    void stopOfAStageStaysOnTheScreen_data();
    void stopOfAStageStaysOnTheScreen();
    void stopOfARestoredScanTells();
    void titlesCountAsTheyReadInTheLanguageOfTheProgram();
    void stopKeepsTheTarget();
    void failureClosesAndFreesTheButton();
    void freeCloseButtonStopsTheDialog();
    void boundCloseButtonBelongsToTheHost();
    void bindingTwiceIsBindingOnce();
    void hidingTheButtonUnbindsIt();
    void applicationExitStopsTheDialog();
    void programMayClose();
    void windowSystemMayNotClose();
    void spontaneousCloseOfAHiddenDialogIsRefused();
    void deletionFromItsOwnSignalsIsHarmless_data();
    void deletionFromItsOwnSignalsIsHarmless();
    void deletionUnderANestedLoopIsHarmless();
    void destructorSaysSo();

    // Dragging.
    void dragMovesTheDialog();
    void pressDecidesAboutTheDrag_data();
    void pressDecidesAboutTheDrag();
    void otherButtonsDoNotDrag();
};

void CProgressWidgetTest::formStandsAsDesigned()
{
    const CProgressWidget dialog(nullptr);
    QCOMPARE(dialog.objectName(), QStringLiteral("CProgressWidget"));
    QCOMPARE(dialog.size(), QSize(580, 134));
    QCOMPARE(dialog.minimumWidth(), 580);
    QCOMPARE(dialog.minimumHeight(), 0);
    QCOMPARE(dialog.maximumSize(), QSize(580, QWIDGETSIZE_MAX));
    QCOMPARE(dialog.windowModality(), Qt::ApplicationModal);
    QCOMPARE(dialog.windowFlags() & (Qt::WindowType_Mask | Qt::FramelessWindowHint),
             Qt::Dialog | Qt::FramelessWindowHint);
    QVERIFY(dialog.testAttribute(Qt::WA_TranslucentBackground));

    struct LayoutRow
    {
        const char* pcName;
        int iSpacing;
        QMargins margins;
    };
    for (const LayoutRow& row : {LayoutRow{"verticalLayout", 0, {}}, LayoutRow{"verticalLayout_3", 0, {28, 27, 28, 27}},
                                 LayoutRow{"horizontalLayout_3", 24, {0, 2, 0, 0}},
                                 LayoutRow{"verticalLayout_2", 10, {}}, LayoutRow{"horizontalLayout", 0, {}}}) {
        const auto* layout = dialog.findChild<QBoxLayout*>(QString::fromLatin1(row.pcName));
        QVERIFY2(layout, row.pcName);
        QCOMPARE(layout->spacing(), row.iSpacing);
        QCOMPARE(layout->contentsMargins(), row.margins);
    }

    const auto* panel = dialog.findChild<CMsgBoxBackground*>(QStringLiteral("widget_2"));
    QVERIFY(panel);
    QCOMPARE(panel->parentWidget(), &dialog);
    const auto* show = dialog.findChild<QWidget*>(QStringLiteral("m_widgetShow"));
    QCOMPARE(show->parentWidget(), panel);
    QCOMPARE(show->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding));
    const QLabel* animation = Label(dialog, "label_2");
    QCOMPARE(animation->parentWidget(), show);
    QCOMPARE(animation->minimumSize(), QSize(56, 56));
    QCOMPARE(animation->maximumSize(), QSize(56, 56));
    QCOMPARE(animation->text(), QString());
    QCOMPARE(show->layout()->itemAt(0)->alignment(), Qt::AlignTop);
    const auto* column = dialog.findChild<QWidget*>(QStringLiteral("widget_4"));
    QCOMPARE(column->parentWidget(), show);
    const auto* head = dialog.findChild<QWidget*>(QStringLiteral("widget"));
    QCOMPARE(head->parentWidget(), column);
    QCOMPARE(head->sizePolicy(), QSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed));
    QCOMPARE(head->minimumHeight(), 24);
    QCOMPARE(head->maximumHeight(), 24);
    const QLabel* title = Label(dialog, "label_8");
    QCOMPARE(title->parentWidget(), head);
    QCOMPARE(title->text(), QStringLiteral("提示"));
    QCOMPARE(title->minimumHeight(), 24);
    QCOMPARE(title->maximumHeight(), 24);
    QCOMPARE(title->font().pixelSize(), FontCnBold_16.pixelSize());
    QCOMPARE(title->font().weight(), FontCnBold_16.weight());
    const QSpacerItem* spacer = head->layout()->itemAt(1)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(866, 20));
    QCOMPARE(spacer->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Minimum));
    const QLabel* message = Label(dialog, "label_7");
    QCOMPARE(message->parentWidget(), column);
    QCOMPARE(message->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(message->sizePolicy().verticalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(message->minimumSize(), QSize(444, 48));
    QCOMPARE(message->maximumSize(), QSize(444, QWIDGETSIZE_MAX));
    QCOMPARE(message->text(), kMessage);
    QCOMPARE(message->font().pixelSize(), FontCnMedium_16.pixelSize());
    QCOMPARE(message->font().weight(), FontCnMedium_16.weight());
    QVERIFY(message->wordWrap());
    QCOMPARE(Stripes(dialog)->objectName(), QStringLiteral("myprogress"));
    QCOMPARE(Stripes(dialog)->parentWidget(), column);
    QCOMPARE(Stripes(dialog)->size(), QSize(396, 10));
    QCOMPARE(Stripes(dialog)->minimumHeight(), 10);
    QCOMPARE(Stripes(dialog)->maximumHeight(), 10);
    QCOMPARE(Bar(dialog)->minimumWidth(), 396);
    QCOMPARE(Bar(dialog)->maximumWidth(), 396);
}

void CProgressWidgetTest::sheetsAreExact_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sheet");
    QTest::newRow("panel") << "widget_2"
                           << "QWidget#widget_2{background:#f6f6f6;border:1px solid #bbbbbb;border-radius:4px;}";
    QTest::newRow("show") << "m_widgetShow"
                          << "background:transparent;border:none;";
    QTest::newRow("animation") << "label_2"
                               << "background:transparent;border:none;";
    QTest::newRow("head") << "widget"
                          << "QWidget#widget{border:none;border-radius:0px;background:transparent;}";
    QTest::newRow("title") << "label_8"
                           << "color:#333333;background:transparent;border:none;";
    QTest::newRow("message") << "label_7"
                             << "background:transparent;border:none;color:#333333;";
}

void CProgressWidgetTest::sheetsAreExact()
{
    QFETCH(QString, name);
    QFETCH(QString, sheet);
    const CProgressWidget dialog(nullptr);
    QCOMPARE(dialog.findChild<QWidget*>(name)->styleSheet(), sheet);
}

void CProgressWidgetTest::startsAtRest()
{
    CProgressWidget dialog(nullptr);
    QVERIFY(!dialog.isVisible());
    QVERIFY(!dialog.m_bUserClosed);
    QCOMPARE(dialog.m_nValue, 0);
    QCOMPARE(dialog.m_nAutoTarget, 0);
    QVERIFY(!dialog.m_bAutoRunning);
    QVERIFY(!dialog.m_bSpecialSign);
    QCOMPARE(dialog.m_nEllipsisIndex, 0);
    QCOMPARE(dialog.m_strStageText, QString());
    QCOMPARE(dialog.m_nStageValue, -1);
    QVERIFY(!dialog.m_bStageShown);
    QVERIFY(!dialog.m_bDragging);
    QCOMPARE(dialog.m_ptDragPos, QPoint(0, 0));
    QCOMPARE(dialog.m_strText, QString());
    QCOMPARE(dialog.m_strTitle, QString());
    QVERIFY(!dialog.m_bCloseBound);
    QVERIFY(!dialog.m_pTimerAuto->isActive());
    QVERIFY(!dialog.m_pTimerAuto->isSingleShot());
    QVERIFY(dialog.m_pTimerEllipsis->isActive());
    QCOMPARE(dialog.m_pTimerEllipsis->interval(), 500);
    QVERIFY(dialog.m_pTimerMovie->isActive());
    QVERIFY(!dialog.m_pTimerMovie->isSingleShot());
    QCOMPARE(dialog.m_pTimerMovie->interval(), 1);
    QCOMPARE(dialog.m_pMovie->fileName(), QStringLiteral(":/icon/gif_pop_bac.gif"));
    QCOMPARE(Bar(dialog)->value(), 0);
    QCOMPARE(dialog.getTitle(), QStringLiteral("提示"));
}

void CProgressWidgetTest::closeButtonStandsInTheCorner()
{
    const CProgressWidget dialog(nullptr);
    QCOMPARE(dialog.m_pBtnClose->parentWidget(), &dialog);
    QCOMPARE(dialog.m_pBtnClose->geometry(), QRect(549, 7, 24, 24));
    QCOMPARE(dialog.m_pBtnClose->minimumSize(), QSize(24, 24));
    QCOMPARE(dialog.m_pBtnClose->maximumSize(), QSize(24, 24));
    QVERIFY(!dialog.m_pBtnClose->isHidden());
    QVERIFY(dialog.m_pBtnClose->isEnabled());
    QCOMPARE(dialog.m_pBtnClose->styleSheet(),
             QStringLiteral("QPushButton{border:none;background:transparent;"
                            "image:url(:/icon/ico_current_pop_close_nor.png);}"
                            "QPushButton::hover{image:url(:/icon/ico_current_pop_close_hover.png);}"));
}

void CProgressWidgetTest::shownDialogTakesTheHeightOfItsContents()
{
    CProgressWidget dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    // Margins 27 + 2 + 27, title 24, message 48, bar 10 and two gaps of 10.
    QCOMPARE(dialog.size(), QSize(580, 158));
    QCOMPARE(Label(dialog, "label_2")->mapTo(&dialog, QPoint(0, 0)), QPoint(28, 29));
    QCOMPARE(Label(dialog, "label_7")->mapTo(&dialog, QPoint(0, 0)), QPoint(108, 63));
    QCOMPARE(Label(dialog, "label_7")->size(), QSize(444, 48));
    QCOMPARE(Bar(dialog)->size(), QSize(396, 10));
    const QImage image = dialog.grab().toImage();
    QCOMPARE(image.pixelColor(290, 0), QColor(0xbb, 0xbb, 0xbb));
    QCOMPARE(image.pixelColor(290, 5), QColor(0xf6, 0xf6, 0xf6));
    QCOMPARE(image.pixelColor(579, 80), QColor(0xbb, 0xbb, 0xbb));
}

void CProgressWidgetTest::barStartsWhereTheTextStarts()
{
    CProgressWidget dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    QCOMPARE(Bar(dialog)->mapTo(&dialog, QPoint(0, 0)), QPoint(108, 121));
}

void CProgressWidgetTest::newFrameGoesToTheLabel()
{
    const CProgressWidget dialog(nullptr);
    QVERIFY(dialog.m_pMovie->isValid());
    QCOMPARE(dialog.m_pMovie->state(), QMovie::Running);
    QSignalSpy frames(dialog.m_pMovie, &QMovie::frameChanged);
    for (int copies = 0; copies < 2; ++copies) {
        QVERIFY(frames.wait());
        QCOMPARE(Label(dialog, "label_2")->pixmap(Qt::ReturnByValue).toImage(), dialog.m_pMovie->currentImage());
    }
}

void CProgressWidgetTest::sameFrameIsNotCopiedAgain()
{
    const CProgressWidget dialog(nullptr);
    dialog.m_pMovie->setPaused(true);
    Tick(dialog.m_pTimerMovie);
    QVERIFY(!Label(dialog, "label_2")->pixmap(Qt::ReturnByValue).isNull());
    Label(dialog, "label_2")->clear();
    Tick(dialog.m_pTimerMovie);
    QVERIFY(Label(dialog, "label_2")->pixmap(Qt::ReturnByValue).isNull());
}

void CProgressWidgetTest::movieTimerWakesTheProcessSeldom()
{
    const CProgressWidget dialog(nullptr);
    QCOMPARE(dialog.m_pTimerMovie->interval(), 1);
    QVERIFY(dialog.m_pTimerMovie->isActive());
    const auto timers = QAbstractEventDispatcher::instance()->registeredTimers(dialog.m_pTimerMovie);
    QCOMPARE(timers.size(), 1);
    QCOMPARE(timers.first().timerId, dialog.m_pTimerMovie->timerId());
    QVERIFY(timers.first().interval >= 20);
    QSignalSpy ticks(dialog.m_pTimerMovie, &QTimer::timeout);
    QTRY_VERIFY(ticks.size() >= 3);
}

void CProgressWidgetTest::createWidgetPtrGivesAHiddenDialog()
{
    const QPointer<CProgressWidget> dialog = CProgressWidget::CreateWidgetPtr();
    QVERIFY(dialog);
    QVERIFY(!dialog->parent());
    QVERIFY(!dialog->isVisible());
    delete dialog;
    QVERIFY(!dialog);
}

void CProgressWidgetTest::createAutoWidgetShowsACreepingDialog()
{
    const QPointer<CProgressWidget> dialog =
        CProgressWidget::CreateAutoWidget(QStringLiteral("连接中"), QStringLiteral("请稍候"));
    QVERIFY(dialog->isVisible());
    QVERIFY(dialog->m_pBtnClose->isHidden());
    QCOMPARE(Message(*dialog), QStringLiteral("连接中"));
    QCOMPARE(dialog->m_strText, QStringLiteral("连接中"));
    QCOMPARE(dialog->getTitle(), QStringLiteral("请稍候"));
    QCOMPARE(dialog->m_strTitle, QStringLiteral("请稍候"));
    QCOMPARE(Bar(*dialog)->value(), 1);
    QVERIFY(dialog->m_bAutoRunning);
    QCOMPARE(dialog->m_nAutoTarget, 100);
    QVERIFY(dialog->m_pTimerAuto->isActive());
    QCOMPARE(dialog->m_pTimerAuto->interval(), 500);
    QVERIFY(dialog->m_pTimerEllipsis->isActive());
    delete dialog;
}

void CProgressWidgetTest::freeAutoWidgetEndsTheDialog()
{
    QSignalSpy activations(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalActiveMainWindow);
    const QPointer<CProgressWidget> dialog = CProgressWidget::CreateAutoWidget(kMessage, kSurfaceTitle);
    CProgressWidget::FreeAutoWidget(dialog, false);
    QVERIFY(dialog); // deleted by the event loop, not under the caller
    QVERIFY(!dialog->isVisible());
    QVERIFY(!dialog->m_pTimerAuto->isActive());
    QCOMPARE(activations.size(), 0);
    QTRY_VERIFY(!dialog);
}

void CProgressWidgetTest::freeAutoWidgetActivatesTheMainWindowOnRequest()
{
    const QPointer<CProgressWidget> dialog = CProgressWidget::CreateAutoWidget(kMessage, QString());
    bool visibleAtActivation = false;
    const auto connection = connect(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalActiveMainWindow, this,
                                    [&] { visibleAtActivation = dialog->isVisible(); });
    QSignalSpy activations(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalActiveMainWindow);
    CProgressWidget::FreeAutoWidget(dialog, true);
    disconnect(connection);
    QCOMPARE(activations.size(), 1);
    QVERIFY(visibleAtActivation);
    QTRY_VERIFY(!dialog);
}

void CProgressWidgetTest::freeAutoWidgetTakesADeadPointer()
{
    QSignalSpy activations(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalActiveMainWindow);
    CProgressWidget::FreeAutoWidget(nullptr, false);
    QCOMPARE(activations.size(), 0);
    const QPointer<CProgressWidget> dialog = CProgressWidget::CreateWidgetPtr();
    delete dialog;
    CProgressWidget::FreeAutoWidget(dialog, true);
    QCOMPARE(activations.size(), 1);
}

void CProgressWidgetTest::freeAutoWidgetTakesADialogThatDiesOnTheWay()
{
    const QPointer<CProgressWidget> dialog = CProgressWidget::CreateAutoWidget(kMessage, kRestoreTitle);
    connect(dialog, &CProgressWidget::closeRestoreScan, this, [dialog] { delete dialog; });
    CProgressWidget::FreeAutoWidget(dialog, false);
    QVERIFY(!dialog);

    const QPointer<CProgressWidget> other = CProgressWidget::CreateAutoWidget(kMessage, QString());
    const auto connection = connect(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalActiveMainWindow, this,
                                    [other] { delete other; });
    CProgressWidget::FreeAutoWidget(other, true);
    disconnect(connection);
    QVERIFY(!other);
}

void CProgressWidgetTest::createAutoWidgetOnAWorkerThreadEndsTheProcess()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_FORCE_STDERR_LOGGING"), QStringLiteral("1")); // Windows: not to the debugger
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kFromWorker)});
    QVERIFY(child.waitForFinished());
    QCOMPARE(child.exitStatus(), QProcess::CrashExit);
    QVERIFY(QString::fromUtf8(child.readAllStandardError())
                .trimmed()
                .endsWith(QStringLiteral(
                    "RELEASE_ASSERT failed in non-main thread: QThread::currentThread() == qApp->thread(), "
                    "file: CustomControls/CProgressWidget/CProgressWidget, line: 151")));
}

void CProgressWidgetTest::createAutoWidgetBesideTheApplicationsThreadTellsTheUser()
{
    // A desktop's windows belong to the thread that made them; this is about the call and not about its window.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(kFromMain)});
    child.setTextModeEnabled(true);
    QVERIFY(child.waitForFinished());
    QCOMPARE(QString::fromUtf8(child.readAllStandardOutput()),
             QStringLiteral("关键逻辑错误|断言失败: QThread::currentThread() == qApp->thread()\n"
                            "文件: CustomControls/CProgressWidget/CProgressWidget\n行号: 151|1024"));
}

void CProgressWidgetTest::autoRunTakesItsTargetAndInterval_data()
{
    QTest::addColumn<int>("target");
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("expectedTarget");
    QTest::addColumn<int>("expectedInterval");
    QTest::newRow("both too low") << 1 << 0 << 100 << 200;
    QTest::newRow("negative") << -5 << -1 << 100 << 200;
    QTest::newRow("target too high") << 101 << 1000 << 100 << 1000;
    QTest::newRow("lowest") << 2 << 200 << 2 << 200;
    QTest::newRow("highest") << 100 << 201 << 100 << 201;
    QTest::newRow("just too fast") << 60 << 199 << 60 << 200;
}

void CProgressWidgetTest::autoRunTakesItsTargetAndInterval()
{
    QFETCH(int, target);
    QFETCH(int, interval);
    QFETCH(int, expectedTarget);
    QFETCH(int, expectedInterval);
    CProgressWidget dialog(nullptr);
    dialog.m_pTimerEllipsis->stop();
    dialog.autoAddNumRun(target, interval);
    QVERIFY(dialog.m_bAutoRunning);
    QCOMPARE(dialog.m_nAutoTarget, expectedTarget);
    QVERIFY(dialog.m_pTimerAuto->isActive());
    QCOMPARE(dialog.m_pTimerAuto->interval(), expectedInterval);
    QVERIFY(dialog.m_pTimerEllipsis->isActive());
    QCOMPARE(Bar(dialog)->value(), 1);
    QCOMPARE(dialog.m_nValue, 0);
}

void CProgressWidgetTest::lowerTargetIsIgnored()
{
    CProgressWidget dialog(nullptr);
    dialog.autoAddNumRun(80, 400);
    dialog.autoAddNumRun(60, 300);
    QCOMPARE(dialog.m_nAutoTarget, 80);
    QCOMPARE(dialog.m_pTimerAuto->interval(), 400);
    dialog.autoAddNumRun(90, 300);
    QCOMPARE(dialog.m_nAutoTarget, 90);
    QCOMPARE(dialog.m_pTimerAuto->interval(), 300);
    dialog.autoAddNumRun(90, 250);
    QCOMPARE(dialog.m_pTimerAuto->interval(), 250);
}

void CProgressWidgetTest::autoRunKeepsABarThatHasRisen()
{
    CProgressWidget dialog(nullptr);
    dialog.setValue(30, false);
    dialog.autoAddNumRun(80, 400);
    QCOMPARE(Bar(dialog)->value(), 30);
}

void CProgressWidgetTest::autoStepsStayWithinTheirBounds()
{
    CProgressWidget dialog(nullptr);
    dialog.autoAddNumRun(100, 400);
    QSet<int> steps;
    for (int tick = 0; tick < 2000; ++tick) {
        if (tick % 10 == 0) {
            Bar(dialog)->setValue(1 + tick % 50);
        }
        const int before = Bar(dialog)->value();
        Tick(dialog.m_pTimerAuto);
        const int range = (100 - before) / 3;
        const int step = Bar(dialog)->value() - before;
        QVERIFY(step >= 0);
        QVERIFY(step <= 5);
        QVERIFY(range < 1 ? step == 0 : step < range);
        steps.insert(step);
    }
    QCOMPARE(steps.size(), 6); // each of 0 to 5 occurs
}

void CProgressWidgetTest::autoRunStandsStillFiveBelowTheTarget()
{
    CProgressWidget dialog(nullptr);
    dialog.autoAddNumRun(60, 400);
    for (int tick = 0; tick < 5000 && Bar(dialog)->value() < 55; ++tick) {
        Tick(dialog.m_pTimerAuto);
    }
    QCOMPARE(Bar(dialog)->value(), 55);
    for (int tick = 0; tick < 100; ++tick) {
        Tick(dialog.m_pTimerAuto);
    }
    QCOMPARE(Bar(dialog)->value(), 55);
    dialog.endAutoAddNumRun();
    QCOMPARE(Bar(dialog)->value(), 60);
}

void CProgressWidgetTest::barAboveTheTargetFallsBelowIt_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("far above") << 100;
    QTest::newRow("three above") << 63;
    QTest::newRow("one above") << 61;
    QTest::newRow("on it") << 60;
}

void CProgressWidgetTest::barAboveTheTargetFallsBelowIt()
{
    QFETCH(int, value);
    CProgressWidget dialog(nullptr);
    dialog.autoAddNumRun(60, 400);
    for (int round = 0; round < 50; ++round) {
        dialog.setValue(value, false);
        Tick(dialog.m_pTimerAuto);
        QCOMPARE(Bar(dialog)->value(), 59);
    }
}

void CProgressWidgetTest::endOfTheAutoRunReachesTheTarget()
{
    CProgressWidget dialog(nullptr);
    dialog.autoAddNumRun(70, 400);
    dialog.endAutoAddNumRun();
    QVERIFY(!dialog.m_pTimerAuto->isActive());
    QVERIFY(!dialog.m_bAutoRunning);
    QCOMPARE(Bar(dialog)->value(), 70);
    QCOMPARE(dialog.m_nValue, 70);
}

void CProgressWidgetTest::endWithoutAnAutoRunEmptiesTheBar()
{
    CProgressWidget dialog(nullptr);
    dialog.setValue(40, false);
    dialog.endAutoAddNumRun();
    QCOMPARE(Bar(dialog)->value(), 0);
    QCOMPARE(dialog.m_nValue, 0);
}

void CProgressWidgetTest::timerMirrorsTheHostsValue()
{
    CProgressWidget dialog(nullptr);
    dialog.m_pTimerEllipsis->stop();
    dialog.extrAddNumRun();
    QVERIFY(dialog.m_pTimerAuto->isActive());
    QCOMPARE(dialog.m_pTimerAuto->interval(), 50);
    QVERIFY(dialog.m_pTimerEllipsis->isActive());
    QVERIFY(!dialog.m_bAutoRunning);
    dialog.getValueRef() = 42;
    QTRY_COMPARE(Bar(dialog)->value(), 42);
    dialog.getValueRef() = 7;
    QTRY_COMPARE(Bar(dialog)->value(), 7);
}

void CProgressWidgetTest::extraRunLeavesTheAutoRunInForce()
{
    CProgressWidget dialog(nullptr);
    dialog.autoAddNumRun(60, 400);
    dialog.extrAddNumRun();
    dialog.getValueRef() = 90;
    Tick(dialog.m_pTimerAuto);
    QVERIFY(Bar(dialog)->value() < 60);
    dialog.endAutoAddNumRun();
    dialog.extrAddNumRun();
    Tick(dialog.m_pTimerAuto);
    QCOMPARE(Bar(dialog)->value(), 60);
}

void CProgressWidgetTest::setValueMovesBarAndValue()
{
    CProgressWidget dialog(nullptr);
    const QString sheet = Bar(dialog)->styleSheet();
    dialog.setValue(33, false);
    QCOMPARE(Bar(dialog)->value(), 33);
    QCOMPARE(dialog.m_nValue, 33);
    QCOMPARE(Bar(dialog)->styleSheet(), sheet);
}

void CProgressWidgetTest::setValueRefreshesTheStripesOnRequest()
{
    CProgressWidget dialog(nullptr);
    const QString sheet = Bar(dialog)->styleSheet();
    dialog.setValue(33, true);
    QVERIFY(Bar(dialog)->styleSheet() != sheet);
}

void CProgressWidgetTest::valueBeyondTheBarIsKeptForTheHost()
{
    CProgressWidget dialog(nullptr);
    dialog.setValue(33, false);
    for (const int value : {101, -1, INT_MAX, INT_MIN}) {
        dialog.setValue(value, true);
        QCOMPARE(Bar(dialog)->value(), 33);
        QCOMPARE(dialog.getValueRef(), value);
    }
}

void CProgressWidgetTest::resetHidesAndKeepsRunning()
{
    CProgressWidget dialog(nullptr);
    dialog.show();
    dialog.autoAddNumRun(60, 400);
    dialog.reset();
    QVERIFY(dialog.isHidden());
    QCOMPARE(Bar(dialog)->value(), 0);
    QVERIFY(dialog.m_pTimerAuto->isActive());
    QVERIFY(dialog.m_pTimerEllipsis->isActive());
    QVERIFY(dialog.m_pTimerMovie->isActive());
    QVERIFY(dialog.m_bAutoRunning);
}

void CProgressWidgetTest::stageMessageTakesOverOnce()
{
    CProgressWidget dialog(nullptr);
    dialog.setText(kMessage);
    dialog.setStageText(50, QStringLiteral("第二阶段"));
    dialog.extrAddNumRun();
    dialog.getValueRef() = 49;
    Tick(dialog.m_pTimerAuto);
    QCOMPARE(dialog.m_strText, kMessage);
    QVERIFY(!dialog.m_bStageShown);
    dialog.getValueRef() = 50;
    Tick(dialog.m_pTimerAuto);
    QCOMPARE(dialog.m_strText, QStringLiteral("第二阶段"));
    QCOMPARE(Message(dialog), QStringLiteral("第二阶段"));
    QCOMPARE(Bar(dialog)->value(), 50);
    QVERIFY(dialog.m_bStageShown);
    dialog.setText(kMessage);
    Tick(dialog.m_pTimerAuto);
    QCOMPARE(dialog.m_strText, kMessage);
    dialog.setStageText(20, QStringLiteral("第三阶段"));
    QVERIFY(!dialog.m_bStageShown);
    Tick(dialog.m_pTimerAuto);
    QCOMPARE(dialog.m_strText, QStringLiteral("第三阶段"));
}

void CProgressWidgetTest::stageMessageWaitsForTheEndOfTheAutoRun()
{
    CProgressWidget dialog(nullptr);
    dialog.setText(kMessage);
    dialog.setStageText(1, QStringLiteral("第二阶段"));
    dialog.autoAddNumRun(60, 400);
    dialog.getValueRef() = 50;
    Tick(dialog.m_pTimerAuto);
    QCOMPARE(dialog.m_strText, kMessage);
    dialog.endAutoAddNumRun();
    QCOMPARE(dialog.m_strText, kMessage);
    dialog.extrAddNumRun();
    Tick(dialog.m_pTimerAuto);
    QCOMPARE(dialog.m_strText, QStringLiteral("第二阶段"));
}

void CProgressWidgetTest::negativeStageValueNeverFires()
{
    CProgressWidget dialog(nullptr);
    dialog.setText(kMessage);
    dialog.setStageText(-1, QStringLiteral("第二阶段"));
    dialog.extrAddNumRun();
    dialog.getValueRef() = 100;
    Tick(dialog.m_pTimerAuto);
    QCOMPARE(dialog.m_strText, kMessage);
}

void CProgressWidgetTest::dotsFollowTheirPhase_data()
{
    QTest::addColumn<bool>("special");
    QTest::addColumn<QStringList>("dots");
    QTest::newRow("plain") << false << QStringList{".", "..", "...", "", "."};
    QTest::newRow("spaced") << true << QStringList{". .", ". . .", ". . . .", "", ". ."};
}

void CProgressWidgetTest::dotsFollowTheirPhase()
{
    QFETCH(bool, special);
    QFETCH(QStringList, dots);
    CProgressWidget dialog(nullptr);
    dialog.setText(kMessage);
    dialog.SetSpecialSign(special);
    int phase = 0;
    for (const QString& suffix : dots) {
        QCOMPARE(dialog.m_nEllipsisIndex, phase % 4);
        Tick(dialog.m_pTimerEllipsis);
        QCOMPARE(Message(dialog), kMessage + suffix);
        QCOMPARE(dialog.getTextRef(), kMessage);
        ++phase;
    }
}

void CProgressWidgetTest::firstDotsReplaceTheMessageOfTheForm()
{
    const CProgressWidget dialog(nullptr);
    QCOMPARE(Message(dialog), kMessage);
    Tick(dialog.m_pTimerEllipsis);
    QCOMPARE(Message(dialog), QStringLiteral("."));
}

void CProgressWidgetTest::proTextSetsMessageAndTitle()
{
    CProgressWidget dialog(nullptr);
    dialog.setProText(QStringLiteral("甲"), QStringLiteral("乙"));
    QCOMPARE(Message(dialog), QStringLiteral("甲"));
    QCOMPARE(dialog.m_strText, QStringLiteral("甲"));
    QCOMPARE(dialog.getTitle(), QStringLiteral("乙"));
    QCOMPARE(dialog.m_strTitle, QStringLiteral("乙"));
    dialog.setText(QStringLiteral("丙"));
    QCOMPARE(dialog.getTitle(), QStringLiteral("乙"));
}

void CProgressWidgetTest::referencesAreTheFieldsThemselves()
{
    CProgressWidget dialog(nullptr);
    QCOMPARE(&dialog.getValueRef(), &dialog.m_nValue);
    QCOMPARE(&dialog.getTextRef(), &dialog.m_strText);
    dialog.getTextRef() = QStringLiteral("直接");
    Tick(dialog.m_pTimerEllipsis);
    QCOMPARE(Message(dialog), QStringLiteral("直接."));
    dialog.setText(dialog.getTextRef());
    QCOMPARE(dialog.getTextRef(), QStringLiteral("直接"));
}

void CProgressWidgetTest::ellipsisIntervalIsClamped_data()
{
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("expected");
    QTest::newRow("too short") << 50 << 100;
    QTest::newRow("negative") << -1 << 100;
    QTest::newRow("shortest") << 100 << 100;
    QTest::newRow("between") << 333 << 333;
    QTest::newRow("longest") << 500 << 500;
    QTest::newRow("too long") << 900 << 500;
}

void CProgressWidgetTest::ellipsisIntervalIsClamped()
{
    QFETCH(int, interval);
    QFETCH(int, expected);
    CProgressWidget dialog(nullptr);
    dialog.SetEllipsisInterval(interval);
    QCOMPARE(dialog.m_pTimerEllipsis->interval(), expected);
    QVERIFY(dialog.m_pTimerEllipsis->isActive());
    dialog.autoAddNumRun(50, 300);
    QCOMPARE(dialog.m_pTimerEllipsis->interval(), expected);
}

void CProgressWidgetTest::textFlagReachesTheBar()
{
    CProgressWidget dialog(nullptr);
    QVERIFY(Bar(dialog)->m_bTextVisible);
    dialog.SetProgressTextVisible(false);
    QVERIFY(!Bar(dialog)->m_bTextVisible);
    dialog.SetProgressTextVisible(true);
    QVERIFY(Bar(dialog)->m_bTextVisible);
}

void CProgressWidgetTest::dialogGrowsWithTheMessage()
{
    CProgressWidget dialog(nullptr);
    dialog.setText(QStringLiteral("短"));
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const int shortHeight = dialog.height();
    const QString longText = QStringLiteral("模型重建需要较长的时间，请勿关闭机器。").repeated(12);
    dialog.setText(longText);
    const QLabel* label = Label(dialog, "label_7");
    QVERIFY(label->height() >= label->heightForWidth(444));
    QVERIFY(dialog.height() > shortHeight + 100);
    QCOMPARE(dialog.width(), 580);
    QCOMPARE(label->width(), 444);
    QCOMPARE(Bar(dialog)->mapTo(&dialog, QPoint(0, 0)).y() + 10 + 27, dialog.height());
    dialog.setText(QStringLiteral("短"));
    QCOMPARE(dialog.height(), shortHeight);
}

void CProgressWidgetTest::shownAndHiddenDialogsFitAMessageAlike()
{
    for (const int sentences : {1, 3, 12, 40}) {
        const QString message = QStringLiteral("模型重建需要较长的时间，请勿关闭机器。").repeated(sentences);
        CProgressWidget before(nullptr);
        before.setText(message);
        before.show();
        CProgressWidget after(nullptr);
        after.show();
        QVERIFY(QTest::qWaitForWindowExposed(&before));
        QVERIFY(QTest::qWaitForWindowExposed(&after));
        after.setText(message);
        for (const CProgressWidget* dialog : {&before, &after}) {
            const QLabel* label = Label(*dialog, "label_7");
            QCOMPARE(label->minimumHeight(), label->maximumHeight());
            QCOMPARE(label->height(), label->minimumHeight());
            QVERIFY(label->height() >= label->heightForWidth(444));
            // Margins 27 + 2 + 27, title 24, bar 10 and two gaps of 10.
            QCOMPARE(dialog->height(), 110 + label->height());
        }
        QCOMPARE(after.size(), before.size());
    }
}

void CProgressWidgetTest::labelHeightFollowsEachMessage()
{
    CProgressWidget dialog(nullptr);
    const QLabel* label = Label(dialog, "label_7");
    int last = 0;
    for (const int lines : {1, 3, 6}) {
        dialog.setText(QStringList(lines, QStringLiteral("行")).join(QLatin1Char('\n')));
        QCOMPARE(label->minimumHeight(), label->maximumHeight());
        QVERIFY(label->minimumHeight() > last);
        last = label->minimumHeight();
    }
    dialog.setText(QString());
    QVERIFY(label->maximumHeight() < last);
}

// Also run at broken ratios, by the test below.
void CProgressWidgetTest::sizesEndOnPhysicalPixels()
{
    CProgressWidget dialog(nullptr);
    const double ratio = dialog.devicePixelRatioF();
    QCOMPARE(ratio, qEnvironmentVariableIsSet(kExpectedRatio) ? qgetenv(kExpectedRatio).toDouble() : 1.0);
    const auto isWhole = [ratio](int size) { return std::abs(size * ratio - std::round(size * ratio)) < 1e-9; };

    const int barHeight = Stripes(dialog)->minimumHeight();
    QCOMPARE(Stripes(dialog)->maximumHeight(), barHeight);
    QCOMPARE(barHeight, isWhole(10) ? 10 : ClosestInteger(10, QString::number(ratio, 'g', 6)));
    QVERIFY(isWhole(barHeight));
    for (int lines = 1; lines <= 8; ++lines) {
        dialog.setText(QStringList(lines, QStringLiteral("行")).join(QLatin1Char('\n')));
        QVERIFY(isWhole(Label(dialog, "label_7")->minimumHeight()));
    }
}

void CProgressWidgetTest::sizesEndOnPhysicalPixelsAtBrokenRatios_data()
{
    QTest::addColumn<QString>("ratio");
    QTest::newRow("1.25") << "1.25";
    QTest::newRow("1.5") << "1.5";
    QTest::newRow("2") << "2";
}

void CProgressWidgetTest::sizesEndOnPhysicalPixelsAtBrokenRatios()
{
    QFETCH(QString, ratio);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), ratio);
    environment.insert(QStringLiteral("TEST_KEEP_SCALE"), QStringLiteral("1"));
    environment.insert(QString::fromLatin1(kExpectedRatio), ratio);
    // To a file, since on Windows a test without a console tells its results to a debugger only.
    const QTemporaryDir folder;
    QFile report(folder.filePath(QStringLiteral("report.txt")));
    QProcess child;
    child.setProcessEnvironment(environment);
    child.start(
        QCoreApplication::applicationFilePath(),
        {QStringLiteral("sizesEndOnPhysicalPixels"), QStringLiteral("-o"), report.fileName() + QStringLiteral(",txt")});
    QVERIFY(child.waitForFinished());
    QVERIFY2(report.open(QIODevice::ReadOnly), child.readAllStandardError().constData());
    const QByteArray output = report.readAll();
    QVERIFY2(child.exitStatus() == QProcess::NormalExit && child.exitCode() == 0, output.constData());
    QVERIFY(output.contains("3 passed, 0 failed"));
}

void CProgressWidgetTest::stopEmptiesAndCloses()
{
    CProgressWidget dialog(nullptr);
    QSignalSpy restored(&dialog, &CProgressWidget::closeRestoreScan);
    dialog.setProText(kMessage, QStringLiteral("重建"));
    dialog.setStageText(10, QStringLiteral("第二阶段"));
    dialog.m_bStageShown = true;
    dialog.HideCloseButton();
    dialog.show();
    dialog.autoAddNumRun(60, 400);
    dialog.getValueRef() = 20;
    dialog.stop();
    QCOMPARE(dialog.m_nValue, 0);
    QVERIFY(!dialog.m_bStageShown);
    QVERIFY(!dialog.m_bAutoRunning);
    QCOMPARE(Bar(dialog)->value(), 0);
    QVERIFY(!dialog.m_pTimerAuto->isActive());
    QVERIFY(!dialog.m_pTimerEllipsis->isActive());
    QVERIFY(dialog.m_pTimerMovie->isActive());
    QVERIFY(dialog.isHidden());
    QVERIFY(!dialog.m_pBtnClose->isHidden());
    QVERIFY(!dialog.m_bUserClosed);
    QCOMPARE(restored.size(), 0);
}

void CProgressWidgetTest::stopOfAStageStaysOnTheScreen_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("stitching") << kStitchTitle;
    QTest::newRow("surface") << kSurfaceTitle;
}

void CProgressWidgetTest::stopOfAStageStaysOnTheScreen()
{
    QFETCH(QString, title);
    CProgressWidget dialog(nullptr);
    dialog.setProText(kMessage, title);
    dialog.HideCloseButton();
    dialog.show();
    dialog.autoAddNumRun(60, 400);
    dialog.stop();
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.m_pBtnClose->isVisible());
    QCOMPARE(Bar(dialog)->value(), 0);
    QVERIFY(!dialog.m_pTimerAuto->isActive());
    QVERIFY(!dialog.m_pTimerEllipsis->isActive());
}

void CProgressWidgetTest::stopOfARestoredScanTells()
{
    CProgressWidget dialog(nullptr);
    dialog.setProText(kMessage, kRestoreTitle);
    dialog.show();
    bool visibleWhenTold = false;
    connect(&dialog, &CProgressWidget::closeRestoreScan, this, [&] { visibleWhenTold = dialog.isVisible(); });
    QSignalSpy restored(&dialog, &CProgressWidget::closeRestoreScan);
    dialog.stop();
    QCOMPARE(restored.size(), 1);
    QVERIFY(visibleWhenTold);
    QVERIFY(dialog.isHidden());
}

void CProgressWidgetTest::titlesCountAsTheyReadInTheLanguageOfTheProgram()
{
    QVERIFY(LoadCustomControlsTranslation(QLocale(QLocale::English)));
    const auto chinese = qScopeGuard([] { LoadCustomControlsTranslation(QLocale(QLocale::Chinese)); });
    const auto translated = [](const QString& title) {
        return QCoreApplication::translate("CProgressWidget", title.toUtf8().constData());
    };
    CProgressWidget dialog(nullptr);
    QSignalSpy restored(&dialog, &CProgressWidget::closeRestoreScan);
    const auto staysAfterStop = [&dialog](const QString& title) {
        dialog.setProText(kMessage, title);
        dialog.show();
        dialog.stop();
        return dialog.isVisible();
    };
    for (const QString& title : {kStitchTitle, kSurfaceTitle}) {
        QVERIFY(translated(title) != title);
        QVERIFY2(staysAfterStop(translated(title)), qPrintable(title));
        QVERIFY2(!staysAfterStop(title), qPrintable(title)); // another language's title is one like any other
    }
    QVERIFY(!staysAfterStop(kRestoreTitle));
    QCOMPARE(restored.size(), 0);
    QVERIFY(!staysAfterStop(translated(kRestoreTitle)));
    QCOMPARE(restored.size(), 1);
}

void CProgressWidgetTest::stopKeepsTheTarget()
{
    CProgressWidget dialog(nullptr);
    dialog.autoAddNumRun(80, 400);
    dialog.stop();
    QCOMPARE(dialog.m_nAutoTarget, 80);
    dialog.autoAddNumRun(60, 400);
    QVERIFY(!dialog.m_bAutoRunning);
    QVERIFY(!dialog.m_pTimerAuto->isActive());
}

void CProgressWidgetTest::failureClosesAndFreesTheButton()
{
    CProgressWidget dialog(nullptr);
    dialog.BindCloseButton();
    dialog.show();
    dialog.autoAddNumRun(60, 400);
    dialog.m_pBtnClose->click();
    QVERIFY(!dialog.m_pBtnClose->isEnabled());
    dialog.progressFailDeal();
    QVERIFY(dialog.isHidden());
    QVERIFY(dialog.m_pBtnClose->isEnabled());
    QVERIFY(!dialog.m_pTimerEllipsis->isActive());
    QVERIFY(dialog.m_pTimerAuto->isActive());
}

void CProgressWidgetTest::freeCloseButtonStopsTheDialog()
{
    CProgressWidget dialog(nullptr);
    QSignalSpy clicks(&dialog, &CProgressWidget::signalCloseBtnClicked);
    dialog.show();
    dialog.autoAddNumRun(60, 400);
    QTest::mouseClick(dialog.m_pBtnClose, Qt::LeftButton);
    QVERIFY(dialog.m_bUserClosed);
    QVERIFY(dialog.isHidden());
    QVERIFY(!dialog.m_pTimerAuto->isActive());
    QVERIFY(dialog.m_pBtnClose->isEnabled());
    QCOMPARE(clicks.size(), 0);
}

void CProgressWidgetTest::boundCloseButtonBelongsToTheHost()
{
    CProgressWidget dialog(nullptr);
    QSignalSpy clicks(&dialog, &CProgressWidget::signalCloseBtnClicked);
    dialog.HideCloseButton();
    dialog.show();
    dialog.autoAddNumRun(60, 400);
    dialog.BindCloseButton();
    QVERIFY(dialog.m_bCloseBound);
    QVERIFY(dialog.m_pBtnClose->isVisible());
    QTest::mouseClick(dialog.m_pBtnClose, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
    QVERIFY(!dialog.m_pBtnClose->isEnabled());
    QVERIFY(dialog.isVisible());
    QVERIFY(dialog.m_pTimerAuto->isActive());
    QVERIFY(!dialog.m_bUserClosed);
    QTest::mouseClick(dialog.m_pBtnClose, Qt::LeftButton);
    QCOMPARE(clicks.size(), 1);
    dialog.EnableCloseButton();
    QTest::mouseClick(dialog.m_pBtnClose, Qt::LeftButton);
    QCOMPARE(clicks.size(), 2);
}

void CProgressWidgetTest::bindingTwiceIsBindingOnce()
{
    CProgressWidget dialog(nullptr);
    dialog.BindCloseButton();
    dialog.m_pBtnClose->hide();
    dialog.BindCloseButton();
    QVERIFY(dialog.m_pBtnClose->isHidden());
    QVERIFY(dialog.m_bCloseBound);
    QSignalSpy clicks(&dialog, &CProgressWidget::signalCloseBtnClicked);
    dialog.m_pBtnClose->click();
    QCOMPARE(clicks.size(), 1);
}

void CProgressWidgetTest::hidingTheButtonUnbindsIt()
{
    CProgressWidget dialog(nullptr);
    dialog.BindCloseButton();
    dialog.HideCloseButton();
    QVERIFY(!dialog.m_bCloseBound);
    QVERIFY(dialog.m_pBtnClose->isHidden());
    QMetaObject::invokeMethod(&dialog, "showCloseButton");
    QVERIFY(!dialog.m_pBtnClose->isHidden());
    QVERIFY(!dialog.m_bCloseBound);
}

void CProgressWidgetTest::applicationExitStopsTheDialog()
{
    CProgressWidget dialog(nullptr);
    dialog.BindCloseButton();
    dialog.show();
    dialog.autoAddNumRun(60, 400);
    Q_EMIT CorvaneSignalHelper::instance()->signalAboutToExit();
    QVERIFY(dialog.m_bUserClosed);
    QVERIFY(!dialog.m_bCloseBound);
    QVERIFY(dialog.isHidden());
    QVERIFY(!dialog.m_pTimerAuto->isActive());
}

void CProgressWidgetTest::programMayClose()
{
    CProgressWidget dialog(nullptr);
    QVERIFY(dialog.close()); // never shown
    for (int round = 0; round < 2; ++round) {
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QVERIFY(dialog.close());
        QVERIFY(dialog.isHidden());
    }
    dialog.show();
    QVERIFY(dialog.windowHandle()->close());
    QVERIFY(dialog.isHidden());
}

void CProgressWidgetTest::windowSystemMayNotClose()
{
    CProgressWidget dialog(nullptr);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    for (int round = 0; round < 2; ++round) {
        RequestClose(dialog.windowHandle());
        QVERIFY(dialog.isVisible());
        QVERIFY(dialog.windowHandle()->isVisible());
    }
    QVERIFY(dialog.close());
    QVERIFY(dialog.isHidden());
}

void CProgressWidgetTest::spontaneousCloseOfAHiddenDialogIsRefused()
{
    CProgressWidget dialog(nullptr);
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&dialog, &event);
    QVERIFY(!event.isAccepted());
    QCloseEvent own;
    own.ignore();
    QCoreApplication::sendEvent(&dialog, &own);
    QVERIFY(own.isAccepted());
}

void CProgressWidgetTest::deletionFromItsOwnSignalsIsHarmless_data()
{
    QTest::addColumn<QString>("title");
    QTest::addColumn<bool>("bound");
    QTest::newRow("restored scan") << kRestoreTitle << false;
    QTest::newRow("bound click") << QString() << true;
}

void CProgressWidgetTest::deletionFromItsOwnSignalsIsHarmless()
{
    QFETCH(QString, title);
    QFETCH(bool, bound);
    const QPointer<CProgressWidget> dialog = CProgressWidget::CreateAutoWidget(kMessage, title);
    connect(dialog, &CProgressWidget::closeRestoreScan, this, [dialog] { delete dialog; });
    connect(dialog, &CProgressWidget::signalCloseBtnClicked, this, [dialog] { delete dialog; });
    if (bound) {
        dialog->BindCloseButton();
        QTest::mouseClick(dialog->m_pBtnClose, Qt::LeftButton);
    } else {
        Q_EMIT CorvaneSignalHelper::instance()->signalAboutToExit();
    }
    QVERIFY(!dialog);
}

void CProgressWidgetTest::deletionUnderANestedLoopIsHarmless()
{
    const QPointer<CProgressWidget> dialog = CProgressWidget::CreateAutoWidget(kMessage, QString());
    dialog->extrAddNumRun();
    QEventLoop loop;
    connect(dialog, &QObject::destroyed, &loop, &QEventLoop::quit);
    QTimer::singleShot(0, dialog, [dialog] { delete dialog; });
    loop.exec();
    QVERIFY(!dialog);

    // The host's filter deletes the dialog while it is being closed.
    class Deleter : public QObject
    {
    protected:
        bool eventFilter(QObject* watched, QEvent* event) override
        {
            if (event->type() == QEvent::Close) {
                delete watched;
                return true;
            }
            return false;
        }
    } deleter;
    for (const bool failing : {false, true}) {
        const QPointer<CProgressWidget> other = CProgressWidget::CreateAutoWidget(kMessage, QString());
        other->installEventFilter(&deleter);
        failing ? other->progressFailDeal() : other->stop();
        QVERIFY(!other);
    }
}

void CProgressWidgetTest::destructorSaysSo()
{
    auto dialog = std::make_unique<CProgressWidget>(nullptr);
    QTest::ignoreMessage(QtDebugMsg, "~CProgressWidget 128 delete CProgressWidget.");
    dialog.reset();
}

void CProgressWidgetTest::dragMovesTheDialog()
{
    CProgressWidget dialog(nullptr);
    dialog.move(100, 100);
    SendMouse(&dialog, QEvent::MouseButtonPress, {50, 10}, {150, 110}, Qt::LeftButton, Qt::LeftButton);
    QVERIFY(dialog.m_bDragging);
    QCOMPARE(dialog.m_ptDragPos, QPoint(150, 110));
    SendMouse(&dialog, QEvent::MouseMove, {60, 30}, {160, 130}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), QPoint(110, 120));
    SendMouse(&dialog, QEvent::MouseMove, {45, 10}, {155, 130}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), QPoint(105, 120));
    QCOMPARE(dialog.m_ptDragPos, QPoint(155, 130));
    SendMouse(&dialog, QEvent::MouseMove, {45, 10}, {300, 300}, Qt::NoButton, Qt::RightButton);
    QCOMPARE(dialog.pos(), QPoint(105, 120));
    SendMouse(&dialog, QEvent::MouseButtonRelease, {45, 10}, {155, 130}, Qt::RightButton, Qt::LeftButton);
    QVERIFY(dialog.m_bDragging);
    SendMouse(&dialog, QEvent::MouseButtonRelease, {45, 10}, {155, 130}, Qt::LeftButton, Qt::NoButton);
    QVERIFY(!dialog.m_bDragging);
    SendMouse(&dialog, QEvent::MouseMove, {45, 10}, {200, 200}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), QPoint(105, 120));
}

void CProgressWidgetTest::pressDecidesAboutTheDrag_data()
{
    QTest::addColumn<double>("y");
    QTest::addColumn<bool>("drags");
    QTest::newRow("top") << 0.0 << true;
    QTest::newRow("last line of the title") << 31.0 << true;
    QTest::newRow("fraction below it") << 31.9 << true;
    QTest::newRow("first line below the title") << 32.0 << false;
    QTest::newRow("bottom") << 130.0 << false;
}

void CProgressWidgetTest::pressDecidesAboutTheDrag()
{
    QFETCH(double, y);
    QFETCH(bool, drags);
    CProgressWidget dialog(nullptr);
    dialog.move(100, 100);
    SendMouse(&dialog, QEvent::MouseButtonPress, {50, y}, {150, 100 + y}, Qt::LeftButton, Qt::LeftButton);
    QCOMPARE(dialog.m_bDragging, drags);
    const QPoint target = dialog.pos() + (drags ? QPoint(20, 0) : QPoint());
    SendMouse(&dialog, QEvent::MouseMove, {70, y}, {170, 100 + y}, Qt::NoButton, Qt::LeftButton);
    QCOMPARE(dialog.pos(), target);
}

void CProgressWidgetTest::otherButtonsDoNotDrag()
{
    CProgressWidget dialog(nullptr);
    SendMouse(&dialog, QEvent::MouseButtonPress, {50, 10}, {150, 110}, Qt::RightButton, Qt::RightButton);
    QVERIFY(!dialog.m_bDragging);
}

namespace {

int CreateFromWorker(int argc, char* argv[])
{
    const QApplication app(argc, argv);
    std::thread worker([] { CProgressWidget::CreateAutoWidget(QString(), QString()); });
    worker.join();
    return 0;
}

// The application lives on a thread of its own, and the process's main thread makes the dialog.
int CreateFromMain(int argc, char* argv[])
{
    QSemaphore ready;
    const std::unique_ptr<QThread> application(QThread::create([&] {
        const QApplication app(argc, argv);
        ready.release();
        QApplication::exec();
    }));
    application->start();
    ready.acquire();
    const QEventLoop loop; // gives this thread the timers that it has without an application
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &poll, [] {
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (const auto* box = qobject_cast<QMessageBox*>(widget); box && box->isVisible()) {
                fprintf(stdout, "%s|%s|%d", qUtf8Printable(box->windowTitle()), qUtf8Printable(box->text()),
                        int(box->standardButtons()));
                fflush(stdout);
                std::_Exit(0); // the toolkit cannot end a box that runs beside the application's thread
            }
        }
    });
    poll.start(10);
    CProgressWidget::CreateAutoWidget(QString(), QString());
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    TestEnvironment::PrepareProcess();
    const QByteArray mode = argc > 1 ? QByteArray(argv[1]) : QByteArray();
    if (mode == kFromWorker) {
        return CreateFromWorker(argc, argv);
    }
    if (mode == kFromMain) {
        return CreateFromMain(argc, argv);
    }
    QApplication app(argc, argv);
    const TestEnvironment environment;
    CProgressWidgetTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CProgressWidgetTest.moc"
