#include <CustomControls/buttons/CMultiLineLabel.h>
#include <CustomControls/buttons/CVelmarButton.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QBoxLayout>
#include <QPainter>
#include <QPicture>
#include <QSignalSpy>

#include <functional>

namespace {

const QList<EnumButtonType> kTypes = {ButtonTypeIcon,       ButtonTypeText,           ButtonTypeIconChoose,
                                      ButtonTypeTextChoose, ButtonTypeIconText,       ButtonTypeIconTextChoose,
                                      ButtonTypeIconImage,  ButtonTypeIconImageChoose};

QImage Picture(QWidget& widget)
{
    QImage image(widget.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    widget.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
    return image;
}

// Gives a button a look of its own in every state.
void Dress(CVelmarButton& button)
{
    button.SetButtonIcon(QStringLiteral("url(n)"), QStringLiteral("url(p)"), QStringLiteral("url(h)"),
                         QStringLiteral("url(c)"));
    button.SetButtonIcon_Text(QStringLiteral("url(tn)"), QStringLiteral("url(tp)"), QStringLiteral("url(th)"),
                              QStringLiteral("url(tc)"));
    button.SetTextColor(QStringLiteral("#000001"), QStringLiteral("#000002"), QStringLiteral("#000003"),
                        QStringLiteral("#000004"));
}

// A button of 80 by 40 at (20, 20) of a shown window.
class Stage : public QWidget
{
public:
    explicit Stage(EnumButtonType type, int kind = 0, bool vertical = false, bool iconFirst = true)
        : button(new CVelmarButton(type, vertical, iconFirst, kind, this))
    {
        resize(200, 100);
        button->setGeometry(20, 20, 80, 40);
        show();
        if (!QTest::qWaitForWindowExposed(this)) {
            qFatal("the window does not show");
        }
        MovePointer(outside);
        QCoreApplication::processEvents();
    }

    // The real pointer goes along: where there is one, what it enters and leaves is told as well.
    void MovePointer(const QPoint& place) const
    {
        QCursor::setPos(mapToGlobal(place));
        QTest::mouseMove(windowHandle(), place);
    }

    void Enter() const
    {
        QEnterEvent event(inside, inside, inside);
        QApplication::sendEvent(button, &event);
    }

    void Leave() const
    {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(button, &event);
    }

    QString IconSheet() const { return button->m_pIconLabel->styleSheet(); }
    QString TextSheet() const { return button->m_pTextLabel->styleSheet(); }

    CVelmarButton* button;
    const QPoint inside{40, 20};
    const QPoint outside{190, 90};
};

void MakePng(const QString& path, const QColor& color)
{
    QImage image(80, 40, QImage::Format_ARGB32);
    image.fill(color);
    QVERIFY(image.save(path, "PNG"));
}

class ImageFolder
{
public:
    ImageFolder()
    {
        MakePng(Path("n"), Qt::red);
        MakePng(Path("p"), Qt::green);
        MakePng(Path("h"), Qt::blue);
        MakePng(Path("c"), Qt::yellow);
    }

    QString Path(const char* name) const
    {
        return m_folder.filePath(QString::fromLatin1(name) + QLatin1String(".png"));
    }

    void Dress(CVelmarButton* button) const { button->SetBackgroundImage(Path("n"), Path("p"), Path("h"), Path("c")); }

private:
    QTemporaryDir m_folder;
};

} // namespace

class CVelmarButtonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void enumerationKeepsItsValues();
    void typeDecidesWhichLabelsShow_data();
    void typeDecidesWhichLabelsShow();
    void orientationDecidesSizesAndLayouts();
    void freshButtonHoldsItsDefaults();
    void firstPaintStylesOnce();
    void sheetsOfEveryKindTypeAndState_data();
    void sheetsOfEveryKindTypeAndState();
    void iconBorderTakesTheTextColor();
    void boldDoesNotChangeTheSheet();
    void hiddenDeclarationsKeepTheLayoutInformed();
    void setterRestylesAtOnce_data();
    void setterRestylesAtOnce();
    void solidBackgroundFollowsStateAndChoice_data();
    void solidBackgroundFollowsStateAndChoice();
    void gradientSpansTheLogicalSize();
    void gradientOfTheChosenLookWins();
    void imageBackgroundStandsOnePixelLeft();
    void imageBackgroundFollowsStateAndChoice();
    void imageTypeHasNoChosenLookOverImages();
    void disabledHoverShowsTheNormalImage();
    void imagesCoverASolidBackground();
    void imagesOfTheImageKindAreDrawnTwice();
    void chosenImageLiesOverTheOneOfTheState();
    void strangeStateDrawsTheChosenImageOnly();
    void strangeStateLooksNormalOtherwise();
    void unknownKindPaintsNothingAndStylesTheTextOnly();
    void imagesTakeTheSizeOfTheMoment();
    void radiusRoundsTheCornersWithTheNextPaint();
    void fillEqualsOneDrawnDirectly_data();
    void fillEqualsOneDrawnDirectly();
    void iconLabelPaintsWhatAHostPutsIntoIt_data();
    void iconLabelPaintsWhatAHostPutsIntoIt();
    void sheetsFromAboveReachAHoveredText_data();
    void sheetsFromAboveReachAHoveredText();
    void hoverEntersAndLeaves();
    void everyChangeAsksForARepaint_data();
    void everyChangeAsksForARepaint();
    void hoverBeforeTheFirstPaintStyles();
    void hoverAsksForNoLayout();
    void hoverWithoutChangeTouchesNoLabel();
    void pressAndReleaseInsideClicks();
    void pressAndReleaseOutsideEmitsNothing();
    void otherButtonsDoNothing();
    void clickedNeverFires();
    void disabledButtonEmitsNothing();
    void mouseNeverChangesTheChoice();
    void releaseTravelsToTheParent();
    void buttonMayBeDeletedByItsClick();
    void hoverSignalsStaySilent();
    void bubbleLooksAsPrescribed();
    void bubbleFollowsTheChoice_data();
    void bubbleFollowsTheChoice();
    void bubbleCounts();
    void bubbleOperationsWithoutBubbleDoNothing();
    void secondBubbleForgetsTheFirst();
    void textSetsTheWeightAndKeepsTheSize();
    void fontSizeIgnoresNonsense();
    void textAndFontForward();
    void enabledReachesTheLabels();
    void positionsReachLayoutsAndLabels_data();
    void positionsReachLayoutsAndLabels();
    void sizeIsAMaximum();
    void contentIsCentred_data();
    void contentIsCentred();
    void contentOfOtherTypesStays();
    void strangeArgumentsDoNotFail();
};

void CVelmarButtonTest::enumerationKeepsItsValues()
{
    for (int i = 0; i < kTypes.size(); ++i) {
        QCOMPARE(int(kTypes.at(i)), i);
    }
}

void CVelmarButtonTest::typeDecidesWhichLabelsShow_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("icon");
    QTest::addColumn<bool>("text");
    const bool icons[] = {true, false, true, false, true, true, true, true};
    const bool texts[] = {false, true, false, true, true, true, true, true};
    for (int type = 0; type < 8; ++type) {
        QTest::addRow("type %d", type) << type << icons[type] << texts[type];
    }
}

void CVelmarButtonTest::typeDecidesWhichLabelsShow()
{
    QFETCH(int, type);
    QFETCH(bool, icon);
    QFETCH(bool, text);
    for (const bool vertical : {false, true}) {
        const Stage stage(EnumButtonType(type), 0, vertical);
        QCOMPARE(stage.button->m_pIconLabel->isVisible(), icon);
        QCOMPARE(stage.button->m_pTextLabel->isVisible(), text);
        QCOMPARE(stage.button->m_pIconLabel->parentWidget(), stage.button);
        QCOMPARE(stage.button->m_pTextLabel->parentWidget(), stage.button);
    }
}

