#pragma once

#include <QWidget>

class QLabel;

/** The strip at the foot of the window: which machine the product is connected to. */
class StatusLine : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void ShowMachine();

    QLabel* m_pIcon;
    QLabel* m_pText;
};
