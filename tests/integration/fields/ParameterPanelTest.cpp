#include <CustomControls/buttons/CFunctionBtnWidget.h>
#include <CustomControls/buttons/CHintButton.h>
#include <CustomControls/buttons/CSelectButton.h>
#include <CustomControls/buttons/CUnitButton.h>
#include <CustomControls/buttons/CVelmarButton.h>
#include <CustomControls/fields/CSelectBox.h>
#include <CustomControls/fields/CTextEdit.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QSignalSpy>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr QRect kPlace(300, 200, 480, 700);
constexpr int kRowsOfList = 40;

const QColor kStripLine(0x2e, 0x2e, 0x2e);
const QColor kUnitGreen(24, 133, 83);
const QColor kUnitGround(250, 250, 250);

QPoint CentreOf(const QWidget* widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

// What the screen shows, not what the widget would paint.
QColor ScreenColor(const QWidget* widget, const QPoint& place)
{
    const QPoint point = widget->mapToGlobal(place);
    return widget->screen()->grabWindow(0, point.x(), point.y(), 1, 1).toImage().pixelColor(0, 0);
}

} // namespace

/** A parameter panel as a host builds one, under real keys and a real pointer. */
class ParameterPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void upAndDownSignalAfterTheStep();
    void heldKeySignalsEachStep();
    void typingEndsByTabReturnAndClick_data();
    void typingEndsByTabReturnAndClick();
    void escapeKeyAndLettersChangeNothing();
    void rightClickOpensNoMenu();
    void presetShowsThePointer();
    void presetReleasedOutsideDoesNothing();
    void tileIsChosenByAClick();
    void switchAndItsHintFollowTheMouse();
    void lineFollowsTheWheel();
    void lineFollowsTheDraggedHandle();
    void functionButtonIsClicked();

private:
    QDoubleSpinBox* Number() const { return m_pLength->findChild<QDoubleSpinBox*>(); }

    QWidget* m_pWindow = nullptr;
    CTextEdit* m_pLength = nullptr;
    CTextEdit* m_pAngle = nullptr;
    CUnitButton* m_pPreset = nullptr;
    CSelectButton* m_pTile = nullptr;
    CSelectBox* m_pSwitch = nullptr;
    QListWidget* m_pList = nullptr;
    CFunctionBtnWidget* m_pStrip = nullptr;
    CVelmarButton* m_pButton = nullptr;
};

void ParameterPanelTest::initTestCase()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("needs an X display and xdotool");
    }
}

void ParameterPanelTest::init()
{
    m_pWindow = new QWidget;
    auto* layout = new QVBoxLayout(m_pWindow);
    m_pTile = new CSelectButton(m_pWindow);
    m_pTile->setIcon(QStringLiteral(":/icon/selectbox/material/img_material_jade.png"));
    m_pTile->setText(QStringLiteral("玉石"));
    m_pTile->setFixedSize(120, 110);
    layout->addWidget(m_pTile);
    m_pLength = new CTextEdit(m_pWindow, QStringLiteral("长度："), QStringLiteral("10"), QStringLiteral("mm"), 140);
    layout->addWidget(m_pLength);
    m_pAngle = new CTextEdit(m_pWindow, QStringLiteral("角度："), QStringLiteral("0"), QStringLiteral("°"), 140);
    m_pAngle->SetRange(0, 360);
    layout->addWidget(m_pAngle);
    auto* row = new QHBoxLayout;
    m_pPreset = new CUnitButton(QString(), QStringLiteral("°"), nullptr);
    row->addWidget(m_pPreset);
    row->addStretch(1);
    layout->addLayout(row);
    m_pSwitch = new CSelectBox(QStringLiteral("吸尘"), true, QStringLiteral("加工时自动开启。"), m_pWindow);
    layout->addWidget(m_pSwitch);
    m_pList = new QListWidget;
    m_pList->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    layout->addWidget(m_pList, 1);
    m_pStrip = new CFunctionBtnWidget(m_pList->verticalScrollBar(), m_pWindow);
    m_pButton = m_pStrip->InitialButton1(QStringLiteral("添加"));
    layout->addWidget(m_pStrip);
    for (int item = 0; item < kRowsOfList; ++item) {
        m_pList->addItem(QString::number(item));
    }
    QVERIFY(RealInput::ShowAt(*m_pWindow, kPlace));
    RealInput::MoveTo(kPlace.topRight() + QPoint(-20, 20));
    QTRY_COMPARE(ScreenColor(m_pStrip, QPoint(197, 0)), kStripLine);
}

void ParameterPanelTest::cleanup()
{
    delete m_pWindow;
    m_pWindow = nullptr;
}

