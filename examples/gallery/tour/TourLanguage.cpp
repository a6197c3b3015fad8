#include "../GalleryWindow.h"
#include "../PageRegistry.h"
#include "Tour.h"
#include "TourLook.h"

#include <QScrollArea>
#include <QScrollBar>

using namespace TourLook;

namespace {
constexpr int ScrolledTo = 120;

QScrollBar* PageScroll()
{
    auto* scroll = qobject_cast<QScrollArea*>(Find(QStringLiteral("pageScroll")));
    return scroll ? scroll->verticalScrollBar() : nullptr;
}

TourStep Switch(Tour* tour, const QString& step, const QString& page, const std::function<QString()>& missing)
{
    const auto click = [](TourInput& input) { input.Click(Find(QStringLiteral("titleLanguage"))); };
    const auto all = [tour, page, missing] {
        return True(Find(QStringLiteral("page-") + page), QStringLiteral("the page does not show")) +
               True(PageScroll() && PageScroll()->value() == ScrolledTo, QStringLiteral("the page was scrolled")) +
               True(tour->Window()->isActiveWindow(), QStringLiteral("the window has lost the input")) + missing();
    };
    return {step, click, all};
}

QString IsEnglish(Tour* tour)
{
    const QString chinese = ChineseText(tour->Window());
    return True(chinese.isEmpty(), QStringLiteral("there is still \"%1\"").arg(chinese));
}
} // namespace

TourGroup TourLanguage(Tour* tour)
{
    TourGroup group{QStringLiteral("language"), QString(), {}};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("combos")));
    steps.push_back({QStringLiteral("scroll the page"),
                     [](TourInput&) {
                         if (PageScroll()) {
                             PageScroll()->setValue(ScrolledTo);
                         }
                     },
                     [] {
                         return True(PageScroll() && PageScroll()->value() == ScrolledTo,
                                     QStringLiteral("the page does not scroll"));
                     }});
    steps.push_back(Switch(tour, QStringLiteral("switch to English"), QStringLiteral("combos"), [tour] {
        return Equal(QStringLiteral("the heading"), Text(QStringLiteral("pageHeading")),
                     QStringLiteral("Combo boxes")) +
               IsEnglish(tour);
    }));
    steps.push_back({QStringLiteral("another page is English too"),
                     [](TourInput& input) {
                         input.Click(Find(QStringLiteral("pageSearch")));
                         input.Type(QStringLiteral("CTextEdit"));
                         input.Key(QStringLiteral("Return"));
                         input.Key(QStringLiteral("Escape"));
                     },
                     [tour] {
                         return True(Find(QStringLiteral("page-parameters")),
                                     QStringLiteral("the page does not show")) +
                                IsEnglish(tour);
                     }});
    steps.push_back({QStringLiteral("and the first again"),
                     [tour](TourInput&) { tour->Window()->OpenPage(QStringLiteral("combos")); },
                     [tour] {
                         return True(Find(QStringLiteral("page-combos")), QStringLiteral("the page does not show")) +
                                IsEnglish(tour);
                     }});
    steps.push_back(Switch(tour, QStringLiteral("switch back to Chinese"), QStringLiteral("combos"), [] {
        return Equal(QStringLiteral("the heading"), Text(QStringLiteral("pageHeading")), QStringLiteral("下拉框")) +
               Equal(QStringLiteral("the status line"), Text(QStringLiteral("statusMachine")),
                     QStringLiteral("未连接机床"));
    }));
    return group;
}
