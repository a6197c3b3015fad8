#pragma once

#include <QByteArray>
#include <QString>

class QTcpSocket;

/** The simulator's account of itself on the standard output: one line per event, flushed, so that a pipe sees it at
 * once. */
namespace ExchangeLog {

void Line(const QString& text);

/** "37 bytes {"action"..." on one line: control characters and broken UTF-8 escaped, long texts cut. */
QString Summary(const QByteArray& bytes);

/** "address:port" of the other side. Read it while the connection stands: a closed socket has forgotten it. */
QString Peer(const QTcpSocket& socket);

/** How a connection ended that this side did not end: "the host closed", or the socket's error. */
QString EndedByHost(const QTcpSocket& socket);

} // namespace ExchangeLog
