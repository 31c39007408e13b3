#pragma once

#include "platform/db/Ado.h"
#include "platform/db/JetSql.h"
#include "platform/db/Statement.h"

#include <QHash>
#include <QString>

#include <memory>

struct sqlite3;

namespace db {

class StatementCache;

// An ADO connection over an SQLite ledger file. The connection string keeps ADO's form; only its
// "Data Source=" part is read. Statements are Jet text, rewritten by JetSql. Every failure is a
// vb::VbError with the number and description Jet's data access gave.
//
// Journal: WAL with synchronous=NORMAL, so that each statement commits by itself (as Jet did
// without a transaction) and a killed run keeps what was written.
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
    sqlite3* handle() const { return m_db; }
    void requireOpen() const;

private:
    void run(const char* sql);

    sqlite3* m_db = nullptr;
    QString m_path;
    std::unique_ptr<StatementCache> m_cache;
    // SELECT shape -> the same with the rowid columns, or an empty text when it is not updatable
    QHash<QString, QString> m_rowidShape;
    QHash<QString, JetStatement> m_selects;
    QHash<QString, std::vector<QString>> m_rowidTables;
    long m_level = 0;
};

// A nested transaction for a run of statements that must stand or fall together, as a savepoint
// so that it works inside and outside BeginTrans. Rolled back unless committed.
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
