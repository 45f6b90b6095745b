#include "tests/support/DialogDriver.h"
#include "tests/support/DialogTemplateBuilder.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/layout/LaidWindow.h"
#include "tests/windows/layout/ProfileApp.h"
#include "toolkit/layout/LayoutDialog.h"

#include <cstdint>
#include <cstring>
#include <vector>

// What a dialog that lays itself out does with its messages, its menu and its place.
namespace
{

constexpr DWORD kCaption = WS_POPUP | WS_CAPTION | WS_SYSMENU;
constexpr const char* kTitle = "Fuel and alternates";

/// A list that grows from 200 by 100 pixels above a button of 75 by 23.
class FuelDialog : public LayoutManagement::LayoutDialog
{
public:
    explicit FuelDialog(const char* section = nullptr, bool hasStatusBar = false, bool isResizable = true)
        : LayoutDialog(0U, nullptr, section, hasStatusBar, isResizable)
    {
    }
    ~FuelDialog() override
    {
        if (m_hWnd != nullptr)
        {
            DestroyWindow();
        }
    }
    bool Open(DWORD more = 0)
    {
        return CreateIndirect(Template(more)) != FALSE;
    }
    INT_PTR Run()
    {
        InitModalIndirect(Template(0));
        return DoModal();
    }
    BOOL OnInitDialog() override
    {
        m_initResult = LayoutDialog::OnInitDialog();
        if (m_declares)
        {
            Declare();
        }
        return TRUE;
    }
    void Declare()
    {
        CPane buttons = pane(Horizontal, FixedHeight, 5, 0, 0);
        buttons << itemSpace(Horizontal) << item(2, FixedBoth, 75, 23, 0, 0);
        CreateRoot(Vertical, 5, 0) << item(1, Greedy, 0, 0, 200, 100) << buttons;
        UpdateLayout(false);
    }
    void DeclareFixed()
    {
        CreateRoot(Vertical, 5, 0) << item(1, FixedBoth, 200, 100, 0, 0) << item(2, FixedBoth, 75, 23, 0, 0)
                                   << itemSpace(Vertical);
        UpdateLayout(false);
    }
    bool HasRoot() const
    {
        return m_paneRoot.IsValid();
    }
    bool HasStatusBar() const
    {
        return m_statusBar.m_hWnd != nullptr;
    }
    CStatusBar& StatusBar()
    {
        return m_statusBar;
    }
    CRect Outer() const
    {
        CRect rect;
        GetWindowRect(&rect);
        return rect;
    }
    CRect Client() const
    {
        CRect rect;
        GetClientRect(&rect);
        return rect;
    }
    CRect ListPlace()
    {
        CRect rect;
        GetDlgItem(1)->GetWindowRect(&rect);
        ScreenToClient(&rect);
        return rect;
    }
    void Size(int width, int height)
    {
        SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    UINT MenuState(UINT command)
    {
        return ::GetMenuState(::GetSystemMenu(m_hWnd, FALSE), command, MF_BYCOMMAND);
    }

    bool m_declares = true;
    BOOL m_initResult = FALSE;

private:
    LPCDLGTEMPLATE Template(DWORD more)
    {
        DialogTemplateBuilder builder;
        m_template = builder.Style(kCaption | DS_MODALFRAME | more, WS_EX_DLGMODALFRAME)
                         .Title(kTitle)
                         .At({20, 20, 250, 160})
                         .Add(DialogTemplateBuilder::Button, 1, WS_CHILD | WS_VISIBLE, {0, 0, 10, 10})
                         .Add(DialogTemplateBuilder::Button, 2, WS_CHILD | WS_VISIBLE, {20, 0, 10, 10})
                         .Bytes();
        return reinterpret_cast<LPCDLGTEMPLATE>(m_template.data());
    }

    std::vector<std::uint8_t> m_template;
};

class LayoutDialogRules : public testing::Test
{
protected:
    LayoutDialogRules()
    {
        g_app.stored.clear();
        g_app.reads = 0;
    }
    ~LayoutDialogRules() override
    {
        g_app.whenRead = nullptr;
        g_app.whenWritten = nullptr;
    }
    /// Opens a dialog of the section, does something with it, closes it.
    template <class Use>
    static void CloseAfter(Use use)
    {
        FuelDialog dialog("Fuel");
        ASSERT_TRUE(dialog.Open(WS_MINIMIZEBOX | WS_MAXIMIZEBOX));
        use(dialog);
        dialog.DestroyWindow();
    }
};

MINMAXINFO AskedOf(CWnd& dialog)
{
    MINMAXINFO info{};
    info.ptMinTrackSize = {11, 12};
    info.ptMaxTrackSize = {2001, 2002};
    info.ptMaxSize = {1901, 1902};
    info.ptMaxPosition = {-3, -4};
    dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    return info;
}

CRect Screen()
{
    return CRect(0, 0, ::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN));
}

LRESULT CALLBACK CountPaints(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR count)
{
    *reinterpret_cast<int*>(count) += message == WM_PAINT || message == WM_WINDOWPOSCHANGED ? 1 : 0;
    return ::DefSubclassProc(window, message, wParam, lParam);
}

} // namespace