void CVelmarButtonTest::orientationDecidesSizesAndLayouts()
{
    const CVelmarButton vertical(ButtonTypeIconText, true, false, 0, nullptr);
    QCOMPARE(vertical.maximumSize(), QSize(60, 40));
    QCOMPARE(vertical.m_pTextLabel->maximumSize(), QSize(60, 20));
    QCOMPARE(vertical.m_iWidth, 60);
    QCOMPARE(vertical.m_iHeight, 40);
    QCOMPARE(vertical.layout(), vertical.m_pMainLayoutV);
    QCOMPARE(vertical.m_pMainLayoutH, nullptr);
    QCOMPARE(vertical.m_pImageLayoutH, nullptr);
    QCOMPARE(vertical.m_pTextLayoutH, nullptr);
    QCOMPARE(vertical.m_pMainLayoutV->itemAt(0)->layout(), vertical.m_pImageLayoutV);
    QCOMPARE(vertical.m_pMainLayoutV->itemAt(1)->layout(), vertical.m_pTextLayoutV);

    for (const bool iconFirst : {true, false}) {
        const CVelmarButton horizontal(ButtonTypeIconText, false, iconFirst, 0, nullptr);
        QCOMPARE(horizontal.maximumSize(), QSize(80, 40));
        QCOMPARE(horizontal.m_pTextLabel->maximumSize(), QSize(40, 40));
        QCOMPARE(horizontal.m_iTextWidth, 40);
        QCOMPARE(horizontal.m_iTextHeight, 40);
        QCOMPARE(horizontal.m_iWidth, 80);
        QCOMPARE(horizontal.layout(), horizontal.m_pMainLayoutH);
        QCOMPARE(horizontal.m_pMainLayoutV, nullptr);
        QCOMPARE(horizontal.m_pMainLayoutH->itemAt(iconFirst ? 0 : 1)->layout(), horizontal.m_pImageLayoutH);
        QCOMPARE(horizontal.m_pMainLayoutH->itemAt(iconFirst ? 1 : 0)->layout(), horizontal.m_pTextLayoutH);
        QCOMPARE(horizontal.m_pMainLayoutH->contentsMargins(), QMargins());
        QCOMPARE(horizontal.m_pMainLayoutH->spacing(), 0);
        QCOMPARE(horizontal.m_pImageLayoutH->contentsMargins(), QMargins());
        QCOMPARE(horizontal.m_pTextLayoutH->contentsMargins(), QMargins());
    }
}

void CVelmarButtonTest::freshButtonHoldsItsDefaults()
{
    CVelmarButton button(ButtonTypeIconTextChoose, false, true, 0, nullptr);
    QVERIFY(button.windowFlags().testFlag(Qt::CustomizeWindowHint));
    QVERIFY(button.windowFlags().testFlag(Qt::FramelessWindowHint));
    QVERIFY(button.styleSheet().isEmpty());
    QVERIFY(button.m_bFirstPaint);
    QVERIFY(!button.m_bBoldText);
    QVERIFY(!button.m_bHasBubble);
    QVERIFY(!button.m_bIconBorder);
    QVERIFY(!button.m_bBubbleLight);
    QVERIFY(!button.m_bChooseFocus);
    QVERIFY(!button.GetChooseFocusState());
    QVERIFY(!button.m_bHovered);
    QVERIFY(!button.m_bHasBackgroundImage);
    QCOMPARE(button.m_pBubble, nullptr);
    QCOMPARE(button.m_iRadius, 0);
    QCOMPARE(button.m_iBubbleCount, 0);
    QCOMPARE(button.m_iState, 0);
    QCOMPARE(button.m_iHeight, 40);
    QCOMPARE(button.m_strText, QStringLiteral("ZVButton"));
    QCOMPARE(button.GetButtonText(), QStringLiteral("ZVButton"));
    QCOMPARE(button.GetButtonTextFont().pixelSize(), FontCn_14.pixelSize());
    QCOMPARE(button.GetButtonTextFont().weight(), FontCn_14.weight());
    QCOMPARE(button.m_pTextLabel->alignment(), Qt::AlignCenter);
    QCOMPARE(button.m_strTextColor[0], QStringLiteral("rgb(102,102,102)"));
    QCOMPARE(button.m_strTextColor[1], QStringLiteral("rgb(255,255,255)"));
    QCOMPARE(button.m_strTextColor[2], QStringLiteral("rgb(50,50,50)"));
    QCOMPARE(button.m_strTextColor[3], QStringLiteral("rgb(255,255,255)"));
    QCOMPARE(button.m_colorSolid[0], QColor(230, 230, 230));
    QCOMPARE(button.m_colorSolid[1], QColor(38, 120, 218));
    QCOMPARE(button.m_colorSolid[2], QColor(194, 211, 231));
    QCOMPARE(button.m_colorSolid[3], QColor(38, 120, 218));
    for (int look = 0; look < 4; ++look) {
        QVERIFY(button.m_pixBackground[look].isNull());
        QVERIFY(!button.m_gradient[look].startColor.isValid());
        QVERIFY(button.m_strIcon[look].isEmpty());
        QVERIFY(button.m_strTextIcon[look].isEmpty());
    }
    QVERIFY(button.m_pIconLabel->styleSheet().isEmpty());
    QVERIFY(button.m_pTextLabel->styleSheet().isEmpty());
}

void CVelmarButtonTest::firstPaintStylesOnce()
{
    CVelmarButton button(ButtonTypeIconTextChoose, false, true, 0, nullptr);
    button.resize(80, 40);
    Picture(button);
    QVERIFY(!button.m_bFirstPaint);
    QCOMPARE(button.m_pIconLabel->styleSheet(), QStringLiteral("image:;background:transparent;"));
    QCOMPARE(button.m_pTextLabel->styleSheet(), QStringLiteral("color:rgb(102,102,102);background:transparent;"));
    button.m_pTextLabel->setStyleSheet(QStringLiteral("color:red;"));
    Picture(button);
    QCOMPARE(button.m_pTextLabel->styleSheet(), QStringLiteral("color:red;"));
}

void CVelmarButtonTest::sheetsOfEveryKindTypeAndState_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<QString>("icon");
    QTest::addColumn<QString>("text");
    const char* const looks[] = {"n", "p", "h", "c"};
    for (const int kind : {-1, 0, 1, 2, 3}) {
        for (int type = 0; type < 8; ++type) {
            for (int state = 0; state < 3; ++state) {
                for (const bool chosen : {false, true}) {
                    const bool textChosen = chosen && (type == 2 || type == 3 || type == 5);
                    const bool iconChosen = textChosen || (chosen && type == 7 && kind != 2);
                    const int iconLook = iconChosen ? 3 : state;
                    const int textLook = textChosen ? 3 : state;
                    const QString icon = kind < 0 || kind > 2 ? QString()
                                                              : QStringLiteral("image:url(%1);background:transparent;")
                                                                    .arg(QLatin1String(looks[iconLook]));
                    const QString text =
                        type >= 6 ? QStringLiteral("image:url(t%1);background:transparent;")
                                        .arg(QLatin1String(looks[textLook]))
                                  : QStringLiteral("color:#00000%1;background:transparent;").arg(textLook + 1);
                    QTest::addRow("kind %d type %d state %d%s", kind, type, state, chosen ? " chosen" : "")
                        << kind << type << state << chosen << icon << text;
                }
            }
        }
    }
}

void CVelmarButtonTest::sheetsOfEveryKindTypeAndState()
{
    QFETCH(int, kind);
    QFETCH(int, type);
    QFETCH(int, state);
    QFETCH(bool, chosen);
    QFETCH(QString, icon);
    QFETCH(QString, text);
    CVelmarButton button(EnumButtonType(type), false, true, kind, nullptr);
    Dress(button);
    button.SetChooseFocus(chosen);
    if (state == 2) {
        QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
        QApplication::sendEvent(&button, &event);
    } else if (state == 1) {
        QTest::mousePress(&button, Qt::LeftButton, {}, QPoint(1, 1));
    }
    QCOMPARE(button.m_iState, state);
    QCOMPARE(button.m_pIconLabel->styleSheet(), icon);
    QCOMPARE(button.m_pTextLabel->styleSheet(), text);
}

