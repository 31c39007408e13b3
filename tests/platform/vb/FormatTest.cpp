#include "platform/vb/Conversion.h"
#include "platform/vb/Format.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

using namespace vb;

TEST(Format, TheCapacityPatternRoundsHalfAwayFromZero)
{
    const struct {
        const char* name;
        Variant value;
        const char* pattern;
        const char* text;
    } cases[] = {
        // the main list's capacities
        {"zero shows nothing", 0.0, "###,###", ""},
        {"more digits than places", Variant::Long(1234567), "###,###", "1,234,567"},
        {"below a half shows nothing", 0.4, "###,###", ""},
        {"2.5 rounds up, unlike CInt", 2.5, "###,###", "3"},
        {"-2.5 rounds away from zero", -2.5, "###,###", "-3"},
        {"Null", Variant::Null(), "###,###", ""},
        {"number text with separators", Variant(QStringLiteral("1,234,567")), "###,###", "1,234,567"},
        {"full-width number text", Variant(QStringLiteral("１２３４")), "###,###", "1,234"},
        {"text that is no number", Variant(QStringLiteral("不明")), "###,###", "不明"},
        {"date text stays text", Variant(QStringLiteral("2005/12/04")), "###,###", "2005/12/04"},
        {"empty pattern prints as CStr", 1.5, "", "1.5"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Format(c.value, QString::fromUtf8(c.pattern)), QString::fromUtf8(c.text)) << c.name;
}