TEST_F(LayoutDialogRules, ItsInitialisationAnswersTrue)
{
    FuelDialog dialog;
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(TRUE, dialog.m_initResult);
}

TEST_F(LayoutDialogRules, FrameAndStatusBarAreThereBeforeThePlacementIsLoadedAndPanesAreNot)
{
    FuelDialog dialog("Fuel", true);
    int reads = 0;
    g_app.whenRead = [&]
    {
        ++reads;
        EXPECT_NE(0U, dialog.GetStyle() & WS_THICKFRAME);
        EXPECT_TRUE(dialog.HasStatusBar());
        EXPECT_NE(nullptr, dialog.GetToolTipCtrl().m_hWnd);
        EXPECT_FALSE(dialog.HasRoot());
    };
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(1, reads);
}

TEST_F(LayoutDialogRules, ItsPlacementIsSavedWhileItsPanesAreThere)
{
    FuelDialog dialog("Fuel");
    ASSERT_TRUE(dialog.Open());
    int writes = 0;
    g_app.whenWritten = [&]
    {
        ++writes;
        EXPECT_TRUE(dialog.HasRoot());
    };
    dialog.DestroyWindow();
    EXPECT_EQ(1, writes);
    EXPECT_FALSE(dialog.HasRoot());
}

TEST_F(LayoutDialogRules, WithoutPanesTheTrackSizesAreNotTouched)
{
    FuelDialog dialog;
    dialog.m_declares = false;
    ASSERT_TRUE(dialog.Open());
    const MINMAXINFO info = AskedOf(dialog);
    EXPECT_EQ(CPoint(11, 12), CPoint(info.ptMinTrackSize));
    EXPECT_EQ(CPoint(2001, 2002), CPoint(info.ptMaxTrackSize));
    EXPECT_EQ(CPoint(1901, 1902), CPoint(info.ptMaxSize));
    EXPECT_EQ(CPoint(-3, -4), CPoint(info.ptMaxPosition));
}

TEST_F(LayoutDialogRules, TheMinimumIsThatOfThePanesWithBordersAndFrame)
{
    FuelDialog dialog;
    ASSERT_TRUE(dialog.Open());
    const CSize frame = dialog.Outer().Size() - dialog.Client().Size();
    const MINMAXINFO info = AskedOf(dialog);
    EXPECT_EQ(CPoint(200 + 10 + frame.cx, 100 + 5 + 23 + 10 + frame.cy), CPoint(info.ptMinTrackSize));
    EXPECT_EQ(CPoint(2001, 2002), CPoint(info.ptMaxTrackSize)) << "unbounded";
    EXPECT_EQ(CPoint(1901, 1902), CPoint(info.ptMaxSize));
}

