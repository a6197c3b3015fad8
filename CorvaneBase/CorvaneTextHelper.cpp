#include <CorvaneBase/CorvaneTextHelper.h>

#include <CorvaneBase/CDebugLog.h>

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QSaveFile>
#include <QStandardPaths>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace {

constexpr qint64 kLargestFile = qint64(16) * 1024 * 1024;

// What the toolkit's stream reads and writes for us. No list is among them, nor what holds one: the toolkit makes room
// for as many entries as a damaged file says there are, and reads a value within a value by a call within a call.
// Texts, lists and maps are JSON here.
constexpr std::array kStreamedTypes = {
    QMetaType::Char,      QMetaType::SChar,  QMetaType::UChar,      QMetaType::Short,    QMetaType::UShort,
    QMetaType::UInt,      QMetaType::Long,   QMetaType::ULong,      QMetaType::LongLong, QMetaType::ULongLong,
    QMetaType::Float,     QMetaType::QChar,  QMetaType::QByteArray, QMetaType::QDate,    QMetaType::QTime,
    QMetaType::QDateTime, QMetaType::QUrl,   QMetaType::QLocale,    QMetaType::QUuid,    QMetaType::QPoint,
    QMetaType::QPointF,   QMetaType::QSize,  QMetaType::QSizeF,     QMetaType::QRect,    QMetaType::QRectF,
    QMetaType::QLine,     QMetaType::QLineF, QMetaType::QColor};

bool IsStreamed(int type)
{
    return std::find(kStreamedTypes.begin(), kStreamedTypes.end(), type) != kStreamedTypes.end();
}

QByteArray ToStream(const QVariant& value)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << value;
    return bytes;
}

// Of a damaged value the toolkit makes what it can. One that we have written is written the same again.
QVariant FromStream(const QByteArray& bytes)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_4);
    qint32 type = QMetaType::UnknownType;
    stream >> type;
    if (!IsStreamed(type)) {
        return {};
    }
    stream.device()->reset();
    QVariant value;
    stream >> value;
    return ToStream(value) == bytes ? value : QVariant();
}

// JSON has one kind of number, so what would come back as something else is wrapped in an object that names its type.
const QString kTagDouble = QStringLiteral("double");
const QString kTagStrings = QStringLiteral("strings");
const QString kTagMap = QStringLiteral("map");
const QString kTagHash = QStringLiteral("hash");
const QString kTagOther = QStringLiteral("variant");

QJsonValue ToJson(const QVariant& value);

template <typename Entries>
QJsonObject EntriesToJson(const Entries& entries)
{
    QJsonObject object;
    for (auto it = entries.begin(); it != entries.end(); ++it) {
        object.insert(it.key(), ToJson(it.value()));
    }
    return object;
}

QJsonValue ToJson(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
        return value.toInt();
    case QMetaType::QString:
        return value.toString();
    case QMetaType::Double: {
        const double number = value.toDouble();
        if (std::isfinite(number) && number != std::floor(number)) {
            return number;
        }
        return QJsonObject{{kTagDouble, QString::number(number, 'g', QLocale::FloatingPointShortest)}};
    }
    case QMetaType::QStringList:
        return QJsonObject{{kTagStrings, QJsonArray::fromStringList(value.toStringList())}};
    case QMetaType::QVariantList: {
        QJsonArray array;
        for (const QVariant& entry : value.toList()) {
            array.append(ToJson(entry));
        }
        return array;
    }
    case QMetaType::QVariantMap:
        return QJsonObject{{kTagMap, EntriesToJson(value.toMap())}};
    case QMetaType::QVariantHash:
        return QJsonObject{{kTagHash, EntriesToJson(value.toHash())}};
    case QMetaType::UnknownType:
        return QJsonValue::Null;
    default:
        if (!IsStreamed(value.typeId())) {
            CDebugLog::AddLog(
                QStringLiteral("CorvaneTextHelper: no setting can be a %1").arg(QLatin1String(value.typeName())));
            return QJsonValue::Undefined;
        }
        return QJsonObject{{kTagOther, QString::fromLatin1(ToStream(value).toBase64())}};
    }
}

QVariant FromJson(const QJsonValue& json);

template <typename Entries>
Entries EntriesFromJson(const QJsonObject& object)
{
    Entries entries;
    for (auto it = object.begin(); it != object.end(); ++it) {
        entries.insert(it.key(), FromJson(it.value()));
    }
    return entries;
}

QVariant FromJson(const QJsonValue& json)
{
    if (json.isArray()) {
        QVariantList list;
        const QJsonArray entries = json.toArray();
        for (const auto& entry : entries) {
            list.append(FromJson(entry));
        }
        return list;
    }
    if (json.isDouble()) {
        const double number = json.toDouble();
        const bool isInt = number == std::floor(number) && number >= std::numeric_limits<int>::min() &&
                           number <= std::numeric_limits<int>::max();
        return isInt ? QVariant(int(number)) : QVariant(number);
    }
    if (!json.isObject()) {
        return json.isNull() ? QVariant() : json.toVariant();
    }
    const QJsonObject object = json.toObject();
    if (object.contains(kTagDouble)) {
        return object.value(kTagDouble).toString().toDouble();
    }
    if (object.contains(kTagStrings)) {
        return object.value(kTagStrings).toVariant().toStringList();
    }
    if (object.contains(kTagMap)) {
        return EntriesFromJson<QVariantMap>(object.value(kTagMap).toObject());
    }
    if (object.contains(kTagHash)) {
        return EntriesFromJson<QVariantHash>(object.value(kTagHash).toObject());
    }
    return FromStream(QByteArray::fromBase64(object.value(kTagOther).toString().toLatin1()));
}

