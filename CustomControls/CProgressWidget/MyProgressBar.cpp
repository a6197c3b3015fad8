#include <CustomControls/CProgressWidget/MyProgressBar.h>

#include "ui_MyProgressBar.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QDateTime>
#include <QTimer>

namespace {

constexpr int kStripeIntervalMs = 100;
constexpr int kMaximum = 100;

// Of the running sheet: how far the pattern moves in a second, and the slope and length of a stripe.
constexpr double kSpeed = 0.07;
constexpr double kStripeDensity = 0.7;
constexpr double kStripeSlope = 1.45;

constexpr int kRestingGrooveRadius = 5;
constexpr int kRestingChunkRadius = 4;
const char* const kRestingSheet =
    "QProgressBar::chunk{border-top-left-radius:%2px;border-bottom-left-radius:%2px;background-color:rgb(41,41,41);}"
    "QProgressBar{border:1px solid #000000;border-radius:%1px;background:rgb(41,41,41);}";

// The filled part is rounded at its left end alone until it reaches the groove's right end.
const char* const kRunningSheet =
    "QProgressBar::chunk{border-top-left-radius:%6px;border-bottom-left-radius:%6px;"
    "background-color:qlineargradient(spread:repeat, x1:%1, y1:%2, x2:%3, y2:%4 "
    "stop:0 #1c9a60, stop:0.5 #1c9a60, stop:0.501 #1a8e58, stop:1 #1a8e58);}"
    "QProgressBar{border:1px solid rgb(185,185,185);border-radius:%5px;background:rgb(219,219,219);}";
const char* const kFullSheet =
    "QProgressBar::chunk{border-radius:%6px;"
    "background-color:qlineargradient(spread:repeat, x1:%1, y1:%2, x2:%3, y2:%4 "
    "stop:0 #1c9a60, stop:0.5 #1c9a60, stop:0.501 #1a8e58, stop:1 #1a8e58);}"
    "QProgressBar{border:1px solid rgb(185,185,185);border-radius:%5px;background:rgb(219,219,219);}";
constexpr int kFullFromEnd = 2;

QString Number(const QString& sheet, double value)
{
    return sheet.arg(value, 0, 'g', -1, QLatin1Char(' '));
}

} // namespace

MyProgressBar::MyProgressBar(QWidget* parent)
    : QWidget(parent)
    , ui(new Ui::MyProgressBar)
{
    ui->setupUi(this);
    setWindowFlags(Qt::FramelessWindowHint);
    connect(ui->progressBar, &QProgressBar::valueChanged, this, qOverload<>(&QWidget::update));
    ui->progressBar->setMaximum(kMaximum);
    ui->progressBar->setTextVisible(false);
    ui->progressBar->setFont(FontCn_12);
    ui->progressBar->setStyleSheet(
        QString::fromLatin1(kRestingSheet).arg(kRestingGrooveRadius).arg(kRestingChunkRadius));

    auto* stripeTimer = new QTimer(this);
    connect(stripeTimer, &QTimer::timeout, this, &MyProgressBar::updateValue);
    stripeTimer->start(kStripeIntervalMs);
}

MyProgressBar::~MyProgressBar()
{
    delete ui;
}

CProgressBar* MyProgressBar::progressBar() const
{
    return ui->progressBar;
}

void MyProgressBar::updateValue()
{
    CProgressBar* const bar = ui->progressBar;
    const int v = bar->value();
    const int width = bar->width();
    const int height = bar->height();
    if (v < 1 || width < 1 || height < 1) {
        return;
    }
    static const qint64 start = QDateTime::currentMSecsSinceEpoch();
    const double t = double(QDateTime::currentMSecsSinceEpoch() - start) / 1000.0 * kSpeed;

    const double a = qMin(double(v) / height, 1.0);
    const double s = (bar->maximum() * height) / (width * v * kStripeDensity);
    const double x2 = s * a * kStripeSlope + t;
    const double x1 = s * kStripeSlope + x2;
    const double y1 = (a + 1.0) * s * s + t;
    const double y2 = y1 + s * s;
    const int radius = height / 2;

    QString sheet = QString::fromLatin1(v < bar->maximum() - kFullFromEnd ? kRunningSheet : kFullSheet);
    for (const double coordinate : {x1, y1, x2, y2}) {
        sheet = Number(sheet, coordinate);
    }
    bar->setStyleSheet(sheet.arg(radius).arg(radius - 1));
}
