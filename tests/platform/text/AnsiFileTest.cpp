#include "platform/text/AnsiFile.h"

#include "platform/vb/VbError.h"
#include "support/TempDir.h"
#include "support/VbErrors.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace text;

TEST(AnsiFile, LongOutputIsWrittenWholeAndCloseEndsWriting)
{
    TempDir dir;
    const QString path = dir.file(QStringLiteral("big.csv"));
    AnsiFile file(path);
    for (int i = 0; i < 50000; ++i)
        file.WriteLine(QStringLiteral("あいう"));
    file.Close();
    file.Close();
    EXPECT_EQ(dir.read(QStringLiteral("big.csv")).size(), 50000 * 8);
    EXPECT_EQ(ErrorOf([&] { file.Write(QStringLiteral("x")); }), 52) << "a write after Close fails";
}

TEST(AnsiFile, FailsToOpenLikeOpenForOutput)
{
    TempDir dir;
    EXPECT_EQ(ErrorOf([&] { AnsiFile file(dir.file(QStringLiteral("nofolder/list.csv"))); }), 76);
    ASSERT_TRUE(QDir(dir.path()).mkdir(QStringLiteral("folder.csv")));
    EXPECT_EQ(ErrorOf([&] { AnsiFile file(dir.file(QStringLiteral("folder.csv"))); }), 75);

    dir.write(QStringLiteral("locked.csv"), "keep");
    const QString locked = dir.file(QStringLiteral("locked.csv"));
    ASSERT_TRUE(QFile::setPermissions(locked, QFile::ReadOwner | QFile::ReadGroup));
    EXPECT_EQ(ErrorOf([&] { AnsiFile file(locked); }), 75);
    EXPECT_EQ(dir.read(QStringLiteral("locked.csv")), QByteArray("keep"));
}
