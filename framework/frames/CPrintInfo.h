#pragma once

/// @file
/// State of a print job.
#include "framework/core/CString.h"
#include "framework/core/Export.h"
#include "framework/core/Geometry.h"

class CPrintDialog;

/// What view and framework tell each other about a print job. Pages count from 1.
struct HOSTFRAMEWORK_API CPrintInfo
{
    CPrintInfo();
    ~CPrintInfo();
    CPrintInfo(const CPrintInfo&) = delete;
    CPrintInfo& operator=(const CPrintInfo&) = delete;

    CPrintDialog* m_pPD; ///< the dialog and its choices; owned. Its printer context is deleted with it
    BOOL m_bPreview = FALSE;
    BOOL m_bDirect = FALSE;          ///< print without dialog, on the default printer
    BOOL m_bContinuePrinting = TRUE; ///< cleared by OnPrepareDC() to end the job
    UINT m_nCurPage = 1;
    UINT m_nNumPreviewPages = 0;
    CString m_strPageDesc;         ///< "Page %u", for the progress dialog
    LPVOID m_lpUserData = nullptr; ///< the view's own
    CRect m_rectDraw{0, 0, 0, 0};  ///< printable area in logical units, set before each page
    UINT m_nOffsetPage = 0;
    BOOL m_bDocObject = FALSE;
    DWORD m_dwFlags = 0;

    void SetMinPage(UINT page);
    /// 0xFFFF: unknown.
    void SetMaxPage(UINT page);
    UINT GetMinPage() const;
    UINT GetMaxPage() const;
    UINT GetFromPage() const;
    UINT GetToPage() const;
    UINT GetOffsetPage() const;
};
