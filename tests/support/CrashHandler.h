#pragma once

namespace vorn::test
{

/// From here on a crash (access violation, abort, uncaught exception, ...) prints what happened,
/// in which test and from where, and ends the process with kCrashExitCode. No dialog appears.
/// Under a sanitizer the sanitizer's own report stays in charge. Call on the main thread.
void InstallCrashHandler();

/// Prints that the running test hangs and where the main thread stands, and ends the process
/// with kWatchdogExitCode. Called on the watchdog's thread.
[[noreturn]] void EndAsHung(int seconds);

} // namespace vorn::test
