#include "tests/support/GdiCount.h"
#include "tests/windows/layout/LaidWindow.h"

#include "framework/gdi/CPaintDC.h"

#include <algorithm>
#include <random>
#include <string>
#include <vector>

// The background of a shown window whose controls are those of a layout, and when they are not.
namespace
{

constexpr COLORREF kBefore = RGB(255, 0, 0);
constexpr int kWidth = 120;
constexpr int kHeight = 80;

class LayoutEraseLaid : public testing::Test
{
protected:
    LayoutEraseLaid()
    {
        m_root = m_window.CreateRoot(LayoutMgr::Vertical);
        m_window.LockLayout();
        m_window.ShowWindow(SW_SHOWNA);
    }
    HWND AddLaid(UINT id, const RECT& rect, const char* className = "Button", DWORD style = 0)
    {
        const HWND control = m_window.Add(className, id, WS_VISIBLE | style, rect);
        m_root << m_window.item(id);
        return control;
    }
    /// A letter for each fifth pixel of a window that was red before: '.' for the background.
    std::string Seen(const RECT& part = {0, 0, kWidth, kHeight})
    {
        ::RedrawWindow(m_window.m_hWnd, nullptr, nullptr, RDW_VALIDATE | RDW_ALLCHILDREN);
        ::InvalidateRect(m_window.m_hWnd, &part, FALSE);
        CPaintDC dc(&m_window);
        dc.FillSolidRect(CRect(0, 0, kWidth, kHeight), kBefore);
        m_window.EraseBkgnd(&dc);
        std::string seen;
        for (int y = 0; y < kHeight; y += 5)
        {
            for (int x = 0; x < kWidth; x += 5)
            {
                const COLORREF color = dc.GetPixel(x, y);
                seen += color == kBefore ? 'R' : color == ::GetSysColor(COLOR_3DFACE) ? '.' : ' ';
            }
            seen += '\n';
        }
        return seen;
    }
    static char At(const std::string& seen, int x, int y)
    {
        return seen[static_cast<std::size_t>(y / 5 * (kWidth / 5 + 1) + x / 5)];
    }

