#pragma once

#include <windows.h>

#include <chrono>
#include <functional>

namespace vorn::test
{

inline constexpr std::chrono::milliseconds kPumpDeadline{5000};

/// Dispatches this thread's messages until the condition holds; false when the deadline comes first.
/// The condition is asked before the first message, after each one, and every few milliseconds.
bool PumpUntil(const std::function<bool()>& condition, std::chrono::milliseconds deadline = kPumpDeadline);

/// Dispatches the messages that wait now, and no more.
void PumpWaiting();

} // namespace vorn::test
