#include <CustomControls/CProgressWidget/CProgressWidget.h>

#include "ui_CProgressWidget.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CustomControls/CProgressWidget/CProgressBar.h>
#include <CustomControls/CProgressWidget/CProgressWidgetAccessible.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/accessibility/TranslatedName.h>
#include <CustomControls/messagebox/MovieCopy_p.h>

#include <QApplication>
#include <QCloseEvent>
#include <QDebug>
#include <QMessageBox>
#include <QMouseEvent>
#include <QMovie>
#include <QPushButton>
#include <QRandomGenerator>
#include <QThread>
#include <QTimer>
#include <QWindow>

#include <array>
#include <cmath>
#include <utility>

namespace {

const char* const kCloseButtonSheet =
    "QPushButton{border:none;background:transparent;image:url(:/icon/ico_current_pop_close_nor.png);}"
    "QPushButton::hover{image:url(:/icon/ico_current_pop_close_hover.png);}";
constexpr int kCloseButtonSize = 24;
constexpr int kCloseButtonMargin = 7;

const char* const kMovieFile = ":/icon/gif_pop_bac.gif";

constexpr int kBarWidth = 396;
constexpr int kBarHeight = 10;
constexpr int kDragHeight = 32;

constexpr int kLowestTarget = 2;
constexpr int kHighestTarget = 100;
constexpr int kLargestStep = 5;
constexpr int kShortestStepMs = 200;
constexpr int kAutoWidgetStepMs = 500;
constexpr int kFollowIntervalMs = 50;

constexpr int kShortestEllipsisMs = 100;
constexpr int kLongestEllipsisMs = 500;
const std::array<const char*, 4> kDots = {".", "..", "...", ""};
const std::array<const char*, 4> kSpacedDots = {". .", ". . .", ". . . .", ""};

const char* const kAssertedCondition = "QThread::currentThread() == qApp->thread()";
const char* const kAssertedFile = "CustomControls/CProgressWidget/CProgressWidget";
constexpr int kAssertedLine = 151;

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)
// Libraries that a program links are loaded before main() runs, on the thread that will run it.
const Qt::HANDLE s_mainThreadId = QThread::currentThreadId();
#endif

bool IsMainThread()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 8, 0)
    return QThread::isMainThread();
#else
    return QThread::currentThreadId() == s_mainThreadId;
#endif
}

// Swallows the close requests that reach a window and tells whether there was one.
class CloseRequestCatcher : public QObject
{
public:
    bool m_bCaught = false;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() != QEvent::Close) {
            return QObject::eventFilter(watched, event);
        }
        m_bCaught = true;
        event->ignore();
        return true;
    }
};

/** A push button outside of layouts: to learn its margins for them it would load its pictures twice. */
class PlacedButton : public QPushButton
{
public:
    using QPushButton::QPushButton;

protected:
    bool event(QEvent* event) override
    {
        return event->type() == QEvent::StyleChange ? QAbstractButton::event(event) : QPushButton::event(event);
    }
};

const AccessibleFactory::Registration<CProgressWidget, CProgressWidgetAccessible> kAccessible;

} // namespace

CProgressWidget::CProgressWidget(QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::FramelessWindowHint) // flags that come after the form have its sheets read anew
    , ui(new Ui::CProgressWidget)
    , m_pTimerAuto(new QTimer(this))
    , m_pTimerEllipsis(new QTimer(this))
    , m_pTimerMovie(new QTimer(this))
    , m_pMovie(new QMovie(QString::fromLatin1(kMovieFile), QByteArray(), this))
    , m_pBtnClose(nullptr)
{
    ui->setupUi(this);
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_TranslucentBackground);

    connect(m_pTimerEllipsis, &QTimer::timeout, this, &CProgressWidget::updateEllipsis);
    m_pTimerEllipsis->start(kLongestEllipsisMs);

    MovieCopy::Start(m_pMovie, m_pTimerMovie, ui->label_2);

    ui->label_8->setFont(FontCnBold_16);
    ui->label_7->setFont(FontCnMedium_16);
    ui->label_7->setWordWrap(true);
    SetBarValue(0);

    m_pBtnClose = new PlacedButton(this);
    m_pBtnClose->setStyleSheet(QString::fromLatin1(kCloseButtonSheet));
    m_pBtnClose->setFixedSize(kCloseButtonSize, kCloseButtonSize);
    m_pBtnClose->move(width() - kCloseButtonSize - kCloseButtonMargin, kCloseButtonMargin);
    KeyboardFocus::ShowOn(m_pBtnClose);
    SetTranslatedName(m_pBtnClose, [] { return tr("关闭"); });
    m_pBtnClose->show();
    connect(m_pBtnClose, &QPushButton::clicked, this, &CProgressWidget::SlotClose);

    connect(m_pTimerAuto, &QTimer::timeout, this, &CProgressWidget::AdvanceBar);
    ui->myprogress->progressBar()->setFixedWidth(kBarWidth);
    SetTranslatedName(ui->myprogress->progressBar(), [] { return tr("进度"); });
    ui->myprogress->setFixedHeight(WholeOnScreen(kBarHeight));
    connect(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalAboutToExit, this, &CProgressWidget::SlotQuit);
}

