#pragma once

#include "platform/vb/Variant.h"

#include <cstdint>
#include <optional>

// VB's conversion functions and operators over Variant, with VB's rules: Null raises 94 where VB
// raised it, text that is no number raises 13, a value out of range raises 6, and numbers round
// to even (banker's rounding) on the way to a whole type. Text to number and date follows the
// Japanese locale the system ran in: "." decimal point, "," thousands separator, "\" currency
// sign, y/m/d dates, and the full-width forms of digits and signs read as the narrow ones.
namespace vb {

std::int16_t CInt(const Variant& v);
std::int32_t CLng(const Variant& v);
double CDbl(const Variant& v);
QString CStr(const Variant& v);
QDateTime CDate(const Variant& v);

// Trim removes blanks: character 32 and, under the Japanese locale, the ideographic space
// U+3000. Tabs and line ends stay.
QString Trim(const QString& s);

// The & operator: Null & Null is Null; otherwise Null and Empty count as "".
Variant Concat(const Variant& a, const Variant& b);

// The = operator of two Variants: std::nullopt stands for a Null result (either side Null).
// A number and a text that reads as a number compare as numbers, otherwise as text (the
// number's CStr); a date against a text always compares as text. Texts compare exactly.
std::optional<bool> Equal(const Variant& a, const Variant& b);

// Integer addition with VB's overflow error.
std::int16_t IntAdd(std::int16_t a, std::int16_t b);

// Rounding to even, as CInt and CLng round.
double RoundToEven(double d);

// Parses a text the way VB's conversion to a number reads it; std::nullopt when it is no number.
std::optional<double> ParseNumber(const QString& s);
// Parses a text the way VB's conversion to a date reads it; std::nullopt when it is no date.
std::optional<QDateTime> ParseDate(const QString& s);

// Dates are kept as UTC QDateTime values so that no daylight saving shift can touch them;
// the day 1899/12/30 is VB's date zero, which a time alone carries.
QDateTime MakeDate(int y, int m, int d, int h = 0, int n = 0, int s = 0);

} // namespace vb
