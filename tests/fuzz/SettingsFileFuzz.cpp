#include <tests/fuzz/FuzzTarget.h>

#include <CorvaneBase/CorvaneTextHelper.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

// A settings file. Whatever it holds, reading it is harmless; a file that is written over it is read back to the same,
// and one that was no settings file is kept beside it.

namespace {

const QString ProbeKey = QStringLiteral("probe of the fuzz target");
const QString ProbeText = QStringLiteral("written");

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

void FuzzOne(FuzzInput& input)
{
    const QByteArray bytes = input.Rest();
    static const QString path = FuzzFile(QStringLiteral("settings.json"));
    static const QString kept = path + QStringLiteral(".bad");
    QFile::remove(kept);
    QFile file(path);
    FUZZ_CHECK(file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size());
    file.close();
    const bool settings = QJsonDocument::fromJson(bytes).isObject();

    {
        CorvaneTextHelper helper;
        helper.SetSettingsFile(path);
        FUZZ_CHECK(helper.GetLocalSettingCache(SettingTypeGeneral, ProbeKey, 42) == QVariant(42));
        FUZZ_CHECK(ReadAll(path) == bytes); // reading alone changes nothing
        helper.SetLocalSettingCache(SettingTypeGeneral, ProbeKey, ProbeText, false);
    }
    const QByteArray written = ReadAll(path);
    FUZZ_CHECK(QJsonDocument::fromJson(written).isObject());
    FUZZ_CHECK(QFile::exists(kept) == !settings);
    FUZZ_CHECK(settings || ReadAll(kept) == bytes);

    {
        CorvaneTextHelper helper;
        helper.SetSettingsFile(path);
        FUZZ_CHECK(helper.GetLocalSettingCache(SettingTypeGeneral, ProbeKey, {}) == QVariant(ProbeText));
        helper.SetLocalSettingCache(SettingTypeGeneral, ProbeKey, ProbeText, false);
    }
    // Every value came back as it was written: a second writing of all of them makes the same file.
    FUZZ_CHECK(ReadAll(path) == written);
}
