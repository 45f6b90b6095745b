#include "toolkit/HyperLink.h"

BEGIN_MESSAGE_MAP(HyperLink, CStatic)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_MOUSEMOVE()
ON_WM_MOUSELEAVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_CAPTURECHANGED()
ON_WM_KEYDOWN()
ON_WM_GETDLGCODE()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_SETCURSOR()
ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace
{
constexpr UINT_PTR kTipTool = 1;

UINT DrawingFlags(DWORD style)
{
    UINT flags = DT_EXPANDTABS;
    flags |= (style & SS_TYPEMASK) == SS_CENTER ? DT_CENTER : 0U;
    flags |= (style & SS_TYPEMASK) == SS_RIGHT ? DT_RIGHT : 0U;
    flags |= (style & SS_CENTERIMAGE) != 0 ? DT_SINGLELINE | DT_VCENTER : DT_WORDBREAK;
    flags |= (style & SS_NOPREFIX) != 0 ? DT_NOPREFIX : 0U;
    return flags;
}

bool IsFollowKey(UINT key)
{
    return key == VK_SPACE || key == VK_RETURN;
}
} // namespace

void HyperLink::PreSubclassWindow()
{
    CStatic::PreSubclassWindow();
    ModifyStyle(0, SS_NOTIFY | WS_TABSTOP);
    MakeFonts();
    if (m_cursor == nullptr)
    {
        SetDefaultCursor();
    }
    UpdateTip();
}

BOOL HyperLink::PreTranslateMessage(MSG* message)
{
    if (m_tip.m_hWnd != nullptr)
    {
        m_tip.RelayEvent(message);
    }
    return CStatic::PreTranslateMessage(message);
}

void HyperLink::SetFont(CFont* font)
{
    if (m_hWnd != nullptr)
    {
        CStatic::SetFont(font);
        MakeFonts();
        AdjustWindow();
    }
}

void HyperLink::SetWindowText(LPCSTR text)
{
    if (m_hWnd != nullptr)
    {
        CStatic::SetWindowText(text != nullptr ? text : "");
        AdjustWindow();
    }
}

void HyperLink::MakeFonts()
{
    LOGFONT description{};
    HGDIOBJ font = reinterpret_cast<HGDIOBJ>(SendMessage(WM_GETFONT));
    if (font == nullptr)
    {
        font = ::GetStockObject(SYSTEM_FONT);
    }
    ::GetObject(font, sizeof(description), &description);
    m_font.DeleteObject();
    m_underlined.DeleteObject();
    m_font.CreateFontIndirect(&description);
    description.lfUnderline = TRUE;
    m_underlined.CreateFontIndirect(&description);
}

void HyperLink::AdjustWindow()
{
    CString text;
    GetWindowText(text);
    CClientDC dc(this);
    CFont* former = dc.SelectObject(&m_font);
    CRect size(0, 0, 0, 0);
    const UINT flags = DrawingFlags(GetStyle()) & ~static_cast<UINT>(DT_WORDBREAK);
    dc.DrawText(text, &size, flags | DT_CALCRECT);
    dc.SelectObject(former);

    CRect old;
    GetWindowRect(&old);
    if (CWnd* parent = GetParent())
    {
        parent->ScreenToClient(&old);
    }
    CRect place(old.TopLeft(), size.Size());
    const DWORD type = GetStyle() & SS_TYPEMASK;
    const int spare = old.Width() - place.Width();
    place.OffsetRect(type == SS_RIGHT ? spare : type == SS_CENTER ? spare / 2 : 0, 0);
    place.OffsetRect(0, (GetStyle() & SS_CENTERIMAGE) != 0 ? (old.Height() - place.Height()) / 2 : 0);
    MoveWindow(&place);
}

