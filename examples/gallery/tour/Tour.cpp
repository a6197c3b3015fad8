#include "Tour.h"

#include "../GalleryWindow.h"
#include "TourLook.h"
#include "TourSimulator.h"

#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QApplication>
#include <QDir>
#include <QPixmap>
#include <QRegularExpression>
#include <QScreen>
#include <QWindow>

#include <cstdio>

namespace {
constexpr int TickMs = 30;
constexpr int SettleMs = 160;
constexpr int HungMs = 30000;
constexpr int TotalMs = 300000;
} // namespace

Tour::Tour(GalleryWindow* window, const QString& folder, const QString& simulator, quint16 discoveryPort)
    : m_pWindow(window)
    , m_strFolder(folder)
    , m_strSimulator(simulator)
    , m_iDiscoveryPort(discoveryPort)
{
    m_timer.setInterval(TickMs);
    connect(&m_timer, &QTimer::timeout, this, &Tour::Tick);
}

Tour::~Tour() = default;

bool Tour::Prepare(const QStringList& onlyGroups, QString* problem)
{
    if (!QDir().mkpath(m_strFolder)) {
        *problem = QStringLiteral("cannot make the folder \"%1\"").arg(m_strFolder);
        return false;
    }
    std::vector<TourGroup> groups;
    groups.push_back(TourPages(this));
    groups.push_back(TourWindows(this));
    groups.push_back(TourRibbon(this));
    groups.push_back(TourButtons(this));
    groups.push_back(TourParameters(this));
    groups.push_back(TourMenus(this));
    groups.push_back(TourMessageBoxes(this));
    groups.push_back(TourProgress(this));
    groups.push_back(TourNotices(this));
    groups.push_back(TourCombos(this));
    groups.push_back(TourText(this));
    groups.push_back(TourSearch(this));
    groups.push_back(TourLanguage(this));
    groups.push_back(TourExamples(this));
    groups.push_back(TourMachine(this));
    groups.push_back(TourToolConfirmation(this));
    groups.push_back(TourToolTable(this));
    groups.push_back(TourUsb(this));
    for (TourGroup& pictures : TourPictures(this)) {
        groups.push_back(std::move(pictures));
    }

    QStringList unknown = onlyGroups;
    for (TourGroup& group : groups) {
        unknown.removeAll(group.strName);
        if (!group.bEveryLanguage && !CorvaneTextHelper::instance()->AppInChineseEnvironment()) {
            group.strSkipReason = QStringLiteral("its texts are checked in Chinese");
        }
        if (onlyGroups.isEmpty() ? !group.bOnRequest : onlyGroups.contains(group.strName)) {
            m_groups.push_back(std::move(group));
        }
    }
    if (!unknown.isEmpty()) {
        *problem = QStringLiteral("there is no group \"%1\" in the tour").arg(unknown.first());
        return false;
    }
    return true;
}

int Tour::Run()
{
    if (!TourInput::Missing().isEmpty()) {
        std::printf("tour skipped: it needs %s\n", qUtf8Printable(TourInput::Missing()));
        return ExitSkipped;
    }
    m_pWatchdog = std::make_unique<TourWatchdog>(HungMs, TotalMs);
    m_total.start();
    m_elapsed.start();
    m_timer.start();
    m_stable.start();
    const int code = QApplication::exec();
    m_pWatchdog.reset();
    return code;
}

TourSimulator* Tour::Machine(const QString& name)
{
    TourSimulator*& machine = m_machines[name];
    if (!machine) {
        machine = new TourSimulator(m_strSimulator, this);
    }
    return machine;
}

