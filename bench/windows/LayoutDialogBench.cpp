#include "framework/core/BaseTypes.h"
#include "toolkit/layout/LayoutDialog.h"

#include <benchmark/benchmark.h>

#include <commctrl.h>

// A shown dialog of 200 controls that is asked for its limits, and sized until it is painted again; beside it, as the
// floor, one that the system alone sizes and paints.
namespace
{

constexpr int kControls = 200;
constexpr int kInRow = 10;
constexpr int kControlWidth = 30;
constexpr int kControlHeight = 12;
constexpr int kSpacing = 5;

constexpr DWORD kFrame = WS_POPUP | WS_CAPTION | WS_SYSMENU;

struct EmptyTemplate
{
    DLGTEMPLATE head;
    WORD menu;
    WORD windowClass;
    WORD title;
};

constexpr UINT IdOf(int control)
{
    return static_cast<UINT>(1000 + control);
}

void AddButton(HWND dialog, int control, int x, int y)
{
    ::CreateWindowExA(0, "Button", "", WS_CHILD | WS_VISIBLE, x, y, kControlWidth, kControlHeight, dialog,
                      reinterpret_cast<HMENU>(static_cast<UINT_PTR>(IdOf(control))), nullptr, nullptr);
}

class LargeDialog : public LayoutManagement::LayoutDialog
{
public:
    LargeDialog() : LayoutDialog(0U, nullptr, nullptr, true, true)
    {
        const EmptyTemplate none = {{kFrame, 0, 0, 0, 0, 400, 300}, 0, 0, 0};
        CreateIndirect(&none.head);
        ShowWindow(SW_SHOWNA);
        UpdateWindow();
    }
    ~LargeDialog() override
    {
        DestroyWindow();
    }
    BOOL OnInitDialog() override
    {
        LayoutDialog::OnInitDialog();
        CPane root = CreateRoot(Vertical, kSpacing, 0);
        for (int row = 0; row < kControls / kInRow; ++row)
        {
            CPane line = pane(Horizontal, FixedHeight, kSpacing, 0, 0);
            for (int i = row * kInRow; i < (row + 1) * kInRow; ++i)
            {
                AddButton(m_hWnd, i, 0, 0);
                line << item(IdOf(i), FixedBoth, kControlWidth, kControlHeight, 0, 0);
            }
            line << itemSpace(Horizontal);
            root << line;
        }
        root << itemSpace(Vertical);
        UpdateLayout(false);
        return TRUE;
    }
};

/// The same picture without a layout: the system's dialog, buttons and status bar.
class BareDialog
{
public:
    BareDialog()
    {
        const EmptyTemplate none = {{kFrame | WS_THICKFRAME, 0, 0, 0, 0, 400, 300}, 0, 0, 0};
        m_hWnd = ::CreateDialogIndirectParamA(nullptr, &none.head, nullptr, DialogProc, 0);
        for (int i = 0; i < kControls; ++i)
        {
            AddButton(m_hWnd, i, kSpacing + i % kInRow * (kControlWidth + kSpacing),
                      kSpacing + i / kInRow * (kControlHeight + kSpacing));
        }
        ::CreateWindowExA(0, STATUSCLASSNAMEA, "",
                          WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | CCS_BOTTOM | SBARS_SIZEGRIP, 0, 0, 0, 0, m_hWnd,
                          reinterpret_cast<HMENU>(kStatusBar), nullptr, nullptr);
        ::ShowWindow(m_hWnd, SW_SHOWNA);
        ::UpdateWindow(m_hWnd);
    }
    ~BareDialog()
    {
        ::DestroyWindow(m_hWnd);
    }
    BareDialog(const BareDialog&) = delete;
    BareDialog& operator=(const BareDialog&) = delete;

    void SetWindowPos(HWND after, int x, int y, int cx, int cy, UINT flags)
    {
        ::SetWindowPos(m_hWnd, after, x, y, cx, cy, flags);
    }
    void UpdateWindow()
    {
        ::UpdateWindow(m_hWnd);
    }

private:
    static constexpr UINT_PTR kStatusBar = 1;

    static INT_PTR CALLBACK DialogProc(HWND dialog, UINT message, WPARAM, LPARAM)
    {
        if (message == WM_SIZE)
        {
            ::SendMessageA(::GetDlgItem(dialog, kStatusBar), WM_SIZE, 0, 0);
        }
        return message == WM_INITDIALOG;
    }

    HWND m_hWnd;
};

void TrackSizes(benchmark::State& state)
{
    LargeDialog dialog;
    MINMAXINFO info{};
    for (auto _ : state)
    {
        dialog.SendMessage(WM_GETMINMAXINFO, 0, reinterpret_cast<LPARAM>(&info));
    }
}
BENCHMARK(TrackSizes)->Name("Layout/track sizes of a dialog of 200 controls")->Unit(benchmark::kMicrosecond);

template <typename Dialog>
void SizeChange(benchmark::State& state)
{
    Dialog dialog;
    int step = 0;
    for (auto _ : state)
    {
        step = 1 - step;
        dialog.SetWindowPos(nullptr, 0, 0, 700 + step, 600, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        dialog.UpdateWindow();
    }
}
BENCHMARK(SizeChange<LargeDialog>)
    ->Name("Layout/a dialog sized so that nothing moves")
    ->UseRealTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(SizeChange<BareDialog>)->Name("Layout/a bare dialog sized")->UseRealTime()->Unit(benchmark::kMicrosecond);

} // namespace
