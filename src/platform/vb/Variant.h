#pragma once

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <iosfwd>
#include <variant>

namespace vb {

// The subtypes of a VB Variant that the system meets, numbered as VB's VarType numbers them.
enum class VarType { Empty = 0, Null = 1, Integer = 2, Long = 3, Double = 5, Date = 7, String = 8, Boolean = 11 };

// A VB Variant. Holds one value of one subtype; Empty is the default. The conversions of
// VB (CInt, CStr ...) and its Null rules live in Conversion.h; this class only stores, and its
// operator== compares subtype and value, for tests and containers, not with VB's rules.
class Variant {
public:
    Variant() = default;
    Variant(const QString& s) : m_v(s) {}
    Variant(QString&& s) : m_v(std::move(s)) {}
    Variant(const char* utf8) : m_v(QString::fromUtf8(utf8)) {}
    Variant(bool b) : m_v(b) {}
    Variant(double d) : m_v(d) {}
    Variant(int l) : m_v(std::int32_t(l)) {} // a plain int is a Long
    Variant(std::int16_t i) : m_v(i) {}
    Variant(const QDateTime& d) : m_v(d) {}

    static Variant Null()
    {
        Variant v;
        v.m_v = NullTag{};
        return v;
    }
    static Variant Integer(std::int16_t i) { return Variant(i); }
    static Variant Long(std::int32_t l) { return Variant(int(l)); }

    VarType Type() const;
    bool IsEmpty() const { return m_v.index() == 0; }
    bool IsNull() const { return m_v.index() == 1; }
    bool IsNumeric() const; // Integer, Long, Double, Boolean
    bool IsString() const { return std::holds_alternative<QString>(m_v); }
    bool IsDate() const { return std::holds_alternative<QDateTime>(m_v); }

    // Raw access; the caller has checked the subtype.
    std::int16_t integerValue() const { return std::get<std::int16_t>(m_v); }
    std::int32_t longValue() const { return std::get<std::int32_t>(m_v); }
    double doubleValue() const { return std::get<double>(m_v); }
    bool booleanValue() const { return std::get<bool>(m_v); }
    const QString& stringValue() const { return std::get<QString>(m_v); }
    const QDateTime& dateValue() const { return std::get<QDateTime>(m_v); }

    friend bool operator==(const Variant& a, const Variant& b) { return a.m_v == b.m_v; }

private:
    struct NullTag {
        friend bool operator==(NullTag, NullTag) { return true; }
    };
    std::variant<std::monostate, NullTag, std::int16_t, std::int32_t, double, QString, QDateTime, bool> m_v;
};

// Readable form for test failures: "Integer(3)", "String(\"abc\")", "Null".
QString DebugString(const Variant& v);
void PrintTo(const Variant& v, std::ostream* os);

} // namespace vb
