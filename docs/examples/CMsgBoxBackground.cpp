#include <CustomControls/messagebox/CMsgBoxBackground.h>

#include <tests/documentation/Example.h>

#include <QLabel>

EXAMPLE(CMsgBoxBackground)
{
    // [example]
    auto* card = new CMsgBoxBackground(panel);
    card->setObjectName("card");
    card->setStyleSheet("QWidget#card{background:#f6f6f6; border-radius:4px;}");
    auto* rows = new QVBoxLayout(card);
    rows->addWidget(new QLabel("The spindle is still turning.", card));
    layout->addWidget(card);
    // [/example]
    QTRY_VERIFY(card->width() > 20);
    QCOMPARE(card->grab().toImage().pixelColor(card->width() / 2, 3), QColor("#f6f6f6"));
}
