#include <tests/fuzz/FuzzTarget.h>

#include <CustomControls/machine/CSelectMachineBox.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

// A machine's answer as it arrives: pieces, each behind a byte 0x1E, sent one after the other over loopback. The first
// byte tells how the machine ends the connection: 'c' closes it, 'r' resets it, anything else leaves that to the panel.
// Whatever comes and however it is split, the question ends exactly once, by its first piece, and leaves nothing
// behind.

namespace {

constexpr char Separator = '\x1e';
constexpr int Patience = 3000; // milliseconds, less than the panel's own limit

QString Expected(const QByteArray& piece)
{
    const QJsonObject answer = QJsonDocument::fromJson(piece).object();
    return answer[QStringLiteral("errorCode")].toInt() == 0 ? answer[QStringLiteral("data")].toString() : QString();
}

template <typename Condition>
void WaitFor(const Condition& condition)
{
    const QDeadlineTimer deadline(Patience);
    while (!condition()) {
        FUZZ_CHECK(!deadline.hasExpired());
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

} // namespace

void FuzzOne(FuzzInput& input)
{
    const char ending = char(input.Byte());
    QList<QByteArray> pieces;
    while (!input.AtEnd()) {
        const QByteArray piece = input.Until(Separator);
        if (!piece.isEmpty()) {
            pieces.append(piece);
        }
    }

    static CSelectMachineBox panel(nullptr);
    const auto timers = [] { return panel.findChildren<QTimer*>(Qt::FindDirectChildrenOnly).size(); };
    static const auto timersBefore = timers();

    static QTcpServer server;
    if (!server.isListening()) {
        FUZZ_CHECK(server.listen(QHostAddress::LocalHost));
    }
    QTcpSocket* machine = nullptr;
    const auto end = [&machine, ending] {
        if (ending == 'r') {
            machine->abort();
        } else if (ending == 'c') {
            machine->disconnectFromHost();
        }
    };
    const auto connecting = QObject::connect(&server, &QTcpServer::newConnection, &server, [&] {
        machine = server.nextPendingConnection();
        // The request is small and comes in one piece.
        QObject::connect(machine, &QTcpSocket::readyRead, machine, [&] {
            machine->readAll();
            if (pieces.isEmpty()) {
                machine->abort(); // a machine that says nothing at all would cost the panel's whole patience
                return;
            }
            machine->write(pieces.first());
            machine->flush();
        });
    });

    QString error = QStringLiteral("untouched");
    int outcomes = 0;
    bool ok = false;
    QString serial;
    QString message;
    const auto listening = QObject::connect(&panel, &CSelectMachineBox::SignalGetMachineSNFinished, &panel,
                                            [&](bool ret, const QString& sn, const QString& text) {
                                                ++outcomes;
                                                ok = ret;
                                                serial = sn;
                                                message = text;
                                                for (const QByteArray& piece : pieces.mid(1)) {
                                                    machine->write(piece);
                                                    machine->flush();
                                                }
                                                if (!pieces.isEmpty()) {
                                                    end();
                                                }
                                            });

    panel.GetMachineSNViaTcp(error, QStringLiteral("127.0.0.1"), server.serverPort());
    WaitFor([&] { return outcomes > 0; });
    WaitFor([&] { return panel.findChildren<QAbstractSocket*>().isEmpty() && timers() == timersBefore; });
    WaitFor([&] { return machine->state() == QAbstractSocket::UnconnectedState; });

    FUZZ_CHECK(outcomes == 1);
    const QString expected = pieces.isEmpty() ? QString() : Expected(pieces.first());
    FUZZ_CHECK(serial == expected);
    FUZZ_CHECK(ok == !expected.isEmpty());
    FUZZ_CHECK(message.isEmpty() == ok);
    // A reason that the machine itself gave is handed back too; one of the connection is not.
    FUZZ_CHECK(error == (ok || pieces.isEmpty() ? QStringLiteral("untouched") : message));

    QObject::disconnect(connecting);
    QObject::disconnect(listening);
    delete machine;
    FuzzSettle();
}
