#pragma once

#include <QObject>
#include <QProcess>
#include <QStringList>

/** One machine-simulator process of the tour. It ends with this object, and with the program should that crash. */
class TourSimulator : public QObject
{
    Q_OBJECT

public:
    TourSimulator(const QString& program, QObject* parent);
    ~TourSimulator() override;

    /** Starts the program; one that runs already is ended first. @param networkNamespace empty for this one */
    void Start(const QStringList& arguments, const QString& networkNamespace = QString());
    void Stop();

    /** True once the machine has said that it listens. */
    bool IsReady() const;
    bool IsRunning() const;
    /** What it has said so far, for the line of a failed step. */
    QString Output() const;

private:
    void Launch();
    void End();

    QProcess m_process;
    QString m_strProgram;
    QStringList m_command;
    QByteArray m_output;
};
