#pragma once

#include <string>
#include <vector>

/// A program or library of the family that this process has loaded.
struct ModuleVersion
{
    std::string fileName;
    std::string version; ///< product version, three numbers; "no version" for a file without one
};

/// The sample itself and the libraries of the family that it runs on.
std::vector<ModuleVersion> LoadedModules();
