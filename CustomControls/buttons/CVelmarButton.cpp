#include <CustomControls/buttons/CVelmarButton.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/SharpPixmap_p.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/buttons/CMultiLineLabel.h>
#include <CustomControls/buttons/CVelmarButtonAccessible.h>

#include <QApplication>
#include <QBoxLayout>
#include <QFontInfo>
#include <QFontMetrics>
#include <QIcon>
#include <QLinearGradient>
#include <QMouseEvent>
#include <QPaintEngine>
#include <QPainter>
#include <QPixmapCache>
#include <QPointer>
#include <QStringBuilder>

#include <algorithm>
#include <array>

namespace {

enum Look
{
    LookNormal = 0,
    LookPressed = 1,
    LookHover = 2,
    LookChosen = 3
};

enum BackgroundKind
{
    BackgroundSolid = 0,
    BackgroundGradient = 1,
    BackgroundImage = 2
};

constexpr QSize kVerticalSize(60, 40);
constexpr QSize kVerticalTextSize(60, 20);
constexpr QSize kHorizontalSize(80, 40);
constexpr QSize kHorizontalTextSize(40, 40);

const QString kUnsetText = QStringLiteral("ZVButton");

constexpr int kBoldWeight = 600;
constexpr int kRegularWeight = 400;

// The background images carry their own shadow, which stands one pixel to the left of the button.
constexpr int kImageShift = -1;

// A fill of more device pixels than this is painted anew each time, or it would push everything else out of the cache.
constexpr int kLargestKeptFill = 1 << 16;
// Tells our keys in the cache from those of others.
constexpr quint64 kFillKey = 0x0043'0056'0042'0046; // "CVBF" in UTF-16

QString Image(const QString& image)
{
    return QLatin1String("image:") % image % QLatin1Char(';');
}

// Setting a style sheet parses it and polishes the label, even if it is the same text. Only a change is worth that.
void ApplySheet(QLabel* label, const QString& sheet)
{
    if (label->styleSheet() != sheet) {
        label->setStyleSheet(sheet);
    }
}

// Keeps a change of style from the labels, so that their layout is not computed anew.
class LayoutShield : public QObject
{
public:
    LayoutShield(QWidget* first, QWidget* second)
    {
        first->installEventFilter(this);
        second->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override { return event->type() == QEvent::StyleChange; }
};

// The label of the icon. An image of a sheet is painted as the widget's background, before the paint event, so most of
// them have nothing left to paint, and need no painter and no styled frame for it.
class IconLabel : public QLabel
{
protected:
    void paintEvent(QPaintEvent* event) override
    {
        const bool hasContent = frameShape() != NoFrame || !text().isEmpty() || !pixmap().isNull() ||
                                movie() != nullptr || !picture().isNull();
        if (hasContent) {
            QLabel::paintEvent(event);
        }
    }
};

// Whether the text can be no more than the value of one declaration: a host may hide others behind it.
bool HoldsOneValue(const QString& text)
{
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c == u';' || c == u'{' || c == u'}'; });
}

// Whether a sheet other than the widget's own may decide on its look.
bool InheritsSheet(const QWidget* widget)
{
    for (const QWidget* above = widget->parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (!above->styleSheet().isEmpty()) {
            return true;
        }
    }
    return !qApp->styleSheet().isEmpty();
}

// The device pixels of one logical pixel where their grids coincide, as they do on most screens; otherwise 0.
int WholeScale(const QPainter& painter)
{
    const QTransform& transform = painter.deviceTransform();
    const int scale = int(transform.m11());
    const bool whole = transform.type() <= QTransform::TxScale && transform.m11() == scale &&
                       transform.m22() == scale && transform.dx() == int(transform.dx()) &&
                       transform.dy() == int(transform.dy());
    return whole && scale > 0 && painter.paintEngine()->type() == QPaintEngine::Raster ? scale : 0;
}

