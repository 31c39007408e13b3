#include "foundation/AdminExport.h"

#include "foundation/AdminLedger.h"
#include "foundation/mdl_ini.h"

namespace AdminExport {

int Run(const char* command, const List& list, const QStringList& args)
{
    std::vector<app::CommandLine::Option> options{{"--ledger", true}, {"--ini", true}};
    options.insert(options.end(), list.options.begin(), list.options.end());
    QByteArray synopsis = "[--ledger PATH] [--ini PATH] ";
    if (*list.synopsis)
        synopsis += QByteArray(list.synopsis) + ' ';
    synopsis += "OUT";
    app::CommandLine line(command, synopsis.constData(), options);
    if (!line.Parse(args))
        return app::ExitFailed;
    if (line.Operands().size() != 1)
        return line.Usage(line.Operands().isEmpty() ? QStringLiteral("no output file given") : QStringLiteral("one output file only"));
    if (!AdminLedger::Open(line))
        return app::ExitFailed;
    mdl_ini::SetIniPath(line.Value("--ini"));
    const bool written = list.write(line, line.Operands().first());
    mdl_ini::SetIniPath(QString());
    AdminLedger::Close();
    return written ? app::ExitDone : app::ExitFailed;
}

int ExportCommand(const std::vector<List>& lists, const QStringList& args)
{
    QStringList names;
    for (const List& list : lists) {
        if (!args.isEmpty() && args.first() == QLatin1String(list.name))
            return Run(QByteArray(QByteArray("export ") + list.name).constData(), list, args.mid(1));
        names << QString::fromUtf8(list.name);
    }
    app::CommandLine line("export", "LIST [--ledger PATH] [--ini PATH] [options] OUT", {});
    return line.Usage((args.isEmpty() ? QStringLiteral("no list given") : QStringLiteral("unknown list ") + args.first())
                      + QStringLiteral("; the lists: ") + names.join(QStringLiteral(", ")));
}

} // namespace AdminExport
