#include "apps/planner/resource.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/gallery/GalleryTest.h"

#include <map>

// What the planner's windows paint when they are sized.
namespace vorn::test
{
namespace
{

/// Counts the painting of a window and of all below it for as long as it lives.
class PaintCounter
{
public:
    explicit PaintCounter(HWND window)
    {
        s_counter = this;
        Take(window);
        EnumChildWindows(window, TakeChild, 0);
    }
    ~PaintCounter()
    {
        for (const auto& [window, procedure] : m_procedures)
            SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
        s_counter = nullptr;
    }
    PaintCounter(const PaintCounter&) = delete;
    PaintCounter& operator=(const PaintCounter&) = delete;

    int Total() const
    {
        int total = 0;
        for (const auto& [window, count] : m_counts)
            total += count;
        return total;
    }
    int Of(HWND window) const
    {
        const auto found = m_counts.find(window);
        return found == m_counts.end() ? 0 : found->second;
    }
    void Reset()
    {
        m_counts.clear();
    }

private:
    static BOOL CALLBACK TakeChild(HWND child, LPARAM)
    {
        s_counter->Take(child);
        return TRUE;
    }
    void Take(HWND window)
    {
        m_procedures[window] =
            reinterpret_cast<WNDPROC>(SetWindowLongPtr(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(Procedure)));
    }
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_PAINT || message == WM_ERASEBKGND)
            ++s_counter->m_counts[window];
        return CallWindowProc(s_counter->m_procedures[window], window, message, wParam, lParam);
    }

    inline static PaintCounter* s_counter = nullptr;
    std::map<HWND, WNDPROC> m_procedures;
    std::map<HWND, int> m_counts;
};

using PaintedWindow = GalleryWindowTest;

TEST_P(PaintedWindow, PaintsNothingWhenNoRectangleChanges)
{
    Window().UpdateWindow();
    PumpWaiting();
    const CRect place = WindowRect(Window());
    CRect client;
    Window().GetClientRect(&client);
    PaintCounter paints(Window());
    if (!GetParam().isSheet)
        Window().SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
    SizeTo(Window(), place.Width(), place.Height());
    Window().SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    PumpWaiting();
    EXPECT_EQ(paints.Total(), 0);
    // The counter does count.
    Window().RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    EXPECT_GT(paints.Total(), 5);
}

/// Where a control stands in the window around it.
CRect PlaceIn(HWND window, HWND control)
{
    CRect place = WindowRect(control);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(static_cast<RECT*>(&place)), 2);
    return place;
}

TEST_P(PaintedWindow, GrowingLeavesAloneWhatStays)
{
    if (GetParam().isSheet)
        return; // they paint all
    Window().UpdateWindow();
    PumpWaiting();
    std::map<HWND, CRect> before;
    for (const HWND control : ControlsOf(Window()))
        before[control] = PlaceIn(Window(), control);
    const CRect place = WindowRect(Window());
    PaintCounter paints(Window());
    SizeTo(Window(), place.Width() + 40, place.Height() + 30);
    PumpWaiting();
    EXPECT_GT(paints.Total(), 0);
    for (const auto& [control, former] : before)
    {
        if (PlaceIn(Window(), control) == former)
        {
            EXPECT_EQ(paints.Of(control), 0) << GetDlgCtrlID(control) << ' ' << TextOf(control);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Gallery, PaintedWindow, testing::ValuesIn(GalleryWindows()), NameOfWindow);

class GalleryPainting : public GalleryTest
{
};

TEST_F(GalleryPainting, GrowingPaintsWhatGrowsAndLeavesAloneWhatStays)
{
    const std::unique_ptr<OpenWindow> open = Open(GalleryWindowNamed("Goto"));
    ASSERT_NE(open, nullptr);
    CWnd& dialog = open->Window();
    dialog.UpdateWindow();
    PumpWaiting();
    const CRect place = WindowRect(dialog);
    PaintCounter paints(dialog);
    SizeTo(dialog, place.Width() + 20, place.Height());
    PumpWaiting();
    EXPECT_GT(paints.Of(::GetDlgItem(dialog, IDC_GOTO_LATITUDE)), 0);
    EXPECT_EQ(paints.Of(::GetDlgItem(dialog, IDC_GOTO_LATITUDE_LABEL)), 0);
    EXPECT_EQ(paints.Of(::GetDlgItem(dialog, IDC_GOTO_BY_POSITION)), 0);
}

} // namespace
} // namespace vorn::test
