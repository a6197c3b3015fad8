#pragma once

#include <CorvaneBase/CorvaneBaseGlobal.h>

#include <QColor>
#include <QObject>
#include <QString>

class QWidget;

/**
 * The switchboard between controls and host: requests that a control makes of the host and news that the host gives to
 * every control. A singleton of the GUI thread; the host connects to its signals and emits signalAboutToExit.
 * instance() makes it at its first call, and it lives to the end of the program.
 *
 * @code
 * QObject::connect(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalActiveMainWindow,
 *                  mainWindow, &QWidget::activateWindow);
 * @endcode
 */
class CORVANEBASE_EXPORT CorvaneSignalHelper : public QObject
{
    Q_OBJECT

public:
    /** The one object, made when it is first asked for. */
    static CorvaneSignalHelper* instance();

    /** True while the host runs in its checking mode: the message boxes then write one log line each. */
    bool InCheckingEnvironment() const;

    /** Switches the checking mode, off at start. */
    void SetInCheckingEnvironment(bool checking);

    /**
     * Moves a window that is being shown to its place: centred over its parent's window, else over the active window,
     * else on the screen under the cursor, and always inside that screen's available geometry. A window that is hidden
     * or minimised is passed over. Of a window larger than the screen the top left corner stays in view. Null, and a
     * widget that is no window, are ignored.
     */
    void AdjustWindowPosition(QWidget* widget);

Q_SIGNALS:
    /** A control asks the host to bring its main window forward. */
    void signalActiveMainWindow();
    /** The host is about to quit: progress dialogs end themselves. */
    void signalAboutToExit();
    /** A control asks the host to append a coloured line to its log pane. */
    void signalFilePluginAppendLog(QString text, QColor color);
    /** A control has connected the machine at @p ip with serial number @p serial by itself. */
    void signalConnectSuccessToFile(const QString& ip, const QString& serial);

private:
    CorvaneSignalHelper();

    bool m_bInChecking = false;
};
