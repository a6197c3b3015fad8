#include "SourceDialog.h"

#include "../GallerySource.h"
#include "../GalleryStyle.h"
#include "../GalleryTitleBar.h"
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
constexpr auto DialogSheet = "#sourceDialog{background:#ffffff;border:1px solid #2b2f33;}";
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
    , m_pCopy(new QPushButton)
    , m_pClose(new QPushButton)
{
    setObjectName(QStringLiteral("sourceDialog"));
    setStyleSheet(QLatin1String(DialogSheet));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(DialogSize.boundedTo(screen()->availableSize()));

    m_pText->setObjectName(QStringLiteral("sourceText"));
    m_pText->setStyleSheet(QLatin1String(TextSheet));
    m_pText->verticalScrollBar()->setStyleSheet(GalleryStyle::ScrollBars());
    m_pText->setFont(CodeFont());
    m_pText->setTabStopDistance(TabColumns * QFontMetricsF(CodeFont()).horizontalAdvance(QLatin1Char(' ')));
    m_pText->setLineWrapMode(QTextEdit::NoWrap);
    new SourceHighlighter(m_pText->document());

    m_pCopied->setObjectName(QStringLiteral("sourceCopied"));
    m_pCopied->setFont(FontCn_13);
    m_pCopied->setStyleSheet(QStringLiteral("color:%1;").arg(QLatin1String(GalleryStyle::Green)));
    m_pCopy->setObjectName(QStringLiteral("sourceCopy"));
    m_pCopy->setStyleSheet(GalleryStyle::CommandButton(true));
    m_pClose->setObjectName(QStringLiteral("sourceClose"));
    m_pClose->setStyleSheet(GalleryStyle::CommandButton(false));
    auto* commands = new QHBoxLayout;
    commands->setSpacing(12);
    commands->addWidget(m_pCopied);
    commands->addStretch(1);
    for (QPushButton* button : {m_pClose, m_pCopy}) {
        button->setFont(FontCnMedium_14);
        button->setFixedHeight(34);
        button->setMinimumWidth(96);
        button->setCursor(Qt::PointingHandCursor);
        commands->addWidget(button);
    }
    connect(m_pCopy, &QPushButton::clicked, this, &SourceDialog::Copy);
    connect(m_pClose, &QPushButton::clicked, this, &QWidget::close);

    auto* bar = new GalleryTitleBar(this, GalleryTitleBar::ButtonMaximize | GalleryTitleBar::ButtonClose);
    setTitleBar(bar);
    auto* body = new QVBoxLayout;
    body->setContentsMargins(20, 20, 20, 16);
    body->setSpacing(16);
    body->addWidget(m_pText, 1);
    body->addLayout(commands);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 0, 1, 1); // beside the border
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addLayout(body, 1);
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
