#include <CustomControls/menus/CVelmarMenuItem.h>

#include "ui_CVelmarMenuItem.h"

#include <tests/support/TestMain.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <QPointer>
#include <QSignalSpy>

#include <climits>

namespace {

constexpr char kText[] = "QLabel{color:#212121;background:transparent;}QLabel:disabled{color:#999999}";
constexpr char kLeftText[] = "QLabel{color:#212121;background:transparent;}QLabel:disabled{color:#999999;}";
constexpr char kFocusText[] = "QLabel{color:#212121;background:#d4e2ff;}QLabel:disabled{color:#999999}";
constexpr char kHoverText[] =
    "QLabel{color:#212121;background:#d4e2ff;}QLabel:disabled{color:#999999;background:transparent;}";
constexpr char kShortcut[] = "color:#8c8c8c;background:transparent;";
constexpr char kFocusShortcut[] = "color:#8c8c8c;background:#d4e2ff;";
constexpr char kRow[] = "QWidget{background:#FFFFFF;}QWidget::hover{background:#d4e2ff;}";

QString MakePng(const QString& folder, const QColor& color)
{
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(color);
    const QString path = QStringLiteral("%1/%2.png").arg(folder, color.name().mid(1));
    return image.save(path, "PNG") ? path : QString();
}

QString ColorOf(const QLabel* label)
{
    const QImage image = label->pixmap().toImage();
    return image.isNull() ? QString() : image.pixelColor(image.rect().center()).name();
}

void Send(QWidget* widget, QEvent::Type type)
{
    if (type == QEvent::Enter) {
        QEnterEvent event({1, 1}, {1, 1}, {1, 1});
        QCoreApplication::sendEvent(widget, &event);
    } else {
        QEvent event(type);
        QCoreApplication::sendEvent(widget, &event);
    }
}

} // namespace

class CVelmarMenuItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void startsAsTheFormSays();
    void startsInItsColoursAtRest();
    void hoverIconFallsBackToTheRestIcon();
    void itemSizeMakesTheIconASquare();
    void badItemSizeIsSafe_data();
    void badItemSizeIsSafe();
    void textIconAndFontsGoToTheLabels();
    void lightStylesRestoreTheColours_data();
    void lightStylesRestoreTheColours();
    void otherStylesKeepTheColours_data();
    void otherStylesKeepTheColours();
    void chooseFocusMarksTheRow();
    void hiddenIconLeavesItsPlaceEmpty();
    void hoverShowsAndLeavingRestores();
    void chosenRowStaysMarkedAfterLeaving();
    void hidingEndsTheChooseFocus();
    void releaseInsideIsAChoice();
    void releaseElsewhereKeepsTheMenuWanted_data();
    void releaseElsewhereKeepsTheMenuWanted();
    void focusLossHidesTheRow();
    void disabledRowSwallowsItsEvents();
    void disabledRowCanStillBeDeletedLater();
    void eventsOfOthersPass();
    void rowsBackgroundIsPainted();
    void mayBeDeletedFromItsOwnClick();

private:
    QTemporaryDir m_folder;
    QString m_strRed;
    QString m_strGreen;
};

void CVelmarMenuItemTest::initTestCase()
{
    m_strRed = MakePng(m_folder.path(), Qt::red);
    m_strGreen = MakePng(m_folder.path(), Qt::green);
    QVERIFY(!m_strRed.isEmpty() && !m_strGreen.isEmpty());
}

void CVelmarMenuItemTest::startsAsTheFormSays()
{
    CVelmarMenuItem item(nullptr, "text", "Ctrl+T", {}, {}, false);
    QCOMPARE(item.objectName(), "MenuItem");
    QCOMPARE(item.windowTitle(), "Form");
    QCOMPARE(item.size(), QSize(739, 67));
    QCOMPARE(item.ui->verticalLayout->contentsMargins(), QMargins());
    QCOMPARE(item.ui->verticalLayout->spacing(), 0);
    QCOMPARE(item.ui->horizontalLayout->contentsMargins(), QMargins(8, 0, 0, 0));
    QCOMPARE(item.ui->horizontalLayout->spacing(), 0);
    QCOMPARE(item.ui->horizontalLayout->indexOf(item.ui->m_labelBlank), 0);
    QCOMPARE(item.ui->horizontalLayout->indexOf(item.ui->m_labelIcon), 1);
    QSpacerItem* spacer = item.ui->horizontalLayout->itemAt(2)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(5, 20));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(item.ui->horizontalLayout->indexOf(item.ui->m_labelText), 3);
    QCOMPARE(item.ui->horizontalLayout->indexOf(item.ui->m_labelShortCut), 4);
    QCOMPARE(item.ui->horizontalLayout->indexOf(item.ui->m_labelArrow), 5);
    QCOMPARE(item.ui->m_labelArrow->minimumWidth(), 12);
    QCOMPARE(item.ui->m_labelArrow->maximumWidth(), 12);
    QVERIFY(item.testAttribute(Qt::WA_MouseTracking));
}

