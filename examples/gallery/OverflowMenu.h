#pragma once

#include <QList>
#include <QObject>

class CToolButton;
class QToolBar;
class QToolButton;

/**
 * Lists the tools that a narrow block has no room for under its overflow button. The toolkit's own list leaves out what
 * is a widget and then disables the button, since a row as low as a ribbon has no room to unfold the block either.
 *
 * Owned by the block.
 *
 * @code
 * new OverflowMenu(block, block->CreateToolBlock(false));
 * @endcode
 */
class OverflowMenu : public QObject
{
    Q_OBJECT

public:
    OverflowMenu(QToolBar* block, const QList<CToolButton*>& tools);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Show();

    QList<CToolButton*> m_tools;
    QToolButton* m_pOverflow;
};
