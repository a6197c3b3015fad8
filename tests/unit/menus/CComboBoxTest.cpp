#include <CustomControls/menus/CComboBox.h>

#include <tests/support/ProcessorTime.h>
#include <tests/support/TestMain.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/menus/CVelmarMenu.h>

#include <QAbstractItemView>
#include <QCursor>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>

#include <climits>
#include <memory>

namespace {

// clang-format off
const QString kHover = QStringLiteral(R"css(QComboBox{background:#1d1c1f;border:1px solid #000000;border-radius:2px;padding-left:6px;color:#b7bec4;}QComboBox::hover{border:1px solid #0071bc;padding-left:5px;}QComboBox::drop-down{width:24px;border-top-right-radius:2px;border-bottom-right-radius:2px;background:transparent;border-left:0px solid #000000; image:url(:/icon/icon/arrow_down_sel.png);}QComboBox::disabled{color:#666666;})css");
const QString kRest = QStringLiteral(R"css(QComboBox{background:#1d1c1f;border:1px solid #000000;border-radius:2px;padding-left:6px;color:#b7bec4;}QComboBox::drop-down{width:24px;border-top-right-radius:2px;border-bottom-right-radius:2px;background:transparent;border-left:0px solid #000000; image:url(:/icon/icon/arrow_down_sel.png);}QComboBox::disabled{color:#666666;})css");
const QString kOpen = QStringLiteral(R"css(QComboBox{background:#1d1c1f;border:2px solid #0071bc;border-radius:2px;padding-left:5px;color:#b7bec4;}QComboBox::drop-down{width:24px;border-top-right-radius:2px;border-bottom-right-radius:2px;background:transparent;padding-right:-1px;border-left:0px solid #000000; image:url(:/icon/icon/arrow_down_sel.png);}QComboBox::disabled{color:#666666;})css");
const QString kEnter = QStringLiteral(R"css(QComboBox{background:#1d1c1f;border:2px solid #0071bc;border-radius:2px;padding-left:5px;padding-right:4px;color:#b7bec4;}QComboBox::drop-down{width:24px;border-top-right-radius:2px;border-bottom-right-radius:2px;background:transparent; padding-right:-1px;border-left:0px solid #000000; image:url(:/icon/icon/arrow_down_sel.png);}QComboBox::disabled{color:#666666;})css");
// clang-format on

constexpr int kMany = 10000;
constexpr QPoint kInside(20, 14);

void Send(QObject* object, QEvent::Type type)
{
    if (type == QEvent::Enter) {
        QEnterEvent event({1, 1}, {1, 1}, {1, 1});
        QCoreApplication::sendEvent(object, &event);
    } else if (type == QEvent::FocusOut) {
        QFocusEvent event(type);
        QCoreApplication::sendEvent(object, &event);
    } else {
        QEvent event(type);
        QCoreApplication::sendEvent(object, &event);
    }
}

void Mouse(QWidget* box, QEvent::Type type, const QPoint& place, Qt::MouseButton button = Qt::LeftButton)
{
    QMouseEvent event(type, place, place, button, button, Qt::NoModifier);
    QCoreApplication::sendEvent(box, &event);
}

void Click(QWidget* box, const QPoint& place = kInside)
{
    Mouse(box, QEvent::MouseButtonPress, place);
    Mouse(box, QEvent::MouseButtonRelease, place);
}

QStringList TextsOf(CVelmarMenu* menu)
{
    QStringList texts;
    for (int index = 0; index < menu->MenuButtonCount(); ++index) {
        texts << menu->MenuButton(index)->text();
    }
    return texts;
}

QStringList TextsOf(const CComboBox& box)
{
    QStringList texts;
    for (int index = 0; index < box.count(); ++index) {
        texts << box.itemText(index);
    }
    return texts;
}

// How often something that it watches is told of another style.
class StyleChangeCounter : public QObject
{
public:
    int Count() const { return m_iCount; }

    bool eventFilter(QObject*, QEvent* event) override
    {
        m_iCount += event->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }

private:
    int m_iCount = 0;
};

} // namespace

// A window with a panel and a box in it; all of them may be deleted early.
struct Stage
{
    Stage()
    {
        window->resize(600, 500);
        panel->setGeometry(30, 40, 400, 100);
        box->move(5, 6);
        box->SetBoxSize(200, 28, 0);
    }
    ~Stage()
    {
        delete box;
        delete window;
    }
    void Add(int entries)
    {
        for (int entry = 0; entry < entries; ++entry) {
            box->AddComboItem(QString::number(box->count()));
        }
    }
    CVelmarMenu* Menu() const { return box->m_pMenu; }

    QPointer<QWidget> window = new QWidget;
    QPointer<QWidget> panel = new QWidget(window);
    QPointer<CComboBox> box = new CComboBox(panel);
};

class CComboBoxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void startsAsItsFieldsSay();
    void listLiesInTheTopWindow();
    void listLiesInTheNamedPanel();
    void fiveEntriesMakeAPlainList();
    void sixthEntryTurnsTheListIntoAScrollingOne();
    void removingFromSixToFiveReturnsToThePlainList();
    void removingFromTheMiddleKeepsBothInStep();
    void removingAnUnknownTextDoesNothing();
    void removingTheFirstOfEqualTexts();
    void removeAllReturnsToThePlainForm();
    void longEntryWidensTheListUntilAllAreRemoved();
    void rebuildTakesTheWidthBack();
    void boxSizeGoesToTheListToo_data();
    void boxSizeGoesToTheListToo();
    void maximumHoldsForLaterAdditions();
    void maximumOfNoneScrollsAtOnce_data();
    void maximumOfNoneScrollsAtOnce();
    void indexesOutOfRangeGiveNothing_data();
    void indexesOutOfRangeGiveNothing();
    void containedIsCaseSensitive();
    void listFontLeavesTheBoxItsOwn();
    void alignmentMakesTheBoxEditableForTheEyeOnly();
    void clickOpensTheListUnderTheBox();
    void secondClickClosesTheListAndTheBoxStaysMarked();
    void pressAndReleaseCountStrictlyInside_data();
    void pressAndReleaseCountStrictlyInside();
    void releaseOutsideLeavesThePressPending();
    void otherButtonsDoNothing();
    void theToolkitsPopUpNeverOpens_data();
    void theToolkitsPopUpNeverOpens();
    void changeOfTheBoxsLookLeavesTheToolkitsPopUpAlone();
    void theToolkitsPopUpGoesWithTheBox();
    void clickOnARowChoosesIt();
    void senderThatIsNoRowChoosesNothing();
    void openingTheSecondBoxClosesTheFirst();
    void focusLossClosesTheList_data();
    void focusLossClosesTheList();
    void focusLossOverTheScrollBarKeepsTheListOpen();
    void hidePopupClosesTheList();
    void hiddenBoxClosesItsList();
    void hoverFollowsTheMouse();
    void disabledBoxDoesNotHover();
    void listOutlivesTheBox();
    void boxDeletedWhileItsListIsOpen();
    void windowOfTheListDeletedFirst();
    void boxEndedLaterFromItsOwnChoice();
    void boxDeletedFromTheClickOfItsRow();
    void windowOfTheListDeletedAtAChoice();
    void boxWithoutParentFindsAWindowWhenItOpens();
    void listCanMoveToAnotherWindow();
    void oddTextsAreKept_data();
    void oddTextsAreKept();
    void openBoxIsDarkWithABlueBorder();
    void entriesAddedToAnOpenListJoinIt();
    void manyEntriesCostWhatFewDo_data();
    void manyEntriesCostWhatFewDo();
    void manyBoxesCostWhatFewDo();
};

void CComboBoxTest::cleanup()
{
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
}

void CComboBoxTest::startsAsItsFieldsSay()
{
    QWidget window;
    CComboBox box(&window);
    QCOMPARE(box.objectName(), "CComboBox");
    QCOMPARE(box.windowTitle(), "Form");
    QCOMPARE(box.size(), QSize(400, 300));
    QVERIFY(!box.m_bPressed);
    QCOMPARE(box.m_iBoxWidth, 282);
    QCOMPARE(box.m_iBoxHeight, 28);
    QCOMPARE(box.m_iMenuWidth, 282);
    QCOMPARE(box.m_ptMenuPos, QPoint(0, 0));
    QVERIFY(box.m_bNotOpened);
    QCOMPARE(box.m_fontList, FontCn_12);
    QVERIFY(!box.m_bListMode);
    QCOMPARE(box.m_iMaxItemCount, 5);
    QCOMPARE(box.font(), FontCn_12);
    QCOMPARE(box.styleSheet(), kHover);
    QCOMPARE(box.focusPolicy(), Qt::ClickFocus);
    QCOMPARE(box.m_pMenu->m_eMenuStyle, MenuStyleDark);
    QCOMPARE(box.m_pMenu->m_iWidth, 282);
    QCOMPARE(box.m_pMenu->m_iItemHeight, 30);
    QVERIFY(box.m_pMenu->isHidden());
}

void CComboBoxTest::listLiesInTheTopWindow()
{
    const Stage stage;
    QCOMPARE(stage.Menu()->parentWidget(), stage.window.data());
}

void CComboBoxTest::listLiesInTheNamedPanel()
{
    QWidget window;
    auto* host = new QWidget(&window);
    host->setObjectName("CModuleNewProject");
    auto* inner = new QWidget(host);
    CComboBox box(inner);
    QCOMPARE(box.m_pMenu->parentWidget(), host);
    CComboBox direct(host);
    QCOMPARE(direct.m_pMenu->parentWidget(), host);
}

void CComboBoxTest::fiveEntriesMakeAPlainList()
{
    Stage stage;
    stage.Add(5);
    QVERIFY(!stage.box->m_bListMode);
    QCOMPARE(stage.Menu()->m_pScrollArea, nullptr);
    QCOMPARE(TextsOf(stage.Menu()), QStringList({"0", "1", "2", "3", "4"}));
    QCOMPARE(TextsOf(*stage.box), TextsOf(stage.Menu()));
    // Rows are 2 pixels higher than the box.
    QCOMPARE(stage.Menu()->MenuButton(0)->size(), QSize(200, 30));
    QCOMPARE(stage.Menu()->size(), QSize(202, 5 * 30 + 6 * 4));
    QCOMPARE(stage.box->currentIndex(), 0);
}

