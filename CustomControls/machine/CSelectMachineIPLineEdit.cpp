#include <CustomControls/machine/CSelectMachineIPLineEdit.h>

#include "ui_CSelectMachineIPLineEdit.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/machine/CSelectMachineIPLineEditAccessible.h>

#include <QCloseEvent>
#include <QCoreApplication>
#include <QCursor>
#include <QKeyEvent>
#include <QPointer>
#include <QRegularExpression>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QTimer>

namespace {

constexpr int MaxAddressLength = 15; // "255.255.255.255"
constexpr int FlashInterval = 100;   // milliseconds
constexpr int FlashChanges = 6;      // three times on, three times off

const QString NormalSheet = QStringLiteral(
    "QLineEdit { border: 1px solid #cccccc; border-radius: 4px; padding: 6px 10px; color: #333333; background-color: "
    "#ffffff; } QLineEdit:focus { border: 1px solid rgba(23, 160, 97, 1); }");
const QString HighlightSheet = QStringLiteral(
    "QLineEdit { border: 2px solid #23d291; border-radius: 4px; padding: 6px 10px; color: #333333; background-color: "
    "#ffffff; } QLineEdit:focus { border: 2px solid #23d291; }");

const QString IpPattern =
    QStringLiteral("^((25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?)\\.){3}(25[0-5]|2[0-4][0-9]|[01]?[0-9][0-9]?)$");

const AccessibleFactory::Registration<CSelectMachineIPLineEdit, CSelectMachineIPLineEditAccessible> kAccessible;

} // namespace

CSelectMachineIPLineEdit::CSelectMachineIPLineEdit(QWidget* parent)
    : QWidget(parent, Qt::Dialog | Qt::FramelessWindowHint) // flags that come after the form have its sheets read anew
    , ui(new Ui::CSelectMachineIPLineEdit)
{
    ui->setupUi(this);
    QMetaObject::connectSlotsByName(this);
    setAttribute(Qt::WA_StyledBackground, true);
    ui->titleLabel->setFont(FontCnMedium_14);
    ui->lineEdit->setFont(FontCn_14);
    ui->titleLabel->adjustSize();
    ui->lineEdit->setAccessibleName(ui->titleLabel->text());
    ui->lineEdit->setMaxLength(MaxAddressLength);
    ui->lineEdit->installEventFilter(this);
    ui->lineEdit->setValidator(new QRegularExpressionValidator(QRegularExpression(IpPattern), this));
}

CSelectMachineIPLineEdit::~CSelectMachineIPLineEdit()
{
    if (m_pFlashTimer != nullptr) {
        m_pFlashTimer->stop();
        delete m_pFlashTimer;
    }
    delete ui;
}

bool CSelectMachineIPLineEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != ui->lineEdit) {
        return QObject::eventFilter(watched, event);
    }
    if (event->type() == QEvent::FocusOut) {
        CloseWhenLeft();
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            const QString text = ui->lineEdit->text().trimmed();
            if (!text.isEmpty() && !IsValidIp(text)) {
                StartFlash();
            } else {
                close();
            }
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}

void CSelectMachineIPLineEdit::ClearInput()
{
    const QSignalBlocker blocker(ui->lineEdit);
    ui->lineEdit->clear();
}

void CSelectMachineIPLineEdit::focusOutEvent(QFocusEvent* event)
{
    CloseWhenLeft();
    QWidget::focusOutEvent(event);
}

void CSelectMachineIPLineEdit::closeEvent(QCloseEvent* event)
{
    QString text = ui->lineEdit->text().trimmed();
    if (!IsValidIp(text)) {
        text.clear(); // an address typed in part is taken back; the field keeps it for the next time
    }
    Q_EMIT SignalInputIP(text);
    QWidget::closeEvent(event);
}

void CSelectMachineIPLineEdit::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    // The pop-up, not the field: the loss of the focus must be noticed even when the field was never clicked.
    setFocus();
}

void CSelectMachineIPLineEdit::keyPressEvent(QKeyEvent* event)
{
    // The pop-up has the focus from the start and the field takes it from a click alone: what is typed goes there. A
    // key that the field does not want comes back.
    if (m_bHandingOn) {
        QWidget::keyPressEvent(event);
        return;
    }
    const QPointer<CSelectMachineIPLineEdit> self(this);
    m_bHandingOn = true;
    QCoreApplication::sendEvent(ui->lineEdit, event);
    if (self) {
        m_bHandingOn = false;
    }
}

void CSelectMachineIPLineEdit::on_lineEdit_textChanged(QString text)
{
    Q_EMIT SignalInputIP(text);
}

bool CSelectMachineIPLineEdit::IsValidIp(const QString& text)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(IpPattern));
    return pattern.match(text).hasMatch();
}

void CSelectMachineIPLineEdit::StartFlash()
{
    if (m_pFlashTimer == nullptr) {
        m_pFlashTimer = new QTimer(this);
        connect(m_pFlashTimer, &QTimer::timeout, this, &CSelectMachineIPLineEdit::FlashTick);
    } else {
        m_pFlashTimer->stop();
    }
    m_iFlashCount = 0;
    m_bFlashOn = false;
    m_pFlashTimer->start(FlashInterval);
}

void CSelectMachineIPLineEdit::FlashTick()
{
    if (m_iFlashCount >= FlashChanges) {
        m_pFlashTimer->stop();
        ui->lineEdit->setStyleSheet(NormalSheet);
        m_iFlashCount = 0;
        m_bFlashOn = false;
        return;
    }
    ui->lineEdit->setStyleSheet(m_bFlashOn ? NormalSheet : HighlightSheet);
    m_bFlashOn = !m_bFlashOn;
    ++m_iFlashCount;
}

bool CSelectMachineIPLineEdit::IsFocusInside()
{
    return hasFocus() || geometry().contains(QCursor::pos());
}

void CSelectMachineIPLineEdit::CloseWhenLeft()
{
    // hide() takes the focus away too, and tells nothing: whoever hides the pop-up has done with its text.
    if (!isHidden() && !IsFocusInside()) {
        close();
    }
}
