#include "aviation/core/Position.h"

#include "aviation/core/Rounding.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <cstdio>
#include <limits>
#include <vector>

using namespace vorn;

namespace
{

/// The byte 176 as it stands in code page 1252.
#define DEG "\xB0"

std::string Minutes(double degrees, Axis axis = Axis::Latitude, int decimals = 1)
{
    return PositionText(degrees, axis, {false, decimals}).Text();
}

std::string Seconds(double degrees, Axis axis = Axis::Latitude, int decimals = 1)
{
    return PositionText(degrees, axis, {true, decimals}).Text();
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat"
/// The same text by the printf formats that fix the form, step by step: the oracle for the quick way.
std::string Printed(double v, bool seconds, int n)
{
    const char letter = v >= 0 ? 'N' : 'S';
    const double a = std::fabs(v);
    int d = static_cast<int>(std::trunc(a));
    double mf = (a - d) * 60.0;
    int m = static_cast<int>(std::trunc(mf));
    double sf = (mf - m) * 60.0;
    const double p = std::pow(10.0, n);
    double& last = seconds ? sf : mf;
    last = std::trunc(last * p + 0.5) / p;
    if (last == 60.0)
    {
        last = 0;
        if (seconds)
            ++m;
        else
            ++d;
    }
    if (seconds && m == 60)
    {
        ++d;
        m = 0;
    }
    char text[512];
    if (seconds)
        std::snprintf(text, sizeof text, "%c%03.2d%c %2.2d' %0*.*f", letter, d, 176, m, n + 3, n, sf);
    else
        std::snprintf(text, sizeof text, "%c%03.2d%c %0*.*f'", letter, d, 176, n + 3, n, mf);
    return text;
}
#pragma GCC diagnostic pop

} // namespace

TEST(PositionText, PadsTheDegreesWithABlank)
{
    EXPECT_EQ(Minutes(47.5), "N 47" DEG " 30.0'");
    EXPECT_EQ(Minutes(-5.0, Axis::Longitude), "W 05" DEG " 00.0'");
    EXPECT_EQ(Minutes(-122.25, Axis::Longitude), "W122" DEG " 15.0'");
    EXPECT_EQ(Minutes(0.0), "N 00" DEG " 00.0'");
    EXPECT_EQ(Seconds(47.5), "N 47" DEG " 30' 00.0");
    EXPECT_EQ(Seconds(7.5, Axis::Longitude), "E 07" DEG " 30' 00.0");
}

TEST(PositionText, TakesTheLetterFromTheRawValue)
{
    EXPECT_EQ(Minutes(-0.0), "N 00" DEG " 00.0'");
    EXPECT_EQ(Minutes(-0.0, Axis::Longitude), "E 00" DEG " 00.0'");
    EXPECT_EQ(Minutes(-0.0000001), "S 00" DEG " 00.0'");
    EXPECT_EQ(Minutes(-0.0000001, Axis::Longitude), "W 00" DEG " 00.0'");
}

TEST(PositionText, CarriesIntoDegreesAtSixtyMinutes)
{
    EXPECT_EQ(Minutes(46.9999998333), "N 47" DEG " 00.0'"); // 59.99999 minutes
    EXPECT_EQ(Minutes(9.99999), "N 10" DEG " 00.0'");
    EXPECT_EQ(Minutes(99.99999, Axis::Longitude), "E100" DEG " 00.0'");
    EXPECT_EQ(Minutes(46.999, Axis::Latitude, 1), "N 46" DEG " 59.9'"); // 59.94 minutes stay
}

TEST(PositionText, CarriesSecondsIntoMinutesAndOnIntoDegrees)
{
    EXPECT_EQ(Seconds(10.0 + 59.96 / 3600), "N 10" DEG " 01' 00.0");
    EXPECT_EQ(Seconds(10.0 + 59.94 / 3600), "N 10" DEG " 00' 59.9");
    EXPECT_EQ(Seconds(10.0 + 59.0 / 60 + 59.96 / 3600), "N 11" DEG " 00' 00.0");
    EXPECT_EQ(Seconds(-(10.0 + 59.0 / 60 + 59.94 / 3600)), "S 10" DEG " 59' 59.9");
}

TEST(PositionText, WithoutDecimalsTheLastFieldHasThreeDigits)
{
    EXPECT_EQ(Minutes(47.5, Axis::Latitude, 0), "N 47" DEG " 030'");
    EXPECT_EQ(Seconds(47.0 + 7.0 / 3600, Axis::Latitude, 0), "N 47" DEG " 00' 007");
    EXPECT_EQ(Minutes(47.99999, Axis::Latitude, 0), "N 48" DEG " 000'");
}

TEST(PositionText, WithDecimalsTheLastFieldHasTwoWholeDigits)
{
    EXPECT_EQ(Minutes(47.125, Axis::Latitude, 3), "N 47" DEG " 07.500'");
    EXPECT_EQ(Minutes(47.125, Axis::Latitude, 7), "N 47" DEG " 07.5000000'");
    EXPECT_EQ(Minutes(47.125, Axis::Latitude, 8), "N 47" DEG " 07.50000000'");
    EXPECT_EQ(Seconds(47.125, Axis::Latitude, 12), "N 47" DEG " 07' 30.000000000000");
}

TEST(PositionText, DoesNotWrap)
{
    EXPECT_EQ(Minutes(179.99999999, Axis::Longitude), "E180" DEG " 00.0'");
    EXPECT_EQ(Minutes(1000.0, Axis::Longitude), "E1000" DEG " 00.0'");
    EXPECT_EQ(Minutes(-400.5), "S400" DEG " 30.0'");
    EXPECT_EQ(Minutes(2147483647.5), "N2147483647" DEG " 30.0'");
    EXPECT_EQ(Minutes(2147483647.9999995), "N2147483648" DEG " 00.0'");
}

TEST(PositionText, IsEmptyForWhatDoesNotFit)
{
    for (const double v : {2147483648.0, -2147483648.0, 1e300, std::numeric_limits<double>::infinity(),
                           -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()})
    {
        EXPECT_EQ(Minutes(v), "") << v;
        EXPECT_EQ(Seconds(v), "") << v;
        EXPECT_EQ(Minutes(v, Axis::Latitude, 20), "") << v;
    }
}

TEST(PositionText, NegativeDecimalsRoundToTensAndPrintSix)
{
    EXPECT_EQ(Minutes(47.5, Axis::Latitude, -1), "N 47" DEG " 30.000000'");
    EXPECT_EQ(Minutes(47.4, Axis::Latitude, -1), "N 47" DEG " 20.000000'");
    // A width of -2 stands left in two places; the text is longer anyway.
    EXPECT_EQ(Seconds(47.5, Axis::Latitude, -5), "N 47" DEG " 30' 0.000000");
    // A width of -17 leaves blanks behind.
    EXPECT_EQ(Seconds(47.5, Axis::Latitude, -20), "N 47" DEG " 30' 0.000000         ");
}

TEST(PositionText, ManyDecimalsMakeALongText)
{
    const std::string text = Minutes(47.5, Axis::Latitude, 400);
    EXPECT_EQ(text, "N 47" DEG " 30." + std::string(400, '0') + "'");
    EXPECT_EQ(Minutes(47.5, Axis::Latitude, INT_MAX), "");
    EXPECT_EQ(Minutes(47.5, Axis::Latitude, INT_MIN), "");
}

TEST(PositionText, HasTheBytesThatPrintfWouldGive)
{
    std::uint64_t state = 88172645463325252U;
    const auto next = [&state]
    {
        state ^= state << 13;
        state ^= state >> 7;
        state ^= state << 17;
        return static_cast<double>(state >> 11) / 9007199254740992.0;
    };
    for (int i = 0; i < 40'000; ++i)
    {
        const double v = next() * 360.0 - 180.0;
        for (const int n : {0, 1, 2, 3, 5, 7, 8, 10})
        {
            ASSERT_EQ(Minutes(v, Axis::Latitude, n), Printed(v, false, n)) << v << ' ' << n;
            ASSERT_EQ(Seconds(v, Axis::Latitude, n), Printed(v, true, n)) << v << ' ' << n;
        }
    }
}

TEST(PositionText, HasTheBytesOfPrintfAroundEveryCarry)
{
    for (int minute = 0; minute <= 60; ++minute)
    {
        for (int step = -30; step <= 30; ++step)
        {
            const double v = 12.0 + minute / 60.0 + step * 0.005 / 3600.0;
            for (int n = 0; n <= 4; ++n)
            {
                ASSERT_EQ(Minutes(v, Axis::Latitude, n), Printed(v, false, n)) << minute << ' ' << step << ' ' << n;
                ASSERT_EQ(Seconds(v, Axis::Latitude, n), Printed(v, true, n)) << minute << ' ' << step << ' ' << n;
            }
        }
    }
}
