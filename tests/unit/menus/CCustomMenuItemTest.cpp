#include <CustomControls/menus/CCustomMenuItem.h>

#include "ui_CCustomMenuItem.h"

#include <tests/support/TestMain.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>

#include <QBoxLayout>
#include <QCursor>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>

#include <climits>

namespace {

constexpr char kTransparent[] = "background:transparent;";
constexpr char kShortcutRest[] = "color:#6b6b6b;background:transparent;";

void MakePng(const QString& path, const QColor& color)
{
    QImage image(16, 16, QImage::Format_ARGB32);
    image.fill(color);
    QVERIFY2(image.save(path, "PNG"), qPrintable(path));
}

QString ColorOf(const QLabel* label)
{
    const QImage image = label->pixmap().toImage();
    return image.isNull() ? QString() : image.pixelColor(image.rect().center()).name();
}

QString TextSheet(const QString& color)
{
    return QStringLiteral("QLabel{color:%1;background:transparent;}QLabel::disabled{color:#505050;}").arg(color);
}

QString StateSheet(const QString& color)
{
    return QStringLiteral("QWidget#widget{background:%1;border-radius:4px;}").arg(color);
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

class CCustomMenuItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void formHasTheGivenMeasures();
    void startsWithTheDarkColoursAndSheets();
    void languagePicksTheFont_data();
    void languagePicksTheFont();
    void styleChoosesTheColours_data();
    void styleChoosesTheColours();
    void styleReachesTheTextWithTheNextChooseFocus();
    void sizeFollowsTheFormula_data();
    void sizeFollowsTheFormula();
    void chooseFocusTellsFirstAndAlsoWithoutChange();
    void chooseFocusSetsEverySheet();
    void iconFollowsTheState();
    void enterAndLeaveSwapSheetsAndIcon();
    void chosenRowStaysMarkedAfterLeave();
    void disabledRowIgnoresEnterAndShowsItsIconOnLeave();
    void emptyRestIconGivesANullPixmap();
    void hiddenIconLeavesItsColumnToTheBlank();
    void stateRowUsesTheIconAsCheckMark();
    void hiddenWhileChosenTellsTheLoss();
    void anyButtonsReleaseCounts_data();
    void anyButtonsReleaseCounts();
    void releaseOutsideStillCounts();
    void pressDoesNotReachTheParent();
    void movesDoNotReachTheParent();
    void disabledOrSubMenuRowEmitsNothing();
    void arrowStandsOnlyOnSubMenuRows();
    void deletedFromItsOwnClick();
    void deletedFromItsOwnFocusChange();
    void strangeTextsAreKept_data();
    void strangeTextsAreKept();
    void filterOfAnotherObjectDoesNothing();

private:
    QTemporaryDir m_folder;
    QString m_strRest;
    QString m_strHover;
    QString m_strDisabled;
};

void CCustomMenuItemTest::initTestCase()
{
    m_strRest = m_folder.filePath(QStringLiteral("rest.png"));
    m_strHover = m_folder.filePath(QStringLiteral("hover.png"));
    m_strDisabled = m_folder.filePath(QStringLiteral("disabled.png"));
    MakePng(m_strRest, Qt::red);
    MakePng(m_strHover, Qt::green);
    MakePng(m_strDisabled, Qt::blue);
}

void CCustomMenuItemTest::init()
{
    TestEnvironment::MoveCursorAway();
}

void CCustomMenuItemTest::formHasTheGivenMeasures()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), QStringLiteral("b"), {}, {}, {}, false);
    QCOMPARE(row.size(), QSize(417, 43));
    QCOMPARE(row.layout()->objectName(), QStringLiteral("horizontalLayout_2"));
    QCOMPARE(row.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(row.layout()->spacing(), 0);
    QCOMPARE(row.ui->horizontalLayout->contentsMargins(), QMargins(6, 0, 6, 0));
    QCOMPARE(row.ui->horizontalLayout->spacing(), 0);
    QCOMPARE(row.ui->horizontalLayout->count(), 6);
    const QList<QWidget*> order = {row.ui->m_labelBlank, row.ui->m_labelIcon,     nullptr,
                                   row.ui->m_labelText,  row.ui->m_labelShortCut, row.ui->m_labelArrow};
    for (int i = 0; i < order.size(); ++i) {
        QCOMPARE(row.ui->horizontalLayout->itemAt(i)->widget(), order.at(i));
    }
    QCOMPARE(row.ui->horizontalSpacer->sizeHint(), QSize(8, 20));
    QCOMPARE(row.ui->horizontalSpacer->sizePolicy().horizontalPolicy(), QSizePolicy::Fixed);
    QCOMPARE(row.ui->horizontalSpacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    QCOMPARE(row.ui->m_labelBlank->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(row.ui->m_labelIcon->sizePolicy().horizontalPolicy(), QSizePolicy::Maximum);
    QCOMPARE(row.ui->m_labelArrow->sizePolicy().horizontalPolicy(), QSizePolicy::Preferred);
    QCOMPARE(row.ui->m_labelArrow->minimumWidth(), 12);
    QCOMPARE(row.ui->m_labelArrow->maximumWidth(), 12);
    QCOMPARE(row.ui->m_labelArrow->text(), QString());
}

void CCustomMenuItemTest::startsWithTheDarkColoursAndSheets()
{
    CCustomMenuItem row(nullptr, QStringLiteral("Open"), QStringLiteral("Ctrl+O"), m_strRest, m_strHover, m_strDisabled,
                        false);
    QCOMPARE(row.objectName(), QStringLiteral("MenuItem"));
    QCOMPARE(row.styleSheet(), QStringLiteral("QWidget#MenuItem{background:transparent;border:none;}"));
    QCOMPARE(row.text(), QStringLiteral("Open"));
    QCOMPARE(row.ui->m_labelShortCut->text(), QStringLiteral("Ctrl+O"));
    QCOMPARE(row.m_strTextColor, QStringLiteral("#FFFFFF"));
    QCOMPARE(row.m_strBackColor, QStringLiteral("#181818"));
    QCOMPARE(row.m_strFocusTextColor, QStringLiteral("#FFFFFF"));
    QCOMPARE(row.m_strHoverColor, QStringLiteral("#016ACB"));
    QCOMPARE(row.m_strIcon, m_strRest);
    QCOMPARE(row.m_strIconHover, m_strHover);
    QCOMPARE(row.m_strIconDisabled, m_strDisabled);
    QCOMPARE(row.GetButtonId(), 0);
    QVERIFY(!row.m_bHasSubMenu && !row.m_bChooseFocus && !row.IsStateButton());
    QVERIFY(row.IsIconVisible());
    QVERIFY(row.GetBtnState());
    QVERIFY(row.ui->m_labelBlank->isHidden());
    QVERIFY(row.testAttribute(Qt::WA_MouseTracking));
    QCOMPARE(row.ui->m_labelIcon->alignment(), Qt::AlignCenter);
    QCOMPARE(row.ui->m_labelIcon->property("icon_show"), QVariant(true));
    QCOMPARE(ColorOf(row.ui->m_labelIcon), QStringLiteral("#ff0000"));
    QCOMPARE(row.ui->m_labelIcon->pixmap().deviceIndependentSize(), QSizeF(16, 16));
    QCOMPARE(row.ui->m_labelBlank->styleSheet(), QString::fromLatin1(kTransparent));
    QCOMPARE(row.ui->m_labelIcon->styleSheet(), QString::fromLatin1(kTransparent));
    QCOMPARE(row.ui->m_labelText->styleSheet(), TextSheet(QStringLiteral("#FFFFFF")));
    QCOMPARE(row.ui->m_labelShortCut->styleSheet(), QString::fromLatin1(kShortcutRest));
    QCOMPARE(
        row.ui->widget->styleSheet(),
        QStringLiteral("QWidget#widget{background:#181818;border-radius:4px;}QWidget::hover{background:#016ACB;}"));
}

void CCustomMenuItemTest::languagePicksTheFont_data()
{
    QTest::addColumn<bool>("chinese");
    QTest::addColumn<int>("pixels");
    QTest::newRow("Chinese") << true << 14;
    QTest::newRow("other") << false << 13;
}

void CCustomMenuItemTest::languagePicksTheFont()
{
    QFETCH(bool, chinese);
    QFETCH(int, pixels);
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(chinese);
    const CCustomMenuItem row(nullptr, QStringLiteral("a"), QStringLiteral("b"), {}, {}, {}, false);
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(true);
    QCOMPARE(row.ui->m_labelText->font().pixelSize(), pixels);
    QCOMPARE(row.ui->m_labelShortCut->font().pixelSize(), pixels);
    QCOMPARE(row.ui->m_labelText->font().weight(), FontCnMedium_14.weight());
}

void CCustomMenuItemTest::styleChoosesTheColours_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<QStringList>("colours");
    const QStringList dark = {"#FFFFFF", "#181818", "#FFFFFF", "#016ACB"};
    QTest::newRow("flat") << 0 << dark;
    QTest::newRow("dark") << 1 << dark;
    QTest::newRow("white") << 2 << QStringList{"#202020", "#FFFFFF", "#FFFFFF", "#0071bc"};
    QTest::newRow("none") << 3 << dark;
    QTest::newRow("negative") << -1 << dark;
}

void CCustomMenuItemTest::styleChoosesTheColours()
{
    QFETCH(int, style);
    QFETCH(QStringList, colours);
    for (const MenuStyle before : {MenuStyleDark, MenuStyleWhite}) {
        CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, {}, {}, {}, false);
        row.SetMenuStyle(before);
        row.SetMenuStyle(static_cast<MenuStyle>(style));
        QCOMPARE(row.m_strTextColor, colours.at(0));
        QCOMPARE(row.m_strBackColor, colours.at(1));
        QCOMPARE(row.m_strFocusTextColor, colours.at(2));
        QCOMPARE(row.m_strHoverColor, colours.at(3));
        QCOMPARE(row.ui->widget->styleSheet(),
                 QStringLiteral("QWidget#widget{background:%1;border-radius:4px;}QWidget::hover{background:%2;}")
                     .arg(colours.at(1), colours.at(3)));
    }
}

