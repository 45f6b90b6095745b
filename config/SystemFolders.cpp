#include "config/SystemFolders.h"

#include "config/core/PathCompose.h"

#include <windows.h>

#include <shlobj.h>

namespace vorn
{

namespace
{

/// Ends a search, also one that never began: the system answers that with a harmless failure.
class FileSearch
{
public:
    explicit FileSearch(const std::string& pattern) : m_handle(FindFirstFileA(pattern.c_str(), &m_found))
    {
    }
    ~FileSearch()
    {
        FindClose(m_handle);
    }
    FileSearch(const FileSearch&) = delete;
    FileSearch& operator=(const FileSearch&) = delete;

    bool HasFound() const
    {
        return m_handle != INVALID_HANDLE_VALUE;
    }

    bool Next()
    {
        return FindNextFileA(m_handle, &m_found) != FALSE;
    }

    const WIN32_FIND_DATAA& Found() const
    {
        return m_found;
    }

private:
    WIN32_FIND_DATAA m_found{};
    HANDLE m_handle;
};

/// Patterns also match short names ("kbos.data" is found by its "KBOS~1.DAT").
bool IsDatFile(const WIN32_FIND_DATAA& found)
{
    return (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0 && EndsInDat(found.cFileName);
}

} // namespace

std::string ExecutableFolder()
{
    char path[MAX_PATH + 1] = {}; // the system may fill its part without an end
    GetModuleFileNameA(nullptr, path, MAX_PATH);
    return WithBackslash(UpToLastBackslash(path));
}

std::string ShellFolder(int code)
{
    char path[MAX_PATH] = {};
    // S_FALSE names a folder that does not exist.
    return SHGetFolderPathA(nullptr, code, nullptr, SHGFP_TYPE_CURRENT, path) == S_OK ? path : "";
}

std::string FullPath(const std::string& path)
{
    char full[MAX_PATH] = {};
    const DWORD length = GetFullPathNameA(path.c_str(), MAX_PATH, full, nullptr);
    return length > 0 && length < MAX_PATH ? std::string(full, length) : path;
}

bool FileExists(const std::string& path)
{
    const FileSearch search(path);
    return search.HasFound();
}

bool HoldsDatFile(const std::string& folder)
{
    FileSearch search(folder + "*.dat");
    bool more = search.HasFound();
    while (more && !IsDatFile(search.Found()))
        more = search.Next();
    return more;
}

} // namespace vorn
