#include "frame/core/Trim.h"

#include <gtest/gtest.h>

using namespace vorn;

TEST(Trim, RemovesTheSixWhiteSpaceCharactersAtBothEnds)
{
    EXPECT_EQ(TrimBoth(" \t\n\v\f\rabc d\r\f\v\n\t "), "abc d");
    EXPECT_EQ(TrimBoth("abc"), "abc");
}

TEST(Trim, OfWhiteSpaceAloneOrNothingIsEmpty)
{
    EXPECT_EQ(TrimBoth(" \t \r\n"), "");
    EXPECT_EQ(TrimBoth(""), "");
    EXPECT_EQ(TrimBoth({}), "");
}

TEST(Trim, KeepsNoBreakBlankAndZeroBytes)
{
    EXPECT_EQ(TrimBoth("\xA0 abc \xA0"), "\xA0 abc \xA0");
    EXPECT_EQ(TrimBoth(std::string_view(" \0a\0 ", 5)), std::string_view("\0a\0", 3));
}

TEST(Trim, OnlySixBytesOfAllAreWhiteSpace)
{
    int count = 0;
    for (int i = 0; i < 256; ++i)
        count += IsSpace(static_cast<char>(i)) ? 1 : 0;
    EXPECT_EQ(count, 6);
}

TEST(FirstWord, IsWhatStandsBeforeTheFirstBlank)
{
    EXPECT_EQ(FirstWord("  alpha bravo  "), "alpha");
    EXPECT_EQ(FirstWord("alpha"), "alpha");
    EXPECT_EQ(FirstWord(" alpha "), "alpha");
    EXPECT_EQ(FirstWord("   "), "");
    EXPECT_EQ(FirstWord(""), "");
}

TEST(FirstWord, ATabInsideDoesNotEndIt)
{
    EXPECT_EQ(FirstWord("\talpha\tbravo charlie\t"), "alpha\tbravo");
}
