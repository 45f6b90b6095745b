#include "frame/CriticalSectionLock.h"
#include "frame/Win32CriticalSection.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <thread>
#include <type_traits>

using Vornwald::SynchObject;
using Vornwald::Win32CriticalSection;

namespace
{

// A system critical section whose record the test may look into.
class Section
{
public:
    Section()
    {
        InitializeCriticalSection(&m_section);
    }
    ~Section()
    {
        DeleteCriticalSection(&m_section);
    }
    Section(const Section&) = delete;
    Section& operator=(const Section&) = delete;

    CRITICAL_SECTION* Record()
    {
        return &m_section;
    }

    // Whether another thread can enter it now.
    bool IsFree()
    {
        bool isFree = false;
        std::thread other(
            [&]
            {
                isFree = TryEnterCriticalSection(&m_section) != FALSE;
                if (isFree)
                {
                    LeaveCriticalSection(&m_section);
                }
            });
        other.join();
        return isFree;
    }

private:
    CRITICAL_SECTION m_section;
};

// Counts on two threads with a lock held around each step.
int CountOnTwoThreads(SynchObject& lock)
{
    int count = 0;
    const auto work = [&]
    {
        for (int i = 0; i < 20'000; ++i)
        {
            lock.Lock();
            ++count;
            lock.Unlock();
        }
    };
    std::thread other(work);
    work();
    other.join();
    return count;
}

// Whether another thread gets the lock only after this one has given it back.
bool WaitsForItsTurn(SynchObject& lock)
{
    bool isHeld = true;
    bool cameAfter = false;
    lock.Lock();
    std::thread other(
        [&]
        {
            lock.Lock();
            cameAfter = !isHeld;
            lock.Unlock();
        });
    Sleep(20); // time for the other thread to get through where it should not
    isHeld = false;
    lock.Unlock();
    other.join();
    return cameAfter;
}

} // namespace

TEST(Win32CriticalSection, LetsOneThreadInAtATime)
{
    for (const DWORD spinCount : {0u, 4000u})
    {
        Win32CriticalSection lock(spinCount);
        EXPECT_EQ(CountOnTwoThreads(lock), 40'000);
        EXPECT_TRUE(WaitsForItsTurn(lock));
    }
}

TEST(Win32CriticalSection, SaysThatItIsHeldAlsoToTheThreadThatHoldsIt)
{
    Win32CriticalSection lock(0);
    EXPECT_TRUE(lock.Lock());
    EXPECT_TRUE(lock.Lock());
    lock.Unlock();
    lock.Unlock();
}

TEST(Win32CriticalSection, IsNeverTakenByATry)
{
    Win32CriticalSection lock(0);
    EXPECT_FALSE(lock.TryLock(0));
    EXPECT_FALSE(lock.TryLock(60'000));
    lock.Lock();
    EXPECT_FALSE(lock.TryLock(0));
    lock.Unlock();
}

TEST(Win32CriticalSection, IsDeletedThroughItsBase)
{
    const std::unique_ptr<SynchObject> lock = std::make_unique<Win32CriticalSection>(0);
    EXPECT_TRUE(lock->Lock());
    lock->Unlock();
}

TEST(Win32CriticalSection, CopiesLeaveTheOriginalUsable)
{
    Win32CriticalSection lock(0);
    {
        const Win32CriticalSection copy(lock);
        Win32CriticalSection assigned(4000);
        assigned = lock;
        assigned = copy;
    }
    EXPECT_EQ(CountOnTwoThreads(lock), 40'000);
}

TEST(Win32CriticalSection, IsCopiedByteForByte)
{
    struct Opened : Win32CriticalSection
    {
        using Win32CriticalSection::Win32CriticalSection;
        // The record stands behind the pointer to the table of operations.
        const CRITICAL_SECTION& Record() const
        {
            return *reinterpret_cast<const CRITICAL_SECTION*>(reinterpret_cast<const char*>(this) + sizeof(void*));
        }
    };
    const Opened lock(123);
    const Opened copy(lock);
    EXPECT_EQ(std::memcmp(&copy.Record(), &lock.Record(), sizeof(CRITICAL_SECTION)), 0);
    Opened assigned(4000);
    assigned = lock;
    EXPECT_EQ(std::memcmp(&assigned.Record(), &lock.Record(), sizeof(CRITICAL_SECTION)), 0);
    EXPECT_EQ(lock.Record().LockCount, -1);
    EXPECT_EQ(lock.Record().OwningThread, nullptr);
}

TEST(Win32CriticalSection, AssignedToItselfStaysALock)
{
    Win32CriticalSection lock(0);
    const Win32CriticalSection& same = lock;
    lock = same;
    EXPECT_EQ(CountOnTwoThreads(lock), 40'000);
}

TEST(CriticalSectionLock, HoldsTheSectionForItsScope)
{
    Section section;
    {
        const CriticalSectionLock lock(section.Record());
        EXPECT_FALSE(section.IsFree());
        {
            const CriticalSectionLock again(section.Record());
        }
        EXPECT_FALSE(section.IsFree());
    }
    EXPECT_TRUE(section.IsFree());
}

TEST(CriticalSectionLock, LeavesTheSectionWhenAnExceptionEndsItsScope)
{
    Section section;
    EXPECT_THROW(
        {
            const CriticalSectionLock lock(section.Record());
            throw 1;
        },
        int);
    EXPECT_TRUE(section.IsFree());
}

TEST(CriticalSectionLock, IsNotCopied)
{
    EXPECT_FALSE(std::is_copy_constructible_v<CriticalSectionLock>);
    EXPECT_FALSE(std::is_copy_assignable_v<CriticalSectionLock>);
}
