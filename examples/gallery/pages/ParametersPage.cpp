#include "ParametersPage.h"

#include "../GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CFunctionBtnWidget.h>
#include <CustomControls/buttons/CIconButton.h>
#include <CustomControls/buttons/CSelectButton.h>
#include <CustomControls/buttons/CUnitButton.h>
#include <CustomControls/buttons/CVelmarButton.h>
#include <CustomControls/fields/CSelectBox.h>
#include <CustomControls/fields/CTextEdit.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {
constexpr QSize TileSize(126, 112);
constexpr int FieldHeight = 30;
constexpr int BoxWidth = 150;
constexpr int RowHeight = 40;
constexpr int ListHeight = 330;
constexpr int StripWidth = 394;

constexpr auto PanelSheet = "#parameterPanel{background:#f6f6f6;border-radius:6px;}";
constexpr auto StepsSheet = "#stepPanel{background:#3d4245;border-radius:6px;}";
constexpr auto StepListSheet = "#stepList{background:transparent;border:2px solid transparent;border-radius:6px;"
                               "outline:none;padding:0 6px;color:#d7dcda;}"
                               "#stepList:focus{border-color:#2ab475;}"
                               "#stepList::item{border-radius:4px;padding-left:12px;margin:1px 0;}"
                               "#stepList::item:hover{background:#4b5154;}"
                               "#stepList::item:selected{background:#188553;color:#ffffff;}";
constexpr auto IconButtonSheet = "CIconButton{background:#ffffff;border:1px solid #c4c4c4;border-radius:4px;"
                                 "color:#333333;}"
                                 "CIconButton:hover{border-color:#188553;color:#188553;}"
                                 "CIconButton:pressed{background:#e4f2eb;}";

QVBoxLayout* PanelLayout(QFrame* panel)
{
    panel->setObjectName(QStringLiteral("parameterPanel"));
    panel->setStyleSheet(QLatin1String(PanelSheet));
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(16, 14, 16, 14);
    layout->setSpacing(10);
    return layout;
}
} // namespace

ParametersPage::ParametersPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("parameterOutcome")))
{
    m_pOutcome->setText(tr("选择材料、输入尺寸、切换选项，这里会显示结果。"));
    AddMaterials();
    BeginRow();
    AddParameters();
    AddSteps();
    EndRow();
}

//! [parameter-materials]
void ParametersPage::AddMaterials()
{
    struct Material
    {
        const char* name;
        const char* picture;
        QString text;
    };
    const Material materials[] = {
        {"materialAcrylic", "acrylic", tr("亚克力")}, {"materialPlastic", "plstic", tr("塑料")},
        {"materialWool", "wool", tr("木材")},         {"materialCopper", "copper", tr("铜")},
        {"materialMetal", "metal", tr("金属")},       {"materialJade", "jade", tr("玉石")},
    };
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    for (const Material& material : materials) {
        auto* tile = new CSelectButton(this);
        tile->setObjectName(QLatin1String(material.name));
        tile->setIcon(
            QStringLiteral(":/icon/selectbox/material/img_material_%1.png").arg(QLatin1String(material.picture)));
        tile->setText(material.text);
        tile->setMinimumWidth(TileSize.width());
        tile->setFixedHeight(TileSize.height());
        tile->setCursor(Qt::PointingHandCursor);
        tile->setAutoExclusive(true);
        tile->setChecked(row->isEmpty());
        connect(tile, &QPushButton::toggled, this, [this, text = material.text](bool checked) {
            if (checked) {
                m_pOutcome->setText(tr("材料：%1").arg(text));
            }
        });
        row->addWidget(tile);
    }
    AddCard(tr("毛坯材料"), QString(), QStringLiteral("parameter-materials"))->addLayout(row);
}
//! [parameter-materials]

void ParametersPage::AddParameters()
{
    QVBoxLayout* content = AddCard(tr("加工参数"), QString(), QStringLiteral("parameter-fields"));
    content->addWidget(CreateStock());
    content->addWidget(CreateOptions());

    struct Command
    {
        const char* name;
        const char* icon;
        QString text;
    };
    const Command commands[] = {
        {"commandMeasure", ":/icon/selectbox/base/ico_scanning_adaptive.png", tr("自适应毛坯")},
        {"commandReset", "", tr("恢复默认值")},
    };
    auto* row = new QHBoxLayout;
    row->setSpacing(12);
    for (const Command& command : commands) {
        auto* button = new CIconButton(this);
        button->setObjectName(QLatin1String(command.name));
        button->setFont(FontCnMedium_14);
        button->setStyleSheet(QLatin1String(IconButtonSheet));
        button->SetIcon(QLatin1String(command.icon));
        button->SetText(command.text);
        button->setFixedHeight(RowHeight);
        button->setCursor(Qt::PointingHandCursor);
        row->addWidget(button);
    }
    content->addLayout(row);

    const auto setSize = [this](double length, double width, double height) {
        findChild<CTextEdit*>(QStringLiteral("fieldLength"))->SetValue(length);
        findChild<CTextEdit*>(QStringLiteral("fieldWidth"))->SetValue(width);
        findChild<CTextEdit*>(QStringLiteral("fieldHeight"))->SetValue(height);
    };
    connect(findChild<CIconButton*>(QStringLiteral("commandMeasure")), &QPushButton::clicked, this, [this, setSize] {
        setSize(86.4, 52.8, 18.0);
        m_pOutcome->setText(tr("毛坯已按模型的尺寸设置。"));
    });
    connect(findChild<CIconButton*>(QStringLiteral("commandReset")), &QPushButton::clicked, this, [this, setSize] {
        // A value that no range holds brings each field's default back.
        setSize(-1.0, -1.0, -1.0);
        m_pOutcome->setText(tr("毛坯已恢复默认尺寸。"));
    });
}

