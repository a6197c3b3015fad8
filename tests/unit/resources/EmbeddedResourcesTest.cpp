#include <CustomControls/StatefulIcon.h>

#include <tests/support/TestMain.h>

#include <QDirIterator>
#include <QFileInfo>
#include <QImageReader>
#include <QMovie>
#include <QProcess>
#include <QRegularExpression>
#include <QResource>

namespace {
struct Picture
{
    const char* path;
    int width;
    int height;
    bool twin; // an "@2x" file stands beside it
};

// Every picture that the library brings along, with its size at device pixel ratio 1.
const Picture pictures[] = {
    {":/icon/gif_pop_bac.gif", 56, 56, true},
    {":/icon/ico_current_arrow_down_nor.png", 12, 13, false},
    {":/icon/ico_tag_ban.png", 32, 18, true},
    {":/icon/ico_tag_ban_en.png", 24, 18, true},
    {":/icon/ico_tag_cu.png", 18, 18, true},
    {":/icon/ico_tag_cu_en.png", 24, 18, true},
    {":/icon/ico_tag_jing.png", 18, 18, true},
    {":/icon/ico_tag_jing_en.png", 24, 18, true},
    {":/icon/ico_tag_luowen.png", 18, 18, true},
    {":/icon/ico_tag_luowen_en.png", 24, 18, true},
    {":/icon/ico_tag_wenli.png", 18, 18, true},
    {":/icon/ico_tag_wenli_en.png", 24, 18, true},
    {":/icon/ico_ttob_bg.png", 435, 78, false},
    {":/icon/ico_ttob_expand2.png", 6, 30, true},
    {":/icon/ico_ttob_line.png", 16, 70, true},
    {":/icon/icon_scanning_right_current_arrow_up.png", 12, 12, true},
    {":/icon/img_pop_1.png", 56, 56, true},
    {":/icon/img_pop_2.png", 56, 56, true},
    {":/icon/img_pop_3.png", 56, 56, true},
    {":/icon/img_pop_4.png", 56, 56, true},
    {":/icon/img_pop_5.png", 56, 56, true},
    {":/icon/bottom/icon_state_connect_no.png", 17, 17, true},
    {":/icon/bottom/icon_state_connect_yes.png", 17, 17, true},
    {":/icon/connect/ico_connect_set.png", 16, 16, true},
    {":/icon/connect/ico_current_stp_i_20x20.png", 20, 20, true},
    {":/icon/connect/ico_machine.png", 20, 20, true},
    {":/icon/connect/img_connet_typec_usb3.png", 442, 130, true},
    {":/icon/connect/img_connet_typec_usb3_en.png", 442, 130, true},
    {":/icon/selectbox/base/ico_scanning_adaptive.png", 32, 32, true},
    {":/icon/selectbox/base/ico_scanning_right_inf_close.png", 14, 14, false},
    {":/icon/selectbox/base/icon_scanning_right_inf_dizuo.png", 16, 16, false},
    {":/icon/selectbox/base/icon_scanning_right_inf_maopi.png", 16, 16, false},
    {":/icon/selectbox/base/icon_scanning_right_inf_merial.png", 16, 16, false},
    {":/icon/selectbox/base/icon_scanning_right_inf_model.png", 16, 16, false},
    {":/icon/selectbox/base/icon_scanning_right_inf_processing.png", 16, 16, false},
    {":/icon/selectbox/base/icon_scanning_right_inf_tool.png", 16, 16, false},
    {":/icon/selectbox/material/img_material_acrylic.png", 84, 68, true},
    {":/icon/selectbox/material/img_material_copper.png", 84, 68, true},
    {":/icon/selectbox/material/img_material_jade.png", 84, 68, true},
    {":/icon/selectbox/material/img_material_metal.png", 84, 68, true},
    {":/icon/selectbox/material/img_material_plstic.png", 84, 68, true},
    {":/icon/selectbox/material/img_material_wool.png", 84, 68, true},
    {":/icon/selectbox/modelAdapt/ico_sharephoto_current_ok_gr.png", 32, 32, true},
    {":/icon/selectbox/modelAdapt/ico_sharephoto_current_tips_bl.png", 32, 32, true},
    {":/icon/selectbox/stock/ico_scanning_box.png", 32, 32, true},
    {":/icon/selectbox/stock/ico_scanning_cylinder.png", 32, 32, true},
    {":/icon/selectbox/stock/ico_scanning_stl.png", 30, 30, true},
    {":/icon/selectbox/strategy/icon_scanning_right_current_arrow_down.png", 12, 13, false},
    {":/icon/selectbox/strategy/img_high_precision.png", 30, 30, false},
    {":/icon/selectbox/strategy/img_low_precision.png", 30, 30, false},
    {":/icon/selectbox/strategy/img_medium_accuracy.png", 30, 30, false},
    {":/icon/selectbox/tool/img_home_tool_daojiaodao.png", 60, 28, true},
    {":/icon/selectbox/tool/img_home_tool_diaokedao.png", 60, 28, true},
    {":/icon/selectbox/tool/img_home_tool_jiaodao.png", 60, 28, true},
    {":/icon/selectbox/tool/img_home_tool_pingdixidao.png", 60, 28, true},
    {":/icon/selectbox/tool/img_home_tool_ptxd_bk.png", 60, 28, true},
    {":/icon/selectbox/tool/img_home_tool_qiudao.png", 60, 28, true},
    {":/icon/selectbox/tool/img_home_tool_qiudao_bk.png", 60, 28, true},
    {":/icon/selectbox/tool/img_home_tool_yuanbixidao.png", 60, 28, true},
    {":/icon/selectbox/tool/img_home_tool_zhuiduqiutoudao.png", 60, 28, true},
    {":/icon/selectbox/tool/img_home_tool_zuantou.png", 60, 28, true},
    {":/icon/selectbox/tool/img_tool_luowendao.png", 60, 28, true},
    {":/icon/simcontrol/ico_process_pop_start_g2.png", 20, 20, true},
    {":/icon/simcontrol/ico_sa_botton.png", 12, 12, true},
    {":/icon/simcontrol/ico_sa_progress3.png", 20, 20, false},
    {":/icon/simcontrol/ico_sa_progress5.png", 20, 20, false},
    {":/icon/simcontrol/ico_warning_line_b_hover.png", 16, 16, false},
    {":/icon/simcontrol/ico_warning_line_b_nor.png", 16, 16, false},
    {":/icon/toolbtn/icon_scanning_checked.png", 24, 24, true},
};

QString withMark(const QString& path, const QString& mark)
{
    const QFileInfo file(path);
    return file.path() + QLatin1Char('/') + file.completeBaseName() + mark + QLatin1Char('.') + file.suffix();
}

/// The paths of the library's bundle alone: the table above with its twins. What a host adds does not count.
QStringList bundlePaths()
{
    QStringList paths;
    for (const Picture& picture : pictures) {
        const QString path = QString::fromLatin1(picture.path);
        paths << path;
        if (picture.twin)
            paths << withMark(path, QStringLiteral("@2x"));
    }
    return paths;
}

QStringList filesIn(const QString& folder, QDirIterator::IteratorFlags flags = QDirIterator::NoIteratorFlags)
{
    QStringList files;
    for (QDirIterator it(folder, QDir::Files, flags); it.hasNext();)
        files << it.next();
    return files;
}

/// A host's own bundle as a resource compiler would write it in memory: one file "icon/NAME".
QByteArray hostBundle(const QString& name, const QByteArray& content)
{
    QByteArray bundle;
    QDataStream out(&bundle, QIODevice::WriteOnly);
    const auto hash = [](const QString& text) {
        quint32 h = 0;
        for (const QChar c : text) {
            h = (h << 4) + c.unicode();
            h ^= (h & 0xf0000000) >> 23;
            h &= 0x0fffffff;
        }
        return h;
    };
    const QString folder = QStringLiteral("icon");
    const auto textSize = [](const QString& text) { return quint32(2 + 4 + 2 * text.size()); };
    const auto writeText = [&](const QString& text) {
        out << quint16(text.size()) << hash(text);
        for (const QChar c : text)
            out << quint16(c.unicode());
    };
    const quint32 data = 24;
    const quint32 names = data + 4 + quint32(content.size());
    const quint32 tree = names + textSize(folder) + textSize(name);
    out.writeRawData("qres", 4);
    out << quint32(3) << tree << data << names << quint32(0);
    out << quint32(content.size());
    out.writeRawData(content.constData(), int(content.size()));
    writeText(folder);
    writeText(name);
    const quint16 directory = 2;
    out << quint32(0) << directory << quint32(1) << quint32(1) << quint64(0);
    out << quint32(0) << directory << quint32(1) << quint32(2) << quint64(0);
    out << textSize(folder) << quint16(0) << quint16(0) << quint16(1) << quint32(0) << quint64(0);
    return bundle;
}
} // namespace

class EmbeddedResourcesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPictureHasItsSize_data();
    void everyPictureHasItsSize();
    void twinsStandExactlyWhereTheyBelong_data();
    void twinsStandExactlyWhereTheyBelong();
    void everyEntryIsUncompressedAndOfTheDefaultLocale();
    void everyPictureShowsSomething();
    void theBundleHoldsExactlyItsFiles();
    void foldersHoldTheirShare_data();
    void foldersHoldTheirShare();
    void theFoldersAddUp();
    void noFileIsForRatioThree();
    void whatTheHostSuppliesIsNotInTheBundle();
    void lookupTakesTheTwinByItself();
    void animationsLoopForEver_data();
    void animationsLoopForEver();
    void cornersOfTheAnimationAreClear();
    void messagePicturesShareOneTile();
    void wordsDifferByLanguage();
    void aHostAddsFilesToTheSameFolders();
};

void EmbeddedResourcesTest::initTestCase()
{
    // Refers to the library, so that no linker leaves it out: the bundle registers itself when the library is loaded.
    const QIcon icon =
        StatefulIcon::create(QStringLiteral(":/icon/img_pop_1.png"), QStringLiteral(":/icon/img_pop_1.png"), 56);
    QVERIFY(!icon.isNull());
}

void EmbeddedResourcesTest::everyPictureHasItsSize_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    for (const Picture& picture : pictures) {
        const QSize size(picture.width, picture.height);
        QTest::newRow(picture.path) << QString::fromLatin1(picture.path) << size;
        if (picture.twin) {
            const QString twin = withMark(QString::fromLatin1(picture.path), QStringLiteral("@2x"));
            QTest::newRow(qPrintable(twin)) << twin << 2 * size;
        }
    }
}

