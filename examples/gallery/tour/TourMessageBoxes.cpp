#include "../GalleryWindow.h"
#include "Tour.h"
#include "TourLook.h"

#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QApplication>
#include <QListWidget>
#include <QPushButton>

using namespace TourLook;

namespace {
QString CodesText(const QList<int>& codes)
{
    QStringList texts;
    for (int code : codes) {
        texts.append(QString::number(code));
    }
    return texts.join(QLatin1Char(' '));
}

TourStep Open(const char* tile, const QString& title, const QString& text, const QList<int>& codes,
              const std::function<QString()>& more = {})
{
    return {QStringLiteral("open ") + QLatin1String(tile),
            [tile](TourInput& input) { input.Click(Find(QLatin1String(tile))); },
            [title, text, codes, more] {
                return True(Box(), QStringLiteral("there is no box")) +
                       Equal(QStringLiteral("the title"), BoxTitle(), title) +
                       BeginsWith(QStringLiteral("the text"), BoxText(), text) +
                       Equal(QStringLiteral("the row of buttons"), CodesText(BoxCodes()), CodesText(codes)) +
                       (more ? more() : QString());
            }};
}

std::function<QString()> Answered(const QString& outcome)
{
    return [outcome] {
        return True(!Box(), QStringLiteral("the box is still there")) +
               BeginsWith(QStringLiteral("the outcome"), Text(QStringLiteral("boxOutcome")), outcome);
    };
}

QString Returned(int code)
{
    return QStringLiteral("返回值：%1（").arg(code);
}

TourStep Answer(int code)
{
    return {QStringLiteral("answer with button %1").arg(code),
            [code](TourInput& input) { input.Click(BoxButton(code)); }, Answered(Returned(code))};
}

TourStep AnswerByKey(const QString& key, int code)
{
    return {QStringLiteral("answer with ") + key, [key](TourInput& input) { input.Key(key); },
            Answered(Returned(code))};
}
} // namespace

