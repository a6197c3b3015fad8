#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QStyledItemDelegate>

/**
 * Paints a cell of icon and text that meet at the cell's middle, in columns 1 and 2; other columns look as usual.
 *
 * The model gives the icon (Qt::DecorationRole), the text (Qt::DisplayRole), its font (Qt::FontRole) and its colour
 * (Qt::ForegroundRole). No background is painted and a selection does not show. Cells cannot be edited. The delegate's
 * parent owns it; a view does not.
 *
 * @code
 * auto* delegate = new CDelegateTableViewItem(view);
 * delegate->SetDelegateType(true); // a column of pictures
 * view->setItemDelegateForColumn(1, delegate);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CDelegateTableViewItem : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** @param parent the owner, as a rule the view; may be null */
    explicit CDelegateTableViewItem(QObject* parent);
    ~CDelegateTableViewItem() override;

    /** True paints the icon alone, up to 160 by 32 pixels at the cell's middle. It shows with the next repaint. */
    void SetDelegateType(bool iconOnly);

    /** Paints the cell of @p index into the rectangle of @p option; outside columns 1 and 2 as the base does. */
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /** Null: the cell cannot be edited. */
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    bool m_bIconOnly = false;
};
