#pragma once

#include <simulator/Fault.h>
#include <simulator/RequestReader.h>

#include <QByteArray>
#include <QString>

/** What a machine says on its TCP port and in its announcements, byte for byte. */
class MachineProtocol
{
public:
    /** Codes of the failures that a healthy machine reports. */
    enum ErrorCode
    {
        UnknownAction = 1,
        NotAnObject = 2,
        RequestTooLarge = 3
    };

    /**
     * The answer to what @p request has gathered. A fault changes the answer to a right question only: a wrong one gets
     * its error from a faulty machine too.
     */
    static QByteArray Answer(const RequestReader& request, const QString& serial, const Fault& fault);

    /** `{"errorCode":0,"data":"SERIAL"}` */
    static QByteArray SerialAnswer(const QString& serial);

    /** `{"errorCode":CODE,"msg":"TEXT"}`, without "msg" for a null text. */
    static QByteArray ErrorAnswer(int code, const QString& text);

    /** Whether @p request is an object that asks for the serial number. */
    static bool AsksForSerial(const QByteArray& request);

    /** The announcement `VELMAR*SERIAL*MODEL*ADDRESS*PORT*INTERFACE` in UTF-8: the very text that the machine panel
     * takes in. */
    static QByteArray Announcement(const QString& serial, const QString& model, const QString& address, quint16 port,
                                   const QString& interfaceName);
};
