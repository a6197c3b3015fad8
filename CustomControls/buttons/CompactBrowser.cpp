#include <CustomControls/buttons/CompactBrowser.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <QTextBlockFormat>
#include <QTextBrowser>
#include <QTextCursor>
#include <QTimer>

namespace {

const QString kBrowserSheet = QStringLiteral("background:transparent;border:none;color:#a3aeb9;");
constexpr double kLineHeight = 24.0;

} // namespace

QTextBrowser* CreateCompactBrowser(int width, const QString& text)
{
    const int textWidth = qMax(0, width);
    auto* browser = new QTextBrowser;
    browser->setFixedWidth(textWidth);
    browser->setAccessibleName(text);
    browser->setStyleSheet(kBrowserSheet);
    browser->setFont(FontCnMedium_14);

    QTextBlockFormat format;
    format.setLineHeight(kLineHeight, QTextBlockFormat::FixedHeight);
    QTextCursor cursor = browser->textCursor();
    cursor.setBlockFormat(format);
    cursor.insertText(text);
    browser->document()->setTextWidth(textWidth);
    browser->document()->setDocumentMargin(0);

    browser->setContextMenuPolicy(Qt::NoContextMenu);
    browser->setAlignment(Qt::AlignJustify | Qt::AlignTop);
    browser->setFrameStyle(QFrame::NoFrame | QFrame::Plain);
    browser->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    browser->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    browser->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    browser->document()->adjustSize();
    browser->setTextInteractionFlags(Qt::NoTextInteraction);

    // The final height is known only after the host has put the browser in its place and style and fonts hold.
    QTimer::singleShot(0, browser, [browser, textWidth] {
        browser->document()->setTextWidth(textWidth);
        browser->setFixedHeight(int(browser->document()->size().height()));
    });
    return browser;
}
