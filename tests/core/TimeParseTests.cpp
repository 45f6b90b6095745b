#include "aviation/core/TimeParse.h"

#include "tests/support/RuleClock.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdint>

using namespace vorn;

namespace
{

// 2024-07-01 12:34:56 UTC is 08:34:56 in eastern daylight time (Python's calendar.timegm).
constexpr std::int32_t kBase = 1719837296;
constexpr std::int32_t kLocalMidnight = 1719806400; // 2024-07-01 04:00 UTC

std::int32_t Typed(const char* text)
{
    return TypedTimeOnDayOf(kBase, text, EasternClock());
}

constexpr std::int32_t OnBaseDay(int hour, int minute)
{
    return kLocalMidnight + hour * 3600 + minute * 60 + 56;
}

} // namespace

TEST(ParseHourMinute, ReadsThreeOrFourDigits)
{
    EXPECT_EQ(ParseHourMinute("745"), (HourMinute{7, 45}));
    EXPECT_EQ(ParseHourMinute("0745"), (HourMinute{7, 45}));
    EXPECT_EQ(ParseHourMinute("2359"), (HourMinute{23, 59}));
    EXPECT_EQ(ParseHourMinute("000"), (HourMinute{0, 0}));
}

TEST(ParseHourMinute, SkipsEveryOtherCharacter)
{
    EXPECT_EQ(ParseHourMinute("7:45"), (HourMinute{7, 45}));
    EXPECT_EQ(ParseHourMinute(" 1x2\xE9"
                              "3\xB2"
                              "4Z"),
              (HourMinute{12, 34}));
    EXPECT_EQ(ParseHourMinute("-7.4/5"), (HourMinute{7, 45}));
}

TEST(ParseHourMinute, UsesTheFirstFourDigits)
{
    EXPECT_EQ(ParseHourMinute("12345"), (HourMinute{12, 34}));
    EXPECT_EQ(ParseHourMinute("2359999999"), (HourMinute{23, 59}));
}

TEST(ParseHourMinute, RefusesOtherCountsAndRanges)
{
    for (const char* text : {"", "9", "99", "abc", "2400", "2460", "1260", "0960", "999", "161", "9999"})
    {
        EXPECT_EQ(ParseHourMinute(text), std::nullopt) << text;
    }
    EXPECT_EQ(ParseHourMinute("959"), (HourMinute{9, 59}));
    EXPECT_EQ(ParseHourMinute("960"), std::nullopt);
}

TEST(TypedTimeOnDayOf, KeepsTheLocalDayAndTheSecond)
{
    EXPECT_EQ(Typed("7:45"), OnBaseDay(7, 45));
    EXPECT_EQ(Typed("12345"), OnBaseDay(12, 34));
    EXPECT_EQ(Typed("0000"), OnBaseDay(0, 0));
    EXPECT_EQ(Typed("2359"), OnBaseDay(23, 59));
}

TEST(TypedTimeOnDayOf, LeavesTheBaseForUnusableText)
{
    for (const char* text : {"", "99", "2400", "1260", "abc"})
        EXPECT_EQ(Typed(text), kBase) << text;
}

TEST(TypedTimeOnDayOf, LeavesTheFirstOfTwoHoursOfTheAutumnNight)
{
    // 2024-11-03 05:30 UTC is 01:30 daylight time; made anew it would be 01:30 standard time, an hour later.
    constexpr std::int32_t firstHalfPastOne = 1730611800;
    EXPECT_EQ(TypedTimeOnDayOf(firstHalfPastOne, "", EasternClock()), firstHalfPastOne);
    EXPECT_EQ(TypedTimeOnDayOf(firstHalfPastOne, "0130", EasternClock()), firstHalfPastOne + 3600);
}

TEST(TypedTimeOnDayOf, LeavesABaseThatTheClockRefuses)
{
    EXPECT_EQ(TypedTimeOnDayOf(-1, "1200", EasternClock()), -1);
    EXPECT_EQ(TypedTimeOnDayOf(INT32_MIN, "1200", EasternClock()), INT32_MIN);
    // 1970-01-01 in India begins before the first moment.
    EXPECT_EQ(TypedTimeOnDayOf(0, "0000", RuleClock(-330)), 0);
}