// Draws what painter would draw as a rounded rectangle of one colour, from a kept picture that equal buttons share:
// smooth corners cost as much as the whole text. (A gradient's rounding depends on its place on the screen.)
void DrawSolidFill(QPainter& painter, const QSize& size, int radius, const QColor& color)
{
    const auto draw = [&](QPainter& canvas) {
        canvas.setBrush(color);
        canvas.drawRoundedRect(QRect(QPoint(), size), radius, radius);
    };
    const int scale = WholeScale(painter);
    const bool kept = !size.isEmpty() && radius > 0 && scale > 0 &&
                      qint64(size.width()) * size.height() * scale * scale <= kLargestKeptFill;
    if (!kept) {
        draw(painter);
        return;
    }
    const std::array<quint64, 6> traits = {kFillKey,        quint64(size.width()), quint64(size.height()),
                                           quint64(radius), quint64(scale),        color.rgba64()};
    const QString key(reinterpret_cast<const QChar*>(traits.data()), sizeof(traits) / sizeof(QChar));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = QPixmap(size * scale);
        pixmap.setDevicePixelRatio(scale);
        pixmap.fill(Qt::transparent);
        QPainter canvas(&pixmap);
        canvas.setRenderHints(painter.renderHints());
        canvas.setPen(painter.pen());
        draw(canvas);
        canvas.end();
        QPixmapCache::insert(key, pixmap);
    }
    painter.drawPixmap(0, 0, pixmap);
}

template <typename T>
void SetLooks(T (&looks)[4], const T& normal, const T& pressed, const T& hover, const T& chosen)
{
    looks[LookNormal] = normal;
    looks[LookPressed] = pressed;
    looks[LookHover] = hover;
    looks[LookChosen] = chosen;
}

// A font that was given in points tells no pixel size of its own.
int PixelSize(const QFont& font)
{
    return font.pixelSize() > 0 ? font.pixelSize() : QFontInfo(font).pixelSize();
}

bool TextCanBeChosen(EnumButtonType type)
{
    return type == ButtonTypeIconChoose || type == ButtonTypeTextChoose || type == ButtonTypeIconTextChoose;
}

bool FillCanBeChosen(EnumButtonType type)
{
    return TextCanBeChosen(type) || type == ButtonTypeIconImageChoose;
}

bool BearsTextImage(EnumButtonType type)
{
    return type == ButtonTypeIconImage || type == ButtonTypeIconImageChoose;
}

const AccessibleFactory::Registration<CVelmarButton, CVelmarButtonAccessible> kAccessible;

} // namespace

