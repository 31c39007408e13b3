#include "assetlist/ListFill.h"

#include "foundation/Mdl_Access_mdb.h"
#include "platform/db/Recordset.h"
#include "platform/vb/Conversion.h"
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

bool MasterRetired(const db::Recordset& rs, int flag)
{
    if (flag < 0)
        return false;
    const vb::Variant& value = rs.Value(flag);
    return !value.IsNull() && vb::CStr(value) == QLatin1String("1");
}
