#include <CustomControls/fields/CPlainTextEdit.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include "ui_CCustomMenu.h"
#include "ui_CCustomMenuItem.h"

#include <tests/support/TestMain.h>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QCursor>
#include <QPointer>
#include <QScrollBar>

class CPlainTextEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void sheetsAndPoliciesAreExact();
    void menuIsWhiteAndHasFourRows();
    void rowsAreLabelledInTheSettledOrder_data();
    void rowsAreLabelledInTheSettledOrder();
    void menuOpensAtThePosition();
    void menuStaysInsideTheParentsEdges();
    void contextMenuEventOpensTheMenu();
    void selectionAndClipboardEnableTheRows_data();
    void selectionAndClipboardEnableTheRows();
    void cutMovesTheSelectionToTheClipboard();
    void copyLeavesTheText();
    void pasteInsertsTheClipboard();
    void selectAllSelects();
    void rowGivesTheFocusBack();
    void leftReleaseClosesTheMenu_data();
    void leftReleaseClosesTheMenu();
    void focusLossUnderTheCursorIsSwallowed();
    void focusLossElsewhereClosesTheMenu();
    void scrollBarHasNoMenu();
    void editorDeletesItsMenu();
    void menuDeletedFirstIsForgotten();
    void worksWithoutParent();
    void metaTypeMakesOne();

private:
    std::unique_ptr<QWidget> m_page;
    CPlainTextEdit* m_edit = nullptr;
};

void CPlainTextEditTest::init()
{
    QCursor::setPos(790, 590);
    QGuiApplication::clipboard()->clear();
    m_page = std::make_unique<QWidget>();
    m_page->resize(500, 400);
    m_edit = new CPlainTextEdit(m_page.get());
    m_edit->setGeometry(50, 60, 300, 200);
    m_edit->setPlainText(QStringLiteral("one two"));
    m_page->show();
    m_page->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_page.get()));
    m_edit->setFocus();
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

void CPlainTextEditTest::menuIsWhiteAndHasFourRows()
{
    CCustomMenu* menu = m_edit->m_pMenu;
    QCOMPARE(menu->parent(), m_page.get());
    QVERIFY(menu->isHidden());
    QCOMPARE(menu->m_eMenuStyle, MenuStyleWhite);
    QCOMPARE(
        menu->ui->m_widgetMenu->styleSheet(),
        QStringLiteral("QWidget#m_widgetMenu{background-color:#FFFFFF;border:1px solid #a1a1a1;border-radius:4px;}"));
    QCOMPARE(menu->MenuButtonCount(), 4);
    QCOMPARE(menu->m_iWidth, 180);
    QCOMPARE(menu->m_iItemHeight, 24);
    QCOMPARE(menu->size(), QSize(180, 108));
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
    const CCustomMenuItem* item = m_edit->m_pMenu->MenuButton(row);
    QCOMPARE(item->ui->m_labelText->text(), text);
    QCOMPARE(item->ui->m_labelShortCut->text(), shortcut);
    QCOMPARE(item->m_strIcon, icon);
    QVERIFY(item->m_strIconHover.isEmpty() && item->m_strIconDisabled.isEmpty());
    QVERIFY(item->ui->m_labelIcon->pixmap().isNull());
    QVERIFY(item->ui->m_labelText->styleSheet().contains(QLatin1String("color:#202020;")));
}

void CPlainTextEditTest::menuOpensAtThePosition()
{
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QVERIFY(m_edit->m_pMenu->isVisible());
    QCOMPARE(m_edit->m_pMenu->pos(), QPoint(60, 80));
    QCOMPARE(m_page->children().constLast(), m_edit->m_pMenu);
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

void CPlainTextEditTest::pasteInsertsTheClipboard()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("new "));
    m_edit->moveCursor(QTextCursor::Start);
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QTest::mouseClick(m_edit->m_pMenu->MenuButton(2), Qt::LeftButton);
    QCOMPARE(m_edit->toPlainText(), QStringLiteral("new one two"));
}

