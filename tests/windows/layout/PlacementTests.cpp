#include "tests/windows/layout/LaidWindow.h"
#include "tests/windows/layout/ProfileApp.h"

#include <algorithm>
#include <cstring>
#include <vector>

// Where a window was, from one run to the next.
namespace
{

class LayoutPlacement : public testing::Test
{
protected:
    LayoutPlacement()
    {
        g_app.stored.clear();
        g_app.reads = 0;
    }
    static WINDOWPLACEMENT Stored()
    {
        WINDOWPLACEMENT placement{};
        const std::vector<BYTE>& bytes = g_app.stored["Route/WindowPlacement"];
        EXPECT_EQ(sizeof placement, bytes.size());
        std::memcpy(&placement, bytes.data(), std::min(bytes.size(), sizeof placement));
        return placement;
    }
    static CRect PlaceOf(const CWnd& window)
    {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect;
    }

    LaidWindow m_window{300, 200, WS_OVERLAPPEDWINDOW};
};

TEST_F(LayoutPlacement, IsTakenUpAgain)
{
    m_window.MoveWindow(60, 70, 333, 222, FALSE);
    EXPECT_TRUE(m_window.Save("Route"));
    EXPECT_EQ(static_cast<UINT>(SW_SHOWNORMAL), Stored().showCmd);
    LaidWindow next(100, 100, WS_OVERLAPPEDWINDOW);
    EXPECT_TRUE(next.Load("Route"));
    EXPECT_EQ(CRect(60, 70, 393, 292), PlaceOf(next));
}

TEST_F(LayoutPlacement, AMaximisedWindowComesBackMaximised)
{
    m_window.ShowWindow(SW_SHOWMAXIMIZED);
    m_window.Save("Route");
    EXPECT_EQ(static_cast<UINT>(SW_SHOWMAXIMIZED), Stored().showCmd);
    LaidWindow next(100, 100, WS_OVERLAPPEDWINDOW);
    next.Load("Route");
    EXPECT_TRUE(next.IsZoomed());
}

TEST_F(LayoutPlacement, AMinimisedWindowComesBackNormal)
{
    m_window.MoveWindow(60, 70, 333, 222, FALSE);
    m_window.ShowWindow(SW_SHOWMINIMIZED);
    m_window.Save("Route");
    EXPECT_EQ(static_cast<UINT>(SW_SHOWNORMAL), Stored().showCmd);
    LaidWindow next(100, 100, WS_OVERLAPPEDWINDOW);
    next.Load("Route");
    EXPECT_FALSE(next.IsIconic());
    EXPECT_EQ(CRect(60, 70, 393, 292), PlaceOf(next));
}

TEST_F(LayoutPlacement, AMaximisedWindowThatIsMinimisedRemembersThatItWas)
{
    m_window.ShowWindow(SW_SHOWMAXIMIZED);
    m_window.ShowWindow(SW_SHOWMINIMIZED);
    ASSERT_TRUE(m_window.IsIconic());
    m_window.Save("Route");
    EXPECT_EQ(static_cast<UINT>(SW_SHOWNORMAL), Stored().showCmd);
    EXPECT_NE(0U, Stored().flags & WPF_RESTORETOMAXIMIZED);
    LaidWindow next(100, 100, WS_OVERLAPPEDWINDOW);
    next.Load("Route");
    EXPECT_FALSE(next.IsIconic());
    EXPECT_FALSE(next.IsZoomed()) << "it comes back normal";
}

TEST_F(LayoutPlacement, TheWholeRecordIsKept)
{
    m_window.MoveWindow(60, 70, 333, 222, FALSE);
    WINDOWPLACEMENT present{};
    present.length = sizeof present;
    m_window.GetWindowPlacement(&present);
    m_window.Save("Route");
    const WINDOWPLACEMENT stored = Stored();
    EXPECT_EQ(44U, stored.length);
    EXPECT_EQ(CRect(present.rcNormalPosition), CRect(stored.rcNormalPosition));
    EXPECT_EQ(present.flags, stored.flags);
    EXPECT_EQ(CPoint(present.ptMinPosition), CPoint(stored.ptMinPosition));
    EXPECT_EQ(CPoint(present.ptMaxPosition), CPoint(stored.ptMaxPosition));
}

TEST_F(LayoutPlacement, ARecordOfAnotherLengthIsLeftAlone)
{
    m_window.Save("Route");
    const CRect before = PlaceOf(m_window);
    std::vector<BYTE>& bytes = g_app.stored["Route/WindowPlacement"];
    for (const std::size_t size : {0, 40, 43, 45, 400})
    {
        bytes.assign(size, 1);
        EXPECT_TRUE(m_window.Load("Route"));
        EXPECT_EQ(before, PlaceOf(m_window)) << size;
    }
}

TEST_F(LayoutPlacement, WithoutSectionTheProfileIsNotTouched)
{
    EXPECT_TRUE(m_window.Save(""));
    EXPECT_TRUE(m_window.Save(nullptr));
    EXPECT_TRUE(m_window.Load(""));
    EXPECT_TRUE(m_window.Load(nullptr));
    EXPECT_TRUE(g_app.stored.empty());
    EXPECT_EQ(0, g_app.reads);
}

TEST_F(LayoutPlacement, AnEntryThatIsMissingChangesNothing)
{
    const CRect before = PlaceOf(m_window);
    EXPECT_TRUE(m_window.Load("Elsewhere"));
    EXPECT_EQ(1, g_app.reads);
    EXPECT_EQ(before, PlaceOf(m_window));
}

TEST_F(LayoutPlacement, AWindowThatHasGoneIsNotSaved)
{
    m_window.DestroyWindow();
    EXPECT_TRUE(m_window.Save("Route"));
    EXPECT_TRUE(g_app.stored.empty());
}

} // namespace
