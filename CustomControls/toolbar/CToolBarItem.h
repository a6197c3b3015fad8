#pragma once

#include <CustomControls/toolbar/CToolBar.h>

#include <QHash>
#include <QString>

#include <utility>

/**
 * A tool block of the ribbon: a group caption along the bottom edge and a row of CToolButton and of stacks of
 * CToolButtonVertical above it, all of one width and one caption height.
 *
 * The host first describes the buttons, through AddItem() and its like, and then has them made by CreateToolBlock().
 * The description is shared by all blocks, so one block is described and made at a time. GUI thread only. Owned by its
 * parent, as the buttons are by the block.
 *
 * A button that the host makes checkable can be the checked tool, of which the application has one: the block that
 * holds it keeps its full width, so that the tool never hides in the overflow menu. Checking one does not uncheck the
 * other; that is the host's, or ClearCheckedBtn()'s.
 *
 * @code
 * auto* block = new CToolBarItem(tr("加工"), window);
 * block->AddItem(":/icon/mill.png", tr("铣削"), 0, ":/icon/mill_grey.png");
 * const QList<CToolButton*> buttons = block->CreateToolBlock(false);
 * window->addToolBar(block);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CToolBarItem : public CToolBar
{
    Q_OBJECT

public:
    /**
     * @param name   object name and group caption of the block
     * @param parent the owner, as a rule the main window; may be null
     */
    CToolBarItem(const QString& name, QWidget* parent);
    ~CToolBarItem() override;

    /**
     * Describes a large button.
     *
     * @param iconPath         picture file, shown at its own size: 24 pixels leave room for the caption; one that is
     *                         missing makes a button without picture
     * @param text             caption, with line feeds where lines are to break; may be empty
     * @param type             the host's own, counted and not kept
     * @param disabledIconPath picture of the disabled button; empty for the same
     */
    void AddItem(const QString& iconPath, const QString& text, const int& type, const QString& disabledIconPath);

    /** As AddItem(), on a ground of its own: @p highlightColor as QColor reads it; no colour means no ground. */
    void AddItemHighlight(const QString& iconPath, const QString& text, const int& type,
                          const QString& disabledIconPath, const QString& highlightColor);

    /**
     * Describes a stack of one to three small buttons. Of four or more the first is dropped and the others become large
     * buttons. Does nothing at all when the lists differ in length.
     */
    void AddItemVertical(const QList<QString>& iconPaths, const QList<QString>& texts, const QList<int>& types,
                         const QList<QString>& disabledIconPaths);

    /**
     * Makes the buttons that were described, behind those that the block already has, gives all of them one width and
     * one number of caption lines, and empties the description.
     *
     * @param leadingSpacer begin with an empty space of 5 pixels
     * @return all buttons of the block, in the order in which they were made; connect to their clicked()
     */
    QList<CToolButton*> CreateToolBlock(bool leadingSpacer);

    /**
     * Gives the large buttons of all blocks the largest number of caption lines among them. The blocks of one main
     * window do so by themselves when they are shown. Null blocks are passed over.
     */
    static void UnifyBlocksHeight(const QList<CToolBarItem*>& blocks);

private:
    void TakeButton(CToolButton* button, int index, const QString& caption, int iconEdge);
    void MakeStack(int first, int count);
    void FollowCheckedTool(CToolButton* button);
    void SetExtensionHeight(int height);
    void Refit();
    static void ReleaseCheckedBlock();

    int m_nBlockWidth = 0;

    static QList<QString> m_strlistIconPath;
    static QList<QString> m_strlistIconPathDisabled;
    static QList<QString> m_strlistText;
    static QList<int> m_vecType;
    static QHash<int, QString> m_hashHighlightColorIndex;
    static QList<std::pair<int, int>> m_vecVerticalGroupIndex;
    static CToolBarItem* m_pToolBarChecked;
};
