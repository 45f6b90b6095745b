// Stands in for printing, which is on its way, so that the library links meanwhile.
#include "framework/frames/CView.h"
void CView::OnPrepareDC(CDC*, CPrintInfo*)
{
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
BOOL CView::DoPreparePrinting(CPrintInfo*)
{
    return FALSE;
}
void CView::OnFilePrint()
{
}
