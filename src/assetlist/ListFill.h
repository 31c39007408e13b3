#pragma once

#include "platform/ui/FlexGrid.h"

#include <functional>

namespace db {
class Recordset;
}

// The handler that the fill routines of the list windows share: the fill opens its recordset and
// fills the grid; a failure shows StandardErrorBox, closes the recordset and answers Failed,
// leaving the grid as far as it was filled. The grid's Redraw is what it was before, either way.
ui::FillResult RunListFill(ui::FlexGrid& grid, const std::function<ui::FillResult(db::Recordset& rs)>& fill);
