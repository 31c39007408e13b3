#include "platform/db/Statement.h"

#include "platform/db/Connection.h"
#include "platform/db/StatementCache.h"

#include <QStringEncoder>

#include <sqlite3.h>

#include <cstring>

namespace db {

Statement::Statement(StatementCache* cache, sqlite3_stmt* stmt, std::shared_ptr<const ColumnSet> columns, bool cached)
    : m_cache(cache), m_stmt(stmt), m_columns(std::move(columns)), m_cached(cached)
{
}

Statement::Statement(Statement&& o) noexcept
    : m_cache(o.m_cache), m_stmt(o.m_stmt), m_columns(std::move(o.m_columns)), m_cached(o.m_cached), m_utf8(std::move(o.m_utf8))
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
        m_utf8 = std::move(o.m_utf8);
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
    m_utf8.clear();
}

void Statement::bind(const std::vector<Literal>& params)
{
    // Texts are bound as UTF-8, the ledger's encoding, so that SQLite does not translate them.
    // Their bytes go into one buffer, sized before the first goes in, that lives in the statement
    // until it goes back: SQLite may keep the pointers. Each text ends in a NUL that SQLite is
    // told of, so that the length() of the ledger's checks reads it in place instead of copying
    // it to end it; a text with a NUL of its own is bound by its length, NUL and all.
    qsizetype capacity = 1;
    for (const Literal& p : params)
        if (const auto* text = std::get_if<QString>(&p))
            capacity += text->size() * 3 + 1;
    m_utf8.resize(capacity);
    QStringEncoder encoder(QStringEncoder::Utf8);
    char* next = m_utf8.data();
    for (size_t i = 0; i < params.size(); ++i) {
        const int at = int(i + 1);
        const Literal& p = params[i];
        if (const auto* n = std::get_if<std::int64_t>(&p)) {
            sqlite3_bind_int64(m_stmt, at, *n);
        } else if (const auto* d = std::get_if<double>(&p)) {
            sqlite3_bind_double(m_stmt, at, *d);
        } else {
            char* end = encoder.appendToBuffer(next, std::get<QString>(p));
            *end = '\0';
            const int size = int(end - next);
            sqlite3_bind_text(m_stmt, at, next, memchr(next, 0, size_t(size)) ? size : -1, SQLITE_STATIC);
            next = end + 1;
        }
    }
}

int Statement::runToEnd(Connection& connection)
{
    int rc;
    while ((rc = sqlite3_step(m_stmt)) == SQLITE_ROW) {
    }
    sqlite3* db = connection.handle();
    if (rc != SQLITE_DONE) {
        // the extended code tells a unique key from a check
        vb::VbError e = connection.failure(sqlite3_extended_errcode(db));
        sqlite3_reset(m_stmt);
        throw e;
    }
    return sqlite3_changes(db);
}

} // namespace db
