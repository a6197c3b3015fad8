#include "Tour.h"
#include "TourLook.h"
#include "TourSimulator.h"

#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QPushButton>

using namespace TourLook;

namespace {
constexpr auto Serial = "VMUSB007002";
// Four rounds over every adapter, with the waiting for answers in between.
constexpr int ConfigureMs = 90000;

QString Namespace()
{
    return qEnvironmentVariable("MACHINE_NAMESPACE");
}

TourSimulator* Machine(Tour* tour)
{
    return tour->Machine(QStringLiteral("usb"));
}

TourStep Plug(Tour* tour, const QString& step, const QString& fault = {})
{
    QStringList arguments{QStringLiteral("--address"), QStringLiteral("192.168.7.2"), QStringLiteral("--serial"),
                          QLatin1String(Serial)};
    if (!fault.isEmpty()) {
        arguments << QStringLiteral("--fault") << fault;
    }
    return {step, [tour, arguments](TourInput&) { Machine(tour)->Start(arguments, Namespace()); },
            [tour] {
                return True(Machine(tour)->IsReady(),
                            QStringLiteral("the machine does not listen: %1").arg(Machine(tour)->Output()));
            }};
}

TourStep OpenPanel()
{
    return {QStringLiteral("open the panel for calibration"),
            [](TourInput& input) { input.Click(Find(QStringLiteral("machineCalibration"))); },
            [] {
                return True(Panel(), QStringLiteral("there is no panel")) +
                       Equal(QStringLiteral("the button"), Text(QStringLiteral("btnConfig")),
                             QStringLiteral("自动配置")) +
                       True(!Find(QStringLiteral("labelFailed")), QStringLiteral("the failure shows already"));
            }};
}

/** Presses the configure button; the wait dialog comes up over the panel, and may be gone again when it fails quickly.
 */
TourStep Configure(const QString& step, bool quick = false)
{
    return {step, [](TourInput& input) { input.Click(Find(QStringLiteral("btnConfig"))); },
            [quick] {
                if (quick && Box()) {
                    return QString();
                }
                QWidget* button = Panel() ? Panel()->findChild<QWidget*>(QStringLiteral("btnConfig")) : nullptr;
                return Equal(QStringLiteral("the wait dialog"), Progress() ? Progress()->getTitle() : QString(),
                             QStringLiteral("连接机床")) +
                       True(button && !button->isEnabled(), QStringLiteral("the button is enabled"));
            },
            true};
}

TourStep BoxSays(const QString& step, const QString& text, bool whole)
{
    TourStep says{step, {}, [text, whole] {
                      return True(!Progress(), QStringLiteral("the wait dialog is still there")) +
                             (whole ? Equal(QStringLiteral("the box"), BoxText(), text)
                                    : BeginsWith(QStringLiteral("the box"), BoxText(), text));
                  }};
    says.iTimeoutMs = ConfigureMs;
    return says;
}

TourStep FailurePage()
{
    return {QStringLiteral("the page offers another try"), [](TourInput& input) { input.Click(BoxButton(MsgBtnOk)); },
            [] {
                return Equal(QStringLiteral("the failure line"), Text(QStringLiteral("labelFailed")),
                             QStringLiteral("自动连接失败，有线网卡未探测到机床")) +
                       Equal(QStringLiteral("the button"), Text(QStringLiteral("btnConfig")), QStringLiteral("重试")) +
                       Equal(QStringLiteral("the way by hand"), Text(QStringLiteral("btnSwitchConnect")),
                             QStringLiteral("手动配置"));
            }};
}
} // namespace

TourGroup TourUsb(Tour* tour)
{
    TourGroup group{QStringLiteral("usb"), QString(), {}};
    if (Namespace().isEmpty()) {
        // The road would change an adapter of this computer.
        group.strSkipReason = QStringLiteral("MACHINE_NAMESPACE is not set; run it through machine-namespaces.sh");
        return group;
    }
    const QString failure = QStringLiteral("机床连接失败【%1】");
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("machine")));
    steps.push_back(OpenPanel());
    steps.push_back(Configure(QStringLiteral("configure without a machine")));
    steps.push_back(
        BoxSays(QStringLiteral("the box tells the reason"), failure.left(failure.indexOf(QLatin1Char('%'))), false));
    steps.push_back(FailurePage());

    struct Fault
    {
        const char* name;
        QString reason;
        bool whole;
    };
    const Fault faults[] = {
        {"ftp-down", failure.arg(QStringLiteral("机床连接失败!")), true},
        {"silent", failure.arg(QStringLiteral("连接超时，请检查机床连接状态")), true},
        {"split", failure.arg(QStringLiteral("获取机床序列号失败")), true},
        {"garbage", failure.arg(QStringLiteral("获取机床序列号失败")), true},
        // The socket's own words: they differ by the toolkit's language.
        {"close", QStringLiteral("机床连接失败【"), false},
        {"empty-serial", failure.arg(QStringLiteral("获取机床序列号失败：序列号为空")), true},
        {"error:7:主轴未就绪", failure.arg(QStringLiteral("获取机床序列号失败：主轴未就绪")), true},
    };
    for (const Fault& fault : faults) {
        const QString name = QString::fromUtf8(fault.name);
        steps.push_back(Plug(tour, QStringLiteral("a machine with fault ") + name, name));
        steps.push_back(Configure(QStringLiteral("try fault ") + name, true));
        steps.push_back(BoxSays(QStringLiteral("the box tells fault ") + name, fault.reason, fault.whole));
        steps.push_back(FailurePage());
    }

    steps.push_back({QStringLiteral("the way by hand tells what to set"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("btnSwitchConnect"))); },
                     [] {
                         return Equal(QStringLiteral("the address to set"), Text(QStringLiteral("labelIP")),
                                      QStringLiteral("IP地址：192.168.7.x"));
                     }});
    steps.push_back({QStringLiteral("Escape closes the panel"),
                     [](TourInput& input) {
                         // Beside the controls, so that the panel itself has the focus.
                         input.Click(Panel(), QPoint(200, 16));
                         input.Key(QStringLiteral("Escape"));
                     },
                     [] { return True(!Panel(), QStringLiteral("the panel is still there")); }});
    steps.push_back(OpenPanel());
    steps.push_back(Plug(tour, QStringLiteral("a healthy machine")));
    steps.push_back(Configure(QStringLiteral("configure with the machine"), true));
    steps.push_back(BoxSays(QStringLiteral("the box tells success"), QStringLiteral("机床连接成功！"), true));
    steps.push_back({QStringLiteral("the panel closes and the host knows the machine"),
                     [](TourInput& input) { input.Key(QStringLiteral("Return")); },
                     [] {
                         return True(!Panel(), QStringLiteral("the panel is still there")) +
                                Equal(QStringLiteral("the status line"), Text(QStringLiteral("statusMachine")),
                                      QStringLiteral("已连接机床 %1，地址 192.168.7.2").arg(QLatin1String(Serial)));
                     }});
    steps.push_back(OpenPanel());
    steps.push_back({QStringLiteral("cancel closes the panel"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("btnCancel"))); },
                     [] { return True(!Panel(), QStringLiteral("the panel is still there")); }});
    return group;
}
