#include <CustomControls/toolbar/CToolBarItem.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/toolbar/CToolButton.h>
#include <CustomControls/toolbar/CToolButtonVertical.h>

#include <tests/support/ProcessorTime.h>
#include <tests/support/TestMain.h>

#include <QMainWindow>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace {

const QString kIcon = QStringLiteral(":/icon/toolbtn/icon_scanning_checked.png"); // 24 by 24
const QString kNone = QStringLiteral(":/none.png");

QString Sheet(const char* text)
{
    return QString::fromLatin1(text);
}

// A kind of button per letter: large or vertical.
QString Kinds(const QList<CToolButton*>& buttons)
{
    QString kinds;
    for (CToolButton* button : buttons) {
        kinds += button->IsVerticalBtn() ? QLatin1Char('v') : QLatin1Char('L');
    }
    return kinds;
}

QString Names(const QList<CToolButton*>& buttons)
{
    QStringList names;
    for (const CToolButton* button : buttons) {
        names << button->objectName();
    }
    return names.join(QLatin1Char(' '));
}

int Advance(const QString& text)
{
    return QFontMetrics(FontCnMedium_13).horizontalAdvance(text);
}

} // namespace

class CToolBarItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void newBlockIsSetUp();
    void overflowButtonIsDressed();
    void addItemFillsThePendingLists();
    void highlightIsKeptUnderItsIndex();
    void unequalGroupIsIgnored_data();
    void unequalGroupIsIgnored();
    void groupIsKeptWithItsStart();
    void emptyDescriptionMakesNothing();
    void leadingSpacerIsFiveWide();
    void unequalListsBuildAndClearNothing();
    void buttonsBearWhatWasDescribed();
    void missingFilesMakeButtonsWithoutPicture();
    void badHighlightIsHarmless();
    void groupsAreWalked_data();
    void groupsAreWalked();
    void stackHoldsItsRows_data();
    void stackHoldsItsRows();
    void groupHasOneWidth();
    void groupTakesNoPartInTheBlocksWidth();
    void widthIsTheWidestLine();
    void widthIsCappedOutsideChinese();
    void chineseCaptionsKeepOneLine();
    void linesAreCountedOutsideChinese();
    void lastWordGoesBelow_data();
    void lastWordGoesBelow();
    void blockWidthCountsAllButtons();
    void secondCallAppendsAndAppliesToAll();
    void descriptionIsEmptyAfterwards();
    void unifyTakesTheLargest();
    void unifyLeavesSingleLinesAlone();
    void showUnifiesTheBlocksOfAMainWindow();
    void showLeavesASingleBlockAlone();
    void showFindsBlocksDeepInTheWindow();
    void linesThatChangeAmidTheShowReachTheOthers();
    void showingAgainUnifiesAnew();
    void hiddenBlocksThatArriveCount();
    void blockFilledAmidTheShowIsUnified();
    void emptyAndLongCaptionsAreHarmless();

    void plainButtonsFollowNoRule();
    void firstCheckHoldsItsBlock();
    void secondCheckReleasesTheOldBlock();
    void secondCheckInTheSameBlockKeepsIt();
    void clickingTheCheckedToolReleasesIt();
    void uncheckingAnotherToolChangesNothing();
    void clearingLeavesTheBlockBehind();
    void firstCheckRecordsEvenAnUncheckedButton();
    void toolsWithoutRoomStayHiddenWhateverIsChecked();
    void deletedButtonIsForgotten();
    void deletedBlockIsForgotten();
    void blockDeletedAfterClearingIsForgotten();
    void adoptedButtonOutlivesItsBlock();
    void deletedButtonLeavesTheList();
    void blockMayDieInItsButtonsClick();
    void manyToolsCostWhatFewDo();

private:
    CToolBarItem* MakeBlock(QWidget* parent, const QStringList& captions);

    QList<QPointer<CToolBarItem>> m_blocks;
};

void CToolBarItemTest::init()
{
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(true);
}

void CToolBarItemTest::cleanup()
{
    for (const QPointer<CToolBarItem>& block : std::as_const(m_blocks)) {
        delete block;
    }
    m_blocks.clear();
    QVERIFY(!CToolBar::m_pBtnChecked);
    QVERIFY(!CToolBarItem::m_pToolBarChecked);
    QVERIFY(CToolBarItem::m_strlistText.isEmpty());
}

CToolBarItem* CToolBarItemTest::MakeBlock(QWidget* parent, const QStringList& captions)
{
    auto* block = new CToolBarItem(QStringLiteral("Block"), parent);
    for (const QString& caption : captions) {
        block->AddItem(kIcon, caption, 0, QString());
    }
    for (CToolButton* button : block->CreateToolBlock(false)) {
        button->setCheckable(true);
    }
    m_blocks.append(block);
    return block;
}

void CToolBarItemTest::newBlockIsSetUp()
{
    const CToolBarItem block(QStringLiteral("加工"), nullptr);
    QCOMPARE(block.m_eMode, CToolBar::ToolBarModeBlock);
    QCOMPARE(block.objectName(), QStringLiteral("加工"));
    QCOMPARE(block.property("GroupName").toString(), QStringLiteral("加工"));
    QVERIFY(!block.isMovable());
    QVERIFY(!block.isFloatable());
    QCOMPARE(block.orientation(), Qt::Horizontal);
    QCOMPARE(block.allowedAreas(), Qt::ToolBarAreas(Qt::TopToolBarArea));
    QCOMPARE(block.font().pixelSize(), FontCnMedium_13.pixelSize());
    QCOMPARE(block.focusPolicy(), Qt::NoFocus);
    QCOMPARE(block.contentsMargins(), QMargins(0, 0, 0, 14));
    QCOMPARE(block.m_nBlockWidth, 0);
    QCOMPARE(block.sizeHint().height(), 78);
    QCOMPARE(block.styleSheet(),
             Sheet("QToolButton{background-color: transparent; border: none;  padding: 2px 7px 2px 7px;"
                   "border-radius:2px;}QToolButton::hover{background-color:rgb(61,61,61);}QToolButton::pressed{"
                   "background-color:black;}QToolButton::checked{background-color:black;}QToolButton::menu-button{"
                   "background-color:transparent;}"));
}