//! [parameter-fields]
QWidget* ParametersPage::CreateStock()
{
    auto* panel = new QFrame;
    QVBoxLayout* layout = PanelLayout(panel);

    auto* head = new CSelectBox(tr("方形毛坯"), true, tr("关闭后毛坯尺寸由模型的外形决定，不能手动输入。"), panel);
    head->setObjectName(QStringLiteral("switchStock"));
    head->OpenLeftBorder(true);
    layout->addWidget(head);

    auto* sizes = new QWidget;
    auto* column = new QVBoxLayout(sizes);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(layout->spacing());
    const QString millimetres = QStringLiteral("mm");
    CTextEdit* length = CreateField(QStringLiteral("fieldLength"), tr("长度（X）"), QStringLiteral("120"), millimetres);
    CTextEdit* width = CreateField(QStringLiteral("fieldWidth"), tr("宽度（Y）"), QStringLiteral("80"), millimetres);
    CTextEdit* height = CreateField(QStringLiteral("fieldHeight"), tr("高度（Z）"), QStringLiteral("25"), millimetres);
    for (CTextEdit* field : {length, width, height}) {
        field->SetRange(1.0, 300.0);
        column->addWidget(field);
    }
    layout->addWidget(sizes);

    CTextEdit* angle =
        CreateField(QStringLiteral("fieldAngle"), tr("旋转角度"), QStringLiteral("0"), QString(QChar(0x00b0)));
    angle->SetRange(0.0, 360.0);
    angle->SetValue(300.0, 1, true);
    layout->addWidget(angle);
    layout->addWidget(CreateAnglePresets(angle));

    connect(head, &CSelectBox::signalSelectBoxToggled, this, [this, sizes](bool checked) {
        sizes->setEnabled(checked);
        m_pOutcome->setText(checked ? tr("毛坯尺寸由您输入。") : tr("毛坯尺寸由模型决定。"));
    });
    return panel;
}
//! [parameter-fields]

//! [parameter-fields]
CTextEdit* ParametersPage::CreateField(const QString& objectName, const QString& name, const QString& value,
                                       const QString& unit)
{
    auto* field = new CTextEdit(nullptr, name, value, unit, BoxWidth);
    field->setObjectName(objectName);
    field->SetFixedHeight(FieldHeight);
    connect(field, &CTextEdit::SignalEditDataChanged, this, [this, field, name, unit] {
        m_pOutcome->setText(tr("%1：%2 %3").arg(name, QString::number(field->GetEditData()), unit));
    });
    return field;
}
//! [parameter-fields]

//! [parameter-fields]
QWidget* ParametersPage::CreateAnglePresets(CTextEdit* angle)
{
    auto* presets = new QWidget;
    auto* row = new QHBoxLayout(presets);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    auto* caption = new QLabel(tr("转动"));
    caption->setFont(FontCnMedium_14);
    row->addWidget(caption);
    row->addStretch(1);
    for (const int degrees : {-90, -45, 45, 90}) {
        const QString sign = degrees > 0 ? QStringLiteral("+") : QString();
        auto* preset = new CUnitButton(sign + QString::number(degrees), QString(QChar(0x00b0)), presets);
        preset->setObjectName(QStringLiteral("presetAngle%1").arg(degrees));
        preset->setCursor(Qt::PointingHandCursor);
        connect(preset, &QPushButton::clicked, this, [this, angle, degrees] {
            angle->SetValue(angle->GetEditData() + degrees, 1, true);
            m_pOutcome->setText(tr("旋转角度：%1°").arg(angle->GetEditData()));
        });
        row->addWidget(preset);
    }
    return presets;
}
//! [parameter-fields]

