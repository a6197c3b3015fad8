#pragma once

#include <QApplication>
#include <QHash>

/** Books the processor time that events take to the window which their receiver belongs to. */
class IdleApplication : public QApplication
{
public:
    using QApplication::QApplication;

    /** Adds the seconds that the window's events take to what @p seconds points at. */
    void Watch(QWidget* window, double* seconds);

    /** Whether events are booked. When that ends, all windows are forgotten. */
    void SetWatching(bool watching);

    bool notify(QObject* receiver, QEvent* event) override;

private:
    double* AccountOf(QObject* receiver) const;

    QHash<const QObject*, double*> m_hashAccounts;
    bool m_bWatching = false;
};
