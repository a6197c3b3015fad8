#include <CustomControls/machine/CSelectMachineIPLineEdit.h>

#include "ui_CSelectMachineIPLineEdit.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QCursor>
#include <QTimer>
#include <QValidator>

namespace {

const QString NormalLook = QStringLiteral(
    "QLineEdit { border: 1px solid #cccccc; border-radius: 4px; padding: 6px 10px; color: #333333; background-color: "
    "#ffffff; } QLineEdit:focus { border: 1px solid rgba(23, 160, 97, 1); }");
const QString HighlightedLook = QStringLiteral(
    "QLineEdit { border: 2px solid #23d291; border-radius: 4px; padding: 6px 10px; color: #333333; background-color: "
    "#ffffff; } QLineEdit:focus { border: 2px solid #23d291; }");

} // namespace

class CSelectMachineIPLineEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void formStandsAsDrawn();
    void startsWithoutFlash();
    void typingTellsEachAcceptedCharacter();
    void validatorRefusesWhatNoAddressHas_data();
    void validatorRefusesWhatNoAddressHas();
    void validIps_data();
    void validIps();
    void showingFocusesThePopUpAndNotTheField();
    void clickOnTheFieldKeepsItOpen();
    void returnClosesWithAValidOrEmptyText_data();
    void returnClosesWithAValidOrEmptyText();
    void closeTellsTheAddressOrNothing_data();
    void closeTellsTheAddressOrNothing();
    void returnWithAPartialAddressFlashesAndStaysOpen();
    void flashBlinksThreeTimesInSevenHundredMilliseconds();
    void secondReturnStartsTheFlashOver();
    void flashRunsOutOnTheHiddenPopUp();
    void losingTheFocusClosesWhenTheCursorIsElsewhere();
    void cursorInsideKeepsItOpen();
    void hidingTellsNothing_data();
    void hidingTellsNothing();
    void clearInputTellsNothing();
    void reopensWithItsOldText();
    void deletingItInMidFlashWithTheFieldFocusedIsSilent();

private:
    QPoint m_ptOutside = QPoint(700, 500);
};

void CSelectMachineIPLineEditTest::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral("^(?!This plugin does not support)")));
    QCursor::setPos(m_ptOutside);
}

