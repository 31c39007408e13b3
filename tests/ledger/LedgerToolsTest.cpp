// fenwold-admin backup and check, run as processes the way an administrator runs them.
#include "support/AdminProcess.h"
#include "support/TempDir.h"
#include "support/TempLedger.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QThread>

#include <gtest/gtest.h>

namespace {

// What every copy of a ledger must be: whole by SQLite's check, and each of its computers
// complete (the read made each from the same file). Returns how many computers it holds.
int ExpectWholeLedger(const QString& path)
{
    const auto value = [&](const char* sql) { return LedgerRows(path, QString::fromUtf8(sql)).value(0); };
    EXPECT_EQ(value("PRAGMA integrity_check"), QStringLiteral("ok"));
    EXPECT_EQ(value("PRAGMA journal_mode"), QStringLiteral("delete"));
    // every computer has its inventory row and all its per-computer rows, or is absent
    EXPECT_EQ(value("SELECT count(*) FROM tbl_Computer_List WHERE MainKey NOT IN (SELECT MainKey FROM tbl_Pclist)"), QStringLiteral("0"));
    EXPECT_EQ(value("SELECT count(*) FROM tbl_Pclist WHERE MainKey > 0 AND Computer_Name IS NOT 'PC-SOUMU-01'"), QStringLiteral("0"));
    const int computers = value("SELECT count(*) FROM tbl_Computer_List WHERE MainKey > 0").toInt();
    if (computers > 0) {
        EXPECT_EQ(value("SELECT group_concat(n) FROM (SELECT DISTINCT (SELECT count(*) FROM tbl_ApplicationsList a "
                        "WHERE a.\"Key\" = c.MainKey) || '/' || (SELECT count(*) FROM tbl_Environmental e "
                        "WHERE e.\"Key\" = c.MainKey) AS n FROM tbl_Computer_List c WHERE MainKey > 0)"),
                  QStringLiteral("5/3"));
    }
    return computers;
}

TEST(Backup, CopiesALedgerWhileAReadWritesItAndNeverOverwrites)
{
    TempLedger ledger;
    ledger.closeConnection();
    TempDir out;
    // Enough files to read for the copies to be made while it runs: the read takes well under a
    // millisecond a file. They go by a short name, from the folder the read runs in.
    constexpr int kFiles = 10000;
    TempDir inventory;
    ASSERT_TRUE(QFile::copy(TestDataPath(QStringLiteral("inventory/ja_pc01.csv")), inventory.file(QStringLiteral("a.csv"))));
    QStringList read = {QStringLiteral("read"), QStringLiteral("--ledger"), ledger.path()};
    for (int i = 0; i < kFiles; ++i)
        read << QStringLiteral("a.csv");
    QProcess reader;
    reader.setWorkingDirectory(inventory.path());
    reader.start(kAdminProgram, read);
    ASSERT_TRUE(reader.waitForStarted());

    QStringList copies;
    for (int i = 0; i < 3; ++i) {
        QThread::msleep(200);
        const QString copy = out.file(QStringLiteral("copy%1.mdb").arg(i));
        const AdminRun r = Admin({QStringLiteral("backup"), QStringLiteral("--ledger"), ledger.path(), copy});
        EXPECT_EQ(r.exitCode, 0) << r.err.toStdString();
        EXPECT_EQ(r.out, QStringList{copy});
        copies << copy;
    }
    EXPECT_EQ(reader.state(), QProcess::Running) << "the read ended before the copies were made; make it longer";
    ASSERT_TRUE(reader.waitForFinished(120000));
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().toStdString();

    int largest = 0;
    for (const QString& copy : copies)
        largest = std::max(largest, ExpectWholeLedger(copy));
    EXPECT_GT(largest, 0) << "no copy caught a committed batch";
    EXPECT_EQ(ExpectWholeLedger(ledger.path()), kFiles);

    // an existing file stays as it was; no ledger, no copy
    out.write(QStringLiteral("existing.mdb"), "mine");
    AdminRun r = Admin({QStringLiteral("backup"), QStringLiteral("--ledger"), ledger.path(), out.file(QStringLiteral("existing.mdb"))});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.err.contains(QStringLiteral("never overwrites"))) << r.err.toStdString();
    EXPECT_EQ(out.read(QStringLiteral("existing.mdb")), QByteArray("mine"));
    r = Admin(
        {QStringLiteral("backup"), QStringLiteral("--ledger"), out.file(QStringLiteral("none.mdb")), out.file(QStringLiteral("x.mdb"))});
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_FALSE(QFileInfo::exists(out.file(QStringLiteral("x.mdb"))));
    EXPECT_EQ(QDir(out.path()).entryList(QDir::Files).size(), 4) << "no temporary file is left";
}

