#include "GallerySource.h"

#include <QDirIterator>
#include <QFile>
#include <QStringList>

#include <algorithm>

namespace {
const QString Root = QStringLiteral(":/gallery/source/");

bool IsMarker(const QString& line)
{
    return line.startsWith(QLatin1String("//! ["));
}

QString Outdented(const QStringList& lines)
{
    qsizetype indent = -1;
    for (const QString& line : lines) {
        const qsizetype blanks =
            std::find_if(line.begin(), line.end(), [](QChar c) { return c != u' '; }) - line.begin();
        if (blanks < line.size() && (indent < 0 || blanks < indent)) {
            indent = blanks;
        }
    }
    QStringList outdented;
    for (const QString& line : lines) {
        outdented.append(line.mid(std::max<qsizetype>(indent, 0)));
    }
    return outdented.join(QLatin1Char('\n')).trimmed();
}

/** What stands between the markers of that name in one file. */
QString Between(const QString& text, const QString& example)
{
    const QString marker = QStringLiteral("//! [%1]").arg(example);
    QStringList parts;
    QStringList lines;
    bool inside = false;
    for (const QString& line : text.split(QLatin1Char('\n'))) {
        if (line.trimmed() == marker) {
            inside = !inside;
            if (!inside) {
                parts.append(Outdented(lines));
                lines.clear();
            }
        } else if (inside && !IsMarker(line.trimmed())) {
            lines.append(line);
        }
    }
    return parts.join(QLatin1String("\n\n"));
}
} // namespace

QList<GallerySource::Part> GallerySource::Find(const QString& example)
{
    QStringList files;
    QDirIterator all(Root, QDir::Files, QDirIterator::Subdirectories);
    while (all.hasNext()) {
        files.append(all.next());
    }
    // A class stands in the header before it is used in a source.
    std::sort(files.begin(), files.end());
    QList<Part> parts;
    for (const QString& path : std::as_const(files)) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            continue;
        }
        const QString lines = Between(QString::fromUtf8(file.readAll()), example);
        if (!lines.isEmpty()) {
            parts.append({path.mid(Root.size()), lines});
        }
    }
    return parts;
}
