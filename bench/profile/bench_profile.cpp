// The computer profile on computers of about 300 inventory lines each (30 applications, 40
// devices, 5 printers, 30 environment variables), read from generated inventory files:
//   - the opening, from the main list's double-click handler to the window's first paint;
//   - one step to the next computer (cmd_Next) to the first paint after it, on the first page
//     and on the application and device pages, whose lists a step reads again;
//   - the choice of the application tab, to its first paint.
// Medians of several runs, offscreen unless QT_QPA_PLATFORM says otherwise.
//
//   bench_profile [--computers N] [--runs R]
#include "../BenchMain.h"
#include "../BenchTiming.h"
#include "demo/InventoryGenerator.h"

#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "intake/InventoryRead.h"
#include "ledger/LedgerFile.h"
#include "platform/app/App.h"
#include "platform/ui/Dialogs.h"
#include "profile/frm_Edit_Computer.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QTabBar>
#include <QTemporaryDir>
#include <QThread>
#include <QTreeWidget>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

namespace {

using BenchTiming::cpuMs;
using BenchTiming::median;
using BenchTiming::ms;

// Any box the profile shows would spoil a figure: they are counted, never answered by a user.
class CountingDialogs : public ui::DialogProvider {
public:
    int shown = 0;
    int MessageBox(const QString& prompt, int, const QString&) override
    {
        ++shown;
        std::fprintf(stderr, "message: %s\n", qPrintable(prompt));
        return ui::vbOK;
    }
    std::optional<QString> InputBox(const QString&, const QString&, const QString&) override { return std::nullopt; }
    std::optional<QString> FileDialog(const ui::FileDialogRequest&) override { return std::nullopt; }
    bool PrinterDialog(const ui::PrinterDialogRequest&) override { return false; }
};

// Sees the first paint of any widget of the profile window after it is armed.
class PaintWatch : public QObject {
public:
    bool painted = false;
    bool eventFilter(QObject* o, QEvent* e) override
    {
        if (e->type() == QEvent::Paint && o->isWidgetType()) {
            auto* w = static_cast<QWidget*>(o);
            if (qobject_cast<frm_Edit_Computer*>(w->window()))
                painted = true;
        }
        return false;
    }
};

struct Timing {
    std::vector<double> wall;
    std::vector<double> cpu;
};

// Runs an action and waits for the window's next paint.
double untilPainted(PaintWatch& watch, const std::function<void()>& action, Timing& into)
{
    watch.painted = false;
    const double cpu0 = cpuMs();
    QElapsedTimer t;
    t.start();
    action();
    while (!watch.painted && t.elapsed() < 10000)
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    const double wall = ms(t);
    into.wall.push_back(wall);
    into.cpu.push_back(cpuMs() - cpu0);
    // let whatever else the action caused settle outside the figure
    BenchMain::Settle(5, 2);
    return wall;
}

void print(const char* what, const Timing& t, double target)
{
    std::printf("%-44s median %6.1f ms  (min %.1f, max %.1f; CPU %.1f ms)  target %.0f ms\n", what, median(t.wall),
                *std::min_element(t.wall.begin(), t.wall.end()), *std::max_element(t.wall.begin(), t.wall.end()), median(t.cpu), target);
}

void unload()
{
    if (frm_Edit_Computer* w = frm_Edit_Computer::IfLoaded())
        w->Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

int run(int computers, int runs)
{
    QTemporaryDir dir;
    const QString error = ledger::CreateLedger(dir.filePath(QStringLiteral("pcdb.mdb")));
    if (!error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(error));
        return 1;
    }
    app::SetPath(dir.path());
    CountingDialogs dialogs;
    ui::SetDialogs(&dialogs);
    if (!Mdl_Access_mdb::ConnectDatabase())
        return 1;

    const QString folder = dir.filePath(QStringLiteral("inventory"));
    QDir().mkpath(folder);
    demo::WriteInventoryFiles(folder, computers);
    QStringList paths;
    for (const QString& name : QDir(folder).entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name))
        paths << QDir(folder).filePath(name);
    QElapsedTimer read;
    read.start();
    ReadInventoryFiles(paths, InventoryLanguage::Japanese);
    std::printf("%d computers read from generated files in %.0f ms\n", int(paths.size()), ms(read));

