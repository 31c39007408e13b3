#pragma once

#include <QString>
#include <QStringList>

// The demo ledger: an organisation of sixty computers to look at Fenwold with, the same on every
// run. Its computers are generated inventory files read by the intake's read (Japanese and English
// tools, several makers, models, systems and address ranges, five retired), around them the
// masters with a few retired rows that computers still use, users in sections and divisions,
// licence purchases and assignments, mail accounts, network devices and the rebuilt address list.
namespace demo {

struct DemoLedgerSummary {
    int computers = 0;
    int retired = 0;
    int english = 0; // read with the English reader
    int users = 0;
    int purchases = 0;
    int assignments = 0;
    int mailAccounts = 0;
    int devices = 0;
};

// Writes the demo ledger to path, which must not exist: it is made under a temporary name and
// takes its name only when every write has been committed. Returns an empty string, or why
// nothing was written.
QString WriteDemoLedger(const QString& path, DemoLedgerSummary& summary);

// The settings file of the demo: three saved views (by section, by operating system, the retired
// computers), code page 932 with CR LF.
QByteArray DemoSettings();

// fenwold-admin demo-ledger PATH: the demo ledger at PATH and, when none is beside it, its
// DB.ini. Prints one line of what it wrote. 0 written, 1 not (PATH exists, a write failed).
int DemoLedgerCommand(const QStringList& args);

} // namespace demo
