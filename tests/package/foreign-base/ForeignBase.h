#pragma once

#include <QColor>
#include <QFont>
#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

#include <array>

class QWidget;

extern QFont FontCn_12, FontCn_13, FontCn_14, FontCn_15, FontCn_16, FontCn_20;
extern QFont FontCnMedium_10, FontCnMedium_11, FontCnMedium_13, FontCnMedium_14, FontCnMedium_15, FontCnMedium_16,
    FontCnMedium_18;
extern QFont FontCnBold_14, FontCnBold_16, FontCnBold_28, FontCnBold_30;
QFont GetFontWidthPxSizeAndWeight(int pixelSize, int weight);
int ClosestInteger(int value, const QString& ratio);

extern const char* const g_strInterfaceUsb;
extern const char* const g_strInterfaceEth;
extern const char* const g_strInterfaceWlan;
extern const char* const g_strSettingNoCheckDiskAvailableSpace;

enum ModelType
{
    ModelTypeStandard = 0,
    ModelTypeCompact = 1,
    ModelTypeScanner = 2,
};

enum SettingType
{
    SettingTypeGeneral = 0,
    SettingTypeNotice = 1,
};

class CDebugLog
{
public:
    static void AddLog(const QString& line);
};

class CorvaneTextHelper
{
public:
    static CorvaneTextHelper* instance();
    bool AppInChineseEnvironment();
    double SafeStringToDouble(const QString& text);
    QVariant GetLocalSettingCache(SettingType type, const QString& key, QVariant defaultValue);
    void SetLocalSettingCache(SettingType type, const QString& key, const QVariant& value, bool flag);
};

class CorvaneSignalHelper : public QObject
{
    Q_OBJECT

public:
    static CorvaneSignalHelper* instance();
    bool InCheckingEnvironment() const;
    void AdjustWindowPosition(QWidget* widget);

Q_SIGNALS:
    void signalActiveMainWindow();
    void signalAboutToExit();
    void signalFilePluginAppendLog(QString text, QColor color);
    void signalConnectSuccessToFile(const QString& ip, const QString& serial);
};

class CorvaneToolBitHelper
{
public:
    static CorvaneToolBitHelper* instance();
    int GetIntegerToolTypeByNumber(int toolNumber, ModelType model) const;
    QString GetToolNameByType(int toolType) const;
    QString GetToolDetailByNumber(int toolNumber, ModelType model) const;
    int GetToolLocationByToolNo(int toolNumber, ModelType model);
};

class CorvaneRegisterHelper
{
public:
    static CorvaneRegisterHelper* instance();
    void SetCurrentMachineConnectStatus(bool connected, const QString& ip, const QString& serial);
};

class NetworkConfigurator
{
public:
    struct Result
    {
        int iStatus;
        QString strDetail;
        QString strAdapter;
        QString strAddress;
        QList<std::array<QString, 3>> listAdapters;
    };
    static Result autoDiscoverAndConfigureCnc(int n);
};

bool FtpConnection(const QString& ip);
