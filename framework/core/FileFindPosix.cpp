#ifndef _WIN32
#include "framework/core/AsciiText.h"
#include "framework/core/FileSystem.h"

#include <cerrno>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>

namespace vorn
{
namespace
{
// A directory being read, with the pattern that its entries must match.
struct Search
{
    std::unique_ptr<DIR, int (*)(DIR*)> directory{nullptr, &closedir};
    CString folder;
    CString pattern;
};

// Matches as file systems of Windows do: without regard to case, "*" any text, "?" any one character.
bool Matches(const char* pattern, const char* name)
{
    const char* star = nullptr;
    const char* retry = nullptr;
    while (*name != '\0')
    {
        if (*pattern == '*')
        {
            star = pattern++;
            retry = name;
        }
        else if (*pattern == '?' || (*pattern != '\0' && ToLowerAscii(*pattern) == ToLowerAscii(*name)))
        {
            ++pattern;
            ++name;
        }
        else if (star != nullptr)
        {
            pattern = star + 1;
            name = ++retry;
        }
        else
        {
            return false;
        }
    }
    while (*pattern == '*')
    {
        ++pattern;
    }
    return *pattern == '\0';
}

FILETIME FileTimeOf(const timespec& time)
{
    const auto ticks = static_cast<ULONGLONG>((time.tv_sec + 11644473600LL) * 10000000LL + time.tv_nsec / 100);
    return {static_cast<DWORD>(ticks), static_cast<DWORD>(ticks >> 32)};
}

bool FillFound(const Search& search, const char* name, FoundFile& found)
{
    struct stat facts
    {
    };
    if (stat(search.folder + name, &facts) != 0)
    {
        return false;
    }
    found.name = name;
    found.length = S_ISDIR(facts.st_mode) ? 0 : static_cast<ULONGLONG>(facts.st_size);
    found.attributes = S_ISDIR(facts.st_mode) ? kAttributeDirectory : 0;
    found.attributes |= (facts.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0 ? kAttributeReadOnly : 0;
    found.attributes = found.attributes == 0 ? kAttributeNormal : found.attributes;
    found.created = FileTimeOf(facts.st_ctim);
    found.accessed = FileTimeOf(facts.st_atim);
    found.written = FileTimeOf(facts.st_mtim);
    return true;
}

bool Step(Search& search, FoundFile& found)
{
    while (const dirent* entry = readdir(search.directory.get()))
    {
        if (Matches(search.pattern, entry->d_name) && FillFound(search, entry->d_name, found))
        {
            return true;
        }
    }
    return false;
}
} // namespace

HANDLE FindFirst(const char* pattern, FoundFile& found, SystemError& error)
{
    const CString path(pattern);
    auto search = std::make_unique<Search>();
    const int nameStart = path.ReverseFind('/') + 1;
    search->folder = path.Left(nameStart);
    search->pattern = path.Mid(nameStart);
    if (search->pattern == "*.*")
    {
        search->pattern = "*"; // names without a dot count too
    }
    search->directory.reset(opendir(search->folder.IsEmpty() ? "." : search->folder.GetString()));
    error = search->directory == nullptr ? errno : (Step(*search, found) ? 0 : ENOENT);
    return error == 0 ? search.release() : nullptr;
}

bool FindNext(HANDLE search, FoundFile& found)
{
    return Step(*static_cast<Search*>(search), found);
}

void FindEnd(HANDLE search)
{
    delete static_cast<Search*>(search); // the handle owns the search
}
} // namespace vorn
#endif
