#pragma once

/// @file
/// A lock that needs neither constructor nor destructor code: for state that must work before the first
/// static object is made and after the last one has gone.
#include <atomic>
#include <thread>

namespace vorn
{
/// For sections of a few instructions. Not recursive.
class SpinLock
{
public:
    void lock() noexcept
    {
        while (!try_lock())
        {
            std::this_thread::yield();
        }
    }
    bool try_lock() noexcept
    {
        return !m_locked.exchange(true, std::memory_order_acquire);
    }
    void unlock() noexcept
    {
        m_locked.store(false, std::memory_order_release);
    }

private:
    std::atomic<bool> m_locked{false};
};
} // namespace vorn
