#include "family/TarnUtil/core/Units.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <string>

namespace
{

constexpr double kInfinity = std::numeric_limits<double>::infinity();

double Converted(double value, UNIT from, UNIT to)
{
    EXPECT_TRUE(ConvertValue(&value, from, to)) << from << " to " << to;
    return value;
}

void ExpectRefused(UNIT from, UNIT to)
{
    double value = 12.5;
    EXPECT_FALSE(ConvertValue(&value, from, to)) << from << " to " << to;
    EXPECT_EQ(value, 12.5) << from << " to " << to;
}

// One unit in the last place: the result is one multiplication and one division away from exact.
bool WithinOneUlp(double a, double b)
{
    return a == b || std::nextafter(a, b) == b;
}

int GroupOf(int unit)
{
    switch (unit)
    {
    case 5:
    case 6:
    case 7:
    case 8:
        return 1;
    case 9:
    case 10:
    case 11:
    case 12:
        return 2;
    case 13:
    case 14:
        return 3;
    case 17:
    case 18:
    case 19:
        return 4;
    default:
        return 0;
    }
}

struct Pair
{
    UNIT from;
    UNIT to;
    double expected; // 7.25 of the first unit, from exact fractions, rounded once
};

constexpr Pair kPairs[] = {
    {UNIT_NM, UNIT_SM, 8.343150998170684},
    {UNIT_NM, UNIT_KM, 13.427},
    {UNIT_NM, UNIT_FT, 44051.83727034121},
    {UNIT_NM, UNIT_M, 13427.0},
    {UNIT_NM, UNIT_IN, 528622.0472440945},
    {UNIT_NM, UNIT_YD, 14683.945756780402},
    {UNIT_NM, UNIT_CM, 1342700.0},
    {UNIT_NM, UNIT_MM, 13427000.0},
    {UNIT_SM, UNIT_NM, 6.300077753779697},
    {UNIT_SM, UNIT_KM, 11.667744},
    {UNIT_SM, UNIT_FT, 38280.0},
    {UNIT_SM, UNIT_M, 11667.744},
    {UNIT_SM, UNIT_IN, 459360.0},
    {UNIT_SM, UNIT_YD, 12760.0},
    {UNIT_SM, UNIT_CM, 1166774.4},
    {UNIT_SM, UNIT_MM, 11667744.0},
    {UNIT_KM, UNIT_NM, 3.914686825053996},
    {UNIT_KM, UNIT_SM, 4.5049411437206714},
    {UNIT_KM, UNIT_FT, 23786.089238845143},
    {UNIT_KM, UNIT_M, 7250.0},
    {UNIT_KM, UNIT_IN, 285433.07086614176},
    {UNIT_KM, UNIT_YD, 7928.696412948381},
    {UNIT_KM, UNIT_CM, 725000.0},
    {UNIT_KM, UNIT_MM, 7250000.0},
    {UNIT_FT, UNIT_NM, 0.001193196544276458},
    {UNIT_FT, UNIT_SM, 0.0013731060606060606},
    {UNIT_FT, UNIT_KM, 0.0022098},
    {UNIT_FT, UNIT_M, 2.2098},
    {UNIT_FT, UNIT_IN, 87.0},
    {UNIT_FT, UNIT_YD, 2.4166666666666665},
    {UNIT_FT, UNIT_CM, 220.98},
    {UNIT_FT, UNIT_MM, 2209.8},
    {UNIT_M, UNIT_NM, 0.003914686825053995},
    {UNIT_M, UNIT_SM, 0.004504941143720671},
    {UNIT_M, UNIT_KM, 0.00725},
    {UNIT_M, UNIT_FT, 23.786089238845143},
    {UNIT_M, UNIT_IN, 285.43307086614175},
    {UNIT_M, UNIT_YD, 7.928696412948382},
    {UNIT_M, UNIT_CM, 725.0},
    {UNIT_M, UNIT_MM, 7250.0},
    {UNIT_IN, UNIT_NM, 9.943304535637149e-05},
    {UNIT_IN, UNIT_SM, 0.00011442550505050506},
    {UNIT_IN, UNIT_KM, 0.00018415},
    {UNIT_IN, UNIT_FT, 0.6041666666666666},
    {UNIT_IN, UNIT_M, 0.18415},
    {UNIT_IN, UNIT_YD, 0.2013888888888889},
    {UNIT_IN, UNIT_CM, 18.415},
    {UNIT_IN, UNIT_MM, 184.15},
    {UNIT_YD, UNIT_NM, 0.0035795896328293737},
    {UNIT_YD, UNIT_SM, 0.0041193181818181815},
    {UNIT_YD, UNIT_KM, 0.0066294},
    {UNIT_YD, UNIT_FT, 21.75},
    {UNIT_YD, UNIT_M, 6.6294},
    {UNIT_YD, UNIT_IN, 261.0},
    {UNIT_YD, UNIT_CM, 662.94},
    {UNIT_YD, UNIT_MM, 6629.4},
    {UNIT_CM, UNIT_NM, 3.9146868250539954e-05},
    {UNIT_CM, UNIT_SM, 4.5049411437206714e-05},
    {UNIT_CM, UNIT_KM, 7.25e-05},
    {UNIT_CM, UNIT_FT, 0.23786089238845146},
    {UNIT_CM, UNIT_M, 0.0725},
    {UNIT_CM, UNIT_IN, 2.854330708661417},
    {UNIT_CM, UNIT_YD, 0.07928696412948381},
    {UNIT_CM, UNIT_MM, 72.5},
    {UNIT_MM, UNIT_NM, 3.914686825053996e-06},
    {UNIT_MM, UNIT_SM, 4.504941143720671e-06},
    {UNIT_MM, UNIT_KM, 7.25e-06},
    {UNIT_MM, UNIT_FT, 0.023786089238845145},
    {UNIT_MM, UNIT_M, 0.00725},
    {UNIT_MM, UNIT_IN, 0.2854330708661417},
    {UNIT_MM, UNIT_YD, 0.007928696412948381},
    {UNIT_MM, UNIT_CM, 0.725},
    {UNIT_KTS, UNIT_MPH, 8.343150998170684},
    {UNIT_KTS, UNIT_KPH, 13.427},
    {UNIT_KTS, UNIT_MPS, 3.729722222222222},
    {UNIT_MPH, UNIT_KTS, 6.300077753779697},
    {UNIT_MPH, UNIT_KPH, 11.667744},
    {UNIT_MPH, UNIT_MPS, 3.24104},
    {UNIT_KPH, UNIT_KTS, 3.914686825053996},
    {UNIT_KPH, UNIT_MPH, 4.5049411437206714},
    {UNIT_KPH, UNIT_MPS, 2.013888888888889},
    {UNIT_MPS, UNIT_KTS, 14.092872570194384},
    {UNIT_MPS, UNIT_MPH, 16.217788117394417},
    {UNIT_MPS, UNIT_KPH, 26.1},
    {UNIT_GAL, UNIT_L, 27.444235434},
    {UNIT_GAL, UNIT_LBS, 43.5},
    {UNIT_GAL, UNIT_KG, 19.731268095},
    {UNIT_L, UNIT_GAL, 1.915247379596576},
    {UNIT_L, UNIT_LBS, 11.491484277579456},
    {UNIT_L, UNIT_KG, 5.212449588285003},
    {UNIT_LBS, UNIT_GAL, 1.2083333333333333},
    {UNIT_LBS, UNIT_L, 4.574039239},
    {UNIT_LBS, UNIT_KG, 3.2885446825},
    {UNIT_KG, UNIT_GAL, 2.663919001400604},
    {UNIT_KG, UNIT_L, 10.084030379523359},
    {UNIT_KG, UNIT_LBS, 15.983514008403624},
    {UNIT_INHG, UNIT_HPA, 245.5131764247225},
    {UNIT_INHG, UNIT_MMHG, 184.15},
    {UNIT_HPA, UNIT_INHG, 0.21409237893232316},
    {UNIT_HPA, UNIT_MMHG, 5.437946424881009},
    {UNIT_MMHG, UNIT_INHG, 0.2854330708661417},
    {UNIT_MMHG, UNIT_HPA, 9.6658730875875},
};

} // namespace

