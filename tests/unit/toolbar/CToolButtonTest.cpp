#include <CustomControls/toolbar/CToolButton.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/StatefulIcon.h>

#include <tests/support/Painted.h>
#include <tests/support/TestMain.h>

#include <QHBoxLayout>
#include <QHoverEvent>
#include <QMenu>
#include <QPainter>
#include <QSignalSpy>
#include <QTemporaryDir>

using Painted::Over;

namespace {

const QColor kRed(255, 0, 0);
const QColor kBlue(0, 0, 255);
const QColor kSolid(73, 135, 89, 255);
const QColor kActive(73, 135, 89, 102);
const QColor kHover(73, 135, 89, 51);
const QColor kDark(51, 51, 51);
const QColor kGrey(188, 188, 188);

class Counter : public QObject
{
public:
    Counter(QObject* watched, QEvent::Type type)
        : m_type(type)
    {
        watched->installEventFilter(this);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        m_count += event->type() == m_type ? 1 : 0;
        return false;
    }
    int m_count = 0;

private:
    QEvent::Type m_type;
};

void Hover(CToolButton& button, bool inside)
{
    button.setAttribute(Qt::WA_UnderMouse, inside);
    QHoverEvent event(inside ? QEvent::HoverEnter : QEvent::HoverLeave, QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QCoreApplication::sendEvent(&button, &event);
}

void Press(CToolButton& button, QEvent::Type type)
{
    QMouseEvent event(type, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&button, &event);
}

} // namespace

class CToolButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void newButtonIsPlain();
    void withoutCaptionTheSizeIsFixed();
    void captionLinesGiveTheHeight_data();
    void captionLinesGiveTheHeight();
    void heightFollowsTheButtonsOwnFont();
    void widthIsTheWidestOfThree_data();
    void widthIsTheWidestOfThree();
    void sameValueAsksForNoNewLayout();
    void eventsKeepTheFlags();
    void hoverFlagOutlivesDisabling();
    void foreignEventsPassUntouched();
    void pressOnDisabledButtonIsTold();
    void disabledButtonMayDieWhenItTells();
    void fillTellsTheState_data();
    void fillTellsTheState();
    void cornersAreRoundWithRadiusFive();
    void menuOpenFillsThoughThePointerHasLeft();
    void holdingAButtonWithClosedMenuFillsAsHover();
    void focusStateTogglesAndCoversTheHighlight();
    void enabledAndDisabledShowTheirOwnPicture();
    void iconStandsCentredAndFourBelowTheTop_data();
    void iconStandsCentredAndFourBelowTheTop();
    void captionWearsTheColourOfItsState_data();
    void captionWearsTheColourOfItsState();
    void captionStandsBelowTheIcon();
    void menuMovesTheCaptionToTheLeft();
    void longCaptionWraps();
    void arrowShowsOnlyWithAMenu();
    void arrowOnALowButtonIsCutTowardZero();
    void textColorChangesNothing();
    void badHighlightPaintsNothingAndIsSilent();
    void selectionRepaintsAtOnce();
    void missingPictureLeavesTheCaption();
    void hugeCaptionIsHarmless();

private:
    QIcon MakeIcon() const { return StatefulIcon::create(m_strOn, m_strOff, 32); }

    QTemporaryDir m_folder;
    QString m_strOn;
    QString m_strOff;
};

void CToolButtonTest::initTestCase()
{
    m_strOn = m_folder.filePath(QStringLiteral("on.png"));
    m_strOff = m_folder.filePath(QStringLiteral("off.png"));
    QImage image(32, 32, QImage::Format_ARGB32);
    image.fill(kRed);
    QVERIFY(image.save(m_strOn));
    image.fill(kBlue);
    QVERIFY(image.save(m_strOff));
}

