#include "tests/windows/framework_window/TestWindows.h"

#include <gtest/gtest.h>

namespace
{

class Wrappers : public testing::Test
{
protected:
    Wrappers()
    {
        CreatePopup(window);
    }
    HWND Control(LPCTSTR name, UINT id, DWORD style = 0, LPCTSTR text = "")
    {
        return ::CreateWindowEx(0, name, text, WS_CHILD | WS_VISIBLE | style, 0, 0, 50, 20, window.m_hWnd,
                                reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
    }
    static CRect Place(const CWnd& of)
    {
        CRect rect;
        of.GetWindowRect(&rect);
        return rect;
    }
    CRect PlaceWithin(const CWnd& of) const
    {
        CRect rect = Place(of);
        window.ScreenToClient(&rect);
        return rect;
    }
    CWnd window;
};

/// A bar at the top, 25 pixels high.
class TopBar : public CWnd
{
public:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message == WM_SIZEPARENT)
        {
            auto* layout = reinterpret_cast<AFX_SIZEPARENTPARAMS*>(lParam);
            RECT mine = layout->rect;
            mine.bottom = mine.top + 25;
            layout->rect.top += 25;
            layout->sizeTotal.cy += 25;
            AfxRepositionWindow(layout, m_hWnd, &mine);
            return 0;
        }
        return CWnd::WindowProc(message, wParam, lParam);
    }
};

} // namespace

TEST_F(Wrappers, ReadAndWriteTexts)
{
    const std::string text(5000, 'q');
    window.SetWindowText(text.c_str());
    CString read;
    window.GetWindowText(read);
    EXPECT_EQ(read, text.c_str());
    EXPECT_EQ(window.GetWindowTextLength(), 5000);
    window.SetWindowText("");
    window.GetWindowText(read);
    EXPECT_EQ(read, "");
    char buffer[4] = {};
    window.SetWindowText("abcdef");
    EXPECT_EQ(window.GetWindowText(buffer, 4), 3);
    EXPECT_STREQ(buffer, "abc");
}

TEST_F(Wrappers, ReadAndWriteDialogItems)
{
    Control("EDIT", 10);
    Control("BUTTON", 11, BS_AUTORADIOBUTTON | WS_GROUP);
    Control("BUTTON", 12, BS_AUTORADIOBUTTON);
    Control("BUTTON", 13, BS_AUTOCHECKBOX);
    window.SetDlgItemText(10, "text");
    CString text;
    EXPECT_EQ(window.GetDlgItemText(10, text), 4);
    EXPECT_EQ(text, "text");
    EXPECT_EQ(window.GetDlgItemText(99, text), 0);
    EXPECT_EQ(text, "");
    window.SetDlgItemInt(10, static_cast<UINT>(-42));
    BOOL good = FALSE;
    EXPECT_EQ(static_cast<int>(window.GetDlgItemInt(10, &good)), -42);
    EXPECT_TRUE(good);
    EXPECT_EQ(window.GetCheckedRadioButton(11, 12), 0);
    window.CheckRadioButton(11, 12, 12);
    EXPECT_EQ(window.GetCheckedRadioButton(11, 12), 12);
    window.CheckDlgButton(13, BST_CHECKED);
    EXPECT_EQ(window.IsDlgButtonChecked(13), static_cast<UINT>(BST_CHECKED));
    EXPECT_EQ(window.SendDlgItemMessage(13, BM_GETCHECK), BST_CHECKED);
}

TEST_F(Wrappers, ChangeStyles)
{
    EXPECT_TRUE(window.ModifyStyle(0, WS_BORDER, SWP_FRAMECHANGED));
    EXPECT_TRUE(window.GetStyle() & WS_BORDER);
    EXPECT_FALSE(window.ModifyStyle(0, WS_BORDER)) << "nothing changed";
    EXPECT_TRUE(window.ModifyStyle(WS_BORDER, 0));
    EXPECT_FALSE(window.GetStyle() & WS_BORDER);
    EXPECT_TRUE(window.ModifyStyleEx(0, WS_EX_ACCEPTFILES));
    EXPECT_TRUE(window.GetExStyle() & WS_EX_ACCEPTFILES);
}

