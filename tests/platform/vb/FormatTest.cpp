#include "platform/vb/Conversion.h"
#include "platform/vb/Format.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace vb;

TEST(Format, NumericPatternsRoundHalfAwayFromZero)
{
    const struct {
        const char* name;
        Variant value;
        const char* pattern;
        const char* text;
    } cases[] = {
        // the main list's capacities
        {"zero shows nothing", 0.0, "###,###", ""},
        {"Long zero shows nothing", Variant::Long(0), "###,###", ""},
        {"first separator", Variant::Long(1000), "###,###", "1,000"},
        {"more digits than places", Variant::Long(1234567), "###,###", "1,234,567"},
        {"below a half shows nothing", 0.4, "###,###", ""},
        {"2.5 rounds up, unlike CInt", 2.5, "###,###", "3"},
        {"-2.5 rounds away from zero", -2.5, "###,###", "-3"},
        {"negative", Variant::Long(-1234), "###,###", "-1,234"},
        {"Null", Variant::Null(), "###,###", ""},
        {"Empty", Variant(), "###,###", ""},
        {"size in kilobytes", 80026.361856, "###,###", "80,026"},
        {"True is -1", true, "###,###", "-1"},
        {"number text with blanks", Variant(QStringLiteral(" 1234 ")), "###,###", "1,234"},
        {"number text with separators", Variant(QStringLiteral("1,234,567")), "###,###", "1,234,567"},
        {"full-width number text", Variant(QStringLiteral("１２３４")), "###,###", "1,234"},
        {"text that is no number", Variant(QStringLiteral("不明")), "###,###", "不明"},
        {"date text stays text", Variant(QStringLiteral("2005/12/04")), "###,###", "2005/12/04"},
        // digit places, decimals and literals
        {"forced zero", 0.0, "#,##0", "0"},
        {"forced leading zeros", Variant::Long(12), "0000", "0012"},
        {"one decimal", 1234.56, "#,##0.0", "1,234.6"},
        {"decimal rounds as written, not as stored", 2.675, "0.00", "2.68"},
        {"optional decimals dropped", 1234.5, "###,###.##", "1,234.5"},
        {"no integer digit forced", 0.5, "#.##", ".5"},
        {"rounding carries into the integer", 9.996, "0.00", "10.00"},
        {"unit after the number", Variant::Long(1200), "###,###件", "1,200件"},
        {"text before the number", Variant::Long(1200), "計 #,##0", "計 1,200"},
        {"negative with decimals", -0.125, "0.00", "-0.13"},
        {"empty pattern prints as CStr", 1.5, "", "1.5"},
        {"empty pattern of a date", Variant(MakeDate(2005, 12, 4)), "", "2005/12/04"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Format(c.value, QString::fromUtf8(c.pattern)), QString::fromUtf8(c.text)) << c.name;
}
