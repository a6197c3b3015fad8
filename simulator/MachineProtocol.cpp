#include <simulator/MachineProtocol.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

// Without the brackets, an array of one text is that text, quoted and escaped.
QByteArray Quoted(const QString& text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.mid(1, array.size() - 2);
}

QByteArray FaultyAnswer(const QString& serial, const Fault& fault)
{
    switch (fault.eKind) {
    case Fault::Garbage:
        return QByteArrayLiteral("\xff\xfe{\"errorCode\":\x00 \xc3\x28 \x80garbage\r\n");
    case Fault::Array:
        return '[' + MachineProtocol::SerialAnswer(serial) + ']';
    case Fault::EmptySerial:
        return MachineProtocol::SerialAnswer(QString());
    case Fault::Error:
        return MachineProtocol::ErrorAnswer(fault.iCode, fault.strText);
    default:
        return MachineProtocol::SerialAnswer(serial);
    }
}

} // namespace

QByteArray MachineProtocol::Answer(const RequestReader& request, const QString& serial, const Fault& fault)
{
    if (request.CurrentState() == RequestReader::TooLarge) {
        return ErrorAnswer(RequestTooLarge, QStringLiteral("request too large"));
    }
    if (request.CurrentState() != RequestReader::Complete || !QJsonDocument::fromJson(request.Bytes()).isObject()) {
        return ErrorAnswer(NotAnObject, QStringLiteral("request is not a JSON object"));
    }
    if (!AsksForSerial(request.Bytes())) {
        return ErrorAnswer(UnknownAction, QStringLiteral("unknown action"));
    }
    return FaultyAnswer(serial, fault);
}

// Written by hand: a JSON object of the toolkit would put its members in alphabetical order.
QByteArray MachineProtocol::SerialAnswer(const QString& serial)
{
    return "{\"errorCode\":0,\"data\":" + Quoted(serial) + '}';
}

QByteArray MachineProtocol::ErrorAnswer(int code, const QString& text)
{
    const QByteArray answer = "{\"errorCode\":" + QByteArray::number(code);
    return text.isNull() ? answer + '}' : answer + ",\"msg\":" + Quoted(text) + '}';
}

bool MachineProtocol::AsksForSerial(const QByteArray& request)
{
    return QJsonDocument::fromJson(request).object().value(QStringLiteral("action")) ==
           QStringLiteral("GET_SN_FROM_3255");
}

QByteArray MachineProtocol::Announcement(const QString& serial, const QString& model, const QString& address,
                                         quint16 port, const QString& interfaceName)
{
    const QStringList fields{QStringLiteral("VELMAR"), serial, model, address, QString::number(port), interfaceName};
    return fields.join(u'*').toUtf8();
}
