#include "tests/windows/layout_bars/Bars.h"

#include "config/AppRegMgr.h"
#include "tests/support/PumpUntil.h"

#include <algorithm>

namespace vorn::test
{
namespace
{

class TestApp : public CWinApp
{
public:
    TestApp() : CWinApp("LayoutBarTests")
    {
    }
};

TestApp theApp;

constexpr char kKey[] = "Software\\Vornwald\\LayoutBarTests";

} // namespace

LayoutBars::LayoutBars()
{
    AppRegMgr::FreeInst();
    ::RegDeleteTreeA(HKEY_CURRENT_USER, kKey);
    Restart();
}

LayoutBars::~LayoutBars()
{
    frame->DestroyWindow();
    PumpWaiting();
    AppRegMgr::FreeInst();
    ::RegDeleteTreeA(HKEY_CURRENT_USER, kKey);
}

void LayoutBars::Restart()
{
    if (frame)
    {
        frame->DestroyWindow();
    }
    frame = new CFrameWnd;
    CRect rect(100, 100, 500, 400);
    ::AdjustWindowRect(&rect, WS_OVERLAPPEDWINDOW, FALSE);
    ASSERT_TRUE(frame->Create(nullptr, "Bars", WS_OVERLAPPEDWINDOW, rect));
    frame->EnableDocking(CBRS_ALIGN_ANY);
    frame->ShowWindow(SW_SHOW);
    frame->UpdateWindow();
}

CRect LayoutBars::OnScreen(const CWnd& window)
{
    CRect rect;
    window.GetWindowRect(&rect);
    return rect;
}

CRect LayoutBars::PlaceOf(const CWnd& window) const
{
    CRect rect = OnScreen(window);
    frame->ScreenToClient(&rect);
    return rect;
}

CSize LayoutBars::SizeOf(const CWnd& bar, int id)
{
    return OnScreen(*bar.GetDlgItem(id)).Size();
}

CSize LayoutBars::LeastClient(const CWnd& bar)
{
    const CSize button = SizeOf(bar, IDC_SHOW);
    const CSize field = SizeOf(bar, IDC_FIND);
    const int width = std::max(80, static_cast<int>(5 + 5 + button.cx));
    return {width + 10, static_cast<int>(field.cy + 5 + 40 + 5 + button.cy + 10)};
}

std::string LayoutBars::Stored(const char* entry)
{
    return AppRegMgr::Instance()->ReadVornString("Dialog Bar Sizes", entry, "", 0).GetString();
}

void LayoutBars::Store(const char* entry, const char* value)
{
    AppRegMgr::Instance()->WriteVornString("Dialog Bar Sizes", entry, value, 0);
}

} // namespace vorn::test
