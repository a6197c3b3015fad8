#include <CorvaneBase/CorvaneToolBitHelper.h>

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <optional>

namespace {

constexpr qint64 kLargestFile = qint64(16) * 1024 * 1024;
constexpr int kLargestNumber = 9999;
constexpr int kLargestType = 999;
constexpr int kLargestLocation = 999;
constexpr int kLargestModel = 999;
constexpr int kLongestText = 200;

// The index is the type code. A translation has to be short: the confirmation of a job's tools cuts a name at 100
// pixels, and less where the title of the first column is long.
constexpr const char* kTypeNames[] = {
    QT_TRANSLATE_NOOP("CorvaneToolBitHelper", "铰刀"),
    QT_TRANSLATE_NOOP("CorvaneToolBitHelper", "立铣刀"),
    QT_TRANSLATE_NOOP("CorvaneToolBitHelper", "避空立铣刀"),
    QT_TRANSLATE_NOOP("CorvaneToolBitHelper", "球头铣刀"),
    QT_TRANSLATE_NOOP("CorvaneToolBitHelper", "避空球头铣刀"),
    QT_TRANSLATE_NOOP("CorvaneToolBitHelper", "圆鼻铣刀"),
    QT_TRANSLATE_NOOP("CorvaneToolBitHelper", "锥刀"),
    QT_TRANSLATE_NOOP("CorvaneToolBitHelper", "锥度球头铣刀"),
};
constexpr int kTypeCount = int(std::size(kTypeNames));

using Magazine = QHash<int, ToolBit>;

Magazine ToMagazine(const QList<ToolBit>& tools)
{
    Magazine magazine;
    magazine.reserve(tools.size());
    for (const ToolBit& tool : tools) {
        magazine.insert(tool.iNumber, tool);
    }
    return magazine;
}

QHash<int, Magazine> BuiltInTools()
{
    const auto text = [](const char* detail) { return QString::fromLatin1(detail); };
    return {{ModelTypeStandard, ToMagazine({{1, 1, text("D6 L50"), 1},
                                            {2, 1, text("D4 L50"), 2},
                                            {3, 5, text("D4 R0.5 L50"), 3},
                                            {4, 3, text("R2 L50"), 4},
                                            {5, 4, text("R1 L50"), 5},
                                            {6, 7, text("R0.5 L50"), 6},
                                            {7, 2, text("D2 L50"), 7},
                                            {8, 6, text("D6 30deg"), 8}})},
            {ModelTypeCompact, ToMagazine({{1, 1, text("D3.175 L38"), 1},
                                           {2, 3, text("R1 L38"), 2},
                                           {3, 7, text("R0.5 L38"), 3},
                                           {4, 6, text("D3.175 20deg"), 4}})},
            {ModelTypeScanner, ToMagazine({{1, 1, text("D4 L50"), 1},
                                           {2, 3, text("R2 L50"), 2},
                                           {3, 4, text("R1 L50"), 3},
                                           {4, 7, text("R0.3 L50"), 4},
                                           {5, 0, text("D3 L50"), 5},
                                           {6, 1, text("D1 L50"), 6}})}};
}

std::optional<int> WholeNumber(const QJsonValue& json, int smallest, int largest)
{
    const double number = json.toDouble(smallest - 1.0);
    const bool fits = json.isDouble() && number == std::floor(number) && number >= smallest && number <= largest;
    return fits ? std::optional<int>(int(number)) : std::nullopt;
}

std::optional<int> KeyNumber(const QString& key, int largest)
{
    bool ok = false;
    const int number = key.toInt(&ok);
    return ok && number >= 0 && number <= largest ? std::optional<int>(number) : std::nullopt;
}

/** The content of a tool file, read as a whole before anything of it holds. */
class ToolFile
{
    Q_DECLARE_TR_FUNCTIONS(CorvaneToolBitHelper)

public:
    bool Read(const QString& path)
    {
        QFile file(path);
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly)) {
            return Fail(tr("无法读取文件"));
        }
        // As much as is there: a reading reserves what it asks for.
        const QByteArray bytes = file.read(qMin(file.size(), kLargestFile) + 1);
        if (bytes.size() > kLargestFile) {
            return Fail(tr("文件超过 %1 MiB").arg(kLargestFile / 1024 / 1024));
        }
        QJsonParseError parseError;
        const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
        if (parseError.error != QJsonParseError::NoError) {
            return Fail(tr("第 %1 字节处不是有效的 JSON").arg(parseError.offset));
        }
        const QJsonObject root = document.object();
        const QJsonValue types = root.value(QLatin1String("types"));
        const QJsonValue models = root.value(QLatin1String("models"));
        if (!document.isObject() || !models.isObject() || !(types.isUndefined() || types.isObject())) {
            return Fail(tr("文件应为含有 “models” 对象的 JSON 对象，“types” 若有也应为对象"));
        }
        return ReadTypes(types.toObject()) && ReadModels(models.toObject());
    }

    QHash<int, QString> m_hashNames;
    QHash<int, Magazine> m_hashModels;
    QString m_strError;