CProgressWidget::~CProgressWidget()
{
    m_pTimerAuto->stop();
    m_pTimerEllipsis->stop();
    m_pTimerMovie->stop();
    m_pMovie->stop();
    qDebug() << "~CProgressWidget" << 128 << "delete CProgressWidget.";
    delete ui;
}

QPointer<CProgressWidget> CProgressWidget::CreateWidgetPtr()
{
    return new CProgressWidget;
}

QPointer<CProgressWidget> CProgressWidget::CreateAutoWidget(QString text, QString title)
{
    const QCoreApplication* const application = QCoreApplication::instance();
    if (!application || QThread::currentThread() != application->thread()) {
        if (!IsMainThread()) {
            qFatal("RELEASE_ASSERT failed in non-main thread: %s, file: %s, line: %d", kAssertedCondition,
                   kAssertedFile, kAssertedLine);
        }
        const QString message = tr("断言失败: %1\n文件: %2\n行号: %3")
                                    .arg(QString::fromLatin1(kAssertedCondition), QString::fromLatin1(kAssertedFile))
                                    .arg(kAssertedLine);
        QMessageBox::critical(nullptr, tr("关键逻辑错误"), message, QMessageBox::Ok);
        qFatal("%s", qUtf8Printable(message));
    }
    QPointer<CProgressWidget> widget = CreateWidgetPtr();
    widget->setProText(std::move(text), std::move(title));
    widget->HideCloseButton();
    widget->show();
    if (widget) {
        widget->autoAddNumRun(kHighestTarget, kAutoWidgetStepMs);
    }
    return widget;
}

// Each step runs code of the host, which may delete the dialog.
void CProgressWidget::FreeAutoWidget(QPointer<CProgressWidget> widget, bool activateMainWindow)
{
    if (activateMainWindow) {
        Q_EMIT CorvaneSignalHelper::instance()->signalActiveMainWindow();
    }
    if (widget) {
        widget->stop();
    }
    if (widget) {
        widget->hide();
    }
    if (widget) {
        widget->deleteLater();
    }
}

void CProgressWidget::autoAddNumRun(int target, int intervalMs)
{
    if (target < kLowestTarget || target > kHighestTarget) {
        target = kHighestTarget;
    }
    if (target < m_nAutoTarget) {
        return;
    }
    if (BarValue() == 0) {
        SetBarValue(1);
    }
    m_bAutoRunning = true;
    m_nAutoTarget = target;
    m_pTimerAuto->start(qMax(kShortestStepMs, intervalMs));
    m_pTimerEllipsis->start();
}

void CProgressWidget::endAutoAddNumRun()
{
    m_pTimerAuto->stop();
    m_bAutoRunning = false;
    m_nValue = m_nAutoTarget;
    SetBarValue(m_nAutoTarget);
}

void CProgressWidget::extrAddNumRun()
{
    m_pTimerAuto->start(kFollowIntervalMs);
    m_pTimerEllipsis->start();
}

void CProgressWidget::setValue(int value, bool refreshStripes)
{
    m_nValue = value;
    SetBarValue(value);
    if (refreshStripes) {
        ui->myprogress->updateValue();
    }
}

void CProgressWidget::reset()
{
    SetBarValue(0);
    update();
    setHidden(true);
}

void CProgressWidget::stop()
{
    // The host may delete the dialog from the signal and from its closing.
    const QPointer<CProgressWidget> alive(this);
    m_nValue = 0;
    m_bStageShown = false;
    m_bAutoRunning = false;
    SetBarValue(0);
    m_pTimerAuto->stop();
    m_pTimerEllipsis->stop();
    if (m_strTitle == tr("恢复扫描状态")) {
        Q_EMIT closeRestoreScan();
        if (!alive) {
            return;
        }
    }
    if (m_strTitle != tr("三维拼接") && m_strTitle != tr("表面重建")) {
        reset();
        close();
        if (!alive) {
            return;
        }
    }
    showCloseButton();
}

void CProgressWidget::progressFailDeal()
{
    const QPointer<CProgressWidget> alive(this);
    m_pTimerEllipsis->stop();
    close();
    if (alive) {
        EnableCloseButton();
    }
}

void CProgressWidget::setProText(QString text, QString title)
{
    setText(std::move(text));
    ui->label_8->setText(title);
    m_strTitle = std::move(title);
}

void CProgressWidget::setText(QString text)
{
    QLabel* const label = ui->label_7;
    label->setMinimumHeight(0);
    label->setMaximumHeight(QWIDGETSIZE_MAX);
    label->setText(text);
    label->adjustSize();
    // Fixed before the dialog is adjusted: a shown dialog hands its label the height that a wider one would need, since
    // the spacer beside the title wishes for more width than the dialog may have.
    label->setFixedHeight(WholeOnScreen(label->height()));
    // Each layout learns the new height from the one within it, otherwise one turn of the event loop later.
    for (QWidget* widget = label->parentWidget(); widget != this; widget = widget->parentWidget()) {
        widget->layout()->activate();
    }
    layout()->activate();
    adjustSize();
    m_strText = std::move(text);
}

