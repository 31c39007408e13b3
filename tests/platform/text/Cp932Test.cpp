#include "platform/text/Cp932.h"

#include <gtest/gtest.h>

using namespace text;

namespace {

std::string Hex(const QByteArray& bytes) { return bytes.toHex(' ').toUpper().toStdString(); }
std::string Utf8(const QString& s) { return s.toStdString(); }

} // namespace

TEST(Cp932, JapaneseTextSurvivesTheRoundTrip)
{
    const QString texts[] = {
        QStringLiteral("資産管理台帳"),
        QStringLiteral("ひらがな カタカナ"),
        QStringLiteral("ﾊﾝｶｸｶﾀｶﾅ･ｰﾞﾟ"),
        QStringLiteral("価格￥1,000～2,000－①②③"),
        QStringLiteral("表示\\ソフト能"), // trail bytes 0x5C next to a real backslash
        QStringLiteral("PC-01\t総務部\u3000第２"),
    };
    for (const QString& s : texts)
        EXPECT_EQ(Utf8(FromCp932(ToCp932(s))), Utf8(s));
}

TEST(Cp932, CharactersHaveTheBytesWindowsWrites)
{
    struct Case {
        const char* name;
        QString text;
        QByteArray bytes;
    };
    const Case cases[] = {
        {"hiragana", QStringLiteral("あ"), "\x82\xA0"},
        {"fullwidth yen", QStringLiteral("￥"), "\x81\x8F"},
        {"fullwidth tilde", QStringLiteral("～"), "\x81\x60"},
        {"fullwidth hyphen-minus", QStringLiteral("－"), "\x81\x7C"},
        {"circled one", QStringLiteral("①"), "\x87\x40"},
        {"halfwidth katakana", QStringLiteral("ｱ"), "\xB1"},
        {"kanji with trail 0x5C", QStringLiteral("表"), "\x95\x5C"},
        {"backslash", QStringLiteral("\\"), "\x5C"},
        {"mixed", QStringLiteral("A漢1"), "A\x8A\xBF" "1"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Hex(ToCp932(c.text)), Hex(c.bytes));
        EXPECT_EQ(Utf8(FromCp932(c.bytes)), Utf8(c.text));
    }
}

TEST(Cp932, BadBytesBecomeOneReplacementEach)
{
    struct Case {
        const char* name;
        QByteArray bytes;
        QString text;
    };
    const Case cases[] = {
        {"byte 0x80", "a\x80" "b", QStringLiteral("a\uFFFDb")},
        {"byte 0xFF", "\xFF\xFF", QStringLiteral("\uFFFD\uFFFD")},
        {"lead byte at the end", "\x82\xA0\x82", QStringLiteral("あ\uFFFD")},
        {"lead byte before ASCII", "\x82" "A", QStringLiteral("\uFFFDA")},
        {"unassigned row", "\x85\x40", QStringLiteral("\uFFFD@")},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Utf8(FromCp932(c.bytes)), Utf8(c.text));
    }
}

TEST(Cp932, CharactersCp932LacksBecomeOneQuestionMarkEach)
{
    struct Case {
        const char* name;
        QString text;
        QByteArray bytes;
    };
    const Case cases[] = {
        {"latin accent", QStringLiteral("caf\u00E9"), "caf?"},
        {"surrogate pair", QStringLiteral("中\U0001F600文"), "\x92\x86?\x95\xB6"},
        {"lone high surrogate at the end", QStringLiteral("a") + QChar(0xD83D), "a?"},
        {"lone low surrogate", QString(QChar(0xDE00)) + QStringLiteral("あ"), "?\x82\xA0"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Hex(ToCp932(c.text)), Hex(c.bytes));
    }
}

TEST(Cp932, ByteLengthCountsCp932Bytes)
{
    EXPECT_EQ(ByteLength(QStringLiteral("あいう")), 6);
    EXPECT_EQ(ByteLength(QStringLiteral("abc")), 3);
    EXPECT_EQ(ByteLength(QStringLiteral("ｱｲｳ")), 3);
    EXPECT_EQ(ByteLength(QStringLiteral("A表ｱ￥")), 6);
    EXPECT_EQ(ByteLength(QStringLiteral("\U0001F600")), 1);
    EXPECT_EQ(ByteLength(QString()), 0);
}

TEST(Cp932, LongTextsConvertWhole)
{
    // Large enough that a fixed or misjudged output buffer would overflow or cut.
    QString text;
    for (int i = 0; i < 5000; ++i)
        text += QStringLiteral("機器%1ｶﾅ,\U0001F600\r\n").arg(i);
    QString expected = text;
    expected.replace(QStringLiteral("\U0001F600"), QStringLiteral("?"));
    EXPECT_EQ(Utf8(FromCp932(ToCp932(text))), Utf8(expected));

    const QByteArray garbage(100000, '\xFF');
    EXPECT_EQ(FromCp932(garbage), QString(100000, QChar(0xFFFD)));
}
