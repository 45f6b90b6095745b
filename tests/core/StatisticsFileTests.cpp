#include "frame/core/StatisticsFile.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

using vorn::DecodeStatistics;
using vorn::EncodeStatistics;

namespace
{

using Counters = std::vector<std::int32_t>;

std::span<const std::byte> Bytes(const std::string& text)
{
    return std::as_bytes(std::span(text));
}

std::string Text(const std::vector<std::byte>& bytes)
{
    std::string text;
    for (const std::byte byte : bytes)
    {
        text += static_cast<char>(byte);
    }
    return text;
}

// Version 1, start date 0x0102030405060708, two counters: 5 and -2.
const std::string kFile("\1\0\0\0\x08\7\6\5\4\3\2\1\2\0\0\0\5\0\0\0\xFE\xFF\xFF\xFF", 24);

std::string WithCount(std::int32_t count)
{
    std::string file = kFile;
    for (std::size_t i = 0; i < 4; ++i)
    {
        file[12 + i] = static_cast<char>(static_cast<std::uint32_t>(count) >> (8 * i));
    }
    return file;
}

} // namespace

TEST(StatisticsFile, IsVersionDateCountAndCountersWithoutGaps)
{
    const std::array<std::int32_t, 2> counters{5, -2};
    EXPECT_EQ(Text(EncodeStatistics(0x0102030405060708, counters)), kFile);
    EXPECT_EQ(Text(EncodeStatistics(-1, {})), std::string("\1\0\0\0\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\0\0\0\0", 16));
}

TEST(StatisticsFile, IsReadBackAsWritten)
{
    const auto stored = DecodeStatistics(Bytes(kFile));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->startDate, 0x0102030405060708);
    EXPECT_EQ(stored->counters, (Counters{5, -2}));
}

TEST(StatisticsFile, OfVersionZeroSaysNothing)
{
    std::string file = kFile;
    file[0] = '\0';
    EXPECT_FALSE(DecodeStatistics(Bytes(file)));
    EXPECT_FALSE(DecodeStatistics({}));
    EXPECT_FALSE(DecodeStatistics(Bytes(std::string(3, '\0'))));
}

TEST(StatisticsFile, OfAnotherVersionIsReadLikeTheFirst)
{
    for (const char version : {'\2', '\x80', '\xFF'})
    {
        std::string file = kFile;
        file[3] = version;
        const auto stored = DecodeStatistics(Bytes(file));
        ASSERT_TRUE(stored);
        EXPECT_EQ(stored->counters, (Counters{5, -2}));
    }
}

TEST(StatisticsFile, CutAnywhereHasZerosForTheRest)
{
    for (std::size_t length = 1; length <= kFile.size(); ++length)
    {
        const auto stored = DecodeStatistics(Bytes(kFile.substr(0, length)));
        const std::string padded = kFile.substr(0, length) + std::string(kFile.size() - length, '\0');
        const auto whole = DecodeStatistics(Bytes(padded));
        ASSERT_TRUE(stored && whole) << length;
        EXPECT_EQ(stored->startDate.has_value(), length > 4) << length;
        EXPECT_EQ(stored->startDate.value_or(0), *whole->startDate) << length;
        EXPECT_EQ(stored->counters, whole->counters) << length;
    }
}

TEST(StatisticsFile, CutWithinItsLastCounterKeepsTheBytesThatAreThere)
{
    const auto stored = DecodeStatistics(Bytes(kFile.substr(0, 22)));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->counters, (Counters{5, 0xFFFE}));
}

TEST(StatisticsFile, OfANegativeCountHasNoCounters)
{
    for (const std::int32_t count : {-1, std::numeric_limits<std::int32_t>::min()})
    {
        const auto stored = DecodeStatistics(Bytes(WithCount(count)));
        ASSERT_TRUE(stored);
        EXPECT_TRUE(stored->counters.empty());
        EXPECT_EQ(stored->startDate, 0x0102030405060708);
    }
}

TEST(StatisticsFile, OfACountBelowItsLengthEndsThere)
{
    const auto stored = DecodeStatistics(Bytes(WithCount(1)));
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->counters, Counters{5});
}

TEST(StatisticsFile, OfACountAboveItsLengthHasZeroCountersUpToTheLimit)
{
    struct Case
    {
        std::int32_t count;
        std::size_t expected;
    };
    for (const auto [count, expected] :
         {Case{3, 3}, Case{100'000, 100'000}, Case{1'048'576, 1'048'576}, Case{1'048'577, 1'048'576},
          Case{std::numeric_limits<std::int32_t>::max(), 1'048'576}})
    {
        const auto stored = DecodeStatistics(Bytes(WithCount(count)));
        ASSERT_TRUE(stored);
        ASSERT_EQ(stored->counters.size(), expected);
        EXPECT_EQ(stored->counters[1], -2);
        EXPECT_EQ(stored->counters[2], 0);
        EXPECT_EQ(stored->counters.back(), 0);
    }
}
