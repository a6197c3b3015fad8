#include <tests/support/RealInput.h>

#include <QEventLoop>
#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>
#include <QWidget>
#include <QWindow>

namespace {
const QString kTool = QStringLiteral("xdotool");
constexpr int kDragSteps = 5;
// A window manager follows a drag at its own pace and no event tells that it has caught up.
constexpr int kSettleMs = 100;

QStringList Place(const QPoint& place)
{
    return {QStringLiteral("mousemove"), QString::number(place.x()), QString::number(place.y())};
}
} // namespace

bool RealInput::IsAvailable()
{
    return QGuiApplication::platformName() == QLatin1String("xcb") && !QStandardPaths::findExecutable(kTool).isEmpty();
}

bool RealInput::ShowAt(QWidget& window, const QRect& place)
{
    window.setGeometry(place);
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) {
        return false;
    }
    window.activateWindow();
    window.raise();
    if (!QTest::qWaitForWindowActive(&window)) {
        return false;
    }
    window.setGeometry(place);
    return QTest::qWaitFor([&] {
        return window.geometry() == place && window.windowHandle()->geometry() == place &&
               window.mapToGlobal(QPoint(0, 0)) == place.topLeft();
    });
}

void RealInput::MoveTo(const QPoint& place)
{
    Run(Place(place));
}

void RealInput::Press(int button)
{
    Run({QStringLiteral("mousedown"), QString::number(button)});
}

void RealInput::Release(int button)
{
    Run({QStringLiteral("mouseup"), QString::number(button)});
    QTest::qWait(kSettleMs);
    // A release that ends a move of the window manager's is the manager's own: the toolkit hears of it with the next
    // motion, and must have before the next press.
    (void)QTest::qWaitFor(
        [] {
            Run({QStringLiteral("mousemove_relative"), QStringLiteral("1"), QStringLiteral("0")});
            Run({QStringLiteral("mousemove_relative"), QStringLiteral("--"), QStringLiteral("-1"),
                 QStringLiteral("0")});
            return QGuiApplication::mouseButtons() == Qt::NoButton;
        },
        1000);
}

void RealInput::Click(const QPoint& place, int button)
{
    Run(Place(place) + QStringList{QStringLiteral("click"), QString::number(button)});
}

void RealInput::DoubleClick(const QPoint& place)
{
    Run(Place(place) + QStringList{QStringLiteral("click"), QStringLiteral("--repeat"), QStringLiteral("2"),
                                   QStringLiteral("--delay"), QStringLiteral("50"), QStringLiteral("1")});
}

void RealInput::Drag(const QPoint& from, const QPoint& to)
{
    MoveTo(from);
    Press();
    for (int step = 1; step <= kDragSteps; ++step) {
        MoveTo(from + (to - from) * step / kDragSteps);
        QTest::qWait(kSettleMs / kDragSteps);
    }
    QTest::qWait(kSettleMs);
    Release();
}

void RealInput::Key(const QString& name)
{
    Run({QStringLiteral("key"), name});
}

void RealInput::Type(const QString& text)
{
    Run({QStringLiteral("type"), QStringLiteral("--delay"), QStringLiteral("20"), QStringLiteral("--"), text});
}

void RealInput::Run(const QStringList& arguments)
{
    QProcess tool;
    QEventLoop loop;
    QObject::connect(&tool, &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(&tool, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    tool.start(kTool, arguments);
    loop.exec();
    QVERIFY2(tool.exitStatus() == QProcess::NormalExit && tool.exitCode() == 0, tool.readAllStandardError());
    // The server handles requests in order: after one more round trip the events of this input are on their way.
    QCoreApplication::processEvents();
}