void Tour::Tick()
{
    m_pWatchdog->Feed();
    if (m_iGroup >= m_groups.size()) {
        Finish();
        return;
    }
    const TourGroup& group = m_groups.at(m_iGroup);
    if (!group.strSkipReason.isEmpty()) {
        std::printf("    skipped %s: %s\n", qUtf8Printable(group.strName), qUtf8Printable(group.strSkipReason));
        ++m_iSkippedGroups;
        NextGroup();
        return;
    }
    if (m_iStep >= group.steps.size()) {
        NextGroup();
        return;
    }
    const TourStep& step = group.steps.at(m_iStep);

    if (m_eState == StateAct) {
        if (!IsWindowInPlace() && !m_elapsed.hasExpired(step.iTimeoutMs)) {
            return;
        }
        m_input.Clear();
        m_elapsed.restart();
        m_eState = StateWait;
        if (step.act) {
            step.act(m_input);
            m_input.Send();
        }
        return;
    }
    QString missing = m_input.Problem();
    if (missing.isEmpty()) {
        missing = m_input.IsBusy() ? QStringLiteral("the events are still on their way") : step.missing();
    }
    if (!m_input.Problem().isEmpty() || (!missing.isEmpty() && m_elapsed.hasExpired(step.iTimeoutMs))) {
        SavePicture();
        missing.chop(missing.endsWith(QLatin1String("; ")) ? 2 : 0);
        Report(QStringLiteral("FAILED"), QStringLiteral("%1 (after: %2)").arg(missing, m_input.Sent()));
        ++m_iFailed;
        Recover();
        NextGroup();
        return;
    }
    if (!missing.isEmpty()) {
        m_eState = StateWait;
        return;
    }
    if (step.bMomentary) {
        SavePicture();
        NextStep();
    } else if (m_eState == StateWait) {
        // It has to stay so while the screen settles: what would only flash up is not what should show.
        m_eState = StateSettle;
        QTimer::singleShot(SettleMs, this, [this] { m_timer.start(); });
        m_timer.stop();
    } else {
        SavePicture();
        NextStep();
    }
}

bool Tour::IsWindowInPlace()
{
    // The window manager moves and decorates the window in its own time; a click before that would go astray.
    const QRect geometry = m_pWindow->geometry();
    if (geometry != m_lastGeometry || !m_pWindow->windowHandle()->isExposed()) {
        m_lastGeometry = geometry;
        m_stable.restart();
    }
    return m_stable.hasExpired(SettleMs);
}

void Tour::NextStep()
{
    Report(QStringLiteral("ok    "), QString());
    ++m_iPassed;
    ++m_iStep;
    m_eState = StateAct;
    m_elapsed.restart();
}

void Tour::NextGroup()
{
    qDeleteAll(m_machines);
    m_machines.clear();
    ++m_iGroup;
    m_iStep = 0;
    m_eState = StateAct;
}

void Tour::Finish()
{
    m_timer.stop();
    std::printf("tour: %d ok, %d failed, %d groups skipped, %.1f s; pictures in %s\n", m_iPassed, m_iFailed,
                m_iSkippedGroups, double(m_total.elapsed()) / 1000, qUtf8Printable(QDir(m_strFolder).absolutePath()));
    std::fflush(stdout);
    QCoreApplication::exit(m_iFailed ? ExitFailed : m_iPassed ? ExitOk : ExitSkipped);
}

void Tour::Report(const QString& outcome, const QString& detail)
{
    const TourGroup& group = m_groups.at(m_iGroup);
    std::printf("%03d %s %s: %s%s%s\n", m_iPicture, qUtf8Printable(outcome), qUtf8Printable(group.strName),
                qUtf8Printable(group.steps.at(m_iStep).strName), detail.isEmpty() ? "" : " -- ",
                qUtf8Printable(detail));
    std::fflush(stdout);
}

void Tour::SavePicture()
{
    const TourStep& step = m_groups.at(m_iGroup).steps.at(m_iStep);
    if (step.picture) {
        if (!step.picture().save(QDir(m_strFolder).filePath(step.strName + QStringLiteral(".png")))) {
            std::printf("    cannot save %s.png\n", qUtf8Printable(step.strName));
            ++m_iFailed;
        }
        return;
    }
    QRect area;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible()) {
            area |= widget->frameGeometry();
        }
    }
    QScreen* screen = m_pWindow->screen();
    area &= screen->geometry();
    const TourGroup& group = m_groups.at(m_iGroup);
    QString name = group.steps.at(m_iStep).strName;
    name.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9]+")), QStringLiteral("-"));
    const QString file =
        QStringLiteral("%1-%2-%3.png").arg(++m_iPicture, 3, 10, QLatin1Char('0')).arg(group.strName, name);
    const QPixmap picture = screen->grabWindow(0, area.x(), area.y(), area.width(), area.height());
    if (!picture.save(QDir(m_strFolder).filePath(file))) {
        std::printf("    cannot save %s\n", qUtf8Printable(file));
    }
}

void Tour::Recover()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (!widget->isVisible() || widget == m_pWindow) {
            continue;
        }
        if (auto* box = qobject_cast<CVelmarMessageBox*>(widget)) {
            box->MsgExit(MsgBtnCancel);
        } else if (auto* progress = qobject_cast<CProgressWidget*>(widget)) {
            progress->stop();
        } else if (qobject_cast<CSelectMachineBox*>(widget)) {
            // A panel that works on a connection holds a frame of its own on the stack; it goes when that has ended.
            QMetaObject::invokeMethod(widget, &QWidget::close, Qt::QueuedConnection);
        }
    }
}
