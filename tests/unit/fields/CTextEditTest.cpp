#include "ui_CTextEdit.h"
#include <CustomControls/fields/CTextEdit.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/Painted.h>
#include <tests/support/TestMain.h>

#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <limits>
#include <memory>

namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();

const QString kSheetCentral = QStringLiteral("QWidget#central\n{\nbackground-color:rgb(246,246,246);\n}");
const QString kSheetMain =
    QStringLiteral("#main {\n    background-color: rgb(255,255,255);\n    border: 1px solid rgb(196,196,196);\n    "
                   "border-radius: 3px;\n}\n\n#main:disabled {\n    border: 1px solid #EAEAEA;\n}");
const QString kSheetNumber = QStringLiteral(
    "QDoubleSpinBox {\n    border:none;\n    background-color:rgb(255,255,255);\n    color:rgb(0, 0, "
    "0);\n}\n\nQDoubleSpinBox:disabled {\n    color: #999999;\n}\n\nQDoubleSpinBox::up-button, "
    "QDoubleSpinBox::down-button {\n    width: 0px;\n    border: none;\n    background: transparent;\n}");

std::unique_ptr<CTextEdit> Field(double minimum, double maximum, double value)
{
    auto field = std::make_unique<CTextEdit>(nullptr, QStringLiteral("角度："), QString(), QStringLiteral("°"), 0.0);
    field->SetRange(minimum, maximum);
    field->SetDefaultValue(value);
    return field;
}

// Two fields in a window that has the focus.
class Panel : public QWidget
{
public:
    Panel()
        : first(new CTextEdit(this, QStringLiteral("长度："), QStringLiteral("10"), QStringLiteral("mm"), 120))
        , second(new CTextEdit(this, QStringLiteral("宽度："), QStringLiteral("20"), QStringLiteral("mm"), 120))
    {
        auto* layout = new QVBoxLayout(this);
        layout->addWidget(first);
        layout->addWidget(second);
        show();
        activateWindow();
        if (!QTest::qWaitForWindowActive(this)) {
            qFatal("the window does not become active");
        }
    }
    CTextEdit* first;
    CTextEdit* second;
};

} // namespace

class CTextEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formIsAsDesigned();
    void constructorSetsTextsAndFonts();
    void defaultComesAsText_data();
    void defaultComesAsText();
    void mainWidthFixesTheBox_data();
    void mainWidthFixesTheBox();
    void boxWidthBelowOneChangesNothing();
    void defaultStaysInTheRange_data();
    void defaultStaysInTheRange();
    void rangeMovesTheDefault_data();
    void rangeMovesTheDefault();
    void rangeThatIsNoNumberChangesNothing();
    void rangeTurnedRoundHoldsItsMinimumOnly();
    void rangeClampsTheShownValue();
    void valueOutOfRangeShowsTheDefault_data();
    void valueOutOfRangeShowsTheDefault();
    void decimalsComeFirst_data();
    void decimalsComeFirst();
    void wrapBringsAnglesIntoTheRange_data();
    void wrapBringsAnglesIntoTheRange();
    void wrapOverASpanOfZeroKeepsTheNumber();
    void decimalsOutOfRangeAreHarmless();
    void programNeverSignals();
    void keysSignalAfterTheStep_data();
    void keysSignalAfterTheStep();
    void otherKeysSignalNothing();
    void eventsOfOthersSignalNothing();
    void keyGoesOnToTheNumber();
    void typingAndLeavingSignalsOnce();
    void returnSignalsOnce();
    void typedNumberOutOfRangeNeverShows();
    void stepOfADyingFieldIsForgotten();
    void deletingAFocusedFieldIsSilent();
    void receiverMayDeleteTheField();
    void heightIsFixed();
    void nameLabelIsTheHosts();
    void looksFollowTheSheets();
    void stepButtonsTakeNoRoom();
    void contextMenuIsOff();
    void oddTextsAreShownAsTheyAre();
};