std::optional<double> FiniteNumber(const QLocale& locale, const QString& text)
{
    bool ok = false;
    const double number = locale.toDouble(text, &ok);
    return ok && std::isfinite(number) ? std::optional<double>(number) : std::nullopt;
}

} // namespace

struct CorvaneTextHelper::Private
{
    using Group = QHash<QString, QVariant>;

    QString Path() const
    {
        if (!m_strPath.isEmpty()) {
            return m_strPath;
        }
        const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation));
        return folder.filePath(QStringLiteral("CorvaneBase.json"));
    }

    void Load()
    {
        if (m_bLoaded) {
            return;
        }
        m_bLoaded = true;
        m_hashGroups.clear();
        m_bForeign = false;
        const QFileInfo info(Path());
        if (!info.isFile()) {
            return;
        }
        QFile file(info.filePath());
        QJsonDocument document;
        if (info.size() <= kLargestFile && file.open(QIODevice::ReadOnly)) {
            document = QJsonDocument::fromJson(file.read(info.size())); // a reading reserves what it asks for
        }
        if (!document.isObject()) {
            m_bForeign = true;
            CDebugLog::AddLog(QStringLiteral("CorvaneTextHelper: settings cannot be read: %1").arg(file.fileName()));
            return;
        }
        const QJsonObject root = document.object();
        for (auto group = root.begin(); group != root.end(); ++group) {
            bool ok = false;
            const int type = group.key().toInt(&ok);
            const QJsonObject entries = group.value().toObject();
            for (auto entry = entries.begin(); ok && entry != entries.end(); ++entry) {
                const QVariant value = FromJson(entry.value());
                if (value.isValid()) {
                    m_hashGroups[type].insert(entry.key(), value);
                }
            }
        }
    }

    void Save()
    {
        const QString path = Path();
        if (m_bForeign) {
            QFile::remove(path + QStringLiteral(".bad"));
            m_bForeign = !QFile::rename(path, path + QStringLiteral(".bad"));
        }
        QJsonObject root;
        for (auto group = m_hashGroups.cbegin(); group != m_hashGroups.cend(); ++group) {
            QJsonObject entries;
            for (auto entry = group->cbegin(); entry != group->cend(); ++entry) {
                entries.insert(entry.key(), ToJson(entry.value()));
            }
            root.insert(QString::number(group.key()), entries);
        }
        QDir().mkpath(QFileInfo(path).absolutePath());
        QSaveFile file(path);
        const QByteArray bytes = QJsonDocument(root).toJson();
        // Flushed before it is committed: a full disk shows only then, and commit() alone would let an empty file
        // through.
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush() || !file.commit()) {
            CDebugLog::AddLog(
                QStringLiteral("CorvaneTextHelper: settings cannot be written: %1: %2").arg(path, file.errorString()));
        }
    }

    bool m_bChinese = QLocale::system().language() == QLocale::Chinese;
    QString m_strPath;
    bool m_bLoaded = false;
    bool m_bForeign = false; // the file is there, but is not one of ours or is damaged
    QHash<int, Group> m_hashGroups;
};

CorvaneTextHelper* CorvaneTextHelper::instance()
{
    static CorvaneTextHelper helper;
    return &helper;
}

CorvaneTextHelper::CorvaneTextHelper()
    : d(std::make_unique<Private>())
{}

CorvaneTextHelper::~CorvaneTextHelper() = default;

bool CorvaneTextHelper::AppInChineseEnvironment()
{
    return d->m_bChinese;
}

void CorvaneTextHelper::SetAppInChineseEnvironment(bool chinese)
{
    d->m_bChinese = chinese;
}

double CorvaneTextHelper::SafeStringToDouble(const QString& text)
{
    const QString number = text.trimmed();
    // A separator typed by a user of another locale must not turn 1,5 into fifteen.
    QLocale plain = QLocale::c();
    plain.setNumberOptions(QLocale::RejectGroupSeparator);
    for (const QLocale& locale : {plain, QLocale(), QLocale::system()}) {
        if (const std::optional<double> value = FiniteNumber(locale, number)) {
            return *value;
        }
    }
    return 0.0;
}

QVariant CorvaneTextHelper::GetLocalSettingCache(SettingType type, const QString& key, QVariant defaultValue)
{
    d->Load();
    const auto group = d->m_hashGroups.constFind(type);
    return group == d->m_hashGroups.cend() ? defaultValue : group->value(key, defaultValue);
}

void CorvaneTextHelper::SetLocalSettingCache(SettingType type, const QString& key, const QVariant& value, bool flag)
{
    Q_UNUSED(flag)
    d->Load();
    if (value.isValid()) {
        d->m_hashGroups[type].insert(key, value);
    } else {
        d->m_hashGroups[type].remove(key);
    }
    d->Save();
}

void CorvaneTextHelper::SetSettingsFile(const QString& path)
{
    d->m_strPath = path.isEmpty() ? QString() : QFileInfo(path).absoluteFilePath();
    d->m_bLoaded = false;
}
