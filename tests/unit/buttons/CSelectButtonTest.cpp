#include <CustomControls/buttons/CSelectButton.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/Painted.h>
#include <tests/support/RepaintProbe.h>
#include <tests/support/TestMain.h>

#include <QCursor>
#include <QPixmapCache>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

const QString kMark = QStringLiteral(":/icon/toolbtn/icon_scanning_checked.png");
const QString kJade = QStringLiteral(":/icon/selectbox/material/img_material_jade.png");

const QColor kGround(200, 220, 240);
const QColor kFrameChecked(23, 160, 97);
const QColor kFrameHover(73, 135, 89);
const QColor kFrame(196, 196, 196);
const QColor kInk(51, 51, 51);

QColor Half(const QColor& top, const QColor& bottom)
{
    QColor half = top;
    half.setAlphaF(0.5);
    return Painted::Over(half, bottom);
}

// Each place of the picture tells its column by red and its row by blue.
QColor PictureColor(int column, int row)
{
    return {100 + column * 2, 0, 60 + row * 2};
}

} // namespace

class CSelectButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void startsAsAnUncheckedTile();
    void uncheckedFrameIsThinAndTheGroundShows();
    void hoverTurnsTheFrameGreen();
    void hoverIsReadWhenItPaints();
    void checkedFrameIsThickOnWhite();
    void checkedFrameIgnoresTheCursor();
    void markLiesFlushInTheTopRightCorner();
    void pictureAndCaptionStandCentred_data();
    void pictureAndCaptionStandCentred();
    void bundledPictureIsShown();
    void withoutAPictureTheCaptionStaysInItsPlace();
    void missingPictureTakesNoRoom_data();
    void missingPictureTakesNoRoom();
    void emptyCaptionPaintsNothing();
    void filesAreReadOnceOnly();
    void settersDoNotRepaint();
    void baseKeepsNeitherTextNorIcon();
    void clickChecksAndUnchecks();
    void exclusiveTilesAreOneOfMany();

private:
    QString SavePicture(const QSize& size) const;

    QTemporaryDir m_folder;
};

QString CSelectButtonTest::SavePicture(const QSize& size) const
{
    QImage image(size, QImage::Format_RGB32);
    for (int row = 0; row < size.height(); ++row) {
        for (int column = 0; column < size.width(); ++column) {
            image.setPixelColor(column, row, PictureColor(column, row));
        }
    }
    const QString path = m_folder.filePath(QStringLiteral("%1x%2.png").arg(size.width()).arg(size.height()));
    return image.save(path) ? path : QString();
}

void CSelectButtonTest::initTestCase()
{
    QVERIFY(!QImage(kMark).isNull());
    QVERIFY(!QImage(kJade).isNull());
}

void CSelectButtonTest::init()
{
    TestEnvironment::MoveCursorAway();
}

void CSelectButtonTest::startsAsAnUncheckedTile()
{
    QWidget parent;
    const CSelectButton button(&parent);
    QCOMPARE(button.parentWidget(), &parent);
    QVERIFY(button.isCheckable());
    QVERIFY(!button.isChecked());
    QCOMPARE(button.font().pixelSize(), FontCnMedium_14.pixelSize());
    QCOMPARE(button.font().weight(), FontCnMedium_14.weight());
    QCOMPARE(button.font().families(), FontCnMedium_14.families());
    QCOMPARE(button.m_sizeIcon, QSize(-1, -1));
    QVERIFY(button.m_icon.isNull());
    QVERIFY(button.m_strText.isEmpty());
}

void CSelectButtonTest::uncheckedFrameIsThinAndTheGroundShows()
{
    CSelectButton button;
    button.resize(100, 80);
    const QImage image = Painted::Of(button, kGround);
    // A pen of one pixel along x = 1 covers half of the pixels on both sides of it.
    for (const int x : {0, 1, 98, 99}) {
        COMPARE_COLOR(image, x, 40, Half(kFrame, kGround));
    }
    for (const int y : {0, 1, 78, 79}) {
        COMPARE_COLOR(image, 50, y, Half(kFrame, kGround));
    }
    COMPARE_COLOR(image, 2, 40, kGround);
    COMPARE_COLOR(image, 50, 40, kGround);
    COMPARE_COLOR(image, 0, 0, kGround);
    COMPARE_COLOR(image, 99, 0, kGround);
}

void CSelectButtonTest::hoverTurnsTheFrameGreen()
{
    QWidget window; // the system may not let one be as narrow as the tile
    window.setGeometry(100, 100, 300, 200);
    CSelectButton button(&window);
    button.setGeometry(100, 60, 100, 80);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto frame = [&] { return Painted::Of(button, kGround).pixelColor(0, 40); };
    QVERIFY(Painted::Near(frame(), Half(kFrame, kGround)));
    // The whole of rect() counts, its edges too.
    for (const QPoint& inside : {QPoint(50, 40), QPoint(0, 0), QPoint(99, 79)}) {
        QCursor::setPos(button.mapToGlobal(inside));
        QVERIFY(Painted::Near(frame(), Half(kFrameHover, kGround)));
    }
    for (const QPoint& outside : {QPoint(-1, 40), QPoint(100, 40), QPoint(50, 80)}) {
        QCursor::setPos(button.mapToGlobal(outside));
        QVERIFY(Painted::Near(frame(), Half(kFrame, kGround)));
    }
}

