#include <tests/support/TestEnvironment.h>

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CorvaneBase/FtpConnection.h>
#include <CorvaneBase/NetworkConfigurator.h>

#include <QApplication>
#include <QCursor>
#include <QFileInfo>
#include <QFont>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocale>
#include <QScreen>
#include <QStandardPaths>
#include <QStyleFactory>
#include <QTemporaryFile>

namespace {

// Windows always has a desktop to show windows on; elsewhere a test gets a display only where it asks for one.
#ifdef Q_OS_WIN
constexpr const char* kPlatform = "windows";
#else
constexpr const char* kPlatform = "offscreen";
#endif

} // namespace

void TestEnvironment::PrepareProcess()
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", kPlatform);
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

void TestEnvironment::PrepareScreens(const QList<Screen>& screens)
{
    QJsonArray list;
    for (const Screen& screen : screens) {
        const QRect& rect = screen.rectGeometry;
        list.append(QJsonObject{{QStringLiteral("name"), QStringLiteral("screen%1").arg(list.size())},
                                {QStringLiteral("x"), rect.x()},
                                {QStringLiteral("y"), rect.y()},
                                {QStringLiteral("width"), rect.width()},
                                {QStringLiteral("height"), rect.height()},
                                {QStringLiteral("logicalDpi"), 96},
                                {QStringLiteral("logicalBaseDpi"), 96},
                                {QStringLiteral("dpr"), screen.dRatio}});
    }
    // Read when the application object is made, removed when the process ends. Its name has no folder: a colon behind a
    // drive's letter would end the argument.
    static QTemporaryFile file(QStringLiteral("screens-XXXXXX.json"));
    if (!file.open()) {
        qFatal("cannot write %s", qPrintable(file.fileName()));
    }
    file.write(QJsonDocument(QJsonObject{{QStringLiteral("screens"), list}}).toJson());
    file.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFileInfo(file).fileName().toUtf8());
}

void TestEnvironment::MoveCursorAway()
{
    QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight() - QPoint(5, 5));
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
