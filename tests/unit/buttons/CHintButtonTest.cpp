#include <CustomControls/buttons/CHintButton.h>

#include <CustomControls/buttons/CHintTextToolTip.h>

#include <tests/support/TestMain.h>

#include <QLabel>
#include <QPointer>
#include <QProxyStyle>
#include <QScreen>
#include <QSignalSpy>
#include <QStyleOptionButton>
#include <QTimer>

#include <memory>

namespace {

const QRect kPrimary(0, 0, 1280, 800);
const QRect kNegative(-1600, -400, 1600, 1000);

constexpr int kLineSpace = 4096;

/** Gives the contents of a button any rectangle. */
class ContentsStyle : public QProxyStyle
{
public:
    explicit ContentsStyle(const QRect& contents)
        : m_rectContents(contents)
    {}

    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override
    {
        if (element != SE_PushButtonContents) {
            return QProxyStyle::subElementRect(element, option, widget);
        }
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        m_bFlat = button && button->features.testFlag(QStyleOptionButton::Flat);
        return m_rectContents;
    }

    QRect m_rectContents;
    mutable bool m_bFlat = false;
};

/** A button whose contents are exactly as wide as a text. */
struct WrapCase
{
    explicit WrapCase(const QString& widest)
        : style(QRect(0, 0, QFontMetrics(QApplication::font()).horizontalAdvance(widest), 20))
    {
        button.setFont(QApplication::font());
        style.m_rectContents.setWidth(button.fontMetrics().horizontalAdvance(widest));
        button.setStyle(&style);
        button.SetAutoWrap(true);
    }

