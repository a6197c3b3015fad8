#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QPoint>
#include <QPointer>
#include <QString>
#include <QWidget>

class QMovie;
class QPushButton;
class QTimer;

namespace Ui {
class CProgressWidget;
}

/**
 * The application-modal progress dialog of long jobs: an animation, a bold title, a wrapped message with moving dots
 * and a striped bar.
 *
 * A job that knows how far it is drives the bar with setValue(). One that doesn't has the dialog creep by itself, by at
 * most 5 a step and ever slower, without reaching the target before endAutoAddNumRun(). The host makes the dialog with
 * one of the two factories and holds it by the guarded pointer that it gets, since a dialog may be deleted while its
 * job still runs. GUI thread only.
 *
 * Keyboard and accessibility: Tab reaches the close button while it is shown, Space presses it. A screen reader meets a
 * dialog named by its title, with a progress bar whose value it can follow.
 *
 * @code
 * QPointer<CProgressWidget> progress = CProgressWidget::CreateAutoWidget(tr("Please wait"), tr("Rebuilding"));
 * connect(job, &Job::finished, this, [progress] { CProgressWidget::FreeAutoWidget(progress, true); });
 * job->start();
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CProgressWidget : public QWidget
{
    Q_OBJECT

public:
    /**
     * A dialog that is not yet shown, with its animation and its dots running.
     *
     * @param parent owner and the window that it belongs to; may be null
     */
    explicit CProgressWidget(QWidget* parent = nullptr);
    ~CProgressWidget() override;
    Q_DISABLE_COPY_MOVE(CProgressWidget)

    /** A new dialog without a parent, not yet shown. The caller deletes it, or has FreeAutoWidget() do so. */
    static QPointer<CProgressWidget> CreateWidgetPtr();

    /**
     * A new dialog that is shown, has no close button and creeps towards 100, one step every 500 ms. To be ended with
     * FreeAutoWidget().
     *
     * On another thread than the application's this ends the process with a fatal message: it is the one rule that the
     * dialog enforces, since a dialog made on a worker thread would fail later and elsewhere.
     *
     * @param text  the message, see setText()
     * @param title the title, see setProText()
     */
    static QPointer<CProgressWidget> CreateAutoWidget(QString text, QString title);

    /**
     * Stops, hides and deletes a dialog. A pointer whose dialog is gone is harmless.
     *
     * @param widget             the dialog
     * @param activateMainWindow true asks the host to bring its main window forward, by
     *                           CorvaneSignalHelper::signalActiveMainWindow(), also when the dialog is gone
     */
    static void FreeAutoWidget(QPointer<CProgressWidget> widget, bool activateMainWindow);

    /**
     * Has the bar creep towards a target by itself. A bar at 0 starts at 1.
     *
     * @param target     2 to 100; anything else counts as 100. A target below an earlier one is ignored altogether
     * @param intervalMs time between two steps in milliseconds, at least 200; anything smaller counts as 200
     */
    void autoAddNumRun(int target, int intervalMs);

    /** Ends the automatic run and puts the bar, and the value of getValueRef(), on its target. */
    void endAutoAddNumRun();

    /**
     * Has the bar follow the value that the host writes through getValueRef(), twenty times a second. While an
     * automatic run is in force the bar goes on creeping instead, at that pace.
     */
    void extrAddNumRun();

    /**
     * Puts the bar on a value.
     *
     * @param value          0 to 100; the bar ignores anything else, while getValueRef() keeps it
     * @param refreshStripes true redraws the stripes at once instead of at their next tick
     */
    void setValue(int value, bool refreshStripes);

    /** Empties the bar and hides the dialog; it goes on running. */
    void reset();

    /**
     * Ends the run: the bar is emptied, the steps and the dots stop, and the dialog is hidden and closed, but for the
     * titles "三维拼接" and "表面重建", whose dialogs stay on the screen for the host's next stage. The title
     * "恢复扫描状态" emits closeRestoreScan(). The close button is shown again in every case.
     *
     * Meant are these titles as they read in the program's language: a host passes
     * QCoreApplication::translate("CProgressWidget", "三维拼接"), which is the Chinese text where nothing translates
     * it.
     */
    void stop();

    /** Tells that the job failed: the dots stop, the dialog closes and its close button can be clicked again. */
    void progressFailDeal();

    /** Sets the message as setText() does, and the title, which also decides what stop() does; it tells which texts. */
    void setProText(QString text, QString title);

    /** Sets the message, to which the moving dots are added. The dialog's height follows the wrapped text. */
    void setText(QString text);

    /**
     * Prepares the message of the next stage. It takes over once, as soon as the bar follows a value of @p value or
     * more outside an automatic run.
     *
     * @param value 0 to 100; a negative one means no next stage
     * @param text  the message, see setText()
     */
    void setStageText(int value, QString text);

    /** The title on the screen. */
    QString getTitle() const;

    /** The value that the host wants shown, to be written on the GUI thread; see extrAddNumRun(). */
    int& getValueRef();

    /** The message without its dots; what is written here is shown at the next movement of the dots. */
    QString& getTextRef();

    /** Shows or hides the percentage on the bar. */
    void SetProgressTextVisible(bool visible);

    /** Spaces the moving dots: ". ." instead of "..". */
    void SetSpecialSign(bool special);

    /** The time between two movements of the dots: 100 to 500 milliseconds; anything else is moved to the nearer end.
     */
    void SetEllipsisInterval(int ms);

    /** Hides the close button and takes it back from the host. */
    void HideCloseButton();

    /**
     * Hands the close button to the host and shows it: a click then disables it and emits signalCloseBtnClicked()
     * instead of ending the dialog.
     */
    void BindCloseButton();

    /** Lets the close button be clicked again. */
    void EnableCloseButton();

Q_SIGNALS:
    /** The close button was clicked while it belongs to the host. It stays disabled until EnableCloseButton(). */
    void signalCloseBtnClicked();
    /** A dialog titled "恢复扫描状态", as that reads in the program's language, was stopped; see stop(). */
    void closeRestoreScan();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private Q_SLOTS:
    void updateEllipsis();
    void SlotClose();
    void SlotQuit();
    void showCloseButton();

private:
    int BarValue() const;
    void SetBarValue(int value);
    int WholeOnScreen(int size) const;
    int NextAutoValue() const;
    void AdvanceBar();
    bool IsClosedByProgram() const;

    bool m_bUserClosed = false;
    Ui::CProgressWidget* ui;
    QTimer* m_pTimerAuto;
    QTimer* m_pTimerEllipsis;
    QTimer* m_pTimerMovie;
    QMovie* m_pMovie;
    int m_nValue = 0;
    int m_nAutoTarget = 0;
    bool m_bAutoRunning = false;
    bool m_bSpecialSign = false;
    int m_nEllipsisIndex = 0;
    QString m_strStageText;
    int m_nStageValue = -1;
    bool m_bStageShown = false;
    bool m_bDragging = false;
    QPoint m_ptDragPos;
    QString m_strText;
    QString m_strTitle;
    bool m_bCloseBound = false;
    QPushButton* m_pBtnClose;
};
