#pragma once

#include <CustomControls/frameless/FramelessDialog.h>

class QLineEdit;

/** Edits a cutter. Escape does not throw away what was typed: the dialog ends by its buttons alone. */
class ToolDialog : public FramelessDialog
{
    Q_OBJECT

public:
    explicit ToolDialog(QWidget* parent);

    /** The name that the user gave. */
    QString ToolName() const;

private:
    QLineEdit* CreateField(const QString& objectName, const QString& text);

    QLineEdit* m_pName;
};
