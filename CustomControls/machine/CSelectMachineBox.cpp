#include <CustomControls/machine/CSelectMachineBox.h>

#include "ui_CSelectMachineBox.h"

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneConstants.h>
#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneRegisterHelper.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CorvaneBase/FtpConnection.h>
#include <CorvaneBase/NetworkConfigurator.h>
#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/accessibility/TranslatedName.h>
#include <CustomControls/machine/CSelectMachineIPLineEdit.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>
#include <CustomControls/tables/CFileNameDelegate.h>

#include <QColor>
#include <QDebug>
#include <QDesktopServices>
#include <QEventLoop>
#include <QFutureWatcher>
#include <QIcon>
#include <QItemSelectionModel>
#include <QJsonDocument>
#include <QJsonObject>
#include <QKeyEvent>
#include <QNetworkProxy>
#include <QPointer>
#include <QStandardItemModel>
#include <QStringTokenizer>
#include <QTcpSocket>
#include <QThreadPool>
#include <QTimer>
#include <QUrl>
#include <QtConcurrent/QtConcurrentRun>

#include <array>

namespace {

// Built at load; the sibling library, which this one is linked against, has its constants by then.
const QHash<QString, int> InterfacePriority = {{QString::fromUtf8(g_strInterfaceUsb), 3},
                                               {QString::fromUtf8(g_strInterfaceEth), 2},
                                               {QString::fromUtf8(g_strInterfaceWlan), 1}};

constexpr QSize PanelSize(550, 376); // the form's 344 and the shell's title bar of 32
constexpr int ScanCaptionTime = 10000;
constexpr int HeaderHeight = 32;
constexpr int NameColumn = 0;
constexpr int SerialColumn = 1;

constexpr int SwitchRightMargin = 102;
constexpr int SwitchRightMarginWide = 40; // outside Chinese the caption is longer
constexpr int SwitchWidthWide = 128;
constexpr int FailedGap = 12;
constexpr int FailedIconGap = 4;

const QColor RowTextColor(153, 153, 153, 255);
const QColor LogPaneFailureColor(220, 50, 50, 255);

const QString PictureSheet = QStringLiteral("border-image:url(\":/icon/connect/img_connet_typec_usb3.png\");");
const QString PictureSheetEnglish =
    QStringLiteral("border-image:url(\":/icon/connect/img_connet_typec_usb3_en.png\");");

// Fields of a machine text.
constexpr int SerialField = 1;
constexpr int IpField = 3;
constexpr int InterfaceField = 5;
constexpr int FieldCount = 6;

const QString UsbMachineIp = QStringLiteral("192.168.7.2");
constexpr unsigned short SerialNumberPort = 5002;
constexpr int SerialNumberTimeout = 5000;
constexpr int ConfigurationRounds = 4;

// What of a serial number may stand in a log.
QString LastThree(const QString& serial)
{
    return serial.right(3);
}

// One question for a serial number, shared by its handlers. Socket and timer are children of the panel. The socket is
// held by its base class: a connected socket still reports its end from the destructor of that base.
struct SerialNumberQuery
{
    QPointer<QAbstractSocket> socket;
    QPointer<QTimer> timer;
    bool emittedOnce = false;
    bool emitting = false;

    void EndTimer()
    {
        if (timer) {
            timer->stop();
            timer->deleteLater();
        }
    }
};

} // namespace

CSelectMachineBox::CSelectMachineBox(QWidget* parent)
    : CVelmarSelectBox(parent)
    , ui(new Ui::CSelectMachineBox)
{
    // Every slot is connected by its name again, those of the shell included; its close button shall close once.
    if (const auto* closeButton = findChild<QPushButton*>(QStringLiteral("m_btnClose"))) {
        disconnect(closeButton, nullptr, this, nullptr);
    }
    // Built where it stays: with a move of the whole content the toolkit would read every style sheet within anew.
    ui->setupUi(findChild<QWidget*>(QStringLiteral("m_widgetMain")));
    ui->stackedWidget->addWidget(ui->pageConnect);
    ui->stackedWidget->addWidget(ui->pageConfig);
    QMetaObject::connectSlotsByName(this);
    // The outer layout of the panel's form: owned by the panel like that of the shell, which is the one in use.
    auto* outerLayout = new QVBoxLayout;
    outerLayout->setObjectName(QStringLiteral("verticalLayout"));
    outerLayout->setSpacing(0);
    outerLayout->setContentsMargins(0, 0, 0, 0);
    static_cast<QObject*>(outerLayout)->setParent(this);

    SetBoxInfo(QStringLiteral(":/icon/lianjie 1.png"), tr("新建连接"), tr(""));
    SetChildUI(ui->central);
    setFixedSize(PanelSize);
    InitWindow();
    SetConfirmBtnHide(true);
    connect(ui->tableView, &QTableView::clicked, this, &CSelectMachineBox::RowClicked);
}

