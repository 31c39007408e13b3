#include "assetlist/MainList.h"

#include "platform/ui/FlexGrid.h"

namespace {
MainList* g_instance = nullptr;
} // namespace

MainList::MainList(ui::FlexGrid& grid) : MSFlexGrid_Main(grid) { g_instance = this; }

MainList::~MainList()
{
    if (g_instance == this)
        g_instance = nullptr;
}

MainList* MainList::Instance() { return g_instance; }

// Filled in with the main list.
void MainList::FGridViewSelect_ini() {}
bool MainList::fnc_View_PClist() { return false; }
void MainList::MSFlexGrid_Main_ini() {}
void MainList::PaintGridRow(std::int16_t, std::int16_t) {}
void MainList::MSFlexGrid_Main_Click() {}
