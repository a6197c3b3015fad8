#include <CustomControls/buttons/CFunctionBtnWidget.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CMultiLineLabel.h>
#include <CustomControls/buttons/CVelmarButton.h>

#include <tests/support/Painted.h>
#include <tests/support/TestMain.h>

#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollBar>
#include <QSignalSpy>

namespace {

const QString kWithLine =
    QStringLiteral("QWidget{background:transparent;border:none;}QWidget#widgetBtn{border-radius:0px;border-bottom-left-"
                   "radius:6px;border-bottom-right-radius:6px;border-top:1px solid #2e2e2e;}");
const QString kWithoutLine =
    QStringLiteral("QWidget{background:transparent;border:none;}QWidget#widgetBtn{border-radius:0px;border-bottom-left-"
                   "radius:6px;border-bottom-right-radius:6px;}");

const QColor kLine(0x2e, 0x2e, 0x2e);

QList<QString> Texts(int count)
{
    return QList<QString>{QStringLiteral("一"), QStringLiteral("取消"), QStringLiteral("确定"), QStringLiteral("四")}
        .mid(0, count);
}

QList<CVelmarButton*> Initial(CFunctionBtnWidget& strip, const QList<QString>& texts)
{
    switch (texts.size()) {
    case 1:
        return {strip.InitialButton1(texts.first())};
    case 2:
        return strip.InitialButton2(texts);
    default:
        return strip.InitialButton3(texts);
    }
}

// How often a widget was given another style sheet.
class SheetCounter : public QObject
{
public:
    explicit SheetCounter(QWidget* widget) { widget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        changes += event->type() == QEvent::StyleChange;
        return false;
    }
    int changes = 0;
};

} // namespace

class CFunctionBtnWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void stripHasItsSizeAndMargins();
    void startsWithoutTheLine();
    void rangeDecidesAboutTheLine_data();
    void rangeDecidesAboutTheLine();
    void lineGoesAtTheEndAndReturnsOneStepBefore();
    void lineIsPaintedAlongTheTop();
    void lineFollowsARealList();
    void onlyAChangeSetsTheSheet();
    void buttonsFollowTheirTable_data();
    void buttonsFollowTheirTable();
    void iconAndCaptionStandCentredTogether_data();
    void iconAndCaptionStandCentredTogether();
    void captionWiderThanItsRoomKeepsItsWidth();
    void emptyCaptionLeavesTheIconAlone();
    void buttonsBelongToTheStripAndAreClicked();
    void wrongNumberOfTextsAddsNothing_data();
    void wrongNumberOfTextsAddsNothing();
    void secondCallAddsMoreButtons();
    void deletedBarLeavesTheStripAsItIs();
    void deletedStripIsNotCalled();
    void withoutABarThereIsNoLine();
};

void CFunctionBtnWidgetTest::stripHasItsSizeAndMargins()
{
    QScrollBar bar;
    QWidget parent;
    auto* strip = new CFunctionBtnWidget(&bar, &parent);
    QCOMPARE(strip->parentWidget(), &parent);
    QVERIFY(strip->testAttribute(Qt::WA_StyledBackground));
    QCOMPARE(strip->minimumSize(), QSize(394, 69));
    QCOMPARE(strip->maximumSize(), QSize(394, 69));
    QCOMPARE(strip->objectName(), QStringLiteral("widgetBtn"));
    QCOMPARE(strip->layout(), strip->m_pLayout);
    QCOMPARE(strip->m_pLayout->contentsMargins(), QMargins(9, 9, 9, 8));
    QCOMPARE(strip->m_pLayout->spacing(), 0);
    QCOMPARE(strip->m_pLayout->count(), 0);
}

void CFunctionBtnWidgetTest::startsWithoutTheLine()
{
    QScrollBar bar;
    bar.setRange(0, 100); // there is more to see already, but the strip looks only when something changes
    CFunctionBtnWidget strip(&bar, nullptr);
    QCOMPARE(strip.styleSheet(), kWithoutLine);
    bar.setRange(0, 200);
    QCOMPARE(strip.styleSheet(), kWithLine);
}

void CFunctionBtnWidgetTest::rangeDecidesAboutTheLine_data()
{
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<bool>("line");
    QTest::newRow("opens at its start") << 0 << 0 << 50 << true;
    QTest::newRow("opens at its end") << 60 << 0 << 60 << false;
    QTest::newRow("opens before its end") << 60 << 0 << 61 << true;
    QTest::newRow("closes") << 60 << 0 << 0 << false;
    QTest::newRow("one place only, not zero") << 60 << 7 << 7 << false;
    QTest::newRow("shrinks onto the value") << 60 << 0 << 40 << false;
    QTest::newRow("negative") << 0 << -50 << -10 << false;
    QTest::newRow("around zero") << 0 << -50 << 10 << true;
    QTest::newRow("turned round") << 60 << 50 << 10 << false;
}