void CToolButtonTest::newButtonIsPlain()
{
    CToolButton button(nullptr);
    QCOMPARE(button.m_nSharedWidth, 0);
    QCOMPARE(button.m_nSharedTextLines, 1);
    QCOMPARE(button.SharedTextLines(), 1);
    QVERIFY(!button.m_bHovered && !button.m_bPressed && !button.m_bFocusState);
    QVERIFY(!button.IsVerticalBtn());
    QCOMPARE(button.font().pixelSize(), FontCnMedium_13.pixelSize());
    QCOMPARE(button.font().weight(), FontCnMedium_13.weight());
}

void CToolButtonTest::withoutCaptionTheSizeIsFixed()
{
    CToolButton button(nullptr);
    button.setIconSize(QSize(128, 128));
    button.SetSharedWidth(300);
    button.SetSharedTextLines(3);
    QMenu menu;
    button.setMenu(&menu);
    QCOMPARE(button.sizeHint(), QSize(35, 41));
    QCOMPARE(button.minimumSizeHint(), QSize(35, 41));
}

void CToolButtonTest::captionLinesGiveTheHeight_data()
{
    QTest::addColumn<int>("lines");
    QTest::addColumn<int>("stored");
    QTest::newRow("-3") << -3 << 1;
    QTest::newRow("0") << 0 << 1;
    QTest::newRow("1") << 1 << 1;
    QTest::newRow("2") << 2 << 2;
    QTest::newRow("3") << 3 << 3;
}

void CToolButtonTest::captionLinesGiveTheHeight()
{
    QFETCH(int, lines);
    QFETCH(int, stored);
    CToolButton button(nullptr);
    button.setText(QStringLiteral("Mill"));
    button.SetSharedTextLines(lines);
    QCOMPARE(button.SharedTextLines(), stored);
    QCOMPARE(button.sizeHint().height(), 56 + (stored - 1) * button.fontMetrics().lineSpacing());
}

void CToolButtonTest::heightFollowsTheButtonsOwnFont()
{
    CToolButton button(nullptr);
    button.setText(QStringLiteral("Mill"));
    button.SetSharedTextLines(2);
    const int before = button.sizeHint().height();
    QFont font = button.font();
    font.setPixelSize(40);
    button.setFont(font);
    QCOMPARE(button.sizeHint().height(), 56 + QFontMetrics(font).lineSpacing());
    QVERIFY(button.sizeHint().height() > before);
}

void CToolButtonTest::widthIsTheWidestOfThree_data()
{
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("shared");
    QTest::addColumn<bool>("withMenu");
    QTest::addColumn<int>("width");
    QTest::newRow("least") << 20 << 0 << false << 56;
    QTest::newRow("least, menu") << 20 << 0 << true << 64;
    QTest::newRow("icon") << 60 << 50 << false << 68;
    QTest::newRow("icon, menu") << 60 << 50 << true << 76;
    QTest::newRow("shared") << 60 << 90 << false << 98;
    QTest::newRow("shared, menu") << 60 << 90 << true << 106;
    QTest::newRow("negative") << 20 << -90 << false << 56;
}

void CToolButtonTest::widthIsTheWidestOfThree()
{
    QFETCH(int, icon);
    QFETCH(int, shared);
    QFETCH(bool, withMenu);
    CToolButton button(nullptr);
    QMenu menu;
    button.setText(QStringLiteral("A caption that is far wider than the button asks for"));
    button.setIconSize(QSize(icon, 10));
    button.SetSharedWidth(shared);
    if (withMenu) {
        button.setMenu(&menu);
    }
    QTEST(button.sizeHint().width(), "width");
}

void CToolButtonTest::sameValueAsksForNoNewLayout()
{
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    auto* button = new CToolButton(nullptr);
    button->setText(QStringLiteral("Mill"));
    layout->addWidget(button);
    window.show();
    QCoreApplication::processEvents();
    const Counter requests(&window, QEvent::LayoutRequest);

    button->SetSharedWidth(80);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(requests.m_count, 1);
    button->SetSharedWidth(80);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(requests.m_count, 1);

    button->SetSharedTextLines(2);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(requests.m_count, 2);
    button->SetSharedTextLines(2);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(requests.m_count, 2);
}

