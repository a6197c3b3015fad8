#include "ui_ToastWidget.h"
#include <CustomControls/feedback/ToastWidget.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/IsClickThrough.h>
#include <tests/support/TestMain.h>

#include <QLabel>
#include <QPointer>
#include <QWindow>

namespace {

enum Layout
{
    Standard,
    Compact
};

QFont CustomFont()
{
    QFont font = QApplication::font("QLabel");
    font.setPixelSize(16);
    font.setBold(true);
    return font;
}

void VerifyIsInvisible(int type)
{
    QTest::ignoreMessage(QtWarningMsg,
                         qPrintable(QStringLiteral("ToastWidget: Unhandled ToastType value: %1").arg(type)));
    ToastWidget toast(ToastWidget::ToastType(type), nullptr, QStringLiteral("x"));
    QVERIFY(toast.ui->content->isHidden());
    QCOMPARE(toast.size(), QSize(0, 0));
    QCOMPARE(toast.minimumSize(), QSize(0, 0));
    QCOMPARE(toast.maximumSize(), QSize(0, 0));
    QCOMPARE(toast.ui->content->size(), QSize(0, 0));
    QVERIFY(qAbs(toast.windowOpacity() - 0.7) < 0.005);
    toast.show();
    QVERIFY(!toast.ui->content->isVisible());
}

} // namespace

class ToastWidgetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreThoseOfTheHosts();
    void windowTakesNeitherFocusNorMouse();
    void formIsAsDesigned();
    void messageAndLayoutFollowTheType_data();
    void messageAndLayoutFollowTheType();
    void onlyCustomTextShowsTheText();
    void wideMessageWidensTheStrip_data();
    void wideMessageWidensTheStrip();
    void customTextWrapsAndGrowsByLines_data();
    void customTextWrapsAndGrowsByLines();
    void emptyCustomTextCountsAsOneLine();
    void unhandledTypesAreInvisible_data();
    void unhandledTypesAreInvisible();
    void stripIsRedWithRoundCorners();
    void richLookingTextIsHarmless();
    void stripBelongsToItsParent();
};

void ToastWidgetTest::valuesAreThoseOfTheHosts()
{
    QCOMPARE(int(ToastWidget::ToastModelEdit), 1);
    QCOMPARE(int(ToastWidget::ToastLeaveEdit), 2);
    QCOMPARE(int(ToastWidget::ToastGenerateGCode), 4);
    QCOMPARE(int(ToastWidget::ToastLeaveEdit2), 5);
    QCOMPARE(int(ToastWidget::ToastModelEdit2), 6);
    QCOMPARE(int(ToastWidget::ToastLeaveEdit3), 7);
    QCOMPARE(int(ToastWidget::ToastLeaveEdit4), 8);
    QCOMPARE(int(ToastWidget::ToastTextureEdit), 9);
    QCOMPARE(int(ToastWidget::ToastModelOutsideStock), 10);
    QCOMPARE(int(ToastWidget::ToastCustomText), 11);
    QCOMPARE(int(ToastWidget::ToastShellHidden), 12);
    QCOMPARE(int(ToastWidget::ToastShellShown), 13);
    QCOMPARE(int(ToastWidget::ToastLocalAxesHidden), 14);
    QCOMPARE(int(ToastWidget::ToastLocalAxesShown), 15);
    QCOMPARE(int(ToastWidget::ToastCollisionCheckOff), 16);
    QCOMPARE(int(ToastWidget::ToastCollisionCheckOn), 17);
    QCOMPARE(int(ToastWidget::ToastCalibrationLeft), 18);
    QCOMPARE(int(ToastWidget::ToastFaceNotMachinable), 19);
    QCOMPARE(int(ToastWidget::ToastCylinderNotMachinable), 20);
}

