#include "platform/vb/Conversion.h"
#include "platform/vb/VbError.h"

#include "support/QtPrinters.h"
#include "support/VbErrors.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <variant>

inline void PrintTo(const QDateTime& d, std::ostream* os) { *os << d.toString(QStringLiteral("yyyy/MM/dd HH:mm:ss.zzz")).toStdString(); }

using namespace vb;

namespace {

// The run-time error a case expects instead of a value.
struct Raises {
    long number;
};
template <typename T> using Outcome = std::variant<T, Raises>;

Variant S(const char* utf8) { return Variant(QString::fromUtf8(utf8)); }
Variant I(std::int16_t i) { return Variant::Integer(i); }
Variant L(std::int32_t l) { return Variant::Long(l); }
Variant D(int y, int m, int d, int h = 0, int n = 0, int s = 0) { return Variant(MakeDate(y, m, d, h, n, s)); }

const Raises kOverflow{Err::Overflow};
const Raises kMismatch{Err::TypeMismatch};
const Raises kNull{Err::InvalidUseOfNull};

template <typename T> struct Case {
    const char* name;
    Variant in;
    Outcome<T> out;
};

// Each case must give the expected value, or raise the expected error.
template <typename T, typename F, size_t N> void RunCases(const Case<T> (&cases)[N], F convert)
{
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        try {
            const T got = convert(c.in);
            if (const auto* raises = std::get_if<Raises>(&c.out))
                ADD_FAILURE() << "returned " << ::testing::PrintToString(got) << " instead of raising " << raises->number;
            else
                EXPECT_EQ(got, std::get<T>(c.out));
        } catch (const VbError& e) {
            const auto* raises = std::get_if<Raises>(&c.out);
            EXPECT_EQ(raises ? raises->number : 0, e.Number()) << e.what();
        }
    }
}

} // namespace

// The rounding and range of the whole types; how a text reads as a number is CDbl's table.
TEST(Conversion, CIntAndCLngRoundToEvenAndCheckRange)
{
    const Case<int> ints[] = {
        {"2.5 to even 2", 2.5, 2},
        {"Long one above", L(32768), kOverflow},
        {"32767.5 rounds out of range", 32767.5, kOverflow},
        {"-32768.5 rounds to even inside", -32768.5, -32768},
        {"text too big", S("70000"), kOverflow},
        {"hex of four digits is signed", S("&HFFFF"), -1},
        {"Null", Variant::Null(), kNull},
        {"date beyond an Integer", D(2005, 12, 4), kOverflow},
    };
    RunCases(ints, [](const Variant& v) { return int(CInt(v)); });

    const Case<long> longs[] = {
        {"text 70000", S("70000"), 70000},
        {"above the top", 2147483648.0, kOverflow},
        {"hex of eight digits is signed", S("&HFFFFFFFF"), -1},
        {"hex of nine digits", S("&H100000000"), kMismatch},
        {"date serial", D(2005, 12, 4), 38690},
        {"noon of an odd day rounds up", D(2005, 12, 5, 12), 38692},
    };
    RunCases(longs, [](const Variant& v) { return long(CLng(v)); });
}

TEST(Conversion, CDblReadsNumbersOfTheJapaneseLocale)
{
    const Case<double> cases[] = {
        {"decimal", S("0.5"), 0.5},
        {"thousands and decimals", S("1,234.5"), 1234.5},
        {"decimal comma is no number", S("1.234,5"), kMismatch},
        {"exponent with D", S("1D2"), 100.0},
        {"blanks around", S("  12 "), 12.0},
        {"number then letters", S("12abc"), kMismatch},
        {"sign after the number", S("12-"), -12.0},
        {"parentheses", S("(12)"), -12.0},
        {"full-width digits and minus", S("－１２３"), -123.0},
        {"yen sign", S("\\1,200"), 1200.0},
        {"date text is no number", S("2015/09/16"), kMismatch},
        {"time of the date zero", D(1899, 12, 30, 6), 0.25},
        {"day before the date zero keeps a positive time", D(1899, 12, 29, 12), -1.5},
        {"Null", Variant::Null(), kNull},
    };
    RunCases(cases, [](const Variant& v) { return CDbl(v); });
}