void CCustomMenuItemTest::styleReachesTheTextWithTheNextChooseFocus()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, {}, {}, {}, false);
    row.SetMenuStyle(MenuStyleWhite);
    QCOMPARE(row.ui->m_labelText->styleSheet(), TextSheet(QStringLiteral("#FFFFFF")));
    row.SetChooseFocus(false);
    QCOMPARE(row.ui->m_labelText->styleSheet(), TextSheet(QStringLiteral("#202020")));
}

void CCustomMenuItemTest::sizeFollowsTheFormula_data()
{
    QTest::addColumn<int>("minWidth");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("textWidth");
    QTest::addColumn<int>("shortcutWidth");
    QTest::addColumn<QSize>("size");
    // 5 beside the shortcut, blank 16, arrow 12, icon 16, margins 12, spacer 8: 69 beside the texts.
    QTest::newRow("text decides") << 0 << 24 << 100 << 40 << QSize(209, 24);
    QTest::newRow("one below the minimum") << 210 << 24 << 100 << 40 << QSize(210, 24);
    QTest::newRow("minimum equals") << 209 << 24 << 100 << 40 << QSize(209, 24);
    QTest::newRow("no texts") << 0 << 30 << 0 << 0 << QSize(69, 30);
    QTest::newRow("minimum decides") << 144 << 24 << 10 << 0 << QSize(144, 24);
    QTest::newRow("all negative") << -1 << -1 << -1 << -1 << QSize(69, 0);
    QTest::newRow("too much") << INT_MAX << INT_MAX << INT_MAX << INT_MAX << QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    QTest::newRow("too little") << INT_MIN << INT_MIN << INT_MIN << INT_MIN << QSize(69, 0);
}