void CComboBoxTest::sixthEntryTurnsTheListIntoAScrollingOne()
{
    Stage stage;
    stage.Add(6);
    QVERIFY(stage.box->m_bListMode);
    QVERIFY(stage.Menu()->m_pScrollArea);
    QCOMPARE(stage.Menu()->size(), QSize(202, 158));
    QCOMPARE(TextsOf(stage.Menu()), QStringList({"0", "1", "2", "3", "4", "5"}));
    QCOMPARE(TextsOf(*stage.box), TextsOf(stage.Menu()));
    QCOMPARE(stage.box->m_listItems, TextsOf(stage.Menu()));
    stage.window->show();
    Click(stage.box);
    QTRY_VERIFY(stage.Menu()->m_pScrollArea->verticalScrollBar()->isVisible());
    stage.Add(1);
    QTRY_COMPARE(stage.Menu()->m_pScrollWidget->height(), 7 * 30);
    QTest::mouseClick(stage.Menu()->MenuButton(6), Qt::LeftButton);
    QCOMPARE(stage.box->currentIndex(), 6);
}

void CComboBoxTest::removingFromSixToFiveReturnsToThePlainList()
{
    Stage stage;
    stage.Add(6);
    stage.box->setCurrentIndex(4);
    stage.box->RemoveItem("2");
    QVERIFY(!stage.box->m_bListMode);
    QCOMPARE(stage.Menu()->m_pScrollArea, nullptr);
    QCOMPARE(TextsOf(stage.Menu()), QStringList({"0", "1", "3", "4", "5"}));
    QCOMPARE(TextsOf(*stage.box), TextsOf(stage.Menu()));
    QCOMPARE(stage.box->currentIndex(), 0);
    QCOMPARE(stage.Menu()->size(), QSize(202, 174));
}

void CComboBoxTest::removingFromTheMiddleKeepsBothInStep()
{
    for (const int entries : {4, 9}) {
        Stage stage;
        stage.Add(entries);
        stage.box->RemoveItem("2");
        QCOMPARE(stage.box->m_bListMode, entries == 9);
        QCOMPARE(stage.box->count(), entries - 1);
        QCOMPARE(TextsOf(*stage.box), TextsOf(stage.Menu()));
        QCOMPARE(stage.box->TextAtIndex(2), "3");
        stage.window->show();
        Click(stage.box);
        QTest::mouseClick(stage.Menu()->MenuButton(2), Qt::LeftButton);
        QCOMPARE(stage.box->currentText(), "3");
    }
}

void CComboBoxTest::removingAnUnknownTextDoesNothing()
{
    Stage stage;
    stage.Add(3);
    stage.box->RemoveItem("x");
    stage.box->RemoveItem(QString());
    QCOMPARE(stage.box->count(), 3);
}

void CComboBoxTest::removingTheFirstOfEqualTexts()
{
    Stage stage;
    for (const char* text : {"a", "b", "a"}) {
        stage.box->AddComboItem(text);
    }
    stage.box->RemoveItem("a");
    QCOMPARE(TextsOf(*stage.box), QStringList({"b", "a"}));
    QCOMPARE(TextsOf(stage.Menu()), QStringList({"b", "a"}));
}

void CComboBoxTest::removeAllReturnsToThePlainForm()
{
    Stage stage;
    stage.Add(8);
    stage.box->RemoveAllItems();
    QVERIFY(!stage.box->m_bListMode);
    QCOMPARE(stage.box->count(), 0);
    QCOMPARE(stage.box->currentIndex(), -1);
    QVERIFY(stage.box->m_listItems.isEmpty());
    QCOMPARE(stage.Menu()->MenuButtonCount(), 0);
    QCOMPARE(stage.Menu()->m_pScrollArea, nullptr);
    QCOMPARE(stage.Menu()->size(), QSize(202, 4));
    stage.Add(1);
    QCOMPARE(stage.Menu()->size(), QSize(202, 38));
}

void CComboBoxTest::longEntryWidensTheListUntilAllAreRemoved()
{
    Stage stage;
    const QString text(100, QChar('w'));
    const int width = QFontMetrics(FontCn_12).horizontalAdvance(text) + 24;
    stage.Add(1);
    stage.box->AddComboItem(text);
    QCOMPARE(stage.box->m_iMenuWidth, width);
    QCOMPARE(stage.box->width(), 200);
    QCOMPARE(stage.Menu()->width(), width + 2);
    QCOMPARE(stage.Menu()->MenuButton(0)->width(), width);
    stage.box->RemoveItem(text);
    QCOMPARE(stage.box->m_iMenuWidth, width);
    QCOMPARE(stage.Menu()->width(), width + 2);
    stage.box->RemoveAllItems();
    QCOMPARE(stage.box->m_iMenuWidth, 200);
    QCOMPARE(stage.Menu()->width(), 202);
}

void CComboBoxTest::rebuildTakesTheWidthBack()
{
    Stage stage;
    const QString text(100, QChar('w'));
    stage.box->AddComboItem(text);
    stage.Add(4);
    stage.box->RemoveItem(text);
    stage.Add(1);
    QVERIFY(stage.Menu()->width() > 202);
    stage.Add(1);
    QVERIFY(stage.box->m_bListMode);
    QCOMPARE(stage.Menu()->width(), 202);
}

void CComboBoxTest::boxSizeGoesToTheListToo_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("itemHeight");
    QTest::addColumn<int>("rowHeight");
    QTest::newRow("rows of the box's height") << QSize(120, 30) << 0 << 32;
    QTest::newRow("rows of their own") << QSize(120, 30) << 20 << 22;
}

