#include <CorvaneBase/CorvaneRegisterHelper.h>

CorvaneRegisterHelper* CorvaneRegisterHelper::instance()
{
    static CorvaneRegisterHelper helper;
    return &helper;
}

CorvaneRegisterHelper::CorvaneRegisterHelper() = default;

void CorvaneRegisterHelper::SetCurrentMachineConnectStatus(bool connected, const QString& ip, const QString& serial)
{
    if (connected == m_bConnected && ip == m_strIp && serial == m_strSerial) {
        return;
    }
    m_bConnected = connected;
    m_strIp = ip;
    m_strSerial = serial;
    Q_EMIT signalCurrentMachineChanged(connected, ip, serial);
}
