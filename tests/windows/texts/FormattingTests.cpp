#include "aviation/ConversionBoy.h"
#include "aviation/Formatting.h"
#include "tests/windows/texts/HostSettings.h"

#include <cmath>
#include <limits>

using namespace vorn::test;

#define DEG "\xB0"

namespace
{

class PositionTexts : public HostSettings
{
protected:
    static void Show(int seconds)
    {
        Set("General", "Show seconds", seconds);
    }
};

class AltitudeTexts : public HostSettings
{
};

constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

} // namespace

TEST_F(PositionTexts, ComeInMinutesWithOneDecimalByDefault)
{
    EXPECT_EQ(LatToString(47.5), "N 47" DEG " 30.0'");
    EXPECT_EQ(LonToString(-122.25), "W122" DEG " 15.0'");
    EXPECT_EQ(LatLonToString(-5.0, false), "W 05" DEG " 00.0'");
    EXPECT_EQ(LatLonToString(-5.0, true), "S 05" DEG " 00.0'");
}

TEST_F(PositionTexts, ShowSecondsForAnyValueButZero)
{
    for (const int value : {1, 2, -1})
    {
        Show(value);
        EXPECT_EQ(LatToString(47.5), "N 47" DEG " 30' 00.0") << value;
    }
    Show(0);
    EXPECT_EQ(LatToString(47.5), "N 47" DEG " 30.0'");
}

TEST_F(PositionTexts, EachFormHasItsOwnPrecision)
{
    Set("General", "LatLonPrecSeconds", 3);
    Set("General", "LatLonPrecMinutes", 0);
    EXPECT_EQ(LatToString(47.5), "N 47" DEG " 030'");
    Show(1);
    EXPECT_EQ(LatToString(47.5), "N 47" DEG " 30' 00.000");
}

TEST_F(PositionTexts, AreEmptyForWhatIsNoPosition)
{
    EXPECT_EQ(LatToString(kNone), "");
    EXPECT_EQ(LonToString(1e300), "");
}

TEST_F(PositionTexts, ComeInAFormOfTheCallersWhateverIsStored)
{
    Set("General", "LatLonPrecMinutes", 4);
    EXPECT_EQ(LatLonToString(47.5, true, false, 1), "N 47" DEG " 30.0'");
    EXPECT_EQ(LatLonToString(-122.2525, false, true, 0), "W122" DEG " 15' 009");
    EXPECT_EQ(LatLonToString(59.9999999, true, false, 3), "N 60" DEG " 00.000'");
}

TEST_F(PositionTexts, SurviveAbsurdPrecisions)
{
    for (const int decimals : {-1, -3, -100, 20, 500, 2147483647})
    {
        Set("General", "LatLonPrecMinutes", decimals);
        LatToString(47.5);
    }
    Set("General", "LatLonPrecMinutes", 20);
    EXPECT_EQ(LatToString(47.5), "N 47" DEG " 30.00000000000000000000'");
}

TEST(PositionTextsWithoutHost, TakeTheDefaults)
{
    ASSERT_EQ(VornCommonApp::Inst(), nullptr);
    EXPECT_EQ(LatToString(47.5), "N 47" DEG " 30.0'");
    EXPECT_EQ(AltToString(100), "");
}

TEST(CourseTexts, HaveThreePlaces)
{
    EXPECT_EQ(CourseToString(7.0, false), "007");
    EXPECT_EQ(CourseToString(359.6, false), "360");
    EXPECT_EQ(CourseToString(-12.0, true), "W 012");
    EXPECT_EQ(CourseToString(12.0, true), "E 012");
    EXPECT_EQ(CourseToString(kNone, true), "");
}

TEST_F(AltitudeTexts, NameSpecialCodes)
{
    constexpr const char* words[] = {"Unknown", "Unlimited", "MSL", "Ground", "By NOTAM", "Not Established"};
    for (int i = 0; i < 6; ++i)
    {
        EXPECT_EQ(AltToString(-5000 + i), words[i]);
        EXPECT_EQ(FLAltToString(-5000 + i), words[i]);
    }
}

TEST_F(AltitudeTexts, ComeInTheUsersShortDistanceUnit)
{
    EXPECT_EQ(AltToString(1500), "1500 FT");
    EXPECT_EQ(AltToString(-200), "-200 FT");
    Set("Units", "ShortDist", UNIT_M);
    GetConversionBoy()->ReadUnits();
    EXPECT_EQ(AltToString(1000), "305 M"); // 304.8
}

TEST_F(AltitudeTexts, AreFlightLevelsFromTheTransitionOn)
{
    EXPECT_EQ(FLAltToString(18000), "FL180");
    EXPECT_EQ(FLAltToString(17999), "17999 FT");
    EXPECT_EQ(FLAltToString(18050), "18050 FT");
    Set("Altitude", "Flight Level", 5000);
    EXPECT_EQ(FLAltToString(5000), "FL050");
    EXPECT_EQ(FLAltToString(4900), "4900 FT");
}

TEST(AirspaceTexts, NameTheType)
{
    EXPECT_EQ(TASTypeToString(0), "Unknown");
    EXPECT_EQ(TASTypeToString(30), "Traffic Information Area");
    EXPECT_EQ(TASTypeToString(31), "UnSpecified");
    EXPECT_EQ(TASTypeToString(-1), "UnSpecified");
}

TEST(DurationTexts, AreHoursAndMinutes)
{
    EXPECT_EQ(TimeToString(1.5, false, false), "01:30");
    EXPECT_EQ(TimeToString(1.0, true, false), "1 Hour 0 Minutes");
    EXPECT_EQ(TimeToString(0.999, false, false), "01:00");
    EXPECT_EQ(TimeToString(1.5, false, true), "01:30:00");
    EXPECT_EQ(TimeToString(kNone, false, false), "");
}

TEST(Rounding, RoundsInPlace)
{
    double value = -1.26;
    RoundTo(value, 1);
    EXPECT_EQ(value, -1.2);
    value = 59.96;
    RoundTo(value, 1);
    EXPECT_EQ(value, 60.0);
    value = 1.5;
    RoundTo(value, 400);
    EXPECT_EQ(value, 1.5);
}
