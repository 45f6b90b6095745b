#include "framework/gdi/CDC.h"
#include "framework/window/CWnd.h"
#include "framework/window/ModuleState.h"
#include "toolkit/layout/LayoutMgr.h"

#include <benchmark/benchmark.h>

// A shown window of 200 controls whose size has changed so that none of them moves.
namespace
{
using LayoutManagement::LayoutMgr;

constexpr int kControls = 200;
constexpr int kInRow = 10;

class ManyControls : public CWnd, public LayoutMgr
{
public:
    ManyControls() : LayoutMgr(this)
    {
        CreateEx(0, AfxRegisterWndClass(0), "bench", WS_POPUP, 0, 0, 800, 600, nullptr, nullptr);
        CPane root = CreateRoot(Vertical, 5, 0);
        for (int row = 0; row < kControls / kInRow; ++row)
        {
            CPane line = pane(Horizontal, Greedy, 5, 0, 0);
            for (int i = 0; i < kInRow; ++i)
            {
                const UINT id = static_cast<UINT>(1000 + row * kInRow + i);
                ::CreateWindowExA(0, "Static", "", WS_CHILD | WS_VISIBLE, 0, 0, 10, 10, m_hWnd,
                                  reinterpret_cast<HMENU>(static_cast<UINT_PTR>(id)), nullptr, nullptr);
                line << item(id, Greedy, 0, 0, 0, 0);
            }
            root << line;
        }
        UpdateLayout(false);
        ShowWindow(SW_SHOWNA);
        UpdateWindow();
    }
    ~ManyControls() override
    {
        DestroyWindow();
    }
};

void NothingMoves(benchmark::State& state)
{
    ManyControls window;
    for (auto _ : state)
    {
        window.UpdateLayout(false);
    }
}
BENCHMARK(NothingMoves)->Name("Layout/200 controls that stay")->Unit(benchmark::kMicrosecond);

void AroundControls(benchmark::State& state)
{
    ManyControls window;
    CDC* const dc = window.GetDC();
    for (auto _ : state)
    {
        window.EraseBkgnd(dc);
    }
    window.ReleaseDC(dc);
}
BENCHMARK(AroundControls)->Name("Layout/background around 200 controls")->Unit(benchmark::kMicrosecond);

} // namespace
