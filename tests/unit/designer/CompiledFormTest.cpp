#include "EveryControl.h"
#include "ui_EveryControl.h"

#include <tests/support/TestMain.h>

/** A form with one of each control, compiled by uic. */
class CompiledFormTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void propertiesTakeEffect_data();
    void propertiesTakeEffect();
    void connectionsWork();
    void everyControlShows();
    void retranslatingKeepsTheFont();
    void retranslatingKeepsTheChoice();
    void boxWithoutEntriesTakesNewOnes();
    void minimumTakesALowerMaximumAlong();
    void emptyHintTakesTheNoteAway();
};

void CompiledFormTest::init()
{
    FailOnWarning();
}

void CompiledFormTest::propertiesTakeEffect_data()
{
    AddRowsOfEveryControl();
}

void CompiledFormTest::propertiesTakeEffect()
{
    QWidget form;
    Ui::EveryControl ui;
    ui.setupUi(&form);
    CheckCurrentRow(&form);
}

void CompiledFormTest::connectionsWork()
{
    QWidget form;
    Ui::EveryControl ui;
    ui.setupUi(&form);
    form.show();
    CheckConnections(&form);
}

void CompiledFormTest::everyControlShows()
{
    QWidget form;
    Ui::EveryControl ui;
    ui.setupUi(&form);
    form.show();
    QVERIFY(QTest::qWaitForWindowExposed(&form));
    for (const QWidget* child : form.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        if (child->objectName() == QLatin1String("tabBar")) {
            continue; // without tabs it has no size
        }
        // The combo box's list waits beside the other children until it is opened.
        if (!child->objectName().isEmpty() && child->metaObject()->className() != QByteArray("CVelmarMenu")) {
            QVERIFY2(child->isVisible() && !child->size().isEmpty(), child->metaObject()->className());
        }
    }
    // A caption is painted: its ink stands on the button's own fill.
    const QImage picture = ui.velmarButton->grab().toImage();
    const QColor fill = picture.pixelColor(8, picture.height() / 2);
    bool ink = false;
    for (int x = 8; x < picture.width() - 8; ++x) {
        ink = ink || picture.pixelColor(x, picture.height() / 2) != fill;
    }
    QVERIFY(ink);
}

void CompiledFormTest::retranslatingKeepsTheFont()
{
    QWidget form;
    Ui::EveryControl ui;
    ui.setupUi(&form);
    QFont font(ui.velmarButton->GetButtonTextFont());
    font.setPixelSize(19);
    font.setBold(true);
    ui.velmarButton->SetTextFont(font);
    ui.retranslateUi(&form);
    QCOMPARE(ui.velmarButton->GetButtonTextFont(), font);
}

void CompiledFormTest::retranslatingKeepsTheChoice()
{
    QWidget form;
    Ui::EveryControl ui;
    ui.setupUi(&form);
    ui.comboBox->setCurrentIndex(2);
    ui.retranslateUi(&form);
    QCOMPARE(ui.comboBox->currentText(), QStringLiteral("Wax"));
}

void CompiledFormTest::boxWithoutEntriesTakesNewOnes()
{
    QWidget form;
    Ui::EveryControl ui;
    ui.setupUi(&form);
    ui.comboBox->setProperty("items", QStringList());
    QCOMPARE(ui.comboBox->count(), 0);
    ui.comboBox->setProperty("items", QStringList{QStringLiteral("Jade"), QStringLiteral("Resin")});
    QCOMPARE(ui.comboBox->count(), 2);
    QCOMPARE(ui.comboBox->currentText(), QStringLiteral("Jade"));
    QVERIFY(ui.comboBox->IsItemContained(QStringLiteral("Resin")));
}

void CompiledFormTest::minimumTakesALowerMaximumAlong()
{
    QWidget form;
    Ui::EveryControl ui;
    ui.setupUi(&form);
    ui.textEdit->setProperty("minimum", 200.0);
    QCOMPARE(ui.textEdit->property("maximum").toDouble(), 200.0);
    QCOMPARE(ui.textEdit->GetEditData(), 200.0);
    ui.textEdit->setProperty("maximum", 100.0);
    QCOMPARE(ui.textEdit->property("maximum").toDouble(), 200.0);
}

void CompiledFormTest::emptyHintTakesTheNoteAway()
{
    QWidget form;
    Ui::EveryControl ui;
    ui.setupUi(&form);
    ui.hintButton->setProperty("hintText", QString());
    QCOMPARE(ui.hintButton->property("hintText").toString(), QString());
    ui.hintButton->ShowToolTip(true);
    QVERIFY(!ui.hintButton->IsToolTipVisible());
}

CUSTOMCONTROLS_TEST_MAIN(CompiledFormTest)
#include "CompiledFormTest.moc"
