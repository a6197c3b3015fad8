#include <CustomControls/messagebox/CVelmarMessageListItem.h>

#include "ui_CVelmarMessageListItem.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneTextHelper.h>

#include <tests/support/TestMain.h>

#include <QFontMetricsF>
#include <QPixmapCache>
#include <QTranslator>

#include <limits>

namespace {

const QString kGreySheet = QStringLiteral("QLabel{ \nbackground: transparent;\nborder:none;\ncolor: #999999;\n}\n");
const QString kDarkSheet = QStringLiteral("QLabel{ \nbackground: transparent;\nborder:none;\ncolor: #333333;\n}\n");

/** Gives the strategy column another title. */
class ModeTitle : public QTranslator
{
public:
    explicit ModeTitle(const QString& title)
        : m_strTitle(title)
    {
        QCoreApplication::installTranslator(this);
    }
    ~ModeTitle() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(ModeTitle)

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool isTitle = qstrcmp(context, "CVelmarMessageListItem") == 0 && qstrcmp(source, "策略") == 0;
        return isTitle ? m_strTitle : QString();
    }
    bool isEmpty() const override { return false; }

private:
    QString m_strTitle;
};

void SetChinese(bool chinese)
{
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(chinese);
}

bool IsCentered(const QWidget* label)
{
    return label->y() == (label->parentWidget()->height() - label->height()) / 2;
}

int Advance(const QString& text)
{
    return int(QFontMetricsF(FontCnBold_14).horizontalAdvance(text));
}

/** As many letters as are @p width wide at least. */
QString TextOfWidth(int width)
{
    QString text;
    while (Advance(text) < width) {
        text += QLatin1Char('i');
    }
    return text;
}

} // namespace

class CVelmarMessageListItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void rowHasItsFixedSize();
    void formHasItsRectangles_data();
    void formHasItsRectangles();
    void formHasItsSheetsAndTexts();
    void labelsBearTheHouseFont();
    void titlesLieInTheMiddle_data();
    void titlesLieInTheMiddle();
    void chineseColumnsStayWhereTheFormHasThem();
    void modeTitleGetsRoomInOtherLanguages_data();
    void modeTitleGetsRoomInOtherLanguages();
    void nameTakesTheRoomThatIsLeft();
    void headerShowsTitlesAndDataShowsValues_data();
    void headerShowsTitlesAndDataShowsValues();

    void contentIsShown();
    void nameReplacesItsSheetAndItsColour();
    void wideNameIsElided();
    void nameOfTheFullWidthIsShownWhole();
    void locationBeginsWithT_data();
    void locationBeginsWithT();
    void flagHasNoEffect();
    void emptyTextsLeaveOnlyTheT();
    void markupIsShownAsItStands();
    void typePicksTag_data();
    void typePicksTag();
    void unknownTypeLeavesTagsAlone_data();
    void unknownTypeLeavesTagsAlone();
    void semiFinishTagIsCutInChinese();
    void tagsArePaintedAtTheLeftOfTheirColumn();
    void missingPictureLeavesTheTagEmpty();
    void languageOfTheTagIsThatOfTheMoment();
};

void CVelmarMessageListItemTest::init()
{
    SetChinese(true);
}

void CVelmarMessageListItemTest::rowHasItsFixedSize()
{
    const CVelmarMessageListItem row(nullptr);
    QCOMPARE(row.objectName(), QStringLiteral("CVelmarMessageListItem"));
    QCOMPARE(row.size(), QSize(436, 35));
    QCOMPARE(row.minimumSize(), QSize(436, 35));
    QCOMPARE(row.maximumSize(), QSize(436, 35));
    QVERIFY(!row.layout());
}