    ContentsStyle style;
    CHintButton button;
};

void Enter(QWidget& widget)
{
    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QCoreApplication::sendEvent(&widget, &event);
}

void Leave(QWidget& widget)
{
    QEvent event(QEvent::Leave);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

class CHintButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void startsWithTheDefaultsOfEachField();
    void startsWithAPointingHandAndNoSystemTip();
    void textMakesANoteThatTheButtonOwns();
    void secondTextReplacesTheFirstNote();
    void hostNoteStaysWithTheHost();
    void hostNoteReplacesAnOwnedOne();
    void nullNoteLeavesNone();
    void clearDeletesAnOwnedNoteOnly();
    void deletedHostNoteIsForgotten();
    void deletedOwnedNoteIsForgotten();
    void hostNoteBelowTheButtonDiesWithIt();
    void deletedButtonTakesItsNoteAlong();
    void deletedButtonIsForgottenByAHostNote();
    void ownedNoteGivenBackAsHostNoteLives();

    void hoverShowsTheNoteAfterTheDelay();
    void hoverStartsNoTimerWithoutNote();
    void hoverStartsNoTimerWhereSwitchedOff();
    void hoverSwitchedOffDuringTheDelayShowsNothing();
    void noteTakenAwayDuringTheDelayShowsNothing();
    void leavingStopsTheTimer();
    void leavingHidesAHoverNote();
    void leavingKeepsAPinnedNote();
    void pressStopsTheTimerAndPins();
    void otherMouseButtonsShowNothing();
    void pressWithoutNoteStillClicks();
    void pressAndReleaseClickAsAnyButton();
    void buttonDeletedByItsClickIsHarmless();
    void hideClearsThePin();
    void enteringAgainUnpins();
    void filterIsInstalledOnTheWindowOnce();
    void showWithoutNoteDoesNothing();
    void noteWithoutOwnerHidesAtEveryPress();
    void pressOnTheButtonShowsAnOwnedNoteAgain();
    void hostNoteStaysAtAPressOnTheButton();

    void notePositionWithoutNoteIsTheCursor();
    void noteFlipsToTheFarSideOfTheButton_data();
    void noteFlipsToTheFarSideOfTheButton();
    void cursorOnNoScreenLeavesThePosition();
    void offsetCountsForPositionAndFlip();

    void emptyHoverIconTakesTheNormalOne();
    void iconsAreNotDrawn();

    void textStaysAsGivenWithoutWrapping();
    void fittingTextIsNotWrapped();
    void textWrapsByCharacter();
    void wrapsWordsInTheirMiddle();
    void wrapsOnEachOfManyLines();
    void lastLineIsElidedAtTheRight();
    void oneLineOfRoomIsElided();
    void roomForNoLineCountsAsOne();
    void emptyTextStaysEmpty();
    void narrowerThanACharacterPutsOneOnEachLine();
    void contentsWithoutWidthLeaveTheText();
    void negativeContentsTakeTheButtonsWidthLessTwelve();
    void flatButtonAsksForFlatContents();
    void pairOfCodeUnitsStaysTogether();
    void resizeWrapsAnew();
    void refreshWrapsAnew();
    void refreshWithoutWrappingKeepsTheText();
    void switchingOffKeepsTheWrappedTextUntilTheNext();
    void sameTextIsNotSetAgain();
    void richLookingAndLongTextsAreHarmless();
};

void CHintButtonTest::init()
{
    QCursor::setPos(kPrimary.center());
}

void CHintButtonTest::cleanup()
{
    QVERIFY2(QApplication::topLevelWidgets().isEmpty(), "a window is left over");
}

void CHintButtonTest::startsWithTheDefaultsOfEachField()
{
    const CHintButton button;
    QVERIFY(!button.m_pToolTip);
    QVERIFY(!button.m_bOwnToolTip);
    QVERIFY(button.m_bHoverShow);
    QVERIFY(!button.m_bPinned);
    QCOMPARE(button.m_iHoverDelay, 100);
    QVERIFY(button.m_pHoverTimer->isSingleShot());
    QCOMPARE(button.m_pHoverTimer->parent(), &button);
    QVERIFY(!button.m_pHoverTimer->isActive());
    QCOMPARE(button.m_ptOffset, QPoint(10, 10));
    QCOMPARE(button.m_strIcon, QStringLiteral(":/icon/ico_warning_line_gre_nor.png"));
    QCOMPARE(button.m_strIconHover, QStringLiteral(":/icon/ico_warning_line_gre_hover.png"));
    QVERIFY(button.m_strRawText.isEmpty());
    QVERIFY(!button.m_bFilterInstalled);
    QVERIFY(!button.m_bAutoWrap);
    QVERIFY(!button.IsToolTipVisible());
}

void CHintButtonTest::startsWithAPointingHandAndNoSystemTip()
{
    const CHintButton button;
    QCOMPARE(button.cursor().shape(), Qt::PointingHandCursor);
    QVERIFY(button.toolTip().isEmpty());
}

void CHintButtonTest::textMakesANoteThatTheButtonOwns()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("主轴"));
    QVERIFY(qobject_cast<CHintTextToolTip*>(button.m_pToolTip));
    QVERIFY(button.m_bOwnToolTip);
    QVERIFY(!button.m_pToolTip->parent());
    QVERIFY(!button.m_pToolTip->m_pOwnerButton);
    QCOMPARE(button.m_pToolTip->findChild<QLabel*>()->text(), QStringLiteral("主轴"));
}

void CHintButtonTest::secondTextReplacesTheFirstNote()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    const QPointer<CHintToolTip> first = button.m_pToolTip;
    button.SetToolTipText(QStringLiteral("2"));
    QVERIFY(!first);
    QCOMPARE(button.m_pToolTip->findChild<QLabel*>()->text(), QStringLiteral("2"));
    QVERIFY(button.m_bOwnToolTip);
}

void CHintButtonTest::hostNoteStaysWithTheHost()
{
    CHintToolTip note(nullptr, nullptr);
    CHintToolTip other(nullptr, nullptr);
    {
        CHintButton button;
        button.SetToolTip(&note);
        QVERIFY(!button.m_bOwnToolTip);
        QCOMPARE(note.m_pOwnerButton, &button);
        button.SetToolTip(&other);
        QCOMPARE(button.m_pToolTip, &other);
        button.SetToolTipText(QStringLiteral("x"));
        button.SetToolTip(&note);
    }
    QVERIFY(!note.isVisible());
}

void CHintButtonTest::hostNoteReplacesAnOwnedOne()
{
    CHintToolTip note(nullptr, nullptr);
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    const QPointer<CHintToolTip> owned = button.m_pToolTip;
    button.SetToolTip(&note);
    QVERIFY(!owned);
    QCOMPARE(button.m_pToolTip, &note);
    QVERIFY(!button.m_bOwnToolTip);
}

