#include "network/ExportNetworkCommand.h"

#include "assetlist/ListExport.h"
#include "network/NetworkList.h"
#include "network/PrinterList.h"
#include "platform/ui/FlexGrid.h"

#include <QWidget>

namespace {

// Fills a grid that is never shown with the window's routine and writes it as the window's
// export does. The failures have been shown by the routines' error boxes.
bool writeList(const std::function<ui::FillResult(ui::FlexGrid&)>& fill, const QString& out)
{
    QWidget host;
    ui::FlexGrid grid(&host);
    grid.SetRows(0);
    grid.SetCols(0);
    return fill(grid) != ui::FillResult::Failed && ListExport::SaveGrid(grid, out);
}

bool writeNetworkList(const app::CommandLine& command, const QString& out)
{
    if (command.Has("--rebuild") && !RebuildNetworkList())
        return false;
    return writeList(View_NetworkList, out);
}

bool writePrinterList(const app::CommandLine&, const QString& out) { return writeList(View_PrinterList, out); }

} // namespace

AdminExport::List NetworkListExport() { return {"network", "[--rebuild]", {{"--rebuild", false}}, writeNetworkList}; }

AdminExport::List PrinterListExport() { return {"printers", "", {}, writePrinterList}; }
