#include "apps/planner/FuelDialog.h"
#include "apps/planner/LegBar.h"
#include "apps/planner/PositionTip.h"
#include "apps/planner/resource.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/GdiCount.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/UserCount.h"
#include "tests/windows/gallery/GalleryTest.h"

#include <algorithm>
#include <cstdlib>

// What the planner's windows leave behind when they have been opened and closed: nothing.
namespace vorn::test
{
namespace
{

/// What the process has of each kind of handle.
struct Handles
{
    unsigned drawing = CountGdiObjects();
    unsigned user = CountUserObjects();
    bool operator==(const Handles&) const = default;
};

std::string CountsOf(const Handles& handles)
{
    return std::to_string(handles.drawing) + " drawing objects, " + std::to_string(handles.user) + " windows and menus";
}

/// Has something done so many times. What a single one leaves behind comes again in each round; what is made once and
/// kept, here or by the system, does not.
void ExpectNothingLeft(int times, const std::function<void()>& action)
{
    constexpr int kRounds = 4;
    action();
    std::string counts;
    bool isLevel = false;
    Handles before;
    for (int round = 0; round < kRounds; ++round)
    {
        for (int i = 0; i < times / kRounds; ++i)
            action();
        PumpWaiting();
        const Handles after;
        isLevel = isLevel || after == before;
        counts += CountsOf(before) + " -> " + CountsOf(after) + '\n';
        before = after;
    }
    EXPECT_TRUE(isLevel) << counts;
}

TEST(GalleryHandles, AreCounted)
{
    const Handles before;
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    const HMENU menu = CreatePopupMenu();
    const HWND window = CreateWindow("STATIC", "", WS_POPUP, 0, 0, 5, 5, nullptr, nullptr, nullptr, nullptr);
    const HWND child = CreateWindow("STATIC", "", WS_CHILD, 0, 0, 5, 5, window, nullptr, nullptr, nullptr);
    EXPECT_NE(child, nullptr);
    EXPECT_GE(CountGdiObjects(), before.drawing + 1);
    EXPECT_GE(CountUserObjects(), before.user + 3);
    DestroyWindow(window);
    DestroyMenu(menu);
    DeleteObject(brush);
    EXPECT_EQ(Handles(), before);
}

using LeavingWindow = GalleryWindowTest;

/// With the tips and the bar below more than a thousand openings in all; windows with many controls take longest. The
/// environment's VORN_OPENINGS asks for another number of each.
int OpeningsOf(const std::string& name)
{
    if (const char* const asked = std::getenv("VORN_OPENINGS"))
        return std::max(4, std::atoi(asked));
    const bool hasMany = name == "Route" || name == "Weight" || name == "Fuel" || name == "Print";
    return hasMany ? 16 : 60;
}

TEST_P(LeavingWindow, LeavesNothingBehind)
{
    m_open.reset();
    ExpectNothingLeft(OpeningsOf(GetParam().name),
                      [this]
                      {
                          const std::unique_ptr<OpenWindow> open = GetParam().open(m_data);
                          EXPECT_NE(open->Window().m_hWnd, nullptr);
                      });
}

/// Shown, painted, turned through its pages and sized.
TEST_P(LeavingWindow, LeavesNothingBehindWhenItWasUsed)
{
    m_open.reset();
    ExpectNothingLeft(4,
                      [this]
                      {
                          const std::unique_ptr<OpenWindow> open = Open(GetParam());
                          for (int page = 0; page < open->Pages(); ++page)
                              open->ShowPage(page);
                          const CRect place = WindowRect(open->Window());
                          SizeTo(open->Window(), place.Width() + 60, place.Height() + 40);
                          open->Window().UpdateWindow();
                          PumpWaiting();
                      });
}

INSTANTIATE_TEST_SUITE_P(Gallery, LeavingWindow, testing::ValuesIn(GalleryWindows()), NameOfWindow);

class GalleryLeaks : public GalleryTest
{
};

TEST_F(GalleryLeaks, TheBarOfTheLegsLeavesNothingBehind)
{
    auto* const frame = new CFrameWnd; // deletes itself with its window
    ASSERT_TRUE(frame->Create(nullptr, "Legs", WS_OVERLAPPEDWINDOW, CRect(100, 80, 760, 560)));
    frame->EnableDocking(CBRS_ALIGN_ANY);
    frame->ShowWindow(SW_SHOW);
    ExpectNothingLeft(60,
                      [&]
                      {
                          planner::LegBar bar(m_data);
                          ASSERT_TRUE(bar.Open(*frame, ID_PLANNER_LEG_BAR));
                          frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_LEFT);
                          frame->FloatControlBar(&bar, CPoint(300, 200));
                          frame->DockControlBar(&bar, AFX_IDW_DOCKBAR_BOTTOM);
                          bar.DestroyWindow();
                          PumpWaiting(); // the floating frame ends when it is idle
                      });
    frame->DestroyWindow();
}

TEST_F(GalleryLeaks, TheTipsOfADialogLeaveNothingBehind)
{
    constexpr UINT_PTR kWaitTimer = 1;
    constexpr int kTimes = 400;
    const std::unique_ptr<OpenWindow> open = Open(GalleryWindowNamed("Fuel"));
    ASSERT_NE(open, nullptr);
    auto& dialog = dynamic_cast<planner::PlannerDialog&>(open->Window());
    ToolTipCtrlEx& tip = dialog.GetToolTipCtrl();
    const HWND control = ::GetDlgItem(dialog, IDC_FUEL_CONTINGENCY);
    const CPoint middle = WindowRect(control).CenterPoint();
    int shown = 0;
    const auto showOnce = [&]
    {
        SetCursorPos(middle.x, middle.y);
        MSG move{};
        move.hwnd = control;
        move.message = WM_MOUSEMOVE;
        move.pt = middle;
        tip.RelayEvent(&move);
        tip.SendMessage(WM_TIMER, kWaitTimer);
        shown += tip.IsWindowVisible() ? 1 : 0;
        tip.SendMessage(WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(2, 2)); // the box
        tip.UpdateWindow();
        tip.Pop();
        MSG away = move;
        away.hwnd = dialog;
        away.pt = WindowRect(dialog).TopLeft();
        tip.RelayEvent(&away);
    };
    ASSERT_TRUE(PumpUntil(
        [&]
        {
            POINT cursor{};
            SetCursorPos(middle.x, middle.y);
            GetCursorPos(&cursor);
            return CPoint(cursor) == middle;
        }));
    ExpectNothingLeft(kTimes, showOnce);
    EXPECT_GT(shown, kTimes * 9 / 10) << "or nothing was tried";
}

TEST_F(GalleryLeaks, ADialogThatRanLeavesNothingBehind)
{
    ExpectNothingLeft(12,
                      [this]
                      {
                          const DialogDriver driver(
                              []
                              {
                                  const HWND dialog = FindDialog("Fuel and alternates");
                                  return dialog != nullptr && ::PostMessage(dialog, WM_COMMAND, IDOK, 0);
                              });
                          EXPECT_EQ(planner::FuelDialog(m_data, nullptr).DoModal(), IDOK);
                      });
}

TEST_F(GalleryLeaks, TheNoteAtThePointerLeavesNothingBehind)
{
    const std::unique_ptr<OpenWindow> open = Open(GalleryWindowNamed("Links"));
    ASSERT_NE(open, nullptr);
    ExpectNothingLeft(100,
                      [&]
                      {
                          planner::PositionTip tip;
                          tip.Show(open->Window(), "N 47 26.9  W 122 18.6", CPoint(300, 200));
                          EXPECT_TRUE(::IsWindowVisible(tip.Window()));
                          tip.Hide(open->Window());
                      });
}

TEST_F(GalleryLeaks, ARefusalLeavesNothingBehind)
{
    const std::unique_ptr<OpenWindow> open = Open(GalleryWindowNamed("Goto"));
    ASSERT_NE(open, nullptr);
    CWnd& dialog = open->Window();
    dialog.SetDlgItemText(IDC_GOTO_LATITUDE, "47 65 N"); // more minutes than there are
    ExpectNothingLeft(300,
                      [&]
                      {
                          dialog.SendMessage(WM_COMMAND, IDOK);
                      });
    EXPECT_TRUE(dialog.IsWindowVisible()) << "it was not taken";
}

} // namespace
} // namespace vorn::test
