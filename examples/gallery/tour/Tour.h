#pragma once

#include "TourInput.h"
#include "TourWatchdog.h"

#include <QElapsedTimer>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPixmap>
#include <QRect>
#include <QString>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

class GalleryWindow;
class TourSimulator;

/** One step: what the user does, and what then shows. */
struct TourStep
{
    QString strName;
    /** Queues the user's events. It returns at once: what they cause happens later, under the event loop. */
    std::function<void(TourInput& input)> act;
    /** Asked again and again: empty once the screen shows what it should, else what is missing. */
    std::function<QString()> missing;
    /** What shows only for a moment is pictured at once and not looked at twice. */
    bool bMomentary = false;
    int iTimeoutMs = 20000;
    /** Set, it makes the step's picture, which is saved under the step's plain name, in place of the whole screen's. */
    std::function<QPixmap()> picture = {};
};

/** Steps that belong together; when one fails, the others of its group are left out. */
struct TourGroup
{
    QString strName;
    QString strSkipReason; ///< not empty: the group is reported as skipped
    std::vector<TourStep> steps;
    bool bEveryLanguage = false; ///< checks no text of one language alone
    bool bOnRequest = false;     ///< walked only when it is asked for by name
};

/**
 * Walks the gallery with real mouse and key events, saves a numbered picture of each step and checks what it shows.
 *
 * It runs by a timer and never waits in a call, since message boxes run on nested event loops: the timer goes on under
 * them. Prints one line for each step.
 *
 * @code
 * Tour tour(&window, "pictures", "machine-simulator", 45002);
 * QString problem;
 * if (tour.Prepare({}, &problem))
 *     return tour.Run();
 * @endcode
 */
class Tour : public QObject
{
    Q_OBJECT

public:
    enum ExitCode
    {
        ExitOk = 0,
        ExitFailed = 1,
        ExitSkipped = 77 ///< nothing could be walked here
    };

    Tour(GalleryWindow* window, const QString& folder, const QString& simulator, quint16 discoveryPort);
    ~Tour() override;

    /** Makes the folder and gathers the groups (all of them for an empty list); false with a reason. */
    bool Prepare(const QStringList& onlyGroups, QString* problem);

    /** Walks; an ExitCode. */
    int Run();

    GalleryWindow* Window() const { return m_pWindow; }
    /** The machine of that name; made when it is first asked for, and ended with the group. */
    TourSimulator* Machine(const QString& name);
    quint16 DiscoveryPort() const { return m_iDiscoveryPort; }

private:
    enum State
    {
        StateAct,
        StateWait,
        StateSettle
    };

    void Tick();
    bool IsWindowInPlace();
    void NextStep();
    void NextGroup();
    void Finish();
    void Report(const QString& outcome, const QString& detail);
    void SavePicture();
    /** Ends every dialog that a failed step has left open. */
    void Recover();

    GalleryWindow* m_pWindow;
    QString m_strFolder;
    QString m_strSimulator;
    quint16 m_iDiscoveryPort;
    TourInput m_input;
    std::vector<TourGroup> m_groups;
    QHash<QString, TourSimulator*> m_machines;
    QTimer m_timer;
    QElapsedTimer m_elapsed;
    QElapsedTimer m_total;
    QElapsedTimer m_stable;
    QRect m_lastGeometry;
    std::unique_ptr<TourWatchdog> m_pWatchdog;
    State m_eState = StateAct;
    size_t m_iGroup = 0;
    size_t m_iStep = 0;
    int m_iPicture = 0;
    int m_iPassed = 0;
    int m_iFailed = 0;
    int m_iSkippedGroups = 0;
};

// The groups, each in a file of its own.
TourGroup TourPages(Tour* tour);
std::vector<TourGroup> TourPictures(Tour* tour); // on request: the pictures of docs/
TourGroup TourWindows(Tour* tour);
TourGroup TourRibbon(Tour* tour);
TourGroup TourButtons(Tour* tour);
TourGroup TourParameters(Tour* tour);
TourGroup TourMessageBoxes(Tour* tour);
TourGroup TourNotices(Tour* tour);
TourGroup TourMachine(Tour* tour);
TourGroup TourMenus(Tour* tour);
TourGroup TourProgress(Tour* tour);
TourGroup TourToolConfirmation(Tour* tour);
TourGroup TourToolTable(Tour* tour);
TourGroup TourUsb(Tour* tour);
TourGroup TourCombos(Tour* tour);
TourGroup TourText(Tour* tour);
TourGroup TourSearch(Tour* tour);
TourGroup TourExamples(Tour* tour);
TourGroup TourLanguage(Tour* tour);

/** The step that opens a page by a click on its name in the page list. */
TourStep TourOpenPage(const QString& page);
