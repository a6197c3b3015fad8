#include <benchmarks/Comparison.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/StatefulIcon.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <QElapsedTimer>
#include <QHoverEvent>
#include <QMainWindow>
#include <QPixmap>
#include <QTest>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr int kBlocks = 10;
constexpr int kButtons = 12;
constexpr QSize kWindow(1400, 400);

const QString kIcon = QStringLiteral(":/icon/selectbox/stock/ico_scanning_box.png");
const QString kDisabledIcon = QStringLiteral(":/icon/selectbox/stock/ico_scanning_cylinder.png");

constexpr char kLook[] = "QToolBar{border:none;border-bottom:1px solid rgb(187,187,187);"
                         "border-right:1px solid rgb(187,187,187);spacing:2px;padding:4px;}"
                         "QToolButton{border:none;border-radius:5px;background:transparent;color:rgb(51,51,51);}"
                         "QToolButton:hover{background:rgba(73,135,89,51);}"
                         "QToolButton:pressed,QToolButton:checked{background:rgba(73,135,89,102);}";

QString Caption(int index)
{
    return QStringLiteral("Tool %1").arg(index);
}

QToolBar* Ours(QMainWindow* window)
{
    auto* block = new CToolBarItem(QStringLiteral("Group"), window);
    for (int i = 0; i < kButtons; ++i) {
        block->AddItem(kIcon, Caption(i), 0, kDisabledIcon);
    }
    block->CreateToolBlock(false);
    return block;
}

QToolButton* TextUnderIcon(QWidget* parent, int index)
{
    auto* button = new QToolButton(parent);
    button->setFont(FontCnMedium_13);
    button->setText(Caption(index));
    button->setIcon(StatefulIcon::create(kIcon, kDisabledIcon, 32));
    button->setIconSize(QSize(32, 32));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setAutoRaise(true);
    return button;
}

QToolBar* Plain(QMainWindow* window)
{
    auto* bar = new QToolBar(QStringLiteral("Group"), window);
    for (int i = 0; i < kButtons; ++i) {
        bar->addWidget(TextUnderIcon(bar, i));
    }
    return bar;
}

QToolBar* SameLook(QMainWindow* window)
{
    auto* bar = new QToolBar(QStringLiteral("Group"), window);
    bar->setStyleSheet(QString::fromLatin1(kLook));
    for (int i = 0; i < kButtons; ++i) {
        bar->addWidget(TextUnderIcon(bar, i));
    }
    return bar;
}

// A main window with a row of bars, made, shown, painted once and gone.
template <typename Make>
Comparison::Run Row(Make make)
{
    return [=](benchmark::State& state) {
        for ([[maybe_unused]] auto step : state) {
            QMainWindow window;
            window.resize(kWindow);
            for (int i = 0; i < kBlocks; ++i) {
                window.addToolBar(make(&window));
            }
            window.show();
            window.repaint();
            QCoreApplication::processEvents();
        }
    };
}

// One button repainted under the mouse.
template <typename Make>
Comparison::Run Repaint(Make make)
{
    return [=](benchmark::State& state) {
        QMainWindow window;
        window.resize(kWindow);
        QToolBar* bar = make(&window);
        window.addToolBar(bar);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            state.SkipWithError("the window does not show");
            return;
        }
        QWidget* button = bar->widgetForAction(bar->actions().first());
        QHoverEvent enter(QEvent::HoverEnter, QPointF(5, 5), QPointF(5, 5), QPointF(-1, -1));
        button->setAttribute(Qt::WA_UnderMouse);
        QCoreApplication::sendEvent(button, &enter);
        for ([[maybe_unused]] auto step : state) {
            button->repaint();
        }
    };
}

void AddBlocks(QMainWindow& window, int blocks)
{
    for (int i = 0; i < blocks; ++i) {
        auto* block = new CToolBarItem(QStringLiteral("Group"), &window);
        for (int k = 0; k < 3; ++k) {
            block->AddItem(kIcon, Caption(k), 0, kDisabledIcon);
        }
        block->CreateToolBlock(false);
        window.addToolBar(block);
    }
}

// The width of a window that holds so many blocks of three buttons changes and the window is painted.
double Resize(int blocks)
{
    QMainWindow window;
    AddBlocks(window, blocks);
    window.resize(400 + blocks * 100, 400);
    window.show();
    QCoreApplication::processEvents();
    QElapsedTimer timer;
    timer.start();
    for (const int width : {20, 100, 200, 60}) {
        window.resize(width + blocks * 100, 400);
        QCoreApplication::processEvents();
    }
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

// A window with so many blocks of three buttons is shown for the first time and painted.
double FirstShow(int blocks)
{
    QMainWindow window;
    AddBlocks(window, blocks);
    window.resize(400 + blocks * 100, 400);
    QElapsedTimer timer;
    timer.start();
    window.show();
    QCoreApplication::processEvents();
    return static_cast<double>(timer.nsecsElapsed()) / 1e9;
}

const Comparison row = Comparison("tool bar: ten blocks of twelve made, shown, painted")
                           .Ours(Row(Ours))
                           .SameLook(Row(SameLook))
                           .Plain(Row(Plain))
                           .Goal(1.2);

const Comparison repaint = Comparison("tool bar: repaint of a hovered button")
                               .Ours(Repaint(Ours))
                               .SameLook(Repaint(SameLook))
                               .Plain(Repaint(Plain))
                               .Goal(1.0);

const Comparison resize = Comparison("tool bar: a resize across the row, per block").Growth(Resize, 10, 80).Goal(1.5);

const Comparison firstShow = Comparison("tool bar: the first show, per block").Growth(FirstShow, 10, 400).Goal(1.5);

} // namespace
