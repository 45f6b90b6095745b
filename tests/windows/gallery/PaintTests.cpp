#include "apps/planner/resource.h"
#include "tests/support/GdiCount.h"
#include "tests/support/PumpUntil.h"
#include "tests/windows/gallery/GalleryTest.h"

#include <map>

// What the planner's dialogs paint when they are sized, and what they leave behind.
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

class PaintedDialog : public GalleryTest, public testing::WithParamInterface<GalleryDialog>
{
};

TEST_P(PaintedDialog, PaintsNothingWhenNoRectangleChanges)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GetParam());
    ASSERT_NE(dialog, nullptr);
    dialog->UpdateWindow();
    PumpWaiting();
    const CRect place = WindowRect(*dialog);
    CRect client;
    dialog->GetClientRect(&client);
    PaintCounter paints(*dialog);
    dialog->SendMessage(WM_SIZE, SIZE_RESTORED, MAKELPARAM(client.right, client.bottom));
    SizeTo(*dialog, place.Width(), place.Height());
    dialog->SetWindowPos(nullptr, place.left, place.top, place.Width(), place.Height(), SWP_NOZORDER | SWP_NOACTIVATE);
    PumpWaiting();
    EXPECT_EQ(paints.Total(), 0);
    // The counter does count.
    dialog->RedrawWindow(nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    EXPECT_GT(paints.Total(), 5);
    Close(dialog);
}

INSTANTIATE_TEST_SUITE_P(Gallery, PaintedDialog, testing::ValuesIn(GalleryDialogs()), NameOfDialog);

class GalleryPainting : public GalleryTest
{
};

TEST_F(GalleryPainting, GrowingPaintsWhatGrowsAndLeavesAloneWhatStays)
{
    std::unique_ptr<planner::PlannerDialog> dialog = Open(GalleryDialogNamed("Goto"));
    ASSERT_NE(dialog, nullptr);
    dialog->UpdateWindow();
    PumpWaiting();
    const CRect place = WindowRect(*dialog);
    PaintCounter paints(*dialog);
    SizeTo(*dialog, place.Width() + 20, place.Height());
    PumpWaiting();
    EXPECT_GT(paints.Of(::GetDlgItem(*dialog, IDC_GOTO_LATITUDE)), 0);
    EXPECT_EQ(paints.Of(::GetDlgItem(*dialog, IDC_GOTO_LATITUDE_LABEL)), 0);
    EXPECT_EQ(paints.Of(::GetDlgItem(*dialog, IDC_GOTO_BY_POSITION)), 0);
    Close(dialog);
}

BOOL CALLBACK CountWindow(HWND, LPARAM count)
{
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

int WindowsOfThisThread()
{
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), CountWindow, reinterpret_cast<LPARAM>(&count));
    return count;
}

/// The system keeps some drawing objects for later windows; one left behind by each opening would be ten times as many.
constexpr unsigned kKeptBySystem = 50;

/// A thousand openings in all.
struct Openings
{
    const char* dialog;
    int count;
};

std::ostream& operator<<(std::ostream& stream, const Openings& openings)
{
    return stream << openings.count << " of " << openings.dialog;
}

class GalleryLeaks : public GalleryTest, public testing::WithParamInterface<Openings>
{
protected:
    void OpenAndClose()
    {
        const GalleryDialog& kind = GalleryDialogNamed(GetParam().dialog);
        std::unique_ptr<planner::PlannerDialog> dialog = kind.make(m_data);
        EXPECT_TRUE(dialog->Create(kind.id, nullptr));
        dialog->DestroyWindow();
    }
};

TEST_P(GalleryLeaks, NoHandleStaysBehind)
{
    OpenAndClose(); // what is made once and kept is made now
    PumpWaiting();
    const unsigned drawing = CountGdiObjects();
    const DWORD user = GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
    const int windows = WindowsOfThisThread();
    for (int i = 0; i < GetParam().count; ++i)
        OpenAndClose();
    PumpWaiting();
    EXPECT_LE(CountGdiObjects(), drawing + kKeptBySystem);
    EXPECT_EQ(GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS), user);
    EXPECT_EQ(WindowsOfThisThread(), windows);
}

INSTANTIATE_TEST_SUITE_P(Gallery, GalleryLeaks, testing::Values(Openings{"Goto", 500}, Openings{"Links", 500}),
                         [](const testing::TestParamInfo<Openings>& openings)
                         {
                             return std::string(openings.param.dialog);
                         });

} // namespace
} // namespace vorn::test
