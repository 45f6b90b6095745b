#pragma once

#include "framework/core/CString.h"
#include "framework/dialog/CCommonDialog.h"

#include <commdlg.h>

class CDC;

/// The system's dialog to choose a font.
class HOSTFRAMEWORK_API CFontDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CFontDialog)

public:
    CHOOSEFONTA m_cf{}; ///< may be completed before DoModal
    LOGFONTA m_lf{};    ///< the font; chosen at first when the constructor got one

    /// @param initial font shown at first, or null
    /// @param flags CF_ flags
    /// @param printer when given, fonts of this printer are shown
    explicit CFontDialog(LPLOGFONTA initial = nullptr, DWORD flags = CF_EFFECTS | CF_SCREENFONTS,
                         CDC* printer = nullptr, CWnd* parent = nullptr);

    /// IDOK or IDCANCEL.
    INT_PTR DoModal() override;
    /// The chosen font, also while the dialog is open.
    void GetCurrentFont(LPLOGFONTA font);
    CString GetFaceName() const;
    CString GetStyleName() const;
    /// In tenths of a point.
    int GetSize() const;
    COLORREF GetColor() const;
    /// FW_ value, 100 to 900.
    int GetWeight() const;
    BOOL IsStrikeOut() const;
    BOOL IsUnderline() const;
    BOOL IsBold() const;
    BOOL IsItalic() const;

private:
    char m_styleName[64] = {};
};
