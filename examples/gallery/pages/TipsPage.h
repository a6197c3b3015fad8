#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

class CHintButton;
class JogPalette;
class QGridLayout;

/** Frosted tool tips in a tool bar and at each edge of the screen, and hint notes beside parameters. */
class TipsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit TipsPage(const GalleryOptions& options);

protected:
    void hideEvent(QHideEvent* event) override;

private:
    void AddToolBar();
    void AddEdges();
    void AddParameters();
    void AddJobs();
    void AddPosition();
    /** A parameter: name, value and unit, and the button that explains it. */
    CHintButton* AddParameter(QGridLayout* grid, const QString& name, const QString& value, const QString& unit,
                              const QString& hintName);

    QLabel* m_pOutcome;
    JogPalette* m_pPalette = nullptr;
};
