#pragma once

#include <CustomControls/toolbar/CToolButton.h>

/**
 * The small button of the ribbon: a row of 24 pixels with the icon on the left and the caption beside it, up to three
 * of which stand on top of each other in the place of one large CToolButton.
 *
 * CToolBarItem makes the stacks. A checked one looks like an idle one; menu, highlight and the solid fill of the large
 * button have no effect here. Owned by its parent.
 *
 * @code
 * auto* button = new CToolButtonVertical(this);
 * button->setText(tr("复制"));
 * button->SetGroupWidth(button->fontMetrics().horizontalAdvance(button->text()));
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CToolButtonVertical : public CToolButton
{
    Q_OBJECT
    Q_PROPERTY(int groupWidth MEMBER m_nGroupWidth WRITE SetGroupWidth)

public:
    /** Makes a button without icon and caption; @p parent owns it and may be null. */
    explicit CToolButtonVertical(QWidget* parent);

    /** @param width of the widest caption of the stack, in pixels; takes effect when the layout next asks for the size
     */
    void SetGroupWidth(int width);

    /** 24 pixels high, and as wide as icon and the stack's caption width need. */
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

public:
    bool IsVerticalBtn() override;

private:
    int m_nGroupWidth = 0;
};
