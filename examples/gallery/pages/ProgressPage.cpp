#include "ProgressPage.h"

#include "../GalleryTile.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/CProgressWidget/CProgressBar.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QGridLayout>
#include <QLabel>
#include <QTimer>

namespace {
constexpr int AutomaticMs = 3500;
constexpr int JobStep = 2;
constexpr int JobIntervalMs = 60;
constexpr int StageValue = 50;
constexpr int QueueMs = 120;
constexpr int BarHeight = 18;
constexpr auto BarSheet = "QProgressBar{background:#e6e9e8;border:none;border-radius:4px;}"
                          "QProgressBar::chunk{background:%1;border-radius:4px;}";
} // namespace

ProgressPage::ProgressPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("progressOutcome")))
    , m_pJob(new QTimer(this))
    , m_pQueue(new QTimer(this))
{
    m_pOutcome->setText(tr("点击一个例子开始。"));
    connect(m_pJob, &QTimer::timeout, this, [this] {
        if (!m_pDialog) {
            m_pJob->stop();
            return;
        }
        m_iDone += JobStep;
        if (m_iDone > 100) {
            Finish(tr("任务完成"));
        } else if (m_bWriteReference) {
            m_pDialog->getValueRef() = m_iDone;
        } else {
            m_pDialog->setValue(m_iDone, true);
        }
    });

    auto* grid = new QGridLayout;
    grid->setSpacing(12);
    const auto add = [this, grid](const QString& name, const QString& title, const QString& detail, auto slot) {
        auto* tile = new GalleryTile(name, QStringLiteral(":/icon/gif_pop_bac.gif"), title, detail);
        connect(tile, &QPushButton::clicked, this, slot);
        grid->addWidget(tile, grid->count() / 2, grid->count() % 2);
    };
    add(QStringLiteral("progressAuto"), tr("自动前进"), tr("CreateAutoWidget：任务不知道进度"),
        &ProgressPage::RunAutomatically);
    add(QStringLiteral("progressValue"), tr("程序给出进度"), tr("setValue：每一步报告一次"), &ProgressPage::RunByValue);
    add(QStringLiteral("progressStage"), tr("分阶段提示"), tr("setStageText：过半后换一句话"),
        &ProgressPage::RunWithStages);
    add(QStringLiteral("progressClose"), tr("可以取消"), tr("BindCloseButton：关闭前先询问"),
        &ProgressPage::RunCancellable);
    add(QStringLiteral("progressLong"), tr("长提示"), tr("文字换行，窗口随之增高"), &ProgressPage::RunWithLongText);
    AddCard(tr("例子"), tr("对话框打开时其余窗口不可操作，任务结束后自动关闭。"), QStringLiteral("progress-dialogs"))
        ->addLayout(grid);
    AddBars();
}

//! [progress-bars]
void ProgressPage::AddBars()
{
    struct Job
    {
        QString name;
        int done;
        const char* color;
    };
    const Job jobs[] = {
        {tr("支架  粗加工"), 72, "#188553"}, {tr("支架  精加工"), 38, "#2ab475"}, {tr("铭牌  雕刻"), 8, "#285be3"}};
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(12);
    grid->setColumnStretch(1, 1);
    int row = 0;
    for (const Job& job : jobs) {
        auto* name = new QLabel(job.name);
        name->setFont(FontCn_14);
        auto* bar = new CProgressBar;
        bar->setObjectName(QStringLiteral("queueBar%1").arg(row));
        bar->setAccessibleName(job.name);
        bar->setFont(FontCn_12);
        bar->setFixedHeight(BarHeight);
        bar->setStyleSheet(QLatin1String(BarSheet).arg(QLatin1String(job.color)));
        bar->setTextVisible(false); // the toolkit's own text; the bar writes a better one
        bar->SetColor(QColor(0x33, 0x33, 0x33), Qt::white);
        bar->setValue(job.done);
        connect(m_pQueue, &QTimer::timeout, bar, [bar] { bar->setValue(bar->value() % bar->maximum() + 1); });
        grid->addWidget(name, row, 0);
        grid->addWidget(bar, row, 1);
        ++row;
    }
    m_pQueue->setInterval(QueueMs);
    AddCard(tr("加工队列"), tr("进度条里的百分比在填充的边缘换色。"), QStringLiteral("progress-bars"))->addLayout(grid);
}
//! [progress-bars]

