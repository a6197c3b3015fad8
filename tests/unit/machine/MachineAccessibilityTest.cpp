#include "ui_CSelectMachineBox.h"
#include "ui_CSelectMachineIPLineEdit.h"
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/machine/CSelectMachineIPLineEdit.h>

#include <CustomControls/accessibility/KeyboardFocus.h>

#include <tests/support/Accessible.h>
#include <tests/support/InEnglish.h>
#include <tests/support/TestMain.h>

#include <QStandardItemModel>

namespace {

// A panel on the stack does not delete itself.
struct Panel : CSelectMachineBox
{
    Panel()
        : CSelectMachineBox(nullptr)
    {
        setAttribute(Qt::WA_DeleteOnClose, false);
        SetMachineInfo(QStringLiteral("a*SN1*b*10.0.0.5*c*eth0"), false);
        SetMachineInfo(QStringLiteral("a*SN2*b*10.0.0.6*c*eth0"), false);
        show();
        activateWindow();
    }
};

} // namespace

/** The machine panel as a screen reader meets it, and used without the mouse. */
class MachineAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TestEnvironment::MoveCursorAway(); }

    void panelIsADialogInWhichEverythingHasAName()
    {
        Panel panel;
        QCOMPARE(Accessible(&panel)->role(), QAccessible::Dialog);
        QCOMPARE(AccessibleName(&panel), QStringLiteral("新建连接"));
        QCOMPARE(AccessibleName(panel.ui->tableView), QStringLiteral("设备列表"));
        QCOMPARE(AccessibleName(panel.findChild<QPushButton*>(QStringLiteral("m_btnClose"))), QStringLiteral("关闭"));
        const QList<QPushButton*> buttons = panel.findChildren<QPushButton*>();
        for (const QPushButton* button : buttons) {
            // The confirm button has no words in this panel, which hides it.
            if (button->objectName() != QLatin1String("m_btnConfirm")) {
                QVERIFY2(!AccessibleName(const_cast<QPushButton*>(button)).isEmpty(), qPrintable(button->objectName()));
            }
        }
    }

    void namesThatNobodySeesFollowTheLanguage()
    {
        Panel panel;
        auto* close = panel.findChild<QPushButton*>(QStringLiteral("m_btnClose"));
        {
            const InEnglish english;
            QCOMPARE(AccessibleName(panel.ui->tableView), QStringLiteral("Machines"));
            QCOMPARE(AccessibleName(close), QStringLiteral("Close"));
            panel.ui->tableView->setAccessibleName(QStringLiteral("Mills"));
        }
        QCOMPARE(AccessibleName(close), QStringLiteral("关闭"));
        // The host's own name is the host's to change.
        QCOMPARE(AccessibleName(panel.ui->tableView), QStringLiteral("Mills"));
    }

    void machineIsPickedAndConnectedWithoutTheMouse()
    {
        Panel panel;
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        QSignalSpy spy(&panel, &CSelectMachineBox::SignalMachineSelected);
        panel.ui->tableView->setFocus(Qt::TabFocusReason);
        QTest::keyClick(panel.ui->tableView, Qt::Key_Down);
        if (panel.ui->tableView->currentIndex().row() == 0) {
            QTest::keyClick(panel.ui->tableView, Qt::Key_Down);
        }
        QCOMPARE(panel.ui->tableView->currentIndex().row(), 1);
        QCOMPARE(panel.m_strMachineNum, QString());
        QTest::keyClick(panel.ui->tableView, Qt::Key_Space);
        QCOMPARE(panel.m_strMachineNum, QStringLiteral("SN2"));
        for (int i = 0; i < 8 && QApplication::focusWidget() != panel.ui->m_btnConnect; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        QCOMPARE(QApplication::focusWidget(), panel.ui->m_btnConnect);
        QVERIFY(KeyboardFocus::IsShownOn(panel.ui->m_btnConnect));
        QTest::keyClick(panel.ui->m_btnConnect, Qt::Key_Space);
        QCOMPARE(spy.count(), 1);
        QCOMPARE(spy.at(0), QList<QVariant>({QStringLiteral("10.0.0.6"), QStringLiteral("SN2")}));
    }

    void addressIsTypedWithoutAClick()
    {
        CSelectMachineIPLineEdit popUp(nullptr);
        QCOMPARE(Accessible(&popUp)->role(), QAccessible::Dialog);
        QCOMPARE(AccessibleName(popUp.ui->lineEdit), QStringLiteral("IP地址:"));
        QSignalSpy spy(&popUp, &CSelectMachineIPLineEdit::SignalInputIP);
        popUp.show();
        QVERIFY(QTest::qWaitForWindowActive(&popUp));
        QTRY_COMPARE(QApplication::focusWidget(), &popUp);
        QTest::keyClicks(&popUp, QStringLiteral("10.0.0.78"));
        QTest::keyClick(&popUp, Qt::Key_Backspace);
        QCOMPARE(popUp.ui->lineEdit->text(), QStringLiteral("10.0.0.7"));
        QTest::keyClick(&popUp, Qt::Key_Escape);
        QVERIFY(popUp.isVisible());
        QCOMPARE(QApplication::focusWidget(), &popUp);
        QTest::keyClick(&popUp, Qt::Key_Return);
        QVERIFY(!popUp.isVisible());
        QCOMPARE(spy.last().at(0).toString(), QStringLiteral("10.0.0.7"));
    }
};

CUSTOMCONTROLS_TEST_MAIN(MachineAccessibilityTest)

#include "MachineAccessibilityTest.moc"
