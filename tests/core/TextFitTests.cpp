#include "tests/support/GridText.h"
#include "toolkit/textlayout/core/TextFit.h"
#include "toolkit/textlayout/core/TextLines.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <random>
#include <set>
#include <string>
#include <vector>

using vorn::FittedText;
using vorn::FitText;
using vorn::TextMeasure;
using vorn::TextSpace;
using vorn::test::GridMeasure;

namespace
{
TextSpace Space(int width, int height)
{
    TextSpace space;
    space.maxWidth = width;
    space.maxHeight = height;
    return space;
}

FittedText Fit(const std::string& text, const TextSpace& space)
{
    GridMeasure measure;
    const std::optional<FittedText> fitted = FitText(text, space, measure);
    EXPECT_TRUE(fitted);
    return fitted.value_or(FittedText{});
}

int FontHeight(const std::string& text, const TextSpace& space)
{
    return Fit(text, space).fontHeight;
}

bool FitsIn(TextMeasure& measure, int height, const std::vector<std::string>& lines, const TextSpace& space)
{
    measure.UseFont(height);
    const auto tooWide = [&](const std::string& line)
    {
        return measure.LineWidth(line) > space.maxWidth;
    };
    const long long advance = vorn::LineAdvance(measure.LineHeight(), space.spacing);
    return advance * static_cast<long long>(lines.size()) <= space.maxHeight && std::ranges::none_of(lines, tooWide);
}

bool FitsAt(int height, const std::vector<std::string>& lines, const TextSpace& space)
{
    GridMeasure measure;
    return FitsIn(measure, height, lines, space);
}

/// Tried one by one; no line is less than half as high as its font.
int LargestFitting(const std::vector<std::string>& lines, const TextSpace& space)
{
    int height = std::min(space.maxFontHeight, 2 * space.maxHeight + 2);
    while (height >= space.minFontHeight && !FitsAt(height, lines, space))
    {
        --height;
    }
    return height >= space.minFontHeight ? height : 0;
}

/// A device whose fonts are made in some sizes only: the heights between have the next smaller size.
class CoarseMeasure : public GridMeasure
{
public:
    explicit CoarseMeasure(int grain) : m_grain(grain)
    {
    }
    bool UseFont(int height) override
    {
        return GridMeasure::UseFont(height) && (m_size = std::max(height / m_grain, 1) * m_grain) > 0;
    }
    int LineHeight() override
    {
        return m_size;
    }
    int LineWidth(std::string_view line) override
    {
        int width = 0;
        for (const char letter : line)
        {
            width += m_size * (letter == 'i' ? 3 : 7) / 11;
        }
        return width;
    }

private:
    int m_grain;
    int m_size = 1;
};

/// The largest of all heights, tried one by one; 0 when there is none.
int LargestOfAll(TextMeasure& measure, const std::vector<std::string>& lines, const TextSpace& space)
{
    int height = space.maxFontHeight;
    while (height >= space.minFontHeight && !FitsIn(measure, height, lines, space))
    {
        --height;
    }
    return height >= space.minFontHeight ? height : 0;
}

std::string RandomText(std::mt19937& random)
{
    std::string text(random() % 120, ' ');
    const bool manyLines = random() % 3 == 0;
    for (char& letter : text)
    {
        letter = random() % (manyLines ? 4 : 40) == 0 ? '\n' : "abciii x"[random() % 8];
    }
    return text;
}
} // namespace

TEST(TextFit, OneLineFillsItsHeight)
{
    const FittedText fitted = Fit("ab", Space(500, 40));
    EXPECT_EQ(40, fitted.fontHeight);
    EXPECT_EQ(40, fitted.width);
    EXPECT_EQ(40, fitted.height);
    EXPECT_FALSE(fitted.cut);
}

TEST(TextFit, OneLineFillsItsWidth)
{
    const FittedText fitted = Fit("abcdefgh", Space(100, 400));
    EXPECT_EQ(25, fitted.fontHeight) << "8 letters of 12";
    EXPECT_EQ(96, fitted.width);
    EXPECT_EQ(25, fitted.height);
}