void CToolButtonTest::eventsKeepTheFlags()
{
    CToolButton button(nullptr);
    button.resize(60, 60);
    Hover(button, true);
    QVERIFY(button.m_bHovered);
    Press(button, QEvent::MouseButtonPress);
    QVERIFY(button.m_bPressed);
    Press(button, QEvent::MouseButtonRelease);
    QVERIFY(!button.m_bPressed);
    Hover(button, false);
    QVERIFY(!button.m_bHovered);
    button.SetSelected(true);
    QVERIFY(button.m_bHovered);
    button.ClearHover();
    QVERIFY(!button.m_bHovered);
    button.SetSelected(true);
    button.SetSelected(false);
    QVERIFY(!button.m_bHovered);
}

void CToolButtonTest::hoverFlagOutlivesDisabling()
{
    CToolButton button(nullptr);
    button.resize(60, 60);
    Hover(button, true);
    button.setEnabled(false);
    QVERIFY(button.m_bHovered);
    COMPARE_COLOR(Painted::Of(button), 30, 50, Painted::kGround);
    Hover(button, false);
    QVERIFY(!button.m_bHovered);
}

void CToolButtonTest::foreignEventsPassUntouched()
{
    CToolButton button(nullptr);
    QWidget other;
    QEvent enter(QEvent::HoverEnter);
    QEvent press(QEvent::MouseButtonPress);
    QVERIFY(!button.eventFilter(&other, &enter));
    QVERIFY(!button.eventFilter(&other, &press));
    QVERIFY(!button.m_bHovered && !button.m_bPressed);
    QVERIFY(!button.eventFilter(&button, &enter));
    QVERIFY(button.m_bHovered);
}

void CToolButtonTest::pressOnDisabledButtonIsTold()
{
    CToolButton button(nullptr);
    const QSignalSpy told(&button, &CToolButton::SignalBtnDisabledClick);
    const QSignalSpy clicked(&button, &QToolButton::clicked);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    button.eventFilter(&button, &press);
    QCOMPARE(told.size(), 0);
    button.setEnabled(false);
    QTest::ignoreMessage(QtDebugMsg, " disabled btn clicked");
    Press(button, QEvent::MouseButtonPress);
    Press(button, QEvent::MouseButtonRelease);
    QCOMPARE(told.size(), 1);
    QCOMPARE(clicked.size(), 0);
}

void CToolButtonTest::disabledButtonMayDieWhenItTells()
{
    QWidget window;
    const QPointer<CToolButton> button = new CToolButton(&window);
    button->setEnabled(false);
    connect(button, &CToolButton::SignalBtnDisabledClick, &window, [button] { delete button; });
    QTest::ignoreMessage(QtDebugMsg, " disabled btn clicked");
    Press(*button, QEvent::MouseButtonPress);
    QVERIFY(!button);
    // One that lives on takes nothing away from the press.
    CToolButton other(&window);
    other.setEnabled(false);
    QEvent press(QEvent::MouseButtonPress);
    QTest::ignoreMessage(QtDebugMsg, " disabled btn clicked");
    QVERIFY(!other.eventFilter(&other, &press));
}

