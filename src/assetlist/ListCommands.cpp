#include "assetlist/ListCommands.h"

#include "assetlist/ListQuery.h"
#include "assetlist/MainList.h"
#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_gData.h"
#include "platform/db/Connection.h"
#include "platform/db/Recordset.h"
#include "platform/ui/Dialogs.h"
#include "platform/ui/FlexGrid.h"
#include "platform/vb/Conversion.h"
#include "platform/vb/Like.h"
#include "platform/vb/VbError.h"

#include <QColor>

using Mdl_Access_mdb::ExecuteSql;

namespace ListCommands {

namespace {

const QString kConfirmTitle = QStringLiteral("確認");
constexpr int kYesNoQuestion = ui::vbQuestion | ui::vbYesNo;

// The refresh that ends every command: the list of the current view, with no selection.
void refresh(MainList& list)
{
    gSetSQLVal();
    list.fnc_View_PClist();
    list.MSFlexGrid_Main_ini();
}

void disable(MainList& list, MainList::MenuItem item)
{
    if (list.SetMenuEnabled)
        list.SetMenuEnabled(item, false);
}

// The eight tables that hold a computer, the column that names it in each, and the report's
// line for each table.
struct DeleteStep {
    const char16_t* from;
    const char16_t* keyColumn;
    const char16_t* deleted;
    const char16_t* absent;
};
constexpr DeleteStep kDeleteSteps[] = {
    {u" FROM tbl_ApplicationsList", u" tbl_ApplicationsList.Key = ", u"アプリケーション一覧を削除しました。",
     u"アプリケーション一覧には登録ありませんでした。"},
    {u" FROM tbl_Computer_List", u" tbl_Computer_List.MainKey = ", u"ユーザ登録一覧を削除しました。",
     u"ユーザ登録一覧には登録ありませんでした。"},
    {u" FROM tbl_Device_Management", u" tbl_Device_Management.Key = ", u"デバイス一覧を削除しました。",
     u"デバイス一覧には登録ありませんでした。"},
    {u" FROM tbl_Environmental", u" tbl_Environmental.Key = ", u"環境変数一覧を削除しました。", u"環境変数一覧には登録ありませんでした。"},
    {u" FROM tbl_Pclist", u" tbl_Pclist.MainKey = ", u"コンピュータ一覧を削除しました。", u"コンピュータ一覧には登録ありませんでした。"},
    {u" FROM tbl_Printer_Management", u" tbl_Printer_Management.Key = ", u"プリンタ一覧を削除しました。",
     u"プリンタ一覧には登録ありませんでした。"},
    {u" FROM tbl_Mail_Management", u" tbl_Mail_Management.Conputer_Code = ", u"メール一覧を削除しました。",
     u"メール一覧には登録ありませんでした。"},
    // the licences' "not there" line has always read as the mail's
    {u" FROM tbl_License_Dat", u" tbl_License_Dat.Computer_Code = ", u"ライセンス一覧を削除しました。",
     u"メール一覧には登録ありませんでした。"},
};

// Two characters of the date as a number; a text that is no number counts as out of range.
bool inRange(const QString& digits, double highest)
{
    const std::optional<double> n = vb::ParseNumber(digits);
    return n && *n > 0 && *n <= highest;
}

// The form of a removal date, yyyy/mm/dd: ten characters, the slashes in their places, a month
// of 1 to 12 and a day of 1 to 31. The year is not looked at and the day is not weighed against
// the month's length, so 2005/02/31 passes here and is left to the ledger.
bool isRemovalDate(const QString& answer)
{
    if (answer.size() != 10)
        return false;
    if (answer[4] != u'/' || answer[7] != u'/')
        return false;
    return inRange(answer.mid(8, 2), 31) && inRange(answer.mid(5, 2), 12);
}

// VB's Like refuses a pattern with an unclosed "[" (error 93) whatever the text. A search for
// such a word matches no cell here, instead of ending the program.
bool isValidPattern(const QString& pattern)
{
    try {
        vb::Like(QString(), pattern);
        return true;
    } catch (const vb::VbError& e) {
        if (e.Number() != vb::Err::InvalidPatternString)
            throw;
        return false;
    }
}

} // namespace

void Mnu_AddNew(MainList& list)
{
    try {
        // A list that has never had rows, or that a delete left empty, takes no new record until
        // a later fill finds rows.
        if (!list.ListReady)
            return;
        if (ui::MsgBox(QStringLiteral("レコードを新規作成しますか？"), kYesNoQuestion, kConfirmTitle) != ui::vbYes)
            return;
        const QString k = QString::number(vb::IntAdd(Mdl_Access_mdb::MaxMainKey(), 1));

        ExecuteSql(QStringLiteral("INSERT INTO tbl_Computer_List (MainKey) ") + QStringLiteral("VALUES (") + k + u')');
        ExecuteSql(QStringLiteral("INSERT INTO tbl_PClist (MainKey) ") + QStringLiteral("VALUES (") + k + u')');
        for (const char16_t* code :
             {u"tbl_Computer_List.[Location_Code] = 0", u"tbl_Computer_List.[User_Code] = 0", u"tbl_Computer_List.[Manufacturer_Code] = 0",
              u"tbl_Computer_List.[Model_Code] = 0", u"tbl_Computer_List.[Deleted_Flug] = 0"}) {
            ExecuteSql(QStringLiteral("UPDATE tbl_Computer_List SET ") + QString::fromUtf16(code) + QStringLiteral(" WHERE MainKey = ")
                       + k);
        }
        ui::MsgBox(QStringLiteral("レコードを新規作成しました"));
        refresh(list);
    } catch (const vb::VbError& e) {
        Mdl_Access_mdb::StandardErrorBox(e);
    }
}

void Mnu_Delete(MainList& list)
{
    if (list.CurrentMainKey == 0)
        return;
    if (ui::MsgBox(QStringLiteral("削除しますか？"), kYesNoQuestion, kConfirmTitle) != ui::vbYes)
        return;

    // ExecuteSql answers true for every statement it is given, rows or none, refused or not, so
    // the report always carries the eight "deleted" lines.
    const QString key = QString::number(list.CurrentMainKey);
    QString report;
    for (const DeleteStep& step : kDeleteSteps) {
        const QString sql = QStringLiteral("DELETE ") + QString::fromUtf16(step.from) + QStringLiteral(" WHERE")
                            + QString::fromUtf16(step.keyColumn) + key + u';';
        report += QString::fromUtf16(ExecuteSql(sql) ? step.deleted : step.absent) + ui::vbCrLf;
    }

    list.ListReady = false;
    refresh(list);
    disable(list, MainList::Mnu_Delete);
    ui::MsgBox(report);
}

void Mnu_ReplacePC(MainList& list)
{
    if (list.CurrentMainKey == 0)
        return;
    if (ui::MsgBox(QStringLiteral("撤去処理しますか？"), kYesNoQuestion, kConfirmTitle) != ui::vbYes)
        return;
    const QString removed = ui::InputBox(QStringLiteral("撤去日を入力してください(例2005/12/04) "), QStringLiteral("撤去処理"));
    // a date of another form, and Cancel, end the command without a word
    if (!isRemovalDate(removed))
        return;

    db::Recordset rs;
    rs.Open(QStringLiteral("SELECT * ") + QStringLiteral("FROM tbl_Computer_List ") + QStringLiteral("WHERE MainKey ")
                + QStringLiteral(" = ") + QString::number(list.CurrentMainKey),
            Mdl_gData::DbConnection(), db::adOpenStatic, db::adLockOptimistic, -1);
    if (rs.RecordCount() != 0) {
        rs.Fields(u"Deleted_Flug") = vb::Variant(1);
        rs.Fields(u"Remove_Date") = vb::Variant(removed);
        rs.Update();
    }
    rs.Close();

    refresh(list);
    disable(list, MainList::Mnu_ReplacePC);
}

void Mnu_Search(MainList& list)
{
    const QString word = ui::InputBox(QStringLiteral("検索する単語を入力してください"), QStringLiteral("検索"));
    if (word.isEmpty())
        return;

    // the list read again: the marks of an earlier search are gone
    list.FGridViewSelect_ini();
    gSetSQLVal();
    list.fnc_View_PClist();
    list.CurrentMainKey = 0;
    list.MSFlexGrid_Main_ini();

    // The word stands at the start of the cell: only a star follows it.
    const QString pattern = word + u'*';
    ui::FlexGrid& grid = list.MSFlexGrid_Main;
    const QColor yellow(255, 255, 0);
    bool found = false;
    grid.SetVisible(false);
    if (isValidPattern(pattern)) {
        for (int row = 1; row < grid.Rows(); ++row) {
            for (int col = 1; col < grid.Cols(); ++col) {
                if (!vb::Like(grid.TextMatrix(row, col), pattern))
                    continue;
                grid.SetRow(row);
                grid.SetCol(col);
                grid.SetCellBackColor(yellow);
                found = true;
            }
        }
    }
    grid.SetVisible(true);
    if (!found)
        ui::MsgBox(QStringLiteral("見つかりませんでした"));
}

void Mnu_ViewUpdate(MainList& list)
{
    list.FGridViewSelect_ini();
    gSetSQLVal();
    list.fnc_View_PClist();
    list.CurrentMainKey = 0;
    list.MSFlexGrid_Main_ini();
    for (MainList::MenuItem item : {MainList::Mnu_Edit_profile, MainList::Mnu_Delete, MainList::Mnu_ReplacePC})
        disable(list, item);
}

} // namespace ListCommands
