#include <CustomControls/menus/CComboBox.h>
#include <CustomControls/menus/CVelmarMenu.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

constexpr QRect kPlace(300, 200, 700, 500);
constexpr int kRowsOfList = 20;

QPoint CentreOf(const QWidget* widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

// A list tells whose it is by what it holds.
CVelmarMenu* ListOf(const QWidget& window, const QString& firstText)
{
    const QList<CVelmarMenu*> menus = window.findChildren<CVelmarMenu*>();
    for (CVelmarMenu* menu : menus) {
        if (menu->MenuButtonCount() > 0 && menu->MenuButton(0)->text() == firstText) {
            return menu;
        }
    }
    return nullptr;
}

} // namespace

class ComboBoxInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void clickOnARowChoosesIt();
    void draggingTheScrollBarKeepsTheListOpen();
    void rowUnderTheMouseIsMarked();
    void rowThatComesUnderTheMouseIsToldSo();
    void entryAddedToTheOpenListCanBeChosen();
    void boxesOpenOneAfterTheOther();
    void clickElsewhereClosesTheList();
    void keysOpenTheListAndNoPopUp();
    void otherWindowClosesTheList();

private:
    QWidget* m_pWindow = nullptr;
    CComboBox* m_pShort = nullptr;
    CComboBox* m_pLong = nullptr;
    CVelmarMenu* m_pShortList = nullptr;
    CVelmarMenu* m_pLongList = nullptr;
};

void ComboBoxInputTest::initTestCase()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("needs an X display and xdotool");
    }
}

void ComboBoxInputTest::init()
{
    m_pWindow = new QWidget;
    auto* panel = new QWidget(m_pWindow);
    panel->setGeometry(20, 20, 660, 60);
    const auto add = [panel](int x, const QString& name, int entries) {
        auto* box = new CComboBox(panel);
        box->SetBoxSize(200, 28, 0);
        box->move(x, 10);
        for (int entry = 0; entry < entries; ++entry) {
            box->AddComboItem(QStringLiteral("%1 %2").arg(name).arg(entry));
        }
        return box;
    };
    m_pShort = add(10, QStringLiteral("short"), 4);
    m_pLong = add(300, QStringLiteral("long"), kRowsOfList);
    m_pShortList = ListOf(*m_pWindow, QStringLiteral("short 0"));
    m_pLongList = ListOf(*m_pWindow, QStringLiteral("long 0"));
    QVERIFY(m_pShortList && m_pLongList);
    QVERIFY(RealInput::ShowAt(*m_pWindow, kPlace));
    RealInput::MoveTo(kPlace.bottomRight() - QPoint(10, 10));
}

void ComboBoxInputTest::cleanup()
{
    delete m_pWindow;
}

void ComboBoxInputTest::clickOnARowChoosesIt()
{
    for (CComboBox* box : {m_pShort, m_pLong}) {
        CVelmarMenu* list = box == m_pShort ? m_pShortList : m_pLongList;
        QSignalSpy spy(box, &QComboBox::currentIndexChanged);
        RealInput::Click(CentreOf(box));
        QTRY_VERIFY(list->isVisible());
        QCOMPARE(list->mapToGlobal(QPoint()), box->mapToGlobal(QPoint(0, 30)));
        RealInput::Click(CentreOf(list->MenuButton(3)));
        QTRY_COMPARE(box->currentIndex(), 3);
        QCOMPARE(spy.size(), 1);
        QTRY_VERIFY(!list->isVisible());
        // And once more, now that the focus has wandered.
        RealInput::Click(CentreOf(box));
        QTRY_VERIFY(list->isVisible());
        RealInput::Click(CentreOf(list->MenuButton(1)));
        QTRY_COMPARE(box->currentIndex(), 1);
        QTRY_VERIFY(!list->isVisible());
    }
}

void ComboBoxInputTest::draggingTheScrollBarKeepsTheListOpen()
{
    RealInput::Click(CentreOf(m_pLong));
    QTRY_VERIFY(m_pLongList->isVisible());
    auto* area = m_pLongList->findChild<QScrollArea*>();
    QVERIFY(area);
    QScrollBar* bar = area->verticalScrollBar();
    QTRY_VERIFY(bar->isVisible());
    RealInput::Drag(bar->mapToGlobal(QPoint(bar->width() / 2, 10)),
                    bar->mapToGlobal(QPoint(bar->width() / 2, bar->height() - 4)));
    QTRY_VERIFY(bar->value() > 0);
    QVERIFY(m_pLongList->isVisible());
    QVERIFY(m_pLong->hasFocus());
    // What came into view can be chosen.
    QTRY_COMPARE(bar->value(), bar->maximum());
    RealInput::Click(CentreOf(m_pLongList->MenuButton(kRowsOfList - 1)));
    QTRY_COMPARE(m_pLong->currentIndex(), kRowsOfList - 1);
    QTRY_VERIFY(!m_pLongList->isVisible());
}

