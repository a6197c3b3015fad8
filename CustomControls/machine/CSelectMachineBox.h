#pragma once

#include <CustomControls/machine/CVelmarSelectBox.h>

#include <QHash>
#include <QString>

#include <memory>

class CFileNameDelegate;
class CSelectMachineIPLineEdit;
class QModelIndex;
class QStandardItem;
class QStandardItemModel;
class QTimer;

namespace Ui {
class CSelectMachineBox;
}

/**
 * The panel from which the user picks the machine to connect to: from the list of those that the host has found, by an
 * IP address typed by hand, or over a USB Type-C cable.
 *
 * The panel finds no machine by itself and, but for USB, opens no connection: the host feeds it with SetMachineInfo,
 * connects when SignalMachineSelected asks for it, and answers with OnConnectResult. On USB the panel configures the
 * computer's network, connects, records the machine with CorvaneRegisterHelper and tells of it through
 * CorvaneSignalHelper::signalConnectSuccessToFile; SignalMachineSelected doesn't come then.
 *
 * The panel deletes itself when it closes, and Escape closes it at any time: keep a QPointer to it. It may be deleted
 * in any slot, also while it waits for a machine. GUI thread only.
 *
 * Keyboard and accessibility: Tab goes through list and buttons. In the list the arrow keys mark a machine and Space
 * picks it as a click does; the address pop-up takes what is typed while it is open, Return closes it.
 *
 * @code
 * auto* panel = new CSelectMachineBox(mainWindow);
 * // Connects by the host's own means, then calls panel->OnConnectResult(ok):
 * connect(panel, &CSelectMachineBox::SignalMachineSelected, host, &Host::ConnectMachine);
 * // Looks for machines and calls panel->SetMachineInfo(text, false) for each:
 * connect(panel, &CSelectMachineBox::SignalSelectRefresh, host, &Host::FindMachines);
 * panel->show();
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CSelectMachineBox : public CVelmarSelectBox
{
    Q_OBJECT

public:
    /** Data roles of the list's column 1. */
    enum EnumMachineRole
    {
        RoleSerial = Qt::UserRole, ///< serial number, QString
        RoleIp,                    ///< IP address, QString
        RoleInterface,             ///< interface name, QString
        RolePriority               ///< priority of the interface, int: USB 3, Ethernet 2, Wi-Fi 1, any other 0
    };

    /**
     * A panel of 550 by 376 pixels that opens in the scanning look: the host is taken to be looking for machines
     * already.
     *
     * @param parent the window that it blocks while it is open; null blocks none
     */
    explicit CSelectMachineBox(QWidget* parent);
    ~CSelectMachineBox() override;

    /**
     * Takes in one machine that the host has found. The list keeps one row for each serial number; a machine seen again
     * moves to the new address only if that lies on an interface of higher priority (USB, Ethernet, Wi-Fi, any other).
     *
     * @param text    fields separated by "*": 1 is the serial number, 3 the IP address, 5 the interface name ("wlan0"
     * where there is none); the others are the host's own. A text of fewer than four fields, an empty serial number and
     * the address "0.0.0.0" are ignored
     * @param usbOnly keeps a new machine that isn't on USB out of the list; typed by hand, its address is known all the
     * same
     */
    void SetMachineInfo(QString text, bool usbOnly);

    /** Empties the list and forgets every address. The caption, its timer and the row clicked last stay. */
    void ClearBoxInfo();

    /**
     * Makes the panel ready for a connection that has to be wired: it opens on the page of the USB connection, and its
     * list page tells the fixed address to give the computer by hand. To be called once, after construction.
     */
    void SetIsCalibConnectMachine();

    /**
     * The host's answer to SignalMachineSelected.
     *
     * @param ok true closes the panel, which deletes it; false makes it usable again and says nothing to the user
     */
    void OnConnectResult(bool ok);

Q_SIGNALS:
    /**
     * The user wants to connect. Answer with OnConnectResult; the panel waits without a limit.
     *
     * @param strMachineIP  the typed address, or that of the row clicked last
     * @param strMachineNum its serial number; empty for an address that no machine was announced at
     */
    void SignalMachineSelected(QString strMachineIP, QString strMachineNum);

    /** The user wants the search to start over; the list is already empty. */
    void SignalSelectRefresh();

    /**
     * A machine's serial number was asked for and the question has ended; at most once per question.
     *
     * @param ret   true with the serial number
     * @param sn    the serial number, or empty
     * @param error the reason in words for the user, or empty
     */
    void SignalGetMachineSNFinished(bool ret, QString sn, QString error);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void on_m_btnConnect_clicked();
    void on_m_btnRefresh_clicked();
    void on_ipButton_clicked();
    void on_btnSwitchConnect_clicked();
    void on_btnCancel_clicked();
    void on_btnConfig_clicked();
    void on_pushButton_clicked();

private:
    void InitWindow();
    void InitTable();
    void PlaceConfigPage();
    void RowClicked(const QModelIndex& index);
    void InputIp(const QString& text);

    /** The row's column-1 item of the first row with this serial number, or null. */
    QStandardItem* FindMachine(const QString& serial);
    void IndexRows(int first, int last);

    /**
     * Asks the machine at @p ip for its serial number and returns at once; SignalGetMachineSNFinished brings the
     * outcome within five seconds.
     *
     * @param error receives the reason when an answer came and holds no serial number; must outlive the question
     * @param port  a machine listens on 5002
     */
    void GetMachineSNViaTcp(QString& error, const QString& ip, unsigned short port);

    /**
     * Connects the machine on the USB Type-C cable, in nested event loops. False with the reason in @p error, or when
     * the panel was deleted meanwhile.
     */
    bool ConfigureIpConnectMachine(QString& error);

    Ui::CSelectMachineBox* ui;
    QStandardItemModel* m_pModel = nullptr;
    CSelectMachineIPLineEdit* m_pIpLineEdit = nullptr;
    QTimer* m_pScanTimer = nullptr;
    QString m_strMachineIP;
    QString m_strMachineNum;
    CFileNameDelegate* m_pFileNameDelegate = nullptr;
    QHash<QString, QString> m_hashIpToSn;

    // The rows by serial number, so that a machine costs the same however many are listed. Rows appended at the end are
    // added as they come; after any other change, whoever made it, the index is built anew at the next look-up.
    QHash<QString, QStandardItem*> m_hashSnToItem;
    bool m_bIndexCurrent = true;
    // What all rows share: copies of these two items share their font, brush, icon and name.
    std::unique_ptr<QStandardItem> m_pNameItem;
    std::unique_ptr<QStandardItem> m_pSerialItem;
    // Failure text of the USB road's question; lives here, since the question may outlive the frame that asked.
    QString m_strQueryError;
};