TEST(UnitTable, DisplayNamesStandInTheOrderOfTheCodes)
{
    const char* const names[] = {"NM",  "SM", "KM",    "FT",    "M",  "KTS", "MPH",  "KPH", "MPS",  "GAL", "L",
                                 "LBS", "KG", "\260F", "\260C", "IN", "YD",  "inHg", "hPa", "mmHg", "CM",  "MM"};
    ASSERT_EQ(gUnitCount, 22);
    for (int unit = 0; unit < gUnitCount; ++unit)
    {
        EXPECT_STREQ(gUnitInfo[unit][1], names[unit]) << unit;
    }
}

TEST(UnitTable, EveryUnitHasFullNameAndPlural)
{
    for (int unit = 0; unit < gUnitCount; ++unit)
    {
        EXPECT_GT(std::strlen(gUnitInfo[unit][0]), std::strlen(gUnitInfo[unit][1])) << unit;
        EXPECT_STRNE(gUnitInfo[unit][0], gUnitInfo[unit][2]) << unit;
    }
    EXPECT_STREQ(gUnitInfo[UNIT_FT][0], "Foot");
    EXPECT_STREQ(gUnitInfo[UNIT_FT][2], "Feet");
    EXPECT_STREQ(gUnitInfo[UNIT_IN][2], "Inches");
    EXPECT_STREQ(gUnitInfo[UNIT_INHG][2], "Inches of Mercury");
}