void CToolButtonTest::fillTellsTheState_data()
{
    QTest::addColumn<QString>("highlight");
    QTest::addColumn<QString>("flags"); // of: focus checked pressed hover disabled mouse(not over)
    QTest::addColumn<QList<QColor>>("fills");
    const QColor gold(0xff, 0xcc, 0x00);
    QTest::newRow("idle") << QString() << QString() << QList<QColor>{};
    QTest::newRow("hover") << QString() << "h" << QList<QColor>{kHover};
    QTest::newRow("hover without the flag") << QString() << "u" << QList<QColor>{};
    QTest::newRow("flag without the pointer") << QString() << "s" << QList<QColor>{};
    QTest::newRow("pressed") << QString() << "hp" << QList<QColor>{kActive};
    QTest::newRow("pressed and left") << QString() << "p" << QList<QColor>{};
    QTest::newRow("checked") << QString() << "c" << QList<QColor>{kActive};
    QTest::newRow("checked and hovered") << QString() << "ch" << QList<QColor>{kActive};
    QTest::newRow("focus") << QString() << "f" << QList<QColor>{kSolid};
    QTest::newRow("focus, checked, pressed") << QString() << "fchp" << QList<QColor>{kSolid};
    QTest::newRow("disabled and hovered") << QString() << "hd" << QList<QColor>{};
    QTest::newRow("disabled and pressed") << QString() << "hpd" << QList<QColor>{};
    QTest::newRow("disabled and checked") << QString() << "cd" << QList<QColor>{kActive};
    QTest::newRow("highlight") << "#ffcc00" << QString() << QList<QColor>{gold};
    QTest::newRow("highlight and hover") << "#ffcc00"
                                         << "h" << QList<QColor>{gold, kHover};
    QTest::newRow("highlight and checked") << "#ffcc00"
                                           << "c" << QList<QColor>{gold, kActive};
    QTest::newRow("highlight and focus") << "#ffcc00"
                                         << "f" << QList<QColor>{gold, kSolid};
    QTest::newRow("highlight with alpha") << "#80ffcc00" << QString() << QList<QColor>{QColor(255, 204, 0, 128)};
    QTest::newRow("no colour") << "no colour"
                               << "h" << QList<QColor>{kHover};
}

void CToolButtonTest::fillTellsTheState()
{
    QFETCH(QString, highlight);
    QFETCH(QString, flags);
    QFETCH(QList<QColor>, fills);
    CToolButton button(nullptr);
    button.resize(60, 60);
    if (!highlight.isEmpty()) {
        button.setProperty("highlight", highlight);
    }
    button.setCheckable(true);
    button.setChecked(flags.contains('c'));
    if (flags.contains('h')) {
        Hover(button, true);
    }
    button.setAttribute(Qt::WA_UnderMouse, flags.contains('u') || flags.contains('h'));
    if (flags.contains('s')) {
        button.SetSelected(true);
    }
    button.m_bPressed = flags.contains('p');
    if (flags.contains('f')) {
        button.SetFocuseState();
    }
    button.setEnabled(!flags.contains('d'));

    const QColor ground(200, 100, 50);
    QColor expected = ground;
    for (const QColor& fill : fills) {
        expected = Over(fill, expected);
    }
    const QImage image = Painted::Of(button, ground);
    COMPARE_COLOR(image, 30, 50, expected);
    COMPARE_COLOR(image, 0, 30, expected);
    COMPARE_COLOR(image, 59, 30, expected);
    COMPARE_COLOR(image, 30, 0, expected);
    COMPARE_COLOR(image, 30, 59, expected);
}

void CToolButtonTest::cornersAreRoundWithRadiusFive()
{
    CToolButton button(nullptr);
    button.resize(60, 60);
    button.SetFocuseState();
    const QImage image = Painted::Of(button);
    for (const QPoint& corner : {QPoint(0, 0), QPoint(59, 0), QPoint(0, 59), QPoint(59, 59)}) {
        const int right = corner.x() ? -1 : 1;
        const int down = corner.y() ? -1 : 1;
        COMPARE_COLOR(image, corner.x(), corner.y(), Painted::kGround);
        COMPARE_COLOR(image, corner.x() + right, corner.y(), Painted::kGround);
        COMPARE_COLOR(image, corner.x(), corner.y() + down, Painted::kGround);
        COMPARE_COLOR(image, corner.x() + 2 * right, corner.y() + 2 * down, kSolid);
        COMPARE_COLOR(image, corner.x() + 6 * right, corner.y(), kSolid);
        // Half way round a radius of 5 the edge runs through this pixel.
        const QColor edge = image.pixelColor(corner.x() + right, corner.y() + down);
        QVERIFY(!Painted::Near(edge, kSolid, 20) && !Painted::Near(edge, Painted::kGround, 20));
    }
}

