#pragma once

#include "platform/ui/FlexGrid.h"
#include "platform/ui/Form.h"
#include "profile/ProfileControls.h"
#include "profile/ProfileSave.h"

#include <QString>

#include <cstdint>

namespace print {
class PrintSurface;
}

// The computer profile: one computer's inventory record (tbl_Pclist) and administrative record
// (tbl_Computer_List) with its user, section, division, location, maker and model, in a band on
// top and eight pages below. It opens on the computer selected in the main list and steps through
// that list's computers in the list's order. Modeless, one instance.
//
// Nothing is cached: every load reads the ledger, the list pages only when their tab is chosen.
// A step replaces unsaved edits without asking. A computer whose codes point at no master row
// shows blank fields (the record is read through an inner join of every master), with no message.
class frm_Edit_Computer : public ui::SingleForm<frm_Edit_Computer>, public ProfileControls {
    Q_OBJECT

public:
    frm_Edit_Computer();

    static constexpr int OpeningWidth = 12000;
    static constexpr int OpeningHeight = 8500;
    // after any later resize: the height is 400 twips more than on opening
    static constexpr int ResizeWidth = 12000;
    static constexpr int ResizeHeight = 8900;

    // state
    std::int16_t CurrentKey = 0;
    std::int16_t CurrentPosition = 0; // in ListRowKeys, from 1
    QString EditBackup;               // a tbx_Dat box's text when it got the focus ("0" if empty)

    // routines; the loaders answer whether they read a row, a value no caller needs
    void fnc_Clear_Profile();
    bool fnc_Fill_UserList();
    bool fnc_View_Master(std::int16_t key);
    bool fnc_View_Profile(std::int16_t key);
    bool fnc_View_Drive(std::int16_t key);
    ui::FillResult fnc_View_Applist(std::int16_t key);
    ui::FillResult fnc_View_DeviceTree(std::int16_t key);
    ui::FillResult fnc_View_PrinterList(std::int16_t key);
    ui::FillResult fnc_View_Environment(std::int16_t key);
    void fnc_Close_Profile();

    // The tab shown, from 1.
    int SelectedTab() const;
    // Shows the computer of that key as a step shows it: the window emptied, then, if the
    // computer is still in the ledger, its record, the list of the tab shown, and its drives.
    void ShowComputer(std::int16_t key);
    // The sheet of the computer of that key, as the print command prints it: the fields, check
    // boxes, capacities and the application and printer grids read again, then the sheet.
    void PrintSheet(std::int16_t key, print::PrintSurface& surface);
    // What the save reads from the controls.
    ProfileSave::Entries Entries() const;

    // events
    void TabStrip1_Click();
    void cmd_Prev_Click();
    void cmd_Next_Click();
    void cmb_Dat_DropDown(int index);
    void cmb_Dat_Click(int index);
    void List_User_Click();
    void tbx_Dat_GotFocus(int index);
    void tbx_Dat_LostFocus(int index);
    void Mnu_Update_Click();
    void Mnu_Pagelayout_Click();
    void Mnu_Print_Click();
    void Mnu_Close_Click();
    void Mnu_Edit_User_Click();
    void Mnu_Edit_Teble_Click(int index);

protected:
    void Form_Load() override;
    void Form_Resize() override;
    void showEvent(QShowEvent* e) override;

private:
    void connectEvents();
    void raisePage(int tab);
    // The list of tabs 3 to 6 (the others load nothing here).
    void loadListTab(int tab, std::int16_t key);
    void step(int position);
    void dateCheck(int index);

    bool m_opened = false; // shown once: from then on a resize is forced to the resize size
};
