#pragma once

#include <QStringList>

// fenwold-admin export-list [--ledger PATH] [--ini PATH] [--view N] OUT
//
// Writes the main list to OUT the way the main window's "CSV書き出し" writes it, without a window
// and without a dialog. The list is the one the main window shows when it starts: the saved view
// that SectionNumber names in the settings file (DB.ini beside the program, or the file of
// --ini), or view N (0 to 7) when --view is given, over the ledger PATH or pcdb.mdb beside the
// program. OUT is used as given: no ".csv" is added.
//
// The list is filled into a grid widget that is never shown, so a QApplication must exist (the
// companion program makes one on the offscreen platform). Returns 0 when the file was written,
// an empty one for a list without rows; 1 on a usage error, a missing ledger, or a failure that
// the main window would show in its error box, which goes to standard error with its number and
// description through the console dialogs.
int ExportListCommand(const QStringList& args);