void ToastWidgetTest::windowTakesNeitherFocusNorMouse()
{
    ToastWidget toast(ToastWidget::ToastModelEdit, nullptr, QString());
    QCOMPARE(toast.windowFlags(), Qt::Tool | Qt::FramelessWindowHint);
    QVERIFY(toast.testAttribute(Qt::WA_ShowWithoutActivating));
    QVERIFY(toast.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(qAbs(toast.windowOpacity() - 0.7) < 0.005);
    QVERIFY(!toast.isVisible());
    toast.show();
    QVERIFY(IsClickThrough(toast));
}

void ToastWidgetTest::formIsAsDesigned()
{
    QWidget form;
    Ui::ToastWidget ui;
    ui.setupUi(&form);
    QCOMPARE(form.objectName(), QStringLiteral("ToastWidget"));
    QCOMPARE(form.size(), QSize(533, 64));
    QCOMPARE(form.styleSheet(), QStringLiteral("#content {\n    background: #DB2E2E;\n    border-radius: 6px;\n}"));
    QVERIFY(!form.layout());
    QCOMPARE(ui.content->geometry(), QRect(0, 0, 533, 64));
    QCOMPARE(ui.hintLabel->parentWidget(), ui.content);
    QCOMPARE(ui.hintLabel->geometry(), QRect(80, 10, 32, 32));
    QVERIFY(ui.hintLabel->hasScaledContents());
    QCOMPARE(ui.nameLabel->parentWidget(), ui.content);
    QCOMPARE(ui.nameLabel->geometry(), QRect(150, 0, 321, 40));
    QCOMPARE(ui.nameLabel->styleSheet(), QStringLiteral("QLabel {\n    color: #FFFFFF;\n    font-size: 30px;\n}"));
    QCOMPARE(ui.nameLabel->text(), QStringLiteral("双击模型进行编辑"));
}

void ToastWidgetTest::messageAndLayoutFollowTheType_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("message");
    QTest::addColumn<int>("layout");
    const auto row = [](int type, const char* message, Layout layout) {
        QTest::addRow("%d", type) << type << QString::fromUtf8(message) << int(layout);
    };
    row(1, "双击模型进行编辑", Standard);
    row(2, "双击空白区域退出编辑", Standard);
    row(4, "点击【生成G代码】按钮进行G代码生成", Standard);
    row(5, "双击空白区域退出编辑", Standard);
    row(6, "双击模型进行编辑", Standard);
    row(7, "双击空白区域退出编辑", Standard);
    row(8, "双击空白区域退出编辑", Standard);
    row(9, "双击纹理进行编辑", Standard);
    row(10, "检测到部分模型在毛坯外，越界部分将无法切割", Compact);
    row(12, "机床外壳已隐藏", Standard);
    row(13, "机床外壳已显示", Standard);
    row(14, "局部坐标已隐藏", Standard);
    row(15, "局部坐标已显示", Standard);
    row(16, "碰撞检测已关闭", Standard);
    row(17, "碰撞检测已打开", Standard);
    row(18, "已退出扫描仪标定", Standard);
    row(19, "选择的面不支持加工", Compact);
    row(20, "选取的圆柱面不支持加工", Compact);
}

void ToastWidgetTest::messageAndLayoutFollowTheType()
{
    QFETCH(int, type);
    QFETCH(QString, message);
    QFETCH(int, layout);
    ToastWidget toast(ToastWidget::ToastType(type), nullptr, QStringLiteral("ignored"));
    const QLabel* caption = toast.ui->nameLabel;
    const QLabel* icon = toast.ui->hintLabel;
    QCOMPARE(caption->text(), message);
    QCOMPARE(caption->font().families(), FontCnBold_30.families());
    QCOMPARE(caption->fontInfo().pixelSize(), layout == Compact ? 20 : 30);
    QVERIFY(caption->font().bold());
    QCOMPARE(caption->styleSheet(), layout == Compact ? QStringLiteral("QLabel{color: #FFFFFF; font-size: 20px;}")
                                                      : QStringLiteral("QLabel {\n    color: #FFFFFF;\n    "
                                                                       "font-size: 30px;\n}"));
    QCOMPARE(caption->size(), caption->sizeHint());
    const int iconSize = layout == Compact ? 24 : 32;
    QCOMPARE(icon->size(), QSize(iconSize, iconSize));

    const int height = layout == Compact ? 36 : 64;
    const int width = qMax(533, caption->width() + 40);
    QCOMPARE(toast.size(), QSize(width, height));
    QCOMPARE(toast.ui->content->geometry(), QRect(0, 0, width, height));
    QCOMPARE(caption->pos(), QPoint((width + 10 - caption->width() + iconSize) / 2, (height - caption->height()) / 2));
    QCOMPARE(icon->pos(), QPoint(caption->x() - 10 - iconSize, (height - iconSize) / 2));
}

void ToastWidgetTest::onlyCustomTextShowsTheText()
{
    const ToastWidget custom(ToastWidget::ToastCustomText, nullptr, QStringLiteral("刀具磨损"));
    QCOMPARE(custom.ui->nameLabel->text(), QStringLiteral("刀具磨损"));
}

void ToastWidgetTest::wideMessageWidensTheStrip_data()
{
    QTest::addColumn<int>("labelWidth");
    QTest::addColumn<int>("width");
    QTest::newRow("narrow") << 10 << 533;
    QTest::newRow("just fits") << 493 << 533;
    QTest::newRow("a pixel wider") << 494 << 534;
    QTest::newRow("far wider") << 2000 << 2040;
}

void ToastWidgetTest::wideMessageWidensTheStrip()
{
    QFETCH(int, labelWidth);
    QFETCH(int, width);
    ToastWidget toast(ToastWidget::ToastModelEdit, nullptr, QString());
    toast.resize(533, 64);
    toast.ui->content->resize(533, 64);
    toast.ui->nameLabel->setFixedWidth(labelWidth);
    toast.CentreMessage();
    QCOMPARE(toast.size(), QSize(width, 64));
    QCOMPARE(toast.ui->content->size(), QSize(width, 64));
    QCOMPARE(toast.ui->nameLabel->x(), (width + 10 - labelWidth + 32) / 2);
    QCOMPARE(toast.ui->hintLabel->x(), toast.ui->nameLabel->x() - 42);
}

