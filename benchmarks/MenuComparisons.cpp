#include <benchmarks/Families.h>
#include <benchmarks/Life.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CVelmarMenu.h>

#include <QCoreApplication>
#include <QMenu>
#include <QWidget>

namespace {

constexpr int kRows = 20;
constexpr int kRowHeight = 24;
constexpr int kWidth = 220;
constexpr QPoint kPlace(10, 10);

constexpr char kIcon[] = ":/icon/simcontrol/ico_warning_line_b_nor.png";
constexpr char kLook[] = "QMenu{background-color:#181818;border:1px solid #2d2d2d;border-radius:4px;padding:6px;}"
                         "QMenu::item{height:24px;color:#FFFFFF;background:#181818;border-radius:4px;}"
                         "QMenu::item:selected{background:#016ACB;}";
constexpr char kMachineLook[] = "QMenu{background-color:#212024;border:1px solid #151515;border-radius:2px;}"
                                "QMenu::item{height:30px;color:#c7cfd6;background:transparent;padding-left:8px;}"
                                "QMenu::item:selected{background:#0071bc;}";

QString Text(int row)
{
    return QStringLiteral("Row %1").arg(row);
}

void FillCustom(QWidget* widget, int first, int count)
{
    auto* menu = static_cast<CCustomMenu*>(widget);
    for (int row = first; row < first + count; ++row) {
        menu->AddMenuItem(Text(row), QStringLiteral("Ctrl+R"), QString::fromLatin1(kIcon), QString::fromLatin1(kIcon),
                          QString());
    }
}

QWidget* CustomMenu(QWidget* parent, int rows)
{
    auto* menu = new CCustomMenu(parent);
    menu->SetMenuStyle(MenuStyleDark);
    FillCustom(menu, 0, rows);
    menu->UpdateItemSize();
    menu->RefreshSize();
    menu->move(kPlace);
    menu->hide();
    return menu;
}

void FillToolkit(QWidget* widget, int first, int count)
{
    auto* menu = static_cast<QMenu*>(widget);
    for (int row = first; row < first + count; ++row) {
        QAction* action = menu->addAction(QIcon(QString::fromLatin1(kIcon)), Text(row));
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    }
}

QWidget* ToolkitMenu(QWidget* parent, int rows, const char* sheet)
{
    auto* menu = new QMenu(parent);
    if (sheet) {
        menu->setStyleSheet(QLatin1String(sheet));
    }
    menu->setFont(FontCnMedium_14);
    FillToolkit(menu, 0, rows);
    return menu;
}

void Pop(QWidget* widget)
{
    static_cast<QMenu*>(widget)->popup(widget->parentWidget()->mapToGlobal(kPlace));
}

using Fill = void (*)(QWidget*, int, int);
using MakeMenu = QWidget* (*)(QWidget*, int);

Cast MenuCast(const char* name, MakeMenu make, Fill fill, const char* look, Fill fillToolkit)
{
    Cast cast{name, "QMenu"};
    cast.subjects[VariantOurs].make = [make](QWidget* parent) { return make(parent, kRows); };
    cast.subjects[VariantOurs].fill = fill;
    cast.subjects[VariantSameLook].make = [look](QWidget* parent) { return ToolkitMenu(parent, kRows, look); };
    cast.subjects[VariantPlain].make = [](QWidget* parent) { return ToolkitMenu(parent, kRows, nullptr); };
    for (Subject* subject : {&cast.subjects[VariantSameLook], &cast.subjects[VariantPlain]}) {
        subject->show = Pop;
        subject->fill = fillToolkit;
    }
    cast.bOpens = true;
    cast.bShowIsOpening = true;
    cast.bGrowsOpen = false;
    return cast;
}

void AddGrowthOfOpenMenu(const char* name, MakeMenu make, Fill fill)
{
    Cast cast{name, "none"};
    cast.subjects[VariantOurs].make = [make](QWidget* parent) { return make(parent, kRows); };
    cast.subjects[VariantOurs].fill = fill;
    cast.bGrowthOnly = true;
    Life::AddComparisons(cast);
}

QWidget* MachineMenu(QWidget* parent, int rows, void (*fill)(QWidget*, int, int))
{
    auto* menu = new CVelmarMenu(parent);
    menu->SetMenuStyle(MenuStyleDark);
    menu->SetWindowWidth(kWidth);
    menu->SetWindowHeight(kRowHeight);
    fill(menu, 0, rows);
    menu->move(kPlace);
    menu->hide();
    return menu;
}

void FillItems(QWidget* widget, int first, int count)
{
    for (int row = first; row < first + count; ++row) {
        static_cast<CVelmarMenu*>(widget)->AddMenuItem(Text(row), QString::fromLatin1(kIcon), QStringLiteral("Ctrl+R"));
    }
}

void FillList(QWidget* widget, int first, int count)
{
    for (int row = first; row < first + count; ++row) {
        static_cast<CVelmarMenu*>(widget)->AddListWidgetButton(Text(row));
    }
}

// Rows that come from elsewhere: the event loop turns after each.
void FillListOneByOne(QWidget* widget, int first, int count)
{
    for (int row = first; row < first + count; ++row) {
        FillList(widget, row, 1);
        QCoreApplication::processEvents();
    }
}

void FillToolkitPlain(QWidget* widget, int first, int count)
{
    for (int row = first; row < first + count; ++row) {
        static_cast<QMenu*>(widget)->addAction(Text(row));
    }
}

} // namespace

void AddMenuComparisons()
{
    const MakeMenu items = [](QWidget* parent, int rows) { return MachineMenu(parent, rows, FillItems); };
    const MakeMenu list = [](QWidget* parent, int rows) { return MachineMenu(parent, rows, FillList); };
    Life::AddComparisons(MenuCast("custom menu", CustomMenu, FillCustom, kLook, FillToolkit));
    Life::AddComparisons(MenuCast("machine menu", items, FillItems, kMachineLook, FillToolkit));
    Life::AddComparisons(MenuCast("machine menu, scrolling list", list, FillList, kMachineLook, FillToolkitPlain));
    // No counterpart here: an open QMenu computes all of its rows anew with each that comes.
    AddGrowthOfOpenMenu("custom menu, open", CustomMenu, FillCustom);
    AddGrowthOfOpenMenu("machine menu, open", items, FillItems);
    AddGrowthOfOpenMenu("machine menu, scrolling list, open", list, FillList);
    AddGrowthOfOpenMenu("machine menu, scrolling list, open, one by one", list, FillListOneByOne);
}
