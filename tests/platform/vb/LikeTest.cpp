#include "platform/vb/Like.h"
#include "platform/vb/VbError.h"

#include "support/VbErrors.h"

#include <gtest/gtest.h>

using namespace vb;

TEST(Like, AnswersAsVbUnderOptionCompareBinary)
{
    const struct {
        const char* text;
        const char* pattern;
        bool matches;
    } cases[] = {
        {"abc", "a*", true},
        {"Abc", "a*", false},
        {"xabcx", "*abc*", true},
        {"abcbc", "*bc", true},
        {"abcbd", "*bc", false},
        {"", "*", true},
        {"", "?", false},
        {"abc", "ab", false},
        {"abc", "a?c", true},
        {"ac", "a?c", false},
        {"a1", "a#", true},
        {"a１", "a#", false},
        {"東京本社", "東京*", true},
        {"本社", "?社", true},
        // sets
        {"b", "[a-c]", true},
        {"d", "[!a-c]", true},
        {"5", "[a0-9]", true},
        {"x*y", "x[*]y", true},
        {"?", "[?]", true},
        {"[", "[[]", true},
        {"a]", "a]", true},
        {"-", "[a-]", true},
        {"ab", "a[]b", true},
        {"阪", "[!東京]", true},
        {"あ", "[ぁ-ん]", true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Like(QString::fromUtf8(c.text), QString::fromUtf8(c.pattern)), c.matches)
            << '"' << c.text << "\" Like \"" << c.pattern << '"';
}

TEST(Like, BadPatternsRaise93)
{
    for (const char* pattern : {"[", "a[bc", "[!a", "[c-a]"})
        EXPECT_EQ(ErrorOf([&] { Like(QStringLiteral("abc"), QString::fromUtf8(pattern)); }), 93) << pattern;
    EXPECT_EQ(ErrorOf([] { Like(QString(), QStringLiteral("[")); }), 93) << "an empty text still checks the pattern";
    EXPECT_EQ(RaisedBy([] { Like(QStringLiteral("a"), QStringLiteral("[")); }).description, QStringLiteral("パターン文字列が不正です。"));
}
