#include "toolkit/tooltips/ToolTipCtrlEx.h"

#include "framework/window/MessageMap.h"
#include "framework/window/ModuleState.h"
#include "toolkit/tooltips/TipSwitch.h"
#include "toolkit/tooltips/core/TipLookup.h"
#include "toolkit/tooltips/core/TipText.h"

#include <algorithm>

// The window and its tools.

IMPLEMENT_DYNAMIC(ToolTipCtrlEx, CWnd)

BEGIN_MESSAGE_MAP(ToolTipCtrlEx, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_TIMER()
ON_WM_LBUTTONDOWN()
ON_WM_RBUTTONDOWN()
ON_WM_MBUTTONDOWN()
ON_WM_NCHITTEST()
ON_WM_MOUSEACTIVATE()
ON_WM_ACTIVATEAPP()
ON_WM_KILLFOCUS()
ON_WM_CANCELMODE()
ON_WM_SETTINGCHANGE()
ON_MESSAGE(WM_SETFONT, &ToolTipCtrlEx::OnSetFont)
ON_MESSAGE(WM_GETFONT, &ToolTipCtrlEx::OnGetFont)
ON_WM_DESTROY()
END_MESSAGE_MAP()

ToolTipCtrlEx::ToolTipCtrlEx()
    : m_parent(nullptr), m_margins(2, 2, 3, 3), m_maxWidth(0), m_backColor(CLR_DEFAULT), m_textColor(CLR_DEFAULT),
      m_fontIsSystems(true), m_active(true)
{
    vorn::TipSwitch::Join(*this);
}

ToolTipCtrlEx::~ToolTipCtrlEx()
{
    if (m_hWnd != nullptr)
    {
        DestroyWindow();
    }
    vorn::TipSwitch::Leave(*this);
}

void ToolTipCtrlEx::GlobalEnableTips(bool enable)
{
    vorn::TipSwitch::Turn(enable);
    if (!enable)
    {
        vorn::TipSwitch::ForAll(
            [](ToolTipCtrlEx& tips)
            {
                tips.SwitchOff();
            });
    }
}

CString ToolTipCtrlEx::GetFieldFromString(CString text, int index, char separator)
{
    return vorn::TipField(text, index, separator);
}

BOOL ToolTipCtrlEx::Create(CWnd* parent)
{
    if (m_hWnd != nullptr)
    {
        return FALSE;
    }
    m_parent = parent->GetSafeHwnd();
    m_places.stale = true;
    const HWND owner = m_parent != nullptr ? ::GetAncestor(m_parent, GA_ROOT) : nullptr;
    return CreateEx(WS_EX_TOPMOST | WS_EX_TOOLWINDOW,
                    AfxRegisterWndClass(CS_SAVEBITS, ::LoadCursor(nullptr, IDC_ARROW)), nullptr, WS_POPUP, 0, 0, 0, 0,
                    owner, nullptr);
}

void ToolTipCtrlEx::OnDestroy()
{
    SwitchOff();
    m_tools.clear();
    m_places = Places();
    CWnd::OnDestroy();
}

ToolTipInfoEx* ToolTipCtrlEx::Find(HWND control, UINT id) const
{
    const auto found = std::find_if(m_tools.begin(), m_tools.end(),
                                    [control, id](const auto& tool)
                                    {
                                        return tool->HasKey(control, id);
                                    });
    return found != m_tools.end() ? found->get() : nullptr;
}

BOOL ToolTipCtrlEx::Add(CWnd* control, UINT textId, LPCSTR text, UINT id, const RECT* rect)
{
    const HWND window = control->GetSafeHwnd();
    if (window == nullptr)
    {
        return FALSE;
    }
    if (ToolTipInfoEx* const known = Find(window, id))
    {
        known->Redefine(textId, text, rect);
    }
    else
    {
        m_tools.push_back(std::make_unique<ToolTipInfoEx>(window, id, textId, text, rect));
    }
    m_places.stale = true;
    return TRUE;
}

BOOL ToolTipCtrlEx::AddTool(CWnd* control, UINT textId, UINT id, const RECT* rect)
{
    return Add(control, textId, nullptr, id, rect);
}

BOOL ToolTipCtrlEx::AddTool(CWnd* control, LPCSTR text, UINT id, const RECT* rect)
{
    return Add(control, 0, text, id, rect);
}

void ToolTipCtrlEx::DelTool(CWnd* control, UINT id)
{
    const ToolTipInfoEx* const tool = Find(control->GetSafeHwnd(), id);
    if (tool == nullptr)
    {
        return;
    }
    const vorn::TipState::Phase before = m_state.Now();
    m_state.Forget(tool);
    Follow(before);
    std::erase_if(m_tools,
                  [tool](const auto& one)
                  {
                      return one.get() == tool;
                  });
    m_places.stale = true;
}

int ToolTipCtrlEx::GetToolCount() const
{
    return static_cast<int>(m_tools.size());
}

bool ToolTipCtrlEx::GetToolInfo(TOOLINFOEX& info, CWnd* control, UINT id) const
{
    const ToolTipInfoEx* const tool = Find(control->GetSafeHwnd(), id);
    if (tool != nullptr)
    {
        info = *tool;
    }
    return tool != nullptr;
}

void ToolTipCtrlEx::SetToolInfo(TOOLINFOEX* info)
{
    ToolTipInfoEx* const tool = info != nullptr ? Find(info->hwnd, info->id) : nullptr;
    if (tool != nullptr)
    {
        tool->Take(*info);
        m_places.stale = true;
    }
}

void ToolTipCtrlEx::GetText(CString& text, CWnd* control, UINT id) const
{
    const ToolTipInfoEx* const tool = Find(control->GetSafeHwnd(), id);
    text = tool != nullptr ? tool->GetText().Left(vorn::kTipTextLimit) : CString();
}

bool ToolTipCtrlEx::HitTest(CWnd* control, POINT point, TOOLINFOEX* info) const
{
    const HWND window = control->GetSafeHwnd();
    if (window == nullptr || !::ClientToScreen(window, &point))
    {
        return false;
    }
    std::vector<RECT> rects;
    for (const auto& tool : m_tools)
    {
        rects.push_back(tool->GetScreenRect());
    }
    const std::size_t found = vorn::SmallestAround(rects, point,
                                                   [this, window](std::size_t tool)
                                                   {
                                                       return m_tools[tool]->GetControl() == window;
                                                   });
    if (found != vorn::kNoTip && info != nullptr)
    {
        *info = *m_tools[found];
    }
    return found != vorn::kNoTip;
}

void ToolTipCtrlEx::UpdateTipRects()
{
    m_places.stale = true;
}

void ToolTipCtrlEx::SetDelayTime(DWORD which, int milliseconds)
{
    static_assert(vorn::kTipAutomatic == TTDT_AUTOMATIC && vorn::kTipReshow == TTDT_RESHOW &&
                  vorn::kTipAutoPop == TTDT_AUTOPOP && vorn::kTipInitial == TTDT_INITIAL);
    m_delays.Set(which, milliseconds);
}

void ToolTipCtrlEx::SetDelayTime(UINT milliseconds)
{
    m_delays.SetAutomatic(milliseconds);
}

int ToolTipCtrlEx::GetDelayTime(DWORD which) const
{
    return m_delays.Get(which);
}
