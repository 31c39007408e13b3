#pragma once

#include <QStringList>

namespace app {
class CommandLine;
}

// The ledger file commands of fenwold-admin.
namespace ledger {

// fenwold-admin new-ledger PATH: an empty ledger, never over a file. 0 written, 1 not.
int NewLedgerCommand(const QStringList& args);

// fenwold-admin backup [--ledger PATH] OUT: a consistent copy of a ledger that may be in use.
// 0 when the copy is complete; 1 when nothing was written (OUT exists, no ledger, a failure).
int BackupCommand(const QStringList& args);

// fenwold-admin check [--ledger PATH]: one line per kind of fault found. 0 all well, 2 faults
// found, 1 the file is no ledger or cannot be opened (said on standard error).
int CheckCommand(const QStringList& args);

} // namespace ledger
