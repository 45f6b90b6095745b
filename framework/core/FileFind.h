#pragma once

/// @file
/// Searching for files.
#include "framework/core/CString.h"
#include "framework/core/Object.h"
#include "framework/core/Time.h"

namespace vorn
{
struct FoundFile;
}

/// Walks the files that match a path whose last part may hold "*" and "?".
///
/// FindFile() begins; FindNextFile() must be called before the first match is read, and its FALSE means that the match
/// now readable is the last one. Without a readable match texts are empty, numbers 0 and answers FALSE.
class HOSTFRAMEWORK_API CFileFind : public CObject
{
    DECLARE_DYNCREATE(CFileFind)

    CFileFind();
    ~CFileFind() override;

    /// Begins a search, ending one under way. Null searches all files of the current folder. FALSE when nothing
    /// matches; the system's last error says why.
    virtual BOOL FindFile(LPCSTR pstrName = nullptr, DWORD dwUnused = 0);
    /// Makes the next match readable; FALSE when it is the last one, or when there is none.
    virtual BOOL FindNextFile();
    /// Ends the search; harmless when none is under way.
    void Close();

    CString GetFileName() const;  ///< "NAME.EXT"
    CString GetFileTitle() const; ///< "NAME"
    CString GetFilePath() const;  ///< Folder and name.
    CString GetFileURL() const;   ///< The path as a "file://" address.
    /// Full path of the folder searched, with its last separator; empty when the search's path named no folder.
    CString GetRoot() const;
    ULONGLONG GetLength() const; ///< Bytes.

    /// "." and "..".
    BOOL IsDots() const;
    BOOL IsReadOnly() const;
    BOOL IsDirectory() const;
    BOOL IsCompressed() const;
    BOOL IsSystem() const;
    BOOL IsHidden() const;
    BOOL IsTemporary() const;
    BOOL IsNormal() const;
    BOOL IsArchived() const;
    /// Whether any of the attribute bits (FILE_ATTRIBUTE_...) is set.
    BOOL MatchesMask(DWORD dwMask) const;

    /// FALSE, with the argument unchanged, without a readable match.
    BOOL GetCreationTime(FILETIME* pTimeStamp) const;
    BOOL GetLastAccessTime(FILETIME* pTimeStamp) const;
    BOOL GetLastWriteTime(FILETIME* pTimeStamp) const;
    BOOL GetCreationTime(CTime& refTime) const;
    BOOL GetLastAccessTime(CTime& refTime) const;
    BOOL GetLastWriteTime(CTime& refTime) const;

protected:
    /// The search and its state. A derived class may exchange the four with those of another search; Close() ends and
    /// frees what they hold.
    HANDLE m_hContext = nullptr;
    vorn::FoundFile* m_pFoundInfo = nullptr; ///< The readable match.
    vorn::FoundFile* m_pNextInfo = nullptr;  ///< The match after it.
    CString m_strRoot;

    virtual void CloseContext();

private:
    bool m_isFolderNamed = false;
};
