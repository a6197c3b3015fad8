#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

class CFunctionBtnWidget;
class CTextEdit;
class QFrame;
class QListWidget;

/**
 * The side panel in which the user prepares a job: material tiles, numeric fields with their units, presets for an
 * angle that wraps, switches with hints, and the list of machining steps with its function buttons.
 */
class ParametersPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ParametersPage(const GalleryOptions& options);

private:
    void AddMaterials();
    void AddParameters();
    void AddSteps();

    QWidget* CreateStock();
    QWidget* CreateOptions();
    /** A number of the panel; each change of the user's is told on the outcome line. */
    CTextEdit* CreateField(const QString& objectName, const QString& name, const QString& value, const QString& unit);
    QWidget* CreateAnglePresets(CTextEdit* angle);
    QListWidget* CreateStepList(QWidget* panel);
    /** Both buttons of the strip below the list. */
    void AddFunctions(CFunctionBtnWidget* strip, QListWidget* list);
    void AppendStep(QListWidget* list);

    QLabel* m_pOutcome;
};
