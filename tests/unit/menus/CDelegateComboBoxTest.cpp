#include <CustomControls/menus/CDelegateComboBox.h>

#include <tests/support/TestMain.h>

#include <QPainter>
#include <QStandardItemModel>

namespace {

constexpr QRect kCell(10, 10, 100, 24);

QImage Paint(const QModelIndex& index, QStyle::State state)
{
    QImage image(120, 44, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    const QPen pen = painter.pen();
    const QFont font = painter.font();
    QStyleOptionViewItem option;
    option.rect = kCell;
    option.state = state;
    CDelegateComboBox().paint(&painter, option, index);
    // The painter comes back as it was given.
    return painter.pen() == pen && painter.font() == font ? image : QImage();
}

QRect InkOf(const QImage& image)
{
    QRect ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.alpha() > 0 && color.lightness() < 200) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink;
}

} // namespace

class CDelegateComboBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void backgroundTellsTheSelection_data();
    void backgroundTellsTheSelection();
    void textStandsSevenPixelsIn();
    void indexWithoutModelPaintsNoText();
    void anyValueIsPaintedAsText();
    void heightIsTwentyFour();
};

void CDelegateComboBoxTest::backgroundTellsTheSelection_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QColor>("color");
    QTest::newRow("plain") << int(QStyle::State_Enabled) << QColor(255, 255, 255);
    QTest::newRow("selected") << int(QStyle::State_Selected) << QColor(73, 135, 89, 51);
    QTest::newRow("hovered") << int(QStyle::State_MouseOver) << QColor(255, 255, 255);
}

void CDelegateComboBoxTest::backgroundTellsTheSelection()
{
    QFETCH(int, state);
    QFETCH(QColor, color);
    const QImage image = Paint(QModelIndex(), QStyle::State(state));
    QVERIFY(!image.isNull());
    for (const QPoint place : {kCell.topLeft(), kCell.bottomRight(), kCell.center()}) {
        const QColor found = image.pixelColor(place);
        QCOMPARE(found.alpha(), color.alpha());
        // Premultiplied painting rounds.
        QVERIFY(qAbs(found.red() - color.red()) <= 3 && qAbs(found.green() - color.green()) <= 3 &&
                qAbs(found.blue() - color.blue()) <= 3);
    }
    QCOMPARE(image.pixelColor(kCell.left() - 1, kCell.top()).alpha(), 0);
    QCOMPARE(image.pixelColor(kCell.right() + 1, kCell.top()).alpha(), 0);
    QCOMPARE(image.pixelColor(kCell.left(), kCell.bottom() + 1).alpha(), 0);
}

void CDelegateComboBoxTest::textStandsSevenPixelsIn()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem("HHH"));
    const QRect ink = InkOf(Paint(model.index(0, 0), QStyle::State_Enabled));
    QVERIFY(ink.left() >= kCell.left() + 7);
    QVERIFY(ink.left() <= kCell.left() + 7 + 4);
    QVERIFY(qAbs(ink.center().y() - kCell.center().y()) <= 3);
}

void CDelegateComboBoxTest::indexWithoutModelPaintsNoText()
{
    QVERIFY(InkOf(Paint(QModelIndex(), QStyle::State_Enabled)).isEmpty());
}

void CDelegateComboBoxTest::anyValueIsPaintedAsText()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem);
    model.setData(model.index(0, 0), 888, Qt::DisplayRole);
    QVERIFY(!InkOf(Paint(model.index(0, 0), QStyle::State_Enabled)).isEmpty());
    model.setData(model.index(0, 0), QVariant(), Qt::DisplayRole);
    QVERIFY(InkOf(Paint(model.index(0, 0), QStyle::State_Enabled)).isEmpty());
    model.setData(model.index(0, 0), QString(10000, QChar('w')) + "\n\n", Qt::DisplayRole);
    QVERIFY(!Paint(model.index(0, 0), QStyle::State_Enabled).isNull());
}

void CDelegateComboBoxTest::heightIsTwentyFour()
{
    QStandardItemModel model;
    model.appendRow(new QStandardItem("one\ntwo"));
    CDelegateComboBox delegate;
    QStyleOptionViewItem option;
    QCOMPARE(delegate.parent(), nullptr);
    QCOMPARE(delegate.sizeHint(option, model.index(0, 0)).height(), 24);
    QCOMPARE(delegate.sizeHint(option, model.index(0, 0)).width(),
             QStyledItemDelegate().sizeHint(option, model.index(0, 0)).width());
}

CUSTOMCONTROLS_TEST_MAIN(CDelegateComboBoxTest)

#include "CDelegateComboBoxTest.moc"
