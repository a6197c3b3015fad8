#include "GalleryTitleBar.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>

namespace {
constexpr int BarHeight = 48;
constexpr int MarkSize = 26;
constexpr auto BarSheet = "#galleryTitleBar{background:#2b2f33;}";
} // namespace

GalleryTitleBar::GalleryTitleBar(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("galleryTitleBar"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(BarSheet));
    setFixedHeight(BarHeight);

    auto* mark = new QLabel;
    mark->setPixmap(QIcon(QStringLiteral(":/gallery/app.png")).pixmap(MarkSize, MarkSize));
    auto* name = new QLabel(QStringLiteral("CustomControls"));
    name->setFont(FontCnBold_16);
    name->setStyleSheet(QStringLiteral("color:#ffffff;background:transparent;"));
    auto* subtitle = new QLabel(tr("控件陈列室"));
    subtitle->setFont(FontCn_14);
    subtitle->setStyleSheet(QStringLiteral("color:#b8bec4;background:transparent;"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(20, 0, 20, 0);
    layout->setSpacing(12);
    layout->addWidget(mark);
    layout->addWidget(name);
    layout->addWidget(subtitle);
    layout->addStretch(1);
}
