#include <CustomControls/toolbar/CToolButtonVertical.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/StatefulIcon.h>

#include <tests/support/Painted.h>
#include <tests/support/TestMain.h>

#include <QHBoxLayout>
#include <QMenu>
#include <QSignalSpy>
#include <QTemporaryDir>

using Painted::Over;

namespace {

const QColor kRed(255, 0, 0);
const QColor kBlue(0, 0, 255);
const QColor kActive(73, 135, 89, 102);
const QColor kHover(73, 135, 89, 51);
const QColor kDark(51, 51, 51);
const QColor kDisabled(64, 64, 64);

} // namespace

class CToolButtonVerticalTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newButtonIsPlain();
    void sizeFollowsGroupAndIconOnly();
    void groupWidthAsksForNoNewLayout();
    void fillTellsTheState_data();
    void fillTellsTheState();
    void cornersAreRoundWithRadiusThree();
    void checkedLooksLikeIdle();
    void menuHighlightAndFocusStateDoNothing();
    void iconStandsAtTheLeftInTheMiddle_data();
    void iconStandsAtTheLeftInTheMiddle();
    void captionStandsBesideTheIcon();
    void captionWearsTheColourOfItsState();
    void pressOnDisabledButtonIsTold();
};

void CToolButtonVerticalTest::newButtonIsPlain()
{
    CToolButtonVertical button(nullptr);
    QVERIFY(button.IsVerticalBtn());
    QCOMPARE(button.m_nGroupWidth, 0);
    QCOMPARE(button.font().pixelSize(), FontCnMedium_13.pixelSize());
    CToolButton* large = &button;
    QVERIFY(large->IsVerticalBtn());
}

void CToolButtonVerticalTest::sizeFollowsGroupAndIconOnly()
{
    CToolButtonVertical button(nullptr);
    button.setIconSize(QSize(16, 16));
    QCOMPARE(button.sizeHint(), QSize(28, 24));
    button.SetGroupWidth(70);
    QCOMPARE(button.sizeHint(), QSize(98, 24));
    button.SetSharedWidth(300);
    button.SetSharedTextLines(3);
    button.setText(QStringLiteral("A caption that is far wider than its group says"));
    QCOMPARE(button.sizeHint(), QSize(98, 24));
    button.setIconSize(QSize(40, 40));
    QCOMPARE(button.sizeHint(), QSize(122, 24));
}

void CToolButtonVerticalTest::groupWidthAsksForNoNewLayout()
{
    class Window : public QWidget
    {
    public:
        bool event(QEvent* event) override
        {
            m_requests += event->type() == QEvent::LayoutRequest ? 1 : 0;
            return QWidget::event(event);
        }
        int m_requests = 0;
    } window;
    auto* layout = new QHBoxLayout(&window);
    auto* button = new CToolButtonVertical(nullptr);
    layout->addWidget(button);
    window.show();
    QCoreApplication::processEvents();
    window.m_requests = 0;
    button->SetGroupWidth(80);
    QCoreApplication::sendPostedEvents();
    QCOMPARE(window.m_requests, 0);
    button->updateGeometry();
    QCoreApplication::sendPostedEvents();
    QCOMPARE(window.m_requests, 1);
}

void CToolButtonVerticalTest::fillTellsTheState_data()
{
    QTest::addColumn<QString>("flags"); // of: checked pressed hovered under the mouse disabled
    QTest::addColumn<QColor>("fill");
    const QColor none(0, 0, 0, 0);
    QTest::newRow("idle") << QString() << none;
    QTest::newRow("hover") << "hu" << kHover;
    QTest::newRow("flag alone") << "h" << none;
    QTest::newRow("pointer alone") << "u" << none;
    QTest::newRow("pressed") << "hup" << kActive;
    QTest::newRow("pressed without pointer") << "hp" << kActive;
    QTest::newRow("pressed and left") << "p" << none;
    QTest::newRow("checked") << "c" << none;
    QTest::newRow("checked and hovered") << "chu" << none;
    QTest::newRow("checked and pressed") << "chup" << none;
    QTest::newRow("disabled and hovered") << "hud" << none;
    QTest::newRow("disabled and pressed") << "hupd" << none;
}

void CToolButtonVerticalTest::fillTellsTheState()
{
    QFETCH(QString, flags);
    QFETCH(QColor, fill);
    CToolButtonVertical button(nullptr);
    button.resize(80, 24);
    button.setCheckable(true);
    button.setChecked(flags.contains('c'));
    button.m_bHovered = flags.contains('h');
    button.m_bPressed = flags.contains('p');
    button.setAttribute(Qt::WA_UnderMouse, flags.contains('u'));
    button.setEnabled(!flags.contains('d'));
    const QColor ground(200, 100, 50);
    const QImage image = Painted::Of(button, ground);
    COMPARE_COLOR(image, 60, 12, Over(fill, ground));
    COMPARE_COLOR(image, 0, 12, Over(fill, ground));
    COMPARE_COLOR(image, 79, 12, Over(fill, ground));
}