void CHintButtonTest::nullNoteLeavesNone()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    const QPointer<CHintToolTip> owned = button.m_pToolTip;
    button.SetToolTip(nullptr);
    QVERIFY(!owned);
    QVERIFY(!button.m_pToolTip);
    QVERIFY(!button.m_bOwnToolTip);
    button.ShowToolTip(true);
    button.HideToolTip();
    QVERIFY(!button.IsToolTipVisible());
}

void CHintButtonTest::clearDeletesAnOwnedNoteOnly()
{
    const auto note = std::make_unique<CHintToolTip>(nullptr, nullptr);
    const QPointer<CHintToolTip> host = note.get();
    CHintButton button;
    button.SetToolTip(note.get());
    button.ClearContent();
    QVERIFY(host);
    QVERIFY(!button.m_pToolTip);
    button.SetToolTipText(QStringLiteral("1"));
    const QPointer<CHintToolTip> owned = button.m_pToolTip;
    button.ClearContent();
    QVERIFY(!owned);
    QVERIFY(!button.m_pToolTip);
    QVERIFY(!button.m_bOwnToolTip);
}

void CHintButtonTest::deletedHostNoteIsForgotten()
{
    CHintButton button;
    auto* note = new CHintToolTip(nullptr, nullptr);
    button.SetToolTip(note);
    button.ShowToolTip(true);
    delete note;
    QVERIFY(!button.m_pToolTip);
    button.ShowToolTip(true);
    QVERIFY(!button.IsToolTipVisible());
}

void CHintButtonTest::deletedOwnedNoteIsForgotten()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    delete button.m_pToolTip;
    QVERIFY(!button.m_pToolTip);
    QVERIFY(!button.m_bOwnToolTip);
}

void CHintButtonTest::hostNoteBelowTheButtonDiesWithIt()
{
    auto* button = new CHintButton;
    const QPointer<CHintToolTip> note = new CHintToolTip(button, button);
    button->SetToolTip(note);
    button->ShowToolTip(true);
    delete button;
    QVERIFY(!note);
}

void CHintButtonTest::deletedButtonTakesItsNoteAlong()
{
    auto* button = new CHintButton;
    button->SetToolTipText(QStringLiteral("1"));
    button->ShowToolTip(true);
    const QPointer<CHintToolTip> note = button->m_pToolTip;
    delete button;
    QVERIFY(!note);
}

void CHintButtonTest::deletedButtonIsForgottenByAHostNote()
{
    CHintToolTip note(nullptr, nullptr);
    {
        CHintButton button;
        button.SetToolTip(&note);
        button.ShowToolTip(true);
    }
    QVERIFY(!note.m_pOwnerButton);
    QWidget window;
    window.show();
    QTest::mousePress(&window, Qt::LeftButton);
    QVERIFY(!note.isVisible());
}

void CHintButtonTest::ownedNoteGivenBackAsHostNoteLives()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    const std::unique_ptr<CHintToolTip> note(button.m_pToolTip);
    button.SetToolTip(note.get());
    QCOMPARE(button.m_pToolTip, note.get());
    QVERIFY(!button.m_bOwnToolTip);
    QCOMPARE(note->m_pOwnerButton, &button);
}

void CHintButtonTest::hoverShowsTheNoteAfterTheDelay()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    Enter(button);
    QCOMPARE(button.m_pHoverTimer->interval(), 100);
    QVERIFY(button.m_pHoverTimer->isActive());
    QVERIFY(!button.IsToolTipVisible());
    QTRY_VERIFY(button.IsToolTipVisible());
    QVERIFY(!button.m_bPinned);
}

void CHintButtonTest::hoverStartsNoTimerWithoutNote()
{
    CHintButton button;
    Enter(button);
    QVERIFY(!button.m_pHoverTimer->isActive());
}

void CHintButtonTest::hoverStartsNoTimerWhereSwitchedOff()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    button.SetHoverShow(false);
    Enter(button);
    QVERIFY(!button.m_pHoverTimer->isActive());
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(button.IsToolTipVisible());
}

