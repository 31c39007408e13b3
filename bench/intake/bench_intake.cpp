// The bulk read against its floor: generated inventory files read into a fresh ledger by
// `fenwold-admin read` as a process, and the same end result written by a plain SQLite program.
// Prints the median of several runs of each, their ratio, and the peak memory of the read
// command for one file and for all of them (/usr/bin/time's maximum resident set size).
//
//   bench_intake [--files N] [--runs R] [--keep FOLDER]
#include "InventoryGenerator.h"
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
#include <vector>

namespace {

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
    QStringList args = {QStringLiteral("-f"), QStringLiteral("cpu=%U+%S maxrss_kb=%M"), QStringLiteral(FENWOLD_ADMIN), QStringLiteral("read"),
                        QStringLiteral("--ledger"), ledger};
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

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    int fileCount = 1000;
    int runs = 3;
    QString keep;
    const QStringList args = app.arguments();
    for (qsizetype i = 1; i + 1 < args.size(); i += 2) {
        if (args[i] == QLatin1String("--files"))
            fileCount = args[i + 1].toInt();
        else if (args[i] == QLatin1String("--runs"))
            runs = args[i + 1].toInt();
        else if (args[i] == QLatin1String("--keep"))
            keep = args[i + 1];
    }

    QTemporaryDir dir;
    const QString folder = keep.isEmpty() ? dir.filePath(QStringLiteral("inventory")) : keep;
    QElapsedTimer t;
    t.start();
    bench::WriteInventoryFiles(folder, fileCount);
    QStringList files;
    for (const QString& name : QDir(folder).entryList({QStringLiteral("*.csv")}, QDir::Files, QDir::Name))
        files << QDir(folder).filePath(name);
    std::printf("%lld inventory files written in %.2f s (%s)\n", qlonglong(files.size()), double(t.nsecsElapsed()) / 1e9,
                machine().toUtf8().constData());

    const AdminRun one = runAdmin(freshLedger(dir, QStringLiteral("one.mdb")), files.mid(0, 1));
    std::vector<double> readTimes, floorTimes, readCpu, floorCpu;
    long peakKb = 0;
    QString readLedger, floorLedger;
    for (int run = 0; run < runs; ++run) {
        readLedger = freshLedger(dir, QStringLiteral("read.mdb"));
        const AdminRun all = runAdmin(readLedger, files);
        if (all.exitCode != 0) {
            std::fprintf(stderr, "fenwold-admin read ended with %d\n", all.exitCode);
            return 1;
        }
        readTimes.push_back(all.seconds);
        readCpu.push_back(all.cpuSeconds);
        peakKb = std::max(peakKb, all.maxRssKb);

        floorLedger = freshLedger(dir, QStringLiteral("floor.mdb"));
        t.restart();
        const double cpu = cpuNow();
        const QString error = bench::FloorRead(floorLedger, files);
        floorTimes.push_back(double(t.nsecsElapsed()) / 1e9);
        floorCpu.push_back(cpuNow() - cpu);
        if (!error.isEmpty()) {
            std::fprintf(stderr, "floor: %s\n", error.toUtf8().constData());
            return 1;
        }
    }
    const QStringList read = bench::DumpComputers(readLedger);
    const QStringList floor = bench::DumpComputers(floorLedger);
    if (read != floor) {
        for (qsizetype i = 0; i < std::min(read.size(), floor.size()); ++i)
            if (read[i] != floor[i]) {
                std::fprintf(stderr, "first difference:\n  read  %s\n  floor %s\n", read[i].toUtf8().constData(),
                             floor[i].toUtf8().constData());
                break;
            }
        std::fprintf(stderr, "the read and the floor differ (%lld and %lld rows)\n", qlonglong(read.size()), qlonglong(floor.size()));
        return 1;
    }

    const double readS = median(readTimes), floorS = median(floorTimes);
    const double readC = median(readCpu), floorC = median(floorCpu);
    std::printf("same end result in both ledgers: %lld rows in the six tables\n", qlonglong(read.size()));
    std::printf("                     wall (median of %d)      cpu (user+sys)\n", runs);
    std::printf("fenwold-admin read:  %6.2f s  %5.2f ms/file   %6.2f s\n", readS, readS * 1000 / files.size(), readC);
    std::printf("plain SQLite floor:  %6.2f s  %5.2f ms/file   %6.2f s\n", floorS, floorS * 1000 / files.size(), floorC);
    std::printf("ratio:               %6.2f x                  %6.2f x\n", readS / floorS, readC / floorC);
    std::printf("peak memory of the read: %.1f MB for one file, %.1f MB for %lld files, growth %.1f MB\n", one.maxRssKb / 1024.0,
                peakKb / 1024.0, qlonglong(files.size()), (peakKb - one.maxRssKb) / 1024.0);
    return 0;
}
