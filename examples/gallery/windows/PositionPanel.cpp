#include "PositionPanel.h"

#include "../GalleryStyle.h"
#include "../GalleryTitleBar.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QGridLayout>
#include <QLabel>
#include <QPainter>

namespace {
// The window's own zones work only where no child takes the mouse.
constexpr int Grip = 8;
const QColor Rim(0x2b, 0x2f, 0x33);
constexpr auto BodySheet = "#positionBody{background:#ffffff;}";
} // namespace

//! [frameless-windows]
PositionPanel::PositionPanel()
{
    setObjectName(QStringLiteral("positionPanel"));
    setWindowTitle(tr("机床坐标"));
    resize(340, 260);
    setMinimumSize(300, 230);

    auto* body = new QWidget;
    body->setObjectName(QStringLiteral("positionBody"));
    body->setAttribute(Qt::WA_StyledBackground);
    body->setStyleSheet(QLatin1String(BodySheet));
    auto* grid = new QGridLayout(body);
    grid->setContentsMargins(24, 16, 24, 16);
    const std::pair<QString, QString> axes[] = {{QStringLiteral("X"), QStringLiteral("128.450")},
                                                {QStringLiteral("Y"), QStringLiteral("-36.120")},
                                                {QStringLiteral("Z"), QStringLiteral("12.000")}};
    int row = 0;
    for (const auto& [axis, value] : axes) {
        auto* name = new QLabel(axis);
        name->setFont(FontCnBold_16);
        name->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Green)));
        auto* figure = new QLabel(value);
        figure->setFont(FontCnBold_28);
        figure->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Ink)));
        auto* unit = new QLabel(QStringLiteral("mm"));
        unit->setFont(FontCn_13);
        unit->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Faint)));
        grid->addWidget(name, row, 0);
        grid->addWidget(figure, row, 1, Qt::AlignRight);
        grid->addWidget(unit, row, 2);
        ++row;
    }
    grid->setColumnStretch(1, 1);

    // A direct child of the window: a title bar is found by its place in it.
    auto* bar = new GalleryTitleBar(this, GalleryTitleBar::ButtonMaximize | GalleryTitleBar::ButtonClose);
    setMenuWidget(bar);
    setCentralWidget(body);
    setContentsMargins(Grip, Grip, Grip, Grip);
    addTitleBar(bar);
    // The window asks; what shows it as wished is the host.
    connect(this, &PureQtFramelessWindow::titleDblClick, bar, &GalleryTitleBar::ToggleMaximized);
    connect(this, &PureQtFramelessWindow::windowStateChange, this, &QWidget::showNormal);
}
//! [frameless-windows]

void PositionPanel::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), Rim);
}