void CTextEditTest::formIsAsDesigned()
{
    QWidget form;
    Ui::CTextEdit ui;
    ui.setupUi(&form);
    QCOMPARE(form.objectName(), QStringLiteral("CTextEdit"));
    QCOMPARE(form.size(), QSize(272, 30));
    QCOMPARE(form.minimumSize(), QSize(0, 0));
    QCOMPARE(form.maximumSize(), QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX));
    QCOMPARE(form.layout(), ui.verticalLayout);
    QCOMPARE(ui.verticalLayout->spacing(), 0);
    QCOMPARE(ui.verticalLayout->contentsMargins(), QMargins());
    QCOMPARE(ui.verticalLayout->itemAt(0)->widget(), ui.central);
    QCOMPARE(ui.central->objectName(), QStringLiteral("central"));
    QCOMPARE(ui.central->styleSheet(), kSheetCentral);
    QCOMPARE(ui.central->layout(), ui.horizontalLayout);
    QCOMPARE(ui.horizontalLayout->spacing(), 0);
    QCOMPARE(ui.horizontalLayout->contentsMargins(), QMargins());
    QCOMPARE(ui.horizontalLayout->count(), 2);
    QCOMPARE(ui.horizontalLayout->itemAt(0)->widget(), ui.m_labelName);
    QCOMPARE(ui.horizontalLayout->itemAt(1)->widget(), ui.main);
    QCOMPARE(ui.m_labelName->styleSheet(), QStringLiteral("color:rgb(0,0,0);"));
    QCOMPARE(ui.m_labelName->text(), QStringLiteral("长度："));
    QCOMPARE(ui.main->objectName(), QStringLiteral("main"));
    QCOMPARE(ui.main->styleSheet(), kSheetMain);
    QCOMPARE(ui.main->layout(), ui.horizontalLayout_2);
    QCOMPARE(ui.horizontalLayout_2->spacing(), 0);
    QCOMPARE(ui.horizontalLayout_2->contentsMargins(), QMargins(5, 1, 5, 1));
    QCOMPARE(ui.horizontalLayout_2->count(), 2);
    QCOMPARE(ui.horizontalLayout_2->itemAt(0)->widget(), ui.lineEdit);
    QCOMPARE(ui.horizontalLayout_2->itemAt(1)->widget(), ui.m_labelUnit);
    QCOMPARE(ui.lineEdit->styleSheet(), kSheetNumber);
    QCOMPARE(ui.lineEdit->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(ui.lineEdit->sizePolicy().verticalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(ui.lineEdit->minimum(), 0.0);
    QCOMPARE(ui.lineEdit->maximum(), 999999.0);
    QCOMPARE(ui.lineEdit->decimals(), 2);
    QCOMPARE(ui.m_labelUnit->styleSheet(), QStringLiteral("color:rgb(140, 151, 156);"));
    QCOMPARE(ui.m_labelUnit->text(), QStringLiteral("mm"));
}

void CTextEditTest::constructorSetsTextsAndFonts()
{
    QWidget parent;
    auto* field = new CTextEdit(&parent, QStringLiteral("角度："), QStringLiteral("1"), QStringLiteral("°"), 100);
    QCOMPARE(field->parentWidget(), &parent);
    QCOMPARE(field->ui->m_labelName->text(), QStringLiteral("角度："));
    QCOMPARE(field->ui->m_labelUnit->text(), QStringLiteral("°"));
    QCOMPARE(field->ui->m_labelName->font(), FontCnMedium_14);
    QCOMPARE(field->ui->lineEdit->font(), FontCnMedium_14);
    QCOMPARE(field->ui->m_labelUnit->font(), FontCnMedium_13);
}

void CTextEditTest::defaultComesAsText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("value");
    QTest::newRow("number") << QStringLiteral("12.5") << 12.5;
    QTest::newRow("the ends count: minimum") << QStringLiteral("0") << 0.0;
    QTest::newRow("the ends count: maximum") << QStringLiteral("999999") << 999999.0;
    QTest::newRow("spaces around") << QStringLiteral(" 7 ") << 7.0;
    QTest::newRow("exponent") << QStringLiteral("1e2") << 100.0;
    QTest::newRow("above the maximum") << QStringLiteral("1000000") << 0.0;
    QTest::newRow("below the minimum") << QStringLiteral("-1") << 0.0;
    QTest::newRow("empty") << QString() << 0.0;
    QTest::newRow("no number") << QStringLiteral("十") << 0.0;
    QTest::newRow("number with a unit") << QStringLiteral("5mm") << 0.0;
    QTest::newRow("decimal comma") << QStringLiteral("1,5") << 0.0;
    QTest::newRow("nan") << QStringLiteral("nan") << 0.0;
    QTest::newRow("inf") << QStringLiteral("inf") << 0.0;
}

