#include "apps/vorntool/FileSearch.h"

#include "apps/vorntool/TextConversion.h"

#include <set>

namespace vorn::tool
{

namespace
{

CString WithSeparator(const CString& folder)
{
    const CString last = folder.Right(1);
    return last == "\\" || last == "/" || last == ":" ? folder : folder + "\\";
}

// The found path, below the folder as it was given.
ListedFile FileOf(const CFileFind& finder, const CString& folder)
{
    CTime written;
    finder.GetLastWriteTime(written);
    return {Utf8FromLibrary((folder + finder.GetFileName()).GetString()), finder.GetLength(), written.GetTime()};
}

void AddFiles(std::vector<ListedFile>& files, const CString& folder, const CString& extensions)
{
    std::set<std::string> names;
    CFileFindInExtSet finder;
    for (BOOL goesOn = finder.FindFile(folder + "*.", extensions, 0); goesOn;)
    {
        goesOn = finder.FindNextFile();
        if (!finder.IsDirectory() && names.insert(finder.GetFileName().GetString()).second)
        {
            files.push_back(FileOf(finder, folder));
        }
    }
}

std::vector<CString> FoldersIn(const CString& folder)
{
    std::vector<CString> folders;
    CFileFind finder;
    for (BOOL goesOn = finder.FindFile(folder + "*.*"); goesOn;)
    {
        goesOn = finder.FindNextFile();
        if (finder.IsDirectory() && !finder.IsDots() && !finder.MatchesMask(FILE_ATTRIBUTE_REPARSE_POINT))
        {
            folders.push_back(folder + finder.GetFileName());
        }
    }
    return folders;
}

} // namespace

std::vector<ListedFile> SearchFiles(const CString& folder, const CString& extensions, bool recursive)
{
    std::vector<ListedFile> files;
    std::vector<CString> waiting{folder};
    while (!waiting.empty())
    {
        const CString next = WithSeparator(waiting.back());
        waiting.pop_back();
        AddFiles(files, next, extensions);
        if (recursive)
        {
            const std::vector<CString> folders = FoldersIn(next);
            waiting.insert(waiting.end(), folders.rbegin(), folders.rend());
        }
    }
    return files;
}

} // namespace vorn::tool
