#include <CustomControls/StatefulIcon.h>

#include <QFile>
#include <QGuiApplication>

namespace {

constexpr qreal kPlainBelow = 1.1;
constexpr qreal kTripleFrom = 2.1;

// The tag stands before the last dot, as for the toolkit's own lookup: "image.v2@2x.png" belongs to "image.v2.png".
QString WithRatioTag(const QString& path, const QString& tag)
{
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    return dot < 0 ? path + tag : QString(path).insert(dot, tag);
}

} // namespace

StatefulIcon& StatefulIcon::operator=(const StatefulIcon&) = default;

StatefulIcon& StatefulIcon::operator=(StatefulIcon&&) noexcept = default;

QIcon StatefulIcon::create(const QString& onPath, const QString& offPath, int size)
{
    const QString on = resolveDpiAwarePath(onPath, size);
    const QString off = resolveDpiAwarePath(offPath, size);
    const QSize edge(size, size);

    QIcon icon;
    icon.addFile(off, edge, QIcon::Normal, QIcon::Off);
    icon.addFile(off, edge, QIcon::Disabled, QIcon::Off);
    icon.addFile(on, edge, QIcon::Normal, QIcon::On);
    icon.addFile(on, edge, QIcon::Disabled, QIcon::On);
    return icon;
}

QString StatefulIcon::resolveDpiAwarePath(const QString& path, int size)
{
    Q_UNUSED(size)
    const qreal ratio = qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
    if (ratio < kPlainBelow) {
        return path;
    }
    if (ratio >= kTripleFrom) {
        QString triple = WithRatioTag(path, QStringLiteral("@3x"));
        if (QFile::exists(triple)) {
            return triple;
        }
    }
    const QString twin = WithRatioTag(path, QStringLiteral("@2x"));
    return QFile::exists(twin) ? twin : path;
}
