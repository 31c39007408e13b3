#include "licences/ApplicationCensus.h"

#include "assetlist/ListExport.h"
#include "assetlist/ListFill.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "licences/LicenceRoutines.h"
#include "platform/text/AnsiFile.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/VbError.h"

namespace ApplicationCensus {

using LicenceRoutines::SetCell;
using Mdl_Sub::FieldText;

namespace {

struct Column {
    const char* heading;
    int width;
    const char16_t* field;     // nullptr for the running number
    const char16_t* flagField; // the master's Available_flug: gray when "1"
};

const Column kCensusColumns[] = {
    {"", 450, nullptr, nullptr},
    {"アプリケーション名", 2400, nullptr, nullptr},
    {"小計", 600, nullptr, nullptr},
};

const Column kComputerColumns[] = {
    {"", 450, nullptr, nullptr},
    {"コンピュータ名", 1400, u"Computer_Name", nullptr},
    {"設置場所", 1400, u"Location_Name", u"tbl_Location.Available_flug"},
    {"部", 1300, u"Section_Name", u"tbl_Section.Available_flug"},
    {"課", 1300, u"Division_Name", u"tbl_Division.Available_flug"},
    {"ユーザ", 1300, u"User_Name", u"tbl_User.Available_flug"},
    {"バージョン", 1300, u"Application_Version", nullptr},
};

// The heading row: gray, centred at the bottom; the widths.
template <size_t N> void setHeadings(ui::FlexGrid& grid, const Column (&columns)[N])
{
    for (int c = 0; c < int(N); ++c) {
        SetCell(grid, 0, c, QString::fromUtf8(columns[c].heading), ui::qbGray, ui::flexAlignCenterBottom);
        grid.SetColWidth(c, columns[c].width);
    }
}

} // namespace

ui::FillResult FillCensusGrid(ui::FlexGrid& grid)
{
    return RunListFill(grid, [&grid](db::Recordset& rs) {
        rs.Open(QStringLiteral("SELECT tbl_ApplicationsList.Application_Name, Count(tbl_ApplicationsList.Key) FROM "
                               "tbl_ApplicationsList ,tbl_Computer_List WHERE (((tbl_Computer_List.Deleted_Flug)=0)) AND "
                               "(tbl_Computer_List.MainKey = tbl_ApplicationsList.Key) GROUP BY "
                               "tbl_ApplicationsList.Application_Name;"),
                Mdl_gData::DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() == 0)
            return ui::FillResult::NoRows;
        grid.SetRedraw(false);
        grid.SetCols(int(std::size(kCensusColumns)));
        grid.SetRows(int(rs.RecordCount()) + 1);
        setHeadings(grid, kCensusColumns);
        // the current row follows the fill, which leaves it on the last row
        for (int row = 1; !rs.Eof(); rs.MoveNext(), ++row) {
            SetCell(grid, row, 0, QString::number(row), ui::qbGray, ui::flexAlignLeftBottom);
            SetCell(grid, row, 1, FieldText(rs.Value(0)), ui::qbWhite, ui::flexAlignLeftBottom);
            SetCell(grid, row, 2, FieldText(rs.Value(1)), ui::qbWhite, ui::flexAlignLeftBottom);
        }
        return ui::FillResult::Rows;
    });
}

QString ComputersSql(const QString& applicationName, std::int16_t location)
{
    QString sql =
        QStringLiteral("SELECT DISTINCT tbl_Pclist.*, tbl_ApplicationsList.Application_Name, tbl_ApplicationsList.Application_Version, "
                       "tbl_Location.*, tbl_Section.*, tbl_Division.*, tbl_User.*, tbl_Manufacturer.*, tbl_Model.* FROM tbl_Pclist, "
                       "tbl_ApplicationsList, tbl_Computer_List, tbl_Section, tbl_Location, tbl_Division, tbl_User, tbl_Manufacturer, "
                       "tbl_Model WHERE ((Application_Name = '")
        + applicationName
        + QStringLiteral("') AND ((tbl_Pclist.MainKey)=([tbl_ApplicationsList].[Key])) AND ((tbl_Pclist.MainKey = "
                         "tbl_Computer_List.MainKey)) AND ((tbl_Computer_List.Deleted_Flug = 0)) AND "
                         "((tbl_Computer_List.Location_Code)=([tbl_Location].[Location_Code])) AND "
                         "((tbl_User.Section_Code)=([tbl_Section].[Section_Code])) AND "
                         "((tbl_User.Division_Code)=([tbl_Division].[Division_Code])) AND "
                         "((tbl_Computer_List.User_Code)=([tbl_User].[User_Code])) AND "
                         "((tbl_Computer_List.Manufacturer_Code)=([tbl_Manufacturer].[Manufacturer_Code])) AND "
                         "((tbl_Computer_List.Model_Code)=([tbl_Model].[Model_Code]))");
    if (location > 0)
        sql += QStringLiteral(" AND (tbl_Computer_List.Location_Code= ") + QString::number(location) + QStringLiteral(")");
    sql += QStringLiteral(")ORDER BY Computer_Name;");
    return sql;
}

ui::FillResult FillComputersGrid(ui::FlexGrid& grid, const QString& applicationName, std::int16_t location)
{
    if (applicationName.isEmpty())
        return ui::FillResult::NoRows;
    return RunListFill(grid, [&](db::Recordset& rs) {
        rs.Open(ComputersSql(applicationName, location), Mdl_gData::DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() == 0)
            return ui::FillResult::NoRows;
        constexpr int cols = int(std::size(kComputerColumns));
        grid.SetRedraw(false);
        grid.Clear();
        grid.SetCols(cols);
        grid.SetRows(int(rs.RecordCount()) + 1);
        setHeadings(grid, kComputerColumns);
        const auto fields = FieldIndexes(rs, kComputerColumns, &Column::field);
        const auto flags = FieldIndexes(rs, kComputerColumns, &Column::flagField);
        for (int row = 1; !rs.Eof(); rs.MoveNext(), ++row) {
            SetCell(grid, row, 0, QString::number(row), ui::qbGray, ui::flexAlignLeftBottom);
            for (int c = 1; c < cols; ++c) {
                const bool gray = MasterRetired(rs, flags[c]);
                SetCell(grid, row, c, FieldText(rs.Value(fields[c])), gray ? ui::qbGray : ui::qbWhite, ui::flexAlignLeftBottom);
            }
        }
        return ui::FillResult::Rows;
    });
}

std::vector<std::pair<QString, std::int16_t>> LocationChoices()
{
    std::vector<std::pair<QString, std::int16_t>> choices;
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * FROM tbl_Location WHERE (Available_flug ='0')ORDER BY Location_Code ;"), Mdl_gData::DbConnection(),
            db::adOpenStatic, db::adLockOptimistic);
    for (; !rs.Eof(); rs.MoveNext())
        choices.emplace_back(FieldText(rs.Fields(u"Location_Name").Value()), vb::CInt(rs.Fields(u"Location_Code").Value()));
    rs.Close();
    return choices;
}

void WriteComputers(const QString& applicationName, const ui::FlexGrid& grid, const QString& path)
{
    text::AnsiFile file(path);
    file.WriteLine(applicationName);
    ListExport::WriteGridLines(grid, file);
    file.Close();
}

} // namespace ApplicationCensus
