#pragma once

#include <QProcess>
#include <QStringList>

/**
 * A real machine-simulator beside the test, which ends with the test whatever happens.
 *
 * @code
 * SimulatorProcess machine;
 * QVERIFY2(machine.Start({"--address", "127.0.0.9", "--port", "0", "--ftp-port", "0"}), machine.Errors());
 * socket.connectToHost("127.0.0.9", machine.Port());
 * @endcode
 */
class SimulatorProcess
{
public:
    /** Where the simulator lies: the environment's MACHINE_SIMULATOR, else this build's own. */
    static QString Program();

    SimulatorProcess() = default;
    ~SimulatorProcess();
    Q_DISABLE_COPY_MOVE(SimulatorProcess)

    /**
     * Starts it and waits until it listens.
     *
     * @param networkNamespace the one to run in; empty for the test's own
     * @return false when it ended instead; ExitCode() and Errors() then tell why
     */
    bool Start(const QStringList& arguments, const QString& networkNamespace = {});

    /** Runs it to its end: for a command line that lets it do nothing but print. */
    int Run(const QStringList& arguments);

    /** Asks it to end by @p signalNumber and waits for it; on Windows it is killed. @return its exit code, -1 when it
     * had to be killed */
    int Stop(int signalNumber = 15);

    bool IsRunning() const { return m_process.state() != QProcess::NotRunning; }
    qint64 ProcessId() const { return m_process.processId(); }
    int ExitCode() const;
    /** The TCP port that the "ready" line names. */
    quint16 Port() const;

    /** The lines that it has printed so far. */
    QStringList Log();
    /** Drops the lines so far, for what runs so long that they would pile up; Port() is not known any more then. */
    void ForgetLog();
    /** Waits until a line holds @p text. */
    bool WaitForLog(const QString& text, int timeoutMs = 10000);
    /** What it has written to its standard error. */
    QByteArray Errors();

private:
    void Launch(const QStringList& arguments, const QString& networkNamespace);

    QProcess m_process;
    QByteArray m_output;
};
