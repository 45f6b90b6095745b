#include "frame/core/Split.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace vorn;
using Pieces = std::vector<std::string>;

namespace
{

Pieces Split(std::string_view text, std::string_view separators, bool trim = false, bool skipEmpty = false)
{
    Pieces pieces;
    const std::size_t count = SplitText(text, separators, {trim, skipEmpty},
                                        [&pieces](std::string_view piece)
                                        {
                                            pieces.emplace_back(piece);
                                        });
    EXPECT_EQ(count, pieces.size());
    return pieces;
}

} // namespace

TEST(SplitText, SeparatorsMakeOnePieceMore)
{
    EXPECT_EQ(Split("a,b,c", ","), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(Split("a,,b", ","), (Pieces{"a", "", "b"}));
    EXPECT_EQ(Split("a,", ","), (Pieces{"a", ""}));
    EXPECT_EQ(Split(",a", ","), (Pieces{"", "a"}));
    EXPECT_EQ(Split(",", ","), (Pieces{"", ""}));
    EXPECT_EQ(Split("abc", ","), (Pieces{"abc"}));
}

TEST(SplitText, SkipsEmptyPiecesOnDemand)
{
    EXPECT_EQ(Split("a,,b", ",", false, true), (Pieces{"a", "b"}));
    EXPECT_EQ(Split(",,,", ",", false, true), Pieces{});
    EXPECT_EQ(Split("a, ,b", ",", false, true), (Pieces{"a", " ", "b"}));
}

TEST(SplitText, TrimsBeforeItTestsForEmptiness)
{
    EXPECT_EQ(Split(" a ,\t, b", ",", true, false), (Pieces{"a", "", "b"}));
    EXPECT_EQ(Split(" a ,\t, b", ",", true, true), (Pieces{"a", "b"}));
}

TEST(SplitText, SplitsAtAnyOfTheSeparators)
{
    EXPECT_EQ(Split("a;b,c d", " ,;"), (Pieces{"a", "b", "c", "d"}));
}

TEST(SplitText, TakesTheSeparatorsAsAPlainSet)
{
    EXPECT_EQ(Split("a.b-c,d;e", ",-;"), (Pieces{"a.b", "c", "d", "e"}));
    EXPECT_EQ(Split("a]b^c", "^]"), (Pieces{"a", "b", "c"}));
    EXPECT_EQ(Split("a%b", "%"), (Pieces{"a", "b"}));
    EXPECT_EQ(Split("a\xE9z", "\xE9"), (Pieces{"a", "z"}));
}

TEST(SplitText, NothingComesOfAnEmptyText)
{
    EXPECT_EQ(Split("", ","), Pieces{});
    EXPECT_EQ(Split("", ""), Pieces{});
}

TEST(SplitText, WithoutSeparatorsTheTextGoesInUntrimmed)
{
    EXPECT_EQ(Split("  a,b ", "", true, true), (Pieces{"  a,b "}));
    EXPECT_EQ(Split("   ", "", true, true), (Pieces{"   "}));
}

TEST(SplitText, KeepsEveryCharacterAtAnyLength)
{
    for (const std::size_t length : {1U, 1022U, 1023U, 1024U, 1025U, 1026U, 100'000U})
    {
        const std::string piece(length, 'x');
        EXPECT_EQ(Split(piece, ","), Pieces{piece}) << length;
        EXPECT_EQ(Split(piece + "," + piece, ","), (Pieces{piece, piece})) << length;
        EXPECT_EQ(Split("," + piece, ","), (Pieces{"", piece})) << length;
    }
}

TEST(SplitText, MakesAnyNumberOfPieces)
{
    std::string text = "0";
    for (int i = 1; i < 5000; ++i)
        text += ',' + std::to_string(i);
    const Pieces pieces = Split(text, ",");
    ASSERT_EQ(pieces.size(), 5000U);
    EXPECT_EQ(pieces[1024], "1024");
    EXPECT_EQ(pieces.back(), "4999");
}

TEST(SplitText, TextsWithAWholeLengthAroundTheFixedBufferSplitAlike)
{
    for (std::size_t length = 1022; length <= 1026; ++length)
    {
        std::string text(length, 'x');
        text[500] = ',';
        text[length - 1] = ',';
        EXPECT_EQ(Split(text, ","), (Pieces{std::string(500, 'x'), std::string(length - 502, 'x'), ""})) << length;
    }
}
