#include <CorvaneBase/CorvaneTextHelper.h>

#include <QLocale>
struct CorvaneTextHelper::Private { bool bChinese = QLocale::system().language() == QLocale::Chinese; };
CorvaneTextHelper::CorvaneTextHelper() : d(std::make_unique<Private>()) {}
CorvaneTextHelper::~CorvaneTextHelper() = default;
CorvaneTextHelper* CorvaneTextHelper::instance() { static CorvaneTextHelper h; return &h; }
bool CorvaneTextHelper::AppInChineseEnvironment() { return d->bChinese; }
void CorvaneTextHelper::SetAppInChineseEnvironment(bool chinese) { d->bChinese = chinese; }
double CorvaneTextHelper::SafeStringToDouble(const QString& text) { return text.toDouble(); }
QVariant CorvaneTextHelper::GetLocalSettingCache(SettingType, const QString&, QVariant v) { return v; }
void CorvaneTextHelper::SetLocalSettingCache(SettingType, const QString&, const QVariant&, bool) {}
void CorvaneTextHelper::SetSettingsFile(const QString&) {}
