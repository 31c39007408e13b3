#include "licences/LicenceRoutines.h"

#include "foundation/Mdl_gData.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/FlexGrid.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

namespace LicenceRoutines {

void SetCell(ui::FlexGrid& grid, int row, int col, const QString& text, int qbColour, int alignment)
{
    grid.SetTextMatrix(row, col, text);
    grid.SetRow(row);
    grid.SetCol(col);
    grid.SetCellBackColor(ui::QBColor(qbColour));
    grid.SetCellAlignment(alignment);
}

std::int16_t NextKey(const QString& table)
{
    db::Connection& c = Mdl_gData::DbConnection();
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * FROM ") + table, c, db::adOpenStatic, db::adLockOptimistic);
    const long count = rs.RecordCount();
    rs.Close();
    if (count == 0)
        return 1;
    rs.Open(QStringLiteral("SELECT MAX( [Key] ) FROM ") + table + QStringLiteral(";"), c, db::adOpenStatic, db::adLockOptimistic);
    const std::int16_t highest = vb::CInt(rs.Value(0));
    rs.Close();
    return vb::IntAdd(highest, 1);
}

bool DeleteSelectedRow(const ui::FlexGrid& grid, std::int16_t selectedRow, const QString& table)
{
    if (ui::MsgBox(QStringLiteral("削除しますか？"), ui::vbQuestion + ui::vbYesNo, QStringLiteral("確認")) != ui::vbYes)
        return false;
    if (selectedRow < 1)
        return false;
    const QString key = grid.TextMatrix(selectedRow, 0);
    if (key.isEmpty())
        return false;
    db::Connection& c = Mdl_gData::DbConnection();
    db::Transaction remove(c);
    c.Execute(QStringLiteral("DELETE * FROM ") + table + QStringLiteral(" WHERE Key= ") + key + QStringLiteral(";"));
    remove.Commit();
    return true;
}

} // namespace LicenceRoutines
