#pragma once

#include "platform/db/Recordset.h"
#include "platform/ui/FlexGrid.h"

#include <array>
#include <cstddef>
#include <functional>

// The handler that the fill routines of the list windows share: the fill opens its recordset and
// fills the grid; a failure shows StandardErrorBox, closes the recordset and answers Failed,
// leaving the grid as far as it was filled. The grid's Redraw is what it was before, either way.
ui::FillResult RunListFill(ui::FlexGrid& grid, const std::function<ui::FillResult(db::Recordset& rs)>& fill);

// The index in the recordset of the field that each row of a column table names through the
// member field, -1 for a row that names none (nullptr).
template <typename Column, std::size_t N>
std::array<int, N> FieldIndexes(const db::Recordset& rs, const Column (&columns)[N], const char16_t* Column::*field)
{
    std::array<int, N> indexes{};
    for (std::size_t c = 0; c < N; ++c)
        indexes[c] = columns[c].*field ? rs.FieldIndex(columns[c].*field) : -1;
    return indexes;
}

// Whether the master behind a cell is retired: its Available_flug, the field at index flag (-1
// for a cell without a master), reads "1". A Null flag is not "1".
bool MasterRetired(const db::Recordset& rs, int flag);
