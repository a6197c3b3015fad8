#include <CustomControls/SharpPixmap_p.h>

#include <QGuiApplication>

#include <cmath>

QPixmap SharpPixmap(const QIcon& icon, const QSize& size)
{
    const qreal ratio = qApp->devicePixelRatio();
    const QPixmap pixmap = icon.pixmap(size, std::ceil(ratio), QIcon::Normal, QIcon::Off);
    return pixmap.devicePixelRatio() > ratio ? QIcon(pixmap).pixmap(size, ratio) : pixmap;
}

QPixmap SharpPixmap(const QString& path)
{
    const QPixmap plain(path);
    return plain.isNull() || qApp->devicePixelRatio() <= 1.0 ? plain : SharpPixmap(QIcon(path), plain.size());
}
