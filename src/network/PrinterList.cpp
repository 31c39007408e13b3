#include "network/PrinterList.h"

#include "assetlist/ListFill.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

using Mdl_Sub::FieldText;

namespace {

void setCell(ui::FlexGrid& grid, int row, int col, const QString& value, int qbColour, int alignment = -1)
{
    grid.SetRow(row);
    grid.SetCol(col);
    grid.SetText(value);
    grid.SetCellBackColor(ui::QBColor(qbColour));
    if (alignment >= 0)
        grid.SetCellAlignment(alignment);
}

} // namespace

ui::FillResult View_PrinterList(ui::FlexGrid& grid)
{
    return RunListFill(grid, [&grid](db::Recordset& rs) {
        rs.Open(QStringLiteral("SELECT DISTINCT tbl_Printer_Management.Key, tbl_Printer_Management.Printer_Name, "
                               "tbl_Printer_Management.PrinterPorts_Name, tbl_Pclist.MainKey, tbl_Pclist.Computer_Name, "
                               "tbl_Computer_List.Deleted_Flug FROM tbl_Pclist, tbl_Computer_List, tbl_Printer_Management "
                               "WHERE ((tbl_Pclist.MainKey = tbl_Printer_Management.Key) AND (tbl_Pclist.MainKey = "
                               "tbl_Computer_List.MainKey) AND (tbl_Computer_List.Deleted_Flug = 0)) ORDER BY "
                               "tbl_Printer_Management.PrinterPorts_Name;"),
                Mdl_gData::DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() == 0)
            return ui::FillResult::NoRows;
        const int printer = rs.FieldIndex(u"Printer_Name");
        const int port = rs.FieldIndex(u"PrinterPorts_Name");
        const int computer = rs.FieldIndex(u"Computer_Name");
        int columns = 1;
        int column = 0;
        int counter = 0;
        int tallest = 1;
        QString lastPort;
        grid.SetRedraw(false);
        grid.SetCols(columns);
        grid.SetRows(3);
        grid.SetColWidth(0, 600);
        for (; !rs.Eof(); rs.MoveNext()) {
            // a Null port reads as "" and is skipped with the empty ones
            const QString portName = FieldText(rs.Value(port));
            if (!portName.isEmpty()) {
                if (portName != lastPort) {
                    ++column;
                    grid.SetCols(++columns);
                    counter = 0;
                    grid.SetColWidth(column, 1500);
                    setCell(grid, 0, column, FieldText(rs.Value(printer)), ui::qbGray);
                    setCell(grid, 1, column, portName, ui::qbGray, ui::flexAlignCenterBottom);
                    lastPort = portName;
                }
                setCell(grid, counter + 2, column, FieldText(rs.Value(computer)), ui::qbWhite, ui::flexAlignLeftBottom);
            }
            ++counter;
            if (counter >= tallest) {
                tallest = counter;
                grid.SetRows(counter + 3);
            }
        }
        for (int row = 0; row < grid.Rows(); ++row)
            setCell(grid, row, 0, QString::number(row), ui::qbGray);
        return ui::FillResult::Rows;
    });
}
