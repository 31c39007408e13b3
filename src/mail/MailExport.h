#pragma once

#include <QString>

namespace ui {
class FlexGrid;
}

// The three files the mail register writes from what its grid shows (its location filter, its
// order, its empty cells), in the ANSI code page with CR LF, nothing quoted: a comma inside a cell
// is written as it stands and shifts the fields after it.
//
// - FullList: the heading row and every account, each cell but the hidden key followed by ",",
//   the heading line led by "#,", each line closed by a blank.
// - AddressBook (Outlook Express): the fixed heading "表示名,電子メール アドレス,オフィスの場所,部署名,メモ",
//   then name, address, location, section and division run together, computer name.
// - BeatBox: the heading with its first field made "#", then columns 0 to 11 but the key, and
//   "残さない,FALSE" closing every line. Mail box passwords appear here and in the full list,
//   never in the address book.
namespace MailExport {

enum class Form { FullList, AddressBook, BeatBox };

// Writes the grid in that form, replacing a file of that name. Throws vb::VbError when the file
// cannot be made or written; what was written so far stays. A grid without rows writes nothing
// (the address book its heading line).
void WriteGrid(const ui::FlexGrid& grid, Form form, const QString& path);

// The register's export command in that form: the save dialog, ".csv" added to whatever name was
// chosen, the file, and "完了しました". Unlike the list exports it shows no error box: a cancel and
// every failure alike end the command in silence.
void ExportGrid(const ui::FlexGrid& grid, Form form);

} // namespace MailExport
