#include "platform/db/Statement.h"

#include "platform/db/EngineError.h"
#include "platform/db/StatementCache.h"

#include <sqlite3.h>

namespace db {

Statement::Statement(StatementCache* cache, sqlite3_stmt* stmt, std::shared_ptr<const ColumnSet> columns, bool cached)
    : m_cache(cache), m_stmt(stmt), m_columns(std::move(columns)), m_cached(cached)
{
}

Statement::Statement(Statement&& o) noexcept
    : m_cache(o.m_cache), m_stmt(o.m_stmt), m_columns(std::move(o.m_columns)), m_cached(o.m_cached), m_texts(std::move(o.m_texts))
{
    o.m_stmt = nullptr;
}

Statement& Statement::operator=(Statement&& o) noexcept
{
    if (this != &o) {
        release();
        m_cache = o.m_cache;
        m_stmt = o.m_stmt;
        m_columns = std::move(o.m_columns);
        m_cached = o.m_cached;
        m_texts = std::move(o.m_texts);
        o.m_stmt = nullptr;
    }
    return *this;
}

Statement::~Statement() { release(); }

void Statement::release()
{
    if (!m_stmt)
        return;
    if (m_cached && m_cache) {
        m_cache->giveBack(m_stmt);
    } else {
        sqlite3_finalize(m_stmt);
    }
    m_stmt = nullptr;
    m_texts.clear();
}

void Statement::bind(const std::vector<Literal>& params)
{
    for (size_t i = 0; i < params.size(); ++i) {
        const int at = int(i + 1);
        const Literal& p = params[i];
        if (const auto* n = std::get_if<std::int64_t>(&p)) {
            sqlite3_bind_int64(m_stmt, at, *n);
        } else if (const auto* d = std::get_if<double>(&p)) {
            sqlite3_bind_double(m_stmt, at, *d);
        } else {
            // Bound as UTF-8, the ledger's encoding, so that SQLite does not translate it; the
            // bytes live in the statement until it goes back, so SQLite may keep the pointer.
            m_texts.push_back(std::get<QString>(p).toUtf8());
            sqlite3_bind_text(m_stmt, at, m_texts.back().constData(), int(m_texts.back().size()), SQLITE_STATIC);
        }
    }
}

int Statement::runToEnd(sqlite3* db)
{
    int rc;
    while ((rc = sqlite3_step(m_stmt)) == SQLITE_ROW) {
    }
    if (rc != SQLITE_DONE) {
        // the extended code tells a unique key from a check
        const int ext = sqlite3_extended_errcode(db);
        vb::VbError e = EngineError::FromSqlite(db, ext);
        sqlite3_reset(m_stmt);
        throw e;
    }
    return sqlite3_changes(db);
}

} // namespace db
