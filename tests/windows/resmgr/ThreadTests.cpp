#include "tests/windows/resmgr/FreshResMgr.h"

#include <atomic>
#include <thread>
#include <vector>

using namespace vorn::test;

namespace
{

using ResourceThreads = FreshResMgr;

constexpr int kThreads = 4;

/// Lets threads go when all have come. They ask in turn: with this compiler's threads, std::barrier now and then
/// wakes one thread too few.
class StartLine
{
public:
    void WaitForAll()
    {
        ++m_come;
        while (m_come < kThreads)
        {
            std::this_thread::yield();
        }
    }

private:
    std::atomic<int> m_come = 0;
};

/// Runs the action in all threads at once; each gets its number.
template <class Action>
void InThreads(Action action)
{
    StartLine start;
    std::vector<std::thread> threads;
    for (int number = 0; number < kThreads; ++number)
    {
        threads.emplace_back(
            [&, number]
            {
                start.WaitForAll();
                action(number);
            });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
}

} // namespace

TEST_F(ResourceThreads, EqualRequestsAtTheSameTimeShareOneHandle)
{
    ResMgr& manager = Manager();
    for (int round = 0; round < 20; ++round)
    {
        constexpr unsigned kPens = 100;
        std::vector<HPEN> pens[kThreads];
        std::vector<HBRUSH> brushes[kThreads];
        std::vector<HFONT> fonts[kThreads];
        InThreads(
            [&](int number)
            {
                for (unsigned i = 0; i < kPens; ++i)
                {
                    pens[number].push_back(manager.GetStdPen(i));
                    brushes[number].push_back(manager.GetBrush(i));
                    const LOGFONTA description = Face("Chart", static_cast<LONG>(i % 60) + 1);
                    fonts[number].push_back(manager.GetFont(&description));
                }
            });
        EXPECT_EQ(manager.GetResourceCount(), 2 * static_cast<int>(kPens) + 60);
        for (int number = 1; number < kThreads; ++number)
        {
            EXPECT_EQ(pens[number], pens[0]);
            EXPECT_EQ(brushes[number], brushes[0]);
            EXPECT_EQ(fonts[number], fonts[0]);
        }
        manager.PurgeResources();
    }
}

TEST_F(ResourceThreads, ThereAreNeverMoreThan60FontsWhoeverAsks)
{
    ResMgr& manager = Manager();
    std::atomic<int> most = 0;
    std::atomic<int> failed = 0;
    InThreads(
        [&](int number)
        {
            for (int i = 0; i < 400; ++i)
            {
                const LOGFONTA description = Face("Chart", (i * (number + 1)) % 150 + 1);
                failed += manager.GetFont(&description) == nullptr ? 1 : 0;
                int seen = most;
                const int count = manager.GetResourceCount();
                while (count > seen && !most.compare_exchange_weak(seen, count))
                {
                }
            }
        });
    EXPECT_EQ(most, 60);
    EXPECT_EQ(failed, 0);
}

TEST_F(ResourceThreads, PurgingWhileOthersAskLeavesTheManagerSound)
{
    ResMgr& manager = Manager();
    std::atomic<int> missing = 0;
    InThreads(
        [&](int number)
        {
            for (unsigned i = 0; i < 2000; ++i)
            {
                if (number == 0 && i % 50 == 0)
                {
                    manager.PurgeResources();
                }
                missing += manager.GetPen(PS_SOLID, 2, i % 37) == nullptr ? 1 : 0;
                missing += manager.GetBrush(i % 41) == nullptr ? 1 : 0;
            }
        });
    EXPECT_EQ(missing, 0);
    EXPECT_LE(manager.GetResourceCount(), 37 + 41);
    manager.PurgeResources();
    EXPECT_EQ(manager.GetResourceCount(), 0);
}