void CTextEditTest::defaultComesAsText()
{
    QFETCH(QString, text);
    QFETCH(double, value);
    CTextEdit field(nullptr, QString(), text, QString(), 0);
    QCOMPARE(field.DefaultValue(), value);
    QCOMPARE(field.GetEditData(), value);
}

void CTextEditTest::mainWidthFixesTheBox_data()
{
    QTest::addColumn<double>("width");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::newRow("whole") << 120.0 << 120 << 120;
    QTest::newRow("cut") << 120.9 << 120 << 120;
    QTest::newRow("less than a pixel") << 0.5 << 0 << 0;
    QTest::newRow("zero") << 0.0 << 0 << QWIDGETSIZE_MAX;
    QTest::newRow("negative") << -5.0 << 0 << QWIDGETSIZE_MAX;
    QTest::newRow("no number") << kNaN << 0 << QWIDGETSIZE_MAX;
    QTest::newRow("infinite") << kInfinity << 0 << QWIDGETSIZE_MAX;
}

void CTextEditTest::mainWidthFixesTheBox()
{
    QFETCH(double, width);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    CTextEdit field(nullptr, QString(), QString(), QString(), width);
    QCOMPARE(field.ui->main->minimumWidth(), minimum);
    QCOMPARE(field.ui->main->maximumWidth(), maximum);
}

void CTextEditTest::boxWidthBelowOneChangesNothing()
{
    CTextEdit field(nullptr, QString(), QString(), QString(), 120);
    for (const int width : {0, -1, std::numeric_limits<int>::min()}) {
        field.SetMainWidgetWidth(width);
        QCOMPARE(field.ui->main->minimumWidth(), 120);
        QCOMPARE(field.ui->main->maximumWidth(), 120);
    }
    field.SetMainWidgetWidth(1);
    QCOMPARE(field.ui->main->minimumWidth(), 1);
    QCOMPARE(field.ui->main->maximumWidth(), 1);
    field.SetMainWidgetWidth(88);
    QCOMPARE(field.ui->main->maximumWidth(), 88);
}

void CTextEditTest::defaultStaysInTheRange_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("inside") << 15.0 << 15.0;
    QTest::newRow("minimum") << 10.0 << 10.0;
    QTest::newRow("maximum") << 20.0 << 20.0;
    QTest::newRow("below") << 9.99 << 10.0;
    QTest::newRow("above is the minimum, too") << 20.01 << 10.0;
    QTest::newRow("no number") << kNaN << 10.0;
    QTest::newRow("infinite") << kInfinity << 10.0;
    QTest::newRow("finer than shown") << 15.123456 << 15.123456;
}

void CTextEditTest::defaultStaysInTheRange()
{
    QFETCH(double, value);
    QFETCH(double, expected);
    const auto field = Field(10, 20, 12);
    field->SetValue(18);
    field->SetDefaultValue(value);
    QCOMPARE(field->DefaultValue(), expected);
    QCOMPARE(field->GetEditData(), 18.0); // what is shown stays
}

void CTextEditTest::rangeMovesTheDefault_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("below the new range") << 5.0 << 10.0;
    QTest::newRow("above the new range: its minimum, too") << 50.0 << 10.0;
    QTest::newRow("inside") << 15.0 << 15.0;
    QTest::newRow("at its minimum") << 10.0 << 10.0;
    QTest::newRow("at its maximum") << 20.0 << 20.0;
}

void CTextEditTest::rangeMovesTheDefault()
{
    QFETCH(double, value);
    QFETCH(double, expected);
    const auto field = Field(0, 100, value);
    field->SetRange(10, 20);
    QCOMPARE(field->DefaultValue(), expected);
    QCOMPARE(field->ui->lineEdit->minimum(), 10.0);
    QCOMPARE(field->ui->lineEdit->maximum(), 20.0);
}

