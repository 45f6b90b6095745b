#include "tests/support/GridText.h"
#include "toolkit/textlayout/core/TextLines.h"

#include <gtest/gtest.h>

#include <climits>
#include <random>
#include <string>
#include <vector>

using vorn::test::GridMeasure;
using Lines = std::vector<std::string>;

namespace
{
std::string Shortened(std::string line)
{
    vorn::ShortenLine(line);
    return line;
}

std::string Removed(std::string text, int hidden)
{
    vorn::RemoveLine(text, hidden);
    return text;
}

Lines CutTo(Lines lines, int advance, int maxHeight)
{
    vorn::CutToHeight(lines, advance, maxHeight);
    return lines;
}

/// One cut after another, until it fits or nothing is left to cut.
std::string ShortenedStepByStep(std::string line, int maxWidth, GridMeasure& measure)
{
    while (measure.LineWidth(line) > maxWidth && line.size() > 6)
    {
        vorn::ShortenLine(line);
    }
    return line;
}

/// One line after another, until the text fits or 3 lines are left.
Lines CutStepByStep(const Lines& lines, int advance, int maxHeight)
{
    std::string text = vorn::JoinLines(lines);
    const auto count = [&text]
    {
        return static_cast<long long>(vorn::TextLines(text).size());
    };
    for (int hidden = 1; count() * advance > maxHeight && count() > 3; ++hidden)
    {
        vorn::RemoveLine(text, hidden);
    }
    return vorn::TextLines(text);
}
} // namespace

TEST(TextLines, ArePartedByLineFeeds)
{
    EXPECT_EQ(Lines{""}, vorn::TextLines(""));
    EXPECT_EQ(Lines{"abc"}, vorn::TextLines("abc"));
    EXPECT_EQ((Lines{"a", "", "b", ""}), vorn::TextLines("a\n\nb\n"));
    EXPECT_EQ((Lines{"a", "b"}), vorn::TextLines("a\r\nb\r"));
    EXPECT_EQ(Lines{"a b &c"}, vorn::TextLines("a\tb &c")) << "a tab is a blank, & a letter";
    EXPECT_EQ("a\n\nb\n", vorn::JoinLines({"a", "", "b", ""}));
    EXPECT_EQ("", vorn::JoinLines({""}));
}

TEST(TextLines, AdvanceByTheirHeightAndSpacing)
{
    EXPECT_EQ(20, vorn::LineAdvance(20, 0));
    EXPECT_EQ(25, vorn::LineAdvance(20, 25));
    EXPECT_EQ(13, vorn::LineAdvance(11, 25)) << "13.75";
    EXPECT_EQ(10, vorn::LineAdvance(20, -50));
    EXPECT_EQ(2, vorn::LineAdvance(200, -100)) << "as -99";
    EXPECT_EQ(2, vorn::LineAdvance(200, INT_MIN));
    EXPECT_EQ(INT_MAX, vorn::LineAdvance(200, INT_MAX));
}

TEST(ShortenLine, CutsSixCharactersAndPutsThreeDots)
{
    EXPECT_EQ("abcd...", Shortened("abcdefghij"));
    EXPECT_EQ("a...", Shortened("abcdefg"));
    EXPECT_EQ("a...", Shortened("abcd..."));
}

TEST(ShortenLine, TrimsBlanksBeforeTheDots)
{
    EXPECT_EQ("ab...", Shortened("ab  cdefgh"));
    EXPECT_EQ("ab...", Shortened("ab\t cdefgh"));
    EXPECT_EQ("...", Shortened("          "));
}

TEST(ShortenLine, LeavesSixCharactersAndFewer)
{
    EXPECT_EQ("abcdef", Shortened("abcdef"));
    EXPECT_EQ("", Shortened(""));
    EXPECT_EQ("a...", Shortened("a..."));
}

TEST(ShortenToWidth, LeavesWhatFits)
{
    GridMeasure measure;
    measure.UseFont(10);
    std::string line = "abcdefghij";
    EXPECT_EQ(47, vorn::ShortenToWidth(line, 47, measure)) << "9 letters of 5 and an i of 2";
    EXPECT_EQ("abcdefghij", line);
    EXPECT_EQ(35, vorn::ShortenToWidth(line, 46, measure));
    EXPECT_EQ("abcd...", line);
    EXPECT_EQ(20, vorn::ShortenToWidth(line, 20, measure));
    EXPECT_EQ("a...", line);
    EXPECT_EQ(20, vorn::ShortenToWidth(line, -3, measure)) << "four characters are never shortened";
    EXPECT_EQ("a...", line);
}

