#pragma once

#include <CorvaneBase/CorvaneBaseGlobal.h>

#include <QObject>
#include <QString>

/**
 * Keeps which machine the product is connected to. A singleton of the GUI thread:
 * instance() makes it at its first call, and it lives to the end of the program.
 *
 * @code
 * QObject::connect(CorvaneRegisterHelper::instance(), &CorvaneRegisterHelper::signalCurrentMachineChanged,
 *                  statusBar, [=](bool connected, const QString& ip) { statusBar->showMessage(connected ? ip :
 * QString()); });
 * @endcode
 */
class CORVANEBASE_EXPORT CorvaneRegisterHelper : public QObject
{
    Q_OBJECT

public:
    /** The one object, made when it is first asked for. */
    static CorvaneRegisterHelper* instance();

    /**
     * Records the current machine, and emits signalCurrentMachineChanged when anything of it changed.
     *
     * @param connected whether it is connected now
     * @param ip        its address in numbers
     * @param serial    its serial number, in full
     */
    void SetCurrentMachineConnectStatus(bool connected, const QString& ip, const QString& serial);

Q_SIGNALS:
    /** The current machine is another one, or its connection was made or lost. */
    void signalCurrentMachineChanged(bool connected, const QString& ip, const QString& serial);

private:
    CorvaneRegisterHelper();

    bool m_bConnected = false;
    QString m_strIp;
    QString m_strSerial;
};