void CTextEditTest::rangeThatIsNoNumberChangesNothing()
{
    const auto field = Field(10, 20, 12);
    field->SetRange(kNaN, 50);
    field->SetRange(0, kNaN);
    QCOMPARE(field->ui->lineEdit->minimum(), 10.0);
    QCOMPARE(field->ui->lineEdit->maximum(), 20.0);
    QCOMPARE(field->DefaultValue(), 12.0);
    field->SetRange(-kInfinity, kInfinity);
    field->SetValue(-1e9);
    QCOMPARE(field->GetEditData(), -1e9);
    field->SetValue(kNaN);
    QCOMPARE(field->GetEditData(), 12.0);
}

void CTextEditTest::rangeTurnedRoundHoldsItsMinimumOnly()
{
    const auto field = Field(0, 100, 15);
    field->SetRange(20, 10);
    QCOMPARE(field->ui->lineEdit->minimum(), 20.0);
    QCOMPARE(field->ui->lineEdit->maximum(), 20.0);
    QCOMPARE(field->DefaultValue(), 20.0);
    QCOMPARE(field->GetEditData(), 20.0);
    field->SetValue(15);
    QCOMPARE(field->GetEditData(), 20.0);
}

void CTextEditTest::rangeClampsTheShownValue()
{
    const auto field = Field(0, 100, 15);
    field->SetValue(50);
    field->SetRange(10, 20);
    QCOMPARE(field->GetEditData(), 20.0);
    field->SetRange(30, 40);
    QCOMPARE(field->GetEditData(), 30.0);
}

void CTextEditTest::valueOutOfRangeShowsTheDefault_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("inside") << 50.0 << 50.0;
    QTest::newRow("minimum") << 0.0 << 0.0;
    QTest::newRow("maximum") << 100.0 << 100.0;
    QTest::newRow("below") << -1.0 << 5.0;
    QTest::newRow("just below") << -0.001 << 5.0;
    QTest::newRow("above") << 100.01 << 5.0;
    QTest::newRow("no number") << kNaN << 5.0;
    QTest::newRow("infinite") << kInfinity << 5.0;
    QTest::newRow("minus infinite") << -kInfinity << 5.0;
    QTest::newRow("rounded to the decimals") << 12.346 << 12.35;
}

void CTextEditTest::valueOutOfRangeShowsTheDefault()
{
    QFETCH(double, value);
    QFETCH(double, expected);
    for (int form = 1; form <= 3; ++form) {
        const auto field = Field(0, 100, 5);
        field->SetValue(77);
        if (form == 1) {
            field->SetValue(value);
        } else if (form == 2) {
            field->SetValue(value, 2);
        } else {
            field->SetValue(value, 2, false);
        }
        QCOMPARE(field->GetEditData(), expected);
    }
}

void CTextEditTest::decimalsComeFirst_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("plain");     // SetValue with decimals
    QTest::addColumn<double>("unwrapped"); // and with wrap false
    QTest::newRow("three") << 1.2346 << 3 << 1.235 << 1.235;
    QTest::newRow("none") << 1.6 << 0 << 2.0 << 2.0;
    QTest::newRow("five") << 0.00002 << 5 << 0.00002 << 0.00002;
    QTest::newRow("almost zero") << 0.000001 << 3 << 0.0 << 0.0;
    // Only the form with wrap takes what is almost zero for zero.
    QTest::newRow("almost zero, shown fine") << 0.000001 << 6 << 0.000001 << 0.0;
    QTest::newRow("almost zero from below") << -0.000001 << 6 << 5.0 << 0.0;
    QTest::newRow("the limit itself stays") << 0.00001 << 5 << 0.00001 << 0.00001;
}

void CTextEditTest::decimalsComeFirst()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(double, plain);
    QFETCH(double, unwrapped);
    const auto field = Field(0, 100, 5);
    field->SetValue(value, decimals);
    QCOMPARE(field->ui->lineEdit->decimals(), decimals);
    QCOMPARE(field->GetEditData(), plain);
    field->SetDecimals(2);
    field->SetValue(value, decimals, false);
    QCOMPARE(field->ui->lineEdit->decimals(), decimals);
    QCOMPARE(field->GetEditData(), unwrapped);
}

