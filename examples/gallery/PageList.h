#pragma once

#include <QWidget>

class QAction;
class QLabel;
class QLineEdit;
class QListWidget;

/**
 * The list of pages with a search field over it. What the field holds leaves the pages that match by title, by a class
 * that they show or by a keyword, in whichever language the words are. In the field Up and Down choose among them,
 * Return opens the chosen one, and Escape brings all pages back.
 */
class PageList : public QWidget
{
    Q_OBJECT

public:
    explicit PageList(QWidget* parent = nullptr);

    /** The open page; -1 as long as none is. */
    int CurrentPage() const { return m_iPage; }
    void SetCurrentPage(int page);

    /** Gives the search field the focus, with what it holds selected. */
    void FocusSearch();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /** The user opened a page, or SetCurrentPage another one than before. */
    void SignalPageOpened(int page);

protected:
    void changeEvent(QEvent* event) override;

private:
    void Retranslate();
    void Search();
    void Choose(int step);
    bool IsSearching() const;

    QLineEdit* m_pSearch;
    QAction* m_pClear;
    QListWidget* m_pList;
    QLabel* m_pNothing;
    int m_iPage = -1;
};
