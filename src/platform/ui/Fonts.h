#pragma once

#include <QFont>
#include <QString>

namespace ui {

// The system's screen fonts are named as on the systems it came from ("ＭＳ ゴシック", also spelt
// "MS Gothic"). Where no font of that family is installed they are substituted by the IPA fonts
// of the same design (fonts-ipafont-gothic), so that the Japanese texts show. Call once at start,
// after the application object exists.
void InstallFontSubstitutes();

// "ＭＳ ゴシック" at the given point size: the font of the grids and status bars.
QFont MsGothic(int pointSize = 9);

} // namespace ui
