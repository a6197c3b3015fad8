#include <CustomControls/tables/CDelegateLineEdit.h>
#include <CustomControls/tables/CVelmarTableView.h>

#include <tests/support/RealInput.h>
#include <tests/support/TestMain.h>

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>

#include <memory>

namespace {

constexpr int kDiameter = 2;
constexpr int kLength = 3;

} // namespace

/** The tool table under a real window manager: its numbers edited, its tools chosen by a real mouse and keyboard. */
class ToolTableInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void returnLeavesTheCellAndTells();
    void tabLeavesTheCellForTheNextOne();
    void clickElsewhereLeavesTheCell();
    void clickOutsideTheTableLeavesTheCell();
    void escapeLeavesTheCellAsItWas();
    void lettersAreNotTaken();
    void incompleteNumberIsNotLeftByReturn();
    void frameFollowsClicksOnEligibleTools();
    void frameFollowsTheArrowKeys();

private:
    QPoint Place(int row, int column) const;
    QString TextAt(int row, int column) const { return m_pTable->model()->index(row, column).data().toString(); }
    /** The editor of the cell that is being edited, with the focus. */
    QLineEdit* Editor() const;
    void Edit(int row, int column);
    const QLabel* Frame() const { return m_pTable->findChild<QLabel*>(QString(), Qt::FindDirectChildrenOnly); }

    std::unique_ptr<QWidget> m_pHost;
    CVelmarTableView* m_pTable = nullptr;
    QPushButton* m_pButton = nullptr;
    std::unique_ptr<QSignalSpy> m_pSpy;
};

void ToolTableInputTest::initTestCase()
{
    if (!RealInput::IsAvailable()) {
        QSKIP("needs an X display with a window manager and xdotool");
    }
}

void ToolTableInputTest::init()
{
    m_pHost = std::make_unique<QWidget>();
    m_pTable = new CVelmarTableView(m_pHost.get(), false);
    m_pTable->move(20, 20);
    m_pButton = new QPushButton(QStringLiteral("host"), m_pHost.get());
    m_pButton->setGeometry(20, 300, 100, 30);
    QList<ToolRecord> tools{{}, {1, 50, 6}, {3, 51, 5}, {1, 52, 4}, {7, 53, 3}, {1, 54, 2}, {2, 55, 1}};
    m_pTable->SetToolList(tools);
    QVERIFY(RealInput::ShowAt(*m_pHost, QRect(200, 150, 400, 360)));
    auto* delegate = qobject_cast<CDelegateLineEdit*>(m_pTable->itemDelegateForColumn(kDiameter));
    m_pSpy = std::make_unique<QSignalSpy>(delegate, &CDelegateLineEdit::SignalDataChanged);
}

void ToolTableInputTest::cleanup()
{
    m_pSpy.reset();
    m_pHost.reset();
}

QPoint ToolTableInputTest::Place(int row, int column) const
{
    return m_pTable->viewport()->mapToGlobal(m_pTable->visualRect(m_pTable->model()->index(row, column)).center());
}

QLineEdit* ToolTableInputTest::Editor() const
{
    auto* edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    return edit && edit->isVisible() && m_pTable->isAncestorOf(edit) ? edit : nullptr;
}

void ToolTableInputTest::Edit(int row, int column)
{
    RealInput::DoubleClick(Place(row, column));
    QTRY_VERIFY2(Editor(), "the cell is not edited");
    QCOMPARE(Editor()->text(), TextAt(row, column));
    // The view selects the text, so that typing replaces it.
    QTRY_COMPARE(Editor()->selectedText(), TextAt(row, column));
}

void ToolTableInputTest::returnLeavesTheCellAndTells()
{
    Edit(2, kDiameter);
    RealInput::Type(QStringLiteral("3.175"));
    RealInput::Key(QStringLiteral("Return"));
    QTRY_COMPARE(TextAt(2, kDiameter), QStringLiteral("3.175"));
    QTRY_VERIFY(!Editor());
    QTRY_COMPARE(m_pSpy->size(), 1);
    QCOMPARE(m_pSpy->first().first().toDouble(), 3.175);
}

void ToolTableInputTest::tabLeavesTheCellForTheNextOne()
{
    Edit(2, kDiameter);
    RealInput::Type(QStringLiteral("8"));
    RealInput::Key(QStringLiteral("Tab"));
    QTRY_COMPARE(TextAt(2, kDiameter), QStringLiteral("8"));
    QTRY_COMPARE(m_pTable->currentIndex(), m_pTable->model()->index(2, kLength));
    QTRY_VERIFY2(Editor(), "the next measure is not edited");
    QTRY_COMPARE(Editor()->text(), QStringLiteral("52"));
    RealInput::Type(QStringLiteral("60"));
    RealInput::Key(QStringLiteral("Return"));
    QTRY_COMPARE(TextAt(2, kLength), QStringLiteral("60"));
    // Only Return tells.
    QTRY_COMPARE(m_pSpy->size(), 1);
    QCOMPARE(m_pSpy->first().first().toDouble(), 60.0);
}

