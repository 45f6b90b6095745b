#include "framework/core/BaseTypes.h"
#include "toolkit/layout/LayoutDialog.h"

#include <benchmark/benchmark.h>

// A shown dialog of 200 controls that is asked for its limits, and sized until it is painted again.
namespace
{

constexpr int kControls = 200;
constexpr int kInRow = 10;

class LargeDialog : public LayoutManagement::LayoutDialog
{
public:
    LargeDialog() : LayoutDialog(0U, nullptr, nullptr, true, true)
    {
        struct
        {
            DLGTEMPLATE head;
            WORD menu;
            WORD windowClass;
            WORD title;
        } const none = {{WS_POPUP | WS_CAPTION | WS_SYSMENU, 0, 0, 0, 0, 400, 300}, 0, 0, 0};
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
        CPane root = CreateRoot(Vertical, 5, 0);
        for (int row = 0; row < kControls / kInRow; ++row)
        {
            CPane line = pane(Horizontal, FixedHeight, 5, 0, 0);
            for (int i = 0; i < kInRow; ++i)
            {
                const UINT id = static_cast<UINT>(1000 + row * kInRow + i);
                ::CreateWindowExA(0, "Button", "", WS_CHILD | WS_VISIBLE, 0, 0, 30, 12, m_hWnd,
                                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
                line << item(id, FixedBoth, 30, 12, 0, 0);
            }
            line << itemSpace(Horizontal);
            root << line;
        }
        root << itemSpace(Vertical);
        UpdateLayout(false);
        return TRUE;
    }
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

void SizeChange(benchmark::State& state)
{
    LargeDialog dialog;
    int step = 0;
    for (auto _ : state)
    {
        step = 1 - step;
        dialog.SetWindowPos(nullptr, 0, 0, 700 + step, 600, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
        dialog.UpdateWindow();
    }
}
BENCHMARK(SizeChange)
    ->Name("Layout/a dialog sized so that nothing moves")
    ->UseRealTime()
    ->Unit(benchmark::kMicrosecond);

} // namespace
