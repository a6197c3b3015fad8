#pragma once

#include <QStackedWidget>

/**
 * A QStackedWidget whose pages a form makes as its children.
 *
 * A form makes the pages of a QStackedWidget without a parent and adds them when they are full. Every style sheet
 * within is then read once for the page that is still alone, and once more for each move of it. A form takes this class
 * for a plain widget; whoever sets up the form adds the pages.
 *
 * To everybody else it is a QStackedWidget, by its class name too.
 */
class PageStack : public QStackedWidget
{
public:
    using QStackedWidget::QStackedWidget;
};
