#pragma once

#include <QWidget>

class QLabel;

/** The strip at the foot of the window: which machine the product is connected to. */
class StatusLine : public QWidget
{
    Q_OBJECT

public:
    explicit StatusLine(QWidget* parent = nullptr);

private:
    void ShowMachine(bool connected, const QString& ip, const QString& serial);

    QLabel* m_pIcon;
    QLabel* m_pText;
};
