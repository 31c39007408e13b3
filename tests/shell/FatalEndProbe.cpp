// A program that ends as fenwold ends after an error that no routine handled: the ledger beside
// it connected, a statement written, then the error raised inside an event ("vb" a run-time
// error, anything else a failure outside the run time's errors). Its dialogs are the console's.
// FatalEndTest runs it as a process; it never reaches its own return.
#include "foundation/Mdl_Access_mdb.h"
#include "platform/app/App.h"
#include "platform/ui/ConsoleDialogs.h"
#include "platform/ui/Dispatch.h"
#include "platform/vb/VbError.h"

#include <QApplication>

#include <stdexcept>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    ui::ConsoleDialogs console;
    ui::SetDialogs(&console);
    app::SetPath(args.value(1));
    if (!Mdl_Access_mdb::ConnectDatabase())
        return 3;
    ui::Dispatch([&] {
        Mdl_Access_mdb::ExecuteSql(QStringLiteral("INSERT INTO tbl_Section (Section_Code, Section_Name) VALUES (7, '総務部')"));
        if (args.value(2) == QLatin1String("vb"))
            throw vb::VbError(3021,
                              QStringLiteral("BOF と EOF のいずれかが True になっているか、または現在のレコードが削除されています。"));
        throw std::runtime_error("bad state");
    });
    return 2;
}
