#include <CustomControls/machine/CVelmarSelectBox.h>

#include "ui_CVelmarSelectBox.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/SharpPixmap_p.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/accessibility/TranslatedName.h>
#include <CustomControls/machine/CVelmarSelectBoxAccessible.h>

#include <QIcon>

namespace {
constexpr QSize BoxIconSize(16, 16);

const AccessibleFactory::Registration<CVelmarSelectBox, CVelmarSelectBoxAccessible> kAccessible;
} // namespace

CVelmarSelectBox::CVelmarSelectBox(QWidget* parent)
    : CFixedSizePopWidget(parent)
    , ui(new Ui::CVelmarSelectBox)
{
    ui->setupUi(this);
    QMetaObject::connectSlotsByName(this);
    const QIcon icon(QStringLiteral(":/icon/selectbox/base/icon_scanning_right_inf_maopi.png"));
    ui->m_labelBoxIcon->setPixmap(SharpPixmap(icon, BoxIconSize));
    ui->m_labelHint->hide();
    KeyboardFocus::ShowOn(ui->m_btnClose);
    SetTranslatedName(ui->m_btnClose, [] { return tr("关闭"); });
    KeyboardFocus::ShowOn(ui->m_btnConfirm);
    setAttribute(Qt::WA_DeleteOnClose, true);
    SetFont();
    connect(ui->m_btnConfirm, &QPushButton::clicked, this, &CVelmarSelectBox::SlotConfirm);
}

CVelmarSelectBox::~CVelmarSelectBox()
{
    delete ui;
}

void CVelmarSelectBox::SetBoxInfo(const QString& icon, const QString& title, const QString& confirmText)
{
    ui->m_labelBoxIcon->setPixmap(SharpPixmap(QIcon(icon), BoxIconSize));
    ui->m_labelBoxName->setText(title);
    ui->m_btnConfirm->setText(confirmText);
}

void CVelmarSelectBox::SetChildUI(QWidget* child)
{
    if (child == nullptr) {
        return;
    }
    ui->verticalLayout_4->addWidget(child);
}

void CVelmarSelectBox::SetConfirmBtnHide(bool hide)
{
    if (hide) {
        ui->m_widgetBtn->hide();
    }
}

void CVelmarSelectBox::SetCloseBtnHide(bool hide)
{
    ui->m_btnClose->setHidden(hide);
}

void CVelmarSelectBox::SetBaseSize(int width, int height)
{
    setFixedSize(width, height);
}

void CVelmarSelectBox::SetHintText(const QString& text)
{
    if (text.isEmpty()) {
        ui->m_labelHint->hide();
        return;
    }
    ui->m_labelHint->setText(text);
    ui->m_labelHint->show();
}

QSize CVelmarSelectBox::GetTitleSize()
{
    return ui->m_widgetTitle->size();
}

void CVelmarSelectBox::on_m_btnClose_clicked()
{
    close();
}

void CVelmarSelectBox::SlotClose()
{
    close();
}

void CVelmarSelectBox::SetFont()
{
    ui->m_labelBoxName->setFont(FontCnMedium_14);
    ui->m_btnConfirm->setFont(FontCnMedium_14);
    ui->m_labelHint->setFont(FontCn_12);
}
