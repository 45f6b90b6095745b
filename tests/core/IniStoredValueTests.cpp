#include "config/core/StoredValue.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <vector>

using vorn::StoredAsNumber;
using vorn::StoredAsText;

namespace
{
constexpr std::uint32_t kNone = 0;
constexpr std::uint32_t kExpandText = 2;
constexpr std::uint32_t kBinary = 3;
constexpr std::uint32_t kBigEndian = 5;
constexpr std::uint32_t kTextList = 7;

std::vector<std::byte> bytes(std::string_view text)
{
    std::vector<std::byte> result(text.size());
    std::transform(text.begin(), text.end(), result.begin(),
                   [](char c)
                   {
                       return static_cast<std::byte>(c);
                   });
    return result;
}

using namespace std::string_view_literals;
} // namespace

TEST(IniStoredValue, TextEndsAtItsFirstZero)
{
    EXPECT_EQ(StoredAsText(vorn::kStoredText, bytes("Denver\0"sv)), "Denver");
    EXPECT_EQ(StoredAsText(vorn::kStoredText, bytes("Den\0ver\0"sv)), "Den");
}

TEST(IniStoredValue, UnterminatedTextEndsWithTheValue)
{
    EXPECT_EQ(StoredAsText(vorn::kStoredText, bytes("Denver"sv)), "Denver");
    EXPECT_EQ(StoredAsText(vorn::kStoredText, bytes(std::string(1024, 'x'))), std::string(1024, 'x'));
}

TEST(IniStoredValue, EmptyTextIsEmpty)
{
    EXPECT_EQ(StoredAsText(vorn::kStoredText, bytes("\0"sv)), "");
    EXPECT_EQ(StoredAsText(vorn::kStoredText, {}), "");
}

TEST(IniStoredValue, NumberReadsAsItsDecimalText)
{
    EXPECT_EQ(StoredAsText(vorn::kStoredNumber, bytes("\x50\x46\0\0"sv)), "18000");
    EXPECT_EQ(StoredAsText(vorn::kStoredNumber, bytes("\0\0\0\0"sv)), "0");
    EXPECT_EQ(StoredAsText(vorn::kStoredNumber, bytes("\xFF\xFF\xFF\xFF"sv)), "-1");
    EXPECT_EQ(StoredAsText(vorn::kStoredNumber, bytes("\0\0\0\x80"sv)), "-2147483648");
}

TEST(IniStoredValue, NumberOfTheWrongSizeIsEmptyAsTextNotItsRawBytes)
{
    EXPECT_EQ(StoredAsText(vorn::kStoredNumber, bytes("AB"sv)), "");
    EXPECT_EQ(StoredAsText(vorn::kStoredNumber, bytes("ABCDEFGH"sv)), "");
}

TEST(IniStoredValue, OtherTypesReadAsTheirBytesUpToTheFirstZero)
{
    EXPECT_EQ(StoredAsText(kBinary, bytes("ab\0cd"sv)), "ab");
    EXPECT_EQ(StoredAsText(kTextList, bytes("one\0two\0\0"sv)), "one");
    EXPECT_EQ(StoredAsText(kExpandText, bytes("%TEMP%\0"sv)), "%TEMP%");
    EXPECT_EQ(StoredAsText(kNone, bytes("\x80z"sv)), "\x80z");
}

TEST(IniStoredValue, NumberIsItselfWithSign)
{
    EXPECT_EQ(StoredAsNumber(vorn::kStoredNumber, bytes("\x50\x46\0\0"sv), 3), 18000);
    EXPECT_EQ(StoredAsNumber(vorn::kStoredNumber, bytes("\xFF\xFF\xFF\xFF"sv), 3), -1);
    EXPECT_EQ(StoredAsNumber(vorn::kStoredNumber, bytes("\xFF\xFF\xFF\x7F"sv), 3), INT_MAX);
}

TEST(IniStoredValue, TextIsANumberWhenItBeginsWithADigit)
{
    EXPECT_EQ(StoredAsNumber(vorn::kStoredText, bytes("12x\0"sv), 3), 12);
    EXPECT_EQ(StoredAsNumber(vorn::kStoredText, bytes("12"sv), 3), 12);
    EXPECT_EQ(StoredAsNumber(vorn::kStoredText, bytes("1\0002"sv), 3), 1);
    EXPECT_EQ(StoredAsNumber(vorn::kStoredText, bytes("x12\0"sv), 3), 3);
    EXPECT_EQ(StoredAsNumber(vorn::kStoredText, bytes("-1\0"sv), 3), 3);
    EXPECT_EQ(StoredAsNumber(vorn::kStoredText, {}, 3), 3);
}

TEST(IniStoredValue, UnusableTypesAreNoNumbers)
{
    EXPECT_EQ(StoredAsNumber(kBinary, bytes("12\0"sv), 3), 3);
    EXPECT_EQ(StoredAsNumber(kTextList, bytes("12\0\0"sv), 3), 3);
    EXPECT_EQ(StoredAsNumber(kExpandText, bytes("12\0"sv), 3), 3);
    EXPECT_EQ(StoredAsNumber(kBigEndian, bytes("\0\0\0\x01"sv), 3), 3);
    EXPECT_EQ(StoredAsNumber(vorn::kStoredNumber, bytes("\x01\x02"sv), 3), 3);
}
