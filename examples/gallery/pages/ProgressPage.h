#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

#include <CustomControls/CProgressWidget/CProgressWidget.h>

#include <QPointer>

class QTimer;

/** CProgressWidget in its two ways of running, with stage text, a host's own close button and a long message. */
class ProgressPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ProgressPage(const GalleryOptions& options);
    ~ProgressPage() override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void AddBars();
    void RunAutomatically();
    void RunByValue();
    void RunWithStages();
    void RunCancellable();
    void RunWithLongText();

    /** Shows a new dialog; one runs at a time, since each is modal. */
    void Open(const QString& text, const QString& title);
    /** Raises the job's value every tick, and ends the dialog behind 100. */
    void StartJob(int intervalMs, bool writeReference);
    void Finish(const QString& outcome);

    QLabel* m_pOutcome;
    QPointer<CProgressWidget> m_pDialog;
    QTimer* m_pJob;
    QTimer* m_pQueue; ///< moves the bars of the queue while they are seen
    int m_iDone = 0;
    bool m_bWriteReference = false;
};