CSelectMachineBox::~CSelectMachineBox()
{
    // First of all, while the form still stands: a pop-up that loses the focus would report its end to it.
    delete m_pIpLineEdit;
    delete ui;
}

void CSelectMachineBox::InitWindow()
{
    ui->stackedWidget->setCurrentWidget(ui->pageConnect);

    m_pScanTimer = new QTimer(this);
    m_pScanTimer->setInterval(ScanCaptionTime);
    m_pScanTimer->setSingleShot(false);
    connect(m_pScanTimer, &QTimer::timeout, this, [this] { ui->m_btnRefresh->setText(tr("重新扫描")); });

    InitTable();

    const auto labelsAndButtons = std::array<QWidget*, 15>{
        ui->ipButton,    ui->ipLabel,     ui->m_btnConnect, ui->m_btnRefresh, ui->labelConfigTip,
        ui->labelDetail, ui->labelFailed, ui->btnConfig,    ui->btnCancel,    ui->btnSwitchConnect,
        ui->labelType,   ui->labelIP,     ui->labelMask,    ui->pushButton,   ui->tipLabel};
    for (QWidget* widget : labelsAndButtons) {
        widget->setFont(FontCnMedium_14);
    }

    if (CorvaneTextHelper::instance()->AppInChineseEnvironment()) {
        ui->labelmg->setStyleSheet(PictureSheet);
    } else {
        ui->labelmg->setStyleSheet(PictureSheetEnglish);
        ui->btnSwitchConnect->setFixedWidth(SwitchWidthWide);
    }

    // The strip's height is fixed: where a font is tall, the address line gives way and the buttons below stay whole.
    ui->ipWidget->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);

    SetTranslatedName(ui->tableView, [] { return tr("设备列表"); });
    ui->tableView->installEventFilter(this);
    // Rows are chosen whole, and Tab has to lead on to the buttons.
    ui->tableView->setTabKeyNavigation(false);
    ui->pushButton_2->setAccessibleName(ui->pushButton->text());
    for (QPushButton* button : {ui->ipButton, ui->m_btnConnect, ui->m_btnRefresh, ui->btnConfig, ui->btnCancel,
                                ui->btnSwitchConnect, ui->pushButton, ui->pushButton_2}) {
        KeyboardFocus::ShowOn(button);
    }

    ui->topWidget->hide();
    ui->ipDetail->hide();
    ui->labelDetail->hide();
    ui->labelIcon->hide();
    ui->labelFailed->hide();
    ui->btnSwitchConnect->hide();

    PlaceConfigPage();

    m_pScanTimer->start();
    ui->m_btnRefresh->setText(tr("扫描中..."));
}

