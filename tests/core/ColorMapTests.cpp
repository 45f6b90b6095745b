#include "family/TarnUtil/core/ColorMap.h"
#include "tests/support/SpecialNumbers.h"

#include <gtest/gtest.h>

#include <climits>
#include <limits>
#include <type_traits>
#include <vector>

namespace
{

using vorn::test::kInfinite;
using vorn::test::kNaN;
constexpr double kLargest = std::numeric_limits<double>::max();

constexpr DWORD kGreen = 0x002E8B57;
constexpr DWORD kBrown = 0x008B5A2B;
constexpr DWORD kWhite = 0x00FFFFFF;

template <typename Height>
std::vector<DWORD> Colors(std::vector<Height> elevations)
{
    ColorMap map;
    map.GenColorMap(static_cast<int>(elevations.size()), elevations.data());
    std::vector<DWORD> colors;
    for (int i = 0; i < map.Count(); ++i)
    {
        colors.push_back(map.Color(i));
    }
    return colors;
}

} // namespace

TEST(ColorMap, BeginsWithoutColours)
{
    const ColorMap map;
    EXPECT_EQ(map.Count(), 0);
    EXPECT_EQ(map.Color(0), 0U);
    static_assert(std::has_virtual_destructor_v<ColorMap> && std::is_copy_assignable_v<ColorMap>);
}

TEST(ColorMap, RisesFromGreenOverBrownToWhite)
{
    EXPECT_EQ(Colors<long>({0, 500, 1000}), (std::vector<DWORD>{kGreen, kBrown, kWhite}));
    EXPECT_EQ(Colors<double>({-10.5, 0, 10.5}), (std::vector<DWORD>{kGreen, kBrown, kWhite}));
    EXPECT_EQ(Colors<long>({3000, -1000}), (std::vector<DWORD>{kWhite, kGreen}));
}

TEST(ColorMap, BlendsEvenlyInBetween)
{
    // A quarter lies halfway from green to brown: (46 + 139) / 2 = 92.5, (139 + 90) / 2 = 114.5, (87 + 43) / 2 = 65.
    // Three quarters lie halfway from brown to white: 197, 172.5, 149.
    EXPECT_EQ(Colors<long>({0, 100, 200, 300, 400}),
              (std::vector<DWORD>{kGreen, 0x005D7341, kBrown, 0x00C5AD95, kWhite}));
    EXPECT_EQ(Colors<double>({0, 0.25, 1}), (std::vector<DWORD>{kGreen, 0x005D7341, kWhite}));
}

TEST(ColorMap, OneHeightIsGreen)
{
    EXPECT_EQ(Colors<long>({1234}), (std::vector<DWORD>{kGreen}));
    EXPECT_EQ(Colors<double>({5, 5, 5}), (std::vector<DWORD>{kGreen, kGreen, kGreen}));
}

TEST(ColorMap, ElevationsAtTheEdgeOfTheNumbers)
{
    EXPECT_EQ(Colors<long>({LONG_MIN, LONG_MAX}), (std::vector<DWORD>{kGreen, kWhite}));
    EXPECT_EQ(Colors<double>({-kLargest, 0, kLargest}), (std::vector<DWORD>{kGreen, kBrown, kWhite}));
    EXPECT_EQ(Colors<double>({kNaN, 0, 100, kInfinite, -kInfinite}),
              (std::vector<DWORD>{kGreen, kGreen, kWhite, kWhite, kGreen}));
    EXPECT_EQ(Colors<double>({kNaN, kNaN}), (std::vector<DWORD>{kGreen, kGreen}));
}

TEST(ColorMap, NothingTakesTheColoursAway)
{
    std::vector<long> elevations = {0, 1};
    ColorMap map;
    for (const int count : {0, -1, INT_MIN})
    {
        map.GenColorMap(2, elevations.data());
        ASSERT_EQ(map.Count(), 2);
        map.GenColorMap(count, elevations.data());
        EXPECT_EQ(map.Count(), 0);
    }
    map.GenColorMap(2, elevations.data());
    map.GenColorMap(2, static_cast<double*>(nullptr));
    EXPECT_EQ(map.Count(), 0);
    map.GenColorMap(2, static_cast<long*>(nullptr));
    EXPECT_EQ(map.Count(), 0);
}

TEST(ColorMap, ANewTableReplacesTheOld)
{
    std::vector<long> elevations = {0, 50, 100};
    ColorMap map;
    map.GenColorMap(3, elevations.data());
    map.GenColorMap(2, elevations.data());
    EXPECT_EQ(map.Count(), 2);
    EXPECT_EQ(map.Color(1), kWhite);
    EXPECT_EQ(map.Color(2), 0U);
    EXPECT_EQ(map.Color(-1), 0U);
}

TEST(ColorMap, CopiesAreOfTheirOwn)
{
    std::vector<long> elevations = {0, 50, 100};
    ColorMap first;
    first.GenColorMap(3, elevations.data());
    const ColorMap second = first;
    first.GenColorMap(0, elevations.data());
    EXPECT_EQ(second.Count(), 3);
    EXPECT_EQ(second.Color(1), kBrown);
}