TEST(ShortenToWidth, DoesWhatOneCutAfterAnotherDoes)
{
    std::mt19937 random(5401);
    GridMeasure measure;
    measure.UseFont(12);
    for (int turn = 0; turn < 4000; ++turn)
    {
        std::string line(random() % 60, ' ');
        for (char& letter : line)
        {
            letter = "abi  ."[random() % 6];
        }
        const int maxWidth = static_cast<int>(random() % 400) - 20;
        const std::string expected = ShortenedStepByStep(line, maxWidth, measure);
        const std::string original = line;
        EXPECT_EQ(measure.LineWidth(expected), vorn::ShortenToWidth(line, maxWidth, measure));
        ASSERT_EQ(expected, line) << "'" << original << "' to " << maxWidth;
    }
}

TEST(ShortenToWidth, MeasuresAVeryLongLineAFewTimesOnly)
{
    GridMeasure measure;
    measure.UseFont(10);
    std::string line(100000, 'x');
    EXPECT_EQ(500, vorn::ShortenToWidth(line, 501, measure)) << "100,000 falls by 6, then by 3, to 97 and the dots";
    EXPECT_EQ(100U, line.size());
    EXPECT_LE(measure.Widths(), 20);
}

TEST(RemoveLine, ClosesWithWhatIsNotShown)
{
    EXPECT_EQ("a\nb\n...(1)", Removed("a\nb\nc", 1));
    EXPECT_EQ("a\n...(2)", Removed("a\nb\n...(1)", 2)) << "with the earlier closing line";
    EXPECT_EQ("...(1)", Removed("a", 1));
    EXPECT_EQ("...(1)", Removed("", 1));
    EXPECT_EQ("...(0)", Removed("a", -4));
    EXPECT_EQ("a\n...(2147483647)", Removed("a\nb", INT_MAX));
}

TEST(RemoveLine, OnlyItsOwnClosingLineIsOne)
{
    EXPECT_EQ("a\n...(2)", Removed("a\n...()", 2));
    EXPECT_EQ("a\n...(2)", Removed("a\n...(x)", 2));
    EXPECT_EQ("a\n...(2)", Removed("a\n....(1)", 2));
    EXPECT_EQ("...(2)", Removed("a\n...(1)", 2));
    EXPECT_EQ("...(2)", Removed("...(1)", 2));
}

TEST(RemoveLine, PercentSignsAreLetters)
{
    EXPECT_EQ("%s%n\n...(1)", Removed("%s%n\n%d", 1));
}

TEST(CutToHeight, LeavesAtLeastThreeLines)
{
    EXPECT_EQ((Lines{"a", "b", "c"}), CutTo({"a", "b", "c"}, 10, 5));
    EXPECT_EQ((Lines{"a", "b", "...(2)"}), CutTo({"a", "b", "c", "d"}, 10, 5));
    EXPECT_EQ((Lines{"a", "b", "...(2)"}), CutTo({"a", "b", "c", "d"}, 10, 39));
    EXPECT_EQ((Lines{"a", "b", "c", "d"}), CutTo({"a", "b", "c", "d"}, 10, 40));
    EXPECT_EQ((Lines{"a", "b", "c", "...(3)"}), CutTo({"a", "b", "c", "d", "e", "f"}, 10, 49));
    EXPECT_EQ((Lines{"a", "b", "...(2)"}), CutTo({"a", "b", "c", "d"}, 10, -500));
}

TEST(CutToHeight, LinesWithoutHeightFitAnyHeight)
{
    EXPECT_EQ((Lines{"a", "b", "c", "d"}), CutTo({"a", "b", "c", "d"}, 0, 0));
    EXPECT_EQ((Lines{"a", "b", "...(2)"}), CutTo({"a", "b", "c", "d"}, 0, -1));
}

TEST(CutToHeight, DoesWhatOneLineAfterAnotherDoes)
{
    std::mt19937 random(5402);
    for (int turn = 0; turn < 3000; ++turn)
    {
        Lines lines(1 + random() % 30);
        for (std::size_t i = 0; i < lines.size(); ++i)
        {
            lines[i] = std::string(i % 3, 'x');
        }
        const int advance = static_cast<int>(random() % 12);
        const int maxHeight = static_cast<int>(random() % 200) - 10;
        ASSERT_EQ(CutStepByStep(lines, advance, maxHeight), CutTo(lines, advance, maxHeight))
            << lines.size() << " lines of " << advance << " in " << maxHeight;
    }
}
