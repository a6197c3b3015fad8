#include <CustomControls/CustomControls.h>

#include <tests/support/TestMain.h>

class CustomControlsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void assignmentsReturnTheObjectItself();
};

void CustomControlsTest::assignmentsReturnTheObjectItself()
{
    CustomControls first;
    CustomControls second;
    QCOMPARE(&(first = second), &first);
    QCOMPARE(&(first = std::move(second)), &first);
}

CUSTOMCONTROLS_TEST_MAIN(CustomControlsTest)
#include "CustomControlsTest.moc"
