#include "intake/InventoryReview.h"

#include "assetlist/ListFill.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_IP.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "intake/InventoryFieldMap.h"
#include "intake/Staging.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

#include <optional>

using Mdl_gData::DbConnection;
using Mdl_Sub::FieldText;

namespace InventoryReview {

namespace {

constexpr int kNameWidth = 17;
// Pagefile_Used, the one number row that column 4 takes without the test of the others
constexpr int kUntestedRow = 19;

struct Heading {
    const char* text;
    int width;
};
constexpr Heading kComparisonHeadings[ComparisonColumns] = {
    {"No", 500}, {"項目名", 1500}, {"Key", 1500}, {"PCのデータ", 2000}, {"読込んだデータ", 2000}};
constexpr Heading kApplicationHeadings[] = {{"", 450}, {"アプリケーション名", 4000}, {"バージョン", 1000}, {"インストール場所", 2000}};

void setCell(ui::FlexGrid& grid, int row, int col, const QString& value)
{
    grid.SetRow(row);
    grid.SetCol(col);
    grid.SetText(value);
}

void paintCell(ui::FlexGrid& grid, int row, int col, int alignment, bool gray)
{
    grid.SetRow(row);
    grid.SetCol(col);
    grid.SetCellAlignment(alignment);
    if (gray)
        grid.SetCellBackColor(ui::QBColor(ui::qbGray));
}

// Number, caption and field of a map row in columns 0 to 2. The two rows of the administrative
// record show their field names as captions when the ledger's side is filled, and the file's
// words ("Model", "Serial") when the file's side is.
void writeRowHead(ui::FlexGrid& grid, const InventoryFieldRow& row, bool ledgerSide)
{
    const bool administrative = row.table == QLatin1String("tbl_Computer_List");
    setCell(grid, row.row, No, QString::number(row.row));
    setCell(grid, row.row, Caption, (ledgerSide && administrative ? row.field : row.caption).toString());
    setCell(grid, row.row, Field, row.field.toString());
}

// What column 4 takes from the record the lookup found; nullopt keeps the cell.
std::optional<QString> fileValue(const InventoryFieldRow& row, const Mdl_Access_mdb::FirstRow& record)
{
    const QString& value = record[size_t(row.valuePosition(InventoryLanguage::Japanese))];
    // an empty value empties the cell
    if (row.row == kUntestedRow)
        return value;
    switch (row.kind) {
    case FieldKind::GuardedNumber: return value.isEmpty() ? QStringLiteral("0") : value;
    case FieldKind::SettingFlag:
        return value == QLatin1String("True") || value == QLatin1String("1") ? QStringLiteral("1") : QStringLiteral("0");
    case FieldKind::Hex: return value.isEmpty() ? std::nullopt : std::optional<QString>(Mdl_IP::IpToHex8(value));
    default: return value.isEmpty() ? std::nullopt : std::optional<QString>(value);
    }
}

// The UPDATE of one grid row, up to and with the key clause.
QString overwriteStatement(const QString& field, const QString& value, const QString& key)
{
    QString sql;
    if (field == QLatin1String("Update")) {
        sql = QStringLiteral("UPDATE tbl_Pclist SET ") + QStringLiteral("tbl_Pclist.Update ") + QStringLiteral(" = '") + value
              + QStringLiteral("'");
    } else if (field == QLatin1String("Type_Number") || field == QLatin1String("Sereals_Number")) {
        sql = QStringLiteral("UPDATE tbl_Computer_List SET ") + field + QStringLiteral(" ") + QStringLiteral(" = '") + value
              + QStringLiteral("'");
    } else if (Mdl_Access_mdb::FieldTypeName(QStringLiteral("SELECT ") + field + QStringLiteral(" FROM tbl_Pclist"))
               == QStringLiteral("数値")) {
        // a value that is no number (an empty one too) raises error 13 here
        sql = QStringLiteral("UPDATE tbl_Pclist SET ") + QStringLiteral(" ") + field + QStringLiteral(" ") + QStringLiteral(" = ")
              + QString::number(vb::CLng(vb::Variant(value)));
    } else {
        sql = QStringLiteral("UPDATE tbl_Pclist SET ") + QStringLiteral("tbl_Pclist.") + field + QStringLiteral(" ")
              + QStringLiteral(" = '") + value + QStringLiteral("'");
    }
    return sql + QStringLiteral(" WHERE MainKey = ") + key;
}

} // namespace

void FillComputerList(const std::function<void(const QString& entry, std::int16_t key)>& add)
{
    db::Recordset rs;
    try {
        rs.Open(QStringLiteral("SELECT DISTINCT tbl_Pclist.*, tbl_Computer_List.*, tbl_Location.Location_Name, tbl_User.User_Name "
                               "FROM tbl_Computer_List, tbl_Pclist, tbl_Location, tbl_User  WHERE "
                               "((tbl_Computer_List.Deleted_Flug = 0) AND "
                               "((tbl_Computer_List.Location_Code)=([tbl_Location].[Location_Code])) AND "
                               "((tbl_Computer_List.User_Code)=([tbl_User].[User_Code])) AND (tbl_Pclist.MainKey = "
                               "tbl_Computer_List.MainKey)) ORDER BY Computer_Name ;"),
                DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        for (; !rs.Eof(); rs.MoveNext()) {
            const std::int16_t key = vb::CInt(rs.Fields(u"tbl_Computer_List.MainKey").Value());
            if (key == 0)
                continue;
            // a computer without a name is listed with an empty one
            const QString name = FieldText(rs.Fields(u"Computer_Name").Value());
            if (name.size() > kNameWidth)
                throw vb::VbError::InvalidProcedureCall();
            add(name + QString(kNameWidth - name.size(), QLatin1Char(' ')) + FieldText(rs.Fields(u"Location_Name").Value())
                    + QStringLiteral(" ") + FieldText(rs.Fields(u"User_Name").Value()),
                key);
        }
        rs.Close();
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
        rs.CloseIfOpen();
    }
}

void SetComparisonGrid(ui::FlexGrid& grid)
{
    grid.SetCols(ComparisonColumns);
    grid.SetRows(ComparisonRows);
    for (int c = 0; c < ComparisonColumns; ++c) {
        setCell(grid, 0, c, QString::fromUtf8(kComparisonHeadings[c].text));
        paintCell(grid, 0, c, ui::flexAlignCenterCenter, true);
        grid.SetColWidth(c, kComparisonHeadings[c].width);
    }
    for (int r = 1; r < ComparisonRows; ++r) {
        grid.SetRow(r);
        grid.SetCol(FileValue);
        grid.SetCellAlignment(ui::flexAlignLeftCenter);
    }
}

bool FillPcColumn(ui::FlexGrid& grid, const QString& key)
{
    grid.SetVisible(false);
    grid.Clear();
    SetComparisonGrid(grid);
    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT DISTINCT tbl_Computer_List.*, tbl_Pclist.* FROM tbl_Pclist, tbl_Computer_List  WHERE "
                           "((tbl_Pclist.MainKey = ")
                + key + QStringLiteral(") AND ((tbl_Pclist.MainKey) = (tbl_Computer_List.MainKey)) );"),
            DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    const bool found = rs.RecordCount() > 0;
    if (found) {
        for (const InventoryFieldRow& row : InventoryFieldMap()) {
            writeRowHead(grid, row, true);
            // both tables have an Update; the row shows the inventory's
            const QString value =
                FieldText(rs.Fields(row.field == QLatin1String("Update") ? QStringView(u"tbl_Pclist.Update") : row.field).Value());
            if (!value.isEmpty())
                setCell(grid, row.row, LedgerValue, value);
        }
    }
    rs.Close();
    grid.SetVisible(true);
    return found;
}

bool FillReadColumn(ui::FlexGrid& grid)
{
    try {
        grid.SetVisible(false);
        SetComparisonGrid(grid);
        for (const InventoryFieldRow& row : InventoryFieldMap()) {
            writeRowHead(grid, row, false);
            const Mdl_Access_mdb::FirstRow record =
                Mdl_Access_mdb::OpenRecordsetFirstRow(FieldLookupSql(row.selection(InventoryLanguage::Japanese, FieldMapPath::Review)));
            if (const std::optional<QString> value = fileValue(row, record))
                setCell(grid, row.row, FileValue, *value);
        }
        grid.SetVisible(true);
        return true;
    } catch (const vb::VbError& e) {
        // the grid stays hidden with what was filled, until the next fill
        Mdl_Access_mdb::StandardErrorBox(e);
        return false;
    }
}

ui::FillResult FillApplicationGrid(ui::FlexGrid& grid)
{
    // a failure leaves the grid hidden with what was filled, until the next fill
    return RunListFill(grid, [&grid](db::Recordset& rs) {
        rs.Open(QStringLiteral("SELECT tbl_ReadCsv.* FROM tbl_ReadCsv  WHERE ((tbl_ReadCsv.Item = 'Application') );"), DbConnection(),
                db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() == 0)
            return ui::FillResult::NoRows;
        grid.SetVisible(false);
        grid.Clear();
        grid.SetCols(int(std::size(kApplicationHeadings)));
        grid.SetRows(int(rs.RecordCount()) + 1);
        for (int c = 0; c < grid.Cols(); ++c) {
            grid.SetColWidth(c, kApplicationHeadings[c].width);
            setCell(grid, 0, c, QString::fromUtf8(kApplicationHeadings[c].text));
        }
        const int subItem = rs.FieldIndex(u"SubItem");
        const int contents = rs.FieldIndex(u"Contents");
        const int unit = rs.FieldIndex(u"Unit");
        for (int row = 1; !rs.Eof(); rs.MoveNext(), ++row) {
            setCell(grid, row, 0, QString::number(row));
            grid.SetCellBackColor(ui::QBColor(ui::qbGray));
            const QString name = FieldText(rs.Value(subItem)), version = FieldText(rs.Value(contents)), path = FieldText(rs.Value(unit));
            if (!name.isEmpty())
                setCell(grid, row, 1, name);
            // the version shows when there is a path, and the path when there is a version
            if (!path.isEmpty())
                setCell(grid, row, 2, version);
            if (!version.isEmpty())
                setCell(grid, row, 3, path);
        }
        grid.SetVisible(true);
        return ui::FillResult::Rows;
    });
}

void OverwriteComputer(const ui::FlexGrid& grid, const QString& key)
{
    db::Transaction overwrite(DbConnection());
    try {
        for (int row = 1; row < grid.Rows(); ++row) {
            const QString field = grid.TextMatrix(row, Field);
            if (!field.isEmpty())
                Mdl_Access_mdb::ExecuteSql(overwriteStatement(field, grid.TextMatrix(row, FileValue), key));
        }
    } catch (const vb::VbError&) {
        // the rows written before the value that is no number stay written
        overwrite.Commit();
        throw;
    }
    for (const char* table : {"tbl_ApplicationsList", "tbl_Device_Management", "tbl_Environmental", "tbl_Printer_Management"}) {
        const QString name = QString::fromLatin1(table);
        Mdl_Access_mdb::ExecuteSql(QStringLiteral("DELETE ") + QStringLiteral(" FROM ") + name + QStringLiteral(" WHERE")
                                   + QStringLiteral(" ") + name + QStringLiteral(".Key = ") + key + QStringLiteral(";"));
    }
    Mdl_Access_mdb::CopyAllStagingRows(key);
    overwrite.Commit();
}

} // namespace InventoryReview
