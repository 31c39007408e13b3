#pragma once

#include <QStringList>

// fenwold-admin read [--english] [--ledger PATH] FILE...
//
// Reads inventory files into a ledger without a window, each file a new computer, in the given
// order, with the Japanese reader or with --english the English one. The ledger is PATH, or
// pcdb.mdb beside the program. Prints one line per file (its new MainKey, or why it was
// refused) and a summary to standard output; a file's line comes only after the commit that holds
// it. Returns 0 when every file was read, 2 when at least one was refused, 1 on a usage error, a
// ledger that is missing or cannot be opened, or a write to the ledger that failed (the read
// stops there; the files whose batch was lost are said not read, and the error is on stderr).
int ReadCommand(const QStringList& args);