void CComboBoxTest::boxSizeGoesToTheListToo()
{
    QFETCH(QSize, size);
    QFETCH(int, itemHeight);
    QFETCH(int, rowHeight);
    Stage stage;
    stage.Add(2);
    stage.box->SetBoxSize(size.width(), size.height(), itemHeight);
    QCOMPARE(stage.box->minimumSize(), size);
    QCOMPARE(stage.box->maximumSize(), size);
    QCOMPARE(stage.box->m_iBoxWidth, size.width());
    QCOMPARE(stage.box->m_iMenuWidth, size.width());
    QCOMPARE(stage.box->m_iBoxHeight, size.height());
    QCOMPARE(stage.Menu()->MenuButton(1)->size(), QSize(size.width(), rowHeight));
    for (const int bad : {-1, INT_MIN, INT_MAX}) {
        stage.box->SetBoxSize(bad, bad, bad);
    }
}

void CComboBoxTest::maximumHoldsForLaterAdditions()
{
    Stage stage;
    stage.Add(5);
    stage.box->SetMaxItemCount(3);
    QVERIFY(!stage.box->m_bListMode);
    stage.Add(1);
    QVERIFY(stage.box->m_bListMode);
    QCOMPARE(TextsOf(stage.Menu()), QStringList({"0", "1", "2", "3", "4", "5"}));
    stage.box->RemoveItem("0");
    stage.box->RemoveItem("1");
    QVERIFY(stage.box->m_bListMode);
    stage.box->RemoveItem("2");
    QVERIFY(!stage.box->m_bListMode);
}

void CComboBoxTest::maximumOfNoneScrollsAtOnce_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, -1, INT_MIN}) {
        QTest::addRow("%d", count) << count;
    }
}

void CComboBoxTest::maximumOfNoneScrollsAtOnce()
{
    QFETCH(int, count);
    Stage stage;
    stage.box->SetMaxItemCount(count);
    stage.Add(1);
    QVERIFY(stage.box->m_bListMode);
    QCOMPARE(stage.box->count(), 1);
    stage.box->RemoveItem("0");
    QCOMPARE(stage.box->count(), 0);
    QCOMPARE(stage.Menu()->MenuButtonCount(), 0);
    stage.Add(2);
    QCOMPARE(TextsOf(stage.Menu()), TextsOf(*stage.box));
}

void CComboBoxTest::indexesOutOfRangeGiveNothing_data()
{
    QTest::addColumn<int>("index");
    for (const int index : {-1, 2, INT_MIN, INT_MAX}) {
        QTest::addRow("%d", index) << index;
    }
}

void CComboBoxTest::indexesOutOfRangeGiveNothing()
{
    QFETCH(int, index);
    Stage stage;
    stage.Add(2);
    stage.box->AddItemValue("v0");
    stage.box->AddItemValue("v1");
    QCOMPARE(stage.box->GetItemValue(1), "v1");
    QCOMPARE(stage.box->TextAtIndex(1), "1");
    QCOMPARE(stage.box->TextAtIndex(index), QString());
    QCOMPARE(stage.box->GetItemValue(index), QString());
}

void CComboBoxTest::containedIsCaseSensitive()
{
    Stage stage;
    stage.box->AddComboItem("Steel");
    QVERIFY(stage.box->IsItemContained("Steel"));
    QVERIFY(!stage.box->IsItemContained("steel"));
    QVERIFY(!stage.box->IsItemContained(QString()));
}

void CComboBoxTest::listFontLeavesTheBoxItsOwn()
{
    Stage stage;
    stage.Add(1);
    stage.box->SetComboListFont(FontCnBold_16);
    QCOMPARE(stage.box->m_fontList, FontCnBold_16);
    QCOMPARE(stage.Menu()->MenuButton(0)->font(), FontCnBold_16);
    QCOMPARE(stage.box->font(), FontCn_12);
    stage.box->AddComboItem(QString(200, QChar('i')));
    QCOMPARE(stage.box->m_iMenuWidth,
             qMax(200, QFontMetrics(FontCnBold_16).horizontalAdvance(QString(200, QChar('i'))) + 24));
}

void CComboBoxTest::alignmentMakesTheBoxEditableForTheEyeOnly()
{
    Stage stage;
    stage.Add(2);
    stage.box->SetTextAlignment(Qt::AlignCenter);
    QVERIFY(stage.box->isEditable());
    QCOMPARE(stage.box->lineEdit()->alignment(), Qt::AlignCenter);
    QCOMPARE(stage.box->lineEdit()->font(), stage.box->font());
    QVERIFY(stage.box->lineEdit()->isReadOnly());
    QVERIFY(stage.box->lineEdit()->testAttribute(Qt::WA_TransparentForMouseEvents));
    QVERIFY(stage.Menu()->MenuButton(1)->styleSheet().contains("text-align:center"));
    stage.window->show();
    QTest::mouseClick(stage.window->windowHandle(), Qt::LeftButton, {}, QPoint(30 + 5, 40 + 6) + kInside);
    QVERIFY(stage.Menu()->isVisible());
    QTest::keyClick(stage.box, Qt::Key_Return);
    QTest::keyClicks(stage.box, "abc");
    QCOMPARE(stage.box->count(), 2);
    stage.Menu()->hide();
}

void CComboBoxTest::clickOpensTheListUnderTheBox()
{
    Stage stage;
    stage.Add(3);
    stage.window->show();
    stage.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(stage.window));
    QTest::mousePress(stage.window->windowHandle(), Qt::LeftButton, {}, QPoint(35, 46) + kInside);
    QVERIFY(stage.box->m_bPressed);
    QVERIFY(!stage.Menu()->isVisible());
    QTest::mouseRelease(stage.window->windowHandle(), Qt::LeftButton, {}, QPoint(35, 46) + kInside);
    QVERIFY(!stage.box->m_bPressed);
    QVERIFY(stage.Menu()->isVisible());
    QCOMPARE(stage.Menu()->pos(), QPoint(30 + 5, 40 + 6 + 28 + 2));
    QCOMPARE(stage.box->m_ptMenuPos, stage.Menu()->pos());
    QVERIFY(!stage.box->m_bNotOpened);
    QVERIFY(stage.box->hasFocus());
    QCOMPARE(stage.box->styleSheet(), kOpen);
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, stage.Menu());
    QCOMPARE(stage.window->children().last(), stage.Menu());
    stage.Menu()->hide();
}

