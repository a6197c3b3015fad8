#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QString>
#include <QStyledItemDelegate>

class QLineEdit;

/**
 * Edits a number in a table's cell: at most three digits before the point and four behind it, with an optional minus
 * sign.
 *
 * The number goes back to the model as a text of at most six significant digits. An editor stays behind as a hidden
 * child of the view once its edit ends, and goes with the view. The delegate's parent owns it; a view does not.
 *
 * @code
 * auto* delegate = new CDelegateLineEdit(view);
 * view->setItemDelegateForColumn(2, delegate);
 * connect(delegate, &CDelegateLineEdit::SignalDataChanged, this, &Panel::SlotOffsetChanged);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CDelegateLineEdit : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /** @param parent the owner, as a rule the view; may be null */
    explicit CDelegateLineEdit(QObject* parent);
    ~CDelegateLineEdit() override;

    /** A QLineEdit without frame in the house look, its text centred. @p parent owns it. */
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /** Does nothing: the editor stays, hidden, until the view goes. */
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    /**
     * Shows the cell's text, whether or not it is a number that could be typed. An editor that is null or no QLineEdit
     * is left alone.
     */
    void setEditorData(QWidget* editor, const QModelIndex& index) const override;
    /** Stores the number under Qt::EditRole, as text; what is no number is 0. Emits nothing. */
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;
    /** Keeps the editor 10 pixels from the cell's top and 9 from its right and bottom. */
    void updateEditorGeometry(QWidget* editor, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const override;

Q_SIGNALS:
    /** Return was pressed on an acceptable number. The value is the full one, before the model's rounding. */
    void SignalDataChanged(double dValue);

private Q_SLOTS:
    void SlotEditingFinished();

private:
    QWidget* m_pRootWidget = nullptr;

    static QString s_strEditorText;
    static QLineEdit* s_pEditor;
};
