#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

#include <CustomControls/buttons/CVelmarButton.h>

#include <QList>

/** CVelmarButton in its eight types, two orientations and three backgrounds, and the groups that a host builds of it.
 */
class ButtonsPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit ButtonsPage(const GalleryOptions& options);

private:
    void AddTypes();
    void AddOrientations();
    void AddBackgrounds();
    void AddMaterials();
    void AddToolRow();
    void AddNavigation();
    void AddBubbles();
    void AddDisabled();

    /** A solid house button of a fixed size; each click is told on the outcome line under the button's name. */
    CVelmarButton* CreateButton(const QString& name, EnumButtonType type, bool vertical, bool iconFirst, int width,
                                int height, int backgroundKind = 0);

    /** Of the buttons of a group one is chosen: the one clicked last. */
    static void MakeExclusive(const QList<CVelmarButton*>& buttons);

    QLabel* m_pOutcome;
};
