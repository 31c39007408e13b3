#include "foundation/Mdl_IP.h"
#include "foundation/Mdl_Sub.h"

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

TEST(IpToHex8, GivesEightCapitalDigitsFirstOctetFirst)
{
    struct {
        const char* address;
        const char* key;
    } const cases[] = {
        {"10.0.0.255", "0A0000FF"}, {"999.1.1.1", "FFFFFFFF"}, {"0", "00000000"},          {"abc", "FFFFFFFF"},
        {"1.2.3", "01020003"},      {"127.1", "7F000001"},     {"0x0A.0.0.1", "0A000001"}, {"１０.0.0.1", "FFFFFFFF"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Mdl_IP::IpToHex8(QString::fromUtf8(c.address)), QString::fromUtf8(c.key)) << c.address;
}

TEST(DigitsToNumber, ReadsEveryDigitFromTheRight)
{
    struct {
        const char* text;
        std::int32_t number;
    } const cases[] = {
        {"", 0}, {"1a2b3c4", 1234}, {"80,026GB", 80026}, {"2147483648", 147483648}, {"99999999999", 999999999}, {"１２３", 0}, {"-5", 5},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Mdl_Sub::DigitsToNumber(QString::fromUtf8(c.text)), c.number) << c.text;
}

} // namespace
