#include "framework/window/CWnd.h"

#include "framework/window/CMenu.h"
#include "framework/window/ModuleState.h"
#include "framework/window/ThreadState.h"
#include "framework/window/WindowMap.h"

BOOL CWnd::Create(LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect, CWnd* pParentWnd,
                  UINT nID, CCreateContext* pContext)
{
    return CreateEx(0, lpszClassName, lpszWindowName, dwStyle | WS_CHILD, rect, pParentWnd, nID, pContext);
}

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, const RECT& rect,
                    CWnd* pParentWnd, UINT nID, LPVOID lpParam)
{
    return CreateEx(dwExStyle, lpszClassName, lpszWindowName, dwStyle, rect.left, rect.top, rect.right - rect.left,
                    rect.bottom - rect.top, pParentWnd ? pParentWnd->m_hWnd : nullptr,
                    reinterpret_cast<HMENU>(static_cast<UINT_PTR>(nID)), lpParam);
}

namespace
{

HWND CreateFromRecord(const CREATESTRUCT& cs)
{
    return ::CreateWindowEx(cs.dwExStyle, cs.lpszClass, cs.lpszName, static_cast<DWORD>(cs.style), cs.x, cs.y, cs.cx,
                            cs.cy, cs.hwndParent, cs.hMenu, cs.hInstance, cs.lpCreateParams);
}

} // namespace

BOOL CWnd::CreateEx(DWORD dwExStyle, LPCTSTR lpszClassName, LPCTSTR lpszWindowName, DWORD dwStyle, int x, int y,
                    int nWidth, int nHeight, HWND hWndParent, HMENU nIDorHMenu, LPVOID lpParam)
{
    if (m_hWnd)
    {
        return FALSE;
    }
    CREATESTRUCT cs = {lpParam, AfxGetInstanceHandle(),     nIDorHMenu,     hWndParent,    nHeight,  nWidth, y,
                       x,       static_cast<LONG>(dwStyle), lpszWindowName, lpszClassName, dwExStyle};
    if (!PreCreateWindow(cs))
    {
        PostNcDestroy();
        return FALSE;
    }
    AfxHookWindowCreate(this);
    const HWND window = CreateFromRecord(cs);
    const BOOL bound = AfxUnhookWindowCreate();
    return window ? TRUE : FinishFailedCreation(bound);
}

/// PostNcDestroy is owed once. A window that got as far as its last message has had it, and
/// the object may be gone: it is looked at only when it is known to be bound still.
BOOL CWnd::FinishFailedCreation(BOOL bound)
{
    const HWND window = vorn::CurrentThreadState().lastCreated;
    if (bound && FromHandlePermanent(window) != this)
    {
        return FALSE;
    }
    if (bound)
    {
        ForgetWindow();
    }
    PostNcDestroy();
    return FALSE;
}

BOOL CWnd::PreCreateWindow(CREATESTRUCT& cs)
{
    if (!cs.lpszClass)
    {
        if (!(cs.style & WS_CHILD))
        {
            return FALSE; // only child windows have a class to fall back on
        }
        cs.lpszClass = AfxRegisterWndClass(CS_DBLCLKS | CS_HREDRAW | CS_VREDRAW, ::LoadCursor(nullptr, IDC_ARROW));
    }
    return TRUE;
}

void CWnd::PreSubclassWindow()
{
}

BOOL CWnd::AttachAndSubclass(HWND hWnd)
{
    if (!Attach(hWnd))
    {
        return FALSE;
    }
    try
    {
        PreSubclassWindow();
    }
    catch (...)
    {
        ForgetWindow();
        throw;
    }
    TakeOver(hWnd);
    return TRUE;
}

void CWnd::TakeOver(HWND hWnd)
{
    WNDPROC* super = GetSuperWndProcAddr();
    const auto before =
        reinterpret_cast<WNDPROC>(::SetWindowLongPtr(hWnd, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&AfxWndProc)));
    if (before != &AfxWndProc && !*super)
    {
        *super = before;
    }
}

WNDPROC* CWnd::GetSuperWndProcAddr()
{
    return &m_pfnSuper;
}
