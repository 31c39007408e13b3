#include "mail/MailList.h"

#include "assetlist/ListFill.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_Sub.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Recordset.h"
#include "platform/ui/GridSelection.h"
#include "platform/ui/Twips.h"
#include "platform/vb/Conversion.h"

#include <iterator>
#include <optional>

using Mdl_gData::DbConnection;
using Mdl_Sub::FieldText;

namespace {

// Columns 1 to 17: heading, width in twips, the field of the list's record, and the flag of the
// master whose retirement turns the cell gray.
struct MailColumn {
    const char* heading;
    int width;
    const char16_t* field;
    const char16_t* flag;
};
constexpr MailColumn kColumns[] = {
    {"", 0, u"Key", nullptr},
    {"ログインID", 1800, u"beat_loginID", nullptr},
    {"氏名", 1800, u"User_Name", u"tbl_User.Available_flug"},
    {"ふりがな", 1800, u"kana", nullptr},
    {"Windowsユーザ名", 1800, u"Windows_UserName", nullptr},
    {"パスワード", 1800, u"beat_loginPassward", nullptr},
    {"メールアドレス", 1800, u"Mail_Address", nullptr},
    {"SMTP", 1800, u"SMTP_IPAddress", nullptr},
    {"POP", 1800, u"POP3_IPAddress", nullptr},
    {"メールBoxアカウント名", 1800, u"Mailbox_AccountName", nullptr},
    {"メールBoxパスワード", 1800, u"Mailbox_Password", nullptr},
    {"設置場所", 1800, u"Location_Name", u"tbl_Location.Available_flug"},
    {"部", 1800, u"Section_Name", u"tbl_Section.Available_flug"},
    {"課", 1800, u"Division_Name", u"tbl_Division.Available_flug"},
    {"コンピュータ名", 1800, u"Computer_Name", nullptr},
    {"IPアドレス", 1800, u"ipaddress", nullptr},
    {"OS", 1800, u"Operating_System", nullptr},
};
static_assert(std::size(kColumns) + 1 == MailList::Cols);

} // namespace

MailList::MailList(ui::FlexGrid& grid) : MSFlexGrid_Mail(grid) {}

QString MailList::MailListSql(std::int16_t location)
{
    QString sql = QStringLiteral(
        "SELECT DISTINCT tbl_Mail_Management.Key , tbl_Mail_Management.beat_loginID , tbl_User.* , "
        "tbl_Mail_Management.Windows_UserName , tbl_Mail_Management.beat_loginPassward , tbl_Mail_Management.Mail_Address , "
        "tbl_Mail_Management.SMTP_IPAddress , tbl_Mail_Management.POP3_IPAddress , tbl_Mail_Management.Mailbox_AccountName , "
        "tbl_Mail_Management.Mailbox_Password , tbl_Pclist.Computer_Name , tbl_Location.* , tbl_Division.* , tbl_Section.* , "
        "tbl_Pclist.ipaddress , tbl_Pclist.Operating_System FROM tbl_Mail_Management, tbl_User, tbl_Pclist, tbl_Location, "
        "tbl_Division, tbl_Section, tbl_Computer_List WHERE( (tbl_Mail_Management.User_Code = tbl_User.User_Code) AND "
        "(tbl_Computer_List.Location_Code = tbl_Location.Location_Code) AND (tbl_Computer_List.MainKey = tbl_Pclist.MainKey) "
        "AND (tbl_Mail_Management.Conputer_Code = tbl_Computer_List.MainKey) AND (tbl_Section.Section_Code = "
        "tbl_User.Section_Code) AND (tbl_Division.Division_Code = tbl_User.Division_Code) ");
    if (location > 0)
        sql += QStringLiteral(" AND (tbl_Computer_List.Location_Code = ") + QString::number(location) + QStringLiteral(")");
    return sql + QStringLiteral(") ORDER BY Mail_Address;");
}

