#pragma once

#include "platform/ui/Form.h"

#include <QString>

#include <array>

class QAction;
class QComboBox;
class QGroupBox;
class QLabel;
class QListWidget;
class QMenu;
class QMenuBar;
class QRadioButton;

namespace ui {
class StatusBar;
}

// The view settings window: edits the eight saved views of the main list (which columns are
// shown, up to three sort keys, installed or removed computers) and switches between them. It is
// the only writer of the views' sections in DB.ini. Every change goes through the view globals
// of Mdl_gData: the Read routines take the controls into them, the Show routines put them back
// into the controls. Applying or switching a view fills the main list again at once.
//
// Opened modally from the main window; its size is fixed. Mnu_Update stays disabled until a
// control changes, and works as the window's dirty mark: a switch drops unsaved changes.
class frm_SelectView : public ui::SingleForm<frm_SelectView> {
    Q_OBJECT

public:
    frm_SelectView();

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Mnu_Close;
    QMenu* Mnu_Edit;
    QAction* Mnu_SelectAll;
    QAction* Mnu_deSelect_All;
    QAction* Mnu_Update;
    QMenu* Mnu_View;
    QAction* Mnu_SetNameStr;
    std::array<QAction*, 8> Mnu_ViewSelect{};

    QListWidget* Lst_Select;
    QGroupBox* Frame1;
    std::array<QRadioButton*, 2> OptDel{};
    QLabel* Label1;
    QLabel* Label2;
    QLabel* Label3;
    std::array<QComboBox*, 3> cmb_Order{};
    // The field name of each row's sort key, beside its combo. It changes only through a pick in
    // the combo being applied, so that a row the user did not touch keeps its key.
    std::array<QString, 3> cmb_key;
    std::array<QGroupBox*, 3> Frm_ASC_DESC{};
    // 2i ascending and 2i+1 descending of sort row i
    std::array<QRadioButton*, 6> Opt_ASC_DESC{};
    ui::StatusBar* StatusBar1;

    // controls -> view globals
    void ReadSelectedColumns();
    void ReadOptDel();
    void ReadSortKeys();
    // view globals -> controls
    void ShowSelectedColumns();
    void ShowOptDel();
    void ShowSortKeys();
    void ShowSortDirections();
    void ShowViewMenu();

    // events
    void Lst_Select_Click();
    void OptDel_Click(int index);
    void Opt_ASC_DESC_Click(int index);
    void cmb_Order_Click(int index);
    void cmb_Order_DropDown(int index);
    void Mnu_Close_Click();
    void Mnu_SelectAll_Click();
    void Mnu_deSelect_All_Click();
    void Mnu_Update_Click();
    void Mnu_SetNameStr_Click();
    void Mnu_ViewSelect_Click(int index);

protected:
    void Form_Load() override;

private:
    void buildMenus();
    void buildControls();
    // the main list filled again from ListSql, when the main window has its list
    static void refreshMainList();
};
