#pragma once

#include "platform/vb/Variant.h"

namespace vb {

// VB's Format for the numeric patterns the system uses: '#' and '0' digit places, ',' for the
// thousands separator, '.' for decimals, literal text around them. A value rounds half away
// from zero, as Format rounds (unlike CInt). "###,###" of 0 is "" since no digit is forced.
// Null gives ""; a text that is no number comes back as it is, as VB's Format returns it.
// An empty pattern gives the value's CStr.
QString Format(const Variant& v, const QString& pattern);

} // namespace vb