TEST(UnitTable, EnumerationsAreSignedIntegersOfThirtyTwoBits)
{
    static_assert(sizeof(UNIT) == 4 && sizeof(UNITTYPE) == 4);
    EXPECT_EQ(static_cast<int>(UNIT_AUTO), -1);
    EXPECT_LT(static_cast<UNIT>(-7), 0);
}

TEST(ConvertValue, EveryPairOfScaledUnitsMatchesExactFractions)
{
    for (const Pair& pair : kPairs)
    {
        const double result = Converted(7.25, pair.from, pair.to);
        EXPECT_TRUE(WithinOneUlp(result, pair.expected))
            << pair.from << " to " << pair.to << ": " << result << " for " << pair.expected;
    }
}

TEST(ConvertValue, WholeFactorsComeOutExactly)
{
    EXPECT_EQ(Converted(1, UNIT_NM, UNIT_M), 1852.0);
    EXPECT_EQ(Converted(1852, UNIT_M, UNIT_NM), 1.0);
    EXPECT_EQ(Converted(1, UNIT_SM, UNIT_FT), 5280.0);
    EXPECT_EQ(Converted(12, UNIT_IN, UNIT_FT), 1.0);
    EXPECT_EQ(Converted(3, UNIT_FT, UNIT_YD), 1.0);
    EXPECT_EQ(Converted(1, UNIT_IN, UNIT_MM), 25.4);
    EXPECT_EQ(Converted(1, UNIT_FT, UNIT_M), 0.3048);
    EXPECT_EQ(Converted(100, UNIT_KTS, UNIT_KPH), 185.2);
    EXPECT_EQ(Converted(36, UNIT_KPH, UNIT_MPS), 10.0);
    EXPECT_EQ(Converted(10, UNIT_GAL, UNIT_LBS), 60.0);
    EXPECT_EQ(Converted(60, UNIT_LBS, UNIT_GAL), 10.0);
    EXPECT_EQ(Converted(1, UNIT_GAL, UNIT_L), 3.785411784);
    EXPECT_EQ(Converted(1, UNIT_LBS, UNIT_KG), 0.45359237);
    EXPECT_EQ(Converted(1, UNIT_INHG, UNIT_HPA), 33.86388640341);
}

