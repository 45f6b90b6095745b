#include "framework/core/NodePool.h"

#include "framework/core/List.h"

#include <cstring>
#include <gtest/gtest.h>
#include <memory>
#include <set>
#include <vector>

using vorn::NodePool;

TEST(NodePool, GivesBlocksThatDoNotOverlap)
{
    constexpr std::size_t kSize = 24;
    NodePool pool(kSize, 3);
    std::vector<unsigned char*> blocks;
    for (unsigned i = 0; i < 5000; ++i)
    {
        auto* block = static_cast<unsigned char*>(pool.Take());
        std::memset(block, static_cast<int>(i % 251), kSize);
        blocks.push_back(block);
    }
    for (unsigned i = 0; i < blocks.size(); ++i)
    {
        for (std::size_t at = 0; at < kSize; ++at)
        {
            ASSERT_EQ(blocks[i][at], i % 251) << "block " << i;
        }
        pool.Give(blocks[i]);
    }
    pool.Clear();
}

TEST(NodePool, WorksOnAfterBeingCleared)
{
    NodePool pool(16, 1000000);
    for (int round = 0; round < 3; ++round)
    {
        std::set<void*> blocks;
        for (int i = 0; i < 2000; ++i)
        {
            blocks.insert(pool.Take());
        }
        EXPECT_EQ(blocks.size(), 2000U);
        for (void* block : blocks)
        {
            pool.Give(block);
        }
        pool.Clear();
    }
}

TEST(NodePool, LargeBlocksOfALargePieceAreWhole)
{
    // Together they are more than an address of 32 bits can say.
    constexpr std::size_t kSize = 0x400000;
    NodePool pool(kSize, 1024);
    auto* block = static_cast<char*>(pool.Take());
    std::memset(block, 'a', kSize);
    EXPECT_EQ(block[kSize - 1], 'a');
    pool.Give(block);
    pool.Clear();
}

TEST(NodePool, LargeElementsDoNotTakeMemoryForManyMore)
{
    struct Large
    {
        char bytes[0x100000]; // 1 MiB
    };
    CList<Large, const Large&> list(1);
    const auto large = std::make_unique<Large>();
    for (int i = 0; i < 40; ++i)
    {
        list.AddTail(*large);
    }
    EXPECT_EQ(list.GetCount(), 40);
}
