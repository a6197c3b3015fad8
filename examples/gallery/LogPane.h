#pragma once

#include <QWidget>

class QColor;
class QLabel;
class QPlainTextEdit;

/**
 * The host's log pane: what controls report through CorvaneSignalHelper::signalFilePluginAppendLog, in its colour, and
 * every line of the product's log. While one lives it is the log's listener, so there is one at a time.
 */
class LogPane : public QWidget
{
    Q_OBJECT

public:
    explicit LogPane(QWidget* parent = nullptr);
    ~LogPane() override;

    /** Appends a line in a colour. GUI thread only. */
    void AppendLine(const QString& text, const QColor& color);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();

    QLabel* m_pTitle;
    QPlainTextEdit* m_pText;
};
