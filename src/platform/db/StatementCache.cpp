#include "platform/db/StatementCache.h"

#include "platform/db/EngineError.h"
#include "platform/db/Statement.h"

#include <sqlite3.h>

namespace db {

StatementCache::~StatementCache() { clear(); }

void StatementCache::clear()
{
    for (Entry& e : m_lru)
        sqlite3_finalize(e.stmt);
    m_lru.clear();
    m_bySql.clear();
    m_byStmt.clear();
}

std::shared_ptr<const ColumnSet> StatementCache::describe(sqlite3_stmt* stmt, int rowidCount, const std::vector<QString>& rowidTables) const
{
    auto set = std::make_shared<ColumnSet>();
    set->rowidCount = rowidCount;
    set->rowidTables = rowidTables;
    const int n = sqlite3_column_count(stmt);
    int expr = 1000;
    for (int i = rowidCount; i < n; ++i) {
        ColumnInfo c;
        const char* table = sqlite3_column_table_name(stmt, i);
        const char* origin = sqlite3_column_origin_name(stmt, i);
        c.table = table ? QString::fromUtf8(table) : QString();
        c.origin = origin ? QString::fromUtf8(origin) : QString();
        c.type = TypeOfDeclaration(sqlite3_column_decltype(stmt, i));
        if (origin) {
            c.name = QString::fromUtf8(sqlite3_column_name(stmt, i));
        } else {
            // an expression: Jet called it Expr1000, Expr1001 ... unless it was named with AS
            const QString written = QString::fromUtf8(sqlite3_column_name(stmt, i));
            const bool aliased = !written.contains(QLatin1Char('(')) && !written.contains(QLatin1Char(' '));
            c.name = aliased ? written : QStringLiteral("Expr%1").arg(expr++);
        }
        set->columns.push_back(std::move(c));
    }
    set->index();
    return set;
}

Statement StatementCache::acquire(const QString& sql, int rowidCount, const std::vector<QString>& rowidTables)
{
    auto it = m_bySql.find(sql);
    if (it != m_bySql.end() && !(*it)->busy) {
        auto entry = *it;
        m_lru.splice(m_lru.begin(), m_lru, entry);
        entry->busy = true;
        return Statement(this, entry->stmt, entry->columns, true);
    }

    sqlite3_stmt* stmt = nullptr;
    const QByteArray utf8 = sql.toUtf8();
    const int rc = sqlite3_prepare_v3(m_db, utf8.constData(), int(utf8.size()), SQLITE_PREPARE_PERSISTENT, &stmt, nullptr);
    if (rc != SQLITE_OK) {
        vb::VbError e = EngineError::FromSqlite(m_db, rc);
        sqlite3_finalize(stmt);
        throw e;
    }
    if (!stmt) // only blanks or a lone ";"
        throw EngineError::FromSqlite(m_db, SQLITE_ERROR);
    auto columns = describe(stmt, rowidCount, rowidTables);

    if (it != m_bySql.end()) // the cached one is in use: this run gets its own
        return Statement(this, stmt, std::move(columns), false);

    if (int(m_lru.size()) >= m_capacity) {
        // drop the least recently used statement that is not in use
        for (auto last = m_lru.end(); last != m_lru.begin();) {
            --last;
            if (!last->busy) {
                m_bySql.remove(last->sql);
                m_byStmt.remove(last->stmt);
                sqlite3_finalize(last->stmt);
                m_lru.erase(last);
                break;
            }
        }
    }
    m_lru.push_front(Entry{sql, stmt, columns, true});
    m_bySql.insert(sql, m_lru.begin());
    m_byStmt.insert(stmt, m_lru.begin());
    return Statement(this, stmt, std::move(columns), true);
}

void StatementCache::giveBack(sqlite3_stmt* stmt)
{
    sqlite3_reset(stmt);
    sqlite3_clear_bindings(stmt);
    auto it = m_byStmt.find(stmt);
    if (it != m_byStmt.end())
        (*it)->busy = false;
    else
        sqlite3_finalize(stmt);
}

} // namespace db
