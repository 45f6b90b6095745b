#include "framework/dialog/CPrintDialog.h"
#include "framework/frames/CView.h"
#include "framework/frames/PrintJob.h"
#include "framework/include/afxres.h"

// Printing of a view.

namespace
{
constexpr UINT kUnknownPageCount = 0xFFFF;
}

void CView::OnPrepareDC(CDC*, CPrintInfo* info)
{
    // Nobody said how many pages there are: there is one.
    if (info)
        info->m_bContinuePrinting = info->GetMaxPage() != kUnknownPageCount || info->m_nCurPage == info->GetMinPage();
}

BOOL CView::OnPreparePrinting(CPrintInfo*)
{
    return TRUE;
}

void CView::OnBeginPrinting(CDC*, CPrintInfo*)
{
}

void CView::OnPrint(CDC* dc, CPrintInfo*)
{
    OnDraw(dc);
}

void CView::OnEndPrinting(CDC*, CPrintInfo*)
{
}

BOOL CView::DoPreparePrinting(CPrintInfo* info)
{
    if (!info)
        return FALSE;
    PRINTDLGA& dialog = info->m_pPD->m_pd;
    dialog.nMaxPage = std::max(dialog.nMinPage, dialog.nMaxPage);
    dialog.nFromPage = dialog.nMinPage;
    dialog.nToPage = dialog.nMaxPage;
    const bool direct = info->m_bDirect || info->m_bPreview;
    if (direct && info->m_pPD->GetDefaults())
        return dialog.hDC || info->m_pPD->CreatePrinterDC();
    // Also when there is no default printer: the dialog tells the user.
    dialog.Flags &= ~static_cast<DWORD>(PD_RETURNDEFAULT);
    if (info->m_pPD->DoModal() != IDOK)
        return FALSE;
    return dialog.hDC || info->m_pPD->CreatePrinterDC();
}

void CView::OnFilePrint()
{
    CPrintInfo info;
    const MSG* message = GetCurrentMessage();
    info.m_bDirect = message && message->message == WM_COMMAND && LOWORD(message->wParam) == ID_FILE_PRINT_DIRECT;
    if (OnPreparePrinting(&info))
        vorn::PrintJob(*this, info).Run();
}
