// The smallest host: it greets, and its exit code tells how it was answered.
#include <CustomControls/CustomControlsTranslation.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    LoadCustomControlsTranslation(QLocale::English);
    const int answer = CVelmarMessageBox::ShowWindow(nullptr, MsgBtnOk, MsgIconPop3, QStringLiteral("Hello"),
                                                     QStringLiteral("The controls are in place."));
    return answer == MsgBtnOk ? 0 : 1;
}