TEST(TextFit, LinesShareTheHeight)
{
    EXPECT_EQ(20, FontHeight("a\nb\nc\nd\ne", Space(500, 100)));
    EXPECT_EQ(20, FontHeight("a\nb\nc\nd\ne", Space(500, 104)));
    EXPECT_EQ(100, Fit("a\nb\nc\nd\ne", Space(500, 104)).height);
    EXPECT_EQ(25, FontHeight("a\n\n\n", Space(500, 100))) << "empty lines count";
}

TEST(TextFit, SpacingTakesItsPercents)
{
    TextSpace space = Space(500, 100);
    space.spacing = 25;
    EXPECT_EQ(40, FontHeight("a\nb", space)) << "two lines of 50";
    EXPECT_EQ(100, Fit("a\nb", space).height);
    space.spacing = -50;
    EXPECT_EQ(100, FontHeight("a\nb", space)) << "two lines of 50 fill the space";
    space.spacing = -1000;
    EXPECT_EQ(999, FontHeight("a\nb", space)) << "as -99: two lines of 9";
}

TEST(TextFit, TheFontStaysWithinItsBounds)
{
    TextSpace space = Space(5000, 5000);
    EXPECT_EQ(999, FontHeight("a", space));
    space.maxFontHeight = 30;
    EXPECT_EQ(30, FontHeight("a", space));
    EXPECT_EQ(30, FontHeight("a\nb\nc\nd\ne\nf\ng", space));
    space.maxFontHeight = 100000;
    EXPECT_EQ(5000, FontHeight("a", space));
    EXPECT_EQ(9999, FontHeight("a", {1000000, 1000000, 9, 100000, 0, {}})) << "the largest font there is";
    space = Space(20, 500);
    EXPECT_EQ(9, FontHeight("abcdefgh", space));
    space.minFontHeight = 4;
    EXPECT_EQ(5, FontHeight("abcdefgh", space));
}

TEST(TextFit, BoundsOutOfOrder)
{
    TextSpace space = Space(5000, 5000);
    space.maxFontHeight = 20;
    space.minFontHeight = 30;
    EXPECT_EQ(30, FontHeight("a", space)) << "the smallest wins";
    space.maxFontHeight = 0;
    EXPECT_EQ(30, FontHeight("a", space));
    space.maxFontHeight = INT_MIN;
    space.minFontHeight = INT_MIN;
    EXPECT_EQ(1, FontHeight("a", space));
    space.minFontHeight = INT_MAX;
    EXPECT_EQ(999, FontHeight("a", space));
}

TEST(TextFit, AnImposedHeightIsTheMost)
{
    TextSpace space = Space(500, 100);
    space.imposedFontHeight = 40;
    EXPECT_EQ(40, FontHeight("a", space));
    space.imposedFontHeight = 400;
    EXPECT_EQ(100, FontHeight("a", space));
    space.imposedFontHeight = 0;
    EXPECT_EQ(9, FontHeight("a", space));
    space.imposedFontHeight = INT_MAX;
    EXPECT_EQ(100, FontHeight("a", space));
    space.maxFontHeight = 30;
    EXPECT_EQ(30, FontHeight("a", space));
}

TEST(TextFit, AnEmptyTextIsOneLine)
{
    const FittedText fitted = Fit("", Space(10, 40));
    EXPECT_EQ(40, fitted.fontHeight);
    EXPECT_EQ(0, fitted.width);
    EXPECT_EQ(40, fitted.height);
}

TEST(TextFit, WhatFitsAtTheSmallestFontIsNotCut)
{
    EXPECT_FALSE(Fit("abcdefgh", Space(32, 9)).cut);
    EXPECT_EQ(9, FontHeight("abcdefgh", Space(32, 9)));
}

TEST(TextFit, OneLineIsCutToItsWidth)
{
    const FittedText fitted = Fit("abcdefghkl", Space(39, 50)); // letters of 4
    EXPECT_EQ(9, fitted.fontHeight);
    EXPECT_EQ("abcd...", fitted.cut);
    EXPECT_EQ(28, fitted.width);
    EXPECT_EQ(9, fitted.height);
}

