#include "ledger/LedgerTools.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QThread>

#include <sqlite3.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <memory>

namespace ledger {

namespace {

struct CloseDb {
    void operator()(sqlite3* db) const { sqlite3_close_v2(db); }
};
using Db = std::unique_ptr<sqlite3, CloseDb>;

constexpr int kBusyMilliseconds = 5000;

QString errorOf(sqlite3* db, int rc) { return QString::fromUtf8(db ? sqlite3_errmsg(db) : sqlite3_errstr(rc)); }

Db openFile(const QString& path, int flags, QString& error)
{
    sqlite3* raw = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &raw, flags, nullptr);
    Db db(raw);
    if (rc != SQLITE_OK) {
        error = errorOf(raw, rc);
        return nullptr;
    }
    sqlite3_extended_result_codes(raw, 1);
    sqlite3_busy_timeout(raw, kBusyMilliseconds);
    return db;
}

// Runs a query and hands each row's first column to onRow (as text); the SQLite error text, or
// an empty string.
template <typename F> QString eachRow(sqlite3* db, const char* sql, F&& onRow)
{
    sqlite3_stmt* st = nullptr;
    int rc = sqlite3_prepare_v2(db, sql, -1, &st, nullptr);
    if (rc != SQLITE_OK)
        return errorOf(db, rc);
    while ((rc = sqlite3_step(st)) == SQLITE_ROW)
        onRow(QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, 0))));
    sqlite3_finalize(st);
    return rc == SQLITE_DONE ? QString() : errorOf(db, rc);
}

// Whether the ledger's central table is there: tells a ledger from another SQLite file. Fails
// on a file that is not SQLite at all.
QString requireLedger(sqlite3* db)
{
    bool found = false;
    const QString error = eachRow(db, "SELECT name FROM sqlite_master WHERE type = 'table' AND name = 'tbl_Computer_List'",
                                  [&](const QString&) { found = true; });
    if (!error.isEmpty())
        return error;
    return found ? QString() : QStringLiteral("no table tbl_Computer_List: not a ledger");
}

} // namespace

QString BackupLedger(const QString& from, const QString& to)
{
    if (QFileInfo::exists(to))
        return QStringLiteral("%1 exists already; a backup never overwrites a file.").arg(to);
    if (!QFileInfo(from).isFile())
        return QStringLiteral("no ledger at %1").arg(from);
    QString error;
    Db source = openFile(from, SQLITE_OPEN_READONLY, error);
    if (source)
        error = requireLedger(source.get());
    if (!error.isEmpty())
        return QStringLiteral("cannot read %1: %2").arg(from, error);

    const QString temp = to + QStringLiteral(".part-") + QString::number(::getpid());
    QFile::remove(temp);
    {
        Db copy = openFile(temp, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, error);
        if (copy) {
            sqlite3_backup* b = sqlite3_backup_init(copy.get(), "main", source.get(), "main");
            if (!b) {
                error = errorOf(copy.get(), sqlite3_errcode(copy.get()));
            } else {
                // All pages in one step: one read lock over the whole copy, so it shows one
                // moment. A writer that holds the file longer than the busy timeout makes it
                // wait and try again.
                int rc;
                int tries = 0;
                while ((rc = sqlite3_backup_step(b, -1)) == SQLITE_BUSY || rc == SQLITE_LOCKED) {
                    if (++tries > 50)
                        break;
                    QThread::msleep(100);
                }
                sqlite3_backup_finish(b);
                if (rc != SQLITE_DONE)
                    error = errorOf(copy.get(), sqlite3_errcode(copy.get()));
            }
        }
        // The copy is one file on its own, whatever journal the source used, and it must read
        // back whole before it takes the name.
        if (error.isEmpty() && sqlite3_exec(copy.get(), "PRAGMA journal_mode = DELETE", nullptr, nullptr, nullptr) != SQLITE_OK)
            error = errorOf(copy.get(), sqlite3_errcode(copy.get()));
        if (error.isEmpty()) {
            QString check;
            const QString e = eachRow(copy.get(), "PRAGMA quick_check", [&](const QString& row) { check = row; });
            if (!e.isEmpty() || check != QLatin1String("ok"))
                error = e.isEmpty() ? check : e;
        }
    }
    if (error.isEmpty() && ::link(QFile::encodeName(temp).constData(), QFile::encodeName(to).constData()) != 0)
        error = errno == EEXIST ? QStringLiteral("%1 exists already; a backup never overwrites a file.").arg(to)
                                : QString::fromLocal8Bit(std::strerror(errno));
    QFile::remove(temp);
    QFile::remove(temp + QStringLiteral("-journal"));
    return error.isEmpty() ? QString() : QStringLiteral("cannot write %1: %2").arg(to, error);
}

