#include "frame/core/BaseNDigits.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

using namespace vorn;

namespace
{

constexpr std::uint64_t kMax = UINT64_MAX;

std::string Encoded(std::string_view bytes, int base)
{
    return EncodeBytes({reinterpret_cast<const unsigned char*>(bytes.data()), bytes.size()}, base);
}

std::string Decoded(std::string_view digits, std::size_t room)
{
    std::string bytes(room, '?');
    const std::size_t count = DecodeBytes(digits, {reinterpret_cast<unsigned char*>(bytes.data()), room});
    EXPECT_EQ(bytes.substr(count), std::string(room - count, '?')) << "bytes behind the result stay untouched";
    return bytes.substr(0, count);
}

} // namespace

TEST(DecodeNumber, ReadsDigitsByTheirPlace)
{
    EXPECT_EQ(DecodeNumber("10", 16), 16U);
    EXPECT_EQ(DecodeNumber("z", 64), 35U);
    EXPECT_EQ(DecodeNumber("Z", 64), 61U);
    EXPECT_EQ(DecodeNumber("a", 64), 10U);
    EXPECT_EQ(DecodeNumber("A", 64), 36U);
    EXPECT_EQ(DecodeNumber("-", 64), 62U);
    EXPECT_EQ(DecodeNumber("!", 64), 63U);
    EXPECT_EQ(DecodeNumber("", 10), 0U);
    EXPECT_EQ(DecodeNumber("ff", 16), 255U);
}

TEST(DecodeNumber, ABaseOutOfRangeGivesZero)
{
    for (const int base : {INT32_MIN, -10, -1, 0, 1, 65, INT32_MAX})
        EXPECT_EQ(DecodeNumber("11", base), 0U) << base;
}

// Sums worked out with Python's unlimited integers, modulo 2^64.
TEST(DecodeNumber, CountsStrangersAs255AndWrapsAt64Bits)
{
    EXPECT_EQ(DecodeNumber("?", 10), 255U);
    EXPECT_EQ(DecodeNumber("1?", 10), 265U);
    EXPECT_EQ(DecodeNumber(" 1", 10), 2551U);
    EXPECT_EQ(DecodeNumber("~~", 2), 765U);
    EXPECT_EQ(DecodeNumber("\xFF", 10), 255U);
    EXPECT_EQ(DecodeNumber("99", 2), 27U) << "a digit may exceed its base";
    EXPECT_EQ(DecodeNumber("!!!!!!!!!!!!", 64), kMax);
    EXPECT_EQ(DecodeNumber("zzzzzzzzzzzzzzzzzzzz", 36), 2299123893656354815U);
    EXPECT_EQ(DecodeNumber("!!!!!!!!!!!!!!!!!!!!!!!!!!!!!!", 61), 13571152403872461294U);
}

TEST(EncodeNumber, WritesTheMostSignificantDigitFirst)
{
    struct Case
    {
        std::uint64_t value;
        int base;
        const char* digits;
    };
    // From Python: repeated divmod over the alphabet.
    for (const Case& c : std::vector<Case>{
             {0, 10, "0"},
             {0, 64, "0"},
             {9007199254740993, 7, "5350140446150306055"},
             {kMax, 2, "1111111111111111111111111111111111111111111111111111111111111111"},
             {kMax, 3, "11112220022122120101211020120210210211220"},
             {kMax, 10, "18446744073709551615"},
             {kMax, 36, "3w5e11264sgsf"},
             {kMax, 37, "2tp7ttsv9csrb"},
             {kMax, 63, "iJWlmRPFtyf"},
             {kMax, 64, "f!!!!!!!!!!"},
             {4096, 64, "100"},
             {35, 36, "z"},
             {36, 37, "A"},
             {63, 64, "!"},
             {123456789012345678, 62, "97qS0b7N2m"},
         })
    {
        EXPECT_EQ(EncodeNumber(c.value, c.base), c.digits) << c.value << " base " << c.base;
        EXPECT_EQ(DecodeNumber(c.digits, c.base), c.value) << c.digits << " base " << c.base;
    }
}

TEST(EncodeNumber, ABaseOutOfRangeGivesNothing)
{
    for (const int base : {INT32_MIN, -2, 0, 1, 65, INT32_MAX})
        EXPECT_EQ(EncodeNumber(5, base), "") << base;
}