ui::FillResult MailList::View_MailList(std::int16_t location)
{
    ui::FlexGrid& grid = MSFlexGrid_Mail;
    // After a failure what was filled is shown: a grid left frozen would hide it to no purpose.
    return RunListFill(grid, [&](db::Recordset& rs) {
        rs.Open(MailListSql(location), DbConnection(), db::adOpenStatic, db::adLockOptimistic);
        if (rs.RecordCount() == 0) {
            grid.SetRows(0);
            grid.SetCols(0);
            return ui::FillResult::NoRows;
        }
        grid.Clear();
        grid.SetRows(int(rs.RecordCount()) + 1);
        grid.SetCols(Cols);
        GridReady = true;
        grid.SetRedraw(false);

        const QColor gray = ui::QBColor(ui::qbGray);
        grid.SetTextMatrix(0, RunningNumber, QStringLiteral("Key"));
        grid.SetColWidth(RunningNumber, 600);
        for (int c = Key; c < Cols; ++c) {
            const MailColumn& col = kColumns[c - 1];
            grid.SetColWidth(c, col.width);
            if (c == Key)
                continue;
            grid.SetTextMatrix(0, c, QString::fromUtf8(col.heading));
            grid.SetRow(0);
            grid.SetCol(c);
            grid.SetCellAlignment(ui::flexAlignCenterBottom);
            grid.SetCellBackColor(gray);
        }

        const auto fields = FieldIndexes(rs, kColumns, &MailColumn::field);
        const auto flags = FieldIndexes(rs, kColumns, &MailColumn::flag);
        for (int row = 1; !rs.Eof(); rs.MoveNext(), ++row) {
            grid.SetRow(row);
            grid.SetCol(RunningNumber);
            grid.SetText(QString::number(row));
            grid.SetCellBackColor(gray);
            for (int c = Key; c < Cols; ++c) {
                grid.SetCol(c);
                grid.SetCellAlignment(ui::flexAlignLeftBottom);
                grid.SetText(FieldText(rs.Value(fields[c - 1])));
                if (MasterRetired(rs, flags[c - 1]))
                    grid.SetCellBackColor(gray);
            }
        }
        return ui::FillResult::Rows;
    });
}

void MailList::ResetMailSelection()
{
    PreviousRow = 1;
    SelectedRow = 0;
    PaintMailRow(1, ui::qbWhite);
}

void MailList::PaintMailRow(int row, int qbColour) { ui::PaintGridRow(MSFlexGrid_Mail, row, qbColour); }

namespace MailChoices {

namespace {

// The text of a row's entry, or none when the row is left out of the list.
using RowText = std::optional<QString> (*)(db::Recordset&);

// The entries of one combo: the rows of a SELECT that have a text, each with its key.
std::vector<MailChoice> read(const QString& sql, const char16_t* keyField, RowText rowText)
{
    std::vector<MailChoice> out;
    db::Recordset rs;
    rs.Open(sql, DbConnection(), db::adOpenStatic, db::adLockOptimistic);
    for (; !rs.Eof(); rs.MoveNext()) {
        if (const std::optional<QString> shown = rowText(rs))
            out.push_back({*shown, vb::CInt(rs.Fields(keyField).Value())});
    }
    rs.Close();
    return out;
}

} // namespace

std::vector<MailChoice> Locations()
{
    std::vector<MailChoice> out{{QStringLiteral(" "), 0}};
    const auto more =
        read(QStringLiteral("SELECT * FROM tbl_Location WHERE (Available_Flug ='0') ORDER BY Location_Code; "), u"Location_Code",
             [](db::Recordset& rs) -> std::optional<QString> { return FieldText(rs.Fields(u"Location_Name").Value()); });
    out.insert(out.end(), more.begin(), more.end());
    return out;
}

std::vector<MailChoice> Computers()
{
    return read(QStringLiteral("SELECT DISTINCT tbl_Pclist.*, tbl_Computer_List.*, tbl_Location.* FROM tbl_Pclist, "
                               "tbl_Computer_List, tbl_Location WHERE ( (Deleted_Flug =0) AND (tbl_Pclist.MainKey = "
                               "tbl_Computer_List.[MainKey]) AND (tbl_Location.Location_Code = tbl_Computer_List.Location_Code) ) "
                               "ORDER BY Computer_Name;"),
                u"tbl_Pclist.MainKey", [](db::Recordset& rs) -> std::optional<QString> {
                    if (vb::CLng(rs.Fields(u"tbl_Pclist.MainKey").Value()) <= 0)
                        return std::nullopt;
                    return FieldText(rs.Fields(u"Computer_Name").Value()) + u' ' + FieldText(rs.Fields(u"Location_Name").Value());
                });
}

std::vector<MailChoice> Users()
{
    return read(QStringLiteral("SELECT * FROM tbl_User WHERE Available_flug ='0'ORDER BY Section_Code, Division_Code;"), u"User_Code",
                [](db::Recordset& rs) -> std::optional<QString> {
                    const QString name = FieldText(rs.Fields(u"User_Name").Value());
                    if (name.isEmpty() || FieldText(rs.Fields(u"User_Code").Value()).isEmpty())
                        return std::nullopt;
                    return name + u' ';
                });
}

} // namespace MailChoices
