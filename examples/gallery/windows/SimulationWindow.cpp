#include "SimulationWindow.h"

#include "../GalleryStyle.h"
#include "../GalleryTitleBar.h"
#include "ToolpathView.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QVBoxLayout>

namespace {
constexpr int StripHeight = 52;
constexpr int FirstPercent = 65;
constexpr auto BodySheet = "#simulationBody{border:1px solid #2b2f33;}";
constexpr auto StripSheet = "#simulationStrip{background:#f6f6f6;border-top:1px solid #e2e2e2;}";
constexpr auto SliderSheet = "QSlider::groove:horizontal{height:4px;background:#dcdcdc;border-radius:2px;}"
                             "QSlider::sub-page:horizontal{background:#188553;border-radius:2px;}"
                             "QSlider::handle:horizontal{width:16px;height:16px;margin:-6px 0;border-radius:8px;"
                             "background:#ffffff;border:1px solid #188553;}"
                             "QSlider::handle:horizontal:focus{background:#188553;}";
} // namespace

//! [frameless-windows]
SimulationWindow::SimulationWindow(QWidget* parent)
    : FramelessMainWindow(parent)
    , m_pView(new ToolpathView)
    , m_pProgress(new QSlider(Qt::Horizontal))
    , m_pText(new QLabel)
{
    setObjectName(QStringLiteral("simulationWindow"));
    resize(720, 520);
    setMinimumSize(420, 320);

    m_pProgress->setObjectName(QStringLiteral("simulationProgress"));
    m_pProgress->setRange(0, 100);
    m_pProgress->setMinimumHeight(24); // room for the whole handle
    m_pProgress->setStyleSheet(QLatin1String(SliderSheet));
    m_pText->setFont(FontCn_13);
    m_pText->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Ink)));

    auto* strip = new QWidget;
    strip->setObjectName(QStringLiteral("simulationStrip"));
    strip->setAttribute(Qt::WA_StyledBackground);
    strip->setStyleSheet(QLatin1String(StripSheet));
    strip->setFixedHeight(StripHeight);
    auto* line = new QHBoxLayout(strip);
    line->setContentsMargins(20, 0, 20, 0);
    line->setSpacing(16);
    line->addWidget(m_pProgress, 1);
    line->addWidget(m_pText);

    auto* bar = new GalleryTitleBar(this);
    setTitleBar(bar);
    auto* central = new QWidget;
    central->setObjectName(QStringLiteral("simulationBody"));
    central->setAttribute(Qt::WA_StyledBackground);
    central->setStyleSheet(QLatin1String(BodySheet));
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(1, 0, 1, 1); // beside the border
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(m_pView, 1);
    layout->addWidget(strip);
    setCentralWidget(central);

    connect(m_pProgress, &QSlider::valueChanged, this, &SimulationWindow::ShowProgress);
    m_pProgress->setValue(FirstPercent);
    Retranslate();
}
//! [frameless-windows]

void SimulationWindow::changeEvent(QEvent* event)
{
    FramelessMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
}

void SimulationWindow::Retranslate()
{
    setWindowTitle(tr("刀路仿真"));
    m_pProgress->setAccessibleName(windowTitle());
    ShowProgress(m_pProgress->value());
}

void SimulationWindow::ShowProgress(int percent)
{
    m_pView->SetProgress(percent);
    m_pText->setText(tr("已加工 %1%").arg(percent, 3));
}
