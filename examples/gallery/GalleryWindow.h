#pragma once

#include "GalleryOptions.h"

#include <CustomControls/frameless/FramelessMainWindow.h>

class CVelmarButton;
class GalleryRibbon;
class GalleryTitleBar;
class PageList;
class QStackedWidget;
class QVBoxLayout;

/**
 * The gallery's main window, without a system frame: title bar, ribbon, page list, page, log pane and status line. It
 * does what the controls expect of a host: it is the main window of the message boxes, comes forward when a control
 * asks for it, and tells every control when the program is about to end.
 *
 * When the language changes, ribbon and pages are built anew, for controls take their texts when they are built. The
 * open page and its place stay, so does the state of the tools; what was typed into a page is gone, and a dialog that
 * is open keeps its language until it closes.
 */
class GalleryWindow : public FramelessMainWindow
{
    Q_OBJECT

public:
    explicit GalleryWindow(const GalleryOptions& options, QWidget* parent = nullptr);

    /** Opens the page of that name; false when there is none. */
    bool OpenPage(const QString& name);

public Q_SLOTS:
    /** "zh" or "en"; anything else is ignored. The window follows when the event loop next runs. */
    void SetLanguage(const QString& language);

protected:
    void changeEvent(QEvent* event) override;

private:
    CVelmarButton* CreateLanguageButton();
    void CreateRibbon();
    void ShowPage(int page);
    void Retranslate();

    GalleryOptions m_options;
    GalleryTitleBar* m_pTitleBar;
    CVelmarButton* m_pLanguage = nullptr;
    GalleryRibbon* m_pRibbon = nullptr;
    PageList* m_pPageList;
    QStackedWidget* m_pStack;
    QVBoxLayout* m_pLayout;
};
