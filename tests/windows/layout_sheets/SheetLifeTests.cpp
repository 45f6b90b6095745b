#include "framework/bars/CStatusBar.h"
#include "tests/support/DialogDriver.h"
#include "tests/windows/layout_sheets/LaidSheets.h"

#include <memory>

// The end of sheets and pages, the sheet's placement, and its control bars.
namespace
{

class LayoutSheetLife : public testing::Test
{
protected:
    LayoutSheetLife()
    {
        g_app.stored.clear();
        g_app.reads = 0;
    }
    /// A sheet and a page, both made with new, that count their ends.
    PlannerSheet* NewSheet()
    {
        auto* sheet = new PlannerSheet; // its test deletes it, or it does
        auto* page = new PlannerPage;   // likewise
        sheet->m_deaths = &m_sheetsGone;
        page->m_deaths = &m_pagesGone;
        sheet->AddPage(page);
        return sheet;
    }
    static INT_PTR RunAndPress(PlannerSheet& sheet, int button)
    {
        DialogDriver driver(
            [&]
            {
                return sheet.m_hWnd != nullptr && ::IsWindowVisible(sheet.m_hWnd) &&
                       sheet.PostMessage(WM_COMMAND, static_cast<WPARAM>(button));
            });
        return sheet.DoModal();
    }

