#include <CustomControls/buttons/CHintTextToolTip.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QTextDocument>

#include <cmath>

namespace {

const QString kLabelSheet =
    QStringLiteral("QLabel { color: #333333; padding: 6px 8px; background: #FFFFFF; border: 1px solid #E0E0E0; "
                   "border-radius: 4px; }");

constexpr int kMaximumTextWidth = 356;
// What the label needs beside the text.
constexpr int kLabelFrame = 14;
constexpr int kMaximumWidth = kMaximumTextWidth + kLabelFrame;

} // namespace

CHintTextToolTip::CHintTextToolTip(QWidget* ownerButton, QWidget* parent)
    : CHintToolTip(ownerButton, parent)
    , m_pLabel(new QLabel(this))
{
    m_pLabel->setWordWrap(false);
    m_pLabel->setFont(FontCn_15);
    m_pLabel->setStyleSheet(kLabelSheet);
    m_pLabel->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum);
    setMaximumWidth(kMaximumWidth);
    setContentsMargins(0, 0, 0, 0);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_pLabel, 0, Qt::AlignLeft | Qt::AlignTop);
}

void CHintTextToolTip::setText(const QString& text)
{
    m_pLabel->setText(text);

    QTextDocument document;
    document.setDefaultFont(m_pLabel->font());
    document.setPlainText(text);
    int width = int(std::ceil(document.idealWidth()));
    const bool wrap = width > kMaximumTextWidth;
    if (wrap) {
        document.setTextWidth(kMaximumTextWidth);
        width = int(std::ceil(document.idealWidth()));
    }
    m_pLabel->setWordWrap(wrap);
    m_pLabel->setFixedWidth(width + kLabelFrame);
    // A note that has been shown keeps its size otherwise, and the rest of it would be an invisible window.
    adjustSize();
}
