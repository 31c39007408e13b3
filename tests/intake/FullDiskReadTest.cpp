// fenwold-admin read on a disk that fills up: run as a child process whose files may not grow
// past a limit. The read must say it failed, and the ledger file alone must hold
// exactly the computers it reported, each whole.
#include "IntakeFixture.h"

#include "support/AdminProcess.h"
#include "TestPaths.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace {

// The keys that lines of the read reported as written.
QStringList ReportedKeys(const QStringList& lines)
{
    static const QRegularExpression written(QStringLiteral(": MainKey (\\d+)$"));
    QStringList keys;
    for (const QString& line : lines)
        if (const auto m = written.match(line); m.hasMatch())
            keys << m.captured(1);
    return keys;
}

// One computer as the file made it: its inventory row without the key, and its rows in the four
// per-computer tables.
QString Computer(TempLedger& l, const QString& key)
{
    QString out =
        l.rows(QStringLiteral("SELECT * FROM tbl_Pclist WHERE MainKey = %1").arg(key)).join(QString()).section(QLatin1Char('|'), 1);
    for (const char* table : {"tbl_ApplicationsList", "tbl_Device_Management", "tbl_Printer_Management", "tbl_Environmental"})
        out += QLatin1Char('/') + l.value(QStringLiteral("SELECT count(*) FROM %1 WHERE \"Key\" = %2").arg(QLatin1String(table), key));
    return out;
}

TEST(FullDisk, TheReadFailsAndTheLedgerAloneHoldsExactlyTheComputersItReportedEachWhole)
{
    TempLedger ledger;
    const QString file = Inventory(QStringLiteral("ja_pc01.csv"));
    const QStringList ledgerArgs = {QStringLiteral("read"), QStringLiteral("--ledger"), ledger.path()};

    // a few computers read with room to spare, then a run that fills the disk
    AdminRun r = Admin(ledgerArgs + QStringList{file, file, file});
    ASSERT_EQ(r.exitCode, 0) << r.err.toStdString();
    ledger.closeConnection();
    const QString whole = [&] {
        TempLedger reference;
        EXPECT_EQ(Admin({QStringLiteral("read"), QStringLiteral("--ledger"), reference.path(), file}).exitCode, 0);
        return Computer(reference, QStringLiteral("1"));
    }();
    // Room for a few hundred more: the first batches are committed (how many depends on the
    // machine's speed), a later one is not.
    QStringList many;
    for (int i = 0; i < 1200; ++i)
        many << file;
    r = AdminWithFileLimit(ledgerArgs + many, QFileInfo(ledger.path()).size() + 1024 * 1024);

    EXPECT_EQ(r.exitCode, 1) << r.out.join(QLatin1Char('\n')).toStdString();
    EXPECT_TRUE(r.err.contains(QStringLiteral("（エラーコード："))) << r.err.toStdString();
    ASSERT_FALSE(r.out.isEmpty());
    EXPECT_TRUE(r.out.last().contains(QStringLiteral("not read: the ledger could not be written"))) << r.out.last().toStdString();
    EXPECT_EQ(r.out.size(), 1201) << "one line per file and the summary";

    EXPECT_FALSE(QFileInfo::exists(ledger.path() + QStringLiteral("-journal")));
    EXPECT_FALSE(QFileInfo::exists(ledger.path() + QStringLiteral("-wal")));
    EXPECT_EQ(ledger.value(QStringLiteral("PRAGMA integrity_check")), QStringLiteral("ok"));
    const QStringList expected = QStringList{"1", "2", "3"} + ReportedKeys(r.out);
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT MainKey FROM tbl_Computer_List WHERE MainKey > 0 ORDER BY MainKey")), expected);
    EXPECT_EQ(ledger.rows(QStringLiteral("SELECT MainKey FROM tbl_Pclist WHERE MainKey > 0 ORDER BY MainKey")), expected);
    for (const QString& key : expected)
        EXPECT_EQ(Computer(ledger, key), whole) << "computer " << key.toStdString();
    EXPECT_EQ(ledger.value(
                  QStringLiteral("SELECT count(*) FROM tbl_ApplicationsList WHERE \"Key\" NOT IN (SELECT MainKey FROM tbl_Computer_List)")),
              QStringLiteral("0"));
}

} // namespace