TEST_F(Wrappers, MoveAndShow)
{
    window.MoveWindow(30, 40, 210, 110);
    EXPECT_EQ(Place(window), CRect(30, 40, 240, 150));
    window.SetWindowPos(nullptr, 50, 60, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    EXPECT_EQ(Place(window), CRect(50, 60, 260, 170));
    EXPECT_FALSE(window.IsWindowVisible());
    EXPECT_FALSE(window.ShowWindow(SW_SHOWNOACTIVATE)) << "it was hidden before";
    EXPECT_TRUE(window.IsWindowVisible());
    EXPECT_TRUE(window.ShowWindow(SW_HIDE));
    WINDOWPLACEMENT placement = {};
    ASSERT_TRUE(window.GetWindowPlacement(&placement));
    EXPECT_EQ(placement.length, sizeof(placement));
    placement.length = 0; // the wrapper fills it in
    placement.rcNormalPosition = {70, 80, 270, 180};
    placement.showCmd = SW_HIDE;
    EXPECT_TRUE(window.SetWindowPlacement(&placement));
    EXPECT_EQ(Place(window), CRect(70, 80, 270, 180));
    EXPECT_EQ(placement.length, 0U);
}

TEST_F(Wrappers, KeepTheTopMostOrderThroughPlaceMarks)
{
    EXPECT_TRUE(window.SetWindowPos(&CWnd::wndTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE));
    EXPECT_TRUE(window.GetExStyle() & WS_EX_TOPMOST);
    EXPECT_TRUE(window.SetWindowPos(&CWnd::wndNoTopMost, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE));
    EXPECT_FALSE(window.GetExStyle() & WS_EX_TOPMOST);
}

TEST_F(Wrappers, ConvertCoordinates)
{
    window.MoveWindow(100, 200, 50, 50);
    CPoint point(3, 4);
    window.ClientToScreen(&point);
    EXPECT_EQ(point, CPoint(103, 204));
    window.ScreenToClient(&point);
    EXPECT_EQ(point, CPoint(3, 4));
    CRect rect(1, 2, 3, 4);
    window.ClientToScreen(&rect);
    EXPECT_EQ(rect, CRect(101, 202, 103, 204));
    window.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(1, 2, 3, 4));
    CWnd other;
    ASSERT_TRUE(CreatePopup(other));
    other.MoveWindow(90, 190, 10, 10);
    window.MapWindowPoints(&other, &rect);
    EXPECT_EQ(rect, CRect(11, 12, 13, 14));
    window.MapWindowPoints(nullptr, &point, 1);
    EXPECT_EQ(point, CPoint(103, 204));
}

TEST_F(Wrappers, FindRelatives)
{
    CWnd child;
    ASSERT_TRUE(CreateChild(child, window, 5));
    CWnd grandchild;
    ASSERT_TRUE(CreateChild(grandchild, child, 6));
    CWnd owned;
    ASSERT_TRUE(CreatePopup(owned, window.m_hWnd));
    EXPECT_EQ(grandchild.GetParent(), &child);
    EXPECT_EQ(grandchild.GetTopLevelParent(), &window);
    EXPECT_EQ(grandchild.GetParentOwner(), &child);
    EXPECT_EQ(owned.GetParentOwner(), &window);
    EXPECT_EQ(owned.GetTopLevelOwner(), &window);
    EXPECT_EQ(grandchild.GetTopLevelFrame(), nullptr);
    EXPECT_EQ(window.GetDescendantWindow(6), &grandchild);
    EXPECT_EQ(window.GetDescendantWindow(7), nullptr);
    EXPECT_TRUE(window.IsChild(&grandchild));
    EXPECT_FALSE(window.IsChild(&owned));
    EXPECT_EQ(window.GetTopWindow(), &child);
    EXPECT_EQ(child.GetOwner(), &window);
    child.SetOwner(&owned);
    EXPECT_EQ(child.GetOwner(), &owned);
    EXPECT_FALSE(child.IsFrameWnd());
}

