#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/buttons/CHintButton.h>
#include <CustomControls/fields/CPlainTextEdit.h>
#include <CustomControls/fields/CSelectBox.h>
#include <CustomControls/fields/CTextBrowser.h>
#include <CustomControls/fields/CTextEdit.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <tests/support/Accessible.h>
#include <tests/support/TestMain.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

/** A parameter panel as a screen reader meets it, and used without the mouse. */
class FieldsAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TestEnvironment::MoveCursorAway(); }

    void numberIsNamedByTheFieldsName()
    {
        CTextEdit field(nullptr, QStringLiteral("长度："), QStringLiteral("5"), QStringLiteral("mm"), 0);
        auto* number = field.findChild<QDoubleSpinBox*>();
        QCOMPARE(Accessible(number)->role(), QAccessible::SpinBox);
        QCOMPARE(AccessibleName(number), QStringLiteral("长度"));
        QCOMPARE(Accessible(number)->text(QAccessible::Description), QStringLiteral("mm"));
        QCOMPARE(AccessibleName(number->findChild<QLineEdit*>()), QStringLiteral("长度"));
        QCOMPARE(Accessible(number)->valueInterface()->currentValue().toDouble(), 5.0);
    }

    void numberFollowsARenamedField()
    {
        QWidget window;
        auto* field = new CTextEdit(&window, QStringLiteral("长度："), QStringLiteral("5"), QStringLiteral("mm"), 0);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        field->GetNameLabel()->setText(QStringLiteral("宽度:"));
        auto* number = field->findChild<QDoubleSpinBox*>();
        window.setFocus();
        number->setFocus();
        QCOMPARE(AccessibleName(number), QStringLiteral("宽度"));
    }

    void switchIsACheckBoxNamedByTheCaption()
    {
        CSelectBox box(QStringLiteral("冷却"), false, QStringLiteral("加工时打开冷却"), nullptr);
        auto* button = box.findChild<QPushButton*>(QStringLiteral("btnBox"));
        QCOMPARE(Accessible(button)->role(), QAccessible::CheckBox);
        QCOMPARE(AccessibleName(button), QStringLiteral("冷却"));
        box.SetText(QStringLiteral("吹气"));
        QCOMPARE(AccessibleName(button), QStringLiteral("吹气"));
        auto* hint = box.findChild<CHintButton*>();
        QCOMPARE(AccessibleName(hint), QStringLiteral("加工时打开冷却"));
        QSignalSpy spy(&box, &CSelectBox::signalSelectBoxToggled);
        Act(button, QAccessibleActionInterface::toggleAction());
        QCOMPARE(spy.count(), 1);
        QVERIFY(box.IsChecked());
        QVERIFY(Accessible(button)->state().checked);
    }

    void panelIsFilledInWithoutTheMouse()
    {
        QWidget panel;
        auto* layout = new QVBoxLayout(&panel);
        auto* field = new CTextEdit(nullptr, QStringLiteral("长度："), QStringLiteral("5"), QStringLiteral("mm"), 0);
        auto* box = new CSelectBox(QStringLiteral("冷却"), false, QStringLiteral("加工时打开冷却"), nullptr);
        layout->addWidget(field);
        layout->addWidget(box);
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        field->findChild<QDoubleSpinBox*>()->setFocus(Qt::TabFocusReason);
        const auto key = [](Qt::Key pressed) { QTest::keyClick(QApplication::focusWidget(), pressed); };
        key(Qt::Key_Up);
        QCOMPARE(field->GetEditData(), 6.0);
        key(Qt::Key_Tab);
        auto* hint = box->findChild<CHintButton*>();
        QCOMPARE(QApplication::focusWidget(), hint);
        QVERIFY(KeyboardFocus::IsShownOn(hint));
        key(Qt::Key_Space);
        QVERIFY(hint->IsToolTipVisible());
        key(Qt::Key_Tab);
        QVERIFY(!hint->IsToolTipVisible());
        auto* button = box->findChild<QPushButton*>(QStringLiteral("btnBox"));
        QCOMPARE(QApplication::focusWidget(), button);
        QVERIFY(KeyboardFocus::IsShownOn(button));
        key(Qt::Key_Space);
        QVERIFY(box->IsChecked());
    }

    void menuOfATextViewIsUsedByKeys()
    {
        QWidget window;
        window.resize(400, 300);
        auto* edit = new CPlainTextEdit(&window);
        edit->resize(300, 200);
        edit->setPlainText(QStringLiteral("G0 X0"));
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        edit->setFocus();
        edit->selectAll();
        const auto openMenu = [edit] {
            QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(10, 10), edit->mapToGlobal(QPoint(10, 10)));
            QCoreApplication::sendEvent(edit, &event);
        };
        openMenu();
        QVERIFY(edit->m_pMenu->isVisible());
        QTest::keyClick(edit, Qt::Key_Escape);
        QVERIFY(!edit->m_pMenu->isVisible());
        openMenu();
        QTest::keyClick(edit, Qt::Key_Down);
        QCOMPARE(edit->m_pMenu->m_pCurrentItem, edit->m_pMenu->MenuButton(0));
        QTest::keyClick(edit, Qt::Key_Return);
        QVERIFY(!edit->m_pMenu->isVisible());
        QCOMPARE(edit->toPlainText(), QString());
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("G0 X0"));
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(edit->toPlainText(), QStringLiteral("\n"));
    }

    void rowOfATextViewsMenuTellsNoPicturePath()
    {
        QWidget window;
        auto* browser = new CTextBrowser(&window);
        CCustomMenuItem* row = browser->m_pMenu->MenuButton(0);
        QCOMPARE(AccessibleName(row), QStringLiteral("复制"));
        QCOMPARE(Accessible(row)->text(QAccessible::Accelerator), QString());
    }
};

CUSTOMCONTROLS_TEST_MAIN(FieldsAccessibilityTest)

#include "FieldsAccessibilityTest.moc"