void CCustomMenuItemTest::sizeFollowsTheFormula()
{
    QFETCH(int, minWidth);
    QFETCH(int, height);
    QFETCH(int, textWidth);
    QFETCH(int, shortcutWidth);
    QFETCH(QSize, size);
    CCustomMenuItem row(nullptr, QStringLiteral("a"), QStringLiteral("b"), {}, {}, {}, false);
    QCOMPARE(row.SetItemSize(minWidth, height, textWidth, shortcutWidth), size.width());
    QCOMPARE(row.maximumSize(), size);
    if (size.width() < QWIDGETSIZE_MAX) { // the toolkit takes its largest size for "none"
        QCOMPARE(row.minimumSize(), size);
    }
    QCOMPARE(row.ui->m_labelIcon->minimumSize(), QSize(16, 16));
    QCOMPARE(row.ui->m_labelIcon->maximumSize(), QSize(16, 16));
    QCOMPARE(row.ui->m_labelBlank->maximumSize(), QSize(16, 16));
    QCOMPARE(row.ui->m_labelShortCut->maximumHeight(), size.height());
    if (shortcutWidth >= 0 && shortcutWidth < 1000) {
        QCOMPARE(row.ui->m_labelShortCut->minimumSize(), QSize(shortcutWidth + 5, height));
    }
}

