#include "ButtonsPage.h"

#include "../GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace {
constexpr int Radius = 4;
constexpr auto IconBox = "url(:/icon/selectbox/stock/ico_scanning_box.png)";
constexpr auto IconCylinder = "url(:/icon/selectbox/stock/ico_scanning_cylinder.png)";
constexpr auto IconModel = "url(:/icon/selectbox/stock/ico_scanning_stl.png)";
constexpr auto IconAdaptive = "url(:/icon/selectbox/base/ico_scanning_adaptive.png)";
constexpr auto IconStart = "url(:/icon/simcontrol/ico_process_pop_start_g2.png)";
constexpr auto IconMachine = "url(:/icon/connect/ico_machine.png)";
constexpr auto ToolBall = "url(:/icon/selectbox/tool/img_home_tool_qiudao.png)";
constexpr auto ToolDrill = "url(:/icon/selectbox/tool/img_home_tool_zuantou.png)";
constexpr auto LampOn = "url(:/icon/bottom/icon_state_connect_yes.png)";
constexpr auto LampOff = "url(:/icon/bottom/icon_state_connect_no.png)";

const QColor Normal(0xef, 0xf1, 0xf0);
const QColor Pressed(0x12, 0x66, 0x41);
const QColor Hover(0xd9, 0xee, 0xe4);
const QColor Chosen(0x18, 0x85, 0x53);

void SetIcon(CVelmarButton* button, const char* icon)
{
    const QString image = QLatin1String(icon);
    button->SetButtonIcon(image, image, image, image);
}

void SetTextImage(CVelmarButton* button, const char* icon)
{
    const QString image = QLatin1String(icon);
    button->SetButtonIcon_Text(image, image, image, image);
}

/** A button over its caption, both centred. */
QVBoxLayout* WithCaption(QWidget* button, QLabel* caption)
{
    caption->setBuddy(button); // names a button that bears no words, for a screen reader
    auto* layout = new QVBoxLayout;
    layout->setSpacing(6);
    layout->addStretch(1);
    layout->addWidget(button, 0, Qt::AlignHCenter);
    layout->addWidget(caption);
    return layout;
}
} // namespace

ButtonsPage::ButtonsPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("buttonOutcome")))
{
    m_pOutcome->setText(tr("点击任意按钮，这里会显示它的名称。"));
    AddTypes();
    BeginRow();
    AddToolRow();
    AddNavigation();
    EndRow();
    BeginRow();
    AddOrientations();
    AddBackgrounds();
    EndRow();
    BeginRow();
    AddMaterials();
    AddBubbles();
    AddDisabled();
    EndRow();
}

CVelmarButton* ButtonsPage::CreateButton(const QString& name, EnumButtonType type, bool vertical, bool iconFirst,
                                         int width, int height, int backgroundKind)
{
    auto* button = new CVelmarButton(type, vertical, iconFirst, backgroundKind, this);
    button->setObjectName(name);
    button->SetButtonSize(width, height);
    button->setFixedSize(width, height);
    button->setCursor(Qt::PointingHandCursor);
    button->SetBtnRadius(Radius);
    button->SetBackgroundSolid(Normal, Pressed, Hover, Chosen);
    button->SetTextColor(QLatin1String(GalleryStyle::Ink), QStringLiteral("#ffffff"),
                         QLatin1String(GalleryStyle::Green), QStringLiteral("#ffffff"));
    connect(button, &CVelmarButton::SignalClicked, this,
            [this, name] { m_pOutcome->setText(tr("刚才点击：%1").arg(name)); });
    return button;
}

void ButtonsPage::MakeExclusive(const QList<CVelmarButton*>& buttons)
{
    for (CVelmarButton* button : buttons) {
        connect(button, &CVelmarButton::SignalClicked, button, [buttons, button] {
            for (CVelmarButton* other : buttons) {
                other->SetChooseFocus(other == button);
            }
        });
    }
    buttons.first()->SetChooseFocus(true);
}

