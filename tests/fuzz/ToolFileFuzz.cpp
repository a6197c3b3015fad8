#include <tests/fuzz/FuzzTarget.h>

#include <CorvaneBase/CorvaneToolBitHelper.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStringList>

// A file of tool data. One that is taken holds what the helper then tells; one that is refused has a reason and changes
// nothing.

namespace {

QStringList Everything(CorvaneToolBitHelper& helper)
{
    QStringList all;
    for (int model = 0; model < 4; ++model) {
        for (int number = 0; number < 10; ++number) {
            all << QString::number(helper.GetIntegerToolTypeByNumber(number, ModelType(model)))
                << helper.GetToolDetailByNumber(number, ModelType(model))
                << QString::number(helper.GetToolLocationByToolNo(number, ModelType(model)));
        }
    }
    for (int type = -1; type < 12; ++type) {
        all << helper.GetToolNameByType(type);
    }
    return all;
}

void CheckTaken(CorvaneToolBitHelper& helper, const QJsonObject& root)
{
    // Two keys may be one number, such as "1" and "01": then the last in order holds.
    QHash<int, QString> names;
    const QJsonObject types = root[QStringLiteral("types")].toObject();
    for (auto it = types.begin(); it != types.end(); ++it) {
        names.insert(it.key().toInt(), it.value().toString());
    }
    for (auto it = names.cbegin(); it != names.cend(); ++it) {
        FUZZ_CHECK(!it.value().isEmpty() && helper.GetToolNameByType(it.key()) == it.value());
    }
    QHash<int, QJsonArray> magazines;
    const QJsonObject models = root[QStringLiteral("models")].toObject();
    for (auto it = models.begin(); it != models.end(); ++it) {
        magazines.insert(it.key().toInt(), it.value().toArray());
    }
    for (auto it = magazines.cbegin(); it != magazines.cend(); ++it) {
        if (it.key() > 3) {
            continue; // beyond what the type can name
        }
        const auto model = ModelType(it.key());
        QHash<int, QJsonObject> tools;
        for (const QJsonValue& tool : it.value()) {
            tools.insert(tool[QStringLiteral("number")].toInt(-1), tool.toObject());
        }
        for (auto tool = tools.cbegin(); tool != tools.cend(); ++tool) {
            const int type = helper.GetIntegerToolTypeByNumber(tool.key(), model);
            const int location = helper.GetToolLocationByToolNo(tool.key(), model);
            FUZZ_CHECK(tool.key() >= 0 && tool.key() <= 9999);
            FUZZ_CHECK(type == tool.value()[QStringLiteral("type")].toInt(-1) && type >= 0 && type <= 999);
            FUZZ_CHECK(location == tool.value()[QStringLiteral("location")].toInt(-1) && location >= 1);
            FUZZ_CHECK(helper.GetToolDetailByNumber(tool.key(), model) ==
                       tool.value()[QStringLiteral("detail")].toString());
            FUZZ_CHECK(!helper.GetToolNameByType(type).isEmpty());
        }
    }
}

} // namespace

void FuzzOne(FuzzInput& input)
{
    const QByteArray bytes = input.Rest();
    static const QString path = FuzzFile(QStringLiteral("tools.json"));
    QFile file(path);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size());
    file.close();

    CorvaneToolBitHelper helper;
    const QStringList before = Everything(helper);
    QString error = QStringLiteral("untouched");
    if (helper.LoadTools(path, &error)) {
        FUZZ_CHECK(error.isEmpty());
        const QJsonDocument document = QJsonDocument::fromJson(bytes);
        FUZZ_CHECK(document.isObject() && document[QStringLiteral("models")].isObject());
        CheckTaken(helper, document.object());
        const QStringList after = Everything(helper);
        FUZZ_CHECK(helper.LoadTools(path, nullptr) && Everything(helper) == after);
    } else {
        FUZZ_CHECK(!error.isEmpty() && error != QLatin1String("untouched"));
        FUZZ_CHECK(Everything(helper) == before);
    }
}
