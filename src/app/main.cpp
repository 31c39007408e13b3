// fenwold: the window program. It takes no command line; the ledger pcdb.mdb and the settings
// file DB.ini lie beside it. The main window loads first (and may refuse a second instance), and
// the program ends when the main window is unloaded.
#include "platform/ui/Dispatch.h"
#include "platform/ui/Fonts.h"
#include "shell/frm_Main.h"

#include <QApplication>
#include <QLocale>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("fenwold"));
    // the windows hide on unload; the end is the main window's unload, not the last close
    QApplication::setQuitOnLastWindowClosed(false);
    QLocale::setDefault(QLocale(QLocale::Japanese, QLocale::Japan));
    ui::InstallFontSubstitutes();

    // The start is the first event: a failure that the load does not handle is the fatal report.
    ui::Dispatch([&application] {
        frm_Main& main = frm_Main::Instance();
        // Mnu_Program_Quit leaves the windows opened from the menus loaded (its closing question
        // finds the connection already closed); they end here with the program.
        QObject::connect(&main, &ui::Form::Unloaded, &application, &QCoreApplication::quit, Qt::QueuedConnection);
        main.Show();
    });
    return application.exec();
}
