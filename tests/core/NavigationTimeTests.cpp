#include "aviation/core/NavigationTime.h"

#include "tests/support/RuleClock.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace vorn;

namespace
{

constexpr int kThisYear = 2024;
constexpr float kNoJulian = 1721025.5f;

ZoneFacts Eastern(ZoneState state)
{
    return {300, -60, state, {0, 11, 1, 2}, {0, 3, 2, 2}};
}

ZoneFacts Southern(ZoneState state)
{
    return {-600, -60, state, {0, 4, 1, 3}, {0, 10, 1, 2}};
}

/// A zone without daylight time still has the usual daylight bias in its record.
ZoneFacts WithoutDaylight(int bias)
{
    return {bias, -60, ZoneState::Unknown, {}, {}};
}

// Seconds of Universal Time, from Python's calendar.timegm.
constexpr std::int64_t kWinter2024 = 1705320000; // 2024-01-15 12:00
constexpr std::int64_t kSummer2024 = 1719835200; // 2024-07-01 12:00
constexpr std::int64_t kSummer2023 = 1688212800; // 2023-07-01 12:00
constexpr std::int64_t kEasternStart2024 =
    1710050400; // 2024-03-10 06:00: 02:00 does not exist that day, the runtime takes 01:00
constexpr std::int64_t kEasternEnd2024 = 1730617200; // 2024-11-03 07:00: 02:00 standard time

} // namespace

TEST(TransitionMoment, IsTheRuntimesReadingOfTheLocalHour)
{
    const RuleClock clock = EasternClock();
    EXPECT_EQ(TransitionMoment(Eastern(ZoneState::Standard).daylight, kThisYear, clock), kEasternStart2024);
    EXPECT_EQ(TransitionMoment(Eastern(ZoneState::Standard).standard, kThisYear, clock), kEasternEnd2024);
}

TEST(TransitionMoment, IsZeroWhenTheClockRefuses)
{
    EXPECT_EQ(TransitionMoment({1601, 1, 1, 0}, kThisYear, EasternClock()), 0);
}

TEST(IsDaylightAt, IncludesBothEndsOfANorthernSeason)
{
    const RuleClock clock = EasternClock();
    const ZoneFacts zone = Eastern(ZoneState::Standard);
    EXPECT_FALSE(IsDaylightAt(kEasternStart2024 - 1, zone, kThisYear, clock));
    EXPECT_TRUE(IsDaylightAt(kEasternStart2024, zone, kThisYear, clock));
    EXPECT_TRUE(IsDaylightAt(kSummer2024, zone, kThisYear, clock));
    EXPECT_TRUE(IsDaylightAt(kEasternEnd2024, zone, kThisYear, clock));
    EXPECT_FALSE(IsDaylightAt(kEasternEnd2024 + 1, zone, kThisYear, clock));
    EXPECT_FALSE(IsDaylightAt(kWinter2024, zone, kThisYear, clock));
}

TEST(IsDaylightAt, KnowsThisYearsSeasonOnly)
{
    EXPECT_FALSE(IsDaylightAt(kSummer2023, Eastern(ZoneState::Daylight), kThisYear, EasternClock()));
    // In the south every moment of a past year lies before this year's end.
    EXPECT_TRUE(IsDaylightAt(kSummer2023, Southern(ZoneState::Standard), kThisYear, SouthernClock()));
}

TEST(IsDaylightAt, SpansTheNewYearInTheSouth)
{
    const RuleClock clock = SouthernClock();
    const ZoneFacts zone = Southern(ZoneState::Daylight);
    EXPECT_TRUE(IsDaylightAt(kWinter2024, zone, kThisYear, clock));
    EXPECT_FALSE(IsDaylightAt(kSummer2024, zone, kThisYear, clock));
    EXPECT_TRUE(IsDaylightAt(kSummer2024 + 180 * 86400, zone, kThisYear, clock));
    const std::int64_t end = TransitionMoment(zone.standard, kThisYear, clock);
    EXPECT_TRUE(IsDaylightAt(end - 1, zone, kThisYear, clock));
    EXPECT_FALSE(IsDaylightAt(end, zone, kThisYear, clock));
}

TEST(IsDaylightAt, IsFalseWhenTheStateIsUnknown)
{
    EXPECT_FALSE(IsDaylightAt(kSummer2024, Eastern(ZoneState::Unknown), kThisYear, EasternClock()));
}

