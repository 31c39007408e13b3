#pragma once

#include <QString>

#include <cstdint>
#include <functional>

namespace ui {
class FlexGrid;
}

// The list routines of the main window over its grid MSFlexGrid_Main: the column model, the fill
// from ListSql, the selection painting and the click. frm_Main owns one MainList over its grid;
// the windows that refresh the main list (the view settings, the inventory read) reach it through
// MainList::Instance().
class MainList {
public:
    // The three menu items whose enabled state the list changes, and the view-settings item
    // that a click enables.
    enum MenuItem { Mnu_Edit_profile, Mnu_Delete, Mnu_ReplacePC, Mnu_View_Select };

    explicit MainList(ui::FlexGrid& grid);
    ~MainList();
    MainList(const MainList&) = delete;
    MainList& operator=(const MainList&) = delete;

    // The list of the main window, or nullptr before it exists.
    static MainList* Instance();

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
    // Fills the grid from ListSql; true when at least one record was read.
    bool fnc_View_PClist();
    // Leaves the refreshed list without a selection.
    void MSFlexGrid_Main_ini();
    // Paints the cells of a row from column 1 on; a row below 1 does nothing.
    void PaintGridRow(std::int16_t row, std::int16_t qbColour);
    // The click on the grid: selects the row under the current cell.
    void MSFlexGrid_Main_Click();
};