void CToolBarItemTest::overflowButtonIsDressed()
{
    const CToolBarItem block(QStringLiteral("Edit"), nullptr);
    QVERIFY(block.m_pExtensionBtn);
    QCOMPARE(block.m_pExtensionBtn->objectName(), QStringLiteral("qt_toolbar_ext_button"));
    QCOMPARE(block.m_pExtensionBtn->iconSize(), QSize(16, 16));
    QCOMPARE(block.m_pExtensionBtn->minimumHeight(), 56);
    QCOMPARE(block.m_pExtensionBtn->maximumHeight(), 56);
    QCOMPARE(block.m_pExtensionBtn->styleSheet(),
             Sheet("QToolButton{background-color:transparent;border:none;background-image:url(:/icon/"
                   "ico_ttob_expand2.png);background-repeat:no-repeat;background-position:center;}QToolButton::hover{"
                   "background-color:rgba(73, 135, 89, 51);}QToolButton::checked{background-image:url(:/icon/"
                   "ico_ttob_expand2.png);}"));
}

void CToolBarItemTest::addItemFillsThePendingLists()
{
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItem(QStringLiteral("a"), QStringLiteral("A"), 7, QStringLiteral("a_off"));
    block.AddItem(QStringLiteral("b"), QStringLiteral("B"), -1, QString());
    QCOMPARE(CToolBarItem::m_strlistIconPath, QStringList({"a", "b"}));
    QCOMPARE(CToolBarItem::m_strlistIconPathDisabled, QStringList({"a_off", "b"}));
    QCOMPARE(CToolBarItem::m_strlistText, QStringList({"A", "B"}));
    QCOMPARE(CToolBarItem::m_vecType, QList<int>({7, -1}));
    QVERIFY(CToolBarItem::m_hashHighlightColorIndex.isEmpty());
    QVERIFY(CToolBarItem::m_vecVerticalGroupIndex.isEmpty());
    block.CreateToolBlock(false);
}

void CToolBarItemTest::highlightIsKeptUnderItsIndex()
{
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItem(kIcon, QStringLiteral("A"), 0, QString());
    block.AddItemHighlight(kIcon, QStringLiteral("B"), 0, QString(), QStringLiteral("#ffcc00"));
    block.AddItemVertical({kIcon}, {QStringLiteral("C")}, {0}, {QString()});
    block.AddItemHighlight(kIcon, QStringLiteral("D"), 0, QString(), QStringLiteral("red"));
    QCOMPARE(CToolBarItem::m_hashHighlightColorIndex.value(1), QStringLiteral("#ffcc00"));
    QCOMPARE(CToolBarItem::m_hashHighlightColorIndex.value(3), QStringLiteral("red"));
    QCOMPARE(CToolBarItem::m_hashHighlightColorIndex.size(), 2);
    const QList<CToolButton*> buttons = block.CreateToolBlock(false);
    QVERIFY(!buttons.at(0)->property("highlight").isValid());
    QCOMPARE(buttons.at(1)->property("highlight").toString(), QStringLiteral("#ffcc00"));
    QVERIFY(!buttons.at(2)->property("highlight").isValid());
    QCOMPARE(buttons.at(3)->property("highlight").toString(), QStringLiteral("red"));
}

void CToolBarItemTest::unequalGroupIsIgnored_data()
{
    QTest::addColumn<int>("longList");
    QTest::newRow("icons") << 0;
    QTest::newRow("captions") << 1;
    QTest::newRow("types") << 2;
    QTest::newRow("disabled icons") << 3;
}

void CToolBarItemTest::unequalGroupIsIgnored()
{
    QFETCH(int, longList);
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    const auto strings = [&](int list) { return QStringList(list == longList ? 3 : 2, QStringLiteral("a")); };
    block.AddItemVertical(strings(0), strings(1), QList<int>(longList == 2 ? 3 : 2, 0), strings(3));
    QVERIFY(CToolBarItem::m_strlistText.isEmpty());
    QVERIFY(CToolBarItem::m_strlistIconPath.isEmpty());
    QVERIFY(CToolBarItem::m_vecVerticalGroupIndex.isEmpty());
}

void CToolBarItemTest::groupIsKeptWithItsStart()
{
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItem(kIcon, QStringLiteral("A"), 0, QString());
    block.AddItemVertical({kIcon, kNone}, {QStringLiteral("B"), QStringLiteral("C")}, {1, 2}, {QString(), kIcon});
    QCOMPARE(CToolBarItem::m_vecVerticalGroupIndex.size(), 1);
    QCOMPARE(CToolBarItem::m_vecVerticalGroupIndex.first(), std::make_pair(1, 2));
    QCOMPARE(CToolBarItem::m_strlistText, QStringList({"A", "B", "C"}));
    QCOMPARE(CToolBarItem::m_strlistIconPathDisabled, QStringList({kIcon, kIcon, kIcon}));
    QCOMPARE(CToolBarItem::m_vecType, QList<int>({0, 1, 2}));
    block.CreateToolBlock(false);
}

void CToolBarItemTest::emptyDescriptionMakesNothing()
{
    for (const bool chinese : {true, false}) {
        CorvaneTextHelper::instance()->SetAppInChineseEnvironment(chinese);
        CToolBarItem plain(QStringLiteral("Edit"), nullptr);
        QVERIFY(plain.CreateToolBlock(false).isEmpty());
        QCOMPARE(plain.m_nBlockWidth, 8);
        QVERIFY(plain.actions().isEmpty());
        CToolBarItem spaced(QStringLiteral("Edit"), nullptr);
        QVERIFY(spaced.CreateToolBlock(true).isEmpty());
        QCOMPARE(spaced.m_nBlockWidth, 15);
    }
}

void CToolBarItemTest::leadingSpacerIsFiveWide()
{
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItem(kIcon, QStringLiteral("A"), 0, QString());
    const QList<CToolButton*> buttons = block.CreateToolBlock(true);
    QCOMPARE(block.actions().size(), 2);
    const QWidget* spacer = block.widgetForAction(block.actions().at(0));
    QVERIFY(spacer);
    QCOMPARE(spacer->minimumWidth(), 5);
    QCOMPARE(spacer->maximumWidth(), 5);
    QCOMPARE(block.widgetForAction(block.actions().at(1)), static_cast<QWidget*>(buttons.first()));
}