void CVelmarButtonTest::iconBorderTakesTheTextColor()
{
    const Stage stage(ButtonTypeIconTextChoose);
    Dress(*stage.button);
    stage.button->SetBtnRadius(7);
    stage.button->SetIconBorder(QStringLiteral("border:1px solid "), true);
    QCOMPARE(stage.IconSheet(), QStringLiteral("image:url(n);border:1px solid #000001;border-radius:7px;"));
    stage.Enter();
    QCOMPARE(stage.IconSheet(), QStringLiteral("image:url(h);border:1px solid #000003;border-radius:7px;"));
    stage.button->SetChooseFocus(true);
    QCOMPARE(stage.IconSheet(), QStringLiteral("image:url(c);border:1px solid #000004;border-radius:7px;"));
    stage.button->SetIconBorder(QStringLiteral("border:1px solid "), false);
    QCOMPARE(stage.IconSheet(), QStringLiteral("image:url(c);background:transparent;"));
    QCOMPARE(stage.button->m_strIconBorder, QStringLiteral("border:1px solid "));
}

void CVelmarButtonTest::boldDoesNotChangeTheSheet()
{
    const Stage stage(ButtonTypeIconTextChoose);
    Dress(*stage.button);
    stage.button->SetButtonText(QStringLiteral("OK"), true);
    stage.Enter();
    QCOMPARE(stage.TextSheet(), QStringLiteral("color:#000003;background:transparent;"));
}

void CVelmarButtonTest::hiddenDeclarationsKeepTheLayoutInformed()
{
    const Stage stage(ButtonTypeIconTextChoose);
    stage.button->SetTextColor(QStringLiteral("red"), QStringLiteral("red"), QStringLiteral("red;padding:3px"),
                               QStringLiteral("red"));
    const QSize before = stage.button->m_pTextLabel->sizeHint();
    stage.Enter();
    QCOMPARE(stage.button->m_pTextLabel->sizeHint(), before + QSize(6, 6));
}

void CVelmarButtonTest::setterRestylesAtOnce_data()
{
    QTest::addColumn<int>("setter");
    for (int setter = 0; setter < 8; ++setter) {
        QTest::addRow("setter %d", setter) << setter;
    }
}

void CVelmarButtonTest::setterRestylesAtOnce()
{
    QFETCH(int, setter);
    CVelmarButton button(ButtonTypeIconTextChoose, false, true, 0, nullptr);
    const QString empty;
    switch (setter) {
    case 0:
        button.SetButtonIcon(empty, empty, empty, empty);
        break;
    case 1:
        button.SetButtonIcon_Text(empty, empty, empty, empty);
        break;
    case 2:
        button.SetBackgroundSolid(Qt::red, Qt::red, Qt::red, Qt::red);
        break;
    case 3:
        button.SetBackgroundGradient({}, {}, {}, {});
        break;
    case 4:
        button.SetBackgroundImage(empty, empty, empty, empty);
        break;
    case 5:
        button.SetTextColor(empty, empty, empty, empty);
        break;
    case 6:
        button.SetChooseFocus(false);
        break;
    case 7:
        button.SetIconBorder(empty, false);
        break;
    }
    QVERIFY(!button.m_pTextLabel->styleSheet().isEmpty());

    CVelmarButton quiet(ButtonTypeIconTextChoose, false, true, 0, nullptr);
    quiet.SetBtnRadius(3);
    quiet.SetButtonText(QStringLiteral("OK"), true);
    quiet.SetButtonFontSize(20);
    QVERIFY(quiet.m_pTextLabel->styleSheet().isEmpty());
}

void CVelmarButtonTest::solidBackgroundFollowsStateAndChoice_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("state");
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<int>("look");
    for (int type = 0; type < 8; ++type) {
        for (int state = 0; state < 3; ++state) {
            for (const bool chosen : {false, true}) {
                const bool applies = type == 2 || type == 3 || type == 5 || type == 7;
                QTest::addRow("type %d state %d%s", type, state, chosen ? " chosen" : "")
                    << type << state << chosen << (chosen && applies ? 3 : state);
            }
        }
    }
}

void CVelmarButtonTest::solidBackgroundFollowsStateAndChoice()
{
    QFETCH(int, type);
    QFETCH(int, state);
    QFETCH(bool, chosen);
    QFETCH(int, look);
    const QColor colors[] = {Qt::red, Qt::green, Qt::blue, Qt::yellow};
    CVelmarButton button(EnumButtonType(type), false, true, 0, nullptr);
    button.resize(80, 40);
    button.SetBackgroundSolid(colors[0], colors[1], colors[2], colors[3]);
    button.SetButtonText(QString(), false);
    button.m_iState = state;
    button.SetChooseFocus(chosen);
    const QImage picture = Picture(button);
    QCOMPARE(picture.pixelColor(0, 0), colors[look]);
    QCOMPARE(picture.pixelColor(40, 20), colors[look]);
    QCOMPARE(picture.pixelColor(79, 39), colors[look]);
}

void CVelmarButtonTest::gradientSpansTheLogicalSize()
{
    CVelmarButton button(ButtonTypeIcon, false, true, 1, nullptr);
    button.SetButtonSize(80, 100);
    button.resize(80, 50);
    const StructGradientColor normal{QColor(0, 0, 0), QColor(200, 0, 0)};
    button.SetBackgroundGradient(normal, {}, {}, {});
    const QImage picture = Picture(button);
    QVERIFY(picture.pixelColor(40, 0).red() <= 4);
    // The middle of the gradient is the end of a button half as high.
    QVERIFY(qAbs(picture.pixelColor(40, 49).red() - 99) <= 4);
    QCOMPARE(picture.pixelColor(1, 49), picture.pixelColor(78, 49));
}

void CVelmarButtonTest::gradientOfTheChosenLookWins()
{
    const auto flat = [](const QColor& color) { return StructGradientColor{color, color}; };
    for (const EnumButtonType type : kTypes) {
        CVelmarButton button(type, false, true, 1, nullptr);
        button.resize(80, 40);
        button.SetButtonText(QString(), false);
        button.SetBackgroundGradient(flat(Qt::red), flat(Qt::green), flat(Qt::blue), flat(Qt::yellow));
        for (int state = 0; state < 3; ++state) {
            const QColor colors[] = {Qt::red, Qt::green, Qt::blue};
            button.m_iState = state;
            button.SetChooseFocus(false);
            QCOMPARE(Picture(button).pixelColor(40, 20), colors[state]);
            button.SetChooseFocus(true);
            const bool applies = type == 2 || type == 3 || type == 5 || type == 7;
            QCOMPARE(Picture(button).pixelColor(40, 20), applies ? QColor(Qt::yellow) : colors[state]);
        }
    }
}

void CVelmarButtonTest::imageBackgroundStandsOnePixelLeft()
{
    const QTemporaryDir folder;
    QImage image(80, 40, QImage::Format_ARGB32);
    image.fill(Qt::red);
    for (int y = 0; y < image.height(); ++y) {
        image.setPixelColor(10, y, Qt::blue);
    }
    const QString path = folder.filePath(QStringLiteral("n.png"));
    QVERIFY(image.save(path));
    CVelmarButton button(ButtonTypeIcon, false, true, 2, nullptr);
    button.resize(80, 40);
    button.SetBackgroundImage(path, path, path, path);
    const QImage picture = Picture(button);
    QCOMPARE(picture.pixelColor(9, 20), QColor(Qt::blue));
    QCOMPARE(picture.pixelColor(10, 20), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(78, 20), QColor(Qt::red));
    QCOMPARE(picture.pixelColor(79, 20).alpha(), 0);
}

