#include "support/AdminProcess.h"

#include <gtest/gtest.h>

#include <QProcess>

#include <csignal>
#include <functional>
#include <sys/resource.h>

namespace {

AdminRun run(const QStringList& args, const QString& program, int timeoutMs, const std::function<void()>& inChild = {})
{
    QProcess p;
    if (inChild)
        p.setChildProcessModifier(inChild);
    p.start(program, args);
    AdminRun r;
    if (!p.waitForFinished(timeoutMs)) {
        ADD_FAILURE() << "fenwold-admin did not finish";
        return r;
    }
    r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    r.out = QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}

} // namespace

AdminRun Admin(const QStringList& args, const QString& program) { return run(args, program, 60000); }

AdminRun AdminWithFileLimit(const QStringList& args, qint64 limit)
{
    return run(args, QStringLiteral(FENWOLD_BINARY_DIR "/src/app/fenwold-admin"), 120000, [limit] {
        const rlimit l{rlim_t(limit), rlim_t(limit)};
        setrlimit(RLIMIT_FSIZE, &l);
        std::signal(SIGXFSZ, SIG_IGN);
    });
}