void ToolTableInputTest::clickElsewhereLeavesTheCell()
{
    Edit(2, kLength);
    RealInput::Type(QStringLiteral("-12.25"));
    RealInput::Click(Place(4, 1));
    QTRY_COMPARE(TextAt(2, kLength), QStringLiteral("-12.25"));
    QTRY_VERIFY(!Editor());
    QTRY_COMPARE(Frame()->y(), 4 * 36 + 34);
    QCOMPARE(m_pSpy->size(), 0);
}

void ToolTableInputTest::clickOutsideTheTableLeavesTheCell()
{
    Edit(2, kLength);
    RealInput::Type(QStringLiteral("77"));
    QSignalSpy clicked(m_pButton, &QPushButton::clicked);
    RealInput::Click(m_pButton->mapToGlobal(m_pButton->rect().center()));
    QTRY_COMPARE(clicked.size(), 1);
    QTRY_COMPARE(TextAt(2, kLength), QStringLiteral("77"));
    QTRY_VERIFY(!Editor());
    QCOMPARE(m_pSpy->size(), 0);
}

void ToolTableInputTest::escapeLeavesTheCellAsItWas()
{
    Edit(3, kLength);
    RealInput::Type(QStringLiteral("9"));
    QTRY_COMPARE(Editor()->text(), QStringLiteral("9"));
    RealInput::Key(QStringLiteral("Escape"));
    QTRY_VERIFY(!Editor());
    QCOMPARE(TextAt(3, kLength), QStringLiteral("53"));
    QCOMPARE(m_pSpy->size(), 0);
}

void ToolTableInputTest::lettersAreNotTaken()
{
    Edit(0, kLength);
    RealInput::Type(QStringLiteral("4x5,6"));
    QTRY_COMPARE(Editor()->text(), QStringLiteral("456"));
    RealInput::Key(QStringLiteral("Return"));
    QTRY_COMPARE(TextAt(0, kLength), QStringLiteral("456"));
}

void ToolTableInputTest::incompleteNumberIsNotLeftByReturn()
{
    Edit(0, kLength);
    RealInput::Type(QStringLiteral("5."));
    RealInput::Key(QStringLiteral("Return"));
    // The digit arrives in the same editor: Return has not ended the edit.
    RealInput::Type(QStringLiteral("5"));
    QTRY_COMPARE(Editor() ? Editor()->text() : QString(), QStringLiteral("5.5"));
    RealInput::Key(QStringLiteral("Return"));
    QTRY_COMPARE(TextAt(0, kLength), QStringLiteral("5.5"));
    QTRY_COMPARE(m_pSpy->size(), 1);
}

void ToolTableInputTest::frameFollowsClicksOnEligibleTools()
{
    QVERIFY(!Frame()->isVisible());
    RealInput::Click(Place(2, 1));
    QTRY_VERIFY(Frame()->isVisible());
    QCOMPARE(Frame()->y(), 2 * 36 + 34);
    RealInput::Click(Place(3, 1));
    QTRY_COMPARE(m_pTable->currentIndex().row(), 3);
    QCOMPARE(Frame()->y(), 2 * 36 + 34);
    QCOMPARE(m_pTable->GetCurrentTool().dLength, 52.0);
    // Through the frame itself, as it takes no mouse.
    RealInput::Click(Place(4, 0));
    RealInput::Click(Place(4, 1));
    QTRY_COMPARE(m_pTable->currentIndex(), m_pTable->model()->index(4, 1));
    QCOMPARE(Frame()->y(), 4 * 36 + 34);
}

void ToolTableInputTest::frameFollowsTheArrowKeys()
{
    RealInput::Click(Place(0, 1));
    QTRY_VERIFY(m_pTable->hasFocus());
    RealInput::Key(QStringLiteral("Down"));
    RealInput::Key(QStringLiteral("Down"));
    QTRY_COMPARE(m_pTable->currentIndex().row(), 2);
    QVERIFY(Frame()->isVisible());
    QCOMPARE(Frame()->y(), 2 * 36 + 34);
    QCOMPARE(m_pTable->GetCurrentTool().dDiameter, 4.0);
}

CUSTOMCONTROLS_TEST_MAIN(ToolTableInputTest)
#include "ToolTableInputTest.moc"
