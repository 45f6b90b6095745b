#include "framework/core/FileFind.h"

#include "framework/core/FileSystem.h"

#include <cstring>
#include <memory>
#include <utility>

IMPLEMENT_DYNCREATE(CFileFind, CObject)

namespace
{
CString FolderOf(const CString& path)
{
    int end = path.GetLength();
    while (end > 0 && std::strchr(vorn::kPathSeparators, path[end - 1]) == nullptr)
    {
        --end;
    }
    return path.Left(end);
}

// The full path of a pattern's folder; the pattern itself may hold characters that no path may.
CString RootOf(const CString& pattern)
{
    const CString folder = FolderOf(pattern);
    CString root = vorn::FullPath(folder.IsEmpty() ? "." : folder.GetString());
    if (FolderOf(root) != root)
    {
#ifdef _WIN32
        root += '\\';
#else
        root += '/';
#endif
    }
    return root;
}

BOOL Give(const FILETIME& from, FILETIME* to)
{
    if (to == nullptr)
    {
        return FALSE;
    }
    *to = from;
    return TRUE;
}
} // namespace

CFileFind::CFileFind() = default;

CFileFind::~CFileFind()
{
    Close();
}

BOOL CFileFind::FindFile(LPCSTR pstrName, DWORD)
{
    Close();
    const CString pattern = pstrName != nullptr ? pstrName : "*.*";
    auto found = std::make_unique<vorn::FoundFile>();
    vorn::SystemError error = 0;
    m_hContext = vorn::FindFirst(pattern, *found, error);
    if (m_hContext == nullptr)
    {
        vorn::KeepError(error);
        return FALSE;
    }
    m_pNextInfo = found.release(); // owned by the search, freed in Close()
    m_strRoot = RootOf(pattern);
    m_isFolderNamed = !FolderOf(pattern).IsEmpty();
    return TRUE;
}

BOOL CFileFind::FindNextFile()
{
    if (m_hContext == nullptr || m_pNextInfo == nullptr)
    {
        return FALSE;
    }
    std::unique_ptr<vorn::FoundFile> passed(std::exchange(m_pFoundInfo, m_pNextInfo));
    auto next = std::make_unique<vorn::FoundFile>();
    m_pNextInfo = vorn::FindNext(m_hContext, *next) ? next.release() : nullptr;
    return m_pNextInfo != nullptr ? TRUE : FALSE;
}

void CFileFind::Close()
{
    delete std::exchange(m_pFoundInfo, nullptr); // plain pointers: derived classes exchange them
    delete std::exchange(m_pNextInfo, nullptr);
    m_strRoot.Empty();
    if (m_hContext != nullptr)
    {
        CloseContext();
    }
}

void CFileFind::CloseContext()
{
    vorn::FindEnd(std::exchange(m_hContext, nullptr));
}

CString CFileFind::GetFileName() const
{
    return m_pFoundInfo != nullptr ? m_pFoundInfo->name : CString();
}

CString CFileFind::GetFileTitle() const
{
    const CString name = GetFileName();
    const int dot = name.ReverseFind('.');
    return dot < 0 ? name : name.Left(dot);
}

CString CFileFind::GetFilePath() const
{
    return m_pFoundInfo != nullptr ? m_strRoot + m_pFoundInfo->name : CString();
}

CString CFileFind::GetFileURL() const
{
    return m_pFoundInfo != nullptr ? "file://" + GetFilePath() : CString();
}

CString CFileFind::GetRoot() const
{
    return m_isFolderNamed ? m_strRoot : CString();
}

ULONGLONG CFileFind::GetLength() const
{
    return m_pFoundInfo != nullptr ? m_pFoundInfo->length : 0;
}

BOOL CFileFind::IsDots() const
{
    return IsDirectory() && (m_pFoundInfo->name == "." || m_pFoundInfo->name == "..");
}

BOOL CFileFind::IsReadOnly() const
{
    return MatchesMask(vorn::kAttributeReadOnly);
}

BOOL CFileFind::IsDirectory() const
{
    return MatchesMask(vorn::kAttributeDirectory);
}

BOOL CFileFind::IsCompressed() const
{
    return MatchesMask(vorn::kAttributeCompressed);
}

BOOL CFileFind::IsSystem() const
{
    return MatchesMask(vorn::kAttributeSystem);
}

BOOL CFileFind::IsHidden() const
{
    return MatchesMask(vorn::kAttributeHidden);
}

BOOL CFileFind::IsTemporary() const
{
    return MatchesMask(vorn::kAttributeTemporary);
}

BOOL CFileFind::IsNormal() const
{
    return MatchesMask(vorn::kAttributeNormal);
}

BOOL CFileFind::IsArchived() const
{
    return MatchesMask(vorn::kAttributeArchive);
}

BOOL CFileFind::MatchesMask(DWORD dwMask) const
{
    return m_pFoundInfo != nullptr && (m_pFoundInfo->attributes & dwMask) != 0;
}

BOOL CFileFind::GetCreationTime(FILETIME* pTimeStamp) const
{
    return m_pFoundInfo != nullptr && Give(m_pFoundInfo->created, pTimeStamp);
}

BOOL CFileFind::GetLastAccessTime(FILETIME* pTimeStamp) const
{
    return m_pFoundInfo != nullptr && Give(m_pFoundInfo->accessed, pTimeStamp);
}

BOOL CFileFind::GetLastWriteTime(FILETIME* pTimeStamp) const
{
    return m_pFoundInfo != nullptr && Give(m_pFoundInfo->written, pTimeStamp);
}

BOOL CFileFind::GetCreationTime(CTime& refTime) const
{
    FILETIME time{};
    const BOOL isKnown = GetCreationTime(&time);
    refTime = isKnown ? CTime(time) : refTime;
    return isKnown;
}

BOOL CFileFind::GetLastAccessTime(CTime& refTime) const
{
    FILETIME time{};
    const BOOL isKnown = GetLastAccessTime(&time);
    refTime = isKnown ? CTime(time) : refTime;
    return isKnown;
}

BOOL CFileFind::GetLastWriteTime(CTime& refTime) const
{
    FILETIME time{};
    const BOOL isKnown = GetLastWriteTime(&time);
    refTime = isKnown ? CTime(time) : refTime;
    return isKnown;
}