void CSelectMachineBox::InitTable()
{
    m_pModel = new QStandardItemModel(this);
    m_pModel->setColumnCount(2);
    m_pModel->setHorizontalHeaderItem(NameColumn, new QStandardItem(tr("设备列表")));
    m_pModel->setHorizontalHeaderItem(SerialColumn, new QStandardItem(tr("序列号")));
    ui->tableView->setModel(m_pModel);
    // Kept for the panel's life; the list itself is painted by the toolkit's own delegate.
    m_pFileNameDelegate = new CFileNameDelegate(this);

    m_pSerialItem = std::make_unique<QStandardItem>();
    m_pSerialItem->setFont(FontCnMedium_13);
    m_pSerialItem->setForeground(QBrush(RowTextColor));
    m_pNameItem.reset(m_pSerialItem->clone());
    m_pNameItem->setText(tr("Velmar CNC机器"));
    m_pNameItem->setIcon(QIcon(QStringLiteral(":/icon/connect/ico_machine.png")));

    const auto dropIndex = [this] { m_bIndexCurrent = false; };
    connect(m_pModel, &QAbstractItemModel::rowsInserted, this, [this](const QModelIndex& parent, int first, int last) {
        if (parent.isValid()) {
            return;
        }
        if (last == m_pModel->rowCount() - 1) {
            IndexRows(first, last);
        } else {
            m_bIndexCurrent = false;
        }
    });
    connect(m_pModel, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex&, const QModelIndex&, const QList<int>& roles) {
                if (roles.isEmpty() || roles.contains(RoleSerial)) {
                    m_bIndexCurrent = false;
                }
            });
    // Before and after, so that a look-up by somebody who hears of the removal in between leaves no item that is gone.
    connect(m_pModel, &QAbstractItemModel::rowsAboutToBeRemoved, this, dropIndex);
    connect(m_pModel, &QAbstractItemModel::rowsRemoved, this, dropIndex);
    connect(m_pModel, &QAbstractItemModel::columnsAboutToBeRemoved, this, dropIndex);
    connect(m_pModel, &QAbstractItemModel::columnsRemoved, this, dropIndex);
    connect(m_pModel, &QAbstractItemModel::columnsInserted, this, dropIndex);
    connect(m_pModel, &QAbstractItemModel::layoutChanged, this, dropIndex);
    connect(m_pModel, &QAbstractItemModel::modelAboutToBeReset, this, dropIndex);
    connect(m_pModel, &QAbstractItemModel::modelReset, this, dropIndex);

    QHeaderView* header = ui->tableView->horizontalHeader();
    header->setSectionResizeMode(QHeaderView::Stretch);
    header->setSectionResizeMode(NameColumn, QHeaderView::Stretch);
    header->setSectionResizeMode(SerialColumn, QHeaderView::Stretch);
    header->setFixedHeight(HeaderHeight);
    header->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    header->setEnabled(false);
    ui->tableView->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui->tableView->setSelectionMode(QAbstractItemView::SingleSelection);
    ui->tableView->verticalHeader()->hide();
    ui->tableView->setShowGrid(false);
    ui->tableView->show();
    ui->tableView->setAlternatingRowColors(true);
    ui->tableView->setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void CSelectMachineBox::PlaceConfigPage()
{
    const auto moveToX = [](QWidget* widget, int x) { widget->move(x, widget->y()); };

    ui->labelConfigTip->adjustSize();
    moveToX(ui->labelConfigTip, (width() - ui->labelConfigTip->width()) / 2);

    const int rightMargin =
        CorvaneTextHelper::instance()->AppInChineseEnvironment() ? SwitchRightMargin : SwitchRightMarginWide;
    moveToX(ui->btnSwitchConnect, width() - rightMargin - ui->btnSwitchConnect->width());

    ui->labelFailed->adjustSize();
    moveToX(ui->labelFailed, ui->btnSwitchConnect->x() - FailedGap - ui->labelFailed->width());

    ui->labelDetail->adjustSize();
    moveToX(ui->labelDetail, (width() - ui->labelDetail->width()) / 2);

    moveToX(ui->labelIcon, ui->labelFailed->x() - FailedIconGap - ui->labelIcon->width());
}

void CSelectMachineBox::SetMachineInfo(QString text, bool usbOnly)
{
    std::array<QStringView, FieldCount> fields;
    int fieldCount = 0;
    for (const QStringView field : QStringTokenizer{QStringView(text), QChar(u'*')}) {
        fields[fieldCount++] = field;
        if (fieldCount == FieldCount) {
            break;
        }
    }
    if (fieldCount <= IpField) {
        return;
    }
    const QString serial = fields[SerialField].toString();
    const QString ip = fields[IpField].toString();
    const QString interfaceName =
        fieldCount > InterfaceField ? fields[InterfaceField].toString() : QStringLiteral("wlan0");
    if (ip == QLatin1String("0.0.0.0") || serial.isEmpty()) {
        return;
    }
    const int priority = InterfacePriority.value(interfaceName, 0);

    if (QStandardItem* item = FindMachine(serial)) {
        // The first of two equal routes stays.
        if (priority <= item->data(RolePriority).toInt()) {
            return;
        }
        m_hashIpToSn.remove(item->data(RoleIp).toString());
        m_hashIpToSn.insert(ip, serial);
        item->setData(ip, RoleIp);
        item->setData(interfaceName, RoleInterface);
        item->setData(priority, RolePriority);
        CDebugLog::AddLog(QStringLiteral("机床更换优先级更高IP:%1,Interface:%2,SN(last3):%3")
                              .arg(ip, interfaceName, LastThree(serial)));
        return;
    }

    // Before the test of the interface: a machine that stays out of the list is known by its address all the same.
    m_hashIpToSn.insert(ip, serial);
    if (usbOnly && interfaceName != QString::fromUtf8(g_strInterfaceUsb)) {
        return;
    }
    QStandardItem* serialItem = m_pSerialItem->clone();
    serialItem->setText(serial);
    serialItem->setData(serial, RoleSerial);
    serialItem->setData(ip, RoleIp);
    serialItem->setData(interfaceName, RoleInterface);
    serialItem->setData(priority, RolePriority);
    m_pModel->appendRow({m_pNameItem->clone(), serialItem});
    CDebugLog::AddLog(
        QStringLiteral("新增机床IP:%1,Interface:%2,SN(last3):%3").arg(ip, interfaceName, LastThree(serial)));
}

