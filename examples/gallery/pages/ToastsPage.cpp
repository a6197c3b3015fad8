#include "ToastsPage.h"

#include "MachiningView.h"

#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {
constexpr int Columns = 5;
constexpr int ViewHeight = 300;
constexpr int ToastTop = 28;
constexpr int ToastMs = 3500;
constexpr int FreeType = 3;
} // namespace

ToastsPage::ToastsPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("toastOutcome")))
    , m_pView(new MachiningView)
{
    m_pOutcome->setText(tr("提示显示时，仍可在其下拖动视图。"));
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, [this] { delete m_pToast; });
    AddView();
    AddTypes();
}

//! [toast-view]
void ToastsPage::AddView()
{
    m_pView->setFixedHeight(ViewHeight);
    connect(m_pView, &MachiningView::SignalTurned, this,
            [this](int turn, int tilt) { m_pOutcome->setText(tr("视图：旋转 %1°，俯仰 %2°").arg(turn).arg(tilt)); });
    connect(m_pView, &MachiningView::SignalDoubleClicked, this,
            [this](bool onModel) { ShowToast(onModel ? ToastWidget::ToastLeaveEdit : ToastWidget::ToastModelEdit); });
    AddCard(tr("加工区"), tr("双击模型或空白处也会出现提示。"), QStringLiteral("toast-view"))->addWidget(m_pView);
}
//! [toast-view]

void ToastsPage::AddTypes()
{
    const QString names[] = {tr("编辑模型"), tr("退出编辑"), tr("空号"),     tr("生成G代码"),  tr("退出编辑"),
                             tr("编辑模型"), tr("退出编辑"), tr("退出编辑"), tr("编辑纹理"),   tr("模型越界"),
                             tr("自定义"),   tr("隐藏外壳"), tr("显示外壳"), tr("隐藏坐标"),   tr("显示坐标"),
                             tr("关闭检测"), tr("打开检测"), tr("退出标定"), tr("面不可加工"), tr("圆柱面不可加工")};
    auto* grid = new QGridLayout;
    grid->setSpacing(10);
    int type = 0;
    for (const QString& name : names) {
        ++type;
        QPushButton* button =
            CreateCommand(QStringLiteral("%1  %2").arg(type).arg(name), QStringLiteral("toast%1").arg(type));
        connect(button, &QPushButton::clicked, this, [this, type] { ShowToast(type); });
        grid->addWidget(button, (type - 1) / Columns, (type - 1) % Columns);
    }
    for (int column = 0; column < Columns; ++column) {
        grid->setColumnStretch(column, 1);
    }
    AddCard(tr("二十种提示"), tr("编号即类型的值；10、19、20 与自定义文字是警告，3 没有内容，不显示。"),
            QStringLiteral("toast-types"))
        ->addLayout(grid);
}

//! [toast-types]
void ToastsPage::ShowToast(int type)
{
    delete m_pToast;
    FollowToast(type);
    m_pToast =
        new ToastWidget(ToastWidget::ToastType(type), m_pView,
                        tr("2 号刀具已使用 40 小时，超过建议寿命；继续使用可能影响表面质量，请在下一次换刀时更换。"));
    PlaceToast();
    m_pToast->show();
    m_timer.start(ToastMs);
    m_pOutcome->setText(type == FreeType ? tr("类型 %1 没有内容。").arg(type) : tr("显示类型 %1。").arg(type));
}
//! [toast-types]

//! [toast-view]
void ToastsPage::FollowToast(int type)
{
    switch (type) {
    case ToastWidget::ToastShellHidden:
    case ToastWidget::ToastShellShown:
        m_pView->SetShellShown(type == ToastWidget::ToastShellShown);
        break;
    case ToastWidget::ToastLocalAxesHidden:
    case ToastWidget::ToastLocalAxesShown:
        m_pView->SetAxesShown(type == ToastWidget::ToastLocalAxesShown);
        break;
    case ToastWidget::ToastCollisionCheckOff:
    case ToastWidget::ToastCollisionCheckOn:
        m_pView->SetCollisionCheck(type == ToastWidget::ToastCollisionCheckOn);
        break;
    default:
        break;
    }
}
//! [toast-view]

//! [toast-types]
void ToastsPage::PlaceToast()
{
    if (m_pToast) {
        m_pToast->move(m_pView->mapToGlobal(QPoint((m_pView->width() - m_pToast->width()) / 2, ToastTop)));
    }
}
//! [toast-types]

//! [toast-types]
bool ToastsPage::eventFilter(QObject* watched, QEvent* event)
{
    // The strip is a window of its own: it follows when the main window moves, and goes when that one does.
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
        PlaceToast();
    } else if (event->type() == QEvent::Hide) {
        delete m_pToast;
    }
    return GalleryPage::eventFilter(watched, event);
}
//! [toast-types]

void ToastsPage::showEvent(QShowEvent* event)
{
    GalleryPage::showEvent(event);
    window()->installEventFilter(this);
}

void ToastsPage::hideEvent(QHideEvent* event)
{
    GalleryPage::hideEvent(event);
    window()->removeEventFilter(this);
    delete m_pToast;
}
