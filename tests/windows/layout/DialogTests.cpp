#include "tests/support/DialogTemplateBuilder.h"
#include "tests/support/GdiCount.h"
#include "tests/windows/layout/LaidWindow.h"
#include "tests/windows/layout/ProfileApp.h"
#include "toolkit/layout/LayoutDialog.h"

// A dialog of the toolkit, sized, limited, saved and restored.
namespace
{

constexpr DWORD kCaptionStyle = WS_POPUP | WS_CAPTION | WS_SYSMENU;

struct Looks
{
    const char* section = nullptr;
    bool hasStatusBar = false;
    bool isResizable = true;
    bool isBounded = false;
};

/// One control that grows from 200 by 100 pixels, or one of that size only.
class PlannerDialog : public LayoutManagement::LayoutDialog
{
public:
    explicit PlannerDialog(const Looks& looks = {})
        : LayoutDialog(0U, nullptr, looks.section, looks.hasStatusBar, looks.isResizable), m_isBounded(looks.isBounded)
    {
        DialogTemplateBuilder builder;
        const auto bytes = builder.Style(kCaptionStyle | DS_MODALFRAME, WS_EX_DLGMODALFRAME)
                               .At({20, 20, 250, 160})
                               .Add(DialogTemplateBuilder::Button, 1, WS_CHILD | WS_VISIBLE, {0, 0, 10, 10})
                               .Bytes();
        CreateIndirect(reinterpret_cast<LPCDLGTEMPLATE>(bytes.data()));
    }
    BOOL OnInitDialog() override
    {
        LayoutDialog::OnInitDialog();
        m_initialClient = Client();
        if (m_isBounded)
        {
            CreateRoot(Vertical, 5, 0) << item(1, FixedBoth, 200, 100, 0, 0);
        }
        else
        {
            CreateRoot(Vertical, 5, 0) << item(1, Greedy, 0, 0, 200, 100);
        }
        return TRUE;
    }
    CSize Client() const
    {
        CRect rect;
        GetClientRect(&rect);
        return rect.Size();
    }
    CSize Outer() const
    {
        CRect rect;
        GetWindowRect(&rect);
        return rect.Size();
    }
    CSize Frame() const
    {
        return Outer() - Client();
    }
    void Size(int width, int height)
    {
        SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    CRect Button()
    {
        CRect rect;
        GetDlgItem(1)->GetWindowRect(&rect);
        ScreenToClient(&rect);
        return rect;
    }
    int StatusBarHeight() const
    {
        CRect rect;
        m_statusBar.GetWindowRect(&rect);
        return rect.Height();
    }
    using LayoutMgr::UpdateLayout;
    CSize m_initialClient;

private:
    bool m_isBounded;
};

BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

int WindowsOfThisThread()
{
    int count = 0;
    ::EnumThreadWindows(::GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&count));
    return count;
}

TEST(LayoutDialog, AResizableOneHasAThickFrameAroundTheSameClientArea)
{
    PlannerDialog fixed({.isResizable = false});
    PlannerDialog resizable;
    EXPECT_EQ(0U, fixed.GetStyle() & WS_THICKFRAME);
    EXPECT_NE(0U, resizable.GetStyle() & WS_THICKFRAME);
    EXPECT_EQ(0U, resizable.GetExStyle() & WS_EX_DLGMODALFRAME);
    EXPECT_EQ(fixed.m_initialClient, resizable.m_initialClient);
}

TEST(LayoutDialog, ItsControlsFollowItsSize)
{
    PlannerDialog dialog;
    dialog.Size(500, 400);
    const CSize client = dialog.Client();
    EXPECT_EQ(CRect(5, 5, client.cx - 5, client.cy - 5), dialog.Button());
    dialog.Size(510, 420);
    EXPECT_EQ(CRect(5, 5, client.cx + 5, client.cy + 15), dialog.Button());
}

TEST(LayoutDialog, ItIsLaidOutWhenItIsShown)
{
    PlannerDialog dialog;
    dialog.ShowWindow(SW_SHOWNA);
    const CSize client = dialog.Client();
    EXPECT_EQ(CRect(5, 5, client.cx - 5, client.cy - 5), dialog.Button());
}

TEST(LayoutDialog, ItCannotBeMadeSmallerThanItsMinimum)
{
    PlannerDialog dialog;
    dialog.Size(10, 10);
    EXPECT_EQ(CSize(210, 110) + dialog.Frame(), dialog.Outer());
    EXPECT_EQ(CRect(5, 5, 205, 105), dialog.Button());
}

TEST(LayoutDialog, WithoutAMaximumItFillsTheScreen)
{
    PlannerDialog dialog;
    dialog.ShowWindow(SW_SHOWMAXIMIZED);
    EXPECT_TRUE(dialog.IsZoomed());
    EXPECT_GE(dialog.Outer().cx, ::GetSystemMetrics(SM_CXSCREEN));
}

TEST(LayoutDialog, WithAMaximumItCannotGrowPastIt)
{
    PlannerDialog dialog({.isBounded = true});
    dialog.Size(900, 700);
    // Heights are bounded one pixel below their sum, and the minimum wins.
    EXPECT_EQ(CSize(210, 110) + dialog.Frame(), dialog.Outer());
}

TEST(LayoutDialog, WithAMaximumItIsMaximisedToThat)
{
    PlannerDialog dialog({.isBounded = true});
    dialog.ShowWindow(SW_SHOWMAXIMIZED);
    EXPECT_TRUE(dialog.IsZoomed());
    EXPECT_EQ(CSize(210, 110) + dialog.Frame(), dialog.Outer());
    CRect place;
    dialog.GetWindowRect(&place);
    EXPECT_LE(place.left, 0) << "at the corner of the work area, where the frame of a maximised window begins";
    EXPECT_LE(place.top, 0);
    EXPECT_EQ(CPoint(5, 5), dialog.Button().TopLeft()) << "laid out there";
}

TEST(LayoutDialog, ItsPlacementIsSavedAtItsEndAndTakenUpAgain)
{
    g_app.stored.clear();
    CRect saved;
    {
        PlannerDialog dialog({.section = "Planner"});
        dialog.MoveWindow(50, 60, 444, 333, FALSE);
        dialog.GetWindowRect(&saved);
        dialog.DestroyWindow();
    }
    EXPECT_EQ(1U, g_app.stored.count("Planner/WindowPlacement"));
    PlannerDialog next({.section = "Planner"});
    CRect restored;
    next.GetWindowRect(&restored);
    EXPECT_EQ(saved, restored);
}

TEST(LayoutDialog, ItsPlacementIsSavedByItsDestructorToo)
{
    g_app.stored.clear();
    {
        PlannerDialog dialog({.section = "Planner"});
    }
    EXPECT_EQ(1U, g_app.stored.size());
}

TEST(LayoutDialog, WithoutSectionTheProfileIsNotTouched)
{
    g_app.stored.clear();
    g_app.reads = 0;
    {
        PlannerDialog dialog({.section = ""});
        dialog.ShowWindow(SW_SHOWNA);
    }
    EXPECT_TRUE(g_app.stored.empty());
    EXPECT_EQ(0, g_app.reads);
}

TEST(LayoutDialog, AStatusBarTakesItsRoomFromThePanesAndFromTheLimits)
{
    PlannerDialog dialog({.hasStatusBar = true});
    const int bar = dialog.StatusBarHeight();
    ASSERT_GT(bar, 5);
    dialog.Size(500, 400);
    const CSize client = dialog.Client();
    EXPECT_EQ(CRect(5, 5, client.cx - 5, client.cy - bar - 5), dialog.Button());
    EXPECT_EQ(CRect(0, 0, client.cx, client.cy - bar), dialog.GetRect());
    dialog.Size(10, 10);
    EXPECT_EQ(CSize(210, 110 + bar) + dialog.Frame(), dialog.Outer());
}

TEST(LayoutDialog, MinimisedItKeepsItsLayout)
{
    PlannerDialog dialog;
    dialog.Size(500, 400);
    dialog.ShowWindow(SW_SHOWNA);
    const CRect before = dialog.Button();
    dialog.ShowWindow(SW_SHOWMINIMIZED);
    dialog.ShowWindow(SW_RESTORE);
    EXPECT_EQ(before, dialog.Button());
}

TEST(LayoutDialog, ManyOpeningsLeaveNoHandleBehind)
{
    {
        PlannerDialog first({.hasStatusBar = true});
        first.ShowWindow(SW_SHOWNA);
    }
    const unsigned drawing = vorn::test::CountGdiObjects();
    const int windows = WindowsOfThisThread();
    for (int i = 0; i < 100; ++i)
    {
        PlannerDialog dialog({.hasStatusBar = true});
        dialog.UpdateLayout(false);
    }
    EXPECT_EQ(drawing, vorn::test::CountGdiObjects());
    EXPECT_EQ(windows, WindowsOfThisThread());
}

} // namespace
