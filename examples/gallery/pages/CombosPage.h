#pragma once

#include "../GalleryOptions.h"
#include "../GalleryPage.h"

class CComboBox;
class CVelmarMenu;
class QHBoxLayout;
class QTableWidget;

/** The dark combo boxes of a parameter panel, light ones in a table, one that reports when it is left, and a menu. */
class CombosPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit CombosPage(const GalleryOptions& options);

private:
    void AddPanel();
    void AddTable();
    void AddSpindle();
    void AddMachineMenu();

    /** A dark box under its caption, in a panel's row. Whatever is chosen is told on the outcome line. */
    CComboBox* CreateBox(const QString& name, const QString& caption, const QStringList& entries, QHBoxLayout* row);
    void ShowToolCount();
    void Tell(const QString& what, const QString& value);

    QLabel* m_pOutcome;
    QLabel* m_pToolCount = nullptr;
    CComboBox* m_pTools = nullptr;
    QPushButton* m_pRemoveTool = nullptr;
    CVelmarMenu* m_pMachineMenu = nullptr;
    int m_iNextTool = 6;
};
