#pragma once

#include <QByteArray>
#include <QString>

// The empty ledger file: the schema text that is compiled into the companion program, and the
// routine that writes a new pcdb.mdb from it.
namespace ledger {

// The text of ledger/schema.sql as it was at build time.
QByteArray SchemaSql();

// Writes a new, empty ledger at path. Returns an empty string on success, or a message saying
// why nothing was written: the file exists already (it is never overwritten), or the folder
// cannot take it.
QString CreateLedger(const QString& path);

} // namespace ledger
