#include "framework/bars/CControlBar.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/include/afxres.h"
#include "framework/window/CCmdUI.h"
#include "framework/window/CMenu.h"
#include "framework/window/ModuleState.h"

// Menu items, message line, tool tips and idle work of a frame.

namespace
{
/// Ids of the system menu's commands are 0xF000, 0xF010, ...; their help texts follow one another from here.
constexpr UINT kFirstSystemCommand = 0xF000;
constexpr UINT kLastSystemCommand = 0xF1F0;
constexpr UINT kFirstSystemText = 0xEF00;

constexpr UINT kPopup = static_cast<UINT>(-1);

/// Id of the help text of a menu item; 0: none.
UINT HelpTextOf(UINT id, UINT flags)
{
    if (flags & (MF_POPUP | MF_SEPARATOR))
        return 0;
    if (id >= kFirstSystemCommand && id < kLastSystemCommand)
        return kFirstSystemText + ((id - kFirstSystemCommand) >> 4);
    return id;
}

/// Part of a command's text: the message line's, or behind a line end the tip.
CString CommandText(UINT id, int part)
{
    CString all;
    CString text;
    if (AfxLoadString(id, all))
        AfxExtractSubString(text, all, part);
    return text;
}
} // namespace

CMenu* CFrameWnd::ParentOf(const CMenu& menu) const
{
    CMenu* bar = GetMenu();
    const UINT count = bar ? bar->GetMenuItemCount() : 0;
    for (UINT i = 0; i < count && count != kPopup; ++i)
        if (::GetSubMenu(bar->m_hMenu, static_cast<int>(i)) == menu.m_hMenu)
            return bar;
    return nullptr;
}

void CFrameWnd::OnInitMenuPopup(CMenu* menu, UINT index, BOOL systemMenu)
{
    if (systemMenu || !menu)
        CWnd::OnInitMenuPopup(menu, index, systemMenu);
    else
        UpdateMenuItems(*menu);
}

void CFrameWnd::UpdateMenuItems(CMenu& menu)
{
    CCmdUI state;
    state.m_pMenu = &menu;
    state.m_pParentMenu = ParentOf(menu);
    state.m_nIndexMax = menu.GetMenuItemCount();
    for (state.m_nIndex = 0; state.m_nIndex < state.m_nIndexMax; ++state.m_nIndex)
    {
        const int position = static_cast<int>(state.m_nIndex);
        state.m_nID = menu.GetMenuItemID(position);
        state.m_pSubMenu = state.m_nID == kPopup ? menu.GetSubMenu(position) : nullptr;
        // A popup is updated as a whole by the handler of its first item.
        if (state.m_pSubMenu)
            state.m_nID = state.m_pSubMenu->GetMenuItemID(0);
        if (state.m_nID == ID_SEPARATOR || state.m_nID == kPopup)
            continue;
        const bool disable = m_bAutoMenuEnable && !state.m_pSubMenu && state.m_nID < kFirstSystemCommand;
        state.DoUpdate(this, disable);
        // Handlers may put items in or take them out: the loop goes on behind those of this command.
        const UINT count = menu.GetMenuItemCount();
        if (count < state.m_nIndexMax)
        {
            state.m_nIndex -= state.m_nIndexMax - count; // one before the first wraps round and comes back with ++
            while (state.m_nIndex < count && menu.GetMenuItemID(static_cast<int>(state.m_nIndex)) == state.m_nID)
                ++state.m_nIndex;
        }
        state.m_nIndexMax = count;
    }
}

void CFrameWnd::OnMenuSelect(UINT id, UINT flags, HMENU menu)
{
    const bool closed = flags == 0xFFFF && !menu;
    m_nIDTracking = closed ? static_cast<UINT>(AFX_IDS_IDLEMESSAGE) : HelpTextOf(id, flags);
    if (m_nIDTracking != m_nIDLastMessage)
        SetMessageText(m_nIDTracking);
}

BOOL CFrameWnd::IsTracking() const
{
    return m_nIDTracking != 0 && m_nIDTracking != AFX_IDS_IDLEMESSAGE;
}

CWnd* CFrameWnd::GetMessageBar()
{
    return GetDescendantWindow(AFX_IDW_STATUS_BAR, TRUE);
}

void CFrameWnd::GetMessageString(UINT id, CString& message) const
{
    message = CommandText(id, 0);
}

void CFrameWnd::SetMessageText(LPCTSTR text)
{
    SendMessage(WM_SETMESSAGESTRING, 0, reinterpret_cast<LPARAM>(text));
}

void CFrameWnd::SetMessageText(UINT id)
{
    SendMessage(WM_SETMESSAGESTRING, id);
}

LRESULT CFrameWnd::OnSetMessageString(WPARAM wParam, LPARAM lParam)
{
    const UINT former = m_nIDLastMessage;
    const auto id = static_cast<UINT>(wParam);
    CString text;
    if (lParam)
        text = reinterpret_cast<LPCTSTR>(lParam);
    else if (id)
        GetMessageString(id, text);
    if (CWnd* bar = GetMessageBar())
        bar->SetWindowText(text);
    m_nIDLastMessage = id;
    m_nIDTracking = id;
    return static_cast<LRESULT>(former);
}

LRESULT CFrameWnd::OnIdleUpdateCmdUI(WPARAM, LPARAM)
{
    const UINT work = m_nIdleFlags;
    m_nIdleFlags = 0;
    if (work & idleTitle)
        OnUpdateFrameTitle(TRUE);
    if (work & idleLayout)
    {
        RecalcLayout((work & idleNotify) != 0);
        UpdateFloatingFrames(); // those that are hidden are not visited themselves
    }
    if (work)
        UpdateWindow();
    return 0;
}

void CFrameWnd::OnUpdateKeyIndicator(CCmdUI* cmdUI)
{
    const int key = cmdUI->m_nID == ID_INDICATOR_CAPS  ? VK_CAPITAL
                    : cmdUI->m_nID == ID_INDICATOR_NUM ? VK_NUMLOCK
                                                       : VK_SCROLL;
    // The low bit is the lamp.
    cmdUI->Enable(::GetKeyState(key) & 1);
}

BOOL CFrameWnd::OnToolTipText(UINT, NMHDR* header, LRESULT* result)
{
    auto* wide = reinterpret_cast<NMTTDISPINFOW*>(header);
    auto* narrow = reinterpret_cast<NMTTDISPINFOA*>(header);
    const bool isWide = header->code == TTN_GETDISPINFOW;
    UINT_PTR id = header->idFrom;
    if ((isWide ? wide->uFlags : narrow->uFlags) & TTF_IDISHWND)
        id = static_cast<UINT>(::GetDlgCtrlID(reinterpret_cast<HWND>(id)));
    const CString tip = id ? CommandText(static_cast<UINT>(id), 1) : CString();
    if (tip.IsEmpty())
        return FALSE;
    if (isWide)
        ::MultiByteToWideChar(CP_ACP, 0, tip, -1, wide->szText, ARRAYSIZE(wide->szText));
    else
        ::lstrcpynA(narrow->szText, tip, ARRAYSIZE(narrow->szText));
    wide->szText[ARRAYSIZE(wide->szText) - 1] = isWide ? L'\0' : wide->szText[ARRAYSIZE(wide->szText) - 1];
    *result = 0;
    return TRUE;
}
