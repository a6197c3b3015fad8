#pragma once

#include <QByteArray>
#include <QColor>

#include <functional>

class QWidget;

/** A frameless window as the system's frame messages see it. */
struct NativeFrame
{
    QWidget* window = nullptr;
    const QWidget* titleBar = nullptr; ///< may be null
    bool resizeEnable = true;
    QColor fill;                ///< of the system's own frame, where the system still draws one
    bool* straddling = nullptr; ///< whether a window of this class lies across two screens
};

/** What a message has the window tell its host. */
enum FrameNotice
{
    FrameNoticeNone,
    FrameNoticeTitlePressed,
    FrameNoticeMoving
};

/**
 * Makes the system treat a frameless window as one with a frame, so that it moves, resizes, snaps and maximises.
 *
 * On Windows this adds the frame's styles, and everything else comes through HandleFrameMessage. Elsewhere the window's
 * own mouse input is turned into the system's move and resize: @p current is asked for the frame at each event, and
 * @p titlePressed is called for a press on the free part of the title bar. To be called in the window's constructor.
 */
void AdoptNativeFrame(QWidget* window, std::function<NativeFrame()> current, std::function<void()> titlePressed);

/** What the host is to be told of a message, before HandleFrameMessage acts on it. */
FrameNotice FrameNoticeOf(const NativeFrame& frame, const QByteArray& eventType, void* message);

/** Answers a native message; false leaves it to the toolkit. Foreign event types and null pointers are left alone. */
bool HandleFrameMessage(const NativeFrame& frame, const QByteArray& eventType, void* message, qintptr* result);