TEST(TextFit, SixCharactersAreNotCut)
{
    const FittedText fitted = Fit("abcdef", Space(3, 50));
    EXPECT_EQ(9, fitted.fontHeight);
    EXPECT_FALSE(fitted.cut);
    EXPECT_EQ(24, fitted.width) << "and stick out";
    EXPECT_EQ("a...", Fit("abcdefg", Space(3, 50)).cut);
}

TEST(TextFit, LinesAreCutFromTheEnd)
{
    const FittedText fitted = Fit("a\nb\nc\nd\ne\nf\ng\nh\nk\nl", Space(50, 50));
    EXPECT_EQ(9, fitted.fontHeight);
    EXPECT_EQ("a\nb\nc\nd\n...(6)", fitted.cut);
    EXPECT_EQ(24, fitted.width) << "the closing line";
    EXPECT_EQ(45, fitted.height);
}

TEST(TextFit, BothDirectionsAreCut)
{
    const FittedText fitted = Fit("abcdefghkl\nb\nc\nd\ne", Space(30, 27));
    EXPECT_EQ("abcd...\nb\n...(3)", fitted.cut);
    EXPECT_EQ(28, fitted.width);
    EXPECT_EQ(27, fitted.height);
}

TEST(TextFit, ThreeLinesStickOutOfAFlatSpace)
{
    const FittedText fitted = Fit("a\nb\nc", Space(50, 10));
    EXPECT_FALSE(fitted.cut);
    EXPECT_EQ(27, fitted.height);
    EXPECT_EQ(9, Fit("abcd", Space(INT_MIN, INT_MIN)).fontHeight);
}

TEST(TextFit, FailsWhenAFontCannotBeHad)
{
    GridMeasure measure;
    measure.Miss(40);
    EXPECT_FALSE(FitText("a", Space(500, 40), measure));
    GridMeasure smallest;
    smallest.Miss(9);
    EXPECT_FALSE(FitText("a", Space(1, 1), smallest));
}

TEST(TextFit, WhatIsFoundFitsAndIsTheLargestOrCloseToIt)
{
    std::mt19937 random(5403);
    int found = 0;
    int largest = 0;
    for (int turn = 0; turn < 500; ++turn)
    {
        const std::string text = RandomText(random);
        TextSpace space = Space(static_cast<int>(random() % 600), static_cast<int>(random() % 400));
        space.spacing = static_cast<int>(random() % 60) - 20;
        const FittedText fitted = Fit(text, space);
        const std::vector<std::string> lines = vorn::TextLines(text);
        const int best = LargestFitting(lines, space);
        ASSERT_EQ(best == 0, !FitsAt(fitted.fontHeight, lines, space)) << text;
        if (best != 0)
        {
            ++found;
            largest += fitted.fontHeight == best ? 1 : 0;
            ASSERT_LE(fitted.fontHeight, best);
            ASSERT_GE(fitted.fontHeight + 1 + best / 10, best)
                << text << "\nin " << space.maxWidth << ", " << space.maxHeight;
            ASSERT_FALSE(fitted.cut);
        }
    }
    RecordProperty("found", found);
    RecordProperty("largest", largest);
    EXPECT_GT(found, 200);
    EXPECT_GT(largest, found * 9 / 10) << "nearly always the largest";
}

