#pragma once

#include "platform/app/CommandLine.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <vector>

// fenwold-admin export LIST [--ledger PATH] [--ini PATH] [options] OUT
//
// Every list window's export as a command: the window's grid filled offscreen by the window's own
// routine, in the state the window shows right after it opens (plus the choices the options
// name), and written by the window's own export routine to OUT exactly as named. The grids are
// widgets that are never shown, so a QApplication must exist (the companion program makes one on
// the offscreen platform).
namespace AdminExport {

struct List {
    const char* name;     // the LIST word: "main", "mail", "census-computers" ...
    const char* synopsis; // its own options for the usage line ("[--view N]"), or ""
    std::vector<app::CommandLine::Option> options;
    // Fills and writes; the ledger is open, the settings file set. False after a failure, which
    // has been said on standard error: the window's error box through the console dialogs, or
    // command.Error for a bad option value.
    std::function<bool(const app::CommandLine& command, const QString& out)> write;
};

// Runs one list's export: the options of every export (--ledger, --ini) and the list's own, one
// OUT. 0 when OUT was written (an empty list writes an empty file), 1 on a usage error, a missing
// or unreadable ledger, or a failure of the list.
int Run(const char* command, const List& list, const QStringList& args);

// fenwold-admin export LIST ...: the list named by the first argument.
int ExportCommand(const std::vector<List>& lists, const QStringList& args);

} // namespace AdminExport