void CSelectButtonTest::hoverIsReadWhenItPaints()
{
    CSelectButton button;
    button.resize(100, 80);
    button.setAttribute(Qt::WA_Hover, false);
    button.ensurePolished();
    button.setAttribute(Qt::WA_Hover, false); // no repaint of the toolkit's own on entering
    RepaintProbe probe(&button);
    QVERIFY(!probe.IsRepaintedBy([&] { QCursor::setPos(button.mapToGlobal(QPoint(50, 40))); }));
    COMPARE_COLOR(Painted::Of(button, kGround), 0, 40, Half(kFrameHover, kGround));
}

void CSelectButtonTest::checkedFrameIsThickOnWhite()
{
    CSelectButton button;
    button.resize(100, 80);
    button.setChecked(true);
    const QImage image = Painted::Of(button, kGround);
    for (const int x : {0, 1, 98, 99}) {
        COMPARE_COLOR(image, x, 50, kFrameChecked);
    }
    for (const int x : {2, 50, 97}) {
        COMPARE_COLOR(image, x, 50, QColor(255, 255, 255));
    }
    COMPARE_COLOR(image, 50, 78, kFrameChecked);
    COMPARE_COLOR(image, 50, 79, kFrameChecked);
    COMPARE_COLOR(image, 0, 0, kGround);
    COMPARE_COLOR(image, 0, 79, kGround);
}

void CSelectButtonTest::checkedFrameIgnoresTheCursor()
{
    CSelectButton button;
    button.setGeometry(100, 100, 100, 80);
    button.setChecked(true);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    const QImage away = Painted::Of(button, kGround);
    QCursor::setPos(button.mapToGlobal(QPoint(50, 40)));
    QCOMPARE(Painted::Of(button, kGround), away);
}

void CSelectButtonTest::markLiesFlushInTheTopRightCorner()
{
    const QImage mark(kMark);
    CSelectButton button;
    button.resize(100, 80);
    button.setChecked(true);
    const QImage image = Painted::Of(button, kGround);
    QRect solid;
    for (int y = 0; y < mark.height(); ++y) {
        for (int x = 0; x < mark.width(); ++x) {
            if (mark.pixelColor(x, y).alpha() == 255) {
                COMPARE_COLOR(image, 100 - mark.width() + x, y, mark.pixelColor(x, y));
                solid |= QRect(x, y, 1, 1);
            }
        }
    }
    QVERIFY(solid.width() > mark.width() / 2);
    button.setChecked(false);
    COMPARE_COLOR(Painted::Of(button, kGround), 100 - mark.width() + solid.center().x(), solid.center().y(), kGround);
}

void CSelectButtonTest::pictureAndCaptionStandCentred_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("picture");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("even") << QSize(100, 90) << QSize(40, 30) << QPoint(30, 21);
    QTest::newRow("odd") << QSize(101, 90) << QSize(40, 31) << QPoint(30, 20);
    QTest::newRow("fits exactly") << QSize(40, 48) << QSize(40, 30) << QPoint(0, 0);
    // Toward zero, not down: -11 / 2 is -5.
    QTest::newRow("wider than the tile") << QSize(40, 60) << QSize(51, 30) << QPoint(-5, 6);
    QTest::newRow("higher than the tile") << QSize(80, 40) << QSize(40, 33) << QPoint(20, -5);
}

void CSelectButtonTest::pictureAndCaptionStandCentred()
{
    QFETCH(QSize, size);
    QFETCH(QSize, picture);
    QFETCH(QPoint, place);
    CSelectButton button;
    button.resize(size);
    button.setIcon(SavePicture(picture));
    QCOMPARE(button.m_sizeIcon, picture);
    const QImage without = Painted::Of(button, kGround);
    button.setText(Painted::Blocks(1));
    const QImage image = Painted::Of(button, kGround);
    for (int row = 0; row < picture.height(); ++row) {
        for (int column = 0; column < picture.width(); ++column) {
            const QPoint point = place + QPoint(column, row);
            if (without.rect().contains(point)) {
                COMPARE_COLOR(without, point.x(), point.y(), PictureColor(column, row));
            }
        }
    }
    const QRect room(2, size.height() - 14 - place.y(), size.width() - 4, 14);
    const QRect ink = Painted::Extent(image, kInk);
    if (image.rect().contains(room)) {
        QVERIFY(!ink.isEmpty());
        QVERIFY(Painted::Difference(image, without).intersects(room));
        QVERIFY(qAbs(ink.center().x() - room.center().x()) <= 1);
        // A glyph may be higher than its line of 14, but stands in the middle of it.
        QVERIFY(qAbs(ink.center().y() - room.center().y()) <= 2 || ink.bottom() == size.height() - 1);
    }
}