void ProgressPage::showEvent(QShowEvent* event)
{
    GalleryPage::showEvent(event);
    m_pQueue->start();
}

void ProgressPage::hideEvent(QHideEvent* event)
{
    GalleryPage::hideEvent(event);
    m_pQueue->stop();
}

ProgressPage::~ProgressPage()
{
    CProgressWidget::FreeAutoWidget(m_pDialog, false);
}

//! [progress-dialogs]
void ProgressPage::Open(const QString& text, const QString& title)
{
    CProgressWidget::FreeAutoWidget(m_pDialog, false);
    m_pDialog = CProgressWidget::CreateWidgetPtr();
    m_pDialog->setProText(text, title);
    m_pDialog->HideCloseButton();
    m_pDialog->show();
    m_pOutcome->setText(tr("正在运行：%1").arg(title));
}
//! [progress-dialogs]

void ProgressPage::StartJob(int intervalMs, bool writeReference)
{
    m_iDone = 0;
    m_bWriteReference = writeReference;
    m_pJob->start(intervalMs);
}

//! [progress-dialogs]
void ProgressPage::Finish(const QString& outcome)
{
    m_pJob->stop();
    CProgressWidget::FreeAutoWidget(m_pDialog, true);
    m_pDialog.clear();
    m_pOutcome->setText(outcome);
}
//! [progress-dialogs]

//! [progress-dialogs]
void ProgressPage::RunAutomatically()
{
    CProgressWidget::FreeAutoWidget(m_pDialog, false);
    m_pDialog = CProgressWidget::CreateAutoWidget(tr("正在分析模型"), tr("打开模型"));
    m_pOutcome->setText(tr("正在运行：%1").arg(tr("打开模型")));
    QTimer::singleShot(AutomaticMs, this, [this] {
        if (m_pDialog) {
            m_pDialog->endAutoAddNumRun();
        }
        Finish(tr("任务完成"));
    });
}
//! [progress-dialogs]

//! [progress-dialogs]
void ProgressPage::RunByValue()
{
    Open(tr("正在导出刀路"), tr("导出"));
    StartJob(JobIntervalMs, false);
}
//! [progress-dialogs]

//! [progress-dialogs]
void ProgressPage::RunWithStages()
{
    Open(tr("正在读取点云"), tr("导入扫描数据"));
    m_pDialog->setStageText(StageValue, tr("正在重建表面"));
    m_pDialog->extrAddNumRun();
    StartJob(JobIntervalMs, true);
}
//! [progress-dialogs]

//! [progress-dialogs]
void ProgressPage::RunCancellable()
{
    Open(tr("正在上传加工文件"), tr("上传"));
    m_pDialog->BindCloseButton();
    connect(m_pDialog, &CProgressWidget::signalCloseBtnClicked, this, [this] {
        m_pJob->stop();
        QPointer<ProgressPage> page(this);
        const int code = CVelmarMessageBox::ShowWindow(m_pDialog, MsgBtnYes | MsgBtnNo, MsgIconPop3, tr("上传"),
                                                       tr("确定要取消上传吗？"), {});
        if (!page || !m_pDialog) {
            return;
        }
        if (code == MsgBtnYes) {
            Finish(tr("已取消"));
        } else {
            m_pDialog->EnableCloseButton();
            m_pJob->start();
        }
    });
    StartJob(4 * JobIntervalMs, false);
}
//! [progress-dialogs]

void ProgressPage::RunWithLongText()
{
    Open(tr("正在把新的固件写入机床。写入期间请不要断开电源，也不要拔下数据线；机床会自行重新启动一次，"
            "指示灯变为绿色之后才可以继续操作"),
         tr("升级固件"));
    StartJob(JobIntervalMs, false);
}
