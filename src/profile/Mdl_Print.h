#pragma once

#include <cstdint>

struct ProfileControls;

namespace print {
class PrintSurface;
}

// The printed sheet of one computer: a fixed list of labelled lines, then its applications and
// printers, then the purchase and lease data, drawn line by line on a print surface. The sheet
// is read from the profile window's controls, not from the ledger: the print command reloads
// them first. Distances are millimetres; line n stands at n times LineHeight.
namespace Mdl_Print {

// The page model, set up once for each sheet.
struct PageModel {
    std::int32_t LineHeight = 0;      // the height of "A" in the sheet's font, whole millimetres
    std::int32_t LinesPerPage = 0;    // whole lines in the surface's height
    std::int32_t TextHeightTotal = 0; // LinesPerPage lines
    std::int32_t RightEdge = 0;       // the right margin: the width less 10
    std::int16_t PageNumber = 0;      // the page being drawn, from 1
};

// The whole sheet of the computer the controls show, ended with the document's end.
void fnc_Print_Sheet(const ProfileControls& controls, print::PrintSurface& surface);

// The font of tbx_Dat(0), millimetres, and the page model from the surface's size.
PageModel fnc_Print_Setup(const ProfileControls& controls, print::PrintSurface& surface);
// The header (computer name, page label, rule) and footer (title, date, rule) of a page.
void fnc_Print_Frame(const ProfileControls& controls, print::PrintSurface& surface, const PageModel& model);
// Every line of the sheet, with its page breaks.
void fnc_Print_Body(const ProfileControls& controls, print::PrintSurface& surface, PageModel& model);

} // namespace Mdl_Print
