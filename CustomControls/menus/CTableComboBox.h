#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QComboBox>

/**
 * A light, plain combo box for a table's cells: a QComboBox with the product's look and rows 24 pixels high.
 *
 * The parent widget owns it. Entries, signals and the pop-up are those of QComboBox.
 *
 * @code
 * auto* box = new CTableComboBox(table);
 * box->addItems(materials);
 * table->setCellWidget(row, column, box);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CTableComboBox : public QComboBox
{
    Q_OBJECT

public:
    /** @param parent the owner, as a rule the table; may be null */
    explicit CTableComboBox(QWidget* parent);
};
