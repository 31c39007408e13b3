#pragma once

#include <QStringList>

// fenwold-admin sheet [--ledger PATH] MAINKEY... OUT.pdf
//
// The printed sheets of the given computers, one after another, in one PDF file: each computer
// loaded into a profile window that is never shown (as the window opens on it), and drawn by the
// window's own print routine on A4 paper with 5 mm edges. The fonts are embedded, so the file
// reads the same anywhere. Prints "OUT: N sheets, P pages" to standard output.
//
// Returns 0 when OUT was written; 1, with the reason on standard error and OUT untouched, on a
// usage error, a missing or unreadable ledger, a key that names no computer, or an error box
// that the loading of a computer showed (written to standard error as the box would show it).
int SheetCommand(const QStringList& args);
