#include <CustomControls/tables/CFileNameDelegate.h>

#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QPen>

namespace {

// Measured from the view's left edge.
constexpr int kIconLeft = 10;
constexpr int kIconRight = 25;
constexpr int kTextLeftWithIcon = 32;

constexpr int kTextMargin = 7;
constexpr int kLineHeight = 24;

constexpr QRgb kIconPen = qRgb(209, 209, 209);
constexpr QRgb kSelectedText = qRgb(255, 255, 255);

} // namespace

CFileNameDelegate::CFileNameDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{}

CFileNameDelegate::~CFileNameDelegate() = default;

void CFileNameDelegate::SetDelegateType(bool type)
{
    m_bDelegateType = type;
}

void CFileNameDelegate::SetElideMode(Qt::TextElideMode mode)
{
    m_eElideMode = mode;
}

void CFileNameDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    if (!index.isValid()) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const QIcon icon = index.data(Qt::DecorationRole).value<QIcon>();
    const QString text = index.data(Qt::DisplayRole).toString();
    const QFont font = index.data(Qt::FontRole).value<QFont>();
    const QColor color = option.state.testFlag(QStyle::State_Selected) ? QColor(kSelectedText)
                                                                       : index.data(Qt::ForegroundRole).value<QColor>();

    const QRect& cell = option.rect;
    QRect textRect(cell.left() + kTextMargin, cell.top(), cell.width() - 2 * kTextMargin, kLineHeight);
    painter->save();
    if (!icon.isNull()) {
        textRect.setLeft(kTextLeftWithIcon);
        textRect.setRight(cell.right() - cell.left() - kTextMargin);
        const QRect iconRect(QPoint(kIconLeft, cell.top()), QPoint(kIconRight, cell.top() + kLineHeight - 1));
        // An icon that is drawn rather than loaded finds the list's line colour as its pen.
        painter->setPen(QPen(QColor(kIconPen), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        icon.paint(painter, iconRect, Qt::AlignRight | Qt::AlignVCenter, QIcon::Normal, QIcon::Off);
    }
    const QString shown = QFontMetrics(font).elidedText(text, m_eElideMode, textRect.width(), 0);
    painter->setFont(font);
    painter->setPen(color);
    painter->drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter, shown);
    painter->restore();
}

QWidget* CFileNameDelegate::createEditor(QWidget*, const QStyleOptionViewItem&, const QModelIndex&) const
{
    return nullptr;
}
