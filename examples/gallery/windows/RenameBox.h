#pragma once

#include <CustomControls/machine/CFixedSizePopWidget.h>

class QLineEdit;

/** A pop-up of the host's own make on the house's smallest base: it asks for one name. Deletes itself when it closes.
 */
class RenameBox : public CFixedSizePopWidget
{
    Q_OBJECT

public:
    RenameBox(const QString& name, QWidget* parent);

Q_SIGNALS:
    /** The user has confirmed another name; the box then closes. */
    void SignalRenamed(const QString& name);

protected:
    QSize GetTitleSize() override;

protected Q_SLOTS:
    void SlotConfirm() override;

private Q_SLOTS:
    void SlotClose() override;

private:
    QLineEdit* m_pName;
};
