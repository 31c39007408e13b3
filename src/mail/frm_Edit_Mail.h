#pragma once

#include "mail/MailList.h"
#include "platform/ui/Form.h"

#include <array>
#include <memory>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;

namespace ui {
class DropDownCombo;
class FlexGrid;
} // namespace ui

// The mail register: one row per mail account, with the user and computer it belongs to, the
// beat-box login, the mail address, servers and mail box login (passwords in clear, as the ledger
// keeps them). The eight boxes edit the selected account; the user and the computer change only
// when one is chosen in its combo (its key box is emptied by a click on the grid). The location
// combo filters the grid. A new account is inserted blank with user 0 and computer 0, and shows
// only when the ledger has both. The three exports write the grid as it stands.
//
// Modal, resizable, opening over the main window; the grid takes the window's size below the edit
// fields. The grid fill shows StandardErrorBox on a failure; add, update, delete and the grid click
// have no handler, and a failure there ends the run. The exports fail in silence.
class frm_Edit_Mail : public ui::SingleForm<frm_Edit_Mail> {
    Q_OBJECT

public:
    frm_Edit_Mail();
    ~frm_Edit_Mail() override;

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Mnu_Export;
    QAction* Mnu_Export_OE;
    QAction* Mnu_Export_beat;
    QAction* Mnu_Close;
    QMenu* Mnu_Edit;
    QAction* Mnu_AddRecord;
    QAction* Mnu_Update;
    QAction* Mnu_Delete;
    ui::FlexGrid* MSFlexGrid_Mail;
    std::array<QLineEdit*, 8> tbx_tbl_Mail{};
    std::array<QLabel*, 8> lbr_tbl_Mail{};
    ui::DropDownCombo* cmb_Location;
    QLineEdit* tbx_Location;
    ui::DropDownCombo* cmb_Computer;
    QLineEdit* tbx_Computer;
    ui::DropDownCombo* cmb_User;
    QLineEdit* tbx_User;

    // the grid's routines and the selection (GridReady, PreviousRow, SelectedRow)
    MailList& List() { return *m_list; }

    // events
    void MSFlexGrid_Mail_Click();
    void cmb_Location_DropDown();
    void cmb_Location_Click();
    void cmb_Computer_DropDown();
    void cmb_Computer_Click();
    void cmb_User_DropDown();
    void cmb_User_Click();
    void Mnu_AddRecord_Click();
    void Mnu_Update_Click();
    void Mnu_Delete_Click();
    void Mnu_Export_Click();
    void Mnu_Export_OE_Click();
    void Mnu_Export_beat_Click();
    void Mnu_Close_Click();

protected:
    void Form_Load() override;
    void Form_Resize() override;

private:
    void buildMenus();
    void buildControls();
    // Empties the eight boxes, the computer and user combos' texts and their key boxes.
    void ClearMailEntry();
    // 新規 on; 更新 and 削除 off.
    void menusAfterChange();
    // The location filter as the location box holds it: 0 when empty.
    std::int16_t locationFilter() const;
    // The key of the selected row (hidden column 1); empty when there is none.
    QString selectedKey() const;

    QWidget* m_client = nullptr;
    QWidget* m_fields = nullptr;
    std::unique_ptr<MailList> m_list;
};
