#include "framework/window/MessageCall.h"

#include "framework/gdi/CDC.h"
#include "framework/window/CMenu.h"
#include "framework/window/CWnd.h"

CWnd* AfxMessageCall::WndW() const
{
    return CWnd::FromHandle(PointerW<HWND>());
}

CWnd* AfxMessageCall::WndL() const
{
    return CWnd::FromHandle(PointerL<HWND>());
}

CMenu* AfxMessageCall::MenuW() const
{
    return CMenu::FromHandle(PointerW<HMENU>());
}

CMenu* AfxMessageCall::MenuL() const
{
    return CMenu::FromHandle(PointerL<HMENU>());
}

CDC* AfxMessageCall::DcW() const
{
    return CDC::FromHandle(PointerW<HDC>());
}

UINT AfxMessageCall::CtlColorType() const
{
    const UINT plain = message >= WM_REFLECT_BASE ? message - WM_REFLECT_BASE : message;
    return plain - WM_CTLCOLORMSGBOX;
}

BOOL AfxMessageCall::IsMdiActivation(const CCmdTarget* target) const
{
    return static_cast<const CWnd*>(target)->m_hWnd == PointerL<HWND>();
}
