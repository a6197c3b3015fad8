#pragma once

#include <QPlainTextEdit>

class CCustomMenu;

/**
 * A plain text editor whose context menu is a CCustomMenu: cut, copy, paste, select all.
 *
 * The menu is a child of the editor's parent, so that it can lie over the editor's edge; the editor deletes it.
 *
 * It has no exported symbols, but is known by name while the library is loaded, so that a host can make one:
 *
 * @code
 * void* made = QMetaType::fromName("CPlainTextEdit").create();
 * auto* notes = qobject_cast<QPlainTextEdit*>(static_cast<QObject*>(made));
 * layout->addWidget(notes);
 * @endcode
 *
 * Within the library:
 *
 * @code
 * auto* notes = new CPlainTextEdit(page);
 * layout->addWidget(notes);
 * notes->setPlainText(text);
 * @endcode
 */
class CPlainTextEdit : public QPlainTextEdit
{
    Q_OBJECT

public:
    /** @param parent the menu's parent as well; without one the menu is a small window until the editor has one */
    explicit CPlainTextEdit(QWidget* parent = nullptr);
    ~CPlainTextEdit() override;

    bool eventFilter(QObject* obj, QEvent* event) override;

private:
    void ShowMenu(const QPoint& position);
    void Cut();
    void Copy();
    void Paste();

    CCustomMenu* m_pMenu = nullptr;
};