void CToolButtonTest::menuOpenFillsThoughThePointerHasLeft()
{
    CToolButton button(nullptr);
    button.resize(60, 60);
    QMenu menu;
    menu.addAction(QStringLiteral("one"));
    button.setMenu(&menu);
    menu.popup(QPoint(300, 300));
    QVERIFY(menu.isVisible());
    COMPARE_COLOR(Painted::Of(button), 20, 50, Over(kActive));
    button.setEnabled(false);
    COMPARE_COLOR(Painted::Of(button), 20, 50, Over(kActive));
    menu.hide();
    COMPARE_COLOR(Painted::Of(button), 20, 50, Painted::kGround);
}

void CToolButtonTest::holdingAButtonWithClosedMenuFillsAsHover()
{
    CToolButton button(nullptr);
    button.resize(60, 60);
    QMenu menu;
    button.setMenu(&menu);
    Hover(button, true);
    button.m_bPressed = true;
    COMPARE_COLOR(Painted::Of(button), 20, 50, Over(kHover));
}

void CToolButtonTest::focusStateTogglesAndCoversTheHighlight()
{
    CToolButton button(nullptr);
    button.resize(60, 60);
    button.setProperty("highlight", QStringLiteral("red"));
    button.SetFocuseState();
    COMPARE_COLOR(Painted::Of(button), 30, 50, kSolid);
    // Both fills are drawn, so their edges mix: the corner is redder than the green alone would be.
    QVERIFY(Painted::Of(button).pixelColor(1, 1).red() > Over(QColor(73, 135, 89, 128)).red());
    button.SetFocuseState();
    COMPARE_COLOR(Painted::Of(button), 30, 50, kRed);
}

void CToolButtonTest::enabledAndDisabledShowTheirOwnPicture()
{
    CToolButton button(nullptr);
    button.resize(60, 60);
    button.setIcon(MakeIcon());
    button.setIconSize(QSize(32, 32));
    button.setCheckable(true);
    for (const bool checked : {false, true}) {
        button.setChecked(checked);
        button.setEnabled(true);
        QCOMPARE(Painted::Extent(Painted::Of(button), kRed), QRect(14, 4, 32, 32));
        button.setEnabled(false);
        QCOMPARE(Painted::Extent(Painted::Of(button), kBlue), QRect(14, 4, 32, 32));
    }
}

void CToolButtonTest::iconStandsCentredAndFourBelowTheTop_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<QSize>("icon");
    QTest::addColumn<bool>("withMenu");
    QTest::addColumn<int>("left");
    QTest::newRow("even") << 60 << QSize(32, 32) << false << 14;
    QTest::newRow("odd is cut") << 61 << QSize(32, 32) << false << 14;
    QTest::newRow("menu takes 8") << 60 << QSize(32, 32) << true << 10;
    QTest::newRow("menu, odd") << 61 << QSize(32, 32) << true << 10;
    QTest::newRow("narrow is cut toward zero") << 21 << QSize(32, 32) << false << -5;
    QTest::newRow("target has the icon's size") << 60 << QSize(20, 24) << false << 20;
    QTest::newRow("picture fills a larger target") << 60 << QSize(40, 44) << false << 10;
}

void CToolButtonTest::iconStandsCentredAndFourBelowTheTop()
{
    QFETCH(int, width);
    QFETCH(QSize, icon);
    QFETCH(bool, withMenu);
    QFETCH(int, left);
    CToolButton button(nullptr);
    QMenu menu;
    button.resize(width, 60);
    button.setIcon(MakeIcon());
    button.setIconSize(icon);
    if (withMenu) {
        button.setMenu(&menu);
    }
    QCOMPARE(Painted::Extent(Painted::Of(button), kRed), QRect(QPoint(left, 4), icon) & button.rect());
}