TEST_F(LayoutDialogRules, MinimisedItIsNotAskedForItsSizes)
{
    FuelDialog dialog;
    ASSERT_TRUE(dialog.Open(WS_MINIMIZEBOX));
    dialog.ShowWindow(SW_SHOWMINIMIZED);
    ASSERT_TRUE(dialog.IsIconic());
    EXPECT_EQ(CPoint(11, 12), CPoint(AskedOf(dialog).ptMinTrackSize));
}

TEST_F(LayoutDialogRules, ASizeOfNothingLaysNothingOut)
{
    FuelDialog dialog;
    ASSERT_TRUE(dialog.Open());
    dialog.GetDlgItem(1)->MoveWindow(1, 2, 30, 40);
    dialog.SendMessage(WM_SIZE, SIZE_MINIMIZED, 0);
    EXPECT_EQ(CRect(1, 2, 31, 42), dialog.ListPlace());
    dialog.SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(0, 100));
    EXPECT_EQ(CPoint(5, 5), dialog.ListPlace().TopLeft()) << "one side is enough";
}

TEST_F(LayoutDialogRules, ItsBackgroundIsPaintedAroundItsControls)
{
    FuelDialog dialog;
    ASSERT_TRUE(dialog.Open());
    dialog.ShowWindow(SW_SHOWNA);
    dialog.UpdateWindow();
    CWindowDC window(&dialog);
    CDC memory;
    memory.CreateCompatibleDC(&window);
    CBitmap bitmap;
    bitmap.CreateCompatibleBitmap(&window, dialog.Client().Width(), dialog.Client().Height());
    CBitmap* const former = memory.SelectObject(&bitmap);
    memory.FillSolidRect(dialog.Client(), RGB(1, 2, 3));
    EXPECT_EQ(TRUE, dialog.SendMessage(WM_ERASEBKGND, reinterpret_cast<WPARAM>(memory.m_hDC)));
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), memory.GetPixel(2, 2));
    EXPECT_EQ(RGB(1, 2, 3), memory.GetPixel(dialog.ListPlace().CenterPoint())) << "the control paints itself";
    memory.SelectObject(former);
}

TEST_F(LayoutDialogRules, ControlsThatStayAreNotPaintedAgain)
{
    FuelDialog dialog;
    dialog.m_declares = false;
    ASSERT_TRUE(dialog.Open());
    dialog.DeclareFixed();
    dialog.ShowWindow(SW_SHOWNA);
    dialog.UpdateWindow();
    vorn::test::PumpWaiting();
    const CRect before = dialog.ListPlace();
    ASSERT_EQ(CPoint(5, 5), before.TopLeft());
    int events = 0;
    for (const int id : {1, 2})
    {
        ::SetWindowSubclass(dialog.GetDlgItem(id)->m_hWnd, CountPaints, 1, reinterpret_cast<DWORD_PTR>(&events));
    }
    dialog.Size(600, 500);
    dialog.UpdateWindow();
    vorn::test::PumpWaiting();
    EXPECT_EQ(0, events);
    EXPECT_EQ(before, dialog.ListPlace());
}

TEST_F(LayoutDialogRules, TheSystemMenuFollowsTheFrame)
{
    FuelDialog dialog;
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(0U, dialog.MenuState(SC_SIZE) & (MF_GRAYED | MF_DISABLED));
    EXPECT_NE(0U, dialog.MenuState(SC_MAXIMIZE) & (MF_GRAYED | MF_DISABLED)) << "no box for it";
    FuelDialog boxed;
    ASSERT_TRUE(boxed.Open(WS_MAXIMIZEBOX));
    EXPECT_EQ(0U, boxed.MenuState(SC_MAXIMIZE) & (MF_GRAYED | MF_DISABLED));
}

TEST_F(LayoutDialogRules, OneThatIsNotResizableKeepsItsTemplatesFrame)
{
    FuelDialog dialog(nullptr, false, false);
    ASSERT_TRUE(dialog.Open());
    EXPECT_EQ(0U, dialog.GetStyle() & WS_THICKFRAME);
    EXPECT_NE(0U, dialog.GetExStyle() & WS_EX_DLGMODALFRAME);
}

