#include "frame/ProgramVersion.h"

#include "config/FolderNames.h"
#include "config/IniFile.h"
#include "frame/MappedFile.h"
#include "frame/QuietErrors.h"
#include "frame/core/FixedFileInfo.h"
#include "frame/core/ProgramRules.h"
#include "frame/core/VersionResource.h"

#include <string>

namespace
{
constexpr const char* kPathsSection = "Paths";
constexpr std::size_t kLongestFolder = 259; // characters of a value with its zero: the system's path limit

std::string FamilyIni()
{
    const std::string& windows = vorn::SystemFolders().windows;
    return windows + (windows.ends_with('\\') ? "" : "\\") + "Vornwald.ini";
}

std::string InstallationFolder(const char* pathKey)
{
    const std::string ini = FamilyIni();
    // Without a key the system would answer with the names of all keys.
    std::string folder = pathKey ? vorn::IniValue(ini, kPathsSection, pathKey, kLongestFolder) : std::string();
    if (folder.empty())
    {
        folder = vorn::IniValue(ini, kPathsSection, "SetupDir", kLongestFolder);
    }
    return folder.empty() ? std::string("C:\\Vornwald\\") : folder;
}

std::optional<vorn::ProgramVersion> InstalledVersion(const std::string& file)
{
    const vorn::QuietErrors quiet;
    const vorn::MappedFile program(file);
    return vorn::ProductVersion(vorn::VersionResourceOf(program.Content()));
}

/// 0 when the sibling is there in too old a version.
int SiblingFlag(const vorn::SiblingRule& rule)
{
    vorn::ProgramVersion version;
    const bool known = GetProgramVersion(rule.product, rule.pathKey, version.major, version.minor) == 1;
    return !known || rule.IsMetBy(version);
}
} // namespace

int GetProgramVersion(const char* product, const char* pathKey, int& major, int& minor)
{
    if (!product || !*product)
    {
        return 1;
    }
    const char* file = vorn::ProgramFile(product);
    if (!file)
    {
        return -1;
    }
    const auto path = vorn::ProgramPath(InstallationFolder(pathKey), file);
    const auto version = path ? InstalledVersion(*path) : std::nullopt;
    if (!version)
    {
        return 0;
    }
    major = version->major;
    minor = version->minor;
    return 1;
}

BOOL CheckRPCompatibility(const char* product, int& plannerOk, int& viewerOk)
{
    plannerOk = 1;
    viewerOk = 1;
    if (const vorn::SiblingRules* rules = product ? vorn::FindSiblingRules(product) : nullptr)
    {
        plannerOk = SiblingFlag(rules->first);
        viewerOk = SiblingFlag(rules->second);
    }
    return plannerOk && viewerOk;
}