void CVelmarButtonTest::imageBackgroundFollowsStateAndChoice()
{
    const ImageFolder images;
    for (const EnumButtonType type : kTypes) {
        CVelmarButton button(type, false, true, 2, nullptr);
        button.resize(80, 40);
        button.SetButtonText(QString(), false);
        images.Dress(&button);
        const QColor colors[] = {Qt::red, Qt::green, Qt::blue};
        for (int state = 0; state < 3; ++state) {
            button.m_iState = state;
            button.SetChooseFocus(false);
            QCOMPARE(Picture(button).pixelColor(40, 20), colors[state]);
            button.SetChooseFocus(true);
            const bool applies = type == 2 || type == 3 || type == 5;
            QCOMPARE(Picture(button).pixelColor(40, 20), applies ? QColor(Qt::yellow) : colors[state]);
        }
    }
}

void CVelmarButtonTest::imageTypeHasNoChosenLookOverImages()
{
    const ImageFolder images;
    for (const int kind : {0, 2}) {
        const Stage stage(ButtonTypeIconImageChoose, kind);
        Dress(*stage.button);
        stage.button->SetBackgroundSolid(Qt::white, Qt::white, Qt::white, Qt::black);
        stage.button->SetChooseFocus(true);
        QCOMPARE(stage.IconSheet(),
                 QStringLiteral("image:url(%1);background:transparent;").arg(QLatin1String(kind == 0 ? "c" : "n")));
        if (kind == 0) {
            QCOMPARE(Picture(*stage.button).pixelColor(1, 1), QColor(Qt::black));
        }
        images.Dress(stage.button);
        QCOMPARE(Picture(*stage.button).pixelColor(1, 1), QColor(Qt::red));
    }
}

void CVelmarButtonTest::disabledHoverShowsTheNormalImage()
{
    const ImageFolder images;
    CVelmarButton button(ButtonTypeIcon, false, true, 2, nullptr);
    button.resize(80, 40);
    images.Dress(&button);
    button.SetEnabled(false);
    button.m_iState = 2;
    QCOMPARE(Picture(button).pixelColor(40, 20), QColor(Qt::red));
    button.m_iState = 1;
    QCOMPARE(Picture(button).pixelColor(40, 20), QColor(Qt::green));
}

void CVelmarButtonTest::imagesCoverASolidBackground()
{
    const ImageFolder images;
    for (const int kind : {0, 1, 7}) {
        CVelmarButton button(ButtonTypeIcon, false, true, kind, nullptr);
        button.resize(80, 40);
        images.Dress(&button);
        const QImage picture = Picture(button);
        QCOMPARE(picture.pixelColor(40, 20), QColor(Qt::red));
        // The column that the image leaves free shows the fill.
        QCOMPARE(picture.pixelColor(79, 20).alpha() != 0, kind != 7);
    }
}

void CVelmarButtonTest::imagesOfTheImageKindAreDrawnTwice()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("n.png"));
    MakePng(path, QColor(255, 0, 0, 128));
    CVelmarButton button(ButtonTypeIcon, false, true, 2, nullptr);
    button.resize(80, 40);
    button.SetBackgroundImage(path, path, path, path);
    // Half of what the first drawing leaves free is covered by the second.
    QVERIFY(qAbs(Picture(button).pixelColor(40, 20).alpha() - 191) <= 1);
    button.m_bHasBackgroundImage = false;
    QVERIFY(qAbs(Picture(button).pixelColor(40, 20).alpha() - 128) <= 1);
}

void CVelmarButtonTest::chosenImageLiesOverTheOneOfTheState()
{
    const QTemporaryDir folder;
    const QString opaque = folder.filePath(QStringLiteral("n.png"));
    const QString half = folder.filePath(QStringLiteral("c.png"));
    MakePng(opaque, Qt::red);
    MakePng(half, QColor(0, 0, 255, 128));
    CVelmarButton button(ButtonTypeIconChoose, false, true, 0, nullptr);
    button.resize(80, 40);
    button.SetBackgroundImage(opaque, opaque, opaque, half);
    button.SetChooseFocus(true);
    const QColor mixed = Picture(button).pixelColor(40, 20);
    QVERIFY(qAbs(mixed.red() - 127) <= 1);
    QVERIFY(qAbs(mixed.blue() - 128) <= 1);
}

void CVelmarButtonTest::strangeStateDrawsTheChosenImageOnly()
{
    const ImageFolder images;
    CVelmarButton button(ButtonTypeIconChoose, false, true, 2, nullptr);
    button.resize(80, 40);
    images.Dress(&button);
    for (const int state : {-1, 3, 99}) {
        button.m_iState = state;
        button.SetChooseFocus(false);
        QCOMPARE(Picture(button).pixelColor(40, 20).alpha(), 0);
        button.SetChooseFocus(true);
        QCOMPARE(Picture(button).pixelColor(40, 20), QColor(Qt::yellow));
    }
}

void CVelmarButtonTest::strangeStateLooksNormalOtherwise()
{
    for (const int kind : {0, 1}) {
        CVelmarButton button(ButtonTypeIconChoose, false, true, kind, nullptr);
        button.resize(80, 40);
        Dress(button);
        button.SetBackgroundSolid(Qt::red, Qt::green, Qt::blue, Qt::yellow);
        button.SetBackgroundGradient({Qt::red, Qt::red}, {}, {}, {Qt::yellow, Qt::yellow});
        for (const int state : {-1, 3, 99}) {
            button.m_iState = state;
            button.SetChooseFocus(false);
            QCOMPARE(Picture(button).pixelColor(1, 1), QColor(Qt::red));
            QCOMPARE(button.m_pIconLabel->styleSheet(), QStringLiteral("image:url(n);background:transparent;"));
            button.SetChooseFocus(true);
            QCOMPARE(Picture(button).pixelColor(1, 1), QColor(Qt::yellow));
        }
    }
}

void CVelmarButtonTest::unknownKindPaintsNothingAndStylesTheTextOnly()
{
    for (const int kind : {-1, 3, INT_MAX, INT_MIN}) {
        CVelmarButton button(ButtonTypeIconTextChoose, false, true, kind, nullptr);
        button.resize(80, 40);
        button.SetButtonText(QString(), false);
        QCOMPARE(Picture(button).pixelColor(40, 20).alpha(), 0);
        QVERIFY(button.m_pIconLabel->styleSheet().isEmpty());
        QVERIFY(!button.m_pTextLabel->styleSheet().isEmpty());
    }
}

void CVelmarButtonTest::imagesTakeTheSizeOfTheMoment()
{
    const ImageFolder images;
    CVelmarButton button(ButtonTypeIcon, false, true, 2, nullptr);
    button.resize(40, 20);
    images.Dress(&button);
    button.resize(80, 40);
    for (const QPixmap& pixmap : button.m_pixBackground) {
        QCOMPARE(pixmap.size(), QSize(40, 20));
    }
    QVERIFY(button.m_bHasBackgroundImage);
}

void CVelmarButtonTest::radiusRoundsTheCornersWithTheNextPaint()
{
    class PaintCounter : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::Paint || event->type() == QEvent::UpdateRequest;
            return false;
        }
        int count = 0;
    };
    const Stage stage(ButtonTypeIcon);
    QCoreApplication::processEvents();
    PaintCounter counter;
    stage.button->installEventFilter(&counter);
    stage.button->SetBtnRadius(15);
    QCoreApplication::processEvents();
    QCOMPARE(counter.count, 0);
    QCOMPARE(Picture(*stage.button).pixelColor(0, 0).alpha(), 0);
    QCOMPARE(Picture(*stage.button).pixelColor(40, 0).alpha(), 255);
}