void CSelectButtonTest::bundledPictureIsShown()
{
    const QImage jade(kJade);
    CSelectButton button;
    button.setIcon(kJade);
    button.resize(jade.width() + 20, jade.height() + 40);
    QCOMPARE(button.m_sizeIcon, jade.size());
    const QPoint middle(jade.width() / 2, jade.height() / 2);
    const QColor expected = Painted::Over(jade.pixelColor(middle), kGround);
    COMPARE_COLOR(Painted::Of(button, kGround), 10 + middle.x(), 11 + middle.y(), expected);
}

void CSelectButtonTest::withoutAPictureTheCaptionStaysInItsPlace()
{
    CSelectButton button;
    button.resize(100, 81);
    const QImage without = Painted::Of(button, kGround);
    button.setText(Painted::Blocks(1));
    // y is (81 - 18 + 1) / 2 = 32, so the caption's line is 81 - 14 - 32 = 35 from the top.
    const QRect ink = Painted::Extent(Painted::Of(button, kGround), kInk);
    QVERIFY(!ink.isEmpty());
    QVERIFY(qAbs(ink.center().y() - QRect(2, 35, 96, 14).center().y()) <= 2);
    QCOMPARE(Painted::Extent(without, kInk), QRect());
}

void CSelectButtonTest::missingPictureTakesNoRoom_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("no such file") << QStringLiteral(":/no/such/picture.png");
    QTest::newRow("empty") << QString();
    QTest::newRow("a folder") << QStringLiteral("/");
}

void CSelectButtonTest::missingPictureTakesNoRoom()
{
    QFETCH(QString, path);
    CSelectButton button;
    button.resize(100, 80);
    button.setIcon(SavePicture(QSize(40, 30)));
    button.setIcon(path);
    QCOMPARE(button.m_sizeIcon, QSize(0, 0));
    button.setText(Painted::Blocks(1));
    const QImage image = Painted::Of(button, kGround);
    COMPARE_COLOR(image, 50, 20, kGround);
    // y is 31, the caption's line 35 from the top.
    QVERIFY(qAbs(Painted::Extent(image, kInk).center().y() - QRect(2, 35, 96, 14).center().y()) <= 2);
}

void CSelectButtonTest::emptyCaptionPaintsNothing()
{
    CSelectButton button;
    button.resize(100, 80);
    const QImage untouched = Painted::Of(button, kGround);
    button.setText(QString());
    QCOMPARE(Painted::Of(button, kGround), untouched);
    COMPARE_COLOR(untouched, 50, 55, kGround);
}

void CSelectButtonTest::filesAreReadOnceOnly()
{
    const QString path = SavePicture(QSize(22, 22));
    CSelectButton button;
    button.resize(60, 60);
    button.setIcon(path);
    button.setChecked(true);
    const QImage before = Painted::Of(button);
    QVERIFY(QFile::remove(path));
    QPixmapCache::clear();
    QCOMPARE(Painted::Of(button), before);
}

void CSelectButtonTest::settersDoNotRepaint()
{
    CSelectButton button;
    button.resize(100, 80);
    RepaintProbe probe(&button);
    QVERIFY(!probe.IsRepaintedBy([&] {
        button.setText(QStringLiteral("x"));
        button.setIcon(kJade);
    }));
    QVERIFY(probe.IsRepaintedBy([&] { button.setChecked(true); }));
}

void CSelectButtonTest::baseKeepsNeitherTextNorIcon()
{
    CSelectButton button;
    button.setText(QStringLiteral("x"));
    button.setIcon(kJade);
    QVERIFY(button.text().isEmpty());
    QVERIFY(button.icon().isNull());
}

void CSelectButtonTest::clickChecksAndUnchecks()
{
    CSelectButton button;
    button.resize(100, 80);
    QSignalSpy spy(&button, &QPushButton::toggled);
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(button.isChecked());
    QTest::mouseClick(&button, Qt::LeftButton);
    QVERIFY(!button.isChecked());
    QCOMPARE(spy.size(), 2);
}

void CSelectButtonTest::exclusiveTilesAreOneOfMany()
{
    QWidget parent;
    QList<CSelectButton*> tiles;
    for (int index = 0; index < 3; ++index) {
        tiles.append(new CSelectButton(&parent));
        tiles.last()->setAutoExclusive(true);
        tiles.last()->setGeometry(index * 60, 0, 60, 60);
    }
    tiles.first()->setChecked(true);
    QTest::mouseClick(tiles.last(), Qt::LeftButton);
    QVERIFY(!tiles.first()->isChecked());
    QVERIFY(tiles.last()->isChecked());
}

CUSTOMCONTROLS_TEST_MAIN(CSelectButtonTest)
#include "CSelectButtonTest.moc"
