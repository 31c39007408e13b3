#include "support/AdminProcess.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>

#include <csignal>
#include <sys/resource.h>

ProcessRun RunProcess(const QString& program, const QStringList& args, int timeoutMs, const std::function<void()>& inChild)
{
    QProcess p;
    if (inChild)
        p.setChildProcessModifier(inChild);
    p.start(program, args);
    ProcessRun r;
    if (!p.waitForFinished(timeoutMs)) {
        ADD_FAILURE() << program.toStdString() << " did not finish";
        return r;
    }
    r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    r.out = QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}

ProcessRun AdminWithFileLimit(const QStringList& args, qint64 limit)
{
    return RunProcess(kAdminProgram, args, 120000, [limit] {
        const rlimit l{rlim_t(limit), rlim_t(limit)};
        setrlimit(RLIMIT_FSIZE, &l);
        std::signal(SIGXFSZ, SIG_IGN);
    });
}

QString AdminBeside(const TempDir& folder)
{
    const QString program = folder.file(QStringLiteral("fenwold-admin"));
    if (!QFile::copy(kAdminProgram, program))
        ADD_FAILURE() << "cannot copy fenwold-admin to " << program.toStdString();
    QFile::setPermissions(program, QFile::permissions(program) | QFile::ExeOwner);
    return program;
}
