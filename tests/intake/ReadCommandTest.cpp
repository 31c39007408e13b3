// fenwold-admin read, run as a process the way scripts run it.
#include "IntakeFixture.h"

#include "support/AdminProcess.h"
#include "TestPaths.h"

namespace {

class ReadCommand : public ::testing::Test {
protected:
    TempLedger ledger;
};

TEST_F(ReadCommand, ReadsTheFilesInOrderAndReportsEachOne)
{
    TempDir other;
    const QString ja = Inventory(QStringLiteral("ja_pc01.csv"));
    const QString caseHeader = Inventory(QStringLiteral("bad_header_case.csv"));
    const QString gone = other.file(QStringLiteral("gone.csv"));
    AdminRun r = Admin({QStringLiteral("read"), QStringLiteral("--ledger"), ledger.path(), ja, caseHeader, ja, gone});
    EXPECT_EQ(r.exitCode, 2) << r.err.toStdString();
    EXPECT_EQ(
        r.out,
        (QStringList{ja + QStringLiteral(": MainKey 1"),
                     caseHeader + QStringLiteral(": refused, the first line is not Key,Group,Item,SubItem,Contents,Unit,Renewalday"),
                     ja + QStringLiteral(": MainKey 2"),
                     gone + QStringLiteral(": refused, cannot be read (ファイルが見つかりません。); MainKey 3 made from the staged file"),
                     QStringLiteral("2 of 4 files read, 2 refused")}));

    // the second run goes on from the highest key, with the English reader
    const QString en = Inventory(QStringLiteral("en_pc02.csv"));
    r = Admin({QStringLiteral("read"), QStringLiteral("--english"), QStringLiteral("--ledger"), ledger.path(), en});
    EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
    EXPECT_EQ(r.out, (QStringList{en + QStringLiteral(": MainKey 4"), QStringLiteral("1 of 1 files read, 0 refused")}));

    // what each file makes is the read's own business (InventoryRead): here, that the command
    // reads each in its language, and makes the unreadable one from the staged rows
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT MainKey, Computer_Name, CPU_MCA FROM tbl_Pclist WHERE MainKey > 0 ORDER BY MainKey")),
              (QStringList{"1|PC-SOUMU-01|0", "2|PC-SOUMU-01|0", "3|PC-SOUMU-01|0", "4|SALES-PC07|1"}));
    // staging holds the last accepted file
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_ReadCsv")), 97);
    EXPECT_EQ(ledger.value(QStringLiteral("SELECT Contents FROM tbl_ReadCsv WHERE SubItem = 'Computer name'")),
              QStringLiteral("SALES-PC07"));
}

TEST_F(ReadCommand, UsageAndLedgerErrorsEndWithStatusOneAndChangeNothing)
{
    TempDir folder;
    folder.write(QStringLiteral("pcdb.mdb"), QByteArray(4096, 'x'));
    folder.write(QStringLiteral("empty.db"), QByteArray());
    const QString ja = Inventory(QStringLiteral("ja_pc01.csv"));
    const std::vector<QStringList> cases = {
        {QStringLiteral("read")},
        {QStringLiteral("read"), QStringLiteral("--ledger"), ledger.path()},
        {QStringLiteral("read"), QStringLiteral("--japanese"), QStringLiteral("--ledger"), ledger.path(), ja},
        {QStringLiteral("read"), QStringLiteral("--ledger"), folder.file(QStringLiteral("missing.mdb")), ja},
        {QStringLiteral("read"), QStringLiteral("--ledger"), folder.file(QStringLiteral("pcdb.mdb")), ja},
        // an empty file opens as an SQLite database without tables
        {QStringLiteral("read"), QStringLiteral("--ledger"), folder.file(QStringLiteral("empty.db")), ja},
    };
    for (const QStringList& args : cases) {
        SCOPED_TRACE(args.join(QLatin1Char(' ')).toStdString());
        const AdminRun r = Admin(args);
        EXPECT_EQ(r.exitCode, 1);
        EXPECT_TRUE(r.out.isEmpty());
        EXPECT_FALSE(r.err.isEmpty());
    }
    EXPECT_EQ(ledger.count(QStringLiteral("tbl_Computer_List")), 1);
    EXPECT_EQ(folder.read(QStringLiteral("pcdb.mdb")), QByteArray(4096, 'x'));
}

} // namespace
