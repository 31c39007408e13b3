#include "support/AdminProcess.h"

#include <gtest/gtest.h>

#include <QProcess>

AdminRun Admin(const QStringList& args, const QString& program)
{
    QProcess p;
    p.start(program, args);
    AdminRun r;
    if (!p.waitForFinished(60000)) {
        ADD_FAILURE() << "fenwold-admin did not finish";
        return r;
    }
    r.exitCode = p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1;
    r.out = QString::fromUtf8(p.readAllStandardOutput()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    r.err = QString::fromUtf8(p.readAllStandardError());
    return r;
}
