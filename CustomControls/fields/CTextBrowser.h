#pragma once

#include <QTextBrowser>

class CCustomMenu;

/**
 * A text browser whose context menu is a CCustomMenu with one row: copy. Without a selection nothing opens.
 *
 * The menu is a child of the browser's parent and goes with it; without a parent it goes with the browser.
 *
 * Like the editor it has no exported symbols; a host makes one by name:
 *
 * @code
 * void* made = QMetaType::fromName("CTextBrowser").create();
 * auto* manual = qobject_cast<QTextBrowser*>(static_cast<QObject*>(made));
 * layout->addWidget(manual);
 * manual->setHtml(text);
 * @endcode
 *
 * Within the library:
 *
 * @code
 * auto* manual = new CTextBrowser(page);
 * layout->addWidget(manual);
 * manual->setHtml(text);
 * @endcode
 */
class CTextBrowser : public QTextBrowser
{
    Q_OBJECT

public:
    /** @param parent the menu's parent as well; without one the menu is a small window until the browser has one */
    explicit CTextBrowser(QWidget* parent = nullptr);
    ~CTextBrowser() override;

    bool eventFilter(QObject* obj, QEvent* event) override;

private:
    void ShowMenu(const QPoint& position);
    void Copy();

    CCustomMenu* m_pMenu = nullptr;
};
