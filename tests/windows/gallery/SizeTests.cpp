#include "tests/support/PumpUntil.h"
#include "tests/windows/gallery/GalleryTest.h"

#include <map>

// The planner's dialogs at every size that a user can give them.
namespace vorn::test
{
namespace
{

class SizedDialog : public GalleryTest, public testing::WithParamInterface<GalleryDialog>
{
};

using Places = std::map<HWND, std::string>;

std::string RectText(const CRect& rect)
{
    return std::to_string(rect.left) + ' ' + std::to_string(rect.top) + ' ' + std::to_string(rect.right) + ' ' +
           std::to_string(rect.bottom);
}

Places PlacesOf(HWND window)
{
    Places places;
    for (HWND child = GetWindow(window, GW_CHILD); child != nullptr; child = GetWindow(child, GW_HWNDNEXT))
    {
        CRect rect = WindowRect(child);
        MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&rect), 2);
        places[child] = RectText(rect);
    }
    return places;
}

MINMAXINFO Limits(HWND window)
{
    MINMAXINFO limits{};
    limits.ptMaxTrackSize = {GetSystemMetrics(SM_CXMAXTRACK), GetSystemMetrics(SM_CYMAXTRACK)};
    SendMessage(window, WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&limits));
    return limits;
}

TEST_P(SizedDialog, HasNoFaultAtAnySize)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    EXPECT_EQ(FaultsText(*dialog), "");
    const POINT least = Limits(*dialog).ptMinTrackSize;
    for (int step = 0; step <= 400; step += 37)
    {
        SizeTo(*dialog, least.x + step, least.y + step * 3 / 4);
        EXPECT_EQ(FaultsText(*dialog), "") << "by " << step;
        SizeTo(*dialog, least.x + step, least.y);
        EXPECT_EQ(FaultsText(*dialog), "") << "wider by " << step;
        SizeTo(*dialog, least.x, least.y + step);
        EXPECT_EQ(FaultsText(*dialog), "") << "higher by " << step;
    }
    Close(dialog);
}

TEST_P(SizedDialog, StopsAtItsLimits)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    const MINMAXINFO limits = Limits(*dialog);
    SizeTo(*dialog, 1, 1);
    EXPECT_EQ(WindowRect(*dialog).Size(), CSize(limits.ptMinTrackSize.x, limits.ptMinTrackSize.y));
    SizeTo(*dialog, 20000, 20000);
    const CSize largest = WindowRect(*dialog).Size();
    EXPECT_EQ(largest.cx, std::max(limits.ptMaxTrackSize.x, limits.ptMinTrackSize.x));
    EXPECT_EQ(largest.cy, std::max(limits.ptMaxTrackSize.y, limits.ptMinTrackSize.y));
    EXPECT_EQ(FaultsText(*dialog), "");
    Close(dialog);
}

TEST_P(SizedDialog, ComesBackFromMaximisedAsItWas)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    const CRect before = WindowRect(*dialog);
    const Places places = PlacesOf(*dialog);
    dialog->SendMessage(WM_SYSCOMMAND, SC_MAXIMIZE);
    EXPECT_TRUE(dialog->IsZoomed());
    EXPECT_EQ(FaultsText(*dialog), "");
    dialog->SendMessage(WM_SYSCOMMAND, SC_RESTORE);
    EXPECT_FALSE(dialog->IsZoomed());
    EXPECT_EQ(RectText(WindowRect(*dialog)), RectText(before));
    EXPECT_EQ(PlacesOf(*dialog), places);
    Close(dialog);
}

TEST_P(SizedDialog, OpensWhereItWasLeft)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    dialog->SetWindowPos(nullptr, 60, 70, 700, 560, SWP_NOZORDER);
    const std::string left = RectText(WindowRect(*dialog));
    Close(dialog);
    dialog = Open(GetParam());
    EXPECT_EQ(RectText(WindowRect(*dialog)), left);
    EXPECT_EQ(FaultsText(*dialog), "");
    Close(dialog);
}

TEST_P(SizedDialog, OpensOnTheScreenAfterItWasLeftBeyondIt)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    dialog->SetWindowPos(nullptr, 9000, 9000, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
    Close(dialog);
    dialog = Open(GetParam());
    EXPECT_NE(MonitorFromWindow(*dialog, MONITOR_DEFAULTTONULL), nullptr) << RectText(WindowRect(*dialog));
    Close(dialog);
}

TEST_P(SizedDialog, OpensNormalAfterItWasClosedMinimised)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    dialog->SetWindowPos(nullptr, 60, 70, 700, 560, SWP_NOZORDER);
    const std::string normal = RectText(WindowRect(*dialog));
    dialog->ShowWindow(SW_MINIMIZE);
    ASSERT_TRUE(dialog->IsIconic());
    Close(dialog);
    dialog = Open(GetParam());
    EXPECT_FALSE(dialog->IsIconic());
    EXPECT_EQ(RectText(WindowRect(*dialog)), normal);
    Close(dialog);
}

TEST_P(SizedDialog, OpensMaximisedAfterItWasClosedSo)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    dialog->ShowWindow(SW_MAXIMIZE);
    Close(dialog);
    dialog = Open(GetParam());
    EXPECT_TRUE(dialog->IsZoomed());
    EXPECT_EQ(FaultsText(*dialog), "");
    Close(dialog);
}

INSTANTIATE_TEST_SUITE_P(Gallery, SizedDialog, testing::ValuesIn(GalleryDialogs()), NameOfDialog);

} // namespace
} // namespace vorn::test