void CComboBoxTest::secondClickClosesTheListAndTheBoxStaysMarked()
{
    Stage stage;
    stage.Add(3);
    stage.window->show();
    Click(stage.box);
    QVERIFY(stage.Menu()->isVisible());
    Click(stage.box);
    QVERIFY(!stage.Menu()->isVisible());
    QCOMPARE(stage.box->styleSheet(), kOpen);
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
}

void CComboBoxTest::pressAndReleaseCountStrictlyInside_data()
{
    QTest::addColumn<QPoint>("place");
    QTest::addColumn<bool>("inside");
    QTest::newRow("first pixel inside") << QPoint(1, 1) << true;
    QTest::newRow("last pixel inside") << QPoint(199, 27) << true;
    QTest::newRow("left edge") << QPoint(0, 14) << false;
    QTest::newRow("top edge") << QPoint(14, 0) << false;
    QTest::newRow("right") << QPoint(200, 14) << false;
    QTest::newRow("below") << QPoint(14, 28) << false;
    QTest::newRow("far off") << QPoint(-50, -50) << false;
}

void CComboBoxTest::pressAndReleaseCountStrictlyInside()
{
    QFETCH(QPoint, place);
    QFETCH(bool, inside);
    Stage stage;
    stage.window->show();
    Mouse(stage.box, QEvent::MouseButtonPress, place);
    QCOMPARE(stage.box->m_bPressed, inside);
    stage.box->m_bPressed = true;
    Mouse(stage.box, QEvent::MouseButtonRelease, place);
    QCOMPARE(stage.Menu()->isVisible(), inside);
    QCOMPARE(stage.box->m_bPressed, !inside);
    stage.Menu()->hide();
}

void CComboBoxTest::releaseOutsideLeavesThePressPending()
{
    Stage stage;
    stage.window->show();
    Mouse(stage.box, QEvent::MouseButtonPress, kInside);
    Mouse(stage.box, QEvent::MouseButtonRelease, QPoint(-1, -1));
    QVERIFY(stage.box->m_bPressed);
    QVERIFY(!stage.Menu()->isVisible());
    Mouse(stage.box, QEvent::MouseButtonRelease, kInside);
    QVERIFY(stage.Menu()->isVisible());
    stage.Menu()->hide();
    // Without a press a release is nothing.
    Mouse(stage.box, QEvent::MouseButtonRelease, kInside);
    QVERIFY(!stage.Menu()->isVisible());
}

void CComboBoxTest::otherButtonsDoNothing()
{
    Stage stage;
    stage.window->show();
    Mouse(stage.box, QEvent::MouseButtonPress, kInside, Qt::RightButton);
    QVERIFY(!stage.box->m_bPressed);
    stage.box->m_bPressed = true;
    Mouse(stage.box, QEvent::MouseButtonRelease, kInside, Qt::RightButton);
    QVERIFY(!stage.Menu()->isVisible());
}

void CComboBoxTest::theToolkitsPopUpNeverOpens_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("modifier");
    QTest::newRow("mouse") << 0 << 0;
    QTest::newRow("F4") << int(Qt::Key_F4) << 0;
    QTest::newRow("space") << int(Qt::Key_Space) << 0;
    QTest::newRow("Alt+Down") << int(Qt::Key_Down) << int(Qt::AltModifier);
}

void CComboBoxTest::theToolkitsPopUpNeverOpens()
{
    QFETCH(int, key);
    QFETCH(int, modifier);
    Stage stage;
    stage.Add(3);
    stage.window->show();
    if (key == 0) {
        QTest::mouseClick(stage.box, Qt::LeftButton, {}, kInside);
    } else {
        QTest::keyClick(stage.box, Qt::Key(key), Qt::KeyboardModifiers(modifier));
    }
    QVERIFY(!stage.box->view()->isVisible());
    QCOMPARE(QApplication::activePopupWidget(), nullptr);
    QVERIFY(stage.Menu()->isVisible());
    stage.Menu()->hide();
}

void CComboBoxTest::changeOfTheBoxsLookLeavesTheToolkitsPopUpAlone()
{
    Stage stage;
    stage.Add(5);
    stage.window->show();
    StyleChangeCounter styleChanges;
    stage.box->view()->installEventFilter(&styleChanges);
    stage.box->view()->window()->installEventFilter(&styleChanges);

    stage.box->showPopup();
    QCOMPARE(stage.box->styleSheet(), kOpen);
    stage.box->hidePopup();
    QCOMPARE(stage.box->styleSheet(), kRest);
    Send(stage.box, QEvent::Enter);
    QCOMPARE(stage.box->styleSheet(), kEnter);
    Send(stage.box, QEvent::Leave);
    QCOMPARE(stage.box->styleSheet(), kRest);
    QCOMPARE(styleChanges.Count(), 0);

    // Whatever asks the box for its view still finds the entries and the box's font.
    QCOMPARE(stage.box->view()->model(), stage.box->model());
    QCOMPARE(stage.box->view()->font(), stage.box->font());
}

