#pragma once

#include <QString>

namespace db {
class Connection;
}

// Fills an empty ledger with an organisation's computers: locations, sections, divisions, users
// (a few of them retired), makers and models, and for each computer both of its rows with the
// values an inventory read and a hand-kept record leave behind. Everything goes in as Jet
// statements through the connection, in one transaction. The same seed gives the same ledger.
namespace LedgerGenerator {

void Generate(db::Connection& connection, int computers, unsigned seed = 20050401);

} // namespace LedgerGenerator
