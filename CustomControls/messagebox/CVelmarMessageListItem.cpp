#include <CustomControls/messagebox/CVelmarMessageListItem.h>

#include "ui_CVelmarMessageListItem.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/SharpPixmap_p.h>

#include <QFontMetrics>
#include <QFontMetricsF>
#include <QIcon>

#include <iterator>

namespace {

// The tool tip inherits the sheet of its label. It replaces the form's sheet, so the name is drawn in the default text
// colour, unlike size and place.
constexpr char kToolNameSheet[] =
    "QToolTip {    background: #f0f0f0;    color: #333333;    border: 1px solid #aaaaaa;    padding: 2px;        "
    "border-radius: 3px;}";

struct Tag
{
    const char* szChinese;
    const char* szEnglish;
    bool bWide; ///< shown in the label that is as wide as the widest picture
};
// The index is the MachiningType.
constexpr Tag kTags[] = {
    {":/icon/ico_tag_cu.png", ":/icon/ico_tag_cu_en.png", false},
    {":/icon/ico_tag_ban.png", ":/icon/ico_tag_ban_en.png", true},
    {":/icon/ico_tag_jing.png", ":/icon/ico_tag_jing_en.png", false},
    {":/icon/ico_tag_luowen.png", ":/icon/ico_tag_luowen_en.png", false},
    {":/icon/ico_tag_wenli.png", ":/icon/ico_tag_wenli_en.png", false},
};
constexpr QSize kLargestTag(32, 18);
constexpr QSize kChineseTagLabel(24, 18);

/** The point of the icon column on which a wider title of the strategy column is centred. */
constexpr int kModeTitleCenter = 12;
constexpr int kModeTitlePadding = 8;
/** What the name column keeps from the strategy title's text, and the size column from the name. */
constexpr int kNameGap = 14;
constexpr int kSizeGap = 4;

bool InChinese()
{
    return CorvaneTextHelper::instance()->AppInChineseEnvironment();
}

} // namespace

CVelmarMessageListItem::CVelmarMessageListItem(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::CVelmarMessageListItem)
{
    ui->setupUi(this);
    InitWidget();
}

CVelmarMessageListItem::~CVelmarMessageListItem()
{
    delete ui;
}

void CVelmarMessageListItem::InitWidget()
{
    for (QLabel* label : {ui->titleModeLabel, ui->titleToolLabel, ui->titleLocationLabel, ui->toolName, ui->toolSize,
                          ui->toolLocation}) {
        label->setFont(FontCnBold_14);
    }
    // Names and measures come from a host's data and are shown as they stand.
    for (QLabel* value : {ui->toolName, ui->toolSize, ui->toolLocation}) {
        value->setTextFormat(Qt::PlainText);
    }
    ui->titleToolLabel->adjustSize();
    ui->titleLocationLabel->adjustSize();
    if (!InChinese()) {
        MakeRoomForModeTitle();
    }
    CenterVertically(ui->titleModeLabel);
    CenterVertically(ui->titleToolLabel);
    CenterVertically(ui->titleLocationLabel);
}

// Other languages need more room for the title of the strategy column, which pushes the name column to the right.
void CVelmarMessageListItem::MakeRoomForModeTitle()
{
    const QFontMetricsF metrics(FontCnBold_14);
    QLabel* const title = ui->titleModeLabel;
    const int textWidth = int(metrics.horizontalAdvance(title->text()));
    const int width = textWidth + kModeTitlePadding;
    const int x = qMax(ui->iconWidget->x() + kModeTitleCenter - width / 2, 0);
    title->setGeometry(x, title->y(), width, qMax(title->height(), int(metrics.height())));

    const int nameLeft = textWidth + kNameGap + x;
    const int shift = nameLeft - ui->toolName->x();
    if (shift <= 0) {
        return;
    }
    ui->titleToolLabel->move(ui->titleToolLabel->x() + shift, ui->titleToolLabel->y());
    ui->toolName->move(nameLeft, ui->toolName->y());
    const int room = ui->toolSize->x() - kSizeGap - nameLeft;
    if (room > 0 && room < ui->toolName->maximumWidth()) {
        ui->toolName->setMaximumWidth(room);
    }
}

void CVelmarMessageListItem::SetContent(QString name, QString detail, QString location, MachiningType type, bool)
{
    SetToolName(name);
    ui->toolSize->setText(detail);
    ui->toolSize->adjustSize();
    CenterVertically(ui->toolSize);
    ui->toolLocation->setText(QLatin1Char('T') + location);
    ui->toolLocation->adjustSize();
    CenterVertically(ui->toolLocation);
    SetTag(type);
}

void CVelmarMessageListItem::SetToolName(const QString& name)
{
    ui->toolName->setStyleSheet(QLatin1String(kToolNameSheet));
    const QFontMetrics metrics(ui->toolName->font());
    const int largest = ui->toolName->maximumWidth();
    ui->toolName->setText(metrics.horizontalAdvance(name) > largest ? metrics.elidedText(name, Qt::ElideRight, largest)
                                                                    : name);
    ui->toolName->setToolTip(name);
    ui->toolName->adjustSize();
    CenterVertically(ui->toolName);
}

void CVelmarMessageListItem::SetTag(MachiningType type)
{
    if (type < 0 || type >= int(std::size(kTags))) {
        return;
    }
    const Tag& tag = kTags[type];
    QLabel* const label = tag.bWide ? ui->semiIconlabel : ui->iconLabel;
    QLabel* const other = tag.bWide ? ui->iconLabel : ui->semiIconlabel;
    const bool chinese = InChinese();
    const QIcon picture(QLatin1String(chinese ? tag.szChinese : tag.szEnglish));
    label->setPixmap(SharpPixmap(picture, kLargestTag));
    if (chinese) {
        // One size for all: the widest picture loses its right edge to it.
        label->resize(kChineseTagLabel);
    }
    label->move(0, (ui->iconWidget->height() - label->height()) / 2);
    other->hide();
}

void CVelmarMessageListItem::SetIsHeader(bool header)
{
    for (QLabel* title : {ui->titleModeLabel, ui->titleToolLabel, ui->titleLocationLabel}) {
        title->setVisible(header);
    }
    for (QLabel* value : {ui->toolName, ui->toolSize, ui->toolLocation, ui->iconLabel}) {
        value->setVisible(!header);
    }
}

void CVelmarMessageListItem::CenterVertically(QWidget* label)
{
    label->move(label->x(), (height() - label->height()) / 2);
}
