#include "framework/bars/CStatusBar.h"
#include "framework/frames/CFrameWnd.h"
#include "framework/include/afxres.h"
#include "tests/support/GdiCount.h"
#include "tests/support/PumpUntil.h"
#include "tests/support/UserCount.h"
#include "tests/windows/layout/ProfileApp.h"
#include "tests/windows/layout_views/resource.h"
#include "toolkit/layout/LayoutFormView.h"

#include <gtest/gtest.h>

ProfileApp g_app;

namespace
{

int g_living = 0;

/// A field above a list that grows above a button at the right.
class WaypointForm : public LayoutManagement::LayoutFormView
{
    DECLARE_DYNCREATE(WaypointForm)

public:
    explicit WaypointForm(UINT templateId = IDD_FORM, LPCSTR section = nullptr) : LayoutFormView(templateId, section)
    {
        ++g_living;
    }
    ~WaypointForm() override
    {
        --g_living;
    }

    void OnInitialUpdate() override
    {
        LayoutFormView::OnInitialUpdate();
        if (!declaresPanes)
        {
            return;
        }
        CPane root = CreateRoot(Vertical, 5, 0);
        root << item(IDC_NAME, FixedHeight, 0, 0, 60, 0) << item(IDC_LIST, Greedy, 0, 0, 120, 60);
        CPane buttons = pane(Horizontal, FixedHeight, 5, 0, 0);
        buttons << itemSpace(Horizontal) << item(IDC_ADD, FixedBoth, 0, 0, 0, 0);
        root << buttons;
        if (isBounded)
        {
            CreateRoot(Vertical, 5, 0) << item(IDC_LIST, FixedBoth, 200, 100, 0, 0);
        }
        UpdateLayout(false);
    }

    CRect Place(int id) const
    {
        CRect rect;
        GetDlgItem(id)->GetWindowRect(&rect);
        ScreenToClient(&rect);
        return rect;
    }
    /// The button's place in the lower right corner of a client area.
    CRect Corner(int width, int height) const
    {
        const CSize button = Place(IDC_ADD).Size();
        return CRect(CPoint(width - 5, height - 5) - button, button);
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
    void Size(int width, int height)
    {
        SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    void AskLimits(MINMAXINFO& info)
    {
        SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    }
    using LayoutMgr::LockLayout;
    using LayoutMgr::UnlockLayout;

    bool declaresPanes = true;
    bool isBounded = false;
};

IMPLEMENT_DYNCREATE(WaypointForm, LayoutManagement::LayoutFormView)

class LayoutForm : public testing::Test
{
protected:
    LayoutForm()
    {
        g_app.stored.clear();
        g_app.reads = 0;
        m_parent.CreateEx(0, AfxRegisterWndClass(0), "", WS_POPUP | WS_VISIBLE, 20, 20, 600, 500, nullptr, nullptr);
    }
    ~LayoutForm() override
    {
        m_parent.DestroyWindow();
        EXPECT_EQ(0, g_living);
    }

    WaypointForm* Child(int width, int height, LPCSTR section = nullptr, bool declaresPanes = true)
    {
        auto* const view = new WaypointForm(IDD_FORM, section);
        view->declaresPanes = declaresPanes;
        view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, width, height), &m_parent, 9);
        view->OnInitialUpdate();
        return view;
    }
    static WaypointForm* OwnWindow(LPCSTR section, bool isBounded = false)
    {
        auto* const view = new WaypointForm(IDD_OWN_WINDOW, section);
        view->isBounded = isBounded;
        view->Create(nullptr, nullptr, WS_VISIBLE, CRect(0, 0, 0, 0), nullptr, 0);
        view->OnInitialUpdate();
        return view;
    }

    CWnd m_parent;
};

} // namespace

TEST_F(LayoutForm, ItsControlsFollowItsSize)
{
    WaypointForm* const view = Child(400, 300);
    EXPECT_EQ(view->Corner(400, 300), view->Place(IDC_ADD)) << "borders of 5 around";
    EXPECT_EQ(5, view->Place(IDC_LIST).left);
    EXPECT_EQ(395, view->Place(IDC_LIST).right);
    EXPECT_EQ(view->Corner(400, 300).top - 5, view->Place(IDC_LIST).bottom);
    EXPECT_GT(view->Place(IDC_ADD).Width(), 40);
    view->Size(500, 350);
    EXPECT_EQ(view->Corner(500, 350), view->Place(IDC_ADD));
    EXPECT_EQ(view->Corner(500, 350).top - 5, view->Place(IDC_LIST).bottom);
}

TEST_F(LayoutForm, ItHasNoScrollBarsWhateverItsSize)
{
    WaypointForm* const view = Child(400, 300, nullptr, false);
    for (const int size : {400, 60, 10, 300})
    {
        view->Size(size, size);
        EXPECT_EQ(0u, view->GetStyle() & (WS_HSCROLL | WS_VSCROLL)) << size;
        EXPECT_EQ(CSize(size, size), view->Client());
    }
}

