#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include "RunningBox.h"
#include <tests/support/Accessible.h>
#include <tests/support/AccessibleEvents.h>
#include <tests/support/InEnglish.h>
#include <tests/support/TestMain.h>

#include <QCheckBox>
#include <QListWidget>
#include <QScrollBar>

/** Message boxes as a screen reader meets them, and answered without the mouse. */
class MessageBoxAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boxIsADialogThatAlerts()
    {
        AccessibleEvents events;
        InNextBox([&events](CVelmarMessageBox* box) {
            QAccessibleInterface* dialog = Accessible(box);
            QCOMPARE(dialog->role(), QAccessible::Dialog);
            QCOMPARE(dialog->text(QAccessible::Name), QStringLiteral("提示"));
            QCOMPARE(dialog->text(QAccessible::Description), QStringLiteral("确定要删除吗？"));
            QVERIFY(dialog->state().modal);
            QCOMPARE(events.Count(box, QAccessible::Alert), 1);
            box->MsgExit(kOtherExit);
        });
        CVelmarMessageBox::ShowWindow(nullptr, MsgBtnYes | MsgBtnNo, MsgIconPop1, QStringLiteral("提示"),
                                      QStringLiteral("确定要删除吗？"), {});
    }

    void boxWithoutTitleIsNamedByItsContent()
    {
        InNextBox([](CVelmarMessageBox* box) {
            QCOMPARE(AccessibleName(box), QStringLiteral("已完成"));
            box->MsgExit(kOtherExit);
        });
        CVelmarMessageBox::ShowWindow(nullptr, MsgBtnOk, MsgIconPop1, QString(), QStringLiteral("已完成"), {});
    }

    void everyButtonHasANameAndAPress()
    {
        InNextBox([](CVelmarMessageBox* box) {
            QStringList names;
            const QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
            for (QPushButton* button : buttons) {
                QVERIFY(!AccessibleName(button).isEmpty());
                QVERIFY(Actions(button).contains(PressAction()));
            }
            QCOMPARE(AccessibleName(box->m_pBtnClose), QStringLiteral("关闭"));
            {
                const InEnglish english;
                QCOMPARE(AccessibleName(box->m_pBtnClose), QStringLiteral("Close"));
            }
            Act(ButtonOf(box, MsgBtnNo), PressAction());
        });
        QCOMPARE(CVelmarMessageBox::ShowWindow(nullptr, MsgBtnYes | MsgBtnNo | MsgBtnCancel, MsgIconPop1,
                                               QStringLiteral("提示"), QStringLiteral("保存？"), {}),
                 int(MsgBtnNo));
    }

    void tabAndReturnAnswer()
    {
        InNextBox([](CVelmarMessageBox* box) {
            QVERIFY(QTest::qWaitForWindowActive(box));
            ButtonOf(box, MsgBtnYes)->setFocus(Qt::TabFocusReason);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QCOMPARE(QApplication::focusWidget(), ButtonOf(box, MsgBtnNo));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        });
        QCOMPARE(CVelmarMessageBox::ShowWindow(nullptr, MsgBtnYes | MsgBtnNo, MsgIconPop1, QStringLiteral("提示"),
                                               QStringLiteral("保存？"), {}),
                 int(MsgBtnNo));
    }

    void tabReachesEveryButtonAndTheCheckBox()
    {
        InNextBox([](CVelmarMessageBox* box) {
            QVERIFY(QTest::qWaitForWindowActive(box));
            QSet<QWidget*> reached;
            for (int i = 0; i < 6; ++i) {
                QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget() : box, Qt::Key_Tab);
                reached.insert(QApplication::focusWidget());
            }
            auto* checkBox = box->findChild<QCheckBox*>(QStringLiteral("checkBox"));
            QVERIFY(reached.contains(checkBox));
            QVERIFY(reached.contains(ButtonOf(box, MsgBtnYes)));
            QVERIFY(reached.contains(ButtonOf(box, MsgBtnNo)));
            checkBox->setFocus(Qt::TabFocusReason);
            QTest::keyClick(checkBox, Qt::Key_Space);
            ButtonOf(box, MsgBtnYes)->setFocus(Qt::TabFocusReason);
            QTest::keyClick(ButtonOf(box, MsgBtnYes), Qt::Key_Space);
        });
        const std::pair<int, bool> answer = CVelmarMessageBox::ShowWindowWithCheckBox(
            nullptr, MsgBtnYes | MsgBtnNo, MsgIconPop1, QStringLiteral("提示"), QStringLiteral("保存？"),
            QStringLiteral("不再提示"), false, {});
        QCOMPARE(answer, std::make_pair(int(MsgBtnYes), true));
    }

    void pageKeysTurnTheListOfTools()
    {
        InNextBox([](CVelmarMessageBox* box) {
            QVERIFY(QTest::qWaitForWindowActive(box));
            QScrollBar* bar = box->findChild<QListWidget*>()->verticalScrollBar();
            QTRY_VERIFY(bar->maximum() > 0);
            QTest::keyClick(box, Qt::Key_PageDown);
            QVERIFY(bar->value() > 0);
            QTest::keyClick(box, Qt::Key_PageUp);
            QCOMPARE(bar->value(), 0);
            box->MsgExit(kOtherExit);
        });
        CVelmarMessageBox::ShowGCodeConfirmWindow(nullptr, 0, MsgIconPop1, QStringLiteral("确认"),
                                                  {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}, {11, 12}, {}, {}, -1, ModelType(0));
    }
};

CUSTOMCONTROLS_TEST_MAIN(MessageBoxAccessibilityTest)

#include "MessageBoxAccessibilityTest.moc"
