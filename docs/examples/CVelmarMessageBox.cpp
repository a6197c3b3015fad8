#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <tests/documentation/Example.h>

#include <tests/support/NestedLoop.h>

EXAMPLE(CVelmarMessageBox)
{
    const Once press([] { return VisibleTopLevel<CVelmarMessageBox>() != nullptr; },
                     [] { VisibleTopLevel<CVelmarMessageBox>()->MsgExit(MsgBtnYes); });
    // [example]
    const int answer = CVelmarMessageBox::ShowWindow(window, MsgBtnYes | MsgBtnNo, MsgIconPop3, "Delete tool",
                                                     "Delete the selected tool?", {{MsgBtnYes, "Delete"}});
    if (answer == MsgBtnYes)
        window->setWindowTitle("deleted"); // 2 when the user closed the box, so compare with the bit that counts
    // [/example]
    QVERIFY(press.done);
    QCOMPARE(window->windowTitle(), "deleted");
}
