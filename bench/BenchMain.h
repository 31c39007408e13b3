#pragma once

#include "platform/vb/VbError.h"

#include <QApplication>
#include <QStringList>
#include <QThread>

#include <cstdio>
#include <initializer_list>

// The start the window benchmarks share: the offscreen platform unless another is set, whole
// number options "--name N" over their defaults, and a VB error that ends the run said on
// standard error with exit status 1 (2 for a usage error).
namespace BenchMain {

struct Option {
    const char* name; // "--runs"
    int* value;
};

// Lets the events a paint or a previous run left behind be handled: rounds of the event loop
// with a pause between them.
inline void Settle(int rounds, int pauseMs)
{
    for (int i = 0; i < rounds; ++i) {
        QApplication::processEvents();
        QThread::msleep(pauseMs);
    }
}

template <class Body> int Run(int argc, char** argv, const char* program, std::initializer_list<Option> options, Body body)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    const QStringList args = QApplication::arguments();
    for (qsizetype i = 1; i < args.size(); ++i) {
        const Option* given = nullptr;
        for (const Option& option : options)
            if (args[i] == QLatin1String(option.name) && i + 1 < args.size())
                given = &option;
        if (!given) {
            std::fprintf(stderr, "usage: %s", program);
            for (const Option& option : options)
                std::fprintf(stderr, " [%s N]", option.name);
            std::fprintf(stderr, "\n");
            return 2;
        }
        *given->value = args[++i].toInt();
    }
    try {
        return body();
    } catch (const vb::VbError& e) {
        std::fprintf(stderr, "error %ld: %s\n", e.Number(), qPrintable(e.Description()));
        return 1;
    }
}

} // namespace BenchMain
