#include "Tour.h"
#include "TourLook.h"

#include <CustomControls/buttons/CHintButton.h>
#include <CustomControls/buttons/CSelectButton.h>
#include <CustomControls/fields/CSelectBox.h>
#include <CustomControls/fields/CTextEdit.h>

#include <QDoubleSpinBox>
#include <QPushButton>

using namespace TourLook;

namespace {
const QColor FrameChecked(23, 160, 97);
const QColor StripLine(0x2e, 0x2e, 0x2e);

template <class Part>
Part* PartOf(const char* name)
{
    QWidget* whole = Find(QLatin1String(name));
    return whole ? whole->findChild<Part*>() : nullptr;
}

/** The switch is the last button of its row; the mark before it is a CHintButton. */
QPushButton* Switch(const char* name)
{
    QWidget* row = Find(QLatin1String(name));
    return row ? row->findChild<QPushButton*>(QStringLiteral("btnBox")) : nullptr;
}

QString Outcome(const QString& expected)
{
    return Equal(QStringLiteral("the outcome"), Text(QStringLiteral("parameterOutcome")), expected);
}

QString Shows(const char* name, double value)
{
    auto* field = qobject_cast<CTextEdit*>(Find(QLatin1String(name)));
    return True(field && qFuzzyCompare(1.0 + field->GetEditData(), 1.0 + value),
                QStringLiteral("%1 shows %2").arg(QLatin1String(name)).arg(field ? field->GetEditData() : -1.0));
}

QString HasLine(bool line)
{
    QWidget* strip = Find(QStringLiteral("widgetBtn"));
    const bool seen = strip && ScreenColor(strip, QPoint(197, 0)) == StripLine;
    return True(strip && seen == line,
                QStringLiteral("the line above the buttons is %1 there").arg(QLatin1String(seen ? "still" : "not")));
}

TourStep Type(const QString& step, const char* name, const QString& number, double value, const QString& outcome)
{
    return {step,
            [name, number](TourInput& input) {
                input.Click(PartOf<QDoubleSpinBox>(name));
                input.Key(QStringLiteral("ctrl+a"));
                input.Type(number);
                input.Key(QStringLiteral("Return"));
            },
            [name, value, outcome] { return Shows(name, value) + Outcome(outcome); }};
}
} // namespace

TourGroup TourParameters(Tour*)
{
    TourGroup group{QStringLiteral("parameters"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("parameters")));
    steps.push_back({QStringLiteral("choose jade"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("materialJade"))); },
                     [] {
                         auto* jade = qobject_cast<CSelectButton*>(Find(QStringLiteral("materialJade")));
                         auto* acrylic = qobject_cast<CSelectButton*>(Find(QStringLiteral("materialAcrylic")));
                         return Outcome(QStringLiteral("材料：玉石")) +
                                True(jade && ScreenColor(jade, QPoint(1, jade->height() / 2)) == FrameChecked,
                                     QStringLiteral("jade has no green frame")) +
                                True(acrylic && !acrylic->isChecked(), QStringLiteral("acrylic is still chosen"));
                     }});
    steps.push_back(Type(QStringLiteral("type a length"), "fieldLength", QStringLiteral("86.5"), 86.5,
                         QStringLiteral("长度（X）：86.5 mm")));
    steps.push_back({QStringLiteral("step it up by the key"), [](TourInput& input) { input.Key(QStringLiteral("Up")); },
                     [] { return Shows("fieldLength", 87.5) + Outcome(QStringLiteral("长度（X）：87.5 mm")); }});
    steps.push_back({QStringLiteral("the angle wraps"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("presetAngle90"))); },
                     [] { return Shows("fieldAngle", 30.0) + Outcome(QStringLiteral("旋转角度：30°")); }});
    steps.push_back({QStringLiteral("the defaults come back"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("commandReset"))); },
                     [] { return Shows("fieldLength", 120.0) + Outcome(QStringLiteral("毛坯已恢复默认尺寸。")); }});
    steps.push_back({QStringLiteral("the switch takes the sizes away"),
                     [](TourInput& input) { input.Click(Switch("switchStock")); },
                     [] {
                         QWidget* length = Find(QStringLiteral("fieldLength"));
                         return Outcome(QStringLiteral("毛坯尺寸由模型决定。")) +
                                True(length && !length->isEnabled(), QStringLiteral("the length can still be typed"));
                     }});
    steps.push_back({QStringLiteral("the mark explains a switch"),
                     [](TourInput& input) { input.Click(PartOf<CHintButton>("switchVacuum")); },
                     [] {
                         auto* mark = PartOf<CHintButton>("switchVacuum");
                         return True(mark && mark->IsToolTipVisible(), QStringLiteral("there is no note"));
                     }});
    // The note lies below its mark, so this switch is free.
    steps.push_back({QStringLiteral("a press elsewhere takes the note away"),
                     [](TourInput& input) { input.Click(Switch("switchProbe")); },
                     [] {
                         auto* mark = PartOf<CHintButton>("switchVacuum");
                         return Outcome(QStringLiteral("加工前测量高度：关")) +
                                True(mark && !mark->IsToolTipVisible(), QStringLiteral("the note is still there"));
                     }});
    steps.push_back({QStringLiteral("more below, so there is a line"),
                     [](TourInput& input) { input.MoveTo(Find(QStringLiteral("stepGenerate"))); },
                     [] { return HasLine(true); }});
    steps.push_back({QStringLiteral("at the end of the list the line goes"),
                     [](TourInput& input) {
                         input.Click(Find(QStringLiteral("stepList")), QPoint(80, 20));
                         input.Key(QStringLiteral("End"));
                     },
                     [] { return HasLine(false); }});
    steps.push_back({QStringLiteral("toolpaths are generated"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("stepGenerate"))); },
                     [] { return Outcome(QStringLiteral("已为 14 道工序生成刀路")); }});
    return group;
}
