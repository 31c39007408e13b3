// The rebuild of the merged address list over a generated ledger (2,560 computers, the list's
// limit, and 500 network devices), then the lower grid of the network window filled from it and
// painted once, offscreen: what "一覧更新" costs. Beside it the floor: the same rows written by a
// plain SQLite program (C API, one prepared INSERT, one transaction, the ledger's journal
// settings). Prints the median of several runs of each; the two lists are compared row by row.
//
//   bench_network [--computers N] [--devices D] [--runs R]
#include "../BenchMain.h"
#include "../BenchTiming.h"
#include "demo/LedgerGenerator.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "ledger/LedgerFile.h"
#include "network/NetworkList.h"
#include "platform/app/App.h"
#include "platform/db/Connection.h"
#include "platform/ui/FlexGrid.h"
#include "platform/vb/VbError.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QThread>

#include <sqlite3.h>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using BenchTiming::cpuMs;
using BenchTiming::median;
using BenchTiming::ms;

QString newLedger(const QString& folder, int computers, int devices, bool printers)
{
    const QString path = folder + QStringLiteral("/pcdb.mdb");
    const QString error = ledger::CreateLedger(path);
    if (!error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return {};
    }
    db::Connection c;
    c.Open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path);
    LedgerGenerator::Generate(c, computers);
    LedgerGenerator::AddDevices(c, devices);
    if (printers)
        LedgerGenerator::AddPrinters(c, computers);
    c.Close();
    return path;
}

// The floor: the same list written by plain SQLite. Returns the milliseconds it took, or -1.
double floorRebuild(const QString& path)
{
    sqlite3* db = nullptr;
    if (sqlite3_open_v2(QFile::encodeName(path).constData(), &db, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK)
        return -1;
    sqlite3_exec(db, "PRAGMA journal_mode = DELETE; PRAGMA synchronous = FULL", nullptr, nullptr, nullptr);
    QElapsedTimer t;
    t.start();
    sqlite3_exec(db, "BEGIN; DELETE FROM tbl_NetworkList", nullptr, nullptr, nullptr);
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(db, "INSERT INTO tbl_NetworkList VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12)", -1, &insert, nullptr);
    // the missing values as one blank, as the rebuild writes them
    const auto select = [&](const char* sql, int& key) {
        sqlite3_stmt* s = nullptr;
        sqlite3_prepare_v2(db, sql, -1, &s, nullptr);
        while (sqlite3_step(s) == SQLITE_ROW) {
            sqlite3_bind_int(insert, 1, key++);
            for (int i = 0; i < 11; ++i) {
                const unsigned char* v = sqlite3_column_text(s, i);
                sqlite3_bind_text(insert, i + 2, v && *v ? reinterpret_cast<const char*>(v) : " ", -1, SQLITE_TRANSIENT);
            }
            sqlite3_step(insert);
            sqlite3_reset(insert);
        }
        sqlite3_finalize(s);
    };
    int key = 0;
    select("SELECT l.Location_Name, u.User_Name, p.Computer_Name, p.Workgroup, p.IPAddress, p.IPAddress_16num, "
           "m.Manufacturer_Name, o.Model_Name, c.Type_Number, c.Sereals_Number, p.MacAddress "
           "FROM tbl_Computer_List c JOIN tbl_Pclist p ON p.MainKey = c.MainKey "
           "JOIN tbl_Location l ON l.Location_Code = c.Location_Code JOIN tbl_User u ON u.User_Code = c.User_Code "
           "JOIN tbl_Section ON tbl_Section.Section_Code = u.Section_Code "
           "JOIN tbl_Division ON tbl_Division.Division_Code = u.Division_Code "
           "JOIN tbl_Manufacturer m ON m.Manufacturer_Code = c.Manufacturer_Code JOIN tbl_Model o ON o.Model_Code = c.Model_Code "
           "WHERE c.Deleted_Flug = 0 AND p.MainKey > 0 ORDER BY p.IPAddress_16num",
           key);
    select("SELECT Location_Name, User_Name, Computer_Name, WorkGroup, IPAddress, IPAddress_16num, Manufacturer_Name, "
           "Model_Name, Type_Number, Sereals_Number, MacAddress FROM tbl_NetworkUnit",
           key);
    sqlite3_finalize(insert);
    const bool committed = sqlite3_exec(db, "COMMIT", nullptr, nullptr, nullptr) == SQLITE_OK;
    const double took = ms(t);
    sqlite3_close(db);
    return committed ? took : -1;
}

QStringList dumpList(db::Connection& c)
{
    QStringList rows;
    sqlite3_stmt* s = nullptr;
    sqlite3_prepare_v2(c.handle(), "SELECT * FROM tbl_NetworkList ORDER BY Key", -1, &s, nullptr);
    while (sqlite3_step(s) == SQLITE_ROW) {
        QStringList row;
        for (int i = 0; i < sqlite3_column_count(s); ++i)
            row << QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(s, i)));
        rows << row.join(QLatin1Char('|'));
    }
    sqlite3_finalize(s);
    return rows;
}

