#include "tests/windows/files_search/ShellDialog.h"

#include <commctrl.h>

namespace vorn::test
{

namespace
{

// Children of the dialog, by the numbers that the system gives them.
constexpr int kTitle = 14146;
constexpr int kNewFolderButton = 14150;

HTREEITEM Relative(HWND tree, WPARAM relation, HTREEITEM item)
{
    return reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

std::string TextOf(HWND tree, HTREEITEM item)
{
    char text[MAX_PATH] = "";
    TVITEMA info = {};
    info.mask = TVIF_TEXT;
    info.hItem = item;
    info.pszText = text;
    info.cchTextMax = MAX_PATH;
    SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&info));
    return text;
}

} // namespace

ShellDialog::ShellDialog(HWND window) : m_window(window), m_tree(FindWindowExA(window, nullptr, WC_TREEVIEWA, nullptr))
{
}

ShellDialog ShellDialog::Shown()
{
    return ShellDialog(FindDialog("Browse for Folder"));
}

std::string ShellDialog::Title() const
{
    char text[MAX_PATH] = "";
    GetDlgItemTextA(m_window, kTitle, text, MAX_PATH);
    return text;
}

bool ShellDialog::HasNewFolderButton() const
{
    const HWND button = GetDlgItem(m_window, kNewFolderButton);
    return button != nullptr && IsWindowVisible(button);
}

std::vector<std::string> ShellDialog::Selection() const
{
    std::vector<std::string> texts;
    for (HTREEITEM item = Relative(m_tree, TVGN_CARET, nullptr); item != nullptr;
         item = Relative(m_tree, TVGN_PARENT, item))
    {
        texts.push_back(TextOf(m_tree, item));
    }
    return texts;
}

bool ShellDialog::IsAt(const std::filesystem::path& folder) const
{
    const std::vector<std::string> texts = Selection();
    std::size_t level = 0;
    for (std::filesystem::path part = folder; part != part.root_path(); part = part.parent_path())
    {
        if (level >= texts.size() || texts[level++] != part.filename().string())
        {
            return false;
        }
    }
    const std::string drive = "(" + folder.root_name().string() + ")";
    return level < texts.size() && texts[level].find(drive) != std::string::npos;
}

bool ShellDialog::SelectComputer() const
{
    const HTREEITEM root = Relative(m_tree, TVGN_ROOT, nullptr);
    for (HTREEITEM item = Relative(m_tree, TVGN_CHILD, root); item != nullptr; item = Relative(m_tree, TVGN_NEXT, item))
    {
        if (TextOf(m_tree, item).find("Computer") != std::string::npos)
        {
            return SendMessageA(m_tree, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item)) != FALSE;
        }
    }
    return false;
}

void ShellDialog::Press(int button) const
{
    PostMessageA(m_window, WM_COMMAND, static_cast<WPARAM>(button), 0);
}

DialogDriver::Step PressAt(const std::filesystem::path& folder, int button)
{
    return [=]
    {
        const ShellDialog dialog = ShellDialog::Shown();
        const bool isReady = dialog && dialog.IsAt(folder);
        if (isReady)
        {
            dialog.Press(button);
        }
        return isReady;
    };
}

void ListFolders(const std::filesystem::path& folder)
{
    for (std::filesystem::path level = folder; level != level.root_path(); level = level.parent_path())
    {
        std::error_code ignored;
        for (const auto& entry : std::filesystem::directory_iterator(level, ignored))
        {
            static_cast<void>(entry.is_directory(ignored));
        }
    }
}

} // namespace vorn::test
