#include <CustomControls/menus/CXCombobox.h>

CXCombobox::CXCombobox(QWidget* parent)
    : QComboBox(nullptr)
{
    Q_UNUSED(parent)
    installEventFilter(this);
}

void CXCombobox::focusInEvent(QFocusEvent* event)
{
    // Not handed on: the box does not look focused.
    Q_UNUSED(event)
}

void CXCombobox::focusOutEvent(QFocusEvent* event)
{
    Q_UNUSED(event)
    Q_EMIT SignalFocusOut(currentIndex());
}
