#pragma once

#include "TourPlayer.h"

#include <QObject>
#include <QPoint>
#include <QStringList>

class QWidget;

/**
 * Moves the real pointer and presses the real keys: events take the whole way through the window
 * system, so focus, grabs and stacking are what a user meets. Operations are gathered and sent together; nothing here
 * waits, so a control that opens a dialog of its own in answer finds no code of the tour on the stack.
 */
class TourInput : public QObject
{
    Q_OBJECT

public:
    explicit TourInput(QObject* parent = nullptr);

    /** What is missing for real input; empty when there is such. */
    static QString Missing();

    /** Scrolls the widget into view, moves to its middle and clicks. Null counts as a failure of the step. */
    void Click(QWidget* widget);
    void Click(QWidget* widget, const QPoint& position);
    void RightClick(QWidget* widget, const QPoint& position);
    void MoveTo(QWidget* widget);
    void MoveTo(QWidget* widget, const QPoint& position);
    /** From where the pointer stands, in pixels of the screen. */
    void MoveBy(const QPoint& way);
    /** Twice, where the pointer stands. */
    void DoubleClick();
    void Press();
    void Release();
    void Type(const QString& text);
    /** A key in xdotool's names: "Return", "Escape", "ctrl+a". */
    void Key(const QString& key);

    /** Starts what was gathered. */
    void Send();
    bool IsBusy() const;
    /** What was sent last, for the line of a failed step. */
    QString Sent() const;
    /** Why the last events could not be sent; empty when they could. */
    QString Problem() const;
    /** Forgets what was gathered and the problem. */
    void Clear();

private:
    TourPlayer m_player;
    QStringList m_arguments;
    QString m_strSent;
    QString m_strProblem;
};
