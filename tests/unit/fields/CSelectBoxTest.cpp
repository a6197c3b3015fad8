#include "ui_CSelectBox.h"
#include <CustomControls/fields/CSelectBox.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CHintTextToolTip.h>

#include <tests/support/Painted.h>
#include <tests/support/TestMain.h>

#include <QPointer>
#include <QSignalSpy>

namespace {

const QString kPlain = QStringLiteral("\n            color:rgb(0,0,0);\n        ");
const QString kWithBar =
    QStringLiteral("\n            border-left:4px solid rgb(61,153,88);\n            padding-left:8px;\n            "
                   "color:rgb(0,0,0);\n        ");

} // namespace

class CSelectBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formIsAsDesigned();
    void constructorSetsEverythingSilently_data();
    void constructorSetsEverythingSilently();
    void switchSignalsEachChange();
    void clickOnTheSwitchSignals();
    void switchThatCannotBeCheckedStaysOff();
    void hintHidesAndShowsTheMark();
    void newHintReplacesTheNote();
    void hintShowsOnAClick();
    void barStandsLeftOfTheCaption();
    void captionChanges();
    void receiverMayDeleteTheBoxLater();
    void deletedBoxTakesItsNoteAlong();
};

void CSelectBoxTest::formIsAsDesigned()
{
    QWidget form;
    Ui::CSelectBox ui;
    ui.setupUi(&form);
    QCOMPARE(form.objectName(), QStringLiteral("CSelectBox"));
    QCOMPARE(form.size(), QSize(223, 31));
    QCOMPARE(form.layout(), ui.horizontalLayout);
    QCOMPARE(ui.horizontalLayout->contentsMargins(), QMargins());
    QCOMPARE(ui.horizontalLayout->count(), 4);
    QCOMPARE(ui.horizontalLayout->itemAt(0)->widget(), ui.labelBox);
    QCOMPARE(ui.horizontalLayout->itemAt(1)->widget(), ui.hintButton);
    QSpacerItem* spacer = ui.horizontalLayout->itemAt(2)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(40, 20));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(ui.horizontalLayout->itemAt(3)->widget(), ui.btnBox);
    QCOMPARE(ui.hintButton->minimumSize(), QSize(12, 12));
    QCOMPARE(ui.hintButton->maximumSize(), QSize(12, 12));
    QCOMPARE(ui.hintButton->iconSize(), QSize(12, 12));
    QCOMPARE(ui.hintButton->styleSheet(),
             QStringLiteral("QPushButton {\n    border: none;\n    background: transparent;\n    border-image: "
                            "url(:/icon/gcode/ico_gcode_pop_details_nor.png);\n}\n\nQPushButton:hover {\n    "
                            "border-image: url(:/icon/gcode/ico_gcode_pop_details_hvoer.png);\n}\n"));
    QCOMPARE(ui.btnBox->minimumSize(), QSize(42, 22));
    QCOMPARE(ui.btnBox->maximumSize(), QSize(42, 22));
    QCOMPARE(ui.btnBox->cursor().shape(), Qt::PointingHandCursor);
    QVERIFY(ui.btnBox->isCheckable());
    QVERIFY(ui.btnBox->isChecked());
    QVERIFY(ui.btnBox->text().isEmpty());
    QCOMPARE(ui.btnBox->styleSheet(),
             QStringLiteral("QPushButton {\n    image: url(:/icon/gcode/img_check_off.png);\n    border:none;\n    "
                            "outline:none;\n}\n\nQPushButton:checked {\n    image: "
                            "url(:/icon/gcode/img_check_on.png);\n    border:none;\n    outline:none;\n}\n"));
}

void CSelectBoxTest::constructorSetsEverythingSilently_data()
{
    QTest::addColumn<bool>("checked");
    QTest::newRow("on") << true;
    QTest::newRow("off") << false;
}

void CSelectBoxTest::constructorSetsEverythingSilently()
{
    QFETCH(bool, checked);
    QWidget parent;
    auto* box = new CSelectBox(QStringLiteral("真空吸附"), checked, QStringLiteral("说明"), &parent);
    QCOMPARE(box->parentWidget(), &parent);
    QCOMPARE(box->IsChecked(), checked);
    QCOMPARE(box->ui->labelBox->text(), QStringLiteral("真空吸附"));
    QCOMPARE(box->ui->labelBox->styleSheet(), kPlain);
    QCOMPARE(box->ui->labelBox->font(), FontCnMedium_14);
    QCOMPARE(box->ui->hintButton->font(), FontCn_12);
    QVERIFY(!box->ui->hintButton->isHidden());
}

void CSelectBoxTest::switchSignalsEachChange()
{
    CSelectBox box(QString(), false, QString(), nullptr);
    QSignalSpy spy(&box, &CSelectBox::signalSelectBoxToggled);
    box.SetChecked(false);
    QCOMPARE(spy.size(), 0);
    box.SetChecked(true);
    QCOMPARE(spy.takeFirst(), QList<QVariant>{true});
    QVERIFY(box.IsChecked());
    box.SetChecked(true);
    QCOMPARE(spy.size(), 0);
    box.SetChecked(false);
    QCOMPARE(spy.takeFirst(), QList<QVariant>{false});
    QVERIFY(!box.IsChecked());
}

