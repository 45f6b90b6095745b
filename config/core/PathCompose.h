#pragma once

#include "config/core/DefinedPaths.h"

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace vorn
{

/// The text with a backslash at its end, added only where none stands. An empty text becomes "\".
std::string WithBackslash(std::string_view folder);

/// The text without every occurrence of `piece`, from left to right in one pass.
std::string Without(std::string_view text, std::string_view piece);

/// The text up to and including its last backslash; empty without one.
std::string_view UpToLastBackslash(std::string_view path);

/// Last folder of a path that ends in a backslash: what stands before that last character, behind the backslash before
/// it.
std::string_view LastFolderName(std::string_view folder);

/// What stands in Home before the first "Vornwald\"; the whole of it where that does not occur.
std::string_view RootOfHome(std::string_view home);

/// Whether a file name ends in ".dat", whatever its case. The bare ".dat" does.
bool EndsInDat(std::string_view fileName);

/// Home and Root of a server installation without network use.
struct ServerFolders
{
    std::string home;
    std::string root;
};

/// Both are the installation folder; Home goes on with the application's name where one was given, and Root ends before
/// a "Vornwald" that stands behind the folder's first character.
ServerFolders ServerFoldersOf(std::string_view installation, std::string_view application);

/// The data folder of a server installation in the network: its theme path without "VornView3\Themes".
std::string ServerDataFolder(std::string_view themePath);

/// The executable folder without every "Vornwald\MODULE"; a separator that this leaves doubled stays.
std::string InstallationRoot(std::string_view executableFolder, std::string_view module);

/// What a composed folder needs to know of its application.
struct ComposeFacts
{
    std::string_view module;     ///< the application's folder name
    std::string_view commonData; ///< common application data, with its backslash
    bool inNetwork = false;      ///< a server installation with network use: no "Vornwald\" parts
};

/// `base` with the part that `beneath` names and the subfolder. Without a subfolder (not given at all) no backslash is
/// forced.
std::string ComposedFolder(std::string_view base, VornPath beneath, const ComposeFacts& facts,
                           std::optional<std::string_view> subfolder);

/// Row of the defined path that a composed folder starts from, or nothing for the installation root.
std::optional<DefinedPath> RowOfKnownPath(KnownPath known);

/// What filling a layout asks of an application's record.
class PathSource
{
public:
    virtual ~PathSource() = default;

    virtual std::string Field(PathField field) const = 0;
    virtual std::string Setting(const char* key, const std::string& standard, const char* section) = 0;
    virtual std::string AirportDiagrams(const char* key, const std::string& first, const std::string& second) = 0;
    virtual std::string Known(KnownPath base, VornPath beneath, const char* subfolder) = 0;
    virtual void Add(DefinedPath path, const std::string& folder) = 0;
};

/// Works out every defined path of a layout in ascending order and hands each over as soon as it is known.
void FillLayout(PathCfgVer layout, PathSource& source);

/// Airport diagrams: a setting that is not empty as it stands; else the first folder where `holdsDat(folder)` says so,
/// else the second. The first folder has a backslash at its end.
std::string ChooseDiagramFolder(std::string_view setting, std::string_view first, std::string_view second,
                                const std::function<bool(const std::string&)>& holdsDat);

} // namespace vorn
