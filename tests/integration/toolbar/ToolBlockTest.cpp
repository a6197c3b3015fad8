#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/toolbar/CTabToolWidget.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QMainWindow>
#include <QMenu>
#include <QSignalSpy>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>

#include <memory>

namespace {

constexpr QRect kPlace(200, 200, 1000, 300);
const QString kIcon = QStringLiteral(":/icon/selectbox/stock/ico_scanning_stl.png");
const QPoint kOutside(700, 450);

int Distance(const QColor& left, const QColor& right)
{
    return std::abs(left.red() - right.red()) + std::abs(left.green() - right.green()) +
           std::abs(left.blue() - right.blue());
}

// The fill of a button as the window shows it, at a point of the button that neither icon nor caption reaches.
QColor Fill(QWidget& window, const QWidget* button)
{
    const QPoint place = button->mapTo(&window, QPoint(button->width() / 2, 2));
    return window.grab().toImage().pixelColor(place);
}

QColor Over(const QColor& ground, int alpha)
{
    const auto mix = [alpha](int top, int bottom) { return bottom + (top - bottom) * alpha / 255; };
    return {mix(73, ground.red()), mix(135, ground.green()), mix(89, ground.blue())};
}

QPoint Middle(const QWidget* widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

} // namespace

/** Tool blocks in a main window, under a real mouse. */
class ToolBlockTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void hoverAndPressFill();
    void smallButtonHoversAndClicks();
    void checkingHoldsTheBlockOpen();
    void pressOnDisabledButtonIsTold();
    void openMenuKeepsTheFill();
    void overflowShowsWhatIsHidden();
    void rightClickOpensNoMenu();
    void blocksHaveOneHeight();
    void tabsChangeUnderTheMouse();

private:
    QList<CToolButton*> AddBlock(const QString& name, int count);

    std::unique_ptr<QMainWindow> m_pWindow;
};

void ToolBlockTest::initTestCase()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("needs an X display and xdotool");
    }
}

void ToolBlockTest::init()
{
    RealInput::MoveTo(QPoint(10, 10));
    m_pWindow = std::make_unique<QMainWindow>();
    m_pWindow->setCentralWidget(new QWidget);
}

void ToolBlockTest::cleanup()
{
    m_pWindow.reset();
    QVERIFY(!CToolBar::m_pBtnChecked);
}

QList<CToolButton*> ToolBlockTest::AddBlock(const QString& name, int count)
{
    auto* block = new CToolBarItem(name, m_pWindow.get());
    for (int i = 0; i < count; ++i) {
        block->AddItem(kIcon, QStringLiteral("刀具"), 0, QString());
    }
    m_pWindow->addToolBar(block);
    return block->CreateToolBlock(false);
}

void ToolBlockTest::hoverAndPressFill()
{
    CToolButton* button = AddBlock(QStringLiteral("加工"), 3).at(1);
    QVERIFY(RealInput::ShowAt(*m_pWindow, kPlace));
    const QSignalSpy clicked(button, &QToolButton::clicked);
    const QColor ground = Fill(*m_pWindow, button);

    RealInput::MoveTo(Middle(button));
    QTRY_VERIFY(Distance(Fill(*m_pWindow, button), Over(ground, 51)) <= 6);
    RealInput::Press();
    QTRY_VERIFY(Distance(Fill(*m_pWindow, button), Over(ground, 102)) <= 6);
    RealInput::Release();
    QTRY_COMPARE(clicked.size(), 1);
    QTRY_VERIFY(Distance(Fill(*m_pWindow, button), Over(ground, 51)) <= 6);
    RealInput::MoveTo(kOutside);
    QTRY_COMPARE(Fill(*m_pWindow, button), ground);
}

