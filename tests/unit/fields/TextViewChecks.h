#pragma once

#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <tests/support/TestEnvironment.h>

#include <QClipboard>
#include <QCursor>
#include <QGuiApplication>
#include <QLabel>
#include <QPointer>
#include <QtTest>

#include <memory>

/**
 * A page with one text view on it, and what the context menus of all text views have to do.
 *
 * A test makes one for each of its functions; the checks report through QtTest.
 */
template <class View>
struct TextViewPage
{
    TextViewPage()
    {
        TestEnvironment::MoveCursorAway();
        QGuiApplication::clipboard()->clear();
        page->resize(500, 400);
        view->setGeometry(50, 60, 300, 200);
        view->setPlainText(QStringLiteral("one two"));
        page->show();
        page->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(page.get()));
        view->setFocus();
    }

    CCustomMenu* Menu() const { return view->m_pMenu; }

    /** With a selection, which the browser's menu needs. */
    void Open()
    {
        view->selectAll();
        Q_EMIT view->customContextMenuRequested(QPoint(10, 20));
        QVERIFY(Menu()->isVisible());
    }

    void CheckLook(int rows) const
    {
        const CCustomMenu* menu = Menu();
        QCOMPARE(menu->parent(), page.get());
        QVERIFY(menu->isHidden());
        QCOMPARE(menu->m_eMenuStyle, MenuStyleWhite);
        QCOMPARE(menu->findChild<QWidget*>(QStringLiteral("m_widgetMenu"))->styleSheet(),
                 QStringLiteral("QWidget#m_widgetMenu{background-color:#FFFFFF;border:1px solid #a1a1a1;"
                                "border-radius:4px;}"));
        QCOMPARE(menu->m_listButtons.size(), rows);
        QCOMPARE(menu->m_iWidth, 180);
        QCOMPARE(menu->m_iItemHeight, 24);
        QCOMPARE(menu->size(), QSize(180, rows * 24 + 12));
        QCOMPARE(view->contextMenuPolicy(), Qt::CustomContextMenu);
    }

    void CheckRow(int row, const QString& text, const QString& shortcut, const QString& icon) const
    {
        const CCustomMenuItem* item = Menu()->MenuButton(row);
        const auto label = [item](const char* name) { return item->findChild<QLabel*>(QLatin1String(name)); };
        QCOMPARE(label("m_labelText")->text(), text);
        QCOMPARE(label("m_labelShortCut")->text(), shortcut);
        QCOMPARE(item->m_strIcon, icon);
        QVERIFY(item->m_strIconHover.isEmpty() && item->m_strIconDisabled.isEmpty());
        QVERIFY(label("m_labelIcon")->pixmap().isNull());
        QVERIFY(label("m_labelText")->styleSheet().contains(QLatin1String("color:#202020;")));
    }

    void CheckLeftReleaseCloses()
    {
        for (QWidget* watched : {static_cast<QWidget*>(view), view->viewport()}) {
            for (const Qt::MouseButton button : {Qt::RightButton, Qt::MiddleButton, Qt::LeftButton}) {
                Open();
                QMouseEvent release(QEvent::MouseButtonRelease, QPointF(1, 1), QPointF(1, 1), button, {}, {});
                // The events of others are none of the menu's, and none are taken from the view.
                QVERIFY(!view->eventFilter(page.get(), &release));
                QVERIFY(Menu()->isVisible());
                QVERIFY(!view->eventFilter(watched, &release));
                QCOMPARE(Menu()->isVisible(), button != Qt::LeftButton);
            }
        }
    }

    void CheckFocusLossFollowsTheCursor()
    {
        Open();
        QCursor::setPos(Menu()->mapToGlobal(QPoint(5, 5)));
        QFocusEvent event(QEvent::FocusOut);
        QVERIFY(view->eventFilter(view, &event));
        QVERIFY(Menu()->isVisible());
        TestEnvironment::MoveCursorAway();
        QVERIFY(!view->eventFilter(view, &event));
        QVERIFY(!Menu()->isVisible());
        QVERIFY(!view->eventFilter(view, &event));
        Open();
        page->setFocus();
        QVERIFY(!Menu()->isVisible());
    }

    void CheckRowGivesTheFocusBack(int row)
    {
        Open();
        QCursor::setPos(Menu()->mapToGlobal(QPoint(5, 5)));
        Menu()->setFocus();
        QTest::mouseClick(Menu()->MenuButton(row), Qt::LeftButton);
        QVERIFY(view->hasFocus());
        QVERIFY(!Menu()->isVisible());
    }

    void CheckMenuDeletedFirst()
    {
        Open();
        delete Menu();
        QVERIFY(!Menu());
        Q_EMIT view->customContextMenuRequested(QPoint(10, 20));
        page->setFocus();
        delete view;
    }

    static void CheckWithoutParent()
    {
        auto alone = std::make_unique<View>();
        QPointer<CCustomMenu> menu(alone->m_pMenu);
        alone->setPlainText(QStringLiteral("one"));
        alone->selectAll();
        alone->show();
        QVERIFY(QTest::qWaitForWindowExposed(alone.get()));
        Q_EMIT alone->customContextMenuRequested(QPoint(10, 20));
        QVERIFY(menu->isVisible());
        QVERIFY(menu->isWindow());
        QCOMPARE(menu->pos(), alone->mapToGlobal(QPoint(10, 20)));
        alone.reset();
        QVERIFY(menu.isNull());

        // What is placed on a page later has its menu there.
        QWidget page;
        page.resize(500, 400);
        auto* placed = new View;
        placed->setPlainText(QStringLiteral("one"));
        placed->selectAll();
        placed->setParent(&page);
        placed->setGeometry(50, 60, 300, 200);
        page.show();
        Q_EMIT placed->customContextMenuRequested(QPoint(10, 20));
        menu = placed->m_pMenu;
        QVERIFY(menu->isVisible());
        QVERIFY(!menu->isWindow());
        QCOMPARE(menu->parentWidget(), &page);
        QCOMPARE(menu->pos(), QPoint(60, 80));
    }

    /** As a host makes one, which has no header of it. */
    template <class Base>
    static void CheckMetaType(const char* name)
    {
        const QMetaType type = QMetaType::fromName(name);
        QVERIFY(type.isValid());
        QVERIFY(type == QMetaType::fromType<View>());
        void* made = type.create();
        QVERIFY(made);
        auto* base = qobject_cast<Base*>(static_cast<QObject*>(made));
        QVERIFY(base);
        QCOMPARE(base->metaObject()->className(), name);
        delete base;
    }

    std::unique_ptr<QWidget> page = std::make_unique<QWidget>();
    View* view = new View(page.get());
};