//! [button-types]
void ButtonsPage::AddTypes()
{
    struct Example
    {
        const char* name;
        EnumButtonType type;
        QString caption;
    };
    const Example examples[] = {
        {"ButtonTypeIcon", ButtonTypeIcon, tr("图标")},
        {"ButtonTypeText", ButtonTypeText, tr("文字")},
        {"ButtonTypeIconText", ButtonTypeIconText, tr("图标与文字")},
        {"ButtonTypeIconImage", ButtonTypeIconImage, tr("图标与图片")},
        {"ButtonTypeIconChoose", ButtonTypeIconChoose, tr("图标，可选中")},
        {"ButtonTypeTextChoose", ButtonTypeTextChoose, tr("文字，可选中")},
        {"ButtonTypeIconTextChoose", ButtonTypeIconTextChoose, tr("图标与文字，可选中")},
        {"ButtonTypeIconImageChoose", ButtonTypeIconImageChoose, tr("图标与图片，可选中")},
    };

    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(18);
    int index = 0;
    for (const Example& example : examples) {
        const bool hasIcon = example.type != ButtonTypeText && example.type != ButtonTypeTextChoose;
        const bool hasText = example.type != ButtonTypeIcon && example.type != ButtonTypeIconChoose;
        const bool hasImage = example.type == ButtonTypeIconImage || example.type == ButtonTypeIconImageChoose;
        CVelmarButton* button =
            CreateButton(QLatin1String(example.name), example.type, false, true, hasText ? 140 : 56, 44);
        // Where the caption is a picture it has no words of its own.
        button->SetButtonText(hasImage ? QString() : tr("生成刀路"), false);
        if (hasIcon && hasText) {
            button->SetButtonImagePos(18, 0, 6, 0, 22, 44);
            button->SetButtonTextPos(0, 0, 18, 0, 76, 44);
        } else {
            button->SetButtonImagePos(hasIcon ? 12 : 0, 0, hasIcon ? 12 : 0, 0, 32, 44);
            button->SetButtonTextPos(0, 0, 0, 0, 140, 44);
        }
        if (hasIcon) {
            SetIcon(button, hasText ? IconStart : IconBox);
        }
        if (hasImage) {
            SetTextImage(button, index < 4 ? ToolBall : ToolDrill);
        }
        if (index >= 4) {
            connect(button, &CVelmarButton::SignalClicked, button,
                    [button] { button->SetChooseFocus(!button->GetChooseFocusState()); });
        }
        grid->addLayout(WithCaption(button, CreateCaption(example.caption)), index / 4, index % 4);
        ++index;
    }
    AddCard(tr("八种类型"), tr("下面一行可以选中：再次点击取消选中。"), QStringLiteral("button-types"))
        ->addLayout(grid);
}
//! [button-types]

//! [button-tool-row]
void ButtonsPage::AddToolRow()
{
    struct Example
    {
        const char* name;
        const char* icon;
        QString text;
    };
    const Example examples[] = {
        {"toolRowBox", IconBox, tr("方料")},
        {"toolRowCylinder", IconCylinder, tr("圆料")},
        {"toolRowModel", IconModel, tr("模型")},
        {"toolRowAdaptive", IconAdaptive, tr("自适应")},
    };
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    QList<CVelmarButton*> group;
    for (const Example& example : examples) {
        CVelmarButton* button = CreateButton(QLatin1String(example.name), ButtonTypeIconTextChoose, true, true, 76, 76);
        button->SetButtonText(example.text, false);
        button->SetButtonFontSize(13);
        button->SetButtonImagePos(22, 10, 22, 0, 32, 32);
        button->SetButtonTextPos(0, 2, 0, 8, 76, 30);
        SetIcon(button, example.icon);
        row->addWidget(button);
        group.append(button);
    }
    row->addStretch(1);
    MakeExclusive(group);
    AddCard(tr("工具栏"), tr("竖排的图标与文字，四选一。"), QStringLiteral("button-tool-row"))->addLayout(row);
}
//! [button-tool-row]

//! [button-navigation]
void ButtonsPage::AddNavigation()
{
    struct Example
    {
        const char* name;
        QString text;
    };
    const Example examples[] = {
        {"navigationStock", tr("毛坯设置")},
        {"navigationTool", tr("刀具选择")},
        {"navigationPath", tr("刀路生成")},
    };
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    QList<CVelmarButton*> group;
    for (const Example& example : examples) {
        CVelmarButton* button = CreateButton(QLatin1String(example.name), ButtonTypeTextChoose, false, true, 220, 32);
        button->SetBackgroundSolid(Qt::white, Pressed, Hover, Chosen);
        button->SetButtonText(example.text, false);
        button->SetButtonTextPos(16, 0, 16, 0, 220, 32);
        button->SetAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        column->addWidget(button);
        group.append(button);
    }
    MakeExclusive(group);
    AddCard(tr("导航栏"), tr("竖列的文字按钮，标出当前步骤。"), QStringLiteral("button-navigation"))->addLayout(column);
}
//! [button-navigation]

