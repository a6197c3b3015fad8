#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QComboBox>
#include <QFont>
#include <QList>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>

class CVelmarMenu;

namespace Ui {
class CComboBox;
}

/**
 * The dark combo box of the product's panels. Its list is a CVelmarMenu under the box, never the pop-up of QComboBox.
 *
 * The list lies in the outermost of the widgets that hold the box, or in the panel named "CModuleNewProject" among
 * them, so that nothing between clips it. In a dialog that has a parent of its own the outermost is the window behind
 * it: there the host gives the list to the dialog by SetMenuParent(). Up to a maximum number of entries it is plain,
 * beyond it scrolls. Entries go through the operations of this class, for the list and the box have to hold the same;
 * everything else (current index, signals) is that of a QComboBox. The list belongs to its window and outlives the box;
 * box, list and window may go in any order. Only from the box's own signals it is ended by deleteLater(), as every
 * QComboBox.
 *
 * Keyboard and accessibility: Space, F4 or Alt+Down open the list; while it is open the arrow keys mark an entry,
 * Return and Space take it, Escape closes the list and leaves the entry as it was. Tab passes the box by: it takes the
 * focus from a click alone. A screen reader meets a combo box with the current entry as its value; a label with the box
 * as its buddy, a tool tip or an accessibleName gives it a name.
 *
 * @code
 * auto* box = new CComboBox(panel);
 * box->SetBoxSize(200, 28, 0);
 * box->AddComboItem(tr("..."));
 * connect(box, &QComboBox::currentIndexChanged, this, &Panel::SetMaterial);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CComboBox : public QComboBox
{
    Q_OBJECT
    /** All entries at once; the current index stays where the new ones have it, else the first one is current. */
    Q_PROPERTY(QStringList items READ Items WRITE SetItems)
    Q_PROPERTY(int maxItemCount MEMBER m_iMaxItemCount WRITE SetMaxItemCount)
    /** Fixes box and list, whose rows get the box's height. */
    Q_PROPERTY(QSize boxSize READ BoxSize WRITE SetBothSizes)
    Q_PROPERTY(QFont listFont MEMBER m_fontList WRITE SetComboListFont)

public:
    /** @param parent not null as a rule; with null the list joins the box's window when it first opens */
    explicit CComboBox(QWidget* parent);
    ~CComboBox() override;

    /** Adds an entry. The first one becomes current, as in every QComboBox. */
    void AddComboItem(const QString& text);
    /** Removes the first entry with that text, upper and lower case told apart; an unknown text is ignored. */
    void RemoveItem(const QString& text);
    /** Removes all entries. The values of AddItemValue() stay. */
    void RemoveAllItems();
    /**
     * Fixes the box's size; the list gets the same width.
     *
     * @param width          of box and list, in logical pixels
     * @param height         of the box, in logical pixels
     * @param menuItemHeight height of a row of the list, which is 2 pixels higher still; 0 for that of the box
     */
    void SetBoxSize(int width, int height, int menuItemHeight);
    /** Puts the list in another window. Without a parent it is a window of its own and goes with the box. */
    void SetMenuParent(QWidget* parent);
    /**
     * Aligns the box's text and centres that of the list's present entries. The box becomes editable for it, with a
     * line edit that takes neither keys nor the mouse.
     */
    void SetTextAlignment(QFlags<Qt::AlignmentFlag> alignment);
    /** The font of the list, and the one that its width is measured with; the box keeps its own. */
    void SetComboListFont(QFont font);
    /** Upper and lower case are told apart. */
    bool IsItemContained(const QString& text);
    /** The entry at @p index, or an empty text. */
    QString TextAtIndex(int index);
    /** The most entries of the plain list, 5 before. It holds for later additions and rebuilds nothing. */
    void SetMaxItemCount(int count);
    /** Appends to a free list of values, which the host keeps in step with the entries. */
    void AddItemValue(const QString& value);
    /** The value at @p index, or an empty text. */
    QString GetItemValue(int index);

    bool eventFilter(QObject* obj, QEvent* event) override;
    /** Opens the list, for the keys that open a combo box. */
    void showPopup() override;
    /** Closes the list, which is also done when the box itself is hidden. */
    void hidePopup() override;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private Q_SLOTS:
    void SlotChangeItem();

private:
    friend class CComboBoxAccessible;

    QStringList Items() const;
    void SetItems(const QStringList& texts);
    QSize BoxSize() const;
    void SetBothSizes(const QSize& size);
    void SetToolkitPopUpApart();
    void AddListItem(const QString& text);
    void AppendEntry(const QString& text);
    void SetListWidth(int width);
    bool IsInside(const QMouseEvent* event) const;
    bool IsCursorOnScrollBar() const;
    void PlaceList();
    bool CloseList();
    bool IsListOpen() const;
    bool PressListKey(const QKeyEvent* event);

    QList<QString> m_listValues;
    Ui::CComboBox* ui;
    bool m_bPressed = false;
    int m_iBoxWidth = 282;
    int m_iBoxHeight = 28;
    int m_iMenuWidth = 282;
    QPoint m_ptMenuPos;
    bool m_bNotOpened = true;
    QFont m_fontList;
    bool m_bListMode = false;
    CVelmarMenu* m_pMenu;
    QList<QString> m_listItems;
    int m_iMaxItemCount = 5;
};