void CFunctionBtnWidgetTest::rangeDecidesAboutTheLine()
{
    QFETCH(int, value);
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(bool, line);
    QScrollBar bar;
    bar.setRange(0, 100);
    bar.setValue(value);
    CFunctionBtnWidget strip(&bar, nullptr);
    bar.setRange(minimum, maximum);
    QCOMPARE(strip.styleSheet(), line ? kWithLine : kWithoutLine);
}

void CFunctionBtnWidgetTest::lineGoesAtTheEndAndReturnsOneStepBefore()
{
    QScrollBar bar;
    CFunctionBtnWidget strip(&bar, nullptr);
    bar.setRange(0, 10);
    QCOMPARE(strip.styleSheet(), kWithLine);
    bar.setValue(10);
    QCOMPARE(strip.styleSheet(), kWithoutLine);
    bar.triggerAction(QAbstractSlider::SliderSingleStepSub);
    QCOMPARE(bar.value(), 9);
    QCOMPARE(strip.styleSheet(), kWithLine);
    bar.setValue(0);
    QCOMPARE(strip.styleSheet(), kWithLine);
}

void CFunctionBtnWidgetTest::lineIsPaintedAlongTheTop()
{
    QScrollBar bar;
    CFunctionBtnWidget strip(&bar, nullptr);
    const QColor ground(0x40, 0x60, 0x80);
    QImage image = Painted::Of(strip, ground);
    for (const int x : {0, 197, 393}) {
        COMPARE_COLOR(image, x, 0, ground);
        COMPARE_COLOR(image, x, 34, ground);
    }
    bar.setRange(0, 10);
    image = Painted::Of(strip, ground);
    for (const int x : {0, 197, 393}) {
        COMPARE_COLOR(image, x, 0, kLine);
        COMPARE_COLOR(image, x, 1, ground);
        COMPARE_COLOR(image, x, 68, ground);
    }
    bar.setValue(10);
    COMPARE_COLOR(Painted::Of(strip, ground), 197, 0, ground);
}

void CFunctionBtnWidgetTest::lineFollowsARealList()
{
    QWidget panel;
    auto* layout = new QVBoxLayout(&panel);
    auto* list = new QListWidget;
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    auto* strip = new CFunctionBtnWidget(list->verticalScrollBar(), nullptr);
    layout->addWidget(list);
    layout->addWidget(strip);
    panel.resize(420, 300);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    list->addItem(QStringLiteral("1"));
    QCoreApplication::processEvents();
    QCOMPARE(strip->styleSheet(), kWithoutLine);

    for (int row = 2; row <= 50; ++row) {
        list->addItem(QString::number(row));
    }
    QTRY_COMPARE(strip->styleSheet(), kWithLine);
    list->scrollToBottom();
    QTRY_COMPARE(strip->styleSheet(), kWithoutLine);
    list->addItem(QStringLiteral("51"));
    QTRY_COMPARE(strip->styleSheet(), kWithLine);
    list->clear();
    QTRY_COMPARE(strip->styleSheet(), kWithoutLine);
}

void CFunctionBtnWidgetTest::onlyAChangeSetsTheSheet()
{
    QScrollBar bar;
    CFunctionBtnWidget strip(&bar, nullptr);
    strip.InitialButton2(Texts(2));
    strip.ensurePolished(); // until then a sheet is only stored
    SheetCounter counter(&strip);
    bar.setRange(0, 1000);
    const int once = counter.changes;
    QVERIFY(once > 0);
    for (int value = 1; value < 1000; ++value) {
        bar.setValue(value);
    }
    QCOMPARE(counter.changes, once);
    bar.setValue(1000);
    QCOMPARE(counter.changes, 2 * once);
}

void CFunctionBtnWidgetTest::buttonsFollowTheirTable_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("radius");
    QTest::newRow("one") << 1 << QSize(376, 52) << 338 << 3;
    QTest::newRow("two") << 2 << QSize(184, 52) << 146 << 4;
    QTest::newRow("three") << 3 << QSize(120, 52) << 82 << 3;
}

