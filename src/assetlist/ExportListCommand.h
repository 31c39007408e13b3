#pragma once

#include "foundation/AdminExport.h"

// fenwold-admin export main [--ledger PATH] [--ini PATH] [--view N] OUT, also named export-list.
//
// Writes the main list to OUT the way the main window's "CSV書き出し" writes it, without a window
// and without a dialog. The list is the one the main window shows when it starts: the saved view
// that SectionNumber names in the settings file (DB.ini beside the program, or the file of
// --ini), or view N (0 to 7) when --view is given. A list without rows writes an empty file; a
// failure that the main window would show in its error box goes to standard error with its
// number and description.
AdminExport::List MainListExport();
