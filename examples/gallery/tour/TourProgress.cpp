#include "Tour.h"
#include "TourLook.h"

#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QLabel>
#include <QPushButton>

using namespace TourLook;

namespace {
QString ProgressText()
{
    auto* label = Progress() ? Progress()->findChild<QLabel*>(QStringLiteral("label_7")) : nullptr;
    return label ? label->text() : QString();
}

QPushButton* ProgressCloseButton()
{
    return Progress() ? Progress()->findChild<QPushButton*>(QString(), Qt::FindDirectChildrenOnly) : nullptr;
}

TourStep Open(const char* tile, const QString& title, const QString& text, const std::function<QString()>& more = {})
{
    return {QStringLiteral("open ") + QLatin1String(tile),
            [tile](TourInput& input) { input.Click(Find(QLatin1String(tile))); },
            [title, text, more] {
                return Equal(QStringLiteral("the title"), Progress() ? Progress()->getTitle() : QString(), title) +
                       BeginsWith(QStringLiteral("the message"), ProgressText(), text) + (more ? more() : QString());
            }};
}

TourStep Ends(const QString& outcome)
{
    return {QStringLiteral("the dialog goes"), {}, [outcome] {
                return True(!Progress(), QStringLiteral("the dialog is still there")) +
                       Equal(QStringLiteral("the outcome"), Text(QStringLiteral("progressOutcome")), outcome);
            }};
}
} // namespace

TourGroup TourProgress(Tour*)
{
    const QString done = QStringLiteral("任务完成");
    TourGroup group{QStringLiteral("progress"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("progress")));
    steps.push_back(Open("progressAuto", QStringLiteral("打开模型"), QStringLiteral("正在分析模型."), [] {
        return True(ProgressCloseButton() && !ProgressCloseButton()->isVisible(),
                    QStringLiteral("the close button shows"));
    }));
    steps.push_back(Ends(done));
    steps.push_back(Open("progressValue", QStringLiteral("导出"), QStringLiteral("正在导出刀路"), [] {
        return True(Progress() && Progress()->getValueRef() >= 30, QStringLiteral("the value does not rise"));
    }));
    steps.push_back(Ends(done));
    steps.push_back(Open("progressStage", QStringLiteral("导入扫描数据"), QStringLiteral("正在读取点云")));
    steps.push_back({QStringLiteral("the next stage takes over"), {}, [] {
                         return BeginsWith(QStringLiteral("the message"), ProgressText(),
                                           QStringLiteral("正在重建表面"));
                     }});
    steps.push_back(Ends(done));
    steps.push_back(Open("progressClose", QStringLiteral("上传"), QStringLiteral("正在上传加工文件"), [] {
        return True(ProgressCloseButton() && ProgressCloseButton()->isVisible(),
                    QStringLiteral("there is no close button"));
    }));
    const auto askToClose = [](TourInput& input) { input.Click(ProgressCloseButton()); };
    const auto asked = [] {
        return BeginsWith(QStringLiteral("the question"), BoxText(), QStringLiteral("确定要取消上传吗？"));
    };
    steps.push_back({QStringLiteral("the close button asks"), askToClose, asked});
    steps.push_back({QStringLiteral("no goes on"), [](TourInput& input) { input.Click(BoxButton(MsgBtnNo)); },
                     [] {
                         return True(!Box() && ProgressCloseButton() && ProgressCloseButton()->isEnabled(),
                                     QStringLiteral("the close button is not usable again"));
                     }});
    steps.push_back({QStringLiteral("the close button asks again"), askToClose, asked});
    TourStep cancelled = Ends(QStringLiteral("已取消"));
    cancelled.strName = QStringLiteral("yes ends the job");
    cancelled.act = [](TourInput& input) { input.Click(BoxButton(MsgBtnYes)); };
    steps.push_back(cancelled);
    steps.push_back(Open("progressLong", QStringLiteral("升级固件"), QStringLiteral("正在把新的固件写入机床"), [] {
        return True(Progress() && Progress()->height() > 140, QStringLiteral("the dialog has not grown with its text"));
    }));
    steps.push_back(Ends(done));
    return group;
}
