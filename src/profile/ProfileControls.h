#pragma once

#include "profile/ProfileTables.h"

#include <array>

class QAction;
class QCheckBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenu;
class QMenuBar;
class QProgressBar;
class QPushButton;
class QTabBar;
class QTreeWidget;
class QWidget;

namespace ui {
class DropDownCombo;
class FlexGrid;
class StatusBar;
} // namespace ui

// The controls of the computer profile, under the system's names, as the form designer laid them
// out: the band on top, the tab strip, and the eight pages that lie on top of each other below
// it. Build makes and places them (in twips, the window being of fixed size); the window wires
// their events. The printed sheet reads its texts from here.
struct ProfileControls {
    // menus
    QMenuBar* MenuBar = nullptr;
    QMenu* Mnu_File = nullptr;
    QAction* Mnu_ExportCSV = nullptr;
    QAction* Mnu_Pagelayout = nullptr;
    QAction* Mnu_Print = nullptr;
    QAction* Mnu_Close = nullptr;
    QMenu* Mnu_Edit = nullptr;
    QAction* Mnu_Update = nullptr;
    QMenu* Mnu_Managemants = nullptr;
    QAction* Mnu_Edit_User = nullptr;
    std::array<QAction*, 6> Mnu_Edit_Teble{}; // 1 to 5

    // the band
    QLineEdit* tbx_User = nullptr;
    QLineEdit* tbx_UserCode = nullptr; // hidden
    QListWidget* List_User = nullptr;
    QLineEdit* tbx_Section = nullptr;
    QLineEdit* tbx_Division = nullptr;
    std::array<ui::DropDownCombo*, 6> cmb_Dat{}; // 3 to 5
    std::array<QLineEdit*, 6> tbx_CmbKey{};      // 3 to 5, hidden
    QPushButton* cmd_Prev = nullptr;
    QLineEdit* tbx_Key = nullptr;
    QLineEdit* tbx_PC_Numbers = nullptr;
    QPushButton* cmd_Next = nullptr;

    // the pages
    QTabBar* TabStrip1 = nullptr;
    std::array<QWidget*, 8> Picture_Page{};
    std::array<QLineEdit*, ProfileTables::ProfileFieldCount> tbx_Dat{};
    std::array<QLabel*, ProfileTables::ProfileFieldCount> lbr_dat{};
    QGroupBox* Frame_CPU = nullptr;
    std::array<QCheckBox*, ProfileTables::CpuFeatureCount> ChkBox{};
    std::array<QLabel*, ProfileTables::CpuFeatureCount> lbr_CPU_Feature{};
    QGroupBox* Frame_IE = nullptr;
    std::array<QLabel*, 6> IE_Env{};
    ui::FlexGrid* MSGrid_Application = nullptr;
    QTreeWidget* TreeView1 = nullptr;
    ui::FlexGrid* MSFlexGrid_Printer = nullptr;
    ui::FlexGrid* MSFlexGrid_Environmental = nullptr;
    std::array<QLabel*, 6> lbr_Drive{};
    std::array<QLineEdit*, 6> tbx_Drive{};
    std::array<QProgressBar*, 3> ProgressBar_val{};
    std::array<QCheckBox*, 6> Chk_Drive{};
    ui::StatusBar* StatusBar1 = nullptr;

    // Makes the menus and controls of the window, as designed: the labels of the field pairs
    // still carry their design text ("ユーザー名", "MONITOR") until a record sets them.
    void Build(QWidget* form);
};
