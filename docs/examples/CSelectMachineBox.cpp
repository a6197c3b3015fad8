#include <CustomControls/machine/CSelectMachineBox.h>

#include <tests/documentation/Example.h>

#include <QPointer>
#include <QPushButton>
#include <QTableView>

namespace {
bool ConnectMachine(const QString& ip, const QString& serial)
{
    return ip == "192.168.1.20" && serial == "CNC-000123";
}
void FindMachines() {}
} // namespace

EXAMPLE(CSelectMachineBox)
{
    // [example]
    const QPointer<CSelectMachineBox> box(new CSelectMachineBox(window)); // it deletes itself when it closes
    QObject::connect(box, &CSelectMachineBox::SignalMachineSelected, window,
                     [=](const QString& ip, const QString& serial) {
                         const bool connected = ConnectMachine(ip, serial); // the host's own; serial may be empty
                         if (box)
                             box->OnConnectResult(connected); // true closes the panel
                     });
    QObject::connect(box, &CSelectMachineBox::SignalSelectRefresh, window, [] { FindMachines(); });
    box->show();
    box->SetMachineInfo("0*CNC-000123*0*192.168.1.20*0*eth0", false); // for each machine that the host finds
    // [/example]
    auto* table = box->findChild<QTableView*>("tableView");
    QCOMPARE(table->model()->rowCount(), 1);
    QTest::qWait(0);
    QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, table->visualRect(table->model()->index(0, 0)).center());
    box->findChild<QPushButton*>("m_btnConnect")->click();
    QTRY_VERIFY(!box);
}
