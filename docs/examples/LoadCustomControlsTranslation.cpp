#include <CorvaneBase/CorvaneTextHelper.h>
#include <CustomControls/CustomControlsTranslation.h>

#include <tests/documentation/Example.h>

EXAMPLE(LoadCustomControlsTranslation)
{
    // [example]
    const QLocale locale = QLocale::system(); // or what the user has chosen
    const bool chinese = locale.language() == QLocale::Chinese;
    LoadCustomControlsTranslation(locale);                              // the texts
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(chinese); // the room that they get
    // [/example]
    QVERIFY(LoadCustomControlsTranslation(QLocale::English));
    QCOMPARE(QCoreApplication::translate("CSelectMachineBox", "重新扫描").isEmpty(), false);
    QVERIFY(QCoreApplication::translate("CSelectMachineBox", "重新扫描") != "重新扫描");
    QVERIFY(LoadCustomControlsTranslation(QLocale::Chinese));
    QCOMPARE(QCoreApplication::translate("CSelectMachineBox", "重新扫描"), "重新扫描");
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(true);
}
