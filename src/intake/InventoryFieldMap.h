#pragma once

#include "foundation/Mdl_Access_mdb.h"
#include "intake/Staging.h"

#include <QString>
#include <QStringList>
#include <QStringView>

#include <array>

// Which record of a staged inventory file feeds which ledger field: 107 rows in the order in
// which both intake paths walk them. The bulk read writes the ledger in this order; the review
// window shows the rows under these numbers and captions. A record that no row selects goes
// nowhere. The row-wise sections (applications, devices, printers, environment variables) are
// not here: CopyStagingRows moves them.

// The reader the user chose. Nothing in a file tells its language.
enum class InventoryLanguage { Japanese, English };

// Which of the two paths asks: three rows differ between them (51, 66, 97).
enum class FieldMapPath { BulkRead, Review };

// How a value is treated on its way to the ledger.
enum class FieldKind {
    Text,          // first 255 characters
    Number,        // to a 32-bit integer, half to even; text that is no number gives 0
    GuardedNumber, // the same, converted only when not empty (the review writes "0" for empty)
    Unit,          // as it stands, from the record of the number row above
    Flag,          // "1" for "1" or "TRUE", else "0"
    SettingFlag,   // "1" for "1" or "True", else "0"
    Hex,           // IpToHex8 of the whole address
    Date,          // first 255 characters; the bulk read writes it to both tables
};

// How the field is named on the left of SET in the bulk read's UPDATE.
enum class FieldForm {
    Bracketed,   // "tbl_Pclist.[Workgroup] = "
    Unbracketed, // "tbl_Computer_List.Type_Number = "
    Unqualified, // "IPAddress_16num = "
};

// The two conditions that find a record: "first = 'a'  AND second = 'b'".
struct FieldSelection {
    QStringView firstColumn;
    QStringView firstValue;
    QStringView secondColumn;
    QStringView secondValue;

    bool isEmpty() const { return firstColumn.isEmpty(); }
};

struct InventoryFieldRow {
    int row;             // 1 to 107, also the review grid's row
    QStringView caption; // the review grid's "項目名"
    QStringView field;   // the ledger field, as the review grid carries it
    FieldKind kind;
    int position; // of the value in FirstRow: 3 SubItem, 4 Contents, 5 Unit
    FieldSelection japanese;
    FieldSelection english = {}; // empty: as japanese
    int englishPosition = 0;     // 0: as position
    QStringView table = u"tbl_Pclist";
    FieldForm form = FieldForm::Bracketed;
    // Where the bulk read parts from the grid's form of the row:
    QStringView bulkField = {};   // the field it writes instead (rows 51, 66)
    QStringView bulkSubItem = {}; // the SubItem it selects instead (row 66)
    bool bulkSkips = false;       // a repeat it leaves out (row 97)

    // The conditions of this row for a reader and a path.
    FieldSelection selection(InventoryLanguage language, FieldMapPath path) const;
    // The position of the value in the record for a reader.
    int valuePosition(InventoryLanguage language) const;
    // The field the path writes.
    QStringView writtenField(FieldMapPath path) const;
};

// The 107 rows, row 1 first.
const std::array<InventoryFieldRow, 107>& InventoryFieldMap();

// "SELECT * FROM tbl_ReadCsv  WHERE (Item = 'LAN'  AND SubItem = 'コンピュータ名');"
QString FieldLookupSql(const FieldSelection& selection);

// The record that FieldLookupSql finds in tbl_ReadCsv when staging holds these lines, as
// OpenRecordsetFirstRow returns it: the first line, in staging's order, whose two columns equal
// the two values as the ledger compares text (case counts for A to Z only), each value through
// SanitizeField; nine empty strings when no line matches.
Mdl_Access_mdb::FirstRow FieldLookup(const Mdl_Access_mdb::StagedLines& lines, const FieldSelection& selection);

// The value that the bulk read writes for a row, from the record its lookup found (nine empty
// strings when none): cut, converted to a whole number, a flag digit or an address key.
QString BulkReadValue(const InventoryFieldRow& row, InventoryLanguage language, const Mdl_Access_mdb::FirstRow& record);

// The bulk read's UPDATEs of one row, with " WHERE MainKey = " key at the end: one statement,
// or two for the date (tbl_Computer_List first, then tbl_Pclist). Numbers go unquoted.
QStringList BulkReadStatements(const InventoryFieldRow& row, const QString& value, const QString& key);
