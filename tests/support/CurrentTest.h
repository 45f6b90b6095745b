#pragma once

#include <string>

namespace vorn::test
{

/// "Suite.Test" of the test that runs now, or "(no test)" between tests. Safe in a crash handler:
/// it reads names that the test library has stored before.
const char* CurrentTestName();

/// A file-name-safe name of the running test ("Suite_Test"), for scratch folders and keys.
std::string CurrentTestFileName();

/// What the running test does at this moment, for the report of a crash; "" when it said nothing.
const char* CrashNote();
void SetCrashNote(const std::string& note);

/// Has CurrentTestName follow the test events of this program. Called once by the test main.
void FollowCurrentTest();

} // namespace vorn::test
