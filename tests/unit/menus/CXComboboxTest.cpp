#include <CustomControls/menus/CXCombobox.h>

#include <tests/support/TestMain.h>

#include <QLineEdit>
#include <QSignalSpy>

class CXComboboxTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isBornWithoutAParent();
    void focusLossReportsTheCurrentIndex();
    void gainingTheFocusDoesNothing();
    void focusIsKeptFromTheToolkitsBox();
};

void CXComboboxTest::isBornWithoutAParent()
{
    QWidget window;
    auto* box = new CXCombobox(&window);
    QCOMPARE(box->parent(), nullptr);
    box->setParent(&window);
    QCOMPARE(box->parentWidget(), &window);
}

void CXComboboxTest::focusLossReportsTheCurrentIndex()
{
    CXCombobox box(nullptr);
    QSignalSpy spy(&box, &CXCombobox::SignalFocusOut);
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&box, &out);
    box.addItems({"a", "b", "c"});
    box.setCurrentIndex(2);
    QCoreApplication::sendEvent(&box, &out);
    QCOMPARE(spy.size(), 2);
    QCOMPARE(spy.at(0).at(0).toInt(), -1);
    QCOMPARE(spy.at(1).at(0).toInt(), 2);
}

void CXComboboxTest::gainingTheFocusDoesNothing()
{
    CXCombobox box(nullptr);
    box.addItem("a");
    QSignalSpy spy(&box, &CXCombobox::SignalFocusOut);
    QFocusEvent in(QEvent::FocusIn);
    QCoreApplication::sendEvent(&box, &in);
    QCOMPARE(spy.size(), 0);
    QCOMPARE(box.currentIndex(), 0);
}

void CXComboboxTest::focusIsKeptFromTheToolkitsBox()
{
    CXCombobox box(nullptr);
    box.addItem("abc");
    box.setEditable(true);
    QSignalSpy finished(box.lineEdit(), &QLineEdit::editingFinished);
    // The toolkit's box hands both to its line edit, which selects its text or ends the editing.
    QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&box, &in);
    QCOMPARE(box.lineEdit()->selectedText(), QString());
    QFocusEvent out(QEvent::FocusOut);
    QCoreApplication::sendEvent(&box, &out);
    QCOMPARE(finished.size(), 0);
}

CUSTOMCONTROLS_TEST_MAIN(CXComboboxTest)

#include "CXComboboxTest.moc"
