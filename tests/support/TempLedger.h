#pragma once

#include "support/TempDir.h"

#include "platform/db/Connection.h"

#include <QString>
#include <QStringList>

#include <memory>

// Every row of a query on the ledger file at path, opened read-only for the query alone; each row
// as in TempLedger::rows.
QStringList LedgerRows(const QString& path, const QString& sql);
// Every row of every table of that ledger, in insertion order, each as "table:row".
QStringList LedgerDump(const QString& path);

// A fresh empty ledger (pcdb.mdb) in its own temporary folder, made the way fenwold-admin makes
// one, with an open connection and plain-SQL helpers for assertions.
class TempLedger {
public:
    TempLedger();
    ~TempLedger();

    const TempDir& dir() const { return m_dir; }
    QString folder() const { return m_dir.path(); }
    QString path() const { return m_dir.file(QStringLiteral("pcdb.mdb")); }
    db::Connection& connection();
    void closeConnection();

    // SQLite text, straight to the file (no Jet rewrite); for setting up and checking.
    void exec(const QString& sql);
    // Every row of a query, each as its values' text joined by "|", Null as "NULL".
    QStringList rows(const QString& sql);
    // The first value of the first row as text ("NULL" for Null, "" when there is no row).
    QString value(const QString& sql);
    // A computer's row of tbl_Pclist or tbl_Computer_List as "column=value" entries in column
    // order; none when it has no row.
    QStringList fields(const QString& table, int mainKey);
    // The rows of a table that meet an SQLite condition.
    int count(const QString& table, const QString& where = QStringLiteral("1"));
    // A row of a master table with code, name, comment and flag ("1": retired).
    void master(const QString& table, int code, const QString& name, const QString& flag = QStringLiteral("0"));
    void user(int code, const QString& name, const QString& flag = QStringLiteral("0"), int section = 0, int division = 0);
    // A computer with its two rows on the code-0 masters; pclist and computerList are
    // "column = value, ..." lists for an UPDATE of each table, empty for none.
    void computer(int key, int deleted = 0, int userCode = 0, const QString& pclist = {}, const QString& computerList = {});

private:
    TempDir m_dir;
    std::unique_ptr<db::Connection> m_conn;
};
