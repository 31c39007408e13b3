#include "platform/vb/Conversion.h"
#include "platform/vb/VbError.h"

#include "VbTestSupport.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

using namespace vb;
using vbtest::ExpectOutcome;
using vbtest::Outcome;
using vbtest::Raises;

namespace {

Variant S(const char* utf8) { return Variant(QString::fromUtf8(utf8)); }
Variant I(std::int16_t i) { return Variant::Integer(i); }
Variant L(std::int32_t l) { return Variant::Long(l); }

const Raises kOverflow{Err::Overflow};
const Raises kMismatch{Err::TypeMismatch};
const Raises kNull{Err::InvalidUseOfNull};

template <typename T>
struct Case {
    const char* name;
    Variant in;
    Outcome<T> out;
};

} // namespace

TEST(Conversion, ErrorsCarryTheJapaneseRunTimeTexts)
{
    struct {
        const char* name;
        std::function<void()> call;
        long number;
        const char* description;
    } const cases[] = {
        {"overflow", [] { CInt(L(32768)); }, 6, "オーバーフローしました。"},
        {"type mismatch", [] { CInt(S("abc")); }, 13, "型が一致しません。"},
        {"Null", [] { CInt(Variant::Null()); }, 94, "Null の使い方が不正です。"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        try {
            c.call();
            ADD_FAILURE() << "no error";
        } catch (const VbError& e) {
            EXPECT_EQ(e.Number(), c.number);
            EXPECT_EQ(e.Description(), QString::fromUtf8(c.description));
        }
    }
}

TEST(Conversion, CIntRoundsToEvenAndChecksRange)
{
    const Case<int> cases[] = {
        {"2.5 to even 2", 2.5, 2},
        {"3.5 to even 4", 3.5, 4},
        {"-2.5 to even -2", -2.5, -2},
        {"0.5 to even 0", 0.5, 0},
        {"-1.5 to even -2", -1.5, -2},
        {"2.6 up", 2.6, 3},
        {"text 2.5 to even", S("2.5"), 2},
        {"Integer kept", I(-32768), -32768},
        {"Long at the top", L(32767), 32767},
        {"Long one above", L(32768), kOverflow},
        {"Long one below", L(-32769), kOverflow},
        {"32767.5 rounds out of range", 32767.5, kOverflow},
        {"-32768.5 rounds to even inside", -32768.5, -32768},
        {"text too big", S("70000"), kOverflow},
        {"text no number", S("abc"), kMismatch},
        {"empty text", S(""), kMismatch},
        {"blank text", S("   "), kMismatch},
        {"number then letters", S("12abc"), kMismatch},
        {"Null", Variant::Null(), kNull},
        {"Empty", Variant(), 0},
        {"blanks around", S("  12 "), 12},
        {"thousands separator", S("1,234"), 1234},
        {"hex", S("&H10"), 16},
        {"hex of four digits is signed", S("&HFFFF"), -1},
        {"hex 8000", S("&H8000"), -32768},
        {"octal", S("&O17"), 15},
        {"True", true, -1},
        {"False", false, 0},
        {"word True", S("True"), -1},
        {"full-width digits", S("１２３"), 123},
        {"full-width minus", S("－５"), -5},
        {"ideographic blanks around", S("　42　"), 42},
        {"blank after the sign", S("- 12"), -12},
        {"sign after the number", S("12-"), -12},
        {"parentheses", S("(12)"), -12},
        {"yen sign", S("\\1,200"), 1200},
        {"exponent", S("1e3"), 1000},
        {"two signs", S("-12-"), kMismatch},
        {"open parenthesis", S("(12"), kMismatch},
        {"blank inside digits", S("1 2"), kMismatch},
        {"date beyond an Integer", Variant(MakeDate(2005, 12, 4)), kOverflow},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ExpectOutcome<int>(c.out, [&] { return int(CInt(c.in)); });
    }
}

TEST(Conversion, CLngRoundsToEvenAndChecksRange)
{
    const Case<long> cases[] = {
        {"text 70000", S("70000"), 70000},
        {"2.5 to even", 2.5, 2},
        {"-3.5 to even", -3.5, -4},
        {"top", 2147483647.0, 2147483647},
        {"above the top", 2147483648.0, kOverflow},
        {"bottom", -2147483648.0, -2147483648L},
        {"text above the top", S("2147483648"), kOverflow},
        {"hex of five digits is positive", S("&H10000"), 65536},
        {"hex of eight digits is signed", S("&HFFFFFFFF"), -1},
        {"hex of nine digits", S("&H100000000"), kMismatch},
        {"not hex", S("&HG"), kMismatch},
        {"date serial", Variant(MakeDate(2005, 12, 4)), 38690},
        {"noon rounds to even", Variant(MakeDate(2005, 12, 4, 12)), 38690},
        {"noon of an odd day rounds up", Variant(MakeDate(2005, 12, 5, 12)), 38692},
        {"Null", Variant::Null(), kNull},
        {"letters", S("x"), kMismatch},
        {"Integer", I(7), 7},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ExpectOutcome<long>(c.out, [&] { return long(CLng(c.in)); });
    }
}

TEST(Conversion, CDblReadsNumbersOfTheJapaneseLocale)
{
    const Case<double> cases[] = {
        {"decimal", S("0.5"), 0.5},
        {"no leading digit", S(".5"), 0.5},
        {"trailing point", S("5."), 5.0},
        {"thousands and decimals", S("1,234.5"), 1234.5},
        {"decimal comma is no number", S("1.234,5"), kMismatch},
        {"comma after the point", S("1.5,0"), kMismatch},
        {"exponent", S("1.5e2"), 150.0},
        {"exponent with D", S("1D2"), 100.0},
        {"negative exponent", S("25E-1"), 2.5},
        {"exponent without digits", S("1E"), kMismatch},
        {"two points", S("1.2.3"), kMismatch},
        {"two signs", S("--1"), kMismatch},
        {"plus", S("+7"), 7.0},
        {"full-width point", S("１．５"), 1.5},
        {"full-width yen", S("￥1,000"), 1000.0},
        {"only a sign", S("-"), kMismatch},
        {"only a yen sign", S("\\"), kMismatch},
        {"date text is no number", S("2015/09/16"), kMismatch},
        {"percent is no number", S("1%"), kMismatch},
        {"Long", L(-5), -5.0},
        {"Empty", Variant(), 0.0},
        {"time of the date zero", Variant(MakeDate(1899, 12, 30, 6)), 0.25},
        {"day before the date zero keeps a positive time", Variant(MakeDate(1899, 12, 29, 12)), -1.5},
        {"Null", Variant::Null(), kNull},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ExpectOutcome<double>(c.out, [&] { return CDbl(c.in); });
    }
}

TEST(Conversion, CBoolIsNonZero)
{
    const Case<bool> cases[] = {
        {"zero", L(0), false},
        {"five", L(5), true},
        {"fraction", 0.25, true},
        {"text zero", S("0"), false},
        {"text minus one", S("-1"), true},
        {"word True", S("True"), true},
        {"word false any case", S("false"), false},
        {"Empty", Variant(), false},
        {"letters", S("abc"), kMismatch},
        {"empty text", S(""), kMismatch},
        {"Null", Variant::Null(), kNull},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ExpectOutcome<bool>(c.out, [&] { return CBool(c.in); });
    }
}

TEST(Conversion, IsNumericAnswersAsTheJapaneseRunTime)
{
    const struct {
        const char* name;
        Variant in;
        bool numeric;
    } cases[] = {
        {"Empty", Variant(), true},
        {"Null", Variant::Null(), false},
        {"Boolean", true, true},
        {"Double", 1.5, true},
        {"Date", Variant(MakeDate(2015, 9, 16)), false},
        {"digits", S("12"), true},
        {"empty text", S(""), false},
        {"letters", S("abc"), false},
        {"thousands", S("1,234"), true},
        {"hex", S("&H1F"), true},
        {"word True", S("True"), false},
        {"date text", S("2015/09/16"), false},
        {"full-width digits", S("１２３４５"), true},
        {"yen and thousands", S("\\12,345"), true},
        {"blank after the sign", S("- 123"), true},
        {"sign after", S("123-"), true},
        {"percent", S("1%"), false},
        {"kanji numerals", S("一二三"), false},
        {"sum", S("10+10"), false},
    };
    for (const auto& c : cases)
        EXPECT_EQ(IsNumeric(c.in), c.numeric) << c.name;
}

TEST(Conversion, CStrPrintsAsVb)
{
    const Case<QString> cases[] = {
        {"Empty", Variant(), QString()},
        {"Null", Variant::Null(), kNull},
        {"Integer", I(-12), QStringLiteral("-12")},
        {"Long", L(1234567), QStringLiteral("1234567")},
        {"half", 0.5, QStringLiteral("0.5")},
        {"third to 15 digits", 1.0 / 3, QStringLiteral("0.333333333333333")},
        {"two thirds rounded", 2.0 / 3, QStringLiteral("0.666666666666667")},
        {"whole double", 2.0, QStringLiteral("2")},
        {"negative", -0.25, QStringLiteral("-0.25")},
        {"negative zero", -0.0, QStringLiteral("0")},
        {"15 digits stay plain", 123456789012345.0, QStringLiteral("123456789012345")},
        {"16 digits go exponent", 1234567890123456.0, QStringLiteral("1.23456789012346E+15")},
        {"1E+20", 1E+20, QStringLiteral("1E+20")},
        {"large exponent", 1.5E+300, QStringLiteral("1.5E+300")},
        {"ten thousandth", 0.0001, QStringLiteral("0.0001")},
        {"small exponent has two digits", 0.00001, QStringLiteral("1E-05")},
        {"True", true, QStringLiteral("True")},
        {"False", false, QStringLiteral("False")},
        {"text", S("東京"), QStringLiteral("東京")},
        {"date only", Variant(MakeDate(2005, 12, 4)), QStringLiteral("2005/12/04")},
        {"date and time, hour without zero", Variant(MakeDate(2005, 12, 4, 9, 5, 3)),
         QStringLiteral("2005/12/04 9:05:03")},
        {"afternoon", Variant(MakeDate(2005, 12, 4, 23, 59, 59)), QStringLiteral("2005/12/04 23:59:59")},
        {"time only", Variant(MakeDate(1899, 12, 30, 9, 5, 3)), QStringLiteral("9:05:03")},
        {"date zero", Variant(MakeDate(1899, 12, 30)), QStringLiteral("0:00:00")},
        {"day before the date zero", Variant(MakeDate(1899, 12, 29)), QStringLiteral("1899/12/29")},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ExpectOutcome<QString>(c.out, [&] { return CStr(c.in); });
    }
}

TEST(Conversion, CDateReadsJapaneseDateTexts)
{
    const Case<QDateTime> cases[] = {
        {"y/m/d without zeros", S("2005/2/3"), MakeDate(2005, 2, 3)},
        {"hyphens", S("2005-02-03"), MakeDate(2005, 2, 3)},
        {"with seconds", S("2005/02/03 10:11:12"), MakeDate(2005, 2, 3, 10, 11, 12)},
        {"without seconds", S("2005/02/03 10:11"), MakeDate(2005, 2, 3, 10, 11)},
        {"two blanks before the time", S("2005/02/03  9:05"), MakeDate(2005, 2, 3, 9, 5)},
        {"kanji", S("2005年2月3日"), MakeDate(2005, 2, 3)},
        {"kanji with time", S("2005年2月3日 10:11"), MakeDate(2005, 2, 3, 10, 11)},
        {"blanks around", S(" 2005/2/3 "), MakeDate(2005, 2, 3)},
        {"full-width digits", S("２００５/２/３"), MakeDate(2005, 2, 3)},
        {"leap day", S("2004/2/29"), MakeDate(2004, 2, 29)},
        {"two-digit year 05", S("05/2/3"), MakeDate(2005, 2, 3)},
        {"two-digit year 29", S("29/12/31"), MakeDate(2029, 12, 31)},
        {"two-digit year 30", S("30/1/1"), MakeDate(1930, 1, 1)},
        {"time only", S("10:11:12"), MakeDate(1899, 12, 30, 10, 11, 12)},
        {"31 February", S("2005/02/31"), kMismatch},
        {"no leap day", S("2005/2/29"), kMismatch},
        {"month 13", S("2005/13/01"), kMismatch},
        {"letters", S("abc"), kMismatch},
        {"empty text", S(""), kMismatch},
        {"hour 25", S("2005/02/03 25:00"), kMismatch},
        {"minute 60", S("2005/02/03 10:60"), kMismatch},
        {"four parts", S("2005/2/3/4"), kMismatch},
        {"mixed separators", S("2005/02-03"), kMismatch},
        {"time without minutes", S("2005/02/03 10:"), kMismatch},
        {"Null", Variant::Null(), kNull},
        {"Empty is the date zero", Variant(), MakeDate(1899, 12, 30)},
        {"serial with noon", 38690.5, MakeDate(2005, 12, 4, 12)},
        {"Long serial", L(38690), MakeDate(2005, 12, 4)},
        {"date kept", Variant(MakeDate(2005, 12, 4, 9, 5, 3)), MakeDate(2005, 12, 4, 9, 5, 3)},
        {"serial past 9999", 1e10, kOverflow},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        ExpectOutcome<QDateTime>(c.out, [&] { return CDate(c.in); });
    }
}

TEST(Conversion, IsDateAndParseDateAgreeWithCDate)
{
    const struct {
        const char* name;
        Variant in;
        bool isDate;
    } cases[] = {
        {"date text", S("2005/2/3"), true},
        {"kanji date", S("2005年2月3日"), true},
        {"time text", S("9:05"), true},
        {"impossible day", S("2005/02/31"), false},
        {"number", 38690.0, false},
        {"number text", S("38690"), false},
        {"Date", Variant(MakeDate(2005, 2, 3)), true},
        {"Null", Variant::Null(), false},
        {"Empty", Variant(), false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(IsDate(c.in), c.isDate) << c.name;
        if (c.in.IsString()) {
            EXPECT_EQ(ParseDate(c.in.stringValue()).has_value(), c.isDate) << c.name;
        }
    }
}

TEST(Conversion, DateSerialsFollowTheOleCalendar)
{
    const struct {
        const char* name;
        double serial;
        QDateTime date;
    } cases[] = {
        {"a day of the ledger", 38690, MakeDate(2005, 12, 4)},
        {"quarter past the date zero", 0.25, MakeDate(1899, 12, 30, 6)},
        {"before the date zero", -1.5, MakeDate(1899, 12, 29, 12)},
        {"first VB date", -657434, MakeDate(100, 1, 1)},
        {"last VB date", 2958465, MakeDate(9999, 12, 31)},
        {"last second", 2958465 + 86399.0 / 86400, MakeDate(9999, 12, 31, 23, 59, 59)},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(SerialToDate(c.serial), c.date);
        EXPECT_NEAR(DateToSerial(c.date), c.serial, 1e-9);
    }

    // A time a hair before midnight rounds to the next day, not back to the start of its own.
    EXPECT_EQ(SerialToDate(38690 + 0.9999999), MakeDate(2005, 12, 5));
    EXPECT_EQ(SerialToDate(-1.9999999), MakeDate(1899, 12, 28));

    for (double outside : {-657435.0, 2958466.0, 1e300}) {
        try {
            SerialToDate(outside);
            ADD_FAILURE() << outside << " gave a date";
        } catch (const VbError& e) {
            EXPECT_EQ(e.Number(), Err::Overflow) << outside;
        }
    }
}

TEST(Conversion, ValReadsTheLeadingNumber)
{
    const struct {
        const char* name;
        const char* text;
        double value;
    } cases[] = {
        {"letters after", "12abc", 12},
        {"empty", "", 0},
        {"blanks inside", " 1 2 ", 12},
        {"tab and line feed skipped", "\t1\n2", 12},
        {"stops at the comma", "1,234", 1},
        {"decimal", "2.6", 2.6},
        {"hex", "&HFF", 255},
        {"hex lower case", "&hff", 255},
        {"hex of four digits is an Integer", "&HFFFF", -1},
        {"hex of five digits", "&HFFFFF", 1048575},
        {"hex stops at a letter", "&H1Z", 1},
        {"octal", "&O17", 15},
        {"octal stops at 8", "&O78", 7},
        {"no hex digits", "&H", 0},
        {"negative", "-3", -3},
        {"plus", "+5", 5},
        {"exponent", "1e3", 1000},
        {"exponent with D", "2d2", 200},
        {"exponent without digits", "1e", 1},
        {"exponent sign without digits", "1e+x", 1},
        {"number in words", "-3.5e1 x", -35},
        {"second point stops", "1.2.3", 1.2},
        {"only a point", ".", 0},
        {"leading point", ".5", 0.5},
        {"letters first", "abc12", 0},
        {"sign then letters", "-x", 0},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Val(QString::fromUtf8(c.text)), c.value) << c.name;
}

TEST(Conversion, TrimTakesBlanksAndIdeographicSpaces)
{
    const struct {
        const char* name;
        const char* in;
        const char* trim;
        const char* ltrim;
        const char* rtrim;
    } cases[] = {
        {"blanks", "  a b  ", "a b", "a b  ", "  a b"},
        {"ideographic spaces", "　東京　本社　", "東京　本社", "東京　本社　", "　東京　本社"},
        {"mixed", " 　x　 ", "x", "x　 ", " 　x"},
        {"tabs stay", "\tx\t", "\tx\t", "\tx\t", "\tx\t"},
        {"all blanks", "  　 ", "", "", ""},
        {"empty", "", "", "", ""},
    };
    for (const auto& c : cases) {
        const QString in = QString::fromUtf8(c.in);
        EXPECT_EQ(Trim(in), QString::fromUtf8(c.trim)) << c.name;
        EXPECT_EQ(LTrim(in), QString::fromUtf8(c.ltrim)) << c.name;
        EXPECT_EQ(RTrim(in), QString::fromUtf8(c.rtrim)) << c.name;
    }
}

TEST(Operators, ConcatTreatsNullAsEmptyUnlessBothAreNull)
{
    const struct {
        const char* name;
        Variant a, b, result;
    } cases[] = {
        {"Null & Null", Variant::Null(), Variant::Null(), Variant::Null()},
        {"Null & text", Variant::Null(), S("a"), S("a")},
        {"text & Null", S("a"), Variant::Null(), S("a")},
        {"Null & Empty", Variant::Null(), Variant(), S("")},
        {"Empty & number", Variant(), L(5), S("5")},
        {"number & number", L(1), I(2), S("12")},
        {"text & Double", S("x="), 0.5, S("x=0.5")},
        {"text & date", S("日付 "), Variant(MakeDate(2005, 12, 4)), S("日付 2005/12/04")},
        {"Boolean & text", true, S("!"), S("True!")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Concat(c.a, c.b), c.result) << c.name;
}

TEST(Operators, EqualFollowsTheNullAndMixedTypeRules)
{
    const std::optional<bool> null;
    const struct {
        const char* name;
        Variant a, b;
        std::optional<bool> result;
    } cases[] = {
        {"Null left", Variant::Null(), L(5), null},
        {"Null right", S("a"), Variant::Null(), null},
        {"Null both", Variant::Null(), Variant::Null(), null},
        {"Null and Empty", Variant::Null(), Variant(), null},
        {"number and its text", L(5), S("5"), true},
        {"text and its number", S("5"), L(5), true},
        {"number and text with blanks", L(5), S(" 5 "), true},
        {"number and decimal text", L(1), S("1.0"), true},
        {"number and other number text", L(5), S("6"), false},
        {"number and letters", L(5), S("abc"), false},
        {"number and empty text", L(0), S(""), false},
        {"Integer and Long", I(5), L(5), true},
        {"Long and Double", L(5), 5.0, true},
        {"fraction", 0.5, L(0), false},
        {"texts differ in case", S("abc"), S("ABC"), false},
        {"same texts", S("東京"), S("東京"), true},
        {"number texts compare as texts", S("1"), S("01"), false},
        {"Empty and zero", Variant(), L(0), true},
        {"Empty and empty text", Variant(), S(""), true},
        {"Empty and text zero", Variant(), S("0"), false},
        {"Empty and Empty", Variant(), Variant(), true},
        {"True and -1", true, L(-1), true},
        {"True and its word", true, S("True"), true},
        {"date and its printed form", Variant(MakeDate(2005, 12, 4)), S("2005/12/04"), true},
        {"date and another form", Variant(MakeDate(2005, 12, 4)), S("2005/12/4"), false},
        {"date and its serial", Variant(MakeDate(2005, 12, 4)), L(38690), true},
        {"same dates", Variant(MakeDate(2005, 12, 4, 9)), Variant(MakeDate(2005, 12, 4, 9)), true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Equal(c.a, c.b), c.result) << c.name;
}

TEST(Operators, IntegerAdditionOverflows)
{
    const Outcome<long> kOver = kOverflow;
    const struct {
        const char* name;
        std::int16_t a, b;
        Outcome<long> result;
    } intCases[] = {
        {"to the top", 32766, 1, 32767L},
        {"past the top", 32767, 1, kOver},
        {"to the bottom", -32767, -1, -32768L},
        {"past the bottom", -32768, -1, kOver},
    };
    for (const auto& c : intCases) {
        SCOPED_TRACE(c.name);
        ExpectOutcome<long>(c.result, [&] { return long(IntAdd(c.a, c.b)); });
    }
    const struct {
        const char* name;
        std::int32_t a, b;
        Outcome<long> result;
    } longCases[] = {
        {"beyond an Integer", 32767, 1, 32768L},
        {"past the top", 2147483647, 1, kOver},
        {"past the bottom", -2147483647 - 1, -1, kOver},
    };
    for (const auto& c : longCases) {
        SCOPED_TRACE(c.name);
        ExpectOutcome<long>(c.result, [&] { return long(LngAdd(c.a, c.b)); });
    }
}