private:
    bool Fail(const QString& reason)
    {
        m_strError = reason;
        return false;
    }

    bool ReadTypes(const QJsonObject& types)
    {
        for (auto it = types.begin(); it != types.end(); ++it) {
            const std::optional<int> type = KeyNumber(it.key(), kLargestType);
            const QString name = it.value().toString();
            if (!type || name.isEmpty() || name.size() > kLongestText) {
                return Fail(tr("“types” 中的 “%1”：编号应为 0 到 %2 的整数，名称应为 1 到 %3 个字符的文本")
                                .arg(it.key())
                                .arg(kLargestType)
                                .arg(kLongestText));
            }
            m_hashNames.insert(*type, name);
        }
        return true;
    }

    bool ReadModels(const QJsonObject& models)
    {
        for (auto it = models.begin(); it != models.end(); ++it) {
            const std::optional<int> model = KeyNumber(it.key(), kLargestModel);
            if (!model || !it.value().isArray()) {
                return Fail(tr("“models” 中的 “%1”：机型应为 0 到 %2 的整数，其值应为刀具数组")
                                .arg(it.key())
                                .arg(kLargestModel));
            }
            const QJsonArray array = it.value().toArray();
            QList<ToolBit> tools;
            for (const auto& entry : array) {
                tools.append(ToolBit());
                const QString reason = ReadTool(entry, &tools.last());
                if (!reason.isEmpty()) {
                    return Fail(tr("机型 %1 的第 %2 把刀具：%3").arg(it.key(), QString::number(tools.size()), reason));
                }
            }
            m_hashModels.insert(*model, ToMagazine(tools));
        }
        return true;
    }

    QString ReadTool(const QJsonValue& entry, ToolBit* tool) const
    {
        if (!entry.isObject()) {
            return tr("应为对象");
        }
        const QJsonObject object = entry.toObject();
        const QString range = tr("“%1” 应为 %2 到 %3 的整数");
        const std::optional<int> number = WholeNumber(object.value(QLatin1String("number")), 0, kLargestNumber);
        if (!number) {
            return range.arg(QStringLiteral("number")).arg(0).arg(kLargestNumber);
        }
        const std::optional<int> type = WholeNumber(object.value(QLatin1String("type")), 0, kLargestType);
        if (!type) {
            return range.arg(QStringLiteral("type")).arg(0).arg(kLargestType);
        }
        if (*type >= kTypeCount && !m_hashNames.contains(*type)) {
            return tr("刀具类型 %1 没有名称").arg(*type);
        }
        const std::optional<int> location = WholeNumber(object.value(QLatin1String("location")), 1, kLargestLocation);
        if (!location) {
            return range.arg(QStringLiteral("location")).arg(1).arg(kLargestLocation);
        }
        const QJsonValue detail = object.value(QLatin1String("detail"));
        if (!detail.isString() || detail.toString().size() > kLongestText) {
            return tr("“%1” 应为不超过 %2 个字符的文本").arg(QStringLiteral("detail")).arg(kLongestText);
        }
        *tool = {*number, *type, detail.toString(), *location};
        return {};
    }
};

} // namespace

struct CorvaneToolBitHelper::Private
{
    const ToolBit* Find(int number, ModelType model) const
    {
        const auto magazine = m_hashModels.constFind(model);
        if (magazine == m_hashModels.cend()) {
            return nullptr;
        }
        const auto tool = magazine->constFind(number);
        return tool == magazine->cend() ? nullptr : &*tool;
    }

    QHash<int, Magazine> m_hashModels = BuiltInTools();
    QHash<int, QString> m_hashNames; // those that a file gave; they win over the built-in ones
};

CorvaneToolBitHelper* CorvaneToolBitHelper::instance()
{
    static CorvaneToolBitHelper helper;
    return &helper;
}

CorvaneToolBitHelper::CorvaneToolBitHelper()
    : d(std::make_unique<Private>())
{}

CorvaneToolBitHelper::~CorvaneToolBitHelper() = default;

int CorvaneToolBitHelper::GetIntegerToolTypeByNumber(int toolNumber, ModelType model) const
{
    const ToolBit* tool = d->Find(toolNumber, model);
    return tool ? tool->iType : -1;
}

QString CorvaneToolBitHelper::GetToolNameByType(int toolType) const
{
    const auto name = d->m_hashNames.constFind(toolType);
    if (name != d->m_hashNames.cend()) {
        return *name;
    }
    return toolType >= 0 && toolType < kTypeCount
               ? QCoreApplication::translate("CorvaneToolBitHelper", kTypeNames[toolType])
               : QString();
}

QString CorvaneToolBitHelper::GetToolDetailByNumber(int toolNumber, ModelType model) const
{
    const ToolBit* tool = d->Find(toolNumber, model);
    return tool ? tool->strDetail : QString();
}

int CorvaneToolBitHelper::GetToolLocationByToolNo(int toolNumber, ModelType model)
{
    const ToolBit* tool = d->Find(toolNumber, model);
    return tool ? tool->iLocation : -1;
}

void CorvaneToolBitHelper::SetTools(ModelType model, const QList<ToolBit>& tools)
{
    d->m_hashModels.insert(model, ToMagazine(tools));
}

bool CorvaneToolBitHelper::LoadTools(const QString& jsonFile, QString* error)
{
    ToolFile file;
    const bool ok = file.Read(jsonFile);
    if (error) {
        *error = ok ? QString() : ToolFile::tr("刀具文件 %1：%2").arg(QFileInfo(jsonFile).fileName(), file.m_strError);
    }
    if (ok) {
        d->m_hashNames.insert(file.m_hashNames);
        d->m_hashModels.insert(file.m_hashModels);
    }
    return ok;
}
