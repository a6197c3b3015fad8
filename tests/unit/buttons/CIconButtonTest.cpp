#include <CustomControls/buttons/CIconButton.h>

#include <tests/support/Painted.h>
#include <tests/support/RepaintProbe.h>
#include <tests/support/TestMain.h>

#include <QPixmapCache>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <cmath>

namespace {

const QString kSheet = QStringLiteral("QPushButton{background:#00c000;border:none;color:#0000ff;}");
const QColor kBase(0x00, 0xc0, 0x00);
const QColor kInk(0x00, 0x00, 0xff);

// Each place of the picture tells its column by red and its row by blue.
QColor PictureColor(int column, int row)
{
    return {100 + column * 5, 0, row * 10};
}

} // namespace

class CIconButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void startsEmpty();
    void emptyButtonPaintsTheBaseAlone();
    void captionAloneIsCentred();
    void pairStandsLeftOfCentre_data();
    void pairStandsLeftOfCentre();
    void pictureOfAnotherSizeFillsItsPlace();
    void captionTakesTheColourOfTheSheet();
    void missingPictureKeepsItsPlace();
    void emptyIconCentresTheCaptionAgain();
    void fileIsReadOnceOnly();
    void settersDoNotRepaint();
    void baseKeepsNeitherTextNorIcon();
    void clickIsThatOfAPushButton();

private:
    QString Save(const QImage& image, const QString& name) const;

    QTemporaryDir m_folder;
    QString m_strPicture;
};

QString CIconButtonTest::Save(const QImage& image, const QString& name) const
{
    const QString path = m_folder.filePath(name);
    return image.save(path) ? path : QString();
}

void CIconButtonTest::initTestCase()
{
    QImage image(24, 24, QImage::Format_RGB32);
    for (int row = 0; row < 24; ++row) {
        for (int column = 0; column < 24; ++column) {
            image.setPixelColor(column, row, PictureColor(column, row));
        }
    }
    m_strPicture = Save(image, QStringLiteral("picture.png"));
    QVERIFY(!m_strPicture.isEmpty());
}

void CIconButtonTest::startsEmpty()
{
    QWidget parent;
    const CIconButton button(&parent);
    QCOMPARE(button.parentWidget(), &parent);
    QVERIFY(button.m_strIcon.isEmpty());
    QVERIFY(button.m_strText.isEmpty());
    QVERIFY(!button.isCheckable());
}

void CIconButtonTest::emptyButtonPaintsTheBaseAlone()
{
    CIconButton button;
    QPushButton base;
    for (QPushButton* each : {static_cast<QPushButton*>(&button), &base}) {
        each->resize(160, 40);
    }
    QCOMPARE(Painted::Of(button), Painted::Of(base));
    button.setStyleSheet(kSheet);
    COMPARE_COLOR(Painted::Of(button), 80, 20, kBase);
    QCOMPARE(Painted::Extent(Painted::Of(button), kBase), button.rect());
}

void CIconButtonTest::captionAloneIsCentred()
{
    CIconButton button;
    button.setStyleSheet(kSheet);
    button.resize(161, 40);
    button.SetText(Painted::Blocks(3));
    const QRect ink = Painted::Extent(Painted::Of(button), kInk);
    QVERIFY(!ink.isEmpty());
    QVERIFY(qAbs(ink.left() - (160 - ink.right())) <= 2);
    QVERIFY(ink.top() > 0 && ink.bottom() < 39);
}

void CIconButtonTest::pairStandsLeftOfCentre_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("characters");
    QTest::newRow("wide") << QSize(300, 40) << 3;
    QTest::newRow("odd height") << QSize(301, 41) << 3;
    QTest::newRow("no caption") << QSize(120, 24) << 0;
    QTest::newRow("as wide as the pair") << QSize(66, 30) << 3;
    QTest::newRow("too narrow") << QSize(43, 30) << 3;
    QTest::newRow("much too narrow") << QSize(31, 30) << 9;
    QTest::newRow("one too low") << QSize(300, 23) << 3;
    QTest::newRow("three too low") << QSize(300, 21) << 3;
}

