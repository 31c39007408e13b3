#include "platform/vb/Format.h"

#include "platform/vb/Conversion.h"

#include <cmath>

namespace vb {

QString Format(const Variant& v, const QString& pattern)
{
    if (v.IsNull())
        return QString();
    if (pattern.isEmpty())
        return CStr(v);
    double value;
    if (v.IsString()) {
        auto d = ParseNumber(v.stringValue());
        if (!d)
            return v.stringValue();
        value = *d;
    } else {
        value = CDbl(v);
    }

    // Split the pattern: literal prefix, the number part, literal suffix.
    const auto isPlace = [](QChar c) {
        return c == QLatin1Char('#') || c == QLatin1Char('0') || c == QLatin1Char(',') || c == QLatin1Char('.');
    };
    qsizetype b = 0;
    while (b < pattern.size() && !isPlace(pattern[b]))
        ++b;
    qsizetype e = b;
    while (e < pattern.size() && isPlace(pattern[e]))
        ++e;
    const QString prefix = pattern.left(b);
    const QString number = pattern.mid(b, e - b);
    const QString suffix = pattern.mid(e);

    const qsizetype point = number.indexOf(QLatin1Char('.'));
    const QString intPart = point < 0 ? number : number.left(point);
    const QString fracPart = point < 0 ? QString() : number.mid(point + 1);
    const bool thousands = intPart.contains(QLatin1Char(','));
    const int forcedInt = int(intPart.count(QLatin1Char('0')));
    const int fracPlaces = int(fracPart.count(QLatin1Char('#')) + fracPart.count(QLatin1Char('0')));
    const int forcedFrac = int(fracPart.count(QLatin1Char('0')));

    const double scale = std::pow(10.0, fracPlaces);
    // half away from zero, with a guard against binary representation (2.675 -> 2.68)
    const double scaled = std::round(std::fabs(value) * scale * (1 + 1e-15));
    const bool negative = value < 0 && scaled != 0;
    const double whole = std::floor(scaled / scale);
    long long fracDigits = (long long)(scaled - whole * scale);

    QString digits = whole == 0 ? QString() : QString::number(whole, 'f', 0);
    while (digits.size() < forcedInt)
        digits.prepend(QLatin1Char('0'));
    if (thousands && digits.size() > 3) {
        for (qsizetype i = digits.size() - 3; i > 0; i -= 3)
            digits.insert(i, QLatin1Char(','));
    }

    QString frac;
    if (fracPlaces > 0) {
        frac = QString::number(fracDigits).rightJustified(fracPlaces, QLatin1Char('0'));
        while (frac.size() > forcedFrac && frac.endsWith(QLatin1Char('0')))
            frac.chop(1);
    }

    QString out = prefix;
    if (negative)
        out += QLatin1Char('-');
    out += digits;
    if (point >= 0)
        out += QLatin1Char('.') + frac;
    out += suffix;
    return out;
}

} // namespace vb
