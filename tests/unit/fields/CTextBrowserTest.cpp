#include <CustomControls/fields/CTextBrowser.h>

#include "TextViewChecks.h"

#include <tests/support/TestMain.h>

using Page = TextViewPage<CTextBrowser>;

class CTextBrowserTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void menuIsWhiteAndHasOneRow();
    void withoutSelectionNothingOpens();
    void menuOpensAtThePositionWithoutCorrection();
    void copyTakesTheSelection();
    void rowGivesTheFocusBack() { m_page->CheckRowGivesTheFocusBack(0); }
    void leftReleaseClosesTheMenu() { m_page->CheckLeftReleaseCloses(); }
    void focusLossFollowsTheCursor() { m_page->CheckFocusLossFollowsTheCursor(); }
    void menuIsLeftToTheParent();
    void openMenuClosesWithTheBrowser();
    void menuDeletedFirstIsForgotten() { m_page->CheckMenuDeletedFirst(); }
    void menuIsAWindowUntilTheBrowserHasAParent() { Page::CheckWithoutParent(); }
    void hostMakesOneByItsName() { Page::CheckMetaType<QTextBrowser>("CTextBrowser"); }

private:
    std::unique_ptr<Page> m_page;
    CTextBrowser* m_browser = nullptr;
};

void CTextBrowserTest::init()
{
    m_page = std::make_unique<Page>();
    m_browser = m_page->view;
}

void CTextBrowserTest::cleanup()
{
    m_page.reset();
}

void CTextBrowserTest::menuIsWhiteAndHasOneRow()
{
    m_page->CheckLook(1);
    m_page->CheckRow(0, QStringLiteral("复制"), QStringLiteral(":/icon/icon/ico_data_copy_nor.png"),
                     QStringLiteral("Ctrl+C"));
    QCOMPARE(m_browser->styleSheet(), QString());
}

void CTextBrowserTest::withoutSelectionNothingOpens()
{
    Q_EMIT m_browser->customContextMenuRequested(QPoint(10, 20));
    QVERIFY(!m_browser->m_pMenu->isVisible());
}

void CTextBrowserTest::menuOpensAtThePositionWithoutCorrection()
{
    m_browser->selectAll();
    Q_EMIT m_browser->customContextMenuRequested(QPoint(10, 20));
    QVERIFY(m_browser->m_pMenu->isVisible());
    QCOMPARE(m_browser->m_pMenu->pos(), QPoint(60, 80));
    Q_EMIT m_browser->customContextMenuRequested(QPoint(440, 330));
    QCOMPARE(m_browser->m_pMenu->pos(), QPoint(490, 390));
}

void CTextBrowserTest::copyTakesTheSelection()
{
    m_browser->moveCursor(QTextCursor::Start);
    m_browser->moveCursor(QTextCursor::WordRight, QTextCursor::KeepAnchor);
    Q_EMIT m_browser->customContextMenuRequested(QPoint(10, 20));
    QTest::mouseClick(m_browser->m_pMenu->MenuButton(0), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one "));
    QVERIFY(!m_browser->m_pMenu->isVisible());
    QCOMPARE(m_browser->toPlainText(), QStringLiteral("one two"));
}

void CTextBrowserTest::menuIsLeftToTheParent()
{
    const QPointer<CCustomMenu> menu = m_browser->m_pMenu;
    delete m_browser;
    QVERIFY(menu);
    m_page.reset();
    QVERIFY(menu.isNull());
}

void CTextBrowserTest::openMenuClosesWithTheBrowser()
{
    const QPointer<CCustomMenu> menu = m_browser->m_pMenu;
    m_page->Open();
    delete m_browser;
    QVERIFY(menu && !menu->isVisible());
    // The row does nothing any more.
    Q_EMIT menu->MenuButton(0)->SignalMenuItemClicked();
    QCOMPARE(QGuiApplication::clipboard()->text(), QString());
}

CUSTOMCONTROLS_TEST_MAIN(CTextBrowserTest)
#include "CTextBrowserTest.moc"