CVelmarButton::CVelmarButton(QWidget* parent)
    : CVelmarButton(ButtonTypeTextChoose, false, true, BackgroundSolid, parent)
{
    SetButtonTextPos(0, 0, 0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    SetButtonSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
}

CVelmarButton::CVelmarButton(EnumButtonType type, bool vertical, bool iconFirst, int backgroundKind, QWidget* parent)
    : QPushButton(parent)
    , m_eType(type)
    , m_bVertical(vertical)
    , m_bIconFirst(iconFirst)
    , m_iBackgroundKind(backgroundKind)
{
    setWindowFlags(Qt::CustomizeWindowHint | Qt::FramelessWindowHint);

    m_pIconLabel = new IconLabel;
    m_pTextLabel = new CMultiLineLabel;
    if (m_bVertical) {
        m_pTextLayoutV = new QVBoxLayout;
        m_pImageLayoutV = new QVBoxLayout;
        m_pMainLayoutV = new QVBoxLayout;
    } else {
        m_pTextLayoutH = new QHBoxLayout;
        m_pImageLayoutH = new QHBoxLayout;
        m_pMainLayoutH = new QHBoxLayout;
    }
    if (m_eType == ButtonTypeIcon || m_eType == ButtonTypeIconChoose) {
        m_pTextLabel->hide();
    }
    if (m_eType == ButtonTypeText || m_eType == ButtonTypeTextChoose) {
        m_pIconLabel->hide();
    }
    m_pTextLabel->setFont(FontCn_14);
    InitButtonUI();

    // The keyboard's click is the toolkit's. A dialog that clicks its default button while another has the focus is not
    // meant.
    connect(this, &QAbstractButton::clicked, this, [this] {
        if (hasFocus()) {
            Q_EMIT SignalClicked();
        }
    });
    KeyboardFocus::ShowOn(this);
}

void CVelmarButton::InitButtonUI()
{
    m_strText = kUnsetText;
    SetLooks<QString>(m_strTextColor, QStringLiteral("rgb(102,102,102)"), QStringLiteral("rgb(255,255,255)"),
                      QStringLiteral("rgb(50,50,50)"), QStringLiteral("rgb(255,255,255)"));
    SetLooks(m_colorSolid, QColor(230, 230, 230), QColor(38, 120, 218), QColor(194, 211, 231), QColor(38, 120, 218));

    const QSize textSize = m_bVertical ? kVerticalTextSize : kHorizontalTextSize;
    const QSize size = m_bVertical ? kVerticalSize : kHorizontalSize;
    m_iTextWidth = textSize.width();
    m_iTextHeight = textSize.height();
    m_iWidth = size.width();
    m_iHeight = size.height();
    setMaximumSize(m_iWidth, m_iHeight);

    QBoxLayout* imageLayout = m_bVertical ? static_cast<QBoxLayout*>(m_pImageLayoutV) : m_pImageLayoutH;
    QBoxLayout* textLayout = m_bVertical ? static_cast<QBoxLayout*>(m_pTextLayoutV) : m_pTextLayoutH;
    QBoxLayout* mainLayout = m_bVertical ? static_cast<QBoxLayout*>(m_pMainLayoutV) : m_pMainLayoutH;

    imageLayout->setContentsMargins(0, 0, 0, 0);
    imageLayout->addWidget(m_pIconLabel);

    m_pTextLabel->setMaximumSize(m_iTextWidth, m_iTextHeight);
    m_pTextLabel->setText(m_strText);
    m_pTextLabel->setAlignment(Qt::AlignCenter);

    textLayout->setContentsMargins(0, 0, 0, 0);
    textLayout->addWidget(m_pTextLabel);

    mainLayout->setContentsMargins(0, 0, 0, 0);
    mainLayout->setSpacing(0);
    const bool imageLeads = m_bVertical || m_bIconFirst;
    mainLayout->addLayout(imageLeads ? imageLayout : textLayout);
    mainLayout->addLayout(imageLeads ? textLayout : imageLayout);
    setLayout(mainLayout);
}

void CVelmarButton::SetButtonImagePos(int left, int top, int right, int bottom, int maxWidth, int maxHeight)
{
    QBoxLayout* layout = m_bVertical ? static_cast<QBoxLayout*>(m_pImageLayoutV) : m_pImageLayoutH;
    layout->setContentsMargins(left, top, right, bottom);
    m_pIconLabel->setMaximumSize(maxWidth, maxHeight);
}

void CVelmarButton::SetButtonTextPos(int left, int top, int right, int bottom, int maxWidth, int maxHeight)
{
    QBoxLayout* layout = m_bVertical ? static_cast<QBoxLayout*>(m_pTextLayoutV) : m_pTextLayoutH;
    layout->setContentsMargins(left, top, right, bottom);
    m_pTextLabel->setMaximumSize(maxWidth, maxHeight);
}

void CVelmarButton::SetButtonTextWrap(bool wrap)
{
    m_pTextLabel->setWordWrap(wrap);
}

void CVelmarButton::SetButtonIcon(const QString& normal, const QString& pressed, const QString& hover,
                                  const QString& chosen)
{
    SetLooks(m_strIcon, normal, pressed, hover, chosen);
    SetButtonStyle();
}

void CVelmarButton::SetButtonIcon_Text(const QString& normal, const QString& pressed, const QString& hover,
                                       const QString& chosen)
{
    SetLooks(m_strTextIcon, normal, pressed, hover, chosen);
    SetButtonStyle();
}

void CVelmarButton::SetButtonText(const QString& text, bool bold)
{
    m_pTextLabel->setText(text);
    m_bBoldText = bold;
    m_strText = text;

    QFont font = m_pTextLabel->font();
    const int weight = bold ? kBoldWeight : kRegularWeight;
    if (font.weight() != weight) {
        font = GetFontWidthPxSizeAndWeight(PixelSize(font), weight);
    }
    m_pTextLabel->setFont(font);
    TellNameChanged(this);
}

void CVelmarButton::SetCaption(const QString& text)
{
    const QFont font = GetButtonTextFont();
    SetButtonText(text, m_bBoldText);
    SetTextFont(font);
}

void CVelmarButton::SetButtonFontSize(int pixelSize)
{
    if (pixelSize <= 0) {
        return;
    }
    QFont font = m_pTextLabel->font();
    font.setPixelSize(pixelSize);
    m_pTextLabel->setFont(font);
}

QFont CVelmarButton::GetButtonTextFont()
{
    return m_pTextLabel->font();
}

void CVelmarButton::UpdateContentSize()
{
    if (m_eType != ButtonTypeIconTextChoose || m_bVertical) {
        return;
    }
    QMargins image = m_pImageLayoutH->contentsMargins();
    QMargins text = m_pTextLayoutH->contentsMargins();
    const int textWidth = QFontMetrics(m_pTextLabel->font()).horizontalAdvance(m_pTextLabel->text());
    int gap = m_bIconFirst ? image.right() + text.left() : image.left() + text.right();
    const int room = m_iWidth - gap - m_pIconLabel->width() - textWidth;
    if (room <= 0) {
        return;
    }
    m_pTextLabel->setMaximumWidth(textWidth);

    int outer = room >> 1;
    if (outer < gap) {
        // Icon and text would stand further from each other than from the edges: a third of the room goes between them,
        // rounded so that both outer margins are equal.
        const int total = gap + (room & ~1);
        gap = total / 3;
        if ((total - gap) % 2 != 0) {
            --gap;
        }
        outer = (total - gap) / 2;
        if (m_bIconFirst) {
            image.setRight(gap);
            text.setLeft(0);
        } else {
            image.setLeft(gap);
            text.setRight(0);
        }
    }
    if (m_bIconFirst) {
        image.setLeft(outer);
        text.setRight(outer);
    } else {
        image.setRight(outer);
        text.setLeft(outer);
    }
    m_pImageLayoutH->setContentsMargins(image);
    m_pTextLayoutH->setContentsMargins(text);
}

void CVelmarButton::SetButtonTypeBubble(int x, int y, int width, int height, const QString& color, bool clearOnChoose)
{
    m_bClearBubbleOnChoose = clearOnChoose;
    m_bHasBubble = true;
    m_pBubble = new QLabel(QString(), this);
    m_pBubble->setAlignment(Qt::AlignCenter);
    m_pBubble->move(x, y);
    m_pBubble->resize(width, height);
    m_pBubble->setStyleSheet(QLatin1String("color:rgb(255,255,255);background-color:") + color +
                             QLatin1String(";border-radius:") + QString::number(height / 2) + QLatin1String("px;"));
    m_pBubble->hide();
}

void CVelmarButton::SetButtonBubbleToLight(const QString& focusImage, const QString& normalImage)
{
    if (!m_bHasBubble) {
        return;
    }
    m_strBubbleFocus = focusImage;
    m_strBubbleNormal = normalImage;
    m_bBubbleLight = true;
    m_pBubble->setStyleSheet(Image(m_strBubbleNormal));
    m_pBubble->show();
}

void CVelmarButton::AddBubbleCount()
{
    if (m_bChooseFocus || !m_bHasBubble) {
        return;
    }
    ++m_iBubbleCount;
    m_pBubble->show();
}

void CVelmarButton::SetBackgroundSolid(QColor normal, QColor pressed, QColor hover, QColor chosen)
{
    SetLooks(m_colorSolid, normal, pressed, hover, chosen);
    SetButtonStyle();
}

void CVelmarButton::SetBackgroundGradient(StructGradientColor normal, StructGradientColor pressed,
                                          StructGradientColor hover, StructGradientColor chosen)
{
    SetLooks(m_gradient, normal, pressed, hover, chosen);
    SetButtonStyle();
}

void CVelmarButton::SetBackgroundImage(const QString& normal, const QString& pressed, const QString& hover,
                                       const QString& chosen)
{
    const auto render = [this](const QString& path) { return SharpPixmap(QIcon(path), size()); };
    SetLooks(m_pixBackground, render(normal), render(pressed), render(hover), render(chosen));
    m_bHasBackgroundImage = true;
    SetButtonStyle();
}

void CVelmarButton::SetTextColor(const QString& normal, const QString& pressed, const QString& hover,
                                 const QString& chosen)
{
    SetLooks(m_strTextColor, normal, pressed, hover, chosen);
    SetButtonStyle();
}

void CVelmarButton::SetBtnRadius(int radius)
{
    m_iRadius = radius;
}

void CVelmarButton::SetChooseFocus(bool chosen)
{
    const bool changed = m_bChooseFocus != chosen;
    m_bChooseFocus = chosen;
    if (m_bHasBubble) {
        if (m_bClearBubbleOnChoose) {
            if (chosen) {
                m_iBubbleCount = 0;
                m_pBubble->hide();
            }
        } else if (m_bBubbleLight) {
            ApplySheet(m_pBubble, Image(chosen ? m_strBubbleFocus : m_strBubbleNormal));
        } else {
            m_pBubble->setVisible(chosen);
        }
    }
    SetButtonStyle();
    update();
    if (changed && CanBeChosen()) {
        TellCheckedChanged(this);
    }
}

void CVelmarButton::SetIconBorder(const QString& border, bool enable)
{
    m_strIconBorder = border;
    m_bIconBorder = enable;
    SetButtonStyle();
}

bool CVelmarButton::GetChooseFocusState()
{
    return m_bChooseFocus;
}

QString CVelmarButton::GetButtonText()
{
    return m_pTextLabel->text();
}

void CVelmarButton::SetButtonSize(int width, int height)
{
    m_iWidth = width;
    m_iHeight = height;
    setMaximumSize(width, height);
}

void CVelmarButton::SetAlignment(Qt::Alignment alignment)
{
    m_pTextLabel->setAlignment(alignment);
}

void CVelmarButton::SetTextFont(QFont font)
{
    m_pTextLabel->setFont(font);
}

void CVelmarButton::SetEnabled(bool enabled)
{
    setEnabled(enabled);
    m_pIconLabel->setEnabled(enabled);
    m_pTextLabel->setEnabled(enabled);
}

void CVelmarButton::mousePressEvent(QMouseEvent* event)
{
    // QAbstractButton does not get the event: SignalClicked is the only click of this button.
    if (event->button() == Qt::LeftButton) {
        ChangeState(LookPressed);
    }
}

void CVelmarButton::mouseReleaseEvent(QMouseEvent* event)
{
    QWidget::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton) {
        return;
    }
    ChangeState(m_bHovered ? LookHover : LookNormal);
    if (!isEnabled() || !geometry().contains(mapToParent(event->position().toPoint()))) {
        return;
    }
    const QPointer<CVelmarButton> alive(this);
    Q_EMIT SignalClicked();
    if (!alive) {
        // An ignored event would travel on to the parent of a button that is no more.
        event->accept();
    }
}