QStandardItem* CSelectMachineBox::FindMachine(const QString& serial)
{
    if (!m_bIndexCurrent) {
        m_hashSnToItem.clear();
        m_bIndexCurrent = true;
        IndexRows(0, m_pModel->rowCount() - 1);
    }
    return m_hashSnToItem.value(serial);
}

void CSelectMachineBox::IndexRows(int first, int last)
{
    if (!m_bIndexCurrent) {
        return; // the next look-up takes these rows in with all others
    }
    for (int row = first; row <= last; ++row) {
        QStandardItem* item = m_pModel->item(row, SerialColumn);
        if (item == nullptr) {
            continue;
        }
        const QString serial = item->data(RoleSerial).toString();
        if (!m_hashSnToItem.contains(serial)) {
            m_hashSnToItem.insert(serial, item);
        }
    }
}

void CSelectMachineBox::ClearBoxInfo()
{
    m_hashIpToSn.clear();
    m_pModel->removeRows(0, m_pModel->rowCount());
}

void CSelectMachineBox::SetIsCalibConnectMachine()
{
    ui->topWidget->show();
    ui->ipDetail->show();
    ui->stackedWidget->setCurrentWidget(ui->pageConfig);
}

void CSelectMachineBox::OnConnectResult(bool ok)
{
    if (ok) {
        close();
        return;
    }
    ui->m_btnConnect->setText(tr("连接"));
    ui->m_btnConnect->setEnabled(true);
    ui->m_btnRefresh->setEnabled(true);
    SetCloseBtnHide(false);
}

void CSelectMachineBox::RowClicked(const QModelIndex& index)
{
    const QStandardItem* item = m_pModel->item(index.row(), SerialColumn);
    if (item == nullptr) {
        return;
    }
    const QString interfaceName = item->data(RoleInterface).toString();
    m_strMachineIP = item->data(RoleIp).toString();
    m_strMachineNum = item->data(RoleSerial).toString();
    qDebug() << "Selected machine IP:" << m_strMachineIP << "Machine number:" << m_strMachineNum << "interface"
             << interfaceName;
    CDebugLog::AddLog(QStringLiteral("当前点击IP:%1,interface:%2,SN(right3):%3")
                          .arg(m_strMachineIP, interfaceName, LastThree(m_strMachineNum)));
}

bool CSelectMachineBox::eventFilter(QObject* watched, QEvent* event)
{
    // The arrow keys only mark a row, as they always have; the space bar is the keyboard's click.
    if (event->type() == QEvent::KeyPress && watched == ui->tableView) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const QModelIndex index = ui->tableView->currentIndex();
        if (key->key() == Qt::Key_Space && !key->isAutoRepeat() && index.isValid()) {
            ui->tableView->selectionModel()->select(index,
                                                    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
            RowClicked(index);
            return true;
        }
    }
    return CVelmarSelectBox::eventFilter(watched, event);
}

void CSelectMachineBox::on_m_btnConnect_clicked()
{
    const QString typed = ui->ipLabel->text().trimmed();
    const QString known = m_hashIpToSn.value(typed);
    CDebugLog::AddLog(QStringLiteral("点击连接机床连接 是否指定IP:%1,已有sn:%2").arg(typed, LastThree(known)));
    if (typed.isEmpty() && !ui->tableView->selectionModel()->hasSelection()) {
        return;
    }
    ui->m_btnConnect->setEnabled(false);
    ui->m_btnRefresh->setEnabled(false);
    SetCloseBtnHide(true);
    ui->m_btnConnect->setText(tr("连接中..."));

    if (typed.isEmpty()) {
        CDebugLog::AddLog(QStringLiteral("通过选中连接 IP:%1").arg(m_strMachineIP));
        Q_EMIT SignalMachineSelected(m_strMachineIP, m_strMachineNum);
        return;
    }
    CDebugLog::AddLog(QStringLiteral("通过指定IP连接 IP:%1").arg(typed));
    const QPointer<CSelectMachineBox> self = this;
    Q_EMIT SignalMachineSelected(typed, known);
    if (!self) {
        return;
    }
    ui->ipLabel->clear();
    ui->ipButton->setText(tr("指定IP"));
    if (m_pIpLineEdit != nullptr) {
        m_pIpLineEdit->hide();
        m_pIpLineEdit->ClearInput();
    }
}