void EmbeddedResourcesTest::everyPictureHasItsSize()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    QVERIFY(QFile::exists(path));
    QImageReader reader(path);
    QCOMPARE(reader.format(), QFileInfo(path).suffix().toLatin1());
    const QImage image = reader.read();
    QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
    QCOMPARE(image.size(), size);
}

void EmbeddedResourcesTest::twinsStandExactlyWhereTheyBelong_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<bool>("twin");
    for (const Picture& picture : pictures)
        QTest::newRow(picture.path) << QString::fromLatin1(picture.path) << picture.twin;
}

void EmbeddedResourcesTest::twinsStandExactlyWhereTheyBelong()
{
    QFETCH(QString, path);
    QFETCH(bool, twin);
    QCOMPARE(QFile::exists(withMark(path, QStringLiteral("@2x"))), twin);
}

void EmbeddedResourcesTest::everyEntryIsUncompressedAndOfTheDefaultLocale()
{
    for (const QString& path : bundlePaths()) {
        for (const QLocale& locale : {QLocale::c(), QLocale(QLocale::Chinese), QLocale(QLocale::English)}) {
            const QResource entry(path, locale);
            QVERIFY2(entry.isValid(), qPrintable(path));
            QCOMPARE(entry.compressionAlgorithm(), QResource::NoCompression);
            // One set of bytes whatever the language: languages differ by file name.
            QCOMPARE(entry.data(), QResource(path, QLocale::c()).data());
        }
    }
}

void EmbeddedResourcesTest::everyPictureShowsSomething()
{
    for (const QString& path : bundlePaths()) {
        const QImage image = QImage(path).convertToFormat(QImage::Format_ARGB32);
        int visible = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                visible += image.pixelColor(x, y).alpha() > 64;
        }
        QVERIFY2(visible >= 8, qPrintable(path));
    }
}

void EmbeddedResourcesTest::theBundleHoldsExactlyItsFiles()
{
    QStringList expected = bundlePaths();
    QStringList actual = filesIn(QStringLiteral(":/icon"), QDirIterator::Subdirectories);
    expected.sort();
    actual.sort();
    QCOMPARE(actual, expected);
    QCOMPARE(actual.size(), 121);
    QCOMPARE(actual.filter(QRegularExpression(QStringLiteral("\\.png$"))).size(), 119);
    QCOMPARE(actual.filter(QRegularExpression(QStringLiteral("\\.gif$"))),
             QStringList({QStringLiteral(":/icon/gif_pop_bac.gif"), QStringLiteral(":/icon/gif_pop_bac@2x.gif")}));
}

