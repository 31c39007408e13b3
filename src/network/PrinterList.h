#pragma once

#include "platform/ui/FlexGrid.h"

// The cross table of printers and ports over the installed computers, from the printer rows
// that the inventory intake stores per computer: one column per port, in the order of the port
// names; above it the name of the port's first printer and the port; under it the computers that
// print to it, one row each, so one computer with two printers on a port stands there twice.
// Column 0 numbers every row from 0, the two heading rows included.
//
// Ports are compared as whole texts in the query's order, exactly: a port written with another
// case of letters makes a column of its own where the order puts it between. Printers without a
// port (they come first in that order) are skipped, yet counted: they can make the grid taller
// than its tallest column. The grid keeps one empty row below its tallest column.
//
// No printers: NoRows, and the grid stays as it was. A failure shows StandardErrorBox.
ui::FillResult View_PrinterList(ui::FlexGrid& grid);