void CComboBoxTest::theToolkitsPopUpGoesWithTheBox()
{
    Stage stage;
    const QPointer<QWidget> popUp = stage.box->view()->window();
    QVERIFY(popUp != stage.window);
    delete stage.box;
    QVERIFY(popUp.isNull());
}

void CComboBoxTest::clickOnARowChoosesIt()
{
    Stage stage;
    stage.Add(4);
    stage.window->show();
    stage.window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(stage.window));
    QSignalSpy spy(stage.box, &QComboBox::currentIndexChanged);
    Click(stage.box);
    QPushButton* row = stage.Menu()->MenuButton(2);
    QTest::mouseClick(stage.window->windowHandle(), Qt::LeftButton, {},
                      row->mapTo(stage.window.data(), row->rect().center()));
    QCOMPARE(stage.box->currentIndex(), 2);
    QCOMPARE(spy.size(), 1);
    QVERIFY(!stage.Menu()->isVisible());
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
}

void CComboBoxTest::senderThatIsNoRowChoosesNothing()
{
    Stage stage;
    stage.Add(2);
    stage.window->show();
    Click(stage.box);
    QPushButton stranger;
    connect(&stranger, SIGNAL(clicked()), stage.box, SLOT(SlotChangeItem()));
    stranger.click();
    QCOMPARE(stage.box->currentIndex(), -1);
    QVERIFY(!stage.Menu()->isVisible());
}

void CComboBoxTest::openingTheSecondBoxClosesTheFirst()
{
    Stage first;
    Stage second;
    first.window->show();
    second.window->show();
    Click(first.box);
    Click(second.box);
    QVERIFY(!first.Menu()->isVisible());
    QVERIFY(second.Menu()->isVisible());
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, second.Menu());
    second.Menu()->hide();
}

void CComboBoxTest::focusLossClosesTheList_data()
{
    QTest::addColumn<bool>("ofTheList");
    QTest::newRow("of the box") << false;
    QTest::newRow("of the list") << true;
}

void CComboBoxTest::focusLossClosesTheList()
{
    QFETCH(bool, ofTheList);
    Stage stage;
    stage.Add(3);
    stage.window->show();
    Click(stage.box);
    QCOMPARE(stage.window->focusWidget(), stage.box.data());
    Send(ofTheList ? static_cast<QObject*>(stage.Menu()) : stage.box, QEvent::FocusOut);
    QVERIFY(!stage.Menu()->isVisible());
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
    QCOMPARE(stage.box->styleSheet(), kRest);
    QCOMPARE(stage.window->focusWidget(), stage.window.data());
}

void CComboBoxTest::focusLossOverTheScrollBarKeepsTheListOpen()
{
    Stage stage;
    stage.Add(9);
    stage.window->show();
    Click(stage.box);
    QScrollBar* bar = stage.Menu()->m_pScrollArea->verticalScrollBar();
    QTRY_VERIFY(bar->isVisible());
    const QPoint before = QCursor::pos();
    QCursor::setPos(bar->mapToGlobal(bar->rect().center()));
    Send(stage.box, QEvent::FocusOut);
    QVERIFY(stage.Menu()->isVisible());
    QCOMPARE(stage.window->focusWidget(), stage.box.data());
    QCOMPARE(stage.box->styleSheet(), kOpen);
    Send(stage.Menu(), QEvent::FocusOut);
    QVERIFY(stage.Menu()->isVisible());
    QCursor::setPos(bar->mapToGlobal(bar->rect().center()) - QPoint(20, 0));
    Send(stage.box, QEvent::FocusOut);
    QVERIFY(!stage.Menu()->isVisible());
    // A closed list keeps nothing.
    QCursor::setPos(bar->mapToGlobal(bar->rect().center()));
    stage.box->setFocus();
    Send(stage.box, QEvent::FocusOut);
    QCOMPARE(stage.window->focusWidget(), stage.window.data());
    QCursor::setPos(before);
}

void CComboBoxTest::hidePopupClosesTheList()
{
    Stage stage;
    stage.Add(2);
    stage.window->show();
    stage.box->hidePopup();
    QCOMPARE(stage.box->styleSheet(), kHover);
    stage.box->showPopup();
    QVERIFY(stage.Menu()->isVisible());
    stage.box->hidePopup();
    QVERIFY(!stage.Menu()->isVisible());
    QCOMPARE(stage.box->styleSheet(), kRest);
    QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
}

void CComboBoxTest::hiddenBoxClosesItsList()
{
    // A host may change the page while the list is open.
    for (const bool inactive : {false, true}) {
        Stage stage;
        stage.Add(9);
        stage.window->show();
        Click(stage.box);
        QVERIFY(stage.Menu()->isVisible());
        if (inactive) {
            QApplication::setActiveWindow(nullptr);
        }
        stage.panel->hide();
        QVERIFY(!stage.Menu()->isVisible());
        QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
    }
}

void CComboBoxTest::hoverFollowsTheMouse()
{
    Stage stage;
    stage.window->show();
    Send(stage.box, QEvent::Enter);
    QCOMPARE(stage.box->styleSheet(), kEnter);
    Send(stage.box, QEvent::Leave);
    QCOMPARE(stage.box->styleSheet(), kRest);
    Click(stage.box);
    Send(stage.box, QEvent::Leave);
    QCOMPARE(stage.box->styleSheet(), kOpen);
    // The list's own mouse is none of the box's.
    Send(stage.Menu(), QEvent::Enter);
    QCOMPARE(stage.box->styleSheet(), kOpen);
    stage.Menu()->hide();
}

