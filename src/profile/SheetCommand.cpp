#include "profile/SheetCommand.h"

#include "foundation/AdminLedger.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "platform/app/CommandLine.h"
#include "platform/print/PrinterSurface.h"
#include "platform/ui/ConsoleDialogs.h"
#include "platform/ui/Fonts.h"
#include "profile/frm_Edit_Computer.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QPrinter>
#include <QTemporaryFile>

#include <vector>

namespace {

// The console's boxes, counted: a computer whose loading showed one is not printed.
class CountingConsole : public ui::ConsoleDialogs {
public:
    int boxes = 0;
    int MessageBox(const QString& prompt, int buttons, const QString& title) override
    {
        ++boxes;
        return ConsoleDialogs::MessageBox(prompt, buttons, title);
    }
};

// Installs a provider for the command's run and puts the previous one back.
class DialogsDuringRun {
public:
    explicit DialogsDuringRun(ui::DialogProvider& provider) : m_previous(&ui::Dialogs()) { ui::SetDialogs(&provider); }
    ~DialogsDuringRun() { ui::SetDialogs(m_previous); }

private:
    ui::DialogProvider* m_previous;
};

void unloadProfile()
{
    if (frm_Edit_Computer* w = frm_Edit_Computer::IfLoaded())
        w->Unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

// The sheets into the file; false when one of them could not be made.
bool printSheets(const app::CommandLine& line, const std::vector<std::int16_t>& keys, const QString& path, int& pages)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    printer.setPageSize(QPageSize(QPageSize::A4));
    printer.setPageMargins(QMarginsF(5, 5, 5, 5), QPageLayout::Millimeter);
    printer.setCreator(QStringLiteral("Fenwold"));
    printer.setDocName(QStringLiteral("PCのプロファイル"));

    CountingConsole console;
    const DialogsDuringRun dialogs(console);
    print::PrinterSurface surface(printer, true);
    for (std::int16_t key : keys) {
        // each sheet from a window opened afresh on its computer, so that no list of the
        // computer before it stands in the grids
        Mdl_gData::g.SelectedMainKey = key;
        Mdl_gData::g.SelectedGridRow = 0;
        try {
            frm_Edit_Computer& w = frm_Edit_Computer::Instance();
            w.PrintSheet(key, surface);
        } catch (const vb::VbError& e) {
            Mdl_Access_mdb::StandardErrorBox(e);
        }
        unloadProfile();
        if (console.boxes > 0) {
            line.Error(QStringLiteral("the sheet of computer %1 could not be made; nothing written").arg(key));
            return false;
        }
    }
    pages = surface.Pages();
    if (!surface.Finish()) {
        line.Error(QStringLiteral("cannot write ") + path);
        return false;
    }
    return true;
}

} // namespace

int SheetCommand(const QStringList& args)
{
    app::CommandLine line("sheet", "[--ledger PATH] MAINKEY... OUT.pdf", {{"--ledger", true}});
    if (!line.Parse(args))
        return app::ExitFailed;
    QStringList operands = line.Operands();
    if (operands.size() < 2)
        return line.Usage(QStringLiteral("a computer's MAINKEY and the output file are needed"));
    const QString out = operands.takeLast();
    std::vector<std::int16_t> keys;
    for (const QString& operand : operands) {
        bool ok = false;
        const int key = operand.toInt(&ok);
        if (!ok || key < -32768 || key > 32767)
            return line.Usage(QStringLiteral("not a computer's key: ") + operand);
        keys.push_back(std::int16_t(key));
    }
    if (!AdminLedger::Open(line))
        return app::ExitFailed;
    for (std::int16_t key : keys) {
        if (!Mdl_Access_mdb::RecordExists(QStringLiteral("SELECT tbl_Computer_List.MainKey FROM tbl_Computer_List  WHERE (MainKey = ")
                                          + QString::number(key) + QStringLiteral(");"))) {
            line.Error(QStringLiteral("no computer has the key %1").arg(key));
            AdminLedger::Close();
            return app::ExitFailed;
        }
    }

    // drawn into a file beside OUT, which takes OUT's name once it is whole
    const QFileInfo target(out);
    QTemporaryFile partial(target.absolutePath() + QStringLiteral("/.") + target.fileName() + QStringLiteral(".XXXXXX"));
    if (!partial.open()) {
        line.Error(QStringLiteral("cannot write ") + out);
        AdminLedger::Close();
        return app::ExitFailed;
    }
    partial.close();
    ui::InstallFontSubstitutes();
    Mdl_gData::FillCodeTables();
    int pages = 0;
    const bool printed = printSheets(line, keys, partial.fileName(), pages);
    AdminLedger::Close();
    if (!printed)
        return app::ExitFailed;
    QFile::remove(out);
    if (!partial.rename(out)) {
        line.Error(QStringLiteral("cannot write ") + out);
        return app::ExitFailed;
    }
    partial.setAutoRemove(false);
    const auto count = [](qsizetype n, const char* what) -> QString {
        return QString::number(n) + u' ' + QString::fromUtf8(what) + (n == 1 ? QString() : QStringLiteral("s"));
    };
    app::PrintLine(stdout,
                   out + QStringLiteral(": ") + count(qsizetype(keys.size()), "sheet") + QStringLiteral(", ") + count(pages, "page"));
    return app::ExitDone;
}