void CVelmarButtonTest::fillEqualsOneDrawnDirectly_data()
{
    QTest::addColumn<QColor>("color");
    QTest::newRow("opaque") << QColor(10, 200, 30);
    QTest::newRow("translucent") << QColor(255, 0, 0, 100);
    QTest::newRow("transparent") << QColor(Qt::transparent);
    QTest::newRow("of another space") << QColor::fromHsvF(0.3F, 0.5F, 0.7F, 0.9F);
    QTest::newRow("invalid") << QColor();
}

void CVelmarButtonTest::fillEqualsOneDrawnDirectly()
{
    QFETCH(QColor, color);
    CVelmarButton button(ButtonTypeIcon, false, true, 0, nullptr);
    button.SetBackgroundSolid(color, color, color, color);
    for (const QSize size : {QSize(80, 40), QSize(33, 17), QSize(400, 300)}) {
        button.setMaximumSize(size);
        button.resize(size);
        for (const int radius : {0, 4, 17, -3}) {
            button.SetBtnRadius(radius);
            for (const qreal ratio : {1.0, 1.5, 2.0}) {
                const auto canvas = [&] {
                    QImage image((QSizeF(size) * ratio).toSize(), QImage::Format_RGB32);
                    image.setDevicePixelRatio(ratio);
                    image.fill(QColor(239, 239, 239));
                    return image;
                };
                QImage expected = canvas();
                QPainter painter(&expected);
                painter.setRenderHint(QPainter::Antialiasing);
                painter.setPen(Qt::NoPen);
                painter.setBrush(color);
                painter.drawRoundedRect(QRect(QPoint(), size), radius, radius);
                painter.end();
                for (const char* time : {"first", "second"}) {
                    QImage image = canvas();
                    button.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
                    QVERIFY2(image == expected,
                             qPrintable(QStringLiteral("width %1, radius %2, ratio %3, %4 time")
                                            .arg(QString::number(size.width()), QString::number(radius),
                                                 QString::number(ratio), QString::fromLatin1(time))));
                }
            }
        }
    }
}

void CVelmarButtonTest::iconLabelPaintsWhatAHostPutsIntoIt_data()
{
    QTest::addColumn<std::function<void(QLabel*)>>("put");
    QTest::newRow("pixmap") << std::function<void(QLabel*)>([](QLabel* label) {
        QPixmap pixmap(40, 40);
        pixmap.fill(Qt::red);
        label->setPixmap(pixmap);
    });
    QTest::newRow("text") << std::function<void(QLabel*)>([](QLabel* label) { label->setText(QStringLiteral("X")); });
    QTest::newRow("frame") << std::function<void(QLabel*)>(
        [](QLabel* label) { label->setFrameStyle(int(QFrame::Box) | int(QFrame::Plain)); });
    QTest::newRow("picture") << std::function<void(QLabel*)>([](QLabel* label) {
        QPicture picture;
        QPainter painter(&picture);
        painter.fillRect(0, 0, 30, 30, Qt::red);
        painter.end();
        label->setPicture(picture);
    });
}

void CVelmarButtonTest::iconLabelPaintsWhatAHostPutsIntoIt()
{
    QFETCH(std::function<void(QLabel*)>, put);
    const Stage stage(ButtonTypeIcon);
    const QImage before = Picture(*stage.button);
    QVERIFY(before == Picture(*stage.button));
    put(stage.button->m_pIconLabel);
    QVERIFY(before != Picture(*stage.button));
}

void CVelmarButtonTest::sheetsFromAboveReachAHoveredText_data()
{
    QTest::addColumn<bool>("toApplication");
    QTest::addColumn<QString>("sheet");
    for (const bool toApplication : {false, true}) {
        const char* where = toApplication ? "application" : "window";
        QTest::addRow("%s: border", where) << toApplication << QStringLiteral("QLabel{border:2px solid red;}");
        QTest::addRow("%s: background", where) << toApplication << QStringLiteral("*{background-color:#ddeeff;}");
        QTest::addRow("%s: hover", where) << toApplication << QStringLiteral("QLabel:hover{border:1px dotted blue;}");
        QTest::addRow("%s: image", where)
            << toApplication << QStringLiteral("QLabel{image:url(:/icon/simcontrol/ico_warning_line_b_nor.png);}");
    }
}

// A text label whose own sheet paints no background is spared that step of painting; a sheet from above may need it.
void CVelmarButtonTest::sheetsFromAboveReachAHoveredText()
{
    QFETCH(bool, toApplication);
    QFETCH(QString, sheet);
    const auto hover = [](const Stage& stage) {
        stage.Enter();
        stage.Leave();
    };
    Stage early(ButtonTypeIconTextChoose);
    Picture(early);
    hover(early);
    const QImage plain = Picture(early);

    const auto restore = qScopeGuard([] { qApp->setStyleSheet(QString()); });
    const auto apply = [&](QWidget& window, const QString& text) {
        if (toApplication) {
            qApp->setStyleSheet(text);
        } else {
            window.setStyleSheet(text);
        }
    };
    apply(early, sheet);
    Stage late(ButtonTypeIconTextChoose);
    apply(late, sheet);
    QCOMPARE(Picture(early), Picture(late));
    QVERIFY(Picture(early) != plain || sheet.contains(QLatin1String(":hover")));

    hover(early);
    QCOMPARE(Picture(early), Picture(late));

    // A button that moves into a window with a sheet is dressed there.
    apply(early, QString());
    apply(late, QString());
    hover(early);
    hover(late);
    QCOMPARE(Picture(early), plain);
    apply(late, sheet);
    Stage moved(ButtonTypeIconTextChoose);
    if (toApplication) {
        return;
    }
    hover(moved);
    QWidget dressed;
    dressed.resize(late.size());
    dressed.setStyleSheet(sheet);
    moved.button->setParent(&dressed);
    moved.button->show();
    dressed.show();
    QCOMPARE(Picture(dressed), Picture(late));
}

void CVelmarButtonTest::hoverEntersAndLeaves()
{
    Stage stage(ButtonTypeIconTextChoose);
    Dress(*stage.button);
    stage.MovePointer(stage.button->geometry().center());
    QTRY_COMPARE(stage.button->m_iState, 2);
    QVERIFY(stage.button->m_bHovered);
    QCOMPARE(stage.TextSheet(), QStringLiteral("color:#000003;background:transparent;"));
    QCOMPARE(Picture(*stage.button).pixelColor(1, 1), QColor(194, 211, 231));
    stage.MovePointer(stage.outside);
    QTRY_COMPARE(stage.button->m_iState, 0);
    QVERIFY(!stage.button->m_bHovered);
    QCOMPARE(stage.TextSheet(), QStringLiteral("color:#000001;background:transparent;"));
    QCOMPARE(Picture(*stage.button).pixelColor(1, 1), QColor(230, 230, 230));
}

void CVelmarButtonTest::everyChangeAsksForARepaint_data()
{
    QTest::addColumn<int>("change");
    int change = 0;
    for (const char* name : {"enter", "leave", "press", "release", "choose"}) {
        QTest::newRow(name) << change++;
    }
}

void CVelmarButtonTest::everyChangeAsksForARepaint()
{
    class PaintCounter : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::Paint;
            return false;
        }
        int count = 0;
    };
    QFETCH(int, change);
    // Looks of the labels are all the same, so that no label brings a repaint about.
    const Stage stage(ButtonTypeIconText);
    const QString black = QStringLiteral("black");
    stage.button->SetTextColor(black, black, black, black);
    QCoreApplication::processEvents();
    PaintCounter counter;
    stage.button->installEventFilter(&counter);
    switch (change) {
    case 0:
        stage.Enter();
        break;
    case 1:
        stage.Leave();
        break;
    case 2: {
        QMouseEvent press(QEvent::MouseButtonPress, stage.inside, QPointF(), Qt::LeftButton, Qt::LeftButton, {});
        stage.button->mousePressEvent(&press);
        break;
    }
    case 3: {
        QMouseEvent release(QEvent::MouseButtonRelease, stage.inside, QPointF(), Qt::LeftButton, Qt::NoButton, {});
        stage.button->mouseReleaseEvent(&release);
        break;
    }
    default:
        stage.button->SetChooseFocus(true);
        break;
    }
    QTRY_COMPARE(counter.count, 1);
}

