#include "platform/ini/PrivateProfile.h"

#include "platform/text/Cp932.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace ini;

namespace {

const QString kIni = QStringLiteral("DB.ini");

std::string Utf8(const QString& s) { return s.toStdString(); }

// The file's bytes shown as text, so that a failing comparison prints lines (CR and LF visible).
std::string Shown(const QByteArray& bytes)
{
    QString s = text::FromCp932(bytes);
    s.replace(u'\r', QStringLiteral("<CR>"));
    s.replace(u'\n', QStringLiteral("<LF>"));
    return s.toStdString();
}

QByteArray Sjis(const QString& s) { return text::ToCp932(s); }

} // namespace

TEST(PrivateProfile, ReadsValuesAsWindowsDid)
{
    TempDir dir;
    dir.write(kIni, "; \x90\xDD\x92\xE8\r\n" // "; 設定"
                    "  [Main]  \r\n"
                    "SectionNumber = 3 \r\n"
                    "\tFormTop\t=\t50\r\n"
                    "Quoted=\"  a b \"\r\n"
                    "Unmatched=\"x\r\n"
                    "Empty=\r\n"
                    "NoEquals\r\n"
                    "FormTop=99\r\n"
                    "\r\n"
                    "[ \x95\x5C\x8E\xA6 ]\r\n"              // "[ 表示 ]"
                    "\x83\x5C\x83\x74\x83\x67=\x95\x5C\r\n" // "ソフト=表"
                    "[main]\n"
                    "FormLeft=99\n"
                    "[0]\r"
                    "KeyName0=Computer_Name\r");
    const QString path = dir.file(kIni);
    struct Case {
        const char* name;
        QString section;
        QString key;
        QString expected;
    };
    const QString def = QStringLiteral("(def)");
    const Case cases[] = {
        {"blanks around key and value", QStringLiteral("Main"), QStringLiteral("SectionNumber"), QStringLiteral("3")},
        {"tabs and the first of two keys", QStringLiteral("Main"), QStringLiteral("FormTop"), QStringLiteral("50")},
        {"double quotes", QStringLiteral("Main"), QStringLiteral("Quoted"), QStringLiteral("  a b ")},
        {"unmatched quote stays", QStringLiteral("Main"), QStringLiteral("Unmatched"), QStringLiteral("\"x")},
        {"empty value is no default", QStringLiteral("Main"), QStringLiteral("Empty"), QString()},
        {"key without value", QStringLiteral("Main"), QStringLiteral("NoEquals"), def},
        {"only the first section counts", QStringLiteral("main"), QStringLiteral("FormLeft"), def},
        {"comment is no key", QStringLiteral("Main"), QStringLiteral("; 設定"), def},
        {"japanese names", QStringLiteral("表示"), QStringLiteral("ソフト"), QStringLiteral("表")},
        {"cr line ends", QStringLiteral("0"), QStringLiteral("KeyName0"), QStringLiteral("Computer_Name")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Utf8(GetPrivateProfileString(c.section, c.key, def, 256, path)), Utf8(c.expected));
    }
    EXPECT_EQ(Utf8(GetPrivateProfileString(QStringLiteral("Main"), QStringLiteral("x"), QStringLiteral("d \t "), 256, path)), "d");
}

TEST(PrivateProfile, ReadIsCutToTheBufferWithoutHalfCharacters)
{
    TempDir dir;
    const QString a300(300, u'a');
    const QString kana200(200, u'あ');
    dir.write(kIni, Sjis(QStringLiteral("[V]\r\nA=") + a300 + QStringLiteral("\r\nK=") + kana200 + QStringLiteral("\r\nM=a") + kana200
                         + QStringLiteral("\r\n")));
    const QString path = dir.file(kIni);
    const auto read = [&](const char* key, int size) {
        return GetPrivateProfileString(QStringLiteral("V"), QString::fromLatin1(key), QString(), size, path);
    };
    EXPECT_EQ(read("A", 256), a300.left(255));
    EXPECT_EQ(read("M", 256), QStringLiteral("a") + kana200.left(127)); // 255 bytes exactly
    EXPECT_EQ(read("K", 4), kana200.left(1));
}

TEST(PrivateProfile, WritesEditTheFileInPlace)
{
    struct Case {
        const char* name;
        std::optional<QByteArray> before; // nullopt: no file
        QString section;
        std::optional<QString> key;
        std::optional<QString> value;
        QByteArray after;
    };
    const QString main = QStringLiteral("Main");
    const QString formTop = QStringLiteral("FormTop");
    const QByteArray sample = "; views\r\n[Main]\r\nA = 1\r\nFormTop=1\r\n\r\n[0]\r\nX=1\r\n";
    const Case cases[] = {
        {"key line replaced, the rest kept", sample, main, formTop, QStringLiteral("50"),
         "; views\r\n[Main]\r\nA = 1\r\nFormTop=50\r\n\r\n[0]\r\nX=1\r\n"},
        {"new key after the last line that is not blank", sample, main, QStringLiteral("B"), QStringLiteral("2"),
         "; views\r\n[Main]\r\nA = 1\r\nFormTop=1\r\nB=2\r\n\r\n[0]\r\nX=1\r\n"},
        {"new section after a last line without end", "[Main]\nA=1", QStringLiteral("1"), QStringLiteral("OptDel"), QStringLiteral("0"),
         "[Main]\nA=1\r\n[1]\r\nOptDel=0\r\n"},
        {"lf lines kept, written line crlf", "[Main]\nA=1\nB=2\n", main, QStringLiteral("A"), QStringLiteral("3"), "[Main]\nA=3\r\nB=2\n"},
        {"key erased", sample, main, QStringLiteral("a"), std::nullopt, "; views\r\n[Main]\r\nFormTop=1\r\n\r\n[0]\r\nX=1\r\n"},
        {"section erased up to the next header", "[Main]\r\nA=1\r\n[0]\r\nX=1\r\n; c\r\n\r\n[1]\r\nY=2\r\n", QStringLiteral("0"),
         std::nullopt, std::nullopt, "[Main]\r\nA=1\r\n[1]\r\nY=2\r\n"},
        {"last section erased", sample, QStringLiteral("0"), std::nullopt, std::nullopt, "; views\r\n[Main]\r\nA = 1\r\nFormTop=1\r\n\r\n"},
        {"missing key erased", sample, main, QStringLiteral("Z"), std::nullopt, sample},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        TempDir dir;
        if (c.before)
            dir.write(kIni, *c.before);
        EXPECT_TRUE(WritePrivateProfileString(c.section, c.key, c.value, dir.file(kIni)));
        EXPECT_EQ(Shown(dir.read(kIni)), Shown(c.after));
    }
}

TEST(PrivateProfile, AnUnwritableFileLosesTheWriteSilently)
{
    TempDir dir;
    const QByteArray bytes = "[Main]\r\nFormTop=1\r\n";
    dir.write(kIni, bytes);
    const QString path = dir.file(kIni);
    ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther));
    EXPECT_FALSE(WritePrivateProfileString(QStringLiteral("Main"), QStringLiteral("FormTop"), QStringLiteral("2"), path));
    EXPECT_FALSE(WritePrivateProfileString(QStringLiteral("Main"), std::nullopt, std::nullopt, path));
    EXPECT_EQ(dir.read(kIni), bytes);

    EXPECT_FALSE(WritePrivateProfileString(QStringLiteral("Main"), QStringLiteral("FormTop"), QStringLiteral("2"),
                                           dir.file(QStringLiteral("nofolder/DB.ini"))));
}