void EmbeddedResourcesTest::foldersHoldTheirShare_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<int>("count");
    const std::pair<const char*, int> folders[] = {
        {":/icon", 40},
        {":/icon/bottom", 4},
        {":/icon/connect", 10},
        {":/icon/selectbox/base", 9},
        {":/icon/selectbox/material", 12},
        {":/icon/selectbox/modelAdapt", 4},
        {":/icon/selectbox/stock", 6},
        {":/icon/selectbox/strategy", 4},
        {":/icon/selectbox/tool", 22},
        {":/icon/simcontrol", 8},
        {":/icon/toolbtn", 2},
    };
    for (const auto& [folder, count] : folders)
        QTest::newRow(folder) << QString::fromLatin1(folder) << count;
}

void EmbeddedResourcesTest::foldersHoldTheirShare()
{
    QFETCH(QString, folder);
    QFETCH(int, count);
    QCOMPARE(filesIn(folder).size(), count);
}

void EmbeddedResourcesTest::theFoldersAddUp()
{
    int sum = 0;
    QStringList folders{QStringLiteral(":/icon")};
    for (QDirIterator it(folders.first(), QDir::Dirs, QDirIterator::Subdirectories); it.hasNext();)
        folders << it.next();
    // The eleven that hold files, and ":/icon/selectbox", which holds folders only.
    QCOMPARE(folders.size(), 12);
    for (const QString& folder : folders)
        sum += int(filesIn(folder).size());
    QCOMPARE(sum, 121);
    QCOMPARE(filesIn(QStringLiteral(":/icon/selectbox")).size(), 0);
}

void EmbeddedResourcesTest::noFileIsForRatioThree()
{
    QVERIFY(filesIn(QStringLiteral(":/icon"), QDirIterator::Subdirectories).filter(QStringLiteral("@3x")).isEmpty());
}

void EmbeddedResourcesTest::whatTheHostSuppliesIsNotInTheBundle()
{
    for (const char* path :
         {":/icon/ico_current_pop_close_nor.png", ":/icon/ico_current_pop_close_hover.png", ":/icon/lianjie 1.png",
          ":/icon/ico_scan_slip_right.png", ":/icon/ico_warning_line_gre_nor.png",
          ":/icon/ico_warning_line_gre_hover.png", ":/icon/icon_title_close.png", ":/icon/icon_title_close_w.png",
          ":/icon/icon_scanning_system_prompt.png", ":/icon/icon_scanning_system_warn.png", ":/icon/icon",
          ":/icon/gcode", ":/mainwindow"})
        QVERIFY2(!QFile::exists(QString::fromLatin1(path)), path);
}

void EmbeddedResourcesTest::lookupTakesTheTwinByItself()
{
    const QString path = QStringLiteral(":/icon/img_pop_1.png");
    const bool doubled = qApp->devicePixelRatio() > 1.5;
    const QImage expected(doubled ? withMark(path, QStringLiteral("@2x")) : path);
    const QImage found = QIcon(path).pixmap(QSize(56, 56)).toImage();
    QCOMPARE(found.size(), doubled ? QSize(112, 112) : QSize(56, 56));
    QCOMPARE(found.convertToFormat(QImage::Format_ARGB32_Premultiplied),
             expected.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    if (doubled) {
        return;
    }

    // The ratio of a process is fixed when its application starts, so the same is asked of a second process.
    QProcess atRatioTwo;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TEST_KEEP_SCALE"), QStringLiteral("1"));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    atRatioTwo.setProcessEnvironment(environment);
    atRatioTwo.setProcessChannelMode(QProcess::MergedChannels);
    atRatioTwo.start(QCoreApplication::applicationFilePath(), {QStringLiteral("lookupTakesTheTwinByItself")});
    QVERIFY(atRatioTwo.waitForFinished());
    QVERIFY2(atRatioTwo.exitStatus() == QProcess::NormalExit && atRatioTwo.exitCode() == 0,
             atRatioTwo.readAll().constData());
}

void EmbeddedResourcesTest::animationsLoopForEver_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");
    QTest::newRow("plain") << QStringLiteral(":/icon/gif_pop_bac.gif") << QSize(56, 56);
    QTest::newRow("double") << QStringLiteral(":/icon/gif_pop_bac@2x.gif") << QSize(112, 112);
}

