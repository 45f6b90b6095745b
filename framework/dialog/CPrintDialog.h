#pragma once

#include "framework/core/CString.h"
#include "framework/dialog/CCommonDialog.h"

#include <commdlg.h>

/// The system's dialog to print or to set a printer up. After OK the caller owns the memory handles and the device
/// context in m_pd.
class HOSTFRAMEWORK_API CPrintDialog : public CCommonDialog
{
    DECLARE_DYNAMIC(CPrintDialog)

public:
    PRINTDLGA& m_pd; ///< may be completed before DoModal

    /// @param printSetupOnly TRUE for the dialog that only sets the printer up
    /// @param flags PD_ flags
    explicit CPrintDialog(BOOL printSetupOnly,
                          DWORD flags = PD_ALLPAGES | PD_USEDEVMODECOPIES | PD_NOPAGENUMS | PD_HIDEPRINTTOFILE |
                                        PD_NOSELECTION,
                          CWnd* parent = nullptr);

    /// IDOK or IDCANCEL. No default printer, or another failure of the system, is IDCANCEL.
    INT_PTR DoModal() override;
    /// The default printer's settings and device context, without showing anything.
    BOOL GetDefaults();

    int GetCopies() const;
    BOOL PrintCollate() const;
    BOOL PrintSelection() const;
    BOOL PrintAll() const;
    BOOL PrintRange() const;
    /// First and last page of the chosen range, -1 when no range was chosen.
    int GetFromPage() const;
    int GetToPage() const;
    /// The printer's settings, locked: the caller unlocks m_pd.hDevMode. Null when there are none.
    LPDEVMODEA GetDevMode() const;
    CString GetDriverName() const;
    CString GetDeviceName() const;
    CString GetPortName() const;
    /// The device context asked for with PD_RETURNDC; the caller deletes it.
    HDC GetPrinterDC() const;
    /// Makes a device context of the chosen printer, kept in m_pd.hDC; the caller deletes it.
    HDC CreatePrinterDC();

private:
    PRINTDLGA m_record{};
};
