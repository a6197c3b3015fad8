#include "LogPane.h"

#include "GalleryStyle.h"

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>

#include <QColor>
#include <QCoreApplication>
#include <QEvent>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTime>
#include <QVBoxLayout>

namespace {
constexpr int PaneHeight = 112;
constexpr int LineLimit = 2000;
constexpr auto PaneSheet = "#logPane{background:#f6f6f6;border-top:1px solid #e2e2e2;}";
constexpr auto TextSheet = "#logText{background:#f6f6f6;border:1px solid transparent;}"
                           "#logText:focus{border-color:#188553;}";
} // namespace

LogPane::LogPane(QWidget* parent)
    : QWidget(parent)
    , m_pTitle(new QLabel)
    , m_pText(new QPlainTextEdit)
{
    setObjectName(QStringLiteral("logPane"));
    setAttribute(Qt::WA_StyledBackground);
    setStyleSheet(QLatin1String(PaneSheet));
    setFixedHeight(PaneHeight);

    m_pTitle->setFont(FontCnMedium_13);
    m_pTitle->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Grey)));
    m_pText->setObjectName(QStringLiteral("logText"));
    m_pText->setReadOnly(true);
    m_pText->setFont(FontCn_12);
    m_pText->setMaximumBlockCount(LineLimit);
    m_pText->document()->setDocumentMargin(0);
    m_pText->setStyleSheet(QLatin1String(TextSheet) + GalleryStyle::ScrollBars());
    // Lines wrap, yet the toolkit comes to want this bar at times. It takes the room of a line, and with a line more or
    // less the toolkit can show and hide it forever.
    m_pText->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 8, 8, 6);
    layout->setSpacing(4);
    layout->addWidget(m_pTitle);
    layout->addWidget(m_pText, 1);
    Retranslate();

    // Queued like the log's own lines below, so that both kinds stand in the order in which they came.
    connect(CorvaneSignalHelper::instance(), &CorvaneSignalHelper::signalFilePluginAppendLog, this,
            &LogPane::AppendLine, Qt::QueuedConnection);
    // Lines come from any thread and are handed over to the GUI thread, where this pane may have gone by then.
    CDebugLog::SetListener([pane = QPointer<LogPane>(this)](const QString& line) {
        const auto append = [pane, line] {
            if (pane) {
                pane->AppendLine(line, QColor(QLatin1String(GalleryStyle::Grey)));
            }
        };
        QMetaObject::invokeMethod(qApp, append, Qt::QueuedConnection);
    });
}

LogPane::~LogPane()
{
    CDebugLog::SetListener({});
}

void LogPane::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        Retranslate(); // the lines stay as they were written
    }
}

void LogPane::Retranslate()
{
    m_pTitle->setText(tr("日志"));
    m_pText->setAccessibleName(tr("日志"));
}

void LogPane::AppendLine(const QString& text, const QColor& color)
{
    const QString line = QTime::currentTime().toString(QStringLiteral("HH:mm:ss  ")) + text;
    m_pText->appendHtml(QStringLiteral("<span style=\"color:%1;white-space:pre-wrap;\">%2</span>")
                            .arg(color.name(), line.toHtmlEscaped()));
}
