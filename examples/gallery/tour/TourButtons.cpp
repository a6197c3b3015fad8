#include "Tour.h"
#include "TourLook.h"

#include <CustomControls/buttons/CVelmarButton.h>

#include <QLabel>

using namespace TourLook;

namespace {
const QColor ChosenColor(0x18, 0x85, 0x53);

CVelmarButton* Button(const char* name)
{
    return qobject_cast<CVelmarButton*>(Find(QLatin1String(name)));
}

QString Outcome(const char* name)
{
    return Equal(QStringLiteral("the outcome"), Text(QStringLiteral("buttonOutcome")),
                 QStringLiteral("刚才点击：%1").arg(QLatin1String(name)));
}

QString IsChosen(const char* name, bool chosen)
{
    CVelmarButton* button = Button(name);
    return True(button && button->GetChooseFocusState() == chosen,
                QStringLiteral("%1 is%2 chosen").arg(QLatin1String(name), QLatin1String(chosen ? " not" : "")));
}

/** The fill at the middle of the left edge, where neither icon nor text lies. */
QString HasFill(const char* name, const QColor& color)
{
    CVelmarButton* button = Button(name);
    const QColor seen = button ? ScreenColor(button, QPoint(3, button->height() / 2)) : QColor();
    return True(
        seen == color,
        QStringLiteral("%1 is filled with %2").arg(QLatin1String(name), seen.isValid() ? seen.name() : QString()));
}

TourStep Click(const QString& step, const char* name, const std::function<QString()>& missing = {})
{
    return {step, [name](TourInput& input) { input.Click(Button(name)); },
            [name, missing] { return Outcome(name) + (missing ? missing() : QString()); }};
}

/** The bubble is the label that stands beside icon and text without lying in their layouts. */
QLabel* Bubble(const char* name, const QString& sheetPart)
{
    if (CVelmarButton* button = Button(name)) {
        for (QLabel* label : button->findChildren<QLabel*>()) {
            if (label->isVisible() && label->styleSheet().contains(sheetPart)) {
                return label;
            }
        }
    }
    return nullptr;
}
} // namespace

TourGroup TourButtons(Tour*)
{
    const QColor hover(0xd9, 0xee, 0xe4);
    const QColor pressed(0x12, 0x66, 0x41);
    TourGroup group{QStringLiteral("buttons"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("buttons")));
    steps.push_back({QStringLiteral("point at a button"),
                     [](TourInput& input) { input.MoveTo(Button("ButtonTypeIconText")); },
                     [hover] { return HasFill("ButtonTypeIconText", hover); }});
    steps.push_back({QStringLiteral("hold a button down"), [](TourInput& input) { input.Press(); },
                     [pressed] { return HasFill("ButtonTypeIconText", pressed); }});
    steps.push_back({QStringLiteral("let go outside"),
                     [](TourInput& input) {
                         input.MoveTo(Find(QStringLiteral("pageHeading")));
                         input.Release();
                     },
                     [] {
                         return Equal(QStringLiteral("the outcome"), Text(QStringLiteral("buttonOutcome")),
                                      QStringLiteral("点击任意按钮，这里会显示它的名称。")) +
                                HasFill("ButtonTypeIconText", QColor(0xef, 0xf1, 0xf0));
                     }});
    for (const char* name : {"ButtonTypeIcon", "ButtonTypeText", "ButtonTypeIconText", "ButtonTypeIconImage"}) {
        steps.push_back(Click(QStringLiteral("click ") + QLatin1String(name), name));
    }
    for (const char* name :
         {"ButtonTypeIconChoose", "ButtonTypeTextChoose", "ButtonTypeIconTextChoose", "ButtonTypeIconImageChoose"}) {
        steps.push_back(Click(QStringLiteral("choose ") + QLatin1String(name), name,
                              [name] { return IsChosen(name, true) + HasFill(name, ChosenColor); }));
    }
    steps.push_back(Click(QStringLiteral("choose again to take it back"), "ButtonTypeTextChoose",
                          [] { return IsChosen("ButtonTypeTextChoose", false); }));
    steps.push_back(Click(QStringLiteral("another tool of the row"), "toolRowModel", [] {
        return IsChosen("toolRowModel", true) + IsChosen("toolRowBox", false) + HasFill("toolRowModel", ChosenColor);
    }));
    steps.push_back(Click(QStringLiteral("another entry of the column"), "navigationPath", [] {
        return IsChosen("navigationPath", true) + IsChosen("navigationStock", false) +
               HasFill("navigationPath", ChosenColor);
    }));
    for (const char* name :
         {"iconLeft", "iconRight", "iconAbove", "backgroundSolid", "backgroundGradient", "backgroundImage"}) {
        steps.push_back(Click(QStringLiteral("click ") + QLatin1String(name), name));
    }
    steps.push_back(Click(QStringLiteral("another material"), "materialCopper",
                          [] { return IsChosen("materialCopper", true) + IsChosen("materialWood", false); }));
    steps.push_back({QStringLiteral("a message brings the bubble"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("bubbleNotify"))); },
                     [] {
                         return True(Bubble("bubbleMessages", QStringLiteral("#e50000")),
                                     QStringLiteral("there is no bubble"));
                     }});
    steps.push_back(Click(QStringLiteral("reading takes the bubble away"), "bubbleMessages", [] {
        return True(!Bubble("bubbleMessages", QStringLiteral("#e50000")), QStringLiteral("the bubble is still there"));
    }));
    steps.push_back(Click(QStringLiteral("the lamp goes on"), "bubbleLamp", [] {
        return True(Bubble("bubbleLamp", QStringLiteral("icon_state_connect_yes")), QStringLiteral("the lamp is off"));
    }));
    steps.push_back({QStringLiteral("a disabled button says nothing"),
                     [](TourInput& input) { input.Click(Button("disabledText")); },
                     [] { return Outcome("bubbleLamp"); }});
    return group;
}