TEST(Conversion, CStrPrintsAsVb)
{
    const Case<QString> cases[] = {
        {"Null", Variant::Null(), kNull},
        {"third to 15 digits", 1.0 / 3, QStringLiteral("0.333333333333333")},
        {"15 digits stay plain", 123456789012345.0, QStringLiteral("123456789012345")},
        {"16 digits go exponent", 1234567890123456.0, QStringLiteral("1.23456789012346E+15")},
        {"small exponent has two digits", 0.00001, QStringLiteral("1E-05")},
        {"date only", D(2005, 12, 4), QStringLiteral("2005/12/04")},
        {"date and time, hour without zero", D(2005, 12, 4, 9, 5, 3), QStringLiteral("2005/12/04 9:05:03")},
        {"day before the date zero", D(1899, 12, 29), QStringLiteral("1899/12/29")},
    };
    RunCases(cases, [](const Variant& v) { return CStr(v); });
}

TEST(Conversion, CDateReadsJapaneseDateTextsAndOleSerials)
{
    const Case<QDateTime> cases[] = {
        {"y/m/d without zeros", S("2005/2/3"), MakeDate(2005, 2, 3)},
        {"two blanks before the time", S("2005/02/03  9:05"), MakeDate(2005, 2, 3, 9, 5)},
        {"kanji with time", S("2005年2月3日 10:11"), MakeDate(2005, 2, 3, 10, 11)},
        {"full-width digits", S("２００５/２/３"), MakeDate(2005, 2, 3)},
        {"two-digit year 29", S("29/12/31"), MakeDate(2029, 12, 31)},
        {"two-digit year 30", S("30/1/1"), MakeDate(1930, 1, 1)},
        {"time only", S("10:11:12"), MakeDate(1899, 12, 30, 10, 11, 12)},
        {"31 February", S("2005/02/31"), kMismatch},
        {"month 13", S("2005/13/01"), kMismatch},
        {"Null", Variant::Null(), kNull},
        {"Empty is the date zero", Variant(), MakeDate(1899, 12, 30)},
        {"serial with noon", 38690.5, MakeDate(2005, 12, 4, 12)},
        {"number text is a serial", S("38690"), MakeDate(2005, 12, 4)},
        {"before the date zero the time counts forward", -1.5, MakeDate(1899, 12, 29, 12)},
        {"a hair before midnight is the next day", 38690.9999999, MakeDate(2005, 12, 5)},
    };
    RunCases(cases, [](const Variant& v) { return CDate(v); });
}

TEST(Conversion, TrimTakesBlanksAndIdeographicSpacesButNotTabs)
{
    EXPECT_EQ(Trim(QStringLiteral(" 　東京　本社　 ")), QStringLiteral("東京　本社"));
    EXPECT_EQ(Trim(QStringLiteral("\tx\t")), QStringLiteral("\tx\t"));
    EXPECT_EQ(Trim(QStringLiteral("  　 ")), QString());
}

TEST(Operators, ConcatTreatsNullAsEmptyUnlessBothAreNull)
{
    EXPECT_EQ(Concat(Variant::Null(), Variant::Null()), Variant::Null());
    EXPECT_EQ(Concat(Variant::Null(), S("a")), S("a"));
    EXPECT_EQ(Concat(L(1), I(2)), S("12"));
    EXPECT_EQ(Concat(S("日付 "), D(2005, 12, 4)), S("日付 2005/12/04"));
}

TEST(Operators, EqualFollowsTheNullAndMixedTypeRules)
{
    const std::optional<bool> null;
    const struct {
        const char* name;
        Variant a, b;
        std::optional<bool> result;
    } cases[] = {
        {"Null left", Variant::Null(), L(5), null},          {"number and its text", L(5), S("5"), true},
        {"number and letters", L(5), S("abc"), false},       {"number and empty text", L(0), S(""), false},
        {"texts differ in case", S("abc"), S("ABC"), false}, {"number texts compare as texts", S("1"), S("01"), false},
        {"Empty and zero", Variant(), L(0), true},           {"date and its printed form", D(2005, 12, 4), S("2005/12/04"), true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Equal(c.a, c.b), c.result) << c.name;
}

TEST(Operators, IntegerAdditionOverflows)
{
    EXPECT_EQ(IntAdd(32766, 1), 32767);
    EXPECT_EQ(ErrorOf([] { IntAdd(32767, 1); }), Err::Overflow);
    EXPECT_EQ(ErrorOf([] { IntAdd(-32768, -1); }), Err::Overflow);
}
