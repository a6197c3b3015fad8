#include <CustomControls/machine/CVelmarSelectBox.h>

#include "ui_CVelmarSelectBox.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

namespace {

const QString GreenSheet = QStringLiteral(
    "QPushButton{\ncolor:rgb(255,255,255);\nbackground:rgb(24,133,83);\nborder-radius:4px;\noutline:none;\n}\n"
    "QPushButton:hover{\ncolor:rgb(255,255,255);\nbackground:rgb(24,133,83);\nborder-radius:4px;\noutline:none;\n}\n"
    "QPushButton:pressed{\ncolor:rgb(255,255,255);\nbackground:rgb(24,133,83);\nborder-radius:4px;\noutline:none;\n}");

class ConfirmBox : public CVelmarSelectBox
{
public:
    using CVelmarSelectBox::CVelmarSelectBox;
    int confirms = 0;

protected:
    void SlotConfirm() override { ++confirms; }
};

void VerifyMargins(const QLayout* layout, const QMargins& margins)
{
    QCOMPARE(layout->contentsMargins(), margins);
}

} // namespace

class CVelmarSelectBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void formStandsAsDrawn();
    void styleSheetsAreExact_data();
    void styleSheetsAreExact();
    void fontsAreTheProducts();
    void keepsAnObjectNameThatItHas();
    void boxInfoSetsIconTitleAndCaption();
    void childrenStackInTheMainArea();
    void hiddenConfirmStripStaysHidden();
    void closeButtonHidesAndComesBack();
    void baseSizeIsFixed();
    void emptyHintHidesButKeepsItsText();
    void titleSizeIsThatOfTheTitleBar();
    void confirmButtonConfirmsAndStaysOpen();
    void closingDeletes_data();
    void closingDeletes();
    void pressOnTitleTextDragsTheShell();
    void closeButtonStartsNoDrag();
};

void CVelmarSelectBoxTest::init()
{
    // What the offscreen platform cannot do is its own affair; any other warning is ours.
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
}

void CVelmarSelectBoxTest::formStandsAsDrawn()
{
    CVelmarSelectBox box(nullptr);
    const Ui::CVelmarSelectBox* ui = box.ui;
    QCOMPARE(box.objectName(), QStringLiteral("CVelmarSelectBox"));
    QCOMPARE(box.size(), QSize(320, 400));
    QCOMPARE(box.layout(), ui->verticalLayout);
    VerifyMargins(ui->verticalLayout, {0, 0, 0, 0});
    QCOMPARE(ui->verticalLayout->spacing(), 0);
    VerifyMargins(ui->verticalLayout_2, {1, 1, 1, 1});
    QCOMPARE(ui->verticalLayout_2->spacing(), 0);
    QCOMPARE(ui->verticalLayout_2->itemAt(0)->widget(), ui->m_widgetTitle);
    QCOMPARE(ui->verticalLayout_2->itemAt(1)->widget(), ui->m_widgetMain);
    QCOMPARE(ui->verticalLayout_2->itemAt(2)->widget(), ui->m_widgetBtn);
    QCOMPARE(ui->m_widgetTitle->minimumSize(), QSize(0, 32));
    QCOMPARE(ui->m_widgetTitle->maximumSize(), QSize(QWIDGETSIZE_MAX, 32));
    VerifyMargins(ui->horizontalLayout, {10, 0, 10, 0});
    QCOMPARE(ui->horizontalLayout->itemAt(0)->widget(), ui->m_labelBoxIcon);
    QCOMPARE(ui->horizontalLayout->itemAt(1)->widget(), ui->m_labelBoxName);
    QCOMPARE(ui->horizontalLayout->itemAt(2)->widget(), ui->m_labelHint);
    const QSpacerItem* spacer = ui->horizontalLayout->itemAt(3)->spacerItem();
    QVERIFY(spacer != nullptr);
    QCOMPARE(spacer->sizeHint(), QSize(40, 20));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(ui->horizontalLayout->itemAt(4)->widget(), ui->m_btnClose);
    QCOMPARE(ui->m_labelBoxIcon->minimumSize(), QSize(16, 16));
    QCOMPARE(ui->m_labelBoxIcon->maximumSize(), QSize(16, 16));
    QCOMPARE(ui->m_labelBoxName->text(), QStringLiteral("添加毛坯"));
    QVERIFY(ui->m_labelHint->text().isEmpty());
    QVERIFY(ui->m_labelHint->isHidden());
    QCOMPARE(ui->m_btnClose->minimumSize(), QSize(30, 30));
    QCOMPARE(ui->m_btnClose->maximumSize(), QSize(30, 30));
    QCOMPARE(ui->m_btnClose->cursor().shape(), Qt::PointingHandCursor);
    QVERIFY(ui->m_btnClose->text().isEmpty());
    VerifyMargins(ui->verticalLayout_4, {1, 1, 1, 1});
    QCOMPARE(ui->verticalLayout_4->count(), 0);
    QCOMPARE(ui->m_widgetBtn->minimumSize(), QSize(0, 55));
    QCOMPARE(ui->m_widgetBtn->maximumSize(), QSize(QWIDGETSIZE_MAX, 55));
    VerifyMargins(ui->verticalLayout_3, {24, 0, 24, 23});
    QCOMPARE(ui->m_btnConfirm->minimumHeight(), 32);
    QCOMPARE(ui->m_btnConfirm->maximumHeight(), 32);
    QCOMPARE(ui->m_btnConfirm->cursor().shape(), Qt::PointingHandCursor);
    QCOMPARE(ui->m_btnConfirm->text(), QStringLiteral("添加"));
    QVERIFY(box.testAttribute(Qt::WA_DeleteOnClose));
}

