#include "ToolDialog.h"

#include "../GalleryCommands.h"
#include "../GalleryStyle.h"
#include "DialogFrame.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int PictureSize = 96;
constexpr auto FieldSheet = "QLineEdit{border:1px solid #c4c4c4;border-radius:4px;padding:0 10px;color:#333333;"
                            "background:#ffffff;}QLineEdit:focus{border-color:#188553;}";
constexpr auto PictureSheet = "QLabel{background:#f6f6f6;border-radius:8px;}";

QLabel* CreateCaption(const QString& text)
{
    auto* label = new QLabel(text);
    label->setFont(FontCn_14);
    label->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Grey)));
    return label;
}
} // namespace

//! [frameless-windows]
ToolDialog::ToolDialog(QWidget* parent)
    : FramelessDialog(parent)
    , m_pName(CreateField(QStringLiteral("toolName"), tr("球头刀 R3")))
{
    setObjectName(QStringLiteral("toolDialog"));
    setWindowTitle(tr("编辑刀具"));
    resize(540, 340);
    setMinimumSize(480, 320);

    auto* picture = new QLabel;
    picture->setFixedSize(PictureSize + 24, PictureSize + 24);
    picture->setAlignment(Qt::AlignCenter);
    picture->setStyleSheet(QLatin1String(PictureSheet));
    picture->setPixmap(
        QIcon(QStringLiteral(":/icon/selectbox/tool/img_home_tool_qiudao.png")).pixmap(PictureSize, PictureSize));

    auto* form = new QFormLayout;
    form->setHorizontalSpacing(16);
    form->setVerticalSpacing(12);
    form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const auto addField = [form](const QString& caption, QLineEdit* field) {
        QLabel* label = CreateCaption(caption);
        label->setBuddy(field);
        form->addRow(label, field);
    };
    addField(tr("名称"), m_pName);
    addField(tr("直径 (mm)"), CreateField(QStringLiteral("toolDiameter"), QStringLiteral("6.0")));
    addField(tr("刃长 (mm)"), CreateField(QStringLiteral("toolLength"), QStringLiteral("22.0")));
    auto* content = new QHBoxLayout;
    content->setSpacing(24);
    content->addWidget(picture, 0, Qt::AlignTop);
    content->addLayout(form, 1);

    QPushButton* cancel = GalleryCommands::Create(tr("取消"), QStringLiteral("toolCancel"));
    QPushButton* save = GalleryCommands::Create(tr("保存"), QStringLiteral("toolSave"), true);
    save->setDefault(true);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(save, &QPushButton::clicked, this, &QDialog::accept);

    auto* body = new QVBoxLayout;
    body->addLayout(content);
    body->addStretch(1);
    DialogFrame::Fill(this, body, GalleryCommands::Row({cancel, save}, 96));
    m_pName->selectAll();
    m_pName->setFocus();
}
//! [frameless-windows]

QString ToolDialog::ToolName() const
{
    return m_pName->text();
}

QLineEdit* ToolDialog::CreateField(const QString& objectName, const QString& text)
{
    auto* field = new QLineEdit(text);
    field->setObjectName(objectName);
    field->setFont(FontCn_14);
    field->setFixedHeight(34);
    field->setStyleSheet(QLatin1String(FieldSheet));
    return field;
}