void CVelmarButtonTest::hoverBeforeTheFirstPaintStyles()
{
    CVelmarButton button(ButtonTypeIconTextChoose, false, true, 0, nullptr);
    QEnterEvent event(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
    QApplication::sendEvent(&button, &event);
    QVERIFY(button.m_bFirstPaint);
    QCOMPARE(button.m_pIconLabel->styleSheet(), QStringLiteral("image:;background:transparent;"));
    QCOMPARE(button.m_pTextLabel->styleSheet(), QStringLiteral("color:rgb(50,50,50);background:transparent;"));
}

void CVelmarButtonTest::hoverAsksForNoLayout()
{
    class LayoutCounter : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::LayoutRequest;
            return false;
        }
        int count = 0;
    };
    const Stage stage(ButtonTypeIconTextChoose);
    Dress(*stage.button);
    QCoreApplication::processEvents();
    LayoutCounter counter;
    stage.button->installEventFilter(&counter);
    stage.Enter();
    stage.Leave();
    QCoreApplication::processEvents();
    QCOMPARE(counter.count, 0);
}

void CVelmarButtonTest::hoverWithoutChangeTouchesNoLabel()
{
    class PolishCounter : public QObject
    {
    public:
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::StyleChange || event->type() == QEvent::PaletteChange;
            return false;
        }
        int count = 0;
    };
    const Stage stage(ButtonTypeIconTextChoose);
    Dress(*stage.button);
    stage.button->SetChooseFocus(true);
    PolishCounter counter;
    stage.button->m_pIconLabel->installEventFilter(&counter);
    stage.button->m_pTextLabel->installEventFilter(&counter);
    stage.Enter();
    stage.Leave();
    QCOMPARE(counter.count, 0);
}

void CVelmarButtonTest::pressAndReleaseInsideClicks()
{
    Stage stage(ButtonTypeIconText);
    const QSignalSpy spy(stage.button, &CVelmarButton::SignalClicked);
    stage.MovePointer(stage.button->geometry().center());
    QTRY_VERIFY(stage.button->m_bHovered);
    QTest::mousePress(stage.button, Qt::LeftButton, {}, stage.inside);
    QCOMPARE(stage.button->m_iState, 1);
    QCOMPARE(spy.count(), 0);
    QTest::mouseRelease(stage.button, Qt::LeftButton, {}, stage.inside);
    QCOMPARE(stage.button->m_iState, 2);
    QCOMPARE(spy.count(), 1);
}

void CVelmarButtonTest::pressAndReleaseOutsideEmitsNothing()
{
    for (const bool hovered : {false, true}) {
        const Stage stage(ButtonTypeIconText);
        const QSignalSpy spy(stage.button, &CVelmarButton::SignalClicked);
        QTest::mousePress(stage.button, Qt::LeftButton, {}, stage.inside);
        stage.button->m_bHovered = hovered;
        QMouseEvent release(QEvent::MouseButtonRelease, QPointF(200, 20), QPointF(), Qt::LeftButton, Qt::NoButton, {});
        stage.button->mouseReleaseEvent(&release);
        QCOMPARE(stage.button->m_iState, hovered ? 2 : 0);
        QCOMPARE(spy.count(), 0);
        QMouseEvent edge(QEvent::MouseButtonRelease, QPointF(80, 20), QPointF(), Qt::LeftButton, Qt::NoButton, {});
        stage.button->mouseReleaseEvent(&edge);
        QCOMPARE(spy.count(), 0);
    }
}

void CVelmarButtonTest::otherButtonsDoNothing()
{
    const Stage stage(ButtonTypeIconText);
    const QSignalSpy spy(stage.button, &CVelmarButton::SignalClicked);
    for (const Qt::MouseButton mouse : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mousePress(stage.button, mouse, {}, stage.inside);
        QCOMPARE(stage.button->m_iState, stage.button->m_bHovered ? 2 : 0);
        QTest::mouseRelease(stage.button, mouse, {}, stage.inside);
    }
    QCOMPARE(spy.count(), 0);
}

void CVelmarButtonTest::clickedNeverFires()
{
    const Stage stage(ButtonTypeIconText);
    const QSignalSpy clicked(stage.button, &QAbstractButton::clicked);
    const QSignalSpy pressed(stage.button, &QAbstractButton::pressed);
    const QSignalSpy own(stage.button, &CVelmarButton::SignalClicked);
    QTest::mouseClick(stage.button, Qt::LeftButton, {}, stage.inside);
    QCOMPARE(clicked.count(), 0);
    QCOMPARE(pressed.count(), 0);
    QCOMPARE(own.count(), 1);
}

void CVelmarButtonTest::disabledButtonEmitsNothing()
{
    const Stage stage(ButtonTypeIconText);
    const QSignalSpy spy(stage.button, &CVelmarButton::SignalClicked);
    stage.button->SetEnabled(false);
    QTest::mouseClick(stage.button, Qt::LeftButton, {}, stage.inside);
    QCOMPARE(spy.count(), 0);
    // The toolkit keeps the mouse from a disabled button; a release that comes through changes the state alone.
    stage.button->m_iState = 1;
    stage.button->m_bHovered = false;
    QMouseEvent release(QEvent::MouseButtonRelease, stage.inside, QPointF(), Qt::LeftButton, Qt::NoButton, {});
    stage.button->mouseReleaseEvent(&release);
    QCOMPARE(stage.button->m_iState, 0);
    QCOMPARE(spy.count(), 0);
}

void CVelmarButtonTest::mouseNeverChangesTheChoice()
{
    const Stage stage(ButtonTypeIconTextChoose);
    for (const bool chosen : {false, true}) {
        stage.button->SetChooseFocus(chosen);
        stage.Enter();
        QTest::mouseClick(stage.button, Qt::LeftButton, {}, stage.inside);
        stage.Leave();
        QCOMPARE(stage.button->GetChooseFocusState(), chosen);
    }
}

void CVelmarButtonTest::releaseTravelsToTheParent()
{
    class Parent : public QWidget
    {
    public:
        void mousePressEvent(QMouseEvent*) override { ++presses; }
        void mouseReleaseEvent(QMouseEvent*) override { ++releases; }
        int presses = 0;
        int releases = 0;
    };
    Parent parent;
    auto* button = new CVelmarButton(ButtonTypeText, false, true, 0, &parent);
    button->setGeometry(0, 0, 80, 40);
    parent.show();
    QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(5, 5));
    QCOMPARE(parent.presses, 0);
    QCOMPARE(parent.releases, 1);
}

void CVelmarButtonTest::buttonMayBeDeletedByItsClick()
{
    Stage stage(ButtonTypeIconText);
    stage.MovePointer(stage.button->geometry().center());
    const QPointer<CVelmarButton> watched(stage.button);
    connect(stage.button, &CVelmarButton::SignalClicked, &stage, [&stage] { delete stage.button; });
    QTest::mouseClick(stage.windowHandle(), Qt::LeftButton, {}, QPoint(60, 40));
    QVERIFY(watched.isNull());
    QCoreApplication::processEvents();
}

void CVelmarButtonTest::hoverSignalsStaySilent()
{
    const Stage stage(ButtonTypeIconText);
    const QSignalSpy enter(stage.button, &CVelmarButton::SignalMouseEnter);
    const QSignalSpy leave(stage.button, &CVelmarButton::SignalMouseLeave);
    stage.Enter();
    stage.Leave();
    QCOMPARE(enter.count(), 0);
    QCOMPARE(leave.count(), 0);
}