void CVelmarMenuItemTest::startsInItsColoursAtRest()
{
    CVelmarMenuItem item(nullptr, "text", "Ctrl+T", m_strRed, m_strGreen, true);
    QCOMPARE(item.m_strTextColor, "#212121");
    QCOMPARE(item.m_strBackColor, "#FFFFFF");
    QCOMPARE(item.m_strFocusTextColor, "#212121");
    QCOMPARE(item.m_strHoverColor, "#d4e2ff");
    QCOMPARE(item.m_strShortcutColor, "#8c8c8c");
    QCOMPARE(item.m_strFocusShortcutColor, "#8c8c8c");
    QCOMPARE(item.m_strDisabledColor, "#999999");
    QVERIFY(item.m_bHasSubMenu);
    QVERIFY(!item.m_bChooseFocus);

    QCOMPARE(item.ui->m_labelText->text(), "text");
    QCOMPARE(item.ui->m_labelText->styleSheet(), kText);
    QCOMPARE(item.ui->m_labelText->font(), FontCnMedium_15);
    QCOMPARE(item.ui->m_labelShortCut->text(), "Ctrl+T");
    QCOMPARE(item.ui->m_labelShortCut->styleSheet(), kShortcut);
    QCOMPARE(item.ui->m_labelShortCut->font(), FontCnMedium_14);
    QCOMPARE(item.ui->m_labelShortCut->alignment(), Qt::AlignRight | Qt::AlignVCenter);
    QCOMPARE(item.ui->m_labelIcon->styleSheet(), "background:transparent;");
    QCOMPARE(item.ui->m_labelIcon->alignment(), Qt::AlignCenter);
    QCOMPARE(ColorOf(item.ui->m_labelIcon), "#ff0000");
    QCOMPARE(item.ui->m_labelBlank->styleSheet(), "background:transparent;");
    QVERIFY(item.ui->m_labelBlank->isHidden());
    QCOMPARE(item.ui->widget->styleSheet(), kRow);
    QCOMPARE(item.styleSheet(), QString());
}

void CVelmarMenuItemTest::hoverIconFallsBackToTheRestIcon()
{
    CVelmarMenuItem item(nullptr, {}, {}, m_strRed, {}, false);
    QCOMPARE(item.m_strIcon, m_strRed);
    QCOMPARE(item.m_strIconHover, m_strRed);
    Send(&item, QEvent::Enter);
    QCOMPARE(ColorOf(item.ui->m_labelIcon), "#ff0000");
}

void CVelmarMenuItemTest::itemSizeMakesTheIconASquare()
{
    CVelmarMenuItem item(nullptr, {}, {}, {}, {}, false);
    item.SetItemSize(120, 26, 999, -7);
    QCOMPARE(item.minimumSize(), QSize(120, 26));
    QCOMPARE(item.maximumSize(), QSize(120, 26));
    for (const QLabel* label : {item.ui->m_labelIcon, item.ui->m_labelBlank}) {
        QCOMPARE(label->minimumSize(), QSize(26, 26));
        QCOMPARE(label->maximumSize(), QSize(26, 26));
    }
}

void CVelmarMenuItemTest::badItemSizeIsSafe_data()
{
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("taken");
    QTest::newRow("negative") << -5 << 0;
    QTest::newRow("smallest") << INT_MIN << 0;
    QTest::newRow("largest") << INT_MAX << QWIDGETSIZE_MAX;
}

