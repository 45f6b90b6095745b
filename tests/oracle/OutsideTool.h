#pragma once

#include <string>
#include <vector>

namespace vorn::test
{

/// Runs a program of the system with these arguments and gives what it printed on its standard output; its error texts
/// join the test's own. Throws when the program is not installed or ends with another status than 0, so that a missing
/// tool fails the test.
std::string RunTool(const std::vector<std::string>& words);

} // namespace vorn::test
