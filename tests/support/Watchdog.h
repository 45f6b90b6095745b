#pragma once

namespace vorn::test
{

/// Starts a thread that ends the process with kWatchdogExitCode, naming the test, when one test
/// runs longer than the limit: 60 s, or the number of seconds in the environment variable
/// VORN_TEST_LIMIT (0 switches the watchdog off).
void StartWatchdog();

/// Gives the test that begins now the whole limit again.
void RestartWatchdog();

} // namespace vorn::test
