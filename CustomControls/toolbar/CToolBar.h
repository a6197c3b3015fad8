#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QList>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QToolBar>

class CToolButton;
class QMainWindow;
class QPainter;
class QToolButton;

/**
 * A tool bar of a fixed height with a painted frame: a line below, separators to its neighbours in the row, and the
 * text of the dynamic property "GroupName" centred along its bottom edge. It opens no context menu.
 *
 * For the ribbon use CToolBarItem, which fills itself. Owned by its parent. Brings a CToolBarStyle of its own.
 *
 * @code
 * auto* bar = new CToolBar(CToolBar::ToolBarModeSlim, window);
 * bar->addAction(tr("撤销"));
 * window->addToolBar(bar);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CToolBar : public QToolBar
{
    Q_OBJECT
    Q_PROPERTY(bool splitLastWordMode READ IsSplitLastWordMode WRITE SetSplitLastWordMode)

public:
    /** The heights of a bar. */
    enum EnumToolBarMode : int
    {
        ToolBarModeSlim = 0, ///< 41 pixels high
        ToolBarModeBlock = 1 ///< 78 pixels high, with room for captions and a group caption
    };

    /**
     * @param mode   gives the height; any value but ToolBarModeBlock counts as ToolBarModeSlim
     * @param parent the owner, as a rule the main window; may be null
     */
    CToolBar(EnumToolBarMode mode, QWidget* parent);
    ~CToolBar() override;

    /** @param width of the group caption's area in pixels, from the next paint on; below 0 it follows the bar */
    void SetFixedWidthForPainting(int width);

    /** Outside a Chinese environment, puts the last word of each caption made from now on onto a line of its own. */
    void SetSplitLastWordMode(bool split);
    /** What SetSplitLastWordMode() was last given, false before. */
    bool IsSplitLastWordMode() const;

    /**
     * Unchecks the checked tool, wherever it stands, and forgets it. The block that holds it keeps its full width until
     * its own button is clicked again.
     */
    static void ClearCheckedBtn();

    /** As wide as any tool bar of its content, as high as its mode says. */
    QSize sizeHint() const override;

    /** The tool that is checked at present, over all bars; null when there is none. Written by the blocks. */
    static CToolButton* m_pBtnChecked;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void showEvent(QShowEvent* event) override;

    EnumToolBarMode m_eMode;                ///< gives the height
    bool m_bGeometryPending = false;        ///< a new layout of the row has been asked for and is on its way
    QToolButton* m_pExtensionBtn = nullptr; ///< the overflow button of a block
    QList<CToolButton*> m_listToolBtn;      ///< the buttons of a block, in the order in which they were made
    int m_nFixedWidthForPainting = -1;      ///< see SetFixedWidthForPainting()
    bool m_bSplitLastWord = false;          ///< see SetSplitLastWordMode()

    /** The state of all buttons in which the bar was last found at one height with the others; 0 when it has to be
     *  asked. */
    quint64 m_nUnifiedRevision = 0;

private:
    static void UnifyBlocksOf(const QMainWindow& window);
    int RightmostButtonEdge() const;
    QRect GroupCaptionPlace(QPainter& painter, const QRect& area, const QString& caption);

    QPointer<QStyle> m_pStyle;
    // The group caption as it was last measured: whether a repaint touches it is asked for every hovered button.
    QString m_strMeasuredCaption;
    QRect m_rectMeasuredArea;
    QRect m_rectGroupCaption;
};
