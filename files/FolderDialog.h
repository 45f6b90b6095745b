#pragma once

#include <windows.h>

#include <string>

namespace vorn
{

/// How a folder was chosen, or why not.
enum class FolderChoice : int
{
    Chosen = 1,
    Cancelled = 2,
    Failed = 3
};

/// What the system's folder dialog is to show.
struct FolderDialog
{
    HWND owner = nullptr;
    const char* title = nullptr; ///< the standing one when null or empty
    bool newFolderButton = true;
    std::string startFolder; ///< where the tree opens; none when empty

    /// Shows the dialog until it is answered. @p folder is written only when one is chosen.
    FolderChoice Show(std::string& folder) const;
};

} // namespace vorn
