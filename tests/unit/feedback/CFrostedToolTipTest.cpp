#include <CustomControls/feedback/CFrostedToolTip.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QPropertyAnimation>
#include <QSet>

class CFrostedToolTipTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructionSetsWindowAndLabel();
    void noiseIsGreyWithFaintAlphas();
    void noiseDiffersFromTipToTip();
    void paintsFillNoiseAndBorder();
    void labelsAreOneSmallerThanTheTip();
    void showFadesIn();
    void hideFadesOutAndDeletes();
    void hideDuringTheFadeInWins();
    void hidingTwiceIsHarmless();
    void closeDeletes();
    void deletionDuringAFadeIsHarmless();
    void anyTextIsHarmless_data();
    void anyTextIsHarmless();
};

void CFrostedToolTipTest::constructionSetsWindowAndLabel()
{
    QWidget parent;
    const CFrostedToolTip tip(QStringLiteral("生成G代码"), &parent);
    QCOMPARE(tip.parentWidget(), &parent);
    QCOMPARE(tip.windowFlags(), Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    QVERIFY(tip.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(tip.testAttribute(Qt::WA_DeleteOnClose));
    QCOMPARE(tip.testAttribute(Qt::WA_NoSystemBackground), !CFrostedToolTip::isCompositionEnabled());
    QCOMPARE(tip.styleSheet(), QStringLiteral("CFrostedToolTip { background: rgba(24, 24, 24, 0);}"));
    const auto labels = tip.findChildren<QLabel*>();
    QCOMPARE(labels.size(), 1);
    QCOMPARE(labels.first()->text(), QStringLiteral("生成G代码"));
    QCOMPARE(labels.first()->styleSheet(), QStringLiteral("color: rgba(238, 238, 238, 255);background: transparent;"
                                                          "padding: 2px;border:none;"));
    QCOMPARE(labels.first()->alignment(), Qt::AlignLeft);
    QCOMPARE(labels.first()->font(), FontCn_13);
    QVERIFY(qobject_cast<QHBoxLayout*>(tip.layout()));
    QCOMPARE(tip.layout()->contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(tip.size(), labels.first()->sizeHint() + QSize(20, 20));
}

void CFrostedToolTipTest::noiseIsGreyWithFaintAlphas()
{
    QSet<int> alphas;
    for (int round = 0; round < 20; ++round) {
        const CFrostedToolTip tip(QStringLiteral("x"), nullptr);
        QCOMPARE(tip.m_imgNoise.size(), QSize(8, 8));
        QCOMPARE(tip.m_imgNoise.format(), QImage::Format_ARGB32);
        for (int y = 0; y < 8; ++y) {
            for (int x = 0; x < 8; ++x) {
                const QRgb pixel = tip.m_imgNoise.pixel(x, y);
                QCOMPARE(pixel & 0xffffffu, 0x9b9b9bu);
                alphas.insert(qAlpha(pixel));
            }
        }
    }
    // 1280 pixels: that one of ten values is missing happens once in 10^57 runs.
    QCOMPARE(alphas, QSet<int>({0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
}

void CFrostedToolTipTest::noiseDiffersFromTipToTip()
{
    const CFrostedToolTip one(QStringLiteral("x"), nullptr);
    const CFrostedToolTip other(QStringLiteral("x"), nullptr);
    QVERIFY(one.m_imgNoise != other.m_imgNoise);
}

void CFrostedToolTipTest::paintsFillNoiseAndBorder()
{
    CFrostedToolTip tip(QString(), nullptr);
    tip.resize(60, 40);
    tip.m_imgNoise.fill(qRgba(0x9b, 0x9b, 0x9b, 9));
    const auto paint = [&tip] {
        QImage image(tip.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        tip.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        return image;
    };
    const QImage grainy = paint();
    tip.m_imgNoise.fill(Qt::transparent);
    const QImage plain = paint();

    const QColor fill = plain.pixelColor(30, 20);
    QCOMPARE(fill.alpha(), 220);
    QVERIFY(qAbs(fill.red() - 24) <= 1 && qAbs(fill.green() - 24) <= 1 && qAbs(fill.blue() - 24) <= 1);
    QVERIFY(grainy.pixelColor(30, 20).red() > fill.red());
    QVERIFY(grainy.pixelColor(30, 20).alpha() > 220);
    // The pen's pixels lie half on either side of the outline's whole coordinates.
    const QPoint last = plain.rect().bottomRight();
    QVERIFY(plain.pixelColor(30, 0).red() > fill.red());
    QVERIFY(plain.pixelColor(30, last.y()).red() > fill.red());
    QVERIFY(plain.pixelColor(0, 20).red() > fill.red());
    QVERIFY(plain.pixelColor(last.x(), 20).red() > fill.red());
    QVERIFY(plain.pixelColor(0, 0).alpha() < 128);
    QVERIFY(plain.pixelColor(last).alpha() < 128);
}

void CFrostedToolTipTest::labelsAreOneSmallerThanTheTip()
{
    CFrostedToolTip tip(QStringLiteral("x"), nullptr);
    auto* other = new QLabel(tip.findChild<QLabel*>());
    tip.show();
    tip.resize(120, 70);
    QCOMPARE(tip.findChild<QLabel*>()->size(), QSize(119, 69));
    QCOMPARE(other->size(), QSize(119, 69));
}

void CFrostedToolTipTest::showFadesIn()
{
    CFrostedToolTip tip(QStringLiteral("x"), nullptr);
    tip.show();
    QPointer<QPropertyAnimation> fade = tip.findChild<QPropertyAnimation*>();
    QVERIFY(fade);
    QCOMPARE(fade->propertyName(), QByteArray("windowOpacity"));
    QCOMPARE(fade->duration(), 200);
    QCOMPARE(fade->startValue().toDouble(), 0.0);
    QCOMPARE(fade->endValue().toDouble(), 1.0);
    QCOMPARE(tip.windowOpacity(), 0.0);
    QTRY_COMPARE(tip.windowOpacity(), 1.0);
    QTRY_VERIFY(!fade);
}

void CFrostedToolTipTest::hideFadesOutAndDeletes()
{
    const QPointer<CFrostedToolTip> tip = new CFrostedToolTip(QStringLiteral("x"), nullptr);
    tip->show();
    QTRY_COMPARE(tip->windowOpacity(), 1.0);
    tip->Hide();
    const QPointer<QPropertyAnimation> fade = tip->findChild<QPropertyAnimation*>();
    QVERIFY(fade);
    QCOMPARE(fade->duration(), 200);
    QCOMPARE(fade->startValue().toDouble(), 1.0);
    QCOMPARE(fade->endValue().toDouble(), 0.0);
    QVERIFY(tip->isVisible());
    QTRY_VERIFY(!tip);
}

void CFrostedToolTipTest::hideDuringTheFadeInWins()
{
    const QPointer<CFrostedToolTip> tip = new CFrostedToolTip(QStringLiteral("x"), nullptr);
    tip->show();
    tip->Hide();
    QTRY_VERIFY(!tip);
}

void CFrostedToolTipTest::hidingTwiceIsHarmless()
{
    const QPointer<CFrostedToolTip> tip = new CFrostedToolTip(QStringLiteral("x"), nullptr);
    tip->show();
    tip->Hide();
    tip->Hide();
    QTRY_VERIFY(!tip);
}

void CFrostedToolTipTest::closeDeletes()
{
    const QPointer<CFrostedToolTip> tip = new CFrostedToolTip(QStringLiteral("x"), nullptr);
    tip->show();
    tip->close();
    QTRY_VERIFY(!tip);
}

void CFrostedToolTipTest::deletionDuringAFadeIsHarmless()
{
    auto* tip = new CFrostedToolTip(QStringLiteral("x"), nullptr);
    tip->show();
    delete tip;
    tip = new CFrostedToolTip(QStringLiteral("x"), nullptr);
    tip->show();
    tip->Hide();
    delete tip;
    const QPointer<CFrostedToolTip> other = new CFrostedToolTip(QStringLiteral("x"), nullptr);
    other->Hide();
    QTRY_VERIFY(!other);
}

void CFrostedToolTipTest::anyTextIsHarmless_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("long") << QString(50000, QLatin1Char('x'));
    QTest::newRow("rich") << QStringLiteral("<b>x</b><img src='none'>");
    QTest::newRow("broken") << QStringLiteral("<table><tr><b>");
}

void CFrostedToolTipTest::anyTextIsHarmless()
{
    QFETCH(QString, text);
    CFrostedToolTip tip(text, nullptr);
    QCOMPARE(tip.findChild<QLabel*>()->text(), text);
    tip.show();
    QVERIFY(tip.isVisible());
}

CUSTOMCONTROLS_TEST_MAIN(CFrostedToolTipTest)

#include "CFrostedToolTipTest.moc"