    LaidWindow m_window{kWidth, kHeight};
    LayoutMgr::CPane m_root;
};

TEST_F(LayoutEraseLaid, TheControlsOfTheLayoutAreSpared)
{
    AddLaid(1, {10, 10, 30, 20});
    AddLaid(2, {50, 30, 70, 60});
    const std::string seen = Seen();
    EXPECT_EQ('R', At(seen, 15, 15));
    EXPECT_EQ('R', At(seen, 60, 45));
    EXPECT_EQ(4 * 2 + 4 * 6, std::count(seen.begin(), seen.end(), 'R'));
}

TEST_F(LayoutEraseLaid, AControlThatIsNotOfTheLayoutIsSparedToo)
{
    AddLaid(1, {10, 10, 30, 20});
    Seen();
    m_window.AddButton(2, {50, 30, 70, 60});
    EXPECT_EQ('R', At(Seen(), 60, 45));
}

TEST_F(LayoutEraseLaid, AControlInAFrameOfTheLayoutIsSpared)
{
    AddLaid(1, {10, 10, 100, 70}, "Button", BS_GROUPBOX);
    EXPECT_EQ('.', At(Seen(), 55, 45));
    m_window.AddButton(2, {50, 30, 70, 60});
    EXPECT_EQ('R', At(Seen(), 55, 45));
    EXPECT_EQ('.', At(Seen(), 30, 45));
}

TEST_F(LayoutEraseLaid, AFrameUnderAControlOfTheLayoutChangesNothing)
{
    AddLaid(1, {10, 10, 100, 70});
    m_window.Add("Button", 2, WS_VISIBLE | BS_GROUPBOX, {20, 20, 60, 60});
    const std::string seen = Seen();
    EXPECT_EQ(18 * 12, std::count(seen.begin(), seen.end(), 'R'));
}

TEST_F(LayoutEraseLaid, WhatIsHiddenGoneOrElsewhereIsPaintedOver)
{
    const HWND hidden = AddLaid(1, {0, 0, 20, 10});
    const HWND gone = AddLaid(2, {30, 0, 50, 10});
    const HWND elsewhere = AddLaid(3, {60, 0, 80, 10});
    AddLaid(4, {0, 40, 20, 50});
    EXPECT_EQ('R', At(Seen(), 65, 5));
    LaidWindow other(kWidth, kHeight);
    ::ShowWindow(hidden, SW_HIDE);
    ::DestroyWindow(gone);
    ::SetParent(elsewhere, other.m_hWnd);
    const std::string seen = Seen();
    EXPECT_EQ('.', At(seen, 5, 5));
    EXPECT_EQ('.', At(seen, 35, 5));
    EXPECT_EQ('.', At(seen, 65, 5));
    EXPECT_EQ('R', At(seen, 5, 45));
}

TEST_F(LayoutEraseLaid, ARegionOfAControlIsNotItsArea)
{
    const HWND round = AddLaid(1, {10, 10, 60, 60});
    ::SetWindowRgn(round, ::CreateRectRgn(0, 0, 25, 25), FALSE);
    EXPECT_EQ('R', At(Seen(), 55, 55)) << "the whole rectangle is the control's";
}

TEST_F(LayoutEraseLaid, APartOfSeveralRectanglesIsPaintedAroundTheControls)
{
    AddLaid(1, {10, 10, 30, 30});
    AddLaid(2, {60, 40, 90, 70});
    LaidWindow above(40, 40);
    above.SetWindowPos(&CWnd::wndTop, 40 + 45, 30 + 5, 0, 0, SWP_NOSIZE | SWP_SHOWWINDOW | SWP_NOACTIVATE);
    const std::string seen = Seen();
    EXPECT_EQ('R', At(seen, 15, 15));
    EXPECT_EQ('R', At(seen, 65, 65));
    EXPECT_EQ('.', At(seen, 40, 60));
}

TEST_F(LayoutEraseLaid, AMirroredWindowIsPaintedAroundItsControls)
{
    m_window.ModifyStyleEx(0, WS_EX_LAYOUTRTL);
    AddLaid(1, {10, 10, 30, 20});
    m_window.AddButton(2, {50, 30, 70, 60});
    const std::string laid = Seen();
    EXPECT_EQ(4 * 2 + 4 * 6, std::count(laid.begin(), laid.end(), 'R'));
}

TEST_F(LayoutEraseLaid, TheLayoutMakesNoDifference)
{
    std::mt19937 random(31);
    const auto number = [&random](unsigned below)
    {
        return static_cast<int>(random() % below);
    };
    const char* const classes[] = {"Button", "Static", "Edit"};
    for (int round = 0; round < 60; ++round)
    {
        LayoutMgr::CPane laid = m_window.CreateRoot(LayoutMgr::Vertical);
        std::vector<HWND> controls;
        for (UINT id = 1; id <= 12; ++id)
        {
            const int left = number(kWidth) - 10;
            const int top = number(kHeight) - 10;
            const DWORD style = (number(8) != 0 ? WS_VISIBLE : 0U) | (number(10) == 0 ? BS_GROUPBOX : 0U);
            controls.push_back(m_window.Add(classes[number(10) == 0 ? 1 + number(2) : 0], id, style,
                                            {left, top, left + number(40), top + number(30)}));
            if (number(20) != 0)
            {
                laid << m_window.item(id);
            }
        }
        const int left = number(60);
        const RECT part = {left, number(40), left + 1 + number(60), 79};
        const std::string with = Seen(part);
        m_window.CreateRoot(LayoutMgr::Vertical);
        EXPECT_EQ(Seen(part), with) << "round " << round;
        std::for_each(controls.begin(), controls.end(), ::DestroyWindow);
    }
}

TEST_F(LayoutEraseLaid, NoDrawingObjectStaysBehind)
{
    AddLaid(1, {10, 10, 30, 20});
    m_window.AddButton(2, {50, 30, 70, 60});
    Seen();
    const unsigned before = vorn::test::CountGdiObjects();
    for (int i = 0; i < 50; ++i)
    {
        Seen();
    }
    EXPECT_EQ(before, vorn::test::CountGdiObjects());
}

} // namespace
