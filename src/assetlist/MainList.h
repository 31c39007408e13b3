#pragma once

#include "platform/ui/FlexGrid.h"

#include <QString>

#include <cstdint>
#include <functional>

// The list routines of the main window over its grid MSFlexGrid_Main: the column model, the fill
// from ListSql, the selection painting and the click. frm_Main owns one MainList over its grid;
// the windows that refill the main list (the view settings, the inventory read) reach it through
// the RefillMainList hook of Mdl_gData.
class MainList {
public:
    // The three menu items whose enabled state the list changes, and the view-settings item
    // that a click enables.
    enum MenuItem { Mnu_Edit_profile, Mnu_Delete, Mnu_ReplacePC, Mnu_View_Select };

    explicit MainList(ui::FlexGrid& grid);
    ~MainList();
    MainList(const MainList&) = delete;
    MainList& operator=(const MainList&) = delete;

    ui::FlexGrid& MSFlexGrid_Main;

    // members of frm_Main
    bool ListReady = false;
    std::int16_t PreviousRow = 0;
    std::int16_t CurrentRow = 0;
    std::int16_t CurrentMainKey = 0;

    // Hook: frm_Main sets its menu items' enabled state. Unset, nothing happens.
    std::function<void(MenuItem, bool)> SetMenuEnabled;

    // Fills ColumnTable with the 76 columns a view can show and sets ColumnCount.
    void FGridViewSelect_ini();
    // Fills the grid from ListSql. The system's routine answers True when at least one record
    // was read; NoRows leaves the grid without rows or columns, Failed has shown the error box
    // and leaves the grid hidden.
    ui::FillResult fnc_View_PClist();
    // The list of the view numbered SectionNumber as the main window's load shows it: the column
    // model, the view's settings and ListSql, then the fill.
    ui::FillResult ShowView();
    // Leaves the refreshed list without a selection.
    void MSFlexGrid_Main_ini();
    // Paints the cells of a row from column 1 on; a row below 1 does nothing.
    void PaintGridRow(std::int16_t row, std::int16_t qbColour);
    // The click on the grid: selects the row under the current cell.
    void MSFlexGrid_Main_Click();
};