void CToolButtonTest::captionWearsTheColourOfItsState_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("highlight");
    QTest::addColumn<QColor>("color");
    QTest::newRow("enabled") << true << QString() << kDark;
    QTest::newRow("enabled, light") << true << "#ffffff" << kDark;
    QTest::newRow("enabled, dark") << true << "#000080" << kDark;
    QTest::newRow("disabled") << false << QString() << kGrey;
    QTest::newRow("disabled, light") << false << "#ffffff" << kGrey;
    QTest::newRow("disabled, dark") << false << "#000080" << kDark;
    QTest::newRow("disabled, no colour") << false << "nonsense" << kGrey;
    // Grey 129 has a luminance of 0.2195, grey 130 one of 0.2232.
    QTest::newRow("disabled, just dark") << false << "#818181" << kDark;
    QTest::newRow("disabled, just light") << false << "#828282" << kGrey;
    // The channels weigh differently: full red is 0.2126, full green 0.7152, full blue 0.0722.
    QTest::newRow("disabled, red") << false << "#ff0000" << kDark;
    QTest::newRow("disabled, green") << false << "#00ff00" << kGrey;
    QTest::newRow("disabled, blue") << false << "#0000ff" << kDark;
    QTest::newRow("disabled, black") << false << "#000000" << kDark;
}

void CToolButtonTest::captionWearsTheColourOfItsState()
{
    QFETCH(bool, enabled);
    QFETCH(QString, highlight);
    QFETCH(QColor, color);
    CToolButton button(nullptr);
    button.resize(80, 60);
    button.setIconSize(QSize(16, 16));
    button.setText(Painted::Blocks(2));
    button.setProperty("highlight", highlight);
    button.setEnabled(enabled);
    const QImage image = Painted::Of(button);
    QVERIFY(!Painted::Extent(image, color, 0).isNull());
    const QColor other = color == kDark ? kGrey : kDark;
    QVERIFY(Painted::Extent(image, other, 0).isNull());
}

void CToolButtonTest::captionStandsBelowTheIcon()
{
    CToolButton button(nullptr);
    button.resize(90, 100);
    button.setText(Painted::Blocks(2));
    button.setIconSize(QSize(16, 16));
    const QRect high = Painted::Extent(Painted::Of(button), kDark, 0);
    QVERIFY(high.top() >= 26);
    QVERIFY(high.top() < 26 + button.fontMetrics().height());
    QVERIFY(std::abs(high.left() - (89 - high.right())) <= 1);
    button.setIconSize(QSize(32, 32));
    QCOMPARE(Painted::Extent(Painted::Of(button), kDark, 0), high.translated(0, 16));
}

void CToolButtonTest::menuMovesTheCaptionToTheLeft()
{
    CToolButton button(nullptr);
    button.resize(90, 100);
    button.setText(Painted::Blocks(2));
    button.setIconSize(QSize(16, 16));
    const QRect before = Painted::Extent(Painted::Of(button), kDark, 0);
    QMenu menu;
    button.setMenu(&menu);
    QImage image = Painted::Of(button);
    QCOMPARE(Painted::Extent(image.copy(0, 0, 70, 100), kDark, 0), before.translated(-4, 0));
}

void CToolButtonTest::longCaptionWraps()
{
    CToolButton button(nullptr);
    button.resize(60, 120);
    button.setIconSize(QSize(16, 16));
    button.setText(Painted::Blocks(2));
    const QRect one = Painted::Extent(Painted::Of(button), kDark, 0);
    button.setText(Painted::Blocks(3) + QLatin1Char(' ') + Painted::Blocks(3));
    const QRect two = Painted::Extent(Painted::Of(button), kDark, 0);
    QCOMPARE(two.top(), one.top());
    QVERIFY(two.height() >= one.height() + button.fontMetrics().lineSpacing() - 2);
    button.setText(Painted::Blocks(1) + QLatin1Char('\n') + Painted::Blocks(1));
    QCOMPARE(Painted::Extent(Painted::Of(button), kDark, 0).height(), two.height());
}

