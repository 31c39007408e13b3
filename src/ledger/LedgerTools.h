#pragma once

#include <QString>
#include <QStringList>

// Care of the ledger file as a whole, below the level of its statements: a copy of a ledger in
// use, and a check of the file and of the ledger's own consistency. Both work on the file
// directly with SQLite, so that they also serve a ledger the program cannot open.
namespace ledger {

// Copies the ledger at from into a new file to with SQLite's online backup: a consistent copy of
// what was committed at one moment, while the window or a read may be writing. The copy is made
// under a temporary name and linked into place, so to is never overwritten and never half
// written. Returns an empty string on success, else why nothing was written.
QString BackupLedger(const QString& from, const QString& to);

// What a check found.
struct CheckReport {
    bool opened = false; // false: the file is no ledger or cannot be opened (error says why)
    QString error;
    QStringList faults; // one line per kind of fault, with its table, a count and the first keys
};

// SQLite's integrity check, then the ledger's own consistency: inventory and administrative rows
// that do not pair, per-computer rows whose Key names no computer, codes that name no master row,
// keys beyond the 16-bit range. Read only.
CheckReport CheckLedger(const QString& path);

} // namespace ledger
