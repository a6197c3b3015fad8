#include <CustomControls/CToolBarStyle.h>

#include <tests/support/TestMain.h>

#include <QPointer>
#include <QStyleFactory>
#include <QToolBar>

class CToolBarStyleTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void threeMetricsAreItsOwn_data();
    void threeMetricsAreItsOwn();
    void everyOtherMetricIsThatOfTheWrappedStyle();
    void toolTipsWakeUpAfter200Milliseconds();
    void wrappedStyleIsOwned();
};

void CToolBarStyleTest::threeMetricsAreItsOwn_data()
{
    QTest::addColumn<QStyle::PixelMetric>("metric");
    QTest::addColumn<int>("value");
    QTest::newRow("handle") << QStyle::PM_ToolBarHandleExtent << 9;
    QTest::newRow("spacing") << QStyle::PM_ToolBarItemSpacing << 2;
    QTest::newRow("margin") << QStyle::PM_ToolBarItemMargin << 4;
}

void CToolBarStyleTest::threeMetricsAreItsOwn()
{
    QFETCH(QStyle::PixelMetric, metric);
    const CToolBarStyle style(new QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))));
    QToolBar bar;
    QTEST(style.pixelMetric(metric), "value");
    QTEST(style.pixelMetric(metric, nullptr, &bar), "value");
}

void CToolBarStyleTest::everyOtherMetricIsThatOfTheWrappedStyle()
{
    auto* base = new QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const CToolBarStyle style(base);
    QToolBar bar;
    const QList<int> own{QStyle::PM_ToolBarHandleExtent, QStyle::PM_ToolBarItemSpacing, QStyle::PM_ToolBarItemMargin};
    for (int metric = 0; metric <= int(QStyle::PM_LineEditIconMargin); ++metric) {
        if (!own.contains(metric)) {
            const auto each = static_cast<QStyle::PixelMetric>(metric);
            QCOMPARE(style.pixelMetric(each, nullptr, &bar), base->pixelMetric(each, nullptr, &bar));
        }
    }
}

void CToolBarStyleTest::toolTipsWakeUpAfter200Milliseconds()
{
    const CToolBarStyle style;
    QCOMPARE(style.styleHint(QStyle::SH_ToolTip_WakeUpDelay), 200);
}

void CToolBarStyleTest::wrappedStyleIsOwned()
{
    const QPointer<QProxyStyle> base = new QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    delete new CToolBarStyle(base);
    QVERIFY(base.isNull());
}

CUSTOMCONTROLS_TEST_MAIN(CToolBarStyleTest)

#include "CToolBarStyleTest.moc"
