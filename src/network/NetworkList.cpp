#include "network/NetworkList.h"

#include "assetlist/ListFill.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

#include <array>

using Mdl_gData::DbConnection;
using Mdl_Sub::FieldText;

namespace {

// The columns of the two grids behind "No": the register shows all twelve, the address list the
// first ten.
struct ListColumn {
    const char16_t* field;
    const char* heading;
};
constexpr ListColumn kColumns[] = {
    {u"Location_Name", "設置場所"},
    {u"User_Name", "ユーザ名"},
    {u"Computer_Name", "コンピュータ名"},
    {u"WorkGroup", "ワークグループ"},
    {u"IPAddress", "IPアドレス"},
    {u"MacAddress", "Macアドレス"},
    {u"Manufacturer_Name", "メーカー"},
    {u"Model_Name", "モデル"},
    {u"Type_Number", "タイプ"},
    {u"Sereals_Number", "シリアル"},
    {u"ID", "ID"},
    {u"PassWord", "PW"},
};
constexpr int kRegisterColumns = 12;
constexpr int kAddressColumns = 10;

void paint(ui::FlexGrid& grid, int row, int col, int alignment, bool gray)
{
    grid.SetRow(row);
    grid.SetCol(col);
    grid.SetCellAlignment(alignment);
    if (gray)
        grid.SetCellBackColor(ui::QBColor(ui::qbGray));
}

// The fill both grids share: headings on gray, centred at the bottom; data at the bottom left; a
// value that is Null or "" stays an empty cell. Column 0 holds the device's key, or a running
// number on gray.
ui::FillResult fillGrid(ui::FlexGrid& grid, const QString& sql, int shownColumns, bool keyInColumnZero)
{
    return RunListFill(grid, [&](db::Recordset& rs) {
        rs.Open(sql, DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() == 0) {
            grid.SetCols(0);
            grid.SetRows(0);
            return ui::FillResult::NoRows;
        }
        grid.SetRedraw(false);
        grid.Clear();
        grid.SetCols(shownColumns + 1);
        grid.SetRows(int(rs.RecordCount()) + 1);
        grid.SetTextMatrix(0, 0, QStringLiteral("No"));
        grid.SetColWidth(0, 500);
        paint(grid, 0, 0, ui::flexAlignCenterBottom, true);
        std::array<int, kRegisterColumns> field{};
        for (int c = 1; c <= shownColumns; ++c) {
            grid.SetTextMatrix(0, c, QString::fromUtf8(kColumns[c - 1].heading));
            grid.SetColWidth(c, 1500);
            paint(grid, 0, c, ui::flexAlignCenterBottom, true);
            field[size_t(c - 1)] = rs.FieldIndex(kColumns[c - 1].field);
        }
        const int key = keyInColumnZero ? rs.FieldIndex(u"Key") : -1;
        for (int row = 1; !rs.Eof(); rs.MoveNext(), ++row) {
            grid.SetTextMatrix(row, 0, keyInColumnZero ? FieldText(rs.Fields(key).Value()) : QString::number(row));
            paint(grid, row, 0, ui::flexAlignLeftBottom, !keyInColumnZero);
            for (int c = 1; c <= shownColumns; ++c) {
                const QString value = FieldText(rs.Fields(field[size_t(c - 1)]).Value());
                if (!value.isEmpty())
                    grid.SetTextMatrix(row, c, value);
                paint(grid, row, c, ui::flexAlignLeftBottom, false);
            }
        }
        return ui::FillResult::Rows;
    });
}

// The installed computers with their masters' names. A computer whose location, user (with the
// user's section and division), maker or model has no master row is left out by the joins.
const QString kComputersSql =
    QStringLiteral("SELECT DISTINCT tbl_Pclist.MainKey, tbl_Pclist.Computer_Name, tbl_Pclist.Workgroup, tbl_Pclist.IPAddress, "
                   "tbl_Pclist.IPAddress_16num, tbl_Pclist.MacAddress, tbl_Computer_List.MainKey, tbl_Computer_List.Location_Code, "
                   "tbl_Computer_List.User_Code, tbl_Computer_List.Manufacturer_Code, tbl_Computer_List.Model_Code, "
                   "tbl_Computer_List.Type_Number, tbl_Computer_List.Sereals_Number, tbl_Computer_List.Update, "
                   "tbl_Computer_List.Comment, tbl_Location.Location_Name, tbl_Section.Section_Name, tbl_Division.Division_Name, "
                   "tbl_User.User_Name, tbl_Manufacturer.Manufacturer_Name, tbl_Model.Model_Name FROM tbl_Computer_List, tbl_Pclist, "
                   "tbl_Section, tbl_Location, tbl_Division, tbl_User, tbl_Manufacturer, tbl_Model WHERE "
                   "((tbl_Computer_List.Deleted_Flug = 0) AND ((tbl_Computer_List.Location_Code)=([tbl_Location].[Location_Code])) "
                   "AND ((tbl_User.Section_Code)=([tbl_Section].[Section_Code])) AND "
                   "((tbl_User.Division_Code)=([tbl_Division].[Division_Code])) AND "
                   "((tbl_Computer_List.User_Code)=([tbl_User].[User_Code])) AND "
                   "((tbl_Computer_List.Manufacturer_Code)=([tbl_Manufacturer].[Manufacturer_Code])) AND "
                   "((tbl_Computer_List.Model_Code)=([tbl_Model].[Model_Code])) AND (tbl_Pclist.MainKey = "
                   "tbl_Computer_List.MainKey))ORDER BY IPAddress_16num;");

// What each row of the address list is made of, in the order the rebuild reads it. Update and
// Comment are read from a computer and never written; a device has neither.
enum ListValue {
    Location_Name,
    User_Name,
    Computer_Name,
    WorkGroup,
    IPAddress,
    IPAddress_16num,
    Manufacturer_Name,
    Model_Name,
    Type_Number,
    Sereals_Number,
    Update,
    Comment,
    MacAddress,
    ListValueCount
};
constexpr std::array<const char16_t*, ListValueCount> kListValues = {
    u"Location_Name", u"User_Name",   u"Computer_Name",  u"WorkGroup", u"IPAddress", u"IPAddress_16num", u"Manufacturer_Name",
    u"Model_Name",    u"Type_Number", u"Sereals_Number", u"Update",    u"Comment",   u"MacAddress"};
// The eleven that go into the INSERT, in its order.
constexpr std::array<ListValue, 11> kWritten = {Location_Name,     User_Name,  Computer_Name, WorkGroup,      IPAddress, IPAddress_16num,
                                                Manufacturer_Name, Model_Name, Type_Number,   Sereals_Number, MacAddress};

// Inserts the current record of rs as row key of the list; the record's fields by number, -1 for
// the two a device does not have.
void insertListRow(db::Recordset& rs, const std::array<int, ListValueCount>& field, int key)
{
    std::array<QString, ListValueCount> value;
    for (int i = 0; i < ListValueCount; ++i) {
        if (field[size_t(i)] < 0)
            continue;
        const QString v = FieldText(rs.Value(field[size_t(i)]));
        value[size_t(i)] = v.isEmpty() ? QStringLiteral(" ") : v;
    }
    QString sql = QStringLiteral("INSERT INTO tbl_NetworkList ([Key], Location_Name, User_Name, Computer_Name, WorkGroup, "
                                 "IPAddress, IPAddress_16num, Manufacturer_Name, Model_Name, Type_Number, Sereals_Number, "
                                 "MacAddress ) VALUES (")
                  + QString::number(key);
    for (ListValue v : kWritten)
        sql += QStringLiteral(", '") + value[size_t(v)] + QStringLiteral("'");
    sql += QStringLiteral(");");
    Mdl_Access_mdb::ExecuteSql(sql);
}

std::array<int, ListValueCount> fieldsOf(const db::Recordset& rs, int count)
{
    std::array<int, ListValueCount> field;
    field.fill(-1);
    for (int i = 0; i < count; ++i)
        field[size_t(i)] = rs.FieldIndex(kListValues[size_t(i)]);
    return field;
}

} // namespace