void CIconButtonTest::pairStandsLeftOfCentre()
{
    QFETCH(QSize, size);
    QFETCH(int, characters);
    CIconButton button;
    button.setStyleSheet(kSheet);
    button.resize(size);
    button.SetIcon(m_strPicture);
    button.SetText(Painted::Blocks(characters));
    const int t = button.fontMetrics().horizontalAdvance(Painted::Blocks(characters));
    const double exact = (size.width() - 30 - t) * 0.42;
    const int x = int(exact < 0 ? std::ceil(exact) : std::floor(exact));
    const int y = int(std::floor((size.height() - 24) / 2.0));

    const QImage image = Painted::Of(button);
    for (int row = 0; row < 24; ++row) {
        for (int column = 0; column < 24; ++column) {
            if (image.rect().contains(x + column, y + row)) {
                COMPARE_COLOR(image, x + column, y + row, PictureColor(column, row));
            }
        }
    }
    if (x > 0) {
        COMPARE_COLOR(image, x - 1, size.height() / 2, kBase);
    }
    const QRect ink = Painted::Extent(image, kInk);
    if (characters > 0 && x + 30 + t <= size.width()) {
        QVERIFY(qAbs(ink.left() - (x + 30)) <= 1);
        QVERIFY(qAbs(ink.right() + 1 - (x + 30 + t)) <= 1);
    } else if (characters == 0) {
        QVERIFY(ink.isEmpty());
    }
}

void CIconButtonTest::pictureOfAnotherSizeFillsItsPlace()
{
    QImage small(7, 5, QImage::Format_RGB32);
    small.fill(Qt::red);
    CIconButton button;
    button.setStyleSheet(kSheet);
    button.resize(130, 40);
    button.SetIcon(Save(small, QStringLiteral("small.png")));
    QCOMPARE(Painted::Extent(Painted::Of(button), Qt::red), QRect(42, 8, 24, 24));
}

void CIconButtonTest::captionTakesTheColourOfTheSheet()
{
    CIconButton button;
    button.setStyleSheet(kSheet + QStringLiteral("QPushButton:disabled{color:#ff00ff;}"));
    button.resize(200, 40);
    button.SetIcon(m_strPicture);
    button.SetText(Painted::Blocks(2));
    QVERIFY(!Painted::Extent(Painted::Of(button), kInk).isEmpty());
    button.setEnabled(false);
    QVERIFY(!Painted::Extent(Painted::Of(button), QColor(255, 0, 255)).isEmpty());
}

void CIconButtonTest::missingPictureKeepsItsPlace()
{
    CIconButton button;
    button.setStyleSheet(kSheet);
    button.resize(300, 40);
    button.SetText(Painted::Blocks(3));
    button.SetIcon(m_strPicture);
    const QRect with = Painted::Extent(Painted::Of(button), kInk);
    button.SetIcon(QStringLiteral(":/no/such/picture.png"));
    const QImage image = Painted::Of(button);
    QCOMPARE(Painted::Extent(image, kInk), with);
    QCOMPARE(Painted::Difference(image, Painted::Of(button)), QRect());
    COMPARE_COLOR(image, with.left() - 10, 20, kBase);
}

void CIconButtonTest::emptyIconCentresTheCaptionAgain()
{
    CIconButton button;
    button.setStyleSheet(kSheet);
    button.resize(300, 40);
    button.SetText(Painted::Blocks(3));
    const QImage alone = Painted::Of(button);
    button.SetIcon(m_strPicture);
    QVERIFY(Painted::Of(button) != alone);
    button.SetIcon(QString());
    QCOMPARE(Painted::Of(button), alone);
}

void CIconButtonTest::fileIsReadOnceOnly()
{
    QImage red(24, 24, QImage::Format_RGB32);
    red.fill(Qt::red);
    const QString path = Save(red, QStringLiteral("gone.png"));
    CIconButton button;
    button.resize(130, 40);
    button.SetIcon(path);
    QVERIFY(QFile::remove(path));
    QPixmapCache::clear();
    QCOMPARE(Painted::Extent(Painted::Of(button), Qt::red), QRect(42, 8, 24, 24));
}

void CIconButtonTest::settersDoNotRepaint()
{
    CIconButton button;
    button.resize(200, 40);
    RepaintProbe probe(&button);
    QVERIFY(!probe.IsRepaintedBy([&] {
        button.SetText(QStringLiteral("x"));
        button.SetIcon(m_strPicture);
    }));
    QVERIFY(probe.IsRepaintedBy([&] { button.update(); }));
}

void CIconButtonTest::baseKeepsNeitherTextNorIcon()
{
    CIconButton button;
    button.SetText(QStringLiteral("x"));
    button.SetIcon(m_strPicture);
    QVERIFY(button.text().isEmpty());
    QVERIFY(button.icon().isNull());
}

void CIconButtonTest::clickIsThatOfAPushButton()
{
    CIconButton button;
    button.resize(200, 40);
    QSignalSpy spy(&button, &QPushButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(spy.size(), 1);
}

CUSTOMCONTROLS_TEST_MAIN(CIconButtonTest)
#include "CIconButtonTest.moc"
