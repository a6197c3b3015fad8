#include <CustomControls/toolbar/CToolBar.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/CToolBarStyle.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMainWindow>
#include <QPaintEvent>
#include <QPainter>
#include <QResizeEvent>
#include <QTextOption>
#include <QTimer>

namespace {

constexpr int kBlockHeight = 78;
constexpr int kSlimHeight = 41;
constexpr int kGeometryDelayMs = 40;

// A bar that a row stretches beyond its own height has a ground of its own.
constexpr int kTallBar = 80;
constexpr QColor kGround(234, 235, 234);
constexpr QColor kLine(187, 187, 187);
constexpr QColor kLight(255, 255, 255);
constexpr QColor kGroupCaption(153, 153, 153);
constexpr int kGroupCaptionHeight = 20;
constexpr int kBehindLastButton = 4;
constexpr Qt::Alignment kGroupCaptionAlignment = Qt::AlignHCenter | Qt::AlignVCenter;
// A glyph may reach a little beyond its own measure.
constexpr int kGlyphOverhang = 8;

} // namespace

CToolButton* CToolBar::m_pBtnChecked = nullptr;

CToolBar::CToolBar(EnumToolBarMode mode, QWidget* parent)
    : QToolBar(parent)
    , m_eMode(mode)
    , m_pStyle(new CToolBarStyle)
{
    // The application is its owner in the end: QWidget::setStyle() is none, and the bar itself would delete the style
    // before those of its children that still use it.
    m_pStyle->setParent(QCoreApplication::instance());
    setStyle(m_pStyle);
}

CToolBar::~CToolBar()
{
    if (m_pStyle) {
        m_pStyle->deleteLater();
    }
}

void CToolBar::SetFixedWidthForPainting(int width)
{
    m_nFixedWidthForPainting = width;
}

void CToolBar::SetSplitLastWordMode(bool split)
{
    m_bSplitLastWord = split;
}

bool CToolBar::IsSplitLastWordMode() const
{
    return m_bSplitLastWord;
}

void CToolBar::ClearCheckedBtn()
{
    if (m_pBtnChecked) {
        m_pBtnChecked->setChecked(false);
    }
    m_pBtnChecked = nullptr;
}

QSize CToolBar::sizeHint() const
{
    return {QToolBar::sizeHint().width(), m_eMode == ToolBarModeBlock ? kBlockHeight : kSlimHeight};
}

void CToolBar::paintEvent(QPaintEvent* event)
{
    const QRect r = rect();
    // A bar without a parent, or floating, is a row of its own.
    const bool alone = isWindow();
    const bool first = alone || x() == 0;
    const bool last = alone || x() + width() == parentWidget()->width();
    const int extent = r.bottom() - r.top();

    QPainter painter(this);
    if (extent >= kTallBar) {
        painter.fillRect(r, kGround);
    }
    painter.setPen(kLine);
    painter.drawLine(r.bottomLeft(), r.bottomRight());
    const int lineEnd = extent < kTallBar ? extent - 1 : extent;
    if (!first) {
        painter.setPen(kLight);
        painter.drawLine(r.left(), 0, r.left(), lineEnd);
    }
    if (!last) {
        painter.setPen(kLine);
        painter.drawLine(r.right(), 0, r.right(), lineEnd);
    }

    QRect area = r.adjusted(1, height() - kGroupCaptionHeight, -1, 1);
    if (m_nFixedWidthForPainting >= 0) {
        area.setWidth(qMin(area.width(), m_nFixedWidthForPainting));
    } else if (last) {
        area.setWidth(RightmostButtonEdge() + kBehindLastButton);
    }
    painter.setFont(FontCnMedium_11);
    painter.setPen(kGroupCaption);
    painter.setBrush(Qt::NoBrush);
    const QString caption = property("GroupName").toString();
    if (event->region().intersects(GroupCaptionPlace(painter, area, caption))) {
        painter.drawText(area, caption, QTextOption(kGroupCaptionAlignment));
    }
}

void CToolBar::resizeEvent(QResizeEvent* event)
{
    QToolBar::resizeEvent(event);
    const int height = event->size().height();
    if (height >= event->oldSize().height() || height != kBlockHeight || m_bGeometryPending) {
        return;
    }
    m_bGeometryPending = true;
    QTimer::singleShot(kGeometryDelayMs, this, [this] {
        m_bGeometryPending = false;
        updateGeometry();
    });
}

void CToolBar::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
}

void CToolBar::showEvent(QShowEvent* event)
{
    const bool unified = m_nUnifiedRevision == CToolButton::m_nLinesRevision;
    m_nUnifiedRevision = 0;
    for (const QWidget* ancestor = parentWidget(); ancestor && !unified; ancestor = ancestor->parentWidget()) {
        if (const auto* window = qobject_cast<const QMainWindow*>(ancestor)) {
            UnifyBlocksOf(*window);
            break;
        }
    }
    QToolBar::showEvent(event);
}

// A window shows its bars in one go, and to look through it again for each of them would cost the square of their
// number. So the bars that are about to be shown as well are told that it is done; what happens meanwhile to any button
// takes that back, and so does the next turn of the event loop.
void CToolBar::UnifyBlocksOf(const QMainWindow& window)
{
    const QList<CToolBar*> bars = window.findChildren<CToolBar*>();
    QList<CToolBarItem*> blocks;
    for (CToolBar* bar : bars) {
        if (auto* block = qobject_cast<CToolBarItem*>(bar)) {
            blocks.append(block);
        }
    }
    if (blocks.size() > 1) {
        CToolBarItem::UnifyBlocksHeight(blocks);
    }
    for (CToolBar* bar : bars) {
        if (!bar->isVisible() && bar->isVisibleTo(&window)) {
            bar->m_nUnifiedRevision = CToolButton::m_nLinesRevision;
        }
    }
    QMetaObject::invokeMethod(
        qApp, [] { ++CToolButton::m_nLinesRevision; }, Qt::QueuedConnection);
}

// In the bar's own coordinates: a button of a stack lies in the stack's container. 0 when none is visible.
int CToolBar::RightmostButtonEdge() const
{
    int edge = 0;
    for (const CToolButton* button : m_listToolBtn) {
        if (button->isVisible() && isAncestorOf(button)) {
            edge = qMax(edge, button->mapTo(this, QPoint(button->width(), 0)).x());
        }
    }
    return edge;
}

// Where the group caption leaves pixels; beyond the area, too, when it is too long for it.
QRect CToolBar::GroupCaptionPlace(QPainter& painter, const QRect& area, const QString& caption)
{
    if (m_rectMeasuredArea != area || m_strMeasuredCaption != caption) {
        m_rectMeasuredArea = area;
        m_strMeasuredCaption = caption;
        m_rectGroupCaption = painter.boundingRect(QRectF(area), caption, QTextOption(kGroupCaptionAlignment))
                                 .toAlignedRect()
                                 .adjusted(-kGlyphOverhang, -kGlyphOverhang, kGlyphOverhang, kGlyphOverhang);
    }
    return m_rectGroupCaption;
}
