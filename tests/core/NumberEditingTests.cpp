#include "tests/support/SpecialNumbers.h"
#include "toolkit/core/NumberEditing.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>
#include <limits>
#include <string>

using vorn::NumberText;
using vorn::PassesIntoNumber;
using vorn::RoundedToDecimals;
using vorn::TypedNumber;

namespace
{
using vorn::test::kInfinite;
using vorn::test::kNaN;

bool Passes(unsigned character, const std::string& text, int position, bool pointAllowed = true)
{
    return PassesIntoNumber(character, {text, position, pointAllowed});
}

bool PastePasses(const std::string& pasted, const std::string& text, int position, bool pointAllowed = true)
{
    return PassesIntoNumber(pasted, vorn::EditedNumber{text, position, pointAllowed});
}
} // namespace

TEST(RoundedToDecimals, HalvesGoAwayFromZero)
{
    EXPECT_EQ(123.46, RoundedToDecimals(123.456, 2));
    EXPECT_EQ(3, RoundedToDecimals(2.5, 0));
    EXPECT_EQ(-3, RoundedToDecimals(-2.5, 0));
    EXPECT_EQ(-0.13, RoundedToDecimals(-0.125, 2));
    EXPECT_EQ(0.1, RoundedToDecimals(0.1, 15));
}

TEST(RoundedToDecimals, DecimalsAreWithinZeroAndFifteen)
{
    EXPECT_EQ(124, RoundedToDecimals(123.6, -2));
    EXPECT_EQ(0.123456789012346, RoundedToDecimals(0.1234567890123456, 99));
}

TEST(RoundedToDecimals, LargeNumbersStay)
{
    EXPECT_EQ(21474836.47, RoundedToDecimals(21474836.47, 2));
    EXPECT_EQ(1e300, RoundedToDecimals(1e300, 2));
    EXPECT_EQ(-1e300, RoundedToDecimals(-1e300, 15)) << "even when its scaled value has no end";
    EXPECT_EQ(9007199254740992.0, RoundedToDecimals(9007199254740992.0, 0));
    EXPECT_EQ(4503599627370496.5, RoundedToDecimals(4503599627370496.5, 1)) << "scaled beyond 2^53";
    EXPECT_EQ(kInfinite, RoundedToDecimals(kInfinite, 2));
    EXPECT_TRUE(std::isnan(RoundedToDecimals(kNaN, 2)));
}

TEST(NumberText, HasFifteenDigitsAtMost)
{
    EXPECT_EQ("123.46", NumberText(123.46));
    EXPECT_EQ("123.45", NumberText(123.45));
    EXPECT_EQ("0.1", NumberText(0.1));
    EXPECT_EQ("-5", NumberText(-5));
    EXPECT_EQ("123456789012345", NumberText(123456789012345.0));
    EXPECT_EQ("1.23456789012346e+15", NumberText(1234567890123456.0));
    EXPECT_EQ("0.0001", NumberText(0.0001));
    EXPECT_EQ("1e-05", NumberText(0.00001));
}

TEST(NumberText, NothingIsZero)
{
    EXPECT_EQ("0", NumberText(0));
    EXPECT_EQ("0", NumberText(-0.0));
    EXPECT_EQ("0", NumberText(kNaN));
    EXPECT_EQ("0", NumberText(-kInfinite));
}

TEST(TypedNumber, IsTheWholeText)
{
    EXPECT_EQ(12.5, TypedNumber("12.5"));
    EXPECT_EQ(-12.5, TypedNumber("-12.5"));
    EXPECT_EQ(0.5, TypedNumber(".5"));
    EXPECT_EQ(5, TypedNumber("5."));
    EXPECT_EQ(-0.5, TypedNumber("-.5"));
    for (const char* none : {"", "-", ".", "-.", "--5", "5-", "1.2.3", "12a", "nan", "inf", "0x10", "5 kt"})
    {
        EXPECT_EQ(0, TypedNumber(none)) << none;
    }
    EXPECT_EQ(0, TypedNumber(std::string(400, '9')));
}

