#include "MessageBoxesPage.h"

#include "../GalleryTile.h"

#include <CorvaneBase/CorvaneToolBitHelper.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QGridLayout>
#include <QLabel>
#include <QPointer>
#include <QStandardPaths>
#include <QTimer>

#include <array>
#include <memory>

namespace {
constexpr int Columns = 3;
constexpr int PreviewMs = 4000;

QString CodeName(int code)
{
    switch (code) {
    case 0:
        return QStringLiteral("0");
    case MsgBtnOk:
        return QStringLiteral("MsgBtnOk");
    case MsgBtnCancel:
        return QStringLiteral("MsgBtnCancel");
    case MsgBtnYes:
        return QStringLiteral("MsgBtnYes");
    case MsgBtnNo:
        return QStringLiteral("MsgBtnNo");
    case MsgBtnDeletePackage:
        return QStringLiteral("MsgBtnDeletePackage");
    case MsgBtnRemindLater:
        return QStringLiteral("MsgBtnRemindLater");
    case MsgBtnUpgradeNow:
        return QStringLiteral("MsgBtnUpgradeNow");
    case MsgBtnRestartLater:
        return QStringLiteral("MsgBtnRestartLater");
    case MsgBtnRestartNow:
        return QStringLiteral("MsgBtnRestartNow");
    case MsgBtnCancelPlain:
        return QStringLiteral("MsgBtnCancelPlain");
    case MsgBtnUploadParams:
        return QStringLiteral("MsgBtnUploadParams");
    case MsgBtnIgnore:
        return QStringLiteral("MsgBtnIgnore");
    case MsgBtnRetry:
        return QStringLiteral("MsgBtnRetry");
    default:
        return QString::number(code);
    }
}

QGridLayout* CreateGrid()
{
    auto* grid = new QGridLayout;
    grid->setSpacing(12);
    for (int column = 0; column < Columns; ++column) {
        grid->setColumnStretch(column, 1);
    }
    return grid;
}
} // namespace

MessageBoxesPage::MessageBoxesPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("boxOutcome")))
{
    m_pOutcome->setText(tr("点击一个例子，这里会显示返回值。"));
    AddIcons();
    AddEntryPoints();
}

void MessageBoxesPage::ShowCode(int code, const QString& remark)
{
    m_pOutcome->setText(tr("返回值：%1（%2）").arg(code).arg(CodeName(code)) + remark);
}

void MessageBoxesPage::AddQuestion(QGridLayout* grid, const QString& name, const QString& picture, const QString& title,
                                   const QString& detail, const std::function<int()>& ask)
{
    auto* tile = new GalleryTile(name, picture, title, detail);
    // The page may go while the box is open: the program can quit under it.
    connect(tile, &QPushButton::clicked, this, [page = QPointer<MessageBoxesPage>(this), ask] {
        const int code = ask();
        if (page && code >= 0) {
            page->ShowCode(code);
        }
    });
    const int index = grid->count();
    grid->addWidget(tile, index / Columns, index % Columns);
}

