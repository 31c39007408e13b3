#pragma once

#include "TestPaths.h"

#include <QString>
#include <QStringList>

#include <functional>

class TempDir;

// A program run as a process, the way scripts run it.
struct ProcessRun {
    int exitCode = -1; // -1 when it crashed or did not finish
    QStringList out;   // the lines of standard output, blank lines left out
    QString err;
};
using AdminRun = ProcessRun;

// inChild runs in the child between fork and exec (limits, signal dispositions).
ProcessRun RunProcess(const QString& program, const QStringList& args, int timeoutMs = 60000, const std::function<void()>& inChild = {});

inline const QString kAdminProgram = QStringLiteral(FENWOLD_BINARY_DIR "/src/app/fenwold-admin");

// fenwold-admin, the built one unless told.
inline ProcessRun Admin(const QStringList& args, const QString& program = kAdminProgram) { return RunProcess(program, args); }

// The same on a disk that fills up: no file of the process may grow past limit bytes (RLIMIT_FSIZE,
// with SIGXFSZ ignored so that a write past it fails instead of killing the process).
ProcessRun AdminWithFileLimit(const QStringList& args, qint64 limit);

// A copy of fenwold-admin in that folder, so that it finds pcdb.mdb and DB.ini beside itself.
QString AdminBeside(const TempDir& folder);