void CCustomMenuItemTest::chooseFocusTellsFirstAndAlsoWithoutChange()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, {}, {}, {}, false);
    QList<QPair<bool, bool>> told;
    connect(&row, &CCustomMenuItem::SignalFocusChanged, this, [&](bool focus) {
        told.append({focus, row.m_bChooseFocus});
    });
    row.SetChooseFocus(false);
    row.SetChooseFocus(true);
    row.SetChooseFocus(true);
    const QList<QPair<bool, bool>> expected = {{false, false}, {true, false}, {true, true}};
    QCOMPARE(told, expected);
    QVERIFY(row.m_bChooseFocus);
}

void CCustomMenuItemTest::chooseFocusSetsEverySheet()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, {}, {}, {}, true);
    row.SetMenuStyle(MenuStyleWhite);
    QCOMPARE(row.ui->m_labelArrow->styleSheet(), QString());
    Send(&row, QEvent::Enter);
    row.SetChooseFocus(true);
    QCOMPARE(row.ui->m_labelBlank->styleSheet(), QString::fromLatin1(kTransparent));
    QCOMPARE(row.ui->m_labelIcon->styleSheet(), QString::fromLatin1(kTransparent));
    QCOMPARE(row.ui->m_labelArrow->styleSheet(), QString::fromLatin1(kTransparent));
    QCOMPARE(row.ui->m_labelShortCut->styleSheet(), QString::fromLatin1(kShortcutRest));
    QCOMPARE(row.ui->m_labelText->styleSheet(), TextSheet(QStringLiteral("#FFFFFF")));
    QCOMPARE(row.ui->widget->styleSheet(), StateSheet(QStringLiteral("#0071bc")));
    row.SetChooseFocus(false);
    QCOMPARE(row.ui->m_labelText->styleSheet(), TextSheet(QStringLiteral("#202020")));
    QCOMPARE(row.ui->widget->styleSheet(), StateSheet(QStringLiteral("#FFFFFF")));
}

void CCustomMenuItemTest::iconFollowsTheState()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, m_strRest, m_strHover, m_strDisabled, false);
    row.SetEnabled(false);
    QVERIFY(!row.isEnabled());
    QCOMPARE(ColorOf(row.ui->m_labelIcon), QStringLiteral("#0000ff"));
    row.SetEnabled(true);
    QVERIFY(row.isEnabled());
    QCOMPARE(ColorOf(row.ui->m_labelIcon), QStringLiteral("#ff0000"));

    row.show();
    QVERIFY(QTest::qWaitForWindowExposed(&row));
    QCursor::setPos(row.mapToGlobal(row.rect().center()));
    row.SetEnabled(false);
    QCOMPARE(ColorOf(row.ui->m_labelIcon), QStringLiteral("#0000ff"));
    row.SetEnabled(true);
    QCOMPARE(ColorOf(row.ui->m_labelIcon), QStringLiteral("#00ff00"));
}

