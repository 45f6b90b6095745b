#pragma once

#include "apps/vorntool/core/Command.h"

/// @file
/// The tool's groups of commands, each in a file of its own. A new group is declared here and entered in Commands.cpp.
namespace vorn::tool
{

const CommandGroup& SettingsCommands();
const CommandGroup& UnitsCommands();
const CommandGroup& PathsCommands();
const CommandGroup& FormatCommands();
const CommandGroup& ParseCommands();
const CommandGroup& DateCommands();
const CommandGroup& FindCommands();
const CommandGroup& StatsCommands();
const CommandGroup& VersionCommands();
const CommandGroup& DbfCommands();
const CommandGroup& RegistryCommands();
const CommandGroup& ProxyCommands();
const CommandGroup& LogCommands();
const CommandGroup& UriCommands();
const CommandGroup& MorseCommands();
const CommandGroup& ProjectionCommands();
const CommandGroup& ChartCommands();
const CommandGroup& ImageCommands();
const CommandGroup& HelpCommands();

/// The whole tool with all its commands.
Tool VornTool();

} // namespace vorn::tool
