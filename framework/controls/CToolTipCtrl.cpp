#include "framework/controls/CToolTipCtrl.h"

#include "framework/controls/ControlMessage.h"
#include "framework/window/ModuleState.h"

using vorn::Ask;

IMPLEMENT_DYNAMIC(CToolTipCtrl, CWnd)

namespace
{
constexpr int kTipTextSize = 80; // the documented limit of TTM_GETTEXT, terminator included

/// A tool is a window itself (id 0) or a rectangle of it.
TOOLINFOA ToolOf(const CWnd* window, UINT_PTR toolId)
{
    TOOLINFOA info{};
    // The size before lpReserved: also taken by common controls of version 5.
    info.cbSize = TTTOOLINFOA_V2_SIZE;
    const HWND handle = window->GetSafeHwnd();
    if (toolId)
    {
        info.hwnd = handle;
        info.uId = toolId;
        return info;
    }
    info.hwnd = ::GetParent(handle);
    info.uId = reinterpret_cast<UINT_PTR>(handle);
    info.uFlags = TTF_IDISHWND;
    return info;
}

LPSTR TextParameter(LPCTSTR text)
{
    return const_cast<LPSTR>(text); // the system only reads it
}
} // namespace

CToolTipCtrl::CToolTipCtrl() = default;

BOOL CToolTipCtrl::Create(CWnd* parent, DWORD style)
{
    vorn::EnsureCommonControls();
    return CWnd::CreateEx(0, TOOLTIPS_CLASSA, nullptr, WS_POPUP | style, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT,
                          CW_USEDEFAULT, parent->GetSafeHwnd(), nullptr);
}

BOOL CToolTipCtrl::AddTool(CWnd* window, UINT textId, LPCRECT rect, UINT_PTR toolId)
{
    CString text;
    return AfxLoadString(textId, text) && AddTool(window, static_cast<LPCTSTR>(text), rect, toolId);
}

BOOL CToolTipCtrl::AddTool(CWnd* window, LPCTSTR text, LPCRECT rect, UINT_PTR toolId)
{
    if (!window || (rect == nullptr) != (toolId == 0))
        return FALSE;
    TOOLINFOA info = ToolOf(window, toolId);
    if (rect)
        info.rect = *rect;
    info.lpszText = TextParameter(text);
    return Ask(*this, TTM_ADDTOOLA, 0, &info);
}

void CToolTipCtrl::DelTool(CWnd* window, UINT_PTR toolId)
{
    TOOLINFOA info = ToolOf(window, toolId);
    Ask(*this, TTM_DELTOOLA, 0, &info);
}

int CToolTipCtrl::GetToolCount() const
{
    return Ask(*this, TTM_GETTOOLCOUNT);
}

void CToolTipCtrl::GetText(CString& text, CWnd* window, UINT_PTR toolId) const
{
    TOOLINFOA info = ToolOf(window, toolId);
    char buffer[kTipTextSize] = {};
    info.lpszText = buffer;
    Ask(*this, TTM_GETTEXTA, kTipTextSize, &info);
    text = buffer;
}

void CToolTipCtrl::UpdateTipText(LPCTSTR text, CWnd* window, UINT_PTR toolId)
{
    TOOLINFOA info = ToolOf(window, toolId);
    info.lpszText = TextParameter(text);
    Ask(*this, TTM_UPDATETIPTEXTA, 0, &info);
}

void CToolTipCtrl::UpdateTipText(UINT textId, CWnd* window, UINT_PTR toolId)
{
    CString text;
    if (AfxLoadString(textId, text))
        UpdateTipText(static_cast<LPCTSTR>(text), window, toolId);
}

void CToolTipCtrl::SetToolRect(CWnd* window, UINT_PTR toolId, LPCRECT rect)
{
    TOOLINFOA info = ToolOf(window, toolId);
    info.rect = *rect;
    Ask(*this, TTM_NEWTOOLRECTA, 0, &info);
}

BOOL CToolTipCtrl::GetToolInfo(TOOLINFOA& info, CWnd* window, UINT_PTR toolId) const
{
    const TOOLINFOA tool = ToolOf(window, toolId);
    info.cbSize = tool.cbSize;
    info.hwnd = tool.hwnd;
    info.uId = tool.uId;
    return Ask(*this, TTM_GETTOOLINFOA, 0, &info);
}

void CToolTipCtrl::SetToolInfo(TOOLINFOA* info)
{
    Ask(*this, TTM_SETTOOLINFOA, 0, info);
}

BOOL CToolTipCtrl::HitTest(CWnd* window, CPoint point, TTHITTESTINFOA* info) const
{
    info->hwnd = window->GetSafeHwnd();
    info->pt = point;
    info->ti.cbSize = TTTOOLINFOA_V2_SIZE;
    return Ask(*this, TTM_HITTESTA, 0, info);
}
