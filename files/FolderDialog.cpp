#include "files/FolderDialog.h"

#include "files/core/SelectionSteps.h"

#include <ole2.h>
#include <shlobj.h>

#include <memory>

namespace vorn
{

namespace
{

using Steps = std::vector<std::string>;

/// The dialog's newer look needs OLE on its thread.
class OleForAWhile
{
public:
    OleForAWhile() : m_result(OleInitialize(nullptr))
    {
    }
    ~OleForAWhile()
    {
        if (SUCCEEDED(m_result))
        {
            OleUninitialize();
        }
    }
    OleForAWhile(const OleForAWhile&) = delete;
    OleForAWhile& operator=(const OleForAWhile&) = delete;

private:
    HRESULT m_result;
};

struct Releaser
{
    void operator()(IUnknown* object) const
    {
        object->Release();
    }
};
template <class Interface>
using Held = std::unique_ptr<Interface, Releaser>;

Held<IShellFolder> Desktop()
{
    IShellFolder* desktop = nullptr;
    return Held<IShellFolder>(SUCCEEDED(SHGetDesktopFolder(&desktop)) ? desktop : nullptr);
}

Held<IMalloc> ShellAllocator()
{
    IMalloc* allocator = nullptr;
    return Held<IMalloc>(SUCCEEDED(SHGetMalloc(&allocator)) ? allocator : nullptr);
}

int CALLBACK OnBrowse(HWND dialog, UINT message, LPARAM, LPARAM steps)
{
    if (message == BFFM_INITIALIZED)
    {
        for (const std::string& folder : *reinterpret_cast<const Steps*>(steps))
        {
            SendMessageA(dialog, BFFM_SETSELECTIONA, TRUE, reinterpret_cast<LPARAM>(folder.c_str()));
        }
    }
    return 0;
}

LPITEMIDLIST ChooseItem(const FolderDialog& dialog)
{
    const Steps steps = dialog.startFolder.empty() ? Steps() : SelectionSteps(dialog.startFolder);
    char displayName[MAX_PATH] = "";
    BROWSEINFOA info = {};
    info.hwndOwner = dialog.owner;
    info.pszDisplayName = displayName;
    info.lpszTitle = dialog.title != nullptr && *dialog.title != '\0' ? dialog.title : "Select a Directory";
    info.ulFlags = BIF_RETURNONLYFSDIRS | BIF_EDITBOX | BIF_NEWDIALOGSTYLE;
    info.ulFlags |= dialog.newFolderButton ? 0 : BIF_NONEWFOLDERBUTTON;
    info.lpfn = &OnBrowse;
    info.lParam = reinterpret_cast<LPARAM>(&steps);
    return SHBrowseForFolderA(&info);
}

// The path of an item that is freed with it.
std::string TakePath(IMalloc& allocator, LPITEMIDLIST item)
{
    char path[MAX_PATH] = "";
    const BOOL hasPath = SHGetPathFromIDListA(item, path);
    allocator.Free(item);
    return hasPath ? path : "";
}

} // namespace

FolderChoice FolderDialog::Show(std::string& folder) const
{
    const OleForAWhile ole;
    const Held<IShellFolder> desktop = Desktop();
    const Held<IMalloc> allocator = ShellAllocator();
    if (!desktop || !allocator)
    {
        return FolderChoice::Failed;
    }
    const LPITEMIDLIST item = ChooseItem(*this);
    if (item == nullptr)
    {
        return FolderChoice::Cancelled;
    }
    const std::string path = TakePath(*allocator, item);
    if (path.empty())
    {
        return FolderChoice::Failed;
    }
    folder = path;
    return FolderChoice::Chosen;
}

} // namespace vorn
