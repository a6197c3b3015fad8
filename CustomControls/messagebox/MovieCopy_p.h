#pragma once

#include <QObject>
#include <QPointer>

class QLabel;
class QMovie;
class QTimer;

/**
 * Carries the frames of an animation to a label, for the message box and the progress dialog.
 *
 * Both dialogs have a repeating timer of 1 ms that does this, and whoever looks at it finds it so. Served at that pace
 * it would cost several per cent of a processor by its wake-ups alone, with a new frame at one in a hundred of them. So
 * the frames announce themselves, and the event loop serves the timer more seldom. The label is touched only when there
 * is a frame that it does not show.
 *
 * Owned by its label. Label, movie and timer may be deleted in any order.
 *
 * @code
 * MovieCopy::Start(new QMovie(file, QByteArray(), this), new QTimer(this), ui->label);
 * @endcode
 */
class MovieCopy : public QObject
{
public:
    /** Starts @p movie and, as a repeating one of 1 ms, @p timer, and has their frames shown by @p label. */
    static void Start(QMovie* movie, QTimer* timer, QLabel* label);

    /**
     * Has the event loop serve a running timer at a calm pace without the timer knowing. A timer that is stopped, or
     * that the event loop does not serve, is left alone; one that is started again is served at its own pace.
     */
    static void ServeSeldom(QTimer* timer);

private:
    MovieCopy(QMovie* movie, QTimer* timer, QLabel* label);
    void CopyFrame();

    QPointer<QMovie> m_pMovie;
    QLabel* m_pLabel;
    qint64 m_iShown = 0;
};