void CSelectMachineBox::on_m_btnRefresh_clicked()
{
    m_pModel->removeRows(0, m_pModel->rowCount());
    m_hashIpToSn.clear();
    if (m_pIpLineEdit != nullptr) {
        m_pIpLineEdit->hide();
    }
    if (m_pScanTimer->isActive()) {
        m_pScanTimer->stop();
    }
    m_pScanTimer->start();
    ui->m_btnRefresh->setText(tr("扫描中..."));
    Q_EMIT SignalSelectRefresh();
}

void CSelectMachineBox::on_ipButton_clicked()
{
    if (!ui->ipLabel->text().isEmpty()) {
        ui->ipLabel->clear();
        ui->ipButton->setText(tr("指定IP"));
        ui->m_btnConnect->setText(tr("连接"));
        if (m_pIpLineEdit != nullptr) {
            m_pIpLineEdit->hide();
            m_pIpLineEdit->ClearInput();
        }
        return;
    }
    if (m_pIpLineEdit == nullptr) {
        m_pIpLineEdit = new CSelectMachineIPLineEdit(this);
        connect(m_pIpLineEdit, &CSelectMachineIPLineEdit::SignalInputIP, this, &CSelectMachineBox::InputIp);
    }
    m_pIpLineEdit->move(
        mapToGlobal(QPoint((width() - m_pIpLineEdit->width()) / 2, (height() - m_pIpLineEdit->height()) / 2)));
    m_pIpLineEdit->show();
    m_pIpLineEdit->raise();
}

void CSelectMachineBox::InputIp(const QString& text)
{
    ui->ipLabel->setText(text);
    if (text.isEmpty()) {
        ui->ipButton->setText(tr("指定IP"));
        ui->m_btnConnect->setText(tr("连接"));
    } else {
        ui->ipButton->setText(tr("清除"));
        ui->m_btnConnect->setText(tr("指定IP连接"));
    }
}

void CSelectMachineBox::on_btnSwitchConnect_clicked()
{
    ui->stackedWidget->setCurrentWidget(ui->pageConnect);
}

void CSelectMachineBox::on_btnCancel_clicked()
{
    close();
}

void CSelectMachineBox::on_pushButton_clicked()
{
    QDesktopServices::openUrl(QUrl(QStringLiteral("ms-settings:network-ethernet")));
}

