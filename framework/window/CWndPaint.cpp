#include "framework/window/CWnd.h"

#include "framework/gdi/CBitmap.h"
#include "framework/gdi/CDC.h"
#include "framework/gdi/CRgn.h"

namespace
{

HRGN HandleOf(CRgn* region)
{
    return region ? static_cast<HRGN>(region->GetSafeHandle()) : nullptr;
}

} // namespace

CDC* CWnd::BeginPaint(LPPAINTSTRUCT lpPaint)
{
    return CDC::FromHandle(::BeginPaint(m_hWnd, lpPaint));
}

void CWnd::EndPaint(LPPAINTSTRUCT lpPaint)
{
    ::EndPaint(m_hWnd, lpPaint);
}

CDC* CWnd::GetDC()
{
    return CDC::FromHandle(::GetDC(m_hWnd));
}

CDC* CWnd::GetWindowDC()
{
    return CDC::FromHandle(::GetWindowDC(m_hWnd));
}

CDC* CWnd::GetDCEx(CRgn* prgnClip, DWORD flags)
{
    return CDC::FromHandle(::GetDCEx(m_hWnd, HandleOf(prgnClip), flags));
}

int CWnd::ReleaseDC(CDC* pDC)
{
    return pDC ? ::ReleaseDC(m_hWnd, pDC->m_hDC) : 0;
}

void CWnd::Print(CDC* pDC, DWORD dwFlags) const
{
    SendMessage(WM_PRINT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), static_cast<LPARAM>(dwFlags));
}

void CWnd::PrintClient(CDC* pDC, DWORD dwFlags) const
{
    SendMessage(WM_PRINTCLIENT, reinterpret_cast<WPARAM>(pDC->GetSafeHdc()), static_cast<LPARAM>(dwFlags));
}

void CWnd::UpdateWindow()
{
    ::UpdateWindow(m_hWnd);
}

void CWnd::SetRedraw(BOOL bRedraw)
{
    SendMessage(WM_SETREDRAW, static_cast<WPARAM>(bRedraw));
}

BOOL CWnd::GetUpdateRect(LPRECT lpRect, BOOL bErase)
{
    return ::GetUpdateRect(m_hWnd, lpRect, bErase);
}

int CWnd::GetUpdateRgn(CRgn* pRgn, BOOL bErase)
{
    return ::GetUpdateRgn(m_hWnd, HandleOf(pRgn), bErase);
}

void CWnd::Invalidate(BOOL bErase)
{
    ::InvalidateRect(m_hWnd, nullptr, bErase);
}

void CWnd::InvalidateRect(LPCRECT lpRect, BOOL bErase)
{
    ::InvalidateRect(m_hWnd, lpRect, bErase);
}

void CWnd::InvalidateRgn(CRgn* pRgn, BOOL bErase)
{
    ::InvalidateRgn(m_hWnd, HandleOf(pRgn), bErase);
}

void CWnd::ValidateRect(LPCRECT lpRect)
{
    ::ValidateRect(m_hWnd, lpRect);
}

void CWnd::ValidateRgn(CRgn* pRgn)
{
    ::ValidateRgn(m_hWnd, HandleOf(pRgn));
}

BOOL CWnd::RedrawWindow(LPCRECT lpRectUpdate, CRgn* prgnUpdate, UINT flags)
{
    return ::RedrawWindow(m_hWnd, lpRectUpdate, HandleOf(prgnUpdate), flags);
}

BOOL CWnd::LockWindowUpdate()
{
    return ::LockWindowUpdate(m_hWnd);
}

void CWnd::UnlockWindowUpdate()
{
    ::LockWindowUpdate(nullptr);
}

void CWnd::CreateCaret(CBitmap* pBitmap)
{
    ::CreateCaret(m_hWnd, pBitmap ? static_cast<HBITMAP>(pBitmap->GetSafeHandle()) : nullptr, 0, 0);
}
