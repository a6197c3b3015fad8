#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QStyledItemDelegate>

/**
 * Paints one left-aligned line of icon and elided text, as a list of file names needs it. Made for a view's first
 * column: a row with an icon is measured from the view's left edge. Rows are meant to be 24 pixels high or more.
 *
 * The model gives the icon (Qt::DecorationRole), the text (Qt::DisplayRole), its font (Qt::FontRole) and its colour
 * (Qt::ForegroundRole); the text of a selected row is white. No background is painted. Cells cannot be edited. The
 * delegate's parent owns it; a view does not.
 *
 * @code
 * auto* delegate = new CFileNameDelegate(view);
 * delegate->SetElideMode(Qt::ElideMiddle);
 * view->setItemDelegate(delegate);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CFileNameDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** @param parent the owner, as a rule the view; may be null */
    explicit CFileNameDelegate(QObject* parent);
    ~CFileNameDelegate() override;

    /** Kept for hosts that tell their delegates apart; the painting is the same for both. */
    void SetDelegateType(bool type);
    /** Where a text that is too long is cut; Qt::ElideRight until then. It shows with the next repaint. */
    void SetElideMode(Qt::TextElideMode mode);

    /** Paints the line of @p index at the top of the rectangle of @p option; an invalid index as the base does. */
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /** Null: the cell cannot be edited. */
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

private:
    bool m_bDelegateType = false;
    Qt::TextElideMode m_eElideMode = Qt::ElideRight;
};
