#include <CustomControls/CCustomAppStyle.h>

#include <tests/support/TestMain.h>

#include <QPointer>
#include <QPushButton>
#include <QStyleFactory>
#include <QStyleOption>
#include <QToolTip>

class CCustomAppStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void toolTipsWakeUpAfter200Milliseconds();
    void everyOtherHintIsThatOfTheWrappedStyle();
    void everyMetricIsThatOfTheWrappedStyle();
    void wrappedStyleIsOwned();
    void withoutBaseItStillAnswers();
    void toolTipOfTheApplicationShows();
};

void CCustomAppStyleTest::toolTipsWakeUpAfter200Milliseconds()
{
    CCustomAppStyle style(new QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    QCOMPARE(style.styleHint(QStyle::SH_ToolTip_WakeUpDelay), 200);
    QWidget widget;
    QStyleHintReturn result;
    QCOMPARE(style.styleHint(QStyle::SH_ToolTip_WakeUpDelay, nullptr, &widget, &result), 200);
}

void CCustomAppStyleTest::everyOtherHintIsThatOfTheWrappedStyle()
{
    auto* base = new QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    CCustomAppStyle style(base);
    QPushButton button;
    for (int hint = 0; hint <= int(QStyle::SH_SpinBox_SelectOnStep); ++hint) {
        if (hint == QStyle::SH_ToolTip_WakeUpDelay) {
            continue;
        }
        const auto each = static_cast<QStyle::StyleHint>(hint);
        QCOMPARE(style.styleHint(each, nullptr, &button), base->styleHint(each, nullptr, &button));
    }
}

void CCustomAppStyleTest::everyMetricIsThatOfTheWrappedStyle()
{
    auto* base = new QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    CCustomAppStyle style(base);
    for (int metric = 0; metric <= int(QStyle::PM_LineEditIconMargin); ++metric) {
        const auto each = static_cast<QStyle::PixelMetric>(metric);
        QCOMPARE(style.pixelMetric(each), base->pixelMetric(each));
    }
}

void CCustomAppStyleTest::wrappedStyleIsOwned()
{
    const QPointer<QProxyStyle> base = new QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    auto* style = new CCustomAppStyle(base);
    QCOMPARE(style->baseStyle(), static_cast<QStyle*>(base));
    delete style;
    QVERIFY(base.isNull());
}

void CCustomAppStyleTest::withoutBaseItStillAnswers()
{
    const CCustomAppStyle style;
    QCOMPARE(style.styleHint(QStyle::SH_ToolTip_WakeUpDelay), 200);
    QVERIFY(style.baseStyle());
}

void CCustomAppStyleTest::toolTipOfTheApplicationShows()
{
    QApplication::setStyle(new CCustomAppStyle(new QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")))));
    QCOMPARE(QApplication::style()->styleHint(QStyle::SH_ToolTip_WakeUpDelay), 200);

    QWidget window;
    window.setToolTip(QStringLiteral("tip"));
    window.resize(100, 100);
    window.show();
    QVERIFY(QTest::qWaitForWindowActive(&window)); // others show no tip
    QElapsedTimer timer;
    timer.start();
    QCursor::setPos(window.mapToGlobal(QPoint(50, 50))); // the real one, where there is a desktop
    QTest::mouseMove(&window, QPoint(50, 51));
    QTRY_VERIFY(QToolTip::isVisible());
    // The toolkit's own delay is 700.
    QVERIFY2(timer.elapsed() >= 190, qPrintable(QString::number(timer.elapsed())));
    QToolTip::hideText();
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
}

CUSTOMCONTROLS_TEST_MAIN(CCustomAppStyleTest)

#include "CCustomAppStyleTest.moc"
