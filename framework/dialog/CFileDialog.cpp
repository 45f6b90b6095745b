#include "framework/dialog/CFileDialog.h"

#include "framework/core/FileSelection.h"
#include "framework/dialog/CommonDialogRun.h"

#include <cstring>
#include <string>

IMPLEMENT_DYNAMIC(CFileDialog, CCommonDialog)

namespace
{
CString AsString(std::string_view text)
{
    return CString(text.data(), static_cast<int>(text.size()));
}

/// The chosen names. Where only one could be chosen, the rest of the buffer means nothing.
vorn::FileSelection SelectionOf(const OPENFILENAMEA& record)
{
    const bool several = (record.Flags & OFN_ALLOWMULTISELECT) != 0;
    return vorn::FileSelection({record.lpstrFile, several ? record.nMaxFile : std::strlen(record.lpstrFile)});
}

std::string_view AsView(const CString& text)
{
    return {text.GetString(), static_cast<std::size_t>(text.GetLength())};
}
} // namespace

CFileDialog::CFileDialog(BOOL open, LPCTSTR defaultExtension, LPCTSTR fileName, DWORD flags, LPCTSTR filter,
                         CWnd* parent, DWORD size, BOOL)
    : CCommonDialog(parent), m_open(open), m_defaultExtension(defaultExtension)
{
    m_ofn.lStructSize = size != 0 && size <= sizeof(m_ofn) ? size : sizeof(m_ofn);
    m_ofn.lpstrFile = m_fileName;
    m_ofn.nMaxFile = sizeof(m_fileName);
    m_ofn.lpstrDefExt = defaultExtension ? m_defaultExtension.GetString() : nullptr;
    m_ofn.Flags = flags | OFN_EXPLORER | OFN_ENABLEHOOK | OFN_ENABLESIZING;
    m_ofn.lpfnHook = vorn::CommonDialogHook;
    if (fileName)
        ::lstrcpynA(m_fileName, fileName, sizeof(m_fileName));
    if (filter)
        m_filter = AsString(vorn::FileFilter(filter));
    m_ofn.lpstrFilter = filter ? m_filter.GetString() : nullptr;
}

INT_PTR CFileDialog::DoModal()
{
    const vorn::CommonDialogRun run(*this, m_pParentWnd);
    m_ofn.hwndOwner = run.Owner();
    const BOOL accepted = m_open ? ::GetOpenFileNameA(&m_ofn) : ::GetSaveFileNameA(&m_ofn);
    return accepted ? IDOK : IDCANCEL;
}

OPENFILENAMEA& CFileDialog::GetOFN()
{
    return m_ofn;
}

const OPENFILENAMEA& CFileDialog::GetOFN() const
{
    return m_ofn;
}

CString CFileDialog::AskDialog(UINT message) const
{
    char text[_MAX_PATH] = {};
    ::SendMessageA(::GetParent(m_hWnd), message, sizeof(text), reinterpret_cast<LPARAM>(text));
    text[sizeof(text) - 1] = '\0';
    return text;
}

CString CFileDialog::GetPathName() const
{
    return m_hWnd ? AskDialog(CDM_GETFILEPATH) : CString(m_ofn.lpstrFile);
}

CString CFileDialog::GetFileName() const
{
    return m_hWnd ? AskDialog(CDM_GETSPEC) : AsString(vorn::FileNameOf(m_ofn.lpstrFile));
}

CString CFileDialog::GetFileExt() const
{
    return AsString(vorn::ExtensionOf(AsView(GetPathName())));
}

CString CFileDialog::GetFileTitle() const
{
    return AsString(vorn::TitleOf(AsView(GetPathName())));
}

CString CFileDialog::GetFolderPath() const
{
    return m_hWnd ? AskDialog(CDM_GETFOLDERPATH) : AsString(vorn::FolderOf(m_ofn.lpstrFile));
}

BOOL CFileDialog::GetReadOnlyPref() const
{
    return (m_ofn.Flags & OFN_READONLY) != 0;
}

POSITION CFileDialog::GetStartPosition() const
{
    return reinterpret_cast<POSITION>(SelectionOf(m_ofn).First());
}

CString CFileDialog::GetNextPathName(POSITION& position) const
{
    std::size_t at = reinterpret_cast<std::size_t>(position);
    const std::string path = SelectionOf(m_ofn).Next(at);
    position = reinterpret_cast<POSITION>(at);
    return AsString(path);
}