void CVelmarButtonTest::bubbleLooksAsPrescribed()
{
    const Stage stage(ButtonTypeIconText);
    stage.button->SetButtonTypeBubble(60, 2, 13, 11, QStringLiteral("#ff0000"), true);
    const QLabel* bubble = stage.button->m_pBubble;
    QVERIFY(bubble);
    QVERIFY(stage.button->m_bHasBubble);
    QVERIFY(stage.button->m_bClearBubbleOnChoose);
    QVERIFY(bubble->isHidden());
    QVERIFY(bubble->text().isEmpty());
    QCOMPARE(bubble->alignment(), Qt::AlignCenter);
    QCOMPARE(bubble->parentWidget(), stage.button);
    QCOMPARE(bubble->geometry(), QRect(60, 2, 13, 11));
    QCOMPARE(bubble->styleSheet(),
             QStringLiteral("color:rgb(255,255,255);background-color:#ff0000;border-radius:5px;"));
}

void CVelmarButtonTest::bubbleFollowsTheChoice_data()
{
    QTest::addColumn<bool>("clear");
    QTest::addColumn<bool>("light");
    QTest::addColumn<bool>("chosen");
    QTest::addColumn<bool>("shownBefore");
    QTest::addColumn<bool>("shown");
    QTest::addColumn<QString>("sheet");
    const QString own = QStringLiteral("color:rgb(255,255,255);background-color:red;border-radius:5px;");
    const QString focus = QStringLiteral("image:url(f);");
    const QString normal = QStringLiteral("image:url(n);");
    for (const bool before : {false, true}) {
        const char* was = before ? "shown" : "hidden";
        QTest::addRow("1 clears, was %s", was) << true << false << true << before << false << own;
        QTest::addRow("1 clears the lamp, was %s", was) << true << true << true << before << false << normal;
        QTest::addRow("2 shows, was %s", was) << false << false << true << before << true << own;
        QTest::addRow("3 lights, was %s", was) << false << true << true << before << before << focus;
        QTest::addRow("4 leaves, was %s", was) << true << false << false << before << before << own;
        QTest::addRow("4 leaves the lamp, was %s", was) << true << true << false << before << before << normal;
        QTest::addRow("5 hides, was %s", was) << false << false << false << before << false << own;
        QTest::addRow("6 dims, was %s", was) << false << true << false << before << before << normal;
    }
}

void CVelmarButtonTest::bubbleFollowsTheChoice()
{
    QFETCH(bool, clear);
    QFETCH(bool, light);
    QFETCH(bool, chosen);
    QFETCH(bool, shownBefore);
    QFETCH(bool, shown);
    QFETCH(QString, sheet);
    const Stage stage(ButtonTypeIconTextChoose);
    stage.button->SetButtonTypeBubble(60, 2, 10, 10, QStringLiteral("red"), clear);
    stage.button->AddBubbleCount();
    if (light) {
        stage.button->SetButtonBubbleToLight(QStringLiteral("url(f)"), QStringLiteral("url(n)"));
        QVERIFY(!stage.button->m_pBubble->isHidden());
    }
    stage.button->m_pBubble->setVisible(shownBefore);
    stage.button->SetChooseFocus(chosen);
    QCOMPARE(!stage.button->m_pBubble->isHidden(), shown);
    QCOMPARE(stage.button->m_pBubble->styleSheet(), sheet);
    QCOMPARE(stage.button->m_iBubbleCount, chosen && clear ? 0 : 1);
}

void CVelmarButtonTest::bubbleCounts()
{
    const Stage stage(ButtonTypeIconTextChoose);
    stage.button->SetButtonTypeBubble(60, 2, 10, 10, QStringLiteral("red"), true);
    stage.button->AddBubbleCount();
    stage.button->AddBubbleCount();
    QCOMPARE(stage.button->m_iBubbleCount, 2);
    QVERIFY(stage.button->m_pBubble->isVisible());
    QVERIFY(stage.button->m_pBubble->text().isEmpty());
    stage.button->SetChooseFocus(true);
    stage.button->AddBubbleCount();
    QCOMPARE(stage.button->m_iBubbleCount, 0);
    QVERIFY(stage.button->m_pBubble->isHidden());
}

void CVelmarButtonTest::bubbleOperationsWithoutBubbleDoNothing()
{
    const Stage stage(ButtonTypeIconTextChoose);
    stage.button->SetButtonBubbleToLight(QStringLiteral("url(f)"), QStringLiteral("url(n)"));
    stage.button->AddBubbleCount();
    stage.button->SetChooseFocus(true);
    stage.button->SetChooseFocus(false);
    QCOMPARE(stage.button->m_pBubble, nullptr);
    QVERIFY(!stage.button->m_bBubbleLight);
    QVERIFY(stage.button->m_strBubbleFocus.isEmpty());
    QCOMPARE(stage.button->m_iBubbleCount, 0);
}

void CVelmarButtonTest::secondBubbleForgetsTheFirst()
{
    const Stage stage(ButtonTypeIconTextChoose);
    stage.button->SetButtonTypeBubble(60, 2, 10, 10, QStringLiteral("red"), true);
    const QPointer<QLabel> first(stage.button->m_pBubble);
    stage.button->SetButtonTypeBubble(0, 2, 10, 10, QStringLiteral("blue"), true);
    QVERIFY(first);
    QVERIFY(first != stage.button->m_pBubble);
    QCOMPARE(first->parentWidget(), stage.button);
}

void CVelmarButtonTest::textSetsTheWeightAndKeepsTheSize()
{
    CVelmarButton button(ButtonTypeIconText, false, true, 0, nullptr);
    button.SetButtonFontSize(18);
    button.SetButtonText(QStringLiteral("one"), true);
    QCOMPARE(button.GetButtonText(), QStringLiteral("one"));
    QCOMPARE(button.m_strText, QStringLiteral("one"));
    QVERIFY(button.m_bBoldText);
    QCOMPARE(int(button.GetButtonTextFont().weight()), 600);
    QCOMPARE(button.GetButtonTextFont().pixelSize(), 18);
    button.SetButtonText(QStringLiteral("two"), false);
    QVERIFY(!button.m_bBoldText);
    QCOMPARE(int(button.GetButtonTextFont().weight()), 400);
    QCOMPARE(button.GetButtonTextFont().pixelSize(), 18);

    // A font of the right weight stays the host's own.
    QFont font(QStringLiteral("Monospace"));
    font.setPixelSize(11);
    font.setWeight(QFont::Weight(600));
    font.setItalic(true);
    button.SetTextFont(font);
    button.SetButtonText(QStringLiteral("three"), true);
    QVERIFY(button.GetButtonTextFont().italic());
    button.SetButtonText(QStringLiteral("four"), false);
    QVERIFY(!button.GetButtonTextFont().italic());
    QCOMPARE(button.GetButtonTextFont().pixelSize(), 11);

    QFont points = QApplication::font();
    points.setPointSize(24);
    button.SetTextFont(points);
    button.SetButtonText(QStringLiteral("five"), true);
    QCOMPARE(button.GetButtonTextFont().pixelSize(), 32);
}

void CVelmarButtonTest::fontSizeIgnoresNonsense()
{
    CVelmarButton button(ButtonTypeIconText, false, true, 0, nullptr);
    button.SetButtonFontSize(18);
    button.SetButtonFontSize(0);
    button.SetButtonFontSize(-5);
    QCOMPARE(button.GetButtonTextFont().pixelSize(), 18);
}