void EmbeddedResourcesTest::animationsLoopForEver()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    QMovie movie(path);
    QVERIFY(movie.isValid());
    QCOMPARE(movie.loopCount(), -1);
    QVERIFY(movie.frameCount() > 1);
    QImage previous;
    for (int frame = 0; frame < movie.frameCount(); ++frame) {
        QVERIFY(movie.jumpToFrame(frame));
        QCOMPARE(movie.currentImage().size(), size);
        QVERIFY(movie.nextFrameDelay() >= 20);
        QVERIFY2(movie.currentImage() != previous, qPrintable(QString::number(frame)));
        previous = movie.currentImage();
    }
}

void EmbeddedResourcesTest::cornersOfTheAnimationAreClear()
{
    QMovie movie(QStringLiteral(":/icon/gif_pop_bac.gif"));
    for (int frame = 0; frame < movie.frameCount(); ++frame) {
        QVERIFY(movie.jumpToFrame(frame));
        const QImage image = movie.currentImage();
        for (const QPoint corner : {QPoint(0, 0), QPoint(55, 0), QPoint(0, 55), QPoint(55, 55)})
            QCOMPARE(image.pixelColor(corner).alpha(), 0);
        QCOMPARE(image.pixelColor(28, 2).alpha(), 255);
        QCOMPARE(image.pixelColor(28, 28).alpha(), 255);
    }
}

void EmbeddedResourcesTest::messagePicturesShareOneTile()
{
    // The badge stands at the lower right; the rest is one and the same picture.
    const QRect upperHalf(0, 0, 56, 28);
    const QImage first = QImage(QStringLiteral(":/icon/img_pop_1.png")).convertToFormat(QImage::Format_ARGB32);
    for (int i = 2; i <= 5; ++i) {
        const QImage other =
            QImage(QStringLiteral(":/icon/img_pop_%1.png").arg(i)).convertToFormat(QImage::Format_ARGB32);
        QCOMPARE(other.copy(upperHalf), first.copy(upperHalf));
        QVERIFY(other != first);
    }
    // Left of the badge's mark.
    const auto badge = [](int i) { return QImage(QStringLiteral(":/icon/img_pop_%1.png").arg(i)).pixelColor(35, 42); };
    for (const int green : {1, 2, 5})
        QVERIFY(badge(green).green() > badge(green).red() + 60 && badge(green).green() > badge(green).blue());
    QVERIFY(badge(3).red() > 200 && badge(3).green() > 100 && badge(3).blue() < 80);
}

void EmbeddedResourcesTest::wordsDifferByLanguage()
{
    for (const QString& path : bundlePaths().filter(QStringLiteral("_en"))) {
        const QString chinese = QString(path).remove(QStringLiteral("_en"));
        QVERIFY2(QFile::exists(chinese), qPrintable(chinese));
        QVERIFY2(QImage(path) != QImage(chinese), qPrintable(path));
    }
}

void EmbeddedResourcesTest::aHostAddsFilesToTheSameFolders()
{
    const QString path = QStringLiteral(":/icon/lianjie 1.png");
    QFile picture(QStringLiteral(":/icon/connect/ico_connect_set.png"));
    QVERIFY(picture.open(QIODevice::ReadOnly));
    const QByteArray bundle = hostBundle(QStringLiteral("lianjie 1.png"), picture.readAll());
    const auto* data = reinterpret_cast<const uchar*>(bundle.constData());
    QVERIFY(!QFile::exists(path));
    QVERIFY(QResource::registerResource(data));

    QCOMPARE(QImage(path).size(), QSize(16, 16));
    QCOMPARE(filesIn(QStringLiteral(":/icon"), QDirIterator::Subdirectories).size(), 122);
    for (const QString& own : bundlePaths())
        QVERIFY2(QFile::exists(own), qPrintable(own));

    QVERIFY(QResource::unregisterResource(data));
    QVERIFY(!QFile::exists(path));
    QCOMPARE(filesIn(QStringLiteral(":/icon"), QDirIterator::Subdirectories).size(), 121);
}

CUSTOMCONTROLS_TEST_MAIN(EmbeddedResourcesTest)
#include "EmbeddedResourcesTest.moc"