void CComboBoxTest::disabledBoxDoesNotHover()
{
    Stage stage;
    stage.window->show();
    stage.box->setEnabled(false);
    Send(stage.box, QEvent::Enter);
    QCOMPARE(stage.box->styleSheet(), kHover);
    Click(stage.box);
    QVERIFY(!stage.Menu()->isVisible());
}

void CComboBoxTest::listOutlivesTheBox()
{
    Stage stage;
    stage.Add(2);
    const QPointer<CVelmarMenu> menu(stage.Menu());
    delete stage.box;
    QVERIFY(menu);
    menu->MenuButton(0)->click();
    delete stage.window;
    QVERIFY(menu.isNull());
}

void CComboBoxTest::boxDeletedWhileItsListIsOpen()
{
    for (const int entries : {2, 8}) {
        Stage stage;
        stage.Add(entries);
        stage.window->show();
        Click(stage.box);
        const QPointer<CVelmarMenu> menu(stage.Menu());
        QVERIFY(menu->isVisible());
        delete stage.box;
        QVERIFY(menu && !menu->isVisible());
        QCOMPARE(CVelmarMenu::m_pCurrentShowMenu, nullptr);
    }
}

void CComboBoxTest::windowOfTheListDeletedFirst()
{
    auto* other = new QWidget;
    Stage stage;
    stage.Add(2);
    stage.box->SetMenuParent(other);
    other->show();
    stage.window->show();
    Click(stage.box);
    QVERIFY(stage.Menu()->isVisible());
    delete other;
    QCOMPARE(stage.Menu(), nullptr);
    // Everything still works on the box alone.
    Click(stage.box);
    stage.box->showPopup();
    Send(stage.box, QEvent::Enter);
    Send(stage.box, QEvent::Leave);
    Send(stage.box, QEvent::FocusOut);
    QCOMPARE(stage.box->styleSheet(), kRest);
    stage.Add(8);
    QVERIFY(stage.box->m_bListMode);
    stage.box->RemoveItem("3");
    stage.box->SetTextAlignment(Qt::AlignLeft);
    stage.box->SetComboListFont(FontCn_16);
    stage.box->SetMenuParent(stage.window);
    stage.box->SetBoxSize(100, 20, 0);
    QMetaObject::invokeMethod(stage.box, "SlotChangeItem");
    QCOMPARE(stage.box->count(), 9);
    stage.box->RemoveAllItems();
    QCOMPARE(stage.box->count(), 0);
}

void CComboBoxTest::boxEndedLaterFromItsOwnChoice()
{
    Stage stage;
    stage.Add(3);
    stage.window->show();
    Click(stage.box);
    connect(stage.box, &QComboBox::currentIndexChanged, stage.box, &QObject::deleteLater);
    QTest::mouseClick(stage.Menu()->MenuButton(1), Qt::LeftButton);
    QTRY_VERIFY(stage.box.isNull());
}

void CComboBoxTest::boxDeletedFromTheClickOfItsRow()
{
    for (const bool first : {false, true}) {
        Stage stage;
        stage.Add(3);
        stage.window->show();
        Click(stage.box);
        CComboBox* box = stage.box;
        QPushButton* row = stage.Menu()->MenuButton(1);
        if (first) {
            row->disconnect(box);
        }
        connect(row, &QPushButton::clicked, this, [box] { delete box; });
        const QPointer<CVelmarMenu> menu(stage.Menu());
        QTest::mouseClick(row, Qt::LeftButton);
        QVERIFY(stage.box.isNull());
        QVERIFY(menu && !menu->isVisible());
    }
}

void CComboBoxTest::windowOfTheListDeletedAtAChoice()
{
    auto* other = new QWidget;
    Stage stage;
    stage.Add(3);
    stage.box->SetMenuParent(other);
    other->show();
    stage.window->show();
    Click(stage.box);
    connect(stage.box, &QComboBox::currentIndexChanged, this, [other] { delete other; });
    QTest::mouseClick(stage.Menu()->MenuButton(1), Qt::LeftButton);
    QCOMPARE(stage.Menu(), nullptr);
    QCOMPARE(stage.box->currentIndex(), 1);
}

void CComboBoxTest::boxWithoutParentFindsAWindowWhenItOpens()
{
    auto box = std::make_unique<CComboBox>(nullptr);
    box->AddComboItem("a");
    box->SetBoxSize(100, 20, 0);
    box->show();
    Click(box.get(), QPoint(5, 5));
    QVERIFY(box->m_pMenu->isVisible());
    Click(box.get(), QPoint(5, 5));

    QWidget window;
    window.resize(300, 300);
    box->setParent(&window);
    box->move(10, 20);
    box->show();
    window.show();
    Click(box.get(), QPoint(5, 5));
    QCOMPARE(box->m_pMenu->parentWidget(), &window);
    QCOMPARE(box->m_pMenu->pos(), QPoint(10, 42));
    QVERIFY(box->m_pMenu->isVisible());
    box.reset();
    // A box that never had a window takes its list with it.
    box = std::make_unique<CComboBox>(nullptr);
    const QPointer<CVelmarMenu> menu(box->m_pMenu);
    box.reset();
    QVERIFY(menu.isNull());
}