void CToolBarItemTest::unequalListsBuildAndClearNothing()
{
    CToolBarItem* block = MakeBlock(nullptr, {QStringLiteral("A")});
    const QList<CToolButton*> before = block->m_listToolBtn;
    block->AddItem(kIcon, QStringLiteral("B"), 0, QString());
    CToolBarItem::m_strlistText.append(QStringLiteral("C"));
    QCOMPARE(block->CreateToolBlock(true), before);
    QCOMPARE(CToolBarItem::m_strlistText.size(), 2);
    QCOMPARE(CToolBarItem::m_strlistIconPath.size(), 1);
    CToolBarItem::m_strlistText.removeLast();
    CToolBarItem::m_vecType.append(1);
    QCOMPARE(block->CreateToolBlock(true), before);
    QCOMPARE(block->actions().size(), 1);
    CToolBarItem::m_vecType.removeLast();
    QCOMPARE(block->CreateToolBlock(false).size(), 2);
}

void CToolBarItemTest::buttonsBearWhatWasDescribed()
{
    const QTemporaryDir folder;
    const QString on = folder.filePath(QStringLiteral("on.png"));
    const QString off = folder.filePath(QStringLiteral("off.png"));
    QImage image(40, 30, QImage::Format_ARGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(on));
    image.fill(Qt::blue);
    QVERIFY(image.save(off));

    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItem(on, QStringLiteral("Mill"), 0, off);
    block.AddItemVertical({on}, {QStringLiteral("Copy")}, {0}, {off});
    const QList<CToolButton*> buttons = block.CreateToolBlock(false);
    // The sizes that the icons were given, as long as no picture is loaded.
    QCOMPARE(buttons.at(0)->icon().availableSizes(QIcon::Normal, QIcon::On), QList<QSize>{QSize(32, 32)});
    QCOMPARE(buttons.at(1)->icon().availableSizes(QIcon::Normal, QIcon::On), QList<QSize>{QSize(16, 16)});
    QCOMPARE(Names(buttons), QStringLiteral("item0 item1"));
    QCOMPARE(Kinds(buttons), QStringLiteral("Lv"));
    for (CToolButton* button : buttons) {
        QVERIFY(!button->isCheckable());
        QVERIFY(!button->isChecked());
        QCOMPARE(button->iconSize(), QSize(40, 30));
        QVERIFY(block.isAncestorOf(button));
        const QPixmap enabled = button->icon().pixmap(QSize(40, 30), QIcon::Normal, QIcon::On);
        const QPixmap disabled = button->icon().pixmap(QSize(40, 30), QIcon::Disabled, QIcon::Off);
        QCOMPARE(enabled.toImage().pixelColor(5, 5), QColor(Qt::red));
        QCOMPARE(disabled.toImage().pixelColor(5, 5), QColor(Qt::blue));
    }
    QCOMPARE(buttons.at(0)->text(), QStringLiteral("Mill"));
    QCOMPARE(buttons.at(1)->text(), QStringLiteral("Copy"));
    QCOMPARE(buttons.at(0)->parentWidget(), static_cast<QWidget*>(&block));
}

void CToolBarItemTest::missingFilesMakeButtonsWithoutPicture()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItem(kNone, QStringLiteral("Mill"), 0, kNone);
    block.AddItem(QString(), QString(), 0, QString());
    block.AddItemVertical({kNone}, {QStringLiteral("Copy")}, {0}, {QString()});
    for (const CToolButton* button : block.CreateToolBlock(true)) {
        QCOMPARE(button->iconSize(), QSize(0, 0));
    }
    QVERIFY(!block.grab().isNull());
}

void CToolBarItemTest::badHighlightIsHarmless()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItemHighlight(kIcon, QStringLiteral("Mill"), 0, QString(), QStringLiteral("no colour at all"));
    block.AddItemHighlight(kIcon, QStringLiteral("Turn"), 0, QString(), QString());
    QCOMPARE(block.CreateToolBlock(false).first()->property("highlight").toString(),
             QStringLiteral("no colour at all"));
    QVERIFY(!block.grab().isNull());
}

void CToolBarItemTest::groupsAreWalked_data()
{
    QTest::addColumn<QList<int>>("entries"); // 0: an empty group, 1 to 9: a group of so many, -1: a large button
    QTest::addColumn<QString>("kinds");
    QTest::addColumn<QString>("names");
    QTest::newRow("empty group alone") << QList<int>{0} << QString() << QString();
    QTest::newRow("empty group before a button") << QList<int>{0, -1} << "L"
                                                 << "item0";
    QTest::newRow("empty group before a group") << QList<int>{0, 2} << "vv"
                                                << "item0 item1";
    QTest::newRow("empty groups everywhere") << QList<int>{0, 0, -1, 0, 3, 0} << "Lvvv"
                                             << "item0 item1 item2 item3";
    QTest::newRow("one") << QList<int>{1} << "v"
                         << "item0";
    QTest::newRow("two") << QList<int>{2} << "vv"
                         << "item0 item1";
    QTest::newRow("three") << QList<int>{3} << "vvv"
                           << "item0 item1 item2";
    QTest::newRow("four") << QList<int>{4} << "LLL"
                          << "item1 item2 item3";
    QTest::newRow("nine") << QList<int>{9, -1} << "LLLLLLLLL"
                          << "item1 item2 item3 item4 item5 item6 item7 item8 item9";
    QTest::newRow("mixed") << QList<int>{-1, 2, -1, 3, 1} << "LvvLvvvv"
                           << "item0 item1 item2 item3 item4 item5 item6 item7";
    QTest::newRow("four amid others") << QList<int>{2, 4, 3} << "vvLLLvvv"
                                      << "item0 item1 item3 item4 item5 item6 item7 item8";
}

void CToolBarItemTest::groupsAreWalked()
{
    QFETCH(QList<int>, entries);
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    for (const int entry : entries) {
        if (entry < 0) {
            block.AddItem(kIcon, QStringLiteral("L"), 0, QString());
        } else {
            block.AddItemVertical(QStringList(entry, kIcon), QStringList(entry, QStringLiteral("v")),
                                  QList<int>(entry, 0), QStringList(entry, QString()));
        }
    }
    const QList<CToolButton*> buttons = block.CreateToolBlock(false);
    QTEST(Kinds(buttons), "kinds");
    QTEST(Names(buttons), "names");
    QCOMPARE(block.m_listToolBtn, buttons);
}

void CToolBarItemTest::stackHoldsItsRows_data()
{
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<int>>("heights");
    QTest::newRow("one") << 1 << QList<int>{24};
    QTest::newRow("two") << 2 << QList<int>{24, 24};
    QTest::newRow("three are squeezed") << 3 << QList<int>{};
}