void CVelmarMenuItemTest::badItemSizeIsSafe()
{
    QFETCH(int, given);
    QFETCH(int, taken);
    CVelmarMenuItem item(nullptr, {}, {}, {}, {}, false);
    item.SetItemSize(given, given, given, given);
    QCOMPARE(item.maximumSize(), QSize(taken, taken));
}

void CVelmarMenuItemTest::textIconAndFontsGoToTheLabels()
{
    CVelmarMenuItem item(nullptr, "a", "b", m_strRed, {}, false);
    item.SetText("c");
    QCOMPARE(item.text(), "c");
    item.SetIcon(m_strGreen);
    QCOMPARE(item.m_strIcon, m_strGreen);
    QCOMPARE(item.m_strIconHover, m_strGreen);
    QCOMPARE(ColorOf(item.ui->m_labelIcon), "#00ff00");
    item.SetMenuFont(FontCnBold_16, FontCn_12);
    QCOMPARE(item.ui->m_labelText->font(), FontCnBold_16);
    QCOMPARE(item.ui->m_labelShortCut->font(), FontCn_12);
}

void CVelmarMenuItemTest::lightStylesRestoreTheColours_data()
{
    QTest::addColumn<int>("style");
    QTest::newRow("flat") << 0;
    QTest::newRow("white") << 2;
}

void CVelmarMenuItemTest::lightStylesRestoreTheColours()
{
    QFETCH(int, style);
    CVelmarMenuItem item(nullptr, "a", "b", {}, {}, false);
    item.m_strTextColor = "#000001";
    item.m_strBackColor = "#000002";
    item.m_strFocusTextColor = "#000003";
    item.m_strHoverColor = "#000004";
    item.m_strShortcutColor = "#000005";
    item.m_strFocusShortcutColor = "#000006";
    item.m_strDisabledColor = "#000007";
    item.SetMenuStyle(MenuStyle(style));
    QCOMPARE(item.m_strTextColor, "#212121");
    QCOMPARE(item.m_strBackColor, "#FFFFFF");
    QCOMPARE(item.m_strFocusTextColor, "#212121");
    QCOMPARE(item.m_strHoverColor, "#d4e2ff");
    QCOMPARE(item.m_strShortcutColor, "#8c8c8c");
    QCOMPARE(item.m_strFocusShortcutColor, "#8c8c8c");
    QCOMPARE(item.m_strDisabledColor, "#000007");
    QCOMPARE(item.ui->m_labelText->styleSheet(),
             "QLabel{color:#212121;background:transparent;}QLabel:disabled{color:#000007}");
    QCOMPARE(item.ui->m_labelShortCut->styleSheet(), kShortcut);
    QCOMPARE(item.styleSheet(), kRow);
    QCOMPARE(item.ui->widget->styleSheet(), kRow); // what the constructor gave it
}

void CVelmarMenuItemTest::otherStylesKeepTheColours_data()
{
    QTest::addColumn<int>("style");
    QTest::newRow("dark") << 1;
    QTest::newRow("none") << 3;
    QTest::newRow("negative") << -1;
}

void CVelmarMenuItemTest::otherStylesKeepTheColours()
{
    QFETCH(int, style);
    CVelmarMenuItem item(nullptr, "a", "b", {}, {}, false);
    item.m_strTextColor = "#000001";
    item.m_strBackColor = "#000002";
    item.SetMenuStyle(MenuStyle(style));
    QCOMPARE(item.ui->m_labelText->styleSheet(),
             "QLabel{color:#000001;background:transparent;}QLabel:disabled{color:#999999}");
    QCOMPARE(item.styleSheet(), "QWidget{background:#000002;}QWidget::hover{background:#d4e2ff;}");
}

