#include "GalleryTile.h"

#include "GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>

namespace {
constexpr int TileHeight = 76;
constexpr int PictureSize = 40;
constexpr auto TileSheet = "GalleryTile{background:#ffffff;border:1px solid #e2e2e2;border-radius:8px;text-align:left;}"
                           "GalleryTile:hover{border-color:#188553;background:#f4faf7;}"
                           "GalleryTile:pressed{background:#e4f2eb;}"
                           "GalleryTile:focus{border-color:#188553;}"
                           "GalleryTile QLabel{background:transparent;border:none;}";
} // namespace

GalleryTile::GalleryTile(const QString& objectName, const QString& picture, const QString& title, const QString& detail,
                         QWidget* parent)
    : QPushButton(parent)
{
    setObjectName(objectName);
    setAccessibleName(title);
    setFixedHeight(TileHeight);
    setMinimumWidth(200);
    setCursor(Qt::PointingHandCursor);
    setStyleSheet(QLatin1String(TileSheet));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 8, 12, 8);
    layout->setSpacing(14);
    if (!picture.isEmpty()) {
        auto* image = new QLabel;
        image->setFixedSize(PictureSize, PictureSize);
        image->setAlignment(Qt::AlignCenter);
        // In its own size: asked for a larger one, an icon gives its large twin, which would then lie about its ratio.
        const QSize own = QPixmap(picture).deviceIndependentSize().toSize();
        image->setPixmap(QIcon(picture).pixmap(own.boundedTo(QSize(PictureSize, PictureSize))));
        layout->addWidget(image);
    }
    auto* texts = new QVBoxLayout;
    texts->setSpacing(2);
    auto* titleLabel = new QLabel(title);
    titleLabel->setFont(FontCnMedium_15);
    titleLabel->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Ink)));
    auto* detailLabel = new QLabel(detail);
    detailLabel->setFont(FontCn_12);
    detailLabel->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Faint)));
    texts->addStretch(1);
    texts->addWidget(titleLabel);
    texts->addWidget(detailLabel);
    texts->addStretch(1);
    layout->addLayout(texts, 1);
    for (QLabel* label : findChildren<QLabel*>()) {
        label->setAttribute(Qt::WA_TransparentForMouseEvents);
    }
}
