#pragma once

#include "platform/ui/Form.h"

#include <cstdint>

class QAction;
class QLineEdit;
class QMenu;
class QMenuBar;

namespace ui {
class FlexGrid;
}

// The register of purchased software: one line per application with the number of licences
// bought, the list from which frm_Edit_License assigns licences to computers. "新規" inserts a
// blank line (the typed text is not used); the user selects it, fills both boxes and chooses
// "更新". Nothing here looks at the assignments: a line that has some can be deleted, and they
// stay in tbl_License_Dat, out of sight.
//
// Opened modally from frm_Edit_License; of fixed size. The grid fill shows StandardErrorBox on a
// failure; a failing statement of "新規", "更新" or "削除" ends the run.
class frm_Add_License : public ui::SingleForm<frm_Add_License> {
    Q_OBJECT

public:
    frm_Add_License();

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Mnu_Close;
    QMenu* Mnu_Edit;
    QAction* Mnu_AddRecord;
    QAction* Mnu_EditRecord;
    QAction* Mnu_DeleteRecord;
    QMenu* Mnu_View;
    QAction* Mnu_ViewList;
    QLineEdit* tbx_LicenseName;
    QLineEdit* tbx_LicenseNum;
    ui::FlexGrid* MSFlexGrid_License;

    // True once the grid has been filled; a grid click is ignored while it is False.
    bool GridReady = false;
    // the row painted as selected last (1 after a reset), and the row now selected (0 for none)
    std::int16_t PreviousRow = 1;
    std::int16_t SelectedRow = 0;

    // Empties both boxes, forgets the selection and fills the grid again.
    void ClearLicenseEntry();
    // Fills the grid from tbl_License_Key; False when the table has no line (the grid is then
    // left with no rows and no columns, not even a heading) or after a failure.
    bool FillLicenseGrid();
    // Paints every cell of a row, column 0 included.
    void PaintLicenseRow(std::int16_t row, std::int16_t qbColour);

    // events
    void MSFlexGrid_License_Click();
    void Mnu_AddRecord_Click();
    void Mnu_EditRecord_Click();
    void Mnu_DeleteRecord_Click();
    void Mnu_ViewList_Click();
    void Mnu_Close_Click();

protected:
    void Form_Load() override;

private:
    void buildMenus();
    void buildControls();
    // the state after a command: a new line may be made, nothing is selected for update or delete
    void onlyAddEnabled();
};
