#include "Tour.h"
#include "TourLook.h"
#include "TourSimulator.h"

#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QAbstractItemModel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>

using namespace TourLook;

namespace {
// Roles of the panel's list: a host sees them through the view's model.
constexpr int RoleSerial = Qt::UserRole;
constexpr int RoleIp = Qt::UserRole + 1;
constexpr int RoleInterface = Qt::UserRole + 2;

QTableView* List()
{
    return qobject_cast<QTableView*>(Find(QStringLiteral("tableView")));
}

QModelIndex Row(const QString& serial)
{
    if (QTableView* list = List()) {
        for (int row = 0; row < list->model()->rowCount(); ++row) {
            const QModelIndex index = list->model()->index(row, 1);
            if (index.data(RoleSerial).toString() == serial) {
                return index;
            }
        }
    }
    return {};
}

QString HasRows(int count)
{
    const int seen = List() ? List()->model()->rowCount() : -1;
    return True(seen == count, QStringLiteral("the list has %1 rows, not %2").arg(seen).arg(count));
}

QString RowIs(const QString& serial, const QString& ip, const QString& interfaceName)
{
    return Equal(QStringLiteral("the row's address"), Row(serial).data(RoleIp).toString(), ip) +
           Equal(QStringLiteral("the row's interface"), Row(serial).data(RoleInterface).toString(), interfaceName);
}

QString StatusIs(const QString& ip, const QString& serial)
{
    return Equal(QStringLiteral("the status line"), Text(QStringLiteral("statusMachine")),
                 QStringLiteral("已连接机床 %1，地址 %2").arg(serial, ip));
}

QString PanelGone()
{
    return True(!Panel(), QStringLiteral("the panel is still there"));
}

QString Captions(const QString& address, const QString& ipButton, const QString& connect)
{
    return Equal(QStringLiteral("the address"), Text(QStringLiteral("ipLabel")), address) +
           Equal(QStringLiteral("the address button"), Text(QStringLiteral("ipButton")), ipButton) +
           Equal(QStringLiteral("the connect button"), Text(QStringLiteral("m_btnConnect")), connect);
}

QString FieldReads(const QString& text)
{
    return True(Find(QStringLiteral("lineEdit")), QStringLiteral("the field does not show")) +
           Equal(QStringLiteral("the field"), Text(QStringLiteral("lineEdit")), text);
}

/** A machine at 127.0.0.<host>, in a form that tells itself apart from the others by its last byte. */
QStringList MachineAt(Tour* tour, int host, const QString& serial, const QString& interfaceName,
                      const QString& fault = {})
{
    QStringList arguments{QStringLiteral("--address"),  QStringLiteral("127.0.0.%1").arg(host),
                          QStringLiteral("--port"),     QStringLiteral("5002"),
                          QStringLiteral("--ftp-port"), QStringLiteral("0"),
                          QStringLiteral("--serial"),   serial};
    if (!interfaceName.isEmpty()) {
        arguments << QStringLiteral("--announce") << QStringLiteral("--announce-port")
                  << QString::number(tour->DiscoveryPort()) << QStringLiteral("--interface") << interfaceName;
    }
    if (!fault.isEmpty()) {
        arguments << QStringLiteral("--fault") << fault;
    }
    return arguments;
}

QString Ready(Tour* tour, const QString& name)
{
    return True(tour->Machine(name)->IsReady(),
                QStringLiteral("machine %1 does not listen: %2").arg(name, tour->Machine(name)->Output()));
}

TourStep OpenPanel(const std::function<QString()>& more = {})
{
    return {QStringLiteral("open the panel"),
            [](TourInput& input) { input.Click(Find(QStringLiteral("machineNetwork"))); },
            [more] {
                return True(Panel(), QStringLiteral("there is no panel")) +
                       Equal(QStringLiteral("the scan button"), Text(QStringLiteral("m_btnRefresh")),
                             QStringLiteral("扫描中...")) +
                       (more ? more() : QString());
            }};
}

TourStep PickRow(const QString& serial)
{
    return {QStringLiteral("pick ") + serial,
            [serial](TourInput& input) {
                if (List() && Row(serial).isValid()) {
                    input.Click(List()->viewport(), List()->visualRect(Row(serial)).center());
                }
            },
            [serial] {
                const bool picked = List() && Row(serial).isValid() &&
                                    List()->selectionModel()->isRowSelected(Row(serial).row(), QModelIndex());
                return True(picked, QStringLiteral("the row is not selected"));
            }};
}

TourStep Connect(const QString& step, const std::function<QString()>& missing)
{
    return {step, [](TourInput& input) { input.Click(Find(QStringLiteral("m_btnConnect"))); }, missing};
}

TourStep ClosePanel()
{
    return {QStringLiteral("Escape closes the panel"),
            [](TourInput& input) {
                // Beside the controls, so that the panel itself has the focus.
                input.Click(Panel(), QPoint(200, 16));
                input.Key(QStringLiteral("Escape"));
            },
            PanelGone};
}

TourStep Disconnect()
{
    return {QStringLiteral("disconnect"),
            [](TourInput& input) { input.Click(Find(QStringLiteral("machineDisconnect"))); },
            [] {
                return Equal(QStringLiteral("the status line"), Text(QStringLiteral("statusMachine")),
                             QStringLiteral("未连接机床"));
            }};
}

/** Connects to a machine that does not answer as it should: the box tells why, and the panel is usable again. */
void AddRefusal(std::vector<TourStep>& steps, const QString& serial, const QStringList& reasons)
{
    steps.push_back(PickRow(serial));
    steps.push_back(Connect(QStringLiteral("connect to ") + serial, [reasons] {
        return Equal(QStringLiteral("the title"), BoxTitle(), QStringLiteral("连接失败")) +
               (reasons.contains(BoxText()) ? QString()
                                            : Equal(QStringLiteral("the text"), BoxText(), reasons.first()));
    }));
    steps.push_back(
        {QStringLiteral("the panel is usable again"), [](TourInput& input) { input.Click(BoxButton(MsgBtnOk)); },
         [] {
             QWidget* connectButton = Find(QStringLiteral("m_btnConnect"));
             return True(!Box(), QStringLiteral("the box is still there")) +
                    Captions(QString(), QStringLiteral("指定IP"), QStringLiteral("连接")) +
                    True(connectButton && connectButton->isEnabled(), QStringLiteral("the connect button is disabled"));
         }});
}

void AddTwoInterfaces(Tour* tour, std::vector<TourStep>& steps)
{
    const QString serial = QStringLiteral("VM260001421");
    steps.push_back(
        {QStringLiteral("a machine comes up on Wi-Fi"),
         [tour, serial](TourInput&) {
             tour->Machine(QStringLiteral("wlan"))->Start(MachineAt(tour, 21, serial, QStringLiteral("wlan0")));
         },
         [tour] { return Ready(tour, QStringLiteral("wlan")); }});
    steps.push_back(OpenPanel(
        [serial] { return HasRows(1) + RowIs(serial, QStringLiteral("127.0.0.21"), QStringLiteral("wlan0")); }));
    steps.push_back(
        {QStringLiteral("the same machine on Ethernet keeps one row"),
         [tour, serial](TourInput&) {
             tour->Machine(QStringLiteral("eth"))->Start(MachineAt(tour, 22, serial, QStringLiteral("eth0")));
         },
         [serial] { return HasRows(1) + RowIs(serial, QStringLiteral("127.0.0.22"), QStringLiteral("eth0")); }});
    steps.push_back(PickRow(serial));
    steps.push_back(Connect(QStringLiteral("connect over Ethernet"),
                            [serial] { return PanelGone() + StatusIs(QStringLiteral("127.0.0.22"), serial); }));
    steps.push_back(Disconnect());
    steps.push_back({QStringLiteral("both interfaces go"),
                     [tour](TourInput&) {
                         tour->Machine(QStringLiteral("wlan"))->Stop();
                         tour->Machine(QStringLiteral("eth"))->Stop();
                     },
                     [tour] {
                         return True(!tour->Machine(QStringLiteral("wlan"))->IsRunning() &&
                                         !tour->Machine(QStringLiteral("eth"))->IsRunning(),
                                     QStringLiteral("a machine still runs"));
                     }});
}

void AddTypedAddress(Tour* tour, std::vector<TourStep>& steps)
{
    const QString serial = QStringLiteral("VM260001423");
    const QString specify = QStringLiteral("指定IP");
    const QString connectCaption = QStringLiteral("连接");
    const QString connectTyped = QStringLiteral("指定IP连接");
    const auto openField = [](TourInput& input) { input.Click(Find(QStringLiteral("ipButton"))); };

    steps.push_back({QStringLiteral("a machine that announces nothing"),
                     [tour, serial](TourInput&) {
                         tour->Machine(QStringLiteral("typed"))->Start(MachineAt(tour, 23, serial, QString()));
                     },
                     [tour] { return Ready(tour, QStringLiteral("typed")); }});
    steps.push_back(OpenPanel([] { return HasRows(0); }));
    steps.push_back({QStringLiteral("connect without a choice does nothing"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("m_btnConnect"))); },
                     [=] { return Captions(QString(), specify, connectCaption); }});
    steps.push_back({QStringLiteral("open the address field"), openField, [] { return FieldReads(QString()); }});
    steps.push_back({QStringLiteral("type half an address"),
                     [](TourInput& input) {
                         input.Click(Find(QStringLiteral("lineEdit")));
                         input.Type(QStringLiteral("127.0"));
                     },
                     [=] {
                         return FieldReads(QStringLiteral("127.0")) +
                                Captions(QStringLiteral("127.0"), QStringLiteral("清除"), connectTyped);
                     }});
    steps.push_back({QStringLiteral("click elsewhere takes it back"),
                     [](TourInput& input) { input.Click(Panel(), QPoint(200, 16)); },
                     [=] {
                         return True(!Find(QStringLiteral("lineEdit")), QStringLiteral("the field is still there")) +
                                Captions(QString(), specify, connectCaption);
                     }});
    steps.push_back({QStringLiteral("open the address field again"), openField,
                     [] { return FieldReads(QStringLiteral("127.0")); }});
    steps.push_back({QStringLiteral("garbage is refused"),
                     [](TourInput& input) {
                         input.Click(Find(QStringLiteral("lineEdit")));
                         input.Key(QStringLiteral("End"));
                         input.Type(QStringLiteral("abc .256"));
                     },
                     [] { return FieldReads(QStringLiteral("127.0.25")); }});
    steps.push_back({QStringLiteral("Return on half an address flashes"),
                     [](TourInput& input) { input.Key(QStringLiteral("Return")); },
                     [] {
                         QWidget* field = Find(QStringLiteral("lineEdit"));
                         return True(field && field->styleSheet().contains(QLatin1String("#23d291")),
                                     QStringLiteral("the field does not flash"));
                     },
                     true});
    steps.push_back({QStringLiteral("type a whole address"),
                     [](TourInput& input) {
                         input.Key(QStringLiteral("ctrl+a"));
                         input.Type(QStringLiteral("127.0.0.23"));
                     },
                     [] { return FieldReads(QStringLiteral("127.0.0.23")); }});
    steps.push_back({QStringLiteral("Return takes it"), [](TourInput& input) { input.Key(QStringLiteral("Return")); },
                     [=] {
                         return True(!Find(QStringLiteral("lineEdit")), QStringLiteral("the field is still there")) +
                                Captions(QStringLiteral("127.0.0.23"), QStringLiteral("清除"), connectTyped);
                     }});
    steps.push_back(Connect(QStringLiteral("connect to the typed address"),
                            [serial] { return PanelGone() + StatusIs(QStringLiteral("127.0.0.23"), serial); }));
    steps.push_back(Disconnect());
}

