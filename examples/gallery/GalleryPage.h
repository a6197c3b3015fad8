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
 *     QVBoxLayout* types = AddCard(tr("..."), tr("..."), QStringLiteral("button-types"));
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
    /**
     * Appends a card and gives its content layout.
     *
     * @param title  heads the card
     * @param hint   below it; an empty one leaves its label out
     * @param source names the example's lines (see GallerySource), which a button of the card shows; an empty one
     * leaves the button out
     */
    QVBoxLayout* AddCard(const QString& title, const QString& hint, const QString& source);

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
    QPushButton* CreateSourceButton(const QString& title, const QString& source);

    QLabel* m_pHeading;
    QLabel* m_pPurpose;
    QVBoxLayout* m_pLayout;
    QHBoxLayout* m_pRow = nullptr;
};
