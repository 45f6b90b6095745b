#include "framework/controls/CSpinButtonCtrl.h"

#include "framework/controls/ControlMessage.h"

using vorn::AsHandle;
using vorn::Ask;

IMPLEMENT_DYNAMIC(CSpinButtonCtrl, CWnd)

CSpinButtonCtrl::CSpinButtonCtrl() = default;

BOOL CSpinButtonCtrl::Create(DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    vorn::EnsureCommonControls();
    return CWnd::Create(UPDOWN_CLASSA, nullptr, style, rect, parent, id);
}

BOOL CSpinButtonCtrl::SetAccel(int count, UDACCEL* accel)
{
    return Ask(*this, UDM_SETACCEL, static_cast<WPARAM>(count), accel);
}

UINT CSpinButtonCtrl::GetAccel(int count, UDACCEL* accel) const
{
    return static_cast<UINT>(Ask(*this, UDM_GETACCEL, static_cast<WPARAM>(count), accel));
}

int CSpinButtonCtrl::SetBase(int base)
{
    return Ask(*this, UDM_SETBASE, static_cast<WPARAM>(base));
}

UINT CSpinButtonCtrl::GetBase() const
{
    return static_cast<UINT>(Ask(*this, UDM_GETBASE));
}

CWnd* CSpinButtonCtrl::SetBuddy(CWnd* buddy)
{
    return CWnd::FromHandle(AsHandle<HWND>(Ask(*this, UDM_SETBUDDY, vorn::AsWParam(buddy->GetSafeHwnd()))));
}

CWnd* CSpinButtonCtrl::GetBuddy() const
{
    return CWnd::FromHandle(AsHandle<HWND>(Ask(*this, UDM_GETBUDDY)));
}

int CSpinButtonCtrl::SetPos(int position)
{
    return Ask(*this, UDM_SETPOS, 0, MAKELPARAM(position, 0));
}

int CSpinButtonCtrl::GetPos() const
{
    return Ask(*this, UDM_GETPOS);
}

int CSpinButtonCtrl::SetPos32(int position)
{
    return Ask(*this, UDM_SETPOS32, 0, static_cast<LPARAM>(position));
}

int CSpinButtonCtrl::GetPos32(LPBOOL invalid) const
{
    return Ask(*this, UDM_GETPOS32, 0, invalid);
}

void CSpinButtonCtrl::SetRange(short lower, short upper)
{
    Ask(*this, UDM_SETRANGE, 0, MAKELPARAM(upper, lower));
}

void CSpinButtonCtrl::GetRange(int& lower, int& upper) const
{
    const LRESULT range = Ask(*this, UDM_GETRANGE);
    lower = static_cast<short>(HIWORD(range));
    upper = static_cast<short>(LOWORD(range));
}

void CSpinButtonCtrl::SetRange32(int lower, int upper)
{
    Ask(*this, UDM_SETRANGE32, static_cast<WPARAM>(lower), static_cast<LPARAM>(upper));
}

void CSpinButtonCtrl::GetRange32(int& lower, int& upper) const
{
    lower = upper = 0;
    Ask(*this, UDM_GETRANGE32, vorn::AsWParam(&lower), &upper);
}
