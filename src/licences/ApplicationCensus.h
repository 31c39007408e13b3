#pragma once

#include "platform/ui/FlexGrid.h"

#include <QString>

#include <cstdint>
#include <utility>
#include <vector>

// What frm_List_Application computes, apart from the window: the census of application names
// over the live computers, the computers behind one name, and the file its export writes. The
// names are the inventory's own strings; nothing here looks at the licences bought or assigned.
namespace ApplicationCensus {

// Fills MSFlexGrid_Applications: a running number, the name, and how many rows of the live
// computers' application lists carry it (rows, not computers: a name listed twice on one computer
// counts 2). In the engine's order. Without a row the grid is left as it was (NoRows); a failure
// shows StandardErrorBox (Failed).
ui::FillResult FillCensusGrid(ui::FlexGrid& grid);

// The SELECT of the live computers that carry the application, narrowed to one location when
// location is above 0. The name is placed as it stands: a single quote in it breaks the
// statement.
QString ComputersSql(const QString& applicationName, std::int16_t location);

// Fills MSFlexGrid_User with the computers behind the name, each name and version once
// (DISTINCT), by computer name. An empty name does nothing (NoRows). Without a row the grid keeps
// what it showed (NoRows), so a location without such a computer leaves the former list on the
// screen; a failure shows StandardErrorBox (Failed).
ui::FillResult FillComputersGrid(ui::FlexGrid& grid, const QString& applicationName, std::int16_t location);

// The locations cmb_Location offers (those not deleted), by code: name and code. A Null name is
// an empty one.
std::vector<std::pair<QString, std::int16_t>> LocationChoices();

// The export of the computers' grid: one line with the application's name as the name box shows
// it, then the grid in the list-to-CSV form. Throws vb::VbError when the file cannot be written.
void WriteComputers(const QString& applicationName, const ui::FlexGrid& grid, const QString& path);

} // namespace ApplicationCensus