void ParameterPanelTest::upAndDownSignalAfterTheStep()
{
    QList<double> seen;
    const QObject receiver; // gone before the window, which takes the focus from the number when it goes
    connect(m_pLength, &CTextEdit::SignalEditDataChanged, &receiver, [&] { seen.append(m_pLength->GetEditData()); });
    RealInput::Click(CentreOf(Number()));
    QTRY_VERIFY(Number()->hasFocus());
    RealInput::Key(QStringLiteral("Up"));
    QTRY_VERIFY(!seen.isEmpty());
    QTRY_COMPARE(seen.last(), 11.0);
    // One keystroke may signal more than once, but never with the number from before the step.
    QVERIFY(!seen.contains(10.0));
    // The release is on its way behind the press; what it brings belongs to this step.
    QTRY_VERIFY(seen.size() >= 2);
    seen.clear();
    RealInput::Key(QStringLiteral("Down"));
    RealInput::Key(QStringLiteral("Down"));
    QTRY_VERIFY(seen.contains(9.0));
    QVERIFY(!seen.contains(11.0));
    QCOMPARE(m_pLength->GetEditData(), 9.0);
}

void ParameterPanelTest::heldKeySignalsEachStep()
{
    m_pAngle->SetRange(0, 3);
    auto* number = m_pAngle->findChild<QDoubleSpinBox*>();
    QList<double> seen;
    const QObject receiver;
    connect(m_pAngle, &CTextEdit::SignalEditDataChanged, &receiver, [&] { seen.append(m_pAngle->GetEditData()); });
    RealInput::Click(CentreOf(number));
    QTRY_VERIFY(number->hasFocus());
    for (int step = 0; step < 5; ++step) {
        RealInput::Key(QStringLiteral("Up"));
    }
    QTRY_COMPARE(m_pAngle->GetEditData(), 3.0);
    QTRY_VERIFY(seen.contains(1.0) && seen.contains(2.0) && seen.contains(3.0));
    QVERIFY(std::is_sorted(seen.begin(), seen.end()));
}

void ParameterPanelTest::typingEndsByTabReturnAndClick_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("Tab") << QStringLiteral("Tab");
    QTest::newRow("Return") << QStringLiteral("Return");
    QTest::newRow("click") << QString();
}

void ParameterPanelTest::typingEndsByTabReturnAndClick()
{
    QFETCH(QString, end);
    QSignalSpy spy(m_pLength, &CTextEdit::SignalEditDataChanged);
    RealInput::Click(CentreOf(Number()));
    QTRY_VERIFY(Number()->hasFocus());
    RealInput::Key(QStringLiteral("ctrl+a"));
    RealInput::Type(QStringLiteral("42.5"));
    QTRY_COMPARE(Number()->text(), QStringLiteral("42.5"));
    QCOMPARE(spy.size(), 0);
    if (end.isEmpty()) {
        RealInput::Click(CentreOf(m_pAngle->findChild<QDoubleSpinBox*>()));
    } else {
        RealInput::Key(end);
    }
    QTRY_COMPARE(spy.size(), 1);
    QCOMPARE(m_pLength->GetEditData(), 42.5);
}

void ParameterPanelTest::escapeKeyAndLettersChangeNothing()
{
    QSignalSpy spy(m_pLength, &CTextEdit::SignalEditDataChanged);
    RealInput::Click(CentreOf(Number()));
    QTRY_VERIFY(Number()->hasFocus());
    RealInput::Type(QStringLiteral("abc"));
    RealInput::Key(QStringLiteral("Escape"));
    RealInput::Key(QStringLiteral("Left"));
    QCOMPARE(m_pLength->GetEditData(), 10.0);
    QCOMPARE(spy.size(), 0);
}

void ParameterPanelTest::rightClickOpensNoMenu()
{
    RealInput::Click(CentreOf(Number()), 3);
    RealInput::Click(CentreOf(Number()));
    QTRY_VERIFY(Number()->hasFocus());
    QVERIFY(!QApplication::activePopupWidget());
}

void ParameterPanelTest::presetShowsThePointer()
{
    QSignalSpy spy(m_pPreset, &QPushButton::clicked);
    QCOMPARE(m_pPreset->parentWidget(), m_pWindow);
    // The frame's pen lies half on the fill: there it is a mix of both colours, and green shows as little red.
    const auto frameIsGreen = [this] { return ScreenColor(m_pPreset, QPoint(1, 13)).red() < 150; };
    const QPoint inside(6, 13);
    QVERIFY(!frameIsGreen());
    RealInput::MoveTo(CentreOf(m_pPreset));
    QTRY_VERIFY(frameIsGreen());
    QCOMPARE(ScreenColor(m_pPreset, inside), kUnitGround);
    RealInput::Press();
    QTRY_COMPARE(ScreenColor(m_pPreset, inside), kUnitGreen);
    QCOMPARE(spy.size(), 0);
    RealInput::Release();
    QTRY_COMPARE(spy.size(), 1);
    QTRY_COMPARE(ScreenColor(m_pPreset, inside), kUnitGround);
    QVERIFY(frameIsGreen());
    RealInput::MoveTo(CentreOf(m_pList));
    QTRY_VERIFY(!frameIsGreen());
}

