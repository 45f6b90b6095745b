#pragma once

/// @file
/// Exit codes by which a test program says that it did not come to its end by itself.
namespace vorn::test
{

inline constexpr int kCrashExitCode = 97;
inline constexpr int kWatchdogExitCode = 98;

} // namespace vorn::test