void CToolBarItemTest::stackHoldsItsRows()
{
    QFETCH(int, rows);
    QFETCH(QList<int>, heights);
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItemVertical(QStringList(rows, kIcon), QStringList(rows, QStringLiteral("Copy")), QList<int>(rows, 0),
                          QStringList(rows, QString()));
    const QList<CToolButton*> buttons = block.CreateToolBlock(false);
    QCOMPARE(buttons.size(), rows);
    const QWidget* stack = buttons.first()->parentWidget();
    QCOMPARE(block.widgetForAction(block.actions().first()), stack);
    QCOMPARE(stack->minimumHeight(), 56);
    QCOMPARE(stack->maximumHeight(), 56);
    const auto* layout = qobject_cast<QVBoxLayout*>(stack->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(layout->count(), rows);

    block.resize(400, 78);
    block.show();
    QVERIFY(QTest::qWaitForWindowExposed(&block));
    int below = 0;
    for (int i = 0; i < rows; ++i) {
        QVERIFY(buttons.at(i)->y() >= below);
        below = buttons.at(i)->geometry().bottom() + 1;
        if (!heights.isEmpty()) {
            QCOMPARE(buttons.at(i)->height(), heights.at(i));
        }
    }
    QVERIFY(below <= 56);
}

void CToolBarItemTest::groupHasOneWidth()
{
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    const QString longest = QStringLiteral("A far longer caption");
    block.AddItemVertical(QStringList(3, kIcon), {QStringLiteral("A"), longest, QString()}, {0, 0, 0},
                          QStringList(3, QString()));
    block.AddItemVertical({kIcon}, {QStringLiteral("B")}, {0}, {QString()});
    const QList<CToolButton*> buttons = block.CreateToolBlock(false);
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(static_cast<CToolButtonVertical*>(buttons.at(i))->m_nGroupWidth, Advance(longest));
        QCOMPARE(buttons.at(i)->sizeHint().width(), Advance(longest) + 12 + 24);
    }
    QCOMPARE(static_cast<CToolButtonVertical*>(buttons.at(3))->m_nGroupWidth, Advance(QStringLiteral("B")));
}

void CToolBarItemTest::groupTakesNoPartInTheBlocksWidth()
{
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(false);
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItem(kIcon, QStringLiteral("A"), 0, QString());
    block.AddItemVertical({kIcon}, {QStringLiteral("A caption\nof\nthree lines")}, {0}, {QString()});
    const QList<CToolButton*> buttons = block.CreateToolBlock(false);
    QCOMPARE(buttons.at(0)->m_nSharedWidth, Advance(QStringLiteral("A")));
    QCOMPARE(buttons.at(0)->SharedTextLines(), 1);
    // The shared width reaches the small button as well, the lines do not.
    QCOMPARE(buttons.at(1)->m_nSharedWidth, Advance(QStringLiteral("A")));
    QCOMPARE(buttons.at(1)->text(), QStringLiteral("A caption\nof\nthree lines"));
}

void CToolBarItemTest::widthIsTheWidestLine()
{
    const QString longest = QStringLiteral("一个很长的说明文字在这里超过一百零七个像素");
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItem(kIcon, QStringLiteral("短\n") + longest + QStringLiteral("\n"), 0, QString());
    block.AddItem(kIcon, QStringLiteral("短"), 0, QString());
    const QList<CToolButton*> buttons = block.CreateToolBlock(false);
    QVERIFY(Advance(longest) > 107);
    QCOMPARE(buttons.at(0)->m_nSharedWidth, Advance(longest));
    QCOMPARE(buttons.at(1)->m_nSharedWidth, Advance(longest));
    QCOMPARE(buttons.at(0)->sizeHint(), buttons.at(1)->sizeHint());
    QCOMPARE(block.m_nBlockWidth, 2 * (Advance(longest) + 10) + 8);
}

void CToolBarItemTest::widthIsCappedOutsideChinese()
{
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(false);
    CToolBarItem* block = MakeBlock(nullptr, {QString(60, QLatin1Char('m')), QStringLiteral("x")});
    QVERIFY(Advance(QString(60, QLatin1Char('m'))) > 107);
    QCOMPARE(block->m_listToolBtn.at(0)->m_nSharedWidth, 107);
    QCOMPARE(block->m_listToolBtn.at(1)->m_nSharedWidth, 107);
    QCOMPARE(block->m_listToolBtn.at(1)->sizeHint().width(), 115);
    QCOMPARE(block->m_nBlockWidth, 2 * 117 + 8);
}

void CToolBarItemTest::chineseCaptionsKeepOneLine()
{
    CToolBarItem* block =
        MakeBlock(nullptr, {QStringLiteral("一\n二\n三"), QStringLiteral("several words that would wrap elsewhere")});
    for (const CToolButton* button : std::as_const(block->m_listToolBtn)) {
        QCOMPARE(button->SharedTextLines(), 1);
        QCOMPARE(button->sizeHint().height(), 56);
    }
    QCOMPARE(block->m_listToolBtn.first()->text(), QStringLiteral("一\n二\n三"));
}

void CToolBarItemTest::linesAreCountedOutsideChinese()
{
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(false);
    CToolBarItem* one = MakeBlock(nullptr, {QStringLiteral("a"), QString()});
    QCOMPARE(one->m_listToolBtn.at(0)->SharedTextLines(), 1);
    CToolBarItem* three = MakeBlock(nullptr, {QStringLiteral("a"), QStringLiteral("a\nb\nc"), QStringLiteral("a\nb")});
    for (const CToolButton* button : std::as_const(three->m_listToolBtn)) {
        QCOMPARE(button->SharedTextLines(), 3);
        QCOMPARE(button->sizeHint().height(), 56 + 2 * button->fontMetrics().lineSpacing());
    }
    // Words, each of which fits into the capped width, wrap.
    const QString words = QStringLiteral("mmmmmm mmmmmm mmmmmm mmmmmm");
    QVERIFY(Advance(words) > 115 && Advance(QStringLiteral("mmmmmm")) <= 107);
    CToolBarItem* wrapped = MakeBlock(nullptr, {words});
    const QRect bounds =
        QFontMetrics(FontCnMedium_13).boundingRect(QRect(0, 0, 115, 0), Qt::AlignHCenter | Qt::TextWordWrap, words);
    const int spacing = QFontMetrics(FontCnMedium_13).lineSpacing();
    const int lines = (bounds.bottom() - bounds.top() + spacing) / spacing;
    QVERIFY(lines >= 2);
    QCOMPARE(wrapped->m_listToolBtn.first()->SharedTextLines(), lines);
    // Below 48 the wrap width is 56 all the same: two short words share a line there.
    CToolBarItem* narrow = MakeBlock(nullptr, {QStringLiteral("i\ni i")});
    QCOMPARE(narrow->m_listToolBtn.first()->SharedTextLines(), 2);
}