void CSelectMachineIPLineEditTest::formStandsAsDrawn()
{
    QWidget host;
    CSelectMachineIPLineEdit edit(&host);
    QCOMPARE(edit.objectName(), QStringLiteral("CSelectMachineIPLineEdit"));
    QCOMPARE(edit.windowTitle(), QStringLiteral("Form"));
    QCOMPARE(edit.minimumSize(), QSize(340, 90));
    QCOMPARE(edit.maximumSize(), QSize(340, 90));
    QCOMPARE(edit.styleSheet(), QStringLiteral("#CSelectMachineIPLineEdit{\nborder:1px solid rgba(204, 204, 204, 1);\n"
                                               "background:#ffffff;\nborder-radius:4px;\n}"));
    QVERIFY(edit.layout() == nullptr);
    QVERIFY(edit.isWindow());
    QCOMPARE(edit.windowFlags() & Qt::WindowType_Mask, Qt::Dialog);
    QVERIFY(edit.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(edit.testAttribute(Qt::WA_StyledBackground));
    QVERIFY(!edit.testAttribute(Qt::WA_DeleteOnClose));

    const QLabel* title = edit.ui->titleLabel;
    QCOMPARE(title->pos(), QPoint(20, 10));
    QCOMPARE(title->text(), QStringLiteral("IP地址:"));
    QCOMPARE(title->styleSheet(),
             QStringLiteral("#titleLabel{\nborder:none;\nbackground:transparent;\ncolor:#000000;\n}\n\n"));
    QCOMPARE(title->font(), FontCnMedium_14);
    QCOMPARE(title->size(), title->sizeHint());

    const QLineEdit* field = edit.ui->lineEdit;
    QCOMPARE(field->geometry(), QRect(20, 36, 300, 38));
    QCOMPARE(field->minimumSize(), QSize(300, 38));
    QCOMPARE(field->maximumSize(), QSize(300, 38));
    QCOMPARE(field->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(field->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(field->placeholderText(), QStringLiteral("请输入IPv4地址"));
    QCOMPARE(field->font(), FontCn_14);
    QCOMPARE(field->maxLength(), 15);
    QCOMPARE(field->validator()->parent(), &edit);
    QString flat = field->styleSheet();
    flat.remove(QLatin1Char('\n')).remove(QLatin1Char(' '));
    QCOMPARE(flat, QStringLiteral("QLineEdit{border:1pxsolid#cccccc;border-radius:4px;padding:6px10px;color:#333333;"
                                  "background-color:#ffffff;}QLineEdit:focus{border:1pxsolidrgba(23,160,97,1);}"));
}

void CSelectMachineIPLineEditTest::startsWithoutFlash()
{
    CSelectMachineIPLineEdit edit(nullptr);
    QVERIFY(edit.m_pFlashTimer == nullptr);
    QCOMPARE(edit.m_iFlashCount, 0);
    QVERIFY(!edit.m_bFlashOn);
}

void CSelectMachineIPLineEditTest::typingTellsEachAcceptedCharacter()
{
    CSelectMachineIPLineEdit edit(nullptr);
    QSignalSpy spy(&edit, &CSelectMachineIPLineEdit::SignalInputIP);
    const QString address = QStringLiteral("192.168.7.2");
    QTest::keyClicks(edit.ui->lineEdit, address);
    QCOMPARE(spy.count(), address.size());
    for (int i = 0; i < spy.count(); ++i) {
        QCOMPARE(spy.at(i).at(0).toString(), address.left(i + 1));
    }
}

void CSelectMachineIPLineEditTest::validatorRefusesWhatNoAddressHas_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("accepted");
    QTest::newRow("256") << "256"
                         << "25";
    QTest::newRow("a sixteenth character") << "255.255.255.2555"
                                           << "255.255.255.255";
    QTest::newRow("blanks") << "  1"
                            << "1";
    QTest::newRow("letters") << "a1b"
                             << "1";
    QTest::newRow("leading dot") << ".1"
                                 << "1";
    QTest::newRow("two dots") << "1..2"
                              << "1.2";
    QTest::newRow("fifth number") << "1.2.3.4.5"
                                  << "1.2.3.45";
    QTest::newRow("leading zeros") << "007.1"
                                   << "007.1";
}

void CSelectMachineIPLineEditTest::validatorRefusesWhatNoAddressHas()
{
    QFETCH(QString, typed);
    QFETCH(QString, accepted);
    CSelectMachineIPLineEdit edit(nullptr);
    QTest::keyClicks(edit.ui->lineEdit, typed);
    QCOMPARE(edit.ui->lineEdit->text(), accepted);
}

void CSelectMachineIPLineEditTest::validIps_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("valid");
    QTest::newRow("lowest") << "0.0.0.0" << true;
    QTest::newRow("highest") << "255.255.255.255" << true;
    QTest::newRow("usual") << "192.168.7.2" << true;
    QTest::newRow("leading zeros") << "010.001.000.009" << true;
    QTest::newRow("empty") << "" << false;
    QTest::newRow("three numbers") << "1.2.3" << false;
    QTest::newRow("trailing dot") << "1.2.3." << false;
    QTest::newRow("256") << "1.2.3.256" << false;
    QTest::newRow("blank behind") << "1.2.3.4 " << false;
    QTest::newRow("line feed behind") << "1.2.3.4\n" << false;
    QTest::newRow("name") << "localhost" << false;
    QTest::newRow("other digits") << QStringLiteral("１.２.３.４") << false;
}

void CSelectMachineIPLineEditTest::validIps()
{
    QFETCH(QString, text);
    QFETCH(bool, valid);
    CSelectMachineIPLineEdit edit(nullptr);
    QCOMPARE(edit.IsValidIp(text), valid);
}

void CSelectMachineIPLineEditTest::showingFocusesThePopUpAndNotTheField()
{
    CSelectMachineIPLineEdit edit(nullptr);
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QVERIFY(edit.hasFocus());
    QVERIFY(!edit.ui->lineEdit->hasFocus());
}

void CSelectMachineIPLineEditTest::clickOnTheFieldKeepsItOpen()
{
    CSelectMachineIPLineEdit edit(nullptr);
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QCursor::setPos(edit.geometry().center());
    QTest::mouseClick(edit.ui->lineEdit, Qt::LeftButton);
    QVERIFY(edit.ui->lineEdit->hasFocus());
    QVERIFY(edit.isVisible());
}

void CSelectMachineIPLineEditTest::returnClosesWithAValidOrEmptyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("key");
    QTest::newRow("address and return") << "192.168.1.1" << int(Qt::Key_Return);
    QTest::newRow("address and enter") << "192.168.1.1" << int(Qt::Key_Enter);
    QTest::newRow("nothing and return") << "" << int(Qt::Key_Return);
}

