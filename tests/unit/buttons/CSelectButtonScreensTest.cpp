#include <CustomControls/buttons/CSelectButton.h>

#include <tests/support/Painted.h>
#include <tests/support/TestMain.h>

namespace {

constexpr double kRatio = 2.0;
const QString kMark = QStringLiteral(":/icon/toolbtn/icon_scanning_checked.png");
const QString kJade = QStringLiteral(":/icon/selectbox/material/img_material_jade.png");

// What a widget paints on a screen of this ratio, in the screen's own pixels.
QImage PaintedOn(QWidget& widget)
{
    QImage image(widget.size() * kRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(kRatio);
    image.fill(Painted::kGround);
    widget.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image.convertToFormat(QImage::Format_RGB32);
}

} // namespace

/** Pictures on a dense screen: as large as on any other, and drawn from their finer files. */
class CSelectButtonScreensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pictureIsAsLargeAsOnAnyScreen();
    void finerFileIsDrawn();
    void markIsAsLargeAsOnAnyScreen();
};

void CSelectButtonScreensTest::pictureIsAsLargeAsOnAnyScreen()
{
    QCOMPARE(qApp->devicePixelRatio(), kRatio);
    CSelectButton button;
    button.setIcon(kJade);
    QCOMPARE(button.m_sizeIcon, QImage(kJade).size());
}

void CSelectButtonScreensTest::finerFileIsDrawn()
{
    QString path = kJade;
    const QImage fine(path.replace(QStringLiteral(".png"), QStringLiteral("@2x.png")));
    QVERIFY(!fine.isNull());
    CSelectButton button;
    button.setIcon(kJade);
    const QSize size = button.m_sizeIcon;
    QCOMPARE(fine.size(), size * kRatio);
    button.resize(size.width() + 20, size.height() + 18 + 20);
    const QImage image = PaintedOn(button);
    for (int y = 0; y < fine.height(); ++y) {
        for (int x = 0; x < fine.width(); ++x) {
            if (fine.pixelColor(x, y).alpha() == 255) {
                COMPARE_COLOR(image, 20 + x, 20 + y, fine.pixelColor(x, y));
            }
        }
    }
}

void CSelectButtonScreensTest::markIsAsLargeAsOnAnyScreen()
{
    QString path = kMark;
    const QImage fine(path.replace(QStringLiteral(".png"), QStringLiteral("@2x.png")));
    QVERIFY(!fine.isNull());
    CSelectButton button;
    button.resize(100, 80);
    button.setChecked(true);
    const QImage image = PaintedOn(button);
    int solid = 0;
    for (int y = 0; y < fine.height(); ++y) {
        for (int x = 0; x < fine.width(); ++x) {
            if (fine.pixelColor(x, y).alpha() == 255) {
                COMPARE_COLOR(image, 200 - fine.width() + x, y, fine.pixelColor(x, y));
                ++solid;
            }
        }
    }
    QVERIFY(solid > 0);
}

int main(int argc, char* argv[])
{
    TestEnvironment::PrepareProcess();
    TestEnvironment::PrepareScreens({{QRect(0, 0, 1600, 1200), kRatio}});
    QApplication app(argc, argv);
    const TestEnvironment environment;
    CSelectButtonScreensTest test;
    return QTest::qExec(&test, argc, argv);
}
#include "CSelectButtonScreensTest.moc"
