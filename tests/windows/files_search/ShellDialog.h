#pragma once

#include "tests/support/DialogDriver.h"

#include <filesystem>
#include <string>
#include <vector>

namespace vorn::test
{

/// The system's folder dialog of this thread, while it is shown.
class ShellDialog
{
public:
    /// The dialog shown now; operator bool says whether there is one.
    static ShellDialog Shown();

    explicit operator bool() const
    {
        return m_window != nullptr;
    }
    HWND Window() const
    {
        return m_window;
    }

    /// The line above the tree.
    std::string Title() const;
    bool HasNewFolderButton() const;
    /// The texts from the selected item of the tree up to its root: "Charts", "Data", ..., "Desktop".
    std::vector<std::string> Selection() const;
    /// Whether the tree's selection is this folder, which has a drive.
    bool IsAt(const std::filesystem::path& folder) const;
    /// Selects the item that holds the drives, which is no folder; whether it was found.
    bool SelectComputer() const;

    void Press(int button) const;

private:
    explicit ShellDialog(HWND window);

    HWND m_window;
    HWND m_tree;
};

/// Presses the button as soon as the dialog is at the folder; fails the test when it does not come there.
DialogDriver::Step PressAt(const std::filesystem::path& folder, int button);

/// Reads the folder's entries: the system's tree does not see folders just made before somebody has.
void ListFolders(const std::filesystem::path& folder);

} // namespace vorn::test
