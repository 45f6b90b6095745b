#include "family/TarnUtil/core/FixCase.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

std::string Fixed(std::string text)
{
    FixCase(text.data());
    return text;
}

} // namespace

TEST(FixCase, CapitalisesEveryWordAndLowersTheRest)
{
    EXPECT_EQ(Fixed("SAN FRANCISCO INTL"), "San Francisco Intl");
    EXPECT_EQ(Fixed("san francisco"), "San Francisco");
}

TEST(FixCase, ApostrophesAndDigitsContinueAWord)
{
    EXPECT_EQ(Fixed("O'HARE"), "O'hare");
    EXPECT_EQ(Fixed("RWY 12L AND 4TH"), "Rwy 12l And 4th");
    EXPECT_EQ(Fixed("'QUOTED'"), "'quoted'");
}

TEST(FixCase, AnyOtherCharacterStartsAWord)
{
    EXPECT_EQ(Fixed("winston-salem/smith_reynolds.(main)"), "Winston-Salem/Smith_Reynolds.(Main)");
    EXPECT_EQ(Fixed("a\tb\nc"), "A\tB\nC");
}

TEST(FixCase, BytesAbove127StayAndSeparate)
{
    EXPECT_EQ(Fixed("Z\334RICH \344RGER"), "Z\334Rich \344Rger");
}

TEST(FixCase, NullAndEmptyAreHarmless)
{
    FixCase(nullptr);
    EXPECT_EQ(Fixed(""), "");
}

TEST(FixCase, EveryByteIsHandledAfterALetterAndAfterABlank)
{
    for (int code = 1; code < 256; ++code)
    {
        const char c = static_cast<char>(code);
        const bool isLetter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        const std::string fixed = Fixed({'x', c, ' ', c});
        EXPECT_EQ(fixed[1], isLetter ? static_cast<char>(code | 0x20) : c) << code;
        EXPECT_EQ(fixed[3], isLetter ? static_cast<char>(code & ~0x20) : c) << code;
    }
}
