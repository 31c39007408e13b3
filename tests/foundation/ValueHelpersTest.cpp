#include "foundation/Mdl_Access_mdb.h"
#include "foundation/Mdl_IP.h"
#include "foundation/Mdl_Sub.h"

#include <QLineEdit>

#include "support/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

TEST(SanitizeField, ReplacesEachDangerousCharacterEverywhere)
{
    using Mdl_Access_mdb::SanitizeField;
    EXPECT_EQ(SanitizeField(QString()), QString());
    EXPECT_EQ(SanitizeField(QStringLiteral(",,'';;##\\\\::\n\n\r\r")), QStringLiteral("、、’’；；＃＃￥￥：：    "));
    EXPECT_EQ(SanitizeField(QStringLiteral("C:\\Program Files\\App, v1.0; #2 'x'\r\n")),
              QStringLiteral("C：￥Program Files￥App、 v1.0； ＃2 ’x’  "));
    EXPECT_EQ(SanitizeField(QStringLiteral("全角、’；＃￥：そのまま")), QStringLiteral("全角、’；＃￥：そのまま"));
}

TEST(IpToHex8, GivesEightCapitalDigitsFirstOctetFirst)
{
    struct {
        const char* address;
        const char* key;
    } const cases[] = {
        {"192.168.0.1", "C0A80001"},     {"10.0.0.255", "0A0000FF"}, {"", ""},
        {"999.1.1.1", "FFFFFFFF"},       {"0", "00000000"},          {"abc", "FFFFFFFF"},
        {"255.255.255.255", "FFFFFFFF"}, {"1.2.3", "01020003"},      {"127.1", "7F000001"},
        {"0x0A.0.0.1", "0A000001"},      {"１０.0.0.1", "FFFFFFFF"}, {" 10.0.0.1", "FFFFFFFF"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Mdl_IP::IpToHex8(QString::fromUtf8(c.address)), QString::fromUtf8(c.key)) << c.address;
    EXPECT_EQ(Mdl_IP::HexPair(QStringLiteral("A")), QStringLiteral("0A"));
    EXPECT_EQ(Mdl_IP::HexPair(QStringLiteral("FF")), QStringLiteral("FF"));
    EXPECT_EQ(Mdl_IP::HexPair(QString()), QString());
}

TEST(DigitsToNumber, ReadsEveryDigitFromTheRight)
{
    struct {
        const char* text;
        std::int32_t number;
    } const cases[] = {
        {"", 0},
        {"abc", 0},
        {"1,024 MB", 1024},
        {"1a2b3c4", 1234},
        {"007", 7},
        {"80,026GB", 80026},
        {"2147483647", 2147483647},
        {"2147483648", 147483648},
        {"99999999999", 999999999},
        {"１２３", 0},
        {"-5", 5},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Mdl_Sub::DigitsToNumber(QString::fromUtf8(c.text)), c.number) << c.text;
}

TEST(SetFocusColor, PaleCyanWithFocusWhiteWithout)
{
    QLineEdit box;
    Mdl_Sub::SetFocusColor(&box, 1);
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(128, 255, 255));
    Mdl_Sub::SetFocusColor(&box, 3);
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(128, 255, 255)) << "another mode does nothing";
    Mdl_Sub::SetFocusColor(&box, 2);
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(Qt::white));
}

} // namespace
