#include "platform/db/Statement.h"
#include "platform/db/StatementCache.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <memory>

namespace {

int stepValue(const db::Statement& s) { return sqlite3_step(s.handle()) == SQLITE_ROW ? sqlite3_column_int(s.handle(), 0) : -1; }

} // namespace

// A statement still being stepped is neither evicted by a full cache nor handed to a second run
// of the same text: the second run gets a statement of its own, finalised when it is done, and
// the cached one serves again once it is given back.
TEST(StatementCache, ABusyStatementIsNeitherEvictedNorShared)
{
    sqlite3* raw = nullptr;
    ASSERT_EQ(sqlite3_open(":memory:", &raw), SQLITE_OK);
    const std::unique_ptr<sqlite3, decltype(&sqlite3_close)> handle(raw, &sqlite3_close);
    ASSERT_EQ(sqlite3_exec(raw, "CREATE TABLE t (x); INSERT INTO t VALUES (1), (2), (3)", nullptr, nullptr, nullptr), SQLITE_OK);

    db::StatementCache cache(raw, 2);
    const QString sql = QStringLiteral("SELECT x FROM t ORDER BY x");
    sqlite3_stmt* cached = nullptr;
    {
        db::Statement first = cache.acquire(sql);
        cached = first.handle();
        EXPECT_EQ(stepValue(first), 1);
        {
            db::Statement second = cache.acquire(sql);
            EXPECT_NE(second.handle(), cached);
            EXPECT_EQ(stepValue(second), 1);
            EXPECT_EQ(stepValue(first), 2);
        }
        // two other texts fill the cache past its two places; only an idle one may go
        cache.acquire(QStringLiteral("SELECT 1"));
        cache.acquire(QStringLiteral("SELECT 2"));
        EXPECT_EQ(stepValue(first), 3);
        EXPECT_EQ(stepValue(first), -1);
    }
    const db::Statement again = cache.acquire(sql);
    EXPECT_EQ(again.handle(), cached);
    EXPECT_EQ(stepValue(again), 1) << "a statement given back starts from its first row";
}
