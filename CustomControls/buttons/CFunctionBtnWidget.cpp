#include <CustomControls/buttons/CFunctionBtnWidget.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CVelmarButton.h>

#include <QFontMetrics>
#include <QHBoxLayout>
#include <QScrollBar>

namespace {

const QString kSheetWithLine =
    QStringLiteral("QWidget{background:transparent;border:none;}"
                   "QWidget#widgetBtn{border-radius:0px;border-bottom-left-radius:6px;border-bottom-right-radius:6px;"
                   "border-top:1px solid #2e2e2e;}");
const QString kSheetWithoutLine = QStringLiteral(
    "QWidget{background:transparent;border:none;}"
    "QWidget#widgetBtn{border-radius:0px;border-bottom-left-radius:6px;border-bottom-right-radius:6px;}");

constexpr QSize kStripSize(394, 69);
constexpr QMargins kStripMargins(9, 9, 9, 8);

constexpr int kButtonHeight = 52;
constexpr int kTextHeight = 24;
constexpr int kTextMargin = 10;
constexpr int kTextPixelSize = 20;
constexpr int kIconSize = 28;
constexpr int kIconTopMargin = 12;
constexpr int kIconTextGap = 8;
// What neither caption nor outer margins get of a button's width: the icon, the gap behind it and two pixels.
constexpr int kTakenWidth = 38;

} // namespace

CFunctionBtnWidget::CFunctionBtnWidget(QScrollBar* scrollBar, QWidget* parent)
    : QWidget(parent)
    , m_pLayout(new QHBoxLayout)
{
    setAttribute(Qt::WA_StyledBackground, true);
    setFixedSize(kStripSize);
    setObjectName(QStringLiteral("widgetBtn"));
    setStyleSheet(kSheetWithoutLine);

    m_pLayout->setContentsMargins(kStripMargins);
    m_pLayout->setSpacing(0);
    setLayout(m_pLayout);

    if (!scrollBar) {
        return;
    }
    // The strip is the context, so that a list that outlives it calls nobody.
    connect(scrollBar, &QScrollBar::rangeChanged, this, [this, scrollBar](int minimum, int maximum) {
        ShowLine(minimum < maximum && scrollBar->value() != maximum);
    });
    connect(scrollBar, &QScrollBar::valueChanged, this,
            [this, scrollBar](int value) { ShowLine(value != scrollBar->maximum()); });
}

CVelmarButton* CFunctionBtnWidget::InitialButton1(const QString& text)
{
    return AddButton(text, 376, 3);
}

QList<CVelmarButton*> CFunctionBtnWidget::InitialButton2(const QList<QString>& textList)
{
    return AddButtons(textList, 2, 184, 4);
}

QList<CVelmarButton*> CFunctionBtnWidget::InitialButton3(const QList<QString>& textList)
{
    return AddButtons(textList, 3, 120, 3);
}

QList<CVelmarButton*> CFunctionBtnWidget::AddButtons(const QList<QString>& textList, qsizetype needed, int width,
                                                     int radius)
{
    QList<CVelmarButton*> buttons;
    if (textList.size() != needed) {
        return buttons;
    }
    for (const QString& text : textList) {
        if (!buttons.isEmpty()) {
            m_pLayout->addStretch(0);
        }
        buttons.append(AddButton(text, width, radius));
    }
    return buttons;
}

CVelmarButton* CFunctionBtnWidget::AddButton(const QString& text, int width, int radius)
{
    auto* button = new CVelmarButton(ButtonTypeIconTextChoose, false, true, 0, nullptr);
    button->setFixedSize(width, kButtonHeight);
    button->SetButtonSize(width, kButtonHeight);
    button->SetButtonText(text, true);

    const int textWidth = QFontMetrics(FontCn_20).horizontalAdvance(text);
    const int margin = (width - kTakenWidth - textWidth) / 2;
    button->SetButtonTextPos(0, kTextMargin, margin, kTextMargin, textWidth, kTextHeight);
    button->SetButtonImagePos(margin, kIconTopMargin, kIconTextGap, kIconTopMargin, kIconSize, kIconSize);
    button->SetButtonFontSize(kTextPixelSize);
    button->SetBtnRadius(radius);

    const QColor transparent(0, 0, 0, 0);
    button->SetBackgroundSolid(transparent, transparent, transparent, transparent);
    const QString white = QStringLiteral("#ffffff");
    button->SetTextColor(white, white, white, QStringLiteral("#7e7e7e"));

    m_pLayout->addWidget(button);
    return button;
}

void CFunctionBtnWidget::ShowLine(bool show)
{
    const QString& sheet = show ? kSheetWithLine : kSheetWithoutLine;
    // Scrolling tells each step; only the first and the last one change the sheet, which is costly to set.
    if (styleSheet() != sheet) {
        setStyleSheet(sheet);
    }
}
