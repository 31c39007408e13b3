#pragma once

// The query of the main list. gSetSQLVal is the public routine of the view-settings window
// (frm_SelectView); it needs no control of that window and works from the view globals alone,
// so it lives here, where the main window finds it before that window was ever opened.

#include <cstdint>

// Rebuilds ListSql from OptDel, SelectNumber, SortKeyName and SortKeyDirection.
void gSetSQLVal();

// The view a start shows: "SectionNumber" of DB.ini's [Main], 0 when absent. Text that is no
// number raises the conversion error.
std::int16_t SavedSectionNumber();

// Loads the saved view numbered SectionNumber into the view globals and rebuilds ListSql from
// them: what the main window's load and a switch of view both do before the list is filled.
void LoadView();