void CCustomMenuItemTest::enterAndLeaveSwapSheetsAndIcon()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), QStringLiteral("b"), m_strRest, m_strHover, m_strDisabled, false);
    Send(&row, QEvent::Enter);
    QCOMPARE(row.ui->widget->styleSheet(), StateSheet(QStringLiteral("#016ACB")));
    QCOMPARE(row.ui->m_labelShortCut->styleSheet(), QStringLiteral("color:#ebebeb;background:transparent;"));
    QCOMPARE(ColorOf(row.ui->m_labelIcon), QStringLiteral("#00ff00"));
    Send(&row, QEvent::Leave);
    QCOMPARE(row.ui->widget->styleSheet(), StateSheet(QStringLiteral("#181818")));
    QCOMPARE(row.ui->m_labelShortCut->styleSheet(), QString::fromLatin1(kShortcutRest));
    QCOMPARE(ColorOf(row.ui->m_labelIcon), QStringLiteral("#ff0000"));
}

void CCustomMenuItemTest::chosenRowStaysMarkedAfterLeave()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), QStringLiteral("b"), m_strRest, m_strHover, m_strDisabled, false);
    Send(&row, QEvent::Enter);
    row.SetChooseFocus(true);
    Send(&row, QEvent::Leave);
    QCOMPARE(row.ui->widget->styleSheet(), StateSheet(QStringLiteral("#016ACB")));
    QCOMPARE(ColorOf(row.ui->m_labelIcon), QStringLiteral("#00ff00"));
    QCOMPARE(row.ui->m_labelShortCut->styleSheet(), QString::fromLatin1(kShortcutRest));
}

void CCustomMenuItemTest::disabledRowIgnoresEnterAndShowsItsIconOnLeave()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), QStringLiteral("b"), m_strRest, m_strHover, m_strDisabled, false);
    const QString sheet = row.ui->widget->styleSheet();
    row.SetEnabled(false);
    Send(&row, QEvent::Enter);
    QCOMPARE(row.ui->widget->styleSheet(), sheet);
    QCOMPARE(row.ui->m_labelShortCut->styleSheet(), QString::fromLatin1(kShortcutRest));
    row.ui->m_labelIcon->setPixmap(QPixmap());
    Send(&row, QEvent::Leave);
    QCOMPARE(ColorOf(row.ui->m_labelIcon), QStringLiteral("#0000ff"));
    QCOMPARE(row.ui->widget->styleSheet(), StateSheet(QStringLiteral("#181818")));
}

void CCustomMenuItemTest::emptyRestIconGivesANullPixmap()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, {}, m_strHover, {}, false);
    QVERIFY(row.ui->m_labelIcon->pixmap().isNull());
    Send(&row, QEvent::Enter);
    QCOMPARE(ColorOf(row.ui->m_labelIcon), QStringLiteral("#00ff00"));
    Send(&row, QEvent::Leave);
    QVERIFY(row.ui->m_labelIcon->pixmap().isNull());

    CCustomMenuItem missing(nullptr, QStringLiteral("a"), {}, QStringLiteral("/nowhere/a.png"), {}, {}, false);
    QVERIFY(missing.ui->m_labelIcon->pixmap().isNull());
}

void CCustomMenuItemTest::hiddenIconLeavesItsColumnToTheBlank()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, m_strRest, {}, {}, false);
    row.SetItemSize(0, 24, 60, 0);
    row.show();
    QVERIFY(QTest::qWaitForWindowExposed(&row));
    const int column = row.ui->m_labelText->x();
    row.SetIconVisible(false);
    QVERIFY(!row.IsIconVisible());
    QCOMPARE(row.ui->m_labelIcon->property("icon_show"), QVariant(false));
    QVERIFY(row.ui->m_labelIcon->isHidden());
    QVERIFY(row.ui->m_labelBlank->isVisible());
    QCoreApplication::processEvents();
    QCOMPARE(row.ui->m_labelText->x(), column);
    row.SetIconVisible(true);
    QVERIFY(row.IsIconVisible());
    QVERIFY(row.ui->m_labelIcon->isVisible());
    QVERIFY(row.ui->m_labelBlank->isHidden());
}

