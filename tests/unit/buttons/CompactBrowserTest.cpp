#include <CustomControls/buttons/CompactBrowser.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>

#include <memory>

using Browser = std::unique_ptr<QTextBrowser>;

class CompactBrowserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void looksAndBehavesAsAPlainBlock();
    void linesAreTwentyFourHigh();
    void textIsJustified();
    void heightComesWithTheEventLoop();
    void browserDeletedBeforeTheEventLoopIsHarmless();
    void badWidthsAreHarmless_data();
    void badWidthsAreHarmless();
    void richLookingTextStaysPlain();
    void emptyTextIsOneLine();
};

void CompactBrowserTest::looksAndBehavesAsAPlainBlock()
{
    const Browser browser(CreateCompactBrowser(280, QStringLiteral("请先完成对刀")));
    QVERIFY(!browser->parent());
    QCOMPARE(browser->minimumWidth(), 280);
    QCOMPARE(browser->maximumWidth(), 280);
    QCOMPARE(browser->styleSheet(), QStringLiteral("background:transparent;border:none;color:#a3aeb9;"));
    QCOMPARE(browser->font(), FontCnMedium_14);
    QCOMPARE(browser->toPlainText(), QStringLiteral("请先完成对刀"));
    QCOMPARE(browser->document()->documentMargin(), 0.0);
    QCOMPARE(browser->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(browser->frameShape(), QFrame::NoFrame);
    QCOMPARE(browser->frameShadow(), QFrame::Plain);
    QCOMPARE(browser->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(browser->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    QCOMPARE(browser->sizeAdjustPolicy(), QAbstractScrollArea::AdjustToContents);
    QCOMPARE(browser->textInteractionFlags(), Qt::NoTextInteraction);
    QVERIFY(browser->isReadOnly());
}

void CompactBrowserTest::linesAreTwentyFourHigh()
{
    const Browser browser(CreateCompactBrowser(280, QStringLiteral("一\n二")));
    for (QTextBlock block = browser->document()->begin(); block.isValid(); block = block.next()) {
        QCOMPARE(block.blockFormat().lineHeight(), 24.0);
        QCOMPARE(block.blockFormat().lineHeightType(), int(QTextBlockFormat::FixedHeight));
    }
    QCOMPARE(browser->document()->blockCount(), 2);
    QTRY_COMPARE(browser->maximumHeight(), 48);
}

void CompactBrowserTest::textIsJustified()
{
    const Browser browser(CreateCompactBrowser(280, QStringLiteral("一")));
    QCOMPARE(browser->document()->begin().blockFormat().alignment(), Qt::AlignJustify | Qt::AlignTop);
}

void CompactBrowserTest::heightComesWithTheEventLoop()
{
    const Browser browser(CreateCompactBrowser(280, QStringLiteral("主轴转速").repeated(40)));
    QCOMPARE(browser->maximumHeight(), QWIDGETSIZE_MAX);
    QTRY_VERIFY(browser->maximumHeight() < QWIDGETSIZE_MAX);
    QCOMPARE(browser->document()->textWidth(), 280.0);
    QCOMPARE(browser->minimumHeight(), int(browser->document()->size().height()));
    QCOMPARE(browser->minimumHeight(), browser->maximumHeight());
    QVERIFY(browser->height() > 5 * 24);
    QCOMPARE(browser->height() % 24, 0);
}

void CompactBrowserTest::browserDeletedBeforeTheEventLoopIsHarmless()
{
    Browser(CreateCompactBrowser(280, QStringLiteral("一"))).reset();
    const Browser other(CreateCompactBrowser(280, QStringLiteral("一")));
    QTRY_COMPARE(other->height(), 24);
}

void CompactBrowserTest::badWidthsAreHarmless_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("expected");
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("negative") << -5 << 0;
    QTest::newRow("one pixel") << 1 << 1;
}

void CompactBrowserTest::badWidthsAreHarmless()
{
    QFETCH(int, width);
    QFETCH(int, expected);
    const Browser browser(CreateCompactBrowser(width, QStringLiteral("一二三")));
    QTRY_VERIFY(browser->maximumHeight() < QWIDGETSIZE_MAX);
    QCOMPARE(browser->maximumWidth(), expected);
}

void CompactBrowserTest::richLookingTextStaysPlain()
{
    const Browser browser(CreateCompactBrowser(280, QStringLiteral("<b>x</b>")));
    QCOMPARE(browser->toPlainText(), QStringLiteral("<b>x</b>"));
}

void CompactBrowserTest::emptyTextIsOneLine()
{
    const Browser browser(CreateCompactBrowser(280, QString()));
    QTRY_COMPARE(browser->height(), 24);
}

CUSTOMCONTROLS_TEST_MAIN(CompactBrowserTest)

#include "CompactBrowserTest.moc"
