#pragma once

#include "framework/dialog/CCommonDialog.h"

#include <commdlg.h>

/// The system's dialog to choose a colour. The sixteen custom colours are kept for the process.
class HOSTFRAMEWORK_API CColorDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CColorDialog)

public:
    CHOOSECOLORA m_cc{}; ///< may be completed before DoModal

    /// @param flags CC_ flags
    explicit CColorDialog(COLORREF initial = 0, DWORD flags = 0, CWnd* parent = nullptr);

    /// IDOK or IDCANCEL.
    INT_PTR DoModal() override;
    /// The chosen colour.
    COLORREF GetColor() const;
    /// Chooses a colour in the open dialog.
    void SetCurrentColor(COLORREF colour);
    /// The sixteen custom colours, at first white.
    static COLORREF* GetSavedCustomColors();

protected:
    /// Asked before the dialog closes with OK; TRUE keeps it open.
    virtual BOOL OnColorOK();

    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};
