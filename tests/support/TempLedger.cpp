#include "support/TempLedger.h"

#include "ledger/LedgerFile.h"

#include <QFile>

#include <sqlite3.h>

#include <stdexcept>

TempLedger::TempLedger()
{
    const QString error = ledger::CreateLedger(path());
    if (!error.isEmpty())
        throw std::runtime_error(error.toStdString());
}

TempLedger::~TempLedger() = default;

db::Connection& TempLedger::connection()
{
    if (!m_conn) {
        m_conn = std::make_unique<db::Connection>();
        m_conn->Open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path());
    }
    return *m_conn;
}

void TempLedger::closeConnection() { m_conn.reset(); }

void TempLedger::exec(const QString& sql)
{
    char* msg = nullptr;
    const int rc = sqlite3_exec(connection().handle(), sql.toUtf8().constData(), nullptr, nullptr, &msg);
    const std::string text = msg ? msg : "";
    sqlite3_free(msg);
    if (rc != SQLITE_OK)
        throw std::runtime_error("exec failed: " + text + " in " + sql.toStdString());
}

namespace {

QStringList queryRows(sqlite3* db, const QString& sql)
{
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(db, sql.toUtf8().constData(), -1, &st, nullptr) != SQLITE_OK)
        throw std::runtime_error(std::string("prepare failed: ") + sqlite3_errmsg(db));
    QStringList out;
    while (sqlite3_step(st) == SQLITE_ROW) {
        QStringList cells;
        for (int i = 0; i < sqlite3_column_count(st); ++i) {
            if (sqlite3_column_type(st, i) == SQLITE_NULL)
                cells << QStringLiteral("NULL");
            else
                cells << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(st, i)));
        }
        out << cells.join(QLatin1Char('|'));
    }
    sqlite3_finalize(st);
    return out;
}

} // namespace

QStringList TempLedger::rows(const QString& sql) { return queryRows(connection().handle(), sql); }

QStringList LedgerRows(const QString& path, const QString& sql)
{
    sqlite3* raw = nullptr;
    const int rc = sqlite3_open_v2(QFile::encodeName(path).constData(), &raw, SQLITE_OPEN_READONLY, nullptr);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> db(raw, &sqlite3_close);
    if (rc != SQLITE_OK)
        throw std::runtime_error("cannot open " + path.toStdString());
    return queryRows(db.get(), sql);
}

QStringList LedgerDump(const QString& path)
{
    QStringList out;
    for (const QString& table : LedgerRows(path, QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name")))
        for (const QString& row : LedgerRows(path, QStringLiteral("SELECT * FROM \"%1\" ORDER BY rowid").arg(table)))
            out << table + QLatin1Char(':') + row;
    return out;
}

QString TempLedger::value(const QString& sql)
{
    const QStringList r = rows(sql);
    if (r.isEmpty())
        return {};
    return r.first().section(QLatin1Char('|'), 0, 0);
}

QStringList TempLedger::fields(const QString& table, int mainKey)
{
    const QStringList names = rows(QStringLiteral("SELECT name FROM pragma_table_info('%1')").arg(table));
    const QStringList found = rows(QStringLiteral("SELECT * FROM %1 WHERE MainKey = %2").arg(table).arg(mainKey));
    QStringList out;
    const QStringList values = found.size() == 1 ? found.first().split(QLatin1Char('|')) : QStringList();
    for (qsizetype i = 0; i < values.size(); ++i)
        out << names.value(i) + QLatin1Char('=') + values[i];
    return out;
}

int TempLedger::count(const QString& table, const QString& where)
{
    return value(QStringLiteral("SELECT count(*) FROM %1 WHERE %2").arg(table, where)).toInt();
}

void TempLedger::computer(int key, int deleted, int userCode, const QString& pclist, const QString& computerList)
{
    exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code, Manufacturer_Code, Model_Code, "
                        "Deleted_Flug) VALUES (%1, 0, %2, 0, 0, %3)")
             .arg(key)
             .arg(userCode)
             .arg(deleted));
    exec(QStringLiteral("INSERT INTO tbl_Pclist (MainKey) VALUES (%1)").arg(key));
    if (!pclist.isEmpty())
        exec(QStringLiteral("UPDATE tbl_Pclist SET %1 WHERE MainKey = %2").arg(pclist).arg(key));
    if (!computerList.isEmpty())
        exec(QStringLiteral("UPDATE tbl_Computer_List SET %1 WHERE MainKey = %2").arg(computerList).arg(key));
}

void TempLedger::master(const QString& table, int code, const QString& name, const QString& flag)
{
    exec(QStringLiteral("INSERT INTO %1 VALUES (%2, '%3', '', '%4')").arg(table).arg(code).arg(name, flag));
}

void TempLedger::user(int code, const QString& name, const QString& flag, int section, int division)
{
    exec(QStringLiteral("INSERT INTO tbl_User (User_Code, User_Name, Available_flug, Section_Code, Division_Code) "
                        "VALUES (%1, '%2', '%3', %4, %5)")
             .arg(code)
             .arg(name, flag)
             .arg(section)
             .arg(division));
}
