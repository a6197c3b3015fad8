#include "StatusLine.h"

#include "GalleryStyle.h"
#include "machine/CurrentMachine.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

namespace {
constexpr int LineHeight = 32;
constexpr int IconSize = 17;
constexpr auto LineSheet = "#statusLine{background:#f6f6f6;border-top:1px solid #e2e2e2;}";
} // namespace

StatusLine::StatusLine(QWidget* parent)
    : QWidget(parent)
    , m_pIcon(new QLabel)
    , m_pText(new QLabel)
{
    setObjectName(QStringLiteral("statusLine"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(LineSheet));
    setFixedHeight(LineHeight);
    m_pIcon->setFixedSize(IconSize, IconSize);
    m_pText->setObjectName(QStringLiteral("statusMachine"));
    m_pText->setFont(FontCn_13);
    m_pText->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Ink)));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 0, 20, 0);
    layout->setSpacing(8);
    layout->addWidget(m_pIcon);
    layout->addWidget(m_pText);
    layout->addStretch(1);

    connect(CurrentMachine::instance(), &CurrentMachine::SignalChanged, this, &StatusLine::ShowMachine);
    ShowMachine();
}

void StatusLine::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        ShowMachine();
    }
}

void StatusLine::ShowMachine()
{
    const CurrentMachine* machine = CurrentMachine::instance();
    const bool connected = machine->IsConnected();
    const QString picture = connected ? QStringLiteral(":/icon/bottom/icon_state_connect_yes.png")
                                      : QStringLiteral(":/icon/bottom/icon_state_connect_no.png");
    m_pIcon->setPixmap(QIcon(picture).pixmap(IconSize, IconSize));
    m_pText->setText(connected ? tr("已连接机床 %1，地址 %2").arg(machine->Serial(), machine->Address())
                               : tr("未连接机床"));
}
