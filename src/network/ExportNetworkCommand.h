#pragma once

#include "foundation/AdminExport.h"

// fenwold-admin export network [--ledger PATH] [--ini PATH] [--rebuild] OUT
//
// The address list of the network device window as its "CSV書き出し" writes it: tbl_NetworkList
// as the last rebuild left it, or, with --rebuild, after a rebuild as "一覧更新" makes it (which
// writes the ledger). The ID and password of a device never come into it.
AdminExport::List NetworkListExport();

// fenwold-admin export printers [--ledger PATH] [--ini PATH] OUT
//
// The printer cross table as the printer window shows it after opening, written as its "書き出し"
// writes it. No printers: an empty file.
AdminExport::List PrinterListExport();
