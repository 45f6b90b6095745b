#include "aviation/core/Julian.h"

#include <gtest/gtest.h>

#include <chrono>
#include <climits>
#include <cmath>
#include <limits>

using namespace vorn;

namespace
{

/// Days from noon of 1 January 4713 BC to midnight before 1 January 1970.
constexpr double kEpochDay = 2440587.5;

} // namespace

TEST(JulianOfCivil, GivesTheStandardEpoch)
{
    EXPECT_EQ(JulianOfCivil({2000, 1, 1, 12, 0, 0}), 2451545.0);
    EXPECT_EQ(JulianOfCivil({1970, 1, 1, 0, 0, 0}), kEpochDay);
}

// Python: date.toordinal() + 1721424.5 + seconds / 86400.
TEST(JulianOfCivil, CountsTheTimeOfDay)
{
    EXPECT_DOUBLE_EQ(JulianOfCivil({2024, 2, 29, 6, 30, 15}), 2460369.7710069446);
    EXPECT_DOUBLE_EQ(JulianOfCivil({1999, 12, 31, 23, 59, 59}), 2451544.499988426);
}

// The worked examples of Meeus, Astronomical Algorithms, table 7.a (dates before 1582 in the Julian calendar).
TEST(JulianOfCivil, AgreesWithTheAlmanac)
{
    EXPECT_EQ(JulianOfCivil({1987, 1, 27, 0, 0, 0}), 2446822.5);
    EXPECT_EQ(JulianOfCivil({1987, 6, 19, 12, 0, 0}), 2446966.0);
    EXPECT_EQ(JulianOfCivil({1988, 1, 27, 0, 0, 0}), 2447187.5);
    EXPECT_EQ(JulianOfCivil({1900, 1, 1, 0, 0, 0}), 2415020.5);
    EXPECT_EQ(JulianOfCivil({1600, 1, 1, 0, 0, 0}), 2305447.5);
    EXPECT_EQ(JulianOfCivil({1600, 12, 31, 0, 0, 0}), 2305812.5);
    EXPECT_EQ(JulianOfCivil({333, 1, 27, 12, 0, 0}), 1842713.0);
    EXPECT_EQ(JulianOfCivil({-123, 12, 31, 0, 0, 0}), 1676496.5);
    EXPECT_EQ(JulianOfCivil({-1000, 7, 12, 12, 0, 0}), 1356001.0);
    EXPECT_EQ(JulianOfCivil({-4712, 1, 1, 12, 0, 0}), 0.0);
}

TEST(JulianOfCivil, ChangesCalendarInSeptember1582)
{
    EXPECT_EQ(JulianOfCivil({1582, 9, 4, 0, 0, 0}), 2299129.5);
    EXPECT_EQ(JulianOfCivil({1582, 9, 5, 0, 0, 0}), 2299120.5);
    EXPECT_EQ(JulianOfCivil({1582, 10, 15, 0, 0, 0}), 2299160.5);
    EXPECT_EQ(JulianOfCivil({1581, 12, 31, 0, 0, 0}), 2298882.5);
}

TEST(JulianOfCivil, CutsTowardZero)
{
    EXPECT_EQ(JulianOfCivil({-4720, 1, 1, 12, 0, 0}), -2921.0);
}

TEST(JulianOfCivil, OfTheFallbackFieldsIsTheAgreedDay)
{
    EXPECT_EQ(static_cast<float>(JulianOfCivil({0, 0, 0, -1, -1, -1})), 1721025.5f);
}

TEST(JulianOfCivil, TakesTheEndsOfItsArguments)
{
    EXPECT_TRUE(std::isfinite(JulianOfCivil({INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX, INT_MAX})));
    EXPECT_TRUE(std::isfinite(JulianOfCivil({INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN, INT_MIN})));
}

TEST(DateOfJulian, GivesTheStandardEpoch)
{
    EXPECT_EQ(DateOfJulian(2451545.0), (CivilTime{2000, 1, 1}));
    EXPECT_EQ(ClockOfJulian(2451545.0), (CivilTime{0, 0, 0, 12, 0, 0}));
    EXPECT_EQ(CivilOfJulian(2451545.0), (CivilTime{2000, 1, 1, 12, 0, 0}));
}

// The inverse examples of the same chapter.
TEST(DateOfJulian, AgreesWithTheAlmanac)
{
    EXPECT_EQ(DateOfJulian(2436116.31), (CivilTime{1957, 10, 4}));
    EXPECT_EQ(DateOfJulian(1842713.0), (CivilTime{333, 1, 27}));
    EXPECT_EQ(DateOfJulian(1507900.13), (CivilTime{-584, 5, 28}));
    EXPECT_EQ(DateOfJulian(0.0), (CivilTime{-4712, 1, 1}));
}

TEST(DateOfJulian, ChangesCalendarInOctober1582)
{
    EXPECT_EQ(DateOfJulian(2299160.5), (CivilTime{1582, 10, 15}));
    EXPECT_EQ(DateOfJulian(2299159.5), (CivilTime{1582, 10, 4}));
}

TEST(DateOfJulian, TakesWholeDaysDownBeforeTheFirst)
{
    EXPECT_EQ(DateOfJulian(-0.6), (CivilTime{-4713, 12, 31}));
    EXPECT_EQ(ClockOfJulian(-0.75), (CivilTime{0, 0, 0, 18, 0, 0}));
}

TEST(CivilOfJulian, IsAllZeroForWhatIsNoDay)
{
    for (const double julian : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                                -std::numeric_limits<double>::infinity(), 1.0000001e8, -1.0000001e8, 1e300})
        EXPECT_EQ(CivilOfJulian(julian), CivilTime{}) << julian;
    EXPECT_NE(CivilOfJulian(1e8), CivilTime{});
    EXPECT_NE(CivilOfJulian(-1e8), CivilTime{});
}

TEST(CivilOfJulian, InvertsEveryDayOfSixCenturies)
{
    using namespace std::chrono;
    for (sys_days day = sys_days{year{1583} / 1 / 1}; day <= sys_days{year{2200} / 12 / 31}; day += days{1})
    {
        const year_month_day date{day};
        const CivilTime civil{static_cast<int>(date.year()), static_cast<int>(unsigned{date.month()}),
                              static_cast<int>(unsigned{date.day()})};
        const double julian = kEpochDay + static_cast<double>(day.time_since_epoch().count());
        ASSERT_EQ(JulianOfCivil(civil), julian);
        ASSERT_EQ(CivilOfJulian(julian), civil) << julian;
    }
}

TEST(CivilOfJulian, CutsToWholeSeconds)
{
    // Quarters of a day are exact, as single precision holds them.
    EXPECT_EQ(ClockOfJulian(2460369.75), (CivilTime{0, 0, 0, 6, 0, 0}));
    EXPECT_EQ(ClockOfJulian(2460370.25), (CivilTime{0, 0, 0, 18, 0, 0}));
    EXPECT_EQ(ClockOfJulian(2460369.5 + 1.999 / 86400), (CivilTime{0, 0, 0, 0, 0, 1}));
    EXPECT_EQ(ClockOfJulian(2460370.5 - 0.5 / 86400), (CivilTime{0, 0, 0, 23, 59, 59}));
}