void ToolBlockTest::smallButtonHoversAndClicks()
{
    auto* block = new CToolBarItem(QStringLiteral("编辑"), m_pWindow.get());
    block->AddItemVertical(QStringList(2, kIcon), {QStringLiteral("复制"), QStringLiteral("粘贴")}, {0, 0},
                           QStringList(2, QString()));
    const QList<CToolButton*> buttons = block->CreateToolBlock(false);
    m_pWindow->addToolBar(block);
    QVERIFY(RealInput::ShowAt(*m_pWindow, kPlace));
    const QSignalSpy clicked(buttons.at(1), &QToolButton::clicked);
    const auto edge = [&](const QWidget* button) {
        return m_pWindow->grab().toImage().pixelColor(
            button->mapTo(m_pWindow.get(), QPoint(button->width() - 2, button->height() / 2)));
    };
    const QColor ground = edge(buttons.at(0));
    RealInput::MoveTo(Middle(buttons.at(1)));
    QTRY_VERIFY(Distance(edge(buttons.at(1)), Over(ground, 51)) <= 6);
    QCOMPARE(edge(buttons.at(0)), ground);
    RealInput::Click(Middle(buttons.at(1)));
    QTRY_COMPARE(clicked.size(), 1);
}

void ToolBlockTest::checkingHoldsTheBlockOpen()
{
    const QList<CToolButton*> first = AddBlock(QStringLiteral("一"), 6);
    const QList<CToolButton*> second = AddBlock(QStringLiteral("二"), 6);
    for (CToolButton* button : first + second) {
        button->setCheckable(true);
    }
    QVERIFY(RealInput::ShowAt(*m_pWindow, kPlace));
    auto* one = qobject_cast<CToolBarItem*>(first.first()->parentWidget());
    auto* two = qobject_cast<CToolBarItem*>(second.first()->parentWidget());
    const QColor ground = Fill(*m_pWindow, first.last());

    RealInput::Click(Middle(first.last()));
    QTRY_COMPARE(CToolBar::m_pBtnChecked, first.last());
    RealInput::MoveTo(kOutside);
    QTRY_VERIFY(Distance(Fill(*m_pWindow, first.last()), Over(ground, 102)) <= 6);
    QVERIFY(one->minimumWidth() > 0);

    // A narrow window takes its room from the other block; the checked tool stays.
    m_pWindow->resize(480, 300);
    QTRY_VERIFY(!second.last()->isVisible());
    QVERIFY(first.last()->isVisible());
    QVERIFY(one->width() >= one->minimumWidth());

    RealInput::Click(Middle(second.first()));
    QTRY_COMPARE(CToolBar::m_pBtnChecked, second.first());
    QCOMPARE(one->minimumWidth(), 0);
    QVERIFY(two->minimumWidth() > 0);
    QTRY_VERIFY(two->width() >= two->minimumWidth());
    QVERIFY(second.first()->isVisible());
    // Captions of two characters are narrower than their tools, so not all of them have room in that width; none is
    // left half shown.
    for (const CToolButton* button : first + second) {
        QTRY_COMPARE(button->isVisible(), !button->isHidden());
        QVERIFY(!button->isVisible() || button->geometry().right() < button->parentWidget()->width());
    }

    RealInput::Click(Middle(second.first()));
    QTRY_VERIFY(!CToolBar::m_pBtnChecked);
    QCOMPARE(two->minimumWidth(), 0);
}

void ToolBlockTest::pressOnDisabledButtonIsTold()
{
    CToolButton* button = AddBlock(QStringLiteral("加工"), 2).first();
    button->setEnabled(false);
    QVERIFY(RealInput::ShowAt(*m_pWindow, kPlace));
    const QSignalSpy told(button, &CToolButton::SignalBtnDisabledClick);
    const QSignalSpy clicked(button, &QToolButton::clicked);
    const QColor ground = Fill(*m_pWindow, button);
    QTest::ignoreMessage(QtDebugMsg, " disabled btn clicked");
    RealInput::Click(Middle(button));
    QTRY_COMPARE(told.size(), 1);
    QCOMPARE(clicked.size(), 0);
    QCOMPARE(Fill(*m_pWindow, button), ground);
}

void ToolBlockTest::openMenuKeepsTheFill()
{
    CToolButton* button = AddBlock(QStringLiteral("加工"), 2).first();
    QMenu menu;
    menu.addAction(QStringLiteral("one"));
    button->setMenu(&menu);
    button->setPopupMode(QToolButton::InstantPopup);
    QVERIFY(RealInput::ShowAt(*m_pWindow, kPlace));
    const QColor ground = Fill(*m_pWindow, button);
    // The menu runs a loop of its own inside the press, so what it shows is looked at from within.
    QColor open;
    connect(&menu, &QMenu::aboutToShow, button, [&] {
        QTimer::singleShot(0, &menu, [&] {
            RealInput::MoveTo(kOutside);
            open = Fill(*m_pWindow, button);
            RealInput::Key(QStringLiteral("Escape"));
        });
    });
    RealInput::Click(Middle(button));
    QTRY_VERIFY(open.isValid());
    QVERIFY2(Distance(open, Over(ground, 102)) <= 6, qPrintable(open.name()));
    QTRY_VERIFY(!menu.isVisible());
}

