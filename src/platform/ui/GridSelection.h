#pragma once

namespace ui {

class FlexGrid;

// The selection of the list windows, which paint it themselves instead of using the grid's
// highlight: the previous row goes white (QBColor 15), the chosen one gray (8), cell by cell from
// column firstCol on (column 1 unless a window keeps more columns in their own colour, or paints
// column 0 too); the columns before it keep their colour. A row below 1 does nothing. A row that
// is no longer in the grid (a refill left it shorter than the remembered row) is not painted
// either: the control raised error 30009 there and ended the run, an accident of the control that
// no user expects. The grid is painted once, at the end.
void PaintGridRow(FlexGrid& grid, int row, int qbColour, int firstCol = 1);

} // namespace ui
