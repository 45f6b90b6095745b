#pragma once

#include "frame/core/Export.h"

#include <windows.h>

/// @file
/// Other priorities for the length of a scope.

/// Gives the process another priority class while it lives.
class VORNCOMMON_API AppPriorityBoost
{
public:
    /// @param priorityClass the system's HIGH_PRIORITY_CLASS and so on; a class that the system refuses changes
    /// nothing.
    explicit AppPriorityBoost(DWORD priorityClass);
    AppPriorityBoost(const AppPriorityBoost&) = delete;
    AppPriorityBoost& operator=(const AppPriorityBoost&) = delete;
    ~AppPriorityBoost();

private:
    HANDLE m_process;
    DWORD m_before;
};

/// Gives the framework's current thread another priority while it lives; a thread that the framework does not know
/// changes its own.
class VORNCOMMON_API ThreadPriorityBoost
{
public:
    /// @param priority the system's THREAD_PRIORITY_ABOVE_NORMAL and so on; one that the system refuses changes
    /// nothing.
    explicit ThreadPriorityBoost(int priority);
    ThreadPriorityBoost(const ThreadPriorityBoost&) = delete;
    ThreadPriorityBoost& operator=(const ThreadPriorityBoost&) = delete;
    ~ThreadPriorityBoost();

private:
    HANDLE m_thread;
    int m_before;
};
