#include "CurrentMachine.h"

#include <CorvaneBase/CorvaneRegisterHelper.h>

#include <QCoreApplication>
#include <QPointer>

CurrentMachine* CurrentMachine::instance()
{
    static QPointer<CurrentMachine> s_pMachine;
    if (!s_pMachine) {
        s_pMachine = new CurrentMachine(QCoreApplication::instance());
    }
    return s_pMachine;
}

//! [machine-current]
CurrentMachine::CurrentMachine(QObject* parent)
    : QObject(parent)
{
    connect(CorvaneRegisterHelper::instance(), &CorvaneRegisterHelper::signalCurrentMachineChanged, this,
            [this](bool connected, const QString& address, const QString& serial) {
                m_bConnected = connected;
                m_strAddress = address;
                m_strSerial = serial;
                Q_EMIT SignalChanged();
            });
}
//! [machine-current]
