#include <CustomControls/toolbar/CToolBarItem.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/StatefulIcon.h>
#include <CustomControls/accessibility/TranslatedName.h>
#include <CustomControls/toolbar/CToolButton.h>
#include <CustomControls/toolbar/CToolButtonVertical.h>

#include <QFontMetrics>
#include <QPixmap>
#include <QVBoxLayout>
#include <QVariant>

namespace {

const QString kBlockSheet =
    QStringLiteral("QToolButton{background-color: transparent; border: none;  padding: 2px 7px 2px 7px;"
                   "border-radius:2px;}QToolButton::hover{background-color:rgb(61,61,61);}"
                   "QToolButton::pressed{background-color:black;}QToolButton::checked{background-color:black;}"
                   "QToolButton::menu-button{background-color:transparent;}");

const QString kExtensionSheet =
    QStringLiteral("QToolButton{background-color:transparent;border:none;"
                   "background-image:url(:/icon/ico_ttob_expand2.png);background-repeat:no-repeat;"
                   "background-position:center;}QToolButton::hover{background-color:rgba(73, 135, 89, 51);}"
                   "QToolButton::checked{background-image:url(:/icon/ico_ttob_expand2.png);}");

constexpr int kGroupCaptionMargin = 14;
constexpr QSize kExtensionIcon(16, 16);
constexpr int kExtensionHeight = 56;

constexpr int kSpacerWidth = 5;
constexpr int kLargeIcon = 32;
constexpr int kSmallIcon = 16;
constexpr int kStackHeight = 56;
constexpr int kMostRowsOfStack = 3;

// Chinese captions are short; the words of other languages wrap beyond this width.
constexpr int kWidestCaption = 107;
constexpr int kNarrowestContent = 48;
constexpr int kContentMargins = 8;

constexpr int kBesideCaption = 10;
constexpr int kBlockMargins = 8;
constexpr int kBlockMarginOfSpacer = 7;

QString WithLastWordBelow(const QString& caption)
{
    QStringList words =
        QString(caption).replace(QLatin1Char('\n'), QLatin1Char(' ')).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (words.size() < 2) {
        return caption;
    }
    const QString last = words.takeLast();
    return words.join(QLatin1Char(' ')) + QLatin1Char('\n') + last;
}

int WidestLine(const QFontMetrics& metrics, const QString& caption)
{
    int widest = 0;
    const QStringList lines = caption.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        widest = qMax(widest, metrics.horizontalAdvance(line));
    }
    return widest;
}

int WrappedLines(const QFontMetrics& metrics, const QString& caption, int width)
{
    const QRect bounds = metrics.boundingRect(QRect(0, 0, width, 0), Qt::AlignHCenter | Qt::TextWordWrap, caption);
    const int spacing = qMax(1, metrics.lineSpacing());
    return qMax(1, (bounds.bottom() - bounds.top() + spacing) / spacing);
}

} // namespace

QList<QString> CToolBarItem::m_strlistIconPath;
QList<QString> CToolBarItem::m_strlistIconPathDisabled;
QList<QString> CToolBarItem::m_strlistText;
QList<int> CToolBarItem::m_vecType;
QHash<int, QString> CToolBarItem::m_hashHighlightColorIndex;
QList<std::pair<int, int>> CToolBarItem::m_vecVerticalGroupIndex;
CToolBarItem* CToolBarItem::m_pToolBarChecked = nullptr;

CToolBarItem::CToolBarItem(const QString& name, QWidget* parent)
    : CToolBar(ToolBarModeBlock, parent)
{
    setObjectName(name);
    setProperty("GroupName", name);
    setMovable(false);
    setOrientation(Qt::Horizontal);
    setAllowedAreas(Qt::TopToolBarArea);
    setFont(FontCnMedium_13);
    setFocusPolicy(Qt::NoFocus);
    setFloatable(false);
    setStyleSheet(kBlockSheet);
    setContentsMargins(0, 0, 0, kGroupCaptionMargin);

    // The only one so early is the overflow button, which the toolkit keeps to itself.
    m_pExtensionBtn = findChild<QToolButton*>(QString(), Qt::FindDirectChildrenOnly);
    if (m_pExtensionBtn) {
        m_pExtensionBtn->setStyleSheet(kExtensionSheet);
        m_pExtensionBtn->setIconSize(kExtensionIcon);
        m_pExtensionBtn->setFixedHeight(kExtensionHeight);
        SetTranslatedName(m_pExtensionBtn, [] { return tr("更多工具"); });
    }
}

