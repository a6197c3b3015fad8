#include <CustomControls/tables/CFileNameDelegate.h>

#include <tests/support/TestMain.h>

#include <QPainter>
#include <QStandardItemModel>

namespace {

QRect BoundsOf(const QImage& image, const std::function<bool(const QColor&)>& counts)
{
    QRect bounds;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (counts(image.pixelColor(x, y))) {
                bounds |= QRect(x, y, 1, 1);
            }
        }
    }
    return bounds;
}

const QColor kPaper(0, 60, 0);

bool IsBlue(const QColor& color)
{
    return color == QColor(Qt::blue);
}

bool IsReddish(const QColor& color)
{
    return color.red() > 60 && color.blue() < 60 && color.green() < 100;
}

bool IsWhitish(const QColor& color)
{
    return color.red() > 60 && color.blue() > 60;
}

} // namespace

class CFileNameDelegateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void neverEdits();
    void iconStandsAtTheViewsLeftWhateverTheCell();
    void textBesideAnIconStartsAtThirtyTwo();
    void textWithoutIconKeepsSevenPixelsOnEachSide();
    void textIsCentredInTwentyFourPixels();
    void selectedTextIsWhiteAndNothingElseChanges();
    void elideModeTakesEffectAtTheNextPaint();
    void brushColorsTheText();
    void rowWithoutFontAndColorDoesNotFail();
    void delegateTypeIsStoredOnly();
    void invalidIndexLooksAsUsual();
    void narrowCellDoesNotFail();
    void painterKeepsItsState();

private:
    QImage Paint(const QRect& cell, QStyle::State state = QStyle::State_Enabled);

    QStandardItemModel m_model{1, 1};
    std::unique_ptr<CFileNameDelegate> m_pDelegate;
};

void CFileNameDelegateTest::init()
{
    m_pDelegate = std::make_unique<CFileNameDelegate>(nullptr);
    m_model.clear();
    m_model.setRowCount(1);
    m_model.setColumnCount(1);
    QFont font = QApplication::font();
    font.setPixelSize(16);
    m_model.setData(m_model.index(0, 0), font, Qt::FontRole);
    m_model.setData(m_model.index(0, 0), QColor(Qt::red), Qt::ForegroundRole);
    m_model.setData(m_model.index(0, 0), QString(60, QLatin1Char('H')), Qt::DisplayRole);
}

QImage CFileNameDelegateTest::Paint(const QRect& cell, QStyle::State state)
{
    QImage image(320, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(kPaper);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = cell;
    option.state = state;
    m_pDelegate->paint(&painter, option, m_model.index(0, 0));
    return image;
}

void CFileNameDelegateTest::neverEdits()
{
    QWidget parent;
    QVERIFY(!m_pDelegate->createEditor(&parent, {}, m_model.index(0, 0)));
}

void CFileNameDelegateTest::iconStandsAtTheViewsLeftWhateverTheCell()
{
    QPixmap pixmap(16, 24);
    pixmap.fill(Qt::blue);
    m_model.setData(m_model.index(0, 0), QIcon(pixmap), Qt::DecorationRole);
    QCOMPARE(BoundsOf(Paint(QRect(0, 12, 200, 40)), IsBlue), QRect(10, 12, 16, 24));
    QCOMPARE(BoundsOf(Paint(QRect(50, 12, 200, 40)), IsBlue), QRect(10, 12, 16, 24));

    // A narrow icon leans to the right.
    QPixmap narrow(8, 8);
    narrow.fill(Qt::blue);
    m_model.setData(m_model.index(0, 0), QIcon(narrow), Qt::DecorationRole);
    QCOMPARE(BoundsOf(Paint(QRect(0, 12, 200, 40)), IsBlue), QRect(18, 20, 8, 8));
}

void CFileNameDelegateTest::textBesideAnIconStartsAtThirtyTwo()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::blue);
    m_model.setData(m_model.index(0, 0), QIcon(pixmap), Qt::DecorationRole);
    // The right edge too is measured from the view's left: 199 - 7, for both cells.
    for (const int left : {0, 50}) {
        const QRect text = BoundsOf(Paint(QRect(left, 12, 200, 24)), IsReddish);
        QVERIFY(text.left() >= 32 && text.left() <= 35);
        QVERIFY(text.right() <= 192 && text.right() > 150);
    }
}

void CFileNameDelegateTest::textWithoutIconKeepsSevenPixelsOnEachSide()
{
    const QRect text = BoundsOf(Paint(QRect(50, 12, 200, 24)), IsReddish);
    QVERIFY(text.left() >= 57 && text.left() <= 60);
    QVERIFY(text.right() <= 242 && text.right() > 200);
}

