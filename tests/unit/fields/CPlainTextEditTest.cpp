#include <CustomControls/fields/CPlainTextEdit.h>

#include "TextViewChecks.h"

#include <tests/support/TestMain.h>

#include <QContextMenuEvent>
#include <QScrollBar>

using Page = TextViewPage<CPlainTextEdit>;

class CPlainTextEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sheetsAndPoliciesAreExact();
    void menuIsWhiteAndHasFourRows() { m_page->CheckLook(4); }
    void rowsAreLabelledInTheSettledOrder_data();
    void rowsAreLabelledInTheSettledOrder();
    void menuOpensAtThePosition();
    void menuStaysInsideTheParentsEdges();
    void menuOfASmallParentReachesOverItsOtherEdges();
    void contextMenuEventOpensTheMenu();
    void selectionAndClipboardEnableTheRows_data();
    void selectionAndClipboardEnableTheRows();
    void menuWithoutRowsStillOpens();
    void disabledRowDoesNothing();
    void cutMovesTheSelectionToTheClipboard();
    void copyLeavesTheText();
    void pasteInsertsTheClipboard_data();
    void pasteInsertsTheClipboard();
    void selectAllSelects();
    void rowGivesTheFocusBack() { m_page->CheckRowGivesTheFocusBack(3); }
    void leftReleaseClosesTheMenu() { m_page->CheckLeftReleaseCloses(); }
    void focusLossFollowsTheCursor() { m_page->CheckFocusLossFollowsTheCursor(); }
    void scrollBarHasNoMenu();
    void editorDeletesItsMenu();
    void menuDeletedFirstIsForgotten() { m_page->CheckMenuDeletedFirst(); }
    void menuIsAWindowUntilTheEditorHasAParent() { Page::CheckWithoutParent(); }
    void hostMakesOneByItsName() { Page::CheckMetaType<QPlainTextEdit>("CPlainTextEdit"); }

private:
    std::unique_ptr<Page> m_page;
    CPlainTextEdit* m_edit = nullptr;
};

void CPlainTextEditTest::init()
{
    m_page = std::make_unique<Page>();
    m_edit = m_page->view;
}

void CPlainTextEditTest::cleanup()
{
    m_page.reset();
}

void CPlainTextEditTest::sheetsAndPoliciesAreExact()
{
    QCOMPARE(m_edit->styleSheet(),
             QStringLiteral("QPlainTextEdit{background:#FFFFFF;border:1px solid #D5D5D5;border-radius:2px;padding-left:"
                            "2px;padding-right:2px;color#202020;}QPlainTextEdit::hover{border:1px solid #4975EC;}"));
    QCOMPARE(
        m_edit->verticalScrollBar()->styleSheet(),
        QStringLiteral(
            "QScrollBar:vertical{min-width:6px;max-width:6px;border:none; "
            "background:rgba(0,0,0,0);color:rgba(0,0,0,0);padding-left:0px;padding-right:0px;min-height:30px;}"
            "QScrollBar::handle:vertical{width:6px;background:rgb(165,171,183);max-height:400;min-height:50;border-"
            "radius:3px;border:none;}QScrollBar::handle:vertical:hover{background:rgb(155,151,163);max-height:400;min-"
            "height:50;border-radius:3px;border:none;}QScrollBar::add-line:vertical{border:0px solid "
            "rgb(220,0,220);background:rgba(100,20,02,0);height:0px;subcontrol-origin:margin;}QScrollBar::sub-line:"
            "vertical{border:0px solid "
            "rgb(20,220,220);background:rgba(100,20,02,0);height:0px;subcontrol-origin:margin;}QScrollBar::add-page::"
            "vertical,QScrollBar::sub-page:vertical{background:rgba(0,0,0,0);width:0px;height:0px;}"));
    QCOMPARE(m_edit->verticalScrollBar()->contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(m_edit->contextMenuPolicy(), Qt::CustomContextMenu);
}

void CPlainTextEditTest::rowsAreLabelledInTheSettledOrder_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("shortcut");
    QTest::addColumn<QString>("icon");
    QTest::newRow("cut") << 0 << "剪切"
                         << ":/icon/icon/ico_data_shear_nor.png"
                         << "Ctrl+X";
    QTest::newRow("copy") << 1 << "复制"
                          << ":/icon/icon/ico_data_copy_nor.png"
                          << "Ctrl+C";
    QTest::newRow("paste") << 2 << "粘贴"
                           << ":/icon/icon/ico_data_paste_nor.png"
                           << "Ctrl+V";
    QTest::newRow("select all") << 3 << "全选"
                                << ""
                                << "Ctrl+A";
}

