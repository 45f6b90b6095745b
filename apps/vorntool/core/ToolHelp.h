#pragma once

#include "apps/vorntool/core/Command.h"

namespace vorn::tool
{

/// Help on the tool as a whole: every group with its commands, and how to learn more.
std::string HelpOn(const Tool& tool);

/// Help on one group: its commands with their arguments.
std::string HelpOn(const CommandGroup& group);

/// Help on one command: how it is called, what it does, its options and exit status.
std::string HelpOn(const Command& command);

} // namespace vorn::tool
