#pragma once

#include "platform/vb/Variant.h"

#include <QString>

#include <cstdint>

class QWidget;
namespace ui {
class Form;
}

// Small value routines and conventions shared by the windows.
namespace Mdl_Sub {

// The focus highlight of a data-entry control: mode 1 pale cyan (128, 255, 255), mode 2 white,
// any other mode nothing.
void SetFocusColor(QWidget* control, std::int16_t mode);

// A field's text for a cell, a box or a list: "" for Null (which never compares equal to "").
QString FieldText(const vb::Variant& v);

// The length of a text in bytes of the ANSI code page: full-width characters count two.
int ByteLength(const QString& text);

// The digits of a text read from the right into a number: "1,024 MB" gives 1024, "" gives 0.
// A digit that would carry the result beyond 32 bits is skipped, the result standing as it was.
std::int32_t DigitsToNumber(const QString& text);

// Gives a window the size and place that the main window's globals hold, as the windows that
// stand over the main window open. A size of 0 (the main window never stood, as in the companion
// program) is left alone.
void TakeMainWindowPlace(ui::Form& form);

} // namespace Mdl_Sub
