#include "tests/guard/Damage.h"
#include "tests/guard/FuzzTargets.h"
#include "tests/guard/GuardHeap.h"
#include "tests/support/CurrentTest.h"
#include "tests/support/ScratchFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <utility>

// Each fuzz target over its seeds, damaged in many ways, on the guarded heap. Runs from the root of
// the checkout.

namespace vorn::guard
{

namespace
{

namespace fs = std::filesystem;

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kLongest{3}; // for one target

struct Seed
{
    std::string name;
    Bytes bytes;
};

std::vector<Seed> SeedsOf(const char* target)
{
    std::vector<Seed> seeds{{"nothing", {}}, {"zeros", Bytes(64, 0)}, {"ones", Bytes(64, 0xFF)}};
    const fs::path folder = fs::path("fuzz") / "seeds" / target;
    if (fs::is_directory(folder))
    {
        for (const fs::directory_entry& entry : fs::directory_iterator(folder))
        {
            const std::string text = test::ReadWholeFile(entry.path());
            seeds.push_back({entry.path().filename().string(), Bytes(text.begin(), text.end())});
        }
    }
    return seeds;
}

/// In a block of exactly its size: an empty input has an address that may not be read.
void RunOn(const FuzzTarget& target, const Bytes& input)
{
    const auto block = std::make_unique<std::uint8_t[]>(input.size());
    std::copy(input.begin(), input.end(), block.get());
    target.run(block.get(), input.size());
}

class DamagedInput : public testing::Test
{
public:
    explicit DamagedInput(const FuzzTarget& target) : m_target(target)
    {
    }

    void TestBody() override
    {
        const std::size_t living = LivingBlocksAfterAFirstRun();
        const Clock::time_point end = Clock::now() + kLongest;
        int runs = 0;
        for (const Seed& seed : SeedsOf(m_target.name))
        {
            ForEachDamage(seed.bytes,
                          [&](const Bytes& input, const std::string& damage)
                          {
                              test::SetCrashNote("seed " + seed.name + ", " + damage);
                              RunOn(m_target, input);
                              ++runs;
                              return Clock::now() < end;
                          });
        }
        test::SetCrashNote("");
        EXPECT_GE(runs, 100);
        EXPECT_LE(LivingBlocks(), living + kKeptByCaches) << "blocks are left behind";
    }

private:
    static constexpr std::size_t kKeptByCaches = 100;

    std::size_t LivingBlocksAfterAFirstRun() const
    {
        RunOn(m_target, {});
        return LivingBlocks();
    }

    FuzzTarget m_target;
};

const bool s_registered = []
{
    for (const FuzzTarget& target : FuzzTargets())
    {
        testing::RegisterTest("DamagedInput", target.name, nullptr, nullptr, __FILE__, __LINE__,
                              [target]
                              {
                                  return new DamagedInput(target);
                              }); // the test library deletes it
    }
    return true;
}();

} // namespace

} // namespace vorn::guard
