#pragma once

#include <QSyntaxHighlighter>

/** Colours C++ lightly: keywords, classes, texts, numbers and comments. Its document owns it. */
class SourceHighlighter : public QSyntaxHighlighter
{
    Q_OBJECT

public:
    explicit SourceHighlighter(QTextDocument* document);

protected:
    void highlightBlock(const QString& text) override;
};