void CVelmarButton::enterEvent(QEnterEvent* event)
{
    m_bHovered = true;
    ChangeState(LookHover);
    QWidget::enterEvent(event);
}

void CVelmarButton::leaveEvent(QEvent* event)
{
    m_bHovered = false;
    ChangeState(LookNormal);
    QWidget::leaveEvent(event);
}

void CVelmarButton::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    RedrawBackground(painter);
    painter.end();

    // The labels paint after the button, so they wear their first look in this very picture.
    if (m_bFirstPaint) {
        SetButtonStyle();
        m_bFirstPaint = false;
    }
}

void CVelmarButton::ChangeState(int state)
{
    m_iState = state;
    if (HasLooksOfOneSize()) {
        // Colours and images change, sizes do not; the update below covers the labels.
        const LayoutShield shield(m_pIconLabel, m_pTextLabel);
        SetButtonStyle();
    } else {
        SetButtonStyle();
    }
    update();
}

bool CVelmarButton::HasLooksOfOneSize() const
{
    // A first sheet brings another style with it, and behind a semicolon a host may have hidden a padding or a width.
    if (m_pTextLabel->styleSheet().isEmpty()) {
        return false;
    }
    const auto all = [](const QString(&looks)[4]) { return std::all_of(looks, looks + 4, HoldsOneValue); };
    return all(m_strTextColor) && all(m_strIcon) && all(m_strTextIcon);
}