CToolBarItem::~CToolBarItem()
{
    if (m_pToolBarChecked == this) {
        m_pToolBarChecked = nullptr;
    }
    // The buttons die with the base class, when the list is gone.
    for (CToolButton* button : std::as_const(m_listToolBtn)) {
        button->disconnect(this);
    }
}

void CToolBarItem::AddItem(const QString& iconPath, const QString& text, const int& type,
                           const QString& disabledIconPath)
{
    m_strlistIconPath.append(iconPath);
    m_strlistIconPathDisabled.append(disabledIconPath.isEmpty() ? iconPath : disabledIconPath);
    m_strlistText.append(text);
    m_vecType.append(type);
}

void CToolBarItem::AddItemHighlight(const QString& iconPath, const QString& text, const int& type,
                                    const QString& disabledIconPath, const QString& highlightColor)
{
    m_hashHighlightColorIndex.insert(static_cast<int>(m_strlistText.size()), highlightColor);
    AddItem(iconPath, text, type, disabledIconPath);
}

void CToolBarItem::AddItemVertical(const QList<QString>& iconPaths, const QList<QString>& texts,
                                   const QList<int>& types, const QList<QString>& disabledIconPaths)
{
    const qsizetype count = iconPaths.size();
    if (texts.size() != count || types.size() != count || disabledIconPaths.size() != count) {
        return;
    }
    m_vecVerticalGroupIndex.append({static_cast<int>(m_strlistText.size()), static_cast<int>(count)});
    for (qsizetype i = 0; i < count; ++i) {
        AddItem(iconPaths.at(i), texts.at(i), types.at(i), disabledIconPaths.at(i));
    }
}

QList<CToolButton*> CToolBarItem::CreateToolBlock(bool leadingSpacer)
{
    const int count = static_cast<int>(m_strlistIconPath.size());
    if (count != m_strlistText.size() || count != m_vecType.size()) {
        return m_listToolBtn;
    }
    if (leadingSpacer) {
        auto* spacer = new QWidget(this);
        spacer->setFixedWidth(kSpacerWidth);
        addWidget(spacer);
    }

    const QFontMetrics metrics(font());
    const bool chinese = CorvaneTextHelper::instance()->AppInChineseEnvironment();
    QList<QString> captions(count);
    int maxTextWidth = 0;
    int maxLines = 1;

    // Groups stand in the order of their first entries, so one look at the next of them is enough.
    auto group = m_vecVerticalGroupIndex.cbegin();
    const auto groupsEnd = m_vecVerticalGroupIndex.cend();
    for (int i = 0; i < count;) {
        while (group != groupsEnd && (group->first < i || group->second == 0)) {
            ++group;
        }
        if (group != groupsEnd && group->first == i) {
            if (group->second > kMostRowsOfStack) {
                // More rows than a stack has room for: the first entry is lost, the others become large buttons.
                ++i;
            } else {
                MakeStack(i, group->second);
                i += group->second;
            }
            continue;
        }

        captions[i] = m_bSplitLastWord && !chinese ? WithLastWordBelow(m_strlistText.at(i)) : m_strlistText.at(i);
        auto* button = new CToolButton(this);
        TakeButton(button, i, captions.at(i), kLargeIcon);
        const auto highlight = m_hashHighlightColorIndex.constFind(i);
        if (highlight != m_hashHighlightColorIndex.cend()) {
            button->setProperty("highlight", *highlight);
        }
        addWidget(button);

        const int width = WidestLine(metrics, captions.at(i));
        maxTextWidth = qMax(maxTextWidth, chinese ? width : qMin(width, kWidestCaption));
        ++i;
    }

    if (!chinese) {
        const int wrapWidth = qMax(maxTextWidth, kNarrowestContent) + kContentMargins;
        for (const QString& caption : std::as_const(captions)) {
            if (!caption.isEmpty()) {
                maxLines = qMax(maxLines, WrappedLines(metrics, caption, wrapWidth));
            }
        }
    }
    m_nBlockWidth = static_cast<int>(m_listToolBtn.size()) * (maxTextWidth + kBesideCaption) + kBlockMargins +
                    (leadingSpacer ? kBlockMarginOfSpacer : 0);

    m_strlistIconPath.clear();
    m_strlistIconPathDisabled.clear();
    m_strlistText.clear();
    m_vecType.clear();
    m_vecVerticalGroupIndex.clear();
    m_hashHighlightColorIndex.clear();

    m_nUnifiedRevision = 0;
    for (CToolButton* button : std::as_const(m_listToolBtn)) {
        button->SetSharedWidth(maxTextWidth);
        if (!button->IsVerticalBtn()) {
            button->SetSharedTextLines(maxLines);
        }
    }
    return m_listToolBtn;
}

