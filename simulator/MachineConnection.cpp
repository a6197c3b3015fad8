#include <simulator/MachineConnection.h>

#include <simulator/ExchangeLog.h>
#include <simulator/MachineProtocol.h>

#include <QTcpSocket>

namespace {

constexpr int kSplitPauseMs = 500; // longer than a busy host may sleep between two reads
constexpr int kSlowPauseMs = 20;
constexpr int kLateMs = 6000; // a host waits for 5 seconds
constexpr qint64 kHugeBytes = 100 * 1024 * 1024;
constexpr qint64 kHugeBlockBytes = 256 * 1024;
constexpr qint64 kReadBufferBytes = 64 * 1024;

} // namespace

MachineConnection::MachineConnection(QTcpSocket* socket, const QString& serial, const Fault& fault, int idleLimitMs,
                                     QObject* parent)
    : QObject(parent)
    , m_pSocket(socket)
    , m_strPeer(ExchangeLog::Peer(*socket))
    , m_strSerial(serial)
    , m_fault(fault)
    , m_iIdleLimitMs(idleLimitMs)
{
    m_pSocket->setParent(this);
    m_pSocket->setReadBufferSize(kReadBufferBytes);
    // Pieces that are meant to arrive apart must not be gathered on the way.
    m_pSocket->setSocketOption(QAbstractSocket::LowDelayOption, 1);

    connect(m_pSocket, &QTcpSocket::readyRead, this, &MachineConnection::Read);
    connect(m_pSocket, &QTcpSocket::disconnected, this, [this] { End(ExchangeLog::EndedByHost(*m_pSocket)); });
    m_timerIdle.setSingleShot(true);
    m_timerFault.setSingleShot(true);
    m_timerFault.setTimerType(Qt::PreciseTimer);
    connect(&m_timerIdle, &QTimer::timeout, this, [this] { End(QStringLiteral("idle for too long")); });

    if (m_fault.eKind == Fault::Close) {
        // Not from within the server's own signal, which still holds the socket.
        QMetaObject::invokeMethod(
            this, [this] { End(QStringLiteral("the machine closed")); }, Qt::QueuedConnection);
        return;
    }
    if (m_fault.eKind != Fault::Silent) {
        m_timerIdle.start(m_iIdleLimitMs);
    }
    Read();
}

MachineConnection::~MachineConnection()
{
    End(QStringLiteral("the simulator stopped"));
}

void MachineConnection::Read()
{
    const QByteArray bytes = m_pSocket->readAll();
    m_iReceived += bytes.size();
    // What comes behind a request is taken off the socket and dropped: closing with unread bytes would tear the answer.
    // So is one that comes sooner than the connection is closed.
    if (m_bAnswering || m_fault.eKind == Fault::Close || m_reader.Feed(bytes) == RequestReader::Incomplete) {
        return;
    }
    m_bAnswering = true;
    m_answer = MachineProtocol::Answer(m_reader, m_strSerial, m_fault);
    m_timerIdle.stop();
    if (m_fault.eKind == Fault::Silent) {
        return;
    }
    // A wrong question gets its error at once: a fault is in what a right one meets.
    if (m_reader.CurrentState() == RequestReader::Complete && MachineProtocol::AsksForSerial(m_reader.Bytes())) {
        StartAnswer();
    } else {
        Send(m_answer);
    }
}

void MachineConnection::StartAnswer()
{
    const auto sendLater = [this](int ms, auto step) {
        connect(&m_timerFault, &QTimer::timeout, this, step);
        m_timerFault.start(ms);
    };
    switch (m_fault.eKind) {
    case Fault::Split: {
        const qsizetype half = m_answer.size() / 2;
        Send(m_answer.left(half));
        sendLater(kSplitPauseMs, [this, half] { Send(m_answer.mid(half)); });
        break;
    }
    case Fault::Slow:
        sendLater(kSlowPauseMs, [this] { SendNextByte(); });
        SendNextByte();
        break;
    case Fault::Late:
        sendLater(kLateMs, [this] { Send(m_answer); });
        break;
    case Fault::Huge:
        m_answer = "{\"errorCode\":0,\"data\":\"" + QByteArray(kHugeBlockBytes, 'A');
        connect(m_pSocket, &QTcpSocket::bytesWritten, this, &MachineConnection::SendHugeBlock);
        Send(m_answer);
        break;
    default:
        Send(m_answer);
        break;
    }
}

void MachineConnection::Send(const QByteArray& piece)
{
    m_iSent += piece.size();
    m_pSocket->write(piece);
    m_timerIdle.start(m_iIdleLimitMs);
}

void MachineConnection::SendNextByte()
{
    Send(m_answer.mid(m_iSent, 1));
    if (m_iSent < m_answer.size()) {
        m_timerFault.start();
    }
}

void MachineConnection::SendHugeBlock()
{
    // One block at a time: a host that doesn't read must not fill this process's memory.
    if (m_bEnded || m_pSocket->bytesToWrite() > 0 || m_iSent >= kHugeBytes) {
        return;
    }
    const qint64 left = kHugeBytes - m_iSent;
    Send(left > kHugeBlockBytes ? QByteArray(kHugeBlockBytes, 'A') : QByteArray(left - 2, 'A') + "\"}");
}

void MachineConnection::End(const QString& how)
{
    if (m_bEnded) {
        return;
    }
    m_bEnded = true;
    m_timerIdle.stop();
    m_timerFault.stop();
    const QString request =
        m_iReceived > m_reader.Bytes().size()
            ? QStringLiteral("%1 (of %2)").arg(ExchangeLog::Summary(m_reader.Bytes())).arg(m_iReceived)
            : ExchangeLog::Summary(m_reader.Bytes());
    const QString answer = m_iSent == 0                 ? QStringLiteral("nothing")
                           : m_iSent == m_answer.size() ? ExchangeLog::Summary(m_answer)
                                                        : QStringLiteral("%1 bytes, in pieces").arg(m_iSent);
    ExchangeLog::Line(
        QStringLiteral("machine %1 | request %2 | answered %3 | ended: %4").arg(m_strPeer, request, answer, how));
    m_pSocket->disconnectFromHost();
    deleteLater();
}
