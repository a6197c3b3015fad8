#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

#include <functional>

class QGridLayout;

/** Each entry point and each icon of CVelmarMessageBox, as a host meets it. */
class MessageBoxesPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit MessageBoxesPage(const GalleryOptions& options);

private:
    /** Appends a tile whose click asks a question; the answer's code is told on the outcome line. */
    void AddQuestion(QGridLayout* grid, const QString& name, const QString& picture, const QString& title,
                     const QString& detail, const std::function<int()>& ask);
    void AddIcons();
    void AddEntryPoints();
    void ShowCode(int code, const QString& remark = QString());
    /** A box under the loading animation, which the host ends itself. */
    void RunPreview();
    /** A box that asks again over itself. */
    void RunStacked();

    QLabel* m_pOutcome;
};