void CToolButtonTest::arrowShowsOnlyWithAMenu()
{
    CToolButton button(nullptr);
    button.resize(60, 60);
    const QImage without = Painted::Of(button);
    QMenu menu;
    button.setMenu(&menu);
    const QImage with = Painted::Of(button);
    const QRect place(46, 23, 12, 13);
    const QRect changed = Painted::Difference(without, with);
    QVERIFY(!changed.isNull());
    QVERIFY(place.contains(changed));

    QImage expected(60, 60, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Painted::kGround);
    QPainter painter(&expected);
    painter.drawImage(place, QImage(QStringLiteral(":/icon/ico_current_arrow_down_nor.png")));
    painter.end();
    QCOMPARE(with, expected.convertToFormat(QImage::Format_RGB32));
}

void CToolButtonTest::arrowOnALowButtonIsCutTowardZero()
{
    QMenu menu;
    CToolButton button(nullptr);
    button.setMenu(&menu);
    button.resize(60, 10);
    // (10 - 13) / 2 is -1, not -2.
    QImage expected(60, 10, QImage::Format_ARGB32_Premultiplied);
    expected.fill(Painted::kGround);
    QPainter painter(&expected);
    painter.drawImage(QRect(46, -1, 12, 13), QImage(QStringLiteral(":/icon/ico_current_arrow_down_nor.png")));
    painter.end();
    QCOMPARE(Painted::Of(button), expected.convertToFormat(QImage::Format_RGB32));
}

void CToolButtonTest::textColorChangesNothing()
{
    CToolButton button(nullptr);
    button.resize(80, 60);
    button.setText(Painted::Blocks(2));
    const QImage before = Painted::Of(button);
    button.setProperty("textColor", QStringLiteral("#ff0000"));
    QCOMPARE(Painted::Of(button), before);
}

void CToolButtonTest::badHighlightPaintsNothingAndIsSilent()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    CToolButton button(nullptr);
    button.resize(60, 60);
    for (const QVariant& bad : {QVariant(QStringLiteral("#12345")), QVariant(QStringLiteral("no such colour")),
                                QVariant(QString(10000, QLatin1Char('x'))), QVariant(42), QVariant()}) {
        button.setProperty("highlight", bad);
        COMPARE_COLOR(Painted::Of(button), 30, 50, Painted::kGround);
    }
    button.setProperty("highlight", QColor(255, 0, 0));
    COMPARE_COLOR(Painted::Of(button), 30, 50, kRed);
}

void CToolButtonTest::selectionRepaintsAtOnce()
{
    CToolButton button(nullptr);
    button.resize(60, 60);
    button.show();
    QVERIFY(QTest::qWaitForWindowExposed(&button));
    QCoreApplication::processEvents();
    const Counter paints(&button, QEvent::Paint);
    button.SetSelected(true);
    QCOMPARE(paints.m_count, 1);
    button.ClearHover();
    QCOMPARE(paints.m_count, 2);
    button.SetFocuseState();
    QCOMPARE(paints.m_count, 3);
}

void CToolButtonTest::missingPictureLeavesTheCaption()
{
    CToolButton button(nullptr);
    button.resize(80, 60);
    button.setIcon(StatefulIcon::create(QStringLiteral(":/none.png"), QStringLiteral(":/none.png"), 32));
    button.setIconSize(QSize(0, 0));
    button.setText(Painted::Blocks(2));
    const QRect caption = Painted::Extent(Painted::Of(button), kDark, 0);
    QVERIFY(caption.top() >= 10);
    QVERIFY(caption.top() < 10 + button.fontMetrics().height());
    button.setIconSize(QSize(32, 32));
    QVERIFY(!Painted::Extent(Painted::Of(button), kDark, 0).isNull());
}

void CToolButtonTest::hugeCaptionIsHarmless()
{
    CToolButton button(nullptr);
    button.setText(QString(20000, QLatin1Char('m')));
    button.SetSharedTextLines(100000);
    QCOMPARE(button.sizeHint().height(), 56 + 99999 * button.fontMetrics().lineSpacing());
    button.resize(60, 60);
    QVERIFY(!Painted::Of(button).isNull());
    button.resize(1, 1);
    QVERIFY(!Painted::Of(button).isNull());
}

CUSTOMCONTROLS_TEST_MAIN(CToolButtonTest)

#include "CToolButtonTest.moc"
