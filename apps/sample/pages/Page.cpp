#include "apps/sample/pages/Page.h"

void Page::Activate(CWnd&, bool)
{
}

void Page::PlaceControls(const CRect&, const Theme&)
{
}

bool Page::OnControl(UINT, UINT)
{
    return false;
}

bool Page::OnPointer(const CRect&, CPoint, const Theme&)
{
    return false;
}
