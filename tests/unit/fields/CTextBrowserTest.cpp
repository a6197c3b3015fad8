#include <CustomControls/fields/CTextBrowser.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include "ui_CCustomMenu.h"
#include "ui_CCustomMenuItem.h"

#include <tests/support/TestMain.h>

#include <QClipboard>
#include <QCursor>
#include <QPointer>

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
    void leftReleaseClosesTheMenu();
    void focusLossFollowsTheCursor();
    void menuIsLeftToTheParent();
    void withoutParentTheMenuGoesWithTheBrowser();
    void metaTypeMakesOne();

private:
    std::unique_ptr<QWidget> m_page;
    CTextBrowser* m_browser = nullptr;
};

void CTextBrowserTest::init()
{
    QCursor::setPos(790, 590);
    QGuiApplication::clipboard()->clear();
    m_page = std::make_unique<QWidget>();
    m_page->resize(500, 400);
    m_browser = new CTextBrowser(m_page.get());
    m_browser->setGeometry(50, 60, 300, 200);
    m_browser->setPlainText(QStringLiteral("one two"));
    m_page->show();
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    m_browser->setFocus();
}

void CTextBrowserTest::cleanup()
{
    m_page.reset();
}

void CTextBrowserTest::menuIsWhiteAndHasOneRow()
{
    CCustomMenu* menu = m_browser->m_pMenu;
    QCOMPARE(menu->parent(), m_page.get());
    QVERIFY(menu->isHidden());
    QCOMPARE(menu->m_eMenuStyle, MenuStyleWhite);
    QCOMPARE(
        menu->ui->m_widgetMenu->styleSheet(),
        QStringLiteral("QWidget#m_widgetMenu{background-color:#FFFFFF;border:1px solid #a1a1a1;border-radius:4px;}"));
    QCOMPARE(menu->size(), QSize(180, 36));
    QCOMPARE(menu->MenuButtonCount(), 1);
    const CCustomMenuItem* row = menu->MenuButton(0);
    QCOMPARE(row->ui->m_labelText->text(), QStringLiteral("复制"));
    QCOMPARE(row->ui->m_labelShortCut->text(), QStringLiteral(":/icon/icon/ico_data_copy_nor.png"));
    QCOMPARE(row->m_strIcon, QStringLiteral("Ctrl+C"));
    QVERIFY(row->ui->m_labelText->styleSheet().contains(QLatin1String("color:#202020;")));
    QCOMPARE(m_browser->contextMenuPolicy(), Qt::CustomContextMenu);
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

void CTextBrowserTest::leftReleaseClosesTheMenu()
{
    m_browser->selectAll();
    for (QWidget* watched : {static_cast<QWidget*>(m_browser), m_browser->viewport()}) {
        Q_EMIT m_browser->customContextMenuRequested(QPoint(10, 20));
        QMouseEvent right(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), Qt::RightButton, {}, {});
        QVERIFY(!m_browser->eventFilter(watched, &right));
        QVERIFY(m_browser->m_pMenu->isVisible());
        QMouseEvent left(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), Qt::LeftButton, {}, {});
        QVERIFY(!m_browser->eventFilter(watched, &left));
        QVERIFY(!m_browser->m_pMenu->isVisible());
    }
}

void CTextBrowserTest::focusLossFollowsTheCursor()
{
    m_browser->selectAll();
    Q_EMIT m_browser->customContextMenuRequested(QPoint(10, 20));
    QCursor::setPos(m_browser->m_pMenu->mapToGlobal(QPoint(5, 5)));
    QFocusEvent event(QEvent::FocusOut);
    QVERIFY(m_browser->eventFilter(m_browser, &event));
    QVERIFY(m_browser->m_pMenu->isVisible());
    QCursor::setPos(790, 590);
    QVERIFY(!m_browser->eventFilter(m_browser, &event));
    QVERIFY(!m_browser->m_pMenu->isVisible());
}

void CTextBrowserTest::menuIsLeftToTheParent()
{
    const QPointer<CCustomMenu> menu = m_browser->m_pMenu;
    delete m_browser;
    QVERIFY(menu);
    m_page.reset();
    QVERIFY(menu.isNull());
}

void CTextBrowserTest::withoutParentTheMenuGoesWithTheBrowser()
{
    QPointer<CCustomMenu> menu;
    {
        CTextBrowser alone;
        menu = alone.m_pMenu;
        alone.setPlainText(QStringLiteral("one"));
        alone.selectAll();
        alone.show();
        QVERIFY(QTest::qWaitForWindowExposed(&alone));
        Q_EMIT alone.customContextMenuRequested(QPoint(10, 20));
        QVERIFY(menu->isVisible());
        QCOMPARE(menu->pos(), alone.mapToGlobal(QPoint(10, 20)));
    }
    QVERIFY(menu.isNull());

    CTextBrowser orphan;
    delete orphan.m_pMenu;
    orphan.setPlainText(QStringLiteral("one"));
    orphan.selectAll();
    Q_EMIT orphan.customContextMenuRequested(QPoint(10, 20));
    QCOMPARE(orphan.m_pMenu, nullptr);
}

void CTextBrowserTest::metaTypeMakesOne()
{
    const QMetaType type = QMetaType::fromType<CTextBrowser>();
    void* made = type.create();
    QVERIFY(made);
    type.destroy(made);
}

CUSTOMCONTROLS_TEST_MAIN(CTextBrowserTest)
#include "CTextBrowserTest.moc"
