#include "tests/guard/GuardHeap.h"
#include "tests/support/ExitCodes.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <string>
#include <vector>

#include <zlib.h>

// The guarded heap is itself tested: each misuse ends the program, proper use does not.

namespace
{

const testing::ExitedWithCode EndsAsCrash(vorn::test::kCrashExitCode);

volatile char s_sink = 0;

void ReadByte(const volatile char* at)
{
    s_sink = *at;
}

/// The same value, of which the compiler knows nothing: it would refuse the misuse that follows.
template <class Value>
Value Hidden(Value value)
{
    volatile Value hidden = value;
    return hidden;
}

void WriteByte(volatile char* at)
{
    *at = 1;
}

} // namespace

TEST(GuardHeapDeathTest, CatchesAReadBehindAVectorOfAnySize)
{
    for (const std::size_t size : {1u, 13u, 16u, 4095u, 4096u, 4097u, 10000u})
    {
        const std::vector<char> block(size, 'x');
        ReadByte(block.data() + size - 1);
        EXPECT_EXIT(ReadByte(block.data() + size), EndsAsCrash, "CRASH.*reading");
    }
}

TEST(GuardHeapDeathTest, CatchesAWriteBehindABlock)
{
    const auto block = std::make_unique<char[]>(7);
    WriteByte(block.get() + 6);
    EXPECT_EXIT(WriteByte(block.get() + 7), EndsAsCrash, "CRASH.*writing");
}

TEST(GuardHeapDeathTest, CatchesAReadBehindAString)
{
    const std::string text(40, 'x'); // longer than what the object holds itself
    const char* const behind = text.data() + text.capacity() + 1;
    EXPECT_EXIT(ReadByte(behind), EndsAsCrash, "CRASH.*reading");
}

TEST(GuardHeapDeathTest, CatchesAnyUseOfAnEmptyBlock)
{
    const auto block = std::make_unique<char[]>(0);
    EXPECT_EXIT(ReadByte(block.get()), EndsAsCrash, "CRASH.*reading");
}

TEST(GuardHeapDeathTest, CatchesAReadAfterTheBlockWasFreed)
{
    auto block = std::make_unique<char[]>(100);
    const char* const stale = Hidden(block.get());
    block.reset();
    EXPECT_EXIT(ReadByte(stale), EndsAsCrash, "CRASH.*reading");
}

TEST(GuardHeapDeathTest, ReportsAWriteInFrontOfABlockWhenItIsFreed)
{
    EXPECT_EXIT(
        {
            auto block = std::make_unique<char[]>(100);
            WriteByte(block.get() - 1);
            block.reset();
        },
        EndsAsCrash, "in front of a block");
}

TEST(GuardHeapDeathTest, ReportsABlockFreedTwice)
{
    EXPECT_EXIT(
        {
            void* const block = std::malloc(10);
            std::free(Hidden(block));
            std::free(Hidden(block));
        },
        EndsAsCrash, "freed twice");
}

TEST(GuardHeapDeathTest, CatchesAStaticallyLinkedCLibraryReadingBehindABlock)
{
    const std::vector<unsigned char> block(64, 1);
    EXPECT_NE(crc32(0, block.data(), 64), 0u);
    EXPECT_EXIT(s_sink = static_cast<char>(crc32(0, block.data(), 65)), EndsAsCrash, "CRASH.*reading");
}

TEST(GuardHeap, GivesMemoryToAStaticallyLinkedCLibrary)
{
    z_stream stream = {};
    const std::size_t before = vorn::guard::LivingBlocks();
    ASSERT_EQ(inflateInit(&stream), Z_OK);
    EXPECT_TRUE(vorn::guard::IsBlock(stream.state));
    EXPECT_GT(vorn::guard::LivingBlocks(), before);
    inflateEnd(&stream);
    EXPECT_EQ(vorn::guard::LivingBlocks(), before);
}

TEST(GuardHeap, AlignsWhatItsSizeAsksFor)
{
    for (const std::size_t size : {8u, 16u, 24u, 48u, 4096u})
    {
        const auto block = std::make_unique<char[]>(size);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block.get()) % std::min<std::size_t>(size & (~size + 1), 16), 0u);
    }
}

TEST(GuardHeap, KeepsTheContentsWhenABlockGrowsOrShrinks)
{
    auto* block = static_cast<char*>(std::malloc(3));
    std::copy_n("abc", 3, block);
    block = static_cast<char*>(std::realloc(block, 5000));
    EXPECT_EQ(std::string(block, 3), "abc");
    block = static_cast<char*>(std::realloc(block, 2));
    EXPECT_EQ(std::string(block, 2), "ab");
    EXPECT_EQ(vorn::guard::SizeOf(block), 2u);
    std::free(block);
}

TEST(GuardHeap, ClearsWhatIsAskedForClear)
{
    auto* const block = static_cast<char*>(std::calloc(3, 5));
    EXPECT_EQ(std::string(block, 15), std::string(15, '\0'));
    std::free(block);
    EXPECT_EQ(std::calloc(Hidden<std::size_t>(0x10000), 0x10001), nullptr);
}

TEST(GuardHeap, UsesTheAddressesAgainAfterOneRound)
{
    const std::size_t before = vorn::guard::LivingBlocks();
    for (int i = 0; i < 0x12000; ++i) // two pages each: more than the range has
    {
        delete[] Hidden(new char[10]);
    }
    EXPECT_EQ(vorn::guard::LivingBlocks(), before);
}
