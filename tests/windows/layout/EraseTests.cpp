#include "tests/support/Canvas.h"
#include "tests/support/GdiCount.h"
#include "tests/windows/layout/LaidWindow.h"

#include <commctrl.h>

// The background around the controls. The canvas is white at first; what has been painted is not.
namespace
{

using vorn::test::Canvas;
using vorn::test::kWhite;

class LayoutErase : public testing::Test
{
protected:
    void Erase()
    {
        m_window.EraseBkgnd(&m_canvas.dc);
    }
    bool IsPainted(int x, int y) const
    {
        return m_canvas.At(x, y) == ::GetSysColor(COLOR_3DFACE);
    }

    LaidWindow m_window{100, 60};
    Canvas m_canvas{120, 80};
};

TEST_F(LayoutErase, TheClientAreaIsPaintedWithTheFaceColour)
{
    Erase();
    EXPECT_EQ(100 * 60, m_canvas.Count(::GetSysColor(COLOR_3DFACE)));
    EXPECT_EQ(kWhite, m_canvas.At(100, 10));
    EXPECT_EQ(kWhite, m_canvas.At(10, 60));
}

TEST_F(LayoutErase, VisibleControlsAreSpared)
{
    m_window.AddButton(1, {10, 10, 30, 20});
    m_window.Add("Button", 2, 0, {50, 10, 70, 20});
    Erase();
    EXPECT_EQ(kWhite, m_canvas.At(10, 10));
    EXPECT_EQ(kWhite, m_canvas.At(29, 19));
    EXPECT_TRUE(IsPainted(30, 19));
    EXPECT_TRUE(IsPainted(29, 20));
    EXPECT_TRUE(IsPainted(9, 10));
    EXPECT_TRUE(IsPainted(60, 15)); // hidden
    EXPECT_EQ(100 * 60 - 20 * 10, m_canvas.Count(::GetSysColor(COLOR_3DFACE)));
}

TEST_F(LayoutErase, FramesAroundOtherControlsAreNotSpared)
{
    m_window.Add("Button", 1, WS_VISIBLE | BS_GROUPBOX, {0, 0, 30, 30});
    m_window.Add("Static", 2, WS_VISIBLE | SS_ETCHEDFRAME, {30, 0, 60, 30});
    m_window.Add("Static", 3, WS_VISIBLE | SS_GRAYFRAME, {60, 0, 90, 30});
    m_window.Add("Static", 4, WS_VISIBLE | SS_GRAYRECT, {0, 30, 30, 60});
    Erase();
    EXPECT_TRUE(IsPainted(15, 15));
    EXPECT_TRUE(IsPainted(45, 15));
    EXPECT_TRUE(IsPainted(75, 15));
    EXPECT_EQ(kWhite, m_canvas.At(15, 45));
}

TEST_F(LayoutErase, TheEmptyEndOfARowOfTabsIsPainted)
{
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 60), &m_window, 1));
    tabs.InsertItem(0, "A");
    CRect tab;
    ASSERT_TRUE(tabs.GetItemRect(0, &tab));
    ASSERT_LT(tab.right, 90);
    Erase();
    EXPECT_EQ(kWhite, m_canvas.At(static_cast<int>(tab.left) + 3, static_cast<int>(tab.top) + 3));
    EXPECT_EQ(kWhite, m_canvas.At(static_cast<int>(tab.right) + 1, static_cast<int>(tab.top) + 3))
        << "the selected tab stands out by two pixels";
    EXPECT_TRUE(IsPainted(static_cast<int>(tab.right) + 2, static_cast<int>(tab.top) + 3));
    EXPECT_TRUE(IsPainted(98, static_cast<int>(tab.top) + 1));
    EXPECT_EQ(kWhite, m_canvas.At(50, static_cast<int>(tab.bottom) + 5));
}

TEST_F(LayoutErase, ATabControlWithoutTabsIsSparedWhole)
{
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE, CRect(0, 0, 100, 60), &m_window, 1));
    Erase();
    EXPECT_EQ(0, m_canvas.Count(::GetSysColor(COLOR_3DFACE)));
}

/// What is erased of a part of a shown window that was red before: a letter a place, '.' for the background.
class LayoutErasePart : public LayoutErase
{
protected:
    LayoutErasePart()
    {
        m_window.ShowWindow(SW_SHOWNA);
    }
    std::string Erased(const RECT& part, const std::vector<CPoint>& places)
    {
        ::ValidateRect(m_window.m_hWnd, nullptr);
        ::InvalidateRect(m_window.m_hWnd, &part, FALSE);
        CPaintDC dc(&m_window);
        dc.FillSolidRect(CRect(0, 0, 100, 60), vorn::test::kRed);
        m_window.EraseBkgnd(&dc);
        std::string seen;
        for (const CPoint& place : places)
        {
            const COLORREF color = dc.GetPixel(place);
            seen += color == vorn::test::kRed ? 'R' : color == ::GetSysColor(COLOR_3DFACE) ? '.' : '?';
        }
        return seen;
    }
};

TEST_F(LayoutErasePart, APartWithoutControlsIsPaintedWhole)
{
    m_window.AddButton(1, {10, 10, 30, 20});
    EXPECT_EQ("....", Erased({40, 0, 100, 60}, {{40, 0}, {99, 59}, {70, 15}, {41, 30}}));
    m_window.Add("Button", 2, 0, {50, 10, 70, 20});
    EXPECT_EQ("..", Erased({40, 0, 100, 60}, {{55, 15}, {90, 15}})) << "hidden ones do not count";
}

