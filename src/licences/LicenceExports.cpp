#include "licences/LicenceExports.h"

#include "assetlist/ListExport.h"
#include "foundation/Mdl_Access_mdb.h"
#include "licences/ApplicationCensus.h"
#include "licences/LicenseAssignment.h"
#include "platform/ui/FlexGrid.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/VbError.h"

#include <QWidget>

#include <cmath>
#include <optional>

namespace {

bool writeLicences(const app::CommandLine&, const QString& out)
{
    // The grids' host is never shown, so neither are the grids.
    QWidget host;
    ui::FlexGrid grid(&host);
    if (LicenseAssignment::FillAssignmentGrid(grid, 0, 0) == ui::FillResult::Failed)
        return false;
    return ListExport::SaveGrid(grid, out);
}

bool writeCensus(const app::CommandLine&, const QString& out)
{
    QWidget host;
    ui::FlexGrid grid(&host);
    if (ApplicationCensus::FillCensusGrid(grid) == ui::FillResult::Failed)
        return false;
    return ListExport::SaveGrid(grid, out);
}

// The census row of the name, or 0.
int censusRow(const ui::FlexGrid& census, const QString& name)
{
    for (int row = 1; row < census.Rows(); ++row)
        if (census.TextMatrix(row, 1).compare(name, Qt::CaseInsensitive) == 0)
            return row;
    return 0;
}

bool writeCensusComputers(const app::CommandLine& command, const QString& out)
{
    if (!command.Has("--application")) {
        command.Usage(QStringLiteral("--application NAME is required"));
        return false;
    }
    const QString name = command.Value("--application");
    std::optional<std::int16_t> location;
    QWidget host;
    ui::FlexGrid census(&host);
    ui::FlexGrid computers(&host);
    try {
        if (command.Has("--location")) {
            const QString code = command.Value("--location");
            const std::optional<double> number = vb::ParseNumber(code);
            if (!number || *number < 1 || *number > 32767 || *number != std::floor(*number)) {
                command.Usage(QStringLiteral("--location takes a location code, not ") + code);
                return false;
            }
            for (const auto& [locationName, locationCode] : ApplicationCensus::LocationChoices())
                if (locationCode == std::int16_t(*number))
                    location = locationCode;
            if (!location) {
                command.Error(QStringLiteral("no location ") + code + QStringLiteral(" in use (the window offers only those)"));
                return false;
            }
        }
        const ui::FillResult filled = ApplicationCensus::FillCensusGrid(census);
        if (filled == ui::FillResult::Failed)
            return false;
        const int row = filled == ui::FillResult::Rows ? censusRow(census, name) : 0;
        if (row == 0) {
            command.Error(QStringLiteral("no application named ") + name + QStringLiteral(" in the census"));
            return false;
        }
        // the click on the row, then the location chosen: a location without such a computer
        // leaves the list of all locations
        const QString applicationName = census.TextMatrix(row, 1);
        if (ApplicationCensus::FillComputersGrid(computers, applicationName, 0) == ui::FillResult::Failed)
            return false;
        if (location && ApplicationCensus::FillComputersGrid(computers, applicationName, *location) == ui::FillResult::Failed)
            return false;
        ApplicationCensus::WriteComputers(applicationName, computers, out);
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        return false;
    }
    return true;
}

} // namespace

AdminExport::List LicencesExport() { return {"licences", "", {}, writeLicences}; }

AdminExport::List CensusExport() { return {"census", "", {}, writeCensus}; }

AdminExport::List CensusComputersExport()
{
    return {
        "census-computers", "--application NAME [--location CODE]", {{"--application", true}, {"--location", true}}, writeCensusComputers};
}
