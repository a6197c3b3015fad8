#include "../PageRegistry.h"
#include "Tour.h"
#include "TourLook.h"

#include <QLineEdit>
#include <QListWidget>

using namespace TourLook;

namespace {
QListWidget* Pages()
{
    return qobject_cast<QListWidget*>(Find(QStringLiteral("pageList")));
}

QStringList Listed()
{
    QStringList names;
    for (int row = 0; Pages() && row < Pages()->count(); ++row) {
        if (!Pages()->isRowHidden(row)) {
            names.append(GalleryPages().at(row).strName);
        }
    }
    return names;
}

QString Lists(const QStringList& pages)
{
    return Equal(QStringLiteral("the list"), Listed().join(QLatin1Char(' ')), pages.join(QLatin1Char(' ')));
}

TourStep Type(const QString& step, const QString& text, const std::function<QString()>& missing)
{
    const auto type = [text](TourInput& input) {
        input.Key(QStringLiteral("ctrl+f"));
        input.Type(text);
    };
    return {step, type, missing};
}

TourStep Keys(const QString& step, const QStringList& keys, const std::function<QString()>& missing)
{
    const auto press = [keys](TourInput& input) {
        for (const QString& key : keys) {
            input.Key(key);
        }
    };
    return {step, press, missing};
}
} // namespace

TourGroup TourSearch(Tour*)
{
    TourGroup group{QStringLiteral("search"), QString(), {}, true};
    auto& steps = group.steps;
    steps.push_back(TourOpenPage(QStringLiteral("text")));
    steps.push_back(Type(QStringLiteral("search by a class"), QStringLiteral("cvelmarmenu"),
                         [] { return Lists({QStringLiteral("combos")}); }));
    steps.push_back(Type(QStringLiteral("search by words of a title"), QStringLiteral("bar menu"), [] {
        return Lists({QStringLiteral("menus")}) +
               True(Find(QStringLiteral("page-text")), QStringLiteral("the page changed before Return"));
    }));
    steps.push_back(Type(QStringLiteral("nothing found"), QStringLiteral("zzz"), [] {
        return Lists({}) + True(Find(QStringLiteral("pageNothing")), QStringLiteral("nothing says so"));
    }));
    steps.push_back(Keys(QStringLiteral("Escape brings all pages back"), {QStringLiteral("Escape")}, [] {
        return True(Listed().size() == GalleryPages().size(), QStringLiteral("pages are missing")) +
               True(Pages() && Pages()->currentRow() >= 0 &&
                        GalleryPages().at(Pages()->currentRow()).strName == QLatin1String("text"),
                    QStringLiteral("the open page is not marked"));
    }));
    steps.push_back(Type(QStringLiteral("choose with the keys"), QStringLiteral("dialog"),
                         [] { return True(Listed().size() > 1, QStringLiteral("one page alone is listed")); }));
    steps.push_back(
        Keys(QStringLiteral("and open the chosen page"),
             {QStringLiteral("Down"), QStringLiteral("Up"), QStringLiteral("Down"), QStringLiteral("Return")}, [] {
                 const QString second = Listed().value(1);
                 return True(!second.isEmpty() && Find(QStringLiteral("page-") + second),
                             QStringLiteral("the second page does not show"));
             }));
    steps.push_back(Keys(QStringLiteral("leave the search"), {QStringLiteral("Escape")}, [] {
        return True(Listed().size() == GalleryPages().size(), QStringLiteral("pages are missing"));
    }));
    return group;
}