void CCustomMenuItemTest::stateRowUsesTheIconAsCheckMark()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, m_strRest, {}, {}, false);
    row.SetBtnState(false, true);
    QVERIFY(row.IsStateButton());
    QVERIFY(!row.GetBtnState());
    QVERIFY(row.ui->m_labelIcon->isHidden());
    row.SetBtnState(true, true);
    QVERIFY(row.GetBtnState());
    row.SetBtnState(true, false);
    QVERIFY(!row.IsStateButton());
    QVERIFY(row.IsIconVisible());
}

void CCustomMenuItemTest::hiddenWhileChosenTellsTheLoss()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, {}, {}, {}, false);
    row.show();
    row.SetChooseFocus(true);
    QSignalSpy spy(&row, &CCustomMenuItem::SignalFocusChanged);
    row.hide();
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toBool(), false);
    row.show();
    row.hide();
    QCOMPARE(spy.count(), 1);
}

void CCustomMenuItemTest::anyButtonsReleaseCounts_data()
{
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::newRow("left") << Qt::LeftButton;
    QTest::newRow("right") << Qt::RightButton;
    QTest::newRow("middle") << Qt::MiddleButton;
    QTest::newRow("back") << Qt::BackButton;
}

void CCustomMenuItemTest::anyButtonsReleaseCounts()
{
    QFETCH(Qt::MouseButton, button);
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, {}, {}, {}, false);
    QSignalSpy spy(&row, &CCustomMenuItem::SignalMenuItemClicked);
    QTest::mousePress(&row, button);
    QCOMPARE(spy.count(), 0);
    QTest::mouseRelease(&row, button);
    QCOMPARE(spy.count(), 1);
}

void CCustomMenuItemTest::releaseOutsideStillCounts()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, {}, {}, {}, false);
    QSignalSpy spy(&row, &CCustomMenuItem::SignalMenuItemClicked);
    QTest::mousePress(&row, Qt::LeftButton);
    QTest::mouseRelease(&row, Qt::LeftButton, {}, QPoint(-50, 900));
    QCOMPARE(spy.count(), 1);
}

namespace {

class MouseCounter : public QWidget
{
public:
    int m_iPresses = 0;
    int m_iMoves = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++m_iPresses; }
    void mouseMoveEvent(QMouseEvent*) override { ++m_iMoves; }
};

} // namespace

void CCustomMenuItemTest::pressDoesNotReachTheParent()
{
    MouseCounter parent;
    CCustomMenuItem row(&parent, QStringLiteral("a"), {}, {}, {}, {}, false);
    QTest::mousePress(&row, Qt::LeftButton);
    QCOMPARE(parent.m_iPresses, 0);
    row.SetEnabled(false);
    QTest::mousePress(&row, Qt::LeftButton);
    QCOMPARE(parent.m_iPresses, 0);
}

void CCustomMenuItemTest::movesDoNotReachTheParent()
{
    MouseCounter parent;
    parent.setMouseTracking(true);
    CCustomMenuItem row(&parent, QStringLiteral("a"), {}, {}, {}, {}, false);
    parent.show();
    QVERIFY(QTest::qWaitForWindowExposed(&parent));
    QTest::mouseMove(&row, QPoint(5, 5));
    QTest::mouseMove(&row, QPoint(6, 6));
    QCOMPARE(parent.m_iMoves, 0);
}

