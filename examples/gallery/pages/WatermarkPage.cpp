#include "WatermarkPage.h"

#include "../GalleryStyle.h"
#include "MachiningView.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/feedback/CVelmarAnimation.h>
#include <CustomControls/feedback/CWatermarkWidget.h>

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QWindow>

namespace {
constexpr int SpindleFrames = 12;
constexpr int SpindleMs = 60;
constexpr int ToolMs = 900;
constexpr int PictureSize = 96;
constexpr int PanelHeight = 168;
constexpr auto PanelSheet = "#animationPanel{background:#f6f6f6;border-radius:6px;}";
constexpr QSize PreviewSize(760, 480);

/** The window of an internal build: the mark lies over all of it and follows it. */
//! [watermark]
class PreviewWindow : public QWidget
{
public:
    explicit PreviewWindow(QWidget* parent)
        : QWidget(parent, Qt::Dialog) // stays above the gallery, as its mark does
        , m_pView(new MachiningView(this))
        , m_pWatermark(new CWatermarkWidget(this))
    {
        setObjectName(QStringLiteral("previewWindow"));
        setAttribute(Qt::WA_DeleteOnClose);
        m_pWatermark->setObjectName(QStringLiteral("watermark"));
        m_pWatermark->setAttribute(Qt::WA_TransparentForMouseEvents);
        // The window that gets the focus comes to the front, and on X11 it comes before the mark, which is a window
        // too.
        connect(qApp, &QGuiApplication::focusWindowChanged, this, [this] { m_pWatermark->AdjustWatermark(false); });
    }

protected:
    void showEvent(QShowEvent* event) override
    {
        QWidget::showEvent(event);
        m_pWatermark->ShowWatermark();
    }

    void moveEvent(QMoveEvent* event) override
    {
        QWidget::moveEvent(event);
        m_pWatermark->AdjustWatermark(false);
    }

    void resizeEvent(QResizeEvent* event) override
    {
        QWidget::resizeEvent(event);
        m_pView->setGeometry(rect());
        m_pWatermark->setGeometry(rect());
        m_pWatermark->AdjustWatermark(true);
    }

private:
    MachiningView* m_pView;
    CWatermarkWidget* m_pWatermark;
};
//! [watermark]

//! [animation]
CVelmarAnimation* CreateAnimation(const QString& name, const QStringList& images, int intervalMs)
{
    auto* animation = new CVelmarAnimation(nullptr);
    animation->setObjectName(name);
    animation->setFixedSize(PictureSize, PictureSize);
    // The images first, the interval then: that starts at the first one.
    animation->InsertImage(images);
    animation->SetShowIntervalTime(intervalMs);
    return animation;
}
//! [animation]
} // namespace

WatermarkPage::WatermarkPage(const GalleryOptions&)
{
    AddWatermark();
    AddAnimations();
}

WatermarkPage::~WatermarkPage()
{
    delete m_pPreview;
}

void WatermarkPage::AddWatermark()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    QPushButton* open = CreateCommand(tr("打开预览窗口"), QStringLiteral("openPreview"), true);
    connect(open, &QPushButton::clicked, this, &WatermarkPage::OpenPreview);
    row->addWidget(open);

    const auto add = [this, row](const QString& text, const QString& name, const auto& act) {
        QPushButton* button = CreateCommand(text, name);
        connect(button, &QPushButton::clicked, this, [this, act] {
            if (m_pPreview) {
                act(m_pPreview.data());
            }
        });
        row->addWidget(button);
    };
    add(tr("移动"), QStringLiteral("movePreview"),
        [](QWidget* preview) { preview->move(preview->pos() + QPoint(40, 30)); });
    add(tr("放大"), QStringLiteral("growPreview"),
        [](QWidget* preview) { preview->resize(preview->size() + QSize(80, 50)); });
    add(tr("关闭"), QStringLiteral("closePreview"), [](QWidget* preview) { preview->close(); });
    row->addStretch(1);
    AddCard(tr("内测标记"), tr("标记是一个独立的窗口，鼠标和键盘都能穿过；预览窗口移动或缩放时它跟着走。"),
            QStringLiteral("watermark"))
        ->addLayout(row);
}

//! [watermark]
void WatermarkPage::OpenPreview()
{
    if (!m_pPreview) {
        m_pPreview = new PreviewWindow(window());
        m_pPreview->setWindowTitle(tr("加工预览（内部版本）"));
        m_pPreview->resize(PreviewSize);
        m_pPreview->move(window()->geometry().topLeft() + QPoint(260, 442));
    }
    m_pPreview->show();
    m_pPreview->raise();
    m_pPreview->activateWindow();
}
//! [watermark]

//! [animation]
void WatermarkPage::AddAnimations()
{
    QStringList spindle;
    for (int frame = 1; frame <= SpindleFrames; ++frame) {
        spindle.append(QStringLiteral("url(:/gallery/spindle/%1.png)").arg(frame));
    }
    QStringList tools;
    for (const char* tool :
         {"pingdixidao", "qiudao", "yuanbixidao", "daojiaodao", "diaokedao", "jiaodao", "zhuiduqiutoudao", "zuantou"}) {
        tools.append(QStringLiteral("url(:/icon/selectbox/tool/img_home_tool_%1.png)").arg(QLatin1String(tool)));
    }
    struct Example
    {
        CVelmarAnimation* animation;
        QString caption;
    };
    const Example examples[] = {
        {CreateAnimation(QStringLiteral("animationSpindle"), spindle, SpindleMs), tr("主轴转动")},
        {CreateAnimation(QStringLiteral("animationTools"), tools, ToolMs), tr("刀库轮播")},
    };
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    QList<QHBoxLayout*> panels;
    for (const Example& example : examples) {
        auto* panel = new QFrame;
        panel->setObjectName(QStringLiteral("animationPanel"));
        panel->setStyleSheet(QLatin1String(PanelSheet));
        panel->setFixedHeight(PanelHeight);
        auto* column = new QVBoxLayout;
        column->setSpacing(8);
        column->addStretch(1);
        column->addWidget(example.animation, 0, Qt::AlignHCenter);
        column->addWidget(CreateCaption(example.caption));
        column->addStretch(1);
        auto* middle = new QHBoxLayout(panel);
        middle->setSpacing(40);
        middle->addStretch(1);
        middle->addLayout(column);
        middle->addStretch(1);
        panels.append(middle);
        row->addWidget(panel, 1);
    }
    const QList<std::pair<QString, int>> speeds = {{tr("慢"), 200}, {tr("中"), 60}, {tr("快"), 25}};
    auto* commands = new QVBoxLayout;
    commands->setSpacing(6);
    commands->addStretch(1);
    for (const auto& [text, interval] : speeds) {
        QPushButton* button = CreateCommand(text, QStringLiteral("spindle%1").arg(interval));
        button->setFixedWidth(96);
        connect(button, &QPushButton::clicked, this,
                [animation = examples[0].animation, interval = interval] { animation->SetShowIntervalTime(interval); });
        commands->addWidget(button);
    }
    commands->addStretch(1);
    panels.first()->insertLayout(2, commands);
    AddCard(tr("逐帧动画"), tr("图片按间隔逐张显示。"), QStringLiteral("animation"))->addLayout(row);
}
//! [animation]