void CProgressWidget::setStageText(int value, QString text)
{
    m_nStageValue = value;
    m_strStageText = std::move(text);
    m_bStageShown = false;
}

QString CProgressWidget::getTitle() const
{
    return ui->label_8->text();
}

int& CProgressWidget::getValueRef()
{
    return m_nValue;
}

QString& CProgressWidget::getTextRef()
{
    return m_strText;
}

void CProgressWidget::SetProgressTextVisible(bool visible)
{
    ui->myprogress->progressBar()->SetTextVisible(visible);
}

void CProgressWidget::SetSpecialSign(bool special)
{
    m_bSpecialSign = special;
}

void CProgressWidget::SetEllipsisInterval(int ms)
{
    m_pTimerEllipsis->setInterval(qBound(kShortestEllipsisMs, ms, kLongestEllipsisMs));
}

void CProgressWidget::HideCloseButton()
{
    m_bCloseBound = false;
    m_pBtnClose->hide();
}

void CProgressWidget::BindCloseButton()
{
    if (m_bCloseBound) {
        return;
    }
    m_bCloseBound = true;
    m_pBtnClose->show();
}

void CProgressWidget::EnableCloseButton()
{
    m_pBtnClose->setEnabled(true);
}

void CProgressWidget::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_bDragging = event->position().y() < kDragHeight;
        if (m_bDragging) {
            m_ptDragPos = event->globalPosition().toPoint();
        }
    }
    QWidget::mousePressEvent(event);
}

void CProgressWidget::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_bDragging = false;
    }
    QWidget::mouseReleaseEvent(event);
}

void CProgressWidget::mouseMoveEvent(QMouseEvent* event)
{
    if (m_bDragging && event->buttons().testFlag(Qt::LeftButton)) {
        const QPoint position = event->globalPosition().toPoint();
        move(pos() + position - m_ptDragPos);
        m_ptDragPos = position;
    }
    QWidget::mouseMoveEvent(event);
}

void CProgressWidget::closeEvent(QCloseEvent* event)
{
    event->setAccepted(!event->spontaneous() || IsClosedByProgram());
}

void CProgressWidget::updateEllipsis()
{
    const auto& dots = m_bSpecialSign ? kSpacedDots : kDots;
    ui->label_7->setText(m_strText + QLatin1String(dots[m_nEllipsisIndex]));
    m_nEllipsisIndex = (m_nEllipsisIndex + 1) % int(dots.size());
}

void CProgressWidget::SlotClose()
{
    if (m_bCloseBound) {
        m_pBtnClose->setEnabled(false);
        Q_EMIT signalCloseBtnClicked();
        return;
    }
    m_bUserClosed = true;
    stop();
}

void CProgressWidget::SlotQuit()
{
    m_bCloseBound = false;
    m_bUserClosed = true;
    stop();
}

void CProgressWidget::showCloseButton()
{
    m_pBtnClose->show();
}

int CProgressWidget::BarValue() const
{
    return ui->myprogress->progressBar()->value();
}

void CProgressWidget::SetBarValue(int value)
{
    ui->myprogress->progressBar()->setValue(value);
}

// The size, or the one near it that ends on a physical pixel.
int CProgressWidget::WholeOnScreen(int size) const
{
    const double ratio = devicePixelRatioF();
    const double scaled = size * ratio;
    return scaled == std::floor(scaled) ? size : ClosestInteger(size, QString::number(ratio, 'g', 6));
}

int CProgressWidget::NextAutoValue() const
{
    const int value = BarValue();
    // A bar above its target has no way to go: it falls below the target at once.
    const int range = qMax(0, (m_nAutoTarget - value) / 3);
    const int step = int((quint64(QRandomGenerator::global()->generate()) * quint64(range)) >> 32);
    return qMin(value + qMin(step, kLargestStep), m_nAutoTarget - 1);
}

void CProgressWidget::AdvanceBar()
{
    if (m_bAutoRunning) {
        SetBarValue(NextAutoValue());
        return;
    }
    const int next = m_nValue;
    if (!m_bStageShown && m_nStageValue >= 0 && next >= m_nStageValue) {
        m_bStageShown = true;
        setText(m_strStageText);
    }
    SetBarValue(next);
}

// The toolkit closes a shown window by way of its window system, so that the event of a close() looks like one that the
// user asked for. But a window that is within its close() doesn't start another: if a second call brings a second
// request, there was no first call.
bool CProgressWidget::IsClosedByProgram() const
{
    QWindow* const window = windowHandle();
    if (!window) {
        return false;
    }
    CloseRequestCatcher catcher;
    window->installEventFilter(&catcher);
    window->close();
    return !catcher.m_bCaught;
}