void CSelectMachineIPLineEditTest::returnClosesWithAValidOrEmptyText()
{
    QFETCH(QString, text);
    QFETCH(int, key);
    CSelectMachineIPLineEdit edit(nullptr);
    edit.show();
    edit.ui->lineEdit->setText(text);
    QSignalSpy spy(&edit, &CSelectMachineIPLineEdit::SignalInputIP);
    QTest::keyClick(edit.ui->lineEdit, Qt::Key(key));
    QVERIFY(!edit.isVisible());
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), text);
}

void CSelectMachineIPLineEditTest::closeTellsTheAddressOrNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("told");
    QTest::newRow("whole") << "192.168.1.1"
                           << "192.168.1.1";
    QTest::newRow("in part") << "192.168"
                             << "";
    QTest::newRow("none") << ""
                          << "";
}

void CSelectMachineIPLineEditTest::closeTellsTheAddressOrNothing()
{
    QFETCH(QString, text);
    QFETCH(QString, told);
    CSelectMachineIPLineEdit edit(nullptr);
    edit.show();
    edit.ui->lineEdit->setText(text);
    QSignalSpy spy(&edit, &CSelectMachineIPLineEdit::SignalInputIP);
    edit.close();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toString(), told);
    QCOMPARE(edit.ui->lineEdit->text(), text);
}

void CSelectMachineIPLineEditTest::returnWithAPartialAddressFlashesAndStaysOpen()
{
    CSelectMachineIPLineEdit edit(nullptr);
    edit.show();
    edit.ui->lineEdit->setText(QStringLiteral("192.168"));
    QSignalSpy spy(&edit, &CSelectMachineIPLineEdit::SignalInputIP);
    QTest::keyClick(edit.ui->lineEdit, Qt::Key_Return);
    QVERIFY(edit.isVisible());
    QVERIFY(edit.m_pFlashTimer->isActive());
    QCOMPARE(edit.m_pFlashTimer->interval(), 100);
    QCOMPARE(edit.m_pFlashTimer->parent(), &edit);
    QCOMPARE(spy.count(), 0);
}

void CSelectMachineIPLineEditTest::flashBlinksThreeTimesInSevenHundredMilliseconds()
{
    CSelectMachineIPLineEdit edit(nullptr);
    QElapsedTimer clock;
    clock.start();
    edit.StartFlash();
    QStringList looks;
    connect(edit.m_pFlashTimer, &QTimer::timeout, this, [&] { looks << edit.ui->lineEdit->styleSheet(); });
    QTRY_VERIFY(!edit.m_pFlashTimer->isActive());
    QVERIFY(clock.elapsed() >= 650); // a coarse timer may come a little early
    const QStringList expected = {HighlightedLook, NormalLook, HighlightedLook, NormalLook,
                                  HighlightedLook, NormalLook, NormalLook};
    QCOMPARE(looks, expected);
    QCOMPARE(edit.m_iFlashCount, 0);
    QVERIFY(!edit.m_bFlashOn);
}

void CSelectMachineIPLineEditTest::secondReturnStartsTheFlashOver()
{
    CSelectMachineIPLineEdit edit(nullptr);
    edit.show();
    edit.ui->lineEdit->setText(QStringLiteral("1.2"));
    QTest::keyClick(edit.ui->lineEdit, Qt::Key_Return);
    QTimer* timer = edit.m_pFlashTimer;
    QTRY_COMPARE(edit.m_iFlashCount, 3);
    QVERIFY(edit.m_bFlashOn);
    QTest::keyClick(edit.ui->lineEdit, Qt::Key_Return);
    QCOMPARE(edit.m_pFlashTimer, timer);
    QCOMPARE(edit.m_iFlashCount, 0);
    QVERIFY(!edit.m_bFlashOn);
    QVERIFY(timer->isActive());
}

void CSelectMachineIPLineEditTest::flashRunsOutOnTheHiddenPopUp()
{
    CSelectMachineIPLineEdit edit(nullptr);
    edit.show();
    edit.StartFlash();
    QTRY_COMPARE(edit.m_iFlashCount, 1);
    edit.close();
    QVERIFY(edit.m_pFlashTimer->isActive());
    QTRY_VERIFY(!edit.m_pFlashTimer->isActive());
    QCOMPARE(edit.ui->lineEdit->styleSheet(), NormalLook);
}

