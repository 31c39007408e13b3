#pragma once

#include "platform/db/ColumnSet.h"

#include <QHash>
#include <QString>

#include <list>
#include <memory>

struct sqlite3;
struct sqlite3_stmt;

namespace db {

class Statement;

// The prepared statements of one connection, by their SQLite text, most recently used first.
// Statements of the same shape with other literals share an entry (see JetSql), so the run of a
// few hundred statements per inventory file prepares each shape once.
class StatementCache {
public:
    explicit StatementCache(sqlite3* db, int capacity = 200) : m_db(db), m_capacity(capacity) {}
    ~StatementCache();
    StatementCache(const StatementCache&) = delete;
    StatementCache& operator=(const StatementCache&) = delete;

    // Prepares, or takes from the cache, the statement of this text. rowidCount leading
    // columns are hidden rowid columns of rowidTables. Throws the engine's error.
    Statement acquire(const QString& sql, int rowidCount = 0, const std::vector<QString>& rowidTables = {});
    void giveBack(sqlite3_stmt* stmt);
    void clear();

private:
    struct Entry {
        QString sql;
        sqlite3_stmt* stmt = nullptr;
        std::shared_ptr<const ColumnSet> columns;
        bool busy = false;
    };
    std::shared_ptr<const ColumnSet> describe(sqlite3_stmt* stmt, int rowidCount, const std::vector<QString>& rowidTables) const;

    sqlite3* m_db;
    int m_capacity;
    std::list<Entry> m_lru; // front: most recently used
    QHash<QString, std::list<Entry>::iterator> m_bySql;
    QHash<sqlite3_stmt*, std::list<Entry>::iterator> m_byStmt;
};

} // namespace db
