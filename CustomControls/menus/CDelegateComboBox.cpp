#include <CustomControls/menus/CDelegateComboBox.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <QPainter>

namespace {

constexpr int kRowHeight = 24;
constexpr int kTextIndent = 7;
constexpr QColor kSelectedColor(73, 135, 89, 51);
constexpr QColor kBackColor(255, 255, 255);
constexpr QColor kTextColor(0x33, 0x33, 0x33);

} // namespace

CDelegateComboBox::CDelegateComboBox()
    : QStyledItemDelegate(nullptr)
{}

void CDelegateComboBox::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    painter->save();
    painter->setPen(Qt::NoPen);
    painter->setBrush(option.state.testFlag(QStyle::State_Selected) ? kSelectedColor : kBackColor);
    painter->drawRect(option.rect);

    painter->setPen(kTextColor);
    painter->setFont(FontCnMedium_13);
    painter->drawText(option.rect.translated(kTextIndent, 0), Qt::AlignLeft | Qt::AlignVCenter,
                      index.data(Qt::DisplayRole).toString());
    painter->restore();
}

QSize CDelegateComboBox::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return {QStyledItemDelegate::sizeHint(option, index).width(), kRowHeight};
}