void CHintButtonTest::hoverSwitchedOffDuringTheDelayShowsNothing()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    Enter(button);
    button.SetHoverShow(false);
    QSignalSpy timeout(button.m_pHoverTimer, &QTimer::timeout);
    QVERIFY(timeout.wait());
    QVERIFY(!button.IsToolTipVisible());
}

void CHintButtonTest::noteTakenAwayDuringTheDelayShowsNothing()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    Enter(button);
    button.ClearContent();
    QSignalSpy timeout(button.m_pHoverTimer, &QTimer::timeout);
    QVERIFY(timeout.wait());
    QVERIFY(!button.IsToolTipVisible());
}

void CHintButtonTest::leavingStopsTheTimer()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    Enter(button);
    Leave(button);
    QVERIFY(!button.m_pHoverTimer->isActive());
}

void CHintButtonTest::leavingHidesAHoverNote()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    button.ShowToolTip(false);
    QVERIFY(button.IsToolTipVisible());
    Leave(button);
    QVERIFY(!button.IsToolTipVisible());
}

void CHintButtonTest::leavingKeepsAPinnedNote()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    button.ShowToolTip(true);
    Leave(button);
    QVERIFY(button.IsToolTipVisible());
    QVERIFY(button.m_bPinned);
}

void CHintButtonTest::pressStopsTheTimerAndPins()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    Enter(button);
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(!button.m_pHoverTimer->isActive());
    QVERIFY(button.IsToolTipVisible());
    QVERIFY(button.m_bPinned);
}

void CHintButtonTest::otherMouseButtonsShowNothing()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    Enter(button);
    QTest::mousePress(&button, Qt::RightButton);
    QTest::mousePress(&button, Qt::MiddleButton);
    QVERIFY(button.m_pHoverTimer->isActive());
    QVERIFY(!button.IsToolTipVisible());
    QVERIFY(!button.isDown());
}

void CHintButtonTest::pressWithoutNoteStillClicks()
{
    CHintButton button;
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mouseClick(&button, Qt::LeftButton);
    QCOMPARE(clicked.count(), 1);
    QVERIFY(!button.m_bFilterInstalled);
}

void CHintButtonTest::pressAndReleaseClickAsAnyButton()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    QSignalSpy clicked(&button, &QPushButton::clicked);
    QTest::mousePress(&button, Qt::LeftButton);
    QVERIFY(button.isDown());
    QTest::mouseRelease(&button, Qt::LeftButton);
    QVERIFY(!button.isDown());
    QCOMPARE(clicked.count(), 1);
    QVERIFY(button.IsToolTipVisible());
}

void CHintButtonTest::buttonDeletedByItsClickIsHarmless()
{
    const QPointer<CHintButton> button = new CHintButton;
    button->SetToolTipText(QStringLiteral("1"));
    connect(button, &QPushButton::pressed, this, [button] { delete button; });
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(2, 2), QPointF(2, 2), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(button, &press);
    QVERIFY(!button);
}

void CHintButtonTest::hideClearsThePin()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    button.ShowToolTip(true);
    button.HideToolTip();
    QVERIFY(!button.IsToolTipVisible());
    QVERIFY(!button.m_bPinned);
}

void CHintButtonTest::enteringAgainUnpins()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    button.ShowToolTip(true);
    Enter(button);
    QTRY_VERIFY(!button.m_bPinned);
    QVERIFY(button.IsToolTipVisible());
}

void CHintButtonTest::filterIsInstalledOnTheWindowOnce()
{
    QWidget window;
    auto* button = new CHintButton(&window);
    button->SetToolTipText(QStringLiteral("1"));
    QVERIFY(!button->m_bFilterInstalled);
    button->ShowToolTip(false);
    QVERIFY(button->m_bFilterInstalled);
    button->ShowToolTip(false);
    window.show();
    window.resize(300, 200);
    QCOMPARE(window.size(), QSize(300, 200));
    delete button;
    window.resize(200, 300);
}

void CHintButtonTest::showWithoutNoteDoesNothing()
{
    CHintButton button;
    button.ShowToolTip(true);
    QVERIFY(!button.m_bPinned);
    QVERIFY(!button.m_bFilterInstalled);
    button.HideToolTip();
}

