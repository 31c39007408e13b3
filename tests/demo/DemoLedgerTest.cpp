// fenwold-admin demo-ledger, run as scripts run it: the ledger it writes must pass the check,
// be the same on every run, fill every list the windows export, and never replace a file.
#include "support/AdminProcess.h"
#include "support/TempLedger.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace {

// The data lines of an export: every line but the heading.
int exportedRows(const QStringList& args, const QString& out)
{
    const AdminRun run = Admin(args + QStringList{out});
    EXPECT_EQ(run.exitCode, 0) << args.join(QLatin1Char(' ')).toStdString() << ": " << run.err.toStdString();
    QFile f(out);
    if (!f.open(QIODevice::ReadOnly))
        return -1;
    return int(f.readAll().count("\r\n")) - 1;
}

TEST(DemoLedger, WritesACheckedLedgerTheSameOnEveryRunWithEveryListFilled)
{
    TempDir dir;
    QDir(dir.path()).mkpath(QStringLiteral("one"));
    QDir(dir.path()).mkpath(QStringLiteral("two"));
    const QString ledger = dir.file(QStringLiteral("one/pcdb.mdb")), again = dir.file(QStringLiteral("two/pcdb.mdb"));
    const QString ini = dir.file(QStringLiteral("one/DB.ini"));
    // a user's own settings beside the second ledger are kept
    dir.write(QStringLiteral("two/DB.ini"), "[Main]\r\nSectionNumber=4\r\n");

    const AdminRun first = Admin({QStringLiteral("demo-ledger"), ledger});
    ASSERT_EQ(first.exitCode, 0) << first.err.toStdString();
    ASSERT_EQ(first.out.size(), 1);
    EXPECT_TRUE(first.out[0].startsWith(ledger + QStringLiteral(": 60 computers (5 retired, 12 read in English), 54 users")))
        << first.out[0].toStdString();
    EXPECT_TRUE(first.out[0].endsWith(QStringLiteral("DB.ini with 3 views written beside it")));
    ASSERT_EQ(Admin({QStringLiteral("demo-ledger"), again}).exitCode, 0);
    EXPECT_EQ(LedgerDump(ledger), LedgerDump(again));
    EXPECT_EQ(dir.read(QStringLiteral("two/DB.ini")), QByteArray("[Main]\r\nSectionNumber=4\r\n"));
    EXPECT_FALSE(QFileInfo::exists(dir.file(QStringLiteral("one/pcdb.mdb-journal"))));
    EXPECT_EQ(QDir(dir.file(QStringLiteral("one"))).entryList(QDir::Files),
              (QStringList{QStringLiteral("DB.ini"), QStringLiteral("pcdb.mdb")}));

    const AdminRun check = Admin({QStringLiteral("check"), QStringLiteral("--ledger"), ledger});
    EXPECT_EQ(check.exitCode, 0) << check.out.join(QLatin1Char('\n')).toStdString();
    // retired master rows that installed computers still use, so that the list shows them gray
    EXPECT_EQ(LedgerRows(ledger, QStringLiteral("SELECT COUNT(DISTINCT c.Model_Code) > 0 AND COUNT(DISTINCT c.Location_Code) > 0 "
                                                "FROM tbl_Computer_List c LEFT JOIN tbl_Model m ON m.Model_Code = c.Model_Code "
                                                "AND m.Available_flug = '1' LEFT JOIN tbl_Location l ON l.Location_Code = "
                                                "c.Location_Code AND l.Available_flug = '1' WHERE c.Deleted_Flug = 0 AND "
                                                "(m.Model_Code IS NOT NULL OR l.Location_Code IS NOT NULL)")),
              QStringList{QStringLiteral("1")});

    // the three saved views: by section and by system list the 55 installed computers, the
    // third the 5 retired ones
    const QStringList exportList = {QStringLiteral("export-list"), QStringLiteral("--ledger"), ledger, QStringLiteral("--ini"), ini,
                                    QStringLiteral("--view")};
    EXPECT_EQ(exportedRows(exportList + QStringList{QStringLiteral("0")}, dir.file(QStringLiteral("view0.csv"))), 55);
    EXPECT_EQ(exportedRows(exportList + QStringList{QStringLiteral("1")}, dir.file(QStringLiteral("view1.csv"))), 55);
    EXPECT_EQ(exportedRows(exportList + QStringList{QStringLiteral("2")}, dir.file(QStringLiteral("view2.csv"))), 5);
    for (const char* list : {"licences", "census", "mail", "network", "printers"}) {
        const QStringList args = {QStringLiteral("export"), QString::fromLatin1(list), QStringLiteral("--ledger"), ledger};
        EXPECT_GT(exportedRows(args, dir.file(QString::fromLatin1(list) + QStringLiteral(".csv"))), 5) << list;
    }

    // an existing file is never replaced, nor is anything left beside it
    const QByteArray before = dir.read(QStringLiteral("one/pcdb.mdb"));
    const AdminRun refused = Admin({QStringLiteral("demo-ledger"), ledger});
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.err.contains(QStringLiteral("exists already"))) << refused.err.toStdString();
    EXPECT_TRUE(refused.out.isEmpty());
    EXPECT_EQ(dir.read(QStringLiteral("one/pcdb.mdb")), before);
}

} // namespace
