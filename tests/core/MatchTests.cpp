#include "frame/core/Match.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

using namespace vorn;

namespace
{

bool Matches(std::string_view pattern, std::string_view text, bool caseSensitive = true, bool exact = false)
{
    return MatchText(pattern, text, {caseSensitive, exact});
}

} // namespace

TEST(MatchText, AnEmptyPatternMatchesNothing)
{
    EXPECT_FALSE(Matches("", ""));
    EXPECT_FALSE(Matches("  ", ""));
    EXPECT_FALSE(Matches("", "a"));
    EXPECT_FALSE(Matches("", "", false, true));
}

TEST(MatchText, AStarAloneMatchesEverythingEvenExactly)
{
    EXPECT_TRUE(Matches("*", ""));
    EXPECT_TRUE(Matches(" * ", "anything"));
    EXPECT_TRUE(Matches("*", "anything", true, true));
}

TEST(MatchText, TrimsBothTexts)
{
    EXPECT_TRUE(Matches(" abc\t", "\r\nabc "));
    EXPECT_TRUE(Matches(" a?c ", " abc "));
    EXPECT_TRUE(Matches("abc", " abc ", true, true));
}

TEST(MatchText, WithoutWildcardsComparesTheWholeText)
{
    EXPECT_TRUE(Matches("abc", "abc"));
    EXPECT_FALSE(Matches("abc", "abcd"));
    EXPECT_FALSE(Matches("abc", "ABC"));
    EXPECT_TRUE(Matches("abc", "ABC", false));
    EXPECT_FALSE(Matches("\xE9", "\xC9", false));
}

TEST(MatchText, ExactTakesWildcardsAsCharacters)
{
    EXPECT_TRUE(Matches("a*c", "a*c", true, true));
    EXPECT_FALSE(Matches("a*c", "abc", true, true));
    EXPECT_TRUE(Matches("A?c", "a?C", false, true));
    EXPECT_FALSE(Matches("a?c", "abc", true, true));
}

TEST(MatchText, AQuestionMarkStandsForOneCharacter)
{
    EXPECT_TRUE(Matches("a?c", "abc"));
    EXPECT_FALSE(Matches("a?c", "ac"));
    EXPECT_FALSE(Matches("a?", "a"));
    EXPECT_TRUE(Matches("???", "abc"));
    EXPECT_FALSE(Matches("???", "abcd"));
    EXPECT_FALSE(Matches("?", ""));
}

TEST(MatchText, AStarAtTheEndMatchesTheRest)
{
    EXPECT_TRUE(Matches("a*", "a"));
    EXPECT_TRUE(Matches("a*", "abc"));
    EXPECT_FALSE(Matches("b*", "abc"));
    EXPECT_TRUE(Matches("**", "abc"));
    EXPECT_TRUE(Matches("*bc*", "abcd"));
}

TEST(MatchText, ARunIsTakenAtItsFirstPlaceWithoutGoingBack)
{
    EXPECT_TRUE(Matches("*.txt", "a.txt"));
    EXPECT_FALSE(Matches("*.txt", "a.txt.txt"));
    EXPECT_FALSE(Matches("*a?c", "abxac"));
    EXPECT_TRUE(Matches("*a?c", "xabc"));
    EXPECT_TRUE(Matches("*a*c", "abxac"));
    EXPECT_FALSE(Matches("*.txt", "a.doc"));
    EXPECT_TRUE(Matches("k*d*", "kbos.dat"));
}

TEST(MatchText, AnEmptyRunMatchesAtOnce)
{
    EXPECT_TRUE(Matches("*?", "a"));
    EXPECT_FALSE(Matches("*?", "ab"));
    EXPECT_TRUE(Matches("**a", "a"));
    EXPECT_TRUE(Matches("**a", "xa"));
    EXPECT_TRUE(Matches("*??", "ab"));
}

TEST(MatchText, ATextUsedUpAtAStarMatches)
{
    EXPECT_TRUE(Matches("a*b", "a"));
    EXPECT_TRUE(Matches("*b", ""));
    EXPECT_FALSE(Matches("ab*", "a"));
    EXPECT_TRUE(Matches("a*b*c", "ab"));
    EXPECT_FALSE(Matches("a*b", "ac"));
}

TEST(MatchText, FoldsCaseOnlyWhenAsked)
{
    EXPECT_FALSE(Matches("KB*.DAT", "kbos.dat"));
    EXPECT_TRUE(Matches("KB*.DAT", "kbos.dat", false));
    EXPECT_TRUE(Matches("kb?S*", "KBOS.dat", false));
    EXPECT_FALSE(Matches("*\xC9", "a\xE9", false));
}

TEST(MatchText, LongRunsOfAnyShapeAreFound)
{
    // A run of 40 characters that begins like itself: every restart of the search is met.
    const std::string run = "aabaaabaabaaabaabaaabaabaaabaabaaabaaacz";
    ASSERT_EQ(run.size(), 40U);
    for (const std::string& head :
         {std::string(), std::string("aab"), std::string("aabaaabaab"), std::string(100, 'a'), run.substr(0, 39)})
    {
        EXPECT_TRUE(Matches("*" + run, head + run)) << head;
        EXPECT_FALSE(Matches("*" + run, head + run.substr(0, 39))) << head;
        EXPECT_TRUE(Matches("x*" + run + "*", "x" + head + run + "tail")) << head;
    }
}

TEST(FindRun, AgreesWithThePlainSearch)
{
    unsigned seed = 1;
    const auto next = [&seed]
    {
        return (seed = seed * 1103515245U + 12345U) >> 16;
    };
    for (int round = 0; round < 2000; ++round)
    {
        std::string text(next() % 200, 'a');
        for (char& c : text)
            c = static_cast<char>('a' + next() % 2);
        const std::size_t length = 33 + next() % 10;
        const std::string run = text.size() > length && next() % 2 != 0
                                    ? text.substr(next() % (text.size() - length), length)
                                    : std::string(length, 'a');
        const std::size_t from = text.empty() ? 0 : next() % text.size();
        EXPECT_EQ(FindRun(text, run, from), std::string_view(text).find(run, from)) << text << ' ' << run;
    }
}

TEST(MatchText, StaysLinearOnTextsMadeToSlowItDown)
{
    const std::string text(2'000'000, 'a');
    const std::string pattern = "*" + std::string(100'000, 'a') + "b";
    const auto start = std::chrono::steady_clock::now();
    EXPECT_FALSE(Matches(pattern, text));
    // A quadratic search needs some 10^11 comparisons, more than a minute; a linear one a few milliseconds.
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}
