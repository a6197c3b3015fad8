#include "DialogFrame.h"

#include "../GalleryTitleBar.h"

#include <CustomControls/frameless/FramelessDialog.h>

#include <QVBoxLayout>

namespace {
constexpr auto DialogSheet = "#%1{background:#ffffff;border:1px solid #2b2f33;}";
} // namespace

//! [frameless-windows]
void DialogFrame::Fill(FramelessDialog* dialog, QLayout* content, QLayout* commands)
{
    dialog->setStyleSheet(QString::fromLatin1(DialogSheet).arg(dialog->objectName()));
    auto* bar = new GalleryTitleBar(dialog, GalleryTitleBar::ButtonMaximize | GalleryTitleBar::ButtonClose);
    dialog->setTitleBar(bar);
    auto* body = new QVBoxLayout;
    body->setContentsMargins(24, 24, 24, 20);
    body->setSpacing(16);
    body->addLayout(content, 1);
    body->addLayout(commands);
    auto* layout = new QVBoxLayout(dialog);
    layout->setContentsMargins(1, 0, 1, 1); // beside the border
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addLayout(body, 1);
}
//! [frameless-windows]
