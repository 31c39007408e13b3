#pragma once

#include <QColor>

class QWidget;

// VB's units and palette: sizes in twips (1440 to the inch, at the screen's logical DPI) and the
// sixteen QBColor colours.
namespace ui {

int TwipsToPixels(int twips);
int PixelsToTwips(int pixels);
// Twips per pixel at the screen's logical DPI (15 at 96 DPI), as Screen.TwipsPerPixelX.
int TwipsPerPixel();

// QBColor(0..15); an index outside raises error 5, as VB did.
QColor QBColor(int index);
// The QBColor indices the windows paint with: black, gray (128, 128, 128) and bright white.
inline constexpr int qbBlack = 0;
inline constexpr int qbGray = 8;
inline constexpr int qbWhite = 15;

// VB's RGB function: the colour of the three components.
inline QColor RGB(int r, int g, int b) { return QColor(r, g, b); }

} // namespace ui