TEST_F(LayoutForm, SmallerThanItsMinimumItGrows)
{
    WaypointForm* const view = Child(400, 300);
    const int name = view->Place(IDC_NAME).Height();
    const int button = view->Place(IDC_ADD).Height();
    view->Size(50, 40);
    EXPECT_EQ(CSize(130, name + 60 + button + 10 + 10), view->Client());
    EXPECT_EQ(CRect(5, 10 + name, 125, 70 + name), view->Place(IDC_LIST));
}

TEST_F(LayoutForm, LockedItIsLeftAsItIs)
{
    WaypointForm* const view = Child(400, 300);
    view->LockLayout();
    view->Size(500, 350);
    EXPECT_EQ(view->Corner(400, 300), view->Place(IDC_ADD));
    view->UnlockLayout();
    view->Size(510, 360);
    EXPECT_EQ(view->Corner(510, 360), view->Place(IDC_ADD));
}

TEST_F(LayoutForm, WithoutPanesNothingIsLimited)
{
    WaypointForm* const view = Child(400, 300, nullptr, false);
    MINMAXINFO info{};
    info.ptMinTrackSize = {11, 12};
    info.ptMaxTrackSize = {13, 14};
    info.ptMaxSize = {15, 16};
    view->AskLimits(info);
    EXPECT_EQ(11, info.ptMinTrackSize.x);
    EXPECT_EQ(12, info.ptMinTrackSize.y);
    EXPECT_EQ(13, info.ptMaxTrackSize.x);
    EXPECT_EQ(16, info.ptMaxSize.y);
}

TEST_F(LayoutForm, ItsLimitsAreThoseOfItsPanesWithTheFrame)
{
    WaypointForm* const view = OwnWindow(nullptr);
    const CSize frame = view->Outer() - view->Client();
    MINMAXINFO info{};
    info.ptMaxTrackSize = {13, 14};
    view->AskLimits(info);
    EXPECT_EQ(130 + frame.cx, info.ptMinTrackSize.x);
    EXPECT_EQ(13, info.ptMaxTrackSize.x) << "nothing bounds it";
    view->Size(10, 10);
    EXPECT_EQ(130, view->Client().cx);
    view->DestroyWindow();
}

TEST_F(LayoutForm, BoundedItCannotGrow)
{
    WaypointForm* const view = OwnWindow(nullptr, true);
    const CSize frame = view->Outer() - view->Client();
    MINMAXINFO info{};
    view->AskLimits(info);
    // The sum of maxima along the pane is one less than the sizes; the width is across it.
    EXPECT_EQ(200 + 10 + frame.cx, info.ptMaxTrackSize.x);
    EXPECT_EQ(100 - 1 + 10 + frame.cy, info.ptMaxTrackSize.y);
    EXPECT_EQ(info.ptMaxTrackSize.x, info.ptMaxSize.x);
    view->Size(900, 700);
    EXPECT_EQ(CSize(210, 110), view->Client());
    view->DestroyWindow();
}

TEST_F(LayoutForm, AWindowOfItsOwnKeepsItsPlacement)
{
    WaypointForm* view = OwnWindow("Waypoints");
    view->MoveWindow(60, 70, 444, 333, FALSE);
    CRect saved;
    view->GetWindowRect(&saved);
    view->DestroyWindow();
    EXPECT_EQ(1u, g_app.stored.count("Waypoints/WindowPlacement"));
    view = OwnWindow("Waypoints");
    CRect restored;
    view->GetWindowRect(&restored);
    EXPECT_EQ(saved, restored);
    view->DestroyWindow();
}

TEST_F(LayoutForm, DeletedWithItsWindowAliveItKeepsItsPlacementToo)
{
    delete OwnWindow("Waypoints");
    EXPECT_EQ(1u, g_app.stored.count("Waypoints/WindowPlacement"));
}

TEST_F(LayoutForm, AChildKeepsNone)
{
    WaypointForm* const view = Child(400, 300, "Waypoints");
    view->DestroyWindow();
    EXPECT_TRUE(g_app.stored.empty());
    EXPECT_EQ(0, g_app.reads);
}

TEST_F(LayoutForm, WithoutSectionTheProfileIsNotTouched)
{
    OwnWindow("")->DestroyWindow();
    OwnWindow(nullptr)->DestroyWindow();
    EXPECT_TRUE(g_app.stored.empty());
    EXPECT_EQ(0, g_app.reads);
}

