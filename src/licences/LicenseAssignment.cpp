#include "licences/LicenseAssignment.h"

#include "assetlist/ListFill.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "licences/LicenceRoutines.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/VbError.h"

namespace LicenseAssignment {

using LicenceRoutines::SetCell;
using Mdl_Sub::FieldText;

namespace {

// When a cell of the column turns gray: never, when the computer is retired, or when the master
// entry behind it is deleted (its Available_flug, named in flagField, is "1").
enum class GrayWhen { Never, Retired, DeletedMaster };

struct AssignmentColumn {
    const char* heading;
    int width;
    const char16_t* field; // nullptr for the running number
    GrayWhen gray;
    const char16_t* flagField;
};
// Column 0 is the hidden key of the assignment, column 1 the running number.
const AssignmentColumn kColumns[] = {
    {"", 0, u"tbl_License_Dat.Key", GrayWhen::Never, nullptr},
    {"No", 400, nullptr, GrayWhen::Never, nullptr},
    {"アプリケーション名", 1900, u"Application_Name", GrayWhen::Never, nullptr},
    {"コンピュータ名", 1400, u"Computer_Name", GrayWhen::Retired, u"Deleted_Flug"},
    {"プロダクトID", 1200, u"ProductID", GrayWhen::Never, nullptr},
    {"ライセンス番号", 1200, u"Licence_No", GrayWhen::Never, nullptr},
    {"インストールキー", 2500, u"Install_Key", GrayWhen::Never, nullptr},
    {"購入形態", 1200, u"Payment_Type", GrayWhen::Never, nullptr},
    {"パッケージ", 1200, u"Asset_Type", GrayWhen::Never, nullptr},
    {"ユーザ", 1500, u"User_Name", GrayWhen::DeletedMaster, u"tbl_User.Available_flug"},
    {"部", 1500, u"Section_Name", GrayWhen::DeletedMaster, u"tbl_Section.Available_flug"},
    {"課", 1500, u"Division_Name", GrayWhen::DeletedMaster, u"tbl_Division.Available_flug"},
    {"設置場所", 1500, u"Location_Name", GrayWhen::DeletedMaster, u"tbl_Location.Available_flug"},
    {"単価", 1500, u"Purchase_Price", GrayWhen::Never, nullptr},
    {"コメント", 1500, u"Comment", GrayWhen::Never, nullptr},
};
constexpr int kCols = int(std::size(kColumns));

bool grayCell(const AssignmentColumn& col, const db::Recordset& rs, int flag)
{
    switch (col.gray) {
    case GrayWhen::Retired: return flag >= 0 && !rs.Value(flag).IsNull() && vb::CInt(rs.Value(flag)) != 0;
    case GrayWhen::DeletedMaster: return MasterRetired(rs, flag);
    case GrayWhen::Never: break;
    }
    return false;
}

} // namespace

QString AssignmentSql(std::int16_t applicationKey, std::int16_t locationKey)
{
    QString sql = QStringLiteral(
        "SELECT DISTINCT tbl_License_Key.*, tbl_License_Dat.*, tbl_Pclist.MainKey, tbl_Pclist.Computer_Name, tbl_User.*, "
        "tbl_Section.*, tbl_Division.*, tbl_Location.*, tbl_Computer_List.Deleted_Flug FROM tbl_Pclist, tbl_License_Dat, "
        "tbl_License_Key, tbl_Computer_List, tbl_Section, tbl_Location, tbl_Division, tbl_User, tbl_Manufacturer, tbl_Model "
        "WHERE (((tbl_License_Dat.Computer_Code)=(tbl_Pclist.MainKey)) AND ((tbl_License_Dat.Application_Code)=(tbl_License_Key.Key)) "
        "AND ((tbl_Computer_List.Location_Code)=([tbl_Location].[Location_Code])) AND "
        "((tbl_User.Section_Code)=([tbl_Section].[Section_Code])) AND ((tbl_User.Division_Code)=([tbl_Division].[Division_Code])) "
        "AND ((tbl_Computer_List.User_Code)=([tbl_User].[User_Code])) AND "
        "((tbl_Computer_List.Manufacturer_Code)=([tbl_Manufacturer].[Manufacturer_Code])) AND "
        "((tbl_Computer_List.Model_Code)=([tbl_Model].[Model_Code])) AND (tbl_Pclist.MainKey = tbl_Computer_List.MainKey)");
    if (applicationKey > 0)
        sql += QStringLiteral(" AND (tbl_License_Dat.Application_Code = ") + QString::number(applicationKey) + QStringLiteral(")");
    if (locationKey > 0)
        sql += QStringLiteral(" AND (tbl_Computer_List.Location_Code = ") + QString::number(locationKey) + QStringLiteral(")");
    sql += QStringLiteral(") ORDER BY Computer_Name ;");
    return sql;
}

ui::FillResult FillAssignmentGrid(ui::FlexGrid& grid, std::int16_t applicationKey, std::int16_t locationKey)
{
    return RunListFill(grid, [&](db::Recordset& rs) {
        rs.Open(AssignmentSql(applicationKey, locationKey), Mdl_gData::DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() == 0) {
            grid.SetCols(0);
            grid.SetRows(0);
            return ui::FillResult::NoRows;
        }
        grid.SetRedraw(false);
        grid.Clear();
        grid.SetCols(kCols);
        grid.SetRows(int(rs.RecordCount()) + 1);
        for (int c = 0; c < kCols; ++c) {
            if (c > 0)
                SetCell(grid, 0, c, QString::fromUtf8(kColumns[c].heading), ui::qbGray, ui::flexAlignCenterBottom);
            grid.SetColWidth(c, kColumns[c].width);
        }
        const auto fields = FieldIndexes(rs, kColumns, &AssignmentColumn::field);
        const auto flags = FieldIndexes(rs, kColumns, &AssignmentColumn::flagField);
        for (int row = 1; !rs.Eof(); rs.MoveNext(), ++row) {
            grid.SetTextMatrix(row, 0, FieldText(rs.Value(fields[0])));
            SetCell(grid, row, 1, QString::number(row), ui::qbGray, ui::flexAlignGeneral);
            for (int c = 2; c < kCols; ++c) {
                const bool gray = grayCell(kColumns[c], rs, flags[c]);
                SetCell(grid, row, c, FieldText(rs.Value(fields[c])), gray ? ui::qbGray : ui::qbWhite, ui::flexAlignLeftBottom);
            }
        }
        return ui::FillResult::Rows;
    });
}

QString ApplicationRow(const QString& name, const vb::Variant& unitNum)
{
    const int blanks = 35 - Mdl_Sub::ByteLength(name);
    return name + QString(qMax(0, blanks), u' ') + QStringLiteral(" 数量") + FieldText(unitNum);
}

QString ComputerRow(const QString& computerName, const QString& locationName, const QString& userName)
{
    const qsizetype blanks = 17 - computerName.size();
    if (blanks < 0)
        throw vb::VbError::InvalidProcedureCall();
    return computerName + QString(blanks, u' ') + locationName + QStringLiteral(" ") + userName;
}

} // namespace LicenseAssignment
