#include <CustomControls/feedback/CVelmarAnimation.h>

#include <tests/documentation/Example.h>

EXAMPLE(CVelmarAnimation)
{
    // [example]
    auto* animation = new CVelmarAnimation(panel);
    animation->setFixedSize(40, 40);
    animation->InsertImage({"url(:/icon/connect/ico_machine.png)", "url(:/icon/connect/ico_connect_set.png)"});
    animation->SetShowIntervalTime(250); // after the images: it shows the first one
    layout->addWidget(animation);
    // [/example]
    const QString first = animation->styleSheet();
    QVERIFY(first.contains("ico_machine"));
    QTRY_VERIFY(animation->styleSheet().contains("ico_connect_set"));
}
