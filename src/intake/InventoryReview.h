#pragma once

#include "platform/ui/FlexGrid.h"

#include <QString>

#include <cstdint>
#include <functional>

// The review of one inventory file against one computer of the ledger, the second road of the
// intake: the 107 rows of the field map side by side, the ledger's value in column 3 and the
// staged file's in column 4, which the user may correct; then column 4 written over the
// computer, and its applications, devices, printers and environment variables replaced by the
// staged file's. The staging and the field map are the bulk read's; the review differs from it
// where it reads and writes the rows:
// - it knows Japanese keywords only, and the grid's form of rows 51, 66 and 97;
// - column 4 holds a value as the file has it ("TRUE", "512MB"), kept where the file has none;
// - every grid row is written, also one the file did not fill (a text then becomes empty);
//   a number column gets the value as a whole number, and a value that is none ends the run;
// - it writes no codes, and of tbl_Computer_List only the type and the serial number.
namespace InventoryReview {

// The comparison grid: its headings are rows of the field map's table, so it has 108 rows.
constexpr int ComparisonRows = 108;
enum ComparisonColumn { No = 0, Caption = 1, Field = 2, LedgerValue = 3, FileValue = 4, ComparisonColumns = 5 };

// The computers the review can overwrite: installed ones whose location and user have rows, in
// the order of their names. Each entry is the name filled with blanks to 17 characters, then the
// location, a blank and the user; add hears it with the computer's key. A name of more than 17
// characters cannot be filled: StandardErrorBox, and the list ends there.
void FillComputerList(const std::function<void(const QString& entry, std::int16_t key)>& add);

// Sets the comparison grid's shape and headings; the cells are kept.
void SetComparisonGrid(ui::FlexGrid& grid);

// Column 3: the grid emptied (column 4 with it) and filled with the numbers, captions and field
// names and the computer's stored values. False when the ledger has no such computer: the grid
// keeps its headings alone. No handler: a failure goes to the caller.
bool FillPcColumn(ui::FlexGrid& grid, const QString& key);

// Column 4 from the staged file, by the Japanese keywords; a row whose record the file lacks
// keeps the cell as it was. False after a failure, which StandardErrorBox has shown.
bool FillReadColumn(ui::FlexGrid& grid);

// The staged file's applications: name, version, path. NoRows leaves the grid as it was.
ui::FillResult FillApplicationGrid(ui::FlexGrid& grid);

// Writes column 4 of every grid row over the computer key, then replaces its row-wise data by
// the staged file's. The rows go in as one transaction, each refused statement dropping alone.
// A number column whose value is no number raises error 13: the rows before it are committed,
// the rest and the row-wise data are not written. A commit that fails raises its error.
void OverwriteComputer(const ui::FlexGrid& grid, const QString& key);

} // namespace InventoryReview
