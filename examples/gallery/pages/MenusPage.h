#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"
#include "WorkView.h"

#include <CustomControls/menus/MenuStyle.h>

#include <QList>

class CCustomMenu;
class CCustomMenuItem;
class CMenuBtnHelper;
class QPushButton;

/** The menu bar of a CAM program over its work view; each row acts on the view or on the project. */
class MenusPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit MenusPage(const GalleryOptions& options);

private:
    enum Command
    {
        CommandNone,
        CommandNew,
        CommandOpen,
        CommandRecent,
        CommandClearRecent,
        CommandSave,
        CommandSaveAs,
        CommandExport,
        CommandUndo,
        CommandRedo,
        CommandCut,
        CommandCopy,
        CommandPaste,
        CommandDelete,
        CommandGrid,
        CommandAxes,
        CommandPath,
        CommandIsometric,
        CommandTop,
        CommandFront,
        CommandLeft,
        CommandDark,
        CommandWhite,
        CommandStrategy,
        CommandCalculate,
        CommandSimulate,
        CommandShortcuts,
        CommandAbout
    };
    /** A row, a separator (no text) or a row with a sub-menu (rows below it). */
    struct Row
    {
        int iCommand = CommandNone;
        QString strText;
        QString strShortcut;
        QString strIcon; ///< its file's name without look and ending
        QList<Row> listBelow;
    };

    QPushButton* AddMenu(const QString& objectName, const QString& text, const QList<Row>& rows);
    void Fill(CCustomMenu* menu, const QList<Row>& rows);
    void AddRow(CCustomMenu* menu, const Row& row);
    void Run(CCustomMenuItem* row);
    void ShowPart(CCustomMenuItem* row, WorkView::Part part);
    void SetStyle(MenuStyle style);
    void Change();
    void OpenProject(const QString& name);
    void Enable(int command, bool enabled);
    void ShowState();

    QList<Row> FileRows() const;
    QList<Row> EditRows() const;
    QList<Row> ViewRows() const;
    QList<Row> PathRows() const;
    QList<Row> HelpRows() const;

    QLabel* m_pOutcome;
    QWidget* m_pBench;
    WorkView* m_pView;
    QLabel* m_pProject;
    CMenuBtnHelper* m_pHelper;
    QList<CCustomMenu*> m_listMenus;
    QString m_strProject;
    int m_iUndo = 0;
    int m_iRedo = 0;
    bool m_bModified = false;
    bool m_bCopied = false;
    bool m_bCalculated = false;
};
