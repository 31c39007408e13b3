#include "intake/ReadCommand.h"

#include "foundation/AdminLedger.h"
#include "foundation/Mdl_Access_mdb.h"
#include "intake/InventoryRead.h"
#include "platform/app/CommandLine.h"

namespace {

QString describe(const InventoryFileResult& r)
{
    const QString key = QStringLiteral("MainKey ") + QString::number(r.mainKey);
    const QString overflow = QStringLiteral(", no new key after 32767: values written onto ");
    switch (r.outcome) {
    case InventoryFileResult::Read:
        return r.path + QStringLiteral(": ") + (r.keyOverflow ? QStringLiteral("refused") + overflow + key : key);
    case InventoryFileResult::RefusedHeader:
        return r.path + QStringLiteral(": refused, the first line is not Key,Group,Item,SubItem,Contents,Unit,Renewalday");
    case InventoryFileResult::Unreadable:
        return r.path + QStringLiteral(": refused, cannot be read (") + r.reason + QStringLiteral("); ")
               + (r.keyOverflow ? QStringLiteral("values of the staged file written onto ") + key
                                : key + QStringLiteral(" made from the staged file"));
    case InventoryFileResult::NotWritten:
        return r.path + QStringLiteral(": not read, the ledger could not be written (") + r.reason + QStringLiteral(")");
    case InventoryFileResult::NotAttempted: return r.path + QStringLiteral(": not read, the read stopped at the failed write");
    }
    return r.path;
}

} // namespace

int ReadCommand(const QStringList& args)
{
    app::CommandLine command("read", "[--english] [--ledger PATH] FILE...", {{"--english", false}, {"--ledger", true}});
    if (!command.Parse(args))
        return app::ExitFailed;
    const QStringList& files = command.Operands();
    if (files.isEmpty())
        return command.Usage(QStringLiteral("no inventory file given"));
    if (!AdminLedger::Open(command))
        return app::ExitFailed;

    const InventoryLanguage language = command.Has("--english") ? InventoryLanguage::English : InventoryLanguage::Japanese;
    int read = 0;
    int refused = 0;
    int notRead = 0;
    const InventoryRunResult run = ReadInventoryFiles(files, language, [&](const InventoryFileResult& r) {
        if (r.outcome == InventoryFileResult::NotWritten || r.outcome == InventoryFileResult::NotAttempted)
            ++notRead;
        else if (r.outcome == InventoryFileResult::Read && !r.keyOverflow)
            ++read;
        else
            ++refused;
        app::PrintLine(stdout, describe(r));
        std::fflush(stdout);
    });
    QString summary = QStringLiteral("%1 of %2 files read, %3 refused").arg(read).arg(files.size()).arg(refused);
    if (run.failure) {
        summary += QStringLiteral(", %1 not read: the ledger could not be written").arg(notRead);
        // the error as the window's box shows it, with its number
        Mdl_Access_mdb::StandardErrorBox(*run.failure);
    }
    app::PrintLine(stdout, summary);
    AdminLedger::Close();
    if (run.failure)
        return app::ExitFailed;
    return refused == 0 ? app::ExitDone : app::ExitSomeRefused;
}
