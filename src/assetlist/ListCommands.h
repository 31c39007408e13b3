#pragma once

class MainList;

// The commands of the main window that act on its list or on the selected computer: new record,
// delete, retire, search and refresh. Each works on the list's CurrentMainKey and grid and ends
// by refreshing the list from the current view (gSetSQLVal, fnc_View_PClist, MSFlexGrid_Main_ini),
// which leaves it without a selection. The menu items' enabled state goes through the list's
// SetMenuEnabled hook. The export is ListExport::ExportGrid over the same grid.
//
// Delete and retire are two different things: delete removes a computer and everything hanging
// on it for good; retire keeps all of it and only marks it removed with a date, so that it
// leaves the view of installed computers and shows in the view of removed ones.
namespace ListCommands {

// New record: two rows under the next key, the four codes and the removed flag 0. Does nothing,
// without a word, until a fill of the list has found a row (ListReady).
void Mnu_AddNew(MainList& list);

// Delete: the selected computer's rows in the eight tables that hold it, then a report of one
// line per table.
void Mnu_Delete(MainList& list);

// Retire: asks for the removal date, checks its form and marks the selected computer removed.
// No handler of its own: a failure of its recordset (a date the ledger refuses, 2005/02/31)
// ends the run through the event dispatcher.
void Mnu_ReplacePC(MainList& list);

// Search: refreshes the list and paints yellow every cell, the hidden key column included, whose
// text begins with the word, with exact case; "?", "*", "#" and "[...]" in the word are wildcards.
void Mnu_Search(MainList& list);

// Refresh: the list read again, no selection, and the three commands of a selection disabled.
void Mnu_ViewUpdate(MainList& list);

} // namespace ListCommands
