#pragma once

#include <QString>

namespace app {
class CommandLine;
}

// The one way in which every fenwold-admin command opens and closes the ledger.
namespace AdminLedger {

// Opens the command's ledger (its LedgerPath()) into DbConnection. A missing file, a file the
// engine refuses and a database without the ledger's tables are said on standard error (an
// engine error as StandardErrorBox shows it) and give false, with no connection left open.
bool Open(const app::CommandLine& command);

// Closes and releases DbConnection.
void Close();

} // namespace AdminLedger
