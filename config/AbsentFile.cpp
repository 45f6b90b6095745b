#include "config/AbsentFile.h"

#include <utility>

namespace vorn
{
namespace
{
constexpr unsigned long long kTrustedMs = 1000;
constexpr unsigned long long kCoarsestFolderTime = 2 * 10'000'000ull; // 2 s, that of FAT volumes, in units of 100 ns

unsigned long long Ticks(const FILETIME& time)
{
    return static_cast<unsigned long long>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
}

unsigned long long Now()
{
    FILETIME time;
    GetSystemTimeAsFileTime(&time);
    return Ticks(time);
}

/// Last change of a folder; nothing when there is no such folder.
std::optional<unsigned long long> FolderChange(const std::string& folder)
{
    WIN32_FILE_ATTRIBUTE_DATA data;
    const bool found = GetFileAttributesExA(folder.c_str(), GetFileExInfoStandard, &data) != FALSE;
    const bool isFolder = found && (data.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return isFolder ? std::optional(Ticks(data.ftLastWriteTime)) : std::nullopt;
}

/// The folder above; empty above a drive's root.
std::string Parent(const std::string& path)
{
    const std::size_t slash = path.find_last_of('\\');
    const std::string folder = slash == std::string::npos ? std::string() : path.substr(0, slash);
    return folder.ends_with(':') ? std::string() : folder;
}
} // namespace

AbsentFile::AbsentFile(std::string path, Folder folder) : m_path(std::move(path)), m_use(folder)
{
}

bool AbsentFile::HasCome()
{
    if (m_path.empty() || IsKnownAbsent())
    {
        return false;
    }
    // The folder comes first: a file made between the two questions then counts as a change.
    RememberFolder();
    const bool come = GetFileAttributesA(m_path.c_str()) != INVALID_FILE_ATTRIBUTES;
    if (come)
    {
        m_folder.clear();
    }
    return come;
}

bool AbsentFile::IsKnownAbsent() const
{
    return !m_folder.empty() && GetTickCount64() - m_asked < kTrustedMs && LastChange() == m_changed;
}

std::optional<AbsentFile::Time> AbsentFile::LastChange() const
{
    FILETIME time;
    if (m_opened)
    {
        return GetFileTime(m_opened.get(), nullptr, nullptr, &time) ? std::optional(Ticks(time)) : std::nullopt;
    }
    return FolderChange(m_folder);
}

void AbsentFile::RememberFolder()
{
    m_asked = GetTickCount64();
    m_opened.reset();
    std::optional<Time> change;
    m_folder = Parent(m_path);
    while (!m_folder.empty() && !(change = FolderChange(m_folder)))
    {
        m_folder = Parent(m_folder);
    }
    m_changed = change.value_or(0);
    if (m_changed == 0 || m_changed + kCoarsestFolderTime > Now())
    {
        m_folder.clear();
    }
    else if (m_use == Folder::KeepOpen)
    {
        OpenFolder();
    }
}

void AbsentFile::OpenFolder()
{
    const HANDLE opened =
        CreateFileA(m_folder.c_str(), FILE_READ_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    m_opened.reset(opened == INVALID_HANDLE_VALUE ? nullptr : opened);
}
} // namespace vorn