void CVelmarMessageListItemTest::formHasItsRectangles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QRect>("rect");
    QTest::newRow("titleToolLabel") << "titleToolLabel" << QRect(66, 10, 53, 15);
    QTest::newRow("toolName") << "toolName" << QRect(66, 10, 53, 15);
    QTest::newRow("toolSize") << "toolSize" << QRect(174, 10, 53, 15);
    QTest::newRow("toolLocation") << "toolLocation" << QRect(348, 10, 53, 15);
    QTest::newRow("titleLocationLabel") << "titleLocationLabel" << QRect(348, 10, 53, 15);
    QTest::newRow("iconWidget") << "iconWidget" << QRect(24, 0, 32, 35);
    QTest::newRow("iconLabel") << "iconLabel" << QRect(10, 0, 18, 18);
    QTest::newRow("semiIconlabel") << "semiIconlabel" << QRect(0, 10, 32, 18);
    QTest::newRow("titleModeLabel") << "titleModeLabel" << QRect(8, 10, 53, 15);
}

void CVelmarMessageListItemTest::formHasItsRectangles()
{
    QFETCH(const QString, name);
    QFETCH(const QRect, rect);
    QWidget form;
    Ui::CVelmarMessageListItem ui;
    ui.setupUi(&form);
    const auto* widget = form.findChild<QWidget*>(name);
    QVERIFY(widget);
    QCOMPARE(widget->geometry(), rect);
    const bool isTag = name.endsWith(QLatin1String("conlabel"), Qt::CaseInsensitive);
    QCOMPARE(widget->parentWidget(), isTag ? ui.iconWidget : &form);
}

void CVelmarMessageListItemTest::formHasItsSheetsAndTexts()
{
    const CVelmarMessageListItem row(nullptr);
    for (const QLabel* title : {row.ui->titleModeLabel, row.ui->titleToolLabel, row.ui->titleLocationLabel}) {
        QCOMPARE(title->styleSheet(), kGreySheet);
    }
    for (const QLabel* value : {row.ui->toolName, row.ui->toolSize, row.ui->toolLocation}) {
        QCOMPARE(value->styleSheet(), kDarkSheet);
        QCOMPARE(value->text(), QString());
    }
    QCOMPARE(row.ui->iconWidget->styleSheet(),
             QStringLiteral("#iconWidget{\nborder:none;\nbackground:transparent;\n}"));
    QCOMPARE(row.ui->iconWidget->minimumSize(), QSize(32, 35));
    QCOMPARE(row.ui->iconWidget->maximumSize(), QSize(32, 35));
    QCOMPARE(row.ui->iconLabel->styleSheet(), QStringLiteral("QLabel{ \nbackground: transparent;\nborder:none;\n}\n"));
    QCOMPARE(row.ui->semiIconlabel->styleSheet(), QString());
    QCOMPARE(row.ui->titleModeLabel->text(), QStringLiteral("策略"));
    QCOMPARE(row.ui->titleToolLabel->text(), QStringLiteral("刀具"));
    QCOMPARE(row.ui->titleLocationLabel->text(), QStringLiteral("库位"));
    QCOMPARE(row.ui->titleModeLabel->alignment(), Qt::AlignCenter);
    QCOMPARE(row.ui->toolName->maximumWidth(), 100);
}

void CVelmarMessageListItemTest::labelsBearTheHouseFont()
{
    const CVelmarMessageListItem row(nullptr);
    for (const QLabel* label : {row.ui->titleModeLabel, row.ui->titleToolLabel, row.ui->titleLocationLabel,
                                row.ui->toolName, row.ui->toolSize, row.ui->toolLocation}) {
        QCOMPARE(label->font(), FontCnBold_14);
    }
}

void CVelmarMessageListItemTest::titlesLieInTheMiddle_data()
{
    QTest::addColumn<bool>("chinese");
    QTest::newRow("Chinese") << true;
    QTest::newRow("English") << false;
}

void CVelmarMessageListItemTest::titlesLieInTheMiddle()
{
    QFETCH(const bool, chinese);
    SetChinese(chinese);
    const CVelmarMessageListItem row(nullptr);
    for (const QLabel* title : {row.ui->titleModeLabel, row.ui->titleToolLabel, row.ui->titleLocationLabel}) {
        QVERIFY2(IsCentered(title), qPrintable(title->objectName()));
    }
    for (const QLabel* fitted : {row.ui->titleToolLabel, row.ui->titleLocationLabel}) {
        QCOMPARE(fitted->size(), fitted->sizeHint());
    }
}

