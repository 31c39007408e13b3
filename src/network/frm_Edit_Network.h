#pragma once

#include "platform/ui/Form.h"

#include <array>

class QAction;
class QLineEdit;
class QMenu;
class QMenuBar;
class QWidget;

namespace ui {
class DropDownCombo;
class FlexGrid;
} // namespace ui

// The register of network devices that are not computers of the ledger (printers, routers,
// servers kept elsewhere), and beside it one list of every IP address, computers and devices
// together, sorted by address.
//
// The upper grid is the register, edited through the fields above it: a click takes a device
// into the fields, "更新" writes every field that is not empty (a field cannot be blanked here),
// "新規" adds an empty device that sorts first. The lower grid shows tbl_NetworkList as the last
// "一覧更新" left it: adding, changing or deleting a device leaves it stale until the next one.
//
// Modeless, resizable, opening over the main window. The fills, Add and the export show
// StandardErrorBox; Update, Delete and the grid click have no handler, so a failure there ends
// the run.
class frm_Edit_Network : public ui::SingleForm<frm_Edit_Network> {
    Q_OBJECT

public:
    frm_Edit_Network();

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Export_CSV;
    QAction* Mnu_Close;
    QMenu* Mnu_Edit;
    QAction* Mnu_AddRecord;
    QAction* Mnu_Update;
    QAction* Mnu_Delete;
    QMenu* Mnu_View;
    QAction* Mnu_ViewUpdate;
    // location, user, maker: a name chosen from the master or typed; no code is kept
    std::array<ui::DropDownCombo*, 3> cmb_Dat{};
    // model, name, work group, IP address, MAC address, type, serial, ID, password
    std::array<QLineEdit*, 9> tbx_nunit{};
    ui::FlexGrid* MSFlexGrid_NetworkUnit;
    ui::FlexGrid* MSFlexGrid_Network;

    // window state: rows of MSFlexGrid_NetworkUnit, and whether a click may select
    int PreviousUnitRow = 1;
    int SelectedUnitRow = 0;
    bool UnitGridReady = false;

    // Paints the cells of a register row from column 1 on; a row below 1 does nothing.
    void PaintUnitRow(int row, int qbColour);

    // events
    void MSFlexGrid_NetworkUnit_Click();
    void cmb_Dat_DropDown(int index);
    void Mnu_AddRecord_Click();
    void Mnu_Update_Click();
    void Mnu_Delete_Click();
    void Mnu_ViewUpdate_Click();
    void Export_CSV_Click();
    void Mnu_Close_Click();

protected:
    void Form_Load() override;
    void Form_Resize() override;

private:
    void buildMenus();
    void buildControls();
    void setEditMenus(bool on);

    QWidget* m_client = nullptr;
    QWidget* m_fields = nullptr;
};
