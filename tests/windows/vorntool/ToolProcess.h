#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace vorn::test
{

/// What a run of the tool left behind.
struct ToolRun
{
    unsigned long status;
    std::string text;   ///< standard output, every byte
    std::string errors; ///< standard error, every byte
};

/// Runs vorntool.exe, which stands beside the test program, with the given words (UTF-8) and both streams piped.
ToolRun RunVornTool(const std::vector<std::string>& words);

/// Expects success with exactly this output and nothing on standard error.
void ExpectDone(const std::vector<std::string>& words, const std::string& text);

/// Expects a status other than 0, no output and exactly this one line on standard error (without its end).
void ExpectFailure(const std::vector<std::string>& words, unsigned long status, const std::string& error);

} // namespace vorn::test
