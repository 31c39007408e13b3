#pragma once

#include "foundation/AdminExport.h"

#include <vector>

// fenwold-admin export mail | mail-addressbook | mail-beatbox [--location CODE] OUT
//
// Writes the mail register to OUT as its three export commands write it: the full list, the
// address book for Outlook Express, the beat-box list. The register is the one frm_Edit_Mail shows
// when it opens, or, with --location, after that location was chosen in its location combo (one of
// the locations in use; 0 is the combo's blank entry, all locations). A register without accounts
// writes an empty file (the address book its heading line).
std::vector<AdminExport::List> MailExports();