//! [box-icons]
void MessageBoxesPage::AddIcons()
{
    QGridLayout* grid = CreateGrid();
    AddQuestion(grid, QStringLiteral("boxInformation"), QStringLiteral(":/icon/img_pop_5.png"), tr("告知"),
                QStringLiteral("MsgIconPop5"), [this] {
                    return CVelmarMessageBox::ShowWindow(window(), MsgBtnOk, MsgIconPop5, tr("提示"),
                                                         tr("工程已保存。"), {});
                });
    AddQuestion(grid, QStringLiteral("boxQuestion"), QStringLiteral(":/icon/img_pop_2.png"), tr("询问"),
                QStringLiteral("MsgIconPop2"), [this] {
                    return CVelmarMessageBox::ShowWindow(window(), MsgBtnOk | MsgBtnCancel, MsgIconPop2, tr("开始加工"),
                                                         tr("请确认毛坯已夹紧，主轴周围没有杂物。"), {});
                });
    AddQuestion(grid, QStringLiteral("boxWarning"), QStringLiteral(":/icon/img_pop_3.png"), tr("警告"),
                QStringLiteral("MsgIconPop3"), [this] {
                    return CVelmarMessageBox::ShowWindow(window(), MsgBtnYes | MsgBtnNo | MsgBtnCancel, MsgIconPop3,
                                                         tr("未保存的修改"), tr("关闭前要保存对“支架”的修改吗？"), {});
                });
    AddQuestion(grid, QStringLiteral("boxSuccess"), QStringLiteral(":/icon/img_pop_1.png"), tr("完成"),
                QStringLiteral("MsgIconPop1"), [this] {
                    return CVelmarMessageBox::ShowWindow(window(), MsgBtnOk, MsgIconPop1, tr("加工完成"),
                                                         tr("用时 1 小时 24 分，请取下工件。"), {});
                });
    auto* preview = new GalleryTile(QStringLiteral("boxLoading"), QStringLiteral(":/icon/gif_pop_bac.gif"), tr("等待"),
                                    QStringLiteral("MsgIconLoading"));
    connect(preview, &QPushButton::clicked, this, &MessageBoxesPage::RunPreview);
    grid->addWidget(preview, grid->count() / Columns, grid->count() % Columns);
    AddQuestion(grid, QStringLiteral("boxLong"), QStringLiteral(":/icon/img_pop_5.png"), tr("长文本"),
                tr("超过 250 个字符，窗口随文字增高"), [this] {
                    const QStringList lines = {
                        tr("1. 先按停止键，等主轴完全停下，再等待两分钟让刀具冷却；刚停下的刀具和夹头会烫手。"),
                        tr("2. 打开防护罩，用吸尘器清掉刀具、夹头和刀库上的切屑，不要用压缩空气吹。"),
                        tr("3. 一手托住刀具，一手用扳手松开夹头，把旧刀具放回刀库里它自己的位置。"),
                        tr("4. 擦净新刀具的刀柄，插到夹头底部，再按规定的力矩拧紧；拧得过紧会损坏夹头。"),
                        tr("5. 核对刀库编号与刀具列表一致，特别是直径相近的平底刀和球头刀。"),
                        tr("6. 关上防护罩，回原点，执行一次对刀；对刀数据超出范围时请重新装夹。"),
                        tr("7. 第一次切削时把进给倍率降到一半，确认声音和切屑正常后再恢复。")};
                    return CVelmarMessageBox::ShowWindow(window(), MsgBtnOk, MsgIconPop5, tr("换刀须知"),
                                                         lines.join(QLatin1Char('\n')), {});
                });
    AddCard(tr("图标"), tr("五种图标各用在它自然的场合。"), QStringLiteral("box-icons"))->addLayout(grid);
}
//! [box-icons]

