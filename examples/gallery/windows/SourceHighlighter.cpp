#include "SourceHighlighter.h"

#include <QColor>
#include <QRegularExpression>

namespace {
enum State
{
    StateCode,
    StateComment
};

/** In the order of the pattern's groups. */
const QColor Colors[] = {
    QColor(0x7d, 0x86, 0x8b), // comment
    QColor(0xb2, 0x5c, 0x00), // text
    QColor(0x28, 0x5b, 0xe3), // number
    QColor(0x18, 0x85, 0x53), // keyword
    QColor(0x1f, 0x5f, 0x7a), // class
};

/** Tried from the left, the first that fits wins: a keyword inside a text or a comment is none. */
const QRegularExpression& Tokens()
{
    static const QRegularExpression tokens(QStringLiteral(
        R"((//.*|/\*.*?(?:\*/|$))|("(?:\\.|[^"\\])*"|'(?:\\.|[^'\\])*')|(\b(?:0x[0-9a-fA-F]+|\d+(?:\.\d+)?)\b)|)"
        R"((\b(?:auto|bool|break|case|class|const|constexpr|default|delete|double|else|enum|explicit|false|for|if|int|)"
        R"(namespace|new|nullptr|override|private|protected|public|return|static|struct|switch|this|true|using|void|)"
        R"(while)\b)|(\b[A-Z]\w*[a-z]\w*\b(?!\()))"));
    return tokens;
}
} // namespace

SourceHighlighter::SourceHighlighter(QTextDocument* document)
    : QSyntaxHighlighter(document)
{}

void SourceHighlighter::highlightBlock(const QString& text)
{
    setCurrentBlockState(StateCode);
    int begin = 0;
    if (previousBlockState() == StateComment) {
        const int end = int(text.indexOf(QLatin1String("*/")));
        begin = end < 0 ? int(text.size()) : end + 2;
        setFormat(0, begin, Colors[0]);
        setCurrentBlockState(end < 0 ? StateComment : StateCode);
    }
    for (auto match = Tokens().globalMatch(text, begin); match.hasNext();) {
        const QRegularExpressionMatch token = match.next();
        const int group = token.lastCapturedIndex();
        setFormat(int(token.capturedStart()), int(token.capturedLength()), Colors[group - 1]);
        if (group == 1 && token.captured().startsWith(QLatin1String("/*")) &&
            !token.captured().endsWith(QLatin1String("*/"))) {
            setCurrentBlockState(StateComment);
        }
    }
}
