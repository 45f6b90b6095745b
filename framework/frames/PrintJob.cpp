#include "framework/frames/PrintJob.h"
#include "framework/dialog/CPrintDialog.h"
#include "framework/frames/CDocument.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/frames/CPrintingDialog.h"
#include "framework/frames/CView.h"
#include "framework/frames/FrameResources.h"
#include "framework/include/afxres.h"
#include "framework/window/CWinApp.h"
#include <algorithm>

namespace vorn
{
namespace
{
/// Length that the system takes for a document's name in the print queue.
constexpr int kLongestTitle = 31;

/// A device context that someone else owns, as an object for the length of a scope.
class BorrowedContext : public CDC
{
public:
    explicit BorrowedContext(HDC dc)
    {
        Attach(dc);
        m_bPrinting = TRUE;
    }
    ~BorrowedContext() override
    {
        Detach();
    }
};
} // namespace

PageRange PageRange::Of(const CPrintInfo& info)
{
    const UINT least = info.GetMinPage();
    const UINT most = std::max(least, info.GetMaxPage());
    if (!(info.m_pPD->m_pd.Flags & PD_PAGENUMS))
        return {least, most};
    return {std::clamp(info.GetFromPage(), least, most), std::clamp(info.GetToPage(), least, most)};
}

UINT PageRange::Count() const
{
    return (first <= last ? last - first : first - last) + 1;
}

UINT PageRange::Page(UINT index) const
{
    return first <= last ? first + index : first - index;
}

PrintJob::PrintJob(CView& view, CPrintInfo& info) : m_view(view), m_info(info)
{
}

bool PrintJob::Run()
{
    BorrowedContext dc(m_info.m_pPD->m_pd.hDC);
    if (!dc.m_hDC)
        return false;
    m_view.OnBeginPrinting(&dc, &m_info);
    const bool printed = PrintDocument(dc);
    m_view.OnEndPrinting(&dc, &m_info);
    if (!printed && !CPrintingDialog::IsCancelled())
        AfxMessageBox(AFX_IDP_FAILED_TO_START_PRINT);
    return printed;
}

bool PrintJob::PrintDocument(CDC& dc)
{
    dc.SetAbortProc(CPrintingDialog::AbortProc);
    CPrintingDialog progress(m_view.GetTopLevelParent(), DocumentTitle(), m_info.m_pPD->GetDeviceName());
    const CString title = DocumentTitle().Left(kLongestTitle);
    DOCINFO document{};
    document.cbSize = sizeof(document);
    document.lpszDocName = title;
    // The system then asks for the file.
    if (m_info.m_pPD->m_pd.Flags & PD_PRINTTOFILE)
        document.lpszOutput = "FILE:";
    if (dc.StartDoc(&document) <= 0)
        return false;
    if (PrintPages(dc, progress) && dc.EndDoc() > 0)
        return true;
    dc.AbortDoc();
    return false;
}

bool PrintJob::PrintPages(CDC& dc, CPrintingDialog& progress)
{
    const PageRange range = PageRange::Of(m_info);
    m_info.m_bContinuePrinting = TRUE;
    for (UINT i = 0; i < range.Count(); ++i)
    {
        m_info.m_nCurPage = range.Page(i);
        m_view.OnPrepareDC(&dc, &m_info);
        if (!m_info.m_bContinuePrinting)
            return true;
        ShowProgress(progress);
        if (!PrintPage(dc))
            return false;
    }
    return true;
}

bool PrintJob::PrintPage(CDC& dc)
{
    if (dc.StartPage() <= 0)
        return false;
    // The start of a page resets the context on some devices: the view prepares it once more.
    if (m_info.m_bContinuePrinting)
        m_view.OnPrepareDC(&dc, &m_info);
    m_info.m_rectDraw.SetRect(0, 0, dc.GetDeviceCaps(HORZRES), dc.GetDeviceCaps(VERTRES));
    dc.DPtoLP(&m_info.m_rectDraw);
    m_view.OnPrint(&dc, &m_info);
    return dc.EndPage() > 0 && CPrintingDialog::AbortProc(dc.m_hDC, 0);
}

void PrintJob::ShowProgress(CPrintingDialog& progress) const
{
    CString text;
    text.Format("%u", m_info.m_nCurPage);
    CString line = m_info.m_strPageDesc;
    line.Replace("%u", text);
    progress.ShowPage(line);
}

CString PrintJob::DocumentTitle() const
{
    CString title;
    if (const CDocument* document = m_view.GetDocument())
        title = document->GetTitle();
    else if (CWnd* frame = m_view.GetTopLevelParent())
        frame->GetWindowText(title);
    return title;
}
} // namespace vorn
