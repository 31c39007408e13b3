#include "platform/ui/GridSelection.h"

#include "platform/ui/FlexGrid.h"
#include "platform/ui/Twips.h"

namespace ui {

void PaintGridRow(FlexGrid& grid, int row, int qbColour, int firstCol)
{
    if (row < 1 || row >= grid.Rows())
        return;
    const QColor colour = QBColor(qbColour);
    const bool redraw = grid.Redraw();
    grid.SetRedraw(false);
    for (int c = firstCol; c < grid.Cols(); ++c) {
        grid.SetRow(row);
        grid.SetCol(c);
        grid.SetCellBackColor(colour);
    }
    grid.SetRedraw(redraw);
}

} // namespace ui
