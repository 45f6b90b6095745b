#pragma once

#include "frame/core/Export.h"
#include "framework/core/Array.h"
#include "framework/core/FileFind.h"

/// Walks the files of one folder that have one of several extensions, extension by extension in the set's order.
///
/// The convention is that of the framework's finder: FindNextFile must be called before the first match is read, and
/// when it returns FALSE, the match now readable is the last one. A file whose name fits two extensions is found twice.
class VORNCOMMON_API CFileFindInExtSet : public CFileFind
{
    DECLARE_DYNCREATE(CFileFindInExtSet)

    CFileFindInExtSet();
    ~CFileFindInExtSet() override;

    /// Begins a search, ending one under way.
    /// @param pattern what stands before the extension: a folder's path followed by "*.", for example
    /// @param extSet extensions between "|", with or without a dot and blanks: "dbf|.dbt| txt". Entries without any
    /// character do not count; one of blanks only, or of a dot only, ends the set.
    /// @param flags handed to the framework's finder
    /// @return FALSE when no extension finds anything. Null texts count as empty ones.
    virtual BOOL FindFile(const char* pattern, const char* extSet, DWORD flags);

    /// Begins a plain search, without a set.
    BOOL FindFile(LPCSTR name = nullptr, DWORD flags = 0) override;

    /// Makes the next match readable. TRUE when another one follows, which may be of a later extension.
    BOOL FindNextFile() override;

protected:
    /// The extension of this index (from 0), without its dot; empty past the end.
    CString GetExt(int index);

    void CloseContext() override;

private:
    // A search that has begun and of which nothing was read yet.
    struct Search
    {
        HANDLE context = nullptr;
        vorn::FoundFile* first = nullptr;
        CString root;
    };
    class Aside;

    void ReadExtensions();
    bool FindFrom(int index);
    bool HoldNextSearch();
    void TakeHeldSearch();
    void TakeSearch(const Search& search);
    Search GiveSearch();

    CStringArray m_extensions;
    CString m_pattern;
    CString m_extSet;
    int m_index = -1; ///< of the extension searched for
    DWORD m_flags = 0;
    Search m_held; ///< begun for a later extension, while the last match of this one is read
};
