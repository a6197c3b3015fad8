#include <tests/fuzz/FuzzTarget.h>

#include <tests/support/TestEnvironment.h>

#include <CorvaneBase/CDebugLog.h>

#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

// Behind functions, so that they are made after what they use and go before it.
QTemporaryDir& Folder()
{
    static QTemporaryDir folder;
    return folder;
}

// Debug output is part of some roads and would drown the fuzzer's own. What the toolkit takes for a misuse is a
// finding.
void TakeMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    const bool misuse = text.startsWith(QLatin1String("QObject::connect")) ||
                        text.startsWith(QLatin1String("QPainter")) || text.startsWith(QLatin1String("QLayout"));
    if (type == QtFatalMsg || (type == QtWarningMsg && misuse)) {
        FuzzFail(qPrintable(text), "the toolkit", 0);
    }
}

} // namespace

void FuzzFail(const char* condition, const char* file, int line)
{
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
    std::abort();
}

QString FuzzFile(const QString& name)
{
    return Folder().filePath(name);
}

void FuzzSettle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    TestEnvironment::PrepareProcess();
    // The application lives until the process ends: what the controls keep in static objects goes after it.
    static int count = 1;
    static char name[] = "fuzz";
    static char* arguments[] = {name, nullptr};
    static auto* application = new QApplication(count, arguments);
    Q_UNUSED(application)
    static const TestEnvironment environment;
    qInstallMessageHandler(TakeMessage);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    FuzzInput input(data, size);
    FuzzOne(input);
    return 0;
}