void CPlainTextEditTest::selectAllSelects()
{
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QTest::mouseClick(m_edit->m_pMenu->MenuButton(3), Qt::LeftButton);
    QCOMPARE(m_edit->textCursor().selectedText(), QStringLiteral("one two"));
    QVERIFY(!m_edit->m_pMenu->isVisible());
}

void CPlainTextEditTest::rowGivesTheFocusBack()
{
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QCursor::setPos(m_edit->m_pMenu->mapToGlobal(QPoint(5, 5)));
    m_edit->m_pMenu->setFocus();
    QTest::mouseClick(m_edit->m_pMenu->MenuButton(3), Qt::LeftButton);
    QVERIFY(m_edit->hasFocus());
}

void CPlainTextEditTest::leftReleaseClosesTheMenu_data()
{
    QTest::addColumn<bool>("onViewport");
    QTest::addColumn<Qt::MouseButton>("button");
    QTest::addColumn<bool>("open");
    QTest::newRow("viewport, left") << true << Qt::LeftButton << false;
    QTest::newRow("viewport, right") << true << Qt::RightButton << true;
    QTest::newRow("editor, left") << false << Qt::LeftButton << false;
    QTest::newRow("editor, middle") << false << Qt::MiddleButton << true;
}

void CPlainTextEditTest::leftReleaseClosesTheMenu()
{
    QFETCH(bool, onViewport);
    QFETCH(Qt::MouseButton, button);
    QFETCH(bool, open);
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QWidget* watched = onViewport ? m_edit->viewport() : m_edit;
    QMouseEvent event(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), button, Qt::NoButton, {});
    QVERIFY(!m_edit->eventFilter(watched, &event));
    QCOMPARE(m_edit->m_pMenu->isVisible(), open);
    QVERIFY(!m_edit->eventFilter(m_page.get(), &event));
    QCOMPARE(m_edit->m_pMenu->isVisible(), open);
}

void CPlainTextEditTest::focusLossUnderTheCursorIsSwallowed()
{
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    QCursor::setPos(m_edit->m_pMenu->mapToGlobal(QPoint(5, 5)));
    QFocusEvent event(QEvent::FocusOut);
    QVERIFY(m_edit->eventFilter(m_edit, &event));
    QVERIFY(m_edit->m_pMenu->isVisible());
    m_edit->m_pMenu->hide();
    QVERIFY(!m_edit->eventFilter(m_edit, &event));
}

void CPlainTextEditTest::focusLossElsewhereClosesTheMenu()
{
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    m_page->setFocus();
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

void CPlainTextEditTest::menuDeletedFirstIsForgotten()
{
    delete m_edit->m_pMenu;
    QCOMPARE(m_edit->m_pMenu, nullptr);
    Q_EMIT m_edit->customContextMenuRequested(QPoint(10, 20));
    m_page->setFocus();
    delete m_edit;
}

void CPlainTextEditTest::worksWithoutParent()
{
    CPlainTextEdit alone;
    alone.show();
    QVERIFY(QTest::qWaitForWindowExposed(&alone));
    Q_EMIT alone.customContextMenuRequested(QPoint(10, 20));
    QVERIFY(alone.m_pMenu->isVisible());
    QCOMPARE(alone.m_pMenu->pos(), alone.mapToGlobal(QPoint(10, 20)));
    alone.setParent(m_page.get());
    alone.show();
    Q_EMIT alone.customContextMenuRequested(QPoint(10, 20));
    QVERIFY(alone.m_pMenu->isVisible());
    alone.setParent(nullptr);
}

void CPlainTextEditTest::metaTypeMakesOne()
{
    const QMetaType type = QMetaType::fromType<CPlainTextEdit>();
    void* made = type.create();
    QVERIFY(made);
    type.destroy(made);
}

CUSTOMCONTROLS_TEST_MAIN(CPlainTextEditTest)
#include "CPlainTextEditTest.moc"
