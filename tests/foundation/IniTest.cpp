#include "foundation/mdl_ini.h"

#include "FoundationFixture.h"

#include <QFile>

using namespace mdl_ini;

namespace {

class Ini : public FoundationFixture {
protected:
    QByteArray file() const { return ledger.dir().read(QStringLiteral("DB.ini")); }
};

TEST_F(Ini, ReadsEmptyWithoutAFileAndWritesBesideTheProgram)
{
    EXPECT_EQ(IniPath(), ledger.folder() + QStringLiteral("/DB.ini"));
    EXPECT_EQ(IniRead(QStringLiteral("Main"), QStringLiteral("SectionNumber")), QString());
    IniWrite(QStringLiteral("Main"), QStringLiteral("SectionName0"), QStringLiteral("  経理部の一覧  "));
    IniWrite(QStringLiteral("Main"), QStringLiteral("SectionName1"), QStringLiteral(" "));
    IniWrite(QStringLiteral("0"), QStringLiteral("OptDel"), QStringLiteral("0"));
    // code page 932, CR LF, values trimmed; a name of one blank is written empty
    EXPECT_EQ(file(), QByteArray("[Main]\r\nSectionName0=") + QByteArray("\x8c\x6f\x97\x9d\x95\x94\x82\xcc\x88\xea\x97\x97")
                          + QByteArray("\r\nSectionName1=\r\n[0]\r\nOptDel=0\r\n"));
    EXPECT_EQ(IniRead(QStringLiteral("main"), QStringLiteral("sectionname0")), QStringLiteral("経理部の一覧"));
    EXPECT_EQ(IniRead(QStringLiteral("Main"), QStringLiteral("SectionName1")), QString()) << "reads back as absent";
    EXPECT_TRUE(dialogs.calls().empty());
}

TEST_F(Ini, NullKeyErasesTheSection)
{
    IniWrite(QStringLiteral("3"), QStringLiteral("MSFlexGrit_SelectNum"), QStringLiteral("5"));
    for (int i = 1; i <= 5; ++i)
        IniWrite(QStringLiteral("3"), QStringLiteral("MSFlexGrit_Select%1").arg(i), QString::number(i * 2));
    IniWrite(QStringLiteral("Main"), QStringLiteral("SectionNumber"), QStringLiteral("3"));
    IniWrite(QStringLiteral("3"), std::nullopt, std::nullopt);
    IniWrite(QStringLiteral("3"), QStringLiteral("MSFlexGrit_SelectNum"), QStringLiteral("1"));
    IniWrite(QStringLiteral("3"), QStringLiteral("MSFlexGrit_Select1"), QStringLiteral("8"));
    EXPECT_EQ(IniRead(QStringLiteral("3"), QStringLiteral("MSFlexGrit_Select2")), QString()) << "no stale key survives";
    EXPECT_EQ(IniRead(QStringLiteral("3"), QStringLiteral("MSFlexGrit_Select1")), QStringLiteral("8"));
    EXPECT_EQ(IniRead(QStringLiteral("Main"), QStringLiteral("SectionNumber")), QStringLiteral("3"));
}

TEST_F(Ini, ReadIsCutAt255Bytes)
{
    IniWrite(QStringLiteral("Main"), QStringLiteral("Long"), QString(300, QLatin1Char('x')));
    EXPECT_EQ(IniRead(QStringLiteral("Main"), QStringLiteral("Long")), QString(255, QLatin1Char('x')));
    IniWrite(QStringLiteral("Main"), QStringLiteral("Wide"), QString(200, QChar(0x3042)));  // あ: two bytes each
    EXPECT_EQ(IniRead(QStringLiteral("Main"), QStringLiteral("Wide")), QString(127, QChar(0x3042)));
}

TEST_F(Ini, AFileThatCannotBeWrittenLosesTheWriteSilently)
{
    IniWrite(QStringLiteral("Main"), QStringLiteral("FormTop"), QStringLiteral("50"));
    const QString path = IniPath();
    // a file without write permission is read-only to the program, as a read-only file was
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadUser | QFile::ReadGroup | QFile::ReadOther);
    const QByteArray before = file();
    IniWrite(QStringLiteral("Main"), QStringLiteral("FormTop"), QStringLiteral("60"));
    EXPECT_EQ(file(), before);
    EXPECT_EQ(IniRead(QStringLiteral("Main"), QStringLiteral("FormTop")), QStringLiteral("50"));
    EXPECT_TRUE(dialogs.calls().empty());
}

} // namespace