void CTextEditTest::wrapBringsAnglesIntoTheRange_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("expected");
    QTest::newRow("inside") << 0.0 << 360.0 << 40.0 << 40.0;
    QTest::newRow("once above") << 0.0 << 360.0 << 400.0 << 40.0;
    QTest::newRow("often above") << 0.0 << 360.0 << 3640.0 << 40.0;
    QTest::newRow("below") << 0.0 << 360.0 << -30.0 << 330.0;
    QTest::newRow("often below") << 0.0 << 360.0 << -750.0 << 330.0;
    QTest::newRow("the maximum becomes the minimum") << 0.0 << 360.0 << 360.0 << 0.0;
    QTest::newRow("a turn back") << 0.0 << 360.0 << -360.0 << 0.0;
    QTest::newRow("almost zero from below") << 0.0 << 360.0 << -0.000001 << 360.0;
    QTest::newRow("almost a turn") << 0.0 << 360.0 << 360.000001 << 0.0;
    QTest::newRow("not from zero") << 10.0 << 20.0 << 25.0 << 15.0;
    QTest::newRow("around zero, above") << -180.0 << 180.0 << 190.0 << -170.0;
    QTest::newRow("around zero, below") << -180.0 << 180.0 << -190.0 << 170.0;
    QTest::newRow("around zero, inside") << -180.0 << 180.0 << 100.0 << 100.0;
    // One span is added or taken, not as many as it needs.
    QTest::newRow("range far above zero") << 100.0 << 110.0 << 105.0 << 102.0;
    QTest::newRow("range far below zero") << -110.0 << -100.0 << -105.0 << -108.0;
    QTest::newRow("no number") << 0.0 << 360.0 << kNaN << 7.0;
    QTest::newRow("infinite") << 0.0 << 360.0 << kInfinity << 7.0;
    QTest::newRow("infinite range") << 0.0 << kInfinity << 400.0 << 400.0;
}

void CTextEditTest::wrapBringsAnglesIntoTheRange()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, value);
    QFETCH(double, expected);
    const double fallback = minimum == 100.0 ? 102.0 : minimum == -110.0 ? -108.0 : minimum == 0.0 ? 7.0 : minimum;
    const auto field = Field(minimum, maximum, fallback);
    field->SetValue(value, 2, true);
    QCOMPARE(field->GetEditData(), expected);
}

void CTextEditTest::wrapOverASpanOfZeroKeepsTheNumber()
{
    const auto field = Field(5, 5, 5);
    field->SetValue(400, 1, true);
    QCOMPARE(field->GetEditData(), 5.0);
    QCOMPARE(field->ui->lineEdit->decimals(), 1);
}

void CTextEditTest::decimalsOutOfRangeAreHarmless()
{
    const auto field = Field(0, 100, 5);
    field->SetValue(12.5);
    field->SetDecimals(-3);
    QCOMPARE(field->ui->lineEdit->decimals(), 0);
    field->SetDecimals(1000);
    QVERIFY(field->ui->lineEdit->decimals() < 1000);
    field->SetValue(12.5);
    QCOMPARE(field->GetEditData(), 12.5);
}

void CTextEditTest::programNeverSignals()
{
    const auto field = Field(0, 360, 5);
    QSignalSpy changed(field.get(), &CTextEdit::SignalEditDataChanged);
    QSignalSpy toggled(field.get(), &CTextEdit::SignalButtonToggled);
    field->SetValue(10);
    field->SetValue(-1);
    field->SetValue(20, 3);
    field->SetValue(400, 1, true);
    field->SetDefaultValue(8);
    field->SetRange(100, 200);
    field->SetDecimals(0);
    QCoreApplication::processEvents();
    QCOMPARE(changed.size(), 0);
    QCOMPARE(toggled.size(), 0);
}

void CTextEditTest::keysSignalAfterTheStep_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QEvent::Type>("type");
    QTest::addColumn<double>("value");
    QTest::newRow("up, press") << int(Qt::Key_Up) << QEvent::KeyPress << 11.0;
    QTest::newRow("down, press") << int(Qt::Key_Down) << QEvent::KeyPress << 9.0;
    QTest::newRow("up, release") << int(Qt::Key_Up) << QEvent::KeyRelease << 10.0;
    QTest::newRow("down, release") << int(Qt::Key_Down) << QEvent::KeyRelease << 10.0;
    QTest::newRow("up, override") << int(Qt::Key_Up) << QEvent::ShortcutOverride << 10.0;
    QTest::newRow("down, override") << int(Qt::Key_Down) << QEvent::ShortcutOverride << 10.0;
}