void CVelmarMessageListItemTest::chineseColumnsStayWhereTheFormHasThem()
{
    // However long the title: only the other language makes room for it.
    const ModeTitle title(TextOfWidth(120));
    const CVelmarMessageListItem row(nullptr);
    QCOMPARE(row.ui->titleModeLabel->geometry(), QRect(8, 10, 53, 15));
    QCOMPARE(row.ui->titleToolLabel->x(), 66);
    QCOMPARE(row.ui->toolName->x(), 66);
    QCOMPARE(row.ui->toolName->maximumWidth(), 100);
    QCOMPARE(row.ui->titleLocationLabel->x(), 348);
}

void CVelmarMessageListItemTest::modeTitleGetsRoomInOtherLanguages_data()
{
    QTest::addColumn<QString>("title");
    QTest::newRow("short: nothing is pushed") << TextOfWidth(16);
    QTest::newRow("middling") << TextOfWidth(45);
    QTest::newRow("starts at the row's edge") << TextOfWidth(80);
    QTest::newRow("leaves the name little room") << TextOfWidth(120);
    QTest::newRow("reaches the size column: the name keeps its width") << TextOfWidth(200);
    QTest::newRow("wider than the row") << TextOfWidth(600);
}

void CVelmarMessageListItemTest::modeTitleGetsRoomInOtherLanguages()
{
    QFETCH(const QString, title);
    SetChinese(false);
    const ModeTitle translated(title);
    const CVelmarMessageListItem row(nullptr);

    const int text = Advance(title);
    const int width = text + 8;
    const int x = qMax(24 + 12 - width / 2, 0);
    const QLabel* mode = row.ui->titleModeLabel;
    QCOMPARE(mode->text(), title);
    QCOMPARE(mode->x(), x);
    QCOMPARE(mode->width(), width);
    QCOMPARE(mode->height(), qMax(15, int(QFontMetricsF(FontCnBold_14).height())));
    QVERIFY(IsCentered(mode));

    const int right = text + 14 + x;
    const int left = qMax(66, right);
    QCOMPARE(row.ui->titleToolLabel->x(), left);
    QCOMPARE(row.ui->toolName->x(), left);
    const int room = 174 - 4 - right;
    QCOMPARE(row.ui->toolName->maximumWidth(), right > 66 && room > 0 && room < 100 ? room : 100);
    QCOMPARE(row.ui->toolSize->x(), 174);
    QCOMPARE(row.ui->toolLocation->x(), 348);
    QCOMPARE(row.ui->titleLocationLabel->x(), 348);
}

void CVelmarMessageListItemTest::nameTakesTheRoomThatIsLeft()
{
    SetChinese(false);
    const ModeTitle translated(TextOfWidth(120));
    CVelmarMessageListItem row(nullptr);
    const int room = row.ui->toolName->maximumWidth();
    QVERIFY(room < 100);
    const QString name(60, QLatin1Char('m'));
    row.SetContent(name, QString(), QString(), MachiningRough);
    QCOMPARE(row.ui->toolName->text(), QFontMetrics(FontCnBold_14).elidedText(name, Qt::ElideRight, room));
    QVERIFY(row.ui->toolName->geometry().right() < row.ui->toolSize->x());
}

void CVelmarMessageListItemTest::headerShowsTitlesAndDataShowsValues_data()
{
    QTest::addColumn<bool>("header");
    QTest::newRow("header") << true;
    QTest::newRow("data") << false;
}

void CVelmarMessageListItemTest::headerShowsTitlesAndDataShowsValues()
{
    QFETCH(const bool, header);
    CVelmarMessageListItem row(nullptr);
    // The last call holds.
    row.SetIsHeader(!header);
    row.SetIsHeader(header);
    for (const QLabel* title : {row.ui->titleModeLabel, row.ui->titleToolLabel, row.ui->titleLocationLabel}) {
        QCOMPARE(title->isHidden(), !header);
    }
    for (const QLabel* value : {row.ui->toolName, row.ui->toolSize, row.ui->toolLocation, row.ui->iconLabel}) {
        QCOMPARE(value->isHidden(), header);
    }
    QVERIFY(!row.ui->semiIconlabel->isHidden());
}