void ParameterPanelTest::presetReleasedOutsideDoesNothing()
{
    QSignalSpy spy(m_pPreset, &QPushButton::clicked);
    RealInput::MoveTo(CentreOf(m_pPreset));
    RealInput::Press();
    QTRY_VERIFY(m_pPreset->isDown());
    RealInput::MoveTo(CentreOf(m_pList));
    RealInput::Release();
    QTRY_VERIFY(!m_pPreset->isDown());
    QCOMPARE(spy.size(), 0);
}

void ParameterPanelTest::tileIsChosenByAClick()
{
    const QPoint frame(1, m_pTile->height() / 2);
    const QColor rest = ScreenColor(m_pTile, frame);
    RealInput::MoveTo(CentreOf(m_pTile));
    QTRY_VERIFY(ScreenColor(m_pTile, frame) != rest);
    RealInput::Click(CentreOf(m_pTile));
    QTRY_VERIFY(m_pTile->isChecked());
    QTRY_COMPARE(ScreenColor(m_pTile, frame), QColor(23, 160, 97));
    RealInput::MoveTo(CentreOf(m_pList));
    RealInput::Click(CentreOf(m_pTile));
    QTRY_VERIFY(!m_pTile->isChecked());
}

void ParameterPanelTest::switchAndItsHintFollowTheMouse()
{
    QSignalSpy spy(m_pSwitch, &CSelectBox::signalSelectBoxToggled);
    auto* mark = m_pSwitch->findChild<CHintButton*>();
    auto* button = m_pSwitch->findChild<QPushButton*>(QStringLiteral("btnBox"));
    QVERIFY(mark && button);
    RealInput::MoveTo(CentreOf(mark));
    QTRY_VERIFY(mark->IsToolTipVisible());
    RealInput::MoveTo(CentreOf(m_pList));
    QTRY_VERIFY(!mark->IsToolTipVisible());
    RealInput::Click(CentreOf(button));
    QTRY_COMPARE(spy.size(), 1);
    QVERIFY(!m_pSwitch->IsChecked());
    RealInput::Key(QStringLiteral("space"));
    QTRY_COMPARE(spy.size(), 2);
    QVERIFY(m_pSwitch->IsChecked());
}

void ParameterPanelTest::lineFollowsTheWheel()
{
    QScrollBar* bar = m_pList->verticalScrollBar();
    RealInput::MoveTo(CentreOf(m_pList->viewport()));
    for (int turn = 0; turn < 200 && bar->value() < bar->maximum(); ++turn) {
        const int before = bar->value();
        RealInput::Click(CentreOf(m_pList->viewport()), 5);
        QTRY_VERIFY(bar->value() > before);
    }
    QCOMPARE(bar->value(), bar->maximum());
    QTRY_VERIFY(ScreenColor(m_pStrip, QPoint(197, 0)) != kStripLine);
    RealInput::Click(CentreOf(m_pList->viewport()), 4);
    QTRY_COMPARE(ScreenColor(m_pStrip, QPoint(197, 0)), kStripLine);
}

void ParameterPanelTest::lineFollowsTheDraggedHandle()
{
    QScrollBar* bar = m_pList->verticalScrollBar();
    RealInput::Drag(bar->mapToGlobal(QPoint(bar->width() / 2, 20)),
                    bar->mapToGlobal(QPoint(bar->width() / 2, bar->height() + 40)));
    QTRY_COMPARE(bar->value(), bar->maximum());
    QTRY_VERIFY(ScreenColor(m_pStrip, QPoint(197, 0)) != kStripLine);
    // The list leaves before the strip, which then stays as it is.
    delete m_pList;
    m_pList = nullptr;
    QVERIFY(ScreenColor(m_pStrip, QPoint(197, 0)) != kStripLine);
}

void ParameterPanelTest::functionButtonIsClicked()
{
    QSignalSpy spy(m_pButton, &CVelmarButton::SignalClicked);
    RealInput::Click(CentreOf(m_pButton));
    QTRY_COMPARE(spy.size(), 1);
}

CUSTOMCONTROLS_TEST_MAIN(ParameterPanelTest)
#include "ParameterPanelTest.moc"
