// What a caller of the database layer may rely on when a write fails inside a transaction: a
// refused statement drops alone, a failure of the engine loses the whole transaction and says so
// at every later statement and at the commit, and the connection is whole again afterwards.
#include "platform/db/Connection.h"

#include "support/TempLedger.h"
#include "support/VbErrors.h"

#include <gtest/gtest.h>

#include <sqlite3.h>

namespace {

class TransactionFailure : public ::testing::Test {
protected:
    QString keys()
    {
        return ledger.rows(QStringLiteral("SELECT MainKey FROM tbl_Pclist WHERE MainKey > 0 ORDER BY 1")).join(QLatin1Char(','));
    }
    void insert(int key) { c().Execute(QStringLiteral("INSERT INTO tbl_Pclist (MainKey) VALUES (%1)").arg(key)); }
    db::Connection& c() { return ledger.connection(); }
    // Lets the file grow by a few pages only: the next large write fails with "disk full".
    void almostFull()
    {
        const int pages = ledger.value(QStringLiteral("PRAGMA page_count")).toInt();
        ledger.exec(QStringLiteral("PRAGMA max_page_count = %1").arg(pages));
    }
    void bigWrite()
    {
        c().Execute(QStringLiteral("INSERT INTO tbl_ReadCsv (Contents) VALUES ('%1')").arg(QString(250, u'x')));
        for (int i = 0; i < 6; ++i)
            c().Execute(QStringLiteral("INSERT INTO tbl_ReadCsv (Contents) SELECT Contents FROM tbl_ReadCsv"));
    }
    TempLedger ledger;
};

TEST_F(TransactionFailure, ARefusedStatementDropsAloneAndTheRestCommits)
{
    db::Transaction tx(c());
    insert(1);
    EXPECT_NE(ErrorOf([&] { insert(1); }), 0) << "a duplicate key is refused";
    insert(2);
    tx.Commit();
    EXPECT_EQ(keys(), QStringLiteral("1,2"));
}

TEST_F(TransactionFailure, AFullDiskLosesTheTransactionItsLaterStatementsAndItsCommitFail)
{
    insert(1);
    almostFull();
    {
        db::Transaction tx(c());
        insert(2);
        const long full = ErrorOf([&] { bigWrite(); });
        EXPECT_NE(full, 0);
        ASSERT_TRUE(c().LostTransaction());
        EXPECT_EQ(c().LostTransaction()->Description(), QStringLiteral("ディスクに空き領域がありません。"));
        // nothing more runs in it, not even in autocommit behind its back
        EXPECT_EQ(ErrorOf([&] { insert(3); }), full);
        EXPECT_EQ(ErrorOf([&] { tx.Commit(); }), full);
    }
    EXPECT_EQ(keys(), QStringLiteral("1"));
    EXPECT_FALSE(c().LostTransaction());
    insert(4);
    EXPECT_EQ(keys(), QStringLiteral("1,4"));

    // the same through ADO's transactions
    c().BeginTrans();
    insert(5);
    EXPECT_NE(ErrorOf([&] { bigWrite(); }), 0);
    EXPECT_NE(ErrorOf([&] { c().CommitTrans(); }), 0);
    EXPECT_EQ(c().TransactionLevel(), 0);
    EXPECT_EQ(keys(), QStringLiteral("1,4"));
}

TEST_F(TransactionFailure, ACommitThatCannotTakeTheFileLeavesNothingAndSaysSo)
{
    // another connection reads past the busy timeout: the commit cannot take the file
    sqlite3* other = nullptr;
    ASSERT_EQ(sqlite3_open_v2(ledger.path().toUtf8().constData(), &other, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    db::Transaction tx(c());
    insert(1);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN; SELECT count(*) FROM tbl_Pclist", nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_busy_timeout(c().handle(), 50);
    EXPECT_NE(ErrorOf([&] { tx.Commit(); }), 0);
    sqlite3_exec(other, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    EXPECT_EQ(keys(), QString());
    insert(2);
    EXPECT_EQ(keys(), QStringLiteral("2"));
}

} // namespace
