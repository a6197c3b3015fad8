#pragma once

#include <CustomControls/machine/CVelmarSelectBox.h>

#include <QStringList>

class QButtonGroup;

/** The small pop-up in which the user adds a blank: a shell of the house around the host's own choice. */
class StockBox : public CVelmarSelectBox
{
    Q_OBJECT

public:
    explicit StockBox(QWidget* parent);

Q_SIGNALS:
    /** The user has confirmed this kind of blank; the box then closes. */
    void SignalStockAdded(const QString& kind);

protected Q_SLOTS:
    void SlotConfirm() override;

private:
    QButtonGroup* m_pKinds; ///< a tile's id is its place in the names
    QStringList m_names;
};
