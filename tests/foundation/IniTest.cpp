#include "foundation/mdl_ini.h"

#include "support/WindowTest.h"

using namespace mdl_ini;

namespace {

using Ini = WindowTest;

// The file's own rules (sections, quotes, erasing, an unwritable file) are PrivateProfile's; here
// what the program adds: the file beside the program, values trimmed, reads cut at 255 bytes.
TEST_F(Ini, ReadsEmptyWithoutAFileAndWritesBesideTheProgram)
{
    EXPECT_EQ(IniPath(), ledger.folder() + QStringLiteral("/DB.ini"));
    EXPECT_EQ(IniRead(QStringLiteral("Main"), QStringLiteral("SectionNumber")), QString());
    IniWrite(QStringLiteral("Main"), QStringLiteral("SectionName0"), QStringLiteral("  経理部の一覧  "));
    IniWrite(QStringLiteral("Main"), QStringLiteral("SectionName1"), QStringLiteral(" "));
    IniWrite(QStringLiteral("0"), QStringLiteral("OptDel"), QStringLiteral("0"));
    // code page 932, CR LF, values trimmed; a name of one blank is written empty
    EXPECT_EQ(
        ledger.dir().read(QStringLiteral("DB.ini")),
        QByteArray("[Main]\r\nSectionName0=\x8c\x6f\x97\x9d\x95\x94\x82\xcc\x88\xea\x97\x97\r\nSectionName1=\r\n[0]\r\nOptDel=0\r\n"));
    EXPECT_EQ(IniRead(QStringLiteral("main"), QStringLiteral("sectionname0")), QStringLiteral("経理部の一覧"));
    EXPECT_EQ(IniRead(QStringLiteral("Main"), QStringLiteral("SectionName1")), QString()) << "reads back as absent";

    IniWrite(QStringLiteral("Main"), QStringLiteral("Wide"), QString(200, QChar(0x3042))); // あ: two bytes each
    EXPECT_EQ(IniRead(QStringLiteral("Main"), QStringLiteral("Wide")), QString(127, QChar(0x3042)));
    EXPECT_TRUE(dialogs.calls().empty());
}

} // namespace
