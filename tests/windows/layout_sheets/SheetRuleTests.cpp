#include "framework/bars/CStatusBar.h"
#include "tests/windows/layout_sheets/LaidSheets.h"

#include <commctrl.h>

#include <algorithm>
#include <memory>
#include <string>

// What sheets and pages answer, repaint, and in which order they end.
namespace
{

class LayoutSheetRules : public testing::Test
{
protected:
    static MINMAXINFO AskedOf(CWnd& window)
    {
        MINMAXINFO info{};
        info.ptMinTrackSize = {11, 12};
        info.ptMaxTrackSize = {2001, 2002};
        info.ptMaxSize = {1901, 1902};
        window.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
        return info;
    }
    static CSize SizeOf(const CWnd& window)
    {
        CRect rect;
        window.GetWindowRect(&rect);
        return rect.Size();
    }
};

LRESULT CALLBACK CountPaints(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR count)
{
    *reinterpret_cast<int*>(count) += message == WM_PAINT ? 1 : 0;
    return ::DefSubclassProc(window, message, wParam, lParam);
}

/// Counts what is painted of a window while it lives.
class PaintCount
{
public:
    explicit PaintCount(HWND window) : m_window(window)
    {
        ::SetWindowSubclass(window, CountPaints, 77, reinterpret_cast<DWORD_PTR>(&m_paints));
    }
    ~PaintCount()
    {
        ::RemoveWindowSubclass(m_window, CountPaints, 77);
    }
    PaintCount(const PaintCount&) = delete;
    PaintCount& operator=(const PaintCount&) = delete;

    int Paints() const
    {
        return m_paints;
    }

private:
    HWND m_window;
    int m_paints = 0;
};

/// The system's sheet with its buttons, as large as the system makes it.
class SystemSheet : public CPropertySheet
{
public:
    SystemSheet() : CPropertySheet("Planning")
    {
    }
    BOOL OnInitDialog() override
    {
        m_bModeless = FALSE; // for the base, which would take the buttons away
        const BOOL result = CPropertySheet::OnInitDialog();
        m_bModeless = TRUE;
        return result;
    }
};

class AnsweringPage : public PlannerPage
{
public:
    BOOL OnInitDialog() override
    {
        m_answer = LayoutPropertyPage::OnInitDialog();
        return PlannerPage::OnInitDialog();
    }
    BOOL m_answer = FALSE;
};

class AnsweringSheet : public PlannerSheet
{
public:
    BOOL OnInitDialog() override
    {
        m_answer = PlannerSheet::OnInitDialog();
        return m_answer;
    }
    BOOL m_answer = FALSE;
};

/// Notes its end.
template <class Window>
class Noting : public Window
{
public:
    Noting(std::string& notes, const char* note) : m_notes(notes), m_note(note)
    {
    }
    ~Noting() override
    {
        m_notes += m_note;
    }

private:
    std::string& m_notes;
    const char* m_note;
};

} // namespace

TEST_F(LayoutSheetRules, InitialisationsAnswerTrue)
{
    const OpenSheet<AnsweringSheet, AnsweringPage> opened;
    EXPECT_EQ(TRUE, opened.page.m_answer);
    EXPECT_EQ(TRUE, opened.sheet.m_answer);
}

TEST_F(LayoutSheetRules, ASheetOpensAsTheSystemMakesItOrAsItsPanesNeed)
{
    CRect made;
    OpenSheet<SystemSheet, PlainPage>().sheet.GetClientRect(&made);
    OpenSheet<PlannerSheet, PlainPage> opened;
    PlannerSheet& sheet = opened.sheet;
    CSize least;
    CSize most;
    ASSERT_TRUE(sheet.GetTrackSizes(least, most));
    const CSize needed = least - sheet.Frame();
    EXPECT_EQ(CSize(static_cast<int>(std::max<LONG>(made.Width(), needed.cx)),
                    static_cast<int>(std::max<LONG>(made.Height(), needed.cy))),
              sheet.Client());
}

TEST_F(LayoutSheetRules, ANewSizePaintsSheetAndTabsAtOnce)
{
    OpenSheet<PlannerSheet> opened;
    PlannerSheet& sheet = opened.sheet;
    sheet.ShowWindow(SW_SHOWNA);
    sheet.RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    const PaintCount ofSheet(sheet.m_hWnd);
    const PaintCount ofTabs(sheet.GetTabControl()->m_hWnd);
    const CSize client = sheet.Client();
    sheet.Resize(static_cast<int>(client.cx), static_cast<int>(client.cy));
    EXPECT_GE(ofSheet.Paints(), 1);
    EXPECT_GE(ofTabs.Paints(), 1);
    const int before = ofSheet.Paints();
    sheet.Resize(0, 0);
    EXPECT_EQ(before, ofSheet.Paints()) << "minimised";
}

