#pragma once

#include "platform/ui/Form.h"

class QAction;
class QLineEdit;
class QMenu;
class QMenuBar;
class QWidget;

namespace ui {
class FlexGrid;
class ListBox;
} // namespace ui

// The review of one inventory file against a computer that is already in the ledger: the user
// chooses the computer in the list (its stored values fill column 3 of the grid), reads a file
// (its values fill column 4, its applications the lower grid), corrects single values of column
// 4 through tbx_Edit and "値を書き換え", and "DBを上書き更新" writes column 4 over the computer
// (InventoryReview). Nothing in a file names its computer: the choice is the user's, and the
// question before the overwrite is the only guard.
//
// Modeless, resizable, opening over the main window. The list, the file's column and the
// application grid show StandardErrorBox; the computer's column, the reading of the file and the
// overwrite have no handler, so a failure there ends the run.
class frm_Inport : public ui::SingleForm<frm_Inport> {
    Q_OBJECT

public:
    frm_Inport();

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Mnu_Open;
    QAction* Mnu_Close;
    QMenu* Mnu_Edit;
    QAction* Mnu_Update;
    QMenu* Mnu_Manege;
    QAction* Mnu_DBUpdate;
    ui::ListBox* List_ComuputerName;
    QLineEdit* tbx_ComputerName;
    QLineEdit* tbx_ComputerKey;
    QLineEdit* tbx_Edit;
    ui::FlexGrid* MSFlexGrid1;
    ui::FlexGrid* MSGrid_Application;

    // the grid row under edit, the row painted as chosen before, and whether the grid is filled
    int CurrentRow = 0;
    int PreviousRow = 1;
    bool GridReady = false;

    // the window's own routines
    void FillComputerList();
    void FillPcColumn(const QString& key);
    void FillReadColumn();
    void FillApplicationGrid();
    void PaintGridRow(int row, int qbColour);
    void ClearEditFields();
    void SelectFirstGridRow();

    // events
    void List_ComuputerName_Click();
    void MSFlexGrid1_Click();
    void Mnu_Open_Click();
    void Mnu_Update_Click();
    void Mnu_DBUpdate_Click();
    void Mnu_Close_Click();

protected:
    void Form_Load() override;
    void Form_Resize() override;

private:
    QWidget* m_client = nullptr;
};