void CVelmarButtonTest::textAndFontForward()
{
    CVelmarButton button(ButtonTypeIconText, false, true, 0, nullptr);
    button.SetAlignment(Qt::AlignRight | Qt::AlignTop);
    QCOMPARE(button.m_pTextLabel->alignment(), Qt::AlignRight | Qt::AlignTop);
    button.SetTextFont(FontCnMedium_14);
    QCOMPARE(button.GetButtonTextFont().weight(), FontCnMedium_14.weight());
    button.SetButtonTextWrap(true);
    QVERIFY(button.m_pTextLabel->wordWrap());
    button.SetButtonTextWrap(false);
    QVERIFY(!button.m_pTextLabel->wordWrap());
}

void CVelmarButtonTest::enabledReachesTheLabels()
{
    CVelmarButton button(ButtonTypeIconText, false, true, 0, nullptr);
    for (const bool enabled : {false, true}) {
        button.SetEnabled(enabled);
        QCOMPARE(button.isEnabled(), enabled);
        QCOMPARE(button.m_pIconLabel->isEnabled(), enabled);
        QCOMPARE(button.m_pTextLabel->isEnabled(), enabled);
    }
}

void CVelmarButtonTest::positionsReachLayoutsAndLabels_data()
{
    QTest::addColumn<bool>("vertical");
    QTest::newRow("horizontal") << false;
    QTest::newRow("vertical") << true;
}

void CVelmarButtonTest::positionsReachLayoutsAndLabels()
{
    QFETCH(bool, vertical);
    CVelmarButton button(ButtonTypeIconText, vertical, true, 0, nullptr);
    button.SetButtonImagePos(1, 2, 3, 4, 16, 17);
    button.SetButtonTextPos(5, 6, 7, 8, 30, 31);
    const QLayout* image = vertical ? static_cast<QLayout*>(button.m_pImageLayoutV) : button.m_pImageLayoutH;
    const QLayout* text = vertical ? static_cast<QLayout*>(button.m_pTextLayoutV) : button.m_pTextLayoutH;
    QCOMPARE(image->contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(text->contentsMargins(), QMargins(5, 6, 7, 8));
    QCOMPARE(button.m_pIconLabel->maximumSize(), QSize(16, 17));
    QCOMPARE(button.m_pTextLabel->maximumSize(), QSize(30, 31));
}

void CVelmarButtonTest::sizeIsAMaximum()
{
    CVelmarButton button(ButtonTypeIconText, false, true, 0, nullptr);
    button.SetButtonSize(120, 52);
    QCOMPARE(button.maximumSize(), QSize(120, 52));
    QCOMPARE(button.m_iWidth, 120);
    QCOMPARE(button.m_iHeight, 52);
    QCOMPARE(button.minimumSize(), QSize(0, 0));
}

void CVelmarButtonTest::contentIsCentred_data()
{
    // The room is what the button has beyond gap, icon and text.
    QTest::addColumn<int>("room");
    QTest::addColumn<int>("imageInner");
    QTest::addColumn<int>("textInner");
    QTest::addColumn<int>("newImageInner");
    QTest::addColumn<int>("newTextInner");
    QTest::addColumn<int>("outer");
    QTest::newRow("even room") << 40 << 4 << 4 << 4 << 4 << 20;
    QTest::newRow("odd room") << 41 << 4 << 4 << 4 << 4 << 20;
    QTest::newRow("outer equals the gap") << 16 << 5 << 3 << 5 << 3 << 8;
    // t = 20 + 10 = 30, q = 10, 20 is even.
    QTest::newRow("shared out anew") << 10 << 12 << 8 << 10 << 0 << 10;
    QTest::newRow("lowest bit goes") << 11 << 12 << 8 << 10 << 0 << 10;
    // t = 21 + 10 = 31, q = 10, 21 is odd: q = 9, outer 11.
    QTest::newRow("odd rest") << 10 << 13 << 8 << 9 << 0 << 11;
    // t = 1 + 0 = 1, q = 0, 1 is odd: q = -1, which a layout reads as its default, none; outer 1.
    QTest::newRow("one pixel of room") << 1 << 1 << 0 << 0 << 0 << 1;
    QTest::newRow("no room") << 0 << 12 << 8 << 12 << 8 << -1;
    QTest::newRow("too narrow") << -10 << 12 << 8 << 12 << 8 << -1;
}

void CVelmarButtonTest::contentIsCentred()
{
    QFETCH(int, room);
    QFETCH(int, imageInner);
    QFETCH(int, textInner);
    QFETCH(int, newImageInner);
    QFETCH(int, newTextInner);
    QFETCH(int, outer);
    for (const bool iconFirst : {true, false}) {
        CVelmarButton button(ButtonTypeIconTextChoose, false, iconFirst, 0, nullptr);
        button.SetButtonText(QStringLiteral("OK"), false);
        button.m_pIconLabel->resize(16, 16);
        if (iconFirst) {
            button.SetButtonImagePos(1, 2, imageInner, 3, 16, 16);
            button.SetButtonTextPos(textInner, 4, 1, 5, 99, 40);
        } else {
            button.SetButtonImagePos(imageInner, 2, 1, 3, 16, 16);
            button.SetButtonTextPos(1, 4, textInner, 5, 99, 40);
        }
        const int text = QFontMetrics(button.GetButtonTextFont()).horizontalAdvance(QStringLiteral("OK"));
        button.SetButtonSize(room + imageInner + textInner + 16 + text, 40);
        button.UpdateContentSize();

        const bool acts = outer >= 0;
        const int side = acts ? outer : 1;
        const QMargins image = button.m_pImageLayoutH->contentsMargins();
        const QMargins words = button.m_pTextLayoutH->contentsMargins();
        QCOMPARE(image, iconFirst ? QMargins(side, 2, newImageInner, 3) : QMargins(newImageInner, 2, side, 3));
        QCOMPARE(words, iconFirst ? QMargins(newTextInner, 4, side, 5) : QMargins(side, 4, newTextInner, 5));
        QCOMPARE(button.m_pTextLabel->maximumWidth(), acts ? text : 99);
        QCOMPARE(button.m_pTextLabel->maximumHeight(), 40);
    }
}

void CVelmarButtonTest::contentOfOtherTypesStays()
{
    for (const EnumButtonType type : kTypes) {
        for (const bool vertical : {false, true}) {
            if (type == ButtonTypeIconTextChoose && !vertical) {
                continue;
            }
            CVelmarButton button(type, vertical, true, 0, nullptr);
            button.SetButtonTextPos(1, 1, 1, 1, 99, 40);
            button.SetButtonSize(500, 40);
            button.UpdateContentSize();
            QCOMPARE(button.m_pTextLabel->maximumWidth(), 99);
        }
    }
}

void CVelmarButtonTest::strangeArgumentsDoNotFail()
{
    CVelmarButton button(EnumButtonType(42), false, true, -7, nullptr);
    button.SetButtonText(QString(), true);
    button.SetButtonText(QString(10000, QLatin1Char('x')), true);
    button.SetButtonTextWrap(true);
    button.SetButtonIcon(QStringLiteral("}{"), QString(), QStringLiteral("url("), QStringLiteral(";;"));
    button.SetBtnRadius(-3);
    button.SetBackgroundImage(QString(), QStringLiteral("/none"), QString(), QString());
    button.SetButtonTypeBubble(-5, -5, 0, -1, QString(), false);
    button.SetButtonBubbleToLight(QString(), QString());
    button.SetBackgroundSolid(QColor(), QColor(), QColor(), QColor());
    button.SetChooseFocus(true);
    button.UpdateContentSize();
    button.resize(80, 40);
    Picture(button);
    CVelmarButton gradient(ButtonTypeIconTextChoose, true, true, 1, nullptr);
    gradient.SetButtonSize(0, 0);
    QCOMPARE(gradient.maximumSize(), QSize(0, 0));
    gradient.setMaximumSize(10, 10);
    gradient.resize(10, 10);
    Picture(gradient);
}

CUSTOMCONTROLS_TEST_MAIN(CVelmarButtonTest)
#include "CVelmarButtonTest.moc"
