#include "framework/controls/CButton.h"

#include "framework/controls/ControlMessage.h"

using vorn::AsHandle;
using vorn::Ask;

namespace
{
constexpr UINT kButtonKindMask = 0x0f;
}

IMPLEMENT_DYNAMIC(CButton, CWnd)

CButton::CButton() = default;

BOOL CButton::Create(LPCTSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id)
{
    return CWnd::Create("BUTTON", caption, style, rect, parent, id);
}

UINT CButton::GetState() const
{
    return static_cast<UINT>(Ask(*this, BM_GETSTATE));
}

void CButton::SetState(BOOL highlight)
{
    Ask(*this, BM_SETSTATE, static_cast<WPARAM>(highlight));
}

int CButton::GetCheck() const
{
    return Ask(*this, BM_GETCHECK);
}

void CButton::SetCheck(int check)
{
    Ask(*this, BM_SETCHECK, static_cast<WPARAM>(check));
}

UINT CButton::GetButtonStyle() const
{
    return GetStyle() & kButtonKindMask;
}

void CButton::SetButtonStyle(UINT style, BOOL redraw)
{
    Ask(*this, BM_SETSTYLE, style, static_cast<LPARAM>(redraw));
}

HICON CButton::SetIcon(HICON icon)
{
    return AsHandle<HICON>(Ask(*this, BM_SETIMAGE, IMAGE_ICON, icon));
}

HICON CButton::GetIcon() const
{
    return AsHandle<HICON>(Ask(*this, BM_GETIMAGE, IMAGE_ICON));
}

HBITMAP CButton::SetBitmap(HBITMAP bitmap)
{
    return AsHandle<HBITMAP>(Ask(*this, BM_SETIMAGE, IMAGE_BITMAP, bitmap));
}

HBITMAP CButton::GetBitmap() const
{
    return AsHandle<HBITMAP>(Ask(*this, BM_GETIMAGE, IMAGE_BITMAP));
}

HCURSOR CButton::SetCursor(HCURSOR cursor)
{
    return AsHandle<HCURSOR>(Ask(*this, BM_SETIMAGE, IMAGE_CURSOR, cursor));
}

HCURSOR CButton::GetCursor()
{
    return AsHandle<HCURSOR>(Ask(*this, BM_GETIMAGE, IMAGE_CURSOR));
}

void CButton::DrawItem(LPDRAWITEMSTRUCT)
{
}

BOOL CButton::OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result)
{
    if (message != WM_DRAWITEM)
        return CWnd::OnChildNotify(message, wParam, lParam, result);
    DrawItem(reinterpret_cast<LPDRAWITEMSTRUCT>(lParam));
    return TRUE;
}
