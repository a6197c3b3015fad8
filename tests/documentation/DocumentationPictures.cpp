#include <tests/support/TestMain.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdlib>

namespace {
constexpr int kTimeoutMs = 150000;
// What fonts and animations may change. A control that has moved, grown or changed its colours changes more.
constexpr double kSizeTolerance = 0.04;
constexpr int kSizeSlack = 4;
constexpr int kStroke = 6; // pixels
constexpr double kStrokeTolerance = 0.1;
// Pictures with something that moves or tells the time, which no two runs catch at the same place: these are compared
// by large parts.
constexpr const char* kMoving[] = {
    "CMsgBoxBackground.png", "CProgressBar.png", "CProgressWidget.png", "CVelmarAnimation.png",
    "CWatermarkWidget.png",  "ToastWidget.png",  "gallery.png"};
constexpr QSize kLargeParts(6, 6);
constexpr double kLargeTolerance = 0.06;

QString Checked()
{
    return QStringLiteral(PICTURES_FOLDER);
}

bool IsNear(int one, int other)
{
    return std::abs(one - other) <= qMax(kSizeSlack, int(kSizeTolerance * other));
}

/** The greatest difference of a colour's red, green or blue among the parts of both pictures, 0 to 1. */
double Difference(const QImage& one, const QImage& other, const QSize& parts)
{
    const auto averages = [&parts](const QImage& image) {
        QImage flat(image.size(), QImage::Format_RGB32);
        flat.fill(Qt::white);
        QPainter(&flat).drawImage(0, 0, image);
        return flat.scaled(parts, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage first = averages(one);
    const QImage second = averages(other);
    int difference = 0;
    for (int y = 0; y < parts.height(); ++y) {
        for (int x = 0; x < parts.width(); ++x) {
            const QRgb a = first.pixel(x, y);
            const QRgb b = second.pixel(x, y);
            difference = std::max({difference, std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                                   std::abs(qBlue(a) - qBlue(b))});
        }
    }
    return difference / 255.0;
}

/** Parts in which a letter that becomes another one makes a difference. */
QSize FineParts(const QImage& image)
{
    return {qMax(1, image.width() / kStroke), qMax(1, image.height() / kStroke)};
}
} // namespace

/** Takes the pictures of the documentation from the gallery, and compares those that are checked in. */
class DocumentationPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPictureIsTaken();
    void anotherCaptionOrHueIsSeen_data();
    void anotherCaptionOrHueIsSeen();
    void pictureShowsTheGalleryAsItIs_data();
    void pictureShowsTheGalleryAsItIs();

private:
    QTemporaryDir m_folder;
};

void DocumentationPictures::initTestCase()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("GALLERY"), QStringLiteral(GALLERY_PROGRAM));
    QProcess script;
    script.setProcessEnvironment(environment);
    script.setProcessChannelMode(QProcess::MergedChannels);
    script.start(QStringLiteral(PICTURES_SCRIPT), {m_folder.path()});
    QVERIFY2(script.waitForFinished(kTimeoutMs), qPrintable(script.errorString()));
    const QByteArray output = script.readAll();
    if (script.exitCode() == 77) {
        QSKIP(output.constData());
    }
    QVERIFY2(script.exitCode() == 0, output.constData());
}

void DocumentationPictures::everyPictureIsTaken()
{
    const QStringList taken = QDir(m_folder.path()).entryList({QStringLiteral("*.png")});
    for (const QString& name : QDir(Checked() + QStringLiteral("/controls")).entryList({QStringLiteral("*.png")})) {
        QVERIFY2(taken.contains(name), qPrintable(name));
    }
}

void DocumentationPictures::anotherCaptionOrHueIsSeen_data()
{
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<bool>("same");
    const QColor green(24, 133, 83);
    QTest::newRow("the same") << QStringLiteral("Save") << green << true;
    QTest::newRow("one letter") << QStringLiteral("Sale") << green << false;
    QTest::newRow("another word") << QStringLiteral("Open") << green << false;
    QTest::newRow("no caption") << QString() << green << false;
    QTest::newRow("a hue of the same lightness") << QStringLiteral("Save") << QColor(24, 83, 133) << false;
}

void DocumentationPictures::anotherCaptionOrHueIsSeen()
{
    QFETCH(const QString, caption);
    QFETCH(const QColor, colour);
    QFETCH(const bool, same);
    const auto picture = [](const QString& text, const QColor& mark) {
        QImage image(400, 200, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.fillRect(20, 20, 30, 30, mark);
        QFont font = painter.font();
        font.setPixelSize(14);
        painter.setFont(font);
        painter.drawText(QRect(70, 20, 200, 30), Qt::AlignVCenter, text);
        return image;
    };
    const QImage then = picture(QStringLiteral("Save"), QColor(24, 133, 83));
    QCOMPARE(Difference(picture(caption, colour), then, FineParts(then)) <= kStrokeTolerance, same);
}

void DocumentationPictures::pictureShowsTheGalleryAsItIs_data()
{
    QTest::addColumn<QString>("checkedIn");
    for (const QString& name : QDir(m_folder.path()).entryList({QStringLiteral("*.png")})) {
        if (!name.at(0).isDigit()) {
            QTest::newRow(qPrintable(name))
                << (name == QLatin1String("gallery.png") ? Checked() + QStringLiteral("/gallery.png")
                                                         : Checked() + QStringLiteral("/controls/") + name);
        }
    }
}

void DocumentationPictures::pictureShowsTheGalleryAsItIs()
{
    QFETCH(const QString, checkedIn);
    const QImage now(QDir(m_folder.path()).filePath(QFileInfo(checkedIn).fileName()));
    const QImage then(checkedIn);
    QVERIFY(!now.isNull());
    QVERIFY2(!then.isNull(), "run scripts/pictures.sh");
    const QString sizes = QStringLiteral("%1 x %2 now, %3 x %4 checked in; run scripts/pictures.sh")
                              .arg(now.width())
                              .arg(now.height())
                              .arg(then.width())
                              .arg(then.height());
    QVERIFY2(IsNear(now.width(), then.width()) && IsNear(now.height(), then.height()), qPrintable(sizes));
    const QString name = QFileInfo(checkedIn).fileName();
    const bool moves = std::any_of(std::begin(kMoving), std::end(kMoving),
                                   [&name](const char* moving) { return name == QLatin1String(moving); });
    const double difference = Difference(now, then, moves ? kLargeParts : FineParts(then));
    QVERIFY2(difference <= (moves ? kLargeTolerance : kStrokeTolerance),
             qPrintable(QStringLiteral("a part differs by %1; run scripts/pictures.sh").arg(difference)));
}

CUSTOMCONTROLS_TEST_MAIN(DocumentationPictures)

#include "DocumentationPictures.moc"
