// Writes N generated inventory files into a folder, for trying the read by hand:
//   bench_intake_generate FOLDER N
#include "demo/InventoryGenerator.h"

#include <QCoreApplication>
#include <QStringList>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() != 3 || args[2].toInt() <= 0) {
        std::fputs("usage: bench_intake_generate FOLDER N\n", stderr);
        return 1;
    }
    const int written = demo::WriteInventoryFiles(args[1], args[2].toInt());
    std::printf("%d files in %s\n", written, args[1].toUtf8().constData());
    return written == args[2].toInt() ? 0 : 1;
}
