#include "platform/db/Connection.h"
#include "platform/db/EngineError.h"

#include "support/TempLedger.h"
#include "support/VbErrors.h"

#include <gtest/gtest.h>

using db::Connection;
using vb::VbError;

namespace {

long errorOf(Connection& c, const char* jet)
{
    return ErrorOf([&] { c.Execute(QString::fromUtf8(jet)); });
}

TEST(Connection, OpensOnlyAnExistingLedger)
{
    TempDir dir;
    Connection c;
    const Raised missing =
        RaisedBy([&] { c.Open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + dir.file(QStringLiteral("pcdb.mdb"))); });
    EXPECT_EQ(missing.number, db::EngineError::Fail);
    EXPECT_TRUE(missing.description.contains(QStringLiteral("見つかりません")));
    EXPECT_EQ(c.State(), db::adStateClosed);
    EXPECT_FALSE(QFile::exists(dir.file(QStringLiteral("pcdb.mdb")))) << "opening must not create the file";
}

TEST(Connection, ExecuteReportsTheEnginesRefusalsAsJetNumberedThem)
{
    TempLedger l;
    Connection& c = l.connection();
    EXPECT_EQ(c.Execute(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (1)")), 1);
    EXPECT_EQ(errorOf(c, "INSERT INTO tbl_Computer_List (MainKey) VALUES (1)"), db::EngineError::Fail) << "duplicate key";
    EXPECT_EQ(errorOf(c, "INSERT INTO tbl_Computer_List (MainKey) VALUES (70000)"), db::EngineError::TypeMismatchInCriteria);
    EXPECT_EQ(errorOf(c, "UPDATE tbl_Computer_List SET tbl_Computer_List.[Leasing_StartDate] = '2005/02/31' WHERE MainKey = 1"),
              db::EngineError::TypeMismatchInCriteria);
    EXPECT_EQ(errorOf(c, "SELECT * FROM tbl_Nothing"), db::EngineError::TableNotFound);
    EXPECT_EQ(errorOf(c, "SELECT NoSuchColumn FROM tbl_Pclist"), db::EngineError::MissingParameter);
    EXPECT_EQ(errorOf(c, "SELEKT * FROM tbl_Pclist"), db::EngineError::SyntaxError);
    const QString longText(256, QLatin1Char('x'));
    const QString tooLong = RaisedBy([&] {
                                c.Execute(QStringLiteral("UPDATE tbl_Pclist SET Computer_Name = '%1' WHERE MainKey = 0").arg(longText));
                            }).description;
    EXPECT_TRUE(tooLong.contains(QStringLiteral("小さすぎて"))) << "256 characters in a text column: " << tooLong.toStdString();
    // a refused statement changes nothing and the connection goes on
    EXPECT_EQ(l.value(QStringLiteral("SELECT count(*) FROM tbl_Computer_List")), QStringLiteral("2"));
    EXPECT_EQ(c.Execute(QStringLiteral("UPDATE tbl_Computer_List SET tbl_Computer_List.[Asset_Code] = 0 WHERE MainKey = 1")), 1);
    EXPECT_EQ(l.value(QStringLiteral("SELECT Asset_Code FROM tbl_Computer_List WHERE MainKey = 1")), QStringLiteral("0"));
}

TEST(Connection, TransactionsCommitRollBackAndNest)
{
    TempLedger l;
    Connection& c = l.connection();
    EXPECT_EQ(c.BeginTrans(), 1);
    c.Execute(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (1)"));
    EXPECT_EQ(c.BeginTrans(), 2);
    c.Execute(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (2)"));
    c.RollbackTrans();
    c.CommitTrans();
    EXPECT_EQ(l.rows(QStringLiteral("SELECT MainKey FROM tbl_Computer_List ORDER BY 1")),
              (QStringList{QStringLiteral("0"), QStringLiteral("1")}));

    c.BeginTrans();
    c.Execute(QStringLiteral("DELETE * FROM tbl_Computer_List WHERE MainKey = 1"));
    // a refused statement inside a transaction drops alone
    EXPECT_THROW(c.Execute(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (0)")), VbError);
    c.RollbackTrans();
    EXPECT_EQ(l.value(QStringLiteral("SELECT count(*) FROM tbl_Computer_List")), QStringLiteral("2"));
    EXPECT_THROW(c.CommitTrans(), VbError);

    {
        db::Transaction t(c);
        c.Execute(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (7)"));
    }
    EXPECT_EQ(l.value(QStringLiteral("SELECT count(*) FROM tbl_Computer_List WHERE MainKey = 7")), QStringLiteral("0"))
        << "a transaction guard that was not committed rolls back";
}

TEST(Connection, ClosedConnectionRefusesWork)
{
    TempLedger l;
    Connection& c = l.connection();
    c.Close();
    EXPECT_EQ(c.State(), db::adStateClosed);
    EXPECT_EQ(ErrorOf([&] { c.Execute(QStringLiteral("SELECT * FROM tbl_Pclist")); }), 3709);
}

} // namespace
