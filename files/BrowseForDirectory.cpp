#include "files/BrowseForDirectory.h"

#include "files/FolderDialog.h"
#include "framework/window/CWnd.h"

#include <cstring>

using vorn::FolderChoice;
using vorn::FolderDialog;

namespace
{

// The system's limit, with the end of the text.
constexpr int kPathRoom = MAX_PATH;

CString WithBackslash(const CString& path)
{
    return path + (path.Right(1) == "\\" ? "" : "\\");
}

CString CurrentFolder()
{
    char folder[kPathRoom] = "";
    const DWORD length = GetCurrentDirectoryA(kPathRoom, folder);
    return length < kPathRoom ? folder : "";
}

CString WithoutSeparator(const CString& path)
{
    const CString last = path.Right(1);
    return last == "\\" || last == "/" ? path.Left(path.GetLength() - 1) : path;
}

} // namespace

int BrowseForDirectory(const char* buffer, int bufferSize, const char* title, bool newFolderButton, CWnd* owner)
{
    OutputDebugStringA("PathFileUtilities, BrowseForDirectory\n");
    if (buffer == nullptr || bufferSize < kPathRoom)
    {
        return static_cast<int>(FolderChoice::Failed);
    }
    FolderDialog dialog;
    dialog.owner = owner != nullptr ? owner->m_hWnd : nullptr;
    dialog.title = title;
    dialog.newFolderButton = newFolderButton;
    dialog.startFolder.assign(buffer, strnlen(buffer, static_cast<std::size_t>(bufferSize)));
    std::string folder;
    const FolderChoice choice = dialog.Show(folder);
    if (choice != FolderChoice::Cancelled)
    {
        std::memcpy(const_cast<char*>(buffer), folder.c_str(), folder.size() + 1); // the interface's result
    }
    return static_cast<int>(choice);
}

bool BrowseForDirectory(CString& path, char* title, CWnd* owner)
{
    char folder[kPathRoom + 1] = "";
    if (!path.IsEmpty() && path.GetLength() < kPathRoom)
    {
        std::strcpy(folder, WithBackslash(path));
    }
    if (BrowseForDirectory(folder, sizeof folder, title, true, owner) != static_cast<int>(FolderChoice::Chosen))
    {
        return false;
    }
    path = WithBackslash(folder);
    return true;
}

int BrowseForPath(CString& path, const char* title)
{
    FolderDialog dialog;
    dialog.owner = GetActiveWindow();
    dialog.title = title;
    dialog.startFolder = WithoutSeparator(path.IsEmpty() ? CurrentFolder() : path.Left(kPathRoom - 1));
    std::string folder;
    const FolderChoice choice = dialog.Show(folder);
    if (choice == FolderChoice::Chosen)
    {
        path = folder.c_str();
    }
    return static_cast<int>(choice);
}
