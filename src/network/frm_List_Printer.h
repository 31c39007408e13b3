#pragma once

#include "platform/ui/Form.h"

class QAction;
class QMenu;
class QMenuBar;

namespace ui {
class FlexGrid;
}

// Which computers print to which device: the printer rows of all installed computers as a cross
// table, one column per port (View_PrinterList). Read-only; the grid has no click. "一覧更新"
// clears the grid and fills it again; "書き出し" writes it by the list-to-CSV convention.
//
// Modeless, resizable, opening over the main window.
class frm_List_Printer : public ui::SingleForm<frm_List_Printer> {
    Q_OBJECT

public:
    frm_List_Printer();

    // controls
    QMenuBar* MenuBar;
    QMenu* Mnu_File;
    QAction* Mnu_Export_CSV;
    QAction* Mnu_Close;
    QMenu* Mnu_Edit;
    QAction* Mnu_List_Update;
    ui::FlexGrid* MSFlexGrid_Printer;

    // events
    void Mnu_Export_CSV_Click();
    void Mnu_List_Update_Click();
    void Mnu_Close_Click();

protected:
    void Form_Load() override;
    void Form_Resize() override;
};