void CSelectBoxTest::clickOnTheSwitchSignals()
{
    CSelectBox box(QString(), true, QString(), nullptr);
    QSignalSpy spy(&box, &CSelectBox::signalSelectBoxToggled);
    QTest::mouseClick(box.ui->btnBox, Qt::LeftButton);
    QCOMPARE(spy.takeFirst(), QList<QVariant>{false});
    QTest::mouseClick(box.ui->btnBox, Qt::LeftButton);
    QCOMPARE(spy.takeFirst(), QList<QVariant>{true});
    box.setEnabled(false);
    QTest::mouseClick(box.ui->btnBox, Qt::LeftButton);
    QCOMPARE(spy.size(), 0);
}

void CSelectBoxTest::switchThatCannotBeCheckedStaysOff()
{
    CSelectBox box(QString(), true, QString(), nullptr);
    QSignalSpy spy(&box, &CSelectBox::signalSelectBoxToggled);
    box.SetCheckable(false);
    QVERIFY(!box.IsChecked());
    box.SetChecked(true);
    QVERIFY(!box.IsChecked());
    QTest::mouseClick(box.ui->btnBox, Qt::LeftButton);
    QVERIFY(!box.IsChecked());
    QCOMPARE(spy.size(), 0);
    box.SetCheckable(true);
    box.SetChecked(true);
    QVERIFY(box.IsChecked());
    QCOMPARE(spy.size(), 1);
}

void CSelectBoxTest::hintHidesAndShowsTheMark()
{
    CSelectBox box(QStringLiteral("x"), true, QString(), nullptr);
    QVERIFY(box.ui->hintButton->isHidden());
    box.show();
    QVERIFY(!box.ui->hintButton->isVisible());
    box.SetHintText(QStringLiteral("说明"));
    QVERIFY(box.ui->hintButton->isVisible());
    box.SetHintText(QString());
    QVERIFY(!box.ui->hintButton->isVisible());
    box.SetHintText(QStringLiteral("说明"));
    QVERIFY(box.ui->hintButton->isVisible());
}

void CSelectBoxTest::newHintReplacesTheNote()
{
    CSelectBox box(QStringLiteral("x"), true, QStringLiteral("一"), nullptr);
    CHintButton* mark = box.ui->hintButton;
    const QPointer<CHintToolTip> first = mark->m_pToolTip;
    QVERIFY(first);
    QVERIFY(mark->m_bOwnToolTip);
    box.SetHintText(QStringLiteral("二"));
    QVERIFY(!first);
    QVERIFY(mark->m_bOwnToolTip);
    auto* second = qobject_cast<CHintTextToolTip*>(mark->m_pToolTip);
    QVERIFY(second);
    QCOMPARE(second->m_pLabel->text(), QStringLiteral("二"));
}

void CSelectBoxTest::hintShowsOnAClick()
{
    CSelectBox box(QStringLiteral("x"), true, QStringLiteral("说明"), nullptr);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    QTest::mouseClick(box.ui->hintButton, Qt::LeftButton);
    QVERIFY(box.ui->hintButton->IsToolTipVisible());
    // A note that is replaced while it shows is gone, too.
    box.SetHintText(QStringLiteral("别的"));
    QVERIFY(!box.ui->hintButton->IsToolTipVisible());
}

void CSelectBoxTest::barStandsLeftOfTheCaption()
{
    CSelectBox box(QStringLiteral("x"), true, QString(), nullptr);
    box.show();
    QVERIFY(QTest::qWaitForWindowExposed(&box));
    box.OpenLeftBorder(true);
    QCOMPARE(box.ui->labelBox->styleSheet(), kWithBar);
    const QColor green(61, 153, 88);
    QImage image = Painted::Of(*box.ui->labelBox);
    const int middle = image.height() / 2;
    COMPARE_COLOR(image, 0, middle, green);
    COMPARE_COLOR(image, 3, middle, green);
    COMPARE_COLOR(image, 5, middle, Painted::kGround);
    box.OpenLeftBorder(false);
    QCOMPARE(box.ui->labelBox->styleSheet(), kPlain);
    image = Painted::Of(*box.ui->labelBox);
    QVERIFY(Painted::Extent(image, green).isEmpty());
}

void CSelectBoxTest::captionChanges()
{
    CSelectBox box(QStringLiteral("x"), true, QString(), nullptr);
    box.SetText(QStringLiteral("冷却"));
    QCOMPARE(box.ui->labelBox->text(), QStringLiteral("冷却"));
    box.SetText(QString());
    QCOMPARE(box.ui->labelBox->text(), QString());
}

void CSelectBoxTest::receiverMayDeleteTheBoxLater()
{
    QPointer<CSelectBox> box = new CSelectBox(QStringLiteral("x"), true, QStringLiteral("说明"), nullptr);
    connect(box, &CSelectBox::signalSelectBoxToggled, box, &QObject::deleteLater);
    box->show();
    QTest::mouseClick(box->ui->btnBox, Qt::LeftButton);
    QTRY_VERIFY(!box);
}

void CSelectBoxTest::deletedBoxTakesItsNoteAlong()
{
    auto* box = new CSelectBox(QStringLiteral("x"), true, QStringLiteral("说明"), nullptr);
    const QPointer<CHintToolTip> note = box->ui->hintButton->m_pToolTip;
    QVERIFY(note);
    delete box;
    QVERIFY(!note);
}

CUSTOMCONTROLS_TEST_MAIN(CSelectBoxTest)
#include "CSelectBoxTest.moc"