void ToolBlockTest::overflowShowsWhatIsHidden()
{
    const QList<CToolButton*> buttons = AddBlock(QStringLiteral("加工"), 12);
    QVERIFY(RealInput::ShowAt(*m_pWindow, QRect(200, 200, 400, 300)));
    QVERIFY(!buttons.last()->isVisible());
    QVERIFY(buttons.first()->isVisible());
    auto* overflow = buttons.first()->parentWidget()->findChild<QToolButton*>(QStringLiteral("qt_toolbar_ext_button"));
    QVERIFY(overflow && overflow->isVisible());
    QCOMPARE(overflow->height(), 56);
    RealInput::Click(Middle(overflow));
    QTRY_VERIFY(buttons.last()->isVisible());
    const QSignalSpy clicked(buttons.last(), &QToolButton::clicked);
    // The bar unfolds with an animation, so its button moves under the mouse for a while.
    QTRY_VERIFY(m_pWindow->rect().contains(m_pWindow->mapFromGlobal(Middle(buttons.last()))));
    QVERIFY(QTest::qWaitFor([&] {
        RealInput::Click(Middle(buttons.last()));
        return clicked.size() > 0;
    }));
}

void ToolBlockTest::rightClickOpensNoMenu()
{
    CToolButton* button = AddBlock(QStringLiteral("加工"), 2).first();
    QVERIFY(RealInput::ShowAt(*m_pWindow, kPlace));
    const QWidget* block = button->parentWidget();
    const QSignalSpy asked(m_pWindow.get(), &QWidget::customContextMenuRequested);
    m_pWindow->setContextMenuPolicy(Qt::CustomContextMenu);
    RealInput::Click(block->mapToGlobal(QPoint(block->width() / 2, block->height() - 5)), 3);
    QVERIFY(!QApplication::activePopupWidget());
    QCOMPARE(asked.size(), 0);
    // Where nobody swallows it, it reaches the window.
    RealInput::Click(kOutside, 3);
    QTRY_COMPARE(asked.size(), 1);
}

void ToolBlockTest::blocksHaveOneHeight()
{
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(false);
    const QList<CToolButton*> one = AddBlock(QStringLiteral("One"), 2);
    auto* block = new CToolBarItem(QStringLiteral("Two"), m_pWindow.get());
    block->AddItem(kIcon, QStringLiteral("a\nb\nc"), 0, QString());
    const QList<CToolButton*> two = block->CreateToolBlock(false);
    m_pWindow->addToolBar(block);
    QVERIFY(RealInput::ShowAt(*m_pWindow, kPlace));
    QCOMPARE(one.first()->SharedTextLines(), 3);
    QTRY_COMPARE(one.first()->height(), two.first()->height());
    QTRY_COMPARE(one.first()->height(), one.first()->sizeHint().height());
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(true);
}

void ToolBlockTest::tabsChangeUnderTheMouse()
{
    CTabToolWidget tabs;
    tabs.addTab(new QWidget, QStringLiteral("开始"));
    tabs.addTab(new QWidget, QStringLiteral("刀具"));
    QVERIFY(RealInput::ShowAt(tabs, kPlace));
    const auto line = [&](int index) {
        const QRect tab = tabs.tabBar()->tabRect(index);
        return tabs.grab().toImage().pixelColor(tabs.tabBar()->mapTo(&tabs, QPoint(tab.center().x(), tab.bottom())));
    };
    QCOMPARE(line(0), QColor(234, 235, 234));
    RealInput::Click(tabs.tabBar()->mapToGlobal(tabs.tabBar()->tabRect(1).center()));
    QTRY_COMPARE(tabs.currentIndex(), 1);
    QTRY_COMPARE(line(1), QColor(234, 235, 234));
    QCOMPARE(line(0), QColor(39, 40, 46));
}

CUSTOMCONTROLS_TEST_MAIN(ToolBlockTest)

#include "ToolBlockTest.moc"
