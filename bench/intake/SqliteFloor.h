#pragma once

#include <QString>
#include <QStringList>

// The floor of the intake benchmark: a plain SQLite program (C API, prepared statements, one
// transaction) that reads the same inventory files and writes the same end result as the bulk
// read, the two computer rows with the field map's values and the four per-computer tables,
// without staging, without Jet text and without the recordset layer. Returns an empty string,
// or why it failed.
namespace bench {

QString FloorRead(const QString& ledgerPath, const QStringList& files);

// Every row of the six tables that a read writes, each value with its storage type, for
// comparing two ledgers.
QStringList DumpComputers(const QString& ledgerPath);

// The stricter floor: the rows that a read left in the seven tables it writes (staging
// included), copied from that ledger into a fresh one by prepared statements in one
// transaction, with the ledger's journal settings. No file is read. Returns an empty string, or
// why it failed.
QString CopyFloor(const QString& readLedger, const QString& freshLedger);

} // namespace bench
