#include "ForeignBase.h"

#include <QHash>
#include <QLocale>
#include <QWidget>

QFont GetFontWidthPxSizeAndWeight(int pixelSize, int weight)
{
    QFont font;
    font.setPixelSize(qMax(1, pixelSize));
    font.setWeight(QFont::Weight(qBound(1, weight, 1000)));
    return font;
}

QFont FontCn_12 = GetFontWidthPxSizeAndWeight(12, QFont::Normal);
QFont FontCn_13 = GetFontWidthPxSizeAndWeight(13, QFont::Normal);
QFont FontCn_14 = GetFontWidthPxSizeAndWeight(14, QFont::Normal);
QFont FontCn_15 = GetFontWidthPxSizeAndWeight(15, QFont::Normal);
QFont FontCn_16 = GetFontWidthPxSizeAndWeight(16, QFont::Normal);
QFont FontCn_20 = GetFontWidthPxSizeAndWeight(20, QFont::Normal);
QFont FontCnMedium_10 = GetFontWidthPxSizeAndWeight(10, QFont::Medium);
QFont FontCnMedium_11 = GetFontWidthPxSizeAndWeight(11, QFont::Medium);
QFont FontCnMedium_13 = GetFontWidthPxSizeAndWeight(13, QFont::Medium);
QFont FontCnMedium_14 = GetFontWidthPxSizeAndWeight(14, QFont::Medium);
QFont FontCnMedium_15 = GetFontWidthPxSizeAndWeight(15, QFont::Medium);
QFont FontCnMedium_16 = GetFontWidthPxSizeAndWeight(16, QFont::Medium);
QFont FontCnMedium_18 = GetFontWidthPxSizeAndWeight(18, QFont::Medium);
QFont FontCnBold_14 = GetFontWidthPxSizeAndWeight(14, QFont::Bold);
QFont FontCnBold_16 = GetFontWidthPxSizeAndWeight(16, QFont::Bold);
QFont FontCnBold_28 = GetFontWidthPxSizeAndWeight(28, QFont::Bold);
QFont FontCnBold_30 = GetFontWidthPxSizeAndWeight(30, QFont::Bold);

int ClosestInteger(int value, const QString&)
{
    return value;
}

const char* const g_strInterfaceUsb = "usb0";
const char* const g_strInterfaceEth = "eth0";
const char* const g_strInterfaceWlan = "wlan0";
const char* const g_strSettingNoCheckDiskAvailableSpace = "noCheckDiskAvailableSpace";

void CDebugLog::AddLog(const QString& line)
{
    qInfo("%s", qUtf8Printable(line));
}

CorvaneTextHelper* CorvaneTextHelper::instance()
{
    static CorvaneTextHelper helper;
    return &helper;
}

bool CorvaneTextHelper::AppInChineseEnvironment()
{
    return QLocale::system().language() == QLocale::Chinese;
}

double CorvaneTextHelper::SafeStringToDouble(const QString& text)
{
    return text.toDouble();
}

namespace {
QHash<QString, QVariant> settings;
}

QVariant CorvaneTextHelper::GetLocalSettingCache(SettingType, const QString& key, QVariant defaultValue)
{
    return settings.value(key, defaultValue);
}

void CorvaneTextHelper::SetLocalSettingCache(SettingType, const QString& key, const QVariant& value, bool)
{
    settings.insert(key, value);
}

CorvaneSignalHelper* CorvaneSignalHelper::instance()
{
    static CorvaneSignalHelper helper;
    return &helper;
}

bool CorvaneSignalHelper::InCheckingEnvironment() const
{
    return false;
}

void CorvaneSignalHelper::AdjustWindowPosition(QWidget* widget)
{
    if (widget) {
        widget->move(100, 100);
    }
}

CorvaneToolBitHelper* CorvaneToolBitHelper::instance()
{
    static CorvaneToolBitHelper helper;
    return &helper;
}

int CorvaneToolBitHelper::GetIntegerToolTypeByNumber(int, ModelType) const
{
    return -1;
}

QString CorvaneToolBitHelper::GetToolNameByType(int) const
{
    return {};
}

QString CorvaneToolBitHelper::GetToolDetailByNumber(int, ModelType) const
{
    return {};
}

int CorvaneToolBitHelper::GetToolLocationByToolNo(int, ModelType)
{
    return -1;
}

CorvaneRegisterHelper* CorvaneRegisterHelper::instance()
{
    static CorvaneRegisterHelper helper;
    return &helper;
}

void CorvaneRegisterHelper::SetCurrentMachineConnectStatus(bool, const QString&, const QString&) {}

NetworkConfigurator::Result NetworkConfigurator::autoDiscoverAndConfigureCnc(int)
{
    return {1, {}, {}, {}, {}};
}

bool FtpConnection(const QString&)
{
    return false;
}
