#include "tests/guard/Damage.h"
#include "tests/support/ExitCodes.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>

namespace
{

volatile std::uint8_t s_sink = 0;

/// Believes the length that the first byte states.
void ParseTrustingly(const std::uint8_t* data, std::size_t size)
{
    for (std::size_t i = 1; size != 0 && i <= data[0]; ++i)
    {
        s_sink = data[i];
    }
}

void ParseAllDamage(const vorn::guard::Bytes& whole)
{
    vorn::guard::ForEachDamage(whole,
                               [](const vorn::guard::Bytes& input, const std::string&)
                               {
                                   const auto block = std::make_unique<std::uint8_t[]>(input.size());
                                   std::copy(input.begin(), input.end(), block.get());
                                   ParseTrustingly(block.get(), input.size());
                                   return true;
                               });
}

} // namespace

TEST(DamageDeathTest, BringsDownAParserThatTrustsALength)
{
    EXPECT_EXIT(ParseAllDamage({3, 'a', 'b', 'c'}), testing::ExitedWithCode(vorn::test::kCrashExitCode),
                "CRASH.*reading");
}

TEST(Damage, CutsAtEveryLengthAndChangesTheRest)
{
    std::set<std::size_t> lengths;
    std::set<vorn::guard::Bytes> inputs;
    vorn::guard::ForEachDamage({1, 2, 3, 4, 5, 6, 7, 8},
                               [&](const vorn::guard::Bytes& input, const std::string&)
                               {
                                   lengths.insert(input.size());
                                   inputs.insert(input);
                                   return true;
                               });
    for (std::size_t length = 0; length <= 8; ++length)
    {
        EXPECT_EQ(lengths.count(length), 1u) << length;
    }
    EXPECT_GT(*lengths.rbegin(), 8u);
    EXPECT_GT(inputs.size(), 500u);
}

TEST(Damage, StopsWhenAsked)
{
    int calls = 0;
    vorn::guard::ForEachDamage({1, 2, 3},
                               [&](const vorn::guard::Bytes&, const std::string&)
                               {
                                   return ++calls < 5;
                               });
    EXPECT_EQ(calls, 5);
}