void AddNobodyThere(std::vector<TourStep>& steps)
{
    steps.push_back(OpenPanel());
    steps.push_back({QStringLiteral("type an address where nobody listens"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("ipButton"))); },
                     [] { return True(Find(QStringLiteral("lineEdit")), QStringLiteral("the field does not show")); }});
    steps.push_back(
        {QStringLiteral("type it and leave"),
         [](TourInput& input) {
             input.Click(Find(QStringLiteral("lineEdit")));
             input.Type(QStringLiteral("127.0.0.99"));
             input.Key(QStringLiteral("Return"));
         },
         [] { return Captions(QStringLiteral("127.0.0.99"), QStringLiteral("清除"), QStringLiteral("指定IP连接")); }});
    steps.push_back(Connect(QStringLiteral("nobody answers there"), [] {
        return Equal(QStringLiteral("the text"), BoxText(), QStringLiteral("该地址上没有机床在等待连接。"));
    }));
    steps.push_back({QStringLiteral("the address has to be typed again"),
                     [](TourInput& input) { input.Key(QStringLiteral("Return")); },
                     [] {
                         return True(!Box(), QStringLiteral("the box is still there")) +
                                Captions(QString(), QStringLiteral("指定IP"), QStringLiteral("连接"));
                     }});
    steps.push_back(ClosePanel());
}

