#pragma once

#include "apps/vorntool/core/Command.h"

namespace vorn::tool
{

/// Finds the command that the words call, runs it or prints the help that they ask for. No exception leaves it: a
/// command that throws has refused.
ExitStatus RunTool(const Tool& tool, std::span<const std::string> words, Output& output);

} // namespace vorn::tool
