#include "../GalleryWindow.h"
#include "../PageRegistry.h"
#include "Tour.h"
#include "TourLook.h"

#include <QListWidget>

using namespace TourLook;

namespace {
const PageEntry* Entry(const QString& page)
{
    for (const PageEntry& entry : GalleryPages()) {
        if (entry.strName == page) {
            return &entry;
        }
    }
    return nullptr;
}
} // namespace

TourStep TourOpenPage(const QString& page)
{
    const auto click = [page](TourInput& input) {
        auto* list = qobject_cast<QListWidget*>(Find(QStringLiteral("pageList")));
        for (int row = 0; list && row < list->count(); ++row) {
            if (list->item(row)->text() == Entry(page)->Title()) {
                input.Click(list->viewport(), list->visualItemRect(list->item(row)).center());
            }
        }
    };
    const auto missing = [page] {
        return True(Find(QStringLiteral("page-") + page), QStringLiteral("the page does not show")) +
               Equal(QStringLiteral("the heading"), Text(QStringLiteral("pageHeading")), Entry(page)->Title());
    };
    return {QStringLiteral("open page ") + page, click, missing};
}

TourGroup TourPages(Tour*)
{
    TourGroup group{QStringLiteral("pages"), QString(), {}, true};
    for (const PageEntry& entry : GalleryPages()) {
        group.steps.push_back(TourOpenPage(entry.strName));
    }
    return group;
}