void CVelmarMessageListItemTest::contentIsShown()
{
    CVelmarMessageListItem row(nullptr);
    row.SetContent(QStringLiteral("ball"), QStringLiteral("R2 L50"), QStringLiteral("4"), MachiningFinish);
    QCOMPARE(row.ui->toolName->text(), QStringLiteral("ball"));
    QCOMPARE(row.ui->toolName->toolTip(), QStringLiteral("ball"));
    QCOMPARE(row.ui->toolSize->text(), QStringLiteral("R2 L50"));
    QCOMPARE(row.ui->toolLocation->text(), QStringLiteral("T4"));
    for (const QLabel* value : {row.ui->toolName, row.ui->toolSize, row.ui->toolLocation}) {
        QVERIFY2(IsCentered(value), qPrintable(value->objectName()));
        QCOMPARE(value->size(), value->sizeHint().boundedTo(value->maximumSize()));
    }
    QCOMPARE(row.ui->toolName->x(), 66);
    QCOMPARE(row.ui->toolSize->x(), 174);
    QCOMPARE(row.ui->toolLocation->x(), 348);
}

void CVelmarMessageListItemTest::nameReplacesItsSheetAndItsColour()
{
    CVelmarMessageListItem row(nullptr);
    row.SetIsHeader(false);
    row.SetContent(QStringLiteral("████"), QStringLiteral("████"), QString(), MachiningFinish);
    QCOMPARE(row.ui->toolName->styleSheet(),
             QStringLiteral("QToolTip {    background: #f0f0f0;    color: #333333;    border: 1px solid #aaaaaa;    "
                            "padding: 2px;        border-radius: 3px;}"));
    const QImage image = row.grab().toImage();
    QCOMPARE(image.pixelColor(row.ui->toolName->geometry().center()),
             QApplication::palette().color(QPalette::WindowText));
    QCOMPARE(image.pixelColor(row.ui->toolSize->geometry().center()), QColor(0x33, 0x33, 0x33));
}

void CVelmarMessageListItemTest::wideNameIsElided()
{
    CVelmarMessageListItem row(nullptr);
    const QString name(60, QLatin1Char('m'));
    row.SetContent(name, QString(), QString(), MachiningRough);
    const QString shown = row.ui->toolName->text();
    QVERIFY(shown.endsWith(QChar(0x2026)));
    QVERIFY(shown.size() < name.size());
    QVERIFY(row.ui->toolName->width() <= 100);
    QCOMPARE(row.ui->toolName->toolTip(), name);
}

void CVelmarMessageListItemTest::nameOfTheFullWidthIsShownWhole()
{
    CVelmarMessageListItem row(nullptr);
    const QFontMetrics metrics(FontCnBold_14);
    QString name = QStringLiteral("i");
    while (metrics.horizontalAdvance(name + QLatin1Char('i')) < 100) {
        name += QLatin1Char('i');
    }
    row.ui->toolName->setMaximumWidth(metrics.horizontalAdvance(name));
    row.SetContent(name, QString(), QString(), MachiningRough);
    QCOMPARE(row.ui->toolName->text(), name);
    row.SetContent(name + QLatin1Char('i'), QString(), QString(), MachiningRough);
    QVERIFY(row.ui->toolName->text().endsWith(QChar(0x2026)));
}

void CVelmarMessageListItemTest::locationBeginsWithT_data()
{
    QTest::addColumn<QString>("location");
    for (const char* location : {"1", "12", "-1", "", "T3"}) {
        QTest::addRow("\"%s\"", location) << QString::fromLatin1(location);
    }
}

void CVelmarMessageListItemTest::locationBeginsWithT()
{
    QFETCH(const QString, location);
    CVelmarMessageListItem row(nullptr);
    row.SetContent(QString(), QString(), location, MachiningRough);
    QCOMPARE(row.ui->toolLocation->text(), QLatin1Char('T') + location);
}