    int m_sheetsGone = 0;
    int m_pagesGone = 0;
};

TEST_F(LayoutSheetLife, NothingIsDeletedUnlessAsked)
{
    const std::unique_ptr<PlannerSheet> sheet(NewSheet());
    const std::unique_ptr<CPropertyPage> page(sheet->GetPage(0));
    ASSERT_TRUE(sheet->Create());
    sheet->DestroyWindow();
    EXPECT_EQ(0, m_sheetsGone);
    EXPECT_EQ(0, m_pagesGone);
}

TEST_F(LayoutSheetLife, AModelessSheetDeletesItselfAndItsPages)
{
    PlannerSheet* sheet = NewSheet();
    sheet->SetAutoDestroy(true);
    sheet->SetAutoDestroyPages(true);
    ASSERT_TRUE(sheet->Create());
    sheet->SendMessage(WM_CLOSE);
    EXPECT_EQ(1, m_sheetsGone);
    EXPECT_EQ(1, m_pagesGone);
}

TEST_F(LayoutSheetLife, PagesMayBeLeftToTheirMaker)
{
    PlannerSheet* sheet = NewSheet();
    const std::unique_ptr<CPropertyPage> page(sheet->GetPage(0));
    sheet->SetAutoDestroy(true);
    ASSERT_TRUE(sheet->Create());
    sheet->DestroyWindow();
    EXPECT_EQ(1, m_sheetsGone);
    EXPECT_EQ(0, m_pagesGone);
}

TEST_F(LayoutSheetLife, AModalSheetNeverDeletesItself)
{
    const std::unique_ptr<PlannerSheet> sheet(NewSheet());
    sheet->SetAutoDestroy(true);
    sheet->SetAutoDestroyPages(true);
    EXPECT_EQ(IDOK, RunAndPress(*sheet, IDOK));
    EXPECT_EQ(0, m_sheetsGone);
    EXPECT_EQ(1, m_pagesGone);
    EXPECT_EQ(0, sheet->GetPageCount());
}

TEST_F(LayoutSheetLife, ASheetThatIsDeletedWhileItIsOpenIsDeletedOnce)
{
    std::unique_ptr<PlannerSheet> sheet(NewSheet());
    sheet->SetAutoDestroy(true);
    sheet->SetAutoDestroyPages(true);
    ASSERT_TRUE(sheet->Create());
    sheet.reset();
    EXPECT_EQ(1, m_sheetsGone);
    EXPECT_EQ(1, m_pagesGone);
}

TEST_F(LayoutSheetLife, InitTakesTheChoicesBack)
{
    const std::unique_ptr<PlannerSheet> sheet(NewSheet());
    const std::unique_ptr<CPropertyPage> page(sheet->GetPage(0));
    sheet->SetAutoDestroy(true);
    sheet->SetAutoDestroyPages(true);
    sheet->Init("Weights", false);
    ASSERT_TRUE(sheet->Create());
    EXPECT_FALSE(sheet->Shows(IDOK)) << "no buttons either";
    sheet->DestroyWindow();
    EXPECT_EQ(0, m_sheetsGone);
    EXPECT_EQ(0, m_pagesGone);
    EXPECT_EQ(1U, g_app.stored.count("Weights/WindowPlacement"));
}

TEST_F(LayoutSheetLife, RunsModallyLaidOut)
{
    PlannerPage page;
    PlannerSheet sheet;
    sheet.AddPage(&page);
    CRect area;
    CRect place;
    DialogDriver driver(
        [&]
        {
            if (sheet.m_hWnd == nullptr || !::IsWindowVisible(sheet.m_hWnd))
            {
                return false;
            }
            sheet.SizeBy(70, 40);
            area = sheet.PageArea();
            place = sheet.PlaceOf(page);
            sheet.PostMessage(WM_COMMAND, IDCANCEL);
            return true;
        });
    EXPECT_EQ(IDCANCEL, sheet.DoModal());
    EXPECT_FALSE(area.IsRectEmpty());
    EXPECT_EQ(area, place);
}

TEST_F(LayoutSheetLife, ItsPlacementIsKept)
{
    PlannerPage page;
    CRect saved;
    {
        PlannerSheet sheet("Planning");
        sheet.AddPage(&page);
        ASSERT_TRUE(sheet.Create());
        sheet.MoveWindow(40, 50, 700, 500);
        sheet.GetWindowRect(&saved);
    }
    EXPECT_EQ(1U, g_app.stored.count("Planning/WindowPlacement"));
    EXPECT_EQ(CRect(40, 50, 740, 550), saved);
    PlannerSheet next("Planning");
    next.AddPage(&page);
    ASSERT_TRUE(next.Create());
    CRect restored;
    next.GetWindowRect(&restored);
    EXPECT_EQ(saved, restored);
    EXPECT_EQ(next.PageArea(), next.PlaceOf(page)) << "laid out for that size";
}

TEST_F(LayoutSheetLife, MaximisedItComesBackMaximised)
{
    PlannerPage page;
    {
        PlannerSheet sheet("Planning");
        sheet.AddPage(&page);
        ASSERT_TRUE(sheet.Create());
        sheet.ShowWindow(SW_SHOWMAXIMIZED);
    }
    PlannerSheet next("Planning");
    next.AddPage(&page);
    ASSERT_TRUE(next.Create());
    EXPECT_TRUE(next.IsZoomed());
    EXPECT_EQ(next.PageArea(), next.PlaceOf(page));
}

TEST_F(LayoutSheetLife, WithoutSectionTheProfileIsNotTouched)
{
    PlannerPage page;
    for (const char* section : {static_cast<const char*>(nullptr), ""})
    {
        PlannerSheet sheet(section);
        sheet.AddPage(&page);
        ASSERT_TRUE(sheet.Create());
    }
    EXPECT_TRUE(g_app.stored.empty());
    EXPECT_EQ(0, g_app.reads);
}

/// The status bar of a sheet after the sheet has grown, and what the sheet's tabs were before and after that.
struct BarPlaces
{
    CRect bar;
    CSize client;
    CRect tabs;
};

BarPlaces SizeWithBar(bool repositionBars)
{
    PlannerPage page;
    PlannerSheet sheet(nullptr, repositionBars);
    sheet.AddPage(&page);
    CStatusBar bar;
    sheet.m_onInit = [&](PlannerSheet& self)
    {
        EXPECT_TRUE(bar.Create(&self));
        self.Resize(self.Client().cx, self.Client().cy);
    };
    EXPECT_TRUE(sheet.Create());
    sheet.SizeBy(90, 60);
    return {sheet.PlaceOf(bar), sheet.Client(), sheet.Tabs()};
}

TEST_F(LayoutSheetLife, ControlBarsAreRepositionedWhenTheSheetIsToldSo)
{
    const BarPlaces with = SizeWithBar(true);
    EXPECT_EQ(with.client.cy, with.bar.bottom);
    EXPECT_EQ(0, with.bar.left);
    EXPECT_EQ(with.client.cx, with.bar.right);
    const BarPlaces without = SizeWithBar(false);
    EXPECT_NE(without.client.cy, without.bar.bottom);
    EXPECT_EQ(without.tabs, with.tabs) << "bars leave what is laid out alone";
}

} // namespace
