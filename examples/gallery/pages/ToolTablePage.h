#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

class ToolTable;

/** The magazine's tools before a job: one table for the end mill, one for the ball end mill, and their confirmation. */
class ToolTablePage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ToolTablePage(const GalleryOptions& options);

private:
    ToolTable* AddTable(const QString& name, const QString& title, const QString& hint, const QString& source,
                        const QList<int>& types);
    void AddConfirmation();
    void AddPrograms();
    /** Lists the chosen tools as the box that confirms them does. */
    void ShowChosen();
    void Confirm();
    void ShowTool(const QString& text, const ToolTable* table, int row);

    QLabel* m_pOutcome;
    ToolTable* m_pRoughing;
    ToolTable* m_pFinishing;
    QVBoxLayout* m_pChosen = nullptr;
};
