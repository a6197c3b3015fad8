#pragma once

#include <QWidget>

class QTimer;

namespace Ui {
class CSelectMachineIPLineEdit;
}

/**
 * The pop-up in which the user types a machine's IPv4 address by hand.
 *
 * It has no button: Return or a click elsewhere closes it. Every change of the text is told at once by SignalInputIP;
 * each close tells it once more, with the whole address or, when it isn't one, with an empty text. Closing only hides
 * it, so that the panel, which owns it, can show it again with its old text.
 *
 * @code
 * auto* edit = new CSelectMachineIPLineEdit(panel);
 * connect(edit, &CSelectMachineIPLineEdit::SignalInputIP, label, &QLabel::setText);
 * edit->show();
 * @endcode
 */
class CSelectMachineIPLineEdit : public QWidget
{
    Q_OBJECT

public:
    explicit CSelectMachineIPLineEdit(QWidget* parent);
    ~CSelectMachineIPLineEdit() override;

    /** Sends Return and the loss of focus in the field to the rules of this pop-up. */
    bool eventFilter(QObject* watched, QEvent* event) override;

    /** Empties the field without SignalInputIP, for a panel that has already emptied its own side. */
    void ClearInput();

Q_SIGNALS:
    /** The text typed so far; on close a complete IPv4 address or an empty text. */
    void SignalInputIP(QString text);

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private Q_SLOTS:
    void on_lineEdit_textChanged(QString text);

private:
    friend class CSelectMachineIPLineEditAccessible;

    /** True for a whole IPv4 address in dotted decimals, and nothing around it. */
    bool IsValidIp(const QString& text);
    /** Blinks the field's border three times; starts over when it is already blinking. */
    void StartFlash();
    void FlashTick();
    /** True while the pop-up itself has the focus or the cursor is over it. */
    bool IsFocusInside();
    void CloseWhenLeft();

    Ui::CSelectMachineIPLineEdit* ui;
    QTimer* m_pFlashTimer = nullptr;
    int m_iFlashCount = 0;
    bool m_bFlashOn = false;

    bool m_bHandingOn = false; // a key goes to the field
};
