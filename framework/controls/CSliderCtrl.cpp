#include "framework/controls/CSliderCtrl.h"

#include "framework/controls/ControlMessage.h"

using vorn::AsHandle;
using vorn::Ask;

IMPLEMENT_DYNAMIC(CSliderCtrl, CWnd)

CSliderCtrl::CSliderCtrl() = default;

BOOL CSliderCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    vorn::EnsureCommonControls();
    return CWnd::Create(TRACKBAR_CLASSA, nullptr, style, rect, parent, id);
}

int CSliderCtrl::SetLineSize(int size)
{
    return Ask(*this, TBM_SETLINESIZE, 0, static_cast<LPARAM>(size));
}

int CSliderCtrl::GetLineSize() const
{
    return Ask(*this, TBM_GETLINESIZE);
}

int CSliderCtrl::SetPageSize(int size)
{
    return Ask(*this, TBM_SETPAGESIZE, 0, static_cast<LPARAM>(size));
}

int CSliderCtrl::GetPageSize() const
{
    return Ask(*this, TBM_GETPAGESIZE);
}

int CSliderCtrl::GetRangeMax() const
{
    return Ask(*this, TBM_GETRANGEMAX);
}

int CSliderCtrl::GetRangeMin() const
{
    return Ask(*this, TBM_GETRANGEMIN);
}

void CSliderCtrl::GetRange(int& lowest, int& highest) const
{
    lowest = GetRangeMin();
    highest = GetRangeMax();
}

void CSliderCtrl::SetRangeMin(int lowest, BOOL redraw)
{
    Ask(*this, TBM_SETRANGEMIN, static_cast<WPARAM>(redraw), static_cast<LPARAM>(lowest));
}

void CSliderCtrl::SetRangeMax(int highest, BOOL redraw)
{
    Ask(*this, TBM_SETRANGEMAX, static_cast<WPARAM>(redraw), static_cast<LPARAM>(highest));
}

void CSliderCtrl::SetRange(int lowest, int highest, BOOL redraw)
{
    SetRangeMin(lowest, FALSE);
    SetRangeMax(highest, redraw);
}

int CSliderCtrl::GetPos() const
{
    return Ask(*this, TBM_GETPOS);
}

void CSliderCtrl::SetPos(int position)
{
    Ask(*this, TBM_SETPOS, TRUE, static_cast<LPARAM>(position));
}

void CSliderCtrl::GetSelection(int& lowest, int& highest) const
{
    lowest = Ask(*this, TBM_GETSELSTART);
    highest = Ask(*this, TBM_GETSELEND);
}

void CSliderCtrl::SetSelection(int lowest, int highest)
{
    Ask(*this, TBM_SETSELSTART, FALSE, static_cast<LPARAM>(lowest));
    Ask(*this, TBM_SETSELEND, TRUE, static_cast<LPARAM>(highest));
}

void CSliderCtrl::ClearSel(BOOL redraw)
{
    Ask(*this, TBM_CLEARSEL, static_cast<WPARAM>(redraw));
}

UINT CSliderCtrl::GetNumTics() const
{
    return static_cast<UINT>(Ask(*this, TBM_GETNUMTICS));
}

BOOL CSliderCtrl::SetTic(int position)
{
    return Ask(*this, TBM_SETTIC, 0, static_cast<LPARAM>(position));
}

void CSliderCtrl::SetTicFreq(int frequency)
{
    Ask(*this, TBM_SETTICFREQ, static_cast<WPARAM>(frequency));
}

void CSliderCtrl::ClearTics(BOOL redraw)
{
    Ask(*this, TBM_CLEARTICS, static_cast<WPARAM>(redraw));
}

void CSliderCtrl::GetChannelRect(LPRECT rect) const
{
    Ask(*this, TBM_GETCHANNELRECT, 0, rect);
}

void CSliderCtrl::GetThumbRect(LPRECT rect) const
{
    Ask(*this, TBM_GETTHUMBRECT, 0, rect);
}

CWnd* CSliderCtrl::SetBuddy(CWnd* buddy, BOOL before)
{
    return CWnd::FromHandle(
        AsHandle<HWND>(Ask(*this, TBM_SETBUDDY, static_cast<WPARAM>(before), buddy->GetSafeHwnd())));
}

CWnd* CSliderCtrl::GetBuddy(BOOL before) const
{
    return CWnd::FromHandle(AsHandle<HWND>(Ask(*this, TBM_GETBUDDY, static_cast<WPARAM>(before))));
}
