#include "../GalleryWindow.h"
#include "Tour.h"
#include "TourLook.h"

#include <CustomControls/CProgressWidget/CProgressBar.h>
#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/buttons/CFunctionBtnWidget.h>
#include <CustomControls/buttons/CHintToolTip.h>
#include <CustomControls/buttons/CIconButton.h>
#include <CustomControls/buttons/CSelectButton.h>
#include <CustomControls/buttons/CUnitButton.h>
#include <CustomControls/buttons/CVelmarButton.h>
#include <CustomControls/feedback/CFrostedToolTip.h>
#include <CustomControls/feedback/CVelmarAnimation.h>
#include <CustomControls/feedback/CWatermarkWidget.h>
#include <CustomControls/feedback/ToastWidget.h>
#include <CustomControls/fields/CSelectBox.h>
#include <CustomControls/fields/CTextEdit.h>
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>
#include <CustomControls/menus/CVelmarMenu.h>
#include <CustomControls/menus/CVelmarMenuItem.h>
#include <CustomControls/menus/CXCombobox.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>
#include <CustomControls/messagebox/CVelmarMessageListItem.h>
#include <CustomControls/tables/CFileNameDelegate.h>
#include <CustomControls/toolbar/CTabBar.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QTableView>
#include <QTextBrowser>

#include <algorithm>

using namespace TourLook;

