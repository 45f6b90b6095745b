#include "tests/support/Watchdog.h"
#include "tests/support/CrashHandler.h"

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <thread>

namespace vorn::test
{

namespace
{

using Clock = std::chrono::steady_clock;

std::atomic<Clock::rep> s_begin{0};

std::chrono::seconds Limit()
{
    const char* text = std::getenv("VORN_TEST_LIMIT");
    return std::chrono::seconds(text != nullptr ? std::atol(text) : 60);
}

void Watch(std::chrono::seconds limit)
{
    for (;;)
    {
        std::this_thread::sleep_for(std::chrono::milliseconds(200));
        const Clock::time_point begin{Clock::duration(s_begin.load())};
        if (Clock::now() - begin > limit)
        {
            EndAsHung(static_cast<int>(limit.count()));
        }
    }
}

} // namespace

void StartWatchdog()
{
    RestartWatchdog();
    if (Limit().count() > 0)
    {
        std::thread(Watch, Limit()).detach();
    }
}

void RestartWatchdog()
{
    s_begin = Clock::now().time_since_epoch().count();
}

} // namespace vorn::test
