#include "support/AdminProcess.h"

#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>

ProcessRun RunProcess(const QString& program, const QStringList& args)
{
    QProcess p;
    p.start(program, args);
    ProcessRun r;
    if (!p.waitForFinished(60000)) {
        ADD_FAILURE() << program.toStdString() << " did not finish";
        return r;
    }
    r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    r.out = QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}

QString AdminBeside(const TempDir& folder)
{
    const QString program = folder.file(QStringLiteral("fenwold-admin"));
    if (!QFile::copy(kAdminProgram, program))
        ADD_FAILURE() << "cannot copy fenwold-admin to " << program.toStdString();
    QFile::setPermissions(program, QFile::permissions(program) | QFile::ExeOwner);
    return program;
}