TEST_F(LayoutSheetRules, ASheetIsLaidOutWhenItIsShown)
{
    OpenSheet<PlannerSheet> opened;
    PlannerSheet& sheet = opened.sheet;
    const CRect place = sheet.Place(IDCANCEL);
    ::MoveWindow(sheet.Part(IDCANCEL), 1, 2, place.Width(), place.Height(), FALSE);
    sheet.SendMessage(WM_SHOWWINDOW, FALSE, 0);
    EXPECT_EQ(CPoint(1, 2), sheet.Place(IDCANCEL).TopLeft()) << "hidden";
    sheet.SendMessage(WM_SHOWWINDOW, TRUE, 0);
    EXPECT_EQ(place, sheet.Place(IDCANCEL));
}

TEST_F(LayoutSheetRules, AButtonKeepsTheSizeThatTheSystemGaveIt)
{
    CSize made;
    {
        const OpenSheet<SystemSheet, PlainPage> plain;
        made = PlaceIn(plain.sheet.m_hWnd, ::GetDlgItem(plain.sheet.m_hWnd, IDCANCEL)).Size();
    }
    OpenSheet<PlannerSheet, PlainPage> opened;
    opened.sheet.SizeBy(120, 90);
    EXPECT_EQ(made, opened.sheet.Place(IDCANCEL).Size());
}

TEST_F(LayoutSheetRules, APageIsLaidOutAnewWhenItBecomesTheActiveOne)
{
    OpenSheet<FrameworkSheet> opened;
    PlannerPage& page = opened.page;
    const CRect place = page.Edit();
    page.GetDlgItem(kPageEdit)->MoveWindow(1, 2, 30, 40);
    EXPECT_EQ(TRUE, page.OnSetActive());
    EXPECT_EQ(place, page.Edit());
}

TEST_F(LayoutSheetRules, APageTellsWhatItsPanesNeed)
{
    OpenSheet<FrameworkSheet> opened;
    PlannerPage& page = opened.page;
    page.MoveWindow(0, 0, 200, 100);
    MINMAXINFO info = AskedOf(page);
    EXPECT_EQ(CPoint(50 + 10, 20 + 10), CPoint(info.ptMinTrackSize));
    EXPECT_EQ(CPoint(2001, 2002), CPoint(info.ptMaxTrackSize));
    page.MoveWindow(0, 0, 200, 0);
    EXPECT_EQ(CPoint(60, 30), CPoint(AskedOf(page).ptMinTrackSize)) << "empty on one axis alone";
    page.MoveWindow(0, 0, 0, 0);
    EXPECT_EQ(CPoint(11, 12), CPoint(AskedOf(page).ptMinTrackSize)) << "empty on both";
}

TEST_F(LayoutSheetRules, APageKeepsItsControlBarsAtItsEdges)
{
    OpenSheet<FrameworkSheet> opened;
    PlannerPage& page = opened.page;
    CStatusBar bar;
    ASSERT_TRUE(bar.Create(&page));
    page.MoveWindow(0, 0, 240, 130);
    const CRect place = PlaceIn(page.m_hWnd, bar.m_hWnd);
    EXPECT_EQ(CPoint(240, 130), place.BottomRight());
    EXPECT_EQ(0, place.left);
    EXPECT_EQ(CRect(5, 5, 235, 125), page.Edit()) << "bars leave what is laid out alone";
}

TEST_F(LayoutSheetRules, PagesEndBeforeTheirSheet)
{
    std::string notes;
    auto* const sheet = new Noting<PlannerSheet>(notes, "sheet"); // deletes itself, and the pages before
    sheet->AddPage(new Noting<PlannerPage>(notes, "page "));
    sheet->AddPage(new Noting<PlannerPage>(notes, "page "));
    sheet->SetAutoDestroy(true);
    sheet->SetAutoDestroyPages(true);
    ASSERT_TRUE(sheet->Create());
    sheet->DestroyWindow();
    EXPECT_EQ("page page sheet", notes);
}

TEST_F(LayoutSheetRules, WithoutItsPageItLaysOutTheRest)
{
    auto page = std::make_unique<PlannerPage>();
    PlannerSheet sheet;
    sheet.AddPage(page.get());
    ASSERT_TRUE(sheet.Create());
    page.reset();
    ASSERT_EQ(nullptr, sheet.GetActivePage());
    const CRect tabs = sheet.Tabs();
    sheet.SizeBy(40, 30);
    EXPECT_EQ(CRect(tabs.left, tabs.top, tabs.right + 40, tabs.bottom + 30), sheet.Tabs());
    sheet.DestroyWindow();
}

TEST_F(LayoutSheetRules, WithoutATemplateOfAPageItDoesNotOpen)
{
    LayoutManagement::LayoutPropertyPage page(4711U);
    PlannerSheet sheet("Planning");
    sheet.AddPage(&page);
    g_app.stored.clear();
    EXPECT_FALSE(sheet.Create());
    EXPECT_EQ(-1, sheet.DoModal());
    EXPECT_TRUE(g_app.stored.empty());
}

TEST_F(LayoutSheetRules, APageAddedTwiceIsThereOnce)
{
    PlannerPage page;
    PlannerSheet sheet;
    sheet.AddPage(&page);
    sheet.AddPage(&page);
    EXPECT_EQ(1, sheet.GetPageCount());
}
