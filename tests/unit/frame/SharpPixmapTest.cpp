#include <CustomControls/SharpPixmap_p.h>

#include <tests/support/TestMain.h>

#include <QImage>
#include <QTemporaryDir>

#include <algorithm>

/** Which file a picture is taken from, at the ratio that QT_SCALE_FACTOR sets for the process. */
class SharpPixmapTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void pictureHasTheScreensPixelsFromTheNextLargerTwin_data();
    void pictureHasTheScreensPixelsFromTheNextLargerTwin();
    void pictureWithoutTwinIsThePlainOne();
    void fileThatIsMissingGivesNoPicture();

private:
    QString Save(const QString& name, const QSize& size, const QColor& color) const;

    QTemporaryDir m_folder;
    QString m_strTwins;
};

namespace {
constexpr QSize kSize(40, 20);
const QColor kPlain(Qt::red);
const QColor kTwin(Qt::blue);
} // namespace

QString SharpPixmapTest::Save(const QString& name, const QSize& size, const QColor& color) const
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    const QString path = m_folder.filePath(name);
    image.save(path);
    return path;
}

void SharpPixmapTest::initTestCase()
{
    m_strTwins = Save(QStringLiteral("twins.png"), kSize, kPlain);
    Save(QStringLiteral("twins@2x.png"), kSize * 2, kTwin);
}

void SharpPixmapTest::pictureHasTheScreensPixelsFromTheNextLargerTwin_data()
{
    QTest::addColumn<QPixmap>("pixmap");
    QTest::newRow("of a file") << SharpPixmap(m_strTwins);
    QTest::newRow("of an icon") << SharpPixmap(QIcon(m_strTwins), kSize);
}

void SharpPixmapTest::pictureHasTheScreensPixelsFromTheNextLargerTwin()
{
    QFETCH(const QPixmap, pixmap);
    const double ratio = std::min(qApp->devicePixelRatio(), 2.0); // there is no larger twin
    QCOMPARE(pixmap.size(), (QSizeF(kSize) * ratio).toSize());
    QCOMPARE(pixmap.deviceIndependentSize().toSize(), kSize);
    QCOMPARE(pixmap.toImage().pixelColor(5, 5), ratio > 1.0 ? kTwin : kPlain);
}

void SharpPixmapTest::pictureWithoutTwinIsThePlainOne()
{
    const QString path = Save(QStringLiteral("single.png"), kSize, kPlain);
    QCOMPARE(SharpPixmap(path).size(), kSize);
    QCOMPARE(SharpPixmap(path).devicePixelRatio(), 1.0);
    QCOMPARE(SharpPixmap(QIcon(path), kSize).size(), kSize);
}

void SharpPixmapTest::fileThatIsMissingGivesNoPicture()
{
    QVERIFY(SharpPixmap(QString()).isNull());
    QVERIFY(SharpPixmap(m_folder.filePath(QStringLiteral("none.png"))).isNull());
    QVERIFY(SharpPixmap(QIcon(), kSize).isNull());
}

CUSTOMCONTROLS_TEST_MAIN(SharpPixmapTest)
#include "SharpPixmapTest.moc"