void CHintButtonTest::noteWithoutOwnerHidesAtEveryPress()
{
    QWidget window;
    window.resize(400, 300);
    window.show();
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    button.ShowToolTip(true);
    QTest::mousePress(button.m_pToolTip, Qt::LeftButton);
    QVERIFY(!button.IsToolTipVisible());
    button.ShowToolTip(true);
    QTest::mousePress(&window, Qt::RightButton);
    QVERIFY(!button.IsToolTipVisible());
}

void CHintButtonTest::pressOnTheButtonShowsAnOwnedNoteAgain()
{
    CHintButton button;
    button.show();
    button.SetToolTipText(QStringLiteral("1"));
    button.ShowToolTip(true);
    QList<QEvent::Type> seen;
    class Watcher : public QObject
    {
    public:
        explicit Watcher(QList<QEvent::Type>& seen)
            : m_listSeen(seen)
        {}
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Hide || event->type() == QEvent::Show) {
                m_listSeen.append(event->type());
            }
            return false;
        }
        QList<QEvent::Type>& m_listSeen;
    } watcher(seen);
    button.m_pToolTip->installEventFilter(&watcher);
    QTest::mousePress(&button, Qt::LeftButton);
    QCOMPARE(seen, QList<QEvent::Type>({QEvent::Hide, QEvent::Show}));
    QVERIFY(button.IsToolTipVisible());
}

void CHintButtonTest::hostNoteStaysAtAPressOnTheButton()
{
    QWidget window;
    window.setGeometry(100, 100, 400, 300);
    auto* button = new CHintButton(&window);
    button->setGeometry(20, 20, 80, 30);
    window.show();
    CHintTextToolTip note(nullptr, nullptr);
    note.setText(QStringLiteral("1"));
    button->SetToolTip(&note);
    button->ShowToolTip(true);
    QTest::mousePress(button, Qt::LeftButton);
    QVERIFY(note.isVisible());
    QTest::mousePress(&note, Qt::LeftButton);
    QVERIFY(note.isVisible());
    QTest::mousePress(&window, Qt::LeftButton, {}, QPoint(300, 250));
    QVERIFY(!note.isVisible());
}

void CHintButtonTest::notePositionWithoutNoteIsTheCursor()
{
    const CHintButton button;
    QCOMPARE(button.computeToolTipPosition(), QCursor::pos());
}

void CHintButtonTest::noteFlipsToTheFarSideOfTheButton_data()
{
    QTest::addColumn<QRect>("screen");
    QTest::addColumn<QPoint>("fromCorner"); // the cursor, seen from the note's place where it just fits
    QTest::addColumn<bool>("flipX");
    QTest::addColumn<bool>("flipY");
    const QList<std::pair<const char*, QRect>> screens = {{"primary", kPrimary}, {"negative", kNegative}};
    for (const auto& [name, screen] : screens) {
        QTest::addRow("%s: just fits", name) << screen << QPoint(0, 0) << false << false;
        QTest::addRow("%s: a pixel beyond the right edge", name) << screen << QPoint(1, 0) << true << false;
        QTest::addRow("%s: a pixel beyond the bottom edge", name) << screen << QPoint(0, 1) << false << true;
        QTest::addRow("%s: beyond both", name) << screen << QPoint(5, 7) << true << true;
        QTest::addRow("%s: in the middle", name) << screen << QPoint(-300, -300) << false << false;
    }
}

void CHintButtonTest::noteFlipsToTheFarSideOfTheButton()
{
    QFETCH(QRect, screen);
    QFETCH(QPoint, fromCorner);
    QFETCH(bool, flipX);
    QFETCH(bool, flipY);

    QWidget window;
    window.setGeometry(QRect(screen.center(), QSize(300, 200)));
    CHintButton button(&window);
    button.setGeometry(40, 30, 60, 20);
    window.show();
    button.SetToolTipText(QStringLiteral("主轴转速过高"));
    const QSize size = button.m_pToolTip->sizeHint();
    const QPoint offset(10, 10);
    const QPoint justFits(screen.right() - size.width(), screen.bottom() - size.height());
    const QPoint cursor = justFits + fromCorner - offset;
    QCursor::setPos(cursor);
    QCOMPARE(QCursor::pos(), cursor);

    const QPoint corner = button.mapToGlobal(QPoint(0, 0));
    const QPoint expected(flipX ? corner.x() - 10 - size.width() : cursor.x() + 10,
                          flipY ? corner.y() - 10 - size.height() : cursor.y() + 10);
    QCOMPARE(button.computeToolTipPosition(), expected);
    button.ShowToolTip(false);
    QCOMPARE(button.m_pToolTip->pos(), expected);
}

