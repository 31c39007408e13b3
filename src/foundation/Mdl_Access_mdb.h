#pragma once

#include "platform/db/Recordset.h"
#include "platform/vb/VbError.h"

#include <QString>

#include <array>
#include <cstdint>

// The module through which the system opens its ledger and through which most statements run.
// Its routines are small and their oddities carry weight: callers rely on ExecuteSql never
// reporting a failure, on OpenRecordsetFirstRow's nine slots, and on MaxOfFirstColumn answering
// -1 for an empty table where MaxMainKey answers 0.
namespace Mdl_Access_mdb {

// The nine sanitised strings of the first row of a SELECT.
using FirstRow = std::array<QString, 9>;

// Opens pcdb.mdb beside the program into DbConnection. Without the file, writes why to the main
// window's status panel and answers false; a file the engine refuses shows StandardErrorBox.
bool ConnectDatabase();
// Closes an open connection (after touching the staging table) and releases it.
bool DisconnectDatabase();

// The first row of a SELECT, each value as text through SanitizeField; nine empty strings for an
// empty text or no row. No handler: a Null value (94), a tenth column (9) or a failed SELECT
// goes to the caller.
FirstRow OpenRecordsetFirstRow(const QString& sql);

// Runs a statement and never reports a failure: "" gives false, anything else true.
bool ExecuteSql(const QString& sql);

// True when the SELECT yields a row; a failure shows StandardErrorBox and gives false.
bool RecordExists(const QString& sql);

// "数値", "文字" or "日付" for the first column's type when the SELECT yields a row, else "不明".
QString FieldTypeName(const QString& sql);

// The highest value of a table's first column, -1 for an empty table; 0 after a failure.
std::int16_t MaxOfFirstColumn(const QString& tableName);
// The highest MainKey of tbl_Computer_List, 0 for an empty table or after a failure.
std::int16_t MaxMainKey();

// Swaps the characters that would break a statement or a CSV line for full-width ones.
QString SanitizeField(const QString& text);

// The one error display: the number and the description, title "警告", critical icon, OK.
void StandardErrorBox(const vb::VbError& e);

// Runs a routine under the handler of the system's data routines: a failure shows
// StandardErrorBox, closes the recordset and answers failed, leaving whatever the routine had
// done so far.
template <typename Result, typename Routine> Result WithErrorBox(db::Recordset& rs, Result failed, Routine routine)
{
    try {
        return routine();
    } catch (const vb::VbError& e) {
        StandardErrorBox(e);
        rs.CloseIfOpen();
        return failed;
    }
}

} // namespace Mdl_Access_mdb