    Mdl_gData::FillCodeTables();
    for (int i = 1; i <= computers; ++i)
        Mdl_gData::g.ListRowKeys[i] = std::int16_t(i);
    Mdl_gData::g.ListRowCount = std::int16_t(computers);
    const auto lines = [&](const char* table) {
        return Mdl_Access_mdb::OpenRecordsetFirstRow(
                   QStringLiteral("SELECT Count(*) FROM %1 WHERE [Key] = 1").arg(QString::fromUtf8(table)))[0]
            .toUtf8();
    };
    std::printf("computer 1: %s applications, %s devices, %s printers, %s environment variables\n",
                lines("tbl_ApplicationsList").constData(), lines("tbl_Device_Management").constData(),
                lines("tbl_Printer_Management").constData(), lines("tbl_Environmental").constData());

    PaintWatch watch;
    qApp->installEventFilter(&watch);

    // the opening: what the main list's double-click does, to the first paint
    Timing opening;
    for (int r = 0; r < runs; ++r) {
        const std::int16_t position = std::int16_t(1 + r % computers);
        untilPainted(
            watch,
            [&] {
                Mdl_gData::g.SelectedMainKey = Mdl_gData::g.ListRowKeys[position];
                Mdl_gData::g.SelectedGridRow = position;
                frm_Edit_Computer::Instance().Show(ui::vbModeless);
            },
            opening);
        unload();
    }

    // steps on the first page, then with the application and the device page up
    Mdl_gData::g.SelectedMainKey = 1;
    Mdl_gData::g.SelectedGridRow = 1;
    frm_Edit_Computer& w = frm_Edit_Computer::Instance();
    untilPainted(
        watch, [&] { w.Show(ui::vbModeless); }, opening);
    opening.wall.pop_back();
    opening.cpu.pop_back();
    const auto steps = [&](int tab) {
        Timing t;
        w.TabStrip1->setCurrentIndex(tab - 1);
        for (int r = 0; r < runs; ++r) {
            if (w.CurrentPosition >= computers)
                w.CurrentPosition = 0;
            untilPainted(
                watch, [&] { w.cmd_Next_Click(); }, t);
        }
        return t;
    };
    const Timing stepFirst = steps(1);
    const Timing stepApps = steps(3);
    const Timing stepDevices = steps(4);

    Timing tab;
    for (int r = 0; r < runs; ++r) {
        w.TabStrip1->setCurrentIndex(0);
        QApplication::processEvents();
        untilPainted(
            watch, [&] { w.TabStrip1->setCurrentIndex(2); }, tab);
    }
    const int rows = w.MSGrid_Application->Rows() - 1;
    const int roots = w.TreeView1->topLevelItemCount();
    unload();

    std::printf("machine: %d logical CPUs, Qt %s, platform %s, %d runs each\n", QThread::idealThreadCount(), qVersion(),
                qPrintable(QGuiApplication::platformName()), runs);
    print("open (double-click to first paint)", opening, 100);
    print("step to the next computer, first page", stepFirst, 50);
    print("step to the next computer, application page", stepApps, 50);
    print("step to the next computer, device page", stepDevices, 50);
    print("choose the application tab", tab, 50);
    std::printf("application grid: %d rows; device tree: %d categories; message boxes shown: %d\n", rows, roots, dialogs.shown);
    Mdl_Access_mdb::DisconnectDatabase();
    ui::SetDialogs(nullptr);
    return dialogs.shown == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    int computers = 20, runs = 15;
    return BenchMain::Run(argc, argv, "bench_profile", {{"--computers", &computers}, {"--runs", &runs}},
                          [&] { return run(qBound(2, computers, 2560), qMax(1, runs)); });
}