void CVelmarSelectBoxTest::styleSheetsAreExact_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("sheet");
    const auto row = [](const char* name, const QString& sheet) {
        QTest::newRow(name) << QString::fromLatin1(name) << sheet;
    };
    row("widget", QStringLiteral("QWidget#widget\n{\nborder:1px solid rgb(187,187,187);\n\n}"));
    row("m_widgetTitle", QStringLiteral("QWidget#m_widgetTitle\n{\nbackground-color:rgb(232,232,232);\n"
                                        "border-bottom:1px solid rgb(187,187,187);\n}"));
    row("m_labelBoxIcon", QString());
    row("m_labelHint", QStringLiteral("color:#17a061;"));
    row("m_btnClose", QStringLiteral("QPushButton{border:none;image: url(:/icon/ico_current_pop_close_nor.png);}\n"
                                     "QPushButton:hover{image: url(:/icon/ico_current_pop_close_hover.png);}"));
    row("m_widgetMain", QStringLiteral("QWidget#m_widgetMain\n{\nbackground-color:rgb(246,246,246);\n\n}"));
    row("m_widgetBtn", QStringLiteral("QWidget#m_widgetBtn\n{\nbackground-color:rgb(246,246,246);\n}"));
    row("m_btnConfirm", GreenSheet);
}

void CVelmarSelectBoxTest::styleSheetsAreExact()
{
    QFETCH(QString, name);
    QFETCH(QString, sheet);
    const CVelmarSelectBox box(nullptr);
    const auto* widget = box.findChild<QWidget*>(name);
    QVERIFY(widget != nullptr);
    QCOMPARE(widget->styleSheet(), sheet);
}

void CVelmarSelectBoxTest::fontsAreTheProducts()
{
    CVelmarSelectBox box(nullptr);
    QCOMPARE(box.ui->m_labelBoxName->font(), FontCnMedium_14);
    QCOMPARE(box.ui->m_btnConfirm->font(), FontCnMedium_14);
    QCOMPARE(box.ui->m_labelHint->font(), FontCn_12);
}

void CVelmarSelectBoxTest::keepsAnObjectNameThatItHas()
{
    CVelmarSelectBox box(nullptr);
    box.setObjectName(QStringLiteral("mine"));
    Ui::CVelmarSelectBox again;
    QWidget named;
    named.setObjectName(QStringLiteral("mine"));
    again.setupUi(&named);
    QCOMPARE(named.objectName(), QStringLiteral("mine"));
}

void CVelmarSelectBoxTest::boxInfoSetsIconTitleAndCaption()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("icon one.png"));
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(path));

    CVelmarSelectBox box(nullptr);
    box.SetBoxInfo(path, QStringLiteral("title"), QStringLiteral("go"));
    const QPixmap pixmap = box.ui->m_labelBoxIcon->pixmap(Qt::ReturnByValue);
    QCOMPARE(pixmap.size(), QSize(16, 16));
    QCOMPARE(pixmap.toImage().pixelColor(8, 8), QColor(Qt::red));
    QCOMPARE(box.ui->m_labelBoxName->text(), QStringLiteral("title"));
    QCOMPARE(box.ui->m_btnConfirm->text(), QStringLiteral("go"));

    box.SetBoxInfo(QStringLiteral(":/none.png"), QString(), QString());
    QVERIFY(box.ui->m_labelBoxIcon->pixmap(Qt::ReturnByValue).isNull());
    QVERIFY(box.ui->m_labelBoxName->text().isEmpty());
    QVERIFY(box.ui->m_btnConfirm->text().isEmpty());
}

void CVelmarSelectBoxTest::childrenStackInTheMainArea()
{
    CVelmarSelectBox box(nullptr);
    auto* first = new QWidget;
    auto* second = new QWidget;
    box.SetChildUI(first);
    box.SetChildUI(second);
    box.SetChildUI(nullptr);
    QCOMPARE(box.ui->verticalLayout_4->count(), 2);
    QCOMPARE(box.ui->verticalLayout_4->itemAt(0)->widget(), first);
    QCOMPARE(box.ui->verticalLayout_4->itemAt(1)->widget(), second);
    QCOMPARE(box.ui->verticalLayout_4->stretch(0), 0);
    QCOMPARE(box.ui->verticalLayout_4->itemAt(0)->alignment(), Qt::Alignment());
    QCOMPARE(first->parentWidget(), box.ui->m_widgetMain);
}