void CToolBarItemTest::lastWordGoesBelow_data()
{
    QTest::addColumn<bool>("chinese");
    QTest::addColumn<bool>("split");
    QTest::addColumn<QString>("caption");
    QTest::addColumn<QString>("shown");
    QTest::newRow("three words") << false << true << "Set the origin"
                                 << "Set the\norigin";
    QTest::newRow("two words") << false << true << "Set origin"
                               << "Set\norigin";
    QTest::newRow("one word") << false << true << "Origin"
                              << "Origin";
    QTest::newRow("one word and a line feed") << false << true << "Origin\n"
                                              << "Origin\n";
    QTest::newRow("line feeds count as blanks") << false << true << "Set\nthe origin now"
                                                << "Set the origin\nnow";
    QTest::newRow("many blanks") << false << true << "  Set   the  origin "
                                 << "Set the\norigin";
    QTest::newRow("empty") << false << true << ""
                           << "";
    QTest::newRow("blanks only") << false << true << "   "
                                 << "   ";
    QTest::newRow("mode off") << false << false << "Set the origin"
                              << "Set the origin";
    QTest::newRow("Chinese") << true << true << "Set the origin"
                             << "Set the origin";
}

void CToolBarItemTest::lastWordGoesBelow()
{
    QFETCH(bool, chinese);
    QFETCH(bool, split);
    QFETCH(QString, caption);
    QFETCH(QString, shown);
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(chinese);
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.SetSplitLastWordMode(split);
    block.AddItem(kIcon, caption, 0, QString());
    block.AddItemVertical({kIcon}, {caption}, {0}, {QString()});
    const QList<CToolButton*> buttons = block.CreateToolBlock(false);
    QCOMPARE(buttons.at(0)->text(), shown);
    QCOMPARE(buttons.at(1)->text(), caption);
    int widest = 0;
    for (const QString& line : shown.split(QLatin1Char('\n'))) {
        widest = qMax(widest, Advance(line));
    }
    QCOMPARE(buttons.at(0)->m_nSharedWidth, widest);
}

void CToolBarItemTest::blockWidthCountsAllButtons()
{
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItem(kIcon, QStringLiteral("刀"), 0, QString());
    block.AddItemVertical(QStringList(3, kIcon), QStringList(3, QStringLiteral("一个很长的说明")), {0, 0, 0},
                          QStringList(3, QString()));
    block.CreateToolBlock(true);
    QCOMPARE(block.m_nBlockWidth, 4 * (Advance(QStringLiteral("刀")) + 10) + 15);
}

void CToolBarItemTest::secondCallAppendsAndAppliesToAll()
{
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(false);
    CToolBarItem* block = MakeBlock(nullptr, {QStringLiteral("a wide one\nb"), QStringLiteral("c")});
    QCOMPARE(block->m_listToolBtn.first()->SharedTextLines(), 2);
    block->AddItem(kIcon, QStringLiteral("d\ne\nf"), 0, QString());
    const QList<CToolButton*> all = block->CreateToolBlock(false);
    QCOMPARE(Names(all), QStringLiteral("item0 item1 item0"));
    int widest = 0;
    for (const char* line : {"d", "e", "f"}) {
        widest = qMax(widest, Advance(QString::fromLatin1(line)));
    }
    for (const CToolButton* button : all) {
        QCOMPARE(button->m_nSharedWidth, widest);
        QCOMPARE(button->SharedTextLines(), 3);
    }
    QCOMPARE(block->m_nBlockWidth, 3 * (widest + 10) + 8);
}

void CToolBarItemTest::descriptionIsEmptyAfterwards()
{
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItemHighlight(kIcon, QStringLiteral("A"), 0, QString(), QStringLiteral("red"));
    block.AddItemVertical({kIcon}, {QStringLiteral("B")}, {0}, {QString()});
    block.CreateToolBlock(false);
    QVERIFY(CToolBarItem::m_strlistIconPath.isEmpty());
    QVERIFY(CToolBarItem::m_strlistIconPathDisabled.isEmpty());
    QVERIFY(CToolBarItem::m_strlistText.isEmpty());
    QVERIFY(CToolBarItem::m_vecType.isEmpty());
    QVERIFY(CToolBarItem::m_vecVerticalGroupIndex.isEmpty());
    QVERIFY(CToolBarItem::m_hashHighlightColorIndex.isEmpty());
    // So the highlight of an old entry does not come back.
    block.AddItem(kIcon, QStringLiteral("C"), 0, QString());
    QVERIFY(!block.CreateToolBlock(false).last()->property("highlight").isValid());
}

void CToolBarItemTest::unifyTakesTheLargest()
{
    CToolBarItem* one = MakeBlock(nullptr, {QStringLiteral("a"), QStringLiteral("b")});
    CToolBarItem* two = MakeBlock(nullptr, {QStringLiteral("c")});
    one->AddItemVertical({kIcon}, {QStringLiteral("v")}, {0}, {QString()});
    one->CreateToolBlock(false);
    two->m_listToolBtn.first()->SetSharedTextLines(3);
    CToolBarItem::UnifyBlocksHeight({one, nullptr, two, one});
    QCOMPARE(one->m_listToolBtn.at(0)->SharedTextLines(), 3);
    QCOMPARE(one->m_listToolBtn.at(1)->SharedTextLines(), 3);
    QCOMPARE(one->m_listToolBtn.at(2)->SharedTextLines(), 1);
    QCOMPARE(two->m_listToolBtn.at(0)->SharedTextLines(), 3);
}

void CToolBarItemTest::unifyLeavesSingleLinesAlone()
{
    CToolBarItem* one = MakeBlock(nullptr, {QStringLiteral("a")});
    one->AddItemVertical({kIcon}, {QStringLiteral("v")}, {0}, {QString()});
    CToolButton* small = one->CreateToolBlock(false).last();
    small->SetSharedTextLines(5);
    CToolBarItem::UnifyBlocksHeight({});
    CToolBarItem::UnifyBlocksHeight({nullptr, nullptr});
    CToolBarItem::UnifyBlocksHeight({one});
    QCOMPARE(one->m_listToolBtn.first()->SharedTextLines(), 1);
    QCOMPARE(small->SharedTextLines(), 5);
}