int bench(int computers, int devices, int runs)
{
    QTemporaryDir dir;
    QElapsedTimer t;
    t.start();
    const QString path = newLedger(dir.path(), computers, devices, false);
    if (path.isEmpty())
        return 1;
    std::printf("ledger of %d computers and %d devices generated in %.0f ms\n", computers, devices, ms(t));

    app::SetPath(dir.path());
    if (!Mdl_Access_mdb::ConnectDatabase())
        return 1;
    ui::FlexGrid grid;
    grid.QWidget::resize(1280, 600);
    grid.show();
    QApplication::processEvents();

    std::vector<double> rebuilds, fills, shown, cpu, rebuildCpu, fillCpu;
    for (int r = 0; r < runs; ++r) {
        BenchMain::Settle(5, 10);
        const int before = grid.PaintCount();
        const double cpuStart = cpuMs();
        t.restart();
        if (!RebuildNetworkList()) {
            std::fprintf(stderr, "the rebuild failed\n");
            return 1;
        }
        rebuilds.push_back(ms(t));
        rebuildCpu.push_back(cpuMs() - cpuStart);
        if (View_NetworkList(grid) != ui::FillResult::Rows) {
            std::fprintf(stderr, "the fill failed\n");
            return 1;
        }
        fills.push_back(ms(t) - rebuilds.back());
        fillCpu.push_back(cpuMs() - cpuStart - rebuildCpu.back());
        while (grid.PaintCount() == before && t.elapsed() < 10000)
            QApplication::processEvents(QEventLoop::AllEvents, 5);
        shown.push_back(ms(t));
        cpu.push_back(cpuMs() - cpuStart);
    }
    const QStringList rebuilt = dumpList(Mdl_gData::DbConnection());
    const int rows = grid.Rows() - 1;
    Mdl_Access_mdb::DisconnectDatabase();

    std::vector<double> floors, floorCpu;
    for (int r = 0; r < runs; ++r) {
        const double cpuStart = cpuMs();
        const double f = floorRebuild(path);
        floorCpu.push_back(cpuMs() - cpuStart);
        if (f < 0) {
            std::fprintf(stderr, "the floor failed\n");
            return 1;
        }
        floors.push_back(f);
    }
    db::Connection check;
    check.Open(QStringLiteral("Data Source=") + path);
    const bool same = dumpList(check) == rebuilt;
    check.Close();

    std::printf("machine: %d logical CPUs, Qt %s, SQLite %s, platform %s\n", QThread::idealThreadCount(), qVersion(), sqlite3_libversion(),
                qPrintable(QGuiApplication::platformName()));
    std::printf("list: %d rows (installed computers and devices)\n", rows);
    std::printf("rebuild (RebuildNetworkList):       median %7.1f ms  (CPU %.1f ms)\n", median(rebuilds), median(rebuildCpu));
    std::printf("lower grid fill (View_NetworkList): median %7.1f ms  (CPU %.1f ms)\n", median(fills), median(fillCpu));
    std::printf("rebuild, fill and first paint:      median %7.1f ms  (min %.1f, max %.1f, %d runs)\n", median(shown),
                *std::min_element(shown.begin(), shown.end()), *std::max_element(shown.begin(), shown.end()), runs);
    std::printf("  CPU time of the same:             median %7.1f ms\n", median(cpu));
    std::printf("floor: the same rows by plain SQLite in one transaction: median %7.1f ms  (CPU %.1f ms)\n", median(floors),
                median(floorCpu));
    std::printf("the floor's list equals the rebuild's: %s\n", same ? "yes" : "NO");
    return same ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    int computers = 2560, devices = 500, runs = 7;
    return BenchMain::Run(argc, argv, "bench_network", {{"--computers", &computers}, {"--devices", &devices}, {"--runs", &runs}},
                          [&] { return bench(computers, devices, qMax(1, runs)); });
}
