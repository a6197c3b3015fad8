#include "MachinePage.h"

#include "../GalleryStyle.h"
#include "../GalleryTile.h"
#include "../machine/CurrentMachine.h"
#include "../machine/MachineConnector.h"
#include "../machine/MachineDiscovery.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneRegisterHelper.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CustomControls/machine/CSelectMachineBox.h>

#include <QCheckBox>
#include <QColor>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {
constexpr auto CheckSheet = "QCheckBox{color:#333333;spacing:8px;}QCheckBox::indicator{width:18px;height:18px;}";
} // namespace

MachinePage::MachinePage(const GalleryOptions& options)
    : m_pDiscovery(new MachineDiscovery(options.iDiscoveryPort, this))
    , m_pUsbOnly(new QCheckBox(tr("列表中只显示 USB 机床")))
    , m_pOutcome(AddOutcomeLine(QStringLiteral("machineOutcome")))
{
    m_pUsbOnly->setObjectName(QStringLiteral("machineUsbOnly"));
    m_pUsbOnly->setFont(FontCn_14);
    m_pUsbOnly->setStyleSheet(QLatin1String(CheckSheet));

    auto* grid = new QGridLayout;
    grid->setSpacing(12);
    auto* network = new GalleryTile(QStringLiteral("machineNetwork"), QStringLiteral(":/icon/connect/ico_machine.png"),
                                    tr("网络连接"), tr("以太网或 Wi-Fi：从列表选择，或指定 IP"));
    auto* calibration =
        new GalleryTile(QStringLiteral("machineCalibration"), QStringLiteral(":/icon/connect/ico_connect_set.png"),
                        tr("标定连接"), tr("USB Type-C：自动配置网卡后连接"));
    connect(network, &QPushButton::clicked, this, [this] { OpenPanel(false); });
    connect(calibration, &QPushButton::clicked, this, [this] { OpenPanel(true); });
    grid->addWidget(network, 0, 0);
    grid->addWidget(calibration, 0, 1);
    QVBoxLayout* open =
        AddCard(tr("打开连接面板"), tr("面板打开期间，在本机端口 %1 上接收机床的通告。").arg(options.iDiscoveryPort),
                QStringLiteral("machine-panel"));
    open->addLayout(grid);
    open->addWidget(m_pUsbOnly);

    m_pDisconnect = CreateCommand(tr("断开机床"), QStringLiteral("machineDisconnect"));
    m_pDisconnect->setFixedWidth(140);
    connect(m_pDisconnect, &QPushButton::clicked, this,
            [] { CorvaneRegisterHelper::instance()->SetCurrentMachineConnectStatus(false, QString(), QString()); });
    connect(CurrentMachine::instance(), &CurrentMachine::SignalChanged, this, &MachinePage::ShowMachine);
    ShowMachine();
    BeginRow();
    AddCard(tr("当前机床"), tr("状态栏也会显示当前机床。"), QStringLiteral("machine-current"))
        ->addWidget(m_pDisconnect);

    auto* roads = new QGridLayout;
    roads->setHorizontalSpacing(20);
    roads->setVerticalSpacing(8);
    const QString names[] = {QStringLiteral("USB Type-C"), tr("以太网"), QStringLiteral("Wi-Fi")};
    const QString texts[] = {tr("优先级最高；机床固定在 192.168.7.2，面板自己完成连接。"),
                             tr("其次；同一台机床同时出现在 Wi-Fi 上时，保留以太网。"),
                             tr("最后；通告里没有写接口的机床也按 Wi-Fi 处理。")};
    for (int row = 0; row < 3; ++row) {
        auto* name = new QLabel(names[row]);
        name->setFont(FontCnMedium_14);
        name->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Green)));
        auto* text = new QLabel(texts[row]);
        text->setFont(FontCn_14);
        text->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Ink)));
        text->setWordWrap(true);
        roads->addWidget(name, row, 0, Qt::AlignTop);
        roads->addWidget(text, row, 1);
    }
    roads->setColumnStretch(1, 1);
    AddCard(tr("三条路"), tr("一台机床一行，按接口的优先级保留一个地址。"), QString())->addLayout(roads);
    EndRow();

    // A connection over USB is made by the panel itself; this is how the host hears of it.
    connect(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalConnectSuccessToFile, this,
            [](const QString& ip, const QString& serial) {
                Q_EMIT CorvaneSignalHelper::instance()->signalFilePluginAppendLog(
                    tr("已通过 USB 连接机床 %1，地址 %2").arg(serial, ip), QColor(0x18, 0x85, 0x53));
            });
}

//! [machine-current]
void MachinePage::ShowMachine()
{
    const CurrentMachine* machine = CurrentMachine::instance();
    m_pDisconnect->setEnabled(machine->IsConnected());
    m_pOutcome->setText(machine->IsConnected() ? tr("当前机床：%1，地址 %2").arg(machine->Serial(), machine->Address())
                                               : tr("还没有连接机床。"));
}
//! [machine-current]

//! [machine-panel]
void MachinePage::OpenPanel(bool forCalibration)
{
    auto* panel = new CSelectMachineBox(window());
    new MachineConnector(panel, m_pDiscovery);
    const bool usbOnly = m_pUsbOnly->isChecked();
    connect(m_pDiscovery, &MachineDiscovery::SignalMachineFound, panel,
            [panel, usbOnly](const QString& text) { panel->SetMachineInfo(text, usbOnly); });
    connect(panel, &CSelectMachineBox::SignalSelectRefresh, m_pDiscovery, &MachineDiscovery::Clear);
    // Nobody is listened to while no panel is open.
    connect(panel, &QObject::destroyed, m_pDiscovery, &MachineDiscovery::Stop);
    if (forCalibration) {
        panel->SetIsCalibConnectMachine();
    }
    QString reason;
    if (!m_pDiscovery->Start(&reason)) {
        Q_EMIT CorvaneSignalHelper::instance()->signalFilePluginAppendLog(reason, QColor(0xe5, 0x00, 0x00));
    }
    CorvaneSignalHelper::instance()->AdjustWindowPosition(panel);
    panel->show();
}
//! [machine-panel]