void CPlainTextEditTest::rowsAreLabelledInTheSettledOrder()
{
    QFETCH(int, row);
    QFETCH(QString, text);
    QFETCH(QString, shortcut);
    QFETCH(QString, icon);
    m_page->CheckRow(row, text, shortcut, icon);
}

void CPlainTextEditTest::menuOpensAtThePosition()
{
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QVERIFY(m_edit->m_pMenu->isVisible());
    QCOMPARE(m_edit->m_pMenu->pos(), QPoint(60, 80));
    QCOMPARE(m_page->page->children().constLast(), m_edit->m_pMenu);
}

void CPlainTextEditTest::menuStaysInsideTheParentsEdges()
{
    Q_EMIT m_edit->customContextMenuRequested(QPoint(290, 20));
    QCOMPARE(m_edit->m_pMenu->pos(), QPoint(500 - 4 - 180, 80));
    m_edit->setGeometry(50, 190, 450, 210);
    Q_EMIT m_edit->customContextMenuRequested(QPoint(440, 200));
    QCOMPARE(m_edit->m_pMenu->pos(), QPoint(500 - 4 - 180, 400 - 4 - 108));
    // Exactly at the edge nothing is moved.
    Q_EMIT m_edit->customContextMenuRequested(QPoint(270, 102));
    QCOMPARE(m_edit->m_pMenu->pos(), QPoint(320, 292));
    Q_EMIT m_edit->customContextMenuRequested(QPoint(271, 103));
    QCOMPARE(m_edit->m_pMenu->pos(), QPoint(316, 288));
}

void CPlainTextEditTest::menuOfASmallParentReachesOverItsOtherEdges()
{
    // The right and lower edges decide, also where the menu finds no room before them.
    m_page->page->resize(150, 90);
    m_edit->setGeometry(0, 0, 150, 90);
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QCOMPARE(m_edit->m_pMenu->pos(), QPoint(150 - 4 - 180, 90 - 4 - 108));
}

void CPlainTextEditTest::contextMenuEventOpensTheMenu()
{
    const QPoint point(30, 40);
    QContextMenuEvent event(QContextMenuEvent::Mouse, point, m_edit->viewport()->mapToGlobal(point));
    QCoreApplication::sendEvent(m_edit->viewport(), &event);
    QVERIFY(m_edit->m_pMenu->isVisible());
    QVERIFY(QRect(m_edit->m_pMenu->pos(), QSize(1, 1)).adjusted(-8, -8, 8, 8).contains(QPoint(80, 100)));
}

void CPlainTextEditTest::selectionAndClipboardEnableTheRows_data()
{
    QTest::addColumn<bool>("selected");
    QTest::addColumn<QString>("clipboard");
    QTest::newRow("nothing") << false << "";
    QTest::newRow("selection") << true << "";
    QTest::newRow("clipboard") << false << "x";
    QTest::newRow("both") << true << "x";
}

