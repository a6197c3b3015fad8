#include "SourceDialog.h"

#include "../GalleryCommands.h"
#include "../GallerySource.h"
#include "../GalleryStyle.h"
#include "DialogFrame.h"
#include "SourceHighlighter.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>

#include <QClipboard>
#include <QEvent>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaType>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {
constexpr QSize DialogSize(820, 620);
constexpr int TextPixels = 13;
constexpr int TabColumns = 4;
constexpr auto TextSheet = "#sourceText{background:#fbfbfb;border:1px solid #e2e2e2;border-radius:4px;padding:8px;"
                           "color:#333333;}";

QFont CodeFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPixelSize(TextPixels);
    return font;
}
} // namespace

SourceDialog::SourceDialog(QWidget* window)
    : FramelessDialog(window)
    // The browser has no installed header: a host makes it by name and uses it as what it derives from.
    , m_pText(qobject_cast<QTextEdit*>(static_cast<QObject*>(QMetaType::fromName("CTextBrowser").create())))
    , m_pCopied(new QLabel)
    , m_pCopy(GalleryCommands::Create(QString(), QStringLiteral("sourceCopy"), true))
    , m_pClose(GalleryCommands::Create(QString(), QStringLiteral("sourceClose")))
{
    setObjectName(QStringLiteral("sourceDialog"));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(DialogSize.boundedTo(screen()->availableSize()));

    m_pText->setObjectName(QStringLiteral("sourceText"));
    m_pText->setStyleSheet(QLatin1String(TextSheet));
    m_pText->verticalScrollBar()->setStyleSheet(GalleryStyle::ScrollBars());
    m_pText->horizontalScrollBar()->setStyleSheet(GalleryStyle::ScrollBars());
    m_pText->setFont(CodeFont());
    m_pText->setTabStopDistance(TabColumns * QFontMetricsF(CodeFont()).horizontalAdvance(QLatin1Char(' ')));
    m_pText->setLineWrapMode(QTextEdit::NoWrap);
    new SourceHighlighter(m_pText->document());

    m_pCopied->setObjectName(QStringLiteral("sourceCopied"));
    m_pCopied->setFont(FontCn_13);
    m_pCopied->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Green)));
    connect(m_pCopy, &QPushButton::clicked, this, &SourceDialog::Copy);
    connect(m_pClose, &QPushButton::clicked, this, &QWidget::close);

    auto* body = new QVBoxLayout;
    body->addWidget(m_pText);
    QHBoxLayout* commands = GalleryCommands::Row({m_pClose, m_pCopy}, 96);
    commands->insertWidget(0, m_pCopied);
    DialogFrame::Fill(this, body, commands);
    Retranslate();
}

void SourceDialog::Open(QWidget* window, const QString& title, const QString& example)
{
    auto* dialog = window->findChild<SourceDialog*>(QString(), Qt::FindDirectChildrenOnly);
    if (!dialog) {
        dialog = new SourceDialog(window);
        CorvaneSignalHelper::instance()->AdjustWindowPosition(dialog);
    }
    dialog->Show(title, example);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
}

void SourceDialog::Show(const QString& title, const QString& example)
{
    m_strTitle = title;
    QStringList texts;
    for (const GallerySource::Part& part : GallerySource::Find(example)) {
        texts.append(QStringLiteral("// %1\n\n%2").arg(part.strFile, part.strLines));
    }
    m_pText->setPlainText(texts.join(QLatin1String("\n\n")));
    m_pCopied->clear();
    Retranslate();
}

void SourceDialog::Copy()
{
    QGuiApplication::clipboard()->setText(m_pText->toPlainText());
    m_pCopied->setText(tr("已复制到剪贴板。"));
}

void SourceDialog::changeEvent(QEvent* event)
{
    FramelessDialog::changeEvent(event);
    if (event->type() == QEvent::LanguageChange) {
        Retranslate();
    }
}

void SourceDialog::Retranslate()
{
    setWindowTitle(m_strTitle.isEmpty() ? tr("源代码") : tr("源代码：%1").arg(m_strTitle));
    m_pText->setAccessibleName(tr("源代码"));
    m_pCopy->setText(tr("全部复制"));
    m_pClose->setText(tr("关闭"));
    m_pCopied->clear();
}
