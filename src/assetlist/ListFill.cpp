#include "assetlist/ListFill.h"

#include "foundation/Mdl_Access_mdb.h"
#include "platform/db/Recordset.h"
#include "platform/vb/VbError.h"

ui::FillResult RunListFill(ui::FlexGrid& grid, const std::function<ui::FillResult(db::Recordset& rs)>& fill)
{
    const bool redraw = grid.Redraw();
    db::Recordset rs;
    ui::FillResult result = ui::FillResult::Failed;
    try {
        result = fill(rs);
        rs.CloseIfOpen();
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        rs.CloseIfOpen();
    }
    grid.SetRedraw(redraw);
    return result;
}