TEST(TypedTimeOnDayOf, LeavesTheBaseWhenTheResultPassesThirtyTwoBits)
{
    // 2038-01-19 03:14:07 UTC is the last moment.
    EXPECT_EQ(TypedTimeOnDayOf(INT32_MAX, "0400", RuleClock(0)), INT32_MAX);
    EXPECT_EQ(TypedTimeOnDayOf(INT32_MAX, "0300", RuleClock(0)), INT32_MAX - 14 * 60);
}

TEST(ValidatedTime, PadsAndCutsToFourCharacters)
{
    EXPECT_EQ(ValidatedTime("5"), "0005");
    EXPECT_EQ(ValidatedTime(""), "0000");
    EXPECT_EQ(ValidatedTime("730"), "0730");
    EXPECT_EQ(ValidatedTime("12345"), "1234");
}

TEST(ValidatedTime, ClampsHoursAndMinutes)
{
    EXPECT_EQ(ValidatedTime("2400"), "0000");
    EXPECT_EQ(ValidatedTime("2460"), "2359");
    EXPECT_EQ(ValidatedTime("2430"), "2330");
    EXPECT_EQ(ValidatedTime("2401"), "2301");
    EXPECT_EQ(ValidatedTime("2560"), "2359");
    EXPECT_EQ(ValidatedTime("9999"), "2359");
    EXPECT_EQ(ValidatedTime("0060"), "0059");
    EXPECT_EQ(ValidatedTime("2359"), "2359");
}

TEST(ValidatedTime, KeepsCharactersThatAreNoDigits)
{
    EXPECT_EQ(ValidatedTime("7:45"), "7:45");
    EXPECT_EQ(ValidatedTime("abcd"), "abcd");
    EXPECT_EQ(ValidatedTime("24ab"), "0000");
    EXPECT_EQ(ValidatedTime("-5"), "00-5");
    EXPECT_EQ(ValidatedTime(" 2+9"), " 2+9");
    EXPECT_EQ(ValidatedTime("7:75"), "7:59");
}

TEST(WithinNextDay, MovesTheFutureBackByWholeDays)
{
    constexpr std::int64_t now = 1'700'000'000;
    constexpr std::int64_t day = 86400;
    EXPECT_EQ(WithinNextDay(now, now), now);
    EXPECT_EQ(WithinNextDay(now + 1, now), now + 1);
    EXPECT_EQ(WithinNextDay(now + day - 1, now), now + day - 1);
    EXPECT_EQ(WithinNextDay(now + day, now), now);
    EXPECT_EQ(WithinNextDay(now + 5 * day + 7, now), now + 7);
}

TEST(WithinNextDay, MovesThePastAheadByWholeDays)
{
    constexpr std::int64_t now = 1'700'000'000;
    constexpr std::int64_t day = 86400;
    EXPECT_EQ(WithinNextDay(now - 1, now), now + day - 1);
    EXPECT_EQ(WithinNextDay(now - day + 1, now), now + 1);
    EXPECT_EQ(WithinNextDay(now - day, now), now + day);
    EXPECT_EQ(WithinNextDay(now - 3 * day, now), now + day);
    EXPECT_EQ(WithinNextDay(now - 3 * day - 10, now), now + day - 10);
}

TEST(WithinNextDay, PassesThirtyTwoBits)
{
    constexpr std::int64_t now = 4'000'000'000;
    EXPECT_EQ(WithinNextDay(10, now), now + 86400 - (now - 10) % 86400);
    EXPECT_EQ(WithinNextDay(30'000'000'000, now), now + (30'000'000'000 - now) % 86400);
}

TEST(WithinNextDay, HoldsAtTheEndsOfTime)
{
    // 2^64 - 1 is 25,215 seconds past a whole number of days (Python: (2**64 - 1) % 86400).
    EXPECT_EQ(WithinNextDay(INT64_MIN, INT64_MAX - 200'000), INT64_MAX - 200'000 + 86400 - 84415);
    EXPECT_EQ(WithinNextDay(INT64_MIN, INT64_MAX), INT64_MAX);
    EXPECT_EQ(WithinNextDay(INT64_MAX, INT64_MIN), INT64_MIN + 25215);
}