TourGroup TourMessageBoxes(Tour* tour)
{
    TourGroup group{QStringLiteral("message-boxes"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("message-boxes")));
    steps.push_back(Open("boxInformation", QStringLiteral("提示"), QStringLiteral("工程已保存。"), {MsgBtnOk}));
    steps.push_back(AnswerByKey(QStringLiteral("Return"), MsgBtnOk));
    steps.push_back(
        Open("boxQuestion", QStringLiteral("开始加工"), QStringLiteral("请确认毛坯已夹紧"), {MsgBtnOk, MsgBtnCancel}));
    steps.push_back(AnswerByKey(QStringLiteral("Escape"), MsgBtnCancel));
    steps.push_back(Open("boxWarning", QStringLiteral("未保存的修改"), QStringLiteral("关闭前要保存"),
                         {MsgBtnYes, MsgBtnNo},
                         [] { return True(BoxCloseButton(), QStringLiteral("there is no close button")); }));
    steps.push_back({QStringLiteral("answer with the close button"),
                     [](TourInput& input) { input.Click(BoxCloseButton()); }, Answered(Returned(MsgBtnCancel))});
    steps.push_back(Open("boxSuccess", QStringLiteral("加工完成"), QStringLiteral("用时 1 小时"), {MsgBtnOk}));
    steps.push_back(Answer(MsgBtnOk));
    steps.push_back(
        Open("boxLoading", QStringLiteral("正在计算"), QStringLiteral("正在生成加工预览.."), {MsgBtnCancelPlain}));
    steps.push_back({QStringLiteral("the host ends the box"), {}, Answered(Returned(MsgBtnOk))});
    steps.push_back(Open("boxLong", QStringLiteral("换刀须知"), QStringLiteral("1. 先按停止键"), {MsgBtnOk}, [] {
        return True(Box() && Box()->height() > 300, QStringLiteral("the box has not grown with its text"));
    }));
    steps.push_back(Answer(MsgBtnOk));

    steps.push_back(
        Open("boxRelabelled", QStringLiteral("刀具磨损"), QStringLiteral("2 号刀具"), {MsgBtnIgnore, MsgBtnRetry}, [] {
            QPushButton* retry = BoxButton(MsgBtnRetry);
            return Equal(QStringLiteral("the second button"), retry ? retry->text() : QString(),
                         QStringLiteral("更换刀具"));
        }));
    steps.push_back(Answer(MsgBtnRetry));
    steps.push_back(Open("boxUpgrade", QStringLiteral("发现新版本"), QStringLiteral("新版本已下载完成"),
                         {MsgBtnDeletePackage, MsgBtnRemindLater, MsgBtnUpgradeNow}));
    steps.push_back(Answer(MsgBtnUpgradeNow));
    steps.push_back(Open("boxAutoClose", QString(), QStringLiteral("刀路已复制到剪贴板。"), {}));
    steps.push_back({QStringLiteral("the notice goes by itself"), {}, Answered(Returned(0))});
    steps.push_back(Open("boxWithoutClose", QStringLiteral("急停已触发"), QStringLiteral("机床是否处于安全状态"),
                         {MsgBtnYes, MsgBtnNo}));
    steps.push_back({QStringLiteral("Escape is no answer"),
                     [](TourInput& input) { input.Key(QStringLiteral("Escape")); },
                     [] { return True(Box(), QStringLiteral("Escape has closed the box")); }});
    steps.push_back(Answer(MsgBtnNo));
    steps.push_back(
        Open("boxCheck", QStringLiteral("回原点"), QStringLiteral("主轴将移动"), {MsgBtnOk, MsgBtnCancel}, [] {
            return Equal(QStringLiteral("the check box"), Text(QStringLiteral("checkBox")), QStringLiteral("不再提醒"));
        }));
    steps.push_back({QStringLiteral("tick the box and confirm"),
                     [](TourInput& input) {
                         QWidget* check = Find(QStringLiteral("checkBox"));
                         input.Click(check, check ? QPoint(10, check->height() / 2) : QPoint());
                         input.Click(BoxButton(MsgBtnOk));
                     },
                     Answered(QStringLiteral("返回值：1（MsgBtnOk），已勾选"))});
    steps.push_back(Open("boxCenter", QStringLiteral("提示"), QStringLiteral("扫描数据已导入。"), {MsgBtnOk}, [tour] {
        const QPoint distance =
            Box() ? Box()->geometry().center() - tour->Window()->geometry().center() : QPoint(1000, 1000);
        return True(distance.manhattanLength() <= 2, QStringLiteral("the box is not in the middle of the main window"));
    }));
    steps.push_back(AnswerByKey(QStringLiteral("Return"), MsgBtnOk));
    steps.push_back(
        Open("boxOpenFolder", QStringLiteral("提示"), QStringLiteral("刀路文件已导出。"), {MsgBtnYes, MsgBtnNo}, [] {
            QPushButton* open = BoxButton(MsgBtnYes);
            return Equal(QStringLiteral("the first button"), open ? open->text() : QString(),
                         QStringLiteral("打开文件夹位置"));
        }));
    steps.push_back(Answer(MsgBtnNo));
    steps.push_back({QStringLiteral("open boxDiskSpace"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("boxDiskSpace"))); },
                     [] {
                         return True(Box(), QStringLiteral("there is no box")) +
                                BeginsWith(QStringLiteral("the text"), BoxText(), QStringLiteral("磁盘剩余空间不足"));
                     }});
    steps.push_back({QStringLiteral("decline the warning for good"),
                     [](TourInput& input) {
                         QWidget* check = Find(QStringLiteral("checkBox"));
                         input.Click(check, check ? QPoint(10, check->height() / 2) : QPoint());
                         input.Click(BoxButton(MsgBtnYes));
                     },
                     [] { return True(!Box(), QStringLiteral("the box is still there")); }});
    steps.push_back({QStringLiteral("the warning does not come again"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("boxDiskSpace"))); },
                     [] { return True(!Box(), QStringLiteral("the box has come again")); }});
    steps.push_back(Open("boxStacked", QStringLiteral("安装包"), QStringLiteral("安装包占用"),
                         {MsgBtnDeletePackage, MsgBtnCancelPlain}));
    steps.push_back({QStringLiteral("a second box over the first"),
                     [](TourInput& input) { input.Click(BoxButton(MsgBtnDeletePackage)); },
                     [] {
                         int boxes = 0;
                         for (QWidget* widget : QApplication::topLevelWidgets()) {
                             boxes += widget->isVisible() && qobject_cast<CVelmarMessageBox*>(widget) ? 1 : 0;
                         }
                         return Equal(QStringLiteral("the title"), BoxTitle(), QStringLiteral("再次确认")) +
                                True(boxes == 2, QStringLiteral("%1 boxes show").arg(boxes));
                     }});
    steps.push_back(Answer(MsgBtnNo));
    return group;
}