TEST_F(LayoutDialogRules, TheStatusBarHasAGripWhereTheDialogHasASizingFrame)
{
    FuelDialog resizable(nullptr, true);
    ASSERT_TRUE(resizable.Open());
    EXPECT_EQ(0xE801, resizable.StatusBar().GetDlgCtrlID());
    EXPECT_EQ(1, resizable.StatusBar().SendMessage(SB_GETPARTS, 0, 0));
    EXPECT_NE(0U, resizable.StatusBar().GetStyle() & SBARS_SIZEGRIP);
    FuelDialog fixed(nullptr, true, false);
    ASSERT_TRUE(fixed.Open());
    EXPECT_EQ(0U, fixed.StatusBar().GetStyle() & SBARS_SIZEGRIP);
    FuelDialog without;
    ASSERT_TRUE(without.Open());
    EXPECT_FALSE(without.HasStatusBar());
}

TEST_F(LayoutDialogRules, TheStatusBarStaysAtTheLowerEdge)
{
    FuelDialog dialog(nullptr, true);
    ASSERT_TRUE(dialog.Open());
    dialog.Size(500, 420);
    CRect bar;
    dialog.StatusBar().GetWindowRect(&bar);
    dialog.ScreenToClient(&bar);
    EXPECT_EQ(dialog.Client().bottom, bar.bottom);
    EXPECT_EQ(dialog.Client().left, bar.left);
    EXPECT_EQ(dialog.Client().right, bar.right);
    EXPECT_EQ(CPoint(5, 5), dialog.ListPlace().TopLeft()) << "moved by the layout alone";
    EXPECT_EQ(dialog.Client().right - 5, dialog.ListPlace().right);
    EXPECT_EQ(bar.top - 5 - 23 - 5, dialog.ListPlace().bottom);
}

TEST_F(LayoutDialogRules, ClosedMinimisedItComesBackAtItsNormalPlace)
{
    CRect normal;
    CloseAfter(
        [&normal](FuelDialog& dialog)
        {
            dialog.MoveWindow(80, 90, 420, 330, FALSE);
            normal = dialog.Outer();
            dialog.ShowWindow(SW_SHOWMINIMIZED);
            ASSERT_TRUE(dialog.IsIconic());
        });
    FuelDialog next("Fuel");
    ASSERT_TRUE(next.Open(WS_MINIMIZEBOX | WS_MAXIMIZEBOX));
    EXPECT_FALSE(next.IsIconic());
    EXPECT_EQ(normal, next.Outer());
    EXPECT_EQ(next.Client().right - 5, next.ListPlace().right);
}

TEST_F(LayoutDialogRules, ClosedMaximisedItComesBackMaximisedAndLaidOut)
{
    CloseAfter(
        [](FuelDialog& dialog)
        {
            dialog.ShowWindow(SW_SHOWMAXIMIZED);
        });
    FuelDialog next("Fuel");
    ASSERT_TRUE(next.Open(WS_MINIMIZEBOX | WS_MAXIMIZEBOX));
    EXPECT_TRUE(next.IsZoomed());
    EXPECT_GE(next.Outer().Width(), Screen().Width());
    EXPECT_EQ(CPoint(5, 5), next.ListPlace().TopLeft());
    EXPECT_EQ(next.Client().right - 5, next.ListPlace().right);
}

TEST_F(LayoutDialogRules, APlaceOffTheScreenIsBroughtBack)
{
    CloseAfter(
        [](FuelDialog& dialog)
        {
            dialog.MoveWindow(80, 90, 420, 330, FALSE);
        });
    WINDOWPLACEMENT placement{};
    std::vector<BYTE>& bytes = g_app.stored.at("Fuel/WindowPlacement");
    ASSERT_EQ(sizeof placement, bytes.size());
    for (const POINT away : {POINT{5000, 90}, POINT{-5000, 90}, POINT{80, 5000}, POINT{80, -5000}})
    {
        std::memcpy(&placement, bytes.data(), sizeof placement);
        placement.rcNormalPosition = CRect(CPoint(away), CSize(420, 330));
        std::memcpy(bytes.data(), &placement, sizeof placement);
        FuelDialog next("Fuel");
        ASSERT_TRUE(next.Open());
        CRect seen;
        EXPECT_TRUE(seen.IntersectRect(next.Outer(), Screen())) << away.x << ", " << away.y;
        EXPECT_EQ(CSize(420, 330), next.Outer().Size());
    }
}

