#include "assetlist/ExportListCommand.h"

#include "assetlist/ListExport.h"
#include "assetlist/ListQuery.h"
#include "assetlist/MainList.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "platform/ui/FlexGrid.h"
#include "platform/vb/VbError.h"

#include <QWidget>

namespace {

bool writeMainList(const app::CommandLine& command, const QString& out)
{
    using Mdl_gData::g;
    // one of the eight saved views, as the view window's menu offers them
    const QString view = command.Value("--view");
    if (command.Has("--view") && (view.size() != 1 || view[0] < u'0' || view[0] > u'7')) {
        command.Usage(QStringLiteral("--view takes a view number from 0 to 7, not ") + view);
        return false;
    }
    // The grid's host is never shown, so neither is the grid when the fill makes it visible.
    QWidget host;
    ui::FlexGrid grid(&host);
    MainList list(grid);
    try {
        g.SectionNumber = command.Has("--view") ? std::int16_t(view[0].unicode() - u'0') : SavedSectionNumber();
        // Without rows the grid is left with no rows and no columns, and the file is empty.
        if (list.ShowView() == ui::FillResult::Failed)
            return false;
        ListExport::WriteGrid(grid, out);
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        return false;
    }
    return true;
}

} // namespace

AdminExport::List MainListExport() { return {"main", "[--view N]", {{"--view", true}}, writeMainList}; }
