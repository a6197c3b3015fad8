#include <CustomControls/StatefulIcon.h>

#include <tests/support/TestMain.h>

class StatefulIconTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void missingFilesGiveAnIconWithoutPixmap();
};

void StatefulIconTest::missingFilesGiveAnIconWithoutPixmap()
{
    const QIcon icon = StatefulIcon::create(QStringLiteral(":/none/on.png"), QStringLiteral(":/none/off.png"), 16);
    QVERIFY(icon.pixmap(16, 16, QIcon::Normal, QIcon::On).isNull());
    QVERIFY(icon.pixmap(16, 16, QIcon::Disabled, QIcon::Off).isNull());
}

CUSTOMCONTROLS_TEST_MAIN(StatefulIconTest)
#include "StatefulIconTest.moc"
