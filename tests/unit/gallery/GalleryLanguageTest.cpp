#include <examples/gallery/GalleryLanguage.h>
#include <examples/gallery/GalleryWindow.h>
#include <examples/gallery/PageRegistry.h>
#include <examples/gallery/machine/CurrentMachine.h>
#include <examples/gallery/tour/TourLook.h>

#include <CorvaneBase/CorvaneRegisterHelper.h>
#include <CustomControls/toolbar/CTabToolWidget.h>
#include <CustomControls/toolbar/CToolBar.h>
#include <CustomControls/toolbar/CToolButton.h>
#include <tests/support/TestMain.h>

#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>

#include <memory>

class GalleryLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();
    void englishLeavesNoChineseOnAPage_data();
    void englishLeavesNoChineseOnAPage();
    void chineseBringsTheSameTextsBack_data();
    void chineseBringsTheSameTextsBack();
    void theOpenPageAndItsPlaceStay();
    void theToolsKeepTheirState();
    void theMachineStaysTold();
    void aLanguageThatIsNotKnownIsIgnored();

private:
    void Switch(const QString& language);
    QString Heading() const;
    CToolButton* Tool(const char* name) const;

    std::unique_ptr<GalleryWindow> m_pWindow;
};

namespace {
void AddPages()
{
    QTest::addColumn<QString>("page");
    for (const PageEntry& entry : GalleryPages()) {
        QTest::newRow(qPrintable(entry.strName)) << entry.strName;
    }
}
} // namespace

void GalleryLanguageTest::initTestCase()
{
    GalleryLanguage::Use(true);
    m_pWindow = std::make_unique<GalleryWindow>(GalleryOptions());
    m_pWindow->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_pWindow.get()));
}

void GalleryLanguageTest::init()
{
    Switch(QStringLiteral("zh"));
}

void GalleryLanguageTest::cleanupTestCase()
{
    m_pWindow.reset();
    GalleryLanguage::Use(true);
}

void GalleryLanguageTest::Switch(const QString& language)
{
    m_pWindow->SetLanguage(language);
    QCoreApplication::processEvents();
}

QString GalleryLanguageTest::Heading() const
{
    const QList<QLabel*> headings = m_pWindow->findChildren<QLabel*>(QStringLiteral("pageHeading"));
    for (const QLabel* heading : headings) {
        if (heading->isVisible()) {
            return heading->text();
        }
    }
    return QString();
}

CToolButton* GalleryLanguageTest::Tool(const char* name) const
{
    return m_pWindow->findChild<CToolButton*>(QStringLiteral("tool-") + QLatin1String(name));
}

void GalleryLanguageTest::englishLeavesNoChineseOnAPage_data()
{
    AddPages();
}

void GalleryLanguageTest::englishLeavesNoChineseOnAPage()
{
    QFETCH(QString, page);
    QVERIFY(m_pWindow->OpenPage(page));
    QVERIFY(!TourLook::ChineseText(m_pWindow.get()).isEmpty());
    Switch(QStringLiteral("en"));
    QCOMPARE(TourLook::ChineseText(m_pWindow.get()), QString());
}

void GalleryLanguageTest::chineseBringsTheSameTextsBack_data()
{
    AddPages();
}

void GalleryLanguageTest::chineseBringsTheSameTextsBack()
{
    QFETCH(QString, page);
    QVERIFY(m_pWindow->OpenPage(page));
    const QStringList before = TourLook::Texts(m_pWindow.get());
    Switch(QStringLiteral("en"));
    QVERIFY(TourLook::Texts(m_pWindow.get()) != before);
    Switch(QStringLiteral("zh"));
    QStringList after = TourLook::Texts(m_pWindow.get());
    QStringList expected = before;
    // The ribbon was put into the window again, so its texts stand elsewhere in the walk.
    after.sort();
    expected.sort();
    QCOMPARE(after, expected);
}

void GalleryLanguageTest::theOpenPageAndItsPlaceStay()
{
    QVERIFY(m_pWindow->OpenPage(QStringLiteral("tips")));
    auto* page = m_pWindow->findChild<QWidget*>(QStringLiteral("page-tips"));
    QVERIFY(page);
    auto* scroll = qobject_cast<QScrollArea*>(page->parentWidget()->parentWidget());
    QVERIFY(scroll && scroll->verticalScrollBar()->maximum() > 40);
    scroll->verticalScrollBar()->setValue(40);
    Switch(QStringLiteral("en"));
    QCOMPARE(Heading(), QStringLiteral("Tips and hints"));
    QCOMPARE(scroll->verticalScrollBar()->value(), 40);
    Switch(QStringLiteral("zh"));
    QCOMPARE(Heading(), QStringLiteral("工具提示与说明"));
    QCOMPARE(scroll->verticalScrollBar()->value(), 40);
}

void GalleryLanguageTest::theToolsKeepTheirState()
{
    auto* ribbon = m_pWindow->findChild<CTabToolWidget*>(QStringLiteral("galleryRibbon"));
    QVERIFY(ribbon);
    ribbon->setCurrentIndex(2);
    Tool("generate")->click();
    Tool("finish")->click();
    Switch(QStringLiteral("en"));
    ribbon = m_pWindow->findChild<CTabToolWidget*>(QStringLiteral("galleryRibbon"));
    QCOMPARE(ribbon->currentIndex(), 2);
    QVERIFY(Tool("simulate")->isEnabled());
    QVERIFY(!Tool("send")->isEnabled());
    QVERIFY(Tool("finish")->isChecked());
    QVERIFY(!Tool("rough")->isChecked());
    QCOMPARE(CToolBar::m_pBtnChecked, Tool("finish"));
    Tool("finish")->click();
    QVERIFY(!CToolBar::m_pBtnChecked);
}

void GalleryLanguageTest::theMachineStaysTold()
{
    CorvaneRegisterHelper::instance()->SetCurrentMachineConnectStatus(true, QStringLiteral("127.0.0.9"),
                                                                      QStringLiteral("SN9"));
    QVERIFY(m_pWindow->OpenPage(QStringLiteral("machine")));
    Switch(QStringLiteral("en"));
    const auto outcome = [this] { return m_pWindow->findChild<QLabel*>(QStringLiteral("machineOutcome"))->text(); };
    const auto status = [this] { return m_pWindow->findChild<QLabel*>(QStringLiteral("statusMachine"))->text(); };
    QVERIFY2(outcome().contains(QLatin1String("SN9")), qPrintable(outcome()));
    QVERIFY2(status().contains(QLatin1String("SN9")), qPrintable(status()));
    QVERIFY(Tool("send")->isEnabled());
    CorvaneRegisterHelper::instance()->SetCurrentMachineConnectStatus(false, QString(), QString());
    QVERIFY(!outcome().contains(QLatin1String("SN9")));
    QVERIFY(!Tool("send")->isEnabled());
}

void GalleryLanguageTest::aLanguageThatIsNotKnownIsIgnored()
{
    QVERIFY(m_pWindow->OpenPage(QStringLiteral("buttons")));
    const QWidget* page = m_pWindow->findChild<QWidget*>(QStringLiteral("page-buttons"));
    for (const char* language : {"", "de", "ZH", "english"}) {
        Switch(QLatin1String(language));
        QVERIFY(GalleryLanguage::IsChinese());
        QVERIFY(m_pWindow->findChild<QWidget*>(QStringLiteral("page-buttons")) == page);
    }
}

CUSTOMCONTROLS_TEST_MAIN(GalleryLanguageTest)
#include "GalleryLanguageTest.moc"