// The pictures of docs/: each step is named as the page that shows it. They are put together from what the widgets
// themselves give, so that neither a window manager nor a compositor has a part in them.
namespace {
constexpr int ToastTop = 40; // below the upper edge of its view
constexpr int Around = 8;    // of the gallery, around controls that lie on it

/** The visible widgets of that class: in the gallery in the order of its tree, then in other windows. */
template <class Widget>
QList<Widget*> All()
{
    QList<QWidget*> windows = QApplication::topLevelWidgets();
    std::stable_partition(windows.begin(), windows.end(),
                          [](const QWidget* window) { return qobject_cast<const GalleryWindow*>(window) != nullptr; });
    QList<Widget*> found;
    for (QWidget* window : std::as_const(windows)) {
        for (Widget* widget : QList<Widget*>{qobject_cast<Widget*>(window)} + window->findChildren<Widget*>()) {
            if (widget && widget->isVisible() && !found.contains(widget)) {
                found.append(widget);
            }
        }
    }
    return found;
}

template <class Widget>
Widget* First()
{
    const QList<Widget*> all = All<Widget>();
    return all.isEmpty() ? nullptr : all.first();
}

/** The card of the page on which the widget stands. */
QWidget* Card(QWidget* widget)
{
    while (widget && widget->objectName() != QLatin1String("galleryCard")) {
        widget = widget->parentWidget();
    }
    return widget;
}

/** The first card on which such a control stands. */
template <class Widget>
QWidget* CardOf()
{
    for (Widget* widget : All<Widget>()) {
        if (QWidget* card = Card(widget)) {
            return card;
        }
    }
    return nullptr;
}

QRect OnScreen(const QWidget* widget)
{
    return {widget->mapToGlobal(QPoint(0, 0)), widget->size()};
}

/** The part of the screen that holds the widgets, with a little of the gallery around them. */
QPixmap Together(const QList<QWidget*>& widgets)
{
    QRect area;
    QList<QWidget*> windows;
    for (QWidget* widget : widgets) {
        if (!widget) {
            return {};
        }
        area |= OnScreen(widget);
        if (!windows.contains(widget->window())) {
            windows.append(widget->window());
        }
    }
    area.adjust(-Around, -Around, Around, Around);
    area &= OnScreen(windows.first());
    for (const QWidget* window : std::as_const(windows)) { // a tip may reach beyond the gallery
        area |= window == windows.first() ? QRect() : OnScreen(window);
    }
    QPixmap picture(area.size());
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    for (QWidget* window : std::as_const(windows)) {
        painter.drawPixmap(OnScreen(window).topLeft() - area.topLeft(), window->grab());
    }
    return picture;
}

QPixmap Grab(QWidget* widget)
{
    return widget ? widget->grab() : QPixmap();
}

using Act = std::function<void(TourInput& input)>;
using Widgets = std::function<QList<QWidget*>()>;

QString AllThere(const QList<QWidget*>& widgets)
{
    return True(!widgets.isEmpty() && !widgets.contains(nullptr), QStringLiteral("not everything shows"));
}

/** A control with what lies around it. */
TourStep Shot(const char* page, const Act& act, const Widgets& widgets)
{
    TourStep step{QLatin1String(page), act, [widgets] { return AllThere(widgets()); }};
    step.picture = [widgets] { return Together(widgets()); };
    return step;
}

/** A window, or a part of one, alone. */
TourStep Alone(const char* page, const Act& act, const std::function<QWidget*()>& widget)
{
    TourStep step{QLatin1String(page), act, [widget] { return AllThere({widget()}); }};
    step.picture = [widget] { return Grab(widget()); };
    return step;
}

/** No picture: the screen is made ready for the next one. */
TourStep Ready(const char* name, const Act& act, const std::function<bool()>& is)
{
    TourStep step{QLatin1String(name), act, [is] { return True(is(), QStringLiteral("not yet")); }, true};
    return step;
}

Act Click(const char* name)
{
    return [name](TourInput& input) { input.Click(Find(QLatin1String(name))); };
}

/** Comes to the widget in two steps: a pointer that only enters a window starts no tool tip. */
Act Hover(const char* name)
{
    return [name](TourInput& input) {
        QWidget* widget = Find(QLatin1String(name));
        input.MoveTo(widget, widget ? widget->rect().center() - QPoint(3, 3) : QPoint());
        input.MoveTo(widget);
    };
}

/** Brings the widget into the part of the page that shows. */
Act ScrollTo(const std::function<QWidget*()>& widget)
{
    return [widget](TourInput&) {
        for (QWidget* parent = widget(); parent; parent = parent->parentWidget()) {
            if (auto* scroll = qobject_cast<QScrollArea*>(parent)) {
                scroll->ensureWidgetVisible(widget(), Around, Around);
            }
        }
    };
}

/** Closes a frameless window by its own title bar: every window of the gallery has such a button. */
Act CloseOf(const char* window)
{
    return [window](TourInput& input) {
        QWidget* found = Find(QLatin1String(window));
        input.Click(found ? found->findChild<QWidget*>(QStringLiteral("titleClose")) : nullptr);
    };
}

Act Key(const char* key)
{
    return [key](TourInput& input) { input.Key(QLatin1String(key)); };
}

CCustomMenuItem* MenuRow(bool withSubMenu)
{
    for (CCustomMenu* menu : All<CCustomMenu>()) {
        for (int i = 0; i < menu->MenuButtonCount(); ++i) {
            if ((menu->GetCustomMenu(menu->MenuButton(i)) != nullptr) == withSubMenu) {
                return menu->MenuButton(i);
            }
        }
    }
    return nullptr;
}

QList<QWidget*> Menus()
{
    QList<QWidget*> menus;
    for (CCustomMenu* menu : All<CCustomMenu>()) {
        menus.append(menu);
    }
    return menus;
}

CFrostedToolTip* Tip()
{
    auto* tip = First<CFrostedToolTip>();
    return tip && tip->windowOpacity() >= 1.0 ? tip : nullptr;
}

/** A group for each page, so that a picture that fails takes none of another page along. */
std::vector<TourGroup> Pictures(GalleryWindow* window)
{
    std::vector<TourGroup> groups;
    const auto open = [&groups](const char* page) {
        groups.push_back({QStringLiteral("pictures"), QString(), {TourOpenPage(QLatin1String(page))}, true, true});
    };
    const auto add = [&groups](const TourStep& step) { groups.back().steps.push_back(step); };

    open("parameters");
    add(Alone("gallery", {}, [window] { return window; }));
    add(Alone("CSelectButton", {}, [] { return CardOf<CSelectButton>(); }));
    add(Alone("CTextEdit", {}, [] { return Find(QStringLiteral("parameterPanel")); }));
    add(Shot("CUnitButton", ScrollTo([] { return CardOf<CUnitButton>(); }), [] {
        QList<QWidget*> presets{Find(QStringLiteral("fieldAngle"))};
        for (CUnitButton* preset : All<CUnitButton>()) {
            presets.append(preset);
        }
        return presets;
    }));
    add(Shot("CSelectBox", ScrollTo([] { return CardOf<CSelectBox>(); }), [] {
        QList<QWidget*> boxes;
        for (CSelectBox* box : All<CSelectBox>()) {
            boxes.append(box);
        }
        return boxes;
    }));
    add(Alone("CFunctionBtnWidget", {}, [] { return Find(QStringLiteral("stepPanel")); }));
    add(Shot("CIconButton", ScrollTo([] { return First<CIconButton>(); }), [] {
        QList<QWidget*> buttons;
        for (CIconButton* button : All<CIconButton>()) {
            buttons.append(button);
        }
        return buttons;
    }));

    open("buttons");
    add(Alone("CVelmarButton", {}, [] { return Card(Find(QStringLiteral("backgroundSolid"))); }));

    open("menus");
    add(Shot("CMenuBtnHelper", Click("menuFile"), [] {
        return QList<QWidget*>{Find(QStringLiteral("menuFile")), Find(QStringLiteral("menuMachine"))} + Menus();
    }));
    add(Shot(
        "CCustomMenu", [](TourInput& input) { input.MoveTo(MenuRow(true)); },
        [] { return Menus().size() > 1 ? Menus() : QList<QWidget*>{nullptr}; }));
    // While a menu is open, that of the next button follows the pointer.
    add(Alone(
        "CCustomMenuItem", [](TourInput& input) { input.MoveTo(Find(QStringLiteral("menuLook"))); },
        [] {
            const QList<CCustomMenu*> menus = All<CCustomMenu>();
            return menus.size() == 1 && menus.first()->MenuButton(0)->IsStateButton() ? menus.first() : nullptr;
        }));
    add(Ready("close the menus", Click("pageHeading"), [] { return Menus().isEmpty(); }));

    open("combos");
    add(Shot("CComboBox", Click("comboMaterial"), [] {
        return QList<QWidget*>{Find(QStringLiteral("comboMaterial")), First<CVelmarMenu>()};
    }));
    add(Ready("close the list", Key("Escape"), [] { return true; }));
    add(Alone("CTableComboBox", {}, [] { return Find(QStringLiteral("partTable")); }));
    add(Alone("CXCombobox", {}, [] { return CardOf<CXCombobox>(); }));
    add(Shot("CVelmarMenu", Click("machineMenuButton"), [] {
        return QList<QWidget*>{Find(QStringLiteral("machineMenuButton")), First<CVelmarMenu>()};
    }));
    add(Alone(
        "CVelmarMenuItem", [](TourInput& input) { input.MoveTo(First<CVelmarMenuItem>()); },
        [] { return First<CVelmarMenu>(); }));
    add(Ready("close the machine menu", Click("machineMenuButton"), [] { return !First<CVelmarMenu>(); }));

    open("text");
    add(Shot(
        "CPlainTextEdit",
        [](TourInput& input) {
            auto* notes = qobject_cast<QPlainTextEdit*>(Find(QStringLiteral("textNotes")));
            input.RightClick(notes ? notes->viewport() : nullptr, QPoint(120, 90));
        },
        [] {
            return QList<QWidget*>{Find(QStringLiteral("textNotes")), First<CCustomMenu>()};
        }));
    add(Ready("close the editor's menu", Click("pageHeading"), [] { return !First<CCustomMenu>(); }));
    add(Ready(
        "select in the browser",
        [](TourInput& input) {
            auto* manual = qobject_cast<QTextBrowser*>(Find(QStringLiteral("textManual")));
            if (manual) {
                manual->selectAll();
                input.RightClick(manual->viewport(), QPoint(120, 60));
            }
        },
        [] { return First<CCustomMenu>() != nullptr; }));
    add(Shot("CTextBrowser", {}, [] {
        return QList<QWidget*>{Find(QStringLiteral("textManual")), First<CCustomMenu>()};
    }));
    add(Ready("close the browser's menu", Click("pageHeading"), [] { return !First<CCustomMenu>(); }));

    open("tips");
    add(Shot("ToolTipEventFilter", Hover("tipAdaptive"), [] {
        return QList<QWidget*>{Find(QStringLiteral("tipBox")), Find(QStringLiteral("tipStart")), Tip()};
    }));
    add(Shot("CFrostedToolTip", Hover("tipModel"), [] {
        return QList<QWidget*>{Find(QStringLiteral("tipModel")), Tip()};
    }));
    add(Alone("CHintTextToolTip", Hover("hintDepth"), [] { return First<CHintToolTip>(); }));
    add(Shot("CHintButton", Click("hintDepth"), [] {
        return QList<QWidget*>{Find(QStringLiteral("hintSpeedField")), Find(QStringLiteral("hintFeed")),
                               Find(QStringLiteral("hintDepth")), First<CHintToolTip>()};
    }));
    add(Shot("CHintToolTip", Click("hintLife"), [] {
        return QList<QWidget*>{Find(QStringLiteral("hintLife")), Find(QStringLiteral("explainedNote"))};
    }));
    add(Alone("CreateCompactBrowser", {}, [] { return Find(QStringLiteral("explainedNote")); }));
    add(Ready("close the note", Click("pageHeading"), [] { return !First<CHintToolTip>(); }));

    open("toasts");
    TourStep toast = Alone("ToastWidget", Click("toast4"), [] { return First<ToastWidget>(); });
    toast.picture = [] {
        // Put where the page puts it: the window manager brings it there in its own time.
        QWidget* view = Find(QStringLiteral("machiningView"));
        const QPixmap strip = Grab(First<ToastWidget>());
        QPixmap picture = Grab(view);
        if (!picture.isNull()) {
            QPainter(&picture).drawPixmap((picture.width() - strip.width()) / 2, ToastTop, strip);
        }
        return picture;
    };
    add(toast);

    open("watermark");
    add(Alone("CVelmarAnimation", {}, [] { return CardOf<CVelmarAnimation>(); }));
    add(Shot("CWatermarkWidget", Click("openPreview"), [] {
        QWidget* preview = Find(QStringLiteral("previewWindow"));
        auto* mark = preview ? preview->findChild<CWatermarkWidget*>() : nullptr;
        return QList<QWidget*>{preview, mark ? mark->findChild<QLabel*>() : nullptr};
    }));
    add(Ready("close the preview", Click("closePreview"), [] { return !Find(QStringLiteral("previewWindow")); }));

    open("tool-table");
    add(Alone("CDelegateTableViewItem", {}, [] { return Find(QStringLiteral("finishingTools")); }));
    add(Shot(
        "CDelegateLineEdit",
        [](TourInput& input) {
            auto* table = qobject_cast<QTableView*>(Find(QStringLiteral("roughingTools")));
            const QPoint cell = table ? table->visualRect(table->model()->index(1, 2)).center() : QPoint();
            input.Click(table ? table->viewport() : nullptr, cell);
            input.Click(table ? table->viewport() : nullptr, cell);
        },
        [] {
            QWidget* editor = QApplication::focusWidget();
            return QList<QWidget*>{editor && editor->inherits("QLineEdit") ? Find(QStringLiteral("roughingTools"))
                                                                           : nullptr};
        }));
    add(Ready("leave the cell", Key("Escape"), [] { return true; }));

    add(Alone("CVelmarMessageListItem", {}, [] { return CardOf<CVelmarMessageListItem>(); }));
    add(Alone("CFileNameDelegate", {}, [] {
        for (QAbstractItemView* view : All<QAbstractItemView>()) {
            if (qobject_cast<CFileNameDelegate*>(view->itemDelegateForColumn(0))) {
                return Card(view);
            }
        }
        return static_cast<QWidget*>(nullptr);
    }));

    open("message-boxes");
    add(Alone("CVelmarMessageBox", Click("boxQuestion"), [] { return First<CVelmarMessageBox>(); }));
    add(Ready(
        "answer", [](TourInput& input) { input.Click(BoxButton(BoxCodes().value(0))); },
        [] { return !First<CVelmarMessageBox>(); }));

    open("machine");
    add(Ready("open the panel", Click("machineNetwork"), [] { return Panel() != nullptr; }));
    add(Alone(
        "CSelectMachineBox",
        [](TourInput&) {
            Panel()->SetMachineInfo(QStringLiteral("0*CNC-000123*0*192.168.1.20*0*eth0"), false);
            Panel()->SetMachineInfo(QStringLiteral("0*CNC-000217*0*192.168.1.31*0*wlan0"), false);
        },
        [] { return Panel(); }));
    add(Ready("close the panel", Key("Escape"), [] { return !Panel(); }));

    open("progress");
    add(Alone("CProgressBar", {}, [] { return CardOf<CProgressBar>(); }));
    TourStep progress = Alone("CProgressWidget", Click("progressValue"),
                              [] { return Progress() && Progress()->getValueRef() >= 40 ? Progress() : nullptr; });
    progress.bMomentary = true;
    add(progress);
    add(Ready("the job ends", {}, [] { return !Progress(); }));

    open("frameless-windows");
    add(Alone("FramelessMainWindow", Click("openSimulation"), [] { return Find(QStringLiteral("simulationWindow")); }));
    add(Ready("close the simulation", CloseOf("simulationWindow"),
              [] { return !Find(QStringLiteral("simulationWindow")); }));
    add(Alone("FramelessDialog", Click("openTool"), [] { return Find(QStringLiteral("toolDialog")); }));
    add(Ready("close the dialog", Click("toolCancel"), [] { return !Find(QStringLiteral("toolDialog")); }));
    add(Alone("PureQtFramelessWindow", Click("openPosition"), [] { return Find(QStringLiteral("positionPanel")); }));

    add(Ready("close the panel of positions", CloseOf("positionPanel"),
              [] { return !Find(QStringLiteral("positionPanel")); }));
    add(Alone("CVelmarSelectBox", Click("openStock"), [] { return Find(QStringLiteral("stockBox")); }));
    add(Ready("close the shell", Key("Escape"), [] { return !Find(QStringLiteral("stockBox")); }));
    add(Alone("CFixedSizePopWidget", Click("openRename"), [] { return Find(QStringLiteral("renameBox")); }));
    add(Alone("CMsgBoxBackground", {}, [] { return Find(QStringLiteral("renamePanel")); }));
    add(Ready("close the renaming", Key("Escape"), [] { return !Find(QStringLiteral("renameBox")); }));

    open("tool-bars");
    add(Alone("CTabToolWidget", {}, [] { return Find(QStringLiteral("galleryRibbon")); }));
    add(Alone("CTabWidget", {}, [] { return Find(QStringLiteral("setUpTabs")); }));
    add(Alone("CTabBar", {}, [] { return First<CTabBar>(); }));
    add(Alone("CToolBar", {}, [] { return Find(QStringLiteral("toolBarBench")); }));
    add(Shot("StatefulIcon", Click("benchSwitch-path"), [] {
        return QList<QWidget*>{Find(QStringLiteral("benchSwitch-grid")), Find(QStringLiteral("benchSwitch-path"))};
    }));
    add(Alone("CToolBarItem", {}, [] { return First<CToolBarItem>(); }));
    add(Shot("CToolButton", Hover("tool-open"), [] {
        return QList<QWidget*>{Find(QStringLiteral("tool-new")), Find(QStringLiteral("tool-open"))};
    }));
    add(Shot("CToolButtonVertical", {}, [] {
        return QList<QWidget*>{Find(QStringLiteral("tool-save")), Find(QStringLiteral("tool-export"))};
    }));
    return groups;
}
} // namespace

std::vector<TourGroup> TourPictures(Tour* tour)
{
    return Pictures(tour->Window());
}
