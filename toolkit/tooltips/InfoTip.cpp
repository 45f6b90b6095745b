#include "toolkit/tooltips/InfoTip.h"

#include "frame/TimerMgr.h"
#include "frame/VornCommonApp.h"
#include "toolkit/tooltips/PutWindow.h"
#include "toolkit/tooltips/core/TipPlacing.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(InfoTip, CToolTipCtrl)

BEGIN_MESSAGE_MAP(InfoTip, CToolTipCtrl)
ON_WM_TIMER()
ON_WM_LBUTTONDOWN()
ON_WM_RBUTTONDOWN()
END_MESSAGE_MAP()

namespace
{

constexpr int kWidth = 300;
constexpr int kTitleLimit = 99; // the system's, without the terminator
constexpr UINT_PTR kToolId = 1;
constexpr long kDoubleClicks = 10;

TOOLINFOA ToolOf(HWND window)
{
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE; // every version of the common controls takes it
    tool.uFlags = TTF_TRACK | TTF_ABSOLUTE;
    tool.hwnd = window;
    tool.uId = kToolId;
    return tool;
}

LRESULT Send(const CWnd& tip, UINT message, WPARAM wParam, const void* record)
{
    return tip.SendMessage(message, wParam, reinterpret_cast<LPARAM>(record));
}

bool IsWanted(int icon)
{
    VornCommonApp* const app = VornCommonApp::Inst();
    return icon == TTI_ERROR || app == nullptr || app->GetSettingInt("General", "Show Dialog Tips", 1) != 0;
}

bool IsIcon(int icon)
{
    return icon >= TTI_NONE && icon <= TTI_ERROR; // the system takes larger numbers for handles
}

CRect WorkAreaAt(POINT point)
{
    MONITORINFO info = {sizeof(info), {}, {}, 0};
    ::GetMonitorInfo(::MonitorFromPoint(point, MONITOR_DEFAULTTONEAREST), &info);
    return info.rcWork;
}

} // namespace

InfoTip::InfoTip() : m_tool(nullptr), m_timer(0)
{
}

InfoTip::~InfoTip() = default;

BOOL InfoTip::Create(CWnd* parent, DWORD style)
{
    if (m_hWnd != nullptr || !CToolTipCtrl::Create(parent, style | TTS_NOPREFIX | TTS_ALWAYSTIP))
    {
        return FALSE;
    }
    m_tool = parent->GetSafeHwnd();
    SetMaxTipWidth(kWidth);
    TOOLINFOA tool = ToolOf(m_tool);
    char empty[] = "";
    tool.lpszText = empty;
    return static_cast<BOOL>(Send(*this, TTM_ADDTOOLA, 0, &tool));
}

void InfoTip::ShowTip(CPoint point, LPCSTR title, LPCSTR text, int icon, long timeout)
{
    if (m_hWnd == nullptr || !IsWanted(icon))
    {
        return;
    }
    HideTip();
    if (text == nullptr || *text == 0)
    {
        return;
    }
    Fill(title, text, icon);
    TrackTo(point);
    const TOOLINFOA tool = ToolOf(m_tool);
    Send(*this, TTM_TRACKACTIVATE, TRUE, &tool);
    KeepOnScreen(point);
    StartTimer(timeout);
}

void InfoTip::Fill(LPCSTR title, LPCSTR text, int icon)
{
    TOOLINFOA tool = ToolOf(m_tool);
    tool.lpszText = const_cast<LPSTR>(text); // only read
    Send(*this, TTM_UPDATETIPTEXTA, 0, &tool);
    const CString shown = CString(title).Left(kTitleLimit);
    Send(*this, TTM_SETTITLEA, static_cast<WPARAM>(IsIcon(icon) ? icon : TTI_NONE), static_cast<LPCSTR>(shown));
}

void InfoTip::TrackTo(POINT point)
{
    const auto packed = [](LONG coordinate)
    {
        return static_cast<WORD>(static_cast<short>(std::clamp<LONG>(coordinate, SHRT_MIN, SHRT_MAX)));
    };
    SendMessage(TTM_TRACKPOSITION, 0, MAKELPARAM(packed(point.x), packed(point.y)));
}

/// Only a tip that is shown has its size. Some systems put it beside the point by the width of its border.
void InfoTip::KeepOnScreen(POINT point)
{
    CRect present;
    GetWindowRect(&present);
    vorn::PutWindow(*this, vorn::KeepOnArea(point, present.Size(), WorkAreaAt(point)).TopLeft());
}

void InfoTip::StartTimer(long timeout)
{
    const long time = timeout < 0 ? kDoubleClicks * static_cast<long>(::GetDoubleClickTime()) : timeout;
    if (time == 0)
    {
        return;
    }
    if (m_timer == 0)
    {
        m_timer = TimerMgr::Inst()->GetNextTimerValue();
    }
    SetTimer(m_timer, static_cast<UINT>(time));
}

void InfoTip::HideTip()
{
    if (m_hWnd == nullptr)
    {
        return;
    }
    if (m_timer != 0)
    {
        KillTimer(m_timer);
    }
    const TOOLINFOA tool = ToolOf(m_tool);
    Send(*this, TTM_TRACKACTIVATE, FALSE, &tool);
}

void InfoTip::OnTimer(UINT_PTR id)
{
    if (m_timer != 0 && id == m_timer)
    {
        HideTip();
        return;
    }
    Default();
}

void InfoTip::OnLButtonDown(UINT, CPoint)
{
    HideTip();
}

void InfoTip::OnRButtonDown(UINT, CPoint)
{
    HideTip();
}