void CVelmarSelectBoxTest::hiddenConfirmStripStaysHidden()
{
    CVelmarSelectBox box(nullptr);
    box.SetConfirmBtnHide(false);
    QVERIFY(!box.ui->m_widgetBtn->isHidden());
    box.SetConfirmBtnHide(true);
    QVERIFY(box.ui->m_widgetBtn->isHidden());
    box.SetConfirmBtnHide(false);
    QVERIFY(box.ui->m_widgetBtn->isHidden());
}

void CVelmarSelectBoxTest::closeButtonHidesAndComesBack()
{
    CVelmarSelectBox box(nullptr);
    box.SetCloseBtnHide(true);
    QVERIFY(box.ui->m_btnClose->isHidden());
    box.SetCloseBtnHide(false);
    QVERIFY(!box.ui->m_btnClose->isHidden());
}

void CVelmarSelectBoxTest::baseSizeIsFixed()
{
    CVelmarSelectBox box(nullptr);
    box.SetBaseSize(410, 333);
    QCOMPARE(box.minimumSize(), QSize(410, 333));
    QCOMPARE(box.maximumSize(), QSize(410, 333));
    QCOMPARE(box.size(), QSize(410, 333));
}

void CVelmarSelectBoxTest::emptyHintHidesButKeepsItsText()
{
    CVelmarSelectBox box(nullptr);
    box.SetHintText(QStringLiteral("hint"));
    QVERIFY(!box.ui->m_labelHint->isHidden());
    QCOMPARE(box.ui->m_labelHint->text(), QStringLiteral("hint"));
    box.SetHintText(QString());
    QVERIFY(box.ui->m_labelHint->isHidden());
    QCOMPARE(box.ui->m_labelHint->text(), QStringLiteral("hint"));
}

void CVelmarSelectBoxTest::titleSizeIsThatOfTheTitleBar()
{
    CVelmarSelectBox box(nullptr);
    box.SetBaseSize(410, 300);
    box.ensurePolished();
    QCOMPARE(box.GetTitleSize(), box.ui->m_widgetTitle->size());
    box.setAttribute(Qt::WA_DeleteOnClose, false);
    box.show();
    QCOMPARE(box.GetTitleSize(), QSize(408, 32));
}

void CVelmarSelectBoxTest::confirmButtonConfirmsAndStaysOpen()
{
    ConfirmBox box(nullptr);
    box.setAttribute(Qt::WA_DeleteOnClose, false);
    box.show();
    QTest::mouseClick(box.ui->m_btnConfirm, Qt::LeftButton);
    QCOMPARE(box.confirms, 1);
    QVERIFY(box.isVisible());
    QTest::keyClick(&box, Qt::Key_Enter);
    QCOMPARE(box.confirms, 2);
}

void CVelmarSelectBoxTest::closingDeletes_data()
{
    QTest::addColumn<QString>("way");
    QTest::newRow("close button") << QStringLiteral("button");
    QTest::newRow("escape") << QStringLiteral("escape");
    QTest::newRow("escape with the button hidden") << QStringLiteral("hidden");
    QTest::newRow("close") << QStringLiteral("close");
}

void CVelmarSelectBoxTest::closingDeletes()
{
    QFETCH(QString, way);
    const QPointer<CVelmarSelectBox> box = new CVelmarSelectBox(nullptr);
    box->show();
    if (way == QStringLiteral("button")) {
        QTest::mouseClick(box->ui->m_btnClose, Qt::LeftButton);
    } else if (way == QStringLiteral("close")) {
        box->close();
    } else {
        box->SetCloseBtnHide(way == QStringLiteral("hidden"));
        QTest::keyClick(box, Qt::Key_Escape);
    }
    QVERIFY(box);
    QVERIFY(!box->isVisible());
    QTRY_VERIFY(!box);
}

void CVelmarSelectBoxTest::pressOnTitleTextDragsTheShell()
{
    CVelmarSelectBox box(nullptr);
    box.setAttribute(Qt::WA_DeleteOnClose, false);
    box.show();
    QTest::mousePress(box.ui->m_labelBoxName, Qt::LeftButton);
    QVERIFY(box.m_bDragging);
    QTest::mouseRelease(box.ui->m_labelBoxName, Qt::LeftButton);
    QVERIFY(!box.m_bDragging);
}

void CVelmarSelectBoxTest::closeButtonStartsNoDrag()
{
    CVelmarSelectBox box(nullptr);
    box.setAttribute(Qt::WA_DeleteOnClose, false);
    box.show();
    QTest::mousePress(box.ui->m_btnClose, Qt::LeftButton);
    QVERIFY(!box.m_bDragging);
    QTest::mouseRelease(box.ui->m_btnClose, Qt::LeftButton, {}, QPoint(-5, -5));
}

CUSTOMCONTROLS_TEST_MAIN(CVelmarSelectBoxTest)
#include "CVelmarSelectBoxTest.moc"