void CToolButtonVerticalTest::cornersAreRoundWithRadiusThree()
{
    CToolButtonVertical button(nullptr);
    button.resize(80, 24);
    button.m_bHovered = true;
    button.m_bPressed = true;
    const QImage image = Painted::Of(button);
    const QColor full = Over(kActive);
    COMPARE_COLOR(image, 0, 0, Painted::kGround);
    COMPARE_COLOR(image, 79, 23, Painted::kGround);
    // A radius of 5 would leave this pixel out and the next but one half empty.
    QVERIFY(!Painted::Near(image.pixelColor(1, 0), Painted::kGround, 10));
    COMPARE_COLOR(image, 1, 1, full);
    COMPARE_COLOR(image, 4, 0, full);
}

void CToolButtonVerticalTest::checkedLooksLikeIdle()
{
    CToolButtonVertical button(nullptr);
    button.resize(80, 24);
    button.setText(QStringLiteral("Copy"));
    button.setCheckable(true);
    const QImage idle = Painted::Of(button);
    button.setChecked(true);
    QCOMPARE(Painted::Of(button), idle);
}

void CToolButtonVerticalTest::menuHighlightAndFocusStateDoNothing()
{
    CToolButtonVertical button(nullptr);
    button.resize(80, 24);
    button.setText(QStringLiteral("Copy"));
    const QImage idle = Painted::Of(button);
    QMenu menu;
    menu.addAction(QStringLiteral("one"));
    button.setMenu(&menu);
    button.setProperty("highlight", QStringLiteral("#ff0000"));
    button.SetFocuseState();
    QCOMPARE(Painted::Of(button), idle);
    menu.popup(QPoint(300, 300));
    QCOMPARE(Painted::Of(button), idle);
    menu.hide();
    // A closed menu keeps no press back here.
    button.m_bHovered = true;
    button.m_bPressed = true;
    COMPARE_COLOR(Painted::Of(button), 70, 20, Over(kActive));
}

void CToolButtonVerticalTest::iconStandsAtTheLeftInTheMiddle_data()
{
    QTest::addColumn<int>("height");
    QTest::addColumn<QSize>("icon");
    QTest::addColumn<int>("top");
    QTest::newRow("even") << 24 << QSize(16, 16) << 4;
    QTest::newRow("odd is cut") << 19 << QSize(16, 16) << 1;
    QTest::newRow("low is cut toward zero") << 11 << QSize(16, 16) << -2;
    QTest::newRow("stretched") << 24 << QSize(20, 12) << 6;
}

void CToolButtonVerticalTest::iconStandsAtTheLeftInTheMiddle()
{
    QFETCH(int, height);
    QFETCH(QSize, icon);
    QFETCH(int, top);
    const QTemporaryDir folder;
    const QString on = folder.filePath(QStringLiteral("on.png"));
    const QString off = folder.filePath(QStringLiteral("off.png"));
    QImage picture(16, 16, QImage::Format_ARGB32);
    picture.fill(kRed);
    QVERIFY(picture.save(on));
    picture.fill(kBlue);
    QVERIFY(picture.save(off));

    CToolButtonVertical button(nullptr);
    button.resize(80, height);
    button.setIcon(StatefulIcon::create(on, off, 16));
    button.setIconSize(icon);
    const QRect place(QPoint(4, top), icon);
    const QPixmap drawn = button.StatePixmap(true);
    QVERIFY(!drawn.isNull());
    QCOMPARE(Painted::Extent(Painted::Of(button), kRed), place & button.rect());
    button.setEnabled(false);
    QCOMPARE(Painted::Extent(Painted::Of(button), kBlue), place & button.rect());
}

void CToolButtonVerticalTest::captionStandsBesideTheIcon()
{
    CToolButtonVertical button(nullptr);
    button.resize(120, 24);
    button.setText(Painted::Blocks(2));
    button.setIconSize(QSize(16, 16));
    const QRect first = Painted::Extent(Painted::Of(button), kDark, 0);
    QVERIFY(first.left() >= 24);
    QVERIFY(first.left() <= 26);
    button.setIconSize(QSize(26, 16));
    QCOMPARE(Painted::Extent(Painted::Of(button), kDark, 0), first.translated(10, 0));
    // In the middle: what a higher row adds is shared by both sides.
    button.resize(120, 44);
    QCOMPARE(Painted::Extent(Painted::Of(button), kDark, 0), first.translated(10, 10));
}

void CToolButtonVerticalTest::captionWearsTheColourOfItsState()
{
    CToolButtonVertical button(nullptr);
    button.resize(120, 24);
    button.setText(Painted::Blocks(2));
    QVERIFY(!Painted::Extent(Painted::Of(button), kDark, 0).isNull());
    button.setEnabled(false);
    const QImage image = Painted::Of(button);
    QVERIFY(!Painted::Extent(image, kDisabled, 0).isNull());
    QVERIFY(Painted::Extent(image, kDark, 0).isNull());
}

void CToolButtonVerticalTest::pressOnDisabledButtonIsTold()
{
    CToolButtonVertical button(nullptr);
    const QSignalSpy told(&button, &CToolButton::SignalBtnDisabledClick);
    button.setEnabled(false);
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), QPointF(5, 5), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QTest::ignoreMessage(QtDebugMsg, " disabled btn clicked");
    QCoreApplication::sendEvent(&button, &press);
    QCOMPARE(told.size(), 1);
    QVERIFY(button.m_bPressed);
}

CUSTOMCONTROLS_TEST_MAIN(CToolButtonVerticalTest)

#include "CToolButtonVerticalTest.moc"