void CToolBarItemTest::showUnifiesTheBlocksOfAMainWindow()
{
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(false);
    QMainWindow window;
    CToolBarItem* one = MakeBlock(&window, {QStringLiteral("a")});
    CToolBarItem* three = MakeBlock(&window, {QStringLiteral("a\nb\nc")});
    window.addToolBar(one);
    window.addToolBar(three);
    QCOMPARE(one->m_listToolBtn.first()->SharedTextLines(), 1);
    window.show();
    QCOMPARE(one->m_listToolBtn.first()->SharedTextLines(), 3);
    QCOMPARE(three->m_listToolBtn.first()->SharedTextLines(), 3);
}

void CToolBarItemTest::showLeavesASingleBlockAlone()
{
    QMainWindow window;
    CToolBarItem* block = MakeBlock(&window, {QStringLiteral("a"), QStringLiteral("b")});
    block->m_listToolBtn.first()->SetSharedTextLines(3);
    window.addToolBar(block);
    window.show();
    QCOMPARE(block->m_listToolBtn.last()->SharedTextLines(), 1);

    // Outside a main window blocks know nothing of each other.
    QWidget plain;
    CToolBarItem* one = MakeBlock(&plain, {QStringLiteral("a")});
    CToolBarItem* other = MakeBlock(&plain, {QStringLiteral("a")});
    other->m_listToolBtn.first()->SetSharedTextLines(2);
    plain.show();
    QCOMPARE(one->m_listToolBtn.first()->SharedTextLines(), 1);
}

void CToolBarItemTest::showFindsBlocksDeepInTheWindow()
{
    QMainWindow window;
    auto* page = new QWidget(&window);
    auto* inner = new QWidget(page);
    window.setCentralWidget(page);
    CToolBarItem* deep = MakeBlock(inner, {QStringLiteral("a")});
    CToolBarItem* top = MakeBlock(&window, {QStringLiteral("a")});
    deep->m_listToolBtn.first()->SetSharedTextLines(2);
    window.show();
    QCOMPARE(top->m_listToolBtn.first()->SharedTextLines(), 2);
}

void CToolBarItemTest::linesThatChangeAmidTheShowReachTheOthers()
{
    QMainWindow window;
    QList<CToolBarItem*> blocks;
    for (int i = 0; i < 3; ++i) {
        blocks.append(MakeBlock(&window, {QStringLiteral("a")}));
        window.addToolBar(blocks.last());
        // Each of them is told when it shows; the second asks for more lines then.
        CToolButton* button = blocks.last()->m_listToolBtn.first();
        connect(blocks.last(), &QToolBar::visibilityChanged, button, [button, i] {
            if (i == 1) {
                button->SetSharedTextLines(4);
            }
        });
    }
    window.show();
    for (const CToolBarItem* block : std::as_const(blocks)) {
        QCOMPARE(block->m_listToolBtn.first()->SharedTextLines(), 4);
    }
}

void CToolBarItemTest::showingAgainUnifiesAnew()
{
    QMainWindow window;
    CToolBarItem* one = MakeBlock(&window, {QStringLiteral("a")});
    CToolBarItem* two = MakeBlock(&window, {QStringLiteral("a")});
    window.addToolBar(one);
    window.addToolBar(two);
    window.show();
    one->m_listToolBtn.first()->SetSharedTextLines(3);
    QCOMPARE(two->m_listToolBtn.first()->SharedTextLines(), 1);
    two->hide();
    two->show();
    QCOMPARE(two->m_listToolBtn.first()->SharedTextLines(), 3);
}

void CToolBarItemTest::hiddenBlocksThatArriveCount()
{
    QMainWindow window;
    auto* pages = new QStackedWidget;
    window.setCentralWidget(pages);
    auto* first = new QWidget;
    CToolBarItem* one = MakeBlock(first, {QStringLiteral("a")});
    auto* second = new QWidget;
    CToolBarItem* two = MakeBlock(second, {QStringLiteral("a")});
    auto* third = new QWidget;
    CToolBarItem* three = MakeBlock(third, {QStringLiteral("a")});
    three->m_listToolBtn.first()->SetSharedTextLines(3);
    pages->addWidget(first);
    pages->addWidget(second);
    window.show();
    QCOMPARE(one->m_listToolBtn.first()->SharedTextLines(), 1);
    // All of it in one turn of the event loop, and the third page never shows.
    pages->addWidget(third);
    pages->setCurrentIndex(1);
    QVERIFY(!three->isVisible());
    QCOMPARE(two->m_listToolBtn.first()->SharedTextLines(), 3);
    QCOMPARE(one->m_listToolBtn.first()->SharedTextLines(), 3);
}

void CToolBarItemTest::blockFilledAmidTheShowIsUnified()
{
    QMainWindow window;
    CToolBarItem* one = MakeBlock(&window, {QStringLiteral("a")});
    one->m_listToolBtn.first()->SetSharedTextLines(2);
    CToolBarItem* two = MakeBlock(&window, {});
    window.addToolBar(one);
    window.addToolBar(two);
    connect(one, &QToolBar::visibilityChanged, two, [two] {
        if (two->m_listToolBtn.isEmpty()) {
            two->AddItem(kIcon, QStringLiteral("b"), 0, QString());
            two->CreateToolBlock(false);
        }
    });
    window.show();
    QCOMPARE(two->m_listToolBtn.first()->SharedTextLines(), 2);
}

void CToolBarItemTest::emptyAndLongCaptionsAreHarmless()
{
    for (const bool chinese : {true, false}) {
        CorvaneTextHelper::instance()->SetAppInChineseEnvironment(chinese);
        CToolBarItem* block =
            MakeBlock(nullptr, {QString(), QString(20000, QLatin1Char('m')), QString(500, QLatin1Char('\n')),
                                QStringLiteral("x y ").repeated(3000)});
        QCOMPARE(block->m_listToolBtn.size(), 4);
        QCOMPARE(block->m_listToolBtn.first()->sizeHint(), QSize(35, 41));
        block->resize(600, 78);
        QVERIFY(!block->grab().isNull());
    }
    CToolBarItem nameless(QString(), nullptr);
    nameless.resize(100, 78);
    QVERIFY(!nameless.grab().isNull());
}