void CSelectMachineBox::GetMachineSNViaTcp(QString& error, const QString& ip, unsigned short port)
{
    const auto query = std::make_shared<SerialNumberQuery>();
    query->socket = new QTcpSocket(this);
    query->socket->setProxy(QNetworkProxy(QNetworkProxy::NoProxy)); // a machine stands in the local network
    query->timer = new QTimer(this);
    query->timer->setSingleShot(true);

    const auto emitResult = [this, query](bool ok, const QString& serial, const QString& message) {
        if (query->emittedOnce) {
            return;
        }
        query->emittedOnce = true;
        // A receiver may delete the panel or run a loop of its own, while the socket is in the middle of a signal on
        // this very stack: it must outlive that signal.
        const QPointer<CSelectMachineBox> self = this;
        query->emitting = true;
        if (query->socket) {
            query->socket->setParent(nullptr);
        }
        // The analyser loses the panel of a lambda that another lambda has captured, and calls it null.
        Q_EMIT SignalGetMachineSNFinished(ok, serial, message); // NOLINT(clang-analyzer-core.CallAndMessage)
        query->emitting = false;
        if (!query->socket) {
            return;
        }
        if (!self || query->socket->state() == QAbstractSocket::UnconnectedState) {
            query->socket->deleteLater();
        }
        if (self) {
            query->socket->setParent(self);
        }
    };

    connect(query->socket, &QAbstractSocket::connected, this, [query] {
        CDebugLog::AddLog(QStringLiteral("GetMachineSNViaTcp - TCP连接已建立"));
        const QJsonObject request{{QStringLiteral("action"), QStringLiteral("GET_SN_FROM_3255")}};
        query->socket->write(QJsonDocument(request).toJson(QJsonDocument::Indented));
    });
    connect(query->socket, &QAbstractSocket::readyRead, this, [query, emitResult, &error] {
        if (!query->socket) {
            return;
        }
        // What has arrived by now is the answer. Nothing behind it is wanted, so nothing more piles up while receivers
        // of the result run.
        const QByteArray bytes = query->socket->readAll();
        query->socket->setReadBufferSize(1);
        qDebug() << "GetMachineSNViaTcp - 收到响应：" << bytes;
        CDebugLog::AddLog(QStringLiteral("GetMachineSNViaTcp - 收到响应"));
        // The caller's text may be gone once the question has been answered.
        const auto fail = [&](const QString& reason) {
            if (!query->emittedOnce) {
                error = reason;
            }
            emitResult(false, QString(), reason);
        };
        const QJsonDocument document = QJsonDocument::fromJson(bytes);
        const QJsonObject answer = document.object();
        if (document.isNull() || !document.isObject()) {
            fail(tr("获取机床序列号失败"));
        } else if (answer.value(QLatin1String("errorCode")).toInt(0) != 0) {
            fail(tr("获取机床序列号失败：%1").arg(answer.value(QLatin1String("msg")).toString()));
        } else if (const QString serial = answer.value(QLatin1String("data")).toString(); serial.isEmpty()) {
            fail(tr("获取机床序列号失败：序列号为空"));
        } else {
            CDebugLog::AddLog(QStringLiteral("GetMachineSNViaTcp成功,sn(right3):%1").arg(LastThree(serial)));
            emitResult(true, serial, QString());
        }
        if (query->socket) {
            query->socket->disconnectFromHost();
        }
    });
    connect(query->socket, &QAbstractSocket::errorOccurred, this, [query, emitResult] {
        query->EndTimer();
        if (!query->socket) {
            return;
        }
        const QString reason = query->socket->errorString();
        CDebugLog::AddLog(QStringLiteral("GetMachineSNViaTcp - TCP连接错误：%1").arg(reason));
        emitResult(false, QString(), reason);
        if (query->socket) {
            query->socket->disconnectFromHost();
        }
    });
    connect(query->socket, &QAbstractSocket::disconnected, this, [query] {
        query->EndTimer();
        if (query->socket && !query->emitting) {
            query->socket->deleteLater();
        }
    });
    connect(query->timer, &QTimer::timeout, this, [query, emitResult] {
        CDebugLog::AddLog(QStringLiteral("GetMachineSNViaTcp - TCP连接超时"));
        emitResult(false, QString(), tr("连接超时，请检查机床连接状态"));
        if (query->socket) {
            query->socket->disconnectFromHost();
        }
        // One that has never been connected goes on trying for half a minute more, and has no end to report.
        if (query->socket && query->socket->state() < QAbstractSocket::ConnectedState) {
            query->socket->deleteLater();
        }
        if (query->timer) {
            query->timer->deleteLater();
        }
    });

    query->timer->start(SerialNumberTimeout);
    query->socket->connectToHost(ip, port, QIODevice::ReadWrite, QAbstractSocket::AnyIPProtocol);
}

void CSelectMachineBox::on_btnConfig_clicked()
{
    const QPointer<CSelectMachineBox> self = this;
    ui->btnConfig->setEnabled(false);
    ui->btnCancel->setEnabled(false);
    QString error;
    const bool connected = ConfigureIpConnectMachine(error);
    if (!self) {
        return;
    }
    ui->btnConfig->setEnabled(true);
    ui->btnCancel->setEnabled(true);
    ui->btnConfig->setText(tr("重试"));
    qDebug() << "==-- res" << connected;

    const auto tell = [](const QString& content) {
        CVelmarMessageBox::ShowWindow(nullptr, MsgBtnOk, MsgIconPop5, tr("提示"), content, {});
    };
    if (connected) {
        tell(tr("机床连接成功！"));
        if (self) {
            close();
        }
        return;
    }
    ui->labelFailed->show();
    ui->labelIcon->show();
    ui->btnSwitchConnect->show();
    tell(error.isEmpty() ? tr("机床连接失败") : tr("机床连接失败【%1】").arg(error));
}