void CTextEditTest::keysSignalAfterTheStep()
{
    QFETCH(int, key);
    QFETCH(QEvent::Type, type);
    QFETCH(double, value);
    Panel panel;
    QList<double> seen;
    const QObject receiver;
    connect(panel.first, &CTextEdit::SignalEditDataChanged, &receiver,
            [&] { seen.append(panel.first->GetEditData()); });
    QKeyEvent event(type, key, Qt::NoModifier);
    QApplication::sendEvent(panel.first->ui->lineEdit, &event);
    QVERIFY(seen.isEmpty()); // not before the event loop comes round
    QCOMPARE(panel.first->GetEditData(), value);
    QTRY_VERIFY(!seen.isEmpty());
    // The toolkit sends an override of its own before a press: one stroke may signal more than once, but never early.
    QCOMPARE(seen, QList<double>(seen.size(), value));
}

void CTextEditTest::otherKeysSignalNothing()
{
    Panel panel;
    QSignalSpy spy(panel.first, &CTextEdit::SignalEditDataChanged);
    panel.first->ui->lineEdit->setFocus();
    for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Right, Qt::Key_PageUp, Qt::Key_5, Qt::Key_Backspace}) {
        QTest::keyClick(panel.first->ui->lineEdit, key);
    }
    QEvent wheel(QEvent::User);
    QApplication::sendEvent(panel.first->ui->lineEdit, &wheel);
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 0);
}

void CTextEditTest::eventsOfOthersSignalNothing()
{
    Panel panel;
    QSignalSpy spy(panel.first, &CTextEdit::SignalEditDataChanged);
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
    QVERIFY(!panel.first->eventFilter(panel.second, &event));
    QVERIFY(!panel.first->eventFilter(panel.first->ui->main, &event));
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 0);
}

void CTextEditTest::keyGoesOnToTheNumber()
{
    CTextEdit field(nullptr, QString(), QString(), QString(), 0);
    QSignalSpy spy(&field, &CTextEdit::SignalEditDataChanged);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease, QEvent::ShortcutOverride}) {
        QKeyEvent event(type, Qt::Key_Up, Qt::NoModifier);
        QVERIFY(!field.eventFilter(field.ui->lineEdit, &event));
        QCOMPARE(spy.size(), 0);
        QTRY_COMPARE(spy.size(), 1);
        spy.clear();
    }
}

void CTextEditTest::typingAndLeavingSignalsOnce()
{
    Panel panel;
    QSignalSpy spy(panel.first, &CTextEdit::SignalEditDataChanged);
    QDoubleSpinBox* number = panel.first->ui->lineEdit;
    number->setFocus();
    QVERIFY(number->hasFocus());
    number->selectAll();
    QTest::keyClicks(number, QStringLiteral("42.5"));
    QCOMPARE(spy.size(), 0);
    panel.second->ui->lineEdit->setFocus();
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(panel.first->GetEditData(), 42.5);
}

void CTextEditTest::returnSignalsOnce()
{
    Panel panel;
    QSignalSpy spy(panel.first, &CTextEdit::SignalEditDataChanged);
    QDoubleSpinBox* number = panel.first->ui->lineEdit;
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, QStringLiteral("7"));
    QTest::keyClick(number, Qt::Key_Return);
    QCoreApplication::processEvents();
    QCOMPARE(spy.size(), 1);
    QCOMPARE(panel.first->GetEditData(), 7.0);
}

void CTextEditTest::typedNumberOutOfRangeNeverShows()
{
    Panel panel;
    panel.first->SetRange(0, 100);
    QDoubleSpinBox* number = panel.first->ui->lineEdit;
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, QStringLiteral("5000"));
    panel.second->ui->lineEdit->setFocus();
    QVERIFY(panel.first->GetEditData() <= 100.0);
}

void CTextEditTest::stepOfADyingFieldIsForgotten()
{
    auto* field = new CTextEdit(nullptr, QString(), QString(), QString(), 0);
    int signalled = 0;
    connect(field, &CTextEdit::SignalEditDataChanged, this, [&] { ++signalled; });
    QTest::keyClick(field->ui->lineEdit, Qt::Key_Up);
    delete field;
    QCoreApplication::processEvents();
    QCOMPARE(signalled, 0);
}