class Check : public ::testing::Test {
protected:
    AdminRun check(const QString& path) { return Admin({QStringLiteral("check"), QStringLiteral("--ledger"), path}); }
    TempLedger ledger;
};

TEST_F(Check, OrphanRowsAndUnknownCodesAreOneLineEachWithTheirCountAndFirstKeys)
{
    ledger.exec(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey, Location_Code, User_Code) VALUES (1, 7, 0)"));
    ledger.exec(QStringLiteral("INSERT INTO tbl_Pclist (MainKey) VALUES (1)"));
    ledger.exec(QStringLiteral("INSERT INTO tbl_Pclist (MainKey) VALUES (4)"));
    for (int key : {9, 9, 12})
        ledger.exec(QStringLiteral("INSERT INTO tbl_Device_Management (\"Key\") VALUES (%1)").arg(key));
    ledger.exec(QStringLiteral("INSERT INTO tbl_User (User_Code, Section_Code, Division_Code) VALUES (3, 0, 5)"));
    const AdminRun r = check(ledger.path());
    EXPECT_EQ(r.exitCode, 2) << r.err.toStdString();
    EXPECT_EQ(r.out, (QStringList{
                         QStringLiteral("tbl_Pclist: 1 rows without their tbl_Computer_List row (MainKey 4)"),
                         QStringLiteral("tbl_Device_Management: 3 rows whose Key names no computer (Key 9, 12)"),
                         QStringLiteral("tbl_Computer_List: 1 rows whose Location_Code names no row of tbl_Location (MainKey 1)"),
                         QStringLiteral("tbl_User: 1 rows whose Division_Code names no row of tbl_Division (User_Code 3)"),
                     }));
}

TEST_F(Check, ADamagedPageIsAFaultAndAFileThatIsNoLedgerIsAnError)
{
    const int page = ledger.value(QStringLiteral("SELECT rootpage FROM sqlite_master WHERE name = 'tbl_Pclist'")).toInt();
    const int size = ledger.value(QStringLiteral("PRAGMA page_size")).toInt();
    const QStringList roots = ledger.rows(
        QStringLiteral("SELECT rootpage FROM sqlite_master WHERE type = 'table' AND name LIKE 'tbl_%' AND name <> 'tbl_Pclist' LIMIT 7"));
    ASSERT_EQ(roots.size(), 7);
    ledger.closeConnection();
    QFile f(ledger.path());
    // The first pages of eight tables wiped out: each problem SQLite finds counts, a few are
    // shown, and a table that cannot be read is said once, not once for every rule.
    ASSERT_TRUE(f.open(QIODevice::ReadWrite));
    for (const QString& root : roots + QStringList{QString::number(page)}) {
        ASSERT_TRUE(f.seek(qint64(root.toInt() - 1) * size));
        f.write(QByteArray(16, '\xff'));
    }
    f.close();
    AdminRun r = check(ledger.path());
    EXPECT_EQ(r.exitCode, 2) << r.err.toStdString();
    const QStringList file = r.out.filter(QStringLiteral("file: "));
    ASSERT_EQ(file.size(), 1) << r.out.join(QLatin1Char('\n')).toStdString();
    const int problems = file[0].section(QLatin1Char(' '), 1, 1).toInt();
    EXPECT_GT(problems, 5) << file[0].toStdString();
    EXPECT_EQ(file[0].count(QStringLiteral("; ")), 5) << "five shown, then \"...\": " << file[0].toStdString();
    EXPECT_FALSE(file[0].contains(QStringLiteral("***")));
    EXPECT_EQ(QSet<QString>(r.out.begin(), r.out.end()).size(), r.out.size()) << r.out.join(QLatin1Char('\n')).toStdString();

    TempDir dir;
    dir.write(QStringLiteral("notes.txt"), QByteArray("MainKey,Computer_Name\r\n1,PC-01\r\n").repeated(200));
    r = check(dir.file(QStringLiteral("notes.txt")));
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_TRUE(r.out.isEmpty());
    EXPECT_FALSE(r.err.isEmpty());
    EXPECT_EQ(check(dir.file(QStringLiteral("missing.mdb"))).exitCode, 1);
}

} // namespace
