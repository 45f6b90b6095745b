#include "framework/window/CWnd.h"

#include "framework/window/ThreadState.h"
#include "framework/window/WindowAccess.h"
#include "framework/window/WindowMap.h"

IMPLEMENT_DYNCREATE(CWnd, CCmdTarget)

const CWnd CWnd::wndTop(HWND_TOP);
const CWnd CWnd::wndBottom(HWND_BOTTOM);
const CWnd CWnd::wndTopMost(HWND_TOPMOST);
const CWnd CWnd::wndNoTopMost(HWND_NOTOPMOST);

CWnd* vorn::WindowTraits::MakeTemporary(HWND handle)
{
    auto window = std::make_unique<CWnd>();
    window->m_hWnd = handle;
    return window.release(); // the map owns it until FreeTemporary
}

void vorn::WindowTraits::FreeTemporary(CWnd* object)
{
    const std::unique_ptr<CWnd> window(object);
    window->m_hWnd = nullptr;
}

CWnd::CWnd() : CWnd(nullptr)
{
}

CWnd::CWnd(HWND hWnd) : m_hWnd(hWnd), m_nFlags(0), m_pfnSuper(nullptr), m_nModalResult(0), m_hWndOwner(nullptr)
{
}

BOOL CWnd::IsPlaceMark() const
{
    return this == &wndTop || this == &wndBottom || this == &wndTopMost || this == &wndNoTopMost;
}

CWnd::operator HWND() const
{
    return m_hWnd;
}

bool CWnd::operator==(const CWnd& wnd) const
{
    return m_hWnd == wnd.m_hWnd;
}

bool CWnd::operator!=(const CWnd& wnd) const
{
    return m_hWnd != wnd.m_hWnd;
}

HWND CWnd::GetSafeHwnd() const
{
    // Callers may ask through a null pointer; the detour keeps the compiler from assuming that they do not.
    const CWnd* volatile self = this;
    const CWnd* window = self;
    return window ? window->m_hWnd : nullptr;
}

CWnd* CWnd::FromHandle(HWND hWnd)
{
    return vorn::WindowMap().FromHandle(hWnd);
}

CWnd* CWnd::FromHandlePermanent(HWND hWnd)
{
    return hWnd ? vorn::WindowMap().LookupPermanent(hWnd) : nullptr;
}

void CWnd::DeleteTempMap()
{
    vorn::WindowMap().FreeTemporary(0);
}

BOOL CWnd::Attach(HWND hWndNew)
{
    auto& map = vorn::WindowMap();
    if (!hWndNew || m_hWnd || map.LookupPermanent(hWndNew))
    {
        return FALSE;
    }
    map.SetPermanent(hWndNew, this);
    m_hWnd = hWndNew;
    auto& orphans = vorn::CurrentThreadState().orphans;
    if (const auto orphan = orphans.find(hWndNew); orphan != orphans.end())
    {
        m_pfnSuper = orphan->second;
        orphans.erase(orphan);
    }
    return TRUE;
}

HWND CWnd::Detach()
{
    const HWND window = m_hWnd;
    const WNDPROC super = m_pfnSuper;
    ForgetWindow();
    if (window && super && ::IsWindow(window))
    {
        // The framework's procedure stays in place; it must go on to the window's own.
        vorn::CurrentThreadState().orphans[window] = super;
    }
    return window;
}

void CWnd::ForgetWindow()
{
    if (m_hWnd && FromHandlePermanent(m_hWnd) == this)
    {
        vorn::WindowMap().RemovePermanent(m_hWnd);
    }
    m_hWnd = nullptr;
    m_pfnSuper = nullptr;
}

BEGIN_MESSAGE_MAP(CWnd, CCmdTarget)
ON_WM_NCDESTROY()
ON_WM_CTLCOLOR()
ON_WM_DRAWITEM()
ON_WM_MEASUREITEM()
ON_WM_COMPAREITEM()
ON_WM_DELETEITEM()
ON_WM_CHARTOITEM()
ON_WM_VKEYTOITEM()
ON_WM_HSCROLL()
ON_WM_VSCROLL()
ON_WM_PARENTNOTIFY()
ON_WM_SYSCOLORCHANGE()
END_MESSAGE_MAP()
