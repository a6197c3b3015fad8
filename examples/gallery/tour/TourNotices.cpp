#include "Tour.h"
#include "TourLook.h"

#include <CustomControls/feedback/CFrostedToolTip.h>
#include <CustomControls/feedback/CWatermarkWidget.h>
#include <CustomControls/feedback/ToastWidget.h>

#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QScreen>

using namespace TourLook;

namespace {
/** The visible window of that class; null when there is none. */
template <class Window>
Window* Shown()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<Window*>(widget);
        if (window && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

QString ToastSays(const QString& text, int height)
{
    ToastWidget* toast = Shown<ToastWidget>();
    auto* caption = toast ? toast->findChild<QLabel*>(QStringLiteral("nameLabel")) : nullptr;
    QWidget* view = Find(QStringLiteral("machiningView"));
    return True(toast, QStringLiteral("there is no toast")) +
           BeginsWith(QStringLiteral("the toast"), caption ? caption->text() : QString(), text) +
           True(toast && (height == 0 || toast->height() == height), QStringLiteral("the toast has another height")) +
           True(toast && view && QRect(view->mapToGlobal(QPoint(0, 0)), view->size()).contains(toast->geometry()),
                QStringLiteral("the toast is not over the view"));
}

TourStep Toast(int type, const QString& text, int height)
{
    return {QStringLiteral("toast %1").arg(type),
            [type](TourInput& input) { input.Click(Find(QStringLiteral("toast%1").arg(type))); },
            [text, height] { return ToastSays(text, height); }};
}

/** Comes to the widget in two steps: a pointer that only enters a window starts no tool tip. */
void Hover(TourInput& input, const QString& name)
{
    QWidget* widget = Find(name);
    input.MoveTo(widget, widget ? widget->rect().center() - QPoint(3, 3) : QPoint());
    input.MoveTo(widget);
}

QString TipStands()
{
    CFrostedToolTip* tip = Shown<CFrostedToolTip>();
    return True(tip && tip->windowOpacity() >= 1.0, QStringLiteral("no tip stands")) +
           True(tip && tip->screen()->availableGeometry().contains(tip->geometry()),
                QStringLiteral("the tip leaves the screen"));
}

TourStep Dock(int column, int row, const QString& key)
{
    return {QStringLiteral("tip at edge %1 %2").arg(column).arg(row),
            [column, row](TourInput& input) { input.Click(Find(QStringLiteral("dock%1%2").arg(column).arg(row))); },
            [key] { return True(Find(key), QStringLiteral("the panel does not show")); }};
}

TourStep HoverKey(const QString& key)
{
    return {QStringLiteral("point at ") + key, [key](TourInput& input) { Hover(input, key); },
            [] { return TipStands(); }};
}

QLabel* Mark()
{
    QWidget* preview = Find(QStringLiteral("previewWindow"));
    auto* watermark = preview ? preview->findChild<CWatermarkWidget*>() : nullptr;
    return watermark ? watermark->findChild<QLabel*>() : nullptr;
}

/** The share of the preview's pixels on the screen that have the mark's reddish ink; the view itself has hardly any. */
double InkShare(QWidget* preview)
{
    const QRect area(preview->mapToGlobal(QPoint(0, 0)), preview->size());
    const QImage shown = preview->screen()->grabWindow(0, area.x(), area.y(), area.width(), area.height()).toImage();
    int ink = 0;
    for (int y = 0; y < shown.height(); ++y) {
        for (int x = 0; x < shown.width(); ++x) {
            const QColor color = shown.pixelColor(x, y);
            ink += color.red() > color.green() + 25 && color.red() > color.blue() + 25;
        }
    }
    return shown.isNull() ? 0.0 : double(ink) / (shown.width() * shown.height());
}

QString MarkCovers()
{
    QWidget* preview = Find(QStringLiteral("previewWindow"));
    return True(preview, QStringLiteral("there is no preview")) +
           True(Mark() && Mark()->isVisible(), QStringLiteral("there is no mark")) +
           True(preview && Mark() && Mark()->geometry() == QRect(preview->mapToGlobal(QPoint(0, 0)), preview->size()),
                QStringLiteral("the mark does not cover the preview")) +
           // Wine blends no translucent window, so that there the mark's place is all that can be seen.
           True(QGuiApplication::platformName() == QLatin1String("windows") || (preview && InkShare(preview) > 0.02),
                QStringLiteral("the mark is not seen"));
}
} // namespace

TourGroup TourNotices(Tour*)
{
    TourGroup group{QStringLiteral("notices"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("toasts")));
    steps.push_back(Toast(1, QStringLiteral("双击模型进行编辑"), 64));
    steps.push_back({QStringLiteral("turn the view under the toast"),
                     [](TourInput& input) {
                         QWidget* view = Find(QStringLiteral("machiningView"));
                         const QPoint onToast(view ? view->width() / 2 : 0, 60);
                         input.MoveTo(view, onToast);
                         input.Press();
                         input.MoveTo(view, onToast + QPoint(60, 10));
                         input.Release();
                     },
                     [] {
                         return BeginsWith(QStringLiteral("the outcome"), Text(QStringLiteral("toastOutcome")),
                                           QStringLiteral("视图：旋转"));
                     }});
    steps.push_back(Toast(4, QStringLiteral("点击【生成G代码】按钮进行G代码生成"), 64));
    steps.push_back(Toast(10, QStringLiteral("检测到部分模型在毛坯外"), 36));
    steps.push_back(Toast(11, QStringLiteral("2 号刀具"), 0));
    steps.push_back(Toast(12, QStringLiteral("机床外壳已隐藏"), 64));
    steps.push_back({QStringLiteral("toast 3"), [](TourInput& input) { input.Click(Find(QStringLiteral("toast3"))); },
                     [] {
                         ToastWidget* toast = Shown<ToastWidget>();
                         return True(!toast || toast->findChild<QWidget*>(QStringLiteral("content"))->isHidden(),
                                     QStringLiteral("the type without a message shows one"));
                     }});

    steps.push_back(TourOpenPage(QStringLiteral("tips")));
    steps.push_back(HoverKey(QStringLiteral("tipAdaptive")));
    steps.push_back({QStringLiteral("leave"),
                     [](TourInput& input) { input.MoveTo(Find(QStringLiteral("pageHeading"))); },
                     [] { return True(!Shown<CFrostedToolTip>(), QStringLiteral("the tip is still there")); }});
    steps.push_back(Dock(2, 2, QStringLiteral("jogZ-")));
    steps.push_back(HoverKey(QStringLiteral("jogZ-")));
    steps.push_back(Dock(0, 2, QStringLiteral("jogY-")));
    steps.push_back(HoverKey(QStringLiteral("jogY-")));
    steps.push_back(
        {QStringLiteral("put the panel away"), [](TourInput& input) { input.Click(Find(QStringLiteral("dockClose"))); },
         [] { return True(!Find(QStringLiteral("jogPalette")), QStringLiteral("the panel still shows")); }});
    steps.push_back({QStringLiteral("hint by hover"),
                     [](TourInput& input) { Hover(input, QStringLiteral("hintDepth")); },
                     [] { return True(Find(QStringLiteral("depthNote")), QStringLiteral("the note does not show")); }});
    steps.push_back({QStringLiteral("pin the hint and leave"),
                     [](TourInput& input) {
                         input.Click(Find(QStringLiteral("hintDepth")));
                         input.MoveTo(Find(QStringLiteral("pageHeading")));
                     },
                     [] { return True(Find(QStringLiteral("depthNote")), QStringLiteral("the pinned note went")); }});
    steps.push_back(
        {QStringLiteral("another hint"), [](TourInput& input) { input.Click(Find(QStringLiteral("hintLife"))); },
         [] {
             return True(Find(QStringLiteral("explainedNote")), QStringLiteral("the note does not show")) +
                    True(!Find(QStringLiteral("depthNote")), QStringLiteral("the first one is still there"));
         }});
    steps.push_back(
        {QStringLiteral("press elsewhere"),
         [](TourInput& input) { input.Click(Find(QStringLiteral("hintSpeedField"))); },
         [] { return True(!Find(QStringLiteral("explainedNote")), QStringLiteral("the note is still there")); }});

    steps.push_back(TourOpenPage(QStringLiteral("watermark")));
    steps.push_back({QStringLiteral("open the preview"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("openPreview"))); }, MarkCovers});
    steps.push_back({QStringLiteral("grow the preview"),
                     [](TourInput& input) { input.Click(Find(QStringLiteral("growPreview"))); }, MarkCovers});
    steps.push_back(
        {QStringLiteral("close the preview"),
         [](TourInput& input) { input.Click(Find(QStringLiteral("closePreview"))); },
         [] { return True(!Find(QStringLiteral("previewWindow")), QStringLiteral("the preview still shows")); }});
    return group;
}