TEST(TextFit, OnDevicesOfAllKindsItIsTheLargestUnlessTheHeightIsFilled)
{
    std::mt19937 random(5405);
    int filled = 0;
    for (int turn = 0; turn < 1500; ++turn)
    {
        const std::string text = RandomText(random);
        TextSpace space = Space(static_cast<int>(random() % 900), static_cast<int>(random() % 500));
        space.spacing = static_cast<int>(random() % 160) - 99;
        space.minFontHeight = 1 + static_cast<int>(random() % 12);
        space.maxFontHeight = static_cast<int>(random() % 1200);
        CoarseMeasure measure(1 + static_cast<int>(random() % 9));
        const std::optional<FittedText> fitted = FitText(text, space, measure);
        ASSERT_TRUE(fitted);
        const int best = LargestOfAll(measure, vorn::TextLines(text), space);
        const bool isFilled = best != 0 && fitted->height == space.maxHeight;
        filled += isFilled ? 1 : 0;
        const std::string shown = text + "\nin " + std::to_string(space.maxWidth) + " x " +
                                  std::to_string(space.maxHeight) + ", best " + std::to_string(best);
        ASSERT_TRUE(isFilled || fitted->fontHeight == (best != 0 ? best : space.minFontHeight)) << shown;
        ASSERT_TRUE(best == 0 || FitsIn(measure, fitted->fontHeight, vorn::TextLines(text), space)) << shown;
        ASSERT_TRUE(best == 0 || !fitted->cut) << shown;
    }
    EXPECT_LT(filled, 300) << "most are held to the largest";
}

TEST(TextFit, NeedsTwoOrThreeFontsInMostTexts)
{
    std::mt19937 random(5406);
    const int turns = 3000;
    std::size_t even = 0;
    std::size_t coarse = 0;
    std::size_t most = 0;
    for (int turn = 0; turn < turns; ++turn)
    {
        const std::string text = RandomText(random);
        const TextSpace space = Space(static_cast<int>(random() % 600), static_cast<int>(random() % 400));
        GridMeasure grid;
        CoarseMeasure steps(1 + turn % 9);
        FitText(text, space, grid);
        FitText(text, space, steps);
        even += grid.Asked().size();
        coarse += steps.Asked().size();
        most = std::max({most, grid.Asked().size(), steps.Asked().size()});
    }
    RecordProperty("even_in_hundred", static_cast<int>(even * 100 / turns));
    RecordProperty("coarse_in_hundred", static_cast<int>(coarse * 100 / turns));
    RecordProperty("most", static_cast<int>(most));
    EXPECT_LT(even, 3U * turns);
    EXPECT_LT(coarse, 4U * turns);
    EXPECT_LE(most, 12U);
}

TEST(TextFit, LinesOfRoundedHeightsAreFoundInFewFonts)
{
    // A line is a hundredth of its font high, cut to a whole number: 37 of 6 are 222 high, of 7 at a font of 700, 259.
    TextSpace space = Space(500, 223);
    space.spacing = -99;
    space.minFontHeight = 253;
    space.maxFontHeight = 9999;
    GridMeasure measure;
    const std::optional<FittedText> fitted = FitText(std::string(36, '\n'), space, measure);
    ASSERT_TRUE(fitted);
    EXPECT_EQ(fitted->fontHeight, 699);
    EXPECT_LE(measure.Asked().size(), 16U);
}

TEST(TextFit, MeasuresFewFontsAndNoneTwice)
{
    std::mt19937 random(5404);
    std::size_t most = 0;
    for (int turn = 0; turn < 3000; ++turn)
    {
        GridMeasure measure;
        const std::string text = RandomText(random);
        FitText(text, Space(static_cast<int>(random() % 600), static_cast<int>(random() % 400)), measure);
        const std::set<int> different(measure.Asked().begin(), measure.Asked().end());
        const std::size_t repeated = measure.Asked().size() - different.size();
        ASSERT_LE(repeated, 1U) << "the smallest again for the cut";
        most = std::max(most, different.size());
    }
    EXPECT_LE(most, 12U);
}

TEST(TextFit, TenThousandLinesAreMeasuredAFewTimesOnly)
{
    std::string text;
    for (int i = 0; i < 10000; ++i)
    {
        text += "line\n";
    }
    GridMeasure small;
    const auto cut = FitText(text, Space(300, 200), small);
    ASSERT_TRUE(cut);
    EXPECT_EQ(198, cut->height) << "22 lines of 9";
    EXPECT_LE(small.Widths(), 30) << "only lines that are shown";
    GridMeasure large;
    const auto whole = FitText(text, Space(300, 200000), large);
    ASSERT_TRUE(whole);
    EXPECT_EQ(19, whole->fontHeight) << "10,001 lines";
    EXPECT_LE(large.Asked().size(), 8U);
}
