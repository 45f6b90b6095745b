#include "files/core/CFileFindInExtSet.h"

#include "files/core/ExtensionSet.h"

#include <utility>

IMPLEMENT_DYNCREATE(CFileFindInExtSet, CFileFind)

/// While it lives, the finder is free for another search; then what that one found is held, and the match that was
/// readable before is so again.
class CFileFindInExtSet::Aside
{
public:
    explicit Aside(CFileFindInExtSet& finder)
        : m_finder(finder), m_found(std::exchange(finder.m_pFoundInfo, nullptr)), m_search(finder.GiveSearch())
    {
    }
    Aside(const Aside&) = delete;
    Aside& operator=(const Aside&) = delete;
    ~Aside()
    {
        m_finder.m_held = m_finder.GiveSearch();
        m_finder.TakeSearch(m_search);
        m_finder.m_pFoundInfo = m_found;
    }

private:
    CFileFindInExtSet& m_finder;
    vorn::FoundFile* m_found;
    Search m_search;
};

CFileFindInExtSet::CFileFindInExtSet() = default;

CFileFindInExtSet::~CFileFindInExtSet()
{
    Close(); // the base class's destructor no longer reaches the search held
}

BOOL CFileFindInExtSet::FindFile(const char* pattern, const char* extSet, DWORD flags)
{
    Close();
    m_pattern = pattern;
    m_extSet = extSet;
    m_flags = flags;
    ReadExtensions();
    return FindFrom(0);
}

BOOL CFileFindInExtSet::FindFile(LPCSTR name, DWORD flags)
{
    m_extensions.RemoveAll();
    m_index = -1;
    return CFileFind::FindFile(name, flags);
}

BOOL CFileFindInExtSet::FindNextFile()
{
    if (m_hContext == nullptr)
    {
        return FALSE;
    }
    if (m_held.context != nullptr)
    {
        TakeHeldSearch();
    }
    return CFileFind::FindNextFile() || HoldNextSearch();
}

CString CFileFindInExtSet::GetExt(int index)
{
    const std::string_view extension = vorn::ExtensionAt(m_extSet.GetString(), index);
    return CString(extension.data(), static_cast<int>(extension.size()));
}

void CFileFindInExtSet::CloseContext()
{
    const Search held = std::exchange(m_held, {});
    CFileFind::CloseContext();
    if (held.context != nullptr)
    {
        TakeSearch(held);
        Close();
    }
}

void CFileFindInExtSet::ReadExtensions()
{
    m_extensions.RemoveAll();
    m_index = -1;
    for (CString extension = GetExt(0); !extension.IsEmpty();
         extension = GetExt(static_cast<int>(m_extensions.GetSize())))
    {
        m_extensions.Add(extension);
    }
}

bool CFileFindInExtSet::FindFrom(int index)
{
    for (m_index = index; m_index < m_extensions.GetSize(); ++m_index)
    {
        if (CFileFind::FindFile(m_pattern + m_extensions[m_index], m_flags))
        {
            return true;
        }
    }
    return false;
}

bool CFileFindInExtSet::HoldNextSearch()
{
    const Aside aside(*this);
    return m_index < m_extensions.GetSize() && FindFrom(m_index + 1);
}

void CFileFindInExtSet::TakeHeldSearch()
{
    const Search held = std::exchange(m_held, {});
    Close();
    TakeSearch(held);
}

void CFileFindInExtSet::TakeSearch(const Search& search)
{
    m_hContext = search.context;
    m_pNextInfo = search.first;
    m_strRoot = search.root;
}

CFileFindInExtSet::Search CFileFindInExtSet::GiveSearch()
{
    Search search{std::exchange(m_hContext, nullptr), std::exchange(m_pNextInfo, nullptr), m_strRoot};
    m_strRoot.Empty();
    return search;
}
