#include <benchmarks/Comparison.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <QElapsedTimer>
#include <QMenu>
#include <QTest>
#include <QWidget>

namespace {

constexpr int kRows = 30;
constexpr int kFew = 100;
constexpr int kMany = 10000;
constexpr double kGrowthGoal = 1.5;
constexpr double kNanoseconds = 1e9;

constexpr char kIcon[] = ":/icon/simcontrol/ico_warning_line_b_nor.png";
constexpr char kLook[] = "QMenu{background-color:#181818;border:1px solid #2d2d2d;border-radius:4px;padding:6px;}"
                         "QMenu::item{height:24px;color:#FFFFFF;background:#181818;border-radius:4px;}"
                         "QMenu::item:selected{background:#016ACB;}";

enum class On
{
    Nothing,
    Screen,
};

double Fill(int rows, On where)
{
    QWidget window;
    window.resize(400, 300);
    auto* menu = new CCustomMenu(&window);
    menu->SetMenuStyle(MenuStyleDark);
    if (where == On::Screen) {
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            return 0.0;
        }
    } else {
        menu->hide();
    }
    QElapsedTimer timer;
    timer.start();
    for (int row = 0; row < rows; ++row) {
        menu->AddMenuItem(row, QStringLiteral("Row %1").arg(row), QStringLiteral("Ctrl+R"), QString(), QString());
    }
    if (where == On::Screen) {
        QCoreApplication::processEvents();
    }
    return double(timer.nsecsElapsed()) / kNanoseconds;
}

template <typename Menu>
Comparison::Run Cycle(QWidget& window, Menu* menu)
{
    return [&window, menu](benchmark::State& state) {
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            state.SkipWithError("the window does not show");
            return;
        }
        for ([[maybe_unused]] auto step : state) {
            if constexpr (std::is_same_v<Menu, QMenu>) {
                menu->popup(window.mapToGlobal(QPoint(10, 10)));
            } else {
                menu->show();
            }
            QCoreApplication::processEvents();
            menu->hide();
            QCoreApplication::processEvents();
        }
    };
}

void OpenOurs(benchmark::State& state)
{
    QWidget window;
    window.resize(400, 900);
    CCustomMenu menu(&window);
    for (int row = 0; row < kRows; ++row) {
        menu.AddMenuItem(QStringLiteral("Row %1").arg(row), QStringLiteral("Ctrl+R"), QString::fromLatin1(kIcon),
                         QString::fromLatin1(kIcon), QString());
    }
    menu.SetMenuStyle(MenuStyleDark);
    menu.UpdateItemSize();
    menu.RefreshSize();
    menu.move(10, 10);
    menu.hide();
    Cycle(window, &menu)(state);
}

void OpenToolkit(benchmark::State& state, bool sameLook)
{
    QWidget window;
    window.resize(400, 900);
    QMenu menu(&window);
    if (sameLook) {
        menu.setStyleSheet(QString::fromLatin1(kLook));
        menu.setFont(FontCnMedium_14);
    }
    for (int row = 0; row < kRows; ++row) {
        QAction* action = menu.addAction(QIcon(QString::fromLatin1(kIcon)), QStringLiteral("Row %1").arg(row));
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    }
    Cycle(window, &menu)(state);
}

const Comparison open = Comparison("custom menu: open and close with 30 rows")
                            .Ours(OpenOurs)
                            .SameLook([](benchmark::State& state) { OpenToolkit(state, true); })
                            .Plain([](benchmark::State& state) { OpenToolkit(state, false); })
                            .Goal(1.0);

const Comparison growth = Comparison("custom menu: one row of 10,000 beside one of 100")
                              .Growth([](int rows) { return Fill(rows, On::Nothing); }, kFew, kMany)
                              .Goal(kGrowthGoal);

const Comparison growthOnScreen = Comparison("custom menu: one row of 10,000 beside one of 100, on the screen")
                                      .Growth([](int rows) { return Fill(rows, On::Screen); }, kFew, kMany)
                                      .Goal(kGrowthGoal);

} // namespace
