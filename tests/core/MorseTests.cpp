#include "aviation/core/Morse.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <string>
#include <vector>

namespace
{

// ITU-R M.1677-1, 1.1.1.
constexpr std::array<const char*, 26> kPublished = {
    ".-", "-...", "-.-.", "-..",  ".",   "..-.", "--.", "....", "..",   ".---", "-.-",  ".-..", "--",
    "-.", "---",  ".--.", "--.-", ".-.", "...",  "-",   "..-",  "...-", ".--",  "-..-", "-.--", "--.."};

std::string Signs(const vorn::MorseCode& code)
{
    std::string signs;
    for (int i = 0; i < code.elements; ++i)
    {
        signs += (code.dashes >> i & 1) != 0 ? '-' : '.';
    }
    return signs;
}

std::string Blocks(int x, int unit, int align, const char* text)
{
    std::string blocks;
    vorn::VisitMorse(x, unit, align, text,
                     [&](const vorn::MorseBlock& block)
                     {
                         blocks += std::to_string(block.left) + '-' + std::to_string(block.right) + ' ';
                     });
    return blocks;
}

} // namespace

TEST(Morse, LettersAreThoseOfTheInternationalCode)
{
    for (std::size_t i = 0; i < kPublished.size(); ++i)
    {
        EXPECT_EQ(Signs(vorn::MorseCodeOf(static_cast<char>('A' + i))), kPublished[i]);
        EXPECT_EQ(Signs(vorn::MorseCodeOf(static_cast<char>('a' + i))), kPublished[i]);
    }
    EXPECT_EQ(vorn::MorseCodeOf('A').dashes, 2U);
}

TEST(Morse, NothingButLettersIsCoded)
{
    for (int c = CHAR_MIN; c <= CHAR_MAX; ++c)
    {
        const bool letter = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
        EXPECT_EQ(vorn::MorseCodeOf(static_cast<char>(c)).elements > 0, letter) << c;
    }
}

TEST(MorseWidth, CountsElementsAndGaps)
{
    EXPECT_EQ(MorseWidth(2, "SOS"), 60);
    EXPECT_EQ(MorseWidth(1, "S"), 5);
    EXPECT_EQ(MorseWidth(1, "O"), 14);
    EXPECT_EQ(MorseWidth(1, "E"), 1);
    EXPECT_EQ(MorseWidth(1, "T"), 4);
    EXPECT_EQ(MorseWidth(1, "EE"), 5);
    EXPECT_EQ(MorseWidth(3, "sos"), 90);
}

TEST(MorseWidth, EmptyIsNoneAndAForeignCharacterMakesItMinusOne)
{
    EXPECT_EQ(MorseWidth(2, ""), 0);
    EXPECT_EQ(MorseWidth(2, nullptr), 0);
    EXPECT_EQ(MorseWidth(2, "VOR1"), -1);
    EXPECT_EQ(MorseWidth(2, " A"), -1);
    EXPECT_EQ(MorseWidth(0, "\xC4"), -1);
    EXPECT_EQ(MorseWidth(0, "SOS"), 0);
    EXPECT_EQ(MorseWidth(-2, "SOS"), -60);
}

TEST(MorseWidth, StopsAtTheLargestNumber)
{
    EXPECT_EQ(MorseWidth(INT_MAX, "SOS"), INT_MAX);
    EXPECT_EQ(MorseWidth(INT_MIN, "SOS"), INT_MIN);
    EXPECT_EQ(MorseWidth(INT_MAX, "E"), INT_MAX);
    const std::string lengthy(1'000'000, 'J');
    EXPECT_EQ(MorseWidth(1, lengthy.c_str()), 16 * 1'000'000 + 3 * 999'999);
    EXPECT_EQ(MorseWidth(1000, lengthy.c_str()), INT_MAX);
}

TEST(MorseBlocks, ElementsArePartedByAUnitAndLettersByThree)
{
    EXPECT_EQ(Blocks(100, 2, 0, "AE"), "100-102 104-112 118-120 ");
    EXPECT_EQ(Blocks(0, 1, 0, "sos"), "0-1 2-3 4-5 8-12 13-17 18-22 25-26 27-28 29-30 ");
    EXPECT_EQ(Blocks(-5, 1, 0, "N"), "-5--1 0-1 ");
}

TEST(MorseBlocks, AlignmentMovesTheStart)
{
    EXPECT_EQ(Blocks(100, 2, 2, "A"), "88-90 92-100 ");
    EXPECT_EQ(Blocks(100, 2, 6, "A"), "94-96 98-106 ");
    EXPECT_EQ(Blocks(100, 3, 6, "E"), "99-102 ");
    for (const int align : {0, 1, 3, 4, 7, 10, 14, -2, 24})
    {
        EXPECT_EQ(Blocks(100, 2, align, "A"), "100-102 104-112 ") << align;
    }
}

TEST(MorseBlocks, WhatHasNoWidthHasNoBlocks)
{
    EXPECT_EQ(Blocks(0, 2, 0, ""), "");
    EXPECT_EQ(Blocks(0, 2, 0, nullptr), "");
    EXPECT_EQ(Blocks(0, 2, 0, "VOR1"), "");
    EXPECT_EQ(Blocks(0, 0, 0, "SOS"), "");
    EXPECT_EQ(Blocks(0, -1, 0, "SOS"), "");
    EXPECT_EQ(Blocks(0, INT_MIN, 0, "E"), "");
}

TEST(MorseBlocks, ReachTheEdgeOfTheNumbersAndNoFurther)
{
    EXPECT_EQ(Blocks(0, INT_MAX, 0, "SOS"), "0-2147483647 ");
    EXPECT_EQ(Blocks(INT_MAX, 1, 0, "SOS"), "2147483647-2147483648 ");
    EXPECT_EQ(Blocks(INT_MIN, INT_MAX, 2, "E"), "-4294967295--2147483648 ");
}
