#pragma once

#include "framework/core/CString.h"
#include "framework/core/CollectionHelpers.h"
#include "framework/dialog/CCommonDialog.h"

#include <commdlg.h>

/// The system's dialog to open or save files. While it is open, m_hWnd is a child of the dialog: GetParent() is the
/// dialog itself.
class HOSTFRAMEWORK_API CFileDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFileDialog)

public:
    /// May be completed before DoModal. lpstrFile points at a buffer of _MAX_PATH characters; give a bigger one, with
    /// its size in nMaxFile, for OFN_ALLOWMULTISELECT.
    OPENFILENAMEA m_ofn{};

    /// @param open TRUE to open, FALSE to save
    /// @param defaultExtension without point; added to names that have none
    /// @param fileName first name shown
    /// @param flags OFN_ flags
    /// @param filter pairs of a description and patterns ("Tables (*.dbf)|*.dbf|All files|*.*||")
    explicit CFileDialog(BOOL open, LPCTSTR defaultExtension = nullptr, LPCTSTR fileName = nullptr,
                         DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT, LPCTSTR filter = nullptr,
                         CWnd* parent = nullptr, DWORD size = 0, BOOL newStyle = TRUE);

    /// IDOK or IDCANCEL. A name that does not fit into the buffer is IDCANCEL.
    INT_PTR DoModal() override;

    OPENFILENAMEA& GetOFN();
    const OPENFILENAMEA& GetOFN() const;

    /// @name The chosen file, also while the dialog is open
    /// @{
    CString GetPathName() const;
    CString GetFileName() const;
    /// Without point; empty when the name has none.
    CString GetFileExt() const;
    /// The name without folder and extension.
    CString GetFileTitle() const;
    /// The folder, without the last backslash unless it is a drive's root.
    CString GetFolderPath() const;
    BOOL GetReadOnlyPref() const;
    /// @}

    /// @name Several files (OFN_ALLOWMULTISELECT)
    /// @{
    POSITION GetStartPosition() const;
    /// The file's path; the position is null after the last.
    CString GetNextPathName(POSITION& position) const;
    /// @}

    /// @name The open dialog's controls
    /// @{
    void SetControlText(int id, LPCSTR text);
    void HideControl(int id);
    void SetDefExt(LPCSTR extension);
    /// @}

protected:
    /// Asked before a name is accepted; not 0 keeps the dialog open.
    virtual BOOL OnFileNameOK();
    /// OFN_SHAREFALLTHROUGH, OFN_SHARENOWARN or OFN_SHAREWARN.
    virtual UINT OnShareViolation(LPCTSTR path);
    virtual void OnInitDone();
    virtual void OnFileNameChange();
    virtual void OnFolderChange();
    virtual void OnTypeChange();

    BOOL OnNotify(WPARAM wParam, LPARAM lParam, LRESULT* result) override;

private:
    CString AskDialog(UINT message) const;
    BOOL Answer(LRESULT answer, LRESULT* result);

    BOOL m_open;
    CString m_filter; ///< with zeros between its parts
    CString m_defaultExtension;
    char m_fileName[_MAX_PATH] = {};
};
