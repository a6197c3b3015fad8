#include <CustomControls/fields/CTextEdit.h>

#include "ui_CTextEdit.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>

#include <cmath>

namespace {

constexpr double kAlmostZero = 1e-5;

bool IsKeyEvent(const QEvent* event)
{
    return event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
           event->type() == QEvent::ShortcutOverride;
}

} // namespace

CTextEdit::CTextEdit(QWidget* parent)
    : CTextEdit(parent, QString(), QString(), QString(), 0.0)
{}

CTextEdit::CTextEdit(QWidget* parent, QString name, QString defaultValue, QString unit, double mainWidth)
    : QWidget(parent)
    , ui(new Ui::CTextEdit)
{
    ui->setupUi(this);

    SetDefaultValue(defaultValue.toDouble());
    ui->lineEdit->setValue(m_dDefaultValue);

    ui->m_labelName->setText(name);
    ui->m_labelUnit->setText(unit);
    if (mainWidth > 0) {
        ui->main->setFixedWidth(static_cast<int>(qMin(mainWidth, static_cast<double>(QWIDGETSIZE_MAX))));
    }

    NameNumber();
    ui->lineEdit->setContextMenuPolicy(Qt::NoContextMenu);
    connect(ui->lineEdit, &QDoubleSpinBox::editingFinished, this, &CTextEdit::SignalEditDataChanged,
            Qt::UniqueConnection);
    ui->lineEdit->installEventFilter(this);

    ui->m_labelName->setFont(FontCnMedium_14);
    ui->lineEdit->setFont(FontCnMedium_14);
    ui->m_labelUnit->setFont(FontCnMedium_13);
}

CTextEdit::~CTextEdit()
{
    // The number loses the focus while the field goes, and that would end its editing.
    ui->lineEdit->removeEventFilter(this);
    ui->lineEdit->disconnect(this);
    delete ui;
}

bool CTextEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == ui->lineEdit && IsKeyEvent(event)) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Up || key == Qt::Key_Down) {
            // Later, when the number has taken its step.
            QTimer::singleShot(0, this, &CTextEdit::SignalEditDataChanged);
        }
    }
    if (watched == ui->lineEdit && event->type() == QEvent::FocusIn) {
        NameNumber();
    }
    return QWidget::eventFilter(watched, event);
}

void CTextEdit::SetMainWidgetWidth(int width)
{
    if (width < 1) {
        return;
    }
    ui->main->setFixedWidth(width);
}

double CTextEdit::GetEditData()
{
    return ui->lineEdit->value();
}

double CTextEdit::DefaultValue() const
{
    return m_dDefaultValue;
}

void CTextEdit::SetDefaultValue(double value)
{
    m_dDefaultValue = IsInRange(value) ? value : ui->lineEdit->minimum();
}

void CTextEdit::SetValue(double value)
{
    ui->lineEdit->setValue(IsInRange(value) ? value : m_dDefaultValue);
}

void CTextEdit::SetValue(double value, int decimals)
{
    SetDecimals(decimals);
    SetValue(value);
}

void CTextEdit::SetValue(double value, int decimals, bool wrap)
{
    SetDecimals(decimals);
    if (wrap) {
        const double minimum = ui->lineEdit->minimum();
        const double maximum = ui->lineEdit->maximum();
        const double span = maximum - minimum;
        if (span <= 0.0) {
            return;
        }
        value = std::fmod(value, span);
        if (value < minimum) {
            value += span;
        } else if (value > maximum) {
            value -= span;
        }
    }
    if (std::abs(value) < kAlmostZero) {
        value = 0.0;
    }
    SetValue(value);
}

void CTextEdit::SetDecimals(int decimals)
{
    ui->lineEdit->setDecimals(decimals);
}

void CTextEdit::SetRange(double minimum, double maximum)
{
    if (std::isnan(minimum) || std::isnan(maximum)) {
        return;
    }
    ui->lineEdit->setRange(minimum, maximum);
    if (!IsInRange(m_dDefaultValue)) {
        m_dDefaultValue = ui->lineEdit->minimum();
    }
}

void CTextEdit::SetFixedHeight(int height)
{
    setFixedHeight(height);
}

QLabel* CTextEdit::GetNameLabel()
{
    return ui->m_labelName;
}

QString CTextEdit::Name() const
{
    return ui->m_labelName->text();
}

void CTextEdit::SetName(const QString& name)
{
    ui->m_labelName->setText(name);
    NameNumber();
}

QString CTextEdit::Unit() const
{
    return ui->m_labelUnit->text();
}

void CTextEdit::SetUnit(const QString& unit)
{
    ui->m_labelUnit->setText(unit);
    NameNumber();
}

int CTextEdit::MainWidth() const
{
    return ui->main->minimumWidth() == ui->main->maximumWidth() ? ui->main->minimumWidth() : 0;
}

int CTextEdit::Decimals() const
{
    return ui->lineEdit->decimals();
}

double CTextEdit::Minimum() const
{
    return ui->lineEdit->minimum();
}

void CTextEdit::SetMinimum(double minimum)
{
    SetRange(minimum, Maximum());
}

double CTextEdit::Maximum() const
{
    return ui->lineEdit->maximum();
}

void CTextEdit::SetMaximum(double maximum)
{
    SetRange(Minimum(), maximum);
}

// A host may change the name's label at any time, so the number is named again whenever it is gone to. No buddy: that
// would make an ampersand in a name the mark of a key.
void CTextEdit::NameNumber()
{
    QString name = ui->m_labelName->text().simplified();
    while (name.endsWith(QChar(0xff1a)) || name.endsWith(QLatin1Char(':'))) {
        name.chop(1);
    }
    ui->lineEdit->setAccessibleName(name);
    ui->lineEdit->setAccessibleDescription(ui->m_labelUnit->text());
    if (auto* edit = ui->lineEdit->findChild<QLineEdit*>()) {
        edit->setAccessibleName(name);
    }
}

bool CTextEdit::IsInRange(double value) const
{
    return value >= ui->lineEdit->minimum() && value <= ui->lineEdit->maximum();
}
