#include "mail/ExportMailCommand.h"

#include "mail/MailExport.h"
#include "mail/MailList.h"
#include "platform/ui/FlexGrid.h"
#include "platform/vb/VbError.h"

#include <QWidget>

#include <algorithm>
#include <cstdint>

namespace {

// The location the combo would have to offer; false after saying why.
bool chosenLocation(const app::CommandLine& command, std::int16_t& location)
{
    location = 0;
    if (!command.Has("--location"))
        return true;
    bool number = false;
    const int code = command.Value("--location").toInt(&number);
    if (!number || code < INT16_MIN || code > INT16_MAX) {
        command.Usage(QStringLiteral("--location takes a location code, not ") + command.Value("--location"));
        return false;
    }
    const std::vector<MailChoice> offered = MailChoices::Locations();
    if (std::none_of(offered.begin(), offered.end(), [&](const MailChoice& c) { return c.key == code; })) {
        command.Error(QStringLiteral("no location %1 in use to choose").arg(code));
        return false;
    }
    location = std::int16_t(code);
    return true;
}

bool writeMail(const app::CommandLine& command, const QString& out, MailExport::Form form)
{
    // The grid's host is never shown, so neither is the grid.
    QWidget host;
    ui::FlexGrid grid(&host);
    MailList list(grid);
    try {
        std::int16_t location = 0;
        if (!chosenLocation(command, location))
            return false;
        // an empty register leaves the grid without rows: the file holds what the window's
        // export writes of it
        if (list.View_MailList(location) == ui::FillResult::Failed)
            return false;
        list.ResetMailSelection();
        MailExport::WriteGrid(grid, form, out);
    } catch (const vb::VbError& e) {
        // The window's exports fail in silence; a script is told.
        command.Error(QStringLiteral("%1 (%2) %3").arg(e.Description()).arg(e.Number()).arg(out));
        return false;
    }
    return true;
}

} // namespace

std::vector<AdminExport::List> MailExports()
{
    const std::vector<app::CommandLine::Option> options{{"--location", true}};
    const char* const synopsis = "[--location CODE]";
    return {
        {"mail", synopsis, options,
         [](const app::CommandLine& c, const QString& out) { return writeMail(c, out, MailExport::Form::FullList); }},
        {"mail-addressbook", synopsis, options,
         [](const app::CommandLine& c, const QString& out) { return writeMail(c, out, MailExport::Form::AddressBook); }},
        {"mail-beatbox", synopsis, options,
         [](const app::CommandLine& c, const QString& out) { return writeMail(c, out, MailExport::Form::BeatBox); }},
    };
}