void CHintButtonTest::cursorOnNoScreenLeavesThePosition()
{
    CHintButton button;
    button.SetToolTipText(QStringLiteral("1"));
    button.SetPositionOffset(QPoint(100000, 100000));
    QCOMPARE(button.computeToolTipPosition(), QCursor::pos() + QPoint(100000, 100000));
}

void CHintButtonTest::offsetCountsForPositionAndFlip()
{
    CHintButton button;
    button.show();
    button.SetToolTipText(QStringLiteral("1"));
    button.SetPositionOffset(QPoint(-30, 5));
    QCOMPARE(button.computeToolTipPosition(), QCursor::pos() + QPoint(-30, 5));
    QCursor::setPos(kPrimary.bottomRight() - QPoint(0, 10));
    const QSize size = button.m_pToolTip->sizeHint();
    const QPoint corner = button.mapToGlobal(QPoint(0, 0));
    button.SetPositionOffset(QPoint(-3, 5));
    QCOMPARE(button.computeToolTipPosition(), corner - QPoint(-3 + size.width(), 5 + size.height()));
}

void CHintButtonTest::emptyHoverIconTakesTheNormalOne()
{
    CHintButton button;
    button.SetIcon(QStringLiteral("a"), QStringLiteral("b"));
    QCOMPARE(button.m_strIcon, QStringLiteral("a"));
    QCOMPARE(button.m_strIconHover, QStringLiteral("b"));
    button.SetIcon(QStringLiteral("c"), QString());
    QCOMPARE(button.m_strIcon, QStringLiteral("c"));
    QCOMPARE(button.m_strIconHover, QStringLiteral("c"));
}

void CHintButtonTest::iconsAreNotDrawn()
{
    CHintButton button;
    button.resize(40, 40);
    const QImage before = button.grab().toImage();
    button.SetIcon(QStringLiteral(":/icon/img_pop_1.png"), QString());
    QCOMPARE(button.grab().toImage(), before);
    QVERIFY(button.icon().isNull());
}

void CHintButtonTest::textStaysAsGivenWithoutWrapping()
{
    CHintButton button;
    button.resize(20, 20);
    const QString text(500, QChar(u'主'));
    button.setText(text);
    QCOMPARE(button.text(), text);
    QCOMPARE(button.m_strRawText, text);
}

void CHintButtonTest::fittingTextIsNotWrapped()
{
    WrapCase wrap(QStringLiteral("一二三四"));
    wrap.button.setText(QStringLiteral("一二三四"));
    QCOMPARE(wrap.button.text(), QStringLiteral("一二三四"));
}

void CHintButtonTest::textWrapsByCharacter()
{
    WrapCase wrap(QStringLiteral("一一一一"));
    wrap.button.setText(QStringLiteral("一一一一一一"));
    QCOMPARE(wrap.button.text(), QStringLiteral("一一一一\n一一"));
    QCOMPARE(wrap.button.m_strRawText, QStringLiteral("一一一一一一"));
}

void CHintButtonTest::wrapsWordsInTheirMiddle()
{
    WrapCase wrap(QStringLiteral("xx xx"));
    wrap.button.setText(QStringLiteral("xx xxxx"));
    QCOMPARE(wrap.button.text(), QStringLiteral("xx xx\nxx"));
}

void CHintButtonTest::wrapsOnEachOfManyLines()
{
    WrapCase wrap(QStringLiteral("xx"));
    wrap.button.setText(QStringLiteral("xxxxxxx"));
    QCOMPARE(wrap.button.text(), QStringLiteral("xx\nxx\nxx\nx"));
}

