#pragma once

#include "platform/db/Ado.h"
#include "platform/db/JetSql.h"
#include "platform/db/Statement.h"
#include "platform/vb/VbError.h"

#include <QHash>
#include <QString>

#include <memory>
#include <optional>

struct sqlite3;

namespace db {

class StatementCache;

// An ADO connection over an SQLite ledger file. The connection string keeps ADO's form; only its
// "Data Source=" part is read. Statements are Jet text, rewritten by JetSql. Every failure is a
// vb::VbError with the number and description Jet's data access gave.
//
// What a caller can rely on:
// - Outside a transaction each statement commits by itself, as Jet did: when Execute returns,
//   the change is on disk (rollback journal, synchronous=FULL). Between commits pcdb.mdb alone
//   is the whole ledger; no second file holds committed work.
// - A statement that the ledger refuses (a duplicate key, letters in a number, a date that does
//   not exist) fails alone: inside a transaction only that statement is undone.
// - A failure of the engine itself (a full disk, an I/O error, a damaged page) inside a
//   transaction loses the whole transaction: it is rolled back at once, and every later
//   statement and the commit of that transaction fail with the first error, so that nothing of
//   it is written and the commit says so.
// - A commit that fails leaves nothing of its transaction behind and throws; nothing is written
//   twice, half, or silently.
// - Another process holding the file waits up to the busy timeout before "in use" is reported.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    QString ConnectionString;

    // Opens the file named by "Data Source=" (connectionString, or ConnectionString when empty).
    // The file must exist: nothing is created here.
    void Open(const QString& connectionString = QString());
    void Close();
    ObjectState State() const { return m_db ? adStateOpen : adStateClosed; }
    QString DataSource() const { return m_path; }

    // Runs one Jet statement; returns the number of rows it changed.
    long Execute(const QString& jetSql);

    // ADO's transactions; nested calls nest. BeginTrans returns the new level.
    long BeginTrans();
    void CommitTrans();
    void RollbackTrans();
    long TransactionLevel() const { return m_level; }

    // For the recordset: a prepared statement for a parsed Jet statement. With withRowids, an
    // updatable SELECT also returns the rowid of each source table in hidden leading columns.
    Statement prepare(const JetStatement& st, bool withRowids);
    // The parse of a statement for running. SELECT texts come back again and again (the lookups
    // of the inventory read, the lists), so their parses are kept.
    JetStatement parse(const QString& jetSql);
    Statement prepareSql(const QString& sqliteText);
    // Whether running this SQLite statement would start a trigger: its program, as EXPLAIN
    // shows it, calls one (a trigger's WHEN is decided later, so one that might fire counts).
    // A statement that cannot be prepared answers true.
    bool runsTriggers(const QString& sqliteText);
    sqlite3* handle() const { return m_db; }
    // Throws when closed, or when the open transaction was lost to a failure of the engine.
    void requireOpen() const;

    // The error for a failed step with this extended result code, recording its effect on the
    // open transaction (see above). Every failed statement of the layer goes through here.
    vb::VbError failure(int extendedCode);
    // The failure that lost the open transaction, if one did.
    const std::optional<vb::VbError>& LostTransaction() const { return m_lost; }

    static constexpr int BusyTimeoutMilliseconds = 5000;

private:
    friend class Transaction;
    struct LevelEnd;
    void run(const char* sql);
    // Runs the outermost commit; on failure rolls everything back and throws.
    void commitOutermost(const char* sql);
    // A transaction scope ended; the last one clears a lost transaction.
    void scopeEnded();
    bool inTransaction() const { return m_level > 0 || m_savepoints > 0; }

    sqlite3* m_db = nullptr;
    QString m_path;
    std::unique_ptr<StatementCache> m_cache;
    // SELECT shape -> the same with the rowid columns, or an empty text when it is not updatable
    QHash<QString, QString> m_rowidShape;
    QHash<QString, JetStatement> m_selects;
    QHash<QString, std::vector<QString>> m_rowidTables;
    long m_level = 0;
    int m_savepoints = 0;
    std::optional<vb::VbError> m_lost;
};

// A nested transaction for a run of statements that must stand or fall together, as a savepoint
// so that it works inside and outside BeginTrans. Rolled back unless committed; Commit throws
// when the transaction could not be written (then nothing of it is in the ledger).
class Transaction {
public:
    explicit Transaction(Connection& c);
    ~Transaction();
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void Commit();

private:
    Connection& m_conn;
    QByteArray m_name;
    bool m_done = false;
};

// The data source path of an ADO connection string ("...;Data Source=C:\x\pcdb.mdb;...").
QString DataSourceOf(const QString& connectionString);

} // namespace db
