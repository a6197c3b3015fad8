#pragma once

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QVBoxLayout;

/**
 * A page of the gallery: a heading, one line that says what the family is for, and cards with natural examples. The
 * window fills the heading from the page list.
 *
 * @code
 * ButtonsPage::ButtonsPage()
 * {
 *     QVBoxLayout* types = AddCard(tr("..."), tr("..."));
 *     types->addWidget(new CVelmarButton(ButtonTypeText, false, true, 0, this));
 * }
 * @endcode
 */
class GalleryPage : public QWidget
{
    Q_OBJECT

public:
    explicit GalleryPage(QWidget* parent = nullptr);

    void SetHeading(const QString& title, const QString& purpose);

protected:
    /** Appends a card and gives its content layout. An empty title or hint leaves its label out. */
    QVBoxLayout* AddCard(const QString& title, const QString& hint);

    /** A row in which the next cards stand side by side, until EndRow. */
    void BeginRow();
    void EndRow();

    /** A line that tells the outcome of what the user did last; tests and the tour read it by its object name. */
    QLabel* AddOutcomeLine(const QString& objectName);

    /** A command button in the house look, with an object name. */
    static QPushButton* CreateCommand(const QString& text, const QString& objectName, bool primary = false);

    /** A small grey caption. */
    static QLabel* CreateCaption(const QString& text);

private:
    QLabel* m_pHeading;
    QLabel* m_pPurpose;
    QVBoxLayout* m_pLayout;
    QHBoxLayout* m_pRow = nullptr;
};