void HyperLink::UpdateTip()
{
    const bool wanted = HasStyle(ToolTip) && !m_url.IsEmpty() && m_hWnd != nullptr;
    if (wanted && m_tip.m_hWnd == nullptr && m_tip.Create(this))
    {
        m_tip.AddTool(this, static_cast<LPCSTR>(m_url), CRect(0, 0, 0x7FFF, 0x7FFF), kTipTool);
    }
    if (m_tip.m_hWnd != nullptr)
    {
        m_tip.UpdateTipText(static_cast<LPCSTR>(m_url), this, kTipTool);
        m_tip.Activate(wanted);
    }
}

void HyperLink::OnPaint()
{
    CPaintDC dc(this);
    DrawLink(dc);
}

BOOL HyperLink::OnEraseBkgnd(CDC*)
{
    return TRUE; // painted with the text, so that nothing flickers
}

void HyperLink::DrawLink(CDC& dc)
{
    CRect area;
    GetClientRect(&area);
    const LRESULT brush = ::SendMessage(::GetParent(m_hWnd), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.m_hDC),
                                        reinterpret_cast<LPARAM>(m_hWnd));
    ::FillRect(dc.m_hDC, &area, brush != 0 ? reinterpret_cast<HBRUSH>(brush) : ::GetSysColorBrush(COLOR_BTNFACE));

    CString text;
    GetWindowText(text);
    const bool underlined = HasStyle(Underline) || (m_over && HasStyle(UnderlineHover));
    CFont* former = dc.SelectObject(underlined ? &m_underlined : &m_font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(TextColor());
    CRect place = area;
    dc.DrawText(text, &place, DrawingFlags(GetStyle()));
    dc.SelectObject(former);
    if (m_focused)
    {
        dc.SetTextColor(0);
        dc.SetBkColor(0x00FFFFFF);
        dc.DrawFocusRect(&area);
    }
}

void HyperLink::OnMouseMove(UINT, CPoint point)
{
    CRect area;
    GetClientRect(&area);
    if (!m_over)
    {
        TRACKMOUSEEVENT leaving = {sizeof(leaving), TME_LEAVE, m_hWnd, 0};
        ::TrackMouseEvent(&leaving);
    }
    SetState(m_over, area.PtInRect(point) != FALSE);
    Default();
}

void HyperLink::OnMouseLeave()
{
    SetState(m_over, false);
    Default();
}

void HyperLink::OnLButtonDown(UINT, CPoint)
{
    SetFocus();
    SetCapture();
    SetState(m_over, true);
    SetState(m_pressed, true);
    Default();
}

void HyperLink::OnLButtonUp(UINT, CPoint point)
{
    CRect area;
    GetClientRect(&area);
    const bool clicked = m_pressed && area.PtInRect(point);
    ::ReleaseCapture();
    Default();
    if (clicked)
    {
        FollowLink();
    }
}

void HyperLink::OnCaptureChanged(CWnd*)
{
    SetState(m_pressed, false);
    Default();
}

void HyperLink::OnKeyDown(UINT key, UINT, UINT)
{
    if (IsFollowKey(key))
    {
        FollowLink();
        return;
    }
    Default();
}

UINT HyperLink::OnGetDlgCode()
{
    const auto* asked = reinterpret_cast<const MSG*>(GetCurrentMessage()->lParam);
    const bool follows =
        asked != nullptr && asked->message == WM_KEYDOWN && IsFollowKey(static_cast<UINT>(asked->wParam));
    return static_cast<UINT>(Default()) | (follows ? DLGC_WANTMESSAGE : 0U);
}

void HyperLink::OnSetFocus(CWnd*)
{
    SetState(m_focused, true);
    Default();
}

void HyperLink::OnKillFocus(CWnd*)
{
    SetState(m_focused, false);
    Default();
}

BOOL HyperLink::OnSetCursor(CWnd*, UINT, UINT)
{
    ::SetCursor(m_cursor);
    return TRUE;
}

void HyperLink::OnDestroy()
{
    m_tip.DestroyWindow();
    CStatic::OnDestroy();
}
