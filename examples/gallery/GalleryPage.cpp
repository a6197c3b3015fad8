#include "GalleryPage.h"

#include "GalleryCommands.h"
#include "GalleryStyle.h"
#include "windows/SourceDialog.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr auto CardSheet = "#galleryCard{background:#ffffff;border:1px solid %1;border-radius:8px;}";
constexpr int SourceSize = 24;
constexpr auto SourceSheet = "QPushButton{border:1px solid transparent;border-radius:4px;background:transparent;"
                             "image:url(:/gallery/source.png);padding:3px;}"
                             "QPushButton:hover{background:#e4f2eb;image:url(:/gallery/source_hover.png);}"
                             "QPushButton:focus{border-color:#188553;image:url(:/gallery/source_hover.png);}";
constexpr auto OutcomeSheet = "QLabel{color:%1;background:#e9f4ef;border-radius:4px;padding:8px 12px;}";

void SetTextColor(QLabel* label, const char* color)
{
    label->setStyleSheet(QStringLiteral("QLabel{color:%1;background:transparent;}").arg(QLatin1String(color)));
}
} // namespace

GalleryPage::GalleryPage(QWidget* parent)
    : QWidget(parent)
    , m_pHeading(new QLabel(this))
    , m_pPurpose(new QLabel(this))
    , m_pLayout(new QVBoxLayout(this))
{
    using namespace GalleryStyle;
    m_pHeading->setObjectName(QStringLiteral("pageHeading"));
    m_pHeading->setFont(FontCnBold_28);
    SetTextColor(m_pHeading, Ink);
    m_pPurpose->setFont(FontCn_14);
    m_pPurpose->setWordWrap(true);
    SetTextColor(m_pPurpose, Grey);

    m_pLayout->setContentsMargins(PageMargin, 24, PageMargin, PageMargin);
    m_pLayout->setSpacing(CardSpacing);
    auto* heading = new QVBoxLayout;
    heading->setSpacing(6);
    heading->addWidget(m_pHeading);
    heading->addWidget(m_pPurpose);
    m_pLayout->addLayout(heading);
    m_pLayout->addStretch(1);
}

void GalleryPage::SetHeading(const QString& title, const QString& purpose)
{
    m_pHeading->setText(title);
    m_pPurpose->setText(purpose);
}

QVBoxLayout* GalleryPage::AddCard(const QString& title, const QString& hint, const QString& source)
{
    using namespace GalleryStyle;
    auto* card = new QFrame;
    card->setObjectName(QStringLiteral("galleryCard"));
    card->setStyleSheet(QLatin1String(CardSheet).arg(QLatin1String(Line)));
    auto* layout = new QVBoxLayout(card);
    layout->setContentsMargins(CardMargin, CardMargin - 4, CardMargin, CardMargin);
    layout->setSpacing(4);
    auto* heading = new QLabel(title);
    heading->setFont(FontCnBold_16);
    SetTextColor(heading, Ink);
    auto* head = new QHBoxLayout;
    head->setSpacing(8);
    head->addWidget(heading, 1);
    if (!source.isEmpty()) {
        head->addWidget(CreateSourceButton(title, source), 0, Qt::AlignTop);
    }
    layout->addLayout(head);
    if (!hint.isEmpty()) {
        auto* label = new QLabel(hint);
        label->setFont(FontCn_13);
        label->setWordWrap(true);
        SetTextColor(label, Faint);
        layout->addWidget(label);
    }
    auto* content = new QVBoxLayout;
    content->setContentsMargins(0, 12, 0, 0);
    content->setSpacing(12);
    layout->addLayout(content);
    layout->addStretch(1);
    if (m_pRow) {
        m_pRow->addWidget(card, 1);
    } else {
        m_pLayout->insertWidget(m_pLayout->count() - 1, card);
    }
    return content;
}

QPushButton* GalleryPage::CreateSourceButton(const QString& title, const QString& source)
{
    auto* button = new QPushButton;
    button->setObjectName(QStringLiteral("source-") + source);
    button->setFixedSize(SourceSize, SourceSize);
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(QLatin1String(SourceSheet));
    button->setToolTip(tr("查看源代码"));
    button->setAccessibleName(tr("%1：查看源代码").arg(title));
    connect(button, &QPushButton::clicked, this,
            [this, title, source] { SourceDialog::Open(window(), title, source); });
    return button;
}

void GalleryPage::BeginRow()
{
    m_pRow = new QHBoxLayout;
    m_pRow->setSpacing(GalleryStyle::CardSpacing);
    m_pLayout->insertLayout(m_pLayout->count() - 1, m_pRow);
}

void GalleryPage::EndRow()
{
    m_pRow = nullptr;
}

QLabel* GalleryPage::AddOutcomeLine(const QString& objectName)
{
    auto* label = new QLabel;
    label->setObjectName(objectName);
    label->setFont(FontCn_14);
    label->setStyleSheet(QLatin1String(OutcomeSheet).arg(QLatin1String(GalleryStyle::Green)));
    m_pLayout->insertWidget(m_pLayout->count() - 1, label);
    return label;
}

QPushButton* GalleryPage::CreateCommand(const QString& text, const QString& objectName, bool primary)
{
    return GalleryCommands::Create(text, objectName, primary);
}

QLabel* GalleryPage::CreateCaption(const QString& text)
{
    auto* label = new QLabel(text);
    label->setFont(FontCn_12);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    SetTextColor(label, GalleryStyle::Faint);
    return label;
}
