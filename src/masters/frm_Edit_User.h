#pragma once

#include "platform/ui/Form.h"

#include <QString>

#include <array>
#include <cstdint>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;

namespace ui {
class DropDownCombo;
class FlexGrid;
} // namespace ui

// The register of users: the people computers are assigned to, each in a section and a
// division, with employee number, logon account and password (plain text, as the ledger keeps
// them). A delete sets Available_flug to "1"; the user stays on the computers, gray in the main
// list. A user whose section or division has no master row is not listed. The section and
// division tables are edited from here too, through the code table editor.
//
// Modal, resizable, opening over the main window (its size and place from the main window's
// globals); the grid follows the window's width at a fixed height, the edit fields below it. A
// failing statement of the grid fill shows StandardErrorBox; the others end the run.
class frm_Edit_User : public ui::SingleForm<frm_Edit_User> {
    Q_OBJECT

public:
    frm_Edit_User();

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Mnu_Close;
    QMenu* Mnu_Edit;
    QAction* Mnu_Add;
    QAction* Mnu_Update;
    QAction* Mnu_delete;
    QMenu* Mnu_Managements;
    QAction* Mnu_Section;
    QAction* Mnu_Division;
    ui::FlexGrid* MSFlexGrid_Edit;
    QLabel* lbr_Key;
    ui::DropDownCombo* cmb_Section;
    QLineEdit* tbx_Section_Code;
    ui::DropDownCombo* cmb_Division;
    QLineEdit* tbx_Division_Code;
    // 3 to 8: name, kana, comment, employee number, account, password (0 to 2 unused)
    std::array<QLineEdit*, 9> tbxEdit{};

    // events
    void MSFlexGrid_Edit_Click();
    void cmb_Section_DropDown();
    void cmb_Section_Click();
    void cmb_Division_DropDown();
    void cmb_Division_Click();
    void Mnu_Add_Click();
    void Mnu_Update_Click();
    void Mnu_Delete_Click();
    void Mnu_Section_Click();
    void Mnu_Division_Click();
    void Mnu_Close_Click();

protected:
    void Form_Load() override;
    void Form_Resize() override;

private:
    void buildMenus();
    void buildControls();
    void fillGrid();
    void clearEdits();
    void setMenusAfterChange();

    QWidget* m_fields = nullptr;
    bool m_filled = false;
    int m_selectedRow = 0;
    int m_previousRow = 0;
    // the section and division codes of each grid row, which the grid does not show
    std::vector<std::pair<QString, QString>> m_rowCodes;
};
