#pragma once

#include <string>

namespace vorn
{
/// Folders of the system in which settings files stand, without a backslash at the end.
struct FolderNames
{
    std::string windows;
    std::string localData; ///< the user's; empty when the shell knows none
};

/// Asked of the system on the first call and kept: asking the shell costs more than a settings read.
const FolderNames& SystemFolders();
} // namespace vorn