TEST_F(LayoutErasePart, APartWithControlsIsPaintedAroundThem)
{
    m_window.AddButton(1, {10, 10, 30, 20});
    m_window.Add("Button", 2, WS_VISIBLE | BS_GROUPBOX, {40, 0, 100, 60});
    m_window.AddButton(3, {50, 20, 60, 30});
    EXPECT_EQ(".R.", Erased({0, 0, 40, 60}, {{5, 15}, {15, 15}, {35, 15}}));
    EXPECT_EQ(".R.", Erased({40, 0, 100, 60}, {{45, 25}, {55, 25}, {95, 25}})) << "frames are seen through";
    EXPECT_EQ("R", Erased({51, 21, 59, 29}, {{55, 25}})) << "all of it a control";
}

TEST_F(LayoutErasePart, AContextOfAnotherWindowSparesTheControlsToo)
{
    m_window.AddButton(1, {10, 10, 30, 20});
    LaidWindow other(100, 60);
    other.ShowWindow(SW_SHOWNA);
    CClientDC dc(&other);
    dc.FillSolidRect(CRect(0, 0, 100, 60), vorn::test::kRed);
    m_window.EraseBkgnd(&dc);
    EXPECT_EQ(vorn::test::kRed, dc.GetPixel(15, 15));
    EXPECT_EQ(::GetSysColor(COLOR_3DFACE), dc.GetPixel(35, 15));
}

TEST_F(LayoutErase, TheContextKeepsItsClip)
{
    m_canvas.dc.IntersectClipRect(20, 20, 40, 40);
    Erase();
    EXPECT_EQ(20 * 20, m_canvas.Count(::GetSysColor(COLOR_3DFACE)));
    CRect clip;
    m_canvas.dc.GetClipBox(&clip);
    EXPECT_EQ(CRect(20, 20, 40, 40), clip);
}

TEST_F(LayoutErase, WhatIsSeenThroughIsNotSpared)
{
    const HWND child = m_window.AddButton(1, {10, 10, 30, 20});
    ::SetWindowLongA(child, GWL_EXSTYLE, WS_EX_TRANSPARENT);
    Erase();
    EXPECT_TRUE(IsPainted(15, 15));
    EXPECT_EQ(100 * 60, m_canvas.Count(::GetSysColor(COLOR_3DFACE)));
}

TEST_F(LayoutErase, ATabControlWithItsTabsElsewhereIsSparedWhole)
{
    CTabCtrl tabs;
    ASSERT_TRUE(tabs.Create(WS_CHILD | WS_VISIBLE | TCS_BOTTOM, CRect(0, 0, 100, 60), &m_window, 1));
    tabs.InsertItem(0, "A");
    Erase();
    EXPECT_EQ(0, m_canvas.Count(::GetSysColor(COLOR_3DFACE)));
}

/// The background of the window's class for a scope.
class ClassBrush
{
public:
    ClassBrush(HWND window, HBRUSH brush) : m_window(window)
    {
        m_former = ::SetClassLongPtrA(window, GCLP_HBRBACKGROUND, static_cast<LONG>(reinterpret_cast<LONG_PTR>(brush)));
    }
    ~ClassBrush()
    {
        ::SetClassLongPtrA(m_window, GCLP_HBRBACKGROUND, static_cast<LONG>(m_former));
    }
    ClassBrush(const ClassBrush&) = delete;
    ClassBrush& operator=(const ClassBrush&) = delete;

private:
    HWND m_window;
    ULONG_PTR m_former;
};

TEST_F(LayoutErase, SmallNumbersOfAClassAreTheSystemsColours)
{
    const ClassBrush brush(m_window.m_hWnd, reinterpret_cast<HBRUSH>(COLOR_HIGHLIGHT + 1));
    ASSERT_NE(::GetSysColor(COLOR_HIGHLIGHT), ::GetSysColor(COLOR_3DFACE));
    Erase();
    EXPECT_EQ(100 * 60, m_canvas.Count(::GetSysColor(COLOR_HIGHLIGHT)));
}

TEST_F(LayoutErase, TheBrushOfAClassBeginsInTheCornerOfTheClientArea)
{
    // Eight by eight pixels, black but for one in the corner.
    const WORD rows[8] = {0x80, 0, 0, 0, 0, 0, 0, 0};
    const HBITMAP pattern = ::CreateBitmap(8, 8, 1, 1, rows);
    const HBRUSH dotted = ::CreatePatternBrush(pattern);
    {
        const ClassBrush brush(m_window.m_hWnd, dotted);
        m_canvas.dc.SetTextColor(RGB(0, 0, 255));
        m_canvas.dc.SetBkColor(RGB(255, 0, 0));
        m_canvas.dc.SetViewportOrg(3, 5);
        Erase();
    }
    ::DeleteObject(dotted);
    ::DeleteObject(pattern);
    EXPECT_EQ(vorn::test::kRed, m_canvas.At(3, 5));
    EXPECT_EQ(vorn::test::kRed, m_canvas.At(3 + 8, 5 + 16));
    EXPECT_EQ(vorn::test::kBlue, m_canvas.At(4, 5));
    EXPECT_EQ(13 * 8, m_canvas.Count(vorn::test::kRed)) << "in 100 by 60 pixels";
    EXPECT_EQ(kWhite, m_canvas.At(2, 5));
    EXPECT_EQ(kWhite, m_canvas.At(103, 5));
}

TEST_F(LayoutErase, NoDrawingObjectStaysBehind)
{
    for (UINT id = 1; id <= 20; ++id)
    {
        m_window.AddButton(id, {static_cast<int>(id), 0, static_cast<int>(id) + 1, 10});
    }
    Erase();
    const unsigned before = vorn::test::CountGdiObjects();
    for (int i = 0; i < 50; ++i)
    {
        Erase();
    }
    EXPECT_EQ(before, vorn::test::CountGdiObjects());
}

} // namespace