void CToolBarItemTest::plainButtonsFollowNoRule()
{
    CToolBarItem block(QStringLiteral("Edit"), nullptr);
    block.AddItem(kIcon, QStringLiteral("A"), 0, QString());
    block.CreateToolBlock(false).first()->click();
    QVERIFY(!CToolBar::m_pBtnChecked);
    QVERIFY(!CToolBarItem::m_pToolBarChecked);
    QCOMPARE(block.minimumWidth(), 0);
    QCOMPARE(block.m_pExtensionBtn->maximumHeight(), 56);
}

void CToolBarItemTest::firstCheckHoldsItsBlock()
{
    CToolBarItem* block = MakeBlock(nullptr, {QStringLiteral("A"), QStringLiteral("B")});
    CToolButton* button = block->m_listToolBtn.last();
    block->resize(20, 20);
    button->click();
    QCOMPARE(CToolBar::m_pBtnChecked, button);
    QCOMPARE(CToolBarItem::m_pToolBarChecked, block);
    QVERIFY(block->m_nBlockWidth > 0);
    QCOMPARE(block->minimumWidth(), block->m_nBlockWidth);
    QCOMPARE(block->m_pExtensionBtn->minimumHeight(), 0);
    QCOMPARE(block->m_pExtensionBtn->maximumHeight(), 0);
    QVERIFY(block->width() >= block->m_nBlockWidth);
    QVERIFY(block->height() >= 78);
}

void CToolBarItemTest::secondCheckReleasesTheOldBlock()
{
    CToolBarItem* one = MakeBlock(nullptr, {QStringLiteral("A")});
    CToolBarItem* two = MakeBlock(nullptr, {QStringLiteral("B")});
    CToolButton* first = one->m_listToolBtn.first();
    CToolButton* second = two->m_listToolBtn.first();
    first->click();
    second->click();
    QCOMPARE(CToolBar::m_pBtnChecked, second);
    QCOMPARE(CToolBarItem::m_pToolBarChecked, two);
    QCOMPARE(one->minimumWidth(), 0);
    QCOMPARE(one->m_pExtensionBtn->minimumHeight(), 56);
    QCOMPARE(one->m_pExtensionBtn->maximumHeight(), 56);
    QCOMPARE(two->minimumWidth(), two->m_nBlockWidth);
    QCOMPARE(two->m_pExtensionBtn->maximumHeight(), 0);
    // Unchecking the other is the host's.
    QVERIFY(first->isChecked());
    CToolBar::ClearCheckedBtn();
    QVERIFY(!second->isChecked());
    QVERIFY(first->isChecked());
}

void CToolBarItemTest::secondCheckInTheSameBlockKeepsIt()
{
    CToolBarItem* block = MakeBlock(nullptr, {QStringLiteral("A"), QStringLiteral("B")});
    block->m_listToolBtn.first()->click();
    block->m_listToolBtn.last()->click();
    QCOMPARE(CToolBar::m_pBtnChecked, block->m_listToolBtn.last());
    QCOMPARE(CToolBarItem::m_pToolBarChecked, block);
    QCOMPARE(block->minimumWidth(), block->m_nBlockWidth);
    QCOMPARE(block->m_pExtensionBtn->maximumHeight(), 0);
}

void CToolBarItemTest::clickingTheCheckedToolReleasesIt()
{
    CToolBarItem* block = MakeBlock(nullptr, {QStringLiteral("A")});
    CToolButton* button = block->m_listToolBtn.first();
    button->click();
    button->click();
    QVERIFY(!button->isChecked());
    QVERIFY(!CToolBar::m_pBtnChecked);
    QVERIFY(!CToolBarItem::m_pToolBarChecked);
    QCOMPARE(block->minimumWidth(), 0);
    QCOMPARE(block->m_pExtensionBtn->minimumHeight(), 56);
    QCOMPARE(block->m_pExtensionBtn->maximumHeight(), 56);
}

void CToolBarItemTest::uncheckingAnotherToolChangesNothing()
{
    CToolBarItem* one = MakeBlock(nullptr, {QStringLiteral("A")});
    CToolBarItem* two = MakeBlock(nullptr, {QStringLiteral("B")});
    CToolButton* first = one->m_listToolBtn.first();
    CToolButton* second = two->m_listToolBtn.first();
    first->click();
    second->click();
    first->click(); // still checked from before, so this one unchecks it
    QVERIFY(!first->isChecked());
    QCOMPARE(CToolBar::m_pBtnChecked, second);
    QCOMPARE(CToolBarItem::m_pToolBarChecked, two);
    QCOMPARE(one->minimumWidth(), 0);
    QCOMPARE(two->minimumWidth(), two->m_nBlockWidth);
}

void CToolBarItemTest::clearingLeavesTheBlockBehind()
{
    CToolBarItem* one = MakeBlock(nullptr, {QStringLiteral("A")});
    CToolBarItem* two = MakeBlock(nullptr, {QStringLiteral("B")});
    CToolButton* first = one->m_listToolBtn.first();
    first->click();
    CToolBar::ClearCheckedBtn();
    QVERIFY(!first->isChecked());
    QVERIFY(!CToolBar::m_pBtnChecked);
    QCOMPARE(CToolBarItem::m_pToolBarChecked, one);
    QCOMPARE(one->minimumWidth(), one->m_nBlockWidth);

    // The next check does not release it.
    two->m_listToolBtn.first()->click();
    QCOMPARE(CToolBarItem::m_pToolBarChecked, two);
    QCOMPARE(one->minimumWidth(), one->m_nBlockWidth);
    QCOMPARE(one->m_pExtensionBtn->maximumHeight(), 0);

    // Its own button does, when it is clicked twice.
    first->click();
    QCOMPARE(CToolBarItem::m_pToolBarChecked, one);
    QCOMPARE(two->minimumWidth(), 0);
    first->click();
    QCOMPARE(one->minimumWidth(), 0);
    QCOMPARE(one->m_pExtensionBtn->maximumHeight(), 56);
}

void CToolBarItemTest::firstCheckRecordsEvenAnUncheckedButton()
{
    CToolBarItem* block = MakeBlock(nullptr, {QStringLiteral("A")});
    CToolButton* button = block->m_listToolBtn.first();
    button->setChecked(true);
    button->click();
    QVERIFY(!button->isChecked());
    QCOMPARE(CToolBar::m_pBtnChecked, button);
    QCOMPARE(block->minimumWidth(), block->m_nBlockWidth);
}

