#pragma once

#include <QString>

#include <functional>

namespace text {
class AnsiFile;
}
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
// The same for a grid filled without a window (the companion program's exports): a failure shows
// StandardErrorBox and answers false.
bool SaveGrid(const ui::FlexGrid& grid, const QString& path);
// The grid's lines onto a file already open, for a file form that puts lines of its own around
// them.
void WriteGridLines(const ui::FlexGrid& grid, text::AnsiFile& file);

// The save dialog of the system's CSV exports, with the given title: the two filters run
// together, filter index 2, cancel raising error 32755 (CancelSelected). Answers the chosen name
// with ".csv" added, whatever it ended in.
QString ChooseCsvFile(const QString& dialogTitle);

// The export command of a list window: the save dialog with the given title ("CSV書き出し" for the
// main list), cancel ending in silence, ".csv" added to whatever name was chosen, the file, and
// "完了しました". A failure shows StandardErrorBox.
void ExportGrid(const ui::FlexGrid& grid, const QString& dialogTitle);
// The same command for a window whose file holds more than the grid: write makes the file at the
// path it is given and throws vb::VbError when it cannot.
void ExportFile(const QString& dialogTitle, const std::function<void(const QString& path)>& write);

} // namespace ListExport
