#include "platform/text/Cp932.h"

#include <gtest/gtest.h>

using namespace text;

namespace {

std::string Hex(const QByteArray& bytes) { return bytes.toHex(' ').toUpper().toStdString(); }
std::string Utf8(const QString& s) { return s.toStdString(); }

} // namespace

TEST(Cp932, CharactersHaveTheBytesWindowsWritesBothWays)
{
    const struct {
        const char* name;
        QString text;
        QByteArray bytes;
    } cases[] = {
        {"hiragana", QStringLiteral("あ"), "\x82\xA0"},
        {"fullwidth yen", QStringLiteral("￥"), "\x81\x8F"},
        {"fullwidth hyphen-minus", QStringLiteral("－"), "\x81\x7C"},
        {"halfwidth katakana and marks", QStringLiteral("ｱﾞﾟ･ｰ"), "\xB1\xDE\xDF\xA5\xB0"},
        {"kanji with trail 0x5C beside a backslash", QStringLiteral("表\\"), "\x95\x5C\x5C"},
        {"tab and ideographic space", QStringLiteral("A\t\u3000漢1"),
         "A\t\x81\x40\x8A\xBF"
         "1"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Hex(ToCp932(c.text)), Hex(c.bytes));
        EXPECT_EQ(Utf8(FromCp932(c.bytes)), Utf8(c.text));
    }
}

TEST(Cp932, WhatCannotConvertBecomesOneMarkEach)
{
    const struct {
        const char* name;
        QByteArray bytes;
        QString text;
    } bad[] = {
        {"byte 0x80",
         "a\x80"
         "b",
         QStringLiteral("a\uFFFDb")},
        {"lead byte at the end", "\x82\xA0\x82", QStringLiteral("あ\uFFFD")},
        {"lead byte before ASCII",
         "\x82"
         "A",
         QStringLiteral("\uFFFDA")},
        {"unassigned row", "\x85\x40", QStringLiteral("\uFFFD@")},
    };
    for (const auto& c : bad)
        EXPECT_EQ(Utf8(FromCp932(c.bytes)), Utf8(c.text)) << c.name;

    const struct {
        const char* name;
        QString text;
        QByteArray bytes;
    } lacking[] = {
        {"latin accent", QStringLiteral("caf\u00E9"), "caf?"},
        {"surrogate pair", QStringLiteral("中\U0001F600文"), "\x92\x86?\x95\xB6"},
        {"lone high surrogate at the end", QStringLiteral("a") + QChar(0xD83D), "a?"},
    };
    for (const auto& c : lacking)
        EXPECT_EQ(Hex(ToCp932(c.text)), Hex(c.bytes)) << c.name;
}

TEST(Cp932, ByteLengthCountsCp932Bytes)
{
    EXPECT_EQ(ByteLength(QStringLiteral("Office 2003 日本語版")), 20);
    EXPECT_EQ(ByteLength(QStringLiteral("A表ｱ￥")), 6);
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
    EXPECT_EQ(FromCp932(QByteArray(100000, '\xFF')), QString(100000, QChar(0xFFFD)));
}