TEST(JulianOfMoment, IsUniversalTimeInQuartersOfADay)
{
    // Noon UTC of 2024-01-15 is 2460325.0, of 2024-07-01 2460493.0 (Python: toordinal + 1721424.5 + 0.5).
    EXPECT_EQ(JulianOfMoment(kWinter2024, Eastern(ZoneState::Standard), EasternClock()), 2460325.0f);
    EXPECT_EQ(JulianOfMoment(kSummer2024, Eastern(ZoneState::Daylight), EasternClock()), 2460493.0f);
    EXPECT_EQ(JulianOfMoment(kWinter2024, WithoutDaylight(0), RuleClock(0)), 2460325.0f);
    EXPECT_EQ(JulianOfMoment(kWinter2024, WithoutDaylight(-330), RuleClock(-330)), 2460325.0f);
}

TEST(JulianOfMoment, AnHourOffInTheOtherSeason)
{
    // 05:30 UTC of a summer day in winter: 5 h are added by today's state, 4 h taken off by the season of the date, so
    // 06:30. A quarter of a day rounds 05:30 up to 06:00 either way; near an eighth of a day the hour shows.
    const std::int64_t midnight = kSummer2024 - 12 * 3600;
    const std::int64_t half = midnight + 2 * 3600 + 1800; // 02:30 rounds to 00:00, 03:30 to 06:00
    EXPECT_EQ(JulianOfMoment(half, Eastern(ZoneState::Daylight), EasternClock()), 2460492.5f);
    EXPECT_EQ(JulianOfMoment(half, Eastern(ZoneState::Standard), EasternClock()), 2460492.75f);
}

TEST(JulianOfMoment, FallsBackWhenTheClockRefuses)
{
    const RuleClock clock = EasternClock();
    for (const std::int64_t t :
         {std::int64_t{-20000}, RuleClock::kLastMoment + 1, std::int64_t{INT64_MAX}, std::int64_t{INT64_MIN}})
        EXPECT_EQ(JulianOfMoment(t, Eastern(ZoneState::Standard), clock), kNoJulian) << t;
}

TEST(MomentOfJulian, TakesTheBiasOffAgain)
{
    EXPECT_EQ(MomentOfJulian(2460325.0f, Eastern(ZoneState::Standard), kThisYear, EasternClock()), kWinter2024);
    EXPECT_EQ(MomentOfJulian(2460493.0f, Eastern(ZoneState::Standard), kThisYear, EasternClock()), kSummer2024);
    EXPECT_EQ(MomentOfJulian(2460325.0f, Southern(ZoneState::Daylight), kThisYear, SouthernClock()), kWinter2024);
    EXPECT_EQ(MomentOfJulian(2460325.0f, WithoutDaylight(-330), kThisYear, RuleClock(-330)), kWinter2024);
    EXPECT_EQ(MomentOfJulian(2460325.0f, WithoutDaylight(0), kThisYear, RuleClock(0)), kWinter2024);
}

TEST(MomentOfJulian, AsksForTheSeasonOfTheUnshiftedTime)
{
    // 2460492.5 is 2024-07-01 00:00 UTC, read as local midnight: 04:00 UTC. The season is asked of that, then 4 h go
    // off again.
    EXPECT_EQ(MomentOfJulian(2460492.5f, Eastern(ZoneState::Daylight), kThisYear, EasternClock()),
              kSummer2024 - 12 * 3600);
    // 2024-03-10 06:00 UTC and 2024-11-03 06:00 UTC, read as local: four hours after the one change and four after the
    // other. Before the shift they stand on the far side of it, behind it they would not.
    EXPECT_EQ(MomentOfJulian(2460379.75f, Eastern(ZoneState::Daylight), kThisYear, EasternClock()), 1710050400);
    EXPECT_EQ(MomentOfJulian(2460617.75f, Eastern(ZoneState::Daylight), kThisYear, EasternClock()), 1730613600);
    // The summer of another year: the runtime knows daylight time, the season of this year does not hold, an hour is
    // lost.
    EXPECT_EQ(MomentOfJulian(2460127.0f, Eastern(ZoneState::Daylight), kThisYear, EasternClock()), kSummer2023 - 3600);
}

TEST(MomentOfJulian, IsZeroForWhatIsNoMoment)
{
    const ZoneFacts zone = Eastern(ZoneState::Standard);
    const float infinity = std::numeric_limits<float>::infinity();
    for (const float julian :
         {std::numeric_limits<float>::quiet_NaN(), infinity, -infinity, 0.0f, -1.0f, 1e30f, 2440586.0f, 2817200.0f})
        EXPECT_EQ(MomentOfJulian(julian, zone, kThisYear, EasternClock()), 0) << julian;
}