void CVelmarMenuItemTest::chooseFocusMarksTheRow()
{
    CVelmarMenuItem item(nullptr, "a", "b", m_strRed, m_strGreen, true);
    item.SetChooseFocus(true);
    QVERIFY(item.m_bChooseFocus);
    for (const QLabel* label : {item.ui->m_labelBlank, item.ui->m_labelIcon, item.ui->m_labelArrow}) {
        QCOMPARE(label->styleSheet(), "background:#d4e2ff;");
    }
    QCOMPARE(ColorOf(item.ui->m_labelIcon), "#00ff00");
    QCOMPARE(item.ui->m_labelText->styleSheet(), kFocusText);
    QCOMPARE(item.ui->m_labelShortCut->styleSheet(), kFocusShortcut);

    item.SetChooseFocus(false);
    QVERIFY(!item.m_bChooseFocus);
    for (const QLabel* label : {item.ui->m_labelBlank, item.ui->m_labelIcon, item.ui->m_labelArrow}) {
        QCOMPARE(label->styleSheet(), "background:#FFFFFF;");
    }
    QCOMPARE(ColorOf(item.ui->m_labelIcon), "#ff0000");
    QCOMPARE(item.ui->m_labelText->styleSheet(), kText);
    QCOMPARE(item.ui->m_labelShortCut->styleSheet(), kShortcut);
}

void CVelmarMenuItemTest::hiddenIconLeavesItsPlaceEmpty()
{
    CVelmarMenuItem item(nullptr, "a", "b", m_strRed, {}, false);
    item.SetItemSize(200, 30, 0, 0);
    item.SetIconVisible(false);
    QVERIFY(item.ui->m_labelIcon->isHidden());
    QVERIFY(!item.ui->m_labelBlank->isHidden());
    QCOMPARE(item.ui->m_labelBlank->text(), QString());
    QVERIFY(item.ui->m_labelBlank->pixmap().isNull());
    const int column = item.ui->m_labelText->x();
    item.SetIconVisible(true);
    QVERIFY(!item.ui->m_labelIcon->isHidden());
    QVERIFY(item.ui->m_labelBlank->isHidden());
    QCOMPARE(item.ui->m_labelText->x(), column);
}

void CVelmarMenuItemTest::hoverShowsAndLeavingRestores()
{
    CVelmarMenuItem item(nullptr, "a", "b", m_strRed, m_strGreen, false);
    Send(&item, QEvent::Enter);
    QVERIFY(!item.m_bChooseFocus);
    QCOMPARE(item.ui->m_labelText->styleSheet(), kHoverText);
    QCOMPARE(item.ui->m_labelShortCut->styleSheet(), kFocusShortcut);
    QCOMPARE(item.ui->m_labelIcon->styleSheet(), "background:#d4e2ff;");
    QCOMPARE(ColorOf(item.ui->m_labelIcon), "#00ff00");
    Send(&item, QEvent::Leave);
    QCOMPARE(item.ui->m_labelText->styleSheet(), kLeftText);
    QCOMPARE(item.ui->m_labelShortCut->styleSheet(), kShortcut);
    QCOMPARE(item.ui->m_labelIcon->styleSheet(), "background:#FFFFFF;");
    QCOMPARE(ColorOf(item.ui->m_labelIcon), "#ff0000");
}

void CVelmarMenuItemTest::chosenRowStaysMarkedAfterLeaving()
{
    CVelmarMenuItem item(nullptr, "a", "b", {}, {}, false);
    item.SetChooseFocus(true);
    Send(&item, QEvent::Leave);
    QCOMPARE(item.ui->m_labelText->styleSheet(), kFocusText);
}

void CVelmarMenuItemTest::hidingEndsTheChooseFocus()
{
    CVelmarMenuItem item(nullptr, "a", "b", {}, {}, false);
    item.show();
    item.SetChooseFocus(true);
    item.hide();
    QVERIFY(!item.m_bChooseFocus);
    QCOMPARE(item.ui->m_labelText->styleSheet(), kText);
}

void CVelmarMenuItemTest::releaseInsideIsAChoice()
{
    CVelmarMenuItem item(nullptr, "a", "b", {}, {}, false);
    QStringList heard;
    connect(&item, &CVelmarMenuItem::SignalMenuBtnFocus, this,
            [&heard](bool focus) { heard << (focus ? "wanted" : "done"); });
    connect(&item, &CVelmarMenuItem::SignalMenuItemClicked, this, [&heard] { heard << "clicked"; });
    QTest::mouseRelease(&item, Qt::LeftButton, {}, QPoint(0, 0));
    QCOMPARE(heard, QStringList({"done", "clicked"}));
}

