#include <CustomControls/fields/CPlainTextEdit.h>
#include <CustomControls/fields/CTextBrowser.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CCustomMenuItem.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QClipboard>
#include <QSignalSpy>

#include <memory>

namespace {

constexpr QRect kPlace(100, 100, 700, 500);

QPoint CentreOf(const QWidget* widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

} // namespace

// Right clicks, rows and clicks elsewhere as a user does them, on the two text views side by side.
class TextViewMenuTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rowSeesItsClickBeforeTheFocusLoss();
    void typingGoesOnAfterAPaste();
    void everyRowOfTheEditorActs();
    void menuAtTheCornerStaysInTheWindow();
    void leftClickClosesTheMenu();
    void clickOnAnotherFieldClosesTheMenu();
    void browserOpensOnlyWithASelection();

private:
    CCustomMenu* VisibleMenu() const;

    std::unique_ptr<QWidget> m_window;
    CPlainTextEdit* m_edit = nullptr;
    CTextBrowser* m_browser = nullptr;
};

void TextViewMenuTest::init()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("no display or no xdotool");
    }
    m_window = std::make_unique<QWidget>();
    m_edit = new CPlainTextEdit(m_window.get());
    m_edit->setGeometry(10, 10, 320, 300);
    m_edit->setPlainText(QStringLiteral("abc"));
    m_browser = new CTextBrowser(m_window.get());
    m_browser->setGeometry(350, 10, 320, 300);
    m_browser->setPlainText(QStringLiteral("read me"));
    QVERIFY(RealInput::ShowAt(*m_window, kPlace));
    RealInput::Click(CentreOf(m_edit));
    QTRY_VERIFY(m_edit->hasFocus());
}

void TextViewMenuTest::cleanup()
{
    m_window.reset();
}

CCustomMenu* TextViewMenuTest::VisibleMenu() const
{
    const QList<CCustomMenu*> menus = m_window->findChildren<CCustomMenu*>();
    for (CCustomMenu* menu : menus) {
        if (menu->isVisible()) {
            return menu;
        }
    }
    return nullptr;
}

void TextViewMenuTest::rowSeesItsClickBeforeTheFocusLoss()
{
    m_edit->selectAll();
    RealInput::Click(CentreOf(m_edit), 3);
    QTRY_VERIFY(VisibleMenu());
    RealInput::Click(CentreOf(VisibleMenu()->MenuButton(0)));
    QTRY_COMPARE(m_edit->toPlainText(), QString());
    QVERIFY(!VisibleMenu());
    QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("abc"));
}

void TextViewMenuTest::typingGoesOnAfterAPaste()
{
    QGuiApplication::clipboard()->setText(QStringLiteral("12"));
    m_edit->moveCursor(QTextCursor::End);
    RealInput::Click(CentreOf(m_edit), 3);
    QTRY_VERIFY(VisibleMenu());
    RealInput::Click(CentreOf(VisibleMenu()->MenuButton(2)));
    QTRY_COMPARE(m_edit->toPlainText(), QStringLiteral("abc12"));
    QTRY_VERIFY(m_edit->hasFocus());
    RealInput::Type(QStringLiteral("x"));
    QTRY_COMPARE(m_edit->toPlainText(), QStringLiteral("abc12x"));
}

void TextViewMenuTest::everyRowOfTheEditorActs()
{
    const auto choose = [this](int row) {
        RealInput::Click(CentreOf(m_edit), 3);
        QTRY_VERIFY(VisibleMenu());
        RealInput::Click(CentreOf(VisibleMenu()->MenuButton(row)));
        QTRY_VERIFY(!VisibleMenu());
    };
    choose(3);
    QTRY_COMPARE(m_edit->textCursor().selectedText(), QStringLiteral("abc"));
    choose(1);
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("abc"));
    choose(0);
    QTRY_COMPARE(m_edit->toPlainText(), QString());
    choose(2);
    QTRY_COMPARE(m_edit->toPlainText(), QStringLiteral("abc"));
}

void TextViewMenuTest::menuAtTheCornerStaysInTheWindow()
{
    m_edit->setGeometry(370, 180, 320, 310);
    RealInput::Click(m_edit->mapToGlobal(QPoint(310, 300)), 3);
    QTRY_VERIFY(VisibleMenu());
    QCOMPARE(VisibleMenu()->geometry().bottomRight(), QPoint(700 - 4 - 1, 500 - 4 - 1));
}

void TextViewMenuTest::leftClickClosesTheMenu()
{
    RealInput::Click(CentreOf(m_edit), 3);
    QTRY_VERIFY(VisibleMenu());
    RealInput::Click(m_edit->mapToGlobal(QPoint(20, 20)));
    QTRY_VERIFY(!VisibleMenu());
}

void TextViewMenuTest::clickOnAnotherFieldClosesTheMenu()
{
    RealInput::Click(m_edit->mapToGlobal(QPoint(20, 20)), 3);
    QTRY_VERIFY(VisibleMenu());
    RealInput::Click(CentreOf(m_browser));
    QTRY_VERIFY(!VisibleMenu());
    QVERIFY(m_browser->hasFocus());
}

void TextViewMenuTest::browserOpensOnlyWithASelection()
{
    const QSignalSpy asked(m_browser, &QWidget::customContextMenuRequested);
    RealInput::Click(CentreOf(m_browser), 3);
    QTRY_COMPARE(asked.size(), 1);
    QVERIFY(!VisibleMenu());
    m_browser->selectAll();
    RealInput::Click(CentreOf(m_browser), 3);
    QTRY_VERIFY(VisibleMenu());
    RealInput::Click(CentreOf(VisibleMenu()->MenuButton(0)));
    QTRY_COMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("read me"));
    QVERIFY(!VisibleMenu());
}

CUSTOMCONTROLS_TEST_MAIN(TextViewMenuTest)
#include "TextViewMenuTest.moc"
