#pragma once

#include "GalleryOptions.h"

#include <CustomControls/frameless/FramelessMainWindow.h>

class QListWidget;
class QStackedWidget;

/**
 * The gallery's main window, without a system frame: title bar, ribbon, page list, page, log pane and status line. It
 * does what the controls expect of a host: it is the main window of the message boxes, comes forward when a control
 * asks for it, and tells every control when the program is about to end.
 */
class GalleryWindow : public FramelessMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(const GalleryOptions& options, QWidget* parent = nullptr);

    /** Opens the page of that name; false when there is none. */
    bool OpenPage(const QString& name);

private:
    void ShowRow(int row);

    GalleryOptions m_options;
    QListWidget* m_pPageList;
    QStackedWidget* m_pStack;
};
