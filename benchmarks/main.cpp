#include <benchmarks/Comparison.h>

#include <CorvaneBase/CorvaneTextHelper.h>

#include <QApplication>
#include <QStyleFactory>

int main(int argc, char* argv[])
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(true);
    return Comparison::Main(argc, argv);
}
