#include "aviation/core/Currency.h"

#include <gtest/gtest.h>

#include <cstdint>

using namespace vorn;

namespace
{

constexpr std::int64_t kExpiry = 1'700'000'000;
constexpr std::int64_t kDay = 86400;

struct Status
{
    bool expired;
    bool late;
};

Status At(std::int64_t now)
{
    return {IsExpiredAt(kExpiry, now), IsLateAt(kExpiry, now)};
}

} // namespace

TEST(Currency, ExpiresOneSecondAfterTheExpirySecond)
{
    EXPECT_FALSE(At(kExpiry - 1).expired);
    EXPECT_FALSE(At(kExpiry).expired);
    EXPECT_TRUE(At(kExpiry + 1).expired);
}

TEST(Currency, IsLateForLessThanSixDays)
{
    EXPECT_FALSE(At(kExpiry).late);
    EXPECT_TRUE(At(kExpiry + 1).late);
    EXPECT_TRUE(At(kExpiry + 6 * kDay - 1).late);
    EXPECT_FALSE(At(kExpiry + 6 * kDay).late);
    EXPECT_TRUE(At(kExpiry + 6 * kDay).expired);
}

TEST(Currency, HoldsAtTheEndsOfTime)
{
    EXPECT_FALSE(IsExpiredAt(INT64_MAX, INT64_MAX));
    EXPECT_TRUE(IsLateAt(INT64_MAX - 10, INT64_MAX - 1));
    EXPECT_FALSE(IsLateAt(INT64_MIN, INT64_MAX));
    EXPECT_GT(DaysUntil(INT64_MAX, INT64_MIN), 1e14);
}

TEST(Currency, CountsDaysWithTheirSign)
{
    EXPECT_EQ(DaysUntil(kExpiry, kExpiry - 5 * kDay / 2), 2.5);
    EXPECT_EQ(DaysUntil(kExpiry, kExpiry + 3 * kDay), -3.0);
    EXPECT_EQ(DaysUntil(kExpiry, kExpiry), 0.0);
}

TEST(Currency, ColoursAskForLateFirst)
{
    EXPECT_EQ(NavTextColor(false), 0U);
    EXPECT_EQ(NavTextColor(true), 255U);
    EXPECT_EQ(TerminalTextColor(false, false), 0U);
    EXPECT_EQ(TerminalTextColor(true, true), 2237106U);
    EXPECT_EQ(TerminalTextColor(true, true), 0x2222B2U);
    EXPECT_EQ(TerminalTextColor(false, true), 255U);
}

TEST(Currency, NavTextHasTwoBlanksAndTheSizeOfTheDays)
{
    EXPECT_EQ(NavExpiryText("09:01Z Thursday", 2.5, false), "09:01Z Thursday  (2.5 days)");
    EXPECT_EQ(NavExpiryText("X", -3.0, true), "X  (3.0 days ago)");
    EXPECT_EQ(NavExpiryText("X", -0.0, false), "X  (0.0 days)");
    EXPECT_EQ(NavExpiryText("", 100000.06, false), "  (100000.1 days)");
}

TEST(Currency, TerminalTextSaysLateForSixDaysAndThenLATE)
{
    EXPECT_EQ(TerminalExpiryText("X", -3.0, true, true), "X Late: 3.0 days");
    EXPECT_EQ(TerminalExpiryText("X", -10.0, false, true), "X LATE: 10.0 days");
    EXPECT_EQ(TerminalExpiryText("X", 2.5, false, false), "X (2.5 days)");
}

TEST(Currency, MomentsPrintInFull)
{
    std::tm epoch{};
    epoch.tm_year = 70;
    epoch.tm_mday = 1;
    epoch.tm_wday = 4;
    EXPECT_EQ(MomentText(epoch, kDayPicture), "Thursday January 01 1970");
    EXPECT_EQ(MomentText(epoch, kZuluMomentPicture), "00:00Z Thursday January 01 1970");
}

TEST(Currency, AMomentThatDoesNotFitIsEmpty)
{
    std::tm epoch{};
    epoch.tm_mday = 1;
    const std::string longPicture(127, 'x');
    EXPECT_EQ(MomentText(epoch, longPicture.c_str()), longPicture);
    EXPECT_EQ(MomentText(epoch, (longPicture + "x").c_str()), "");
    EXPECT_EQ(MomentText(epoch, ""), "");
}
