#pragma once

#include <QStyledItemDelegate>

/**
 * Paints the rows of a CTableComboBox's list: text on white, or on a green tint when selected.
 *
 * It has no parent of its own; the box that made it ends it.
 *
 * @code
 * box->setItemDelegate(new CDelegateComboBox);
 * @endcode
 */
class CDelegateComboBox : public QStyledItemDelegate
{
    Q_OBJECT

public:
    CDelegateComboBox();

    /** Paints the text of Qt::DisplayRole; an index without a model has none. */
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /** As wide as usual, 24 pixels high. */
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