TEST_F(Wrappers, FindOnlyPermanentDescendantsWhenAsked)
{
    const HWND plain = Control("STATIC", 8);
    EXPECT_EQ(window.GetDescendantWindow(8, TRUE), nullptr);
    CWnd* found = window.GetDescendantWindow(8);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->m_hWnd, plain);
}

TEST_F(Wrappers, SendMessagesToDescendants)
{
    class Counting : public CWnd
    {
    public:
        int seen = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            seen += message == WM_APP;
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Counting child;
    Counting grandchild;
    ASSERT_TRUE(CreateChild(child, window));
    ASSERT_TRUE(CreateChild(grandchild, child));
    window.SendMessageToDescendants(WM_APP);
    EXPECT_EQ(child.seen, 1);
    EXPECT_EQ(grandchild.seen, 1);
    window.SendMessageToDescendants(WM_APP, 0, 0, FALSE, TRUE);
    EXPECT_EQ(child.seen, 2);
    EXPECT_EQ(grandchild.seen, 1);
}

TEST_F(Wrappers, CenterAChildInItsParent)
{
    window.MoveWindow(100, 100, 200, 100);
    CWnd child;
    ASSERT_TRUE(CreateChild(child, window)); // 30 by 20
    child.CenterWindow();
    CRect rect = Place(child);
    window.ScreenToClient(&rect);
    EXPECT_EQ(rect, CRect(85, 40, 115, 60));
}

TEST_F(Wrappers, CenterAPopupInItsOwnerInsideTheWorkArea)
{
    window.MoveWindow(300, 300, 400, 300);
    window.ShowWindow(SW_SHOWNOACTIVATE);
    CWnd popup;
    ASSERT_TRUE(CreatePopup(popup, window.m_hWnd)); // 200 by 100
    popup.CenterWindow();
    EXPECT_EQ(Place(popup), CRect(400, 400, 600, 500));
    window.MoveWindow(-300, -200, 400, 300);
    popup.CenterWindow();
    RECT area = {};
    ::SystemParametersInfo(SPI_GETWORKAREA, 0, &area, 0);
    EXPECT_EQ(Place(popup).TopLeft(), CPoint(area.left, area.top));
    window.ShowWindow(SW_HIDE);
    popup.CenterWindow();
    EXPECT_EQ(Place(popup).left, area.left + (area.right - area.left - 200) / 2) << "a hidden owner does not count";
}

TEST_F(Wrappers, Scroll)
{
    window.ModifyStyle(0, WS_VSCROLL, SWP_FRAMECHANGED);
    window.SetScrollRange(SB_VERT, 0, 100);
    EXPECT_EQ(window.GetScrollLimit(SB_VERT), 100);
    SCROLLINFO info = {};
    info.fMask = SIF_PAGE | SIF_POS;
    info.nPage = 11;
    info.nPos = 33;
    EXPECT_TRUE(window.SetScrollInfo(SB_VERT, &info));
    EXPECT_EQ(window.GetScrollPos(SB_VERT), 33);
    EXPECT_EQ(window.GetScrollLimit(SB_VERT), 90) << "the last page starts there";
    EXPECT_EQ(window.SetScrollPos(SB_VERT, 44), 33);
    SCROLLINFO read = {};
    EXPECT_TRUE(window.GetScrollInfo(SB_VERT, &read));
    EXPECT_EQ(read.nPos, 44);
    EXPECT_EQ(read.nMax, 100);
}

TEST_F(Wrappers, StandOnAScrollBarControlWhenThereIsOne)
{
    class WithBar : public CWnd
    {
    public:
        CWnd bar;
        CScrollBar* GetScrollBarCtrl(int) const override
        {
            return reinterpret_cast<CScrollBar*>(const_cast<CWnd*>(&bar));
        }
    };
    WithBar host;
    ASSERT_TRUE(CreatePopup(host));
    ASSERT_TRUE(host.bar.CreateEx(0, "SCROLLBAR", "", WS_CHILD | SBS_VERT, CRect(0, 0, 20, 100), &host, 3));
    host.SetScrollRange(SB_VERT, 5, 25);
    host.SetScrollPos(SB_VERT, 9);
    EXPECT_EQ(::GetScrollPos(host.bar.m_hWnd, SB_CTL), 9);
    EXPECT_EQ(host.GetScrollLimit(SB_VERT), 25);
}

TEST_F(Wrappers, RunTimers)
{
    class Ticking : public CWnd
    {
    public:
        UINT_PTR ticked = 0;
        LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
        {
            if (message == WM_TIMER)
            {
                ticked = wParam;
            }
            return CWnd::WindowProc(message, wParam, lParam);
        }
    };
    Ticking ticking;
    ASSERT_TRUE(CreatePopup(ticking));
    EXPECT_EQ(ticking.SetTimer(7, 10), 7U);
    const DWORD start = ::GetTickCount();
    while (ticking.ticked == 0 && ::GetTickCount() - start < 5000)
    {
        AfxPumpMessage();
    }
    EXPECT_EQ(ticking.ticked, 7U);
    EXPECT_TRUE(ticking.KillTimer(7));
    EXPECT_FALSE(ticking.KillTimer(7));
}

TEST_F(Wrappers, ChooseASafeOwner)
{
    HWND top = reinterpret_cast<HWND>(1);
    EXPECT_EQ(CWnd::GetSafeOwner(nullptr, &top), nullptr);
    EXPECT_EQ(top, nullptr);
    CWinApp app("App");
    app.m_pMainWnd = &window;
    EXPECT_EQ(CWnd::GetSafeOwner(), &window);
    CWnd child;
    ASSERT_TRUE(CreateChild(child, window));
    EXPECT_EQ(CWnd::GetSafeOwner(&child, &top), &window) << "a child's top window owns";
    EXPECT_EQ(top, nullptr);
    CWnd owned;
    ASSERT_TRUE(CreatePopup(owned, window.m_hWnd));
    EXPECT_EQ(CWnd::GetSafeOwner(&owned, &top), &owned);
    EXPECT_EQ(top, window.m_hWnd) << "and the top of the owners is disabled meanwhile";
    window.ShowWindow(SW_SHOW);
    owned.ShowWindow(SW_SHOW);
    owned.SetActiveWindow();
    ASSERT_EQ(::GetLastActivePopup(window.m_hWnd), owned.m_hWnd);
    EXPECT_EQ(CWnd::GetSafeOwner(nullptr, &top), &owned) << "without parent the popup that was active last owns";
    EXPECT_EQ(CWnd::GetSafeOwner(&window, &top), &window);
    app.m_pMainWnd = nullptr;
}

TEST_F(Wrappers, LayOutBarsAroundTheRest)
{
    TopBar bar;
    CWnd rest;
    ASSERT_TRUE(CreateChild(bar, window, AFX_IDW_TOOLBAR));
    ASSERT_TRUE(CreateChild(rest, window, AFX_IDW_PANE_FIRST));
    CRect query;
    window.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposQuery, &query);
    EXPECT_EQ(query, CRect(0, 25, 200, 100));
    EXPECT_EQ(PlaceWithin(bar), CRect(0, 0, 30, 20)) << "asking moves nothing";
    window.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST);
    EXPECT_EQ(PlaceWithin(bar), CRect(0, 0, 200, 25));
    EXPECT_EQ(PlaceWithin(rest), CRect(0, 25, 200, 100));
    CRect extra(1, 2, 3, 4);
    window.RepositionBars(0, 0xFFFF, AFX_IDW_PANE_FIRST, CWnd::reposExtra, &extra);
    EXPECT_EQ(PlaceWithin(rest), CRect(1, 27, 197, 96));
}