void CSelectMachineIPLineEditTest::losingTheFocusClosesWhenTheCursorIsElsewhere()
{
    for (const bool fromField : {false, true}) {
        CSelectMachineIPLineEdit edit(nullptr);
        edit.move(10, 10);
        edit.show();
        QVERIFY(QTest::qWaitForWindowActive(&edit));
        if (fromField) {
            QCursor::setPos(edit.geometry().center());
            QTest::mouseClick(edit.ui->lineEdit, Qt::LeftButton);
        }
        QCursor::setPos(m_ptOutside);
        QVERIFY(edit.isVisible());
        edit.ui->lineEdit->setText(QStringLiteral("192.168.1.1"));
        QSignalSpy spy(&edit, &CSelectMachineIPLineEdit::SignalInputIP);
        QWidget other;
        other.show();
        other.activateWindow();
        QTRY_VERIFY(!edit.isVisible());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0).at(0).toString(), QStringLiteral("192.168.1.1"));
    }
}

void CSelectMachineIPLineEditTest::cursorInsideKeepsItOpen()
{
    CSelectMachineIPLineEdit edit(nullptr);
    edit.move(10, 10);
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    QCursor::setPos(edit.geometry().topLeft() + QPoint(1, 1));
    QWidget other;
    other.show();
    other.activateWindow();
    QTRY_VERIFY(!edit.hasFocus());
    QVERIFY(edit.isVisible());
}

void CSelectMachineIPLineEditTest::hidingTellsNothing_data()
{
    QTest::addColumn<bool>("fieldFocused");
    QTest::newRow("pop-up focused") << false;
    QTest::newRow("field focused") << true;
}

// Also when hiding takes the focus away from it and the cursor is elsewhere.
void CSelectMachineIPLineEditTest::hidingTellsNothing()
{
    QFETCH(bool, fieldFocused);
    CSelectMachineIPLineEdit edit(nullptr);
    edit.move(10, 10);
    edit.show();
    QVERIFY(QTest::qWaitForWindowActive(&edit));
    if (fieldFocused) {
        QCursor::setPos(edit.geometry().center());
        edit.ui->lineEdit->setFocus();
        QCursor::setPos(m_ptOutside);
    }
    edit.ui->lineEdit->setText(QStringLiteral("192.168.1.1"));
    QSignalSpy spy(&edit, &CSelectMachineIPLineEdit::SignalInputIP);
    edit.hide();
    QTRY_VERIFY(!edit.hasFocus() && !edit.ui->lineEdit->hasFocus());
    QCoreApplication::processEvents();
    QCOMPARE(spy.count(), 0);
    QCOMPARE(edit.ui->lineEdit->text(), QStringLiteral("192.168.1.1"));
}

void CSelectMachineIPLineEditTest::clearInputTellsNothing()
{
    CSelectMachineIPLineEdit edit(nullptr);
    edit.ui->lineEdit->setText(QStringLiteral("1.2"));
    QSignalSpy spy(&edit, &CSelectMachineIPLineEdit::SignalInputIP);
    edit.ClearInput();
    QVERIFY(edit.ui->lineEdit->text().isEmpty());
    QCOMPARE(spy.count(), 0);
    edit.ui->lineEdit->setText(QStringLiteral("3"));
    QCOMPARE(spy.count(), 1);
}

void CSelectMachineIPLineEditTest::reopensWithItsOldText()
{
    CSelectMachineIPLineEdit edit(nullptr);
    edit.show();
    edit.ui->lineEdit->setText(QStringLiteral("10.0"));
    edit.close();
    edit.show();
    QCOMPARE(edit.ui->lineEdit->text(), QStringLiteral("10.0"));
}

void CSelectMachineIPLineEditTest::deletingItInMidFlashWithTheFieldFocusedIsSilent()
{
    auto* edit = new CSelectMachineIPLineEdit(nullptr);
    edit->show();
    QVERIFY(QTest::qWaitForWindowActive(edit));
    edit->ui->lineEdit->setFocus();
    edit->ui->lineEdit->setText(QStringLiteral("10.0"));
    edit->StartFlash();
    QSignalSpy spy(edit, &CSelectMachineIPLineEdit::SignalInputIP);
    delete edit;
    QCOMPARE(spy.count(), 0);
}

CUSTOMCONTROLS_TEST_MAIN(CSelectMachineIPLineEditTest)
#include "CSelectMachineIPLineEditTest.moc"
