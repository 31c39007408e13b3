#pragma once

#include "platform/ui/FlexGrid.h"

#include <QString>

#include <cstdint>

class QTreeWidget;
class QTreeWidgetItem;

// The four list pages of the computer profile: installed applications, printers and environment
// variables in grids of one shape, and the devices as a two-level tree. Display only. A computer
// without rows leaves the grid or tree as it stands, so it still shows the previous computer's
// list (and the printed sheet prints it): that is the ledger's behaviour and is kept.
namespace ProfileLists {

// One of the three grids: its page, table, and the heading and field of columns 1 to 3.
struct ListGrid {
    const char* gridName;
    const char* table;
    const char* headings[3];
    const char16_t* fields[3];
};

extern const ListGrid Applications; // MSGrid_Application, fnc_View_Applist
extern const ListGrid Printers;     // MSFlexGrid_Printer, fnc_View_PrinterList
extern const ListGrid Environment;  // MSFlexGrid_Environmental, fnc_View_Environment

// The grid as the window designs it, before any fill: four columns, one heading row and one
// empty row.
void DesignGrid(ui::FlexGrid& grid);

// Fills a grid with the computer's rows. NoRows leaves the grid untouched; a failure shows the
// error box and leaves the grid as far as it was filled.
ui::FillResult FillListGrid(ui::FlexGrid& grid, const ListGrid& list, std::int16_t key);

// The roles under which a tree node keeps its key and the key of its picture in ImageList1.
inline constexpr int NodeKeyRole = 0x0100; // Qt::UserRole
inline constexpr int ImageKeyRole = 0x0101;

// fnc_View_DeviceTree: a root for each category, a child for each device ("name provider
// version"), each with the category's picture. The same failure rules as the grids; a Null
// category fails the second pass, leaving the roots and the children found so far.
ui::FillResult FillDeviceTree(QTreeWidget& tree, std::int16_t key);

// The node of a key, or nullptr.
QTreeWidgetItem* FindNode(QTreeWidget& tree, const QString& key);

} // namespace ProfileLists
