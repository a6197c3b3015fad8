#include "ui_ToastWidget.h"
#include <CustomControls/feedback/ToastWidget.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/SharpPixmap_p.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/feedback/ToastWidgetAccessible.h>
#include <CustomControls/platform/ClickThrough.h>

#include <QFontMetrics>

namespace {

const QString kWarnIcon = QStringLiteral(":/icon/icon_scanning_system_warn.png");
const QString kCompactSheet = QStringLiteral("QLabel{color: #FFFFFF; font-size: 20px;}");
const QString kCustomSheet = QStringLiteral("QLabel{color: #FFFFFF; font-size: %1px; font-weight: bold;}");

constexpr double kOpacity = 0.7;
constexpr int kCompactHeight = 36;
constexpr int kWarnIconSize = 24;
// Beside the caption, and between it and its icon.
constexpr int kSideRoom = 40;
constexpr int kGap = 10;

constexpr int kCustomFontSize = 16;
constexpr int kCustomIconLeft = 16;
constexpr int kCustomTextLeft = 48;
constexpr int kCustomTextMargins = 64;
constexpr int kCustomVerticalMargins = 16;

bool IsCompact(ToastWidget::ToastType type)
{
    return type == ToastWidget::ToastModelOutsideStock || type == ToastWidget::ToastFaceNotMachinable ||
           type == ToastWidget::ToastCylinderNotMachinable;
}

const AccessibleFactory::Registration<ToastWidget, ToastWidgetAccessible> kAccessible;

} // namespace

ToastWidget::ToastWidget(ToastType type, QWidget* parent, QString text)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint) // flags that come after the form have its sheets read anew
    , ui(new Ui::ToastWidget)
{
    ui->setupUi(this);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TranslucentBackground);
    SetClickThrough(this, true);

    if (type == ToastCustomText) {
        ShowCustomText(text);
    } else {
        const QString message = Message(type);
        if (message.isNull()) {
            qWarning("ToastWidget: Unhandled ToastType value: %d", int(type));
            ui->content->hide();
            setFixedSize(0, 0);
        } else {
            ui->nameLabel->setText(message);
        }
        if (IsCompact(type)) {
            MakeCompact();
        }
        CentreMessage();
    }
    setWindowOpacity(kOpacity);
}

ToastWidget::~ToastWidget()
{
    delete ui;
}

bool ToastWidget::event(QEvent* event)
{
    if (event->type() == QEvent::Show) {
        TellEvent(this, QAccessible::Alert);
    }
    return QWidget::event(event);
}

QString ToastWidget::Message(ToastType type)
{
    switch (type) {
    case ToastModelEdit:
    case ToastModelEdit2:
        return tr("双击模型进行编辑");
    case ToastLeaveEdit:
    case ToastLeaveEdit2:
    case ToastLeaveEdit3:
    case ToastLeaveEdit4:
        return tr("双击空白区域退出编辑");
    case ToastGenerateGCode:
        return tr("点击【生成G代码】按钮进行G代码生成");
    case ToastTextureEdit:
        return tr("双击纹理进行编辑");
    case ToastModelOutsideStock:
        return tr("检测到部分模型在毛坯外，越界部分将无法切割");
    case ToastShellHidden:
        return tr("机床外壳已隐藏");
    case ToastShellShown:
        return tr("机床外壳已显示");
    case ToastLocalAxesHidden:
        return tr("局部坐标已隐藏");
    case ToastLocalAxesShown:
        return tr("局部坐标已显示");
    case ToastCollisionCheckOff:
        return tr("碰撞检测已关闭");
    case ToastCollisionCheckOn:
        return tr("碰撞检测已打开");
    case ToastCalibrationLeft:
        return tr("已退出扫描仪标定");
    case ToastFaceNotMachinable:
        return tr("选择的面不支持加工");
    case ToastCylinderNotMachinable:
        return tr("选取的圆柱面不支持加工");
    case ToastCustomText:
        break;
    }
    return {};
}

void ToastWidget::SetIcon(const QString& path)
{
    ui->hintLabel->setPixmap(SharpPixmap(path));
    ui->hintLabel->resize(kWarnIconSize, kWarnIconSize);
}

void ToastWidget::MakeCompact()
{
    ui->nameLabel->setStyleSheet(kCompactSheet);
    SetIcon(kWarnIcon);
    resize(width(), kCompactHeight);
    ui->content->resize(size());
}

void ToastWidget::CentreMessage()
{
    QLabel* caption = ui->nameLabel;
    QLabel* icon = ui->hintLabel;
    caption->setFont(FontCnBold_30); // its size gives way to that of the style sheet
    caption->adjustSize();
    if (width() < caption->width() + kSideRoom) {
        resize(caption->width() + kSideRoom, height());
        ui->content->resize(size());
    }
    const QSize room = ui->content->size();
    caption->move((room.width() + kGap - caption->width() + icon->width()) / 2,
                  (room.height() - caption->height()) / 2);
    icon->move(caption->x() - kGap - icon->width(), (room.height() - icon->height()) / 2);
}

void ToastWidget::ShowCustomText(const QString& text)
{
    QLabel* caption = ui->nameLabel;
    QFont font = caption->font();
    font.setPixelSize(kCustomFontSize);
    font.setBold(true);
    const QFontMetrics metrics(font);
    const int textWidth = width() - kCustomTextMargins;
    const QRect bounds = metrics.boundingRect(QRect(0, 0, textWidth, 0), Qt::TextWordWrap, text);
    const int lines = qMax(1, bounds.height() / metrics.lineSpacing());
    const int textHeight = lines * metrics.lineSpacing();
    const int toastHeight = qMax(textHeight + kCustomVerticalMargins, kCompactHeight);

    caption->setText(text);
    caption->setStyleSheet(kCustomSheet.arg(kCustomFontSize));
    caption->setWordWrap(true);
    caption->setFixedWidth(textWidth);
    caption->setFixedHeight(textHeight);
    SetIcon(kWarnIcon);
    resize(width(), toastHeight);
    ui->content->resize(size());
    ui->hintLabel->move(kCustomIconLeft, (toastHeight - kWarnIconSize) / 2);
    caption->move(kCustomTextLeft, (toastHeight - textHeight) / 2);
}