ui::FillResult fnc_View_NClist(ui::FlexGrid& grid)
{
    return fillGrid(grid, QStringLiteral("SELECT * FROM tbl_NetworkUnit ORDER BY IPAddress_16num;"), kRegisterColumns, true);
}

ui::FillResult View_NetworkList(ui::FlexGrid& grid)
{
    return fillGrid(grid, QStringLiteral("SELECT * FROM tbl_NetworkList ORDER BY IPAddress_16num;"), kAddressColumns, false);
}

bool RebuildNetworkList()
{
    db::Connection& c = DbConnection();
    db::Recordset rs;
    try {
        // The rows of the list stand or fall together: a rebuild cut short by a full disk leaves
        // the previous list, not half of a new one. A refused INSERT still drops alone.
        db::Transaction rebuild(c);
        Mdl_Access_mdb::ExecuteSql(QStringLiteral("DELETE  FROM tbl_NetworkList;"));
        int key = 0;
        rs.Open(kComputersSql, c, db::adOpenStatic, db::adLockReadOnly);
        std::array<int, ListValueCount> field = fieldsOf(rs, ListValueCount);
        const int mainKey = rs.FieldIndex(u"tbl_Pclist.MainKey");
        for (; !rs.Eof(); rs.MoveNext()) {
            if (vb::CInt(rs.Value(mainKey)) <= 0)
                continue;
            insertListRow(rs, field, key++);
        }
        rs.Close();

        rs.Open(QStringLiteral("SELECT * FROM tbl_NetworkUnit ;"), c, db::adOpenStatic, db::adLockReadOnly);
        field = fieldsOf(rs, Sereals_Number + 1);
        field[MacAddress] = rs.FieldIndex(kListValues[MacAddress]);
        for (; !rs.Eof(); rs.MoveNext())
            insertListRow(rs, field, key++);
        rs.Close();
        rebuild.Commit();
        return true;
    } catch (const vb::VbError& e) {
        rs.CloseIfOpen();
        Mdl_Access_mdb::StandardErrorBox(e);
        return false;
    }
}
