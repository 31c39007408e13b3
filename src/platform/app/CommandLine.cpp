#include "platform/app/CommandLine.h"

#include "platform/app/App.h"

namespace app {

void PrintLine(std::FILE* to, const QString& line) { std::fprintf(to, "%s\n", line.toUtf8().constData()); }

CommandLine::CommandLine(const char* command, const char* synopsis, std::vector<Option> options)
    : m_command(QString::fromUtf8(command)), m_synopsis(QString::fromUtf8(synopsis)), m_options(std::move(options))
{
}

bool CommandLine::Parse(const QStringList& args)
{
    bool optionsEnded = false;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        if (optionsEnded || !a.startsWith(QLatin1String("--"))) {
            m_operands << a;
            continue;
        }
        if (a == QLatin1String("--")) {
            optionsEnded = true;
            continue;
        }
        const auto known = std::find_if(m_options.begin(), m_options.end(), [&](const Option& o) { return a == QLatin1String(o.name); });
        if (known == m_options.end()) {
            Usage(QStringLiteral("unknown option ") + a);
            return false;
        }
        if (!known->takesValue) {
            m_values.insert(a, QString());
        } else if (++i < args.size()) {
            m_values.insert(a, args[i]);
        } else {
            Usage(a + QStringLiteral(" needs a value"));
            return false;
        }
    }
    return true;
}

QString CommandLine::LedgerPath() const { return Value("--ledger", Path() + QStringLiteral("/pcdb.mdb")); }

int CommandLine::Usage(const QString& why) const
{
    if (!why.isEmpty())
        Error(why);
    PrintLine(stderr, QStringLiteral("usage: fenwold-admin ") + m_command + QLatin1Char(' ') + m_synopsis);
    return ExitFailed;
}

void CommandLine::Error(const QString& text) const
{
    PrintLine(stderr, QStringLiteral("fenwold-admin ") + m_command + QStringLiteral(": ") + text);
}

} // namespace app
