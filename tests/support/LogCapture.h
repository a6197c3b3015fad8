#pragma once

#include <QStringList>

/** Collects the log's raw lines while it lives; the first one made holds the listener. Thread-safe. */
class LogCapture
{
public:
    LogCapture();
    ~LogCapture();
    Q_DISABLE_COPY_MOVE(LogCapture)

    QStringList Lines() const;
    /** The lines so far, which are then forgotten. */
    QStringList Take();
};
