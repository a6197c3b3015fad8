#pragma once

#include <CustomControls/frameless/FramelessDialog.h>

class QLabel;
class QPushButton;
class QTextEdit;

/**
 * Shows the lines that make an example of the gallery, to be read beside it and copied. A window has one of them, which
 * turns to the example that was asked for last and deletes itself when it closes.
 */
class SourceDialog : public FramelessDialog
{
    Q_OBJECT

public:
    /** Shows the example of that name in the dialog of @p window; @p title is the example's in words. */
    static void Open(QWidget* window, const QString& title, const QString& example);

protected:
    void changeEvent(QEvent* event) override;

private:
    explicit SourceDialog(QWidget* window);

    void Show(const QString& title, const QString& example);
    void Copy();
    void Retranslate();

    QString m_strTitle;
    QTextEdit* m_pText;
    QLabel* m_pCopied;
    QPushButton* m_pCopy;
    QPushButton* m_pClose;
};
