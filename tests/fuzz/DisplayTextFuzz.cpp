#include <tests/fuzz/FuzzTarget.h>

#include <CustomControls/buttons/CHintButton.h>

#include <QFontMetrics>

// The caption of a wrapped button: a byte for its width, one for its height, then the text in UTF-8. What is shown is
// the text with line breaks put in, and with an ellipsis at its end where it doesn't fit.

namespace {

// Behind an ellipsis the toolkit keeps those of the text that it cuts off.
bool IsDirectionMark(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= 0x200e && code <= 0x200f) || (code >= 0x202a && code <= 0x202e) ||
           (code >= 0x2066 && code <= 0x2069);
}

} // namespace

void FuzzOne(FuzzInput& input)
{
    static CHintButton button;
    const int width = input.Byte();
    const int height = input.Byte();
    const QString text = QString::fromUtf8(input.Rest()).left(120);

    button.SetAutoWrap(true);
    button.setMinimumSize(0, 0);
    button.setMaximumSize(width, height);
    button.resize(width, height);
    button.setText(text);
    const QString shown = button.text();
    FUZZ_CHECK(shown == button.BuildDisplayText());
    FUZZ_CHECK(shown.isValidUtf16() || !text.isValidUtf16());

    const QFontMetrics metrics = button.fontMetrics();
    const int most = qMax(1, height / metrics.lineSpacing());
    qsizetype end = shown.size();
    while (end > 0 && IsDirectionMark(shown.at(end - 1))) {
        --end;
    }
    const bool ellipsisLast = end > 0 && shown.at(end - 1) == QChar(0x2026);
    // Where letters join, as in Arabic, the toolkit has the last one joined to what is cut off, by a joiner.
    const bool joined = ellipsisLast && end > 1 && shown.at(end - 2) == QChar(0x200d);
    const bool lastLineEmpty = end == 0 || shown.at(end - 1) == QLatin1Char('\n');
    // A text with breaks of its own hides which are which.
    const bool ownBreaks = text.contains(QLatin1Char('\n'));
    qsizetype raw = 0;
    qsizetype start = 0;
    int lines = 1;
    for (qsizetype i = 0; i < shown.size(); ++i) {
        if (raw < text.size() && shown.at(i) == text.at(raw)) {
            ++raw;
            continue;
        }
        if (shown.at(i) == QLatin1Char('\n')) {
            ++lines;
            // A single character stands alone however wide it is.
            const QString line = shown.mid(start, i - start);
            FUZZ_CHECK(ownBreaks || line.toUcs4().size() == 1 || metrics.horizontalAdvance(line) <= width);
            start = i + 1;
            continue;
        }
        // Cut short: the ellipsis ends the last line that there is room for. It may have passed for one of the text's
        // own.
        FUZZ_CHECK(ellipsisLast && i >= end - (joined ? 2 : 1) && (lines == most || ownBreaks));
        raw = text.size();
        break;
    }
    // Cut short all the same: where the text holds an ellipsis itself, the one that cuts it may look like it, and where
    // there is no room for an ellipsis the line stays empty.
    FUZZ_CHECK(raw == text.size() || ((lines == most || ownBreaks) && (lastLineEmpty || ellipsisLast)));
    FUZZ_CHECK(lines <= most);

    // The same text again is the same caption, and switching off shows the text itself from then on.
    button.RefreshDisplay();
    FUZZ_CHECK(button.text() == shown);
    button.SetAutoWrap(false);
    button.setText(text);
    FUZZ_CHECK(button.text() == text);
    FuzzSettle();
}
