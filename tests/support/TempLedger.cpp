#include "support/TempLedger.h"

#include "ledger/LedgerFile.h"

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

QStringList TempLedger::rows(const QString& sql)
{
    sqlite3_stmt* st = nullptr;
    if (sqlite3_prepare_v2(connection().handle(), sql.toUtf8().constData(), -1, &st, nullptr) != SQLITE_OK)
        throw std::runtime_error(std::string("prepare failed: ") + sqlite3_errmsg(connection().handle()));
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

QString TempLedger::value(const QString& sql)
{
    const QStringList r = rows(sql);
    if (r.isEmpty())
        return {};
    return r.first().section(QLatin1Char('|'), 0, 0);
}