TEST_F(LayoutDialogRules, APlaceSmallerThanTheMinimumGrowsToIt)
{
    CloseAfter(
        [](FuelDialog& dialog)
        {
            dialog.MoveWindow(80, 90, 420, 330, FALSE);
        });
    WINDOWPLACEMENT placement{};
    std::vector<BYTE>& bytes = g_app.stored.at("Fuel/WindowPlacement");
    std::memcpy(&placement, bytes.data(), sizeof placement);
    placement.rcNormalPosition = CRect(80, 90, 130, 140);
    std::memcpy(bytes.data(), &placement, sizeof placement);
    FuelDialog next("Fuel");
    ASSERT_TRUE(next.Open());
    EXPECT_EQ(CPoint(80, 90), next.Outer().TopLeft());
    EXPECT_EQ(CRect(5, 5, 205, 105), next.ListPlace());
}

TEST_F(LayoutDialogRules, ANullSectionIsNone)
{
    {
        FuelDialog dialog(nullptr);
        ASSERT_TRUE(dialog.Open());
    }
    EXPECT_TRUE(g_app.stored.empty());
    EXPECT_EQ(0, g_app.reads);
}

TEST_F(LayoutDialogRules, WithoutATemplateItDoesNotOpen)
{
    LayoutManagement::LayoutDialog byNumber(4711U, nullptr, "Fuel");
    EXPECT_EQ(-1, byNumber.DoModal());
    LayoutManagement::LayoutDialog byName("NoSuchDialog", nullptr, "Fuel");
    EXPECT_EQ(-1, byName.DoModal());
    EXPECT_FALSE(byName.Create(4711U));
    EXPECT_TRUE(g_app.stored.empty());
}

TEST_F(LayoutDialogRules, ModalItIsLaidOutWhenItIsShownAndSavedWhenItEnds)
{
    FuelDialog dialog("Fuel");
    CRect list;
    CRect client;
    DialogDriver driver(
        [&]
        {
            const HWND window = FindDialog(kTitle);
            if (window == nullptr)
            {
                return false;
            }
            ::SetWindowPos(window, nullptr, 0, 0, 480, 400, SWP_NOMOVE | SWP_NOZORDER);
            list = dialog.ListPlace();
            client = dialog.Client();
            ::PostMessage(window, WM_KEYDOWN, VK_ESCAPE, 0);
            return true;
        });
    EXPECT_EQ(IDCANCEL, dialog.Run());
    EXPECT_EQ(CRect(5, 5, client.right - 5, client.bottom - 33), list);
    EXPECT_EQ(1U, g_app.stored.size());
}

TEST_F(LayoutDialogRules, TipsAreFoundWhereTheLayoutHasPutTheirControls)
{
    FuelDialog dialog;
    ASSERT_TRUE(dialog.Open());
    dialog.ShowWindow(SW_SHOWNA);
    dialog.GetToolTipCtrl().AddTool(dialog.GetDlgItem(2), "Closes the fuel plan.");
    MSG move{};
    move.hwnd = dialog.m_hWnd;
    move.message = WM_MOUSEMOVE;
    move.pt = {2, 2};
    dialog.PreTranslateMessage(&move); // the places are known now
    dialog.GetDlgItem(1)->ShowWindow(SW_HIDE);
    dialog.UpdateLayout(false);
    CRect button;
    dialog.GetDlgItem(2)->GetWindowRect(&button);
    move.pt = button.CenterPoint();
    ::SetCursorPos(move.pt.x, move.pt.y);
    dialog.PreTranslateMessage(&move);
    dialog.GetToolTipCtrl().SendMessage(WM_TIMER, 1);
    EXPECT_TRUE(dialog.GetToolTipCtrl().IsWindowVisible());
}