void CFileNameDelegateTest::textIsCentredInTwentyFourPixels()
{
    m_model.setData(m_model.index(0, 0), QStringLiteral("HHH"), Qt::DisplayRole);
    const QRect low = BoundsOf(Paint(QRect(0, 12, 200, 24)), IsReddish);
    QVERIFY(!low.isEmpty());
    QVERIFY(qAbs(low.center().y() - 24) <= 3);
    // A higher row does not move it.
    QCOMPARE(BoundsOf(Paint(QRect(0, 12, 200, 60)), IsReddish), low);
}

void CFileNameDelegateTest::selectedTextIsWhiteAndNothingElseChanges()
{
    const QRect cell(0, 12, 200, 24);
    const QImage plain = Paint(cell);
    const QImage selected = Paint(cell, QStyle::State_Enabled | QStyle::State_Selected | QStyle::State_HasFocus);
    QVERIFY(!BoundsOf(plain, IsReddish).isEmpty());
    QVERIFY(BoundsOf(plain, IsWhitish).isEmpty());
    QVERIFY(BoundsOf(selected, IsReddish).isEmpty());
    QVERIFY(!BoundsOf(selected, IsWhitish).isEmpty());
    QCOMPARE(selected.pixelColor(2, 14), kPaper);
}

void CFileNameDelegateTest::elideModeTakesEffectAtTheNextPaint()
{
    const QRect cell(0, 12, 200, 24);
    m_model.setData(m_model.index(0, 0), QString(60, QLatin1Char(' ')) + QString(60, QLatin1Char('H')),
                    Qt::DisplayRole);
    const QImage right = Paint(cell);
    m_pDelegate->SetElideMode(Qt::ElideRight);
    QCOMPARE(Paint(cell), right);
    m_pDelegate->SetElideMode(Qt::ElideLeft);
    const QImage left = Paint(cell);
    m_pDelegate->SetElideMode(Qt::ElideMiddle);
    const QImage middle = Paint(cell);
    QVERIFY(right != left);
    QVERIFY(right != middle);
    QVERIFY(left != middle);
}

void CFileNameDelegateTest::brushColorsTheText()
{
    const QRect cell(0, 12, 200, 24);
    const QImage colored = Paint(cell);
    m_model.setData(m_model.index(0, 0), QBrush(Qt::red), Qt::ForegroundRole);
    QCOMPARE(Paint(cell), colored);
}

void CFileNameDelegateTest::rowWithoutFontAndColorDoesNotFail()
{
    m_model.setData(m_model.index(0, 0), QVariant(), Qt::FontRole);
    m_model.setData(m_model.index(0, 0), QVariant(), Qt::ForegroundRole);
    const QImage image = Paint(QRect(0, 12, 200, 24));
    QVERIFY(!BoundsOf(image, [](const QColor& c) { return c.value() < 30; }).isEmpty());
}

void CFileNameDelegateTest::delegateTypeIsStoredOnly()
{
    const QRect cell(0, 12, 200, 24);
    const QImage before = Paint(cell);
    QVERIFY(!m_pDelegate->m_bDelegateType);
    m_pDelegate->SetDelegateType(true);
    QVERIFY(m_pDelegate->m_bDelegateType);
    QCOMPARE(Paint(cell), before);
}

void CFileNameDelegateTest::invalidIndexLooksAsUsual()
{
    QImage ours(100, 40, QImage::Format_ARGB32_Premultiplied);
    ours.fill(kPaper);
    QImage usual = ours;
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 100, 24);
    option.state = QStyle::State_Enabled | QStyle::State_Selected;
    {
        QPainter painter(&ours);
        m_pDelegate->paint(&painter, option, QModelIndex());
    }
    {
        QPainter painter(&usual);
        QStyledItemDelegate().paint(&painter, option, QModelIndex());
    }
    QCOMPARE(ours, usual);
}

void CFileNameDelegateTest::narrowCellDoesNotFail()
{
    for (const QRect& cell : {QRect(0, 0, 5, 5), QRect(0, 0, 0, 0), QRect(10, 10, -5, -5)}) {
        QCOMPARE(Paint(cell).size(), QSize(320, 80));
    }
}

void CFileNameDelegateTest::painterKeepsItsState()
{
    QImage image(320, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    const QPen pen = painter.pen();
    const QFont font = painter.font();
    QStyleOptionViewItem option;
    option.rect = QRect(0, 0, 200, 24);
    m_pDelegate->paint(&painter, option, m_model.index(0, 0));
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.font(), font);
}

CUSTOMCONTROLS_TEST_MAIN(CFileNameDelegateTest)
#include "CFileNameDelegateTest.moc"
