#pragma once

#include "foundation/AdminExport.h"

// The lists of the licence windows for fenwold-admin export, each filled offscreen by its
// window's own routine and written by its window's own export routine:
//
// export licences OUT
//     frm_Edit_License's assignments as the window opens (no filter), as its "書き出し" writes
//     them. No assignment gives an empty file.
AdminExport::List LicencesExport();

// export census OUT
//     frm_List_Application's census grid as the window opens, in the list-to-CSV form (the window
//     itself has no export of this grid). With no application at all the grid keeps its design
//     size, two empty rows of two columns.
AdminExport::List CensusExport();

// export census-computers --application NAME [--location CODE] OUT
//     The computers behind one census row, as a click on the row named NAME shows them (and, with
//     --location, the location CODE then chosen in cmb_Location), written as the window's
//     "書き出し" writes them: the name line first. As in the window, a location without such a
//     computer leaves the list of all locations. NAME must be a row of the census (compared
//     without case, as the ledger compares names), CODE a location the window offers.
AdminExport::List CensusComputersExport();
