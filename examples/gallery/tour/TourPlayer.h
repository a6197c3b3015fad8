#pragma once

#include <QObject>
#include <QStringList>

#include <memory>

/**
 * Plays a list of pointer and key operations, which is written in the words of xdotool: "mousemove --window <id> <x>
 * <y>", "mousemove_relative -- <x> <y>", "mousedown|mouseup|click [--repeat <n> --delay <ms>] <button>", "key <name>",
 * "type --delay <ms> --args 1 <text>", "sleep <seconds>". On X11 xdotool itself plays it; Windows has an input road of
 * its own.
 */
class TourPlayer : public QObject
{
    Q_OBJECT

public:
    explicit TourPlayer(QObject* parent);
    ~TourPlayer() override;

    /** What is missing here; empty when the player can play. */
    static QString Missing();

    /** Begins to play and returns at once. */
    void Start(const QStringList& words);
    bool IsBusy() const;

Q_SIGNALS:
    void SignalFailed(const QString& reason);

private:
    struct Road;
    std::unique_ptr<Road> m_pRoad;
};