void CPlainTextEditTest::selectionAndClipboardEnableTheRows()
{
    QFETCH(bool, selected);
    QFETCH(QString, clipboard);
    QGuiApplication::clipboard()->setText(clipboard);
    for (int turn = 0; turn < 2; ++turn) {
        if (selected) {
            m_edit->selectAll();
        }
        Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
        QCOMPARE(m_edit->m_pMenu->MenuButton(0)->isEnabled(), selected);
        QCOMPARE(m_edit->m_pMenu->MenuButton(1)->isEnabled(), selected);
        QCOMPARE(m_edit->m_pMenu->MenuButton(2)->isEnabled(), !clipboard.isEmpty());
        QVERIFY(m_edit->m_pMenu->MenuButton(3)->isEnabled());
    }
}

void CPlainTextEditTest::menuWithoutRowsStillOpens()
{
    m_edit->m_pMenu->RemoveAllMenuButtons();
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QVERIFY(m_edit->m_pMenu->isVisible());
}

void CPlainTextEditTest::disabledRowDoesNothing()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("kept"));
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QCursor::setPos(m_edit->m_pMenu->mapToGlobal(QPoint(5, 30)));
    QTest::mouseClick(m_edit->m_pMenu->MenuButton(1), Qt::LeftButton);
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("kept"));
    QVERIFY(m_edit->m_pMenu->isVisible());
}

void CPlainTextEditTest::cutMovesTheSelectionToTheClipboard()
{
    m_edit->moveCursor(QTextCursor::Start);
    m_edit->moveCursor(QTextCursor::WordRight, QTextCursor::KeepAnchor);
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QTest::mouseClick(m_edit->m_pMenu->MenuButton(0), Qt::LeftButton);
    QCOMPARE(m_edit->toPlainText(), QStringLiteral("two"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one "));
    QVERIFY(!m_edit->m_pMenu->isVisible());
}

void CPlainTextEditTest::copyLeavesTheText()
{
    m_edit->setPlainText(QStringLiteral("one\ntwo"));
    m_edit->selectAll();
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QTest::mouseClick(m_edit->m_pMenu->MenuButton(1), Qt::LeftButton);
    QCOMPARE(m_edit->toPlainText(), QStringLiteral("one\ntwo"));
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("one\u2029two"));
    QVERIFY(!m_edit->m_pMenu->isVisible());
}

void CPlainTextEditTest::pasteInsertsTheClipboard_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("a word") << "new ";
    QTest::newRow("lines") << "a\nb\n\nc";
    QTest::newRow("10,000 characters") << QString(10000, QChar('w'));
    QTest::newRow("right to left") << QString::fromUtf8("\xd7\xa9\xd7\x9c\xd7\x95\xd7\x9d");
}

void CPlainTextEditTest::pasteInsertsTheClipboard()
{
    QFETCH(QString, text);
    QGuiApplication::clipboard()->setText(text);
    m_edit->moveCursor(QTextCursor::Start);
    m_edit->moveCursor(QTextCursor::WordRight, QTextCursor::KeepAnchor);
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QTest::mouseClick(m_edit->m_pMenu->MenuButton(2), Qt::LeftButton);
    QCOMPARE(m_edit->toPlainText(), text + QStringLiteral("two"));
    QVERIFY(!m_edit->m_pMenu->isVisible());
}

void CPlainTextEditTest::selectAllSelects()
{
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QTest::mouseClick(m_edit->m_pMenu->MenuButton(3), Qt::LeftButton);
    QCOMPARE(m_edit->textCursor().selectedText(), QStringLiteral("one two"));
    QVERIFY(!m_edit->m_pMenu->isVisible());
}

void CPlainTextEditTest::scrollBarHasNoMenu()
{
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(1, 1), QPoint(1, 1));
    QCoreApplication::sendEvent(m_edit->verticalScrollBar(), &event);
    QVERIFY(!m_edit->m_pMenu->isVisible());
}

void CPlainTextEditTest::editorDeletesItsMenu()
{
    const QPointer<CCustomMenu> menu = m_edit->m_pMenu;
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    delete m_edit;
    QVERIFY(menu.isNull());
}

CUSTOMCONTROLS_TEST_MAIN(CPlainTextEditTest)
#include "CPlainTextEditTest.moc"
