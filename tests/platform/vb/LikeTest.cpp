#include "platform/vb/Like.h"
#include "platform/vb/VbError.h"

#include "VbTestSupport.h"

#include <gtest/gtest.h>

#include <cctype>
#include <string>

using namespace vb;

namespace {

struct LikeCase {
    const char* name;
    const char* text;
    const char* pattern;
    bool matches;
};

std::string caseName(const ::testing::TestParamInfo<LikeCase>& info)
{
    std::string name;
    for (const char* p = info.param.name; *p; ++p)
        name += std::isalnum(static_cast<unsigned char>(*p)) ? *p : '_';
    return name;
}

class LikeMatch : public ::testing::TestWithParam<LikeCase> {};

} // namespace

TEST_P(LikeMatch, AnswersAsVbUnderOptionCompareBinary)
{
    const LikeCase& c = GetParam();
    EXPECT_EQ(Like(QString::fromUtf8(c.text), QString::fromUtf8(c.pattern)), c.matches)
        << '"' << c.text << "\" Like \"" << c.pattern << '"';
}

INSTANTIATE_TEST_SUITE_P(Wildcards, LikeMatch, ::testing::Values(
    LikeCase{"star_after_prefix", "abc", "a*", true},
    LikeCase{"case_is_exact", "Abc", "a*", false},
    LikeCase{"star_needs_the_prefix_at_the_start", "abc", "b*", false},
    LikeCase{"word_in_the_middle", "xabcx", "*abc*", true},
    LikeCase{"star_in_the_middle", "aXbXc", "a*c", true},
    LikeCase{"star_backtracks", "abcbc", "*bc", true},
    LikeCase{"star_backtracks_and_fails", "abcbd", "*bc", false},
    LikeCase{"two_stars", "abcd", "a**d", true},
    LikeCase{"star_matches_nothing", "a", "a*", true},
    LikeCase{"empty_text_and_star", "", "*", true},
    LikeCase{"empty_text_and_empty_pattern", "", "", true},
    LikeCase{"empty_text_and_question_mark", "", "?", false},
    LikeCase{"text_and_empty_pattern", "a", "", false},
    LikeCase{"whole_text", "abc", "abc", true},
    LikeCase{"pattern_shorter", "abc", "ab", false},
    LikeCase{"pattern_longer", "ab", "abc", false},
    LikeCase{"question_mark_one_character", "ab", "a?", true},
    LikeCase{"question_mark_in_the_middle", "abc", "a?c", true},
    LikeCase{"question_mark_not_zero_characters", "ac", "a?c", false},
    LikeCase{"question_mark_not_two_characters", "abbc", "a?c", false},
    LikeCase{"hash_digit", "a1", "a#", true},
    LikeCase{"hash_not_a_letter", "ab", "a#", false},
    LikeCase{"hash_not_a_full_width_digit", "a１", "a#", false},
    LikeCase{"japanese_prefix", "東京本社", "東京*", true},
    LikeCase{"japanese_other_prefix", "大阪本社", "東京*", false},
    LikeCase{"japanese_question_mark", "本社", "?社", true}),
    caseName);

INSTANTIATE_TEST_SUITE_P(Brackets, LikeMatch, ::testing::Values(
    LikeCase{"range", "b", "[a-c]", true},
    LikeCase{"range_is_exact_case", "B", "[a-c]", false},
    LikeCase{"outside_the_range", "d", "[a-c]", false},
    LikeCase{"negated_range", "d", "[!a-c]", true},
    LikeCase{"negated_range_inside", "b", "[!a-c]", false},
    LikeCase{"list", "y", "[xyz]", true},
    LikeCase{"list_and_range", "5", "[a0-9]", true},
    LikeCase{"escaped_star", "x*y", "x[*]y", true},
    LikeCase{"escaped_star_is_literal", "xzy", "x[*]y", false},
    LikeCase{"escaped_question_mark", "?", "[?]", true},
    LikeCase{"escaped_hash", "#", "[#]", true},
    LikeCase{"escaped_open_bracket", "[", "[[]", true},
    LikeCase{"close_bracket_alone_is_literal", "a]", "a]", true},
    LikeCase{"hyphen_at_the_end", "-", "[a-]", true},
    LikeCase{"hyphen_at_the_start", "-", "[-a]", true},
    LikeCase{"empty_brackets_match_nothing", "ab", "a[]b", true},
    LikeCase{"negated_kanji", "阪", "[!東京]", true},
    LikeCase{"kanji_range", "あ", "[ぁ-ん]", true},
    LikeCase{"one_character_per_bracket", "ab", "[a-c]", false},
    LikeCase{"key_filter_digit", "7", "[0-9]", true},
    LikeCase{"key_filter_point", ".", "[0-9.]", true}),
    caseName);

TEST(Like, BadPatternsRaise93)
{
    const struct {
        const char* name;
        const char* text;
        const char* pattern;
    } cases[] = {
        {"lone bracket", "a", "["},
        {"unclosed set", "abc", "a[bc"},
        {"unclosed negated set", "a", "[!a"},
        {"descending range", "b", "[c-a]"},
        {"empty text still checks the pattern", "", "["},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        try {
            Like(QString::fromUtf8(c.text), QString::fromUtf8(c.pattern));
            ADD_FAILURE() << "no error";
        } catch (const VbError& e) {
            EXPECT_EQ(e.Number(), 93);
            EXPECT_EQ(e.Description(), QStringLiteral("パターン文字列が不正です。"));
        }
    }
}
