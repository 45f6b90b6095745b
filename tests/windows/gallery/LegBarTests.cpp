#include "apps/planner/LegBar.h"
#include "apps/planner/resource.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/gallery/GalleryTest.h"

#include <array>

// The bar of the legs in a frame, moved and sized by the mouse messages that a user's hand makes.
namespace vorn::test
{
namespace
{

constexpr const char* kSizes = "Dialog Bar Sizes";
constexpr const char* kDocked = "Docked33509";
constexpr const char* kFloating = "Floating33509";
const CSize kClient(700, 500);

class GalleryLegBar : public GalleryTest
{
protected:
    GalleryLegBar()
    {
        OpenFrame();
    }
    ~GalleryLegBar() override
    {
        m_frame->DestroyWindow();
        PumpWaiting();
    }

    void OpenFrame()
    {
        m_frame = new CFrameWnd; // deletes itself with its window
        CRect place(CPoint(100, 100), kClient);
        ::AdjustWindowRect(&place, WS_OVERLAPPEDWINDOW, FALSE);
        ASSERT_TRUE(m_frame->Create(nullptr, "Legs", WS_OVERLAPPEDWINDOW, place));
        m_frame->EnableDocking(CBRS_ALIGN_ANY);
        m_bar = std::make_unique<planner::LegBar>(m_data);
        ASSERT_TRUE(m_bar->Open(*m_frame, ID_PLANNER_LEG_BAR));
        m_frame->DockControlBar(m_bar.get(), AFX_IDW_DOCKBAR_RIGHT);
        m_frame->ShowWindow(SW_SHOW);
        m_frame->RecalcLayout();
        PumpWaiting();
    }
    void Reopen()
    {
        m_frame->DestroyWindow();
        PumpWaiting();
        m_bar.reset();
        OpenFrame();
    }
    static void Store(const char* entry, const char* text)
    {
        AppRegMgr::Instance()->WriteVornString(kSizes, entry, text, 0);
    }
    static std::string Stored(const char* entry)
    {
        return AppRegMgr::Instance()->ReadVornString(kSizes, entry, "", 0).GetString();
    }

    CRect Bar() const
    {
        return WindowRect(*m_bar);
    }
    CRect Client() const
    {
        CRect client;
        m_frame->GetClientRect(&client);
        m_frame->ClientToScreen(&client);
        return client;
    }
    UINT Dock() const
    {
        return m_bar->IsFloating() ? 0 : static_cast<UINT>(m_bar->GetDockBar()->GetDlgCtrlID());
    }
    /// In the middle of the band by which the bar is moved.
    CPoint Gripper() const
    {
        const CRect bar = Bar();
        const CPoint above(bar.CenterPoint().x, bar.top + 3);
        const CPoint before(bar.left + 3, bar.CenterPoint().y);
        EXPECT_TRUE(HitAt(above) == HTCAPTION || HitAt(before) == HTCAPTION);
        return HitAt(above) == HTCAPTION ? above : before;
    }
    LRESULT HitAt(CPoint screen) const
    {
        return m_bar->SendMessage(WM_NCHITTEST, 0, MAKELPARAM(screen.x, screen.y));
    }
    LPARAM InBar(CPoint screen) const
    {
        m_bar->ScreenToClient(&screen);
        return MAKELPARAM(screen.x, screen.y);
    }
    /// Presses where the hit test says what that means; what the hand does then waits in the queue.
    void Press(CPoint screen)
    {
        m_bar->SendMessage(WM_NCLBUTTONDOWN, static_cast<WPARAM>(HitAt(screen)), MAKELPARAM(screen.x, screen.y));
    }
    void PostMove(CPoint screen)
    {
        m_bar->PostMessage(WM_MOUSEMOVE, MK_LBUTTON, InBar(screen));
    }
    void PostRelease(CPoint screen)
    {
        m_bar->PostMessage(WM_LBUTTONUP, 0, InBar(screen));
    }
    /// Docked by its gripper, floating by the caption of its frame.
    void DragTo(CPoint target)
    {
        const CPoint from = m_bar->IsFloating() ? Caption() : Gripper();
        PostMove(CPoint((from.x + target.x) / 2, (from.y + target.y) / 2));
        PostMove(target);
        PostRelease(target);
        if (m_bar->IsFloating())
            ::SendMessage(FloatingFrame(), WM_NCLBUTTONDOWN, HTCAPTION, MAKELPARAM(from.x, from.y));
        else
            Press(from);
        PumpWaiting();
    }
    HWND FloatingFrame() const
    {
        return ::GetAncestor(*m_bar, GA_ROOT);
    }
    CPoint Caption() const
    {
        const CRect frame = WindowRect(FloatingFrame());
        return {frame.CenterPoint().x, (frame.top + Bar().top) / 2};
    }
    void DoubleClick(CPoint screen)
    {
        m_bar->SendMessage(WM_NCLBUTTONDBLCLK, static_cast<WPARAM>(HitAt(screen)), MAKELPARAM(screen.x, screen.y));
        PumpWaiting();
    }
    /// Drags an edge by so many pixels.
    void Size(CPoint edge, CSize by)
    {
        Press(edge);
        m_bar->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, InBar(edge + by));
        m_bar->SendMessage(WM_LBUTTONUP, 0, InBar(edge + by));
        PumpWaiting();
    }
    void Float()
    {
        DragTo(CPoint(1000, 700));
        ASSERT_TRUE(m_bar->IsFloating());
    }

