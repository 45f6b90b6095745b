#include "framework/controls/CProgressCtrl.h"

#include "framework/controls/ControlMessage.h"

using vorn::Ask;

IMPLEMENT_DYNAMIC(CProgressCtrl, CWnd)

CProgressCtrl::CProgressCtrl() = default;

BOOL CProgressCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    vorn::EnsureCommonControls();
    return CWnd::Create(PROGRESS_CLASSA, nullptr, style, rect, parent, id);
}

void CProgressCtrl::SetRange(short lower, short upper)
{
    Ask(*this, PBM_SETRANGE, 0, MAKELPARAM(lower, upper));
}

void CProgressCtrl::SetRange32(int lower, int upper)
{
    Ask(*this, PBM_SETRANGE32, static_cast<WPARAM>(lower), static_cast<LPARAM>(upper));
}

void CProgressCtrl::GetRange(int& lower, int& upper) const
{
    PBRANGE range{};
    Ask(*this, PBM_GETRANGE, FALSE, &range);
    lower = range.iLow;
    upper = range.iHigh;
}

int CProgressCtrl::GetPos() const
{
    return Ask(*this, PBM_GETPOS);
}

int CProgressCtrl::SetPos(int position)
{
    return Ask(*this, PBM_SETPOS, static_cast<WPARAM>(position));
}

int CProgressCtrl::OffsetPos(int delta)
{
    return Ask(*this, PBM_DELTAPOS, static_cast<WPARAM>(delta));
}

int CProgressCtrl::SetStep(int step)
{
    return Ask(*this, PBM_SETSTEP, static_cast<WPARAM>(step));
}

int CProgressCtrl::StepIt()
{
    return Ask(*this, PBM_STEPIT);
}

COLORREF CProgressCtrl::SetBarColor(COLORREF colour)
{
    return static_cast<COLORREF>(Ask(*this, PBM_SETBARCOLOR, 0, static_cast<LPARAM>(colour)));
}

COLORREF CProgressCtrl::SetBkColor(COLORREF colour)
{
    return static_cast<COLORREF>(Ask(*this, PBM_SETBKCOLOR, 0, static_cast<LPARAM>(colour)));
}

BOOL CProgressCtrl::SetMarquee(BOOL run, int interval)
{
    return Ask(*this, PBM_SETMARQUEE, static_cast<WPARAM>(run), static_cast<LPARAM>(interval));
}
