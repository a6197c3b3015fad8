#include "Tour.h"
#include "TourLook.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTextEdit>

using namespace TourLook;

namespace {
TourStep Click(const QString& step, const QString& name, const std::function<QString()>& missing)
{
    return {step, [name](TourInput& input) { input.Click(Find(name)); }, missing};
}

QString IsOpen(const QString& window)
{
    return True(Find(window), QStringLiteral("%1 does not show").arg(window));
}

QString IsClosed(const QString& window)
{
    return True(!Find(window), QStringLiteral("%1 is still open").arg(window));
}

QString Outcome(const QString& name, const QString& text)
{
    return Equal(QStringLiteral("the outcome"), Text(name), text);
}
} // namespace

TourGroup TourExamples(Tour*)
{
    TourGroup group{QStringLiteral("examples"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("tool-bars")));
    steps.push_back(Click(QStringLiteral("turn the view by a small tool"), QStringLiteral("benchSide2"), [] {
        return Outcome(QStringLiteral("toolBarOutcome"), QStringLiteral("视角：前视（小按钮）"));
    }));
    steps.push_back(Click(QStringLiteral("hide the grid"), QStringLiteral("benchSwitch-grid"),
                          [] { return Outcome(QStringLiteral("toolBarOutcome"), QStringLiteral("网格：隐藏")); }));
    steps.push_back(Click(QStringLiteral("see the lines of an example"), QStringLiteral("source-tool-bar-bench"), [] {
        auto* text = qobject_cast<QTextEdit*>(Find(QStringLiteral("sourceText")));
        return IsOpen(QStringLiteral("sourceDialog")) +
               True(text &&
                        text->toPlainText().contains(QLatin1String("new CToolBar(CToolBar::ToolBarModeSlim, bench)")),
                    QStringLiteral("the line that makes the bar is missing"));
    }));
    steps.push_back(Click(QStringLiteral("copy them"), QStringLiteral("sourceCopy"), [] {
        return Equal(QStringLiteral("the note"), Text(QStringLiteral("sourceCopied")),
                     QStringLiteral("已复制到剪贴板。")) +
               True(QGuiApplication::clipboard()->text().contains(QLatin1String("StatefulIcon::create")),
                    QStringLiteral("the clipboard holds something else"));
    }));
    steps.push_back(Click(QStringLiteral("close the lines"), QStringLiteral("sourceClose"),
                          [] { return IsClosed(QStringLiteral("sourceDialog")); }));
    steps.push_back(TourOpenPage(QStringLiteral("frameless-windows")));
    steps.push_back(Click(QStringLiteral("add a blank"), QStringLiteral("openStock"),
                          [] { return IsOpen(QStringLiteral("stockBox")); }));
    steps.push_back({QStringLiteral("choose and confirm it"),
                     [](TourInput& input) {
                         input.Click(Find(QStringLiteral("stockKind-cylinder")));
                         input.Key(QStringLiteral("Return"));
                     },
                     [] {
                         return IsClosed(QStringLiteral("stockBox")) +
                                Outcome(QStringLiteral("windowOutcome"), QStringLiteral("已添加毛坯：圆料"));
                     }});
    steps.push_back(Click(QStringLiteral("rename a job"), QStringLiteral("openRename"),
                          [] { return IsOpen(QStringLiteral("renameBox")); }));
    steps.push_back({QStringLiteral("type the name"),
                     [](TourInput& input) {
                         input.Click(Find(QStringLiteral("renameName")));
                         input.Key(QStringLiteral("ctrl+a"));
                         input.Type(QStringLiteral("cover 2"));
                         input.Click(Find(QStringLiteral("renameConfirm")));
                     },
                     [] {
                         return IsClosed(QStringLiteral("renameBox")) +
                                Outcome(QStringLiteral("windowOutcome"), QStringLiteral("已重命名为：cover 2"));
                     }});
    return group;
}
