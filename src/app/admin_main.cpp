// fenwold-admin: the companion program for scripts and administrators. It works on a ledger
// without a window: makes an empty ledger, reads inventory files, writes the main list to a file.
#include "assetlist/ExportListCommand.h"
#include "intake/ReadCommand.h"
#include "ledger/LedgerFile.h"
#include "platform/ui/ConsoleDialogs.h"

#include <QApplication>
#include <QCoreApplication>
#include <QStringList>

#include <cstdio>
#include <cstring>
#include <functional>
#include <memory>

namespace {

void printUsage(std::FILE* to)
{
    std::fputs("usage: fenwold-admin <command> [arguments]\n"
               "\n"
               "commands:\n"
               "  new-ledger PATH      write an empty ledger to PATH (never overwrites)\n"
               "  read [--english] [--ledger PATH] FILE...   read inventory files, each a new computer\n"
               "  export-list [--ledger PATH] [--ini PATH] [--view N] OUT   write the main list to OUT as CSV\n",
               to);
}

int newLedger(const QStringList& args)
{
    if (args.size() != 1) {
        std::fputs("usage: fenwold-admin new-ledger PATH\n", stderr);
        return 1;
    }
    const QString error = ledger::CreateLedger(args.first());
    if (!error.isEmpty()) {
        std::fprintf(stderr, "fenwold-admin: %s\n", error.toUtf8().constData());
        return 1;
    }
    std::printf("%s\n", args.first().toUtf8().constData());
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    // The list export fills the main list's grid, a widget, so that command runs under the widget
    // application on the offscreen platform: it needs no display and shows nothing. The others
    // need no more than the core application.
    const bool widgets = argc > 1 && std::strcmp(argv[1], "export-list") == 0;
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
        {"new-ledger", newLedger},
        {"read", ReadCommand},
        {"export-list", ExportListCommand},
    };
    for (const auto& [name, run] : commands)
        if (command == QLatin1String(name))
            return run(args);
    std::fprintf(stderr, "fenwold-admin: unknown command '%s'\n\n", command.toUtf8().constData());
    printUsage(stderr);
    return 1;
}
