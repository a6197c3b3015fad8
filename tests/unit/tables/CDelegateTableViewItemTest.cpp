#include <CustomControls/tables/CDelegateTableViewItem.h>

#include <tests/support/TestMain.h>

#include <QPainter>
#include <QStandardItemModel>

namespace {

QIcon SolidIcon(const QSize& size, const QColor& off, const QColor& on)
{
    QPixmap pixmap(size);
    QIcon icon;
    pixmap.fill(off);
    icon.addPixmap(pixmap, QIcon::Normal, QIcon::Off);
    pixmap.fill(on);
    icon.addPixmap(pixmap, QIcon::Normal, QIcon::On);
    return icon;
}

// The smallest rectangle around all that was painted in this colour's hue.
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

bool IsBlue(const QColor& color)
{
    return color == QColor(Qt::blue);
}

bool IsReddish(const QColor& color)
{
    return color.red() > color.blue() + 40 && color.red() > color.green() + 40;
}

} // namespace

class CDelegateTableViewItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void neverEdits();
    void iconAndTextMeetAtTheMiddle();
    void loneIconStandsCentredWithinFivePixels();
    void loneTextStandsCentred();
    void emptyCellPaintsNothing();
    void selectionDoesNotShow();
    void iconOnlyStandsInItsFrameAndUsesTheOnLook();
    void iconOnlyCentresASmallIcon();
    void iconOnlyWithoutIconPaintsNothing();
    void brushColorsTheText();
    void cellWithoutFontAndColorDoesNotFail();
    void painterKeepsItsState();
    void otherColumnsLookAsUsual_data();
    void otherColumnsLookAsUsual();
    void modeAsksForNoRepaint();

private:
    QImage Paint(int column, QStyle::State state = QStyle::State_Enabled);

    QStandardItemModel m_model{1, 5};
    CDelegateTableViewItem m_delegate{nullptr};
    const QRect m_cell{20, 10, 201, 40};
};

void CDelegateTableViewItemTest::init()
{
    m_model.clear();
    m_model.setRowCount(1);
    m_model.setColumnCount(5);
    m_delegate.SetDelegateType(false);
    for (int column = 0; column < m_model.columnCount(); ++column) {
        QFont font = QApplication::font();
        font.setPixelSize(20);
        m_model.setData(m_model.index(0, column), font, Qt::FontRole);
        m_model.setData(m_model.index(0, column), QColor(Qt::red), Qt::ForegroundRole);
    }
}