void CVelmarMessageListItemTest::flagHasNoEffect()
{
    CVelmarMessageListItem with(nullptr);
    CVelmarMessageListItem without(nullptr);
    for (CVelmarMessageListItem* row : {&with, &without}) {
        row->SetIsHeader(false);
        row->SetContent(QStringLiteral("ball"), QStringLiteral("R2"), QStringLiteral("4"), MachiningFinish,
                        row == &with);
    }
    QCOMPARE(with.grab().toImage(), without.grab().toImage());
}

void CVelmarMessageListItemTest::emptyTextsLeaveOnlyTheT()
{
    CVelmarMessageListItem row(nullptr);
    row.SetContent(QString(), QString(), QString(), MachiningRough);
    QCOMPARE(row.ui->toolName->text(), QString());
    QCOMPARE(row.ui->toolName->toolTip(), QString());
    QCOMPARE(row.ui->toolSize->text(), QString());
    QCOMPARE(row.ui->toolLocation->text(), QStringLiteral("T"));
}

void CVelmarMessageListItemTest::markupIsShownAsItStands()
{
    CVelmarMessageListItem row(nullptr);
    const QString text = QStringLiteral("<b>i</b>");
    row.SetContent(text, text, text, MachiningRough);
    // As wide as its letters, the marks among them.
    const int width = QFontMetrics(FontCnBold_14).horizontalAdvance(text);
    QVERIFY(row.ui->toolName->width() >= width);
    QVERIFY(row.ui->toolSize->width() >= width);
    QVERIFY(row.ui->toolLocation->width() >= width);
    QCOMPARE(row.ui->toolName->text(), text);
}

void CVelmarMessageListItemTest::typePicksTag_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("chinese");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QSize>("pictureSize");
    QTest::addColumn<QSize>("labelSize");

    struct TagRow
    {
        const char* szName;
        MachiningType eType;
        QSize chinese;
    };
    const TagRow tags[] = {
        {"cu", MachiningRough, {18, 18}},      {"ban", MachiningSemiFinish, {32, 18}},
        {"jing", MachiningFinish, {18, 18}},   {"luowen", MachiningThread, {18, 18}},
        {"wenli", MachiningTexture, {18, 18}},
    };
    for (const TagRow& tag : tags) {
        const QString name = QStringLiteral(":/icon/ico_tag_") + QLatin1String(tag.szName);
        const bool wide = tag.eType == MachiningSemiFinish;
        QTest::addRow("%s, Chinese", tag.szName)
            << int(tag.eType) << true << name + QStringLiteral(".png") << tag.chinese << QSize(24, 18);
        QTest::addRow("%s, English", tag.szName) << int(tag.eType) << false << name + QStringLiteral("_en.png")
                                                 << QSize(24, 18) << (wide ? QSize(32, 18) : QSize(18, 18));
    }
}

void CVelmarMessageListItemTest::typePicksTag()
{
    QFETCH(const int, type);
    QFETCH(const bool, chinese);
    QFETCH(const QString, picture);
    QFETCH(const QSize, pictureSize);
    QFETCH(const QSize, labelSize);
    SetChinese(chinese);
    CVelmarMessageListItem row(nullptr);
    row.SetIsHeader(false);
    row.SetContent(QStringLiteral("n"), QStringLiteral("d"), QStringLiteral("1"), MachiningType(type));

    const bool wide = type == MachiningSemiFinish;
    const QLabel* label = wide ? row.ui->semiIconlabel : row.ui->iconLabel;
    const QLabel* other = wide ? row.ui->iconLabel : row.ui->semiIconlabel;
    QCOMPARE(label->pixmap().size(), pictureSize);
    QCOMPARE(label->pixmap().toImage(), QImage(picture).convertToFormat(label->pixmap().toImage().format()));
    QCOMPARE(label->size(), labelSize);
    QCOMPARE(label->pos(), QPoint(0, (35 - labelSize.height()) / 2));
    QVERIFY(!label->isHidden());
    QVERIFY(other->isHidden());
    QVERIFY(other->pixmap().isNull());
}

