// fenwold-admin: the companion program for scripts and administrators. It works on a ledger
// without a window: makes an empty ledger or a demo one, reads inventory files, writes the lists of the windows
// to files, backs the ledger up and checks it.
#include "assetlist/ExportListCommand.h"
#include "demo/DemoLedger.h"
#include "intake/ReadCommand.h"
#include "ledger/LedgerCommands.h"
#include "licences/LicenceExports.h"
#include "mail/ExportMailCommand.h"
#include "network/ExportNetworkCommand.h"
#include "platform/ui/ConsoleDialogs.h"
#include "profile/SheetCommand.h"

#include <QApplication>
#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>

namespace {

// The lists of `export LIST`, each written by its window's own routines.
std::vector<AdminExport::List> exportLists()
{
    std::vector<AdminExport::List> lists{MainListExport(), LicencesExport(), CensusExport(), CensusComputersExport()};
    for (AdminExport::List& mail : MailExports())
        lists.push_back(std::move(mail));
    lists.push_back(NetworkListExport());
    lists.push_back(PrinterListExport());
    return lists;
}

void printUsage(std::FILE* to)
{
    QByteArray lists;
    for (const AdminExport::List& list : exportLists())
        lists += QByteArray(lists.isEmpty() ? "" : ", ") + list.name;
    std::fprintf(
        to,
        "usage: fenwold-admin <command> [arguments]\n"
        "\n"
        "commands:\n"
        "  new-ledger PATH      write an empty ledger to PATH (never overwrites)\n"
        "  demo-ledger PATH     write a demo ledger of 60 computers to PATH (never overwrites), and a DB.ini of three views beside it if "
        "none is there\n"
        "  read [--english] [--ledger PATH] FILE...   read inventory files, each a new computer\n"
        "  export LIST [--ledger PATH] [--ini PATH] [options] OUT   write a window's list to OUT as the window exports it\n"
        "      LIST: %s\n"
        "  export-list [--ledger PATH] [--ini PATH] [--view N] OUT   the same as export main\n"
        "  sheet [--ledger PATH] MAINKEY... OUT.pdf   the printed sheets of computers, in one PDF\n"
        "  backup [--ledger PATH] OUT   copy a ledger, in use or not, to the new file OUT\n"
        "  check [--ledger PATH]   check the file and the ledger's consistency\n",
        lists.constData());
}

} // namespace

int main(int argc, char** argv)
{
    // The exports fill the windows' grids and the sheets are drawn from the profile window's
    // controls, widgets, so those commands run under the widget application on the offscreen
    // platform: they need no display and show nothing. The others need no more than the core
    // application.
    const bool widgets =
        argc > 1 && (std::strcmp(argv[1], "export") == 0 || std::strcmp(argv[1], "export-list") == 0 || std::strcmp(argv[1], "sheet") == 0);
    if (widgets)
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const std::unique_ptr<QCoreApplication> application =
        widgets ? std::make_unique<QApplication>(argc, argv) : std::make_unique<QCoreApplication>(argc, argv);
    ui::ConsoleDialogs console;
    ui::SetDialogs(&console);

    QStringList args = QCoreApplication::arguments().mid(1);
    if (args.isEmpty() || args.first() == QLatin1String("--help") || args.first() == QLatin1String("-h")) {
        printUsage(args.isEmpty() ? stderr : stdout);
        return args.isEmpty() ? 1 : 0;
    }
    const QString command = args.takeFirst();
    const std::pair<const char*, std::function<int(const QStringList&)>> commands[] = {
        {"new-ledger", ledger::NewLedgerCommand},
        {"demo-ledger", demo::DemoLedgerCommand},
        {"read", ReadCommand},
        {"export", [](const QStringList& a) { return AdminExport::ExportCommand(exportLists(), a); }},
        {"export-list", [](const QStringList& a) { return AdminExport::Run("export-list", MainListExport(), a); }},
        {"sheet", SheetCommand},
        {"backup", ledger::BackupCommand},
        {"check", ledger::CheckCommand},
    };
    for (const auto& [name, run] : commands)
        if (command == QLatin1String(name))
            return run(args);
    std::fprintf(stderr, "fenwold-admin: unknown command '%s'\n\n", command.toUtf8().constData());
    printUsage(stderr);
    return 1;
}