TEST_F(LayoutForm, ItsBackgroundSparesItsControls)
{
    WaypointForm* const view = Child(400, 300);
    view->UpdateWindow();
    const HDC dc = ::GetDC(view->m_hWnd);
    const CRect button = view->Place(IDC_ADD);
    const CRect whole(0, 0, 400, 300);
    const HBRUSH red = ::CreateSolidBrush(RGB(255, 0, 0));
    ::FillRect(dc, &whole, red);
    EXPECT_EQ(TRUE, view->SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc)));
    EXPECT_EQ(RGB(255, 0, 0), ::GetPixel(dc, (button.left + button.right) / 2, (button.top + button.bottom) / 2));
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), ::GetPixel(dc, 2, 298));
    ::DeleteObject(red);
    ::ReleaseDC(view->m_hWnd, dc);
}

TEST_F(LayoutForm, ASizeThatMovesNothingPaintsNothing)
{
    WaypointForm* const view = Child(400, 300);
    view->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    view->SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(400, 300));
    for (const int id : {IDC_NAME, IDC_LIST, IDC_ADD})
    {
        EXPECT_FALSE(::GetUpdateRect(view->GetDlgItem(id)->m_hWnd, nullptr, FALSE)) << id;
    }
    EXPECT_FALSE(::GetUpdateRect(view->m_hWnd, nullptr, FALSE));
}

TEST_F(LayoutForm, AnEmptySizeIsNoSize)
{
    WaypointForm* const view = Child(400, 300);
    view->SendMessage(WM_SIZE, SIZE_RESTORED, 0);
    EXPECT_EQ(view->Corner(400, 300), view->Place(IDC_ADD));
}

TEST_F(LayoutForm, ItKeepsItsControlBarsAtItsEdges)
{
    WaypointForm* const view = Child(400, 300);
    CStatusBar bar;
    ASSERT_TRUE(bar.Create(view));
    view->Size(430, 340);
    CRect place;
    bar.GetWindowRect(&place);
    view->ScreenToClient(&place);
    EXPECT_EQ(CPoint(430, 340), place.BottomRight());
    EXPECT_EQ(0, place.left);
    EXPECT_EQ(view->Corner(430, 340), view->Place(IDC_ADD)) << "bars leave what is laid out alone";
}

TEST_F(LayoutForm, WithoutItsTemplateItIsNotMade)
{
    auto* const view = new WaypointForm(4711U); // deletes itself
    EXPECT_FALSE(view->Create(nullptr, nullptr, WS_CHILD | WS_VISIBLE, CRect(0, 0, 10, 10), &m_parent, 9));
}

TEST_F(LayoutForm, ItFillsAFrameAndGrowsWithIt)
{
    auto* const frame = new CFrameWnd;
    CCreateContext context;
    context.m_pNewViewClass = RUNTIME_CLASS(WaypointForm);
    ASSERT_TRUE(
        frame->Create(nullptr, "Planner", WS_OVERLAPPEDWINDOW, CRect(30, 30, 530, 430), nullptr, nullptr, 0, &context));
    frame->InitialUpdateFrame(nullptr, TRUE);
    auto* const view = DYNAMIC_DOWNCAST(WaypointForm, frame->GetActiveView());
    ASSERT_NE(nullptr, view);
    const auto standsInCorner = [&]
    {
        const CSize client = view->Client();
        return view->Place(IDC_ADD) == view->Corner(static_cast<int>(client.cx), static_cast<int>(client.cy));
    };
    EXPECT_TRUE(standsInCorner());
    const CSize before = view->Client();
    frame->MoveWindow(30, 30, 560, 440);
    EXPECT_EQ(before + CSize(60, 40), view->Client());
    EXPECT_TRUE(standsInCorner());
    frame->DestroyWindow();
}

TEST_F(LayoutForm, ScreenReadersAskTheSystem)
{
    WaypointForm* const view = Child(400, 300);
    long count = 0;
    VARIANT variant{};
    BSTR name = nullptr;
    IDispatch* dispatch = nullptr;
    EXPECT_EQ(S_FALSE, view->accHitTest(0, 0, &variant));
    EXPECT_EQ(S_FALSE, view->accLocation(&count, &count, &count, &count, variant));
    EXPECT_EQ(S_FALSE, view->get_accChild(variant, &dispatch));
    EXPECT_EQ(S_FALSE, view->get_accChildCount(&count));
    EXPECT_EQ(S_FALSE, view->get_accName(variant, &name));
}

TEST_F(LayoutForm, ManyOpeningsLeaveNoHandleBehind)
{
    Child(400, 300)->DestroyWindow();
    const unsigned drawing = vorn::test::CountGdiObjects();
    const unsigned user = vorn::test::CountUserObjects();
    for (int i = 0; i < 100; ++i)
    {
        Child(400, 300)->DestroyWindow();
    }
    EXPECT_EQ(drawing, vorn::test::CountGdiObjects());
    EXPECT_EQ(user, vorn::test::CountUserObjects());
}