void CToolBarItemTest::toolsWithoutRoomStayHiddenWhateverIsChecked()
{
    QMainWindow window;
    QList<CToolBarItem*> blocks;
    for (int i = 0; i < 3; ++i) {
        blocks.append(MakeBlock(&window, {QStringLiteral("一"), QStringLiteral("二")}));
        blocks.last()->AddItemVertical({kIcon}, {QString(12, QLatin1Char('m'))}, {0}, {QString()});
        blocks.last()->CreateToolBlock(false);
        window.addToolBar(blocks.last());
    }
    window.resize(2000, 300);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    CToolButton* tool = blocks.last()->m_listToolBtn.first();
    const QWidget* stack = blocks.last()->m_listToolBtn.last()->parentWidget();
    QTRY_VERIFY(stack->isVisible());
    // One pixel less than the last stack needs, and the overflow button has to go somewhere as well.
    window.resize(stack->mapTo(&window, QPoint(stack->width() - 1, 0)).x(), 300);
    QTRY_VERIFY(!stack->isVisible());
    for (int i = 0; i < 4; ++i) {
        tool->click();
        QCoreApplication::processEvents();
        QVERIFY(stack->mapTo(&window, QPoint(stack->width(), 0)).x() <= window.width() || !stack->isVisible());
        QCOMPARE(stack->isVisible(), !stack->isHidden());
    }
    QVERIFY(!CToolBar::m_pBtnChecked);
    window.resize(2000, 300);
    QTRY_VERIFY(stack->isVisible());
}

void CToolBarItemTest::deletedButtonIsForgotten()
{
    CToolBarItem* block = MakeBlock(nullptr, {QStringLiteral("A"), QStringLiteral("B")});
    CToolButton* button = block->m_listToolBtn.first();
    CToolButton* other = block->m_listToolBtn.last();
    button->click();
    delete button;
    QVERIFY(!CToolBar::m_pBtnChecked);
    QVERIFY(!CToolBarItem::m_pToolBarChecked);
    QCOMPARE(block->minimumWidth(), 0);
    QCOMPARE(block->m_pExtensionBtn->maximumHeight(), 56);
    CToolBar::ClearCheckedBtn();
    other->click();
    QCOMPARE(CToolBar::m_pBtnChecked, other);
    QVERIFY(!block->grab().isNull());
}

void CToolBarItemTest::deletedBlockIsForgotten()
{
    CToolBarItem* one = MakeBlock(nullptr, {QStringLiteral("A")});
    CToolBarItem* two = MakeBlock(nullptr, {QStringLiteral("B")});
    one->m_listToolBtn.first()->click();
    delete one;
    QVERIFY(!CToolBar::m_pBtnChecked);
    QVERIFY(!CToolBarItem::m_pToolBarChecked);
    CToolBar::ClearCheckedBtn();
    two->m_listToolBtn.first()->click();
    QCOMPARE(CToolBarItem::m_pToolBarChecked, two);
}

void CToolBarItemTest::blockDeletedAfterClearingIsForgotten()
{
    CToolBarItem* one = MakeBlock(nullptr, {QStringLiteral("A")});
    CToolBarItem* two = MakeBlock(nullptr, {QStringLiteral("B")});
    one->m_listToolBtn.first()->click();
    CToolBar::ClearCheckedBtn();
    delete one;
    QVERIFY(!CToolBarItem::m_pToolBarChecked);
    two->m_listToolBtn.first()->click();
    QCOMPARE(CToolBarItem::m_pToolBarChecked, two);
}

void CToolBarItemTest::adoptedButtonOutlivesItsBlock()
{
    CToolBarItem* one = MakeBlock(nullptr, {QStringLiteral("A")});
    CToolButton* button = one->m_listToolBtn.first();
    QWidget* stack = nullptr;
    one->AddItemVertical({kIcon}, {QStringLiteral("v")}, {0}, {QString()});
    CToolButton* small = one->CreateToolBlock(false).last();
    small->setCheckable(true);
    small->setParent(stack);
    small->click();
    button->click();
    small->click();
    delete one;
    small->click();
    small->click();
    delete small;
    QVERIFY(!CToolBar::m_pBtnChecked);
    QVERIFY(!CToolBarItem::m_pToolBarChecked);
}

void CToolBarItemTest::deletedButtonLeavesTheList()
{
    QWidget row;
    CToolBarItem* block = MakeBlock(&row, {QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")});
    row.resize(block->sizeHint());
    block->setGeometry(row.rect());
    row.show();
    delete block->m_listToolBtn.at(1);
    QCOMPARE(Names(block->m_listToolBtn), QStringLiteral("item0 item2"));
    QVERIFY(!row.grab().isNull());
    CToolBarItem::UnifyBlocksHeight({block});
    block->AddItem(kIcon, QStringLiteral("D"), 0, QString());
    QCOMPARE(block->CreateToolBlock(false).size(), 3);
}

void CToolBarItemTest::blockMayDieInItsButtonsClick()
{
    CToolBarItem* block = MakeBlock(nullptr, {QStringLiteral("A")});
    CToolButton* button = block->m_listToolBtn.first();
    connect(button, &QToolButton::clicked, this, [block] { delete block; });
    button->click();
    QVERIFY(!CToolBar::m_pBtnChecked);
    QVERIFY(!CToolBarItem::m_pToolBarChecked);
}

void CToolBarItemTest::manyToolsCostWhatFewDo()
{
    const auto perTool = [](int tools) {
        const ProcessorTime time;
        CToolBarItem block(QStringLiteral("Block"), nullptr);
        for (int tool = 0; tool < tools; ++tool) {
            block.AddItem(QString(), QStringLiteral("Tool"), 0, QString());
        }
        block.CreateToolBlock(false);
        return time.Microseconds() / tools;
    };
    perTool(50); // the first block also loads what all of them share
    const double few = LeastOfFive([&perTool] { return perTool(50); });
    const double many = perTool(1000);
    qInfo("%.1f us per tool at 50, %.1f at 1000: %.2f", few, many, many / few);
    // Growth with the number of tools would be a factor of twenty.
    QVERIFY(many < kGrowthAllowed * few);
}

CUSTOMCONTROLS_TEST_MAIN(CToolBarItemTest)

#include "CToolBarItemTest.moc"
