// The main list fill: a ledger of 2,560 computers (the list's limit) with all 76 columns shown,
// timed from the query's open to the grid shown again and painted once, offscreen. Prints the
// median of several runs, the paints per fill and the model's dataChanged signals while the grid
// was hidden (which must be none).
//
//   bench_mainlist [--computers N] [--runs R]
#include "../BenchMain.h"
#include "../BenchTiming.h"
#include "demo/LedgerGenerator.h"

#include "assetlist/ListQuery.h"
#include "assetlist/MainList.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "foundation/mdl_ini.h"
#include "ledger/LedgerFile.h"
#include "platform/app/App.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/FlexGrid.h"

#include <QAbstractItemModel>
#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <vector>

namespace {

using BenchTiming::cpuMs;
using BenchTiming::median;
using BenchTiming::ms;

bool newLedger(const QString& folder, int computers)
{
    const QString path = folder + QStringLiteral("/pcdb.mdb");
    const QString error = ledger::CreateLedger(path);
    if (!error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return false;
    }
    db::Connection c;
    c.Open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + path);
    LedgerGenerator::Generate(c, computers);
    c.Close();
    return true;
}

// The saved view 0 of the settings file beside the program.
void writeView(const std::vector<int>& columns, const QString& sortKey, const QString& sortCaption)
{
    const QString s = QStringLiteral("0");
    mdl_ini::IniWrite(QStringLiteral("Main"), QStringLiteral("SectionNumber"), s);
    mdl_ini::IniWrite(s, QStringLiteral("OptDel"), QStringLiteral("0"));
    mdl_ini::IniWrite(s, QStringLiteral("SelectNumber"), sortKey.isEmpty() ? QStringLiteral("0") : QStringLiteral("1"));
    if (!sortKey.isEmpty()) {
        mdl_ini::IniWrite(s, QStringLiteral("KeyName0"), sortKey);
        mdl_ini::IniWrite(s, QStringLiteral("KeyCaption0"), sortCaption);
        mdl_ini::IniWrite(s, QStringLiteral("KeyASCDESC0"), QStringLiteral("ASC"));
    }
    mdl_ini::IniWrite(s, QStringLiteral("MSFlexGrit_SelectNum"), QString::number(columns.size()));
    for (size_t i = 0; i < columns.size(); ++i)
        mdl_ini::IniWrite(s, QStringLiteral("MSFlexGrit_Select%1").arg(i + 1), QString::number(columns[i]));
}

int bench(int computers, int runs)
{
    QTemporaryDir dir;
    QElapsedTimer t;
    t.start();
    if (!newLedger(dir.path(), computers))
        return 1;
    std::printf("ledger of %d computers generated in %.0f ms\n", computers, ms(t));

    app::SetPath(dir.path());
    std::vector<int> all;
    for (int i = 1; i <= 76; ++i)
        all.push_back(i);
    writeView(all, QString(), QString());
    if (!Mdl_Access_mdb::ConnectDatabase())
        return 1;

    ui::FlexGrid grid;
    grid.QWidget::resize(1280, 800);
    grid.show();
    MainList list(grid);
    QApplication::processEvents();

    int hiddenSignals = 0, signalsSeen = 0;
    QObject::connect(grid.model(), &QAbstractItemModel::dataChanged, &grid, [&] {
        ++signalsSeen;
        if (!grid.isVisible())
            ++hiddenSignals;
    });

    // the main window's load: the view, the column model, the query
    mdl_ini::LoadViewSettings();
    list.FGridViewSelect_ini();
    gSetSQLVal();

    // the query's open and snapshot alone, for reference
    std::vector<double> opens;
    for (int r = 0; r < runs; ++r) {
        db::Recordset rs;
        t.restart();
        rs.Open(Mdl_gData::g.ListSql, Mdl_gData::DbConnection(), db::adOpenStatic, db::adLockOptimistic, -1);
        opens.push_back(ms(t));
        rs.Close();
    }

    std::vector<double> fills, shown, cpu;
    std::vector<int> paints;
    for (int r = 0; r < runs; ++r) {
        // let the previous fill's paints settle
        BenchMain::Settle(5, 10);
        const int before = grid.PaintCount();
        const double cpuStart = cpuMs();
        t.restart();
        if (list.fnc_View_PClist() != ui::FillResult::Rows) {
            std::fprintf(stderr, "the fill failed\n");
            return 1;
        }
        list.MSFlexGrid_Main_ini();
        fills.push_back(ms(t));
        while (grid.PaintCount() == before && t.elapsed() < 10000)
            QApplication::processEvents(QEventLoop::AllEvents, 5);
        shown.push_back(ms(t));
        cpu.push_back(cpuMs() - cpuStart);
        // any further paint that the fill caused
        BenchMain::Settle(10, 5);
        paints.push_back(grid.PaintCount() - before);
    }
    if (grid.Rows() != computers + 1 || grid.Cols() != 78) {
        std::fprintf(stderr, "unexpected grid %d x %d\n", grid.Rows(), grid.Cols());
        return 1;
    }

    std::printf("machine: %d logical CPUs, Qt %s, platform %s\n", QThread::idealThreadCount(), qVersion(),
                qPrintable(QGuiApplication::platformName()));
    std::printf("grid: %d rows x %d columns (%d computers, all 76 columns)\n", grid.Rows(), grid.Cols(), computers);
    std::printf("query open + snapshot:         median %7.1f ms\n", median(opens));
    std::printf("fill (open to grid shown):     median %7.1f ms\n", median(fills));
    std::printf("fill and first paint:          median %7.1f ms  (min %.1f, max %.1f, %d runs)\n", median(shown),
                *std::min_element(shown.begin(), shown.end()), *std::max_element(shown.begin(), shown.end()), runs);
    std::printf("  CPU time of the same:        median %7.1f ms\n", median(cpu));
    std::printf("paints per fill:               ");
    for (int p : paints)
        std::printf("%d ", p);
    std::printf("\ndataChanged while hidden:      %d (of %d in all runs)\n", hiddenSignals, signalsSeen);
    Mdl_Access_mdb::DisconnectDatabase();
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    int computers = 2560, runs = 7;
    return BenchMain::Run(argc, argv, "bench_mainlist", {{"--computers", &computers}, {"--runs", &runs}},
                          [&] { return bench(computers, qMax(1, runs)); });
}
