#include <CustomControls/feedback/CFrostedToolTip.h>
#include <CustomControls/feedback/ToolTipEventFilter.h>

#include <tests/documentation/Example.h>

#include <QHelpEvent>
#include <QPushButton>

EXAMPLE(ToolTipEventFilter)
{
    // [example]
    auto* filter = new ToolTipEventFilter(window);
    auto* button = new QPushButton("Generate", panel);
    button->setToolTip("Generate G-code");
    button->installEventFilter(filter); // or qApp->installEventFilter(filter) for every widget
    layout->addWidget(button);
    // [/example]
    QHelpEvent asks(QEvent::ToolTip, QPoint(4, 4), button->mapToGlobal(QPoint(4, 4)));
    QCoreApplication::sendEvent(button, &asks);
    CFrostedToolTip* tip = nullptr;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        tip = tip ? tip : qobject_cast<CFrostedToolTip*>(widget);
    }
    QVERIFY(tip && tip->isVisible());
}