bool CSelectMachineBox::ConfigureIpConnectMachine(QString& error)
{
    const QPointer<CSelectMachineBox> self = this;
    const QString usbIP = UsbMachineIp;
    CDebugLog::AddLog(QStringLiteral("ConnectToMachineViaUsb: 尝试连接机床 usbIP=%1").arg(usbIP));
    const QPointer<CProgressWidget> progress =
        CProgressWidget::CreateAutoWidget(tr("正在进行自动配置并连接机床，请稍候"), tr("连接机床"));

    bool bNetworkOk = true;
    QString strDetail;
    QEventLoop workerLoop;
    QFutureWatcher<bool> watcher;
    connect(&watcher, &QFutureWatcher<bool>::finished, &workerLoop, &QEventLoop::quit);
    // A panel that is deleted meanwhile takes its wait dialog with it. The frame stays until the worker has finished,
    // since the worker writes to its locals.
    connect(this, &QObject::destroyed, &workerLoop, [progress] { CProgressWidget::FreeAutoWidget(progress, false); });
    watcher.setFuture(QtConcurrent::run(QThreadPool::globalInstance(), [usbIP, &bNetworkOk, &strDetail] {
        const NetworkConfigurator::Result result =
            NetworkConfigurator::autoDiscoverAndConfigureCnc(ConfigurationRounds);
        CDebugLog::AddLog(QStringLiteral("ConfigureIpConnectMachine: ip配置结果 Status:%1,detail:%2")
                              .arg(QString::number(result.iStatus), result.strDetail));
        if (result.iStatus != NetworkConfigurator::StatusReady) {
            bNetworkOk = false;
            strDetail = result.strDetail;
            return false;
        }
        return FtpConnection(usbIP);
    }));
    workerLoop.exec();
    // A loop may end early when the application quits; the result is waited for all the same.
    const bool bConnected = watcher.future().result();
    CDebugLog::AddLog(QStringLiteral("ConfigureIpConnectMachine: 连接机床结果 bConnected=%1").arg(bConnected ? 1 : 0));
    if (!self) {
        return false;
    }

    const auto fail = [progress, &error](const QString& reason, const QString& logPaneLine) {
        error = reason;
        Q_EMIT CorvaneSignalHelper::instance()->signalFilePluginAppendLog(logPaneLine, LogPaneFailureColor);
        CProgressWidget::FreeAutoWidget(progress, false);
        return false;
    };
    if (!bConnected) {
        const QString reason = bNetworkOk ? tr("机床连接失败!") : strDetail;
        return fail(reason, reason + QStringLiteral(" IP: %1").arg(usbIP));
    }

    bool bGetSnOk = false;
    bool answered = false;
    QString serial;
    QString message;
    QEventLoop answerLoop;
    const QMetaObject::Connection connection =
        connect(this, &CSelectMachineBox::SignalGetMachineSNFinished, &answerLoop,
                [&](bool ret, const QString& sn, const QString& text) {
                    bGetSnOk = ret;
                    serial = sn;
                    message = text;
                    answered = true;
                    answerLoop.quit();
                });
    connect(this, &QObject::destroyed, &answerLoop, &QEventLoop::quit);
    GetMachineSNViaTcp(m_strQueryError, usbIP, SerialNumberPort);
    // A network that can't be reached is told before the call returns, and no loop would hear of it any more.
    if (self && !answered) {
        answerLoop.exec();
    }
    disconnect(connection);
    CDebugLog::AddLog(QStringLiteral("ConfigureIpConnectMachine:获取序列号bGetSnOk:%1,sn:%2")
                          .arg(QString::number(bGetSnOk ? 1 : 0), serial));
    if (!self) {
        return false;
    }
    if (!bGetSnOk || serial.isEmpty()) {
        const QString reason = message.isEmpty() ? tr("获取机床序列号失败!") : message;
        return fail(reason, reason);
    }
    CDebugLog::AddLog(QStringLiteral("ConnectToMachineViaUsb: Type-C成功连接机床 IP=%1").arg(usbIP));
    CProgressWidget::FreeAutoWidget(progress, false);
    CorvaneRegisterHelper::instance()->SetCurrentMachineConnectStatus(true, usbIP, serial);
    Q_EMIT CorvaneSignalHelper::instance()->signalConnectSuccessToFile(usbIP, serial);
    return true;
}
