#include "assetlist/ExportListCommand.h"

#include "assetlist/ListExport.h"
#include "assetlist/ListQuery.h"
#include "assetlist/MainList.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "foundation/mdl_ini.h"
#include "platform/app/App.h"
#include "platform/db/Connection.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/FlexGrid.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/VbError.h"

#include <QFileInfo>
#include <QWidget>

#include <cstdio>
#include <optional>

namespace {

constexpr int kWritten = 0;
constexpr int kFailed = 1;

void print(const QString& line)
{
    std::fprintf(stderr, "fenwold-admin export-list: %s\n", line.toUtf8().constData());
}

int usage(const QString& why)
{
    print(why);
    std::fputs("usage: fenwold-admin export-list [--ledger PATH] [--ini PATH] [--view N] OUT\n", stderr);
    return kFailed;
}

// Passes every dialog on to the provider that was installed before, and notes whether a
// critical message was among them. On this path the only critical message is StandardErrorBox,
// the one display of a failure, so it tells the command's outcome without each routine having
// to report one: fnc_View_PClist answers False both for a list without rows and after a failure.
class ErrorBoxWatch : public ui::DialogProvider {
public:
    ErrorBoxWatch() : m_next(ui::Dialogs()) { ui::SetDialogs(this); }
    ~ErrorBoxWatch() override { ui::SetDialogs(&m_next); }
    ErrorBoxWatch(const ErrorBoxWatch&) = delete;
    ErrorBoxWatch& operator=(const ErrorBoxWatch&) = delete;

    bool Shown() const { return m_shown; }

    int MessageBox(const QString& prompt, int buttons, const QString& title) override
    {
        // the icon is one of 16, 32, 48 and 64 in the style's second digit
        if ((buttons & 0x70) == ui::vbCritical)
            m_shown = true;
        return m_next.MessageBox(prompt, buttons, title);
    }
    std::optional<QString> InputBox(const QString& prompt, const QString& title, const QString& defaultText) override
    {
        return m_next.InputBox(prompt, title, defaultText);
    }
    std::optional<QString> FileDialog(const ui::FileDialogRequest& request) override { return m_next.FileDialog(request); }
    bool PrinterDialog(const ui::PrinterDialogRequest& request) override { return m_next.PrinterDialog(request); }

private:
    ui::DialogProvider& m_next;
    bool m_shown = false;
};

// Opens the ledger at path into DbConnection, as the program opens pcdb.mdb beside it; the
// program folder, where the settings file may live, is left alone.
bool openLedger(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isFile()) {
        print(QStringLiteral("no ledger at ") + path);
        return false;
    }
    try {
        Mdl_gData::ReleaseDbConnection();
        Mdl_gData::DbConnection().Open(QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=") + info.absoluteFilePath());
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        return false;
    }
    return true;
}

void closeLedger()
{
    if (Mdl_gData::HasDbConnection()) {
        Mdl_gData::DbConnection().Close();
        Mdl_gData::ReleaseDbConnection();
    }
}

// The main list as the main window's load makes it, written to out. False after a failure,
// which the error box has shown.
bool exportList(std::optional<std::int16_t> view, const QString& out, const ErrorBoxWatch& errors)
{
    using namespace Mdl_gData;
    // The grid's host is never shown, so neither is the grid when the fill makes it visible.
    QWidget host;
    ui::FlexGrid grid(&host);
    MainList list(grid);
    try {
        if (view) {
            SectionNumber = *view;
        } else {
            const QString section = mdl_ini::IniRead(QStringLiteral("Main"), QStringLiteral("SectionNumber"));
            SectionNumber = section.isEmpty() ? std::int16_t(0) : vb::CInt(section);
        }
        mdl_ini::LoadViewSettings();
        list.FGridViewSelect_ini();
        gSetSQLVal();
        // Without rows the grid is left with no rows and no columns, and the file is empty.
        list.fnc_View_PClist();
        if (errors.Shown())
            return false;
        ListExport::WriteGrid(grid, out);
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        return false;
    }
    return !errors.Shown();
}

} // namespace

int ExportListCommand(const QStringList& args)
{
    QString ledgerPath;
    QString iniPath;
    std::optional<std::int16_t> view;
    QStringList outs;
    bool options = true;
    for (qsizetype i = 0; i < args.size(); ++i) {
        const QString& a = args[i];
        const bool takesValue = a == QLatin1String("--ledger") || a == QLatin1String("--ini") || a == QLatin1String("--view");
        if (options && a == QLatin1String("--")) {
            options = false;
        } else if (options && takesValue) {
            if (++i >= args.size())
                return usage(a + QStringLiteral(" needs a value"));
            const QString& value = args[i];
            if (a == QLatin1String("--ledger")) {
                ledgerPath = value;
            } else if (a == QLatin1String("--ini")) {
                iniPath = value;
            } else {
                // one of the eight saved views, as the view window's menu offers them
                if (value.size() != 1 || value[0] < u'0' || value[0] > u'7')
                    return usage(QStringLiteral("--view takes a view number from 0 to 7, not ") + value);
                view = std::int16_t(value[0].unicode() - u'0');
            }
        } else if (options && a.startsWith(QLatin1String("--"))) {
            return usage(QStringLiteral("unknown option ") + a);
        } else {
            outs << a;
        }
    }
    if (outs.size() != 1)
        return usage(outs.isEmpty() ? QStringLiteral("no output file given") : QStringLiteral("one output file only"));
    if (ledgerPath.isEmpty())
        ledgerPath = app::Path() + QStringLiteral("/pcdb.mdb");

    mdl_ini::SetIniPath(iniPath);
    ErrorBoxWatch errors;
    bool written = false;
    if (openLedger(ledgerPath)) {
        written = exportList(view, outs.first(), errors);
        closeLedger();
    }
    mdl_ini::SetIniPath(QString());
    return written ? kWritten : kFailed;
}