bool CVelmarButton::HasOwnText() const
{
    const bool showsWords = m_eType != ButtonTypeIcon && m_eType != ButtonTypeIconChoose && !BearsTextImage(m_eType);
    return showsWords || m_pTextLabel->text() != kUnsetText;
}

bool CVelmarButton::CanBeChosen() const
{
    return FillCanBeChosen(m_eType);
}

int CVelmarButton::StateIndex() const
{
    return m_iState >= LookNormal && m_iState <= LookHover ? m_iState : static_cast<int>(LookNormal);
}

QString CVelmarButton::IconSheet(int look) const
{
    if (m_bIconBorder) {
        return Image(m_strIcon[look]) % m_strIconBorder % m_strTextColor[look] % QLatin1String(";border-radius:") %
               QString::number(m_iRadius) % QLatin1String("px;");
    }
    return Image(m_strIcon[look]) % QLatin1String("background:transparent;");
}

QString CVelmarButton::TextSheet(int look) const
{
    if (BearsTextImage(m_eType)) {
        return Image(m_strTextIcon[look]) % QLatin1String("background:transparent;");
    }
    return QLatin1String("color:") % m_strTextColor[look] % QLatin1String(";background:transparent;");
}

void CVelmarButton::SetButtonStyle()
{
    const int look = StateIndex();
    if (m_iBackgroundKind >= BackgroundSolid && m_iBackgroundKind <= BackgroundImage) {
        const bool canBeChosen =
            m_iBackgroundKind == BackgroundImage ? TextCanBeChosen(m_eType) : FillCanBeChosen(m_eType);
        ApplySheet(m_pIconLabel, IconSheet(m_bChooseFocus && canBeChosen ? static_cast<int>(LookChosen) : look));
    }
    // The image of ButtonTypeIconImageChoose follows the mouse even while the button is chosen.
    const bool textChosen = m_bChooseFocus && TextCanBeChosen(m_eType);
    const int textLook = textChosen ? static_cast<int>(LookChosen) : look;
    ApplySheet(m_pTextLabel, TextSheet(textLook));
    if (!BearsTextImage(m_eType) && HoldsOneValue(m_strTextColor[textLook]) && !InheritsSheet(m_pTextLabel)) {
        // The transparent background needs no painter of its own. The toolkit takes this back whenever it reads a
        // sheet.
        m_pTextLabel->setAttribute(Qt::WA_StyledBackground, false);
    }
}

