#include "GalleryLanguage.h"
#include "GalleryOptions.h"
#include "GalleryWindow.h"
#include "PageRegistry.h"
#include "tour/Tour.h"

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/CCustomAppStyle.h>
#include <CustomControls/feedback/ToolTipEventFilter.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QPalette>
#include <QProxyStyle>

#include <cstdio>

namespace {
enum ExitCode
{
    ExitOk = 0,
    ExitBadOptions = 2
};

int Complain(const QString& text)
{
    std::fprintf(stderr, "gallery: %s\n", qUtf8Printable(text));
    return ExitBadOptions;
}

/** The house look is fixed: it does not follow a dark desktop. */
void SetLook()
{
    QApplication::setStyle(new CCustomAppStyle(new QProxyStyle(QStringLiteral("Fusion"))));
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0xf6, 0xf6, 0xf6));
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::Button, QColor(0xf6, 0xf6, 0xf6));
    palette.setColor(QPalette::Highlight, QColor(0x18, 0x85, 0x53));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Active, role, QColor(0x33, 0x33, 0x33));
        palette.setColor(QPalette::Inactive, role, QColor(0x33, 0x33, 0x33));
    }
    QApplication::setPalette(palette);
    QApplication::setFont(FontCn_14);
    qApp->installEventFilter(new ToolTipEventFilter(qApp)); // frosted tips, whatever shows them
}
} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("gallery"));
    QApplication::setApplicationVersion(QStringLiteral(GALLERY_VERSION));

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Shows every control of CustomControls in its natural place."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption page(QStringLiteral("page"), QStringLiteral("Open this page."), QStringLiteral("name"));
    const QCommandLineOption listPages(QStringLiteral("list-pages"), QStringLiteral("Print the names of the pages."));
    const QCommandLineOption language(QStringLiteral("language"),
                                      QStringLiteral("Chinese or English. Default: the system's language."),
                                      QStringLiteral("zh|en"));
    const QCommandLineOption discoveryPort(QStringLiteral("discovery-port"),
                                           QStringLiteral("Listen for machines on this UDP port. Default: 45002"),
                                           QStringLiteral("port"), QStringLiteral("45002"));
    const QCommandLineOption tour(
        QStringLiteral("tour"),
        QStringLiteral("Walk every page and dialog, and save a picture of each step in <folder>."),
        QStringLiteral("folder"));
    const QCommandLineOption tourOnly(QStringLiteral("tour-only"),
                                      QStringLiteral("Walk this group of steps; may be given again."),
                                      QStringLiteral("group"));
    const QCommandLineOption simulator(
        QStringLiteral("simulator"),
        QStringLiteral("The tour's machine-simulator. Default: the one beside this program."),
        QStringLiteral("program"),
        QDir(QApplication::applicationDirPath()).filePath(QStringLiteral("machine-simulator")));
    parser.addOptions({page, listPages, language, discoveryPort, tour, tourOnly, simulator});
    parser.process(app);

    bool isPort = false;
    const uint port = parser.value(discoveryPort).toUInt(&isPort);
    if (!isPort || port == 0 || port > 0xffff) {
        return Complain(QStringLiteral("--discovery-port takes a number from 1 to 65535"));
    }
    GalleryOptions options;
    options.iDiscoveryPort = quint16(port);

    bool chinese = GalleryLanguage::IsChinese();
    if (parser.isSet(language)) {
        const QString value = parser.value(language);
        if (value != QLatin1String("zh") && value != QLatin1String("en")) {
            return Complain(QStringLiteral("--language takes zh or en"));
        }
        chinese = value == QLatin1String("zh");
    }
    GalleryLanguage::Use(chinese);

    if (parser.isSet(listPages)) {
        for (const PageEntry& entry : GalleryPages()) {
            std::printf("%s\n", qUtf8Printable(entry.strName));
        }
        return ExitOk;
    }

    SetLook();
    if (parser.isSet(tour)) {
        QApplication::setCursorFlashTime(0); // a picture must not depend on the moment
        // What the tour logs and answers is not the user's own.
        const QDir folder(parser.value(tour));
        CDebugLog::SetLogFile(folder.filePath(QStringLiteral("gallery.log")));
        QFile::remove(folder.filePath(QStringLiteral("settings.json")));
        CorvaneTextHelper::instance()->SetSettingsFile(folder.filePath(QStringLiteral("settings.json")));
    }

    QApplication::setWindowIcon(QIcon(QStringLiteral(":/gallery/app.png")));

    GalleryWindow window(options);
    if (parser.isSet(page) && !window.OpenPage(parser.value(page))) {
        return Complain(QStringLiteral("there is no page \"%1\"; --list-pages names them").arg(parser.value(page)));
    }
    CorvaneSignalHelper::instance()->AdjustWindowPosition(&window);
    window.show();

    if (parser.isSet(tour)) {
        Tour walk(&window, parser.value(tour), parser.value(simulator), options.iDiscoveryPort);
        QString problem;
        if (!walk.Prepare(parser.values(tourOnly), &problem)) {
            return Complain(problem);
        }
        return walk.Run();
    }
    return QApplication::exec();
}