void CHintButtonTest::lastLineIsElidedAtTheRight()
{
    WrapCase wrap(QStringLiteral("xxxxx"));
    const QFontMetrics metrics = wrap.button.fontMetrics();
    wrap.button.setMaximumHeight(metrics.lineSpacing() * 3 - 1); // room for two whole lines
    wrap.button.setText(QString(20, QLatin1Char('x')));
    const int width = metrics.horizontalAdvance(QStringLiteral("xxxxx"));
    QCOMPARE(wrap.button.text(),
             QStringLiteral("xxxxx\n") + metrics.elidedText(QString(15, QLatin1Char('x')), Qt::ElideRight, width));
    QVERIFY(wrap.button.text().endsWith(QChar(0x2026)));
    // What exactly fills the lines is not elided.
    wrap.button.setText(QString(10, QLatin1Char('x')));
    QCOMPARE(wrap.button.text(), QStringLiteral("xxxxx\nxxxxx"));
}

void CHintButtonTest::oneLineOfRoomIsElided()
{
    WrapCase wrap(QStringLiteral("xxxxx"));
    const QFontMetrics metrics = wrap.button.fontMetrics();
    wrap.button.setMaximumHeight(metrics.lineSpacing());
    wrap.button.setText(QString(20, QLatin1Char('x')));
    QVERIFY(!wrap.button.text().contains(QLatin1Char('\n')));
    QVERIFY(wrap.button.text().startsWith(QLatin1Char('x')));
    QVERIFY(wrap.button.text().endsWith(QChar(0x2026)));
}

void CHintButtonTest::roomForNoLineCountsAsOne()
{
    WrapCase wrap(QStringLiteral("xxxxx"));
    wrap.button.setMaximumHeight(1);
    wrap.button.setText(QString(20, QLatin1Char('x')));
    QVERIFY(!wrap.button.text().contains(QLatin1Char('\n')));
    QVERIFY(wrap.button.text().endsWith(QChar(0x2026)));
}

void CHintButtonTest::emptyTextStaysEmpty()
{
    WrapCase wrap(QStringLiteral("x"));
    wrap.button.setText(QString());
    QVERIFY(wrap.button.text().isEmpty());
    wrap.button.RefreshDisplay();
    QVERIFY(wrap.button.text().isEmpty());
}

void CHintButtonTest::narrowerThanACharacterPutsOneOnEachLine()
{
    WrapCase wrap(QStringLiteral("x"));
    wrap.style.m_rectContents.setWidth(1);
    wrap.button.setText(QStringLiteral("xyz"));
    QCOMPARE(wrap.button.text(), QStringLiteral("x\ny\nz"));
}

void CHintButtonTest::contentsWithoutWidthLeaveTheText()
{
    WrapCase wrap(QStringLiteral("x"));
    wrap.style.m_rectContents.setWidth(0);
    wrap.button.setText(QStringLiteral("xyz"));
    QCOMPARE(wrap.button.text(), QStringLiteral("xyz"));
}

void CHintButtonTest::negativeContentsTakeTheButtonsWidthLessTwelve()
{
    WrapCase wrap(QStringLiteral("x"));
    wrap.style.m_rectContents = QRect(7, 0, -5, 20);
    const int width = wrap.button.fontMetrics().horizontalAdvance(QStringLiteral("xxx"));
    wrap.button.resize(width + 12, 30);
    wrap.button.setText(QStringLiteral("xxxx"));
    QCOMPARE(wrap.button.text(), QStringLiteral("xxx\nx"));
    wrap.button.resize(width + 11, 30);
    wrap.button.RefreshDisplay();
    QCOMPARE(wrap.button.text(), QStringLiteral("xx\nxx"));
}

void CHintButtonTest::flatButtonAsksForFlatContents()
{
    WrapCase wrap(QStringLiteral("x"));
    wrap.button.setText(QStringLiteral("xyz"));
    QVERIFY(!wrap.style.m_bFlat);
    wrap.button.setFlat(true);
    wrap.button.RefreshDisplay();
    QVERIFY(wrap.style.m_bFlat);
}

