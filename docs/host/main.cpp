#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/CCustomAppStyle.h>
#include <CustomControls/CustomControlsTranslation.h>
#include <CustomControls/feedback/ToolTipEventFilter.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>
#include <CustomControls/toolbar/CToolBarItem.h>
#include <CustomControls/toolbar/CToolButton.h>

#include <QApplication>
#include <QMainWindow>
#include <QTimer>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName("host"); // names the folders of log and settings

    // The language: the texts, and the room that they get.
    const bool chinese = QLocale::system().language() == QLocale::Chinese;
    LoadCustomControlsTranslation(chinese ? QLocale::Chinese : QLocale::English);
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(chinese);

    // The look: tool tips of the house, soon and everywhere.
    QApplication::setStyle(new CCustomAppStyle);
    application.installEventFilter(new ToolTipEventFilter(&application));

    QMainWindow window;
    auto* block = new CToolBarItem("File", &window);
    block->AddItem({}, "Delete", 0, {});
    CToolButton* remove = block->CreateToolBlock(false).first();
    remove->setToolTip("Delete the selected tool");
    window.addToolBar(block);
    QObject::connect(remove, &CToolButton::clicked, &window, [&window] {
        const int answer = CVelmarMessageBox::ShowWindow(&window, MsgBtnYes | MsgBtnNo, MsgIconPop3, "Delete tool",
                                                         "Delete the selected tool?");
        CDebugLog::AddLog(answer == MsgBtnYes ? "tool deleted" : "tool kept");
    });

    // What controls ask of their host.
    CVelmarMessageBox::SetMainWindow(&window);
    CorvaneSignalHelper* helper = CorvaneSignalHelper::instance();
    QObject::connect(helper, &CorvaneSignalHelper::signalActiveMainWindow, &window, &QWidget::activateWindow);
    QObject::connect(&application, &QCoreApplication::aboutToQuit, helper, &CorvaneSignalHelper::signalAboutToExit);

    window.resize(640, 400);
    window.show();
    if (QApplication::arguments().contains("--once")) // for a test: show the window and go
        QTimer::singleShot(0, &application, &QApplication::quit);
    return QApplication::exec();
}
