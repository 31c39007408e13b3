#pragma once

class QMenuBar;
class QWidget;

namespace ui {

class FlexGrid;

// The frame of a resizable form whose controls stand where its Form_Resize puts them, in twips,
// as the form designer placed them: the menu bar at the top and under it the client area, the
// parent of the controls.
QWidget* AddClientArea(QWidget* form, QMenuBar* menuBar);

// A grid of the client area with its control name, in the grids' font ("ＭＳ ゴシック").
FlexGrid* AddGrid(QWidget* client, const char* name);

} // namespace ui