void CFunctionBtnWidgetTest::buttonsFollowTheirTable()
{
    QFETCH(int, count);
    QFETCH(QSize, size);
    QFETCH(int, room);
    QFETCH(int, radius);
    QScrollBar bar;
    CFunctionBtnWidget strip(&bar, nullptr);
    const QList<QString> texts = Texts(count);
    const QList<CVelmarButton*> buttons = Initial(strip, texts);
    QCOMPARE(buttons.size(), count);
    QCOMPARE(strip.m_pLayout->count(), 2 * count - 1);
    for (int index = 0; index < count; ++index) {
        CVelmarButton* button = buttons.at(index);
        QCOMPARE(strip.m_pLayout->itemAt(2 * index)->widget(), button);
        if (index > 0) {
            QVERIFY(strip.m_pLayout->itemAt(2 * index - 1)->spacerItem());
            QCOMPARE(strip.m_pLayout->stretch(2 * index - 1), 0);
        }
        QCOMPARE(button->m_eType, ButtonTypeIconTextChoose);
        QVERIFY(!button->m_bVertical);
        QVERIFY(button->m_bIconFirst);
        QCOMPARE(button->m_iBackgroundKind, 0);
        QCOMPARE(button->minimumSize(), size);
        QCOMPARE(button->maximumSize(), size);
        QCOMPARE(QSize(button->m_iWidth, button->m_iHeight), size);
        QCOMPARE(button->GetButtonText(), texts.at(index));
        QVERIFY(button->m_bBoldText);

        const int t = QFontMetrics(FontCn_20).horizontalAdvance(texts.at(index));
        const int q = (room - t) / 2;
        QVERIFY(q > 0);
        QCOMPARE(button->m_pTextLayoutH->contentsMargins(), QMargins(0, 10, q, 10));
        QCOMPARE(button->m_pTextLabel->maximumSize(), QSize(t, 24));
        QCOMPARE(button->m_pImageLayoutH->contentsMargins(), QMargins(q, 12, 8, 12));
        QCOMPARE(button->m_pIconLabel->maximumSize(), QSize(28, 28));
        QCOMPARE(button->GetButtonTextFont().pixelSize(), 20);
        QCOMPARE(int(button->GetButtonTextFont().weight()), 600);
        QCOMPARE(button->m_iRadius, radius);
        for (const QColor& color : button->m_colorSolid) {
            QCOMPARE(color, QColor(0, 0, 0, 0));
        }
        for (int look = 0; look < 3; ++look) {
            QCOMPARE(button->m_strTextColor[look], QStringLiteral("#ffffff"));
        }
        QCOMPARE(button->m_strTextColor[3], QStringLiteral("#7e7e7e"));
        QCOMPARE(button->m_pTextLabel->styleSheet(), QStringLiteral("color:#ffffff;background:transparent;"));
        QVERIFY(!button->GetChooseFocusState());
        button->SetChooseFocus(true);
        QCOMPARE(button->m_pTextLabel->styleSheet(), QStringLiteral("color:#7e7e7e;background:transparent;"));
    }
}

void CFunctionBtnWidgetTest::iconAndCaptionStandCentredTogether_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("one") << 1;
    QTest::newRow("two") << 2;
    QTest::newRow("three") << 3;
}

void CFunctionBtnWidgetTest::iconAndCaptionStandCentredTogether()
{
    QFETCH(int, count);
    QScrollBar bar;
    CFunctionBtnWidget strip(&bar, nullptr);
    const QList<CVelmarButton*> buttons = Initial(strip, Texts(count));
    strip.show();
    QVERIFY(QTest::qWaitForWindowExposed(&strip));
    int right = 9;
    for (CVelmarButton* button : buttons) {
        QVERIFY(button->x() >= right);
        QCOMPARE(button->y(), 9);
        right = button->geometry().right() + 1;
        const int left = button->m_pIconLabel->x();
        const int free = button->width() - button->m_pTextLabel->geometry().right() - 1;
        QVERIFY2(qAbs(left - free) <= 4, qPrintable(QStringLiteral("%1 and %2").arg(left).arg(free)));
    }
    QCOMPARE(buttons.first()->x(), 9);
    QCOMPARE(right, 394 - 9);
}

void CFunctionBtnWidgetTest::captionWiderThanItsRoomKeepsItsWidth()
{
    QScrollBar bar;
    CFunctionBtnWidget strip(&bar, nullptr);
    const QString text(60, QChar(0x4e00));
    CVelmarButton* button = strip.InitialButton1(text);
    const int t = QFontMetrics(FontCn_20).horizontalAdvance(text);
    QVERIFY(t > 338);
    QCOMPARE(button->m_pTextLabel->maximumWidth(), t);
    QCOMPARE(button->GetButtonText(), text);
    // A layout inside another counts a negative margin as none.
    QCOMPARE(button->m_pTextLayoutH->contentsMargins(), QMargins(0, 10, 0, 10));
    QCOMPARE(button->m_pImageLayoutH->contentsMargins(), QMargins(0, 12, 8, 12));
    strip.show();
    QVERIFY(QTest::qWaitForWindowExposed(&strip));
    QCOMPARE(button->geometry(), QRect(9, 9, 376, 52));
}