void CCustomMenuItemTest::disabledOrSubMenuRowEmitsNothing()
{
    CCustomMenuItem disabled(nullptr, QStringLiteral("a"), {}, {}, {}, {}, false);
    QSignalSpy spy(&disabled, &CCustomMenuItem::SignalMenuItemClicked);
    disabled.SetEnabled(false);
    QTest::mouseClick(&disabled, Qt::LeftButton);
    QCOMPARE(spy.count(), 0);
    disabled.SetEnabled(true);
    QTest::mouseClick(&disabled, Qt::LeftButton);
    QCOMPARE(spy.count(), 1);

    CCustomMenuItem opener(nullptr, QStringLiteral("a"), {}, {}, {}, {}, true);
    QSignalSpy openerSpy(&opener, &CCustomMenuItem::SignalMenuItemClicked);
    QTest::mouseClick(&opener, Qt::LeftButton);
    QCOMPARE(openerSpy.count(), 0);
}

void CCustomMenuItemTest::arrowStandsOnlyOnSubMenuRows()
{
    CCustomMenuItem plain(nullptr, QStringLiteral("a"), {}, {}, {}, {}, false);
    plain.SetChooseFocus(true);
    QVERIFY(plain.ui->m_labelArrow->pixmap().isNull());
    // The host brings the arrow's file; without it there is no arrow and no message.
    CCustomMenuItem opener(nullptr, QStringLiteral("a"), {}, {}, {}, {}, true);
    const bool supplied = QFile::exists(QStringLiteral(":/icon/ico_scan_slip_right.png"));
    QCOMPARE(opener.ui->m_labelArrow->pixmap().isNull(), !supplied);
    opener.m_iconArrow = QIcon(m_strRest);
    opener.SetChooseFocus(true);
    QCOMPARE(ColorOf(opener.ui->m_labelArrow), QStringLiteral("#ff0000"));
    QCOMPARE(opener.ui->m_labelArrow->pixmap().deviceIndependentSize(), QSizeF(10, 10));
}

void CCustomMenuItemTest::deletedFromItsOwnClick()
{
    QWidget window;
    QPointer<CCustomMenuItem> row = new CCustomMenuItem(&window, QStringLiteral("a"), {}, {}, {}, {}, false);
    connect(row, &CCustomMenuItem::SignalMenuItemClicked, this, [row] { delete row; });
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QTest::mouseClick(window.windowHandle(), Qt::LeftButton, {}, QPoint(5, 5));
    QVERIFY(row.isNull());
}

void CCustomMenuItemTest::deletedFromItsOwnFocusChange()
{
    QPointer<CCustomMenuItem> row = new CCustomMenuItem(nullptr, QStringLiteral("a"), {}, {}, {}, {}, false);
    connect(row, &CCustomMenuItem::SignalFocusChanged, this, [row] { delete row; });
    row->SetChooseFocus(true);
    QVERIFY(row.isNull());
}

void CCustomMenuItemTest::strangeTextsAreKept_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("line feeds") << QStringLiteral("a\nb\r\nc");
    QTest::newRow("long") << QString(10000, QLatin1Char('x'));
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d (abc)");
}

void CCustomMenuItemTest::strangeTextsAreKept()
{
    QFETCH(QString, text);
    CCustomMenuItem row(nullptr, text, text, {}, {}, {}, false);
    QCOMPARE(row.text(), text);
    row.SetItemSize(144, 24, 100000, 100000);
    QCOMPARE(row.size(), QSize(200069, 24));
    row.SetItemSize(144, 24, 0, 0);
    QVERIFY(!row.grab().isNull());
    row.SetText(QStringLiteral("short"));
    QCOMPARE(row.text(), QStringLiteral("short"));
}

void CCustomMenuItemTest::filterOfAnotherObjectDoesNothing()
{
    CCustomMenuItem row(nullptr, QStringLiteral("a"), {}, {}, {}, {}, false);
    QWidget other;
    other.installEventFilter(&row);
    QSignalSpy spy(&row, &CCustomMenuItem::SignalMenuItemClicked);
    QTest::mouseClick(&other, Qt::LeftButton);
    Send(&other, QEvent::Enter);
    QCOMPARE(spy.count(), 0);
    QVERIFY(row.ui->widget->styleSheet().contains(QLatin1String("::hover")));
}

CUSTOMCONTROLS_TEST_MAIN(CCustomMenuItemTest)
#include "CCustomMenuItemTest.moc"
