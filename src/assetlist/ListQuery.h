#pragma once

// The query of the main list. gSetSQLVal is the public routine of the view-settings window
// (frm_SelectView); it needs no control of that window and works from the view globals alone,
// so it lives here, where the main window finds it before that window was ever opened.

// Rebuilds ListSql from OptDel, SelectNumber, SortKeyName and SortKeyDirection.
void gSetSQLVal();
