#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/feedback/CFrostedToolTip.h>
#include <CustomControls/feedback/ToastWidget.h>

#include <tests/support/Accessible.h>
#include <tests/support/AccessibleEvents.h>
#include <tests/support/InEnglish.h>
#include <tests/support/TestMain.h>

#include <QProgressBar>
#include <QPushButton>

/** What is told of notices, tips and progress. */
class FeedbackAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toastAlertsWithItsWordsEachTimeItShows()
    {
        AccessibleEvents events;
        ToastWidget toast(ToastWidget::ToastCustomText, nullptr, QStringLiteral("主轴已停止"));
        QCOMPARE(events.Count(&toast, QAccessible::Alert), 0);
        toast.show();
        QCOMPARE(events.Count(&toast, QAccessible::Alert), 1);
        QCOMPARE(Accessible(&toast)->role(), QAccessible::AlertMessage);
        QCOMPARE(AccessibleName(&toast), QStringLiteral("主轴已停止"));
        QCOMPARE(Accessible(&toast)->childCount(), 0);
        toast.hide();
        toast.show();
        QCOMPARE(events.Count(&toast, QAccessible::Alert), 2);
        for (const AccessibleEvents::Event& event : events.All()) {
            if (event.eType == QAccessible::Alert) {
                QCOMPARE(event.strName, QStringLiteral("主轴已停止"));
            }
        }
    }

    void toolTipIsNamedByItsWords()
    {
        auto* tip = new CFrostedToolTip(QStringLiteral("<b>进给</b>倍率"), nullptr);
        QCOMPARE(Accessible(tip)->role(), QAccessible::ToolTip);
        QCOMPARE(AccessibleName(tip), QStringLiteral("进给倍率"));
        delete tip;
    }

    void progressIsADialogWithAValue()
    {
        CProgressWidget dialog;
        dialog.setProText(QStringLiteral("正在计算刀路"), QStringLiteral("计算"));
        QCOMPARE(Accessible(&dialog)->role(), QAccessible::Dialog);
        QCOMPARE(AccessibleName(&dialog), QStringLiteral("计算"));
        QCOMPARE(Accessible(&dialog)->text(QAccessible::Description), QStringLiteral("正在计算刀路"));
        dialog.show();
        auto* bar = dialog.findChild<QProgressBar*>();
        QCOMPARE(AccessibleName(bar), QStringLiteral("进度"));
        dialog.setValue(40, false);
        QCOMPARE(Accessible(bar)->valueInterface()->currentValue().toInt(), 40);
    }

    void namesThatNobodySeesFollowTheLanguage()
    {
        CProgressWidget dialog; // while it is hidden too
        const auto* bar = dialog.findChild<QProgressBar*>();
        {
            const InEnglish english;
            QCOMPARE(bar->accessibleName(), QStringLiteral("Progress"));
            QCOMPARE(dialog.m_pBtnClose->accessibleName(), QStringLiteral("Close"));
        }
        QCOMPARE(bar->accessibleName(), QStringLiteral("进度"));
        QCOMPARE(dialog.m_pBtnClose->accessibleName(), QStringLiteral("关闭"));
    }

    void closeButtonOfTheProgressDialogIsReachedByTab()
    {
        CProgressWidget dialog;
        dialog.setProText(QStringLiteral("正在计算刀路"), QStringLiteral("计算"));
        dialog.BindCloseButton();
        dialog.show();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        QCOMPARE(AccessibleName(dialog.m_pBtnClose), QStringLiteral("关闭"));
        QSignalSpy spy(&dialog, &CProgressWidget::signalCloseBtnClicked);
        QTest::keyClick(&dialog, Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), dialog.m_pBtnClose);
        QTest::keyClick(dialog.m_pBtnClose, Qt::Key_Space);
        QCOMPARE(spy.count(), 1);
    }
};

CUSTOMCONTROLS_TEST_MAIN(FeedbackAccessibilityTest)

#include "FeedbackAccessibilityTest.moc"
