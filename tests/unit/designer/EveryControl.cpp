#include "EveryControl.h"

#include <CustomControls/buttons/CVelmarButton.h>
#include <CustomControls/fields/CSelectBox.h>
#include <CustomControls/fields/CTextEdit.h>

#include <QFont>
#include <QProgressBar>
#include <QRegularExpression>
#include <QTest>

void FailOnWarning()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support propagateSizeHints)")));
}

void AddRowsOfEveryControl()
{
    QTest::addColumn<QString>("object");
    QTest::addColumn<QString>("className");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");

    const auto row = [](const char* object, const char* className, const char* property, const QVariant& value) {
        QTest::addRow("%s.%s", className, property)
            << QString::fromLatin1(object) << QString::fromLatin1(className) << QByteArray(property) << value;
    };
    const auto text = [](const char* words) { return QVariant(QString::fromUtf8(words)); };

    row("velmarButton", "CVelmarButton", "text", text("Start"));
    row("velmarButton", "CVelmarButton", "radius", 4);
    row("velmarButton", "CVelmarButton", "chosen", true);
    row("iconButton", "CIconButton", "icon", text(":/icon/img_pop_1.png"));
    row("iconButton", "CIconButton", "text", text("Toolpath"));
    row("selectButton", "CSelectButton", "icon", text(":/icon/img_pop_2.png"));
    row("selectButton", "CSelectButton", "text", text("Jade"));
    row("selectButton", "CSelectButton", "checked", true);
    row("unitButton", "CUnitButton", "text", text("45"));
    row("unitButton", "CUnitButton", "unit", text("°"));
    row("hintButton", "CHintButton", "text", text("Spindle"));
    row("hintButton", "CHintButton", "autoWrap", true);
    row("hintButton", "CHintButton", "hintText", text("Too fast"));
    row("hintButton", "CHintButton", "hoverShow", false);
    row("hintButton", "CHintButton", "positionOffset", QPoint(4, 6));
    row("comboBox", "CComboBox", "items", QStringList{"Steel", "Brass", "Wax"});
    row("comboBox", "CComboBox", "maxItemCount", 3);
    row("comboBox", "CComboBox", "boxSize", QSize(200, 26));
    row("comboBox", "CComboBox", "size", QSize(200, 26));
    row("comboBox", "CComboBox", "currentText", text("Brass"));
    row("tableComboBox", "CTableComboBox", "currentText", text("Finish"));
    row("xCombobox", "CXCombobox", "editable", true);
    row("xCombobox", "CXCombobox", "currentText", text("mm"));
    row("textEdit", "CTextEdit", "name", text("Angle"));
    row("textEdit", "CTextEdit", "unit", text("°"));
    row("textEdit", "CTextEdit", "mainWidth", 110);
    row("textEdit", "CTextEdit", "decimals", 3);
    row("textEdit", "CTextEdit", "minimum", -90.0);
    row("textEdit", "CTextEdit", "maximum", 90.0);
    row("textEdit", "CTextEdit", "defaultValue", 15.0);
    row("textEdit", "CTextEdit", "value", -22.125);
    row("selectBox", "CSelectBox", "text", text("Vacuum"));
    row("selectBox", "CSelectBox", "hintText", text("Mind the table"));
    row("selectBox", "CSelectBox", "leftBorder", true);
    row("selectBox", "CSelectBox", "checkable", true);
    row("selectBox", "CSelectBox", "checked", true);
    row("toolButton", "CToolButton", "text", text("Mill"));
    row("toolButton", "CToolButton", "sharedWidth", 72);
    row("toolButton", "CToolButton", "sharedTextLines", 2);
    row("toolButtonVertical", "CToolButtonVertical", "text", text("Copy"));
    row("toolButtonVertical", "CToolButtonVertical", "groupWidth", 64);
    row("tabBar", "CTabBar", "count", 0);
    row("tabWidget", "CTabWidget", "count", 2);
    row("tabWidget", "CTabWidget", "currentIndex", 1);
    row("tabToolWidget", "CTabToolWidget", "count", 1);
    row("progressBar", "CProgressBar", "value", 40);
    row("progressBar", "CProgressBar", "textVisible", false);
    row("progressBar", "CProgressBar", "percentageVisible", false);
    row("progressBar", "CProgressBar", "emptyTextColor", QColor(1, 2, 3));
    row("progressBar", "CProgressBar", "filledTextColor", QColor(250, 251, 252));
    row("velmarAnimation", "CVelmarAnimation", "images",
        QStringList{"url(:/icon/img_pop_1.png)", "url(:/icon/img_pop_2.png)"});
    row("velmarAnimation", "CVelmarAnimation", "interval", 80);
    row("watermarkWidget", "CWatermarkWidget", "minimumSize", QSize(40, 20));
    row("msgBoxBackground", "CMsgBoxBackground", "styleSheet", text("#msgBoxBackground{background:#f6f6f6;}"));
}

void CheckCurrentRow(QWidget* form)
{
    QFETCH(const QString, object);
    QFETCH(const QString, className);
    QFETCH(const QByteArray, property);
    QFETCH(const QVariant, value);

    const QWidget* widget = form->findChild<QWidget*>(object);
    QVERIFY2(widget, "the form has no such child");
    QCOMPARE(QString::fromLatin1(widget->metaObject()->className()), className);
    QCOMPARE(widget->property(property.constData()), value);
}

void CheckConnections(QWidget* form)
{
    auto* box = form->findChild<CSelectBox*>();
    const auto* field = form->findChild<CTextEdit*>();
    QVERIFY(box && field);
    box->SetChecked(false);
    QVERIFY(!field->isEnabled());
    box->SetChecked(true);
    QVERIFY(field->isEnabled());

    auto* button = form->findChild<CVelmarButton*>();
    const auto* bar = form->findChild<QProgressBar*>(QStringLiteral("progressBar"));
    QVERIFY(button && bar);
    QCOMPARE(bar->value(), 40);
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(bar->value(), -1);
    QCOMPARE(button->GetButtonTextFont().bold(), true);
}
