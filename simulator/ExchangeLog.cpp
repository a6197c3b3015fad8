#include <simulator/ExchangeLog.h>

#include <QHostAddress>
#include <QTcpSocket>

#include <cstdio>

namespace {

constexpr qsizetype kSummaryBytes = 96;

} // namespace

void ExchangeLog::Line(const QString& text)
{
    std::fputs((text + u'\n').toUtf8().constData(), stdout);
    std::fflush(stdout);
}

QString ExchangeLog::Summary(const QByteArray& bytes)
{
    QString text;
    const QString readable = QString::fromUtf8(bytes.left(kSummaryBytes));
    for (const QChar c : readable) {
        if (c == u'\n') {
            text += QLatin1String("\\n");
        } else if (c.isPrint()) {
            text += c;
        } else {
            text += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        }
    }
    return QStringLiteral("%1 bytes %2%3")
        .arg(bytes.size())
        .arg(text, bytes.size() > kSummaryBytes ? QStringLiteral("...") : QString());
}

QString ExchangeLog::Peer(const QTcpSocket& socket)
{
    return QStringLiteral("%1:%2").arg(socket.peerAddress().toString()).arg(socket.peerPort());
}

QString ExchangeLog::EndedByHost(const QTcpSocket& socket)
{
    return socket.error() == QAbstractSocket::RemoteHostClosedError ? QStringLiteral("the host closed")
                                                                    : socket.errorString();
}