void CHintButtonTest::pairOfCodeUnitsStaysTogether()
{
    const QString pair = QString::fromUcs4(U"\U00020000", 1);
    QCOMPARE(pair.size(), 2);
    WrapCase wrap(QStringLiteral("x"));
    wrap.style.m_rectContents.setWidth(1);
    wrap.button.setText(pair + pair + QChar(0xd840)); // the last one is half a character
    QCOMPARE(wrap.button.text(), QString(pair + QLatin1Char('\n') + pair + QLatin1Char('\n') + QChar(0xd840)));
}

void CHintButtonTest::resizeWrapsAnew()
{
    WrapCase wrap(QStringLiteral("xxxx"));
    wrap.button.setText(QStringLiteral("xxxxxx"));
    QCOMPARE(wrap.button.text(), QStringLiteral("xxxx\nxx"));
    wrap.style.m_rectContents.setWidth(wrap.button.fontMetrics().horizontalAdvance(QStringLiteral("xxx")));
    wrap.button.show();
    wrap.button.resize(wrap.button.size() + QSize(10, 10));
    QCOMPARE(wrap.button.text(), QStringLiteral("xxx\nxxx"));
}

void CHintButtonTest::refreshWrapsAnew()
{
    WrapCase wrap(QStringLiteral("xxxx"));
    wrap.button.setText(QStringLiteral("xxxxxx"));
    wrap.style.m_rectContents.setWidth(kLineSpace);
    QCOMPARE(wrap.button.text(), QStringLiteral("xxxx\nxx"));
    wrap.button.RefreshDisplay();
    QCOMPARE(wrap.button.text(), QStringLiteral("xxxxxx"));
}

void CHintButtonTest::refreshWithoutWrappingKeepsTheText()
{
    CHintButton button;
    button.setText(QStringLiteral("a"));
    button.m_strRawText = QStringLiteral("b");
    button.RefreshDisplay();
    button.resize(5, 5);
    QCOMPARE(button.text(), QStringLiteral("a"));
}

void CHintButtonTest::switchingOffKeepsTheWrappedTextUntilTheNext()
{
    WrapCase wrap(QStringLiteral("xxxx"));
    wrap.button.setText(QStringLiteral("xxxxxx"));
    wrap.button.SetAutoWrap(false);
    QCOMPARE(wrap.button.text(), QStringLiteral("xxxx\nxx"));
    wrap.button.setText(QStringLiteral("xxxxxx"));
    QCOMPARE(wrap.button.text(), QStringLiteral("xxxxxx"));
    wrap.button.SetAutoWrap(true);
    QCOMPARE(wrap.button.text(), QStringLiteral("xxxx\nxx"));
}

void CHintButtonTest::sameTextIsNotSetAgain()
{
    WrapCase wrap(QStringLiteral("x&y"));
    wrap.button.setText(QStringLiteral("&y"));
    // Setting a text again would take the shortcut from it and give it the one of its mnemonic.
    wrap.button.setShortcut(QKeySequence(Qt::Key_F5));
    wrap.button.RefreshDisplay();
    QCOMPARE(wrap.button.shortcut(), QKeySequence(Qt::Key_F5));
}

void CHintButtonTest::richLookingAndLongTextsAreHarmless()
{
    WrapCase wrap(QStringLiteral("xxxxxxxxxxxxxxxxxxxx"));
    wrap.button.setText(QStringLiteral("<b>x</b><img src='none'>"));
    QCOMPARE(QString(wrap.button.text()).remove(QLatin1Char('\n')), QStringLiteral("<b>x</b><img src='none'>"));
    const QString text(20000, QLatin1Char('x'));
    wrap.button.setText(text);
    QCOMPARE(QString(wrap.button.text()).remove(QLatin1Char('\n')), text);
    wrap.button.SetToolTipText(text);
    wrap.button.ShowToolTip(true);
    wrap.button.SetToolTipText(QString());
    wrap.button.ShowToolTip(true);
    QVERIFY(wrap.button.IsToolTipVisible());
}

int main(int argc, char* argv[])
{
    TestEnvironment::PrepareProcess();
    TestEnvironment::PrepareScreens({{kPrimary}, {kNegative}});
    QApplication app(argc, argv);
    const TestEnvironment environment;
    CHintButtonTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CHintButtonTest.moc"