//! [button-orientations]
void ButtonsPage::AddOrientations()
{
    struct Example
    {
        const char* name;
        bool vertical;
        bool iconFirst;
        QString caption;
    };
    const Example examples[] = {
        {"iconLeft", false, true, tr("图标在左")},
        {"iconRight", false, false, tr("图标在右")},
        {"iconAbove", true, true, tr("图标在上")},
    };
    auto* row = new QHBoxLayout;
    row->setSpacing(16);
    for (const Example& example : examples) {
        CVelmarButton* button =
            CreateButton(QLatin1String(example.name), ButtonTypeIconTextChoose, example.vertical, example.iconFirst,
                         example.vertical ? 84 : 116, example.vertical ? 64 : 40);
        button->SetButtonText(tr("开始"), false);
        if (example.vertical) {
            button->SetButtonImagePos(32, 10, 32, 0, 20, 20);
            button->SetButtonTextPos(0, 0, 0, 6, 84, 28);
        } else {
            button->SetButtonImagePos(example.iconFirst ? 0 : 6, 0, example.iconFirst ? 6 : 0, 0, 20, 40);
            button->SetButtonTextPos(0, 0, 0, 0, 80, 40);
        }
        SetIcon(button, IconStart);
        if (!example.vertical) {
            // Centres icon and caption as one in the width of the button; it takes the icon's width from its label.
            button->UpdateContentSize();
        }
        row->addLayout(WithCaption(button, CreateCaption(example.caption)));
    }
    AddCard(tr("方向与图标位置"), QString(), QStringLiteral("button-orientations"))->addLayout(row);
}
//! [button-orientations]

//! [button-backgrounds]
void ButtonsPage::AddBackgrounds()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(16);

    CVelmarButton* solid = CreateButton(QStringLiteral("backgroundSolid"), ButtonTypeText, false, true, 112, 40);
    solid->SetBackgroundSolid(Chosen, Pressed, QColor(0x2a, 0xb4, 0x75), Chosen);
    solid->SetTextColor(QStringLiteral("#ffffff"), QStringLiteral("#ffffff"), QStringLiteral("#ffffff"),
                        QStringLiteral("#ffffff"));
    solid->SetButtonText(tr("单色"), false);
    solid->SetButtonTextPos(0, 0, 0, 0, 112, 40);
    row->addLayout(WithCaption(solid, CreateCaption(tr("单色"))));

    CVelmarButton* gradient =
        CreateButton(QStringLiteral("backgroundGradient"), ButtonTypeText, false, true, 112, 40, 1);
    const StructGradientColor rest{QColor(0x2f, 0xa8, 0x72), QColor(0x14, 0x6e, 0x45)};
    const StructGradientColor hover{QColor(0x43, 0xc6, 0x8b), QColor(0x18, 0x85, 0x53)};
    const StructGradientColor pressed{QColor(0x14, 0x6e, 0x45), QColor(0x0f, 0x57, 0x36)};
    gradient->SetBackgroundGradient(rest, pressed, hover, rest);
    gradient->SetTextColor(QStringLiteral("#ffffff"), QStringLiteral("#ffffff"), QStringLiteral("#ffffff"),
                           QStringLiteral("#ffffff"));
    gradient->SetButtonText(tr("渐变"), true);
    gradient->SetButtonTextPos(0, 0, 0, 0, 112, 40);
    row->addLayout(WithCaption(gradient, CreateCaption(tr("竖直渐变"))));

    CVelmarButton* image = CreateButton(QStringLiteral("backgroundImage"), ButtonTypeIcon, false, true, 60, 28, 2);
    const QString rod = QStringLiteral(":/icon/selectbox/tool/img_home_tool_ptxd_bk.png");
    const QString ball = QStringLiteral(":/icon/selectbox/tool/img_home_tool_qiudao_bk.png");
    image->SetBackgroundImage(rod, ball, ball, rod);
    row->addLayout(WithCaption(image, CreateCaption(tr("图片"))));

    AddCard(tr("背景"), QString(), QStringLiteral("button-backgrounds"))->addLayout(row);
}
//! [button-backgrounds]

