#include <CustomControls/toolbar/CTabToolWidget.h>

#include <tests/support/Painted.h>
#include <tests/support/TestMain.h>

#include <QIcon>
#include <QPainter>
#include <QTabBar>

class CTabToolWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void canBeMadeWithoutArguments();
    void pictureStandsAtTheRightBelowTheTabs_data();
    void pictureStandsAtTheRightBelowTheTabs();
    void pictureShowsThroughThePage();
};

namespace {

QPixmap Picture()
{
    return QIcon(QStringLiteral(":/icon/ico_ttob_bg.png")).pixmap(QSize(434, 78), QIcon::Normal, QIcon::Off);
}

} // namespace

void CTabToolWidgetTest::canBeMadeWithoutArguments()
{
    const CTabToolWidget tabs;
    QVERIFY(!tabs.parentWidget());
    QWidget parent;
    auto* child = new CTabToolWidget(&parent);
    QCOMPARE(child->parentWidget(), &parent);
}

void CTabToolWidgetTest::pictureStandsAtTheRightBelowTheTabs_data()
{
    QTest::addColumn<int>("width");
    QTest::newRow("wide") << 800;
    QTest::newRow("as wide as the picture") << 434;
    QTest::newRow("narrow: cut on the left") << 200;
}

void CTabToolWidgetTest::pictureStandsAtTheRightBelowTheTabs()
{
    QFETCH(int, width);
    CTabToolWidget tabs;
    CTabWidget plain(nullptr);
    for (CTabWidget* each : {static_cast<CTabWidget*>(&tabs), &plain}) {
        each->addTab(new QWidget, QStringLiteral("one"));
        each->setMinimumWidth(0);
        each->resize(width, 160);
    }
    const QPixmap picture = Picture();
    QVERIFY(!picture.isNull());
    QImage expected = plain.grab().toImage();
    QPainter painter(&expected);
    painter.drawPixmap(width - picture.width(), 34, picture);
    painter.end();
    const QImage shown = tabs.grab().toImage();
    QVERIFY(shown != plain.grab().toImage());
    // The tabs lie over it, so the comparison begins below them.
    const QRect below(0, 40, width, 120);
    QCOMPARE(shown.copy(below), expected.copy(below));
}

void CTabToolWidgetTest::pictureShowsThroughThePage()
{
    CTabToolWidget tabs;
    tabs.addTab(new QWidget, QStringLiteral("one"));
    tabs.resize(800, 160);
    const QImage shown = tabs.grab().toImage();
    const QRect changed = Painted::Difference(shown, [&] {
        CTabWidget plain(nullptr);
        plain.addTab(new QWidget, QStringLiteral("one"));
        plain.resize(800, 160);
        return plain.grab().toImage();
    }());
    QVERIFY(!changed.isNull());
    QVERIFY(changed.left() >= 800 - Picture().width());
    QVERIFY(changed.top() >= 34);
    QVERIFY(changed.bottom() < 34 + Picture().height());
}

CUSTOMCONTROLS_TEST_MAIN(CTabToolWidgetTest)

#include "CTabToolWidgetTest.moc"