//! [parameter-fields]
QWidget* ParametersPage::CreateOptions()
{
    struct Option
    {
        const char* name;
        QString text;
        QString hint;
        bool checked;
    };
    const Option options[] = {
        {"switchProbe", tr("加工前测量高度"), tr("主轴下降到对刀块上，测出刀尖的高度。请先放好对刀块。"), true},
        {"switchVacuum", tr("吸尘"), tr("加工时自动开启吸尘器；加工石材和金属时请保持开启。"), true},
        {"switchTexture", tr("最后雕刻纹理"), QString(), false},
    };
    auto* panel = new QFrame;
    QVBoxLayout* layout = PanelLayout(panel);
    for (const Option& option : options) {
        auto* box = new CSelectBox(option.text, option.checked, option.hint, panel);
        box->setObjectName(QLatin1String(option.name));
        connect(box, &CSelectBox::signalSelectBoxToggled, this, [this, text = option.text](bool checked) {
            m_pOutcome->setText((checked ? tr("%1：开") : tr("%1：关")).arg(text));
        });
        layout->addWidget(box);
    }
    return panel;
}
//! [parameter-fields]

//! [parameter-steps]
void ParametersPage::AddSteps()
{
    auto* panel = new QFrame;
    panel->setObjectName(QStringLiteral("stepPanel"));
    panel->setStyleSheet(QLatin1String(StepsSheet));
    panel->setFixedWidth(StripWidth);
    auto* layout = new QVBoxLayout(panel);
    layout->setContentsMargins(0, 8, 0, 0);
    layout->setSpacing(0);
    QListWidget* list = CreateStepList(panel);
    layout->addWidget(list);
    auto* strip = new CFunctionBtnWidget(list->verticalScrollBar(), panel);
    layout->addWidget(strip);
    AddFunctions(strip, list);
    // After the strip, which looks at the list when its range changes.
    for (int step = 0; step < 14; ++step) {
        AppendStep(list);
    }
    list->setCurrentRow(0);
    AddCard(tr("加工工序"), tr("列表还有内容时，按钮上方出现一条细线。"), QStringLiteral("parameter-steps"))
        ->addWidget(panel, 0, Qt::AlignHCenter);
}
//! [parameter-steps]

QListWidget* ParametersPage::CreateStepList(QWidget* panel)
{
    auto* list = new QListWidget(panel);
    list->setObjectName(QStringLiteral("stepList"));
    list->setAccessibleName(tr("加工工序"));
    list->setFont(FontCn_14);
    list->setStyleSheet(QLatin1String(StepListSheet));
    list->verticalScrollBar()->setStyleSheet(GalleryStyle::ScrollBars());
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setFixedHeight(ListHeight);
    return list;
}

//! [parameter-steps]
void ParametersPage::AddFunctions(CFunctionBtnWidget* strip, QListWidget* list)
{
    struct Function
    {
        const char* name;
        const char* icon;
        QColor normal;
        QColor pressed;
        QColor hover;
    };
    const Function functions[] = {
        {"stepRemove", "url(:/gallery/remove.png)", QColor(0x55, 0x5b, 0x5e), QColor(0x2f, 0x33, 0x35),
         QColor(0x65, 0x6c, 0x6f)},
        {"stepGenerate", "url(:/icon/simcontrol/ico_process_pop_start_g2.png)", QColor(0x18, 0x85, 0x53),
         QColor(0x12, 0x66, 0x41), QColor(0x2a, 0xb4, 0x75)},
    };
    const QList<CVelmarButton*> buttons = strip->InitialButton2({tr("移除"), tr("生成刀路")});
    for (int index = 0; index < buttons.size(); ++index) {
        const Function& function = functions[index];
        const QString icon = QLatin1String(function.icon);
        CVelmarButton* button = buttons.at(index);
        button->setObjectName(QLatin1String(function.name));
        button->SetButtonIcon(icon, icon, icon, icon);
        button->SetBackgroundSolid(function.normal, function.pressed, function.hover, function.normal);
        button->UpdateContentSize(); // the strip counts with the regular font; bold Latin letters are wider
        button->setCursor(Qt::PointingHandCursor);
    }
    connect(buttons.first(), &CVelmarButton::SignalClicked, this, [this, list] {
        delete list->takeItem(list->currentRow());
        m_pOutcome->setText(tr("还有 %1 道工序").arg(list->count()));
    });
    connect(buttons.last(), &CVelmarButton::SignalClicked, this,
            [this, list] { m_pOutcome->setText(tr("已为 %1 道工序生成刀路").arg(list->count())); });
}
//! [parameter-steps]

void ParametersPage::AppendStep(QListWidget* list)
{
    const QString steps[] = {tr("粗加工  平底铣刀 3.175"), tr("半精加工  球头铣刀 2.0"), tr("精加工  球头铣刀 1.0"),
                             tr("钻孔  钻头 2.5"), tr("倒角  倒角刀 90°")};
    const int index = list->count();
    auto* item = new QListWidgetItem(
        QStringLiteral("%1   %2").arg(index + 1, 2, 10, QLatin1Char('0')).arg(steps[index % 5]), list);
    item->setSizeHint(QSize(0, RowHeight));
}
