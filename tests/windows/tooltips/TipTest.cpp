#include "tests/windows/tooltips/TipTest.h"

#include "framework/window/ModuleState.h"
#include "tests/support/PumpUntil.h"

namespace vorn::test
{

namespace
{
POINT g_cursor{};

BOOL WINAPI PlaceOfCursor(POINT* place)
{
    *place = g_cursor;
    return TRUE;
}
} // namespace

CRect WatchedTips::GetBoundsRect(CString text, int extra)
{
    if (m_whenMeasured)
    {
        m_whenMeasured();
    }
    return ToolTipCtrlEx::GetBoundsRect(text, extra);
}

CRect WatchedTips::CalculateInfoBoxRect(CPoint& point, ToolTipInfoEx* info, CRect& bounds)
{
    if (m_whenPlaced)
    {
        m_whenPlaced();
    }
    return ToolTipCtrlEx::CalculateInfoBoxRect(point, info, bounds);
}

LRESULT WatchedTips::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    m_paints += message == WM_PAINT ? 1 : 0;
    return ToolTipCtrlEx::WindowProc(message, wParam, lParam);
}

TipTest::TipTest() : m_cursor("VornCommon.dll", "GetCursorPos", reinterpret_cast<const void*>(PlaceOfCursor))
{
    EXPECT_TRUE(m_cursor.IsActive());
    const LPCTSTR windowClass =
        AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW), reinterpret_cast<HBRUSH>(COLOR_3DFACE + 1));
    m_host.CreateEx(0, windowClass, "tips", WS_POPUP | WS_VISIBLE, 200, 150, 400, 250, nullptr, nullptr);
    Add("Button", 1, 0, {10, 10, 110, 34});
    Add("Button", 2, 0, {120, 10, 220, 34});
    Add("ListBox", 3, WS_BORDER, {10, 40, 310, 240});
    m_tips.Create(&m_host);
    m_tips.AddTool(Control(1), "one");
    m_tips.AddTool(Control(2), IDS_TEST_TWO_FIELDS);
    m_tips.AddTool(Control(3), "three");
    PutCursor({5, 5});
    PumpWaiting();
}

TipTest::~TipTest()
{
    m_tips.DestroyWindow();
    m_host.DestroyWindow();
}

HWND TipTest::Add(const char* className, UINT id, DWORD style, const RECT& rect)
{
    return ::CreateWindowEx(0, className, "", WS_CHILD | WS_VISIBLE | style, rect.left, rect.top,
                            rect.right - rect.left, rect.bottom - rect.top, m_host.m_hWnd,
                            reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
}

CWnd* TipTest::Control(UINT id)
{
    return m_host.GetDlgItem(static_cast<int>(id));
}

CRect TipTest::PlaceOf(UINT id)
{
    CRect rect(0, 0, 0, 0);
    Control(id)->GetWindowRect(&rect);
    return rect;
}

CPoint TipTest::MiddleOf(UINT id)
{
    return PlaceOf(id).CenterPoint();
}

void TipTest::PutCursor(CPoint point)
{
    g_cursor = point;
    ::SetCursorPos(point.x, point.y);
}

void TipTest::MouseTo(CPoint point, UINT message, WPARAM keys)
{
    PutCursor(point);
    MSG move{};
    move.hwnd = m_host.m_hWnd;
    move.message = message;
    move.wParam = keys;
    move.pt = point;
    m_tips.RelayEvent(&move);
}

void TipTest::MouseOut()
{
    MouseTo({5, 5});
}

void TipTest::Relay(UINT message, HWND window)
{
    MSG relayed{};
    relayed.hwnd = window != nullptr ? window : m_host.m_hWnd;
    relayed.message = message;
    relayed.pt = g_cursor;
    m_tips.RelayEvent(&relayed);
}

void TipTest::Tick(UINT_PTR timer)
{
    m_tips.SendMessage(WM_TIMER, timer);
}

void TipTest::Hover(UINT id)
{
    MouseTo(MiddleOf(id));
    Tick(kWaitTimer);
}

bool TipTest::IsShown() const
{
    return m_tips.m_hWnd != nullptr && m_tips.IsWindowVisible();
}

CRect TipTest::TipPlace() const
{
    CRect rect(0, 0, 0, 0);
    m_tips.GetWindowRect(&rect);
    return rect;
}

std::string TipTest::TipText() const
{
    CString text;
    m_tips.GetWindowText(text);
    return static_cast<LPCSTR>(text);
}

void TipTest::MoveHost(int x, int y)
{
    m_host.SetWindowPos(nullptr, x, y, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

} // namespace vorn::test
