#include "fuzz/PaneTreeUse.h"

#include <gtest/gtest.h>

#include <random>

// Thousands of invented trees, and what holds for all of them.
namespace
{

std::vector<unsigned char> Invent(std::mt19937& random, std::size_t size)
{
    std::vector<unsigned char> bytes(size);
    for (unsigned char& byte : bytes)
    {
        byte = static_cast<unsigned char>(random());
    }
    return bytes;
}

TEST(PaneProperties, SlotsFollowEachOtherHoldTheirMinimaAndAddUp)
{
    std::mt19937 random(20);
    for (int i = 0; i < 4000; ++i)
    {
        const auto bytes = Invent(random, 4 + random() % 400);
        EXPECT_EQ("", vorn::fuzz::SoundPanes().Try(bytes)) << "tree " << i;
    }
}

TEST(PaneProperties, AnyNumbersComeToAnEndWithinTheirRange)
{
    std::mt19937 random(21);
    for (int i = 0; i < 4000; ++i)
    {
        const auto bytes = Invent(random, random() % 600);
        EXPECT_EQ("", vorn::fuzz::WildPanes().Try(bytes)) << "tree " << i;
    }
}

} // namespace
