#include "ledger/LedgerCommands.h"

#include "ledger/LedgerFile.h"
#include "ledger/LedgerTools.h"
#include "platform/app/CommandLine.h"

namespace ledger {

int NewLedgerCommand(const QStringList& args)
{
    app::CommandLine command("new-ledger", "PATH", {});
    if (!command.Parse(args))
        return app::ExitFailed;
    if (command.Operands().size() != 1)
        return command.Usage(QStringLiteral("one PATH"));
    const QString error = CreateLedger(command.Operands().first());
    if (!error.isEmpty()) {
        command.Error(error);
        return app::ExitFailed;
    }
    app::PrintLine(stdout, command.Operands().first());
    return app::ExitDone;
}

int BackupCommand(const QStringList& args)
{
    app::CommandLine command("backup", "[--ledger PATH] OUT", {{"--ledger", true}});
    if (!command.Parse(args))
        return app::ExitFailed;
    if (command.Operands().size() != 1)
        return command.Usage(command.Operands().isEmpty() ? QStringLiteral("no output file given")
                                                          : QStringLiteral("one output file only"));
    const QString out = command.Operands().first();
    const QString error = BackupLedger(command.LedgerPath(), out);
    if (!error.isEmpty()) {
        command.Error(error);
        return app::ExitFailed;
    }
    app::PrintLine(stdout, out);
    return app::ExitDone;
}

int CheckCommand(const QStringList& args)
{
    app::CommandLine command("check", "[--ledger PATH]", {{"--ledger", true}});
    if (!command.Parse(args))
        return app::ExitFailed;
    if (!command.Operands().isEmpty())
        return command.Usage(QStringLiteral("no operands"));
    const QString path = command.LedgerPath();
    const CheckReport report = CheckLedger(path);
    if (!report.opened) {
        command.Error(report.error);
        return app::ExitFailed;
    }
    for (const QString& fault : report.faults)
        app::PrintLine(stdout, fault);
    if (!report.faults.isEmpty())
        return app::ExitSomeRefused;
    app::PrintLine(stdout, QStringLiteral("ok: ") + path);
    return app::ExitDone;
}

} // namespace ledger
