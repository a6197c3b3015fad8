#include <CustomControls/buttons/CMultiLineLabel.h>

#include <tests/support/TestMain.h>

#include <QPainter>
#include <QTextOption>

namespace {

QImage Picture(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// What the label is to show: its text in this font, wrapped and centred over the whole label.
QImage Expected(const QLabel& label, const QFont& font)
{
    QImage image(label.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QTextOption option(Qt::AlignCenter);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    painter.setFont(font);
    painter.setPen(label.palette().color(label.foregroundRole()));
    painter.drawText(QRectF(label.rect()), label.text(), option);
    return image;
}

QFont OfPixelSize(QFont font, int pixelSize)
{
    font.setPixelSize(pixelSize);
    return font;
}

bool Fits(const QLabel& label, const QFont& font)
{
    const QRect bounds = QFontMetrics(font).boundingRect(label.rect(), Qt::TextWrapAnywhere, label.text());
    return bounds.width() <= label.width() && bounds.height() <= label.height();
}

QFont LargestFitting(const QLabel& label)
{
    int pixelSize = label.font().pixelSize();
    while (!Fits(label, OfPixelSize(label.font(), pixelSize))) {
        --pixelSize;
    }
    return OfPixelSize(label.font(), pixelSize);
}

QRect InkOf(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixelColor(x, y) != QColor(Qt::white)) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

} // namespace

class CMultiLineLabelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void withoutWrapItIsAPlainLabel();
    void withRoomToSpareTheFontStays();
    void withoutRoomTheLargestFittingFontIsTaken();
    void shrunkenTextIsCentred();
    void fontAndSizeHintStay();
    void changesOfTextSizeAndFontAreFollowed();
    void textThatNeverFitsIsDrawnAtOnePixel();
    void fontInPointsShrinksToo();
    void styleSheetColorsTheText();
    void repaintMeasuresNothing();

private:
    std::unique_ptr<CMultiLineLabel> m_pLabel;
};

void CMultiLineLabelTest::init()
{
    m_pLabel = std::make_unique<CMultiLineLabel>();
    m_pLabel->setFont(OfPixelSize(QApplication::font(), 20));
    m_pLabel->setText(QStringLiteral("Finish all tools"));
    m_pLabel->setWordWrap(true);
    m_pLabel->resize(300, 60);
}

void CMultiLineLabelTest::withoutWrapItIsAPlainLabel()
{
    m_pLabel->setWordWrap(false);
    m_pLabel->resize(40, 20);
    QLabel plain(m_pLabel->text());
    plain.setFont(m_pLabel->font());
    plain.resize(m_pLabel->size());
    QCOMPARE(Picture(*m_pLabel), Picture(plain));
}

void CMultiLineLabelTest::withRoomToSpareTheFontStays()
{
    QVERIFY(Fits(*m_pLabel, m_pLabel->font()));
    QCOMPARE(Picture(*m_pLabel), Expected(*m_pLabel, m_pLabel->font()));
}

void CMultiLineLabelTest::withoutRoomTheLargestFittingFontIsTaken()
{
    m_pLabel->resize(60, 24);
    const QFont font = LargestFitting(*m_pLabel);
    QVERIFY(font.pixelSize() < 20);
    QCOMPARE(Picture(*m_pLabel), Expected(*m_pLabel, font));
}

void CMultiLineLabelTest::shrunkenTextIsCentred()
{
    m_pLabel->setText(QStringLiteral("HHHH"));
    m_pLabel->resize(30, 60);
    const QImage picture = Picture(*m_pLabel);
    const QRect ink = InkOf(picture);
    QVERIFY(!ink.isEmpty());
    QVERIFY(qAbs(ink.center().x() - picture.rect().center().x()) <= 2);
    QVERIFY(qAbs(ink.center().y() - picture.rect().center().y()) <= 4);
}

void CMultiLineLabelTest::fontAndSizeHintStay()
{
    const QFont font = m_pLabel->font();
    const QSize hint = m_pLabel->sizeHint();
    m_pLabel->resize(20, 20);
    Picture(*m_pLabel);
    QCOMPARE(m_pLabel->font(), font);
    QCOMPARE(m_pLabel->sizeHint(), hint);
}

void CMultiLineLabelTest::changesOfTextSizeAndFontAreFollowed()
{
    const QSize narrow(60, 24);
    m_pLabel->resize(narrow);
    const QImage small = Picture(*m_pLabel);
    m_pLabel->resize(300, 60);
    QCOMPARE(Picture(*m_pLabel), Expected(*m_pLabel, m_pLabel->font()));
    m_pLabel->resize(narrow);
    QCOMPARE(Picture(*m_pLabel), small);
    m_pLabel->setText(QStringLiteral("H"));
    QCOMPARE(Picture(*m_pLabel), Expected(*m_pLabel, LargestFitting(*m_pLabel)));
    QVERIFY(Picture(*m_pLabel) != small);
    m_pLabel->setFont(OfPixelSize(m_pLabel->font(), 8));
    QCOMPARE(Picture(*m_pLabel), Expected(*m_pLabel, m_pLabel->font()));
}

void CMultiLineLabelTest::textThatNeverFitsIsDrawnAtOnePixel()
{
    m_pLabel->setText(QString(500, QLatin1Char('H')));
    m_pLabel->resize(2, 2);
    Picture(*m_pLabel);
    QCOMPARE(m_pLabel->m_fontFitted.pixelSize(), 1);
    m_pLabel->setText(QString());
    Picture(*m_pLabel);
}

void CMultiLineLabelTest::fontInPointsShrinksToo()
{
    QFont font = QApplication::font();
    font.setPointSize(30);
    m_pLabel->setFont(font);
    QCOMPARE(m_pLabel->font().pixelSize(), -1);
    m_pLabel->resize(60, 24);
    Picture(*m_pLabel);
    QVERIFY(m_pLabel->m_fontFitted.pixelSize() > 0);
    QVERIFY(Fits(*m_pLabel, m_pLabel->m_fontFitted));
}

void CMultiLineLabelTest::styleSheetColorsTheText()
{
    m_pLabel->setText(QStringLiteral("HHHHHHHHHHHHH"));
    m_pLabel->setStyleSheet(QStringLiteral("color:rgb(255,0,0);background:transparent;"));
    const QImage picture = Picture(*m_pLabel);
    bool red = false;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            red = red || picture.pixelColor(x, y) == QColor(255, 0, 0);
        }
    }
    QVERIFY(red);
}

void CMultiLineLabelTest::repaintMeasuresNothing()
{
    m_pLabel->resize(60, 24);
    Picture(*m_pLabel);
    // A fitted font that only this test knows tells whether it was measured again.
    m_pLabel->m_fontFitted = OfPixelSize(m_pLabel->font(), 3);
    QCOMPARE(Picture(*m_pLabel), Expected(*m_pLabel, m_pLabel->m_fontFitted));
    QCOMPARE(m_pLabel->m_fontFitted.pixelSize(), 3);
}

CUSTOMCONTROLS_TEST_MAIN(CMultiLineLabelTest)
#include "CMultiLineLabelTest.moc"