void CComboBoxTest::listCanMoveToAnotherWindow()
{
    QWidget other;
    Stage stage;
    stage.box->SetMenuParent(stage.panel);
    QCOMPARE(stage.Menu()->parentWidget(), stage.panel.data());
    stage.window->show();
    Click(stage.box);
    // In the panel's own coordinates.
    QCOMPARE(stage.Menu()->pos(), QPoint(5, 6 + 28 + 2));
    stage.box->SetMenuParent(&other);
    stage.box->SetMenuParent(nullptr);
    QCOMPARE(stage.Menu()->parentWidget(), nullptr);
    const QPointer<CVelmarMenu> menu(stage.Menu());
    Click(stage.box);
    Send(stage.box, QEvent::FocusOut);
    delete stage.box;
    QVERIFY(menu.isNull());
}

void CComboBoxTest::oddTextsAreKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("line feeds") << "one\ntwo\n\nthree";
    QTest::newRow("long") << QString(10000, QChar('w'));
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d");
}

void CComboBoxTest::oddTextsAreKept()
{
    QFETCH(QString, text);
    Stage stage;
    for (int entry = 0; entry < 7; ++entry) {
        stage.box->AddComboItem(text);
    }
    stage.window->show();
    Click(stage.box);
    QCOMPARE(stage.box->TextAtIndex(6), text);
    QCOMPARE(stage.box->itemText(6), text);
    QVERIFY(stage.box->IsItemContained(text));
    QCOMPARE(stage.Menu()->height(), 158);
    QVERIFY(!stage.window->grab().isNull());
    stage.box->RemoveItem(text);
    QCOMPARE(stage.box->count(), 6);
    stage.Menu()->hide();
}

void CComboBoxTest::openBoxIsDarkWithABlueBorder()
{
    Stage stage;
    stage.Add(1);
    stage.window->show();
    QImage image = stage.box->grab().toImage();
    QCOMPARE(image.pixelColor(100, 0), QColor("#000000"));
    QCOMPARE(image.pixelColor(100, 14), QColor("#1d1c1f"));
    Click(stage.box);
    image = stage.box->grab().toImage();
    QCOMPARE(image.pixelColor(100, 0), QColor("#0071bc"));
    QCOMPARE(image.pixelColor(100, 1), QColor("#0071bc"));
    QCOMPARE(image.pixelColor(100, 14), QColor("#1d1c1f"));
    QTRY_COMPARE(stage.Menu()->grab().toImage().pixelColor(180, 19), QColor("#212024"));
    stage.Menu()->hide();
}

void CComboBoxTest::entriesAddedToAnOpenListJoinIt()
{
    Stage stage;
    stage.Add(4);
    stage.window->show();
    Click(stage.box);
    // Over the maximum: the open list turns into a scrolling one.
    for (int entry = 4; entry < 9; ++entry) {
        stage.Add(1);
        QTRY_COMPARE(stage.Menu()->MenuButton(entry)->y(), entry < 5 ? 4 + entry * 34 : entry * 30);
    }
    QVERIFY(stage.Menu()->isVisible());
    QCOMPARE(stage.Menu()->size(), QSize(202, 158));
    stage.box->AddComboItem(QString(100, QChar('w')));
    QTRY_COMPARE(stage.Menu()->MenuButton(0)->width(), stage.box->m_iMenuWidth);
    QVERIFY(stage.box->m_iMenuWidth > 200);
    QCOMPARE(stage.Menu()->MenuButton(9)->geometry(), QRect(0, 270, stage.box->m_iMenuWidth, 30));
    stage.Menu()->hide();
}

void CComboBoxTest::manyEntriesCostWhatFewDo_data()
{
    QTest::addColumn<bool>("open");
    QTest::newRow("closed") << false;
    QTest::newRow("open, one in each turn of the event loop") << true;
}

void CComboBoxTest::manyEntriesCostWhatFewDo()
{
    QFETCH(bool, open);
    const auto perEntry = [open](int entries) {
        Stage stage;
        if (open) {
            stage.Add(1);
            stage.window->show();
            Click(stage.box);
        }
        const ProcessorTime time;
        for (int entry = 0; entry < entries; ++entry) {
            stage.Add(1);
            if (open) {
                QCoreApplication::processEvents();
            }
        }
        return time.Microseconds() / entries;
    };
    const double few = LeastOfFive([&perEntry] { return perEntry(100); });
    // The event loop's turns take most of their time for painting, so fewer entries have to do.
    const int entries = open ? kMany / 5 : kMany;
    const double many = perEntry(entries);
    qInfo("%.1f us per entry at 100, %.1f at %d: %.2f", few, many, entries, many / few);
    // Growth with the number of entries would be a factor of twenty or a hundred.
    QVERIFY(many < kGrowthAllowed * few);
}

void CComboBoxTest::manyBoxesCostWhatFewDo()
{
    // A form makes all of its boxes in one turn of the event loop, and the posted events of each wait for its end.
    const auto perBox = [](int boxes) {
        QWidget form;
        const ProcessorTime time;
        for (int made = 0; made < boxes; ++made) {
            auto* box = new CComboBox(&form);
            box->addItems({"1", "2", "3", "4", "5", "6", "7"});
        }
        return time.Microseconds() / boxes;
    };
    const double few = LeastOfFive([&perBox] { return perBox(20); });
    const double many = perBox(1000);
    qInfo("%.1f us per box at 20, %.1f at 1000: %.2f", few, many, many / few);
    QVERIFY(many < kGrowthAllowed * few);
}

CUSTOMCONTROLS_TEST_MAIN(CComboBoxTest)

#include "CComboBoxTest.moc"
