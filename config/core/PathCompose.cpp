#include "config/core/PathCompose.h"

#include "frame/core/TextCase.h"

#include <algorithm>

namespace vorn
{

namespace
{

constexpr std::string_view kFamilyFolder = "Vornwald\\";
constexpr std::string_view kFamilyName = "Vornwald";
constexpr std::string_view kThemesTail = "VornView3\\Themes";

std::string AppFolder(std::string_view base, std::string_view module)
{
    std::string folder(base);
    folder += kFamilyFolder;
    folder += module;
    folder += '\\';
    return folder;
}

std::string Beneath(std::string_view base, VornPath beneath, const ComposeFacts& facts)
{
    switch (beneath)
    {
    case VP_VORN:
        return std::string(base).append(kFamilyFolder);
    case VP_APP:
        return AppFolder(base, facts.module);
    case VP_COMMON:
        return AppFolder(base, "Common");
    case VP_COMMONAPPDATA:
        return AppFolder(facts.commonData, facts.module);
    default:
        return std::string(base);
    }
}

} // namespace

std::string WithBackslash(std::string_view folder)
{
    std::string result(folder);
    if (!result.ends_with('\\'))
        result += '\\';
    return result;
}

std::string Without(std::string_view text, std::string_view piece)
{
    std::string result;
    while (!piece.empty())
    {
        const std::size_t at = text.find(piece);
        if (at == std::string_view::npos)
            break;
        result += text.substr(0, at);
        text.remove_prefix(at + piece.size());
    }
    return result.append(text);
}

std::string_view UpToLastBackslash(std::string_view path)
{
    return path.substr(0, path.rfind('\\') + 1);
}

std::string_view LastFolderName(std::string_view folder)
{
    const std::string_view inner = folder.substr(0, std::max<std::size_t>(folder.size(), 1) - 1);
    return inner.substr(inner.rfind('\\') + 1);
}

std::string_view RootOfHome(std::string_view home)
{
    return home.substr(0, home.find(kFamilyFolder));
}

bool EndsInDat(std::string_view fileName)
{
    constexpr std::string_view ending = ".dat";
    return fileName.size() >= ending.size() && EqualsNoCase(fileName.substr(fileName.size() - ending.size()), ending);
}

ServerFolders ServerFoldersOf(std::string_view installation, std::string_view application)
{
    const std::string folder = WithBackslash(installation);
    ServerFolders result{folder, folder};
    if (!application.empty())
        result.home.append(application).append("\\");
    const std::size_t family = folder.find(kFamilyName);
    if (family != std::string::npos && family > 0)
        result.root.resize(family);
    return result;
}

std::string ServerDataFolder(std::string_view themePath)
{
    return Without(themePath, kThemesTail);
}

std::string InstallationRoot(std::string_view executableFolder, std::string_view module)
{
    return Without(executableFolder, std::string(kFamilyFolder).append(module));
}

std::string ComposedFolder(std::string_view base, VornPath beneath, const ComposeFacts& facts,
                           std::optional<std::string_view> subfolder)
{
    std::string folder = Beneath(base, beneath, facts);
    if (facts.inNetwork)
        folder = Without(Without(folder, "Vornwald\\Vornwald\\"), kFamilyFolder);
    return subfolder ? WithBackslash(folder.append(*subfolder)) : folder;
}

std::optional<DefinedPath> RowOfKnownPath(KnownPath known)
{
    if (known < KP_ROOT || known > KP_PROGRAMFILES)
        return std::nullopt;
    return static_cast<DefinedPath>(known + 1);
}

std::string ChooseDiagramFolder(std::string_view setting, std::string_view first, std::string_view second,
                                const std::function<bool(const std::string&)>& holdsDat)
{
    if (!setting.empty())
        return std::string(setting);
    std::string folder = WithBackslash(first);
    return holdsDat(folder) ? folder : std::string(second);
}

} // namespace vorn