//! [box-entry-points]
void MessageBoxesPage::AddEntryPoints()
{
    QGridLayout* grid = CreateGrid();
    AddQuestion(
        grid, QStringLiteral("boxRelabelled"), QString(), tr("自定义按钮文字"), QStringLiteral("ShowWindow"), [this] {
            return CVelmarMessageBox::ShowWindow(window(), MsgBtnRetry | MsgBtnIgnore, MsgIconPop3, tr("刀具磨损"),
                                                 tr("2 号刀具已使用 40 小时。"),
                                                 {{MsgBtnIgnore, tr("继续使用")}, {MsgBtnRetry, tr("更换刀具")}});
        });
    AddQuestion(grid, QStringLiteral("boxUpgrade"), QString(), tr("升级"), QStringLiteral("ShowWindowExt"), [this] {
        return CVelmarMessageBox::ShowWindowExt(window(), MsgBtnDeletePackage | MsgBtnRemindLater | MsgBtnUpgradeNow,
                                                MsgIconPop2, tr("发现新版本"), tr("新版本已下载完成，可以立即安装。"));
    });
    AddQuestion(grid, QStringLiteral("boxAutoClose"), QString(), tr("两秒后消失"),
                QStringLiteral("ShowWindowAutoClose"), [this] {
                    return CVelmarMessageBox::ShowWindowAutoClose(window(), 0, MsgIconPop1, QString(),
                                                                  tr("刀路已复制到剪贴板。"));
                });
    AddQuestion(grid, QStringLiteral("boxWithoutClose"), QString(), tr("必须回答"),
                QStringLiteral("ShowWindowWithoutClose"), [this] {
                    return CVelmarMessageBox::ShowWindowWithoutClose(window(), MsgBtnYes | MsgBtnNo, MsgIconPop3,
                                                                     tr("急停已触发"), tr("机床是否处于安全状态？"));
                });
    auto* check = new GalleryTile(QStringLiteral("boxCheck"), QString(), tr("不再提醒"),
                                  QStringLiteral("ShowWindowWithCheckBox"));
    connect(check, &QPushButton::clicked, this, [page = QPointer<MessageBoxesPage>(this)] {
        const std::pair<int, bool> answer =
            CVelmarMessageBox::ShowWindowWithCheckBox(page->window(), MsgBtnOk | MsgBtnCancel, MsgIconPop5,
                                                      tr("回原点"), tr("主轴将移动到机床原点。"), QString(), false, {});
        if (page) {
            page->ShowCode(answer.first, answer.second ? tr("，已勾选") : tr("，未勾选"));
        }
    });
    grid->addWidget(check, grid->count() / Columns, grid->count() % Columns);
    AddQuestion(grid, QStringLiteral("boxCenter"), QString(), tr("主窗口居中"),
                QStringLiteral("ShowWindowScreenCenter"), [this] {
                    return CVelmarMessageBox::ShowWindowScreenCenter(this, MsgBtnOk, MsgIconPop5, tr("提示"),
                                                                     tr("扫描数据已导入。"));
                });
    AddQuestion(grid, QStringLiteral("boxOpenFolder"), QString(), tr("打开所在文件夹"),
                QStringLiteral("ShowWindowAndOpenDir"), [this] {
                    return CVelmarMessageBox::ShowWindowAndOpenDir(
                        window(), QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
                        tr("刀路文件已导出。"), MsgIconPop1, QString());
                });
    AddQuestion(grid, QStringLiteral("boxDiskSpace"), QString(), tr("磁盘空间不足"),
                QStringLiteral("ShowDiskSpaceWindow"), [this] {
                    CVelmarMessageBox::ShowDiskSpaceWindow(window(), tr("磁盘剩余空间不足 2 GB，扫描可能中断。"));
                    return -1;
                });
    AddQuestion(grid, QStringLiteral("boxTools"), QString(), tr("确认刀具"), QStringLiteral("ShowGCodeConfirmWindow"),
                [this] {
                    return CVelmarMessageBox::ShowGCodeConfirmWindow(window(), MsgBtnOk, MsgIconPop2, tr("请确认刀具"),
                                                                     {1, 2, 7}, {3, 1}, {4, 5, 6}, {{8, 2, -1}}, 8,
                                                                     ModelTypeStandard);
                });
    auto* stacked = new GalleryTile(QStringLiteral("boxStacked"), QString(), tr("框上再问"), tr("后开的框先结束"));
    connect(stacked, &QPushButton::clicked, this, &MessageBoxesPage::RunStacked);
    grid->addWidget(stacked, grid->count() / Columns, grid->count() % Columns);
    AddCard(tr("入口"), tr("每个静态函数一个例子。"), QStringLiteral("box-entry-points"))->addLayout(grid);
}
//! [box-entry-points]

//! [box-icons]
void MessageBoxesPage::RunPreview()
{
    // A box that the host ends itself: it is built by hand, run, and let go when the work is done.
    auto box = std::make_unique<CVelmarMessageBox>(window(), MsgBtnCancelPlain, MsgIconLoading, tr("正在计算"),
                                                   tr("正在生成加工预览"), false, false,
                                                   QMap<EnumMsgButtonFunction, QString>());
    QPointer<CVelmarMessageBox> guard(box.get());
    QPointer<MessageBoxesPage> page(this);
    QTimer::singleShot(PreviewMs, box.get(), [guard] { guard->MsgExit(MsgBtnOk); });
    const int code = box->MsgExec();
    if (!guard) {
        box.release();
    }
    if (page) {
        ShowCode(code);
    }
}
//! [box-icons]

//! [box-entry-points]
void MessageBoxesPage::RunStacked()
{
    // The first box asks again before it lets its answer through: the second one runs on top of it.
    auto box = std::make_unique<CVelmarMessageBox>(window(), MsgBtnDeletePackage | MsgBtnCancelPlain, MsgIconPop3,
                                                   tr("安装包"), tr("安装包占用 1.2 GB。"), false, false,
                                                   QMap<EnumMsgButtonFunction, QString>());
    QPointer<CVelmarMessageBox> guard(box.get());
    QPointer<MessageBoxesPage> page(this);
    int confirmed = 0;
    connect(box.get(), &CVelmarMessageBox::SignalMessageBoxOperation, box.get(), [guard, &confirmed](int code) {
        if (code == MsgBtnDeletePackage) {
            confirmed = CVelmarMessageBox::ShowWindow(guard, MsgBtnYes | MsgBtnNo, MsgIconPop3, tr("再次确认"),
                                                      tr("删除后需要重新下载，确定吗？"), {});
        }
    });
    const int code = box->MsgExec();
    if (!guard) {
        box.release();
    }
    if (page) {
        ShowCode(confirmed ? confirmed : code);
    }
}
//! [box-entry-points]
