#include "toolkit/layout/core/UncoveredArea.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

namespace
{

/// Ten columns by six rows; a letter counts up with each rectangle that holds the place.
std::string Painted(const std::vector<RECT>& rects)
{
    std::string picture;
    for (int y = 0; y < 6; ++y)
    {
        for (int x = 0; x < 10; ++x)
        {
            char sign = '.';
            for (const RECT& rect : rects)
            {
                if (x >= rect.left && x < rect.right && y >= rect.top && y < rect.bottom)
                {
                    sign = sign == '.' ? 'a' : static_cast<char>(sign + 1);
                }
            }
            picture += sign;
        }
        picture += '\n';
    }
    return picture;
}

TEST(UncoveredArea, IsTheWholeAreaWithoutCovers)
{
    const std::vector<RECT> rects = vorn::UncoveredArea({1, 1, 9, 5}, {});
    ASSERT_EQ(rects.size(), 1u);
    EXPECT_EQ(Painted(rects), "..........\n"
                              ".aaaaaaaa.\n"
                              ".aaaaaaaa.\n"
                              ".aaaaaaaa.\n"
                              ".aaaaaaaa.\n"
                              "..........\n");
}

TEST(UncoveredArea, LeavesCoversOut)
{
    EXPECT_EQ(Painted(vorn::UncoveredArea({0, 0, 10, 6}, {{2, 1, 5, 3}, {6, 2, 8, 5}})), "aaaaaaaaaa\n"
                                                                                         "aa...aaaaa\n"
                                                                                         "aa...a..aa\n"
                                                                                         "aaaaaa..aa\n"
                                                                                         "aaaaaa..aa\n"
                                                                                         "aaaaaaaaaa\n");
}

TEST(UncoveredArea, CoversMayReachBeyondItAndOverlap)
{
    EXPECT_EQ(Painted(vorn::UncoveredArea({0, 0, 10, 6}, {{-5, -5, 3, 2}, {2, 1, 6, 4}, {9, 5, 70000, 70000}})),
              "...aaaaaaa\n"
              "......aaaa\n"
              "aa....aaaa\n"
              "aa....aaaa\n"
              "aaaaaaaaaa\n"
              "aaaaaaaaa.\n");
}

TEST(UncoveredArea, EmptyCoversHideNothing)
{
    EXPECT_EQ(vorn::UncoveredArea({0, 0, 10, 6}, {{3, 3, 3, 6}, {5, 4, 2, 5}, {0, 6, 10, 9}}).size(), 1u);
}

TEST(UncoveredArea, IsNothingBelowACoverOrWithoutArea)
{
    EXPECT_TRUE(vorn::UncoveredArea({0, 0, 10, 6}, {{-1, -1, 11, 7}}).empty());
    EXPECT_TRUE(vorn::UncoveredArea({0, 0, 10, 6}, {{0, 0, 5, 6}, {5, 0, 10, 6}}).empty());
    EXPECT_TRUE(vorn::UncoveredArea({3, 3, 3, 6}, {}).empty());
    EXPECT_TRUE(vorn::UncoveredArea({5, 3, 3, 6}, {{0, 0, 1, 1}}).empty());
}

TEST(UncoveredArea, RowsOfTheSameColumnsAreOne)
{
    // Two columns of three covers that touch: the columns between them are free from top to bottom.
    const std::vector<RECT> covers = {{1, 0, 3, 2}, {1, 2, 3, 4}, {1, 4, 3, 6}, {5, 0, 7, 3}, {5, 3, 7, 6}};
    EXPECT_EQ(vorn::UncoveredArea({0, 0, 10, 6}, covers).size(), 3u);
}

TEST(UncoveredArea, ComesFromTheTopDownAndFromLeftToRight)
{
    std::mt19937 random(31);
    for (int round = 0; round < 400; ++round)
    {
        std::vector<RECT> covers(random() % 12);
        for (RECT& cover : covers)
        {
            const LONG left = static_cast<LONG>(random() % 12) - 1;
            const LONG top = static_cast<LONG>(random() % 8) - 1;
            cover = {left, top, left + static_cast<LONG>(random() % 5), top + static_cast<LONG>(random() % 4)};
        }
        const RECT area = {static_cast<LONG>(random() % 3), static_cast<LONG>(random() % 2),
                           10 - static_cast<LONG>(random() % 3), 6 - static_cast<LONG>(random() % 2)};
        const std::vector<RECT> rects = vorn::UncoveredArea(area, covers);
        std::string expected = Painted({area});
        const std::string covered = Painted(covers);
        for (std::size_t i = 0; i < expected.size(); ++i)
        {
            expected[i] = covered[i] == '.' || covered[i] == '\n' ? expected[i] : '.';
        }
        ASSERT_EQ(Painted(rects), expected) << round; // no letter but 'a': none overlaps another
        for (std::size_t i = 1; i < rects.size(); ++i)
        {
            const RECT& before = rects[i - 1];
            const RECT& rect = rects[i];
            const bool isBeside = rect.top == before.top && rect.bottom == before.bottom && rect.left > before.right;
            ASSERT_TRUE(isBeside || rect.top >= before.bottom) << round;
        }
    }
}

} // namespace
