#include "family/TarnUtil/core/SynchObject.h"
#include "family/VornChart/VornChartApp.h"
#include "tests/support/VirtualSlot.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>

using vorn::test::SlotOf;
using Lock = std::unique_ptr<Vornwald::SynchObject>;

namespace
{

Lock MakeLock(DWORD spinCount)
{
    VornChartApp app;
    return Lock(app.CreateCriticalSection(spinCount));
}

// What another thread gets when it tries; it gives the lock back at once.
bool OtherThreadGets(Vornwald::SynchObject& lock, int milliseconds)
{
    bool got = false;
    std::thread(
        [&]
        {
            got = lock.TryLock(milliseconds);
            if (got)
            {
                lock.Unlock();
            }
        })
        .join();
    return got;
}

} // namespace

TEST(CriticalSectionOfTheApplication, KeepsOthersOutUntilItIsGivenBack)
{
    for (const DWORD spinCount : {0u, 4000u})
    {
        const Lock lock = MakeLock(spinCount);
        ASSERT_NE(lock, nullptr);
        EXPECT_TRUE(lock->Lock());
        EXPECT_FALSE(OtherThreadGets(*lock, 0));
        lock->Unlock();
        EXPECT_TRUE(OtherThreadGets(*lock, 0));
    }
}

TEST(CriticalSectionOfTheApplication, TheSameThreadTakesItAgain)
{
    const Lock lock = MakeLock(0);
    EXPECT_TRUE(lock->Lock());
    EXPECT_TRUE(lock->Lock());
    EXPECT_TRUE(lock->TryLock(0));
    lock->Unlock();
    lock->Unlock();
    EXPECT_FALSE(OtherThreadGets(*lock, 0));
    lock->Unlock();
    EXPECT_TRUE(OtherThreadGets(*lock, 0));
}

TEST(CriticalSectionOfTheApplication, ATryGivesUpAfterItsTime)
{
    const Lock lock = MakeLock(0);
    lock->Lock();
    EXPECT_FALSE(OtherThreadGets(*lock, 20));
    EXPECT_FALSE(OtherThreadGets(*lock, -5));
    lock->Unlock();
}

TEST(CriticalSectionOfTheApplication, ATryWaitsForAHolderThatLeavesInTime)
{
    const Lock lock = MakeLock(0);
    lock->Lock();
    bool got = false;
    std::thread waiter(
        [&]
        {
            got = lock->TryLock(60'000);
            if (got)
            {
                lock->Unlock();
            }
        });
    lock->Unlock();
    waiter.join();
    EXPECT_TRUE(got);
}

TEST(CriticalSectionOfTheApplication, CountsRightlyOverThreads)
{
    const Lock lock = MakeLock(100);
    int count = 0;
    const auto work = [&]
    {
        for (int i = 0; i < 5000; ++i)
        {
            lock->Lock();
            ++count;
            lock->Unlock();
        }
    };
    std::thread other(work);
    work();
    other.join();
    EXPECT_EQ(count, 10'000);
}

TEST(SynchObject, OperationsStandInTheInterfacesOrder)
{
    EXPECT_EQ(SlotOf(&Vornwald::SynchObject::Lock), 0);
    EXPECT_EQ(SlotOf(&Vornwald::SynchObject::Unlock), 1);
    EXPECT_EQ(SlotOf(&Vornwald::SynchObject::TryLock), 2);
}
