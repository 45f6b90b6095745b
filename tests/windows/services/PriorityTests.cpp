#include "frame/PriorityBoost.h"

#include "framework/window/CWinThread.h"

#include <gtest/gtest.h>

#include <thread>
#include <type_traits>

namespace
{

DWORD ProcessClass()
{
    return GetPriorityClass(GetCurrentProcess());
}

int ThreadPriority()
{
    return GetThreadPriority(GetCurrentThread());
}

// What a thread of the framework saw of its own priority: before, within and after a boost.
struct Seen
{
    int before = 0;
    int within = 0;
    int after = 0;
};

void Boost(Seen& seen, int priority)
{
    seen.before = ThreadPriority();
    {
        const ThreadPriorityBoost boost(priority);
        seen.within = ThreadPriority();
    }
    seen.after = ThreadPriority();
}

UINT __cdecl BoostFrameworkThread(LPVOID seen)
{
    Boost(*static_cast<Seen*>(seen), THREAD_PRIORITY_HIGHEST);
    return 0;
}

} // namespace

TEST(AppPriorityBoost, LastsAsLongAsItsScope)
{
    ASSERT_EQ(ProcessClass(), static_cast<DWORD>(NORMAL_PRIORITY_CLASS));
    {
        const AppPriorityBoost boost(ABOVE_NORMAL_PRIORITY_CLASS);
        EXPECT_EQ(ProcessClass(), static_cast<DWORD>(ABOVE_NORMAL_PRIORITY_CLASS));
        {
            const AppPriorityBoost drop(IDLE_PRIORITY_CLASS);
            EXPECT_EQ(ProcessClass(), static_cast<DWORD>(IDLE_PRIORITY_CLASS));
        }
        EXPECT_EQ(ProcessClass(), static_cast<DWORD>(ABOVE_NORMAL_PRIORITY_CLASS));
    }
    EXPECT_EQ(ProcessClass(), static_cast<DWORD>(NORMAL_PRIORITY_CLASS));
}

TEST(AppPriorityBoost, EndsWhenAnExceptionEndsItsScope)
{
    EXPECT_THROW(
        {
            const AppPriorityBoost boost(HIGH_PRIORITY_CLASS);
            EXPECT_EQ(ProcessClass(), static_cast<DWORD>(HIGH_PRIORITY_CLASS));
            throw 1;
        },
        int);
    EXPECT_EQ(ProcessClass(), static_cast<DWORD>(NORMAL_PRIORITY_CLASS));
}

TEST(AppPriorityBoost, ToAnUnknownClassChangesNothing)
{
    const AppPriorityBoost boost(0xFFFFFFFF);
    EXPECT_EQ(ProcessClass(), static_cast<DWORD>(NORMAL_PRIORITY_CLASS));
}

TEST(ThreadPriorityBoost, LastsAsLongAsItsScope)
{
    Seen seen;
    Boost(seen, THREAD_PRIORITY_ABOVE_NORMAL);
    EXPECT_EQ(seen.before, THREAD_PRIORITY_NORMAL);
    EXPECT_EQ(seen.within, THREAD_PRIORITY_ABOVE_NORMAL);
    EXPECT_EQ(seen.after, THREAD_PRIORITY_NORMAL);
}

TEST(ThreadPriorityBoost, EndsWhenAnExceptionEndsItsScope)
{
    EXPECT_THROW(
        {
            const ThreadPriorityBoost boost(THREAD_PRIORITY_HIGHEST);
            EXPECT_EQ(ThreadPriority(), THREAD_PRIORITY_HIGHEST);
            throw 1;
        },
        int);
    EXPECT_EQ(ThreadPriority(), THREAD_PRIORITY_NORMAL);
}

TEST(ThreadPriorityBoost, ActsOnTheFrameworksCurrentThread)
{
    Seen seen;
    CWinThread* thread =
        AfxBeginThread(&BoostFrameworkThread, &seen, THREAD_PRIORITY_BELOW_NORMAL, 0, CREATE_SUSPENDED);
    ASSERT_NE(thread, nullptr);
    thread->m_bAutoDelete = FALSE;
    thread->ResumeThread();
    EXPECT_EQ(WaitForSingleObject(thread->m_hThread, 10'000), static_cast<DWORD>(WAIT_OBJECT_0));
    delete thread; // the framework leaves it to the caller
    EXPECT_EQ(seen.before, THREAD_PRIORITY_BELOW_NORMAL);
    EXPECT_EQ(seen.within, THREAD_PRIORITY_HIGHEST);
    EXPECT_EQ(seen.after, THREAD_PRIORITY_BELOW_NORMAL);
    EXPECT_EQ(ThreadPriority(), THREAD_PRIORITY_NORMAL);
}

TEST(ThreadPriorityBoost, ActsOnAThreadThatTheFrameworkDoesNotKnow)
{
    Seen seen;
    std::thread(
        [&]
        {
            Boost(seen, THREAD_PRIORITY_LOWEST);
        })
        .join();
    EXPECT_EQ(seen.within, THREAD_PRIORITY_LOWEST);
    EXPECT_EQ(seen.after, THREAD_PRIORITY_NORMAL);
    EXPECT_EQ(ThreadPriority(), THREAD_PRIORITY_NORMAL);
}

TEST(ThreadPriorityBoost, ToAnUnknownPriorityChangesNothing)
{
    Seen seen;
    Boost(seen, 1000);
    EXPECT_EQ(seen.within, THREAD_PRIORITY_NORMAL);
}

TEST(PriorityBoosts, AreNotCopied)
{
    EXPECT_FALSE(std::is_copy_constructible_v<AppPriorityBoost>);
    EXPECT_FALSE(std::is_copy_assignable_v<AppPriorityBoost>);
    EXPECT_FALSE(std::is_copy_constructible_v<ThreadPriorityBoost>);
    EXPECT_FALSE(std::is_copy_assignable_v<ThreadPriorityBoost>);
}