TEST_F(Wrappers, LayOutTheBarsOfAWindowThatGivesNoRest)
{
    TopBar only;
    ASSERT_TRUE(CreateChild(only, window, AFX_IDW_STATUS_BAR));
    TopBar inner;
    ASSERT_TRUE(CreateChild(inner, only, AFX_IDW_TOOLBAR));
    TopBar control;
    ASSERT_TRUE(CreateChild(control, window, 1000));
    const CRect child = PlaceWithin(control);
    window.RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, 0);
    EXPECT_EQ(PlaceWithin(only), CRect(0, 0, 200, 25));
    EXPECT_EQ(PlaceWithin(control), child) << "its number is no bar's";
    EXPECT_EQ(PlaceWithin(inner).Height(), 20) << "a child of a bar is its own business";
}

TEST_F(Wrappers, LayOutBarsInTheOrderOfTheWindows)
{
    TopBar bars[3];
    for (UINT i = 0; i < 3; ++i)
    {
        ASSERT_TRUE(CreateChild(bars[i], window, AFX_IDW_CONTROLBAR_FIRST + i));
    }
    bars[2].SetWindowPos(&CWnd::wndTop, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
    window.RepositionBars(AFX_IDW_CONTROLBAR_FIRST, AFX_IDW_CONTROLBAR_LAST, 0);
    EXPECT_EQ(PlaceWithin(bars[2]).top, 0);
    EXPECT_EQ(PlaceWithin(bars[0]).top, 25);
    EXPECT_EQ(PlaceWithin(bars[1]).top, 50);
}

TEST_F(Wrappers, TakeTheMouseAndTellWhoHadIt)
{
    CWnd other;
    CreatePopup(other);
    other.ShowWindow(SW_SHOWNA);
    window.ShowWindow(SW_SHOWNA);
    EXPECT_EQ(nullptr, other.SetCapture());
    EXPECT_EQ(&other, window.SetCapture());
    EXPECT_EQ(window.m_hWnd, ::GetCapture());
    ::ReleaseCapture();
}

TEST_F(Wrappers, HoldTheDrawingOfOneWindowBack)
{
    CWnd other;
    CreatePopup(other);
    EXPECT_TRUE(window.LockWindowUpdate());
    EXPECT_FALSE(other.LockWindowUpdate()) << "one at a time";
    window.UnlockWindowUpdate();
    EXPECT_TRUE(other.LockWindowUpdate());
    other.UnlockWindowUpdate();
}

TEST_F(Wrappers, PaintWhatHasToBePainted)
{
    window.ShowWindow(SW_SHOWNA);
    window.UpdateWindow();
    const CRect part(5, 6, 30, 40);
    window.InvalidateRect(&part, FALSE);
    PAINTSTRUCT paint{};
    CDC* const dc = window.BeginPaint(&paint);
    ASSERT_NE(nullptr, dc);
    EXPECT_EQ(paint.hdc, dc->m_hDC);
    EXPECT_EQ(part, CRect(paint.rcPaint));
    window.EndPaint(&paint);
    EXPECT_FALSE(window.GetUpdateRect(nullptr, FALSE));
}

TEST_F(Wrappers, KnowHowLargeAWindowIsAroundItsClientArea)
{
    window.ModifyStyle(0, WS_CAPTION | WS_THICKFRAME);
    window.ModifyStyleEx(0, WS_EX_CLIENTEDGE);
    CRect inner(100, 100, 300, 200);
    CRect outer = inner;
    window.CalcWindowRect(&inner, CWnd::adjustOutside);
    ::AdjustWindowRectEx(&outer, window.GetStyle(), FALSE, window.GetExStyle());
    EXPECT_EQ(outer, inner);
    CRect without(100, 100, 300, 200);
    window.CalcWindowRect(&without);
    outer.DeflateRect(::GetSystemMetrics(SM_CXEDGE), ::GetSystemMetrics(SM_CYEDGE));
    EXPECT_EQ(outer, without) << "the sunken edge of a view counts as its client area";
}
