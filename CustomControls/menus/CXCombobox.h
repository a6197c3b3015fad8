#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QComboBox>

/**
 * A bare combo box that reports the loss of focus with its current index, for a cell that is edited until it is left.
 *
 * It is born without a parent, whatever the constructor was given: place it by a layout, a view or setParent(), which
 * makes the new parent its owner.
 *
 * @code
 * auto* box = new CXCombobox(nullptr);
 * layout->addWidget(box);
 * connect(box, &CXCombobox::SignalFocusOut, this, &Editor::Commit);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CXCombobox : public QComboBox
{
    Q_OBJECT

public:
    /** @param parent not read: the box has no parent until it is placed */
    explicit CXCombobox(QWidget* parent);

Q_SIGNALS:
    /** The box lost the focus while @p index was current, -1 for none. */
    void SignalFocusOut(int index);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    [[maybe_unused]] bool m_bFocus = false;
};
