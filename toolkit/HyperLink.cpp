#include "toolkit/HyperLink.h"

#include "config/HostName.h"
#include "toolkit/LinkTarget.h"
#include "toolkit/core/LinkOpening.h"

#include <string>

IMPLEMENT_DYNAMIC(HyperLink, CStatic)

namespace
{
HYPERLINKCOLORS linkColors = {0x00EE0000, 0x008B1A55, 0x000000FF, 0x000000FF};
} // namespace

HyperLink::HyperLink() = default;

HyperLink::~HyperLink()
{
    if (m_ownCursor != nullptr)
    {
        ::DestroyCursor(m_ownCursor);
    }
}

void HyperLink::SetColors(COLORREF link, COLORREF visited, COLORREF hover, COLORREF active)
{
    linkColors = {link, visited, hover, active};
}

void HyperLink::SetColors(HYPERLINKCOLORS& colors)
{
    linkColors = colors;
}

void HyperLink::GetColors(HYPERLINKCOLORS& colors)
{
    colors = linkColors;
}

BOOL HyperLink::SubclassDlgItem(UINT id, CWnd* parent, LPCSTR url)
{
    if (m_hWnd != nullptr || parent == nullptr)
    {
        return FALSE;
    }
    m_url = url;
    return CStatic::SubclassDlgItem(id, parent);
}

void HyperLink::SetURL(LPCSTR url)
{
    m_url = url;
    UpdateTip();
}

CString HyperLink::GetURL() const
{
    return m_url;
}

void HyperLink::SetVisited(bool visited)
{
    SetState(m_visited, visited);
}

bool HyperLink::IsVisited() const
{
    return m_visited;
}

void HyperLink::SetLinkCursor(HICON cursor)
{
    m_cursor = cursor != nullptr ? cursor : ::LoadCursor(nullptr, IDC_ARROW);
}

HICON HyperLink::GetLinkCursor() const
{
    return m_cursor;
}

void HyperLink::ModifyLinkStyle(DWORD remove, DWORD add, bool redraw)
{
    m_linkStyle = (m_linkStyle & ~remove) | add;
    UpdateTip();
    if (redraw && m_hWnd != nullptr)
    {
        Invalidate();
    }
}

DWORD HyperLink::GetLinkStyle() const
{
    return m_linkStyle;
}

void HyperLink::FollowLink()
{
    if (m_url.IsEmpty())
    {
        SetVisited();
        return;
    }
    const HWND self = m_hWnd;
    const vorn::OpenedLink opened = vorn::OpenLink(m_url, SW_SHOW);
    if (!::IsWindow(self))
    {
        return; // the started program may have let messages through
    }
    if (opened.done)
    {
        SetVisited();
        return;
    }
    ::MessageBeep(MB_ICONEXCLAMATION);
    ReportError(opened.result);
}

void HyperLink::ReportError(int result)
{
    ::MessageBox(::GetAncestor(m_hWnd, GA_ROOT), vorn::LinkErrorMessage(result).c_str(), vorn::HostName().c_str(),
                 MB_OK | MB_ICONEXCLAMATION);
}

void HyperLink::SetDefaultCursor()
{
    SetLinkCursor(nullptr);
    char folder[MAX_PATH] = "";
    ::GetWindowsDirectory(folder, MAX_PATH);
    const std::string helpProgram = std::string(folder) + "\\winhlp32.exe"; // its cursor 106 is a hand
    const HMODULE module = ::LoadLibraryEx(helpProgram.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    if (module == nullptr)
    {
        return;
    }
    constexpr UINT kHand = 106;
    if (const HCURSOR hand = ::LoadCursor(module, MAKEINTRESOURCE(kHand)))
    {
        m_ownCursor = ::CopyIcon(hand);
        SetLinkCursor(m_ownCursor);
    }
    ::FreeLibrary(module);
}

bool HyperLink::HasStyle(DWORD bit) const
{
    return (m_linkStyle & bit) != 0;
}

COLORREF HyperLink::TextColor() const
{
    if (!IsWindowEnabled())
    {
        return ::GetSysColor(COLOR_GRAYTEXT);
    }
    if (m_pressed && m_over)
    {
        return linkColors.active;
    }
    if (m_over && HasStyle(HoverColor))
    {
        return linkColors.hover;
    }
    return m_visited ? linkColors.visited : linkColors.link;
}

void HyperLink::SetState(bool& state, bool value)
{
    const bool changes = state != value;
    state = value;
    if (changes && m_hWnd != nullptr)
    {
        Invalidate();
    }
}