void CVelmarButton::RedrawBackground(QPainter& painter)
{
    const int look = m_bChooseFocus && FillCanBeChosen(m_eType) ? static_cast<int>(LookChosen) : StateIndex();
    switch (m_iBackgroundKind) {
    case BackgroundSolid:
        DrawSolidFill(painter, size(), m_iRadius, m_colorSolid[look]);
        break;
    case BackgroundGradient: {
        const int middle = m_iWidth / 2;
        QLinearGradient gradient(middle, 0, middle, m_iHeight);
        gradient.setColorAt(0.0, m_gradient[look].startColor);
        gradient.setColorAt(1.0, m_gradient[look].endColor);
        painter.setBrush(gradient);
        painter.drawRoundedRect(rect(), m_iRadius, m_iRadius);
        break;
    }
    case BackgroundImage:
        DrawBackgroundPixmap(painter);
        break;
    default:
        break;
    }
    // Images given to another kind cover its fill; those of kind 2 are drawn a second time, which deepens their shadow.
    if (m_bHasBackgroundImage) {
        DrawBackgroundPixmap(painter);
    }
}

void CVelmarButton::DrawBackgroundPixmap(QPainter& painter)
{
    const QRect target = rect().translated(kImageShift, 0);
    if (m_iState >= LookNormal && m_iState <= LookHover) {
        const int look = m_iState == LookHover && !isEnabled() ? static_cast<int>(LookNormal) : m_iState;
        painter.drawPixmap(target, m_pixBackground[look]);
    }
    if (m_bChooseFocus && TextCanBeChosen(m_eType)) {
        painter.drawPixmap(target, m_pixBackground[LookChosen]);
    }
}
