#include "GalleryCommands.h"

#include "GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QHBoxLayout>
#include <QPushButton>

namespace {
constexpr int Height = 34;
constexpr int Gap = 12;
} // namespace

QPushButton* GalleryCommands::Create(const QString& text, const QString& objectName, bool primary)
{
    auto* button = new QPushButton(text);
    button->setObjectName(objectName);
    button->setFont(FontCnMedium_14);
    button->setFixedHeight(Height);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(GalleryStyle::CommandButton(primary));
    return button;
}

QHBoxLayout* GalleryCommands::Row(const QList<QPushButton*>& commands, int width)
{
    auto* row = new QHBoxLayout;
    row->setSpacing(Gap);
    row->addStretch(1);
    for (QPushButton* command : commands) {
        command->setMinimumWidth(width);
        row->addWidget(command);
    }
    return row;
}
