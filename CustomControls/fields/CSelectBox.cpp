#include <CustomControls/fields/CSelectBox.h>

#include "ui_CSelectBox.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/accessibility/KeyboardFocus.h>

namespace {

// A border of one side alone is only drawn where the other sides are said to have none; the caption's sheet leaves it
// open.
const QString kBoxSheet = QStringLiteral("#labelBox{border:none;}");
const QString kCaptionSheet = QStringLiteral("\n            color:rgb(0,0,0);\n        ");
const QString kCaptionSheetWithBar =
    QStringLiteral("\n            border-left:4px solid rgb(61,153,88);\n            padding-left:8px;\n"
                   "            color:rgb(0,0,0);\n        ");

} // namespace

CSelectBox::CSelectBox(QWidget* parent)
    : CSelectBox(QString(), false, QString(), parent)
{}

CSelectBox::CSelectBox(QString text, bool checked, QString hintText, QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::CSelectBox)
{
    setStyleSheet(kBoxSheet); // before the form, whose sheets would be read anew
    ui->setupUi(this);
    ui->labelBox->setFont(FontCnMedium_14);
    ui->hintButton->setFont(FontCn_12);
    SetText(text);
    SetHintText(hintText);
    ui->labelBox->setStyleSheet(kCaptionSheet);
    ui->btnBox->setChecked(checked);
    KeyboardFocus::ShowOn(ui->btnBox);
    connect(ui->btnBox, &QPushButton::toggled, this, &CSelectBox::signalSelectBoxToggled);
}

CSelectBox::~CSelectBox()
{
    delete ui;
}

bool CSelectBox::IsChecked() const
{
    return ui->btnBox->isChecked();
}

void CSelectBox::SetChecked(bool checked)
{
    ui->btnBox->setChecked(checked);
}

void CSelectBox::SetCheckable(bool checkable)
{
    ui->btnBox->setCheckable(checkable);
}

void CSelectBox::SetText(const QString& text)
{
    ui->labelBox->setText(text);
    ui->btnBox->setAccessibleName(text);
}

QString CSelectBox::Text() const
{
    return ui->labelBox->text();
}

QString CSelectBox::HintText() const
{
    return ui->hintButton->property("hintText").toString();
}

bool CSelectBox::HasLeftBorder() const
{
    return ui->labelBox->styleSheet() == kCaptionSheetWithBar;
}

bool CSelectBox::IsCheckable() const
{
    return ui->btnBox->isCheckable();
}

void CSelectBox::SetHintText(const QString& text)
{
    ui->hintButton->SetToolTipText(text);
    ui->hintButton->setVisible(!text.isEmpty());
}

void CSelectBox::OpenLeftBorder(bool open)
{
    ui->labelBox->setStyleSheet(open ? kCaptionSheetWithBar : kCaptionSheet);
}
