#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <cstdio>
#include <vector>

// The command line of one fenwold-admin command: its options, each with or without a value, and
// its operands. Every command parses the same way: options first or among the operands, "--"
// ends them, an unknown option or a missing value is a usage error.
namespace app {

// The exit statuses that every command shares.
inline constexpr int ExitDone = 0;        // everything done
inline constexpr int ExitFailed = 1;      // a usage error, or a failure that stopped the command
inline constexpr int ExitSomeRefused = 2; // some inputs refused (or faults found), the rest done

class CommandLine {
public:
    struct Option {
        const char* name; // "--ledger"
        bool takesValue;
    };

    // command: the word after fenwold-admin; synopsis: its arguments for the usage line.
    CommandLine(const char* command, const char* synopsis, std::vector<Option> options);

    // False after a usage error, which has been printed.
    bool Parse(const QStringList& args);

    bool Has(const char* option) const { return m_values.contains(QLatin1String(option)); }
    QString Value(const char* option, const QString& fallback = {}) const { return m_values.value(QLatin1String(option), fallback); }
    const QStringList& Operands() const { return m_operands; }
    // The ledger the command works on: --ledger PATH, or pcdb.mdb beside the program.
    QString LedgerPath() const;

    // Prints why and the usage line on standard error; returns ExitFailed.
    int Usage(const QString& why) const;
    // "fenwold-admin COMMAND: text" on standard error.
    void Error(const QString& text) const;

private:
    QString m_command;
    QString m_synopsis;
    std::vector<Option> m_options;
    QHash<QString, QString> m_values;
    QStringList m_operands;
};

// One line of text, UTF-8, to a stream.
void PrintLine(std::FILE* to, const QString& line);

} // namespace app
