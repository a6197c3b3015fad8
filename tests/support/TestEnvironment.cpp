#include <tests/support/TestEnvironment.h>

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CorvaneBase/FtpConnection.h>
#include <CorvaneBase/NetworkConfigurator.h>

#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QStandardPaths>
#include <QStyleFactory>

void TestEnvironment::PrepareProcess()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    qputenv("QT_FONT_DPI", "96");
    qunsetenv("QT_STYLE_OVERRIDE");
    qunsetenv("QT_QPA_PLATFORMTHEME");
    if (!qEnvironmentVariableIsSet("TEST_KEEP_SCALE")) {
        qunsetenv("QT_SCALE_FACTOR");
        qunsetenv("QT_SCREEN_SCALE_FACTORS");
    }
    QStandardPaths::setTestModeEnabled(true);
    QLocale::setDefault(QLocale::c());
}

TestEnvironment::TestEnvironment()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QFont font(QStringLiteral("Noto Sans CJK SC"));
    font.setPixelSize(12);
    QApplication::setFont(font);

    CDebugLog::SetLogFile(m_folder.filePath(QStringLiteral("test.log")));
    CorvaneTextHelper::instance()->SetSettingsFile(m_folder.filePath(QStringLiteral("settings.json")));
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(true);
    NetworkConfigurator::SetProvider([](int) {
        NetworkConfigurator::Result result;
        result.iStatus = NetworkConfigurator::StatusNoAdapter;
        result.strDetail = QStringLiteral("no adapter in tests");
        return result;
    });
    SetFtpConnectionProvider([](const QString&) { return false; });
}

TestEnvironment::~TestEnvironment()
{
    CDebugLog::SetListener({});
    CDebugLog::SetLogFile(QString());
}