void CToolBarItem::UnifyBlocksHeight(const QList<CToolBarItem*>& blocks)
{
    QList<CToolButton*> buttons;
    int lines = 1;
    for (const CToolBarItem* block : blocks) {
        if (!block) {
            continue;
        }
        for (CToolButton* button : block->m_listToolBtn) {
            if (!button->IsVerticalBtn()) {
                buttons.append(button);
                lines = qMax(lines, button->SharedTextLines());
            }
        }
    }
    if (lines < 2) {
        return;
    }
    for (CToolButton* button : std::as_const(buttons)) {
        button->SetSharedTextLines(lines);
    }
}

void CToolBarItem::TakeButton(CToolButton* button, int index, const QString& caption, int iconEdge)
{
    const QString& iconPath = m_strlistIconPath.at(index);
    button->setObjectName(QStringLiteral("item%1").arg(index));
    button->setIcon(StatefulIcon::create(iconPath, m_strlistIconPathDisabled.at(index), iconEdge));
    button->setText(caption);
    button->setCheckable(false);
    button->setChecked(false);
    button->setIconSize(QPixmap(iconPath).size());
    connect(button, &QToolButton::clicked, this, [this, button] { FollowCheckedTool(button); });
    connect(button, &QObject::destroyed, this, [this, button] { m_listToolBtn.removeOne(button); });
    // Of the button alone: one that found another parent may outlive the block and be the checked tool still.
    connect(button, &QObject::destroyed, button, [button] {
        if (m_pBtnChecked == button) {
            m_pBtnChecked = nullptr;
            ReleaseCheckedBlock();
        }
    });
    m_listToolBtn.append(button);
}

void CToolBarItem::MakeStack(int first, int count)
{
    const QFontMetrics metrics(font());
    int groupWidth = 0;
    for (int i = first; i < first + count; ++i) {
        groupWidth = qMax(groupWidth, metrics.horizontalAdvance(m_strlistText.at(i)));
    }

    auto* stack = new QWidget(this);
    stack->setFixedHeight(kStackHeight);
    auto* layout = new QVBoxLayout(stack);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    for (int i = first; i < first + count; ++i) {
        auto* button = new CToolButtonVertical(this);
        TakeButton(button, i, m_strlistText.at(i), kSmallIcon);
        layout->addWidget(button);
        button->SetGroupWidth(groupWidth);
    }
    addWidget(stack);
}

void CToolBarItem::FollowCheckedTool(CToolButton* button)
{
    if (!button->isCheckable()) {
        return;
    }
    if (m_pBtnChecked == button) {
        m_pBtnChecked = nullptr;
        m_pToolBarChecked = nullptr;
        setMinimumWidth(0);
        SetExtensionHeight(kExtensionHeight);
    } else if (!m_pBtnChecked || button->isChecked()) {
        // Without a checked tool the block of the last one is left as it is: ClearCheckedBtn() releases no block.
        if (m_pBtnChecked) {
            ReleaseCheckedBlock();
        }
        m_pBtnChecked = button;
        m_pToolBarChecked = this;
        setMinimumWidth(m_nBlockWidth);
        SetExtensionHeight(0);
    }
    Refit();
}

// The bar first takes all the room that it wants, and the row may take some of it back. A tool that the toolkit hides
// while it is still showing it stops half way: it counts as hidden and is painted all the same, for good. So the tools
// wait until the row has settled.
void CToolBarItem::Refit()
{
    layout()->setEnabled(false);
    adjustSize();
    if (QLayout* row = parentWidget() ? parentWidget()->layout() : nullptr) {
        row->activate();
    }
    layout()->setEnabled(true);
    layout()->invalidate();
    layout()->activate();
    update();
}

void CToolBarItem::SetExtensionHeight(int height)
{
    if (m_pExtensionBtn) {
        m_pExtensionBtn->setFixedHeight(height);
    }
}

void CToolBarItem::ReleaseCheckedBlock()
{
    if (CToolBarItem* block = std::exchange(m_pToolBarChecked, nullptr)) {
        block->setMinimumWidth(0);
        block->SetExtensionHeight(kExtensionHeight);
    }
}
