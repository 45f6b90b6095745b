// Times, colours and sizes of the tooltip control.
#include "framework/controls/CToolTipCtrl.h"

#include "framework/controls/ControlMessage.h"

using vorn::Ask;

void CToolTipCtrl::RelayEvent(LPMSG message)
{
    Ask(*this, TTM_RELAYEVENT, 0, message);
}

void CToolTipCtrl::Activate(BOOL activate)
{
    Ask(*this, TTM_ACTIVATE, static_cast<WPARAM>(activate));
}

void CToolTipCtrl::Pop()
{
    Ask(*this, TTM_POP);
}

void CToolTipCtrl::Update()
{
    Ask(*this, TTM_UPDATE);
}

void CToolTipCtrl::SetDelayTime(UINT milliseconds)
{
    Ask(*this, TTM_SETDELAYTIME, TTDT_AUTOMATIC, MAKELPARAM(milliseconds, 0));
}

void CToolTipCtrl::SetDelayTime(DWORD duration, int milliseconds)
{
    Ask(*this, TTM_SETDELAYTIME, duration, MAKELPARAM(milliseconds, 0));
}

int CToolTipCtrl::GetDelayTime(DWORD duration) const
{
    return Ask(*this, TTM_GETDELAYTIME, duration);
}

int CToolTipCtrl::GetMaxTipWidth() const
{
    return Ask(*this, TTM_GETMAXTIPWIDTH);
}

int CToolTipCtrl::SetMaxTipWidth(int width)
{
    return Ask(*this, TTM_SETMAXTIPWIDTH, 0, static_cast<LPARAM>(width));
}

void CToolTipCtrl::SetTipBkColor(COLORREF colour)
{
    Ask(*this, TTM_SETTIPBKCOLOR, colour);
}

COLORREF CToolTipCtrl::GetTipBkColor() const
{
    return static_cast<COLORREF>(Ask(*this, TTM_GETTIPBKCOLOR));
}

void CToolTipCtrl::SetTipTextColor(COLORREF colour)
{
    Ask(*this, TTM_SETTIPTEXTCOLOR, colour);
}

COLORREF CToolTipCtrl::GetTipTextColor() const
{
    return static_cast<COLORREF>(Ask(*this, TTM_GETTIPTEXTCOLOR));
}

void CToolTipCtrl::GetMargin(LPRECT rect) const
{
    Ask(*this, TTM_GETMARGIN, 0, rect);
}

void CToolTipCtrl::SetMargin(LPCRECT rect)
{
    Ask(*this, TTM_SETMARGIN, 0, rect);
}
