#include <CustomControls/menus/CTableComboBox.h>

#include <tests/support/TestMain.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <QAbstractItemView>
#include <QPointer>
#include <QStyledItemDelegate>

namespace {

// clang-format off
const QString kSheet = QStringLiteral(R"css(QComboBox{background:#FFFFFF;border:1px solid #cccccc;border-radius:2px;padding-left:6px;}QComboBox::hover{border:1px solid #17a061;}QComboBox::drop-down{width:18px;border-top-right-radius:2px;border-bottom-right-radius:2px;background:#FFFFFF;border:none; image:url(:/icon/ico_current_arrow_down_nor.png);}QComboBox::drop-down:hover{image:url(:/icon/ico_current_arrow_down_nor.png);}QComboBox::disabled{color:#8c979c;}QAbstractItemView{border:1px solid #cccccc;background:#FFFFFF;}QAbstractItemView::item{padding-left:6px;border:none;})css");
// clang-format on

} // namespace

class CTableComboBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wearsItsSheetAndFont();
    void rowsAreTwentyFourPixelsHigh();
    void delegateHasNoParentAndGoesWithTheBox();
    void delegateOfTheHostMayTakeItsPlace();
    void ownersMayGoInAnyOrder();
    void isWhiteWithAGreyBorder();
    void openListPaintsItsRows();
};

void CTableComboBoxTest::wearsItsSheetAndFont()
{
    CTableComboBox box(nullptr);
    QCOMPARE(box.styleSheet(), kSheet);
    QCOMPARE(box.font(), FontCnMedium_13);
    QVERIFY(!box.isEditable());
}

void CTableComboBoxTest::rowsAreTwentyFourPixelsHigh()
{
    CTableComboBox box(nullptr);
    box.addItems({"a", "b"});
    QCOMPARE(box.view()->sizeHintForRow(0), 24);
    QCOMPARE(box.view()->sizeHintForRow(1), 24);
}

void CTableComboBoxTest::delegateHasNoParentAndGoesWithTheBox()
{
    auto* box = new CTableComboBox(nullptr);
    const QPointer<QAbstractItemDelegate> delegate(box->itemDelegate());
    QCOMPARE(delegate->metaObject()->className(), "CDelegateComboBox");
    QCOMPARE(delegate->parent(), nullptr);
    delete box;
    QVERIFY(delegate.isNull());
}

void CTableComboBoxTest::delegateOfTheHostMayTakeItsPlace()
{
    auto* box = new CTableComboBox(nullptr);
    box->setItemDelegate(new QStyledItemDelegate(box));
    box->addItem("a");
    QVERIFY(box->view()->sizeHintForRow(0) > 0);
    delete box;
}

void CTableComboBoxTest::ownersMayGoInAnyOrder()
{
    auto* box = new CTableComboBox(nullptr);
    box->addItem("a");
    delete box->itemDelegate();
    delete box;
    auto* table = new QWidget;
    const QPointer<CTableComboBox> cell(new CTableComboBox(table));
    delete table;
    QVERIFY(cell.isNull());
}

void CTableComboBoxTest::isWhiteWithAGreyBorder()
{
    CTableComboBox box(nullptr);
    box.resize(120, 28);
    const QImage image = box.grab().toImage();
    QCOMPARE(image.pixelColor(60, 0), QColor("#cccccc"));
    QCOMPARE(image.pixelColor(0, 14), QColor("#cccccc"));
    QCOMPARE(image.pixelColor(60, 14), QColor("#FFFFFF"));
}

void CTableComboBoxTest::openListPaintsItsRows()
{
    QWidget window;
    window.resize(400, 300);
    CTableComboBox box(&window);
    box.setGeometry(10, 10, 120, 28);
    box.addItems({"", "", ""});
    box.setCurrentIndex(1);
    window.show();
    box.showPopup();
    QVERIFY(QTest::qWaitForWindowExposed(box.view()->window()));
    const QRect selected = box.view()->visualRect(box.model()->index(1, 0));
    const QRect plain = box.view()->visualRect(box.model()->index(2, 0));
    QCOMPARE(selected.height(), 24);
    const QImage image = box.view()->viewport()->grab().toImage();
    QCOMPARE(image.pixelColor(plain.center()), QColor("#FFFFFF"));
    // Green at alpha 51 over white.
    const QColor tint = image.pixelColor(selected.center());
    QVERIFY2(qAbs(tint.red() - 219) <= 1 && qAbs(tint.green() - 231) <= 1 && qAbs(tint.blue() - 222) <= 1,
             qPrintable(tint.name()));
    box.hidePopup();
}

CUSTOMCONTROLS_TEST_MAIN(CTableComboBoxTest)

#include "CTableComboBoxTest.moc"