TEST(ConvertValue, TemperaturesKnowTheirZeros)
{
    EXPECT_EQ(Converted(0, UNIT_C, UNIT_F), 32.0);
    EXPECT_EQ(Converted(100, UNIT_C, UNIT_F), 212.0);
    EXPECT_EQ(Converted(-40, UNIT_C, UNIT_F), -40.0);
    EXPECT_EQ(Converted(-40, UNIT_F, UNIT_C), -40.0);
    EXPECT_EQ(Converted(59, UNIT_F, UNIT_C), 15.0);
    EXPECT_EQ(Converted(0, UNIT_F, UNIT_C), -160.0 / 9.0);
}

TEST(ConvertValue, SameCodeIsTheIdentityBitForBit)
{
    for (const double value : {0.1, -0.0, 1e300, 5e-324, kInfinity, std::numeric_limits<double>::quiet_NaN(),
                               -std::numeric_limits<double>::quiet_NaN()})
    {
        for (int unit = 0; unit < gUnitCount; ++unit)
        {
            const double result = Converted(value, static_cast<UNIT>(unit), static_cast<UNIT>(unit));
            EXPECT_EQ(std::bit_cast<std::uint64_t>(result), std::bit_cast<std::uint64_t>(value)) << unit;
        }
    }
}

TEST(ConvertValue, ConvertsExactlyWithinTheGroups)
{
    for (int from = 0; from < gUnitCount; ++from)
    {
        for (int to = 0; to < gUnitCount; ++to)
        {
            if (GroupOf(from) == GroupOf(to))
            {
                EXPECT_TRUE(std::isfinite(Converted(12.5, static_cast<UNIT>(from), static_cast<UNIT>(to))));
            }
            else
            {
                ExpectRefused(static_cast<UNIT>(from), static_cast<UNIT>(to));
            }
        }
    }
}

TEST(ConvertValue, CodesOutsideTheTableAreRefusedEvenWhenEqual)
{
    constexpr int kLowest = std::numeric_limits<int>::min();
    constexpr int kHighest = std::numeric_limits<int>::max();
    for (const int code : {-1, 22, kLowest, kHighest})
    {
        ExpectRefused(static_cast<UNIT>(code), UNIT_NM);
        ExpectRefused(UNIT_NM, static_cast<UNIT>(code));
        ExpectRefused(static_cast<UNIT>(code), static_cast<UNIT>(code));
    }
}

TEST(ConvertValue, NullPointerIsRefused)
{
    EXPECT_FALSE(ConvertValue(nullptr, UNIT_NM, UNIT_KM));
    EXPECT_FALSE(ConvertValue(nullptr, UNIT_NM, UNIT_NM));
}

TEST(ConvertValue, NotANumberAndInfinitiesStay)
{
    EXPECT_TRUE(std::isnan(Converted(std::numeric_limits<double>::quiet_NaN(), UNIT_NM, UNIT_FT)));
    EXPECT_EQ(Converted(kInfinity, UNIT_NM, UNIT_FT), kInfinity);
    EXPECT_EQ(Converted(-kInfinity, UNIT_MM, UNIT_NM), -kInfinity);
    EXPECT_EQ(Converted(-kInfinity, UNIT_C, UNIT_F), -kInfinity);
}

TEST(ConvertValue, HugeValuesOverflowOnlyWhenTheirResultDoes)
{
    // 1e308 C is 1.8e308 F, which no double holds.
    EXPECT_DOUBLE_EQ(Converted(1.5e308, UNIT_CM, UNIT_M), 1.5e306);
    EXPECT_DOUBLE_EQ(Converted(1.5e308, UNIT_FT, UNIT_M), 4.572e307);
    EXPECT_DOUBLE_EQ(Converted(9e307, UNIT_C, UNIT_F), 1.62e308);
    EXPECT_EQ(Converted(1e308, UNIT_C, UNIT_F), kInfinity);
    EXPECT_EQ(Converted(1.5e308, UNIT_NM, UNIT_FT), kInfinity);
}

TEST(ConvertValue, KeepsTheSignOfZero)
{
    EXPECT_TRUE(std::signbit(Converted(-0.0, UNIT_NM, UNIT_FT)));
}
