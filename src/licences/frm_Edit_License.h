#pragma once

#include "platform/ui/Form.h"

#include <QString>

#include <cstdint>

class QAction;
class QLineEdit;
class QListWidget;
class QMenu;
class QMenuBar;

namespace ui {
class DropDownCombo;
class FlexGrid;
} // namespace ui

// Which purchased application sits on which computer: the purchased applications and the live
// computers in two lists, the assignments in a grid beside them, filtered by application and by
// location. An assignment is a plain record: nothing counts assignments against the number bought
// and none is ever refused for that; the number bought only shows beside the name.
//
// Each list shows a name and keeps the key of the chosen row in a hidden box beside it
// (tbx_LicenseKey, tbx_ComputerKey, and the filters' tbx_Application, tbx_Location); only the
// keys are written. Texts go into the statements as typed: a single quote breaks "新規".
//
// Modeless, over the main window (its size and place from the main window's globals). The three
// lists and the export show StandardErrorBox on a failure; a failing conversion or statement of
// "新規", "更新", "削除" or a grid click ends the run.
class frm_Edit_License : public ui::SingleForm<frm_Edit_License> {
    Q_OBJECT

public:
    frm_Edit_License();

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Mnu_Export;
    QAction* Mnu_Close;
    QMenu* Mnu_Edit;
    QAction* Mnu_AddRecord;
    QAction* Mnu_Update;
    QAction* Mnu_DeleteRecord;
    QMenu* Mnu_View;
    QAction* View_MSFlexGrid_License_assignment_Update;
    QMenu* Mnu_Managements;
    QAction* Add_ApplicationName;

    QListWidget* List_license;
    QLineEdit* tbx_LicenseName;
    QLineEdit* tbx_LicenseKey;
    QListWidget* List_ComuputerName;
    QLineEdit* tbx_ComputerName;
    QLineEdit* tbx_ComputerKey;
    QLineEdit* tbx_ProductID;
    QLineEdit* tbx_Licence_No;
    QLineEdit* tbx_Install_Key;
    ui::DropDownCombo* cmb_Payment_Type;
    ui::DropDownCombo* cmb_AssetType;
    QLineEdit* tbx_Purchase_Price;
    QLineEdit* tbx_Comment;
    ui::DropDownCombo* cmb_Application;
    QLineEdit* tbx_Application;
    ui::DropDownCombo* cmb_Location;
    QLineEdit* tbx_Location;
    ui::FlexGrid* FGrid_EditLicense;

    // True once the grid has had rows; a grid click is ignored before.
    bool GridReady = false;
    // the grid row painted as selected last, and the row now selected (0 for none)
    std::int16_t PreviousRow = 1;
    std::int16_t SelectedRow = 0;

    // Refills List_license with the purchased applications that have a name (frm_Add_License
    // calls it when its menu closes it). An empty register leaves the list as it stands.
    bool View_ApplicatinList();
    // Appends the live computers to List_ComuputerName; it does not empty the list first, so each
    // "一覧更新" lists them all once more. A computer name longer than 17 characters shows the
    // error box and ends the list there.
    bool View_ComputerNameList();
    // Refills the grid through the two filters (tbx_Application, tbx_Location; empty or 0 for
    // none).
    bool View_LicenseAssignment();
    // Empties the boxes of an assignment; the filters and the two form combos stay.
    void ClearAssignmentEntry();
    void ResetAssignmentSelection();
    // Paints columns 2 to the last of a row; the key and the running number keep their colour.
    void PaintAssignmentRow(std::int16_t row, std::int16_t qbColour);
    // The text of one field of an assignment, "" when there is no such assignment.
    QString GetAssignmentField(std::int16_t key, const QString& fieldName);

    // events
    void List_license_Click();
    void List_ComuputerName_Click();
    void cmb_Application_DropDown();
    void cmb_Application_Click();
    void cmb_Location_DropDown();
    void cmb_Location_Click();
    void cmb_Payment_Type_DropDown();
    void cmb_AssetType_DropDown();
    void FGrid_EditLicense_Click();
    void Mnu_AddRecord_Click();
    void Mnu_Update_Click();
    void Mnu_DeleteRecord_Click();
    void View_MSFlexGrid_License_assignment_Update_Click();
    void Add_ApplicationName_Click();
    void Mnu_Export_Click();
    void Mnu_Close_Click();

protected:
    void Form_Load() override;
    void Form_Resize() override;

private:
    void buildMenus();
    void buildControls();
    // The grid at its place beside the entry panel, sized from the window.
    void placeControls();
    void setMenus(bool add, bool update, bool remove);
    // After a click on either list: with both an application and a computer chosen, "新規".
    void offerAdd();
    // the filter box of a combo, the item data of its chosen row, then the grid again
    void filterChosen(ui::DropDownCombo& combo, QLineEdit& keyBox);

    QWidget* m_client = nullptr;
    QWidget* m_entry = nullptr;
    QWidget* m_filters = nullptr;
};
