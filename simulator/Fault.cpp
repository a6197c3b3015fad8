#include <simulator/Fault.h>

#include <iterator>

namespace {

struct FaultDescription
{
    Fault::Kind eKind;
    const char* szName;
    const char* szMachine;
    const char* szHost;
};

constexpr FaultDescription kDescriptions[] = {
    {Fault::Silent, "silent", "accepts the connection and never answers",
     "\"连接超时，请检查机床连接状态\" after 5 seconds"},
    {Fault::Close, "close", "closes the connection at once, without an answer",
     "the socket's own text, such as \"The remote host closed the connection\""},
    {Fault::Split, "split", "answers in two pieces, half a second apart", "\"获取机床序列号失败\""},
    {Fault::Slow, "slow", "answers byte by byte", "\"获取机床序列号失败\""},
    {Fault::Garbage, "garbage", "answers bytes that are neither JSON nor UTF-8", "\"获取机床序列号失败\""},
    {Fault::Array, "array", "answers a JSON array instead of an object", "\"获取机床序列号失败\""},
    {Fault::EmptySerial, "empty-serial", "reports success with an empty serial number",
     "\"获取机床序列号失败：序列号为空\""},
    {Fault::Error, "error:CODE:TEXT", "reports failure: \"errorCode\" CODE, not 0, and \"msg\" TEXT",
     "\"获取机床序列号失败：TEXT\""},
    {Fault::Huge, "huge", "answers with 100 MiB", "\"获取机床序列号失败\", and it keeps responding"},
    {Fault::Late, "late", "answers after 6 seconds, when the host has given up",
     "\"连接超时，请检查机床连接状态\", once, after 5 seconds"},
    {Fault::FtpDown, "ftp-down", "refuses connections to the file service; the serial number is still told",
     "\"机床连接失败!\" on USB Type-C; nothing on Ethernet and Wi-Fi"},
};

const QString kErrorPrefix = QStringLiteral("error:");

std::optional<Fault> ParseError(const QString& text, QString* reason)
{
    const qsizetype codeStart = kErrorPrefix.size();
    const qsizetype colon = text.indexOf(u':', codeStart);
    const QString code = colon < 0 ? text.mid(codeStart) : text.mid(codeStart, colon - codeStart);
    bool isNumber = false;
    Fault fault;
    fault.eKind = Fault::Error;
    fault.iCode = code.toInt(&isNumber);
    if (!isNumber || fault.iCode == 0) {
        *reason = QStringLiteral("\"%1\" in \"%2\" is not an integer other than 0").arg(code, text);
        return std::nullopt;
    }
    if (colon >= 0) {
        fault.strText = text.mid(colon + 1);
        if (fault.strText.isNull()) {
            fault.strText = QLatin1String("");
        }
    }
    return fault;
}

} // namespace

std::optional<Fault> Fault::Parse(const QString& text, QString* reason)
{
    if (text.startsWith(kErrorPrefix)) {
        return ParseError(text, reason);
    }
    for (const FaultDescription& description : kDescriptions) {
        if (description.eKind != Error && text == QLatin1String(description.szName)) {
            Fault fault;
            fault.eKind = description.eKind;
            return fault;
        }
    }
    *reason = QStringLiteral("\"%1\" is not a fault").arg(text);
    return std::nullopt;
}

QString Fault::Name() const
{
    if (eKind == Error) {
        const QString name = kErrorPrefix + QString::number(iCode);
        return strText.isNull() ? name : name + u':' + strText;
    }
    for (const FaultDescription& description : kDescriptions) {
        if (description.eKind == eKind) {
            return QLatin1String(description.szName);
        }
    }
    return {};
}

QString Fault::Help()
{
    QString help;
    for (const FaultDescription& description : kDescriptions) {
        help += QStringLiteral("  %1 %2\n%3 A host shows: %4\n")
                    .arg(QLatin1String(description.szName), -16)
                    .arg(QString::fromUtf8(description.szMachine))
                    .arg(QString(), 18)
                    .arg(QString::fromUtf8(description.szHost));
    }
    return help;
}