    CFrameWnd* m_frame = nullptr;
    std::unique_ptr<planner::LegBar> m_bar;
};

TEST_F(GalleryLegBar, DocksAtEachSideToWhichItIsDragged)
{
    const CRect client = Client();
    const CPoint middle = client.CenterPoint();
    const std::array<std::pair<CPoint, UINT>, 4> targets = {{{{client.left + 4, middle.y}, AFX_IDW_DOCKBAR_LEFT},
                                                             {{middle.x, client.bottom - 4}, AFX_IDW_DOCKBAR_BOTTOM},
                                                             {{middle.x, client.top + 4}, AFX_IDW_DOCKBAR_TOP},
                                                             {{client.right - 4, middle.y}, AFX_IDW_DOCKBAR_RIGHT}}};
    for (const auto& [target, dock] : targets)
    {
        DragTo(target);
        EXPECT_EQ(Dock(), dock);
        EXPECT_EQ(FaultsText(*m_frame), "") << dock;
    }
}

TEST_F(GalleryLegBar, FloatsWhereItIsDraggedIntoTheOpen)
{
    Float();
    EXPECT_NE(::GetAncestor(*m_bar, GA_ROOT), m_frame->m_hWnd);
    EXPECT_EQ(FaultsText(*m_bar), "");
    DragTo(CPoint(Client().right - 4, Client().CenterPoint().y));
    EXPECT_EQ(Dock(), static_cast<UINT>(AFX_IDW_DOCKBAR_RIGHT));
}

TEST_F(GalleryLegBar, ADoubleClickOnTheGripperTakesItOutAndOneOnTheCaptionBringsItBack)
{
    const CRect docked = Bar();
    DoubleClick(Gripper());
    ASSERT_TRUE(m_bar->IsFloating());
    ::SendMessage(FloatingFrame(), WM_NCLBUTTONDBLCLK, HTCAPTION, 0);
    PumpWaiting();
    EXPECT_EQ(Dock(), static_cast<UINT>(AFX_IDW_DOCKBAR_RIGHT));
    EXPECT_EQ(Bar(), docked);
    EXPECT_EQ(FaultsText(*m_frame), "");
}

TEST_F(GalleryLegBar, EscapeLeavesADraggedBarWhereItWas)
{
    const CRect before = Bar();
    PostMove(CPoint(1000, 700));
    m_bar->PostMessage(WM_KEYDOWN, VK_ESCAPE, 0);
    Press(Gripper());
    PumpWaiting();
    EXPECT_EQ(Dock(), static_cast<UINT>(AFX_IDW_DOCKBAR_RIGHT));
    EXPECT_EQ(Bar(), before);
}

TEST_F(GalleryLegBar, IsSizedByTheEdgeThatFacesThePages)
{
    const CRect before = Bar();
    const CPoint edge(before.left + 2, before.CenterPoint().y);
    ASSERT_EQ(HitAt(edge), HTLEFT);
    Size(edge, CSize(-40, 0));
    EXPECT_EQ(Bar().Width(), before.Width() + 40);
    EXPECT_EQ(Bar().right, before.right);
    EXPECT_EQ(FaultsText(*m_frame), "");
    EXPECT_EQ(Stored(kDocked), std::to_string(Bar().Width()) + "," + std::to_string(Bar().Height()));
}

TEST_F(GalleryLegBar, EscapeLeavesASizedBarAsItWas)
{
    const CRect before = Bar();
    const CPoint edge(before.left + 2, before.CenterPoint().y);
    Press(edge);
    m_bar->SendMessage(WM_MOUSEMOVE, MK_LBUTTON, InBar(edge - CSize(60, 0)));
    EXPECT_TRUE(m_bar->IsTracking());
    m_bar->SendMessage(WM_KEYDOWN, VK_ESCAPE);
    EXPECT_FALSE(m_bar->IsTracking());
    EXPECT_EQ(Bar(), before);
}

TEST_F(GalleryLegBar, CannotBecomeSoSmallThatAControlIsCut)
{
    Size(CPoint(Bar().left + 2, Bar().CenterPoint().y), CSize(600, 0));
    EXPECT_EQ(FaultsText(*m_bar), "");
    Float();
    for (const auto& [edge, by] : {std::pair(CPoint(Bar().right - 2, Bar().CenterPoint().y), CSize(-600, 0)),
                                   std::pair(CPoint(Bar().CenterPoint().x, Bar().bottom - 2), CSize(0, -600))})
    {
        Size(edge, by);
        EXPECT_EQ(FaultsText(*m_bar), "");
    }
    EXPECT_GT(Bar().Width(), 60);
    EXPECT_GT(Bar().Height(), 60);
}

TEST_F(GalleryLegBar, BothSizesComeBack)
{
    Size(CPoint(Bar().left + 2, Bar().CenterPoint().y), CSize(-40, 0));
    const CSize docked = Bar().Size();
    Float();
    Size(CPoint(Bar().CenterPoint().x, Bar().bottom - 2), CSize(0, 50));
    const CSize floating = Bar().Size();
    Reopen();
    EXPECT_EQ(Bar().Size(), docked);
    EXPECT_EQ(m_bar->GetFloatingSize(), floating);
    EXPECT_EQ(Stored(kFloating), std::to_string(floating.cx) + "," + std::to_string(floating.cy));
    Float();
    EXPECT_EQ(Bar().Size(), floating);
}

TEST_F(GalleryLegBar, ADoubleClickOnTheEdgeBringsTheFirstSizeBack)
{
    const CRect first = Bar();
    Size(CPoint(Bar().left + 2, Bar().CenterPoint().y), CSize(-40, 0));
    ASSERT_NE(Bar(), first);
    DoubleClick(CPoint(Bar().left + 2, Bar().CenterPoint().y));
    EXPECT_EQ(Bar(), first);
}

TEST_F(GalleryLegBar, StoredTextsThatAreNoSizesLeaveItTheFirstOne)
{
    const CSize docked = m_bar->GetDockedSize();
    const CSize floating = m_bar->GetFloatingSize();
    for (const char* const text : {"", "x", "200", "200,", "200,-5", "0,0", "40000,200", "200,150,9", "2e2,150"})
    {
        m_frame->DestroyWindow(); // which stores the sizes
        Store(kDocked, text);
        Store(kFloating, text);
        m_bar.reset();
        OpenFrame();
        EXPECT_EQ(m_bar->GetDockedSize(), docked) << text;
        EXPECT_EQ(m_bar->GetFloatingSize(), floating) << text;
        EXPECT_EQ(FaultsText(*m_frame), "") << text;
    }
}

TEST_F(GalleryLegBar, AStoredSizeThatIsTooSmallIsTheLeast)
{
    m_frame->DestroyWindow();
    Store(kDocked, "3,3");
    Store(kFloating, "3,3");
    m_bar.reset();
    OpenFrame();
    EXPECT_EQ(FaultsText(*m_frame), "");
    Float();
    EXPECT_EQ(FaultsText(*m_bar), "");
}

TEST_F(GalleryLegBar, ShowsTheEndOfTheChosenLegOnTheChart)
{
    std::vector<LatLon> shown;
    m_data.showOnChart = [&shown](const LatLon& position)
    {
        shown.push_back(position);
    };
    CWnd& list = *m_bar->GetDlgItem(IDC_LEGS_LIST);
    ASSERT_EQ(list.SendMessage(LB_GETCOUNT), 3);
    list.SendMessage(LB_SETCURSEL, 1);
    m_bar->GetDlgItem(IDC_LEGS_SHOW)->SendMessage(BM_CLICK);
    ASSERT_EQ(shown.size(), 1u);
    EXPECT_EQ(shown[0], m_data.places[3].position); // ELN to EPH
}

TEST_F(GalleryLegBar, TabWalksFromTheListOverTheButtons)
{
    m_bar->GetDlgItem(IDC_LEGS_LIST)->SetFocus();
    AfxGetApp()->OnIdle(0);
    std::vector<int> foci;
    for (int i = 0; i < 2; ++i)
    {
        ::PostMessage(::GetFocus(), WM_KEYDOWN, VK_TAB, 0);
        MSG message;
        while (::PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE))
            AfxGetThread()->PumpMessage();
        foci.push_back(::GetDlgCtrlID(::GetFocus()));
    }
    EXPECT_EQ(foci, (std::vector<int>{IDC_LEGS_ROUTE, IDC_LEGS_LIST})) << "no leg is chosen that could be shown";
    EXPECT_FALSE(m_bar->GetDlgItem(IDC_LEGS_SHOW)->IsWindowEnabled());
    m_bar->GetDlgItem(IDC_LEGS_LIST)->SendMessage(LB_SETCURSEL, 0);
    AfxGetApp()->OnIdle(0);
    EXPECT_TRUE(m_bar->GetDlgItem(IDC_LEGS_SHOW)->IsWindowEnabled());
}

} // namespace
} // namespace vorn::test