void CFunctionBtnWidgetTest::emptyCaptionLeavesTheIconAlone()
{
    QScrollBar bar;
    CFunctionBtnWidget strip(&bar, nullptr);
    CVelmarButton* button = strip.InitialButton1(QString());
    QCOMPARE(button->GetButtonText(), QString());
    QCOMPARE(button->m_pTextLabel->maximumSize(), QSize(0, 24));
    QCOMPARE(button->m_pImageLayoutH->contentsMargins(), QMargins(169, 12, 8, 12));
}

void CFunctionBtnWidgetTest::buttonsBelongToTheStripAndAreClicked()
{
    QScrollBar bar;
    CFunctionBtnWidget strip(&bar, nullptr);
    const QList<CVelmarButton*> buttons = strip.InitialButton2(Texts(2));
    strip.show();
    QVERIFY(QTest::qWaitForWindowExposed(&strip));
    QSignalSpy first(buttons.first(), &CVelmarButton::SignalClicked);
    QSignalSpy second(buttons.last(), &CVelmarButton::SignalClicked);
    QCOMPARE(buttons.first()->parentWidget(), &strip);
    QTest::mouseClick(buttons.last(), Qt::LeftButton);
    QCOMPARE(first.size(), 0);
    QCOMPARE(second.size(), 1);
}

void CFunctionBtnWidgetTest::wrongNumberOfTextsAddsNothing_data()
{
    QTest::addColumn<int>("needed");
    QTest::addColumn<int>("given");
    for (const int needed : {2, 3}) {
        for (int given = 0; given <= 4; ++given) {
            if (given != needed) {
                QTest::addRow("%d for %d", given, needed) << needed << given;
            }
        }
    }
}

void CFunctionBtnWidgetTest::wrongNumberOfTextsAddsNothing()
{
    QFETCH(int, needed);
    QFETCH(int, given);
    QScrollBar bar;
    CFunctionBtnWidget strip(&bar, nullptr);
    const QList<CVelmarButton*> buttons =
        needed == 2 ? strip.InitialButton2(Texts(given)) : strip.InitialButton3(Texts(given));
    QVERIFY(buttons.isEmpty());
    QCOMPARE(strip.m_pLayout->count(), 0);
    QVERIFY(strip.findChildren<QWidget*>().isEmpty());
}

void CFunctionBtnWidgetTest::secondCallAddsMoreButtons()
{
    QScrollBar bar;
    CFunctionBtnWidget strip(&bar, nullptr);
    strip.InitialButton1(QStringLiteral("一"));
    strip.InitialButton3(Texts(3));
    QCOMPARE(strip.m_pLayout->count(), 1 + 5);
    QCOMPARE(strip.findChildren<CVelmarButton*>().size(), 4);
}

void CFunctionBtnWidgetTest::deletedBarLeavesTheStripAsItIs()
{
    auto* bar = new QScrollBar;
    CFunctionBtnWidget strip(bar, nullptr);
    bar->setRange(0, 10);
    delete bar;
    QCOMPARE(strip.styleSheet(), kWithLine);
    QCOMPARE(strip.InitialButton2(Texts(2)).size(), 2);
    COMPARE_COLOR(Painted::Of(strip), 197, 0, kLine);
}

void CFunctionBtnWidgetTest::deletedStripIsNotCalled()
{
    QScrollBar bar;
    auto* strip = new CFunctionBtnWidget(&bar, nullptr);
    strip->InitialButton1(QStringLiteral("一"));
    delete strip;
    bar.setRange(0, 10);
    bar.setValue(10);
    QCOMPARE(bar.value(), 10);
}

void CFunctionBtnWidgetTest::withoutABarThereIsNoLine()
{
    CFunctionBtnWidget strip(nullptr, nullptr);
    QCOMPARE(strip.styleSheet(), kWithoutLine);
    QCOMPARE(strip.InitialButton3(Texts(3)).size(), 3);
}

CUSTOMCONTROLS_TEST_MAIN(CFunctionBtnWidgetTest)
#include "CFunctionBtnWidgetTest.moc"
