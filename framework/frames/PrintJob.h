#pragma once

/// @file
/// One print job of a view: its pages, in order, into a device context.
#include "framework/frames/CPrintInfo.h"
#include "framework/gdi/CDC.h"

class CView;

namespace vorn
{
class CPrintingDialog;

/// Page numbers of a job: from first to last, downwards when the first is the larger one.
struct PageRange
{
    UINT first = 1;
    UINT last = 1;

    /// The range that the job's record asks for, within the document's pages.
    static PageRange Of(const CPrintInfo& info);
    UINT Count() const;
    /// @param index from 0, below Count()
    UINT Page(UINT index) const;
};

/// Prints a view whose preparation (CView::OnPreparePrinting) succeeded.
class PrintJob
{
public:
    PrintJob(CView& view, CPrintInfo& info);

    /// Runs the job with its progress dialog and cleans up. @return whether it was printed; FALSE also when cancelled.
    /// Failures are shown to the user.
    bool Run();

private:
    bool PrintDocument(CDC& dc);
    bool PrintPages(CDC& dc, CPrintingDialog& progress);
    bool PrintPage(CDC& dc);
    void ShowProgress(CPrintingDialog& progress) const;
    CString DocumentTitle() const;

    CView& m_view;
    CPrintInfo& m_info;
};
} // namespace vorn