//! [button-materials]
void ButtonsPage::AddMaterials()
{
    struct Example
    {
        const char* name;
        const char* picture;
        QString text;
    };
    const Example examples[] = {
        {"materialWood", ":/icon/selectbox/material/img_material_wool.png", tr("木材")},
        {"materialAcrylic", ":/icon/selectbox/material/img_material_acrylic.png", tr("亚克力")},
        {"materialCopper", ":/icon/selectbox/material/img_material_copper.png", tr("铜")},
    };
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    QList<CVelmarButton*> group;
    for (const Example& example : examples) {
        CVelmarButton* button = CreateButton(QLatin1String(example.name), ButtonTypeIconChoose, false, true, 84, 68, 2);
        const QString picture = QLatin1String(example.picture);
        button->SetBackgroundImage(picture, picture, picture, picture);
        // The chosen look is the tick over the picture of the material.
        button->SetButtonImagePos(56, 40, 4, 4, 24, 24);
        button->SetButtonIcon(QString(), QString(), QString(),
                              QStringLiteral("url(:/icon/toolbtn/icon_scanning_checked.png)"));
        row->addLayout(WithCaption(button, CreateCaption(example.text)));
        group.append(button);
    }
    MakeExclusive(group);
    AddCard(tr("材料"), tr("图片背景，选中时打勾。"), QStringLiteral("button-materials"))->addLayout(row);
}
//! [button-materials]

//! [button-bubbles]
void ButtonsPage::AddBubbles()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(16);

    CVelmarButton* messages = CreateButton(QStringLiteral("bubbleMessages"), ButtonTypeTextChoose, false, true, 92, 40);
    messages->SetButtonText(tr("消息"), false);
    messages->SetButtonTextPos(0, 0, 0, 0, 92, 40);
    messages->SetButtonTypeBubble(78, 4, 10, 10, QStringLiteral("#e50000"), true);
    connect(messages, &CVelmarButton::SignalClicked, messages, [messages] {
        // Reading the messages takes the bubble away; leaving them again lets the next one bring it back.
        messages->SetChooseFocus(true);
        messages->SetChooseFocus(false);
    });
    row->addLayout(WithCaption(messages, CreateCaption(tr("气泡"))));

    CVelmarButton* lamp = CreateButton(QStringLiteral("bubbleLamp"), ButtonTypeIconChoose, false, true, 56, 40);
    lamp->SetButtonImagePos(18, 0, 18, 0, 20, 40);
    SetIcon(lamp, IconMachine);
    lamp->SetButtonTypeBubble(37, 2, 17, 17, QStringLiteral("transparent"), false);
    lamp->SetButtonBubbleToLight(QLatin1String(LampOn), QLatin1String(LampOff));
    connect(lamp, &CVelmarButton::SignalClicked, lamp, [lamp] { lamp->SetChooseFocus(!lamp->GetChooseFocusState()); });
    row->addLayout(WithCaption(lamp, CreateCaption(tr("状态灯"))));

    QPushButton* notify = CreateCommand(tr("新消息"), QStringLiteral("bubbleNotify"));
    connect(notify, &QPushButton::clicked, messages, &CVelmarButton::AddBubbleCount);
    QVBoxLayout* card = AddCard(tr("气泡与状态灯"), tr("打开消息后气泡消失。"), QStringLiteral("button-bubbles"));
    card->addLayout(row);
    card->addWidget(notify);
}
//! [button-bubbles]

//! [button-disabled]
void ButtonsPage::AddDisabled()
{
    auto* row = new QVBoxLayout;
    row->setSpacing(12);
    CVelmarButton* text = CreateButton(QStringLiteral("disabledText"), ButtonTypeText, false, true, 140, 40);
    text->SetTextColor(QStringLiteral("#b0b0b0"), QStringLiteral("#b0b0b0"), QStringLiteral("#b0b0b0"),
                       QStringLiteral("#b0b0b0"));
    // A disabled button still follows the pointer, so it wears one colour in every state.
    text->SetBackgroundSolid(Normal, Normal, Normal, Normal);
    text->SetButtonText(tr("不可用"), false);
    text->SetButtonTextPos(0, 0, 0, 0, 140, 40);
    text->setCursor(Qt::ArrowCursor);
    text->SetEnabled(false);
    row->addLayout(WithCaption(text, CreateCaption(tr("等待机床连接"))));
    AddCard(tr("禁用"), tr("点击不会发出信号。"), QStringLiteral("button-disabled"))->addLayout(row);
}
//! [button-disabled]
