#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/toolbar/CTabBar.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <tests/support/Accessible.h>
#include <tests/support/InEnglish.h>
#include <tests/support/TestMain.h>

#include <QMenu>
#include <QPointer>
#include <QTimer>

/** The ribbon as a screen reader meets it, and used without the mouse. */
class ToolBarAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TestEnvironment::MoveCursorAway(); }

    void toolIsNamedByItsCaptionInOneLine()
    {
        CToolButton button(nullptr);
        button.setText(QStringLiteral("Generate\nG-code (&G)"));
        QCOMPARE(Accessible(&button)->role(), QAccessible::Button);
        QCOMPARE(AccessibleName(&button), QStringLiteral("Generate G-code (G)"));
        button.setText(QString());
        button.setToolTip(QStringLiteral("生成"));
        QCOMPARE(AccessibleName(&button), QStringLiteral("生成"));
    }

    void pressOfAToolIsOneClick()
    {
        CToolButton button(nullptr);
        button.setText(QStringLiteral("生成"));
        QSignalSpy spy(&button, &QToolButton::clicked);
        Act(&button, PressAction());
        QCOMPARE(spy.count(), 1);
        button.setEnabled(false);
        QVERIFY(Actions(&button).isEmpty());
        Act(&button, PressAction());
        QCOMPARE(spy.count(), 1);
    }

    void pressMayDeleteTheTool()
    {
        auto* button = new CToolButton(nullptr);
        const QPointer<CToolButton> alive(button);
        connect(button, &QToolButton::clicked, button, [button] { delete button; });
        Act(button, PressAction());
        QVERIFY(alive.isNull());
    }

    void checkableToolIsACheckBox()
    {
        CToolButton button(nullptr);
        button.setCheckable(true);
        QCOMPARE(Accessible(&button)->role(), QAccessible::CheckBox);
        Act(&button, QAccessibleActionInterface::toggleAction());
        QVERIFY(Accessible(&button)->state().checked);
    }

    void toolWithAMenuOpensIt()
    {
        CToolButton button(nullptr);
        QMenu menu;
        menu.addAction(QStringLiteral("STL"));
        button.setText(QStringLiteral("导出"));
        button.setMenu(&menu);
        button.setPopupMode(QToolButton::InstantPopup);
        button.show();
        QAccessibleInterface* accessible = Accessible(&button);
        QCOMPARE(accessible->role(), QAccessible::ButtonMenu);
        QVERIFY(accessible->state().hasPopup);
        QCOMPARE(accessible->childCount(), 1);
        QCOMPARE(accessible->child(0)->object(), &menu);
        QVERIFY(!Actions(&button).contains(PressAction()));
        // The button waits in the menu's own loop.
        bool shown = false;
        connect(&menu, &QMenu::aboutToShow, &menu, [&menu, &shown] {
            shown = true;
            QTimer::singleShot(0, &menu, &QWidget::close);
        });
        Act(&button, QAccessibleActionInterface::showMenuAction());
        QTRY_VERIFY(shown);
        QTRY_VERIFY(!menu.isVisible());
        button.setPopupMode(QToolButton::MenuButtonPopup);
        QCOMPARE(accessible->role(), QAccessible::ButtonDropDown);
        QVERIFY(Actions(&button).contains(PressAction()));
    }

    void toolsOfABlockAreReachedByTabAndClickedBySpace()
    {
        CToolBarItem block(QStringLiteral("刀路"), nullptr);
        block.AddItem(QString(), QStringLiteral("粗加工"), 0, QString());
        block.AddItem(QString(), QStringLiteral("精加工"), 0, QString());
        const QList<CToolButton*> tools = block.CreateToolBlock(false);
        QCOMPARE(tools.size(), 2);
        block.resize(400, 78);
        block.show();
        QVERIFY(QTest::qWaitForWindowActive(&block));
        tools.at(0)->setFocus(Qt::TabFocusReason);
        QTest::keyClick(tools.at(0), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), tools.at(1));
        QVERIFY(KeyboardFocus::IsShownOn(tools.at(1)));
        QVERIFY(!KeyboardFocus::IsShownOn(tools.at(0)));
        QSignalSpy spy(tools.at(1), &QToolButton::clicked);
        QTest::keyClick(tools.at(1), Qt::Key_Space);
        QCOMPARE(spy.count(), 1);
        auto* overflow = block.findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
        QCOMPARE(AccessibleName(overflow), QStringLiteral("更多工具"));
        const InEnglish english;
        QCOMPARE(AccessibleName(overflow), QStringLiteral("More tools"));
    }

    void ringPassesOverNoFilterThatSeesThePainting()
    {
        struct Watching : CToolButton
        {
            using CToolButton::CToolButton;
            bool eventFilter(QObject* watched, QEvent* event) override
            {
                m_iPaints += event->type() == QEvent::Paint ? 1 : 0;
                return CToolButton::eventFilter(watched, event);
            }
            int m_iPaints = 0;
        };
        QWidget window;
        auto* other = new QWidget(&window);
        other->setFocusPolicy(Qt::StrongFocus);
        Watching button(&window);
        button.setText(QStringLiteral("仿真"));
        button.resize(60, 60);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other->setFocus();
        button.setFocus(Qt::TabFocusReason);
        QVERIFY(KeyboardFocus::IsShownOn(&button));
        button.m_iPaints = 0;
        const QImage image = button.grab().toImage();
        QCOMPARE(button.m_iPaints, 1);
        QCOMPARE(image.pixelColor(30, 0), QColor(0x18, 0x85, 0x53));
    }

    void ringStandsAroundTheCurrentTab()
    {
        QWidget window;
        auto* other = new QWidget(&window);
        other->setFocusPolicy(Qt::StrongFocus);
        auto* tabs = new CTabBar(&window);
        tabs->addTab(QStringLiteral("刀路"));
        tabs->addTab(QStringLiteral("仿真"));
        tabs->resize(tabs->sizeHint());
        window.resize(tabs->size() + QSize(0, 40));
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        other->setFocus();
        const QImage rest = tabs->grab().toImage();
        tabs->setFocus(Qt::TabFocusReason);
        QTest::keyClick(tabs, Qt::Key_Right);
        QCOMPARE(tabs->currentIndex(), 1);
        const QRect current = tabs->tabRect(1);
        const QImage focused = tabs->grab().toImage();
        QCOMPARE(focused.pixelColor(current.center().x(), current.top() + 1), QColor(0x18, 0x85, 0x53));
        QTest::keyClick(tabs, Qt::Key_Left);
        other->setFocus();
        QCOMPARE(tabs->grab().toImage(), rest);
    }
};

CUSTOMCONTROLS_TEST_MAIN(ToolBarAccessibilityTest)

#include "ToolBarAccessibilityTest.moc"
