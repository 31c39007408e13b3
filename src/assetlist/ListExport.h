#pragma once

#include <QString>

namespace ui {
class FlexGrid;
}

// The list-to-CSV convention that every list window of the system follows: the grid as it is
// shown, heading row first, columns from 1 (the row-number column is left out, a hidden key
// column is not), each field followed by ",", each line closed by " " and CR LF, in the ANSI code
// page, nothing quoted. A shown value with a thousands comma therefore splits into two fields.
namespace ListExport {

// Writes the grid to path, replacing a file of that name. Throws vb::VbError when the file cannot
// be made or written. A grid without rows writes an empty file.
void WriteGrid(const ui::FlexGrid& grid, const QString& path);

// The save dialog of the system's CSV exports, with the given title: the two filters run
// together, filter index 2, cancel raising error 32755 (CancelSelected). Answers the chosen name
// with ".csv" added, whatever it ended in.
QString ChooseCsvFile(const QString& dialogTitle);

// The export command of a list window: the save dialog with the given title ("CSV書き出し" for the
// main list), cancel ending in silence, ".csv" added to whatever name was chosen, the file, and
// "完了しました". A failure shows StandardErrorBox.
void ExportGrid(const ui::FlexGrid& grid, const QString& dialogTitle);

} // namespace ListExport
