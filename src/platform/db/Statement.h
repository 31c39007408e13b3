#pragma once

#include "platform/db/ColumnSet.h"
#include "platform/db/JetSql.h"

#include <QByteArray>

#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace db {

class Connection;
class StatementCache;

// A prepared statement borrowed from the connection's cache for one run. It finalises or goes
// back to the cache, reset and unbound, when it goes out of scope.
class Statement {
public:
    Statement() = default;
    Statement(StatementCache* cache, sqlite3_stmt* stmt, std::shared_ptr<const ColumnSet> columns, bool cached);
    Statement(Statement&& other) noexcept;
    Statement& operator=(Statement&& other) noexcept;
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    ~Statement();

    sqlite3_stmt* handle() const { return m_stmt; }
    const std::shared_ptr<const ColumnSet>& columns() const { return m_columns; }

    // Binds the lifted literals of a statement, 1-based in order.
    void bind(const std::vector<Literal>& params);
    // Steps to the end; throws the engine's error (see Connection::failure). Returns the rows
    // changed.
    int runToEnd(Connection& connection);

private:
    void release();

    StatementCache* m_cache = nullptr;
    sqlite3_stmt* m_stmt = nullptr;
    std::shared_ptr<const ColumnSet> m_columns;
    bool m_cached = false;
    // the UTF-8 form of the bound texts, alive until the statement goes back
    QByteArray m_utf8;
};

} // namespace db
