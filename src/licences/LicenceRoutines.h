#pragma once

#include "platform/vb/Variant.h"

#include <QString>

#include <cstdint>

namespace ui {
class FlexGrid;
}

// What the data routines of the licence windows share.
namespace LicenceRoutines {

// Gives the current cell a text, a background of the 16-colour palette and an alignment.
void SetCell(ui::FlexGrid& grid, int row, int col, const QString& text, int qbColour, int alignment);

// The key of a new row of a register keyed by [Key]: the highest plus 1 (a 16-bit addition,
// which overflows past 32767), 1 for an empty table.
std::int16_t NextKey(const QString& table);

// The delete of a register's selected row: asks "削除しますか？" and, on Yes, with a row selected
// whose column 0 holds a key, deletes that row of the table in one transaction. True when the
// statement ran; a failing statement goes to the caller.
bool DeleteSelectedRow(const ui::FlexGrid& grid, std::int16_t selectedRow, const QString& table);

} // namespace LicenceRoutines