void CTextEditTest::deletingAFocusedFieldIsSilent()
{
    Panel panel;
    int signalled = 0;
    connect(panel.first, &CTextEdit::SignalEditDataChanged, this, [&] { ++signalled; });
    QDoubleSpinBox* number = panel.first->ui->lineEdit;
    number->setFocus();
    number->selectAll();
    QTest::keyClicks(number, QStringLiteral("42"));
    QVERIFY(number->hasFocus());
    delete panel.first;
    QCoreApplication::processEvents();
    QCOMPARE(signalled, 0);
}

void CTextEditTest::receiverMayDeleteTheField()
{
    Panel panel;
    connect(panel.first, &CTextEdit::SignalEditDataChanged, this, [&] { delete panel.first; });
    QPointer<CTextEdit> field(panel.first);
    QTest::keyClick(panel.first->ui->lineEdit, Qt::Key_Up);
    QTRY_VERIFY(!field);
}

void CTextEditTest::heightIsFixed()
{
    CTextEdit field(nullptr, QString(), QString(), QString(), 0);
    field.SetFixedHeight(44);
    QCOMPARE(field.minimumHeight(), 44);
    QCOMPARE(field.maximumHeight(), 44);
    QCOMPARE(field.maximumWidth(), QWIDGETSIZE_MAX);
}

void CTextEditTest::nameLabelIsTheHosts()
{
    CTextEdit field(nullptr, QStringLiteral("长度："), QString(), QString(), 0);
    QCOMPARE(field.GetNameLabel(), field.ui->m_labelName);
    QCOMPARE(field.GetNameLabel()->text(), QStringLiteral("长度："));
}

void CTextEditTest::looksFollowTheSheets()
{
    CTextEdit field(nullptr, QString(), QString(), QString(), 100);
    field.resize(300, 30);
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    const QRect box(field.ui->main->mapTo(&field, QPoint()), field.ui->main->size());
    QCOMPARE(box.width(), 100);
    QCOMPARE(box.right(), 299);
    QImage image = field.grab().toImage();
    COMPARE_COLOR(image, 100, 3, QColor(246, 246, 246));
    COMPARE_COLOR(image, box.left(), 15, QColor(196, 196, 196));
    COMPARE_COLOR(image, box.right(), 15, QColor(196, 196, 196));
    COMPARE_COLOR(image, box.center().x(), 0, QColor(196, 196, 196));
    COMPARE_COLOR(image, box.left() + 3, 15, QColor(255, 255, 255));
    field.setEnabled(false);
    image = field.grab().toImage();
    COMPARE_COLOR(image, box.left(), 15, QColor(0xea, 0xea, 0xea));
}

void CTextEditTest::stepButtonsTakeNoRoom()
{
    CTextEdit field(nullptr, QString(), QString(), QString(), 100);
    field.resize(300, 30);
    field.show();
    QVERIFY(QTest::qWaitForWindowExposed(&field));
    QDoubleSpinBox* number = field.ui->lineEdit;
    const auto* edit = number->findChild<QLineEdit*>();
    QVERIFY(edit);
    QVERIFY(edit->geometry().right() >= number->width() - 4);
    QTest::mouseClick(number, Qt::LeftButton, Qt::NoModifier, QPoint(number->width() - 1, 2));
    QCOMPARE(field.GetEditData(), 0.0);
}

void CTextEditTest::contextMenuIsOff()
{
    const CTextEdit field(nullptr, QString(), QString(), QString(), 0);
    QCOMPARE(field.ui->lineEdit->contextMenuPolicy(), Qt::NoContextMenu);
}

void CTextEditTest::oddTextsAreShownAsTheyAre()
{
    const QString name(500, QChar(0x4e00));
    CTextEdit field(nullptr, name, QString(), QString(), 0);
    QCOMPARE(field.GetNameLabel()->text(), name);
    QCOMPARE(field.ui->m_labelUnit->text(), QString());
    field.resize(100, 30);
    QVERIFY(!field.grab().isNull());
}

CUSTOMCONTROLS_TEST_MAIN(CTextEditTest)
#include "CTextEditTest.moc"
