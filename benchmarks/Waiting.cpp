#include <benchmarks/Waiting.h>

#include <QEventLoop>
#include <QLabel>
#include <QMovie>
#include <QTimer>

#include <ctime>

namespace {

constexpr int kSettleMs = 200;
constexpr int kWaitMs = 1000;

void Spin(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

} // namespace

double Waiting::ProcessorTimeOfASecond()
{
    Spin(kSettleMs);
    const std::clock_t start = std::clock();
    Spin(kWaitMs);
    return double(std::clock() - start) / CLOCKS_PER_SEC * 1000.0 / kWaitMs;
}

double Waiting::ProcessorTimeOfAnimation()
{
    QLabel label;
    QMovie movie(QStringLiteral(":/icon/gif_pop_bac.gif"));
    label.setMovie(&movie);
    movie.start();
    label.show();
    return ProcessorTimeOfASecond();
}
