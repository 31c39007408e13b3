#pragma once

#include "TestPaths.h"

#include <QString>
#include <QStringList>

class TempDir;

// A program run as a process, the way scripts run it.
struct ProcessRun {
    int exitCode = -1;         // -1 when it crashed or did not finish
    QStringList out;           // the lines of standard output, blank lines left out
    QString err;
};
using AdminRun = ProcessRun;

ProcessRun RunProcess(const QString& program, const QStringList& args);

inline const QString kAdminProgram = QStringLiteral(FENWOLD_BINARY_DIR "/src/app/fenwold-admin");

// fenwold-admin, the built one unless told.
inline ProcessRun Admin(const QStringList& args, const QString& program = kAdminProgram) { return RunProcess(program, args); }

// A copy of fenwold-admin in that folder, so that it finds pcdb.mdb and DB.ini beside itself.
QString AdminBeside(const TempDir& folder);
