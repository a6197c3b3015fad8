#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

class CToolBar;
class CToolBarItem;
class QMainWindow;
class WorkView;

/** The dark tabs of a set-up, and the bars of a small work window: a block of tools and a slim bar of switches. */
class ToolBarsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ToolBarsPage(const GalleryOptions& options);

private:
    void AddTabs();
    void AddBars();
    CToolBarItem* CreateSides(QMainWindow* bench, WorkView* view);
    CToolBar* CreateSwitches(QMainWindow* bench, WorkView* view);

    QLabel* m_pOutcome;
};
