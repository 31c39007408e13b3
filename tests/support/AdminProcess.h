#pragma once

#include "TestPaths.h"

#include <QString>
#include <QStringList>

// fenwold-admin run as a process, the way scripts run it.
struct AdminRun {
    int exitCode = -1;         // -1 when it crashed or did not finish
    QStringList out;           // the lines of standard output, blank lines left out
    QString err;
};

AdminRun Admin(const QStringList& args, const QString& program = QStringLiteral(FENWOLD_BINARY_DIR "/src/app/fenwold-admin"));
// The same on a disk that fills up: no file of the process may grow past limit bytes (RLIMIT_FSIZE,
// with SIGXFSZ ignored so that a write past it fails instead of killing the process).
AdminRun AdminWithFileLimit(const QStringList& args, qint64 limit);
