// The database layer's baseline: 10,000 single-row UPDATEs through Connection::Execute, each a Jet
// text that JetSql rewrites, first with every statement committing by itself, then inside one
// transaction. Prints the median of several runs of each.
#include "ledger/LedgerFile.h"
#include "platform/db/Connection.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

constexpr int kComputers = 500;
constexpr int kUpdates = 10000;
constexpr int kRuns = 5;

double runOnce(db::Connection& c, bool oneTransaction, int run)
{
    QElapsedTimer t;
    t.start();
    if (oneTransaction)
        c.BeginTrans();
    for (int i = 0; i < kUpdates; ++i) {
        const int key = 1 + (i % kComputers);
        c.Execute(QStringLiteral("UPDATE tbl_Pclist SET tbl_Pclist.[Workgroup] = 'WG%1-%2' WHERE MainKey = %3").arg(run).arg(i).arg(key));
    }
    if (oneTransaction)
        c.CommitTrans();
    return double(t.nsecsElapsed()) / 1e6;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("pcdb.mdb"));
    const QString error = ledger::CreateLedger(path);
    if (!error.isEmpty()) {
        std::fprintf(stderr, "%s\n", error.toUtf8().constData());
        return 1;
    }
    db::Connection c;
    c.Open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path);
    c.BeginTrans();
    for (int k = 1; k <= kComputers; ++k) {
        c.Execute(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) VALUES (%1)").arg(k));
        c.Execute(QStringLiteral("INSERT INTO tbl_PClist (MainKey) VALUES (%1)").arg(k));
    }
    c.CommitTrans();

    for (bool tx : {false, true}) {
        std::vector<double> times;
        for (int run = 0; run < kRuns; ++run)
            times.push_back(runOnce(c, tx, run));
        const double ms = median(times);
        std::printf("%-26s %8.1f ms  (%5.1f us per statement, median of %d)\n", tx ? "one transaction:" : "autocommit:", ms,
                    ms * 1000.0 / kUpdates, kRuns);
    }
    return 0;
}
