#include <tests/support/TestMain.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdlib>

namespace {
constexpr int kTimeoutMs = 150000;
// What fonts and animations may change. A control that has moved, grown or changed its colours changes more.
constexpr double kSizeTolerance = 0.04;
constexpr int kSizeSlack = 4;
constexpr double kBrightnessTolerance = 0.06;
constexpr int kParts = 6; // each way

QString Checked()
{
    return QStringLiteral(PICTURES_FOLDER);
}

bool IsNear(int one, int other)
{
    return std::abs(one - other) <= qMax(kSizeSlack, int(kSizeTolerance * other));
}

/** The brightest difference among the parts of both pictures, 0 to 1. */
double Difference(const QImage& one, const QImage& other)
{
    const auto parts = [](const QImage& image) {
        QImage flat(image.size(), QImage::Format_RGB32);
        flat.fill(Qt::white);
        QPainter(&flat).drawImage(0, 0, image);
        return flat.scaled(kParts, kParts, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    };
    const QImage first = parts(one);
    const QImage second = parts(other);
    double difference = 0.0;
    for (int y = 0; y < kParts; ++y) {
        for (int x = 0; x < kParts; ++x) {
            difference =
                qMax(difference, std::abs(first.pixelColor(x, y).lightnessF() - second.pixelColor(x, y).lightnessF()));
        }
    }
    return difference;
}
} // namespace

/** Takes the pictures of the documentation from the gallery, and compares those that are checked in. */
class DocumentationPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyPictureIsTaken();
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
    const double difference = Difference(now, then);
    QVERIFY2(difference <= kBrightnessTolerance,
             qPrintable(QStringLiteral("a part differs by %1; run scripts/pictures.sh").arg(difference)));
}

CUSTOMCONTROLS_TEST_MAIN(DocumentationPictures)

#include "DocumentationPictures.moc"