void AddFaultyMachines(Tour* tour, std::vector<TourStep>& steps)
{
    struct Faulty
    {
        QString strSerial;
        QString strFault;
        int iHost;
    };
    const Faulty machines[] = {{QStringLiteral("VM-GARBAGE-31"), QStringLiteral("garbage"), 31},
                               {QStringLiteral("VM-CLOSE-32"), QStringLiteral("close"), 32},
                               {QStringLiteral("VM-SILENT-33"), QStringLiteral("silent"), 33},
                               {QStringLiteral("VM-SPLIT-34"), QStringLiteral("split"), 34}};
    const QList<Faulty> list(std::begin(machines), std::end(machines));
    steps.push_back({QStringLiteral("four machines with faults come up"),
                     [tour, list](TourInput&) {
                         for (const Faulty& machine : list) {
                             tour->Machine(machine.strFault)
                                 ->Start(MachineAt(tour, machine.iHost, machine.strSerial, QStringLiteral("eth0"),
                                                   machine.strFault));
                         }
                     },
                     [tour, list] {
                         QString missing;
                         for (const Faulty& machine : list) {
                             missing += Ready(tour, machine.strFault);
                         }
                         return missing;
                     }});
    steps.push_back(OpenPanel([] { return HasRows(4); }));
    const QString timedOut = QStringLiteral("机床在 5 秒内没有应答。");
    QStringList closed{QStringLiteral("机床没有答完就断开了连接。")};
#ifdef Q_OS_WIN
    closed << timedOut; // Wine at times loses the news of a connection that is closed as soon as it is made
#endif
    AddRefusal(steps, list.at(0).strSerial, {QStringLiteral("机床的应答无法识别。")});
    AddRefusal(steps, list.at(1).strSerial, closed);
    AddRefusal(steps, list.at(2).strSerial, {timedOut});
    steps.push_back(PickRow(list.at(2).strSerial));
    steps.push_back(Connect(QStringLiteral("ask the silent machine again"), [] {
        return Equal(QStringLiteral("the connect button"), Text(QStringLiteral("m_btnConnect")),
                     QStringLiteral("连接中..."));
    }));
    TourStep escape = ClosePanel();
    escape.strName = QStringLiteral("Escape while it waits closes the panel");
    steps.push_back(escape);
    steps.push_back(OpenPanel([] { return HasRows(4); }));
    steps.push_back(PickRow(list.at(3).strSerial));
    steps.push_back(Connect(QStringLiteral("an answer in two pieces is put together"), [list] {
        return PanelGone() + StatusIs(QStringLiteral("127.0.0.34"), list.at(3).strSerial);
    }));
    steps.push_back(Disconnect());
}
} // namespace

TourGroup TourMachine(Tour* tour)
{
    TourGroup group{QStringLiteral("machine"), QString(), {}};
    group.steps.push_back(TourOpenPage(QStringLiteral("machine")));
    AddTwoInterfaces(tour, group.steps);
    AddTypedAddress(tour, group.steps);
    AddNobodyThere(group.steps);
    AddFaultyMachines(tour, group.steps);
    return group;
}
