#pragma once

#include <CustomControls/toolbar/CTabToolWidget.h>

#include <QHash>
#include <QList>
#include <QPair>
#include <QPointer>
#include <QStringList>

#include <functional>

class CToolBarItem;
class CToolButton;
class QMainWindow;
class QTimer;
class ToastWidget;

/**
 * The head of the gallery's main window: four tabs of tool blocks, as a CAM host has them. A tool opens a page, asks,
 * or says in the log what it would do; one that cannot work yet says why when it is clicked.
 *
 * Each tool is found by its object name, "tool-" and the name of its picture in ":/gallery/ribbon/".
 *
 * @code
 * auto* ribbon = new GalleryRibbon;
 * layout->addWidget(ribbon);
 * connect(ribbon, &GalleryRibbon::SignalOpenPage, window, &GalleryWindow::OpenPage);
 * @endcode
 */
class GalleryRibbon : public CTabToolWidget
{
    Q_OBJECT

public:
    explicit GalleryRibbon(QWidget* parent = nullptr);
    ~GalleryRibbon() override;

    /** Takes the open tab, the checked tool and what is enabled from the ribbon that stood in its place. */
    void TakeOver(const GalleryRibbon& other);

Q_SIGNALS:
    /** The user wants the page of that name. */
    void SignalOpenPage(const QString& page);

private:
    using Row = QPair<const char*, QString>;

    void AddHomeTab();
    void AddModelTab();
    void AddMachiningTab();
    void AddHelpTab();

    void BeginTab(const QString& caption);
    void BeginBlock(const QString& caption);
    void AddTool(const char* name, const QString& caption, const QString& highlight = QString());
    void AddStack(const QList<Row>& rows);
    void EndBlock();

    CToolButton* Tool(const char* name) const;
    void OnClick(const char* name, const std::function<void()>& action);
    void OnClickReport(const char* name, const QString& text);
    void OnClickOpen(const char* name, const QString& page);
    void SetMenu(const char* name, const QStringList& entries, const QString& report);
    void MakeCheckable(const QList<const char*>& names);
    void Disable(const QList<const char*>& names, const QString& reason);

    void Report(const QString& text) const;
    void ShowReason(const QString& reason);

    QMainWindow* m_pRow = nullptr;
    CToolBarItem* m_pBlock = nullptr;
    QStringList m_names; ///< of the tools that the block has, in the order in which they are described
    QHash<QString, CToolButton*> m_tools;
    QList<CToolButton*> m_checkable;
    QPointer<ToastWidget> m_pReason;
    QTimer* m_pReasonTimer;
    bool m_bSilent = false; ///< nothing is reported: no user clicks
};
