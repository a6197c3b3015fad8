#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <tests/support/TestMain.h>

#include <QScreen>

/** Where a box with a check box lies when there is more than one screen. */
class CVelmarMessageBoxScreensTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hiddenParentsScreenGivesItsSizeButNotItsOrigin_data();
    void hiddenParentsScreenGivesItsSizeButNotItsOrigin();
};

void CVelmarMessageBoxScreensTest::hiddenParentsScreenGivesItsSizeButNotItsOrigin_data()
{
    QTest::addColumn<int>("screen");
    QTest::newRow("primary") << 0;
    QTest::newRow("to the right") << 1;
    QTest::newRow("smaller than the box") << 2;
}

void CVelmarMessageBoxScreensTest::hiddenParentsScreenGivesItsSizeButNotItsOrigin()
{
    QFETCH(const int, screen);
    QScreen* const shownOn = QGuiApplication::screens().at(screen);
    QWidget host;
    host.setGeometry(QRect(shownOn->geometry().topLeft() + QPoint(10, 10), QSize(100, 50)));
    QCOMPARE(host.screen(), shownOn);
    QRect place;
    QSize smallest;
    QTimer::singleShot(0, this, [&place, &smallest] {
        auto* box = qobject_cast<CVelmarMessageBox*>(QApplication::activeModalWidget());
        QVERIFY(box);
        place = box->geometry();
        smallest = QSize(box->minimumWidth(), box->minimumHeight());
        box->MsgExit(0);
    });
    CVelmarMessageBox::ShowWindowWithCheckBox(&host, MsgBtnOk, MsgIconPop1, QStringLiteral("t"), QStringLiteral("c"),
                                              QString(), false, {});
    const QSize free = shownOn->availableGeometry().size() - place.size();
    QCOMPARE(place.topLeft(), QPoint(qMax(free.width() / 2, 0), qMax(free.height() / 2, 0)));
    QCOMPARE(place.size(), smallest);
}

int main(int argc, char* argv[])
{
    TestEnvironment::PrepareProcess();
    TestEnvironment::PrepareScreens(
        {{QRect(0, 0, 1024, 768)}, {QRect(1024, 200, 1600, 900)}, {QRect(2624, 0, 320, 100)}});
    QApplication app(argc, argv);
    const TestEnvironment environment;
    CVelmarMessageBoxScreensTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "CVelmarMessageBoxScreensTest.moc"
