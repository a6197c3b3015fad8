#include "TextPage.h"

#include "../GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMetaType>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace {
constexpr int ViewHeight = 380;
constexpr int LongestText = 40;
constexpr auto BrowserSheet = "#textManual{background:#ffffff;border:1px solid #d5d5d5;border-radius:2px;}"
                              "#textManual:focus{border-color:#188553;}";

/** The two views have no installed headers: a host makes them by name and uses them as what they derive from. */
//! [text-notes]
template <class Base>
Base* CreateByName(const char* name)
{
    return qobject_cast<Base*>(static_cast<QObject*>(QMetaType::fromName(name).create()));
}
//! [text-notes]

QString Chapter(const QString& title, const QString& text)
{
    return QStringLiteral("<h3>%1</h3><p>%2</p>").arg(title, text);
}
} // namespace

TextPage::TextPage(const GalleryOptions&)
    : m_pOutcome(AddOutcomeLine(QStringLiteral("textClipboard")))
{
    BeginRow();
    AddNotes();
    AddManual();
    EndRow();
    ShowClipboard();
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &TextPage::ShowClipboard);
}

//! [text-notes]
void TextPage::AddNotes()
{
    QVBoxLayout* card = AddCard(tr("加工备注"), tr("右键菜单：剪切、复制、粘贴、全选。"), QStringLiteral("text-notes"));
    if (auto* notes = CreateByName<QPlainTextEdit>("CPlainTextEdit")) {
        notes->setObjectName(QStringLiteral("textNotes"));
        notes->setAccessibleName(tr("加工备注"));
        notes->setFont(FontCn_14);
        notes->setMinimumHeight(ViewHeight);
        notes->setPlainText(
            tr("第一面加工前请确认压板没有挡住刀路。\n第二面以左下角的销孔定位。\n精加工余量 0.2 mm。"));
        card->addWidget(notes);
    }
}
//! [text-notes]

//! [text-manual]
void TextPage::AddManual()
{
    QVBoxLayout* card = AddCard(tr("操作手册"), tr("只读；选中文字后右键可以复制。"), QStringLiteral("text-manual"));
    if (auto* manual = CreateByName<QTextBrowser>("CTextBrowser")) {
        manual->setObjectName(QStringLiteral("textManual"));
        manual->setAccessibleName(tr("操作手册"));
        manual->setStyleSheet(QLatin1String(BrowserSheet));
        manual->verticalScrollBar()->setStyleSheet(GalleryStyle::ScrollBars());
        manual->setFont(FontCn_14);
        manual->setMinimumHeight(ViewHeight);
        manual->setHtml(Chapter(tr("装夹"), tr("把毛坯放在工作台中央，四角用压板压紧。压板要避开刀路。")) +
                        Chapter(tr("对刀"), tr("让刀尖轻触毛坯表面，再按下“设为零点”。换刀之后要重新对刀。")) +
                        Chapter(tr("加工"), tr("关好防护门，点击“开始加工”。运行中不要打开防护门。")) +
                        Chapter(tr("清理"), tr("加工结束后用吸尘器清理切屑，最后取下工件。")));
        card->addWidget(manual);
    }
}
//! [text-manual]

void TextPage::ShowClipboard()
{
    QString text = QGuiApplication::clipboard()->text();
    // A line end in what was selected is a paragraph separator.
    text.replace(QChar::ParagraphSeparator, QLatin1Char(' '));
    if (text.size() > LongestText) {
        text = text.left(LongestText) + QChar(0x2026);
    }
    m_pOutcome->setText(text.isEmpty() ? tr("剪贴板是空的。") : tr("剪贴板：%1").arg(text));
}