void CVelmarMenuItemTest::releaseElsewhereKeepsTheMenuWanted_data()
{
    QTest::addColumn<bool>("hasSubMenu");
    QTest::addColumn<QPoint>("place");
    QTest::newRow("outside") << false << QPoint(5, 67);
    QTest::newRow("left of it") << false << QPoint(-1, 5);
    QTest::newRow("on a row with a sub-menu") << true << QPoint(5, 5);
}

void CVelmarMenuItemTest::releaseElsewhereKeepsTheMenuWanted()
{
    QFETCH(bool, hasSubMenu);
    QFETCH(QPoint, place);
    CVelmarMenuItem item(nullptr, "a", "b", {}, {}, hasSubMenu);
    QSignalSpy click(&item, &CVelmarMenuItem::SignalMenuItemClicked);
    QSignalSpy focus(&item, &CVelmarMenuItem::SignalMenuBtnFocus);
    QMouseEvent release(QEvent::MouseButtonRelease, place, place, Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&item, &release);
    QCOMPARE(click.size(), 0);
    QCOMPARE(focus.size(), 1);
    QCOMPARE(focus.at(0).at(0).toBool(), true);
}

void CVelmarMenuItemTest::focusLossHidesTheRow()
{
    CVelmarMenuItem item(nullptr, "a", "b", {}, {}, false);
    item.show();
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&item, &out);
    QVERIFY(item.isHidden());
}

void CVelmarMenuItemTest::disabledRowSwallowsItsEvents()
{
    CVelmarMenuItem item(nullptr, "a", "b", {}, {}, false);
    item.SetEnabled(false);
    QVERIFY(!item.isEnabled());
    QSignalSpy focus(&item, &CVelmarMenuItem::SignalMenuBtnFocus);
    Send(&item, QEvent::Enter);
    QCOMPARE(item.ui->m_labelText->styleSheet(), kText);
    QTest::mouseRelease(&item, Qt::LeftButton);
    QCOMPARE(focus.size(), 0);
    for (const QEvent::Type type : {QEvent::Paint, QEvent::KeyPress, QEvent::User, QEvent::FocusOut}) {
        QEvent event(type);
        QVERIFY(item.eventFilter(&item, &event));
    }
    item.SetEnabled(true);
    Send(&item, QEvent::Enter);
    QCOMPARE(item.ui->m_labelText->styleSheet(), kHoverText);
}

void CVelmarMenuItemTest::disabledRowCanStillBeDeletedLater()
{
    const QPointer<CVelmarMenuItem> item(new CVelmarMenuItem(nullptr, "a", "b", {}, {}, false));
    item->SetEnabled(false);
    item->deleteLater();
    QTRY_VERIFY(item.isNull());
}

void CVelmarMenuItemTest::eventsOfOthersPass()
{
    CVelmarMenuItem item(nullptr, "a", "b", {}, {}, false);
    item.SetEnabled(false);
    QWidget other;
    QEvent event(QEvent::User);
    QVERIFY(!item.eventFilter(&other, &event));
}

void CVelmarMenuItemTest::rowsBackgroundIsPainted()
{
    CVelmarMenuItem item(nullptr, {}, {}, {}, {}, false);
    item.SetMenuStyle(MenuStyleWhite);
    item.SetItemSize(200, 30, 0, 0);
    QCOMPARE(item.grab().toImage().pixelColor(3, 15), QColor("#FFFFFF"));
    item.SetChooseFocus(true);
    QCOMPARE(item.grab().toImage().pixelColor(8 + 15, 15), QColor("#d4e2ff"));
}

void CVelmarMenuItemTest::mayBeDeletedFromItsOwnClick()
{
    for (const bool early : {true, false}) {
        auto* item = new CVelmarMenuItem(nullptr, "a", "b", {}, {}, false);
        const QPointer<CVelmarMenuItem> watched(item);
        if (early) {
            connect(item, &CVelmarMenuItem::SignalMenuBtnFocus, this, [item] { delete item; });
        } else {
            connect(item, &CVelmarMenuItem::SignalMenuItemClicked, this, [item] { delete item; });
        }
        QTest::mouseRelease(item, Qt::LeftButton);
        QVERIFY(watched.isNull());
    }
}

CUSTOMCONTROLS_TEST_MAIN(CVelmarMenuItemTest)

#include "CVelmarMenuItemTest.moc"
