#include "RenameBox.h"

#include "../GalleryCommands.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/messagebox/CMsgBoxBackground.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr QSize BoxSize(380, 176);
constexpr int TitleHeight = 44;
constexpr auto PanelSheet = "#renamePanel{background:#f6f6f6;border:1px solid #bbbbbb;border-radius:4px;}";
constexpr auto FieldSheet = "QLineEdit{border:1px solid #c4c4c4;border-radius:4px;padding:0 10px;color:#333333;"
                            "background:#ffffff;}QLineEdit:focus{border-color:#188553;}";
} // namespace

//! [pop-ups]
RenameBox::RenameBox(const QString& name, QWidget* parent)
    : CFixedSizePopWidget(parent)
    , m_pName(new QLineEdit(name))
{
    setObjectName(QStringLiteral("renameBox"));
    setAttribute(Qt::WA_DeleteOnClose);
    setFixedSize(BoxSize);

    auto* panel = new CMsgBoxBackground(this);
    panel->setObjectName(QStringLiteral("renamePanel"));
    panel->setStyleSheet(QLatin1String(PanelSheet));
    auto* title = new QLabel(tr("重命名"));
    title->setFont(FontCnBold_16);
    m_pName->setObjectName(QStringLiteral("renameName"));
    m_pName->setAccessibleName(tr("名称"));
    m_pName->setFont(FontCn_14);
    m_pName->setFixedHeight(34);
    m_pName->setStyleSheet(QLatin1String(FieldSheet));
    m_pName->selectAll();
    QPushButton* cancel = GalleryCommands::Create(tr("取消"), QStringLiteral("renameCancel"));
    QPushButton* confirm = GalleryCommands::Create(tr("确定"), QStringLiteral("renameConfirm"), true);
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
    connect(confirm, &QPushButton::clicked, this, &RenameBox::SlotConfirm);

    auto* column = new QVBoxLayout(panel);
    column->setContentsMargins(20, 14, 20, 16);
    column->setSpacing(14);
    column->addWidget(title);
    column->addWidget(m_pName);
    column->addStretch(1);
    column->addLayout(GalleryCommands::Row({cancel, confirm}, 88));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(panel);
    m_pName->setFocus();
}

QSize RenameBox::GetTitleSize()
{
    return {width(), TitleHeight};
}

void RenameBox::SlotConfirm()
{
    const QString name = m_pName->text().trimmed();
    if (!name.isEmpty()) {
        Q_EMIT SignalRenamed(name);
        close();
    }
}

void RenameBox::SlotClose()
{
    close();
}
//! [pop-ups]
