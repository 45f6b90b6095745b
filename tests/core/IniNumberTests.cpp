#include "config/core/NumberText.h"

#include <gtest/gtest.h>

#include <climits>

using vorn::DigitsOnly;
using vorn::LeadingNumber;
using vorn::StoredNumber;

TEST(IniNumber, IsThePlainDecimalValueAtTheStartOfTheText)
{
    EXPECT_EQ(LeadingNumber("2"), 2);
    EXPECT_EQ(LeadingNumber("-5"), -5);
    EXPECT_EQ(LeadingNumber("+7"), 7);
    EXPECT_EQ(LeadingNumber(" \t12 knots"), 12);
    EXPECT_EQ(LeadingNumber("007"), 7);
    EXPECT_EQ(LeadingNumber("3.9"), 3);
}

TEST(IniNumber, IsZeroWithoutDigits)
{
    EXPECT_EQ(LeadingNumber(""), 0);
    EXPECT_EQ(LeadingNumber("abc"), 0);
    EXPECT_EQ(LeadingNumber("-"), 0);
    EXPECT_EQ(LeadingNumber("--5"), 0);
    EXPECT_EQ(LeadingNumber("- 5"), 0);
    EXPECT_EQ(LeadingNumber("\"5\""), 0);
    EXPECT_EQ(LeadingNumber("   "), 0);
}

TEST(IniNumber, StopsAtTheLimitsOfAnInt)
{
    EXPECT_EQ(LeadingNumber("2147483647"), INT_MAX);
    EXPECT_EQ(LeadingNumber("2147483648"), INT_MAX);
    EXPECT_EQ(LeadingNumber("-2147483648"), INT_MIN);
    EXPECT_EQ(LeadingNumber("-2147483649"), INT_MIN);
    EXPECT_EQ(LeadingNumber("999999999999999999999999999999999999999"), INT_MAX);
    EXPECT_EQ(LeadingNumber("-999999999999999999999999999999999999999"), INT_MIN);
}

TEST(IniStoredNumber, NeedsADigitAsFirstCharacter)
{
    EXPECT_EQ(StoredNumber("12", 3), 12);
    EXPECT_EQ(StoredNumber("12x", 3), 12);
    EXPECT_EQ(StoredNumber("0", 3), 0);
    EXPECT_EQ(StoredNumber("x12", 3), 3);
    EXPECT_EQ(StoredNumber("-5", 3), 3);
    EXPECT_EQ(StoredNumber("+5", 3), 3);
    EXPECT_EQ(StoredNumber(" 5", 3), 3);
    EXPECT_EQ(StoredNumber("", 3), 3);
}

TEST(IniStoredNumber, StopsAtTheLargestInt)
{
    EXPECT_EQ(StoredNumber("4294967295", 3), INT_MAX);
    EXPECT_EQ(StoredNumber("99999999999999999999999", 3), INT_MAX);
}

TEST(IniDigitsOnly, TakesDigitsUpToThirtyTwoBits)
{
    EXPECT_EQ(DigitsOnly("0"), 0u);
    EXPECT_EQ(DigitsOnly("00000000000000000000000018000"), 18000u);
    EXPECT_EQ(DigitsOnly("4294967295"), 4294967295u);
    EXPECT_EQ(DigitsOnly("4294967296"), std::nullopt);
    EXPECT_EQ(DigitsOnly("999999999999999999999999999"), std::nullopt);
}

TEST(IniDigitsOnly, TakesAnEmptyTextAsZero)
{
    EXPECT_EQ(DigitsOnly(""), 0u);
}

TEST(IniDigitsOnly, RefusesEveryOtherCharacter)
{
    for (const char* text : {"-5", "+5", " 5", "5 ", "5x", "1.5", "0x10", "1,000", "\xB2"})
    {
        EXPECT_EQ(DigitsOnly(text), std::nullopt) << text;
    }
}