void ComboBoxInputTest::rowUnderTheMouseIsMarked()
{
    RealInput::Click(CentreOf(m_pLong));
    QTRY_VERIFY(m_pLongList->isVisible());
    const auto color = [this](int row) {
        return m_pWindow->grab(QRect(m_pLongList->MenuButton(row)->mapTo(m_pWindow, QPoint(150, 15)), QSize(1, 1)))
            .toImage()
            .pixelColor(0, 0);
    };
    RealInput::MoveTo(CentreOf(m_pLongList->MenuButton(1)));
    QTRY_COMPARE(color(1), QColor("#0071bc"));
    QCOMPARE(color(2), QColor("#212024"));
    RealInput::MoveTo(CentreOf(m_pLongList->MenuButton(2)));
    QTRY_COMPARE(color(2), QColor("#0071bc"));
    QCOMPARE(color(1), QColor("#212024"));
}

void ComboBoxInputTest::rowThatComesUnderTheMouseIsToldSo()
{
    auto* list = new CVelmarMenu(m_pWindow);
    list->SetMenuStyle(MenuStyleDark);
    list->AddListWidgetButton(QStringLiteral("first"));
    list->move(20, 300);
    list->show();
    RealInput::MoveTo(list->mapToGlobal(QPoint(60, 4 + 24 + 12)));
    list->AddListWidgetButton(QStringLiteral("second"));
    QPushButton* second = list->MenuButton(1);
    QTRY_VERIFY(second->underMouse());
    QVERIFY(!list->MenuButton(0)->underMouse());
}

void ComboBoxInputTest::entryAddedToTheOpenListCanBeChosen()
{
    RealInput::Click(CentreOf(m_pLong));
    QTRY_VERIFY(m_pLongList->isVisible());
    m_pLong->AddComboItem(QStringLiteral("late"));
    QScrollBar* bar = m_pLongList->findChild<QScrollArea*>()->verticalScrollBar();
    QTRY_COMPARE(bar->maximum(), (kRowsOfList + 1 - 5) * 30);
    bar->setValue(bar->maximum());
    RealInput::Click(CentreOf(m_pLongList->MenuButton(kRowsOfList)));
    QTRY_COMPARE(m_pLong->currentText(), QStringLiteral("late"));
    QTRY_VERIFY(!m_pLongList->isVisible());
}

void ComboBoxInputTest::boxesOpenOneAfterTheOther()
{
    RealInput::Click(CentreOf(m_pShort));
    QTRY_VERIFY(m_pShortList->isVisible());
    RealInput::Click(CentreOf(m_pLong));
    QTRY_VERIFY(m_pLongList->isVisible());
    QVERIFY(!m_pShortList->isVisible());
    RealInput::Click(CentreOf(m_pShort));
    QTRY_VERIFY(m_pShortList->isVisible());
    QVERIFY(!m_pLongList->isVisible());
    RealInput::Click(CentreOf(m_pShort));
    QTRY_VERIFY(!m_pShortList->isVisible());
}

void ComboBoxInputTest::clickElsewhereClosesTheList()
{
    auto* edit = new QLineEdit(m_pWindow);
    edit->setGeometry(20, 400, 200, 30);
    edit->show();
    RealInput::Click(CentreOf(m_pShort));
    QTRY_VERIFY(m_pShortList->isVisible());
    RealInput::Click(CentreOf(edit));
    QTRY_VERIFY(!m_pShortList->isVisible());
    QTRY_VERIFY(!m_pShort->hasFocus());
}

void ComboBoxInputTest::keysOpenTheListAndNoPopUp()
{
    RealInput::Click(CentreOf(m_pShort));
    QTRY_VERIFY(m_pShortList->isVisible());
    RealInput::Click(CentreOf(m_pShort));
    QTRY_VERIFY(!m_pShortList->isVisible());
    QTRY_VERIFY(m_pShort->hasFocus());
    RealInput::Key(QStringLiteral("Down"));
    QTRY_COMPARE(m_pShort->currentIndex(), 1);
    RealInput::Key(QStringLiteral("F4"));
    QTRY_VERIFY(m_pShortList->isVisible());
    QVERIFY(!m_pShort->view()->isVisible());
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
}

void ComboBoxInputTest::otherWindowClosesTheList()
{
    RealInput::Click(CentreOf(m_pShort));
    QTRY_VERIFY(m_pShortList->isVisible());
    QWidget other;
    QVERIFY(RealInput::ShowAt(other, QRect(1100, 700, 200, 200)));
    QTRY_VERIFY(!m_pShortList->isVisible());
}

CUSTOMCONTROLS_TEST_MAIN(ComboBoxInputTest)

#include "ComboBoxInputTest.moc"
