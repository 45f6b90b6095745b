#include "apps/sample/pages/Page.h"

void Page::Print(CDC& dc, const CRect& area, const Theme& theme) const
{
    Paint(dc, area, theme);
}

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

std::string Page::TakeOptions(const StartOptions&)
{
    return {};
}

bool Page::FillsWindow() const
{
    return false;
}

void Page::OnNotification(const NMHDR&)
{
}

bool Page::OnKey(UINT, CWnd*)
{
    return false;
}

CWnd* Page::FirstControl()
{
    return nullptr;
}

bool Page::OwnsCommand(UINT) const
{
    return false;
}

bool Page::CanRun(UINT) const
{
    return false;
}

void Page::Run(UINT)
{
}

bool Page::IsChecked(UINT) const
{
    return false;
}

void Page::Leave()
{
}

bool Page::OnPointer(const CRect&, CPoint, const Theme&)
{
    return false;
}
