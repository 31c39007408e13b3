#include "platform/vb/Conversion.h"

#include "platform/vb/VbError.h"

#include <cmath>
#include <limits>

namespace vb {

namespace {

const QDate kDateZero(1899, 12, 30);
// The serials of 100/01/01 and 9999/12/31, the bounds of a VB date.
constexpr double kFirstSerial = -657434;
constexpr double kLastSerial = 2958465;

bool isBlank(QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); }

// Under the Japanese locale the trimming functions take the ideographic space for a blank too.
bool isTrimmed(QChar c) { return c == QLatin1Char(' ') || c == QChar(0x3000); }

bool isAsciiDigit(QChar c) { return c.unicode() >= '0' && c.unicode() <= '9'; }

// The Japanese run time reads the full-width forms as their ASCII letters ("１２３" is 123,
// "－５" is -5), the ideographic space as a blank and the yen sign in any form as the currency
// symbol "\" of the locale.
QString narrowed(QStringView s)
{
    QString out;
    out.reserve(s.size());
    for (QChar c : s) {
        const char16_t u = c.unicode();
        if (u >= 0xFF01 && u <= 0xFF5E)
            out.append(QChar(char16_t(u - 0xFEE0)));
        else if (u == 0x3000)
            out.append(QLatin1Char(' '));
        else if (u == 0x00A5 || u == 0xFFE5)
            out.append(QLatin1Char('\\'));
        else
            out.append(c);
    }
    return out;
}

// The value of the hexadecimal or octal digits of "&H..." / "&O...": up to four hex digits make
// a 16 bit Integer and more make a 32 bit Long, both signed, so "&HFFFF" is -1 and "&HFFFFFFFF"
// is -1 too. std::nullopt when a character is no digit of the base or the value needs more than
// 32 bits.
std::optional<double> radixValue(QStringView digits, int base)
{
    if (digits.isEmpty())
        return std::nullopt;
    quint64 u = 0;
    for (QChar c : digits) {
        const int d = QStringLiteral("0123456789ABCDEF").indexOf(c.toUpper());
        if (d < 0 || d >= base)
            return std::nullopt;
        u = u * quint64(base) + quint64(d);
        if (u > 0xFFFFFFFFull)
            return std::nullopt;
    }
    if (u <= 0xFFFF && (base != 16 || digits.size() <= 4))
        return double(std::int16_t(std::uint16_t(u)));
    return double(std::int32_t(std::uint32_t(u)));
}

// Reads a text as VB's conversion to a number does, after narrowing: blanks around it; a sign
// before the number (blanks may follow it) or after it, or parentheses for a negative; a leading
// currency sign; digits with "," thousands separators before the decimal point; an exponent with
// E or D; or &H / &O.
std::optional<double> parseNumberText(QStringView text)
{
    const QString s = narrowed(text);
    qsizetype i = 0, n = s.size();
    while (i < n && isBlank(s[i]))
        ++i;
    while (n > i && isBlank(s[n - 1]))
        --n;
    if (i >= n)
        return std::nullopt;
    if (s[i] == QLatin1Char('&') && i + 1 < n) {
        const QChar k = s[i + 1].toUpper();
        const int base = k == QLatin1Char('H') ? 16 : k == QLatin1Char('O') ? 8 : 0;
        if (base == 0)
            return std::nullopt;
        return radixValue(QStringView(s).mid(i + 2, n - i - 2), base);
    }

    bool negative = false, sign = false, paren = false, currency = false;
    for (; i < n; ++i) {
        const QChar c = s[i];
        if ((c == QLatin1Char('+') || c == QLatin1Char('-')) && !sign && !paren) {
            sign = true;
            negative = c == QLatin1Char('-');
        } else if (c == QLatin1Char('(') && !sign && !paren) {
            paren = true;
            negative = true;
        } else if (c == QLatin1Char('\\') && !currency) {
            currency = true;
        } else if (!isBlank(c) || !(sign || paren || currency)) {
            break;
        }
    }

    QByteArray buf;
    buf.reserve(n - i);
    bool digits = false, point = false;
    for (; i < n; ++i) {
        const QChar c = s[i];
        if (isAsciiDigit(c)) {
            buf.append(char(c.unicode()));
            digits = true;
        } else if (c == QLatin1Char(',') && digits && !point) {
            continue; // thousands separator
        } else if (c == QLatin1Char('.') && !point) {
            buf.append('.');
            point = true;
        } else if ((c == QLatin1Char('E') || c == QLatin1Char('e') || c == QLatin1Char('D') || c == QLatin1Char('d')) && digits) {
            buf.append('e');
            if (i + 1 < n && (s[i + 1] == QLatin1Char('+') || s[i + 1] == QLatin1Char('-')))
                buf.append(char(s[++i].unicode()));
            if (i + 1 >= n || !isAsciiDigit(s[i + 1]))
                return std::nullopt;
            while (i + 1 < n && isAsciiDigit(s[i + 1]))
                buf.append(char(s[++i].unicode()));
            ++i;
            break;
        } else {
            break;
        }
    }
    if (!digits)
        return std::nullopt;

    // what may follow the number: blanks, a sign when none came before, the closing parenthesis
    while (i < n && isBlank(s[i]))
        ++i;
    if (i < n && (s[i] == QLatin1Char('+') || s[i] == QLatin1Char('-')) && !sign && !paren) {
        negative = s[i] == QLatin1Char('-');
        ++i;
        while (i < n && isBlank(s[i]))
            ++i;
    }
    if (paren) {
        if (i >= n || s[i] != QLatin1Char(')'))
            return std::nullopt;
        ++i;
    }
    if (i != n)
        return std::nullopt;

    bool ok = false;
    const double d = buf.toDouble(&ok);
    if (!ok || !std::isfinite(d))
        return std::nullopt;
    return negative ? -d : d;
}

QString doubleToString(double d)
{
    if (d == 0)
        return QStringLiteral("0");
    // VB shows up to 15 significant digits, switching to exponent form as %G does.
    QString s = QString::asprintf("%.15G", d);
    const qsizetype e = s.indexOf(QLatin1Char('E'));
    if (e >= 0) {
        // 1.5E+020 style of the C library into VB's 1.5E+20
        QString mant = s.left(e);
        QString ex = s.mid(e + 1);
        const QChar sgn = ex[0];
        ex = ex.mid(1);
        while (ex.size() > 2 && ex.startsWith(QLatin1Char('0')))
            ex.remove(0, 1);
        s = mant + QLatin1Char('E') + sgn + ex;
    }
    return s;
}

bool isDateZero(const QDate& d) { return d == kDateZero; }

// A date as the serial number of days since the date zero, the time as its fraction (OLE dates).
double dateToSerial(const QDateTime& dt)
{
    const double days = double(kDateZero.daysTo(dt.date()));
    const double frac = dt.time().msecsSinceStartOfDay() / 86400000.0;
    // OLE dates before zero keep the time as a positive fraction after the minus sign.
    return days >= 0 ? days + frac : days - frac;
}

// Raises 6 for a serial outside 100/01/01 .. 9999/12/31, the range of a VB date.
QDateTime serialToDate(double serial)
{
    if (!(serial > kFirstSerial - 1 && serial < kLastSerial + 1))
        throw VbError::Overflow();
    const double whole = std::trunc(serial);
    const double frac = std::fabs(serial - whole);
    qint64 days = qint64(whole);
    long long seconds = std::llround(frac * 86400.0);
    if (seconds == 86400) {
        // a time that rounds up to midnight belongs to the next day away from zero
        seconds = 0;
        days += serial < 0 ? -1 : 1;
    }
    const QDate d = kDateZero.addDays(days);
    if (d.year() < 100 || d.year() > 9999)
        throw VbError::Overflow();
    return QDateTime(d, QTime::fromMSecsSinceStartOfDay(int(seconds * 1000)), Qt::UTC);
}

QString dateToString(const QDateTime& dt)
{
    const QDate d = dt.date();
    const QTime t = dt.time();
    const bool hasTime = t != QTime(0, 0);
    // The day zero is not shown, so a time alone, and the date zero itself, print as a time.
    if (isDateZero(d))
        return t.toString(QStringLiteral("H:mm:ss"));
    if (!hasTime)
        return d.toString(QStringLiteral("yyyy/MM/dd"));
    return d.toString(QStringLiteral("yyyy/MM/dd")) + QLatin1Char(' ') + t.toString(QStringLiteral("H:mm:ss"));
}

double toDouble(const Variant& v)
{
    switch (v.Type()) {
    case VarType::Empty: return 0;
    case VarType::Null: throw VbError::InvalidUseOfNull();
    case VarType::Integer: return v.integerValue();
    case VarType::Long: return v.longValue();
    case VarType::Double: return v.doubleValue();
    case VarType::Boolean: return v.booleanValue() ? -1 : 0;
    case VarType::Date: return dateToSerial(v.dateValue());
    case VarType::String: {
        const QString& s = v.stringValue();
        if (auto d = parseNumberText(s))
            return *d;
        // VB's numeric conversion also accepts the words of a Boolean.
        if (s.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
            return -1;
        if (s.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
            return 0;
        throw VbError::TypeMismatch();
    }
    }
    throw VbError::TypeMismatch();
}

// Reads up to maxDigits decimal digits at s[i]; returns -1 when there is none.
int readInt(QStringView s, qsizetype& i, int maxDigits)
{
    int value = 0, count = 0;
    while (i < s.size() && count < maxDigits && s[i].unicode() >= '0' && s[i].unicode() <= '9') {
        value = value * 10 + (s[i].unicode() - '0');
        ++i;
        ++count;
    }
    return count ? value : -1;
}

std::optional<QTime> parseTime(QStringView s)
{
    qsizetype i = 0;
    const int h = readInt(s, i, 2);
    if (h < 0 || i >= s.size() || s[i] != QLatin1Char(':'))
        return std::nullopt;
    ++i;
    const int m = readInt(s, i, 2);
    if (m < 0)
        return std::nullopt;
    int sec = 0;
    if (i < s.size() && s[i] == QLatin1Char(':')) {
        ++i;
        sec = readInt(s, i, 2);
        if (sec < 0)
            return std::nullopt;
    }
    if (i != s.size())
        return std::nullopt;
    QTime t(h, m, sec);
    if (!t.isValid())
        return std::nullopt;
    return t;
}

std::optional<QDate> parseDatePart(QStringView s)
{
    qsizetype i = 0;
    const int y = readInt(s, i, 4);
    if (y < 0 || i >= s.size())
        return std::nullopt;
    const qsizetype yearDigits = i;
    const QChar sep = s[i];
    const bool kanji = sep == QChar(0x5E74); // 年
    if (!kanji && sep != QLatin1Char('/') && sep != QLatin1Char('-') && sep != QLatin1Char('.'))
        return std::nullopt;
    ++i;
    const int m = readInt(s, i, 2);
    if (m < 0 || i >= s.size())
        return std::nullopt;
    if (kanji ? s[i] != QChar(0x6708) : s[i] != sep) // 月
        return std::nullopt;
    ++i;
    const int d = readInt(s, i, 2);
    if (d < 0)
        return std::nullopt;
    if (kanji && i < s.size() && s[i] == QChar(0x65E5)) // 日
        ++i;
    if (i != s.size())
        return std::nullopt;
    int year = y;
    if (yearDigits <= 2)
        year += y < 30 ? 2000 : 1900; // the system's two-digit year window
    QDate date(year, m, d);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

} // namespace

double RoundToEven(double d) { return std::nearbyint(d); }

std::optional<double> ParseNumber(const QString& s) { return parseNumberText(s); }

QDateTime MakeDate(int y, int m, int d, int h, int n, int s) { return QDateTime(QDate(y, m, d), QTime(h, n, s), Qt::UTC); }

std::optional<QDateTime> ParseDate(const QString& text)
{
    const QString narrow = narrowed(text);
    QStringView s = QStringView(narrow).trimmed();
    if (s.isEmpty())
        return std::nullopt;
    const qsizetype blank = s.indexOf(QLatin1Char(' '));
    if (blank < 0) {
        if (auto d = parseDatePart(s))
            return QDateTime(*d, QTime(0, 0), Qt::UTC);
        if (auto t = parseTime(s))
            return QDateTime(kDateZero, *t, Qt::UTC);
        return std::nullopt;
    }
    auto d = parseDatePart(s.left(blank));
    auto t = parseTime(s.mid(blank + 1).trimmed());
    if (!d || !t)
        return std::nullopt;
    return QDateTime(*d, *t, Qt::UTC);
}

std::int16_t CInt(const Variant& v)
{
    if (v.Type() == VarType::Integer)
        return v.integerValue();
    const double r = RoundToEven(toDouble(v));
    if (r < -32768.0 || r > 32767.0)
        throw VbError::Overflow();
    return std::int16_t(r);
}

std::int32_t CLng(const Variant& v)
{
    if (v.Type() == VarType::Long)
        return v.longValue();
    const double r = RoundToEven(toDouble(v));
    if (r < -2147483648.0 || r > 2147483647.0)
        throw VbError::Overflow();
    return std::int32_t(r);
}

double CDbl(const Variant& v) { return toDouble(v); }

QString CStr(const Variant& v)
{
    switch (v.Type()) {
    case VarType::Empty: return QString();
    case VarType::Null: throw VbError::InvalidUseOfNull();
    case VarType::Integer: return QString::number(v.integerValue());
    case VarType::Long: return QString::number(v.longValue());
    case VarType::Double: return doubleToString(v.doubleValue());
    case VarType::String: return v.stringValue();
    case VarType::Date: return dateToString(v.dateValue());
    case VarType::Boolean: return v.booleanValue() ? QStringLiteral("True") : QStringLiteral("False");
    }
    return {};
}

QDateTime CDate(const Variant& v)
{
    switch (v.Type()) {
    case VarType::Null: throw VbError::InvalidUseOfNull();
    case VarType::Date: return v.dateValue();
    case VarType::String: {
        if (auto d = ParseDate(v.stringValue()))
            return *d;
        if (auto n = parseNumberText(v.stringValue()))
            return serialToDate(*n);
        throw VbError::TypeMismatch();
    }
    default: return serialToDate(toDouble(v));
    }
}

QString Trim(const QString& s)
{
    qsizetype from = 0, to = s.size();
    while (from < to && isTrimmed(s[from]))
        ++from;
    while (to > from && isTrimmed(s[to - 1]))
        --to;
    return s.mid(from, to - from);
}

Variant Concat(const Variant& a, const Variant& b)
{
    if (a.IsNull() && b.IsNull())
        return Variant::Null();
    const QString sa = a.IsNull() ? QString() : CStr(a);
    const QString sb = b.IsNull() ? QString() : CStr(b);
    return Variant(sa + sb);
}

std::optional<bool> Equal(const Variant& a, const Variant& b)
{
    if (a.IsNull() || b.IsNull())
        return std::nullopt;
    const bool aNum = a.IsNumeric() || a.IsDate() || a.IsEmpty();
    const bool bNum = b.IsNumeric() || b.IsDate() || b.IsEmpty();
    if (a.IsString() && b.IsString())
        return a.stringValue() == b.stringValue();
    if (a.IsEmpty() && b.IsString())
        return b.stringValue().isEmpty();
    if (b.IsEmpty() && a.IsString())
        return a.stringValue().isEmpty();
    if (aNum && bNum)
        return toDouble(a) == toDouble(b);
    // A number against a text, as the system meets it: a field's value against a literal or a
    // box's text. A text that reads as a number compares as a number ("5" = 5, " 5" = 5);
    // any other text, and any text against a date, compares with the other side's CStr, so
    // True = "True" and a date equals its printed form.
    const Variant& num = aNum ? a : b;
    const Variant& str = aNum ? b : a;
    if (!num.IsDate()) {
        if (auto d = parseNumberText(str.stringValue()))
            return toDouble(num) == *d;
    }
    return CStr(num) == str.stringValue();
}

std::int16_t IntAdd(std::int16_t a, std::int16_t b)
{
    const int r = int(a) + int(b);
    if (r < std::numeric_limits<std::int16_t>::min() || r > std::numeric_limits<std::int16_t>::max())
        throw VbError::Overflow();
    return std::int16_t(r);
}

} // namespace vb
