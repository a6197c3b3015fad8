#include <CustomControls/tables/CDelegateTableViewItem.h>

#include <QIcon>
#include <QPainter>

namespace {

constexpr int kFirstColumn = 1;
constexpr int kLastColumn = 2;

constexpr QRect kLargestIcon(0, 0, 160, 32);
// Half of the room between icon and text, and what a lone icon or text keeps from the cell's sides.
constexpr int kGap = 5;

} // namespace

CDelegateTableViewItem::CDelegateTableViewItem(QObject* parent)
    : QStyledItemDelegate(parent)
{}

CDelegateTableViewItem::~CDelegateTableViewItem() = default;

void CDelegateTableViewItem::SetDelegateType(bool iconOnly)
{
    m_bIconOnly = iconOnly;
}

void CDelegateTableViewItem::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                   const QModelIndex& index) const
{
    if (index.column() < kFirstColumn || index.column() > kLastColumn) {
        QStyledItemDelegate::paint(painter, option, index);
        return;
    }
    const QIcon icon = index.data(Qt::DecorationRole).value<QIcon>();
    if (m_bIconOnly) {
        if (!icon.isNull()) {
            QRect iconRect = kLargestIcon;
            iconRect.moveCenter(option.rect.center());
            icon.paint(painter, iconRect, Qt::AlignCenter, QIcon::Normal, QIcon::On);
        }
        return;
    }
    const QString text = index.data(Qt::DisplayRole).toString();
    const int half = option.rect.width() / 2;
    QRect iconRect = option.rect.adjusted(0, 0, -(half + kGap), 0);
    QRect textRect = option.rect.adjusted(half + kGap, 0, 0, 0);
    Qt::Alignment iconAlignment = Qt::AlignRight | Qt::AlignVCenter;
    Qt::Alignment textAlignment = Qt::AlignLeft | Qt::AlignVCenter;
    if (text.isEmpty() && !icon.isNull()) {
        iconRect = option.rect.adjusted(kGap, 0, -kGap, 0);
        iconAlignment = Qt::AlignCenter;
    } else if (icon.isNull() && !text.isEmpty()) {
        textRect = option.rect.adjusted(kGap, 0, -kGap, 0);
        textAlignment = Qt::AlignHCenter | Qt::AlignVCenter;
    }
    icon.paint(painter, iconRect, iconAlignment, QIcon::Normal, QIcon::Off);
    painter->save();
    painter->setFont(index.data(Qt::FontRole).value<QFont>());
    painter->setPen(index.data(Qt::ForegroundRole).value<QColor>());
    painter->drawText(textRect, static_cast<int>(textAlignment), text);
    painter->restore();
}

QWidget* CDelegateTableViewItem::createEditor(QWidget*, const QStyleOptionViewItem&, const QModelIndex&) const
{
    return nullptr;
}
