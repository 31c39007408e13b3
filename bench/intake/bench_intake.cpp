// The bulk read against its floors: generated inventory files read into a fresh ledger by
// `fenwold-admin read` as a process, the same end result written by a plain SQLite program that
// reads the same files (the floor), and the rows the read left copied into a fresh ledger by
// prepared statements (the copy floor: no file read at all). Prints the median of several runs
// of each, their ratios, and the peak memory of the read command for one file and for all of
// them (/usr/bin/time's maximum resident set size). Then the growth bench: 500 files read into a
// ledger that holds 2,500 computers against the same files into an empty one.
//
//   bench_intake [--files N] [--runs R] [--keep FOLDER] [--grown N] [--admin PATH]
//
// --admin benches another build of fenwold-admin (an earlier commit's, for a before and after).
#include "demo/InventoryGenerator.h"
#include "SqliteFloor.h"

#include "ledger/LedgerFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <utility>
#include <vector>

namespace {

// The fenwold-admin that is benched: this build's, or the one --admin names.
QString adminProgram = QStringLiteral(FENWOLD_ADMIN);

struct AdminRun {
    double seconds = 0;
    double cpuSeconds = 0;
    long maxRssKb = 0;
    int exitCode = -1;
};

// fenwold-admin read under /usr/bin/time, which reports the peak resident set size.
AdminRun runAdmin(const QString& ledger, const QStringList& files)
{
    QProcess p;
    QStringList args = {QStringLiteral("-f"),
                        QStringLiteral("cpu=%U+%S maxrss_kb=%M"),
                        adminProgram,
                        QStringLiteral("read"),
                        QStringLiteral("--ledger"),
                        ledger};
    args += files;
    QElapsedTimer t;
    t.start();
    p.start(QStringLiteral("/usr/bin/time"), args);
    p.waitForFinished(-1);
    AdminRun r;
    r.seconds = double(t.nsecsElapsed()) / 1e9;
    r.exitCode = p.exitCode();
    const QString err = QString::fromUtf8(p.readAllStandardError());
    const qsizetype at = err.lastIndexOf(QStringLiteral("maxrss_kb="));
    if (at >= 0)
        r.maxRssKb = err.mid(at + 10).trimmed().toLong();
    const qsizetype cpu = err.lastIndexOf(QStringLiteral("cpu="));
    if (cpu >= 0) {
        const QStringList parts = err.mid(cpu + 4).section(QLatin1Char(' '), 0, 0).split(QLatin1Char('+'));
        r.cpuSeconds = parts.value(0).toDouble() + parts.value(1).toDouble();
    }
    return r;
}

QString freshLedger(const QTemporaryDir& dir, const QString& name)
{
    const QString path = dir.filePath(name);
    QFile::remove(path);
    QFile::remove(path + QStringLiteral("-shm"));
    const QString error = ledger::CreateLedger(path);
    if (!error.isEmpty()) {
        std::fprintf(stderr, "%s\n", error.toUtf8().constData());
        std::exit(1);
    }
    return path;
}

double cpuNow()
{
    timespec t{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + double(t.tv_nsec) / 1e9;
}

double median(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
}

QString machine()
{
    QFile f(QStringLiteral("/proc/cpuinfo"));
    QString model;
    if (f.open(QIODevice::ReadOnly))
        for (const QByteArray& line : f.readAll().split('\n'))
            if (line.startsWith("model name")) {
                model = QString::fromUtf8(line.mid(line.indexOf(':') + 1)).trimmed();
                break;
            }
    return QStringLiteral("%1 cores, %2").arg(QThread::idealThreadCount()).arg(model);
}

struct Figures {
    std::vector<double> wall, cpu;
    void add(double w, double c)
    {
        wall.push_back(w);
        cpu.push_back(c);
    }
};

// Runs the read of files into a copy of ledger (a fresh one when empty), the copy made untimed.
AdminRun readInto(const QTemporaryDir& dir, const QString& ledger, const QStringList& files)
{
    const QString target = dir.filePath(QStringLiteral("target.mdb"));
    QFile::remove(target);
    if (ledger.isEmpty())
        freshLedger(dir, QStringLiteral("target.mdb"));
    else
        QFile::copy(ledger, target);
    const AdminRun r = runAdmin(target, files);
    if (r.exitCode != 0) {
        std::fprintf(stderr, "fenwold-admin read ended with %d\n", r.exitCode);
        std::exit(1);
    }
    return r;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    int fileCount = 1000;
    int runs = 3;
    int grown = 2500;
    QString keep;
    const QStringList args = app.arguments();
    for (qsizetype i = 1; i + 1 < args.size(); i += 2) {
        if (args[i] == QLatin1String("--files"))
            fileCount = args[i + 1].toInt();
        else if (args[i] == QLatin1String("--runs"))
            runs = args[i + 1].toInt();
        else if (args[i] == QLatin1String("--keep"))
            keep = args[i + 1];
        else if (args[i] == QLatin1String("--grown"))
            grown = args[i + 1].toInt();
        else if (args[i] == QLatin1String("--admin"))
            adminProgram = args[i + 1];
    }

    QTemporaryDir dir;
    const QString folder = keep.isEmpty() ? dir.filePath(QStringLiteral("inventory")) : keep;
    QElapsedTimer t;
    t.start();
    demo::WriteInventoryFiles(folder, fileCount);
    QStringList files;
    for (const QString& name : QDir(folder).entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name))
        files << QDir(folder).filePath(name);
    std::printf("%lld inventory files written in %.2f s (%s)\n", qlonglong(files.size()), double(t.nsecsElapsed()) / 1e9,
                machine().toUtf8().constData());

    const AdminRun one = runAdmin(freshLedger(dir, QStringLiteral("one.mdb")), files.mid(0, 1));
    Figures read, floor, copy;
    long peakKb = 0;
    QString readLedger, floorLedger, copyLedger;
    for (int run = 0; run < runs; ++run) {
        readLedger = freshLedger(dir, QStringLiteral("read.mdb"));
        const AdminRun all = runAdmin(readLedger, files);
        if (all.exitCode != 0) {
            std::fprintf(stderr, "fenwold-admin read ended with %d\n", all.exitCode);
            return 1;
        }
        read.add(all.seconds, all.cpuSeconds);
        peakKb = std::max(peakKb, all.maxRssKb);

        floorLedger = freshLedger(dir, QStringLiteral("floor.mdb"));
        t.restart();
        double cpu = cpuNow();
        QString error = bench::FloorRead(floorLedger, files);
        floor.add(double(t.nsecsElapsed()) / 1e9, cpuNow() - cpu);
        if (!error.isEmpty()) {
            std::fprintf(stderr, "floor: %s\n", error.toUtf8().constData());
            return 1;
        }

        copyLedger = freshLedger(dir, QStringLiteral("copy.mdb"));
        t.restart();
        cpu = cpuNow();
        error = bench::CopyFloor(readLedger, copyLedger);
        copy.add(double(t.nsecsElapsed()) / 1e9, cpuNow() - cpu);
        if (!error.isEmpty()) {
            std::fprintf(stderr, "copy floor: %s\n", error.toUtf8().constData());
            return 1;
        }
    }
    const QStringList readRows = bench::DumpComputers(readLedger);
    for (const auto& [name, other] :
         {std::pair{"floor", bench::DumpComputers(floorLedger)}, std::pair{"copy floor", bench::DumpComputers(copyLedger)}}) {
        if (readRows == other)
            continue;
        for (qsizetype i = 0; i < std::min(readRows.size(), other.size()); ++i)
            if (readRows[i] != other[i]) {
                std::fprintf(stderr, "first difference:\n  read  %s\n  %s %s\n", readRows[i].toUtf8().constData(), name,
                             other[i].toUtf8().constData());
                break;
            }
        std::fprintf(stderr, "the read and the %s differ (%lld and %lld rows)\n", name, qlonglong(readRows.size()),
                     qlonglong(other.size()));
        return 1;
    }

    const double n = double(files.size());
    const auto line = [&](const char* what, const Figures& f) {
        std::printf("%-21s%6.2f s  %5.2f ms/file   %6.2f s\n", what, median(f.wall), median(f.wall) * 1000 / n, median(f.cpu));
    };
    const auto ratio = [&](const char* what, const Figures& f) {
        std::printf("%-21s%6.2f x                  %6.2f x\n", what, median(read.wall) / median(f.wall), median(read.cpu) / median(f.cpu));
    };
    std::printf("same end result in all three ledgers: %lld rows in the six tables\n", qlonglong(readRows.size()));
    std::printf("                     wall (median of %d)      cpu (user+sys)\n", runs);
    line("fenwold-admin read:", read);
    line("plain SQLite floor:", floor);
    line("copy floor:", copy);
    ratio("read / floor:", floor);
    ratio("read / copy floor:", copy);
    std::printf("peak memory of the read: %.1f MB for one file, %.1f MB for %lld files, growth %.1f MB\n", one.maxRssKb / 1024.0,
                peakKb / 1024.0, qlonglong(files.size()), (peakKb - one.maxRssKb) / 1024.0);

    // Growth: the same files into a ledger that already holds many computers and into an empty
    // one. The grown ledger reads the files over again (the same file read twice makes two
    // computers) until it holds the number asked for.
    if (grown <= 0 || files.size() < 2)
        return 0;
    const QStringList batch = files.mid(files.size() / 2, 500);
    const QString big = freshLedger(dir, QStringLiteral("grown.mdb"));
    for (int have = 0; have < grown; have += int(files.mid(0, grown - have).size()))
        if (runAdmin(big, files.mid(0, grown - have)).exitCode != 0)
            return 1;
    Figures empty, full;
    for (int run = 0; run < runs; ++run) {
        AdminRun r = readInto(dir, QString(), batch);
        empty.add(r.seconds, r.cpuSeconds);
        r = readInto(dir, big, batch);
        full.add(r.seconds, r.cpuSeconds);
    }
    const double b = double(batch.size());
    std::printf("growth: %lld files into an empty ledger   %5.2f ms/file wall, %5.2f ms/file cpu\n", qlonglong(batch.size()),
                median(empty.wall) * 1000 / b, median(empty.cpu) * 1000 / b);
    std::printf("        the same into one of %d computers %5.2f ms/file wall, %5.2f ms/file cpu (%.2f x, %.2f x)\n", grown,
                median(full.wall) * 1000 / b, median(full.cpu) * 1000 / b, median(full.wall) / median(empty.wall),
                median(full.cpu) / median(empty.cpu));
    return 0;
}
