#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QList>
#include <QString>
#include <QWidget>

class CVelmarButton;
class QHBoxLayout;
class QScrollBar;

/**
 * The strip of one, two or three large buttons that closes a side panel below a scrolling list, 394 by 69 pixels. While
 * more of the list lies below its lower edge, a thin line runs along the strip's top, so that the strip seems to float
 * over the list.
 *
 * The buttons show white captions on a transparent ground: the strip is made for a dark panel. The parent owns the
 * strip, the strip owns its buttons; list and strip may go in any order.
 *
 * @code
 * auto* strip = new CFunctionBtnWidget(list->verticalScrollBar(), panel);
 * const QList<CVelmarButton*> buttons = strip->InitialButton2({tr("取消"), tr("确定")});
 * connect(buttons.last(), &CVelmarButton::SignalClicked, this, &Panel::Accept);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CFunctionBtnWidget : public QWidget
{
    Q_OBJECT

public:
    /**
     * @param scrollBar the scroll bar of the list above. The strip starts without its line, whatever the bar's place,
     * and follows each change of range or value from then on; without a bar it never gets one
     * @param parent    the owner; may be null
     */
    CFunctionBtnWidget(QScrollBar* scrollBar, QWidget* parent);

    /**
     * Adds one button, 376 by 52. Call one of the three operations once: each call adds more buttons.
     *
     * @param text its caption; icon and caption stand centred together. A caption wider than the button's width less
     * 38 is cut
     * @return the button, to which the host gives its icon
     */
    CVelmarButton* InitialButton1(const QString& text);

    /**
     * Adds two buttons, 184 by 52 each, from left to right.
     *
     * @param textList exactly two captions; any other number adds nothing
     * @return the buttons in the order of the captions, or an empty list
     */
    QList<CVelmarButton*> InitialButton2(const QList<QString>& textList);

    /**
     * Adds three buttons, 120 by 52 each, from left to right.
     *
     * @param textList exactly three captions; any other number adds nothing
     * @return the buttons in the order of the captions, or an empty list
     */
    QList<CVelmarButton*> InitialButton3(const QList<QString>& textList);

private:
    CVelmarButton* AddButton(const QString& text, int width, int radius);
    QList<CVelmarButton*> AddButtons(const QList<QString>& textList, qsizetype needed, int width, int radius);
    void ShowLine(bool show);

    QHBoxLayout* m_pLayout = nullptr;
};