void CVelmarMessageListItemTest::unknownTypeLeavesTagsAlone_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {-1, 5, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QTest::addRow("%d", type) << type;
    }
}

void CVelmarMessageListItemTest::unknownTypeLeavesTagsAlone()
{
    QFETCH(const int, type);
    CVelmarMessageListItem row(nullptr);
    row.SetContent(QStringLiteral("n"), QStringLiteral("d"), QStringLiteral("1"), MachiningType(type));
    QCOMPARE(row.ui->toolLocation->text(), QStringLiteral("T1"));
    QCOMPARE(row.ui->iconLabel->geometry(), QRect(10, 0, 18, 18));
    QCOMPARE(row.ui->semiIconlabel->geometry(), QRect(0, 10, 32, 18));
    for (const QLabel* tag : {row.ui->iconLabel, row.ui->semiIconlabel}) {
        QVERIFY(tag->pixmap().isNull());
        QVERIFY(!tag->isHidden());
    }
    row.SetContent(QString(), QString(), QString(), MachiningFinish);
    const QImage before = row.ui->iconLabel->pixmap().toImage();
    row.SetContent(QString(), QString(), QString(), MachiningType(type));
    QCOMPARE(row.ui->iconLabel->pixmap().toImage(), before);
}

void CVelmarMessageListItemTest::semiFinishTagIsCutInChinese()
{
    CVelmarMessageListItem row(nullptr);
    row.SetIsHeader(false);
    const QImage empty = row.grab().toImage();
    row.SetContent(QString(), QString(), QString(), MachiningSemiFinish);
    const QImage image = row.grab().toImage();
    // The picture begins with the column, at 24, and ends 24 pixels further, in its middle.
    const int y = 35 / 2;
    QVERIFY(image.pixelColor(24 + 23, y) != empty.pixelColor(24 + 23, y));
    for (int x = 24 + 24; x < 24 + 32; ++x) {
        QCOMPARE(image.pixelColor(x, y), empty.pixelColor(x, y));
    }
}

void CVelmarMessageListItemTest::tagsArePaintedAtTheLeftOfTheirColumn()
{
    CVelmarMessageListItem row(nullptr);
    row.SetIsHeader(false);
    const QImage empty = row.grab().toImage();
    row.SetContent(QString(), QString(), QString(), MachiningRough);
    const QImage image = row.grab().toImage();
    const int y = 35 / 2;
    QCOMPARE(image.pixelColor(24 - 1, y), empty.pixelColor(24 - 1, y));
    QVERIFY(image.pixelColor(24 + 2, y) != empty.pixelColor(24 + 2, y));
    QVERIFY(image.pixelColor(24 + 15, y) != empty.pixelColor(24 + 15, y));
    QCOMPARE(image.pixelColor(24 + 18, y), empty.pixelColor(24 + 18, y));
}

void CVelmarMessageListItemTest::missingPictureLeavesTheTagEmpty()
{
    Q_CLEANUP_RESOURCE(CustomControls);
    QPixmapCache::clear();
    CVelmarMessageListItem row(nullptr);
    row.SetContent(QStringLiteral("n"), QStringLiteral("d"), QStringLiteral("1"), MachiningThread);
    Q_INIT_RESOURCE(CustomControls);
    QVERIFY(row.ui->iconLabel->pixmap().isNull());
    QCOMPARE(row.ui->iconLabel->size(), QSize(24, 18));
    QCOMPARE(row.ui->toolName->text(), QStringLiteral("n"));
}

void CVelmarMessageListItemTest::languageOfTheTagIsThatOfTheMoment()
{
    CVelmarMessageListItem row(nullptr);
    SetChinese(false);
    row.SetContent(QString(), QString(), QString(), MachiningRough);
    QCOMPARE(row.ui->iconLabel->pixmap().size(), QSize(24, 18));
    QCOMPARE(row.ui->titleToolLabel->x(), 66);
}

CUSTOMCONTROLS_TEST_MAIN(CVelmarMessageListItemTest)
#include "CVelmarMessageListItemTest.moc"
