#include "JogPalette.h"

#include "../GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QFrame>
#include <QGridLayout>
#include <QPushButton>
#include <QScreen>

namespace {
constexpr int KeySize = 36;
constexpr int EdgeGap = 4;
constexpr auto PanelSheet = "#jogPanel{background:#ffffff;border:1px solid #c4c4c4;border-radius:6px;}";
constexpr auto KeySheet = "QPushButton{border:1px solid #e2e2e2;border-radius:4px;background:#f6f6f6;color:#333333;}"
                          "QPushButton:hover{border-color:#188553;color:#188553;}"
                          "QPushButton:pressed{background:#e4f2eb;}";
} // namespace

JogPalette::JogPalette(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("jogPalette"));
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_AlwaysShowToolTips); // also while the main window is the active one

    struct Key
    {
        const char* name;
        int row;
        int column;
        QString tip;
    };
    const Key keys[] = {
        {"Y+", 0, 1, tr("Y 轴正向点动")}, {"X-", 1, 0, tr("X 轴负向点动")}, {"X+", 1, 2, tr("X 轴正向点动")},
        {"Y-", 2, 1, tr("Y 轴负向点动")}, {"Z+", 0, 2, tr("主轴抬起")},     {"Z-", 2, 2, tr("主轴落下")},
        {"0", 1, 1, tr("回到工件零点")},
    };
    auto* panel = new QFrame;
    panel->setObjectName(QStringLiteral("jogPanel"));
    panel->setStyleSheet(QLatin1String(PanelSheet));
    auto* grid = new QGridLayout(panel);
    grid->setContentsMargins(8, 8, 8, 8);
    grid->setSpacing(4);
    for (const Key& key : keys) {
        auto* button = new QPushButton(QLatin1String(key.name));
        button->setObjectName(QStringLiteral("jog") + QLatin1String(key.name));
        button->setFont(FontCnMedium_13);
        button->setFixedSize(KeySize, KeySize);
        button->setStyleSheet(QLatin1String(KeySheet));
        button->setFocusPolicy(Qt::NoFocus);
        button->setToolTip(key.tip);
        grid->addWidget(button, key.row, key.column);
    }
    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(panel);
}

void JogPalette::DockAt(int column, int row)
{
    adjustSize();
    const QRect room =
        parentWidget()->screen()->availableGeometry().marginsRemoved(QMargins(EdgeGap, EdgeGap, EdgeGap, EdgeGap));
    move(room.left() + (room.width() - width()) * column / 2, room.top() + (room.height() - height()) * row / 2);
    show();
    raise();
}
