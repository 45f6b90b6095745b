#include "toolkit/HotEdit.h"

#include "frame/TimerMgr.h"

IMPLEMENT_DYNAMIC(HotEdit, CEdit)

BEGIN_MESSAGE_MAP(HotEdit, CEdit)
ON_WM_MOUSEMOVE()
ON_WM_NCMOUSEMOVE()
ON_WM_NCPAINT()
ON_WM_TIMER()
ON_WM_SYSCOLORCHANGE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

namespace
{
/// How often a hot field looks whether the mouse has gone.
constexpr UINT kLookMs = 100;
} // namespace

HotEdit::HotEdit(bool hot) : m_reacts(hot)
{
    UpdateColors();
}

HotEdit::~HotEdit() = default;

void HotEdit::HotActivate(bool active)
{
    const bool turns = active && m_reacts;
    if (turns == m_active)
    {
        return;
    }
    m_active = turns;
    if (m_hWnd == nullptr)
    {
        return;
    }
    StopTimer();
    if (m_active)
    {
        m_timer = TimerMgr::Inst()->SetTimer(this, kLookMs);
    }
    DrawBorder();
}

bool HotEdit::IsHot() const
{
    return m_active;
}

void HotEdit::UpdateColors()
{
    m_hotColor = ::GetSysColor(COLOR_HIGHLIGHT);
    m_plainColor = ::GetSysColor(COLOR_BTNSHADOW);
    m_innerColor = ::GetSysColor(COLOR_WINDOW);
    if (m_hWnd != nullptr)
    {
        DrawBorder();
    }
}

void HotEdit::DrawBorder()
{
    CRect frame;
    GetWindowRect(&frame);
    CRect client;
    GetClientRect(&client);
    ClientToScreen(&client);
    client.OffsetRect(-frame.left, -frame.top);
    frame.OffsetRect(-frame.left, -frame.top);
    if (client.left < 1 || client.top < 1)
    {
        return; // a field without a border has no place for the light
    }
    CWindowDC dc(this);
    dc.Draw3dRect(&frame, m_active ? m_hotColor : m_plainColor, m_active ? m_hotColor : m_plainColor);
    frame.DeflateRect(1, 1);
    if (client.left > 1 && client.top > 1)
    {
        dc.Draw3dRect(&frame, m_innerColor, m_innerColor);
    }
}

void HotEdit::PreSubclassWindow()
{
    CEdit::PreSubclassWindow();
    UpdateColors();
}

void HotEdit::OnMouseMove(UINT, CPoint)
{
    HotActivate(true);
    Default();
}

void HotEdit::OnNcMouseMove(UINT, CPoint)
{
    HotActivate(true);
    Default();
}

void HotEdit::OnNcPaint()
{
    Default();
    DrawBorder();
}

void HotEdit::OnTimer(UINT_PTR id)
{
    if (m_timer == 0 || id != m_timer)
    {
        Default();
        return;
    }
    CRect area;
    GetWindowRect(&area);
    POINT mouse{};
    if (!::GetCursorPos(&mouse) || !area.PtInRect(mouse) || !IsWindowVisible())
    {
        HotActivate(false);
    }
}

void HotEdit::OnSysColorChange()
{
    Default();
    UpdateColors();
}

void HotEdit::OnDestroy()
{
    StopTimer();
    m_active = false;
    CEdit::OnDestroy();
}

void HotEdit::StopTimer()
{
    if (m_timer != 0)
    {
        ::KillTimer(m_hWnd, m_timer);
        m_timer = 0;
    }
}
