#pragma once

#include "platform/ui/FlexGrid.h"

// The data routines of the network device window, each over the grid it fills so that the
// companion program fills a hidden grid with the same code:
// - the register of devices that are not computers of the ledger (tbl_NetworkUnit), shown in
//   the upper grid, every value a plain text (location, user and maker by name, no codes);
// - the merged address list (tbl_NetworkList): the installed computers and the devices in one
//   table, sorted by the hexadecimal key of the address. It is a cache with one writer, the
//   rebuild, and goes stale as soon as a computer or a device changes.

// Fills the register's grid from tbl_NetworkUnit in the order of the address key: the key in
// column 0, then location, user, name, work group, address, MAC address, maker, model, type,
// serial, ID and password. No devices: no rows and no columns. A failure shows StandardErrorBox.
ui::FillResult fnc_View_NClist(ui::FlexGrid& grid);

// Fills the address list's grid from tbl_NetworkList in the order of the address key: a running
// number from 1 in column 0, then the register's first ten columns (never the ID or the
// password). No rows: no rows and no columns. A failure shows StandardErrorBox.
ui::FillResult View_NetworkList(ui::FlexGrid& grid);

// Empties tbl_NetworkList and fills it again: the installed computers whose masters all have
// rows, computers first, then every device, each row keyed by its place in the rebuild, a
// missing value stored as one blank. Nothing is escaped: a quote in a name makes that row's
// INSERT fail, and the row is lost without a word, as every refused statement here.
//
// The rebuild is one transaction, so a rebuild that cannot be written leaves the previous list
// whole: false after StandardErrorBox has said why.
bool RebuildNetworkList();