TEST(TypedNumber, DoesNotFollowTheLocale)
{
    const std::string former = std::setlocale(LC_NUMERIC, nullptr);
    for (const char* name : {"de_DE.UTF-8", "German"})
    {
        std::setlocale(LC_NUMERIC, name);
        EXPECT_EQ(12.5, TypedNumber("12.5"));
        EXPECT_EQ("12.5", NumberText(12.5));
    }
    std::setlocale(LC_NUMERIC, former.c_str());
}

TEST(NumberCharacter, DigitsAndControlsPassEverywhere)
{
    for (unsigned digit = '0'; digit <= '9'; ++digit)
    {
        EXPECT_TRUE(Passes(digit, "-1.5", 2));
    }
    for (unsigned control = 0; control < 0x20; ++control)
    {
        EXPECT_TRUE(Passes(control, "-1.5", 2));
    }
    EXPECT_TRUE(Passes(0x7F, "", 0));
}

TEST(NumberCharacter, OthersNeverPass)
{
    for (unsigned character = 0x20; character < 0x400; ++character)
    {
        const bool known = (character >= '0' && character <= '9') || character == '-' || character == '.';
        EXPECT_EQ(known || character == 0x7F, Passes(character, "", 0)) << character;
    }
    EXPECT_FALSE(Passes(0xFFFFFFFFU, "", 0));
    EXPECT_FALSE(Passes(0x130, "", 0)) << "a digit's code with more above";
}

TEST(NumberCharacter, AMinusPassesAtTheBeginning)
{
    EXPECT_TRUE(Passes('-', "", 0));
    EXPECT_TRUE(Passes('-', "12", 0));
    EXPECT_TRUE(Passes('-', "-12", 0)) << "even before another";
    EXPECT_FALSE(Passes('-', "12", 1));
    EXPECT_FALSE(Passes('-', "12", 2));
}

TEST(NumberCharacter, OnePointPassesWhereItIsAllowed)
{
    EXPECT_TRUE(Passes('.', "", 0));
    EXPECT_TRUE(Passes('.', "12", 2));
    EXPECT_FALSE(Passes('.', "1.2", 0));
    EXPECT_FALSE(Passes('.', "12", 2, false));
}

TEST(NumberPaste, PassesWhenEachCharacterDoes)
{
    EXPECT_TRUE(PastePasses("12.5", "", 0));
    EXPECT_TRUE(PastePasses("-5", "12", 0));
    EXPECT_TRUE(PastePasses("", "12", 1));
    EXPECT_TRUE(PastePasses("12\r\n", "", 0)) << "a cell of a sheet";
    EXPECT_FALSE(PastePasses("12a", "", 0));
    EXPECT_FALSE(PastePasses("-5", "12", 1));
    EXPECT_FALSE(PastePasses("5-", "", 0));
    EXPECT_FALSE(PastePasses("--5", "", 0));
    EXPECT_FALSE(PastePasses("1.2.3", "", 0));
    EXPECT_FALSE(PastePasses(".5", "1.2", 3));
    EXPECT_FALSE(PastePasses("1.5", "", 0, false));
    EXPECT_FALSE(PastePasses("\x96", "", 0)) << "a dash of the code page";
    EXPECT_FALSE(PastePasses(" 5", "", 0));
}

TEST(NumberPaste, IsRefusedWithItsText)
{
    EXPECT_EQ("Format of the following value is not compatible with this control\n\"12a\"\nPaste Command Ignored.",
              vorn::RefusedPasteMessage("12a"));
    EXPECT_NE(std::string::npos, vorn::RefusedPasteMessage("100%s%n").find("\"100%s%n\""));
}

TEST(NumberPaste, VeryLongTextsAreQuotedWithoutTheirMiddle)
{
    const std::string whole = std::string(1999, 'a') + "bb" + std::string(1999, 'c');
    EXPECT_NE(std::string::npos, vorn::RefusedPasteMessage(whole).find('"' + whole + '"'));
    const std::string longer = std::string(2000, 'a') + "b" + std::string(2000, 'c');
    EXPECT_NE(std::string::npos, vorn::RefusedPasteMessage(longer).find('"' + std::string(2000, 'a') + "..." +
                                                                        std::string(2000, 'c') + '"'));
}
