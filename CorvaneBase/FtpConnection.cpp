#include <CorvaneBase/FtpConnection.h>

#include <CorvaneBase/ThreadSafety_p.h>

#include <QElapsedTimer>
#include <QHostAddress>
#include <QMutex>
#include <QNetworkProxy>
#include <QTcpSocket>

namespace {

constexpr quint16 kFilePort = 21;
constexpr int kGreetingMs = 3000;
constexpr int kFarewellMs = 500;
constexpr qint64 kGreetingBytes = 4096; // a service that floods is not read any further

CheckedMutex<QMutex> g_providerMutex;
std::function<bool(const QString&)> g_provider CORVANE_GUARDED_BY(g_providerMutex);

bool ProbeFileService(const QString& ip)
{
    const QHostAddress address(ip);
    if (address.isNull()) {
        return false; // a name would have to be looked up first, which nothing bounds
    }
    QTcpSocket socket;
    // A proxy configured on the computer never leads to a machine on the local network.
    socket.setProxy(QNetworkProxy::NoProxy);
    QElapsedTimer clock;
    clock.start();
    const auto left = [&clock] { return int(qMax<qint64>(0, kGreetingMs - clock.elapsed())); };

    socket.setReadBufferSize(kGreetingBytes);
    socket.connectToHost(address, kFilePort);
    if (!socket.waitForConnected(left())) {
        return false;
    }
    QByteArray greeting = socket.readAll();
    while (greeting.size() < 3 && left() > 0 && socket.waitForReadyRead(left())) {
        greeting += socket.readAll();
    }
    const bool greeted = greeting.startsWith("220");
    if (socket.state() == QAbstractSocket::ConnectedState) {
        socket.write("QUIT\r\n");
        socket.waitForBytesWritten(kFarewellMs);
        socket.disconnectFromHost();
    }
    if (socket.state() != QAbstractSocket::UnconnectedState) {
        socket.waitForDisconnected(kFarewellMs);
    }
    return greeted;
}

} // namespace

bool FtpConnection(const QString& ip)
{
    std::function<bool(const QString&)> provider;
    {
        const CheckedLocker lock(g_providerMutex);
        provider = g_provider;
    }
    return provider ? provider(ip) : ProbeFileService(ip);
}

void SetFtpConnectionProvider(std::function<bool(const QString& ip)> provider)
{
    const CheckedLocker lock(g_providerMutex);
    g_provider = std::move(provider);
}
