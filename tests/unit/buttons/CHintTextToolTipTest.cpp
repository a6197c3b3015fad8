#include <CustomControls/buttons/CHintTextToolTip.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QTextDocument>

#include <cmath>

namespace {

int IdealWidth(const QString& text, double textWidth = -1)
{
    QTextDocument document;
    document.setDefaultFont(FontCn_15);
    document.setPlainText(text);
    if (textWidth > 0) {
        document.setTextWidth(textWidth);
    }
    return int(std::ceil(document.idealWidth()));
}

} // namespace

class CHintTextToolTipTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructionSetsLabelAndLayout();
    void shortTextStaysOnOneLine();
    void longTextWrapsAtTheMaximum();
    void textGrowsUntilTheMaximumIsPassed();
    void shortTextAfterALongOneShrinksTheNote();
    void lineFeedsMakeLines();
    void emptyTextLeavesAnEmptyCard();
    void veryLongAndRichLookingTextsStayInWidth();
    void cardIsWhiteWithAThinBorder();
};

void CHintTextToolTipTest::constructionSetsLabelAndLayout()
{
    QWidget parent;
    const CHintTextToolTip note(nullptr, &parent);
    QCOMPARE(note.parentWidget(), &parent);
    QCOMPARE(int(note.windowFlags()), 2059);
    const QLabel* label = note.m_pLabel;
    QCOMPARE(label->parentWidget(), &note);
    QVERIFY(!label->wordWrap());
    QCOMPARE(label->font(), FontCn_15);
    QCOMPARE(label->styleSheet(), QStringLiteral("QLabel { color: #333333; padding: 6px 8px; background: #FFFFFF; "
                                                 "border: 1px solid #E0E0E0; border-radius: 4px; }"));
    for (const QWidget* widget : {static_cast<const QWidget*>(label), static_cast<const QWidget*>(&note)}) {
        QCOMPARE(widget->sizePolicy().horizontalPolicy(), QSizePolicy::Minimum);
        QCOMPARE(widget->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);
    }
    QCOMPARE(note.maximumWidth(), 370);
    QVERIFY(note.contentsMargins().isNull());
    const auto* layout = qobject_cast<QHBoxLayout*>(note.layout());
    QVERIFY(layout);
    QVERIFY(layout->contentsMargins().isNull());
    QCOMPARE(layout->spacing(), 0);
    QCOMPARE(int(layout->itemAt(0)->alignment()), 33);
    QCOMPARE(layout->itemAt(0)->widget(), label);
}

void CHintTextToolTipTest::shortTextStaysOnOneLine()
{
    CHintTextToolTip note(nullptr, nullptr);
    const QString text = QStringLiteral("主轴转速过高");
    note.setText(text);
    QCOMPARE(note.m_pLabel->text(), text);
    QVERIFY(!note.m_pLabel->wordWrap());
    QCOMPARE(note.m_pLabel->minimumWidth(), IdealWidth(text) + 14);
    QCOMPARE(note.m_pLabel->maximumWidth(), IdealWidth(text) + 14);
    note.show();
    QCOMPARE(note.width(), IdealWidth(text) + 14);
}

void CHintTextToolTipTest::longTextWrapsAtTheMaximum()
{
    CHintTextToolTip note(nullptr, nullptr);
    const QString text = QString(QStringLiteral("主轴转速 ")).repeated(40);
    note.setText(text);
    QVERIFY(note.m_pLabel->wordWrap());
    const int width = IdealWidth(text, 356) + 14;
    QVERIFY(width <= 370);
    QCOMPARE(note.m_pLabel->minimumWidth(), width);
    QCOMPARE(note.m_pLabel->maximumWidth(), width);
    note.show();
    QCOMPARE(note.width(), width);
    QVERIFY(note.height() > 4 * QFontMetrics(FontCn_15).height());
}

void CHintTextToolTipTest::textGrowsUntilTheMaximumIsPassed()
{
    CHintTextToolTip note(nullptr, nullptr);
    for (int length = 1; length < 60; ++length) {
        const QString text = QStringLiteral("轴").repeated(length);
        note.setText(text);
        const bool wraps = IdealWidth(text) > 356;
        QCOMPARE(note.m_pLabel->wordWrap(), wraps);
        QCOMPARE(note.m_pLabel->width(), (wraps ? IdealWidth(text, 356) : IdealWidth(text)) + 14);
        QVERIFY(note.width() <= 370);
    }
}

void CHintTextToolTipTest::shortTextAfterALongOneShrinksTheNote()
{
    CHintTextToolTip note(nullptr, nullptr);
    note.setText(QStringLiteral("主轴转速 ").repeated(40));
    note.show();
    note.setText(QStringLiteral("短"));
    QVERIFY(!note.m_pLabel->wordWrap());
    QTRY_COMPARE(note.size(), note.m_pLabel->size());
    QCOMPARE(note.width(), IdealWidth(QStringLiteral("短")) + 14);
}

void CHintTextToolTipTest::lineFeedsMakeLines()
{
    CHintTextToolTip note(nullptr, nullptr);
    note.setText(QStringLiteral("一"));
    const int one = note.sizeHint().height();
    note.setText(QStringLiteral("一\n二\n三"));
    QVERIFY(note.sizeHint().height() >= one + 2 * QFontMetrics(FontCn_15).height());
    QVERIFY(!note.m_pLabel->wordWrap());
}

void CHintTextToolTipTest::emptyTextLeavesAnEmptyCard()
{
    CHintTextToolTip note(nullptr, nullptr);
    note.setText(QString());
    QVERIFY(note.m_pLabel->text().isEmpty());
    QCOMPARE(note.m_pLabel->minimumWidth(), IdealWidth(QString()) + 14);
    note.show();
    QVERIFY(note.isVisible());
}

void CHintTextToolTipTest::veryLongAndRichLookingTextsStayInWidth()
{
    CHintTextToolTip note(nullptr, nullptr);
    const QStringList texts = {QString(20000, QLatin1Char('x')), QStringLiteral("一 ").repeated(5000),
                               QStringLiteral("<b>bold</b> & <img src='none'>"), QStringLiteral("<table><tr><td>"),
                               QString(300, QLatin1Char('\n'))};
    for (const QString& text : texts) {
        note.setText(text);
        note.show();
        QCOMPARE(note.m_pLabel->text(), text);
        QVERIFY(note.width() <= 370);
        note.hide();
    }
}

void CHintTextToolTipTest::cardIsWhiteWithAThinBorder()
{
    CHintTextToolTip note(nullptr, nullptr);
    note.setText(QString());
    note.show();
    const QImage image = note.grab().toImage();
    const QPoint middle = image.rect().center();
    QCOMPARE(image.pixelColor(middle), QColor(0xff, 0xff, 0xff));
    QCOMPARE(image.pixelColor(0, middle.y()), QColor(0xe0, 0xe0, 0xe0));
    QCOMPARE(image.pixelColor(middle.x(), 0), QColor(0xe0, 0xe0, 0xe0));
    QCOMPARE(image.pixelColor(1, middle.y()), QColor(0xff, 0xff, 0xff));
    QVERIFY(image.pixelColor(0, 0).alpha() < 128); // the corner is round
}

CUSTOMCONTROLS_TEST_MAIN(CHintTextToolTipTest)

#include "CHintTextToolTipTest.moc"