namespace {

// One consistency rule: a query for the keys of the rows that break it.
struct Probe {
    const char* table;
    const char* fault; // what is wrong with each row found
    const char* keyName;
    const char* sql;
};

#define COMPUTER_KEYS "(SELECT MainKey FROM tbl_Computer_List)"
#define ORPHANS(table)                                                                                                                     \
    {                                                                                                                                      \
        table, "rows whose Key names no computer", "Key",                                                                                  \
            "SELECT \"Key\" FROM " table " WHERE \"Key\" NOT IN " COMPUTER_KEYS " ORDER BY 1"                                              \
    }
#define UNKNOWN_CODE(table, key, code, master)                                                                                             \
    {                                                                                                                                      \
        table, "rows whose " code " names no row of " master, key,                                                                         \
            "SELECT " key " FROM " table " WHERE " code " IS NOT NULL AND " code " NOT IN (SELECT " code " FROM " master ") ORDER BY 1"    \
    }
#define WIDE_KEY(table, key)                                                                                                               \
    {                                                                                                                                      \
        table, "keys beyond -32768 to 32767", key,                                                                                         \
            "SELECT \"" key "\" FROM " table " WHERE \"" key "\" NOT BETWEEN -32768 AND 32767 ORDER BY 1"                                  \
    }

const Probe kProbes[] = {
    {"tbl_Pclist", "rows without their tbl_Computer_List row", "MainKey",
     "SELECT MainKey FROM tbl_Pclist WHERE MainKey NOT IN " COMPUTER_KEYS " ORDER BY 1"},
    {"tbl_Computer_List", "rows without their tbl_Pclist row", "MainKey",
     "SELECT MainKey FROM tbl_Computer_List WHERE MainKey NOT IN (SELECT MainKey FROM tbl_Pclist) ORDER BY 1"},
    ORPHANS("tbl_ApplicationsList"),
    ORPHANS("tbl_Device_Management"),
    ORPHANS("tbl_Printer_Management"),
    ORPHANS("tbl_Environmental"),
    UNKNOWN_CODE("tbl_Computer_List", "MainKey", "Location_Code", "tbl_Location"),
    UNKNOWN_CODE("tbl_Computer_List", "MainKey", "User_Code", "tbl_User"),
    UNKNOWN_CODE("tbl_Computer_List", "MainKey", "Manufacturer_Code", "tbl_Manufacturer"),
    UNKNOWN_CODE("tbl_Computer_List", "MainKey", "Model_Code", "tbl_Model"),
    UNKNOWN_CODE("tbl_User", "User_Code", "Section_Code", "tbl_Section"),
    UNKNOWN_CODE("tbl_User", "User_Code", "Division_Code", "tbl_Division"),
    WIDE_KEY("tbl_Computer_List", "MainKey"),
    WIDE_KEY("tbl_Pclist", "MainKey"),
    WIDE_KEY("tbl_ApplicationsList", "Key"),
    WIDE_KEY("tbl_Device_Management", "Key"),
    WIDE_KEY("tbl_Printer_Management", "Key"),
    WIDE_KEY("tbl_Environmental", "Key"),
    WIDE_KEY("tbl_Section", "Section_Code"),
    WIDE_KEY("tbl_Division", "Division_Code"),
    WIDE_KEY("tbl_Location", "Location_Code"),
    WIDE_KEY("tbl_Manufacturer", "Manufacturer_Code"),
    WIDE_KEY("tbl_Model", "Model_Code"),
    WIDE_KEY("tbl_User", "User_Code"),
};

#undef COMPUTER_KEYS
#undef ORPHANS
#undef UNKNOWN_CODE
#undef WIDE_KEY

constexpr int kKeysShown = 5;

} // namespace

CheckReport CheckLedger(const QString& path)
{
    CheckReport report;
    if (!QFileInfo(path).isFile()) {
        report.error = QStringLiteral("no ledger at %1").arg(path);
        return report;
    }
    Db db = openFile(path, SQLITE_OPEN_READONLY, report.error);
    if (!db)
        return report;
    report.error = requireLedger(db.get());
    if (!report.error.isEmpty())
        return report;
    report.opened = true;

    // SQLite answers "ok", or its problems: a row may hold several, one a line, under a
    // "*** in database main ***" heading. Each line is one problem; the heading is none.
    QStringList problems;
    const QString failed = eachRow(db.get(), "PRAGMA integrity_check", [&](const QString& row) {
        if (row == QLatin1String("ok"))
            return;
        for (const QString& line : row.split(QLatin1Char('\n'), Qt::SkipEmptyParts))
            if (!line.startsWith(QLatin1String("*** ")))
                problems << line.simplified();
    });
    if (!failed.isEmpty())
        problems << failed;
    if (!problems.isEmpty()) {
        report.faults << QStringLiteral("file: %1 problems found by the integrity check: %2%3")
                             .arg(problems.size())
                             .arg(problems.mid(0, kKeysShown).join(QLatin1String("; ")),
                                  problems.size() > kKeysShown ? QStringLiteral("; ...") : QString());
    }

    for (const Probe& p : kProbes) {
        qsizetype count = 0;
        QStringList keys; // the first few, in order
        QSet<QString> distinct;
        const QString error = eachRow(db.get(), p.sql, [&](const QString& key) {
            ++count;
            if (!distinct.contains(key)) {
                distinct.insert(key);
                if (keys.size() < kKeysShown)
                    keys << key;
            }
        });
        if (!error.isEmpty()) {
            // a damaged table fails every rule that reads it: one line for it is enough
            const QString line = QStringLiteral("%1: cannot be read (%2)").arg(QLatin1String(p.table), error);
            if (!report.faults.contains(line))
                report.faults << line;
            continue;
        }
        if (count == 0)
            continue;
        report.faults << QStringLiteral("%1: %2 %3 (%4 %5%6)")
                             .arg(QLatin1String(p.table))
                             .arg(count)
                             .arg(QLatin1String(p.fault), QLatin1String(p.keyName), keys.join(QLatin1String(", ")),
                                  distinct.size() > keys.size() ? QStringLiteral(", ...") : QString());
    }
    return report;
}

} // namespace ledger
