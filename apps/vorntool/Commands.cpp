#include "apps/vorntool/Commands.h"

namespace vorn::tool
{

Tool VornTool()
{
    static const CommandGroup groups[] = {SettingsCommands(), UnitsCommands(),      PathsCommands(),  FormatCommands(),
                                          ParseCommands(),    DateCommands(),       DbfCommands(),    FindCommands(),
                                          MorseCommands(),    ProjectionCommands(), ImageCommands(),  StatsCommands(),
                                          RegistryCommands(), ProxyCommands(),      UriCommands(),    LogCommands(),
                                          ChartCommands(),    HelpCommands(),       VersionCommands()};
    return {"Looks into an installation of the Vornwald applications.", VORN_VERSION, groups};
}

} // namespace vorn::tool
