#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

/**
 * Leaves a widget that waits, and all that it holds, unpolished until it is shown.
 *
 * Each new widget asks the event loop to be polished, shown or not, and to polish is to read its style sheet. What may
 * never be shown needs none of it, and what is shown is polished by that.
 */
inline void PolishWhenShown(QWidget* widget)
{
    QCoreApplication::removePostedEvents(widget, QEvent::PolishRequest);
    const QList<QWidget*> parts = widget->findChildren<QWidget*>();
    for (QWidget* part : parts) {
        QCoreApplication::removePostedEvents(part, QEvent::PolishRequest);
    }
}