void ToastWidgetTest::customTextWrapsAndGrowsByLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("short") << QStringLiteral("刀具磨损");
    QTest::newRow("two lines") << QStringLiteral("刀具磨损\n请更换");
    QTest::newRow("wraps") << QStringLiteral("刀具磨损 ").repeated(20);
    QTest::newRow("one long word") << QString(300, QLatin1Char('x'));
    QTest::newRow("very long") << QStringLiteral("刀具磨损，请更换。").repeated(2000);
}

void ToastWidgetTest::customTextWrapsAndGrowsByLines()
{
    QFETCH(QString, text);
    ToastWidget toast(ToastWidget::ToastCustomText, nullptr, text);
    const QFontMetrics metrics(CustomFont());
    const int spacing = metrics.lineSpacing();
    const int bounds = metrics.boundingRect(QRect(0, 0, 469, 0), Qt::TextWordWrap, text).height();
    const int labelHeight = qMax(1, bounds / spacing) * spacing;
    const int height = qMax(labelHeight + 16, 36);
    const QLabel* caption = toast.ui->nameLabel;
    QCOMPARE(caption->text(), text);
    QCOMPARE(caption->styleSheet(), QStringLiteral("QLabel{color: #FFFFFF; font-size: 16px; font-weight: bold;}"));
    QVERIFY(caption->wordWrap());
    QCOMPARE(caption->minimumSize(), QSize(469, labelHeight));
    QCOMPARE(caption->maximumSize(), QSize(469, labelHeight));
    QCOMPARE(caption->geometry(), QRect(48, (height - labelHeight) / 2, 469, labelHeight));
    QCOMPARE(toast.ui->hintLabel->geometry(), QRect(16, (height - 24) / 2, 24, 24));
    QCOMPARE(toast.size(), QSize(533, height));
    QCOMPARE(toast.ui->content->geometry(), QRect(0, 0, 533, height));
    QVERIFY(qAbs(toast.windowOpacity() - 0.7) < 0.005);
    // The label measures as the strip did: the same font is in the sheet.
    caption->ensurePolished();
    QCOMPARE(caption->fontMetrics().lineSpacing(), spacing);
}

void ToastWidgetTest::emptyCustomTextCountsAsOneLine()
{
    const ToastWidget toast(ToastWidget::ToastCustomText, nullptr, QString());
    const int spacing = QFontMetrics(CustomFont()).lineSpacing();
    QCOMPARE(toast.ui->nameLabel->height(), spacing);
    QCOMPARE(toast.height(), qMax(36, spacing + 16));
}

void ToastWidgetTest::unhandledTypesAreInvisible_data()
{
    QTest::addColumn<int>("type");
    for (const int type : {3, 99, 0, -1, 21, 1 << 30}) {
        QTest::addRow("%d", type) << type;
    }
}

void ToastWidgetTest::unhandledTypesAreInvisible()
{
    QFETCH(int, type);
    VerifyIsInvisible(type);
}

void ToastWidgetTest::stripIsRedWithRoundCorners()
{
    for (const int type : {1, 10, 11}) {
        ToastWidget toast(ToastWidget::ToastType(type), nullptr, QStringLiteral("x"));
        QImage image(toast.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        toast.render(&image, QPoint(), QRegion(), QWidget::DrawChildren);
        QCOMPARE(image.pixelColor(8, image.height() / 2), QColor(0xdb, 0x2e, 0x2e));
        QVERIFY(image.pixelColor(0, 0).alpha() < 128);
        QVERIFY(image.pixelColor(image.width() - 1, image.height() - 1).alpha() < 128);
        QCOMPARE(image.pixelColor(8, 0).alpha(), 255);
    }
}

void ToastWidgetTest::richLookingTextIsHarmless()
{
    const QString text = QStringLiteral("<img src='none'><b>x</b> & <table>");
    const ToastWidget toast(ToastWidget::ToastCustomText, nullptr, text);
    QCOMPARE(toast.ui->nameLabel->text(), text);
    QCOMPARE(toast.width(), 533);
}

void ToastWidgetTest::stripBelongsToItsParent()
{
    auto* parent = new QWidget;
    const QPointer<ToastWidget> toast = new ToastWidget(ToastWidget::ToastModelEdit, parent, QString());
    QCOMPARE(toast->parentWidget(), parent);
    QVERIFY(toast->isWindow());
    toast->show();
    delete parent;
    QVERIFY(!toast);
}

CUSTOMCONTROLS_TEST_MAIN(ToastWidgetTest)

#include "ToastWidgetTest.moc"