TEST(EncodeNumber, ComesBackInEveryBase)
{
    for (int base = kSmallestBase; base <= kLargestBase; ++base)
    {
        for (const std::uint64_t value : {std::uint64_t{1}, std::uint64_t{9007199254740993}, kMax, kMax - 1, kMax / 3})
            EXPECT_EQ(DecodeNumber(EncodeNumber(value, base), base), value) << base;
    }
}

// From Python: the bytes as one little-endian number, cut into digits from its low end.
TEST(EncodeBytes, RunsLeastSignificantBitFirst)
{
    struct Case
    {
        std::string bytes;
        const char* digits[6]; // bases 2, 4, 8, 16, 32, 64
    };
    const std::vector<Case> cases = {
        {"\x01", {"10000000", "1000", "100", "10", "10", "10"}},
        {"\xAB", {"11010101", "3222", "352", "ba", "b5", "H2"}},
        {std::string("\xFF\0\xFF", 3),
         {"111111110000000011111111", "333300003333", "77300677", "ff00ff", "v70uf", "!3M!"}},
        {"Hello, world!",
         {"00010010101001100011011000110110111101100011010000000100111011101111011001001110001101100010011010000100",
          "0201112103210321332103200020313133212031032101211020", "01526033455760310443763326166013140",
          "8456c6c6f6c20277f627c64612", "8apo6mtdc18enn9ec3p22", "8l6rIZ6bwsTrON6px0"}},
        {std::string("\0\1\2\3\4\5\6", 7),
         {"00000000100000000100000011000000001000001010000001100000", "0000100020003000010011002100",
          "0040040030020210600", "00102030405060", "0804g1g05g10", "04w03gg160"}},
    };
    for (const Case& c : cases)
    {
        for (int i = 0; i < 6; ++i)
            EXPECT_EQ(Encoded(c.bytes, 2 << i), c.digits[i]) << (2 << i);
    }
}

TEST(EncodeBytes, GivesNothingForOtherBasesOrNoBytes)
{
    for (const int base : {INT32_MIN, -2, 0, 1, 3, 10, 36, 63, 65, 128, INT32_MAX})
        EXPECT_EQ(Encoded("abc", base), "") << base;
    EXPECT_EQ(Encoded("", 16), "");
}

TEST(EncodeBytes, GivesNothingWhereAStringCouldNotHoldTheDigits)
{
    // Only the number of bytes is looked at: 2^28 bytes make 2^31 digits of base 2, 2^29 bytes make 2^32.
    const unsigned char first = 0;
    for (const std::size_t size : {std::size_t{1} << 28, std::size_t{1} << 29, std::size_t{INT32_MAX}})
        EXPECT_EQ(EncodeBytes({&first, size}, 2), "") << size;
    EXPECT_EQ(EncodeBytes({&first, std::size_t{1} << 29}, 4), "");
}

TEST(DecodeBytes, InvertsTheBase64Encoder)
{
    std::string bytes;
    for (int i = 0; i < 300; ++i)
    {
        EXPECT_EQ(Decoded(Encoded(bytes, 64), bytes.size()), bytes) << i;
        bytes += static_cast<char>(i * 37 + 11);
    }
}

TEST(DecodeBytes, DropsBitsThatMakeNoWholeByte)
{
    EXPECT_EQ(Decoded("", 10), "");
    EXPECT_EQ(Decoded("H", 10), "");
    EXPECT_EQ(Decoded("H2", 10), "\xAB");
    EXPECT_EQ(Decoded("H!", 10), "\xEB"); // 43 + (63 << 6) = 0xFEB: the low byte, the four bits above dropped
}

TEST(DecodeBytes, WritesAtMostTheRoomThatItHas)
{
    const std::string digits = Encoded("Hello, world!", 64);
    EXPECT_EQ(Decoded(digits, 5), "Hello");
    EXPECT_EQ(Decoded(digits, 0), "");
    EXPECT_EQ(Decoded(digits, 100), "Hello, world!");
}

TEST(DecodeBytes, StopsAtTheFirstStranger)
{
    const std::string digits = Encoded("Hello", 64);
    EXPECT_EQ(Decoded(digits.substr(0, 4) + "?" + digits.substr(4), 10), "Hel");
    EXPECT_EQ(Decoded("?" + digits, 10), "");
}
