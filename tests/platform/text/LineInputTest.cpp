#include "platform/text/LineInput.h"

#include "platform/vb/VbError.h"
#include "support/TempDir.h"
#include "support/VbErrors.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace text;

namespace {

std::vector<std::string> AllLines(const QByteArray& bytes)
{
    std::vector<std::string> lines;
    LineInput in(bytes);
    while (!in.atEnd())
        lines.push_back(in.nextBytes().toStdString());
    return lines;
}

} // namespace

TEST(LineInput, CrLfLoneLfAndLoneCrEachEndALine)
{
    using Lines = std::vector<std::string>;
    struct Case {
        const char* name;
        QByteArray bytes;
        Lines lines;
    };
    const Case cases[] = {
        {"empty file", "", {}},
        {"last line without end", "a", {"a"}},
        {"lf and empty line", "a\n\nb\n", {"a", "", "b"}},
        {"mixed", "a\r\nb\nc\rd", {"a", "b", "c", "d"}},
        {"cr then crlf", "a\r\r\n", {"a", ""}},
        {"lf then cr is two ends", "\n\r", {"", ""}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(AllLines(c.bytes), c.lines);
    }
}

TEST(LineInput, NextDecodesEachLineFromCp932)
{
    // "ソ" ends in 0x5C and "表" too: neither is a line end nor splits the field.
    LineInput in(QByteArray("Key,Group\r\n\x83\x5C\x83\x74\x83\x67,\x95\x5C\n\xB6\xC5"));
    EXPECT_EQ(in.next(), QStringLiteral("Key,Group"));
    EXPECT_EQ(in.next(), QStringLiteral("ソフト,表"));
    EXPECT_EQ(in.next(), QStringLiteral("ｶﾅ"));
    EXPECT_TRUE(in.atEnd());
    EXPECT_EQ(in.next(), QString());
}

TEST(ReadWholeFile, ReadsTheBytesOrFailsAsOpenForInput)
{
    TempDir dir;
    const QByteArray bytes("Key,Group\r\n\x82\xA0\r\n");
    dir.write(QStringLiteral("pc.csv"), bytes);
    EXPECT_EQ(ReadWholeFile(dir.file(QStringLiteral("pc.csv"))), bytes);

    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(dir.file(QStringLiteral("none.csv"))); }), 53);
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(dir.file(QStringLiteral("nofolder/pc.csv"))); }), 76);
    ASSERT_TRUE(QDir(dir.path()).mkdir(QStringLiteral("folder.csv")));
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(dir.file(QStringLiteral("folder.csv"))); }), 75);
}
