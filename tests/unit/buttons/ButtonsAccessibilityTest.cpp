#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/buttons/CHintButton.h>
#include <CustomControls/buttons/CHintTextToolTip.h>
#include <CustomControls/buttons/CIconButton.h>
#include <CustomControls/buttons/CSelectButton.h>
#include <CustomControls/buttons/CUnitButton.h>
#include <CustomControls/buttons/CVelmarButton.h>

#include <tests/support/Accessible.h>
#include <tests/support/AccessibleEvents.h>
#include <tests/support/TestMain.h>

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QVBoxLayout>

namespace {

const QString kToggle = QAccessibleActionInterface::toggleAction();

/** A host's own button. */
class HostButton : public CVelmarButton
{
    Q_OBJECT

public:
    using CVelmarButton::CVelmarButton;
};

} // namespace

class ButtonsAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TestEnvironment::MoveCursorAway(); }

    void themedButtonIsNamedByItsText()
    {
        CVelmarButton button(ButtonTypeIconText, false, true, 0, nullptr);
        button.SetButtonText(QStringLiteral("R&D 开始"), false);
        QCOMPARE(Accessible(&button)->role(), QAccessible::Button);
        QCOMPARE(AccessibleName(&button), QStringLiteral("R&D 开始"));
    }

    void hostsNameWinsAndTheToolTipComesLast()
    {
        CVelmarButton button(ButtonTypeIcon, false, true, 0, nullptr);
        QCOMPARE(AccessibleName(&button), QString());
        button.setToolTip(QStringLiteral("<b>关闭</b>\n窗口"));
        QCOMPARE(AccessibleName(&button), QStringLiteral("关闭 窗口"));
        button.SetButtonText(QStringLiteral("停止"), false);
        QCOMPARE(AccessibleName(&button), QStringLiteral("停止"));
        QCOMPARE(Accessible(&button)->text(QAccessible::Description), QStringLiteral("关闭 窗口"));
        button.setAccessibleName(QStringLiteral("急停"));
        QCOMPARE(AccessibleName(&button), QStringLiteral("急停"));
    }

    void labelsOfAThemedButtonAreNotToldAgain()
    {
        CVelmarButton button(ButtonTypeIconText, false, true, 0, nullptr);
        button.SetButtonText(QStringLiteral("开始"), false);
        button.SetButtonTypeBubble(0, 0, 8, 8, QStringLiteral("red"), true);
        QCOMPARE(Accessible(&button)->childCount(), 0);
        QCOMPARE(Accessible(&button)->child(0), nullptr);
        QCOMPARE(Accessible(&button)->childAt(1, 1), nullptr);
    }

    void pressOfAThemedButtonIsOneClick()
    {
        CVelmarButton button(ButtonTypeText, false, true, 0, nullptr);
        QSignalSpy spy(&button, &CVelmarButton::SignalClicked);
        QSignalSpy base(&button, &QAbstractButton::clicked);
        QVERIFY(Actions(&button).contains(PressAction()));
        Act(&button, PressAction());
        QCOMPARE(spy.count(), 1);
        QCOMPARE(base.count(), 0);
        button.SetEnabled(false);
        QVERIFY(Actions(&button).isEmpty());
        Act(&button, PressAction());
        QCOMPARE(spy.count(), 1);
    }

    void pressMayDeleteTheButton()
    {
        auto* button = new CVelmarButton(ButtonTypeText, false, true, 0, nullptr);
        const QPointer<CVelmarButton> alive(button);
        connect(button, &CVelmarButton::SignalClicked, button, [button] { delete button; });
        Act(button, PressAction());
        QVERIFY(alive.isNull());
    }

    void chosenIsToldAsChecked_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<bool>("canBeChosen");
        QTest::newRow("icon") << int(ButtonTypeIcon) << false;
        QTest::newRow("text") << int(ButtonTypeText) << false;
        QTest::newRow("icon, choose") << int(ButtonTypeIconChoose) << true;
        QTest::newRow("text, choose") << int(ButtonTypeTextChoose) << true;
        QTest::newRow("icon and text") << int(ButtonTypeIconText) << false;
        QTest::newRow("icon and text, choose") << int(ButtonTypeIconTextChoose) << true;
        QTest::newRow("image") << int(ButtonTypeIconImage) << false;
        QTest::newRow("image, choose") << int(ButtonTypeIconImageChoose) << true;
    }

    void chosenIsToldAsChecked()
    {
        QFETCH(int, type);
        QFETCH(bool, canBeChosen);
        CVelmarButton button(EnumButtonType(type), false, true, 0, nullptr);
        AccessibleEvents events;
        button.SetChooseFocus(true);
        button.SetChooseFocus(true);
        QCOMPARE(bool(Accessible(&button)->state().checkable), canBeChosen);
        QCOMPARE(bool(Accessible(&button)->state().checked), canBeChosen);
        QCOMPARE(events.Count(&button, QAccessible::StateChanged), canBeChosen ? 1 : 0);
        button.SetChooseFocus(false);
        QVERIFY(!Accessible(&button)->state().checked);
    }

    void newTextIsTold()
    {
        CVelmarButton button(ButtonTypeText, false, true, 0, nullptr);
        AccessibleEvents events;
        button.SetButtonText(QStringLiteral("暂停"), false);
        QCOMPARE(events.Count(&button, QAccessible::NameChanged), 1);
    }

    void aHostsSubclassHasTheSameInterface()
    {
        HostButton button(ButtonTypeText, false, true, 0, nullptr);
        button.SetButtonText(QStringLiteral("开始"), false);
        QSignalSpy spy(&button, &CVelmarButton::SignalClicked);
        QCOMPARE(AccessibleName(&button), QStringLiteral("开始"));
        Act(&button, PressAction());
        QCOMPARE(spy.count(), 1);
    }

    void spaceOnTheFocusedThemedButtonIsOneClick()
    {
        QWidget window;
        auto* button = new CVelmarButton(ButtonTypeText, false, true, 0, &window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        button->setFocus();
        QSignalSpy spy(button, &CVelmarButton::SignalClicked);
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(spy.count(), 1);
        button->setEnabled(false);
        QTest::keyClick(button, Qt::Key_Space);
        QCOMPARE(spy.count(), 1);
    }

    void returnInAnotherFieldOfADialogIsNoClick()
    {
        QDialog dialog;
        auto* layout = new QVBoxLayout(&dialog);
        auto* edit = new QLineEdit;
        auto* button = new CVelmarButton(ButtonTypeText, false, true, 0, nullptr);
        layout->addWidget(edit);
        layout->addWidget(button);
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QSignalSpy spy(button, &CVelmarButton::SignalClicked);
        edit->setFocus();
        QTest::keyClick(edit, Qt::Key_Return);
        QCOMPARE(spy.count(), 0);
        button->setFocus();
        QTest::keyClick(button, Qt::Key_Return);
        QCOMPARE(spy.count(), 1);
    }

    void iconButtonIsNamedByItsOwnText()
    {
        CIconButton button;
        button.SetText(QStringLiteral("导入"));
        QCOMPARE(Accessible(&button)->role(), QAccessible::Button);
        QCOMPARE(AccessibleName(&button), QStringLiteral("导入"));
        QSignalSpy spy(&button, &QAbstractButton::clicked);
        Act(&button, PressAction());
        QCOMPARE(spy.count(), 1);
    }

    void tileIsACheckBoxThatToggles()
    {
        CSelectButton tile;
        tile.setText(QStringLiteral("平面"));
        QCOMPARE(Accessible(&tile)->role(), QAccessible::CheckBox);
        QCOMPARE(AccessibleName(&tile), QStringLiteral("平面"));
        QVERIFY(Actions(&tile).contains(kToggle));
        QSignalSpy spy(&tile, &QAbstractButton::toggled);
        Act(&tile, kToggle);
        QCOMPARE(spy.count(), 1);
        QVERIFY(Accessible(&tile)->state().checked);
        tile.setAutoExclusive(true);
        QCOMPARE(Accessible(&tile)->role(), QAccessible::RadioButton);
    }

    void unitTileIsNamedByValueAndUnit()
    {
        const std::unique_ptr<CUnitButton> tile(new CUnitButton(QStringLiteral("12"), QStringLiteral("mm"), nullptr));
        QCOMPARE(AccessibleName(tile.get()), QStringLiteral("12 mm"));
        tile->setUnit(QString());
        QCOMPARE(AccessibleName(tile.get()), QStringLiteral("12"));
    }

    void hintButtonTellsItsNote()
    {
        CHintButton button;
        QCOMPARE(AccessibleName(&button), QString());
        button.SetToolTipText(QStringLiteral("转速过高"));
        QCOMPARE(AccessibleName(&button), QStringLiteral("转速过高"));
        QCOMPARE(Accessible(&button)->text(QAccessible::Description), QString());
        button.setText(QStringLiteral("主轴(&S)"));
        QCOMPARE(AccessibleName(&button), QStringLiteral("主轴(S)"));
        QCOMPARE(Accessible(&button)->text(QAccessible::Description), QStringLiteral("转速过高"));
        QCOMPARE(Accessible(button.m_pToolTip)->role(), QAccessible::ToolTip);
    }

    void pressOfAHintButtonShowsTheNoteAndClicks()
    {
        CHintButton button;
        button.SetToolTipText(QStringLiteral("转速过高"));
        button.show();
        QSignalSpy spy(&button, &QAbstractButton::clicked);
        Act(&button, PressAction());
        QVERIFY(button.IsToolTipVisible());
        QCOMPARE(spy.count(), 1);
        button.HideToolTip();
    }

    void spaceShowsTheNoteBesideTheButtonAndEscapeHidesIt()
    {
        QWidget window;
        window.resize(300, 200);
        auto* button = new CHintButton(&window);
        auto* other = new QLineEdit(&window);
        button->setGeometry(40, 40, 20, 20);
        button->SetToolTipText(QStringLiteral("转速过高"));
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        button->setFocus(Qt::TabFocusReason);
        QTest::keyClick(button, Qt::Key_Space);
        QVERIFY(button->IsToolTipVisible());
        QVERIFY(button->m_pToolTip->y() >= button->mapToGlobal(QPoint(0, button->height())).y());
        QTest::keyClick(button, Qt::Key_Escape);
        QVERIFY(!button->IsToolTipVisible());
        QTest::keyClick(button, Qt::Key_Space);
        QTest::keyClick(button, Qt::Key_Space);
        QVERIFY(!button->IsToolTipVisible());
        QTest::keyClick(button, Qt::Key_Space);
        other->setFocus(Qt::TabFocusReason);
        QVERIFY(!button->IsToolTipVisible());
    }

    void ringShowsOnlyWhenAKeyHasLedHere_data()
    {
        QTest::addColumn<int>("reason");
        QTest::addColumn<bool>("shown");
        QTest::newRow("Tab") << int(Qt::TabFocusReason) << true;
        QTest::newRow("Backtab") << int(Qt::BacktabFocusReason) << true;
        QTest::newRow("shortcut") << int(Qt::ShortcutFocusReason) << true;
        QTest::newRow("mouse") << int(Qt::MouseFocusReason) << false;
        QTest::newRow("program") << int(Qt::OtherFocusReason) << false;
    }

    void ringShowsOnlyWhenAKeyHasLedHere()
    {
        QFETCH(int, reason);
        QFETCH(bool, shown);
        QWidget window;
        auto* first = new QLineEdit(&window);
        auto* tile = new CUnitButton(QStringLiteral("1"), QStringLiteral("mm"), nullptr);
        tile->setParent(&window);
        tile->move(20, 40);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        first->setFocus();
        const QImage rest = tile->grab().toImage();
        tile->setFocus(Qt::FocusReason(reason));
        QCOMPARE(KeyboardFocus::IsShownOn(tile), shown);
        const QImage focused = tile->grab().toImage();
        QCOMPARE(focused != rest, shown);
        if (shown) {
            QCOMPARE(focused.pixelColor(tile->width() / 2, 0), QColor(0x18, 0x85, 0x53));
        }
        QTest::mouseClick(tile, Qt::LeftButton);
        QVERIFY(!KeyboardFocus::IsShownOn(tile));
        first->setFocus();
        QCOMPARE(tile->grab().toImage(), rest);
    }

    void ringGoesWithItsControl()
    {
        QWidget window;
        auto* tile = new CIconButton(&window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        tile->clearFocus();
        tile->setFocus(Qt::TabFocusReason);
        QVERIFY(KeyboardFocus::IsShownOn(tile));
        delete tile;
        QVERIFY(!KeyboardFocus::IsShownOn(nullptr));
    }
};

CUSTOMCONTROLS_TEST_MAIN(ButtonsAccessibilityTest)

#include "ButtonsAccessibilityTest.moc"