QImage CDelegateTableViewItemTest::Paint(int column, QStyle::State state)
{
    QImage image(260, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    QStyleOptionViewItem option;
    option.rect = m_cell;
    option.state = state;
    option.font = QApplication::font();
    option.palette = QApplication::palette();
    option.decorationSize = QSize(16, 16);
    m_delegate.paint(&painter, option, m_model.index(0, column));
    return image;
}

void CDelegateTableViewItemTest::neverEdits()
{
    QWidget parent;
    QVERIFY(!m_delegate.createEditor(&parent, {}, m_model.index(0, 1)));
}

void CDelegateTableViewItemTest::iconAndTextMeetAtTheMiddle()
{
    const QModelIndex index = m_model.index(0, 1);
    m_model.setData(index, SolidIcon(QSize(16, 16), Qt::blue, Qt::green), Qt::DecorationRole);
    m_model.setData(index, QStringLiteral("HHH"), Qt::DisplayRole);
    const QImage image = Paint(1);
    // Cell 20..220, half of 201 is 100: the icon ends at 220 - 105, the text starts at 20 + 105.
    const QRect icon = BoundsOf(image, IsBlue);
    QCOMPARE(icon.right(), 115);
    QCOMPARE(icon.size(), QSize(16, 16));
    QVERIFY(qAbs(icon.center().y() - m_cell.center().y()) <= 1);
    const QRect text = BoundsOf(image, IsReddish);
    QVERIFY(text.left() >= 125 && text.left() <= 128);
}

void CDelegateTableViewItemTest::loneIconStandsCentredWithinFivePixels()
{
    const QModelIndex index = m_model.index(0, 2);
    m_model.setData(index, SolidIcon(QSize(16, 16), Qt::blue, Qt::green), Qt::DecorationRole);
    QVERIFY(qAbs(BoundsOf(Paint(2), IsBlue).center().x() - m_cell.center().x()) <= 1);

    m_model.setData(index, SolidIcon(QSize(400, 20), Qt::blue, Qt::green), Qt::DecorationRole);
    const QRect wide = BoundsOf(Paint(2), IsBlue);
    QCOMPARE(wide.left(), m_cell.left() + 5);
    QCOMPARE(wide.right(), m_cell.right() - 5);
}

void CDelegateTableViewItemTest::loneTextStandsCentred()
{
    m_model.setData(m_model.index(0, 1), QStringLiteral("HHH"), Qt::DisplayRole);
    const QRect text = BoundsOf(Paint(1), IsReddish);
    QVERIFY(!text.isEmpty());
    QVERIFY(qAbs(text.center().x() - m_cell.center().x()) <= 2);
    QVERIFY(qAbs(text.center().y() - m_cell.center().y()) <= 4);
}

void CDelegateTableViewItemTest::emptyCellPaintsNothing()
{
    QVERIFY(BoundsOf(Paint(1), [](const QColor& c) { return c != QColor(Qt::white); }).isEmpty());
}

void CDelegateTableViewItemTest::selectionDoesNotShow()
{
    m_model.setData(m_model.index(0, 1), QStringLiteral("HHH"), Qt::DisplayRole);
    QCOMPARE(Paint(1, QStyle::State_Enabled | QStyle::State_Selected), Paint(1));
}

void CDelegateTableViewItemTest::iconOnlyStandsInItsFrameAndUsesTheOnLook()
{
    m_delegate.SetDelegateType(true);
    const QModelIndex index = m_model.index(0, 1);
    m_model.setData(index, SolidIcon(QSize(320, 64), Qt::green, Qt::blue), Qt::DecorationRole);
    m_model.setData(index, QStringLiteral("HHH"), Qt::DisplayRole);
    const QImage image = Paint(1);
    QRect frame(0, 0, 160, 32);
    frame.moveCenter(m_cell.center());
    QCOMPARE(BoundsOf(image, IsBlue), frame);
    QVERIFY(BoundsOf(image, IsReddish).isEmpty());
}

void CDelegateTableViewItemTest::iconOnlyCentresASmallIcon()
{
    m_delegate.SetDelegateType(true);
    m_model.setData(m_model.index(0, 2), SolidIcon(QSize(16, 16), Qt::green, Qt::blue), Qt::DecorationRole);
    const QRect icon = BoundsOf(Paint(2), IsBlue);
    QCOMPARE(icon.size(), QSize(16, 16));
    QVERIFY(qAbs(icon.center().x() - m_cell.center().x()) <= 1);
    QVERIFY(qAbs(icon.center().y() - m_cell.center().y()) <= 1);
}

void CDelegateTableViewItemTest::iconOnlyWithoutIconPaintsNothing()
{
    m_delegate.SetDelegateType(true);
    m_model.setData(m_model.index(0, 1), QStringLiteral("HHH"), Qt::DisplayRole);
    QVERIFY(BoundsOf(Paint(1), [](const QColor& c) { return c != QColor(Qt::white); }).isEmpty());
}

void CDelegateTableViewItemTest::brushColorsTheText()
{
    const QModelIndex index = m_model.index(0, 1);
    m_model.setData(index, QStringLiteral("HHH"), Qt::DisplayRole);
    const QImage colored = Paint(1);
    m_model.setData(index, QBrush(Qt::red), Qt::ForegroundRole);
    QCOMPARE(Paint(1), colored);
    QVERIFY(!BoundsOf(colored, IsReddish).isEmpty());
}

void CDelegateTableViewItemTest::cellWithoutFontAndColorDoesNotFail()
{
    const QModelIndex index = m_model.index(0, 1);
    m_model.setData(index, QVariant(), Qt::FontRole);
    m_model.setData(index, QVariant(), Qt::ForegroundRole);
    m_model.setData(index, QStringLiteral("HHH"), Qt::DisplayRole);
    QVERIFY(!BoundsOf(Paint(1), [](const QColor& c) { return c.value() < 128; }).isEmpty());
}

void CDelegateTableViewItemTest::painterKeepsItsState()
{
    m_model.setData(m_model.index(0, 1), QStringLiteral("HHH"), Qt::DisplayRole);
    QImage image(260, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    const QPen pen = painter.pen();
    const QFont font = painter.font();
    QStyleOptionViewItem option;
    option.rect = m_cell;
    m_delegate.paint(&painter, option, m_model.index(0, 1));
    QCOMPARE(painter.pen(), pen);
    QCOMPARE(painter.font(), font);
}

void CDelegateTableViewItemTest::otherColumnsLookAsUsual_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<bool>("iconOnly");
    for (const int column : {0, 3, 4}) {
        QTest::addRow("column %d", column) << column << false;
        QTest::addRow("column %d, icon only", column) << column << true;
    }
}

void CDelegateTableViewItemTest::otherColumnsLookAsUsual()
{
    QFETCH(int, column);
    QFETCH(bool, iconOnly);
    m_delegate.SetDelegateType(iconOnly);
    m_model.setData(m_model.index(0, column), QStringLiteral("HHH"), Qt::DisplayRole);
    const QImage ours = Paint(column);

    QImage usual(ours.size(), ours.format());
    usual.fill(Qt::white);
    QPainter painter(&usual);
    QStyleOptionViewItem option;
    option.rect = m_cell;
    option.state = QStyle::State_Enabled;
    option.font = QApplication::font();
    option.palette = QApplication::palette();
    option.decorationSize = QSize(16, 16);
    QStyledItemDelegate().paint(&painter, option, m_model.index(0, column));
    painter.end();
    QCOMPARE(ours, usual);
    // Text at the left edge: this is not the split cell.
    QVERIFY(BoundsOf(ours, IsReddish).left() < m_cell.left() + 20);
}

void CDelegateTableViewItemTest::modeAsksForNoRepaint()
{
    const QSignalSpy spy(&m_delegate, &QAbstractItemDelegate::sizeHintChanged);
    m_delegate.SetDelegateType(true);
    QVERIFY(m_delegate.m_bIconOnly);
    QCOMPARE(spy.count(), 0);
}

CUSTOMCONTROLS_TEST_MAIN(CDelegateTableViewItemTest)
#include "CDelegateTableViewItemTest.moc"
