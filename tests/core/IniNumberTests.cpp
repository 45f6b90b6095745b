#include "config/core/NumberText.h"

#include <gtest/gtest.h>

#include <climits>

using vorn::digitsOnly;
using vorn::leadingNumber;
using vorn::storedNumber;

TEST(IniNumber, IsThePlainDecimalValueAtTheStartOfTheText)
{
    EXPECT_EQ(leadingNumber("2"), 2);
    EXPECT_EQ(leadingNumber("-5"), -5);
    EXPECT_EQ(leadingNumber("+7"), 7);
    EXPECT_EQ(leadingNumber(" \t12 knots"), 12);
    EXPECT_EQ(leadingNumber("007"), 7);
    EXPECT_EQ(leadingNumber("3.9"), 3);
}

TEST(IniNumber, IsZeroWithoutDigits)
{
    EXPECT_EQ(leadingNumber(""), 0);
    EXPECT_EQ(leadingNumber("abc"), 0);
    EXPECT_EQ(leadingNumber("-"), 0);
    EXPECT_EQ(leadingNumber("--5"), 0);
    EXPECT_EQ(leadingNumber("- 5"), 0);
    EXPECT_EQ(leadingNumber("\"5\""), 0);
    EXPECT_EQ(leadingNumber("   "), 0);
}

TEST(IniNumber, StopsAtTheLimitsOfAnInt)
{
    EXPECT_EQ(leadingNumber("2147483647"), INT_MAX);
    EXPECT_EQ(leadingNumber("2147483648"), INT_MAX);
    EXPECT_EQ(leadingNumber("-2147483648"), INT_MIN);
    EXPECT_EQ(leadingNumber("-2147483649"), INT_MIN);
    EXPECT_EQ(leadingNumber("999999999999999999999999999999999999999"), INT_MAX);
    EXPECT_EQ(leadingNumber("-999999999999999999999999999999999999999"), INT_MIN);
}

TEST(IniStoredNumber, NeedsADigitAsFirstCharacter)
{
    EXPECT_EQ(storedNumber("12", 3), 12);
    EXPECT_EQ(storedNumber("12x", 3), 12);
    EXPECT_EQ(storedNumber("0", 3), 0);
    EXPECT_EQ(storedNumber("x12", 3), 3);
    EXPECT_EQ(storedNumber("-5", 3), 3);
    EXPECT_EQ(storedNumber("+5", 3), 3);
    EXPECT_EQ(storedNumber(" 5", 3), 3);
    EXPECT_EQ(storedNumber("", 3), 3);
}

TEST(IniStoredNumber, StopsAtTheLargestInt)
{
    EXPECT_EQ(storedNumber("4294967295", 3), INT_MAX);
    EXPECT_EQ(storedNumber("99999999999999999999999", 3), INT_MAX);
}

TEST(IniDigitsOnly, TakesDigitsUpToThirtyTwoBits)
{
    EXPECT_EQ(digitsOnly("0"), 0u);
    EXPECT_EQ(digitsOnly("00000000000000000000000018000"), 18000u);
    EXPECT_EQ(digitsOnly("4294967295"), 4294967295u);
    EXPECT_EQ(digitsOnly("4294967296"), std::nullopt);
    EXPECT_EQ(digitsOnly("999999999999999999999999999"), std::nullopt);
}

TEST(IniDigitsOnly, TakesAnEmptyTextAsZero)
{
    EXPECT_EQ(digitsOnly(""), 0u);
}

TEST(IniDigitsOnly, RefusesEveryOtherCharacter)
{
    for (const char* text : {"-5", "+5", " 5", "5 ", "5x", "1.5", "0x10", "1,000", "\xB2"})
    {
        EXPECT_EQ(digitsOnly(text), std::nullopt) << text;
    }
}
